<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>ff of nn</source>
        <translation>%1 sur %2</translation>
    </message>
    <message>
        <source>progrOpenOpening</source>
        <translation>Ouverture de </translation>
    </message>
    <message>
        <source>progress_Cancelling</source>
        <translation>Annulation…</translation>
    </message>
    <message>
        <source>progrOpen_ExaminingFile</source>
        <translation>Examen de </translation>
    </message>
    <message>
        <source>progrOpen_ReadingFile</source>
        <translation>Lecture de </translation>
    </message>
    <message>
        <source>progrOpen_ParsingDicomDir</source>
        <translation>Lecture du DICOMDIR…</translation>
    </message>
    <message>
        <source>progrOpen_RemoveEmptyTreeBranches</source>
        <translation>Suppression des entrées vides…</translation>
    </message>
    <message>
        <source>progrOpen_CollectingImageFiles</source>
        <translation>Recherche des fichiers d’images…</translation>
    </message>
    <message>
        <source>progrOpen_ProcessingFile</source>
        <translation>Vérification de %1</translation>
    </message>
    <message>
        <source>progrOpen_DicomDirFinishing</source>
        <translation>Finalisation de la liste des patients…</translation>
    </message>
    <message>
        <source>progrOpen_CopyingFile</source>
        <translation>Copie de %1 (%2 sur %3 Mo)</translation>
    </message>
    <message>
        <source>Anonymized</source>
        <translation>Anonymisé</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Ouvrir</translation>
    </message>
    <message>
        <source>Choose</source>
        <translation>Choisir</translation>
    </message>
    <message>
        <source>varDir is empty.</source>
        <translation>« %1 » est vide.</translation>
    </message>
    <message>
        <source>varDir contains a DICOMDIR. Choosing this folder will create a patient list.</source>
        <translation>« %1 » contient un DICOMDIR. Choisir ce dossier ouvre la liste des patients qui s’y trouve.</translation>
    </message>
    <message>
        <source>varDir does not contain a DICOMDIR.</source>
        <translation>« %1 » ne contient pas de DICOMDIR. Choisir ce dossier ouvre les images qui s’y trouvent.</translation>
    </message>
    <message>
        <source>Last check</source>
        <translation>Dernière vérification :</translation>
    </message>
    <message>
        <source>Last check never</source>
        <translation>Aucune recherche de mises à jour effectuée.</translation>
    </message>
    <message>
        <source>1 frame</source>
        <translation>1 image</translation>
    </message>
    <message>
        <source>N frames</source>
        <translation>%1 images</translation>
    </message>
    <message>
        <source>Extracted Localizer</source>
        <translation>Localisateur extrait</translation>
    </message>
    <message>
        <source>Extracted Localizers</source>
        <translation>%1 localisateurs extraits</translation>
    </message>
    <message>
        <source>%@, %dx%d pixels</source>
        <translation>%1, %2x%3 pixels</translation>
    </message>
    <message>
        <source>%@, ... pixels</source>
        <translation>%1, ... pixels</translation>
    </message>
    <message>
        <source>... frames, ... pixels</source>
        <translation>... images, ... pixels</translation>
    </message>
    <message>
        <source>%.2f sec</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>%.2f sec, %dx%d pixels</source>
        <translation>%1 s, %2x%3 pixels</translation>
    </message>
    <message>
        <source>... sec</source>
        <translation>... s</translation>
    </message>
    <message>
        <source>... sec, ... pixels</source>
        <translation>... s, ... pixels</translation>
    </message>
    <message>
        <source>%@, %d x %d pixels</source>
        <translation>%1, %2 x %3 pixels</translation>
    </message>
    <message>
        <source>%d x %d pixels</source>
        <translation>%1 x %2 pixels</translation>
    </message>
    <message>
        <source>... pixels</source>
        <translation>... pixels</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>Sans titre</translation>
    </message>
    <message>
        <source>Patient Browser</source>
        <translation>Navigateur de patients</translation>
    </message>
    <message>
        <source>Info Pane</source>
        <translation>Infos</translation>
    </message>
    <message>
        <source>Show Info</source>
        <translation>Afficher les infos</translation>
    </message>
    <message>
        <source>Hide Info</source>
        <translation>Masquer les infos</translation>
    </message>
</context>
<context>
    <name>ZELErrors</name>
    <message>
        <source>FileCannotBeOpened</source>
        <translation>Impossible d’ouvrir « %1 ».</translation>
    </message>
    <message>
        <source>NoDICOMFilesFound</source>
        <translation>Aucune image DICOM trouvée dans « %1 ».</translation>
    </message>
    <message>
        <source>DICOMDIRNoImagesFound</source>
        <translation>Le DICOMDIR de « %1 » ne mène à aucune image.</translation>
    </message>
    <message>
        <source>NoDICOMDIRImagesFound</source>
        <translation>Aucun des fichiers répertoriés dans le DICOMDIR n’a été trouvé. Pour rechercher des images dans le dossier lui-même, ouvrez-le avec l’option « Ignorer le DICOMDIR » activée.</translation>
    </message>
    <message>
        <source>RecentDocError</source>
        <translation>Impossible d’ouvrir « %1 ».</translation>
    </message>
    <message>
        <source>RecentWillBeDeleted</source>
        <translation>L’élément a peut-être été déplacé ou supprimé. Son entrée sera retirée du menu Ouvrir un élément récent.</translation>
    </message>
    <message>
        <source>BadImage</source>
        <translation>Le fichier ne contient pas d’image valide.</translation>
    </message>
    <message>
        <source>ResetToWWWLDefaults</source>
        <translation>Rétablir les préréglages de fenêtrage par défaut ?</translation>
    </message>
    <message>
        <source>ResetToWWWLExplain</source>
        <translation>Les préréglages que vous avez ajoutés ou modifiés seront perdus.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Réinitialiser</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>MenuItems</name>
    <message>
        <source>Clear Menu</source>
        <translation>Effacer le menu</translation>
    </message>
    <message>
        <source>Region # title</source>
        <translation>Région %1 : %2</translation>
    </message>
    <message>
        <source>Region #</source>
        <translation>Région %1</translation>
    </message>
    <message>
        <source>Num-title</source>
        <translation>%1 – %2</translation>
    </message>
    <message>
        <source>Num-only</source>
        <translation>%1</translation>
    </message>
    <message>
        <source>Tissue</source>
        <translation>Tissu</translation>
    </message>
    <message>
        <source>Color Flow</source>
        <translation>Doppler couleur</translation>
    </message>
    <message>
        <source>PW Spectral Doppler</source>
        <translation>Doppler spectral pulsé (PW)</translation>
    </message>
    <message>
        <source>CW Spectral Doppler</source>
        <translation>Doppler spectral continu (CW)</translation>
    </message>
    <message>
        <source>Doppler Mean Trace</source>
        <translation>Tracé Doppler moyen</translation>
    </message>
    <message>
        <source>Doppler Mode Trace</source>
        <translation>Tracé Doppler modal</translation>
    </message>
    <message>
        <source>Doppler Max Trace</source>
        <translation>Tracé Doppler maximal</translation>
    </message>
    <message>
        <source>Volume Trace</source>
        <translation>Tracé de volume</translation>
    </message>
    <message>
        <source>d(volume)/dt Trace</source>
        <translation>Tracé d(volume)/dt</translation>
    </message>
    <message>
        <source>ECG Trace</source>
        <translation>Tracé ECG</translation>
    </message>
    <message>
        <source>Pulse Trace</source>
        <translation>Tracé du pouls</translation>
    </message>
    <message>
        <source>Phonocardiogram Trace</source>
        <translation>Tracé phonocardiographique</translation>
    </message>
    <message>
        <source>Gray bar</source>
        <translation>Barre de gris</translation>
    </message>
    <message>
        <source>Color bar</source>
        <translation>Barre de couleurs</translation>
    </message>
    <message>
        <source>Integrated Backscatter</source>
        <translation>Rétrodiffusion intégrée</translation>
    </message>
    <message>
        <source>Area Trace</source>
        <translation>Tracé de surface</translation>
    </message>
    <message>
        <source>d(area)/dt</source>
        <translation>d(surface)/dt</translation>
    </message>
    <message>
        <source>Other Physiological input</source>
        <translation>Autre signal physiologique</translation>
    </message>
    <message>
        <source>Series Grid</source>
        <translation>Grille des séries</translation>
    </message>
    <message>
        <source>Single</source>
        <translation>Unique</translation>
    </message>
    <message>
        <source>2 rows</source>
        <translation>2 lignes</translation>
    </message>
    <message>
        <source>2 columns</source>
        <translation>2 colonnes</translation>
    </message>
    <message>
        <source>1 top, 2 bottom</source>
        <translation>1 en haut, 2 en bas</translation>
    </message>
    <message>
        <source>2 top, 1 bottom</source>
        <translation>2 en haut, 1 en bas</translation>
    </message>
    <message>
        <source>1 left, 2 right</source>
        <translation>1 à gauche, 2 à droite</translation>
    </message>
    <message>
        <source>2 left, 1 right</source>
        <translation>2 à gauche, 1 à droite</translation>
    </message>
    <message>
        <source>3 rows</source>
        <translation>3 lignes</translation>
    </message>
    <message>
        <source>3 columns</source>
        <translation>3 colonnes</translation>
    </message>
    <message>
        <source>1 top, 3 bottom</source>
        <translation>1 en haut, 3 en bas</translation>
    </message>
    <message>
        <source>3 top, 1 bottom</source>
        <translation>3 en haut, 1 en bas</translation>
    </message>
    <message>
        <source>1 left, 3 right</source>
        <translation>1 à gauche, 3 à droite</translation>
    </message>
    <message>
        <source>3 left, 1 right</source>
        <translation>3 à gauche, 1 à droite</translation>
    </message>
    <message>
        <source>2 top, 2 bottom</source>
        <translation>2 en haut, 2 en bas</translation>
    </message>
    <message>
        <source>2 left, 2 right</source>
        <translation>2 à gauche, 2 à droite</translation>
    </message>
    <message>
        <source>4 rows</source>
        <translation>4 lignes</translation>
    </message>
    <message>
        <source>4 columns</source>
        <translation>4 colonnes</translation>
    </message>
    <message>
        <source>Image Grid</source>
        <translation>Grille des images</translation>
    </message>
    <message>
        <source>1 x 1</source>
        <translation>1 x 1</translation>
    </message>
    <message>
        <source>1 x 2</source>
        <translation>1 x 2</translation>
    </message>
    <message>
        <source>2 x 1</source>
        <translation>2 x 1</translation>
    </message>
    <message>
        <source>2 x 2</source>
        <translation>2 x 2</translation>
    </message>
    <message>
        <source>2 x 3</source>
        <translation>2 x 3</translation>
    </message>
    <message>
        <source>3 x 2</source>
        <translation>3 x 2</translation>
    </message>
    <message>
        <source>3 x 3</source>
        <translation>3 x 3</translation>
    </message>
    <message>
        <source>3 x 4</source>
        <translation>3 x 4</translation>
    </message>
    <message>
        <source>4 x 3</source>
        <translation>4 x 3</translation>
    </message>
    <message>
        <source>4 x 4</source>
        <translation>4 x 4</translation>
    </message>
    <message>
        <source>Other...</source>
        <translation>Autre...</translation>
    </message>
    <message>
        <source>Previous Sequence</source>
        <translation>Séquence précédente</translation>
    </message>
    <message>
        <source>Next Sequence</source>
        <translation>Séquence suivante</translation>
    </message>
    <message>
        <source>Mark Sequence</source>
        <translation>Marquer la séquence</translation>
    </message>
    <message>
        <source>Unmark Sequence</source>
        <translation>Démarquer la séquence</translation>
    </message>
    <message>
        <source>Go</source>
        <translation>Aller à</translation>
    </message>
    <message>
        <source>First Frame</source>
        <translation>Première image</translation>
    </message>
    <message>
        <source>Previous Frame</source>
        <translation>Image précédente</translation>
    </message>
    <message>
        <source>Next Frame</source>
        <translation>Image suivante</translation>
    </message>
    <message>
        <source>Last Frame</source>
        <translation>Dernière image</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Enlarge</source>
        <translation>Agrandir</translation>
    </message>
    <message>
        <source>Reduce</source>
        <translation>Réduire</translation>
    </message>
    <message>
        <source>Normal Size</source>
        <translation>Taille normale</translation>
    </message>
    <message>
        <source>Fit in Window</source>
        <translation>Ajuster à la fenêtre</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>Orientation</translation>
    </message>
    <message>
        <source>Flip Horizontal</source>
        <translation>Retourner horizontalement</translation>
    </message>
    <message>
        <source>Flip Vertical</source>
        <translation>Retourner verticalement</translation>
    </message>
    <message>
        <source>Rotate Left</source>
        <translation>Pivoter à gauche</translation>
    </message>
    <message>
        <source>Rotate Right</source>
        <translation>Pivoter à droite</translation>
    </message>
    <message>
        <source>Invert</source>
        <translation>Inverser</translation>
    </message>
    <message>
        <source>Show Demographics</source>
        <translation>Afficher les données du patient</translation>
    </message>
    <message>
        <source>Hide Demographics</source>
        <translation>Masquer les données du patient</translation>
    </message>
    <message>
        <source>Show Scale</source>
        <translation>Afficher l’échelle</translation>
    </message>
    <message>
        <source>Hide Scale</source>
        <translation>Masquer l’échelle</translation>
    </message>
    <message>
        <source>Show Overlays</source>
        <translation>Afficher les superpositions</translation>
    </message>
    <message>
        <source>Hide Overlays</source>
        <translation>Masquer les superpositions</translation>
    </message>
    <message>
        <source>Show Measurements</source>
        <translation>Afficher les mesures</translation>
    </message>
    <message>
        <source>Hide Measurements</source>
        <translation>Masquer les mesures</translation>
    </message>
    <message>
        <source>Show US Regions</source>
        <translation>Afficher les régions échographiques</translation>
    </message>
    <message>
        <source>Hide US Regions</source>
        <translation>Masquer les régions échographiques</translation>
    </message>
    <message>
        <source>Play Cine</source>
        <translation>Lancer le ciné</translation>
    </message>
    <message>
        <source>Stop Cine</source>
        <translation>Arrêter le ciné</translation>
    </message>
    <message>
        <source>Play All</source>
        <translation>Tout lire</translation>
    </message>
    <message>
        <source>Stop All</source>
        <translation>Tout arrêter</translation>
    </message>
    <message>
        <source>Reveal in Finder</source>
        <translation>Afficher dans le gestionnaire de fichiers</translation>
    </message>
    <message>
        <source>Stroke On</source>
        <translation>Activer le contour</translation>
    </message>
    <message>
        <source>Stroke Off</source>
        <translation>Désactiver le contour</translation>
    </message>
    <message>
        <source>Fill On</source>
        <translation>Activer le remplissage</translation>
    </message>
    <message>
        <source>Fill Off</source>
        <translation>Désactiver le remplissage</translation>
    </message>
    <message>
        <source>Show Label</source>
        <translation>Afficher l’étiquette</translation>
    </message>
    <message>
        <source>Hide Label</source>
        <translation>Masquer l’étiquette</translation>
    </message>
    <message>
        <source>Shadow On</source>
        <translation>Activer l’ombre</translation>
    </message>
    <message>
        <source>Shadow Off</source>
        <translation>Désactiver l’ombre</translation>
    </message>
    <message>
        <source>Bring to Front</source>
        <translation>Mettre au premier plan</translation>
    </message>
    <message>
        <source>Move Forward</source>
        <translation>Avancer d’un plan</translation>
    </message>
    <message>
        <source>Move Backwards</source>
        <translation>Reculer d’un plan</translation>
    </message>
    <message>
        <source>Send to Back</source>
        <translation>Mettre à l’arrière-plan</translation>
    </message>
    <message>
        <source>Propagate Measurement</source>
        <translation>Propager la mesure</translation>
    </message>
    <message>
        <source>Delete Measurement</source>
        <translation>Supprimer la mesure</translation>
    </message>
    <message>
        <source>Delete All Measurements</source>
        <translation>Supprimer toutes les mesures</translation>
    </message>
    <message>
        <source>Meas Contextual</source>
        <translation>Menu contextuel de la mesure</translation>
    </message>
    <message>
        <source>Grid Contextual</source>
        <translation>Menu contextuel de la grille</translation>
    </message>
    <message>
        <source>Table #</source>
        <translation>Table %1</translation>
    </message>
    <message>
        <source>ww_bw</source>
        <translation>W</translation>
    </message>
    <message>
        <source>wc_bw</source>
        <translation>L</translation>
    </message>
    <message>
        <source>brightness_bw</source>
        <translation>B</translation>
    </message>
    <message>
        <source>contrast_bw</source>
        <translation>C</translation>
    </message>
    <message>
        <source>Image window width</source>
        <translation>Largeur de fenêtre</translation>
    </message>
    <message>
        <source>Image window level</source>
        <translation>Niveau de fenêtre</translation>
    </message>
    <message>
        <source>Image brightness</source>
        <translation>Luminosité</translation>
    </message>
    <message>
        <source>Image contrast</source>
        <translation>Contraste</translation>
    </message>
    <message>
        <source>Original</source>
        <translation>Original</translation>
    </message>
    <message>
        <source>Unnamed</source>
        <translation>Sans nom</translation>
    </message>
    <message>
        <source>Make Preset</source>
        <translation>Créer un préréglage</translation>
    </message>
    <message>
        <source>Edit Presets</source>
        <translation>Modifier les préréglages</translation>
    </message>
    <message>
        <source>Adjust...</source>
        <translation>Ajuster...</translation>
    </message>
    <message>
        <source>Adjust</source>
        <translation>Ajuster</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Aperçu</translation>
    </message>
    <message>
        <source>Window Width</source>
        <translation>Largeur de fenêtre</translation>
    </message>
    <message>
        <source>Window Level</source>
        <translation>Niveau de fenêtre</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Luminosité</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>Contraste</translation>
    </message>
    <message>
        <source>WWWLValuesExplain</source>
        <translation>De %1 à %2</translation>
    </message>
    <message>
        <source>BCValuesExplain</source>
        <translation>De %1 à %2</translation>
    </message>
    <message>
        <source>Frame</source>
        <translation>Image</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Fenêtre</translation>
    </message>
    <message>
        <source>Rows</source>
        <translation>Lignes</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>Colonnes</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>É&amp;dition</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Affichage</translation>
    </message>
    <message>
        <source>&amp;Image</source>
        <translation>&amp;Image</translation>
    </message>
    <message>
        <source>&amp;Sequence</source>
        <translation>&amp;Séquence</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>&amp;Outils</translation>
    </message>
    <message>
        <source>&amp;Cine</source>
        <translation>&amp;Ciné</translation>
    </message>
    <message>
        <source>&amp;Window</source>
        <translation>Fe&amp;nêtre</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>Aid&amp;e</translation>
    </message>
    <message>
        <source>Open...</source>
        <translation>Ouvrir…</translation>
    </message>
    <message>
        <source>Open Recent</source>
        <translation>Ouvrir un élément récent</translation>
    </message>
    <message>
        <source>Export...</source>
        <translation>Exporter…</translation>
    </message>
    <message>
        <source>Export Metadata...</source>
        <translation>Exporter les métadonnées…</translation>
    </message>
    <message>
        <source>Anonymize...</source>
        <translation>Anonymiser…</translation>
    </message>
    <message>
        <source>Print...</source>
        <translation>Imprimer…</translation>
    </message>
    <message>
        <source>Close Window</source>
        <translation>Fermer la fenêtre</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Quitter</translation>
    </message>
    <message>
        <source>Enter Full Screen</source>
        <translation>Passer en plein écran</translation>
    </message>
    <message>
        <source>Exit Full Screen</source>
        <translation>Quitter le plein écran</translation>
    </message>
    <message>
        <source>Show Toolbar</source>
        <translation>Afficher la barre d’outils</translation>
    </message>
    <message>
        <source>Hide Toolbar</source>
        <translation>Masquer la barre d’outils</translation>
    </message>
    <message>
        <source>Toolbar</source>
        <translation>Barre d’outils</translation>
    </message>
    <message>
        <source>Show Patient List</source>
        <translation>Afficher la liste des patients</translation>
    </message>
    <message>
        <source>Hide Patient List</source>
        <translation>Masquer la liste des patients</translation>
    </message>
    <message>
        <source>Show Study Info</source>
        <translation>Afficher les infos de l’examen</translation>
    </message>
    <message>
        <source>Hide Study Info</source>
        <translation>Masquer les infos de l’examen</translation>
    </message>
    <message>
        <source>Show Secondary Toolbar</source>
        <translation>Afficher la barre d’outils secondaire</translation>
    </message>
    <message>
        <source>Hide Secondary Toolbar</source>
        <translation>Masquer la barre d’outils secondaire</translation>
    </message>
    <message>
        <source>Show Measurement Pane</source>
        <translation>Afficher le volet des mesures</translation>
    </message>
    <message>
        <source>Hide Measurement Pane</source>
        <translation>Masquer le volet des mesures</translation>
    </message>
    <message>
        <source>Show Metadata Palette</source>
        <translation>Afficher la palette des métadonnées</translation>
    </message>
    <message>
        <source>Hide Metadata Palette</source>
        <translation>Masquer la palette des métadonnées</translation>
    </message>
    <message>
        <source>Mark Current Sequence</source>
        <translation>Marquer la séquence active</translation>
    </message>
    <message>
        <source>Unmark Current Sequence</source>
        <translation>Démarquer la séquence active</translation>
    </message>
    <message>
        <source>Mark All</source>
        <translation>Tout marquer</translation>
    </message>
    <message>
        <source>Unmark All</source>
        <translation>Tout démarquer</translation>
    </message>
    <message>
        <source>Toggle Marked</source>
        <translation>Inverser le marquage</translation>
    </message>
    <message>
        <source>Mark Selected</source>
        <translation>Marquer la sélection</translation>
    </message>
    <message>
        <source>Unmark Selected</source>
        <translation>Démarquer la sélection</translation>
    </message>
    <message>
        <source>Toggle Marked in Selection</source>
        <translation>Inverser le marquage de la sélection</translation>
    </message>
    <message>
        <source>Reset All</source>
        <translation>Tout réinitialiser</translation>
    </message>
    <message>
        <source>Reset Colors</source>
        <translation>Réinitialiser les couleurs</translation>
    </message>
    <message>
        <source>Reset Orientation</source>
        <translation>Réinitialiser l’orientation</translation>
    </message>
    <message>
        <source>Reset Position</source>
        <translation>Réinitialiser la position</translation>
    </message>
    <message>
        <source>Reset Measurements</source>
        <translation>Réinitialiser les mesures</translation>
    </message>
    <message>
        <source>Original Window</source>
        <translation>Fenêtrage d’origine</translation>
    </message>
    <message>
        <source>No Color Table</source>
        <translation>Aucune table de couleurs</translation>
    </message>
    <message>
        <source>Color Table</source>
        <translation>Table de couleurs</translation>
    </message>
    <message>
        <source>Window Presets</source>
        <translation>Préréglages de fenêtrage</translation>
    </message>
    <message>
        <source>Show Reference Lines</source>
        <translation>Afficher les lignes de référence</translation>
    </message>
    <message>
        <source>Hide Reference Lines</source>
        <translation>Masquer les lignes de référence</translation>
    </message>
    <message>
        <source>Reference Lines</source>
        <translation>Lignes de référence</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Tout sélectionner</translation>
    </message>
    <message>
        <source>Whole Image</source>
        <translation>Image entière</translation>
    </message>
    <message>
        <source>User Selection</source>
        <translation>Sélection de l’utilisateur</translation>
    </message>
    <message>
        <source>Propagate Crop</source>
        <translation>Propager le recadrage</translation>
    </message>
    <message>
        <source>Clear Crop in All Series</source>
        <translation>Effacer le recadrage de toutes les séries</translation>
    </message>
    <message>
        <source>No regions found</source>
        <translation>Aucune région trouvée</translation>
    </message>
    <message>
        <source>Crop</source>
        <translation>Recadrage</translation>
    </message>
    <message>
        <source>Loop</source>
        <translation>Boucle</translation>
    </message>
    <message>
        <source>Sweep</source>
        <translation>Va-et-vient</translation>
    </message>
    <message>
        <source>Play Automatically</source>
        <translation>Lecture automatique</translation>
    </message>
    <message>
        <source>Play Next Series</source>
        <translation>Lire la série suivante</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Sélectionner</translation>
    </message>
    <message>
        <source>Zoom Tool</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Pan</source>
        <translation>Déplacer</translation>
    </message>
    <message>
        <source>Window and Level</source>
        <translation>Fenêtrage</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Ligne</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>Angle</translation>
    </message>
    <message>
        <source>Rectangle</source>
        <translation>Rectangle</translation>
    </message>
    <message>
        <source>Ellipse</source>
        <translation>Ellipse</translation>
    </message>
    <message>
        <source>Polygon</source>
        <translation>Polygone</translation>
    </message>
    <message>
        <source>Arrow</source>
        <translation>Flèche</translation>
    </message>
    <message>
        <source>Calibration Line</source>
        <translation>Ligne d’étalonnage</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texte</translation>
    </message>
    <message>
        <source>Eyedropper</source>
        <translation>Pipette</translation>
    </message>
    <message>
        <source>Apply To</source>
        <translation>Appliquer à</translation>
    </message>
    <message>
        <source>Current Frame</source>
        <translation>Image actuelle</translation>
    </message>
    <message>
        <source>All Frames of the Sequence</source>
        <translation>Toutes les images de la séquence</translation>
    </message>
    <message>
        <source>Demographics</source>
        <translation>Données du patient</translation>
    </message>
    <message>
        <source>Overlays</source>
        <translation>Superpositions</translation>
    </message>
    <message>
        <source>Measure</source>
        <translation>Mesurer</translation>
    </message>
    <message>
        <source>Preferences...</source>
        <translation>Préférences…</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Réduire</translation>
    </message>
    <message>
        <source>Windows</source>
        <translation>Fenêtres</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aide</translation>
    </message>
    <message>
        <source>Acknowledgments</source>
        <translation>Remerciements</translation>
    </message>
    <message>
        <source>First Aid...</source>
        <translation>Premiers secours…</translation>
    </message>
    <message>
        <source>Check for Updates...</source>
        <translation>Rechercher les mises à jour…</translation>
    </message>
    <message>
        <source>About</source>
        <translation>À propos de productNameXX</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>Sans titre</translation>
    </message>
    <message>
        <source>Reveal Selected in Finder</source>
        <translation>Afficher la sélection dans le gestionnaire de fichiers</translation>
    </message>
    <message>
        <source>Mark</source>
        <translation>Marquer</translation>
    </message>
    <message>
        <source>Text Only</source>
        <translation>Texte seul</translation>
    </message>
    <message>
        <source>Icon Only</source>
        <translation>Icônes seules</translation>
    </message>
    <message>
        <source>Thumbnail Size</source>
        <translation>Taille des vignettes</translation>
    </message>
    <message>
        <source>Customize Toolbar...</source>
        <translation>Personnaliser la barre d’outils…</translation>
    </message>
    <message>
        <source>Customize Toolbar</source>
        <translation>Personnaliser la barre d’outils</translation>
    </message>
    <message>
        <source>Available Items</source>
        <translation>Éléments disponibles</translation>
    </message>
    <message>
        <source>Add Item</source>
        <translation>Ajouter</translation>
    </message>
    <message>
        <source>Remove Item</source>
        <translation>Retirer</translation>
    </message>
    <message>
        <source>Move Item Up</source>
        <translation>Monter</translation>
    </message>
    <message>
        <source>Move Item Down</source>
        <translation>Descendre</translation>
    </message>
    <message>
        <source>Restore Default Items</source>
        <translation>Rétablir les réglages par défaut</translation>
    </message>
    <message>
        <source>Previous and Next Series</source>
        <translation>Série précédente et suivante</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Outils</translation>
    </message>
    <message>
        <source>Rotate and Flip</source>
        <translation>Pivoter et retourner</translation>
    </message>
    <message>
        <source>Separator</source>
        <translation>Séparateur</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Espace</translation>
    </message>
    <message>
        <source>Flexible Space</source>
        <translation>Espace flexible</translation>
    </message>
</context>
<context>
    <name>Measurements</name>
    <message>
        <source>kGlobalMeasPrefix</source>
        <translation>Toutes les images : </translation>
    </message>
    <message>
        <source>kMeasDisplayTitle</source>
        <translation>%1%2 : %3</translation>
    </message>
    <message>
        <source>kRegionUnitStr_none</source>
        <translation>aucune</translation>
    </message>
    <message>
        <source>kRegionUnitStr_percent</source>
        <translation>%</translation>
    </message>
    <message>
        <source>kRegionUnitStr_db</source>
        <translation>dB</translation>
    </message>
    <message>
        <source>kLineUnits_cm</source>
        <translation>cm</translation>
    </message>
    <message>
        <source>kLineUnits_Pix</source>
        <translation>px</translation>
    </message>
    <message>
        <source>kRegionUnitStr_sec</source>
        <translation>s</translation>
    </message>
    <message>
        <source>kRegionUnitStr_hertz</source>
        <translation>Hz</translation>
    </message>
    <message>
        <source>kRegionUnitStr_dbsec</source>
        <translation>dB/s</translation>
    </message>
    <message>
        <source>kRegionUnitStr_cmsec</source>
        <translation>cm/s</translation>
    </message>
    <message>
        <source>kAreaUnits_cm2</source>
        <translation>cm²</translation>
    </message>
    <message>
        <source>kRegionUnitStr_cm2sec</source>
        <translation>cm²/s</translation>
    </message>
    <message>
        <source>kRegionUnitStr_cm3</source>
        <translation>cm³</translation>
    </message>
    <message>
        <source>kRegionUnitStr_cm3sec</source>
        <translation>cm³/s</translation>
    </message>
    <message>
        <source>kRegionUnitStr_degrees</source>
        <translation>°</translation>
    </message>
    <message>
        <source>kRegionPhysicalUnit_percent</source>
        <translation>%</translation>
    </message>
    <message>
        <source>kRegionPhysicalUnit_db</source>
        <translation>dB</translation>
    </message>
    <message>
        <source>kRegionPhysicalUnit_sec</source>
        <translation>s</translation>
    </message>
    <message>
        <source>kRegionPhysicalUnit_hertz</source>
        <translation>Hz</translation>
    </message>
    <message>
        <source>kRegionPhysicalUnit_dbsec</source>
        <translation>dB/s</translation>
    </message>
    <message>
        <source>kRegionPhysicalUnit_cmsec</source>
        <translation>cm/s</translation>
    </message>
    <message>
        <source>kRegionPhysicalUnit_cm2sec</source>
        <translation>cm²/s</translation>
    </message>
    <message>
        <source>kRegionPhysicalUnit_cm3</source>
        <translation>cm³</translation>
    </message>
    <message>
        <source>kRegionPhysicalUnit_cm3sec</source>
        <translation>cm³/s</translation>
    </message>
    <message>
        <source>kRegionPhysicalUnit_degrees</source>
        <translation>°</translation>
    </message>
    <message>
        <source>N/A</source>
        <translation>N/D</translation>
    </message>
    <message>
        <source>kRegionFormat_2D</source>
        <translation>2D</translation>
    </message>
    <message>
        <source>kRegionFormat_MMode</source>
        <translation>Mode M</translation>
    </message>
    <message>
        <source>kRegionFormat_Spectral</source>
        <translation>Spectral</translation>
    </message>
    <message>
        <source>kRegionFormat_WaveForm</source>
        <translation>Courbe</translation>
    </message>
    <message>
        <source>kRegionFormat_graphics</source>
        <translation>Graphique</translation>
    </message>
    <message>
        <source>kRegionFormat_none</source>
        <translation>Région</translation>
    </message>
</context>
<context>
    <name>VendorStrings_zel</name>
    <message>
        <source>HelpFileName</source>
        <translation>Aide de Zelora Viewer.pdf</translation>
    </message>
    <message>
        <source>MenuProductName</source>
        <translation>Zelora Viewer</translation>
    </message>
    <message>
        <source>AboutText</source>
        <translation>Un visualiseur d’images DICOM. Ce n’est pas un dispositif médical : ne fondez pas un diagnostic sur lui seul.</translation>
    </message>
    <message>
        <source>Program Crash Report</source>
        <translation>Rapport de plantage de Zelora Viewer %1</translation>
    </message>
</context>
<context>
    <name>Preferences</name>
    <message>
        <source>Panes</source>
        <translation>Volets</translation>
    </message>
    <message>
        <source>Pane tip</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Général</translation>
    </message>
    <message>
        <source>General title</source>
        <translation>Préférences générales</translation>
    </message>
    <message>
        <source>DICOM</source>
        <translation>DICOM</translation>
    </message>
    <message>
        <source>DICOM title</source>
        <translation>Préférences DICOM</translation>
    </message>
    <message>
        <source>Presets</source>
        <translation>Préréglages</translation>
    </message>
    <message>
        <source>Presets title</source>
        <translation>Préréglages de fenêtrage</translation>
    </message>
    <message>
        <source>Presets title tip</source>
        <translation>Double-cliquez sur une valeur pour la modifier ; faites glisser une ligne pour la déplacer</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>Mises à jour</translation>
    </message>
    <message>
        <source>Updates title</source>
        <translation>Mises à jour du logiciel</translation>
    </message>
    <message>
        <source>Windows</source>
        <translation>Fenêtres</translation>
    </message>
    <message>
        <source>First layout</source>
        <translation>Disposition initiale</translation>
    </message>
    <message>
        <source>First layout tip</source>
        <translation>Répartition d’une fenêtre entre les séries à son ouverture</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automatique</translation>
    </message>
    <message>
        <source>Opening</source>
        <translation>Ouverture</translation>
    </message>
    <message>
        <source>Scan subfolders</source>
        <translation>Parcourir les sous-dossiers</translation>
    </message>
    <message>
        <source>Scan subfolders tip</source>
        <translation>Ouvre aussi le contenu des sous-dossiers d’un dossier</translation>
    </message>
    <message>
        <source>Ignore DICOMDIR</source>
        <translation>Ignorer les fichiers DICOMDIR</translation>
    </message>
    <message>
        <source>Ignore DICOMDIR tip</source>
        <translation>Lit directement les images d’un dossier, même s’il en contient une liste</translation>
    </message>
    <message>
        <source>Open discs</source>
        <translation>Ouvrir les disques à l’insertion</translation>
    </message>
    <message>
        <source>Open discs tip</source>
        <translation>Ouvre un disque contenant un DICOMDIR dès qu’il est disponible</translation>
    </message>
    <message>
        <source>Copy from discs</source>
        <translation>Copier les images des disques avant de les afficher</translation>
    </message>
    <message>
        <source>Copy from discs tip</source>
        <translation>Le disque peut ensuite être retiré, et le défilement est plus rapide</translation>
    </message>
    <message>
        <source>Copy from servers</source>
        <translation>Traiter les serveurs comme des disques lents</translation>
    </message>
    <message>
        <source>Copy from servers tip</source>
        <translation>Copie aussi les images des volumes réseau</translation>
    </message>
    <message>
        <source>Open US and XA large</source>
        <translation>Ouvrir US et XA avec une seule série</translation>
    </message>
    <message>
        <source>Open US and XA large tip</source>
        <translation>L’échographie et l’angiographie ouvrent une seule série sur toute la fenêtre</translation>
    </message>
    <message>
        <source>Traverse marked</source>
        <translation>Passer uniquement aux séries marquées</translation>
    </message>
    <message>
        <source>Traverse marked tip</source>
        <translation>Quand le ciné parcourt toutes les séries, celles qui ne sont pas marquées sont ignorées</translation>
    </message>
    <message>
        <source>Text and grids</source>
        <translation>Texte et grilles</translation>
    </message>
    <message>
        <source>Text color</source>
        <translation>Texte sur les images</translation>
    </message>
    <message>
        <source>Text color tip</source>
        <translation>Couleur du texte affiché sur les images</translation>
    </message>
    <message>
        <source>Active cell color</source>
        <translation>Image active</translation>
    </message>
    <message>
        <source>Active cell color tip</source>
        <translation>Couleur du cadre autour de l’image active</translation>
    </message>
    <message>
        <source>Text font</source>
        <translation>Police du texte</translation>
    </message>
    <message>
        <source>Choose font</source>
        <translation>Choisir…</translation>
    </message>
    <message>
        <source>Choose font tip</source>
        <translation>Police et taille du texte affiché sur les images</translation>
    </message>
    <message>
        <source>Font sample</source>
        <translation>%1 points %2</translation>
    </message>
    <message>
        <source>Measurements</source>
        <translation>Mesures</translation>
    </message>
    <message>
        <source>Outline color</source>
        <translation>Contour</translation>
    </message>
    <message>
        <source>Outline color tip</source>
        <translation>Couleur du contour des nouvelles mesures</translation>
    </message>
    <message>
        <source>Fill color</source>
        <translation>Remplissage</translation>
    </message>
    <message>
        <source>Fill color tip</source>
        <translation>Couleur de l’intérieur des nouvelles mesures</translation>
    </message>
    <message>
        <source>Images</source>
        <translation>Images</translation>
    </message>
    <message>
        <source>Merge US</source>
        <translation>Regrouper les images échographiques isolées d’une série</translation>
    </message>
    <message>
        <source>Merge US tip</source>
        <translation>À partir de la prochaine ouverture</translation>
    </message>
    <message>
        <source>Merge XA</source>
        <translation>Regrouper les images angiographiques isolées d’une série</translation>
    </message>
    <message>
        <source>Merge XA tip</source>
        <translation>À partir de la prochaine ouverture</translation>
    </message>
    <message>
        <source>Decode character sets</source>
        <translation>Lire le texte selon son jeu de caractères</translation>
    </message>
    <message>
        <source>Decode character sets tip</source>
        <translation>Désactivé : texte lu comme dans les anciens programmes ; à partir de la prochaine ouverture</translation>
    </message>
    <message>
        <source>Enhance contrast</source>
        <translation>Limiter le fenêtrage aux valeurs de l’image</translation>
    </message>
    <message>
        <source>Enhance contrast tip</source>
        <translation>Désactivé : fenêtrage selon la seule formule de la norme</translation>
    </message>
    <message>
        <source>Localizers</source>
        <translation>Localisateurs</translation>
    </message>
    <message>
        <source>First and last localizers</source>
        <translation>Afficher la première et la dernière ligne</translation>
    </message>
    <message>
        <source>First and last localizers tip</source>
        <translation>En plus de la ligne de l’image affichée, là où la série commence et finit sur les autres grilles</translation>
    </message>
    <message>
        <source>Separate localizers</source>
        <translation>Séparer les localisateurs</translation>
    </message>
    <message>
        <source>Separate localizers tip</source>
        <translation>Les images de localisateur forment une séquence à part ; à partir de la prochaine ouverture</translation>
    </message>
    <message>
        <source>Colors over images</source>
        <translation>Couleurs sur les images</translation>
    </message>
    <message>
        <source>Overlay color</source>
        <translation>Superpositions</translation>
    </message>
    <message>
        <source>Overlay color tip</source>
        <translation>Couleur des superpositions contenues dans le fichier</translation>
    </message>
    <message>
        <source>US region color</source>
        <translation>Régions échographiques</translation>
    </message>
    <message>
        <source>US region color tip</source>
        <translation>Couleur des cadres autour des régions échographiques</translation>
    </message>
    <message>
        <source>Localizer color</source>
        <translation>Lignes des localisateurs</translation>
    </message>
    <message>
        <source>Localizer color tip</source>
        <translation>Couleur des lignes des localisateurs</translation>
    </message>
    <message>
        <source>Cine</source>
        <translation>Ciné</translation>
    </message>
    <message>
        <source>Cine autoplay</source>
        <translation>Lire immédiatement</translation>
    </message>
    <message>
        <source>Cine autoplay tip</source>
        <translation>Le ciné démarre à l’affichage d’une série habituellement lue en ciné</translation>
    </message>
    <message>
        <source>Enforce speed</source>
        <translation>Même vitesse pour toutes</translation>
    </message>
    <message>
        <source>Enforce speed tip</source>
        <translation>Lit à la vitesse par défaut, quoi qu’indique le fichier</translation>
    </message>
    <message>
        <source>Default speed</source>
        <translation>Images par seconde</translation>
    </message>
    <message>
        <source>Default speed tip</source>
        <translation>4 à 60</translation>
    </message>
    <message>
        <source>presetTitle</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>presetTitle tip</source>
        <translation>Nom dans les menus</translation>
    </message>
    <message>
        <source>wcPreset</source>
        <translation>Niveau</translation>
    </message>
    <message>
        <source>wcPreset tip</source>
        <translation>Centre de la fenêtre</translation>
    </message>
    <message>
        <source>wwPreset</source>
        <translation>Largeur</translation>
    </message>
    <message>
        <source>wwPreset tip</source>
        <translation>Largeur de la fenêtre, supérieure à 0</translation>
    </message>
    <message>
        <source>Add preset</source>
        <translation>Ajouter</translation>
    </message>
    <message>
        <source>Add preset tip</source>
        <translation>Ajoute un préréglage sous celui qui est sélectionné</translation>
    </message>
    <message>
        <source>Remove preset</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Remove preset tip</source>
        <translation>Supprime les préréglages sélectionnés (Suppr)</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>Monter</translation>
    </message>
    <message>
        <source>Move up tip</source>
        <translation>Déplace le préréglage sélectionné vers le haut (Alt+Haut)</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>Descendre</translation>
    </message>
    <message>
        <source>Move down tip</source>
        <translation>Déplace le préréglage sélectionné vers le bas (Alt+Bas)</translation>
    </message>
    <message>
        <source>Reset presets</source>
        <translation>Réinitialiser…</translation>
    </message>
    <message>
        <source>Reset presets tip</source>
        <translation>Rétablit les préréglages fournis avec le programme</translation>
    </message>
    <message>
        <source>Check now</source>
        <translation>Vérifier maintenant</translation>
    </message>
    <message>
        <source>Check now tip</source>
        <translation>Recherche une version plus récente</translation>
    </message>
    <message>
        <source>No update service</source>
        <translation>Cette copie du programme ne recherche pas elle-même les mises à jour. Les nouvelles versions arrivent de la même façon que celle-ci.</translation>
    </message>
</context>
<context>
    <name>FirstAid</name>
    <message>
        <source>First Aid</source>
        <translation>Premiers secours</translation>
    </message>
    <message>
        <source>CrashTitle</source>
        <translation>Zelora Viewer ne s’est pas terminé correctement la dernière fois.</translation>
    </message>
    <message>
        <source>Reset all settings</source>
        <translation>Réinitialiser tous les réglages</translation>
    </message>
    <message>
        <source>ResetExplain</source>
        <translation>Tous les réglages reprennent leur état d’une nouvelle installation, et le programme redémarre. Une copie des réglages est conservée à côté.</translation>
    </message>
    <message>
        <source>Collect crash reports</source>
        <translation>Recueillir les rapports de plantage</translation>
    </message>
    <message>
        <source>LogsExplain</source>
        <translation>Les rapports de plantage sont réunis pour que vous puissiez les lire, et envoyés par votre logiciel de messagerie seulement si vous l’acceptez.</translation>
    </message>
    <message>
        <source>UserText</source>
        <translation>Que faisiez-vous quand cela s’est produit ?</translation>
    </message>
    <message>
        <source>Remove older reports afterwards</source>
        <translation>Supprimer ensuite les anciens rapports</translation>
    </message>
    <message>
        <source>ClearLogsTip</source>
        <translation>Seul le dernier rapport de chaque type est conservé</translation>
    </message>
    <message>
        <source>Check for Updates</source>
        <translation>Rechercher les mises à jour</translation>
    </message>
    <message>
        <source>No update service</source>
        <translation>Aucun service de mise à jour n’est configuré</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Réinitialiser</translation>
    </message>
    <message>
        <source>Collect</source>
        <translation>Recueillir</translation>
    </message>
    <message>
        <source>Review</source>
        <translation>Relire le rapport</translation>
    </message>
    <message>
        <source>ReviewExplain</source>
        <translation>C’est tout ce qui quitte cet ordinateur. Ce qui pourrait désigner un patient ou vous-même est marqué : biffez-le, ainsi que tout ce que vous sélectionnez.</translation>
    </message>
    <message>
        <source>Strike all marked</source>
        <translation>Biffer tout ce qui est marqué</translation>
    </message>
    <message>
        <source>Strike selected</source>
        <translation>Biffer la sélection</translation>
    </message>
    <message>
        <source>Next marked</source>
        <translation>Marque suivante</translation>
    </message>
    <message>
        <source>Send</source>
        <translation>Envoyer</translation>
    </message>
    <message>
        <source>NotSent</source>
        <translation>Aucun programme de messagerie n’a accepté le rapport.</translation>
    </message>
    <message>
        <source>NotSentExplain</source>
        <translation>Veuillez l’envoyer vous-même à %1. Les rapports se trouvent dans le dossier %2.</translation>
    </message>
</context>
<context>
    <name>Viewer</name>
    <message>
        <source>%1 (%2 of %3)</source>
        <translation>%1 (%2 sur %3)</translation>
    </message>
    <message>
        <source>&amp;Ignore DICOMDIR</source>
        <translation>&amp;Ignorer le DICOMDIR</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Nom :</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Choose a file or a folder to open</source>
        <translation>Choisissez un fichier ou un dossier à ouvrir</translation>
    </message>
    <message>
        <source>Drop files, folders or a DICOMDIR here, or choose them:</source>
        <translation>Déposez ici des fichiers, des dossiers ou un DICOMDIR, ou choisissez-les :</translation>
    </message>
    <message>
        <source>Frame %1 of %2</source>
        <translation>Image %1 sur %2</translation>
    </message>
    <message>
        <source>Frame shown, and how many there are</source>
        <translation>Image affichée et nombre total d’images</translation>
    </message>
    <message>
        <source>Include &amp;subfolders</source>
        <translation>Inclure les &amp;sous-dossiers</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Ouvrir</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Image</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progression</translation>
    </message>
    <message>
        <source>Search the folder for images even if a DICOMDIR lists them</source>
        <translation>Rechercher des images dans le dossier même si un DICOMDIR les répertorie</translation>
    </message>
    <message>
        <source>Search the folders in the chosen folder too</source>
        <translation>Rechercher aussi dans les sous-dossiers du dossier choisi</translation>
    </message>
    <message>
        <source>Stop opening (Escape)</source>
        <translation>Arrêter l’ouverture (Échap)</translation>
    </message>
    <message>
        <source>There are no frames to show</source>
        <translation>Aucune image à afficher</translation>
    </message>
    <message>
        <source>This frame can't be shown</source>
        <translation>Impossible d’afficher cette image</translation>
    </message>
    <message>
        <source>What was open lately</source>
        <translation>Éléments ouverts récemment</translation>
    </message>
    <message>
        <source>Window %1, level %2</source>
        <translation>Fenêtre %1, niveau %2</translation>
    </message>
    <message>
        <source>Window width and level of this frame</source>
        <translation>Largeur et niveau de fenêtre de cette image</translation>
    </message>
</context>
<context>
    <name>DisplayFields</name>
    <message>
        <source>Patient</source>
        <translation>Patient</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Patient ID</source>
        <translation>ID du patient</translation>
    </message>
    <message>
        <source>Date of Birth</source>
        <translation>Date de naissance</translation>
    </message>
    <message>
        <source>Sex</source>
        <translation>Sexe</translation>
    </message>
    <message>
        <source>Age</source>
        <translation>Âge</translation>
    </message>
    <message>
        <source>Size (m)</source>
        <translation>Taille (m)</translation>
    </message>
    <message>
        <source>Weight (kg)</source>
        <translation>Poids (kg)</translation>
    </message>
    <message>
        <source>Allergies</source>
        <translation>Allergies</translation>
    </message>
    <message>
        <source>Pregnancy Status</source>
        <translation>État de grossesse</translation>
    </message>
    <message>
        <source>Comments</source>
        <translation>Commentaires</translation>
    </message>
    <message>
        <source>Study</source>
        <translation>Examen</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Description</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Heure</translation>
    </message>
    <message>
        <source>Study ID</source>
        <translation>ID de l’examen</translation>
    </message>
    <message>
        <source>Accession Number</source>
        <translation>Numéro d’accession</translation>
    </message>
    <message>
        <source>Referring Physician</source>
        <translation>Médecin référent</translation>
    </message>
    <message>
        <source>Reading Physician</source>
        <translation>Médecin interprétant</translation>
    </message>
    <message>
        <source>Series</source>
        <translation>Série</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Numéro</translation>
    </message>
    <message>
        <source>Modality</source>
        <translation>Modalité</translation>
    </message>
    <message>
        <source>Protocol</source>
        <translation>Protocole</translation>
    </message>
    <message>
        <source>Body Part</source>
        <translation>Partie du corps</translation>
    </message>
    <message>
        <source>Laterality</source>
        <translation>Latéralité</translation>
    </message>
    <message>
        <source>Patient Position</source>
        <translation>Position du patient</translation>
    </message>
    <message>
        <source>Performing Physician</source>
        <translation>Médecin exécutant</translation>
    </message>
    <message>
        <source>Operator</source>
        <translation>Opérateur</translation>
    </message>
    <message>
        <source>Equipment</source>
        <translation>Équipement</translation>
    </message>
    <message>
        <source>Institution</source>
        <translation>Établissement</translation>
    </message>
    <message>
        <source>Department</source>
        <translation>Service</translation>
    </message>
    <message>
        <source>Station</source>
        <translation>Station</translation>
    </message>
    <message>
        <source>Manufacturer</source>
        <translation>Fabricant</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modèle</translation>
    </message>
    <message>
        <source>Software</source>
        <translation>Logiciel</translation>
    </message>
    <message>
        <source>Serial Number</source>
        <translation>Numéro de série</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>Produit de contraste</translation>
    </message>
    <message>
        <source>Agent</source>
        <translation>Agent</translation>
    </message>
    <message>
        <source>Route</source>
        <translation>Voie d’administration</translation>
    </message>
    <message>
        <source>Volume (ml)</source>
        <translation>Volume (ml)</translation>
    </message>
    <message>
        <source>Flow Rate (ml/s)</source>
        <translation>Débit (ml/s)</translation>
    </message>
    <message>
        <source>Ingredient</source>
        <translation>Principe actif</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Image</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Instance Number</source>
        <translation>Numéro d’instance</translation>
    </message>
    <message>
        <source>Acquisition Date</source>
        <translation>Date d’acquisition</translation>
    </message>
    <message>
        <source>Acquisition Time</source>
        <translation>Heure d’acquisition</translation>
    </message>
    <message>
        <source>Content Date</source>
        <translation>Date du contenu</translation>
    </message>
    <message>
        <source>Content Time</source>
        <translation>Heure du contenu</translation>
    </message>
    <message>
        <source>Frames</source>
        <translation>Images</translation>
    </message>
    <message>
        <source>Rows</source>
        <translation>Lignes</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>Colonnes</translation>
    </message>
    <message>
        <source>Bits Stored</source>
        <translation>Bits stockés</translation>
    </message>
    <message>
        <source>Photometric Interpretation</source>
        <translation>Interprétation photométrique</translation>
    </message>
    <message>
        <source>Pixel Spacing (mm)</source>
        <translation>Espacement des pixels (mm)</translation>
    </message>
    <message>
        <source>Lossy Compression</source>
        <translation>Compression avec perte</translation>
    </message>
    <message>
        <source>Compression Ratio</source>
        <translation>Taux de compression</translation>
    </message>
    <message>
        <source>Window Width</source>
        <translation>Largeur de fenêtre</translation>
    </message>
    <message>
        <source>Window Center</source>
        <translation>Centre de fenêtre</translation>
    </message>
    <message>
        <source>View Position</source>
        <translation>Incidence</translation>
    </message>
    <message>
        <source>Slice</source>
        <translation>Coupe</translation>
    </message>
    <message>
        <source>Slice Thickness (mm)</source>
        <translation>Épaisseur de coupe (mm)</translation>
    </message>
    <message>
        <source>Slice Spacing (mm)</source>
        <translation>Espacement des coupes (mm)</translation>
    </message>
    <message>
        <source>Slice Location (mm)</source>
        <translation>Position de coupe (mm)</translation>
    </message>
    <message>
        <source>Image Position (mm)</source>
        <translation>Position de l’image (mm)</translation>
    </message>
    <message>
        <source>Image Orientation</source>
        <translation>Orientation de l’image</translation>
    </message>
    <message>
        <source>X-Ray</source>
        <translation>Rayons X</translation>
    </message>
    <message>
        <source>Tube Voltage (kV)</source>
        <translation>Tension du tube (kV)</translation>
    </message>
    <message>
        <source>Tube Current (mA)</source>
        <translation>Courant du tube (mA)</translation>
    </message>
    <message>
        <source>Exposure Time (ms)</source>
        <translation>Temps d’exposition (ms)</translation>
    </message>
    <message>
        <source>Exposure (mAs)</source>
        <translation>Exposition (mAs)</translation>
    </message>
    <message>
        <source>Dose Area Product (dGy·cm²)</source>
        <translation>Produit dose-surface (dGy·cm²)</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtre</translation>
    </message>
    <message>
        <source>Focal Spot (mm)</source>
        <translation>Foyer (mm)</translation>
    </message>
    <message>
        <source>Source to Detector (mm)</source>
        <translation>Distance source-détecteur (mm)</translation>
    </message>
    <message>
        <source>Source to Patient (mm)</source>
        <translation>Distance source-patient (mm)</translation>
    </message>
    <message>
        <source>Primary Angle (°)</source>
        <translation>Angle primaire (°)</translation>
    </message>
    <message>
        <source>Secondary Angle (°)</source>
        <translation>Angle secondaire (°)</translation>
    </message>
    <message>
        <source>Body Part Thickness (mm)</source>
        <translation>Épaisseur de la partie du corps (mm)</translation>
    </message>
    <message>
        <source>Compression Force (N)</source>
        <translation>Force de compression (N)</translation>
    </message>
    <message>
        <source>Organ Dose (dGy)</source>
        <translation>Dose à l’organe (dGy)</translation>
    </message>
    <message>
        <source>CT</source>
        <translation>TDM</translation>
    </message>
    <message>
        <source>Kernel</source>
        <translation>Noyau</translation>
    </message>
    <message>
        <source>Reconstruction Diameter (mm)</source>
        <translation>Diamètre de reconstruction (mm)</translation>
    </message>
    <message>
        <source>Collection Diameter (mm)</source>
        <translation>Diamètre d’acquisition (mm)</translation>
    </message>
    <message>
        <source>Gantry Tilt (°)</source>
        <translation>Inclinaison du statif (°)</translation>
    </message>
    <message>
        <source>Table Height (mm)</source>
        <translation>Hauteur de table (mm)</translation>
    </message>
    <message>
        <source>Pitch</source>
        <translation>Pitch</translation>
    </message>
    <message>
        <source>CTDIvol (mGy)</source>
        <translation>CTDIvol (mGy)</translation>
    </message>
    <message>
        <source>Scan Options</source>
        <translation>Options d’acquisition</translation>
    </message>
    <message>
        <source>Rescale Intercept</source>
        <translation>Ordonnée de mise à l’échelle</translation>
    </message>
    <message>
        <source>Rescale Slope</source>
        <translation>Pente de mise à l’échelle</translation>
    </message>
    <message>
        <source>MR</source>
        <translation>IRM</translation>
    </message>
    <message>
        <source>Scanning Sequence</source>
        <translation>Séquence d’acquisition</translation>
    </message>
    <message>
        <source>Sequence Variant</source>
        <translation>Variante de séquence</translation>
    </message>
    <message>
        <source>Sequence Name</source>
        <translation>Nom de la séquence</translation>
    </message>
    <message>
        <source>Acquisition Type</source>
        <translation>Type d’acquisition</translation>
    </message>
    <message>
        <source>Field Strength (T)</source>
        <translation>Intensité du champ (T)</translation>
    </message>
    <message>
        <source>Repetition Time (ms)</source>
        <translation>Temps de répétition (ms)</translation>
    </message>
    <message>
        <source>Echo Time (ms)</source>
        <translation>Temps d’écho (ms)</translation>
    </message>
    <message>
        <source>Inversion Time (ms)</source>
        <translation>Temps d’inversion (ms)</translation>
    </message>
    <message>
        <source>Flip Angle (°)</source>
        <translation>Angle de bascule (°)</translation>
    </message>
    <message>
        <source>Echo Train Length</source>
        <translation>Longueur du train d’échos</translation>
    </message>
    <message>
        <source>Averages</source>
        <translation>Moyennages</translation>
    </message>
    <message>
        <source>Pixel Bandwidth (Hz)</source>
        <translation>Bande passante par pixel (Hz)</translation>
    </message>
    <message>
        <source>Receive Coil</source>
        <translation>Antenne de réception</translation>
    </message>
    <message>
        <source>SAR (W/kg)</source>
        <translation>DAS (W/kg)</translation>
    </message>
    <message>
        <source>Ultrasound and Cine</source>
        <translation>Échographie et ciné</translation>
    </message>
    <message>
        <source>Stage</source>
        <translation>Étape</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Vue</translation>
    </message>
    <message>
        <source>Transducer</source>
        <translation>Sonde</translation>
    </message>
    <message>
        <source>Frame Time (ms)</source>
        <translation>Intervalle entre images (ms)</translation>
    </message>
    <message>
        <source>Cine Rate (1/s)</source>
        <translation>Cadence ciné (1/s)</translation>
    </message>
    <message>
        <source>Display Rate (1/s)</source>
        <translation>Cadence d’affichage (1/s)</translation>
    </message>
    <message>
        <source>Heart Rate (1/min)</source>
        <translation>Fréquence cardiaque (1/min)</translation>
    </message>
    <message>
        <source>Mechanical Index</source>
        <translation>Indice mécanique</translation>
    </message>
    <message>
        <source>Thermal Index Soft Tissue</source>
        <translation>Indice thermique des tissus mous</translation>
    </message>
    <message>
        <source>Depth of Scan Field (mm)</source>
        <translation>Profondeur du champ (mm)</translation>
    </message>
    <message>
        <source>Nuclear Medicine and PET</source>
        <translation>Médecine nucléaire et TEP</translation>
    </message>
    <message>
        <source>Radiopharmaceutical</source>
        <translation>Radiopharmaceutique</translation>
    </message>
    <message>
        <source>Units</source>
        <translation>Unités</translation>
    </message>
    <message>
        <source>Decay Correction</source>
        <translation>Correction de décroissance</translation>
    </message>
    <message>
        <source>Counts Accumulated</source>
        <translation>Coups accumulés</translation>
    </message>
    <message>
        <source>Frame Duration (ms)</source>
        <translation>Durée d’image (ms)</translation>
    </message>
    <message>
        <source>Reconstruction Method</source>
        <translation>Méthode de reconstruction</translation>
    </message>
    <message>
        <source>Attenuation Correction</source>
        <translation>Correction d’atténuation</translation>
    </message>
</context>
</TS>

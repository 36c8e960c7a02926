<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>ff of nn</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>progrOpenOpening</source>
        <translation>Öffnen: </translation>
    </message>
    <message>
        <source>progress_Cancelling</source>
        <translation>Wird abgebrochen …</translation>
    </message>
    <message>
        <source>progrOpen_ExaminingFile</source>
        <translation>Untersuchen: </translation>
    </message>
    <message>
        <source>progrOpen_ReadingFile</source>
        <translation>Lesen: </translation>
    </message>
    <message>
        <source>progrOpen_ParsingDicomDir</source>
        <translation>DICOMDIR wird gelesen …</translation>
    </message>
    <message>
        <source>progrOpen_RemoveEmptyTreeBranches</source>
        <translation>Leere Einträge werden entfernt …</translation>
    </message>
    <message>
        <source>progrOpen_CollectingImageFiles</source>
        <translation>Bilddateien werden gesucht …</translation>
    </message>
    <message>
        <source>progrOpen_ProcessingFile</source>
        <translation>%1 wird geprüft</translation>
    </message>
    <message>
        <source>progrOpen_DicomDirFinishing</source>
        <translation>Patientenliste wird fertiggestellt …</translation>
    </message>
    <message>
        <source>progrOpen_CopyingFile</source>
        <translation>%1 wird kopiert (%2 von %3 MB)</translation>
    </message>
    <message>
        <source>Anonymized</source>
        <translation>Anonymisiert</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Choose</source>
        <translation>Auswählen</translation>
    </message>
    <message>
        <source>varDir is empty.</source>
        <translation>„%1“ ist leer.</translation>
    </message>
    <message>
        <source>varDir contains a DICOMDIR. Choosing this folder will create a patient list.</source>
        <translation>„%1“ enthält ein DICOMDIR. Die Wahl dieses Ordners öffnet die Patientenliste darin.</translation>
    </message>
    <message>
        <source>varDir does not contain a DICOMDIR.</source>
        <translation>„%1“ enthält kein DICOMDIR. Die Wahl öffnet die Bilder darin.</translation>
    </message>
    <message>
        <source>Last check</source>
        <translation>Letzte Suche:</translation>
    </message>
    <message>
        <source>Last check never</source>
        <translation>Nach Aktualisierungen wurde noch nie gesucht.</translation>
    </message>
    <message>
        <source>1 frame</source>
        <translation>1 Bild</translation>
    </message>
    <message>
        <source>N frames</source>
        <translation>%1 Bilder</translation>
    </message>
    <message>
        <source>Extracted Localizer</source>
        <translation>Herausgelöster Localizer</translation>
    </message>
    <message>
        <source>Extracted Localizers</source>
        <translation>%1 herausgelöste Localizer</translation>
    </message>
    <message>
        <source>%@, %dx%d pixels</source>
        <translation>%1, %2x%3 Pixel</translation>
    </message>
    <message>
        <source>%@, ... pixels</source>
        <translation>%1, ... Pixel</translation>
    </message>
    <message>
        <source>... frames, ... pixels</source>
        <translation>... Bilder, ... Pixel</translation>
    </message>
    <message>
        <source>%.2f sec</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>%.2f sec, %dx%d pixels</source>
        <translation>%1 s, %2x%3 Pixel</translation>
    </message>
    <message>
        <source>... sec</source>
        <translation>... s</translation>
    </message>
    <message>
        <source>... sec, ... pixels</source>
        <translation>... s, ... Pixel</translation>
    </message>
    <message>
        <source>%@, %d x %d pixels</source>
        <translation>%1, %2 x %3 Pixel</translation>
    </message>
    <message>
        <source>%d x %d pixels</source>
        <translation>%1 x %2 Pixel</translation>
    </message>
    <message>
        <source>... pixels</source>
        <translation>... Pixel</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>Ohne Titel</translation>
    </message>
    <message>
        <source>Patient Browser</source>
        <translation>Patientenliste</translation>
    </message>
    <message>
        <source>Info Pane</source>
        <translation>Info</translation>
    </message>
    <message>
        <source>Show Info</source>
        <translation>Info einblenden</translation>
    </message>
    <message>
        <source>Hide Info</source>
        <translation>Info ausblenden</translation>
    </message>
</context>
<context>
    <name>ZELErrors</name>
    <message>
        <source>FileCannotBeOpened</source>
        <translation>„%1“ kann nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>NoDICOMFilesFound</source>
        <translation>In „%1“ wurden keine DICOM-Bilder gefunden.</translation>
    </message>
    <message>
        <source>DICOMDIRNoImagesFound</source>
        <translation>Das DICOMDIR in „%1“ führt zu keinen Bildern.</translation>
    </message>
    <message>
        <source>NoDICOMDIRImagesFound</source>
        <translation>Keine der Dateien, die das DICOMDIR aufführt, wurde gefunden. Um den Ordner selbst nach Bildern zu durchsuchen, öffnen Sie ihn mit „DICOMDIR ignorieren“.</translation>
    </message>
    <message>
        <source>RecentDocError</source>
        <translation>„%1“ kann nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>RecentWillBeDeleted</source>
        <translation>Möglicherweise wurde es verschoben oder gelöscht. Der Eintrag wird aus dem Menü „Zuletzt geöffnet“ entfernt.</translation>
    </message>
    <message>
        <source>BadImage</source>
        <translation>Die Datei enthält kein gültiges Bild.</translation>
    </message>
    <message>
        <source>ResetToWWWLDefaults</source>
        <translation>Die Fenstervorgaben auf ihre Standardwerte zurücksetzen?</translation>
    </message>
    <message>
        <source>ResetToWWWLExplain</source>
        <translation>Die Vorgaben, die Sie hinzugefügt oder geändert haben, gehen verloren.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>MenuItems</name>
    <message>
        <source>Clear Menu</source>
        <translation>Liste leeren</translation>
    </message>
    <message>
        <source>Region # title</source>
        <translation>Region %1: %2</translation>
    </message>
    <message>
        <source>Region #</source>
        <translation>Region %1</translation>
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
        <translation>Gewebe</translation>
    </message>
    <message>
        <source>Color Flow</source>
        <translation>Farbdoppler</translation>
    </message>
    <message>
        <source>PW Spectral Doppler</source>
        <translation>PW-Spektraldoppler</translation>
    </message>
    <message>
        <source>CW Spectral Doppler</source>
        <translation>CW-Spektraldoppler</translation>
    </message>
    <message>
        <source>Doppler Mean Trace</source>
        <translation>Doppler-Mittelwertkurve</translation>
    </message>
    <message>
        <source>Doppler Mode Trace</source>
        <translation>Doppler-Modalwertkurve</translation>
    </message>
    <message>
        <source>Doppler Max Trace</source>
        <translation>Doppler-Maximumkurve</translation>
    </message>
    <message>
        <source>Volume Trace</source>
        <translation>Volumenkurve</translation>
    </message>
    <message>
        <source>d(volume)/dt Trace</source>
        <translation>d(Volumen)/dt-Kurve</translation>
    </message>
    <message>
        <source>ECG Trace</source>
        <translation>EKG-Kurve</translation>
    </message>
    <message>
        <source>Pulse Trace</source>
        <translation>Pulskurve</translation>
    </message>
    <message>
        <source>Phonocardiogram Trace</source>
        <translation>Phonokardiogramm-Kurve</translation>
    </message>
    <message>
        <source>Gray bar</source>
        <translation>Graukeil</translation>
    </message>
    <message>
        <source>Color bar</source>
        <translation>Farbkeil</translation>
    </message>
    <message>
        <source>Integrated Backscatter</source>
        <translation>Integrierte Rückstreuung</translation>
    </message>
    <message>
        <source>Area Trace</source>
        <translation>Flächenkurve</translation>
    </message>
    <message>
        <source>d(area)/dt</source>
        <translation>d(Fläche)/dt</translation>
    </message>
    <message>
        <source>Other Physiological input</source>
        <translation>Anderes physiologisches Signal</translation>
    </message>
    <message>
        <source>Series Grid</source>
        <translation>Serienraster</translation>
    </message>
    <message>
        <source>Single</source>
        <translation>Einzeln</translation>
    </message>
    <message>
        <source>2 rows</source>
        <translation>2 Zeilen</translation>
    </message>
    <message>
        <source>2 columns</source>
        <translation>2 Spalten</translation>
    </message>
    <message>
        <source>1 top, 2 bottom</source>
        <translation>1 oben, 2 unten</translation>
    </message>
    <message>
        <source>2 top, 1 bottom</source>
        <translation>2 oben, 1 unten</translation>
    </message>
    <message>
        <source>1 left, 2 right</source>
        <translation>1 links, 2 rechts</translation>
    </message>
    <message>
        <source>2 left, 1 right</source>
        <translation>2 links, 1 rechts</translation>
    </message>
    <message>
        <source>3 rows</source>
        <translation>3 Zeilen</translation>
    </message>
    <message>
        <source>3 columns</source>
        <translation>3 Spalten</translation>
    </message>
    <message>
        <source>1 top, 3 bottom</source>
        <translation>1 oben, 3 unten</translation>
    </message>
    <message>
        <source>3 top, 1 bottom</source>
        <translation>3 oben, 1 unten</translation>
    </message>
    <message>
        <source>1 left, 3 right</source>
        <translation>1 links, 3 rechts</translation>
    </message>
    <message>
        <source>3 left, 1 right</source>
        <translation>3 links, 1 rechts</translation>
    </message>
    <message>
        <source>2 top, 2 bottom</source>
        <translation>2 oben, 2 unten</translation>
    </message>
    <message>
        <source>2 left, 2 right</source>
        <translation>2 links, 2 rechts</translation>
    </message>
    <message>
        <source>4 rows</source>
        <translation>4 Zeilen</translation>
    </message>
    <message>
        <source>4 columns</source>
        <translation>4 Spalten</translation>
    </message>
    <message>
        <source>Image Grid</source>
        <translation>Bildraster</translation>
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
        <translation>Andere …</translation>
    </message>
    <message>
        <source>Previous Sequence</source>
        <translation>Vorige Sequenz</translation>
    </message>
    <message>
        <source>Next Sequence</source>
        <translation>Nächste Sequenz</translation>
    </message>
    <message>
        <source>Mark Sequence</source>
        <translation>Sequenz markieren</translation>
    </message>
    <message>
        <source>Unmark Sequence</source>
        <translation>Markierung der Sequenz aufheben</translation>
    </message>
    <message>
        <source>Go</source>
        <translation>Gehe zu</translation>
    </message>
    <message>
        <source>First Frame</source>
        <translation>Erstes Bild</translation>
    </message>
    <message>
        <source>Previous Frame</source>
        <translation>Voriges Bild</translation>
    </message>
    <message>
        <source>Next Frame</source>
        <translation>Nächstes Bild</translation>
    </message>
    <message>
        <source>Last Frame</source>
        <translation>Letztes Bild</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Enlarge</source>
        <translation>Vergrößern</translation>
    </message>
    <message>
        <source>Reduce</source>
        <translation>Verkleinern</translation>
    </message>
    <message>
        <source>Normal Size</source>
        <translation>Originalgröße</translation>
    </message>
    <message>
        <source>Fit in Window</source>
        <translation>An Fenster anpassen</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>Ausrichtung</translation>
    </message>
    <message>
        <source>Flip Horizontal</source>
        <translation>Horizontal spiegeln</translation>
    </message>
    <message>
        <source>Flip Vertical</source>
        <translation>Vertikal spiegeln</translation>
    </message>
    <message>
        <source>Rotate Left</source>
        <translation>Nach links drehen</translation>
    </message>
    <message>
        <source>Rotate Right</source>
        <translation>Nach rechts drehen</translation>
    </message>
    <message>
        <source>Invert</source>
        <translation>Invertieren</translation>
    </message>
    <message>
        <source>Show Demographics</source>
        <translation>Bildtexte einblenden</translation>
    </message>
    <message>
        <source>Hide Demographics</source>
        <translation>Bildtexte ausblenden</translation>
    </message>
    <message>
        <source>Show Scale</source>
        <translation>Maßstab einblenden</translation>
    </message>
    <message>
        <source>Hide Scale</source>
        <translation>Maßstab ausblenden</translation>
    </message>
    <message>
        <source>Show Overlays</source>
        <translation>Overlays einblenden</translation>
    </message>
    <message>
        <source>Hide Overlays</source>
        <translation>Overlays ausblenden</translation>
    </message>
    <message>
        <source>Show Measurements</source>
        <translation>Messungen einblenden</translation>
    </message>
    <message>
        <source>Hide Measurements</source>
        <translation>Messungen ausblenden</translation>
    </message>
    <message>
        <source>Show US Regions</source>
        <translation>US-Regionen einblenden</translation>
    </message>
    <message>
        <source>Hide US Regions</source>
        <translation>US-Regionen ausblenden</translation>
    </message>
    <message>
        <source>Play Cine</source>
        <translation>Cine abspielen</translation>
    </message>
    <message>
        <source>Stop Cine</source>
        <translation>Cine anhalten</translation>
    </message>
    <message>
        <source>Play All</source>
        <translation>Alle abspielen</translation>
    </message>
    <message>
        <source>Stop All</source>
        <translation>Alle anhalten</translation>
    </message>
    <message>
        <source>Reveal in Finder</source>
        <translation>Im Dateimanager zeigen</translation>
    </message>
    <message>
        <source>Stroke On</source>
        <translation>Umriss ein</translation>
    </message>
    <message>
        <source>Stroke Off</source>
        <translation>Umriss aus</translation>
    </message>
    <message>
        <source>Fill On</source>
        <translation>Füllung ein</translation>
    </message>
    <message>
        <source>Fill Off</source>
        <translation>Füllung aus</translation>
    </message>
    <message>
        <source>Show Label</source>
        <translation>Beschriftung einblenden</translation>
    </message>
    <message>
        <source>Hide Label</source>
        <translation>Beschriftung ausblenden</translation>
    </message>
    <message>
        <source>Shadow On</source>
        <translation>Schatten ein</translation>
    </message>
    <message>
        <source>Shadow Off</source>
        <translation>Schatten aus</translation>
    </message>
    <message>
        <source>Bring to Front</source>
        <translation>Ganz nach vorn</translation>
    </message>
    <message>
        <source>Move Forward</source>
        <translation>Nach vorn</translation>
    </message>
    <message>
        <source>Move Backwards</source>
        <translation>Nach hinten</translation>
    </message>
    <message>
        <source>Send to Back</source>
        <translation>Ganz nach hinten</translation>
    </message>
    <message>
        <source>Propagate Measurement</source>
        <translation>Messung übertragen</translation>
    </message>
    <message>
        <source>Delete Measurement</source>
        <translation>Messung löschen</translation>
    </message>
    <message>
        <source>Delete All Measurements</source>
        <translation>Alle Messungen löschen</translation>
    </message>
    <message>
        <source>Meas Contextual</source>
        <translation>Messung</translation>
    </message>
    <message>
        <source>Grid Contextual</source>
        <translation>Raster</translation>
    </message>
    <message>
        <source>Table #</source>
        <translation>Tabelle %1</translation>
    </message>
    <message>
        <source>ww_bw</source>
        <translation>W</translation>
    </message>
    <message>
        <source>wc_bw</source>
        <translation>C</translation>
    </message>
    <message>
        <source>brightness_bw</source>
        <translation>H</translation>
    </message>
    <message>
        <source>contrast_bw</source>
        <translation>K</translation>
    </message>
    <message>
        <source>Image window width</source>
        <translation>Fensterbreite</translation>
    </message>
    <message>
        <source>Image window level</source>
        <translation>Fenstermitte</translation>
    </message>
    <message>
        <source>Image brightness</source>
        <translation>Helligkeit</translation>
    </message>
    <message>
        <source>Image contrast</source>
        <translation>Kontrast</translation>
    </message>
    <message>
        <source>Original</source>
        <translation>Original</translation>
    </message>
    <message>
        <source>Unnamed</source>
        <translation>Unbenannt</translation>
    </message>
    <message>
        <source>Make Preset</source>
        <translation>Vorgabe anlegen</translation>
    </message>
    <message>
        <source>Edit Presets</source>
        <translation>Vorgaben bearbeiten</translation>
    </message>
    <message>
        <source>Adjust...</source>
        <translation>Anpassen …</translation>
    </message>
    <message>
        <source>Adjust</source>
        <translation>Anpassen</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
    <message>
        <source>Window Width</source>
        <translation>Fensterbreite</translation>
    </message>
    <message>
        <source>Window Level</source>
        <translation>Fenstermitte</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Helligkeit</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>Kontrast</translation>
    </message>
    <message>
        <source>WWWLValuesExplain</source>
        <translation>Von %1 bis %2</translation>
    </message>
    <message>
        <source>BCValuesExplain</source>
        <translation>Von %1 bis %2</translation>
    </message>
    <message>
        <source>Frame</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Fenster</translation>
    </message>
    <message>
        <source>Rows</source>
        <translation>Zeilen</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>Spalten</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>&amp;Image</source>
        <translation>B&amp;ild</translation>
    </message>
    <message>
        <source>&amp;Sequence</source>
        <translation>&amp;Sequenz</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>&amp;Werkzeuge</translation>
    </message>
    <message>
        <source>&amp;Cine</source>
        <translation>&amp;Cine</translation>
    </message>
    <message>
        <source>&amp;Window</source>
        <translation>&amp;Fenster</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>Open...</source>
        <translation>Öffnen …</translation>
    </message>
    <message>
        <source>Open Recent</source>
        <translation>Zuletzt geöffnet</translation>
    </message>
    <message>
        <source>Export...</source>
        <translation>Exportieren …</translation>
    </message>
    <message>
        <source>Export Metadata...</source>
        <translation>Metadaten exportieren …</translation>
    </message>
    <message>
        <source>Anonymize...</source>
        <translation>Anonymisieren …</translation>
    </message>
    <message>
        <source>Print...</source>
        <translation>Drucken …</translation>
    </message>
    <message>
        <source>Close Window</source>
        <translation>Fenster schließen</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>Enter Full Screen</source>
        <translation>Vollbild ein</translation>
    </message>
    <message>
        <source>Exit Full Screen</source>
        <translation>Vollbild aus</translation>
    </message>
    <message>
        <source>Show Toolbar</source>
        <translation>Symbolleiste einblenden</translation>
    </message>
    <message>
        <source>Hide Toolbar</source>
        <translation>Symbolleiste ausblenden</translation>
    </message>
    <message>
        <source>Toolbar</source>
        <translation>Symbolleiste</translation>
    </message>
    <message>
        <source>Show Patient List</source>
        <translation>Patientenliste einblenden</translation>
    </message>
    <message>
        <source>Hide Patient List</source>
        <translation>Patientenliste ausblenden</translation>
    </message>
    <message>
        <source>Show Study Info</source>
        <translation>Studieninfo einblenden</translation>
    </message>
    <message>
        <source>Hide Study Info</source>
        <translation>Studieninfo ausblenden</translation>
    </message>
    <message>
        <source>Show Secondary Toolbar</source>
        <translation>Zweite Symbolleiste einblenden</translation>
    </message>
    <message>
        <source>Hide Secondary Toolbar</source>
        <translation>Zweite Symbolleiste ausblenden</translation>
    </message>
    <message>
        <source>Show Measurement Pane</source>
        <translation>Messbereich einblenden</translation>
    </message>
    <message>
        <source>Hide Measurement Pane</source>
        <translation>Messbereich ausblenden</translation>
    </message>
    <message>
        <source>Show Metadata Palette</source>
        <translation>Metadatenpalette einblenden</translation>
    </message>
    <message>
        <source>Hide Metadata Palette</source>
        <translation>Metadatenpalette ausblenden</translation>
    </message>
    <message>
        <source>Mark Current Sequence</source>
        <translation>Aktuelle Sequenz markieren</translation>
    </message>
    <message>
        <source>Unmark Current Sequence</source>
        <translation>Markierung der aktuellen Sequenz aufheben</translation>
    </message>
    <message>
        <source>Mark All</source>
        <translation>Alle markieren</translation>
    </message>
    <message>
        <source>Unmark All</source>
        <translation>Alle Markierungen aufheben</translation>
    </message>
    <message>
        <source>Toggle Marked</source>
        <translation>Markierungen umkehren</translation>
    </message>
    <message>
        <source>Mark Selected</source>
        <translation>Auswahl markieren</translation>
    </message>
    <message>
        <source>Unmark Selected</source>
        <translation>Markierung der Auswahl aufheben</translation>
    </message>
    <message>
        <source>Toggle Marked in Selection</source>
        <translation>Markierungen in der Auswahl umkehren</translation>
    </message>
    <message>
        <source>Reset All</source>
        <translation>Alles zurücksetzen</translation>
    </message>
    <message>
        <source>Reset Colors</source>
        <translation>Farben zurücksetzen</translation>
    </message>
    <message>
        <source>Reset Orientation</source>
        <translation>Ausrichtung zurücksetzen</translation>
    </message>
    <message>
        <source>Reset Position</source>
        <translation>Position zurücksetzen</translation>
    </message>
    <message>
        <source>Reset Measurements</source>
        <translation>Messungen zurücksetzen</translation>
    </message>
    <message>
        <source>Original Window</source>
        <translation>Ursprüngliche Fensterung</translation>
    </message>
    <message>
        <source>No Color Table</source>
        <translation>Keine Farbtabelle</translation>
    </message>
    <message>
        <source>Color Table</source>
        <translation>Farbtabelle</translation>
    </message>
    <message>
        <source>Window Presets</source>
        <translation>Fenstervorgaben</translation>
    </message>
    <message>
        <source>Show Reference Lines</source>
        <translation>Referenzlinien einblenden</translation>
    </message>
    <message>
        <source>Hide Reference Lines</source>
        <translation>Referenzlinien ausblenden</translation>
    </message>
    <message>
        <source>Reference Lines</source>
        <translation>Referenzlinien</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Alles auswählen</translation>
    </message>
    <message>
        <source>Whole Image</source>
        <translation>Ganzes Bild</translation>
    </message>
    <message>
        <source>User Selection</source>
        <translation>Eigene Auswahl</translation>
    </message>
    <message>
        <source>Propagate Crop</source>
        <translation>Ausschnitt übertragen</translation>
    </message>
    <message>
        <source>Clear Crop in All Series</source>
        <translation>Ausschnitt in allen Serien aufheben</translation>
    </message>
    <message>
        <source>No regions found</source>
        <translation>Keine Regionen gefunden</translation>
    </message>
    <message>
        <source>Crop</source>
        <translation>Ausschnitt</translation>
    </message>
    <message>
        <source>Loop</source>
        <translation>Endlos</translation>
    </message>
    <message>
        <source>Sweep</source>
        <translation>Vor und zurück</translation>
    </message>
    <message>
        <source>Play Automatically</source>
        <translation>Automatisch abspielen</translation>
    </message>
    <message>
        <source>Play Next Series</source>
        <translation>Nächste Serie abspielen</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Auswählen</translation>
    </message>
    <message>
        <source>Zoom Tool</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Pan</source>
        <translation>Verschieben</translation>
    </message>
    <message>
        <source>Window and Level</source>
        <translation>Fensterung</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Linie</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>Winkel</translation>
    </message>
    <message>
        <source>Rectangle</source>
        <translation>Rechteck</translation>
    </message>
    <message>
        <source>Ellipse</source>
        <translation>Ellipse</translation>
    </message>
    <message>
        <source>Polygon</source>
        <translation>Polygon</translation>
    </message>
    <message>
        <source>Arrow</source>
        <translation>Pfeil</translation>
    </message>
    <message>
        <source>Calibration Line</source>
        <translation>Kalibrierlinie</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Eyedropper</source>
        <translation>Pipette</translation>
    </message>
    <message>
        <source>Apply To</source>
        <translation>Anwenden auf</translation>
    </message>
    <message>
        <source>Current Frame</source>
        <translation>Aktuelles Bild</translation>
    </message>
    <message>
        <source>All Frames of the Sequence</source>
        <translation>Alle Bilder der Sequenz</translation>
    </message>
    <message>
        <source>Demographics</source>
        <translation>Bildtexte</translation>
    </message>
    <message>
        <source>Overlays</source>
        <translation>Overlays</translation>
    </message>
    <message>
        <source>Measure</source>
        <translation>Messen</translation>
    </message>
    <message>
        <source>Preferences...</source>
        <translation>Einstellungen …</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Minimieren</translation>
    </message>
    <message>
        <source>Windows</source>
        <translation>Fenster</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>Acknowledgments</source>
        <translation>Danksagungen</translation>
    </message>
    <message>
        <source>First Aid...</source>
        <translation>Erste Hilfe …</translation>
    </message>
    <message>
        <source>Check for Updates...</source>
        <translation>Nach Aktualisierungen suchen …</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Über productNameXX</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>Ohne Titel</translation>
    </message>
    <message>
        <source>Reveal Selected in Finder</source>
        <translation>Auswahl im Dateimanager zeigen</translation>
    </message>
    <message>
        <source>Mark</source>
        <translation>Markieren</translation>
    </message>
    <message>
        <source>Text Only</source>
        <translation>Nur Text</translation>
    </message>
    <message>
        <source>Icon Only</source>
        <translation>Nur Bilder</translation>
    </message>
    <message>
        <source>Thumbnail Size</source>
        <translation>Größe der Vorschaubilder</translation>
    </message>
    <message>
        <source>Customize Toolbar...</source>
        <translation>Symbolleiste anpassen …</translation>
    </message>
    <message>
        <source>Customize Toolbar</source>
        <translation>Symbolleiste anpassen</translation>
    </message>
    <message>
        <source>Available Items</source>
        <translation>Verfügbare Elemente</translation>
    </message>
    <message>
        <source>Add Item</source>
        <translation>Hinzufügen</translation>
    </message>
    <message>
        <source>Remove Item</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Move Item Up</source>
        <translation>Nach oben</translation>
    </message>
    <message>
        <source>Move Item Down</source>
        <translation>Nach unten</translation>
    </message>
    <message>
        <source>Restore Default Items</source>
        <translation>Standard wiederherstellen</translation>
    </message>
    <message>
        <source>Previous and Next Series</source>
        <translation>Vorherige und nächste Serie</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Werkzeuge</translation>
    </message>
    <message>
        <source>Rotate and Flip</source>
        <translation>Drehen und spiegeln</translation>
    </message>
    <message>
        <source>Separator</source>
        <translation>Trennlinie</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Abstand</translation>
    </message>
    <message>
        <source>Flexible Space</source>
        <translation>Flexibler Abstand</translation>
    </message>
</context>
<context>
    <name>Measurements</name>
    <message>
        <source>kGlobalMeasPrefix</source>
        <translation>Alle Bilder: </translation>
    </message>
    <message>
        <source>kMeasDisplayTitle</source>
        <translation>%1%2: %3</translation>
    </message>
    <message>
        <source>kRegionUnitStr_none</source>
        <translation>keine</translation>
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
        <translation>k. A.</translation>
    </message>
    <message>
        <source>kRegionFormat_2D</source>
        <translation>2D</translation>
    </message>
    <message>
        <source>kRegionFormat_MMode</source>
        <translation>M-Mode</translation>
    </message>
    <message>
        <source>kRegionFormat_Spectral</source>
        <translation>Spektral</translation>
    </message>
    <message>
        <source>kRegionFormat_WaveForm</source>
        <translation>Kurve</translation>
    </message>
    <message>
        <source>kRegionFormat_graphics</source>
        <translation>Grafik</translation>
    </message>
    <message>
        <source>kRegionFormat_none</source>
        <translation>Region</translation>
    </message>
</context>
<context>
    <name>VendorStrings_zel</name>
    <message>
        <source>HelpFileName</source>
        <translation>Zelora Viewer Hilfe.pdf</translation>
    </message>
    <message>
        <source>MenuProductName</source>
        <translation>Zelora Viewer</translation>
    </message>
    <message>
        <source>AboutText</source>
        <translation>Ein Betrachter für DICOM-Bilder. Er ist kein Medizinprodukt: Stützen Sie keine Diagnose auf ihn allein.</translation>
    </message>
    <message>
        <source>Program Crash Report</source>
        <translation>Zelora Viewer %1 Absturzbericht</translation>
    </message>
</context>
<context>
    <name>Preferences</name>
    <message>
        <source>Panes</source>
        <translation>Bereiche</translation>
    </message>
    <message>
        <source>Pane tip</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>General title</source>
        <translation>Allgemeine Einstellungen</translation>
    </message>
    <message>
        <source>DICOM</source>
        <translation>DICOM</translation>
    </message>
    <message>
        <source>DICOM title</source>
        <translation>DICOM-Einstellungen</translation>
    </message>
    <message>
        <source>Presets</source>
        <translation>Vorgaben</translation>
    </message>
    <message>
        <source>Presets title</source>
        <translation>Fenstervorgaben</translation>
    </message>
    <message>
        <source>Presets title tip</source>
        <translation>Doppelklicken Sie einen Wert, um ihn zu ändern; ziehen Sie eine Zeile, um sie zu verschieben</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>Aktualisierung</translation>
    </message>
    <message>
        <source>Updates title</source>
        <translation>Softwareaktualisierung</translation>
    </message>
    <message>
        <source>Windows</source>
        <translation>Fenster</translation>
    </message>
    <message>
        <source>First layout</source>
        <translation>Erstes Layout</translation>
    </message>
    <message>
        <source>First layout tip</source>
        <translation>Wie ein Fenster beim Öffnen unter den Serien aufgeteilt wird</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automatisch</translation>
    </message>
    <message>
        <source>Opening</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Scan subfolders</source>
        <translation>Unterordner durchsuchen</translation>
    </message>
    <message>
        <source>Scan subfolders tip</source>
        <translation>Öffnet auch, was in den Ordnern eines Ordners liegt</translation>
    </message>
    <message>
        <source>Ignore DICOMDIR</source>
        <translation>DICOMDIR-Dateien ignorieren</translation>
    </message>
    <message>
        <source>Ignore DICOMDIR tip</source>
        <translation>Liest die Bilder eines Ordners selbst, auch wenn er ein Verzeichnis von ihnen hat</translation>
    </message>
    <message>
        <source>Open discs</source>
        <translation>Eingelegte Datenträger öffnen</translation>
    </message>
    <message>
        <source>Open discs tip</source>
        <translation>Öffnet einen Datenträger mit DICOMDIR, sobald er da ist</translation>
    </message>
    <message>
        <source>Copy from discs</source>
        <translation>Bilder vor dem Anzeigen vom Datenträger kopieren</translation>
    </message>
    <message>
        <source>Copy from discs tip</source>
        <translation>Der Datenträger kann dann entnommen werden, und Blättern geht schneller</translation>
    </message>
    <message>
        <source>Copy from servers</source>
        <translation>Server wie langsame Datenträger behandeln</translation>
    </message>
    <message>
        <source>Copy from servers tip</source>
        <translation>Kopiert auch Bilder von Netzlaufwerken</translation>
    </message>
    <message>
        <source>Open US and XA large</source>
        <translation>US und XA mit einer Serie öffnen</translation>
    </message>
    <message>
        <source>Open US and XA large tip</source>
        <translation>Ultraschall und Angiographie öffnen eine Serie über das ganze Fenster</translation>
    </message>
    <message>
        <source>Traverse marked</source>
        <translation>Nur zu markierten Serien weitergehen</translation>
    </message>
    <message>
        <source>Traverse marked tip</source>
        <translation>Wenn Cine alle Serien durchläuft, werden unmarkierte ausgelassen</translation>
    </message>
    <message>
        <source>Text and grids</source>
        <translation>Text und Raster</translation>
    </message>
    <message>
        <source>Text color</source>
        <translation>Text über Bildern</translation>
    </message>
    <message>
        <source>Text color tip</source>
        <translation>Farbe des Textes über Bildern</translation>
    </message>
    <message>
        <source>Active cell color</source>
        <translation>Aktives Bild</translation>
    </message>
    <message>
        <source>Active cell color tip</source>
        <translation>Farbe des Rahmens um das aktive Bild</translation>
    </message>
    <message>
        <source>Text font</source>
        <translation>Schrift des Textes</translation>
    </message>
    <message>
        <source>Choose font</source>
        <translation>Auswählen …</translation>
    </message>
    <message>
        <source>Choose font tip</source>
        <translation>Schrift und Größe des Textes über Bildern</translation>
    </message>
    <message>
        <source>Font sample</source>
        <translation>%1 Punkt %2</translation>
    </message>
    <message>
        <source>Measurements</source>
        <translation>Messungen</translation>
    </message>
    <message>
        <source>Outline color</source>
        <translation>Umriss</translation>
    </message>
    <message>
        <source>Outline color tip</source>
        <translation>Farbe des Umrisses neuer Messungen</translation>
    </message>
    <message>
        <source>Fill color</source>
        <translation>Füllung</translation>
    </message>
    <message>
        <source>Fill color tip</source>
        <translation>Farbe der Füllung neuer Messungen</translation>
    </message>
    <message>
        <source>Images</source>
        <translation>Bilder</translation>
    </message>
    <message>
        <source>Merge US</source>
        <translation>Einzelne Ultraschallbilder einer Serie zusammenfassen</translation>
    </message>
    <message>
        <source>Merge US tip</source>
        <translation>Ab dem nächsten Öffnen</translation>
    </message>
    <message>
        <source>Merge XA</source>
        <translation>Einzelne Angiographiebilder einer Serie zusammenfassen</translation>
    </message>
    <message>
        <source>Merge XA tip</source>
        <translation>Ab dem nächsten Öffnen</translation>
    </message>
    <message>
        <source>Decode character sets</source>
        <translation>Text nach seinem Zeichensatz lesen</translation>
    </message>
    <message>
        <source>Decode character sets tip</source>
        <translation>Aus: Text, wie ältere Programme ihn lesen; ab dem nächsten Öffnen</translation>
    </message>
    <message>
        <source>Enhance contrast</source>
        <translation>Fensterung auf die Werte des Bildes beschränken</translation>
    </message>
    <message>
        <source>Enhance contrast tip</source>
        <translation>Aus: Fensterung allein nach der Formel des Standards</translation>
    </message>
    <message>
        <source>Localizers</source>
        <translation>Localizer</translation>
    </message>
    <message>
        <source>First and last localizers</source>
        <translation>Erste und letzte Linie anzeigen</translation>
    </message>
    <message>
        <source>First and last localizers tip</source>
        <translation>Neben der Linie des gezeigten Bildes, wo die Serie auf anderen Rastern beginnt und endet</translation>
    </message>
    <message>
        <source>Separate localizers</source>
        <translation>Localizer getrennt halten</translation>
    </message>
    <message>
        <source>Separate localizers tip</source>
        <translation>Localizer-Bilder bekommen eine eigene Sequenz; ab dem nächsten Öffnen</translation>
    </message>
    <message>
        <source>Colors over images</source>
        <translation>Farben über Bildern</translation>
    </message>
    <message>
        <source>Overlay color</source>
        <translation>Overlays</translation>
    </message>
    <message>
        <source>Overlay color tip</source>
        <translation>Farbe der Overlays, die die Datei mitbringt</translation>
    </message>
    <message>
        <source>US region color</source>
        <translation>Ultraschallregionen</translation>
    </message>
    <message>
        <source>US region color tip</source>
        <translation>Farbe der Rahmen um Ultraschallregionen</translation>
    </message>
    <message>
        <source>Localizer color</source>
        <translation>Referenzlinien</translation>
    </message>
    <message>
        <source>Localizer color tip</source>
        <translation>Farbe der Referenzlinien</translation>
    </message>
    <message>
        <source>Cine</source>
        <translation>Cine</translation>
    </message>
    <message>
        <source>Cine autoplay</source>
        <translation>Sofort abspielen</translation>
    </message>
    <message>
        <source>Cine autoplay tip</source>
        <translation>Cine beginnt, wenn eine Serie erscheint, die gewöhnlich abgespielt wird</translation>
    </message>
    <message>
        <source>Enforce speed</source>
        <translation>Gleiche Geschwindigkeit für alle</translation>
    </message>
    <message>
        <source>Enforce speed tip</source>
        <translation>Spielt mit der Standardgeschwindigkeit, was auch immer die Datei sagt</translation>
    </message>
    <message>
        <source>Default speed</source>
        <translation>Bilder pro Sekunde</translation>
    </message>
    <message>
        <source>Default speed tip</source>
        <translation>4 bis 60</translation>
    </message>
    <message>
        <source>presetTitle</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>presetTitle tip</source>
        <translation>Name in Menüs</translation>
    </message>
    <message>
        <source>wcPreset</source>
        <translation>Mitte</translation>
    </message>
    <message>
        <source>wcPreset tip</source>
        <translation>Mitte des Fensters</translation>
    </message>
    <message>
        <source>wwPreset</source>
        <translation>Breite</translation>
    </message>
    <message>
        <source>wwPreset tip</source>
        <translation>Breite des Fensters, über 0</translation>
    </message>
    <message>
        <source>Add preset</source>
        <translation>Hinzufügen</translation>
    </message>
    <message>
        <source>Add preset tip</source>
        <translation>Fügt unter der ausgewählten eine Vorgabe hinzu</translation>
    </message>
    <message>
        <source>Remove preset</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Remove preset tip</source>
        <translation>Entfernt die ausgewählten Vorgaben (Entf)</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>Nach oben</translation>
    </message>
    <message>
        <source>Move up tip</source>
        <translation>Verschiebt die ausgewählte Vorgabe nach oben (Alt+Auf)</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>Nach unten</translation>
    </message>
    <message>
        <source>Move down tip</source>
        <translation>Verschiebt die ausgewählte Vorgabe nach unten (Alt+Ab)</translation>
    </message>
    <message>
        <source>Reset presets</source>
        <translation>Zurücksetzen …</translation>
    </message>
    <message>
        <source>Reset presets tip</source>
        <translation>Bringt die mitgelieferten Vorgaben zurück</translation>
    </message>
    <message>
        <source>Check now</source>
        <translation>Jetzt suchen</translation>
    </message>
    <message>
        <source>Check now tip</source>
        <translation>Sucht nach einer neueren Version</translation>
    </message>
    <message>
        <source>No update service</source>
        <translation>Diese Kopie des Programms sucht nicht selbst nach Aktualisierungen. Neue Versionen kommen auf dem Weg, auf dem diese kam.</translation>
    </message>
</context>
<context>
    <name>FirstAid</name>
    <message>
        <source>First Aid</source>
        <translation>Erste Hilfe</translation>
    </message>
    <message>
        <source>CrashTitle</source>
        <translation>Zelora Viewer wurde beim letzten Mal nicht ordentlich beendet.</translation>
    </message>
    <message>
        <source>Reset all settings</source>
        <translation>Alle Einstellungen zurücksetzen</translation>
    </message>
    <message>
        <source>ResetExplain</source>
        <translation>Alle Einstellungen werden wieder die einer neuen Installation, und das Programm startet neu. Eine Kopie der Einstellungen bleibt daneben erhalten.</translation>
    </message>
    <message>
        <source>Collect crash reports</source>
        <translation>Absturzberichte zusammenstellen</translation>
    </message>
    <message>
        <source>LogsExplain</source>
        <translation>Berichte von Abstürzen werden zusammengestellt, damit Sie sie lesen, und nur mit Ihrer Zustimmung über Ihr Mailprogramm gesendet.</translation>
    </message>
    <message>
        <source>UserText</source>
        <translation>Was haben Sie getan, als es geschah?</translation>
    </message>
    <message>
        <source>Remove older reports afterwards</source>
        <translation>Ältere Berichte danach entfernen</translation>
    </message>
    <message>
        <source>ClearLogsTip</source>
        <translation>Nur der letzte Bericht jeder Art bleibt</translation>
    </message>
    <message>
        <source>Check for Updates</source>
        <translation>Nach Aktualisierungen suchen</translation>
    </message>
    <message>
        <source>No update service</source>
        <translation>Kein Aktualisierungsdienst ist eingerichtet</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <source>Collect</source>
        <translation>Zusammenstellen</translation>
    </message>
    <message>
        <source>Review</source>
        <translation>Bericht durchsehen</translation>
    </message>
    <message>
        <source>ReviewExplain</source>
        <translation>Das ist alles, was diesen Rechner verlässt. Was auf einen Patienten oder auf Sie deuten kann, ist hervorgehoben: Streichen Sie es, und was Sie sonst noch auswählen.</translation>
    </message>
    <message>
        <source>Strike all marked</source>
        <translation>Alles Hervorgehobene streichen</translation>
    </message>
    <message>
        <source>Strike selected</source>
        <translation>Auswahl streichen</translation>
    </message>
    <message>
        <source>Next marked</source>
        <translation>Nächste Hervorhebung</translation>
    </message>
    <message>
        <source>Send</source>
        <translation>Senden</translation>
    </message>
    <message>
        <source>NotSent</source>
        <translation>Kein Mailprogramm hat den Bericht angenommen.</translation>
    </message>
    <message>
        <source>NotSentExplain</source>
        <translation>Bitte senden Sie ihn selbst an %1. Die Berichte liegen im Ordner %2.</translation>
    </message>
</context>
<context>
    <name>Viewer</name>
    <message>
        <source>%1 (%2 of %3)</source>
        <translation>%1 (%2 von %3)</translation>
    </message>
    <message>
        <source>&amp;Ignore DICOMDIR</source>
        <translation>DICOMDIR &amp;ignorieren</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Name:</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Choose a file or a folder to open</source>
        <translation>Eine Datei oder einen Ordner zum Öffnen auswählen</translation>
    </message>
    <message>
        <source>Drop files, folders or a DICOMDIR here, or choose them:</source>
        <translation>Legen Sie Dateien, Ordner oder ein DICOMDIR hier ab, oder wählen Sie sie aus:</translation>
    </message>
    <message>
        <source>Frame %1 of %2</source>
        <translation>Bild %1 von %2</translation>
    </message>
    <message>
        <source>Frame shown, and how many there are</source>
        <translation>Gezeigtes Bild, und wie viele es gibt</translation>
    </message>
    <message>
        <source>Include &amp;subfolders</source>
        <translation>Mit &amp;Unterordnern</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Fortschritt</translation>
    </message>
    <message>
        <source>Search the folder for images even if a DICOMDIR lists them</source>
        <translation>Den Ordner nach Bildern durchsuchen, auch wenn ein DICOMDIR sie aufführt</translation>
    </message>
    <message>
        <source>Search the folders in the chosen folder too</source>
        <translation>Auch die Ordner im gewählten Ordner durchsuchen</translation>
    </message>
    <message>
        <source>Stop opening (Escape)</source>
        <translation>Öffnen abbrechen (Escape)</translation>
    </message>
    <message>
        <source>There are no frames to show</source>
        <translation>Es gibt keine Bilder zu zeigen</translation>
    </message>
    <message>
        <source>This frame can't be shown</source>
        <translation>Dieses Bild kann nicht gezeigt werden</translation>
    </message>
    <message>
        <source>What was open lately</source>
        <translation>Was zuletzt geöffnet war</translation>
    </message>
    <message>
        <source>Window %1, level %2</source>
        <translation>Fenster %1, Mitte %2</translation>
    </message>
    <message>
        <source>Window width and level of this frame</source>
        <translation>Fensterbreite und -mitte dieses Bildes</translation>
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
        <translation>Name</translation>
    </message>
    <message>
        <source>Patient ID</source>
        <translation>Patienten-ID</translation>
    </message>
    <message>
        <source>Date of Birth</source>
        <translation>Geburtsdatum</translation>
    </message>
    <message>
        <source>Sex</source>
        <translation>Geschlecht</translation>
    </message>
    <message>
        <source>Age</source>
        <translation>Alter</translation>
    </message>
    <message>
        <source>Size (m)</source>
        <translation>Größe (m)</translation>
    </message>
    <message>
        <source>Weight (kg)</source>
        <translation>Gewicht (kg)</translation>
    </message>
    <message>
        <source>Allergies</source>
        <translation>Allergien</translation>
    </message>
    <message>
        <source>Pregnancy Status</source>
        <translation>Schwangerschaft</translation>
    </message>
    <message>
        <source>Comments</source>
        <translation>Bemerkungen</translation>
    </message>
    <message>
        <source>Study</source>
        <translation>Studie</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Beschreibung</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Uhrzeit</translation>
    </message>
    <message>
        <source>Study ID</source>
        <translation>Studien-ID</translation>
    </message>
    <message>
        <source>Accession Number</source>
        <translation>Auftragsnummer</translation>
    </message>
    <message>
        <source>Referring Physician</source>
        <translation>Überweisender Arzt</translation>
    </message>
    <message>
        <source>Reading Physician</source>
        <translation>Befundender Arzt</translation>
    </message>
    <message>
        <source>Series</source>
        <translation>Serie</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Nummer</translation>
    </message>
    <message>
        <source>Modality</source>
        <translation>Modalität</translation>
    </message>
    <message>
        <source>Protocol</source>
        <translation>Protokoll</translation>
    </message>
    <message>
        <source>Body Part</source>
        <translation>Körperteil</translation>
    </message>
    <message>
        <source>Laterality</source>
        <translation>Seite</translation>
    </message>
    <message>
        <source>Patient Position</source>
        <translation>Lagerung</translation>
    </message>
    <message>
        <source>Performing Physician</source>
        <translation>Durchführender Arzt</translation>
    </message>
    <message>
        <source>Operator</source>
        <translation>Bedienperson</translation>
    </message>
    <message>
        <source>Equipment</source>
        <translation>Gerät</translation>
    </message>
    <message>
        <source>Institution</source>
        <translation>Einrichtung</translation>
    </message>
    <message>
        <source>Department</source>
        <translation>Abteilung</translation>
    </message>
    <message>
        <source>Station</source>
        <translation>Station</translation>
    </message>
    <message>
        <source>Manufacturer</source>
        <translation>Hersteller</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modell</translation>
    </message>
    <message>
        <source>Software</source>
        <translation>Software</translation>
    </message>
    <message>
        <source>Serial Number</source>
        <translation>Seriennummer</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>Kontrastmittel</translation>
    </message>
    <message>
        <source>Agent</source>
        <translation>Mittel</translation>
    </message>
    <message>
        <source>Route</source>
        <translation>Applikation</translation>
    </message>
    <message>
        <source>Volume (ml)</source>
        <translation>Volumen (ml)</translation>
    </message>
    <message>
        <source>Flow Rate (ml/s)</source>
        <translation>Flussrate (ml/s)</translation>
    </message>
    <message>
        <source>Ingredient</source>
        <translation>Wirkstoff</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Instance Number</source>
        <translation>Bildnummer</translation>
    </message>
    <message>
        <source>Acquisition Date</source>
        <translation>Aufnahmedatum</translation>
    </message>
    <message>
        <source>Acquisition Time</source>
        <translation>Aufnahmezeit</translation>
    </message>
    <message>
        <source>Content Date</source>
        <translation>Bilddatum</translation>
    </message>
    <message>
        <source>Content Time</source>
        <translation>Bildzeit</translation>
    </message>
    <message>
        <source>Frames</source>
        <translation>Bilder</translation>
    </message>
    <message>
        <source>Rows</source>
        <translation>Zeilen</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>Spalten</translation>
    </message>
    <message>
        <source>Bits Stored</source>
        <translation>Bits pro Pixel</translation>
    </message>
    <message>
        <source>Photometric Interpretation</source>
        <translation>Farbmodell</translation>
    </message>
    <message>
        <source>Pixel Spacing (mm)</source>
        <translation>Pixelabstand (mm)</translation>
    </message>
    <message>
        <source>Lossy Compression</source>
        <translation>Verlustbehaftet</translation>
    </message>
    <message>
        <source>Compression Ratio</source>
        <translation>Kompressionsrate</translation>
    </message>
    <message>
        <source>Window Width</source>
        <translation>Fensterbreite</translation>
    </message>
    <message>
        <source>Window Center</source>
        <translation>Fenstermitte</translation>
    </message>
    <message>
        <source>View Position</source>
        <translation>Projektion</translation>
    </message>
    <message>
        <source>Slice</source>
        <translation>Schicht</translation>
    </message>
    <message>
        <source>Slice Thickness (mm)</source>
        <translation>Schichtdicke (mm)</translation>
    </message>
    <message>
        <source>Slice Spacing (mm)</source>
        <translation>Schichtabstand (mm)</translation>
    </message>
    <message>
        <source>Slice Location (mm)</source>
        <translation>Schichtlage (mm)</translation>
    </message>
    <message>
        <source>Image Position (mm)</source>
        <translation>Bildlage (mm)</translation>
    </message>
    <message>
        <source>Image Orientation</source>
        <translation>Bildausrichtung</translation>
    </message>
    <message>
        <source>X-Ray</source>
        <translation>Röntgen</translation>
    </message>
    <message>
        <source>Tube Voltage (kV)</source>
        <translation>Röhrenspannung (kV)</translation>
    </message>
    <message>
        <source>Tube Current (mA)</source>
        <translation>Röhrenstrom (mA)</translation>
    </message>
    <message>
        <source>Exposure Time (ms)</source>
        <translation>Belichtungszeit (ms)</translation>
    </message>
    <message>
        <source>Exposure (mAs)</source>
        <translation>Strom-Zeit-Produkt (mAs)</translation>
    </message>
    <message>
        <source>Dose Area Product (dGy·cm²)</source>
        <translation>Dosisflächenprodukt (dGy·cm²)</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filter</translation>
    </message>
    <message>
        <source>Focal Spot (mm)</source>
        <translation>Brennfleck (mm)</translation>
    </message>
    <message>
        <source>Source to Detector (mm)</source>
        <translation>Fokus-Detektor-Abstand (mm)</translation>
    </message>
    <message>
        <source>Source to Patient (mm)</source>
        <translation>Fokus-Patient-Abstand (mm)</translation>
    </message>
    <message>
        <source>Primary Angle (°)</source>
        <translation>Primärwinkel (°)</translation>
    </message>
    <message>
        <source>Secondary Angle (°)</source>
        <translation>Sekundärwinkel (°)</translation>
    </message>
    <message>
        <source>Body Part Thickness (mm)</source>
        <translation>Objektdicke (mm)</translation>
    </message>
    <message>
        <source>Compression Force (N)</source>
        <translation>Kompressionskraft (N)</translation>
    </message>
    <message>
        <source>Organ Dose (dGy)</source>
        <translation>Organdosis (dGy)</translation>
    </message>
    <message>
        <source>CT</source>
        <translation>CT</translation>
    </message>
    <message>
        <source>Kernel</source>
        <translation>Kernel</translation>
    </message>
    <message>
        <source>Reconstruction Diameter (mm)</source>
        <translation>Rekonstruktionsdurchmesser (mm)</translation>
    </message>
    <message>
        <source>Collection Diameter (mm)</source>
        <translation>Messfelddurchmesser (mm)</translation>
    </message>
    <message>
        <source>Gantry Tilt (°)</source>
        <translation>Gantryneigung (°)</translation>
    </message>
    <message>
        <source>Table Height (mm)</source>
        <translation>Tischhöhe (mm)</translation>
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
        <translation>Scanoptionen</translation>
    </message>
    <message>
        <source>Rescale Intercept</source>
        <translation>Achsenabschnitt</translation>
    </message>
    <message>
        <source>Rescale Slope</source>
        <translation>Steigung</translation>
    </message>
    <message>
        <source>MR</source>
        <translation>MR</translation>
    </message>
    <message>
        <source>Scanning Sequence</source>
        <translation>Scansequenz</translation>
    </message>
    <message>
        <source>Sequence Variant</source>
        <translation>Sequenzvariante</translation>
    </message>
    <message>
        <source>Sequence Name</source>
        <translation>Sequenzname</translation>
    </message>
    <message>
        <source>Acquisition Type</source>
        <translation>Aufnahmeart</translation>
    </message>
    <message>
        <source>Field Strength (T)</source>
        <translation>Feldstärke (T)</translation>
    </message>
    <message>
        <source>Repetition Time (ms)</source>
        <translation>Repetitionszeit (ms)</translation>
    </message>
    <message>
        <source>Echo Time (ms)</source>
        <translation>Echozeit (ms)</translation>
    </message>
    <message>
        <source>Inversion Time (ms)</source>
        <translation>Inversionszeit (ms)</translation>
    </message>
    <message>
        <source>Flip Angle (°)</source>
        <translation>Flipwinkel (°)</translation>
    </message>
    <message>
        <source>Echo Train Length</source>
        <translation>Echozuglänge</translation>
    </message>
    <message>
        <source>Averages</source>
        <translation>Mittelungen</translation>
    </message>
    <message>
        <source>Pixel Bandwidth (Hz)</source>
        <translation>Pixelbandbreite (Hz)</translation>
    </message>
    <message>
        <source>Receive Coil</source>
        <translation>Empfangsspule</translation>
    </message>
    <message>
        <source>SAR (W/kg)</source>
        <translation>SAR (W/kg)</translation>
    </message>
    <message>
        <source>Ultrasound and Cine</source>
        <translation>Ultraschall und Cine</translation>
    </message>
    <message>
        <source>Stage</source>
        <translation>Phase</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Ansicht</translation>
    </message>
    <message>
        <source>Transducer</source>
        <translation>Schallkopf</translation>
    </message>
    <message>
        <source>Frame Time (ms)</source>
        <translation>Bildzeit (ms)</translation>
    </message>
    <message>
        <source>Cine Rate (1/s)</source>
        <translation>Cine-Rate (1/s)</translation>
    </message>
    <message>
        <source>Display Rate (1/s)</source>
        <translation>Anzeigerate (1/s)</translation>
    </message>
    <message>
        <source>Heart Rate (1/min)</source>
        <translation>Herzfrequenz (1/min)</translation>
    </message>
    <message>
        <source>Mechanical Index</source>
        <translation>Mechanischer Index</translation>
    </message>
    <message>
        <source>Thermal Index Soft Tissue</source>
        <translation>Thermischer Index Weichteil</translation>
    </message>
    <message>
        <source>Depth of Scan Field (mm)</source>
        <translation>Bildtiefe (mm)</translation>
    </message>
    <message>
        <source>Nuclear Medicine and PET</source>
        <translation>Nuklearmedizin und PET</translation>
    </message>
    <message>
        <source>Radiopharmaceutical</source>
        <translation>Radiopharmakon</translation>
    </message>
    <message>
        <source>Units</source>
        <translation>Einheiten</translation>
    </message>
    <message>
        <source>Decay Correction</source>
        <translation>Zerfallskorrektur</translation>
    </message>
    <message>
        <source>Counts Accumulated</source>
        <translation>Gesamtzählrate</translation>
    </message>
    <message>
        <source>Frame Duration (ms)</source>
        <translation>Bilddauer (ms)</translation>
    </message>
    <message>
        <source>Reconstruction Method</source>
        <translation>Rekonstruktionsverfahren</translation>
    </message>
    <message>
        <source>Attenuation Correction</source>
        <translation>Schwächungskorrektur</translation>
    </message>
</context>
</TS>

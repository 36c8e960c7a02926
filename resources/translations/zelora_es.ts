<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>ff of nn</source>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>progrOpenOpening</source>
        <translation>Abriendo: </translation>
    </message>
    <message>
        <source>progress_Cancelling</source>
        <translation>Cancelando…</translation>
    </message>
    <message>
        <source>progrOpen_ExaminingFile</source>
        <translation>Examinando: </translation>
    </message>
    <message>
        <source>progrOpen_ReadingFile</source>
        <translation>Leyendo: </translation>
    </message>
    <message>
        <source>progrOpen_ParsingDicomDir</source>
        <translation>Leyendo el DICOMDIR…</translation>
    </message>
    <message>
        <source>progrOpen_RemoveEmptyTreeBranches</source>
        <translation>Quitando entradas vacías…</translation>
    </message>
    <message>
        <source>progrOpen_CollectingImageFiles</source>
        <translation>Buscando los archivos de imagen…</translation>
    </message>
    <message>
        <source>progrOpen_ProcessingFile</source>
        <translation>Comprobando %1</translation>
    </message>
    <message>
        <source>progrOpen_DicomDirFinishing</source>
        <translation>Terminando la lista de pacientes…</translation>
    </message>
    <message>
        <source>progrOpen_CopyingFile</source>
        <translation>Copiando %1 (%2 de %3 MB)</translation>
    </message>
    <message>
        <source>Anonymized</source>
        <translation>Anonimizado</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>Choose</source>
        <translation>Elegir</translation>
    </message>
    <message>
        <source>varDir is empty.</source>
        <translation>«%1» está vacío.</translation>
    </message>
    <message>
        <source>varDir contains a DICOMDIR. Choosing this folder will create a patient list.</source>
        <translation>«%1» contiene un DICOMDIR. Al elegir esta carpeta se abre su lista de pacientes.</translation>
    </message>
    <message>
        <source>varDir does not contain a DICOMDIR.</source>
        <translation>«%1» no contiene un DICOMDIR. Al elegirla se abren las imágenes que contiene.</translation>
    </message>
    <message>
        <source>Last check</source>
        <translation>Última búsqueda:</translation>
    </message>
    <message>
        <source>Last check never</source>
        <translation>Nunca se han buscado actualizaciones.</translation>
    </message>
    <message>
        <source>1 frame</source>
        <translation>1 imagen</translation>
    </message>
    <message>
        <source>N frames</source>
        <translation>%1 imágenes</translation>
    </message>
    <message>
        <source>Extracted Localizer</source>
        <translation>Localizador extraído</translation>
    </message>
    <message>
        <source>Extracted Localizers</source>
        <translation>%1 localizadores extraídos</translation>
    </message>
    <message>
        <source>%@, %dx%d pixels</source>
        <translation>%1, %2x%3 píxeles</translation>
    </message>
    <message>
        <source>%@, ... pixels</source>
        <translation>%1, ... píxeles</translation>
    </message>
    <message>
        <source>... frames, ... pixels</source>
        <translation>... imágenes, ... píxeles</translation>
    </message>
    <message>
        <source>%.2f sec</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>%.2f sec, %dx%d pixels</source>
        <translation>%1 s, %2x%3 píxeles</translation>
    </message>
    <message>
        <source>... sec</source>
        <translation>... s</translation>
    </message>
    <message>
        <source>... sec, ... pixels</source>
        <translation>... s, ... píxeles</translation>
    </message>
    <message>
        <source>%@, %d x %d pixels</source>
        <translation>%1, %2 x %3 píxeles</translation>
    </message>
    <message>
        <source>%d x %d pixels</source>
        <translation>%1 x %2 píxeles</translation>
    </message>
    <message>
        <source>... pixels</source>
        <translation>... píxeles</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>Sin título</translation>
    </message>
    <message>
        <source>Patient Browser</source>
        <translation>Lista de pacientes</translation>
    </message>
    <message>
        <source>Info Pane</source>
        <translation>Información</translation>
    </message>
    <message>
        <source>Show Info</source>
        <translation>Mostrar información</translation>
    </message>
    <message>
        <source>Hide Info</source>
        <translation>Ocultar información</translation>
    </message>
</context>
<context>
    <name>ZELErrors</name>
    <message>
        <source>FileCannotBeOpened</source>
        <translation>No se puede abrir «%1».</translation>
    </message>
    <message>
        <source>NoDICOMFilesFound</source>
        <translation>No se han encontrado imágenes DICOM en «%1».</translation>
    </message>
    <message>
        <source>DICOMDIRNoImagesFound</source>
        <translation>El DICOMDIR de «%1» no lleva a ninguna imagen.</translation>
    </message>
    <message>
        <source>NoDICOMDIRImagesFound</source>
        <translation>No se ha encontrado ninguno de los archivos que enumera el DICOMDIR. Para buscar imágenes en la propia carpeta, ábrala con «Ignorar DICOMDIR».</translation>
    </message>
    <message>
        <source>RecentDocError</source>
        <translation>No se puede abrir «%1».</translation>
    </message>
    <message>
        <source>RecentWillBeDeleted</source>
        <translation>Puede que se haya movido o eliminado. Su entrada se quitará del menú Abrir recientes.</translation>
    </message>
    <message>
        <source>BadImage</source>
        <translation>El archivo no contiene una imagen válida.</translation>
    </message>
    <message>
        <source>ResetToWWWLDefaults</source>
        <translation>¿Restablecer los ajustes de ventana predeterminados?</translation>
    </message>
    <message>
        <source>ResetToWWWLExplain</source>
        <translation>Se perderán los ajustes que haya añadido o cambiado.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Restablecer</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>MenuItems</name>
    <message>
        <source>Clear Menu</source>
        <translation>Vaciar lista</translation>
    </message>
    <message>
        <source>Region # title</source>
        <translation>Región %1: %2</translation>
    </message>
    <message>
        <source>Region #</source>
        <translation>Región %1</translation>
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
        <translation>Tejido</translation>
    </message>
    <message>
        <source>Color Flow</source>
        <translation>Doppler color</translation>
    </message>
    <message>
        <source>PW Spectral Doppler</source>
        <translation>Doppler espectral pulsado</translation>
    </message>
    <message>
        <source>CW Spectral Doppler</source>
        <translation>Doppler espectral continuo</translation>
    </message>
    <message>
        <source>Doppler Mean Trace</source>
        <translation>Curva Doppler media</translation>
    </message>
    <message>
        <source>Doppler Mode Trace</source>
        <translation>Curva Doppler modal</translation>
    </message>
    <message>
        <source>Doppler Max Trace</source>
        <translation>Curva Doppler máxima</translation>
    </message>
    <message>
        <source>Volume Trace</source>
        <translation>Curva de volumen</translation>
    </message>
    <message>
        <source>d(volume)/dt Trace</source>
        <translation>Curva d(volumen)/dt</translation>
    </message>
    <message>
        <source>ECG Trace</source>
        <translation>Curva de ECG</translation>
    </message>
    <message>
        <source>Pulse Trace</source>
        <translation>Curva de pulso</translation>
    </message>
    <message>
        <source>Phonocardiogram Trace</source>
        <translation>Curva de fonocardiograma</translation>
    </message>
    <message>
        <source>Gray bar</source>
        <translation>Barra de grises</translation>
    </message>
    <message>
        <source>Color bar</source>
        <translation>Barra de colores</translation>
    </message>
    <message>
        <source>Integrated Backscatter</source>
        <translation>Retrodispersión integrada</translation>
    </message>
    <message>
        <source>Area Trace</source>
        <translation>Curva de área</translation>
    </message>
    <message>
        <source>d(area)/dt</source>
        <translation>d(área)/dt</translation>
    </message>
    <message>
        <source>Other Physiological input</source>
        <translation>Otra señal fisiológica</translation>
    </message>
    <message>
        <source>Series Grid</source>
        <translation>Cuadrícula de series</translation>
    </message>
    <message>
        <source>Single</source>
        <translation>Única</translation>
    </message>
    <message>
        <source>2 rows</source>
        <translation>2 filas</translation>
    </message>
    <message>
        <source>2 columns</source>
        <translation>2 columnas</translation>
    </message>
    <message>
        <source>1 top, 2 bottom</source>
        <translation>1 arriba, 2 abajo</translation>
    </message>
    <message>
        <source>2 top, 1 bottom</source>
        <translation>2 arriba, 1 abajo</translation>
    </message>
    <message>
        <source>1 left, 2 right</source>
        <translation>1 a la izquierda, 2 a la derecha</translation>
    </message>
    <message>
        <source>2 left, 1 right</source>
        <translation>2 a la izquierda, 1 a la derecha</translation>
    </message>
    <message>
        <source>3 rows</source>
        <translation>3 filas</translation>
    </message>
    <message>
        <source>3 columns</source>
        <translation>3 columnas</translation>
    </message>
    <message>
        <source>1 top, 3 bottom</source>
        <translation>1 arriba, 3 abajo</translation>
    </message>
    <message>
        <source>3 top, 1 bottom</source>
        <translation>3 arriba, 1 abajo</translation>
    </message>
    <message>
        <source>1 left, 3 right</source>
        <translation>1 a la izquierda, 3 a la derecha</translation>
    </message>
    <message>
        <source>3 left, 1 right</source>
        <translation>3 a la izquierda, 1 a la derecha</translation>
    </message>
    <message>
        <source>2 top, 2 bottom</source>
        <translation>2 arriba, 2 abajo</translation>
    </message>
    <message>
        <source>2 left, 2 right</source>
        <translation>2 a la izquierda, 2 a la derecha</translation>
    </message>
    <message>
        <source>4 rows</source>
        <translation>4 filas</translation>
    </message>
    <message>
        <source>4 columns</source>
        <translation>4 columnas</translation>
    </message>
    <message>
        <source>Image Grid</source>
        <translation>Cuadrícula de imágenes</translation>
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
        <translation>Otra…</translation>
    </message>
    <message>
        <source>Previous Sequence</source>
        <translation>Secuencia anterior</translation>
    </message>
    <message>
        <source>Next Sequence</source>
        <translation>Secuencia siguiente</translation>
    </message>
    <message>
        <source>Mark Sequence</source>
        <translation>Marcar secuencia</translation>
    </message>
    <message>
        <source>Unmark Sequence</source>
        <translation>Desmarcar secuencia</translation>
    </message>
    <message>
        <source>Go</source>
        <translation>Ir a</translation>
    </message>
    <message>
        <source>First Frame</source>
        <translation>Primera imagen</translation>
    </message>
    <message>
        <source>Previous Frame</source>
        <translation>Imagen anterior</translation>
    </message>
    <message>
        <source>Next Frame</source>
        <translation>Imagen siguiente</translation>
    </message>
    <message>
        <source>Last Frame</source>
        <translation>Última imagen</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Enlarge</source>
        <translation>Ampliar</translation>
    </message>
    <message>
        <source>Reduce</source>
        <translation>Reducir</translation>
    </message>
    <message>
        <source>Normal Size</source>
        <translation>Tamaño real</translation>
    </message>
    <message>
        <source>Fit in Window</source>
        <translation>Ajustar a la ventana</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>Orientación</translation>
    </message>
    <message>
        <source>Flip Horizontal</source>
        <translation>Voltear horizontalmente</translation>
    </message>
    <message>
        <source>Flip Vertical</source>
        <translation>Voltear verticalmente</translation>
    </message>
    <message>
        <source>Rotate Left</source>
        <translation>Girar a la izquierda</translation>
    </message>
    <message>
        <source>Rotate Right</source>
        <translation>Girar a la derecha</translation>
    </message>
    <message>
        <source>Invert</source>
        <translation>Invertir</translation>
    </message>
    <message>
        <source>Show Demographics</source>
        <translation>Mostrar textos</translation>
    </message>
    <message>
        <source>Hide Demographics</source>
        <translation>Ocultar textos</translation>
    </message>
    <message>
        <source>Show Scale</source>
        <translation>Mostrar escala</translation>
    </message>
    <message>
        <source>Hide Scale</source>
        <translation>Ocultar escala</translation>
    </message>
    <message>
        <source>Show Overlays</source>
        <translation>Mostrar overlays</translation>
    </message>
    <message>
        <source>Hide Overlays</source>
        <translation>Ocultar overlays</translation>
    </message>
    <message>
        <source>Show Measurements</source>
        <translation>Mostrar mediciones</translation>
    </message>
    <message>
        <source>Hide Measurements</source>
        <translation>Ocultar mediciones</translation>
    </message>
    <message>
        <source>Show US Regions</source>
        <translation>Mostrar regiones de US</translation>
    </message>
    <message>
        <source>Hide US Regions</source>
        <translation>Ocultar regiones de US</translation>
    </message>
    <message>
        <source>Play Cine</source>
        <translation>Reproducir cine</translation>
    </message>
    <message>
        <source>Stop Cine</source>
        <translation>Detener cine</translation>
    </message>
    <message>
        <source>Play All</source>
        <translation>Reproducir todo</translation>
    </message>
    <message>
        <source>Stop All</source>
        <translation>Detener todo</translation>
    </message>
    <message>
        <source>Reveal in Finder</source>
        <translation>Mostrar en el gestor de archivos</translation>
    </message>
    <message>
        <source>Stroke On</source>
        <translation>Con contorno</translation>
    </message>
    <message>
        <source>Stroke Off</source>
        <translation>Sin contorno</translation>
    </message>
    <message>
        <source>Fill On</source>
        <translation>Con relleno</translation>
    </message>
    <message>
        <source>Fill Off</source>
        <translation>Sin relleno</translation>
    </message>
    <message>
        <source>Show Label</source>
        <translation>Mostrar etiqueta</translation>
    </message>
    <message>
        <source>Hide Label</source>
        <translation>Ocultar etiqueta</translation>
    </message>
    <message>
        <source>Shadow On</source>
        <translation>Con sombra</translation>
    </message>
    <message>
        <source>Shadow Off</source>
        <translation>Sin sombra</translation>
    </message>
    <message>
        <source>Bring to Front</source>
        <translation>Traer al frente</translation>
    </message>
    <message>
        <source>Move Forward</source>
        <translation>Adelantar</translation>
    </message>
    <message>
        <source>Move Backwards</source>
        <translation>Retroceder</translation>
    </message>
    <message>
        <source>Send to Back</source>
        <translation>Enviar al fondo</translation>
    </message>
    <message>
        <source>Propagate Measurement</source>
        <translation>Propagar medición</translation>
    </message>
    <message>
        <source>Delete Measurement</source>
        <translation>Eliminar medición</translation>
    </message>
    <message>
        <source>Delete All Measurements</source>
        <translation>Eliminar todas las mediciones</translation>
    </message>
    <message>
        <source>Meas Contextual</source>
        <translation>Medición</translation>
    </message>
    <message>
        <source>Grid Contextual</source>
        <translation>Cuadrícula</translation>
    </message>
    <message>
        <source>Table #</source>
        <translation>Tabla %1</translation>
    </message>
    <message>
        <source>ww_bw</source>
        <translation>A</translation>
    </message>
    <message>
        <source>wc_bw</source>
        <translation>C</translation>
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
        <translation>Ancho de ventana</translation>
    </message>
    <message>
        <source>Image window level</source>
        <translation>Centro de ventana</translation>
    </message>
    <message>
        <source>Image brightness</source>
        <translation>Brillo</translation>
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
        <translation>Sin nombre</translation>
    </message>
    <message>
        <source>Make Preset</source>
        <translation>Crear ajuste</translation>
    </message>
    <message>
        <source>Edit Presets</source>
        <translation>Editar ajustes</translation>
    </message>
    <message>
        <source>Adjust...</source>
        <translation>Ajustar…</translation>
    </message>
    <message>
        <source>Adjust</source>
        <translation>Ajustar</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vista previa</translation>
    </message>
    <message>
        <source>Window Width</source>
        <translation>Ancho de ventana</translation>
    </message>
    <message>
        <source>Window Level</source>
        <translation>Centro de ventana</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Brillo</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>Contraste</translation>
    </message>
    <message>
        <source>WWWLValuesExplain</source>
        <translation>De %1 a %2</translation>
    </message>
    <message>
        <source>BCValuesExplain</source>
        <translation>De %1 a %2</translation>
    </message>
    <message>
        <source>Frame</source>
        <translation>Imagen</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Ventana</translation>
    </message>
    <message>
        <source>Rows</source>
        <translation>Filas</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>Columnas</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Archivo</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Edición</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ver</translation>
    </message>
    <message>
        <source>&amp;Image</source>
        <translation>&amp;Imagen</translation>
    </message>
    <message>
        <source>&amp;Sequence</source>
        <translation>&amp;Secuencia</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>&amp;Herramientas</translation>
    </message>
    <message>
        <source>&amp;Cine</source>
        <translation>&amp;Cine</translation>
    </message>
    <message>
        <source>&amp;Window</source>
        <translation>Ve&amp;ntana</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>A&amp;yuda</translation>
    </message>
    <message>
        <source>Open...</source>
        <translation>Abrir…</translation>
    </message>
    <message>
        <source>Open Recent</source>
        <translation>Abrir recientes</translation>
    </message>
    <message>
        <source>Export...</source>
        <translation>Exportar…</translation>
    </message>
    <message>
        <source>Export Metadata...</source>
        <translation>Exportar metadatos…</translation>
    </message>
    <message>
        <source>Anonymize...</source>
        <translation>Anonimizar…</translation>
    </message>
    <message>
        <source>Print...</source>
        <translation>Imprimir…</translation>
    </message>
    <message>
        <source>Close Window</source>
        <translation>Cerrar ventana</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Salir</translation>
    </message>
    <message>
        <source>Enter Full Screen</source>
        <translation>Pantalla completa</translation>
    </message>
    <message>
        <source>Exit Full Screen</source>
        <translation>Salir de pantalla completa</translation>
    </message>
    <message>
        <source>Show Toolbar</source>
        <translation>Mostrar barra de herramientas</translation>
    </message>
    <message>
        <source>Hide Toolbar</source>
        <translation>Ocultar barra de herramientas</translation>
    </message>
    <message>
        <source>Toolbar</source>
        <translation>Barra de herramientas</translation>
    </message>
    <message>
        <source>Show Patient List</source>
        <translation>Mostrar lista de pacientes</translation>
    </message>
    <message>
        <source>Hide Patient List</source>
        <translation>Ocultar lista de pacientes</translation>
    </message>
    <message>
        <source>Show Study Info</source>
        <translation>Mostrar información del estudio</translation>
    </message>
    <message>
        <source>Hide Study Info</source>
        <translation>Ocultar información del estudio</translation>
    </message>
    <message>
        <source>Show Secondary Toolbar</source>
        <translation>Mostrar segunda barra de herramientas</translation>
    </message>
    <message>
        <source>Hide Secondary Toolbar</source>
        <translation>Ocultar segunda barra de herramientas</translation>
    </message>
    <message>
        <source>Show Measurement Pane</source>
        <translation>Mostrar panel de mediciones</translation>
    </message>
    <message>
        <source>Hide Measurement Pane</source>
        <translation>Ocultar panel de mediciones</translation>
    </message>
    <message>
        <source>Show Metadata Palette</source>
        <translation>Mostrar paleta de metadatos</translation>
    </message>
    <message>
        <source>Hide Metadata Palette</source>
        <translation>Ocultar paleta de metadatos</translation>
    </message>
    <message>
        <source>Mark Current Sequence</source>
        <translation>Marcar secuencia actual</translation>
    </message>
    <message>
        <source>Unmark Current Sequence</source>
        <translation>Desmarcar secuencia actual</translation>
    </message>
    <message>
        <source>Mark All</source>
        <translation>Marcar todo</translation>
    </message>
    <message>
        <source>Unmark All</source>
        <translation>Desmarcar todo</translation>
    </message>
    <message>
        <source>Toggle Marked</source>
        <translation>Invertir marcas</translation>
    </message>
    <message>
        <source>Mark Selected</source>
        <translation>Marcar selección</translation>
    </message>
    <message>
        <source>Unmark Selected</source>
        <translation>Desmarcar selección</translation>
    </message>
    <message>
        <source>Toggle Marked in Selection</source>
        <translation>Invertir marcas de la selección</translation>
    </message>
    <message>
        <source>Reset All</source>
        <translation>Restablecer todo</translation>
    </message>
    <message>
        <source>Reset Colors</source>
        <translation>Restablecer colores</translation>
    </message>
    <message>
        <source>Reset Orientation</source>
        <translation>Restablecer orientación</translation>
    </message>
    <message>
        <source>Reset Position</source>
        <translation>Restablecer posición</translation>
    </message>
    <message>
        <source>Reset Measurements</source>
        <translation>Restablecer mediciones</translation>
    </message>
    <message>
        <source>Original Window</source>
        <translation>Ventana original</translation>
    </message>
    <message>
        <source>No Color Table</source>
        <translation>Sin tabla de colores</translation>
    </message>
    <message>
        <source>Color Table</source>
        <translation>Tabla de colores</translation>
    </message>
    <message>
        <source>Window Presets</source>
        <translation>Ajustes de ventana</translation>
    </message>
    <message>
        <source>Show Reference Lines</source>
        <translation>Mostrar líneas de referencia</translation>
    </message>
    <message>
        <source>Hide Reference Lines</source>
        <translation>Ocultar líneas de referencia</translation>
    </message>
    <message>
        <source>Reference Lines</source>
        <translation>Líneas de referencia</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Seleccionar todo</translation>
    </message>
    <message>
        <source>Whole Image</source>
        <translation>Imagen completa</translation>
    </message>
    <message>
        <source>User Selection</source>
        <translation>Selección del usuario</translation>
    </message>
    <message>
        <source>Propagate Crop</source>
        <translation>Propagar recorte</translation>
    </message>
    <message>
        <source>Clear Crop in All Series</source>
        <translation>Quitar recorte de todas las series</translation>
    </message>
    <message>
        <source>No regions found</source>
        <translation>No se han encontrado regiones</translation>
    </message>
    <message>
        <source>Crop</source>
        <translation>Recorte</translation>
    </message>
    <message>
        <source>Loop</source>
        <translation>En bucle</translation>
    </message>
    <message>
        <source>Sweep</source>
        <translation>Ida y vuelta</translation>
    </message>
    <message>
        <source>Play Automatically</source>
        <translation>Reproducir automáticamente</translation>
    </message>
    <message>
        <source>Play Next Series</source>
        <translation>Reproducir serie siguiente</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Seleccionar</translation>
    </message>
    <message>
        <source>Zoom Tool</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Pan</source>
        <translation>Desplazar</translation>
    </message>
    <message>
        <source>Window and Level</source>
        <translation>Ventana y nivel</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Línea</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>Ángulo</translation>
    </message>
    <message>
        <source>Rectangle</source>
        <translation>Rectángulo</translation>
    </message>
    <message>
        <source>Ellipse</source>
        <translation>Elipse</translation>
    </message>
    <message>
        <source>Polygon</source>
        <translation>Polígono</translation>
    </message>
    <message>
        <source>Arrow</source>
        <translation>Flecha</translation>
    </message>
    <message>
        <source>Calibration Line</source>
        <translation>Línea de calibración</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texto</translation>
    </message>
    <message>
        <source>Eyedropper</source>
        <translation>Cuentagotas</translation>
    </message>
    <message>
        <source>Apply To</source>
        <translation>Aplicar a</translation>
    </message>
    <message>
        <source>Current Frame</source>
        <translation>Imagen actual</translation>
    </message>
    <message>
        <source>All Frames of the Sequence</source>
        <translation>Todas las imágenes de la secuencia</translation>
    </message>
    <message>
        <source>Demographics</source>
        <translation>Textos</translation>
    </message>
    <message>
        <source>Overlays</source>
        <translation>Overlays</translation>
    </message>
    <message>
        <source>Measure</source>
        <translation>Medir</translation>
    </message>
    <message>
        <source>Preferences...</source>
        <translation>Preferencias…</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Minimizar</translation>
    </message>
    <message>
        <source>Windows</source>
        <translation>Ventanas</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ayuda</translation>
    </message>
    <message>
        <source>Acknowledgments</source>
        <translation>Agradecimientos</translation>
    </message>
    <message>
        <source>First Aid...</source>
        <translation>Primeros auxilios…</translation>
    </message>
    <message>
        <source>Check for Updates...</source>
        <translation>Buscar actualizaciones…</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Acerca de productNameXX</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>Sin título</translation>
    </message>
    <message>
        <source>Reveal Selected in Finder</source>
        <translation>Mostrar selección en el gestor de archivos</translation>
    </message>
    <message>
        <source>Mark</source>
        <translation>Marcar</translation>
    </message>
    <message>
        <source>Text Only</source>
        <translation>Solo texto</translation>
    </message>
    <message>
        <source>Icon Only</source>
        <translation>Solo imágenes</translation>
    </message>
    <message>
        <source>Thumbnail Size</source>
        <translation>Tamaño de las miniaturas</translation>
    </message>
    <message>
        <source>Customize Toolbar...</source>
        <translation>Personalizar la barra de herramientas…</translation>
    </message>
    <message>
        <source>Customize Toolbar</source>
        <translation>Personalizar la barra de herramientas</translation>
    </message>
    <message>
        <source>Available Items</source>
        <translation>Elementos disponibles</translation>
    </message>
    <message>
        <source>Add Item</source>
        <translation>Añadir</translation>
    </message>
    <message>
        <source>Remove Item</source>
        <translation>Quitar</translation>
    </message>
    <message>
        <source>Move Item Up</source>
        <translation>Subir</translation>
    </message>
    <message>
        <source>Move Item Down</source>
        <translation>Bajar</translation>
    </message>
    <message>
        <source>Restore Default Items</source>
        <translation>Restaurar los predeterminados</translation>
    </message>
    <message>
        <source>Previous and Next Series</source>
        <translation>Serie anterior y siguiente</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Herramientas</translation>
    </message>
    <message>
        <source>Rotate and Flip</source>
        <translation>Girar y voltear</translation>
    </message>
    <message>
        <source>Separator</source>
        <translation>Separador</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Espacio</translation>
    </message>
    <message>
        <source>Flexible Space</source>
        <translation>Espacio flexible</translation>
    </message>
</context>
<context>
    <name>Measurements</name>
    <message>
        <source>kGlobalMeasPrefix</source>
        <translation>Todas las imágenes: </translation>
    </message>
    <message>
        <source>kMeasDisplayTitle</source>
        <translation>%1%2: %3</translation>
    </message>
    <message>
        <source>kRegionUnitStr_none</source>
        <translation>ninguna</translation>
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
        <translation>n. d.</translation>
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
        <translation>Espectral</translation>
    </message>
    <message>
        <source>kRegionFormat_WaveForm</source>
        <translation>Curva</translation>
    </message>
    <message>
        <source>kRegionFormat_graphics</source>
        <translation>Gráficos</translation>
    </message>
    <message>
        <source>kRegionFormat_none</source>
        <translation>Región</translation>
    </message>
</context>
<context>
    <name>VendorStrings_zel</name>
    <message>
        <source>HelpFileName</source>
        <translation>Ayuda de Zelora Viewer.pdf</translation>
    </message>
    <message>
        <source>MenuProductName</source>
        <translation>Zelora Viewer</translation>
    </message>
    <message>
        <source>AboutText</source>
        <translation>Un visor de imágenes DICOM. No es un producto sanitario: no base un diagnóstico solo en él.</translation>
    </message>
    <message>
        <source>Program Crash Report</source>
        <translation>Informe de fallo de Zelora Viewer %1</translation>
    </message>
</context>
<context>
    <name>Preferences</name>
    <message>
        <source>Panes</source>
        <translation>Paneles</translation>
    </message>
    <message>
        <source>Pane tip</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>General</source>
        <translation>General</translation>
    </message>
    <message>
        <source>General title</source>
        <translation>Preferencias generales</translation>
    </message>
    <message>
        <source>DICOM</source>
        <translation>DICOM</translation>
    </message>
    <message>
        <source>DICOM title</source>
        <translation>Preferencias DICOM</translation>
    </message>
    <message>
        <source>Presets</source>
        <translation>Ajustes</translation>
    </message>
    <message>
        <source>Presets title</source>
        <translation>Ajustes de ventana</translation>
    </message>
    <message>
        <source>Presets title tip</source>
        <translation>Haga doble clic en un valor para cambiarlo; arrastre una fila para moverla</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>Actualizaciones</translation>
    </message>
    <message>
        <source>Updates title</source>
        <translation>Actualizaciones de software</translation>
    </message>
    <message>
        <source>Windows</source>
        <translation>Ventanas</translation>
    </message>
    <message>
        <source>First layout</source>
        <translation>Primera disposición</translation>
    </message>
    <message>
        <source>First layout tip</source>
        <translation>Cómo se divide una ventana entre las series al abrirse</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automática</translation>
    </message>
    <message>
        <source>Opening</source>
        <translation>Apertura</translation>
    </message>
    <message>
        <source>Scan subfolders</source>
        <translation>Buscar en subcarpetas</translation>
    </message>
    <message>
        <source>Scan subfolders tip</source>
        <translation>Abre también lo que hay en las carpetas de una carpeta</translation>
    </message>
    <message>
        <source>Ignore DICOMDIR</source>
        <translation>Ignorar archivos DICOMDIR</translation>
    </message>
    <message>
        <source>Ignore DICOMDIR tip</source>
        <translation>Lee las propias imágenes de una carpeta, aunque tenga una lista de ellas</translation>
    </message>
    <message>
        <source>Open discs</source>
        <translation>Abrir discos al insertarlos</translation>
    </message>
    <message>
        <source>Open discs tip</source>
        <translation>Abre un disco con DICOMDIR en cuanto está disponible</translation>
    </message>
    <message>
        <source>Copy from discs</source>
        <translation>Copiar imágenes de los discos antes de mostrarlas</translation>
    </message>
    <message>
        <source>Copy from discs tip</source>
        <translation>Así el disco se puede retirar y pasar imágenes es más rápido</translation>
    </message>
    <message>
        <source>Copy from servers</source>
        <translation>Tratar servidores como discos lentos</translation>
    </message>
    <message>
        <source>Copy from servers tip</source>
        <translation>Copia también imágenes de volúmenes de red</translation>
    </message>
    <message>
        <source>Open US and XA large</source>
        <translation>Abrir US y XA con una serie</translation>
    </message>
    <message>
        <source>Open US and XA large tip</source>
        <translation>La ecografía y la angiografía abren una serie en toda la ventana</translation>
    </message>
    <message>
        <source>Traverse marked</source>
        <translation>Pasar solo a series marcadas</translation>
    </message>
    <message>
        <source>Traverse marked tip</source>
        <translation>Cuando el cine recorre todas las series, se omiten las que no tienen marca</translation>
    </message>
    <message>
        <source>Text and grids</source>
        <translation>Texto y cuadrículas</translation>
    </message>
    <message>
        <source>Text color</source>
        <translation>Texto sobre las imágenes</translation>
    </message>
    <message>
        <source>Text color tip</source>
        <translation>Color del texto sobre las imágenes</translation>
    </message>
    <message>
        <source>Active cell color</source>
        <translation>Imagen activa</translation>
    </message>
    <message>
        <source>Active cell color tip</source>
        <translation>Color del marco de la imagen activa</translation>
    </message>
    <message>
        <source>Text font</source>
        <translation>Fuente del texto</translation>
    </message>
    <message>
        <source>Choose font</source>
        <translation>Elegir…</translation>
    </message>
    <message>
        <source>Choose font tip</source>
        <translation>Fuente y tamaño del texto sobre las imágenes</translation>
    </message>
    <message>
        <source>Font sample</source>
        <translation>%1 puntos %2</translation>
    </message>
    <message>
        <source>Measurements</source>
        <translation>Mediciones</translation>
    </message>
    <message>
        <source>Outline color</source>
        <translation>Contorno</translation>
    </message>
    <message>
        <source>Outline color tip</source>
        <translation>Color del contorno de las mediciones nuevas</translation>
    </message>
    <message>
        <source>Fill color</source>
        <translation>Relleno</translation>
    </message>
    <message>
        <source>Fill color tip</source>
        <translation>Color del interior de las mediciones nuevas</translation>
    </message>
    <message>
        <source>Images</source>
        <translation>Imágenes</translation>
    </message>
    <message>
        <source>Merge US</source>
        <translation>Unir imágenes sueltas de ecografía de una serie</translation>
    </message>
    <message>
        <source>Merge US tip</source>
        <translation>A partir de la próxima apertura</translation>
    </message>
    <message>
        <source>Merge XA</source>
        <translation>Unir imágenes sueltas de angiografía de una serie</translation>
    </message>
    <message>
        <source>Merge XA tip</source>
        <translation>A partir de la próxima apertura</translation>
    </message>
    <message>
        <source>Decode character sets</source>
        <translation>Leer el texto según su juego de caracteres</translation>
    </message>
    <message>
        <source>Decode character sets tip</source>
        <translation>Desactivado: texto como lo leen programas antiguos; a partir de la próxima apertura</translation>
    </message>
    <message>
        <source>Enhance contrast</source>
        <translation>Limitar la ventana a los valores de la imagen</translation>
    </message>
    <message>
        <source>Enhance contrast tip</source>
        <translation>Desactivado: ventana solo según la fórmula del estándar</translation>
    </message>
    <message>
        <source>Localizers</source>
        <translation>Localizadores</translation>
    </message>
    <message>
        <source>First and last localizers</source>
        <translation>Mostrar la primera y la última línea</translation>
    </message>
    <message>
        <source>First and last localizers tip</source>
        <translation>Además de la línea de la imagen mostrada, dónde empieza y acaba la serie en otras cuadrículas</translation>
    </message>
    <message>
        <source>Separate localizers</source>
        <translation>Mantener los localizadores aparte</translation>
    </message>
    <message>
        <source>Separate localizers tip</source>
        <translation>Los localizadores reciben una secuencia propia; a partir de la próxima apertura</translation>
    </message>
    <message>
        <source>Colors over images</source>
        <translation>Colores sobre las imágenes</translation>
    </message>
    <message>
        <source>Overlay color</source>
        <translation>Overlays</translation>
    </message>
    <message>
        <source>Overlay color tip</source>
        <translation>Color de los overlays que trae el archivo</translation>
    </message>
    <message>
        <source>US region color</source>
        <translation>Regiones de ecografía</translation>
    </message>
    <message>
        <source>US region color tip</source>
        <translation>Color de los marcos de las regiones de ecografía</translation>
    </message>
    <message>
        <source>Localizer color</source>
        <translation>Líneas de referencia</translation>
    </message>
    <message>
        <source>Localizer color tip</source>
        <translation>Color de las líneas de referencia</translation>
    </message>
    <message>
        <source>Cine</source>
        <translation>Cine</translation>
    </message>
    <message>
        <source>Cine autoplay</source>
        <translation>Reproducir enseguida</translation>
    </message>
    <message>
        <source>Cine autoplay tip</source>
        <translation>El cine empieza cuando aparece una serie que suele reproducirse</translation>
    </message>
    <message>
        <source>Enforce speed</source>
        <translation>La misma velocidad para todas</translation>
    </message>
    <message>
        <source>Enforce speed tip</source>
        <translation>Reproduce a la velocidad predeterminada, diga lo que diga el archivo</translation>
    </message>
    <message>
        <source>Default speed</source>
        <translation>Imágenes por segundo</translation>
    </message>
    <message>
        <source>Default speed tip</source>
        <translation>4 a 60</translation>
    </message>
    <message>
        <source>presetTitle</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>presetTitle tip</source>
        <translation>Nombre en los menús</translation>
    </message>
    <message>
        <source>wcPreset</source>
        <translation>Centro</translation>
    </message>
    <message>
        <source>wcPreset tip</source>
        <translation>Centro de la ventana</translation>
    </message>
    <message>
        <source>wwPreset</source>
        <translation>Ancho</translation>
    </message>
    <message>
        <source>wwPreset tip</source>
        <translation>Ancho de la ventana, mayor que 0</translation>
    </message>
    <message>
        <source>Add preset</source>
        <translation>Añadir</translation>
    </message>
    <message>
        <source>Add preset tip</source>
        <translation>Añade un ajuste debajo del seleccionado</translation>
    </message>
    <message>
        <source>Remove preset</source>
        <translation>Quitar</translation>
    </message>
    <message>
        <source>Remove preset tip</source>
        <translation>Quita los ajustes seleccionados (Supr)</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>Subir</translation>
    </message>
    <message>
        <source>Move up tip</source>
        <translation>Sube el ajuste seleccionado (Alt+Arriba)</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>Bajar</translation>
    </message>
    <message>
        <source>Move down tip</source>
        <translation>Baja el ajuste seleccionado (Alt+Abajo)</translation>
    </message>
    <message>
        <source>Reset presets</source>
        <translation>Restablecer…</translation>
    </message>
    <message>
        <source>Reset presets tip</source>
        <translation>Recupera los ajustes que vienen con el programa</translation>
    </message>
    <message>
        <source>Check now</source>
        <translation>Buscar ahora</translation>
    </message>
    <message>
        <source>Check now tip</source>
        <translation>Busca una versión más nueva</translation>
    </message>
    <message>
        <source>No update service</source>
        <translation>Esta copia del programa no busca actualizaciones por sí misma. Las versiones nuevas llegan como llegó esta.</translation>
    </message>
</context>
<context>
    <name>FirstAid</name>
    <message>
        <source>First Aid</source>
        <translation>Primeros auxilios</translation>
    </message>
    <message>
        <source>CrashTitle</source>
        <translation>Zelora Viewer no terminó correctamente la última vez.</translation>
    </message>
    <message>
        <source>Reset all settings</source>
        <translation>Restablecer toda la configuración</translation>
    </message>
    <message>
        <source>ResetExplain</source>
        <translation>Toda la configuración vuelve a la de una instalación nueva y el programa se reinicia. Se conserva una copia de la configuración al lado.</translation>
    </message>
    <message>
        <source>Collect crash reports</source>
        <translation>Reunir informes de fallos</translation>
    </message>
    <message>
        <source>LogsExplain</source>
        <translation>Los informes de fallos se reúnen para que los lea y solo se envían con su programa de correo si está de acuerdo.</translation>
    </message>
    <message>
        <source>UserText</source>
        <translation>¿Qué hacía cuando ocurrió?</translation>
    </message>
    <message>
        <source>Remove older reports afterwards</source>
        <translation>Quitar después los informes anteriores</translation>
    </message>
    <message>
        <source>ClearLogsTip</source>
        <translation>Solo se conserva el último informe de cada tipo</translation>
    </message>
    <message>
        <source>Check for Updates</source>
        <translation>Buscar actualizaciones</translation>
    </message>
    <message>
        <source>No update service</source>
        <translation>No hay ningún servicio de actualización configurado</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Restablecer</translation>
    </message>
    <message>
        <source>Collect</source>
        <translation>Reunir</translation>
    </message>
    <message>
        <source>Review</source>
        <translation>Revisar el informe</translation>
    </message>
    <message>
        <source>ReviewExplain</source>
        <translation>Esto es todo lo que sale de este equipo. Lo que puede señalar a un paciente o a usted está resaltado: táchelo, y cualquier otra parte que seleccione.</translation>
    </message>
    <message>
        <source>Strike all marked</source>
        <translation>Tachar todo lo resaltado</translation>
    </message>
    <message>
        <source>Strike selected</source>
        <translation>Tachar la selección</translation>
    </message>
    <message>
        <source>Next marked</source>
        <translation>Siguiente resaltado</translation>
    </message>
    <message>
        <source>Send</source>
        <translation>Enviar</translation>
    </message>
    <message>
        <source>NotSent</source>
        <translation>Ningún programa de correo aceptó el informe.</translation>
    </message>
    <message>
        <source>NotSentExplain</source>
        <translation>Envíelo usted mismo a %1. Los informes están en la carpeta %2.</translation>
    </message>
</context>
<context>
    <name>Viewer</name>
    <message>
        <source>%1 (%2 of %3)</source>
        <translation>%1 (%2 de %3)</translation>
    </message>
    <message>
        <source>&amp;Ignore DICOMDIR</source>
        <translation>&amp;Ignorar DICOMDIR</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Nombre:</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Choose a file or a folder to open</source>
        <translation>Elegir un archivo o una carpeta para abrir</translation>
    </message>
    <message>
        <source>Drop files, folders or a DICOMDIR here, or choose them:</source>
        <translation>Suelte aquí archivos, carpetas o un DICOMDIR, o elíjalos:</translation>
    </message>
    <message>
        <source>Frame %1 of %2</source>
        <translation>Imagen %1 de %2</translation>
    </message>
    <message>
        <source>Frame shown, and how many there are</source>
        <translation>Imagen mostrada y cuántas hay</translation>
    </message>
    <message>
        <source>Include &amp;subfolders</source>
        <translation>Incluir &amp;subcarpetas</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Imagen</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progreso</translation>
    </message>
    <message>
        <source>Search the folder for images even if a DICOMDIR lists them</source>
        <translation>Buscar imágenes en la carpeta aunque un DICOMDIR las enumere</translation>
    </message>
    <message>
        <source>Search the folders in the chosen folder too</source>
        <translation>Buscar también en las carpetas de la carpeta elegida</translation>
    </message>
    <message>
        <source>Stop opening (Escape)</source>
        <translation>Detener la apertura (Escape)</translation>
    </message>
    <message>
        <source>There are no frames to show</source>
        <translation>No hay imágenes que mostrar</translation>
    </message>
    <message>
        <source>This frame can't be shown</source>
        <translation>No se puede mostrar esta imagen</translation>
    </message>
    <message>
        <source>What was open lately</source>
        <translation>Lo que se abrió hace poco</translation>
    </message>
    <message>
        <source>Window %1, level %2</source>
        <translation>Ventana %1, centro %2</translation>
    </message>
    <message>
        <source>Window width and level of this frame</source>
        <translation>Ancho y centro de ventana de esta imagen</translation>
    </message>
</context>
<context>
    <name>DisplayFields</name>
    <message>
        <source>Patient</source>
        <translation>Paciente</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Patient ID</source>
        <translation>ID del paciente</translation>
    </message>
    <message>
        <source>Date of Birth</source>
        <translation>Fecha de nacimiento</translation>
    </message>
    <message>
        <source>Sex</source>
        <translation>Sexo</translation>
    </message>
    <message>
        <source>Age</source>
        <translation>Edad</translation>
    </message>
    <message>
        <source>Size (m)</source>
        <translation>Talla (m)</translation>
    </message>
    <message>
        <source>Weight (kg)</source>
        <translation>Peso (kg)</translation>
    </message>
    <message>
        <source>Allergies</source>
        <translation>Alergias</translation>
    </message>
    <message>
        <source>Pregnancy Status</source>
        <translation>Embarazo</translation>
    </message>
    <message>
        <source>Comments</source>
        <translation>Comentarios</translation>
    </message>
    <message>
        <source>Study</source>
        <translation>Estudio</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Descripción</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Fecha</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Hora</translation>
    </message>
    <message>
        <source>Study ID</source>
        <translation>ID del estudio</translation>
    </message>
    <message>
        <source>Accession Number</source>
        <translation>Número de acceso</translation>
    </message>
    <message>
        <source>Referring Physician</source>
        <translation>Médico remitente</translation>
    </message>
    <message>
        <source>Reading Physician</source>
        <translation>Médico informante</translation>
    </message>
    <message>
        <source>Series</source>
        <translation>Serie</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Número</translation>
    </message>
    <message>
        <source>Modality</source>
        <translation>Modalidad</translation>
    </message>
    <message>
        <source>Protocol</source>
        <translation>Protocolo</translation>
    </message>
    <message>
        <source>Body Part</source>
        <translation>Parte del cuerpo</translation>
    </message>
    <message>
        <source>Laterality</source>
        <translation>Lateralidad</translation>
    </message>
    <message>
        <source>Patient Position</source>
        <translation>Posición del paciente</translation>
    </message>
    <message>
        <source>Performing Physician</source>
        <translation>Médico ejecutor</translation>
    </message>
    <message>
        <source>Operator</source>
        <translation>Operador</translation>
    </message>
    <message>
        <source>Equipment</source>
        <translation>Equipo</translation>
    </message>
    <message>
        <source>Institution</source>
        <translation>Institución</translation>
    </message>
    <message>
        <source>Department</source>
        <translation>Departamento</translation>
    </message>
    <message>
        <source>Station</source>
        <translation>Estación</translation>
    </message>
    <message>
        <source>Manufacturer</source>
        <translation>Fabricante</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modelo</translation>
    </message>
    <message>
        <source>Software</source>
        <translation>Software</translation>
    </message>
    <message>
        <source>Serial Number</source>
        <translation>Número de serie</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>Contraste</translation>
    </message>
    <message>
        <source>Agent</source>
        <translation>Agente</translation>
    </message>
    <message>
        <source>Route</source>
        <translation>Vía</translation>
    </message>
    <message>
        <source>Volume (ml)</source>
        <translation>Volumen (ml)</translation>
    </message>
    <message>
        <source>Flow Rate (ml/s)</source>
        <translation>Caudal (ml/s)</translation>
    </message>
    <message>
        <source>Ingredient</source>
        <translation>Ingrediente</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Imagen</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Instance Number</source>
        <translation>Número de instancia</translation>
    </message>
    <message>
        <source>Acquisition Date</source>
        <translation>Fecha de adquisición</translation>
    </message>
    <message>
        <source>Acquisition Time</source>
        <translation>Hora de adquisición</translation>
    </message>
    <message>
        <source>Content Date</source>
        <translation>Fecha del contenido</translation>
    </message>
    <message>
        <source>Content Time</source>
        <translation>Hora del contenido</translation>
    </message>
    <message>
        <source>Frames</source>
        <translation>Imágenes</translation>
    </message>
    <message>
        <source>Rows</source>
        <translation>Filas</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>Columnas</translation>
    </message>
    <message>
        <source>Bits Stored</source>
        <translation>Bits almacenados</translation>
    </message>
    <message>
        <source>Photometric Interpretation</source>
        <translation>Interpretación fotométrica</translation>
    </message>
    <message>
        <source>Pixel Spacing (mm)</source>
        <translation>Espaciado de píxeles (mm)</translation>
    </message>
    <message>
        <source>Lossy Compression</source>
        <translation>Compresión con pérdida</translation>
    </message>
    <message>
        <source>Compression Ratio</source>
        <translation>Relación de compresión</translation>
    </message>
    <message>
        <source>Window Width</source>
        <translation>Ancho de ventana</translation>
    </message>
    <message>
        <source>Window Center</source>
        <translation>Centro de ventana</translation>
    </message>
    <message>
        <source>View Position</source>
        <translation>Proyección</translation>
    </message>
    <message>
        <source>Slice</source>
        <translation>Corte</translation>
    </message>
    <message>
        <source>Slice Thickness (mm)</source>
        <translation>Grosor de corte (mm)</translation>
    </message>
    <message>
        <source>Slice Spacing (mm)</source>
        <translation>Espaciado de cortes (mm)</translation>
    </message>
    <message>
        <source>Slice Location (mm)</source>
        <translation>Posición del corte (mm)</translation>
    </message>
    <message>
        <source>Image Position (mm)</source>
        <translation>Posición de la imagen (mm)</translation>
    </message>
    <message>
        <source>Image Orientation</source>
        <translation>Orientación de la imagen</translation>
    </message>
    <message>
        <source>X-Ray</source>
        <translation>Rayos X</translation>
    </message>
    <message>
        <source>Tube Voltage (kV)</source>
        <translation>Tensión del tubo (kV)</translation>
    </message>
    <message>
        <source>Tube Current (mA)</source>
        <translation>Corriente del tubo (mA)</translation>
    </message>
    <message>
        <source>Exposure Time (ms)</source>
        <translation>Tiempo de exposición (ms)</translation>
    </message>
    <message>
        <source>Exposure (mAs)</source>
        <translation>Exposición (mAs)</translation>
    </message>
    <message>
        <source>Dose Area Product (dGy·cm²)</source>
        <translation>Producto dosis-área (dGy·cm²)</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtro</translation>
    </message>
    <message>
        <source>Focal Spot (mm)</source>
        <translation>Foco (mm)</translation>
    </message>
    <message>
        <source>Source to Detector (mm)</source>
        <translation>Distancia fuente-detector (mm)</translation>
    </message>
    <message>
        <source>Source to Patient (mm)</source>
        <translation>Distancia fuente-paciente (mm)</translation>
    </message>
    <message>
        <source>Primary Angle (°)</source>
        <translation>Ángulo primario (°)</translation>
    </message>
    <message>
        <source>Secondary Angle (°)</source>
        <translation>Ángulo secundario (°)</translation>
    </message>
    <message>
        <source>Body Part Thickness (mm)</source>
        <translation>Grosor (mm)</translation>
    </message>
    <message>
        <source>Compression Force (N)</source>
        <translation>Fuerza de compresión (N)</translation>
    </message>
    <message>
        <source>Organ Dose (dGy)</source>
        <translation>Dosis en órgano (dGy)</translation>
    </message>
    <message>
        <source>CT</source>
        <translation>TC</translation>
    </message>
    <message>
        <source>Kernel</source>
        <translation>Núcleo</translation>
    </message>
    <message>
        <source>Reconstruction Diameter (mm)</source>
        <translation>Diámetro de reconstrucción (mm)</translation>
    </message>
    <message>
        <source>Collection Diameter (mm)</source>
        <translation>Diámetro de adquisición (mm)</translation>
    </message>
    <message>
        <source>Gantry Tilt (°)</source>
        <translation>Inclinación del gantry (°)</translation>
    </message>
    <message>
        <source>Table Height (mm)</source>
        <translation>Altura de la mesa (mm)</translation>
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
        <translation>Opciones de exploración</translation>
    </message>
    <message>
        <source>Rescale Intercept</source>
        <translation>Ordenada en el origen</translation>
    </message>
    <message>
        <source>Rescale Slope</source>
        <translation>Pendiente</translation>
    </message>
    <message>
        <source>MR</source>
        <translation>RM</translation>
    </message>
    <message>
        <source>Scanning Sequence</source>
        <translation>Secuencia de exploración</translation>
    </message>
    <message>
        <source>Sequence Variant</source>
        <translation>Variante de secuencia</translation>
    </message>
    <message>
        <source>Sequence Name</source>
        <translation>Nombre de la secuencia</translation>
    </message>
    <message>
        <source>Acquisition Type</source>
        <translation>Tipo de adquisición</translation>
    </message>
    <message>
        <source>Field Strength (T)</source>
        <translation>Intensidad de campo (T)</translation>
    </message>
    <message>
        <source>Repetition Time (ms)</source>
        <translation>Tiempo de repetición (ms)</translation>
    </message>
    <message>
        <source>Echo Time (ms)</source>
        <translation>Tiempo de eco (ms)</translation>
    </message>
    <message>
        <source>Inversion Time (ms)</source>
        <translation>Tiempo de inversión (ms)</translation>
    </message>
    <message>
        <source>Flip Angle (°)</source>
        <translation>Ángulo de inclinación (°)</translation>
    </message>
    <message>
        <source>Echo Train Length</source>
        <translation>Longitud del tren de ecos</translation>
    </message>
    <message>
        <source>Averages</source>
        <translation>Promedios</translation>
    </message>
    <message>
        <source>Pixel Bandwidth (Hz)</source>
        <translation>Ancho de banda por píxel (Hz)</translation>
    </message>
    <message>
        <source>Receive Coil</source>
        <translation>Bobina receptora</translation>
    </message>
    <message>
        <source>SAR (W/kg)</source>
        <translation>SAR (W/kg)</translation>
    </message>
    <message>
        <source>Ultrasound and Cine</source>
        <translation>Ecografía y cine</translation>
    </message>
    <message>
        <source>Stage</source>
        <translation>Fase</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Vista</translation>
    </message>
    <message>
        <source>Transducer</source>
        <translation>Transductor</translation>
    </message>
    <message>
        <source>Frame Time (ms)</source>
        <translation>Tiempo por imagen (ms)</translation>
    </message>
    <message>
        <source>Cine Rate (1/s)</source>
        <translation>Velocidad de cine (1/s)</translation>
    </message>
    <message>
        <source>Display Rate (1/s)</source>
        <translation>Velocidad de presentación (1/s)</translation>
    </message>
    <message>
        <source>Heart Rate (1/min)</source>
        <translation>Frecuencia cardíaca (1/min)</translation>
    </message>
    <message>
        <source>Mechanical Index</source>
        <translation>Índice mecánico</translation>
    </message>
    <message>
        <source>Thermal Index Soft Tissue</source>
        <translation>Índice térmico tejido blando</translation>
    </message>
    <message>
        <source>Depth of Scan Field (mm)</source>
        <translation>Profundidad del campo (mm)</translation>
    </message>
    <message>
        <source>Nuclear Medicine and PET</source>
        <translation>Medicina nuclear y PET</translation>
    </message>
    <message>
        <source>Radiopharmaceutical</source>
        <translation>Radiofármaco</translation>
    </message>
    <message>
        <source>Units</source>
        <translation>Unidades</translation>
    </message>
    <message>
        <source>Decay Correction</source>
        <translation>Corrección de decaimiento</translation>
    </message>
    <message>
        <source>Counts Accumulated</source>
        <translation>Cuentas acumuladas</translation>
    </message>
    <message>
        <source>Frame Duration (ms)</source>
        <translation>Duración de la imagen (ms)</translation>
    </message>
    <message>
        <source>Reconstruction Method</source>
        <translation>Método de reconstrucción</translation>
    </message>
    <message>
        <source>Attenuation Correction</source>
        <translation>Corrección de atenuación</translation>
    </message>
</context>
</TS>

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>ff of nn</source>
        <translatorcomment>%1: number of the frame, %2: number of frames</translatorcomment>
        <translation>%1 of %2</translation>
    </message>
    <message>
        <source>progrOpenOpening</source>
        <translatorcomment>a name and three points follow</translatorcomment>
        <translation>Opening </translation>
    </message>
    <message>
        <source>progress_Cancelling</source>
        <translation>Cancelling…</translation>
    </message>
    <message>
        <source>progrOpen_ExaminingFile</source>
        <translatorcomment>a file name follows</translatorcomment>
        <translation>Examining </translation>
    </message>
    <message>
        <source>progrOpen_ReadingFile</source>
        <translatorcomment>a file name follows</translatorcomment>
        <translation>Reading </translation>
    </message>
    <message>
        <source>progrOpen_ParsingDicomDir</source>
        <translation>Reading the DICOMDIR…</translation>
    </message>
    <message>
        <source>progrOpen_RemoveEmptyTreeBranches</source>
        <translation>Removing empty entries…</translation>
    </message>
    <message>
        <source>progrOpen_CollectingImageFiles</source>
        <translation>Looking for the image files…</translation>
    </message>
    <message>
        <source>progrOpen_ProcessingFile</source>
        <translatorcomment>%1: file name</translatorcomment>
        <translation>Checking %1</translation>
    </message>
    <message>
        <source>progrOpen_DicomDirFinishing</source>
        <translation>Finishing the patient list…</translation>
    </message>
    <message>
        <source>progrOpen_CopyingFile</source>
        <translatorcomment>%1: file name, %2: MiB copied, %3: MiB in all</translatorcomment>
        <translation>Copying %1 (%2 of %3 MB)</translation>
    </message>
    <message>
        <source>Anonymized</source>
        <translatorcomment>stands for the name of a patient who has none</translatorcomment>
        <translation>Anonymized</translation>
    </message>
    <message>
        <source>Open</source>
        <translatorcomment>button of the Open dialog for a file</translatorcomment>
        <translation>Open</translation>
    </message>
    <message>
        <source>Choose</source>
        <translatorcomment>button of the Open dialog for a folder</translatorcomment>
        <translation>Choose</translation>
    </message>
    <message>
        <source>varDir is empty.</source>
        <translatorcomment>%1: folder name</translatorcomment>
        <translation>“%1” is empty.</translation>
    </message>
    <message>
        <source>varDir contains a DICOMDIR. Choosing this folder will create a patient list.</source>
        <translatorcomment>%1: folder name</translatorcomment>
        <translation>“%1” contains a DICOMDIR. Choosing this folder opens the patient list in it.</translation>
    </message>
    <message>
        <source>varDir does not contain a DICOMDIR.</source>
        <translatorcomment>%1: folder name</translatorcomment>
        <translation>“%1” does not contain a DICOMDIR. Choosing it opens the images in it.</translation>
    </message>
    <message>
        <source>1 frame</source>
        <translation>1 frame</translation>
    </message>
    <message>
        <source>N frames</source>
        <translation>%1 frames</translation>
    </message>
    <message>
        <source>Extracted Localizer</source>
        <translation>Extracted Localizer</translation>
    </message>
    <message>
        <source>Extracted Localizers</source>
        <translation>%1 Extracted Localizers</translation>
    </message>
    <message>
        <source>%@, %dx%d pixels</source>
        <translatorcomment>%1: frames or localizers, in words; then width and height</translatorcomment>
        <translation>%1, %2x%3 pixels</translation>
    </message>
    <message>
        <source>%@, ... pixels</source>
        <translatorcomment>stands until the size is known</translatorcomment>
        <translation>%1, ... pixels</translation>
    </message>
    <message>
        <source>... frames, ... pixels</source>
        <translatorcomment>stands until both are known</translatorcomment>
        <translation>... frames, ... pixels</translation>
    </message>
    <message>
        <source>%.2f sec</source>
        <translation>%1 sec</translation>
    </message>
    <message>
        <source>%.2f sec, %dx%d pixels</source>
        <translation>%1 sec, %2x%3 pixels</translation>
    </message>
    <message>
        <source>... sec</source>
        <translation>... sec</translation>
    </message>
    <message>
        <source>... sec, ... pixels</source>
        <translation>... sec, ... pixels</translation>
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
        <translation>Untitled</translation>
    </message>
    <message>
        <source>Patient Browser</source>
        <translatorcomment>accessible name of the list of patients</translatorcomment>
        <translation>Patient browser</translation>
    </message>
    <message>
        <source>Info Pane</source>
        <translatorcomment>title of the table of DICOM values</translatorcomment>
        <translation>Info</translation>
    </message>
    <message>
        <source>Show Info</source>
        <translation>Show Info</translation>
    </message>
    <message>
        <source>Hide Info</source>
        <translation>Hide Info</translation>
    </message>
</context>
<context>
    <name>ZELErrors</name>
    <message>
        <source>FileCannotBeOpened</source>
        <translatorcomment>%1: file name</translatorcomment>
        <translation>“%1” cannot be opened.</translation>
    </message>
    <message>
        <source>NoDICOMFilesFound</source>
        <translatorcomment>%1: folder name</translatorcomment>
        <translation>No DICOM images were found in “%1”.</translation>
    </message>
    <message>
        <source>DICOMDIRNoImagesFound</source>
        <translatorcomment>%1: folder name</translatorcomment>
        <translation>The DICOMDIR in “%1” leads to no images.</translation>
    </message>
    <message>
        <source>NoDICOMDIRImagesFound</source>
        <translation>None of the files that the DICOMDIR lists could be found. To search the folder itself for images, open it with “Ignore DICOMDIR” on.</translation>
    </message>
    <message>
        <source>RecentDocError</source>
        <translatorcomment>%1: file or folder name</translatorcomment>
        <translation>“%1” cannot be opened.</translation>
    </message>
    <message>
        <source>RecentWillBeDeleted</source>
        <translation>It may have been moved or deleted. Its entry will be removed from the Open Recent menu.</translation>
    </message>
    <message>
        <source>BadImage</source>
        <translation>The file does not contain a valid image.</translation>
    </message>
    <message>
        <source>ResetToWWWLDefaults</source>
        <translation>Reset the window and level presets to their defaults?</translation>
    </message>
    <message>
        <source>ResetToWWWLExplain</source>
        <translation>The presets that you have added or changed will be lost.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Reset</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
</context>
<context>
    <name>MenuItems</name>
    <message>
        <source>Clear Menu</source>
        <translation>Clear Menu</translation>
    </message>
    <message>
        <source>Region # title</source>
        <translatorcomment>%1: number, %2: kind of data</translatorcomment>
        <translation>Region %1: %2</translation>
    </message>
    <message>
        <source>Region #</source>
        <translatorcomment>%1: number</translatorcomment>
        <translation>Region %1</translation>
    </message>
    <message>
        <source>Num-title</source>
        <translatorcomment>%1: number, %2: kind of data; units follow</translatorcomment>
        <translation>%1 – %2</translation>
    </message>
    <message>
        <source>Num-only</source>
        <translatorcomment>%1: number; units follow</translatorcomment>
        <translation>%1</translation>
    </message>
    <message>
        <source>Tissue</source>
        <translation>Tissue</translation>
    </message>
    <message>
        <source>Color Flow</source>
        <translation>Color Flow</translation>
    </message>
    <message>
        <source>PW Spectral Doppler</source>
        <translation>PW Spectral Doppler</translation>
    </message>
    <message>
        <source>CW Spectral Doppler</source>
        <translation>CW Spectral Doppler</translation>
    </message>
    <message>
        <source>Doppler Mean Trace</source>
        <translation>Doppler Mean Trace</translation>
    </message>
    <message>
        <source>Doppler Mode Trace</source>
        <translation>Doppler Mode Trace</translation>
    </message>
    <message>
        <source>Doppler Max Trace</source>
        <translation>Doppler Max Trace</translation>
    </message>
    <message>
        <source>Volume Trace</source>
        <translation>Volume Trace</translation>
    </message>
    <message>
        <source>d(volume)/dt Trace</source>
        <translation>d(volume)/dt Trace</translation>
    </message>
    <message>
        <source>ECG Trace</source>
        <translation>ECG Trace</translation>
    </message>
    <message>
        <source>Pulse Trace</source>
        <translation>Pulse Trace</translation>
    </message>
    <message>
        <source>Phonocardiogram Trace</source>
        <translation>Phonocardiogram Trace</translation>
    </message>
    <message>
        <source>Gray bar</source>
        <translation>Gray Bar</translation>
    </message>
    <message>
        <source>Color bar</source>
        <translation>Color Bar</translation>
    </message>
    <message>
        <source>Integrated Backscatter</source>
        <translation>Integrated Backscatter</translation>
    </message>
    <message>
        <source>Area Trace</source>
        <translation>Area Trace</translation>
    </message>
    <message>
        <source>d(area)/dt</source>
        <translation>d(area)/dt</translation>
    </message>
    <message>
        <source>Other Physiological input</source>
        <translation>Other Physiological Input</translation>
    </message>
    <message>
        <source>Series Grid</source>
        <translatorcomment>how the window is divided among sequences</translatorcomment>
        <translation>Series Grid</translation>
    </message>
    <message>
        <source>Single</source>
        <translation>Single</translation>
    </message>
    <message>
        <source>2 rows</source>
        <translation>2 rows</translation>
    </message>
    <message>
        <source>2 columns</source>
        <translation>2 columns</translation>
    </message>
    <message>
        <source>1 top, 2 bottom</source>
        <translation>1 top, 2 bottom</translation>
    </message>
    <message>
        <source>2 top, 1 bottom</source>
        <translation>2 top, 1 bottom</translation>
    </message>
    <message>
        <source>1 left, 2 right</source>
        <translation>1 left, 2 right</translation>
    </message>
    <message>
        <source>2 left, 1 right</source>
        <translation>2 left, 1 right</translation>
    </message>
    <message>
        <source>3 rows</source>
        <translation>3 rows</translation>
    </message>
    <message>
        <source>3 columns</source>
        <translation>3 columns</translation>
    </message>
    <message>
        <source>1 top, 3 bottom</source>
        <translation>1 top, 3 bottom</translation>
    </message>
    <message>
        <source>3 top, 1 bottom</source>
        <translation>3 top, 1 bottom</translation>
    </message>
    <message>
        <source>1 left, 3 right</source>
        <translation>1 left, 3 right</translation>
    </message>
    <message>
        <source>3 left, 1 right</source>
        <translation>3 left, 1 right</translation>
    </message>
    <message>
        <source>2 top, 2 bottom</source>
        <translation>2 top, 2 bottom</translation>
    </message>
    <message>
        <source>2 left, 2 right</source>
        <translation>2 left, 2 right</translation>
    </message>
    <message>
        <source>4 rows</source>
        <translation>4 rows</translation>
    </message>
    <message>
        <source>4 columns</source>
        <translation>4 columns</translation>
    </message>
    <message>
        <source>Image Grid</source>
        <translatorcomment>rows and columns of frames, here and below</translatorcomment>
        <translation>Image Grid</translation>
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
        <translation>Other...</translation>
    </message>
    <message>
        <source>Previous Sequence</source>
        <translation>Previous Sequence</translation>
    </message>
    <message>
        <source>Next Sequence</source>
        <translation>Next Sequence</translation>
    </message>
    <message>
        <source>Mark Sequence</source>
        <translation>Mark Sequence</translation>
    </message>
    <message>
        <source>Unmark Sequence</source>
        <translation>Unmark Sequence</translation>
    </message>
    <message>
        <source>Go</source>
        <translation>Go</translation>
    </message>
    <message>
        <source>First Frame</source>
        <translation>First Frame</translation>
    </message>
    <message>
        <source>Previous Frame</source>
        <translation>Previous Frame</translation>
    </message>
    <message>
        <source>Next Frame</source>
        <translation>Next Frame</translation>
    </message>
    <message>
        <source>Last Frame</source>
        <translation>Last Frame</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Enlarge</source>
        <translation>Enlarge</translation>
    </message>
    <message>
        <source>Reduce</source>
        <translation>Reduce</translation>
    </message>
    <message>
        <source>Normal Size</source>
        <translation>Normal Size</translation>
    </message>
    <message>
        <source>Fit in Window</source>
        <translation>Fit in Window</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>Orientation</translation>
    </message>
    <message>
        <source>Flip Horizontal</source>
        <translation>Flip Horizontal</translation>
    </message>
    <message>
        <source>Flip Vertical</source>
        <translation>Flip Vertical</translation>
    </message>
    <message>
        <source>Rotate Left</source>
        <translation>Rotate Left</translation>
    </message>
    <message>
        <source>Rotate Right</source>
        <translation>Rotate Right</translation>
    </message>
    <message>
        <source>Invert</source>
        <translation>Invert</translation>
    </message>
    <message>
        <source>Show Demographics</source>
        <translation>Show Demographics</translation>
    </message>
    <message>
        <source>Hide Demographics</source>
        <translation>Hide Demographics</translation>
    </message>
    <message>
        <source>Show Scale</source>
        <translation>Show Scale</translation>
    </message>
    <message>
        <source>Hide Scale</source>
        <translation>Hide Scale</translation>
    </message>
    <message>
        <source>Show Overlays</source>
        <translation>Show Overlays</translation>
    </message>
    <message>
        <source>Hide Overlays</source>
        <translation>Hide Overlays</translation>
    </message>
    <message>
        <source>Show Measurements</source>
        <translation>Show Measurements</translation>
    </message>
    <message>
        <source>Hide Measurements</source>
        <translation>Hide Measurements</translation>
    </message>
    <message>
        <source>Show US Regions</source>
        <translation>Show US Regions</translation>
    </message>
    <message>
        <source>Hide US Regions</source>
        <translation>Hide US Regions</translation>
    </message>
    <message>
        <source>Play Cine</source>
        <translation>Play Cine</translation>
    </message>
    <message>
        <source>Stop Cine</source>
        <translation>Stop Cine</translation>
    </message>
    <message>
        <source>Play All</source>
        <translation>Play All</translation>
    </message>
    <message>
        <source>Stop All</source>
        <translation>Stop All</translation>
    </message>
    <message>
        <source>Reveal in Finder</source>
        <translatorcomment>shows the file in the desktop's program for files</translatorcomment>
        <translation>Show in File Manager</translation>
    </message>
    <message>
        <source>Stroke On</source>
        <translation>Stroke On</translation>
    </message>
    <message>
        <source>Stroke Off</source>
        <translation>Stroke Off</translation>
    </message>
    <message>
        <source>Fill On</source>
        <translation>Fill On</translation>
    </message>
    <message>
        <source>Fill Off</source>
        <translation>Fill Off</translation>
    </message>
    <message>
        <source>Show Label</source>
        <translation>Show Label</translation>
    </message>
    <message>
        <source>Hide Label</source>
        <translation>Hide Label</translation>
    </message>
    <message>
        <source>Shadow On</source>
        <translation>Shadow On</translation>
    </message>
    <message>
        <source>Shadow Off</source>
        <translation>Shadow Off</translation>
    </message>
    <message>
        <source>Bring to Front</source>
        <translation>Bring to Front</translation>
    </message>
    <message>
        <source>Move Forward</source>
        <translation>Move Forward</translation>
    </message>
    <message>
        <source>Move Backwards</source>
        <translation>Move Backwards</translation>
    </message>
    <message>
        <source>Send to Back</source>
        <translation>Send to Back</translation>
    </message>
    <message>
        <source>Propagate Measurement</source>
        <translation>Propagate Measurement</translation>
    </message>
    <message>
        <source>Delete Measurement</source>
        <translation>Delete Measurement</translation>
    </message>
    <message>
        <source>Delete All Measurements</source>
        <translation>Delete All Measurements</translation>
    </message>
    <message>
        <source>Meas Contextual</source>
        <translatorcomment>menu of a measurement, for screen readers</translatorcomment>
        <translation>Meas Contextual</translation>
    </message>
    <message>
        <source>Grid Contextual</source>
        <translatorcomment>menu of a cell, for screen readers</translatorcomment>
        <translation>Grid Contextual</translation>
    </message>
    <message>
        <source>Table #</source>
        <translatorcomment>%1: number of a look-up table of the file</translatorcomment>
        <translation>Table %1</translation>
    </message>
    <message>
        <source>ww_bw</source>
        <translatorcomment>short for window width, before a box</translatorcomment>
        <translation>W</translation>
    </message>
    <message>
        <source>wc_bw</source>
        <translatorcomment>short for window level</translatorcomment>
        <translation>L</translation>
    </message>
    <message>
        <source>brightness_bw</source>
        <translatorcomment>short for brightness</translatorcomment>
        <translation>B</translation>
    </message>
    <message>
        <source>contrast_bw</source>
        <translatorcomment>short for contrast</translatorcomment>
        <translation>C</translation>
    </message>
    <message>
        <source>Image window width</source>
        <translation>Window width</translation>
    </message>
    <message>
        <source>Image window level</source>
        <translation>Window level</translation>
    </message>
    <message>
        <source>Image brightness</source>
        <translation>Brightness</translation>
    </message>
    <message>
        <source>Image contrast</source>
        <translation>Contrast</translation>
    </message>
    <message>
        <source>Original</source>
        <translation>Original</translation>
    </message>
    <message>
        <source>Unnamed</source>
        <translation>Unnamed</translation>
    </message>
    <message>
        <source>Make Preset</source>
        <translation>Make Preset</translation>
    </message>
    <message>
        <source>Edit Presets</source>
        <translation>Edit Presets</translation>
    </message>
    <message>
        <source>Adjust...</source>
        <translation>Adjust...</translation>
    </message>
    <message>
        <source>Adjust</source>
        <translation>Adjust</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Preview</translation>
    </message>
    <message>
        <source>Window Width</source>
        <translation>Window Width</translation>
    </message>
    <message>
        <source>Window Level</source>
        <translation>Window Level</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Brightness</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>Contrast</translation>
    </message>
    <message>
        <source>WWWLValuesExplain</source>
        <translatorcomment>the limits</translatorcomment>
        <translation>From %1 to %2</translation>
    </message>
    <message>
        <source>BCValuesExplain</source>
        <translatorcomment>the limits</translatorcomment>
        <translation>From %1 to %2</translation>
    </message>
    <message>
        <source>Frame</source>
        <translation>Frame</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Window</translation>
    </message>
    <message>
        <source>Rows</source>
        <translation>Rows</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>Columns</translation>
    </message>
    <message>
        <source>Reveal Selected in Finder</source>
        <translation>Show Selected in File Manager</translation>
    </message>
    <message>
        <source>Mark</source>
        <translation>Mark</translation>
    </message>
    <message>
        <source>Mark Selected</source>
        <translation>Mark Selected</translation>
    </message>
    <message>
        <source>Unmark Selected</source>
        <translation>Unmark Selected</translation>
    </message>
    <message>
        <source>Toggle Marked in Selection</source>
        <translation>Toggle Marked in Selection</translation>
    </message>
    <message>
        <source>Mark All</source>
        <translation>Mark All</translation>
    </message>
    <message>
        <source>Unmark All</source>
        <translation>Unmark All</translation>
    </message>
    <message>
        <source>Toggle Marked</source>
        <translation>Toggle Marked</translation>
    </message>
    <message>
        <source>Text Only</source>
        <translation>Text Only</translation>
    </message>
    <message>
        <source>Icon Only</source>
        <translation>Pictures Only</translation>
    </message>
    <message>
        <source>Thumbnail Size</source>
        <translation>Thumbnail Size</translation>
    </message>
</context>
<context>
    <name>Measurements</name>
    <message>
        <source>kGlobalMeasPrefix</source>
        <translatorcomment>stands before the title of a measurement that is on every frame</translatorcomment>
        <translation>All frames: </translation>
    </message>
    <message>
        <source>kMeasDisplayTitle</source>
        <translatorcomment>%1: letter of the kind, %2: number, %3: measured value</translatorcomment>
        <translation>%1%2: %3</translation>
    </message>
    <message>
        <source>kRegionUnitStr_none</source>
        <translatorcomment>unit of a region's axis</translatorcomment>
        <translation>none</translation>
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
        <translatorcomment>unit of a measured value</translatorcomment>
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
        <translation>N/A</translation>
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
        <translation>Spectral</translation>
    </message>
    <message>
        <source>kRegionFormat_WaveForm</source>
        <translation>Waveform</translation>
    </message>
    <message>
        <source>kRegionFormat_graphics</source>
        <translation>Graphics</translation>
    </message>
    <message>
        <source>kRegionFormat_none</source>
        <translation>Region</translation>
    </message>
</context>
</TS>

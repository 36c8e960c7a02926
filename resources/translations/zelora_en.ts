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
        <source>Last check</source>
        <translation>Last check:</translation>
    </message>
    <message>
        <source>Last check never</source>
        <translation>Never looked for updates.</translation>
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
        <source>&amp;File</source>
        <translation>&amp;File</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Edit</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;View</translation>
    </message>
    <message>
        <source>&amp;Image</source>
        <translation>&amp;Image</translation>
    </message>
    <message>
        <source>&amp;Sequence</source>
        <translation>&amp;Sequence</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>&amp;Tools</translation>
    </message>
    <message>
        <source>&amp;Cine</source>
        <translation>&amp;Cine</translation>
    </message>
    <message>
        <source>&amp;Window</source>
        <translation>&amp;Window</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Help</translation>
    </message>
    <message>
        <source>Open...</source>
        <translation>Open…</translation>
    </message>
    <message>
        <source>Open Recent</source>
        <translation>Open Recent</translation>
    </message>
    <message>
        <source>Export...</source>
        <translation>Export…</translation>
    </message>
    <message>
        <source>Export Metadata...</source>
        <translation>Export Metadata…</translation>
    </message>
    <message>
        <source>Anonymize...</source>
        <translation>Anonymize…</translation>
    </message>
    <message>
        <source>Print...</source>
        <translation>Print…</translation>
    </message>
    <message>
        <source>Close Window</source>
        <translation>Close Window</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Quit</translation>
    </message>
    <message>
        <source>Enter Full Screen</source>
        <translation>Enter Full Screen</translation>
    </message>
    <message>
        <source>Exit Full Screen</source>
        <translation>Exit Full Screen</translation>
    </message>
    <message>
        <source>Show Toolbar</source>
        <translation>Show Toolbar</translation>
    </message>
    <message>
        <source>Hide Toolbar</source>
        <translation>Hide Toolbar</translation>
    </message>
    <message>
        <source>Toolbar</source>
        <translation>Toolbar</translation>
    </message>
    <message>
        <source>Show Patient List</source>
        <translation>Show Patient List</translation>
    </message>
    <message>
        <source>Hide Patient List</source>
        <translation>Hide Patient List</translation>
    </message>
    <message>
        <source>Show Study Info</source>
        <translation>Show Study Info</translation>
    </message>
    <message>
        <source>Hide Study Info</source>
        <translation>Hide Study Info</translation>
    </message>
    <message>
        <source>Show Secondary Toolbar</source>
        <translation>Show Secondary Toolbar</translation>
    </message>
    <message>
        <source>Hide Secondary Toolbar</source>
        <translation>Hide Secondary Toolbar</translation>
    </message>
    <message>
        <source>Show Measurement Pane</source>
        <translation>Show Measurement Pane</translation>
    </message>
    <message>
        <source>Hide Measurement Pane</source>
        <translation>Hide Measurement Pane</translation>
    </message>
    <message>
        <source>Show Metadata Palette</source>
        <translation>Show Metadata Palette</translation>
    </message>
    <message>
        <source>Hide Metadata Palette</source>
        <translation>Hide Metadata Palette</translation>
    </message>
    <message>
        <source>Mark Current Sequence</source>
        <translation>Mark Current Sequence</translation>
    </message>
    <message>
        <source>Unmark Current Sequence</source>
        <translation>Unmark Current Sequence</translation>
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
        <source>Reset All</source>
        <translation>Reset All</translation>
    </message>
    <message>
        <source>Reset Colors</source>
        <translation>Reset Colors</translation>
    </message>
    <message>
        <source>Reset Orientation</source>
        <translation>Reset Orientation</translation>
    </message>
    <message>
        <source>Reset Position</source>
        <translation>Reset Position</translation>
    </message>
    <message>
        <source>Reset Measurements</source>
        <translation>Reset Measurements</translation>
    </message>
    <message>
        <source>Original Window</source>
        <translation>Original Window</translation>
    </message>
    <message>
        <source>No Color Table</source>
        <translation>No Color Table</translation>
    </message>
    <message>
        <source>Color Table</source>
        <translation>Color Table</translation>
    </message>
    <message>
        <source>Window Presets</source>
        <translation>Window Presets</translation>
    </message>
    <message>
        <source>Show Reference Lines</source>
        <translation>Show Reference Lines</translation>
    </message>
    <message>
        <source>Hide Reference Lines</source>
        <translation>Hide Reference Lines</translation>
    </message>
    <message>
        <source>Reference Lines</source>
        <translation>Reference Lines</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Select All</translation>
    </message>
    <message>
        <source>Whole Image</source>
        <translation>Whole Image</translation>
    </message>
    <message>
        <source>User Selection</source>
        <translation>User Selection</translation>
    </message>
    <message>
        <source>Propagate Crop</source>
        <translation>Propagate Crop</translation>
    </message>
    <message>
        <source>Clear Crop in All Series</source>
        <translation>Clear Crop in All Series</translation>
    </message>
    <message>
        <source>No regions found</source>
        <translation>No regions found</translation>
    </message>
    <message>
        <source>Crop</source>
        <translation>Crop</translation>
    </message>
    <message>
        <source>Loop</source>
        <translation>Loop</translation>
    </message>
    <message>
        <source>Sweep</source>
        <translation>Sweep</translation>
    </message>
    <message>
        <source>Play Automatically</source>
        <translation>Play Automatically</translation>
    </message>
    <message>
        <source>Play Next Series</source>
        <translation>Play Next Series</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Select</translation>
    </message>
    <message>
        <source>Zoom Tool</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Pan</source>
        <translation>Pan</translation>
    </message>
    <message>
        <source>Window and Level</source>
        <translation>Window and Level</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Line</translation>
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
        <translation>Polygon</translation>
    </message>
    <message>
        <source>Arrow</source>
        <translation>Arrow</translation>
    </message>
    <message>
        <source>Calibration Line</source>
        <translation>Calibration Line</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Eyedropper</source>
        <translation>Eyedropper</translation>
    </message>
    <message>
        <source>Apply To</source>
        <translation>Apply To</translation>
    </message>
    <message>
        <source>Current Frame</source>
        <translation>Current Frame</translation>
    </message>
    <message>
        <source>All Frames of the Sequence</source>
        <translation>All Frames of the Sequence</translation>
    </message>
    <message>
        <source>Demographics</source>
        <translation>Demographics</translation>
    </message>
    <message>
        <source>Overlays</source>
        <translation>Overlays</translation>
    </message>
    <message>
        <source>Measure</source>
        <translation>Measure</translation>
    </message>
    <message>
        <source>Preferences...</source>
        <translation>Preferences…</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Minimize</translation>
    </message>
    <message>
        <source>Windows</source>
        <translation>Windows</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Help</translation>
    </message>
    <message>
        <source>Acknowledgments</source>
        <translation>Acknowledgments</translation>
    </message>
    <message>
        <source>First Aid...</source>
        <translation>First Aid…</translation>
    </message>
    <message>
        <source>Check for Updates...</source>
        <translation>Check for Updates…</translation>
    </message>
    <message>
        <source>About</source>
        <translation>About productNameXX</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>Untitled</translation>
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
    <message>
        <source>Customize Toolbar...</source>
        <translation>Customize Toolbar…</translation>
    </message>
    <message>
        <source>Customize Toolbar</source>
        <translation>Customize Toolbar</translation>
    </message>
    <message>
        <source>Available Items</source>
        <translation>Available Items</translation>
    </message>
    <message>
        <source>Add Item</source>
        <translation>Add</translation>
    </message>
    <message>
        <source>Remove Item</source>
        <translation>Remove</translation>
    </message>
    <message>
        <source>Move Item Up</source>
        <translation>Move Up</translation>
    </message>
    <message>
        <source>Move Item Down</source>
        <translation>Move Down</translation>
    </message>
    <message>
        <source>Restore Default Items</source>
        <translation>Restore Defaults</translation>
    </message>
    <message>
        <source>Previous and Next Series</source>
        <translation>Previous and Next Series</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Tools</translation>
    </message>
    <message>
        <source>Rotate and Flip</source>
        <translation>Rotate and Flip</translation>
    </message>
    <message>
        <source>Separator</source>
        <translation>Separator</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Space</translation>
    </message>
    <message>
        <source>Flexible Space</source>
        <translation>Flexible Space</translation>
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
<context>
    <name>VendorStrings_zel</name>
    <message>
        <source>HelpFileName</source>
        <translation>Zelora Viewer Help.pdf</translation>
    </message>
    <message>
        <source>MenuProductName</source>
        <translation>Zelora Viewer</translation>
    </message>
    <message>
        <source>AboutText</source>
        <translation>A viewer for DICOM images. It is not a medical device: do not base a diagnosis on it alone.</translation>
    </message>
    <message>
        <source>Program Crash Report</source>
        <translation>Zelora Viewer %1 crash report</translation>
    </message>
</context>
<context>
    <name>Preferences</name>
    <message>
        <source>Panes</source>
        <translation>Panes</translation>
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
        <translation>General Preferences</translation>
    </message>
    <message>
        <source>DICOM</source>
        <translation>DICOM</translation>
    </message>
    <message>
        <source>DICOM title</source>
        <translation>DICOM Preferences</translation>
    </message>
    <message>
        <source>Presets</source>
        <translation>Presets</translation>
    </message>
    <message>
        <source>Presets title</source>
        <translation>Window Presets</translation>
    </message>
    <message>
        <source>Presets title tip</source>
        <translation>Double-click a value to change it; drag a row to move it</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>Updates</translation>
    </message>
    <message>
        <source>Updates title</source>
        <translation>Software Updates</translation>
    </message>
    <message>
        <source>Windows</source>
        <translation>Windows</translation>
    </message>
    <message>
        <source>First layout</source>
        <translation>First layout</translation>
    </message>
    <message>
        <source>First layout tip</source>
        <translation>How a window is divided among series when it opens</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automatic</translation>
    </message>
    <message>
        <source>Opening</source>
        <translation>Opening</translation>
    </message>
    <message>
        <source>Scan subfolders</source>
        <translation>Look into subfolders</translation>
    </message>
    <message>
        <source>Scan subfolders tip</source>
        <translation>Also opens what lies in the folders of a folder</translation>
    </message>
    <message>
        <source>Ignore DICOMDIR</source>
        <translation>Ignore DICOMDIR files</translation>
    </message>
    <message>
        <source>Ignore DICOMDIR tip</source>
        <translation>Reads the images of a folder themselves, even if it has a list of them</translation>
    </message>
    <message>
        <source>Open discs</source>
        <translation>Open discs when inserted</translation>
    </message>
    <message>
        <source>Open discs tip</source>
        <translation>Opens a disc with a DICOMDIR as soon as it is there</translation>
    </message>
    <message>
        <source>Copy from discs</source>
        <translation>Copy images from discs before showing them</translation>
    </message>
    <message>
        <source>Copy from discs tip</source>
        <translation>The disc can then be taken out, and paging is faster</translation>
    </message>
    <message>
        <source>Copy from servers</source>
        <translation>Treat servers like slow discs</translation>
    </message>
    <message>
        <source>Copy from servers tip</source>
        <translation>Copies images from network volumes too</translation>
    </message>
    <message>
        <source>Open US and XA large</source>
        <translation>Open US and XA with one series</translation>
    </message>
    <message>
        <source>Open US and XA large tip</source>
        <translation>Ultrasound and angiography open one series over the whole window</translation>
    </message>
    <message>
        <source>Traverse marked</source>
        <translation>Go on to marked series only</translation>
    </message>
    <message>
        <source>Traverse marked tip</source>
        <translation>When cine goes through all series, those without a mark are left out</translation>
    </message>
    <message>
        <source>Text and grids</source>
        <translation>Text and Grids</translation>
    </message>
    <message>
        <source>Text color</source>
        <translation>Text over images</translation>
    </message>
    <message>
        <source>Text color tip</source>
        <translation>Color of the text over images</translation>
    </message>
    <message>
        <source>Active cell color</source>
        <translation>Active image</translation>
    </message>
    <message>
        <source>Active cell color tip</source>
        <translation>Color of the frame around the active image</translation>
    </message>
    <message>
        <source>Text font</source>
        <translation>Font of text</translation>
    </message>
    <message>
        <source>Choose font</source>
        <translation>Choose…</translation>
    </message>
    <message>
        <source>Choose font tip</source>
        <translation>Font and size of the text over images</translation>
    </message>
    <message>
        <source>Font sample</source>
        <translation>%1 points %2</translation>
    </message>
    <message>
        <source>Measurements</source>
        <translation>Measurements</translation>
    </message>
    <message>
        <source>Outline color</source>
        <translation>Outline</translation>
    </message>
    <message>
        <source>Outline color tip</source>
        <translation>Color of the outline of new measurements</translation>
    </message>
    <message>
        <source>Fill color</source>
        <translation>Fill</translation>
    </message>
    <message>
        <source>Fill color tip</source>
        <translation>Color of the inside of new measurements</translation>
    </message>
    <message>
        <source>Images</source>
        <translation>Images</translation>
    </message>
    <message>
        <source>Merge US</source>
        <translation>Join single ultrasound images of a series</translation>
    </message>
    <message>
        <source>Merge US tip</source>
        <translation>From the next opening on</translation>
    </message>
    <message>
        <source>Merge XA</source>
        <translation>Join single angiography images of a series</translation>
    </message>
    <message>
        <source>Merge XA tip</source>
        <translation>From the next opening on</translation>
    </message>
    <message>
        <source>Decode character sets</source>
        <translation>Read text by its character set</translation>
    </message>
    <message>
        <source>Decode character sets tip</source>
        <translation>Off: text as older programs read it; from the next opening on</translation>
    </message>
    <message>
        <source>Enhance contrast</source>
        <translation>Cut windows to the values of the image</translation>
    </message>
    <message>
        <source>Enhance contrast tip</source>
        <translation>Off: windows by the formula of the standard alone</translation>
    </message>
    <message>
        <source>Localizers</source>
        <translation>Localizers</translation>
    </message>
    <message>
        <source>First and last localizers</source>
        <translation>Show the first and last line</translation>
    </message>
    <message>
        <source>First and last localizers tip</source>
        <translation>Beside the line of the image shown, where on other grids the series begins and ends</translation>
    </message>
    <message>
        <source>Separate localizers</source>
        <translation>Keep localizers apart</translation>
    </message>
    <message>
        <source>Separate localizers tip</source>
        <translation>Localizer images get a sequence of their own; from the next opening on</translation>
    </message>
    <message>
        <source>Colors over images</source>
        <translation>Colors over Images</translation>
    </message>
    <message>
        <source>Overlay color</source>
        <translation>Overlays</translation>
    </message>
    <message>
        <source>Overlay color tip</source>
        <translation>Color of overlays that the file brings along</translation>
    </message>
    <message>
        <source>US region color</source>
        <translation>Ultrasound regions</translation>
    </message>
    <message>
        <source>US region color tip</source>
        <translation>Color of the frames around ultrasound regions</translation>
    </message>
    <message>
        <source>Localizer color</source>
        <translation>Localizer lines</translation>
    </message>
    <message>
        <source>Localizer color tip</source>
        <translation>Color of localizer lines</translation>
    </message>
    <message>
        <source>Cine</source>
        <translation>Cine</translation>
    </message>
    <message>
        <source>Cine autoplay</source>
        <translation>Play at once</translation>
    </message>
    <message>
        <source>Cine autoplay tip</source>
        <translation>Cine starts when a series comes up that is usually played</translation>
    </message>
    <message>
        <source>Enforce speed</source>
        <translation>Same speed for all</translation>
    </message>
    <message>
        <source>Enforce speed tip</source>
        <translation>Plays at the default speed, whatever the file says</translation>
    </message>
    <message>
        <source>Default speed</source>
        <translation>Images per second</translation>
    </message>
    <message>
        <source>Default speed tip</source>
        <translation>4 to 60</translation>
    </message>
    <message>
        <source>presetTitle</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>presetTitle tip</source>
        <translation>Name in menus</translation>
    </message>
    <message>
        <source>wcPreset</source>
        <translation>Level</translation>
    </message>
    <message>
        <source>wcPreset tip</source>
        <translation>Center of the window</translation>
    </message>
    <message>
        <source>wwPreset</source>
        <translation>Width</translation>
    </message>
    <message>
        <source>wwPreset tip</source>
        <translation>Width of the window, above 0</translation>
    </message>
    <message>
        <source>Add preset</source>
        <translation>Add</translation>
    </message>
    <message>
        <source>Add preset tip</source>
        <translation>Adds a preset below the selected one</translation>
    </message>
    <message>
        <source>Remove preset</source>
        <translation>Remove</translation>
    </message>
    <message>
        <source>Remove preset tip</source>
        <translation>Removes the selected presets (Delete)</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>Move Up</translation>
    </message>
    <message>
        <source>Move up tip</source>
        <translation>Moves the selected preset up (Alt+Up)</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>Move Down</translation>
    </message>
    <message>
        <source>Move down tip</source>
        <translation>Moves the selected preset down (Alt+Down)</translation>
    </message>
    <message>
        <source>Reset presets</source>
        <translation>Reset…</translation>
    </message>
    <message>
        <source>Reset presets tip</source>
        <translation>Brings back the presets that come with the program</translation>
    </message>
    <message>
        <source>Check now</source>
        <translation>Check Now</translation>
    </message>
    <message>
        <source>Check now tip</source>
        <translation>Looks for a newer version</translation>
    </message>
    <message>
        <source>No update service</source>
        <translation>This copy of the program doesn't look for updates by itself. New versions come the way this one came.</translation>
    </message>
</context>
<context>
    <name>FirstAid</name>
    <message>
        <source>First Aid</source>
        <translation>First Aid</translation>
    </message>
    <message>
        <source>CrashTitle</source>
        <translation>Zelora Viewer did not end properly the last time.</translation>
    </message>
    <message>
        <source>Reset all settings</source>
        <translation>Reset all settings</translation>
    </message>
    <message>
        <source>ResetExplain</source>
        <translation>All settings go back to what a fresh installation has, and the program starts again. A copy of the settings is kept beside them.</translation>
    </message>
    <message>
        <source>Collect crash reports</source>
        <translation>Collect crash reports</translation>
    </message>
    <message>
        <source>LogsExplain</source>
        <translation>Reports of crashes are put together for you to read, and sent by your mail program only if you agree.</translation>
    </message>
    <message>
        <source>UserText</source>
        <translation>What did you do when it happened?</translation>
    </message>
    <message>
        <source>Remove older reports afterwards</source>
        <translation>Remove older reports afterwards</translation>
    </message>
    <message>
        <source>ClearLogsTip</source>
        <translation>Only the last report of each kind is kept</translation>
    </message>
    <message>
        <source>Check for Updates</source>
        <translation>Check for Updates</translation>
    </message>
    <message>
        <source>No update service</source>
        <translation>No update service is set up</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Reset</translation>
    </message>
    <message>
        <source>Collect</source>
        <translation>Collect</translation>
    </message>
    <message>
        <source>Review</source>
        <translation>Review the Report</translation>
    </message>
    <message>
        <source>ReviewExplain</source>
        <translation>This is all that leaves this computer. What may point to a patient or to you is marked: strike it, and whatever else you select.</translation>
    </message>
    <message>
        <source>Strike all marked</source>
        <translation>Strike All Marked</translation>
    </message>
    <message>
        <source>Strike selected</source>
        <translation>Strike Selected</translation>
    </message>
    <message>
        <source>Next marked</source>
        <translation>Next Marked</translation>
    </message>
    <message>
        <source>Send</source>
        <translation>Send</translation>
    </message>
    <message>
        <source>NotSent</source>
        <translation>No mail program took the report.</translation>
    </message>
    <message>
        <source>NotSentExplain</source>
        <translation>Please send it to %1 yourself. The reports are kept in the folder %2.</translation>
    </message>
</context>
<context>
    <name>Viewer</name>
    <message>
        <source>%1 (%2 of %3)</source>
        <translation>%1 (%2 of %3)</translation>
    </message>
    <message>
        <source>&amp;Ignore DICOMDIR</source>
        <translation>&amp;Ignore DICOMDIR</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Name:</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Choose a file or a folder to open</source>
        <translation>Choose a file or a folder to open</translation>
    </message>
    <message>
        <source>Drop files, folders or a DICOMDIR here, or choose them:</source>
        <translation>Drop files, folders or a DICOMDIR here, or choose them:</translation>
    </message>
    <message>
        <source>Frame %1 of %2</source>
        <translation>Frame %1 of %2</translation>
    </message>
    <message>
        <source>Frame shown, and how many there are</source>
        <translation>Frame shown, and how many there are</translation>
    </message>
    <message>
        <source>Include &amp;subfolders</source>
        <translation>Include &amp;subfolders</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Open</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Picture</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progress</translation>
    </message>
    <message>
        <source>Search the folder for images even if a DICOMDIR lists them</source>
        <translation>Search the folder for images even if a DICOMDIR lists them</translation>
    </message>
    <message>
        <source>Search the folders in the chosen folder too</source>
        <translation>Search the folders in the chosen folder too</translation>
    </message>
    <message>
        <source>Stop opening (Escape)</source>
        <translation>Stop opening (Escape)</translation>
    </message>
    <message>
        <source>There are no frames to show</source>
        <translation>There are no frames to show</translation>
    </message>
    <message>
        <source>This frame can't be shown</source>
        <translation>This frame can't be shown</translation>
    </message>
    <message>
        <source>What was open lately</source>
        <translation>What was open lately</translation>
    </message>
    <message>
        <source>Window %1, level %2</source>
        <translation>Window %1, level %2</translation>
    </message>
    <message>
        <source>Window width and level of this frame</source>
        <translation>Window width and level of this frame</translation>
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
        <translation>Patient ID</translation>
    </message>
    <message>
        <source>Date of Birth</source>
        <translation>Date of Birth</translation>
    </message>
    <message>
        <source>Sex</source>
        <translation>Sex</translation>
    </message>
    <message>
        <source>Age</source>
        <translation>Age</translation>
    </message>
    <message>
        <source>Size (m)</source>
        <translation>Size (m)</translation>
    </message>
    <message>
        <source>Weight (kg)</source>
        <translation>Weight (kg)</translation>
    </message>
    <message>
        <source>Allergies</source>
        <translation>Allergies</translation>
    </message>
    <message>
        <source>Pregnancy Status</source>
        <translation>Pregnancy Status</translation>
    </message>
    <message>
        <source>Comments</source>
        <translation>Comments</translation>
    </message>
    <message>
        <source>Study</source>
        <translation>Study</translation>
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
        <translation>Time</translation>
    </message>
    <message>
        <source>Study ID</source>
        <translation>Study ID</translation>
    </message>
    <message>
        <source>Accession Number</source>
        <translation>Accession Number</translation>
    </message>
    <message>
        <source>Referring Physician</source>
        <translation>Referring Physician</translation>
    </message>
    <message>
        <source>Reading Physician</source>
        <translation>Reading Physician</translation>
    </message>
    <message>
        <source>Series</source>
        <translation>Series</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Number</translation>
    </message>
    <message>
        <source>Modality</source>
        <translation>Modality</translation>
    </message>
    <message>
        <source>Protocol</source>
        <translation>Protocol</translation>
    </message>
    <message>
        <source>Body Part</source>
        <translation>Body Part</translation>
    </message>
    <message>
        <source>Laterality</source>
        <translation>Laterality</translation>
    </message>
    <message>
        <source>Patient Position</source>
        <translation>Patient Position</translation>
    </message>
    <message>
        <source>Performing Physician</source>
        <translation>Performing Physician</translation>
    </message>
    <message>
        <source>Operator</source>
        <translation>Operator</translation>
    </message>
    <message>
        <source>Equipment</source>
        <translation>Equipment</translation>
    </message>
    <message>
        <source>Institution</source>
        <translation>Institution</translation>
    </message>
    <message>
        <source>Department</source>
        <translation>Department</translation>
    </message>
    <message>
        <source>Station</source>
        <translation>Station</translation>
    </message>
    <message>
        <source>Manufacturer</source>
        <translation>Manufacturer</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Model</translation>
    </message>
    <message>
        <source>Software</source>
        <translation>Software</translation>
    </message>
    <message>
        <source>Serial Number</source>
        <translation>Serial Number</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>Contrast</translation>
    </message>
    <message>
        <source>Agent</source>
        <translation>Agent</translation>
    </message>
    <message>
        <source>Route</source>
        <translation>Route</translation>
    </message>
    <message>
        <source>Volume (ml)</source>
        <translation>Volume (ml)</translation>
    </message>
    <message>
        <source>Flow Rate (ml/s)</source>
        <translation>Flow Rate (ml/s)</translation>
    </message>
    <message>
        <source>Ingredient</source>
        <translation>Ingredient</translation>
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
        <translation>Instance Number</translation>
    </message>
    <message>
        <source>Acquisition Date</source>
        <translation>Acquisition Date</translation>
    </message>
    <message>
        <source>Acquisition Time</source>
        <translation>Acquisition Time</translation>
    </message>
    <message>
        <source>Content Date</source>
        <translation>Content Date</translation>
    </message>
    <message>
        <source>Content Time</source>
        <translation>Content Time</translation>
    </message>
    <message>
        <source>Frames</source>
        <translation>Frames</translation>
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
        <source>Bits Stored</source>
        <translation>Bits Stored</translation>
    </message>
    <message>
        <source>Photometric Interpretation</source>
        <translation>Photometric Interpretation</translation>
    </message>
    <message>
        <source>Pixel Spacing (mm)</source>
        <translation>Pixel Spacing (mm)</translation>
    </message>
    <message>
        <source>Lossy Compression</source>
        <translation>Lossy Compression</translation>
    </message>
    <message>
        <source>Compression Ratio</source>
        <translation>Compression Ratio</translation>
    </message>
    <message>
        <source>Window Width</source>
        <translation>Window Width</translation>
    </message>
    <message>
        <source>Window Center</source>
        <translation>Window Center</translation>
    </message>
    <message>
        <source>View Position</source>
        <translation>View Position</translation>
    </message>
    <message>
        <source>Slice</source>
        <translation>Slice</translation>
    </message>
    <message>
        <source>Slice Thickness (mm)</source>
        <translation>Slice Thickness (mm)</translation>
    </message>
    <message>
        <source>Slice Spacing (mm)</source>
        <translation>Slice Spacing (mm)</translation>
    </message>
    <message>
        <source>Slice Location (mm)</source>
        <translation>Slice Location (mm)</translation>
    </message>
    <message>
        <source>Image Position (mm)</source>
        <translation>Image Position (mm)</translation>
    </message>
    <message>
        <source>Image Orientation</source>
        <translation>Image Orientation</translation>
    </message>
    <message>
        <source>X-Ray</source>
        <translation>X-Ray</translation>
    </message>
    <message>
        <source>Tube Voltage (kV)</source>
        <translation>Tube Voltage (kV)</translation>
    </message>
    <message>
        <source>Tube Current (mA)</source>
        <translation>Tube Current (mA)</translation>
    </message>
    <message>
        <source>Exposure Time (ms)</source>
        <translation>Exposure Time (ms)</translation>
    </message>
    <message>
        <source>Exposure (mAs)</source>
        <translation>Exposure (mAs)</translation>
    </message>
    <message>
        <source>Dose Area Product (dGy·cm²)</source>
        <translation>Dose Area Product (dGy·cm²)</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filter</translation>
    </message>
    <message>
        <source>Focal Spot (mm)</source>
        <translation>Focal Spot (mm)</translation>
    </message>
    <message>
        <source>Source to Detector (mm)</source>
        <translation>Source to Detector (mm)</translation>
    </message>
    <message>
        <source>Source to Patient (mm)</source>
        <translation>Source to Patient (mm)</translation>
    </message>
    <message>
        <source>Primary Angle (°)</source>
        <translation>Primary Angle (°)</translation>
    </message>
    <message>
        <source>Secondary Angle (°)</source>
        <translation>Secondary Angle (°)</translation>
    </message>
    <message>
        <source>Body Part Thickness (mm)</source>
        <translation>Body Part Thickness (mm)</translation>
    </message>
    <message>
        <source>Compression Force (N)</source>
        <translation>Compression Force (N)</translation>
    </message>
    <message>
        <source>Organ Dose (dGy)</source>
        <translation>Organ Dose (dGy)</translation>
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
        <translation>Reconstruction Diameter (mm)</translation>
    </message>
    <message>
        <source>Collection Diameter (mm)</source>
        <translation>Collection Diameter (mm)</translation>
    </message>
    <message>
        <source>Gantry Tilt (°)</source>
        <translation>Gantry Tilt (°)</translation>
    </message>
    <message>
        <source>Table Height (mm)</source>
        <translation>Table Height (mm)</translation>
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
        <translation>Scan Options</translation>
    </message>
    <message>
        <source>Rescale Intercept</source>
        <translation>Rescale Intercept</translation>
    </message>
    <message>
        <source>Rescale Slope</source>
        <translation>Rescale Slope</translation>
    </message>
    <message>
        <source>MR</source>
        <translation>MR</translation>
    </message>
    <message>
        <source>Scanning Sequence</source>
        <translation>Scanning Sequence</translation>
    </message>
    <message>
        <source>Sequence Variant</source>
        <translation>Sequence Variant</translation>
    </message>
    <message>
        <source>Sequence Name</source>
        <translation>Sequence Name</translation>
    </message>
    <message>
        <source>Acquisition Type</source>
        <translation>Acquisition Type</translation>
    </message>
    <message>
        <source>Field Strength (T)</source>
        <translation>Field Strength (T)</translation>
    </message>
    <message>
        <source>Repetition Time (ms)</source>
        <translation>Repetition Time (ms)</translation>
    </message>
    <message>
        <source>Echo Time (ms)</source>
        <translation>Echo Time (ms)</translation>
    </message>
    <message>
        <source>Inversion Time (ms)</source>
        <translation>Inversion Time (ms)</translation>
    </message>
    <message>
        <source>Flip Angle (°)</source>
        <translation>Flip Angle (°)</translation>
    </message>
    <message>
        <source>Echo Train Length</source>
        <translation>Echo Train Length</translation>
    </message>
    <message>
        <source>Averages</source>
        <translation>Averages</translation>
    </message>
    <message>
        <source>Pixel Bandwidth (Hz)</source>
        <translation>Pixel Bandwidth (Hz)</translation>
    </message>
    <message>
        <source>Receive Coil</source>
        <translation>Receive Coil</translation>
    </message>
    <message>
        <source>SAR (W/kg)</source>
        <translation>SAR (W/kg)</translation>
    </message>
    <message>
        <source>Ultrasound and Cine</source>
        <translation>Ultrasound and Cine</translation>
    </message>
    <message>
        <source>Stage</source>
        <translation>Stage</translation>
    </message>
    <message>
        <source>View</source>
        <translation>View</translation>
    </message>
    <message>
        <source>Transducer</source>
        <translation>Transducer</translation>
    </message>
    <message>
        <source>Frame Time (ms)</source>
        <translation>Frame Time (ms)</translation>
    </message>
    <message>
        <source>Cine Rate (1/s)</source>
        <translation>Cine Rate (1/s)</translation>
    </message>
    <message>
        <source>Display Rate (1/s)</source>
        <translation>Display Rate (1/s)</translation>
    </message>
    <message>
        <source>Heart Rate (1/min)</source>
        <translation>Heart Rate (1/min)</translation>
    </message>
    <message>
        <source>Mechanical Index</source>
        <translation>Mechanical Index</translation>
    </message>
    <message>
        <source>Thermal Index Soft Tissue</source>
        <translation>Thermal Index Soft Tissue</translation>
    </message>
    <message>
        <source>Depth of Scan Field (mm)</source>
        <translation>Depth of Scan Field (mm)</translation>
    </message>
    <message>
        <source>Nuclear Medicine and PET</source>
        <translation>Nuclear Medicine and PET</translation>
    </message>
    <message>
        <source>Radiopharmaceutical</source>
        <translation>Radiopharmaceutical</translation>
    </message>
    <message>
        <source>Units</source>
        <translation>Units</translation>
    </message>
    <message>
        <source>Decay Correction</source>
        <translation>Decay Correction</translation>
    </message>
    <message>
        <source>Counts Accumulated</source>
        <translation>Counts Accumulated</translation>
    </message>
    <message>
        <source>Frame Duration (ms)</source>
        <translation>Frame Duration (ms)</translation>
    </message>
    <message>
        <source>Reconstruction Method</source>
        <translation>Reconstruction Method</translation>
    </message>
    <message>
        <source>Attenuation Correction</source>
        <translation>Attenuation Correction</translation>
    </message>
</context>
</TS>

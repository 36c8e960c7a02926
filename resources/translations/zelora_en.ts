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

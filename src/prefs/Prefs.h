// Every preference by name: one read and one write function a key, so that no other code spells a
// key. Values live in one PreferenceStore; what a fresh install answers stands with its reasons in
// resources/ZELDefaultPrefs.plist. Getters may be called from any thread. Some of them repair: a
// missing or invalid value is replaced by the fixed default that the function tells, and stored.
// The others answer something usual for a stored value of another kind or range, unstored.
#pragma once
#include "prefs/PrefsColors.h"
#include "prefs/PrefsTables.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

class PreferenceStore;
class QByteArray;
class QString;

// --- Start ---------------------------------------------------------------------------------------

// The store behind all functions below, with the defaults registered. Made at the first call.
[[nodiscard]] PreferenceStore& prefs_Store();
// Registers the defaults file; the first thing that a program does.
void prefs_InitializeForApplication();
// Migrates what an older version has stored, gives the stored colours that are missing or damaged
// their defaults, and synchronizes. Once, at the end of the start.
void InitializeAppDefaults();
// A value for this run only, which no setter changes and nothing stores. `key` as in the file.
void prefs_OverrideForRun(const char* key, bool value);
void prefs_Synchronize();
// The file behind the store (bytes); empty when values are kept in memory only.
[[nodiscard]] std::string prefs_FilePath();
// Everything stored goes, and nothing more is stored in this run. The file is kept as
// "<path>.before-reset".
void prefs_RemoveAll();

// --- Constants -----------------------------------------------------------------------------------

constexpr int prefs_GetScaleMethod() { return 3; }
constexpr bool prefs_RemovePrivateFields() { return false; }  // whatever is stored
constexpr bool prefs_FullScreen_HideToolbar() { return false; }
constexpr bool prefs_FullScreen_HideTopbars() { return false; }
constexpr bool prefs_FullScreen_HideMeasurement() { return false; }
constexpr bool prefs_FullScreen_HidePatientList() { return false; }
// Codec quality of a scale method: 1 gives 16, 2 gives 768, 3 gives 1023, anything else 16.
[[nodiscard]] int GetCodecQForScaleMethod(int method);

// --- Opening -------------------------------------------------------------------------------------

[[nodiscard]] bool prefs_IgnoreDICOMDIR();  // scan a chosen folder even if it holds a DICOMDIR
void prefs_Set_IgnoreDICOMDIR(bool on);
[[nodiscard]] bool prefs_DoScanDirectoriesRecursively();
void prefs_Set_ScanDirectoriesRecursively(bool on);
[[nodiscard]] bool prefs_DoAutoOpenDICOMCDs();  // open a disc with a DICOMDIR when it mounts
void prefs_Set_AutoOpenDICOMCDs(bool on);
[[nodiscard]] bool prefs_CopyCDFilesToDisk();  // copy files from slow media to the cache
void prefs_Set_CopyCDFilesToDisk(bool on);
[[nodiscard]] bool prefs_CopyRemoteFilesToDisk();  // network volumes count as slow media
void prefs_Set_CopyRemoteFilesToDisk(bool on);
[[nodiscard]] bool prefs_DoSortPatListByFilename();  // kept for older settings; nothing reads it
void prefs_Set_SortPatListByFilename(bool on);
[[nodiscard]] bool prefs_DoMergeSingleFrameUSs();  // of one series
void prefs_Set_MergeSingleFrameUSs(bool on);
[[nodiscard]] bool prefs_DoMergeSingleFrameXAs();
void prefs_Set_MergeSingleFrameXAs(bool on);
[[nodiscard]] bool prefs_Has_SpecialUSXAOpen();  // open US and XA series with one hanging sequence
void prefs_Set_Has_SpecialUSXAOpen(bool on);
// Text of a file means what its character set says by the standard, code extensions included. Off:
// the older, narrower reading.
[[nodiscard]] bool prefs_DecodeTextByCharacterSet();
void prefs_Set_DecodeTextByCharacterSet(bool on);
// Start folder of the Open dialog, bytes. The home folder, which is not stored, when unset.
[[nodiscard]] std::string prefs_OpenTargetDirectory();
void prefs_Set_OpenTargetDirectory(const std::string& folder);
// The key of the recent documents: an array of dictionaries, kept by the code that opens.
inline constexpr std::string_view kPrefsKeyRecentDocuments = "ZELRecentDocuments";

// --- Viewing -------------------------------------------------------------------------------------

[[nodiscard]] int prefs_ToolScope();  // 0 or 1
void prefs_Set_ToolScope(int scope);
// A window is cut to the values that a frame really has. Off: it is shown by the standard's
// formula, whatever the frame's range.
[[nodiscard]] bool prefs_EnhanceVOIContrast();
void prefs_Set_EnhanceVOIContrast(bool on);
// The sheet that adjusts a window shows what it does at once.
[[nodiscard]] bool prefs_BnCDialogPreview();
void prefs_Set_BnCDialogPreview(bool on);
[[nodiscard]] bool prefs_LimitAutoFit();  // kept for older settings; nothing reads it
void prefs_Set_LimitAutoFit(bool on);
[[nodiscard]] int prefs_PreviewPictSize();  // points; 23 is text only, 257 icons only
void prefs_Set_PreviewPictSize(int size);
[[nodiscard]] int prefs_SequenceInitialGridArrangement();  // a layout's number, 0 is automatic
void prefs_Set_SequenceInitialGridArrangement(int arrangement);
[[nodiscard]] bool prefs_ShowPatientListPane();
void prefs_Set_ShowPatientListPane(bool on);
[[nodiscard]] int prefs_ShowZELToolbarPane();  // 1 shown, 2 hidden
void prefs_Set_ShowZELToolbarPane(int state);
[[nodiscard]] bool prefs_ShowMeasurementInfoPane();
void prefs_Set_ShowMeasurementInfoPane(bool on);
// Sizes along a split view's axis, view points; empty as long as nothing has been moved.
[[nodiscard]] std::vector<int> prefs_MainSplitSizes();
void prefs_Set_MainSplitSizes(const std::vector<int>& sizes);
[[nodiscard]] std::vector<int> prefs_PatientViewSplitSizes();  // browser and info pane
void prefs_Set_PatientViewSplitSizes(const std::vector<int>& sizes);
// Place and size of the window that was closed last, as the toolkit codes them.
[[nodiscard]] QByteArray prefs_MainWindowGeometry();
void prefs_Set_MainWindowGeometry(const QByteArray& geometry);
// Names of what stands in a window's tool bar, in order; empty for the program's own choice.
[[nodiscard]] std::vector<std::string> prefs_ToolbarItems();
void prefs_Set_ToolbarItems(const std::vector<std::string>& names);
[[nodiscard]] bool prefs_Get_ShowsUSRegions();
void prefs_Set_ShowsUSRegions(bool on);
// The key of the user's window presets, an array; absent means those that come with the program.
inline constexpr std::string_view kPrefsKeyWWWLPresets = "WWWLPresets";

// --- Localizers ----------------------------------------------------------------------------------

[[nodiscard]] bool prefs_ShowLocalizersOnAllGrids();
void prefs_Set_ShowLocalizersOnAllGrids(bool on);
[[nodiscard]] bool prefs_ShowAllLocalizerLines();
void prefs_Set_ShowAllLocalizerLines(bool on);
[[nodiscard]] bool prefs_ShowFirstLastLocalizerLines();
void prefs_Set_ShowFirstLastLocalizerLines(bool on);
[[nodiscard]] bool prefs_SeparateLocalizerFrames();  // into a sequence of their own
void prefs_Set_SeparateLocalizerFrames(bool on);

// --- Cine ----------------------------------------------------------------------------------------

[[nodiscard]] int prefs_GetCineLoopMode();  // 0 no loop, 1 loop, 2 sweep
[[nodiscard]] bool prefs_CineDoNOTLoop();
[[nodiscard]] bool prefs_CineDoLoop();
[[nodiscard]] bool prefs_CineDoSweep();
void prefs_Set_CineDoNOTLoop();
void prefs_Set_CineDoLoop();
void prefs_Set_CineDoSweep();
[[nodiscard]] bool prefs_HasCineAutoplay();
void prefs_Set_HasCineAutoplay(bool on);
[[nodiscard]] bool prefs_HasCineSeriesPlay();
void prefs_Set_HasCineSeriesPlay(bool on);
[[nodiscard]] bool prefs_HasCineEnforceSpeed();  // the file's own timing is ignored
void prefs_Set_HasCineEnforceSpeed(bool on);
// Frames per second, 4 to 60. Reads 15, and stores that, when the stored value is outside; the
// setter clamps.
[[nodiscard]] int prefs_CineDefaultSpeed();
void prefs_Set_CineDefaultSpeed(int framesPerSecond);
[[nodiscard]] bool prefs_Cine_TraverseRespectsMarked();
void prefs_Set_Cine_TraverseRespectsMarked(bool on);

// --- Font of annotations -------------------------------------------------------------------------

[[nodiscard]] QString prefs_Get_AnnotationsFontName();  // "Andale Mono", stored, when empty
void prefs_Set_AnnotationsFontName(const QString& name);
[[nodiscard]] std::string prefs_Get_AnnotationsFontNameC();  // the same in UTF-8
void prefs_Set_AnnotationsFontNameC(std::string_view name);
[[nodiscard]] float
prefs_Get_AnnotationsFontSize();  // points; 10, stored, when 0 or below; at most 1000
void prefs_Set_AnnotationsFontSize(float size);

// --- Export --------------------------------------------------------------------------------------

[[nodiscard]] std::string prefs_ExportTargetDirectory();  // bytes; the home folder when unset
void prefs_Set_ExportTargetDirectory(const std::string& folder);
[[nodiscard]] bool prefs_DoExportToImages();  // frames rather than a movie
void prefs_Set_ExportToImages(bool on);
// Four-character types of the exporters: 'JPEG' and 'MooV' when unset.
[[nodiscard]] std::uint32_t prefs_GetDefaultImageExportType();
[[nodiscard]] std::uint32_t prefs_GetDefaultMovieExportType();
// The block of settings that an exporter left the last time; empty if none.
[[nodiscard]] QByteArray prefs_Get_ExporterSettings(std::uint32_t exporterType, bool isMovie);
// Stores the block under the exporter's type, and makes that type the default of its kind.
void prefs_Set_ExporterSettings(std::uint32_t exporterType, const QByteArray& settings,
                                bool isMovie);
// What an export leaves for the next one. An exporter type of 0 is unknown: that one's settings,
// and empty ones, are not stored. `settings` are those of the active kind. Synchronizes.
void prefs_SaveExportPrefs(bool appendQTAnnotations, bool doExportToFrames,
                           std::uint32_t exporterType, const QByteArray& settings);
[[nodiscard]] bool prefs_SaveMarkedSerialized();  // false: marked items go into a folder per level
void prefs_Set_SaveMarkedSerialized(bool on);
[[nodiscard]] bool prefs_Export_SerializeNames();
void prefs_Set_Export_SerializeNames(bool on);
[[nodiscard]] QString prefs_Export_SerializeNamePrefix();
void prefs_Set_Export_SerializeNamePrefix(const QString& prefix);
[[nodiscard]] bool prefs_Get_ExportAddsMetadata();
void prefs_Set_ExportAddsMetadata(bool on);
// Export levels; -1 is none. Stored with 1 added, so that an absent key reads as none.
[[nodiscard]] int prefs_SavedAnonymizeLevel();
void prefs_Set_SavedAnonymizeLevel(int level);
[[nodiscard]] int prefs_SavedDicomDataExportLevel();
void prefs_Set_SavedDicomDataExportLevel(int level);
[[nodiscard]] int prefs_SavedDicomDataExportType();
void prefs_Set_SavedDicomDataExportType(int type);

// --- Metadata ------------------------------------------------------------------------------------

[[nodiscard]] bool prefs_Metadata_ShowPrivates();
void prefs_Set_Metadata_ShowPrivates(bool on);
[[nodiscard]] bool prefs_Metadata_ShowDataInHex();
void prefs_Set_Metadata_ShowDataInHex(bool on);
void prefs_Set_RemovePrivateFields(bool on);  // written only; see the constant

// --- Bookkeeping ---------------------------------------------------------------------------------

[[nodiscard]] int prefs_NumberOfRuns_Previous();  // of earlier versions
void prefs_Set_NumberOfRuns_Previous(int runs);
[[nodiscard]] int prefs_NumberOfRuns_Current();
void prefs_Set_NumberOfRuns_Current(int runs);
[[nodiscard]] int prefs_NumberOfRuns_Total();  // the sum of both
[[nodiscard]] int prefs_NumberOfCrashes();     // seen at start
void prefs_Set_NumberOfCrashes(int crashes);

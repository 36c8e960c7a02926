// The flags and numbers: one line a function, the key beside it.
#include "prefs/Prefs.h"

#include "platform/PreferenceStore.h"
#include "prefs/PrefsAccess.h"

#include <QString>
#include <algorithm>
#include <limits>

namespace {

constexpr int kMinCineSpeed = 4, kMaxCineSpeed = 60, kUsualCineSpeed = 15;  // frames a second
constexpr int kNoLoop = 0, kLoop = 1, kSweep = 2;
constexpr float kUsualFontSize = 10.0F;
constexpr double kLeastFontSize = 1, kMostFontSize = 1000;  // what is read
constexpr int kMinPreviewSize = 23, kMaxPreviewSize = 257, kUsualPreviewSize = 96;
constexpr int kToolbarShown = 1, kToolbarHidden = 2;
constexpr int kMostRuns = std::numeric_limits<int>::max() / 2;  // so that two can be added
constexpr const char* kUsualFont = "Andale Mono";
constexpr const char* kKeyCineSpeed = "CineDefaultSpeed";
constexpr const char* kKeyCineLoop = "CineLoopType";
constexpr const char* kKeyFontName = "DefaultAnnotationFontName";
constexpr const char* kKeyFontSize = "DefaultAnnotationFontSize";
constexpr const char* kKeyOpenFolder = "OpenTargetDirectoryKey";
constexpr const char* kKeyPatientSplit = "NSSplitView Subview Frames PatientViewSplt";

// Something else under the key, or a size that no view has, reads as nothing stored.
std::vector<int> ReadSizes(const char* key)
{
    constexpr int kMostSize = 100'000;
    std::vector<int> sizes;
    for (const QVariant& value : prefs_Store().Array(key)) {
        bool isNumber = false;
        const int size = value.toInt(&isNumber);
        if (!isNumber || size < 0 || size > kMostSize)
            return {};
        sizes.push_back(size);
    }
    return sizes;
}

void StoreSizes(const char* key, const std::vector<int>& sizes)
{
    Store(key, QVariantList(sizes.begin(), sizes.end()));
}

int ReadCount(const char* key) { return std::clamp(ReadInt(key), 0, kMostRuns); }

}  // namespace

int GetCodecQForScaleMethod(int method)
{
    if (method == 2)
        return 768;
    return method == 3 ? 1023 : 16;
}

// --- Opening

bool prefs_IgnoreDICOMDIR() { return ReadBool("IgnoreDICOMDIRFlag"); }
void prefs_Set_IgnoreDICOMDIR(bool on) { Store("IgnoreDICOMDIRFlag", on); }
bool prefs_DoScanDirectoriesRecursively() { return ReadBool("ScanDirectoriesRecursivelyFlag"); }
void prefs_Set_ScanDirectoriesRecursively(bool on) { Store("ScanDirectoriesRecursivelyFlag", on); }
bool prefs_DoAutoOpenDICOMCDs() { return ReadBool("AutoOpenDICOMCDsFlag"); }
void prefs_Set_AutoOpenDICOMCDs(bool on) { Store("AutoOpenDICOMCDsFlag", on); }
bool prefs_CopyCDFilesToDisk() { return ReadBool("CopyCDFilesFlag"); }
void prefs_Set_CopyCDFilesToDisk(bool on) { Store("CopyCDFilesFlag", on); }
bool prefs_CopyRemoteFilesToDisk() { return ReadBool("CopyRemoteFilesFlag"); }
void prefs_Set_CopyRemoteFilesToDisk(bool on) { Store("CopyRemoteFilesFlag", on); }
bool prefs_DoSortPatListByFilename() { return ReadBool("SortPatListByFilenameFlag"); }
void prefs_Set_SortPatListByFilename(bool on) { Store("SortPatListByFilenameFlag", on); }
bool prefs_DoMergeSingleFrameUSs() { return ReadBool("MergeSingleFrameUSsFlag"); }
void prefs_Set_MergeSingleFrameUSs(bool on) { Store("MergeSingleFrameUSsFlag", on); }
bool prefs_DoMergeSingleFrameXAs() { return ReadBool("MergeSingleFrameXAsFlag"); }
void prefs_Set_MergeSingleFrameXAs(bool on) { Store("MergeSingleFrameXAsFlag", on); }
bool prefs_Has_SpecialUSXAOpen() { return ReadBool("SpecialUSXAHandlingFlag"); }
void prefs_Set_Has_SpecialUSXAOpen(bool on) { Store("SpecialUSXAHandlingFlag", on); }
bool prefs_DecodeTextByCharacterSet() { return ReadBool("DecodeTextByCharacterSetFlag"); }
void prefs_Set_DecodeTextByCharacterSet(bool on) { Store("DecodeTextByCharacterSetFlag", on); }
std::string prefs_OpenTargetDirectory() { return ReadFolder(kKeyOpenFolder); }
void prefs_Set_OpenTargetDirectory(const std::string& folder)
{
    StoreFolder(kKeyOpenFolder, folder);
}

// --- Viewing

int prefs_ToolScope() { return ReadIntWithin("ToolScope", 0, 1, 1); }
void prefs_Set_ToolScope(int scope) { Store("ToolScope", scope); }
bool prefs_EnhanceVOIContrast() { return ReadBool("EnhanceVOIContrastFlag"); }
void prefs_Set_EnhanceVOIContrast(bool on) { Store("EnhanceVOIContrastFlag", on); }
bool prefs_BnCDialogPreview() { return ReadBool("BnCDialogPreviewFlag"); }
void prefs_Set_BnCDialogPreview(bool on) { Store("BnCDialogPreviewFlag", on); }
bool prefs_LimitAutoFit() { return ReadBool("LimitAutoFitTo100Flag"); }
void prefs_Set_LimitAutoFit(bool on) { Store("LimitAutoFitTo100Flag", on); }
int prefs_PreviewPictSize()
{
    return ReadIntWithin("PreviewPictSize", kMinPreviewSize, kMaxPreviewSize, kUsualPreviewSize);
}
void prefs_Set_PreviewPictSize(int size) { Store("PreviewPictSize", size); }
int prefs_SequenceInitialGridArrangement() { return ReadInt("SequenceGridArrangement"); }
void prefs_Set_SequenceInitialGridArrangement(int arrangement)
{
    Store("SequenceGridArrangement", arrangement);
}
bool prefs_ShowPatientListPane() { return ReadBool("ShowPatientListPane"); }
void prefs_Set_ShowPatientListPane(bool on) { Store("ShowPatientListPane", on); }
int prefs_ShowZELToolbarPane()
{
    return ReadIntWithin("ShowZELToolbarPane", kToolbarShown, kToolbarHidden, kToolbarShown);
}
void prefs_Set_ShowZELToolbarPane(int state) { Store("ShowZELToolbarPane", state); }
bool prefs_ShowMeasurementInfoPane() { return ReadBool("ShowMeasurementInfoPane"); }
void prefs_Set_ShowMeasurementInfoPane(bool on) { Store("ShowMeasurementInfoPane", on); }
std::vector<int> prefs_MainSplitSizes() { return ReadSizes("ZELMainSplitPos"); }
void prefs_Set_MainSplitSizes(const std::vector<int>& sizes)
{
    StoreSizes("ZELMainSplitPos", sizes);
}
std::vector<int> prefs_PatientViewSplitSizes() { return ReadSizes(kKeyPatientSplit); }
void prefs_Set_PatientViewSplitSizes(const std::vector<int>& sizes)
{
    StoreSizes(kKeyPatientSplit, sizes);
}
QByteArray prefs_MainWindowGeometry() { return prefs_Store().Data("ZELMainWindowGeometry"); }
void prefs_Set_MainWindowGeometry(const QByteArray& geometry)
{
    Store("ZELMainWindowGeometry", geometry);
}
std::vector<std::string> prefs_ToolbarItems()
{
    std::vector<std::string> names;
    for (const QVariant& name : prefs_Store().Array("ZELToolbarItems"))
        names.push_back(name.toString().toStdString());
    return names;
}
void prefs_Set_ToolbarItems(const std::vector<std::string>& names)
{
    QVariantList list;
    for (const std::string& name : names)
        list.append(QString::fromStdString(name));
    if (list.isEmpty())
        prefs_Store().Remove("ZELToolbarItems");
    else
        Store("ZELToolbarItems", list);
}
bool prefs_Get_ShowsUSRegions() { return ReadBool("ShowUSRegionsFlag"); }
void prefs_Set_ShowsUSRegions(bool on) { Store("ShowUSRegionsFlag", on); }

// --- Localizers

bool prefs_ShowLocalizersOnAllGrids() { return ReadBool("ShowLocalizersOnAllGridsFlag"); }
void prefs_Set_ShowLocalizersOnAllGrids(bool on) { Store("ShowLocalizersOnAllGridsFlag", on); }
bool prefs_ShowAllLocalizerLines() { return ReadBool("ShowAllLocalizersFlag"); }
void prefs_Set_ShowAllLocalizerLines(bool on) { Store("ShowAllLocalizersFlag", on); }
bool prefs_ShowFirstLastLocalizerLines() { return ReadBool("ShowFirstLastLocalizersFlag"); }
void prefs_Set_ShowFirstLastLocalizerLines(bool on) { Store("ShowFirstLastLocalizersFlag", on); }
bool prefs_SeparateLocalizerFrames() { return ReadBool("SeparateSequenceLocalizerFrames"); }
void prefs_Set_SeparateLocalizerFrames(bool on) { Store("SeparateSequenceLocalizerFrames", on); }

// --- Cine

int prefs_GetCineLoopMode() { return ReadIntWithin(kKeyCineLoop, kNoLoop, kSweep, kLoop); }
bool prefs_CineDoNOTLoop() { return prefs_GetCineLoopMode() == kNoLoop; }
bool prefs_CineDoLoop() { return prefs_GetCineLoopMode() == kLoop; }
bool prefs_CineDoSweep() { return prefs_GetCineLoopMode() == kSweep; }
void prefs_Set_CineDoNOTLoop() { Store(kKeyCineLoop, kNoLoop); }
void prefs_Set_CineDoLoop() { Store(kKeyCineLoop, kLoop); }
void prefs_Set_CineDoSweep() { Store(kKeyCineLoop, kSweep); }
bool prefs_HasCineAutoplay() { return ReadBool("CineAutoPlayFlag"); }
void prefs_Set_HasCineAutoplay(bool on) { Store("CineAutoPlayFlag", on); }
bool prefs_HasCineSeriesPlay() { return ReadBool("CineSeriesPlayFlag"); }
void prefs_Set_HasCineSeriesPlay(bool on) { Store("CineSeriesPlayFlag", on); }
bool prefs_HasCineEnforceSpeed() { return ReadBool("CineEnforceSpeedFlag"); }
void prefs_Set_HasCineEnforceSpeed(bool on) { Store("CineEnforceSpeedFlag", on); }
int prefs_CineDefaultSpeed()
{
    const int speed = ReadInt(kKeyCineSpeed);
    if (speed >= kMinCineSpeed && speed <= kMaxCineSpeed)
        return speed;
    Store(kKeyCineSpeed, kUsualCineSpeed);
    return kUsualCineSpeed;
}
void prefs_Set_CineDefaultSpeed(int framesPerSecond)
{
    Store(kKeyCineSpeed, std::clamp(framesPerSecond, kMinCineSpeed, kMaxCineSpeed));
}
bool prefs_Cine_TraverseRespectsMarked() { return ReadBool("TraverseRespectsMarkedFlag"); }
void prefs_Set_Cine_TraverseRespectsMarked(bool on) { Store("TraverseRespectsMarkedFlag", on); }

// --- Font of annotations

QString prefs_Get_AnnotationsFontName()
{
    const QString name = prefs_Store().String(kKeyFontName);
    if (!name.isEmpty())
        return name;
    prefs_Set_AnnotationsFontNameC(kUsualFont);
    return QString::fromLatin1(kUsualFont);
}
void prefs_Set_AnnotationsFontName(const QString& name) { Store(kKeyFontName, name); }
std::string prefs_Get_AnnotationsFontNameC()
{
    return prefs_Get_AnnotationsFontName().toStdString();
}
void prefs_Set_AnnotationsFontNameC(std::string_view name)
{
    prefs_Set_AnnotationsFontName(
        QString::fromUtf8(name.data(), static_cast<qsizetype>(name.size())));
}
float prefs_Get_AnnotationsFontSize()
{
    const double size = prefs_Store().Float(kKeyFontSize);
    if (size > 0)
        return static_cast<float>(std::clamp(size, kLeastFontSize, kMostFontSize));
    prefs_Set_AnnotationsFontSize(kUsualFontSize);
    return kUsualFontSize;
}
void prefs_Set_AnnotationsFontSize(float size) { Store(kKeyFontSize, size); }

// --- Metadata

bool prefs_Metadata_ShowPrivates() { return ReadBool("ShowPrivateMetadataFlag"); }
void prefs_Set_Metadata_ShowPrivates(bool on) { Store("ShowPrivateMetadataFlag", on); }
bool prefs_Metadata_ShowDataInHex() { return ReadBool("ShowHexMetadataFlag"); }
void prefs_Set_Metadata_ShowDataInHex(bool on) { Store("ShowHexMetadataFlag", on); }
void prefs_Set_RemovePrivateFields(bool on) { Store("RemovePrivateFieldsFlag", on); }

// --- Bookkeeping

int prefs_NumberOfRuns_Previous() { return ReadCount("RunCounterPrevious"); }
void prefs_Set_NumberOfRuns_Previous(int runs) { Store("RunCounterPrevious", runs); }
int prefs_NumberOfRuns_Current() { return ReadCount("RunCounterCurrent"); }
void prefs_Set_NumberOfRuns_Current(int runs) { Store("RunCounterCurrent", runs); }
int prefs_NumberOfRuns_Total()
{
    return prefs_NumberOfRuns_Previous() + prefs_NumberOfRuns_Current();
}
int prefs_NumberOfCrashes() { return ReadCount("CrashCounter"); }
void prefs_Set_NumberOfCrashes(int crashes) { Store("CrashCounter", crashes); }

#include "app_prefs/FlagSettings.h"

#include "app/grid/MultiGridViewController.h"
#include "platform/NotificationCenter.h"
#include "prefs/Prefs.h"
#include "prefs/PrefsNotes.h"

#include <array>

namespace {

// clang-format off
// What is not told counts from the next opening.
constexpr auto kOpening = std::to_array<FlagSetting>({
    {"Scan subfolders",             prefs_DoScanDirectoriesRecursively, prefs_Set_ScanDirectoriesRecursively, {}},
    {"Ignore DICOMDIR",             prefs_IgnoreDICOMDIR,               prefs_Set_IgnoreDICOMDIR,             {}},
    {"Open discs",                  prefs_DoAutoOpenDICOMCDs,           prefs_Set_AutoOpenDICOMCDs,           {}},
    {"Copy from discs",             prefs_CopyCDFilesToDisk,            prefs_Set_CopyCDFilesToDisk,          {}},
    {"Copy from servers",           prefs_CopyRemoteFilesToDisk,        prefs_Set_CopyRemoteFilesToDisk,      {}},
    {"Open US and XA large",        prefs_Has_SpecialUSXAOpen,          prefs_Set_Has_SpecialUSXAOpen,        {}},
});
constexpr auto kDicom = std::to_array<FlagSetting>({
    {"Merge US",                    prefs_DoMergeSingleFrameUSs,        prefs_Set_MergeSingleFrameUSs,        {}},
    {"Merge XA",                    prefs_DoMergeSingleFrameXAs,        prefs_Set_MergeSingleFrameXAs,        {}},
    {"Decode character sets",       prefs_DecodeTextByCharacterSet,     prefs_Set_DecodeTextByCharacterSet,   {}},
    // Pictures know the contrast that they were made with: a grid need only be painted again.
    {"Enhance contrast",            prefs_EnhanceVOIContrast,           prefs_Set_EnhanceVOIContrast,         kNoteLocalizerChanged},
});
constexpr auto kLocalizers = std::to_array<FlagSetting>({
    {"First and last localizers",   prefs_ShowFirstLastLocalizerLines,  prefs_Set_ShowFirstLastLocalizerLines, kNoteLocalizerChanged},
    {"Separate localizers",         prefs_SeparateLocalizerFrames,      prefs_Set_SeparateLocalizerFrames,    {}},
});
constexpr auto kCine = std::to_array<FlagSetting>({
    {"Cine autoplay",               prefs_HasCineAutoplay,              prefs_Set_HasCineAutoplay,            {}},
    {"Traverse marked",             prefs_Cine_TraverseRespectsMarked,  prefs_Set_Cine_TraverseRespectsMarked, {}},
    {"Enforce speed",               prefs_HasCineEnforceSpeed,          prefs_Set_HasCineEnforceSpeed,        kNoteFPSEnforceChanged},
});
// clang-format on

}  // namespace

std::span<const FlagSetting> OpeningFlags() { return kOpening; }
std::span<const FlagSetting> DicomFlags() { return kDicom; }
std::span<const FlagSetting> LocalizerFlags() { return kLocalizers; }
std::span<const FlagSetting> CineFlags() { return kCine; }

void ChangeFlag(const FlagSetting& setting, bool on)
{
    if (setting.get() == on)
        return;
    setting.set(on);
    if (!setting.note.empty())
        NotificationCenter::Default().Post(setting.note, nullptr);
}

#include "dicom_core/opening/OpenPanelRules.h"

#include "dicom_core/opening/Classify.h"
#include "dicom_core/opening/PathNames.h"
#include "platform/FileCatalog.h"
#include "platform/Words.h"
#include "prefs/Prefs.h"

#include <algorithm>
#include <array>
#include <dirent.h>
#include <memory>
#include <string_view>
#include <sys/stat.h>

namespace {

constexpr std::ptrdiff_t kLongestOtherExtension = 4;  // characters
constexpr auto kDicomExtensions = std::to_array<std::string_view>({"DCM", "DICM", "DICOM"});

bool IsFolder(const std::string& path)
{
    struct stat info{};
    return stat(path.c_str(), &info) == 0 && S_ISDIR(info.st_mode);
}

bool BeginsCharacter(char byte) { return (byte & 0xC0) != 0x80; }  // of UTF-8

// Asked at every click: it must not read a folder of a hundred thousand files to its end.
bool HoldsSomething(const std::string& folder)
{
    struct CloseFolder {
        void operator()(DIR* open) const noexcept { closedir(open); }
    };
    const std::unique_ptr<DIR, CloseFolder> open(opendir(folder.c_str()));
    while (const dirent* entry = open ? readdir(open.get()) : nullptr) {
        const std::string_view name = entry->d_name;
        if (name != "." && name != "..")
            return true;
    }
    return false;
}

}  // namespace

bool ZELOpenPanelRules::shouldEnableURL(const std::string& path)
{
    if (path.empty())
        return false;
    if (IsFolder(path))
        return true;
    const std::string name = LastComponent(path);
    const std::size_t dot = name.rfind('.');
    if (dot == std::string::npos || dot + 1 == name.size())
        return true;
    const std::string extension = UpperCaseName(std::string_view(name).substr(dot + 1));
    const auto characters = std::ranges::count_if(extension, BeginsCharacter);
    return characters > kLongestOtherExtension ||
           std::ranges::find(kDicomExtensions, extension) != kDicomExtensions.end();
}

bool ZELOpenPanelRules::validateURL(const std::string& path)
{
    return !IsFolder(path) || HoldsSomething(path);
}

void ZELOpenPanelRules::userSelected(const std::string& path)
{
    std::string target = path;
    static_cast<void>(ResolveAlias(path, &target));
    if (!target.empty() && IsFolder(target)) {
        userSelectedFolderWithName(target);
        return;
    }
    _state.prompt = ZelWord(kWordsMain, "Open");
    _state.hint.clear();
    setUpButtonsForFile();
}

void ZELOpenPanelRules::userSelectedFolderWithName(const std::string& path)
{
    const bool isEmpty = !HoldsSomething(path);
    const bool hasDirectory = !isEmpty && !DirectoryFileIn(path).empty();
    const char* key = isEmpty ? "varDir is empty."
                      : hasDirectory
                          ? "varDir contains a DICOMDIR. Choosing this folder will create "
                            "a patient list."
                          : "varDir does not contain a DICOMDIR.";
    _state.prompt = ZelWord(kWordsMain, "Choose");
    _state.hint = ZelWord(kWordsMain, key).arg(DisplayName(path));
    setUpButtonsForFolder(isEmpty, hasDirectory);
}

void ZELOpenPanelRules::setUpButtonsForFile() { setUpButtonsForFolder(true, false); }

void ZELOpenPanelRules::setUpButtonsForFolder(bool isEmpty, bool hasDirectory)
{
    _state.ignoreOn = prefs_IgnoreDICOMDIR();
    _state.recursiveOn = prefs_DoScanDirectoriesRecursively();
    _state.ignoreEnabled = !isEmpty && hasDirectory;
    _state.recursiveEnabled = !isEmpty && (!hasDirectory || _state.ignoreOn);
}

void ZELOpenPanelRules::checkIgnoreDICOMDIR(bool on)
{
    prefs_Set_IgnoreDICOMDIR(on);
    _state.ignoreOn = on;
    _state.recursiveEnabled = on;
}

void ZELOpenPanelRules::checkDoRecursive(bool on)
{
    prefs_Set_ScanDirectoriesRecursively(on);
    _state.recursiveOn = on;
}

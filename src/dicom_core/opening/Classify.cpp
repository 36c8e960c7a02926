#include "dicom_core/opening/Classify.h"

#include "dicom_core/opening/PathNames.h"
#include "dicom_core/values/ParserOpen.h"
#include "dicom_core/values/ParserText.h"
#include "platform/FileCatalog.h"
#include "prefs/Prefs.h"

#include <optional>
#include <strings.h>
#include <sys/stat.h>

bool gOpenFileCalled = false;

namespace {

bool HasKind(const std::string& path, mode_t kind)
{
    struct stat info{};
    return stat(path.c_str(), &info) == 0 && (info.st_mode & S_IFMT) == kind;
}

// Where the directory file of a chosen folder is to be used, its path.
std::string DirectoryToUse(const std::string& folder)
{
    // What is dropped on the program at its launch uses a directory whatever the preference says.
    if (prefs_IgnoreDICOMDIR() && gOpenFileCalled)
        return {};
    std::string candidate = DirectoryFileIn(folder);
    return IsDicomDirFile(candidate, true) ? candidate : std::string();
}

}  // namespace

std::string DirectoryFileIn(const std::string& folder)
{
    for (const char* name : {"DICOMDIR", "dicomdir"}) {
        std::string path = JoinedPath(folder, name);
        if (HasKind(path, S_IFREG))
            return path;
    }
    return {};
}

void U_ShouldWeOpenFileWithPath(const std::string& path, bool skipDICOMDIR, std::int32_t* flavor,
                                std::string* target)
{
    *flavor = kOpenFlavorNone;
    *target = path;
    static_cast<void>(ResolveAlias(path, target));
    if (HasKind(*target, S_IFREG)) {
        *flavor = IsDicomDirFile(*target, true) ? kOpenFlavorDICOMDIRFile : kOpenFlavorFile;
    } else if (HasKind(*target, S_IFDIR)) {
        const std::string directory = skipDICOMDIR ? std::string() : DirectoryToUse(*target);
        if (!directory.empty()) {
            *flavor = kOpenFlavorFolderDICOMDIR;
            *target = directory;
            return;
        }
        const bool deep = prefs_DoScanDirectoriesRecursively() || !gOpenFileCalled;
        *flavor = deep ? kOpenFlavorFolderRecursive : kOpenFlavorFolder;
    }
}

bool IsDicomDirFile(const std::string& path, bool checkName)
{
    if (path.empty() || (checkName && strcasecmp(LastComponent(path).c_str(), "DICOMDIR") != 0))
        return false;
    QvxReaderPtr parser;
    std::optional<QvxReaderUse> use;
    if (U_NewDicomParserInUse(FileRef{path}, &parser, &use, true))
        return false;
    return Parser_FileIsDICOMDIR(parser.get());
}

bool U_File_IsInvisible(const std::string& path) { return PathIsInvisible(path); }

bool U_File_IsAcceptable(const std::string& path) { return !U_File_IsInvisible(path); }

bool U_Folder_IsPackage(const std::string& path) { return FolderIsPackage(path); }

bool U_Folder_IsAcceptable(const std::string& path)
{
    return !U_File_IsInvisible(path) && !U_Folder_IsPackage(path);
}

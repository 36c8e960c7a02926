#include "dicom_core/store/TempFolder.h"

#include "platform/Folders.h"
#include "platform/PrivateFolder.h"

#include <cerrno>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr const char* kFolderStart = "ZeloraZEL Temp_";
constexpr const char* kMarker = "ZEL_LockFile.txt";
constexpr int kMostTries = 100;

std::string ParentFolder()
{
    std::string folder = UserCachesFolder();
    return folder.empty() ? TemporaryFolder() : folder;
}

// With the serial number of the process: its number and the moment of the first need.
std::string FolderName(int attempt)
{
    const auto now = std::chrono::system_clock::now().time_since_epoch();
    const auto moment = static_cast<unsigned>(
        std::chrono::duration_cast<std::chrono::milliseconds>(now).count() + attempt);
    char name[32];  // two words take no more
    std::snprintf(name, sizeof name, "%s%X_%X", kFolderStart, static_cast<unsigned>(getpid()),
                  moment);
    return name;
}

std::unique_ptr<PrivateFolder>& Folder()
{
    static std::unique_ptr<PrivateFolder> sFolder;
    [[maybe_unused]] static const int sRegistered = std::at_quick_exit(RemoveProgramTempFolder);
    return sFolder;
}

void MakeFolder()
{
    const std::string parent = ParentFolder();
    QvxStatus status = EEXIST;
    for (int attempt = 0; !parent.empty() && status == EEXIST && attempt < kMostTries; ++attempt)
        status = MakePrivateFolder(parent + '/' + FolderName(attempt), kMarker, &Folder());
}

}  // namespace

const std::string& GetProgramTempFolder()
{
    static const std::string sNone;
    if (!Folder())
        MakeFolder();
    return Folder() ? Folder()->Path() : sNone;
}

QvxStatus NewTempFile(std::string* path)
{
    static unsigned long sCounter = 0;
    if (!path)
        return kQvxBadArgument;
    const std::string& folder = GetProgramTempFolder();
    if (folder.empty())
        return kQvxFileNotFound;
    for (;;) {
        char name[32];
        std::snprintf(name, sizeof name, "Temp_%08lu", ++sCounter);
        std::string candidate = folder + '/' + name;
        struct stat known{};
        if (lstat(candidate.c_str(), &known) == 0)
            continue;
        if (errno != ENOENT)
            return errno;
        // A folder that was removed under us: nothing can be made in it.
        if (lstat(folder.c_str(), &known) != 0)
            return kQvxFileNotFound;
        *path = std::move(candidate);
        return kQvxOK;
    }
}

void RemoveProgramTempFolder() { Folder().reset(); }

void SweepDeadTempFolders()
{
    // Our own is locked as any other that is alive.
    if (const std::string parent = ParentFolder(); !parent.empty())
        RemoveAbandonedFolders(
            parent, kMarker, [](std::string_view name) { return name.starts_with(kFolderStart); });
}

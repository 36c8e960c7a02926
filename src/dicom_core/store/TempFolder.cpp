#include "dicom_core/store/TempFolder.h"

#include "platform/Folders.h"

#include <cerrno>
#include <chrono>
#include <cstdio>
#include <ctime>
#include <fcntl.h>
#include <filesystem>
#include <sys/file.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

constexpr const char* kFolderStart = "ZeloraZEL Temp_";
constexpr const char* kMarker = "ZEL_LockFile.txt";
constexpr std::size_t kMostNameBytes = 31;
constexpr int kMostTries = 100;

std::string ParentFolder()
{
    std::string folder = UserCachesFolder();
    return folder.empty() ? TemporaryFolder() : folder;
}

// The serial number of the process: its number and the moment of its start.
std::string FolderName(int attempt)
{
    const auto now = std::chrono::system_clock::now().time_since_epoch();
    const auto moment = static_cast<unsigned>(
        std::chrono::duration_cast<std::chrono::milliseconds>(now).count() + attempt);
    char name[64];
    std::snprintf(name, sizeof name, "%s%X_%X", kFolderStart, static_cast<unsigned>(getpid()),
                  moment);
    return std::string(name).substr(0, kMostNameBytes);
}

// Made once, removed by name; the descriptor of the marker holds the lock.
struct TempFolder {
    std::string fPath;
    int fMarker = -1;
    unsigned long fCounter = 0;
    bool Make();
    void Remove();
};

TempFolder& Folder()
{
    static TempFolder sFolder;
    return sFolder;
}

void RemoveAll(const std::string& path)
{
    std::error_code ignored;
    fs::remove_all(path, ignored);  // links inside are removed, not followed
}

bool TempFolder::Make()
{
    const std::string parent = ParentFolder();
    for (int attempt = 0; !parent.empty() && attempt < kMostTries; ++attempt) {
        const std::string path = parent + '/' + FolderName(attempt);
        if (mkdir(path.c_str(), 0700) != 0) {
            if (errno == EEXIST)
                continue;
            return false;
        }
        const std::string marker = path + '/' + kMarker;
        fMarker = open(marker.c_str(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, 0600);
        struct stat kept{};
        // A sweep may have come between the two lines above.
        if (fMarker >= 0 && flock(fMarker, LOCK_EX | LOCK_NB) == 0 &&
            stat(marker.c_str(), &kept) == 0) {
            fPath = path;
            return true;
        }
        if (fMarker >= 0)
            close(fMarker);
        fMarker = -1;
        RemoveAll(path);
    }
    return false;
}

void TempFolder::Remove()
{
    if (fPath.empty())
        return;
    RemoveAll(fPath);
    close(fMarker);
    fMarker = -1;
    fPath.clear();
}

// Only one whose marker can be locked; a young folder without a marker is being made.
void RemoveIfDead(const std::string& path)
{
    const std::string marker = path + '/' + kMarker;
    const int file = open(marker.c_str(), O_RDWR | O_CLOEXEC | O_NOFOLLOW);
    if (file < 0) {
        struct stat made{};
        constexpr time_t kYoung_s = 60;
        if (errno == ENOENT && lstat(path.c_str(), &made) == 0 && S_ISDIR(made.st_mode) &&
            std::time(nullptr) - made.st_mtime > kYoung_s)
            RemoveAll(path);
        return;
    }
    if (flock(file, LOCK_EX | LOCK_NB) == 0)
        RemoveAll(path);
    close(file);
}

}  // namespace

const std::string& GetProgramTempFolder()
{
    TempFolder& folder = Folder();
    if (folder.fPath.empty())
        static_cast<void>(folder.Make());
    return folder.fPath;
}

QvxStatus NewTempFile(std::string* path)
{
    if (!path)
        return kQvxBadArgument;
    const std::string& folder = GetProgramTempFolder();
    if (folder.empty())
        return kQvxFileNotFound;
    for (;;) {
        char name[32];
        std::snprintf(name, sizeof name, "Temp_%08lu", ++Folder().fCounter);
        const std::string candidate = folder + '/' + name;
        struct stat known{};
        if (lstat(candidate.c_str(), &known) == 0)
            continue;
        if (errno != ENOENT)
            return errno;
        // A folder that was removed under us: nothing can be made in it.
        if (lstat(folder.c_str(), &known) != 0)
            return kQvxFileNotFound;
        *path = candidate;
        return kQvxOK;
    }
}

void RemoveProgramTempFolder() { Folder().Remove(); }

void SweepDeadTempFolders()
{
    const std::string parent = ParentFolder();
    if (parent.empty())
        return;
    std::error_code failed;
    for (fs::directory_iterator entry(parent, failed), end; !failed && entry != end;
         entry.increment(failed)) {
        const std::string name = entry->path().filename().string();
        if (name.starts_with(kFolderStart) && entry->path().string() != Folder().fPath)
            RemoveIfDead(entry->path().string());
    }
}

#include "app/recovery/CrashLocks.h"

#include "platform/Folders.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <charconv>
#include <chrono>
#include <climits>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <sys/stat.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

constexpr QvxStatus kNoPath = -43, kShortRead = -19;
constexpr std::string_view kLockName = "lockfile";
// Seconds between the epoch of the system's clock and 2001-01-01, from which names count.
constexpr std::chrono::seconds kReferenceDate{978'307'200};

bool IsFolder(const std::string& path)
{
    std::error_code failed;
    return fs::is_directory(path, failed);
}

bool IsEmptyFolder(const std::string& path)
{
    std::error_code failed;
    return fs::is_empty(path, failed);
}

void Remove(const std::string& path)
{
    std::error_code ignored;
    fs::remove(path, ignored);
}

// A plain file of the size that one has; anything else is none of ours.
QvxStatus ReadLock(const std::string& path, std::string* text)
{
    constexpr std::size_t kMost = 8192;
    const int file = open(path.c_str(), O_RDONLY | O_NONBLOCK | O_NOFOLLOW | O_CLOEXEC);
    if (file < 0)
        return errno;
    struct stat info{};
    ssize_t length = -1;
    if (fstat(file, &info) == 0 && S_ISREG(info.st_mode)) {
        text->resize(kMost);
        length = read(file, text->data(), kMost);
    }
    close(file);
    text->resize(static_cast<std::size_t>(std::max<ssize_t>(length, 0)));
    return length < 0 ? EINVAL : kQvxOK;
}

// The library may end the program where a desktop goes without asking: that is no crash. It knows
// nothing of objects then, so the lock's name stands here. Empty: none.
std::array<char, PATH_MAX> gLockAtExit{};

void RemoveLockAtExit()
{
    if (gLockAtExit[0] == 0)
        return;
    unlink(gLockAtExit.data());
    if (char* name = std::strrchr(gLockAtExit.data(), '/')) {
        *name = 0;
        rmdir(gLockAtExit.data());  // unless others have theirs in it
    }
    gLockAtExit[0] = 0;
}

void NoteForExit(const std::string& lock)
{
    [[maybe_unused]] static const bool registered =
        std::atexit(RemoveLockAtExit) == 0 && std::at_quick_exit(RemoveLockAtExit) == 0;
    if (lock.size() < gLockAtExit.size())
        std::memcpy(gLockAtExit.data(), lock.c_str(), lock.size() + 1);
}

}  // namespace

CrashLocks::CrashLocks(std::string dataFolder, std::string place,
                       std::function<std::vector<std::string>()> running)
    : fFolder(dataFolder.empty() ? dataFolder : dataFolder + "/CrashLocks"),
      fOldFolder(dataFolder.empty() ? dataFolder : dataFolder + "/CrashLock"),
      fPlace(std::move(place)),
      fRunning(std::move(running))
{
}

// The length comes first, so that a file that was cut off is known for one.
QvxStatus CrashLocks::readContentsOfFile(const std::string& path, std::string* place)
{
    std::string text;
    if (const QvxStatus status = ReadLock(path, &text))
        return status;
    place->clear();
    if (text.empty())
        return kQvxOK;
    std::size_t length = 0;
    const auto [end, failed] = std::from_chars(text.data(), text.data() + text.size(), length);
    if (failed != std::errc() || end == text.data() + text.size() || *end != '\n')
        return kShortRead;
    const std::string kept = text.substr(static_cast<std::size_t>(end - text.data()) + 1);
    if (kept.size() != length)
        return kShortRead;
    if (kept.empty())
        return kNoPath;
    *place = kept;
    return kQvxOK;
}

std::vector<std::string> CrashLocks::lockFiles() const
{
    std::vector<std::string> files;
    std::error_code failed;
    for (fs::directory_iterator each(fFolder, failed), end; !failed && each != end;
         each.increment(failed)) {
        if (each->path().filename().native().starts_with(kLockName))
            files.push_back(each->path().native());
    }
    return files;
}

bool CrashLocks::oldFolderTells() const { return IsFolder(fOldFolder) && fRunning().size() == 1; }

bool CrashLocks::U_CrashSemaphoreExists() const
{
    const bool old = oldFolderTells();
    if (!IsFolder(fFolder) || old)
        return old;
    if (IsEmptyFolder(fFolder))
        return false;
    const std::vector<std::string> running = fRunning();
    if (running.size() < 2)
        return true;  // this run has no lock yet, so any is a relic
    return std::ranges::any_of(lockFiles(), [&](const std::string& file) {
        std::string place;
        if (readContentsOfFile(file, &place))
            return false;
        return place.empty() || place == fPlace ||
               std::ranges::find(running, place) == running.end();
    });
}

std::string CrashLocks::U_UniqueLockFileURLInside(const std::string& baseName) const
{
    using Clock = std::chrono::system_clock;
    const auto now =
        std::chrono::round<std::chrono::seconds>(Clock::now().time_since_epoch()) - kReferenceDate;
    const std::string name = fFolder + '/' + baseName + '_' + std::to_string(now.count());
    std::string free = name;
    std::error_code failed;
    for (int i = 1; fs::exists(free, failed); ++i)
        free = name + '.' + std::to_string(i);
    return free;
}

void CrashLocks::U_WriteCrashSemaphore()
{
    if (fFolder.empty() || !MakePrivateFolders(fFolder))
        return;
    const std::string path = U_UniqueLockFileURLInside(std::string(kLockName));
    std::ofstream file(path, std::ios::binary);
    file << fPlace.size() << '\n' << fPlace;
    file.close();
    if (!file)
        return Remove(path);
    fCrashLockFile = path;
    NoteForExit(path);
}

void CrashLocks::U_ClearCrashSemaphore(bool own, bool orphaned)
{
    if (orphaned && oldFolderTells()) {
        std::error_code ignored;
        fs::remove_all(fOldFolder, ignored);
    }
    if (!IsFolder(fFolder))
        return;
    if (!IsEmptyFolder(fFolder)) {
        if (own)
            clearOwn();
        if (orphaned)
            clearOrphaned();
    }
    if (IsEmptyFolder(fFolder))
        Remove(fFolder);
}

void CrashLocks::clearOwn()
{
    if (!fCrashLockFile.empty()) {
        Remove(fCrashLockFile);
        fCrashLockFile.clear();
        NoteForExit({});
        return;
    }
    for (const std::string& file : lockFiles()) {
        std::string place;
        if (readContentsOfFile(file, &place) || place.empty() || place == fPlace)
            Remove(file);
    }
}

void CrashLocks::clearOrphaned()
{
    const std::vector<std::string> running = fRunning();
    for (const std::string& file : lockFiles()) {
        std::string place;
        if (readContentsOfFile(file, &place) || place.empty() ||
            std::ranges::find(running, place) == running.end())
            Remove(file);
    }
}

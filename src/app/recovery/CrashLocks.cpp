#include "app/recovery/CrashLocks.h"

#include "platform/Folders.h"

#include <algorithm>
#include <cerrno>
#include <charconv>
#include <chrono>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <sys/stat.h>

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

}  // namespace

CrashLocks::CrashLocks(std::string dataFolder, std::string place,
                       std::function<std::vector<std::string>()> running)
    : fFolder(dataFolder + "/CrashLocks"),
      fOldFolder(dataFolder + "/CrashLock"),
      fPlace(std::move(place)),
      fRunning(std::move(running))
{
}

// The length comes first, so that a file that was cut off is known for one.
QvxStatus CrashLocks::readContentsOfFile(const std::string& path, std::string* place)
{
    std::ifstream file(path, std::ios::binary);
    if (!file)
        return errno ? errno : ENOENT;
    std::ostringstream all;
    all << file.rdbuf();
    const std::string text = all.str();
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
    for (const fs::directory_entry& entry : fs::directory_iterator(fFolder, failed)) {
        if (entry.path().filename().native().starts_with(kLockName))
            files.push_back(entry.path().native());
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
    if (!MakePrivateFolders(fFolder))
        return;
    const std::string path = U_UniqueLockFileURLInside(std::string(kLockName));
    std::ofstream file(path, std::ios::binary);
    file << fPlace.size() << '\n' << fPlace;
    file.close();
    if (file)
        fCrashLockFile = path;
    else
        Remove(path);
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

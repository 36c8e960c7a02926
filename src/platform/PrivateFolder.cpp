#include "platform/PrivateFolder.h"

#include "util/Log.h"

#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <new>
#include <sys/file.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>
#include <utility>

namespace fs = std::filesystem;

namespace {

// Closed at its end unless it is taken over.
class Descriptor {
public:
    explicit Descriptor(int file) : fFile(file) {}
    ~Descriptor()
    {
        if (fFile >= 0)
            close(fFile);
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    [[nodiscard]] int Get() const { return fFile; }
    [[nodiscard]] int Release() { return std::exchange(fFile, -1); }

private:
    int fFile;
};

int OpenFolder(const std::string& path)
{
    return open(path.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
}

int OpenMarker(int folder, const std::string& marker, int making)
{
    constexpr int kFlags = O_RDWR | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC;
    return openat(folder, marker.c_str(), kFlags | making, 0600);
}

bool TakeLock(int file) { return flock(file, LOCK_EX | LOCK_NB) == 0; }

bool StillNames(const std::string& path, int descriptor)
{
    struct stat named{}, opened{};
    return lstat(path.c_str(), &named) == 0 && fstat(descriptor, &opened) == 0 &&
           named.st_dev == opened.st_dev && named.st_ino == opened.st_ino;
}

// Links inside are removed, not followed.
void RemoveFolder(const std::string& path) noexcept
{
    try {
        std::error_code ignored;
        fs::remove_all(path, ignored);
    } catch (const std::bad_alloc&) {
        LogLine("no memory to remove a private folder");  // the next start does it
    }
}

// Opens the folder that was just made, and locks it. EEXIST when another start has taken it for an
// abandoned one before it was locked.
QvxStatus LockNewFolder(const std::string& path, int* lock)
{
    Descriptor folder(OpenFolder(path));
    if (folder.Get() < 0) {
        const QvxStatus status = errno == ENOENT ? EEXIST : errno;
        rmdir(path.c_str());
        return status;
    }
    const bool taken = !TakeLock(folder.Get()) && errno == EWOULDBLOCK;
    if (taken || !StillNames(path, folder.Get()))
        return EEXIST;
    *lock = folder.Release();
    return kQvxOK;
}

void RemoveIfAbandoned(const std::string& path, const std::string& marker)
{
    const Descriptor folder(OpenFolder(path));
    if (folder.Get() < 0 || !TakeLock(folder.Get()))
        return;
    const Descriptor file(marker.empty() ? -1 : OpenMarker(folder.Get(), marker, 0));
    const bool marked = !marker.empty() && (file.Get() >= 0 || errno != ENOENT);
    if (!marked || (file.Get() >= 0 && TakeLock(file.Get())))
        RemoveFolder(path);
}

}  // namespace

PrivateFolder::~PrivateFolder()
{
    if (!fPath.empty())
        RemoveFolder(fPath);
    if (fLock >= 0)
        close(fLock);
}

QvxStatus MakePrivateFolder(const std::string& path, const std::string& marker,
                            std::unique_ptr<PrivateFolder>* folder)
{
    try {
        std::unique_ptr<PrivateFolder> made(new PrivateFolder);
        std::string kept = path;
        if (mkdir(path.c_str(), 0700) != 0)
            return errno;
        if (const QvxStatus status = LockNewFolder(path, &made->fLock))
            return status;
        made->fPath = std::move(kept);
        if (!marker.empty()) {
            // The folder's own lock keeps sweeps away until the marker is locked.
            Descriptor file(OpenMarker(made->fLock, marker, O_CREAT | O_EXCL));
            if (file.Get() < 0)
                return errno;
            static_cast<void>(TakeLock(file.Get()));
            close(std::exchange(made->fLock, file.Release()));
        }
        *folder = std::move(made);
        return kQvxOK;
    } catch (const std::bad_alloc&) {
        return kQvxNoMemory;
    }
}

void RemoveAbandonedFolders(const std::string& parent, const std::string& marker,
                            bool (*isOurs)(std::string_view name))
{
    std::error_code failed;
    for (fs::directory_iterator entry(parent, failed), end; !failed && entry != end;
         entry.increment(failed)) {
        if (isOurs(entry->path().filename().native()))
            RemoveIfAbandoned(entry->path().native(), marker);
    }
}

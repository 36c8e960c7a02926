// Where copies lie: a folder for each tree, named after what was opened.
#include "dicom_core/opening/CacheCopy.h"
#include "dicom_core/opening/PathNames.h"
#include "dicom_core/opening/ZELDcmTree.h"
#include "dicom_core/values/ParserText.h"
#include "platform/Folders.h"
#include "util/FileNames.h"
#include "util/Log.h"

#include "qpix/zelImageSource.h"
#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <mutex>
#include <new>
#include <sys/file.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

constexpr const char* kDataFolder = "Data";
constexpr const char* kExtension = ".files";
constexpr int kMostOfOneName = 10000;
constexpr std::size_t kMaxUIDBytes = 256;

// Empty if there is none.
std::string FolderOfCacheFolders()
{
    const std::string caches = UserCachesFolder();
    std::string folder = caches.empty() ? std::string() : JoinedPath(caches, kDataFolder);
    if (!folder.empty() && MakePrivateFolders(folder))
        return folder;
    const std::string temporary = TemporaryFolder();
    LogLine("ATT: cachesURL was nil, using: " + temporary);
    folder = JoinedPath(temporary, kDataFolder);
    return !temporary.empty() && MakePrivateFolders(folder) ? folder : std::string();
}

int OpenFolder(const std::string& path)
{
    return open(path.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
}

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
        LogLine("no memory to remove a cache folder");  // the next start does it
    }
}

// A new folder that nobody else uses, locked. EEXIST if the name is taken, any other errno if no
// folder can be made. A file system without locks gives one that no other start removes.
QvxStatus MakeLockedFolder(const std::string& path, int* lock)
{
    if (mkdir(path.c_str(), 0700) != 0)
        return errno;
    const int descriptor = OpenFolder(path);
    if (descriptor < 0) {
        const QvxStatus status = errno == ENOENT ? EEXIST : errno;
        rmdir(path.c_str());
        return status;
    }
    // Another start may have taken it for an abandoned one before it was locked.
    const bool taken = flock(descriptor, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK;
    if (taken || !StillNames(path, descriptor)) {
        close(descriptor);
        return EEXIST;
    }
    *lock = descriptor;
    return kQvxOK;
}

void RemoveIfAbandoned(const std::string& path)
{
    const int descriptor = OpenFolder(path);
    if (descriptor < 0)
        return;
    if (flock(descriptor, LOCK_EX | LOCK_NB) == 0)
        RemoveFolder(path);
    close(descriptor);
}

void RemoveAbandonedIn(const std::string& folder)
{
    std::error_code failed;
    for (fs::directory_iterator entry(folder, failed), end; !failed && entry != end;
         entry.increment(failed)) {
        const std::string path = entry->path().string();
        if (path.find(kExtension, folder.size()) != std::string::npos)
            RemoveIfAbandoned(path);
    }
}

std::string MakeFolderOf(ZELDcmTree* tree, const std::string& ending)
{
    tree->setFileCopiesFolder(
        CopiesDirectoryForDisk(LastComponent(tree->sourceFilePath()) + ending));
    return tree->fileCopiesFolder();
}

}  // namespace

CacheFolder::~CacheFolder()
{
    RemoveFolder(fPath);
    close(fLock);
}

void RemoveAbandonedCacheFolders()
{
    if (const std::string folder = FolderOfCacheFolders(); !folder.empty())
        RemoveAbandonedIn(folder);
}

std::unique_ptr<CacheFolder> CopiesDirectoryForDisk(const std::string& name)
{
    static std::once_flag cleaned;
    const std::string folder = FolderOfCacheFolders();
    if (folder.empty())
        return nullptr;
    std::call_once(cleaned, RemoveAbandonedIn, folder);
    for (int number = 0; number < kMostOfOneName; ++number) {
        const std::string ending =
            number == 0 ? kExtension : kExtension + ('_' + std::to_string(number));
        std::string path =
            JoinedPath(folder, CleanFileName(name, kMaxFileNameBytes - ending.size()) + ending);
        int lock = -1;
        const QvxStatus status = MakeLockedFolder(path, &lock);
        if (status == kQvxOK)
            return std::unique_ptr<CacheFolder>(new CacheFolder(std::move(path), lock));
        if (status != EEXIST)
            return nullptr;
    }
    return nullptr;
}

std::string U_Folder_CacheFolder(ZELDcmTree* tree) { return MakeFolderOf(tree, "_folder"); }

std::string U_GetDICOMDIR_CacheFolder(ZELDcmTree* tree, zelImageSource* directory)
{
    std::string uid;  // of the file: (0002,0003)
    const zelParserVisit visit(directory);
    if (visit.Parser())
        static_cast<void>(Parser_GetElementValueInCString(visit.Parser(), QvxElementRef::None,
                                                          0x0002, 0x0003, 1, kMaxUIDBytes, &uid));
    return MakeFolderOf(tree, uid.empty() ? "_dicomdir" : '_' + uid);
}

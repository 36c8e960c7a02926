#include "platform/RunningCopies.h"

#include "platform/FileLock.h"
#include "platform/Folders.h"

#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

constexpr const char* kGate = "copies.lock";  // held for as long as the list is read or changed
constexpr const char* kPrefix = "copy-";
constexpr std::size_t kMostPlace = 4096;

std::string PlaceIn(int file)
{
    std::string place(kMostPlace, '\0');
    const ssize_t length = pread(file, place.data(), place.size(), 0);
    place.resize(length > 0 ? static_cast<std::size_t>(length) : 0);
    return place;
}

}  // namespace

RunningCopies::RunningCopies(std::string folder, std::string place)
    : fFolder(std::move(folder)), fPlace(std::move(place))
{
    if (fFolder.empty())
        return;
    fFolder = fs::path(fFolder + "/.").lexically_normal().parent_path().native();
    const FileLock gate(fFolder + '/' + kGate);
    fName = fFolder + '/' + kPrefix + std::to_string(getpid());
    std::error_code failed;
    for (int i = 1; fs::exists(fName, failed) && i < 100;
         ++i)  // of another process with that number
        fName = fFolder + '/' + kPrefix + std::to_string(getpid()) + '-' + std::to_string(i);
    fFile = open(fName.c_str(), O_RDWR | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0600);
    if (fFile < 0)
        return;
    static_cast<void>(flock(fFile, LOCK_EX | LOCK_NB));
    static_cast<void>(!write(fFile, fPlace.data(), fPlace.size()));
}

RunningCopies::~RunningCopies()
{
    if (fFile < 0)
        return;
    const FileLock gate(fFolder + '/' + kGate);
    unlink(fName.c_str());
    close(fFile);
}

std::vector<std::string> RunningCopies::places() const
{
    std::vector<std::string> found = {fPlace};
    if (fFolder.empty())
        return found;
    const FileLock gate(fFolder + '/' + kGate);
    std::error_code failed;
    for (fs::directory_iterator each(fFolder, failed), end; !failed && each != end;
         each.increment(failed)) {
        const std::string name = each->path().native();
        if (!each->path().filename().native().starts_with(kPrefix) || name == fName)
            continue;
        const int file = open(name.c_str(), O_RDWR | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC);
        if (file < 0)
            continue;
        if (flock(file, LOCK_EX | LOCK_NB) == 0)
            unlink(name.c_str());  // its process is no more
        else
            found.push_back(PlaceIn(file));
        close(file);
    }
    return found;
}

std::string MeetingFolder()
{
    const char* runtime = std::getenv("XDG_RUNTIME_DIR");
    struct stat info{};
    const bool usable = runtime && *runtime == '/' && stat(runtime, &info) == 0 &&
                        S_ISDIR(info.st_mode) && info.st_uid == getuid() &&
                        (info.st_mode & 077) == 0;
    std::string folder =
        usable ? runtime + std::string("/org.zelora.Viewer") : UserCachesFolder() + "/running";
    return MakePrivateFolders(folder) ? folder : std::string();
}

std::string PlaceOfProgram()
{
    std::error_code failed;
    const fs::path place = fs::read_symlink("/proc/self/exe", failed);
    return failed ? std::string() : place.native();
}

#include "platform/FileCopy.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <new>
#include <string_view>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>
#include <utility>
#include <vector>

namespace {

class Descriptor {
public:
    Descriptor() = default;
    ~Descriptor() { Close(); }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    void Take(int descriptor)
    {
        Close();
        fNumber = descriptor;
    }
    // An errno: some file systems report a full disk only here.
    QvxStatus Close()
    {
        const int number = std::exchange(fNumber, -1);
        return number >= 0 && close(number) != 0 && errno != EINTR ? errno : kQvxOK;
    }
    [[nodiscard]] int Number() const { return fNumber; }

private:
    int fNumber = -1;
};

// The copy while it is being made: gone again unless it gets its name.
class UnfinishedFile {
public:
    ~UnfinishedFile()
    {
        if (!fPath.empty())
            unlink(fPath.c_str());
    }
    UnfinishedFile() = default;
    UnfinishedFile(const UnfinishedFile&) = delete;
    UnfinishedFile& operator=(const UnfinishedFile&) = delete;

    QvxStatus CreateBeside(const std::string& target, Descriptor* descriptor)
    {
        std::string path = target.substr(0, target.rfind('/') + 1) + ".copy-XXXXXX";
        const int number = mkostemp(path.data(), O_CLOEXEC);
        if (number < 0)
            return errno;
        descriptor->Take(number);
        fPath = std::move(path);
        return kQvxOK;
    }

    QvxStatus FinishAs(const std::string& target)
    {
        if (renameat2(AT_FDCWD, fPath.c_str(), AT_FDCWD, target.c_str(), RENAME_NOREPLACE) != 0) {
            if (errno != EINVAL && errno != ENOSYS)
                return errno;
            // A file system that can't refuse: nobody else writes into a private folder.
            struct stat info{};
            if (lstat(target.c_str(), &info) == 0)
                return EEXIST;
            if (rename(fPath.c_str(), target.c_str()) != 0)
                return errno;
        }
        fPath.clear();
        return kQvxOK;
    }

private:
    std::string fPath;  // empty: there is none
};

QvxStatus OpenRegularFile(const std::string& path, Descriptor* descriptor, struct stat* info)
{
    int number = -1;
    do {
        number = open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY | O_NOFOLLOW);
    } while (number < 0 && errno == EINTR);
    if (number < 0)
        return errno == ENXIO ? kQvxNotOfKind : errno;
    descriptor->Take(number);
    if (fstat(number, info) != 0)
        return errno;
    return S_ISREG(info->st_mode) ? kQvxOK : kQvxNotOfKind;
}

// One run of the data of one file into another.
class DataCopy {
public:
    DataCopy(int source, int target, std::uint64_t total, const FileCopyCallback& callback)
        : fSource(source),
          fTarget(target),
          fTotal(total),
          fCallback(callback),
          fPiece(kFileCopyPiece)
    {
    }

    QvxStatus Run()
    {
        while (fCopied < fTotal) {
            const QvxStatus status = CopyPiece();
            const bool failed = status > 0;
            if (status < 0)
                return status;
            if (fCallback && !fCallback(failed ? FileCopyEvent::Error : FileCopyEvent::Progress,
                                        fCopied, fTotal))
                return ECANCELED;
            if (failed && !fCallback)
                return status;
        }
        return kQvxOK;
    }

private:
    QvxStatus CopyPiece()
    {
        const auto wanted = std::min<std::uint64_t>(fTotal - fCopied, fPiece.size());
        const ssize_t got = pread(fSource, fPiece.data(), wanted, static_cast<off_t>(fCopied));
        if (got < 0)
            return errno == EINTR ? kQvxOK : errno;
        if (got == 0)
            return kQvxEndOfFile;
        const ssize_t put = pwrite(fTarget, fPiece.data(), static_cast<std::size_t>(got),
                                   static_cast<off_t>(fCopied));
        if (put < 0)
            return errno == EINTR ? kQvxOK : errno;
        if (put == 0)
            return EIO;
        fCopied += static_cast<std::uint64_t>(put);
        return kQvxOK;
    }

    int fSource, fTarget;
    std::uint64_t fTotal, fCopied = 0;
    const FileCopyCallback& fCallback;
    std::vector<char> fPiece;
};

// What stands beside the data. Other attributes belong to the system, not to the file's content.
void CopyUserAttributes(int source, int target)
{
    const ssize_t size = flistxattr(source, nullptr, 0);
    if (size <= 0)
        return;
    std::vector<char> names(static_cast<std::size_t>(size));
    const ssize_t listed = flistxattr(source, names.data(), names.size());
    std::string_view rest(names.data(), listed > 0 ? static_cast<std::size_t>(listed) : 0);
    std::vector<char> value;
    for (std::size_t end = 0; (end = rest.find('\0')) != std::string_view::npos;
         rest.remove_prefix(end + 1)) {
        const char* name = rest.data();
        const ssize_t length = fgetxattr(source, name, nullptr, 0);
        if (length < 0 || !rest.starts_with("user."))
            continue;
        value.resize(static_cast<std::size_t>(length));
        const ssize_t got = fgetxattr(source, name, value.data(), value.size());
        if (got >= 0)
            static_cast<void>(
                fsetxattr(target, name, value.data(), static_cast<std::size_t>(got), 0));
    }
}

void CopyMetadata(int source, const struct stat& info, int target)
{
    CopyUserAttributes(source, target);
    // Whoever may copy a file may read the copy.
    static_cast<void>(fchmod(target, (info.st_mode & 0777) | S_IRUSR));
    const std::array<timespec, 2> times{info.st_atim, info.st_mtim};
    static_cast<void>(futimens(target, times.data()));
}

QvxStatus CopyIt(const std::string& source, const std::string& target,
                 const FileCopyCallback& callback)
{
    struct stat info{};
    if (lstat(target.c_str(), &info) == 0)
        return EEXIST;
    Descriptor from, to;
    if (const QvxStatus status = OpenRegularFile(source, &from, &info))
        return status;
    UnfinishedFile copy;
    if (const QvxStatus status = copy.CreateBeside(target, &to))
        return status;
    static_cast<void>(posix_fadvise(from.Number(), 0, 0, POSIX_FADV_SEQUENTIAL));
    DataCopy data(from.Number(), to.Number(), static_cast<std::uint64_t>(info.st_size), callback);
    if (const QvxStatus status = data.Run())
        return status;
    CopyMetadata(from.Number(), info, to.Number());
    if (const QvxStatus status = to.Close())
        return status;
    return copy.FinishAs(target);
}

}  // namespace

QvxStatus CopyOneFile(const std::string& source, const std::string& target,
                      const FileCopyCallback& callback)
{
    constexpr char kNul = '\0';
    if (source.find(kNul) != std::string::npos || target.find(kNul) != std::string::npos)
        return ENOENT;
    try {
        return CopyIt(source, target, callback);
    } catch (const std::bad_alloc&) {
        return ENOMEM;
    }
}

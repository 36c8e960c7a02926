#include "util/ByteSource.h"

#include "util/CheckedMath.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <new>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace {

constexpr std::uint32_t kFirstWindow = 4 * 1024;
constexpr std::uint32_t kLargestWindow = 64 * 1024;

// One window block a thread is kept between files, so that a scan of many files does not allocate
// one each.
thread_local std::unique_ptr<std::byte[]> tSpareWindow;

// Nanoseconds since 1970. Any time that a file system can claim: it may wrap round.
std::int64_t ModifiedTime(const struct stat& info)
{
    const auto seconds = static_cast<std::uint64_t>(info.st_mtim.tv_sec);
    return static_cast<std::int64_t>(seconds * 1'000'000'000u +
                                     static_cast<std::uint64_t>(info.st_mtim.tv_nsec));
}

std::unique_ptr<std::byte[]> TakeWindow()
{
    if (tSpareWindow)
        return std::move(tSpareWindow);
    return std::unique_ptr<std::byte[]>(new (std::nothrow) std::byte[kLargestWindow]);
}

}  // namespace

QvxStatus FileSource::Open(const std::string& path, std::unique_ptr<FileSource>* source,
                           const FileIdentity* expected)
{
    if (path.empty() || path.find('\0') != std::string::npos)
        return kQvxFileNotFound;
    std::unique_ptr<FileSource> opened(new (std::nothrow) FileSource);
    if (!opened)
        return kQvxNoMemory;
    opened->fPath = path;
    if (expected)
        opened->fIdentity = *expected;
    if (const QvxStatus status = opened->OpenDescriptor())
        return status;
    *source = std::move(opened);
    return kQvxOK;
}

FileSource::~FileSource() { CloseDescriptor(); }

QvxStatus FileSource::OpenDescriptor()
{
    int fd = -1;
    do {
        fd = ::open(fPath.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY);
    } while (fd < 0 && errno == EINTR);
    if (fd < 0)
        return errno == ENXIO ? kQvxNotOfKind : errno;
    struct stat info;
    if (::fstat(fd, &info) != 0 || !S_ISREG(info.st_mode) || info.st_size <= 0) {
        ::close(fd);
        return kQvxNotOfKind;
    }
    const FileIdentity now{info.st_dev, info.st_ino, static_cast<std::uint64_t>(info.st_size),
                           ModifiedTime(info)};
    if (fIdentity.Known() && fIdentity != now) {
        ::close(fd);
        return kQvxSeekFailed;
    }
    fIdentity = now;
    fDescriptor = fd;
    return kQvxOK;
}

void FileSource::CloseDescriptor()
{
    if (fDescriptor >= 0)
        ::close(fDescriptor);
    fDescriptor = -1;
    if (fWindow && !tSpareWindow)
        tSpareWindow = std::move(fWindow);
    fWindow.reset();
    fWindowFilled = 0;
    fNextWindow = 0;
}

void FileSource::EndUse()
{
    if (fUses > 0 && --fUses == 0)
        CloseDescriptor();
}

QvxStatus FileSource::ReadFile(std::uint64_t offset, std::span<std::byte> dest)
{
    if (fDescriptor < 0) {
        if (OpenDescriptor() != kQvxOK)
            return kQvxSeekFailed;
    }
    std::size_t done = 0;
    while (done < dest.size()) {
        const ssize_t got = ::pread(fDescriptor, dest.data() + done, dest.size() - done,
                                    static_cast<off_t>(offset + done));
        if (got < 0 && errno == EINTR)
            continue;
        if (got < 0)
            return kQvxSeekFailed;
        if (got == 0)  // the file shrank under us
            return kQvxEndOfFile;
        done += static_cast<std::size_t>(got);
    }
    return kQvxOK;
}

QvxStatus FileSource::ReadAt(std::uint64_t offset, std::span<std::byte> dest)
{
    if (!RunFits<std::uint64_t>(offset, dest.size(), Size()))
        return kQvxEndOfFile;
    if (dest.empty())
        return kQvxOK;
    const auto inWindow = [&] {
        return offset >= fWindowStart &&
               RunFits<std::uint64_t>(offset - fWindowStart, dest.size(), fWindowFilled);
    };
    if (!inWindow()) {
        const ByteSourceUse use(this);
        // A run of its own size, or a read outside any use, goes straight to its destination.
        if (dest.size() >= kFirstWindow || fUses == 1)
            return ReadFile(offset, dest);
        if (!fWindow && !(fWindow = TakeWindow()))
            return ReadFile(offset, dest);
        // Reads that follow one another earn a larger window, jumps go back to the smallest.
        const std::uint64_t windowEnd = fWindowStart + fWindowFilled;
        const bool follows =
            fWindowFilled > 0 && offset >= fWindowStart && offset < windowEnd + kFirstWindow;
        fNextWindow = follows ? std::min(fNextWindow * 4, kLargestWindow) : kFirstWindow;
        // A window that begins the file begins at its start: one page for most headers.
        const std::uint64_t start = offset + dest.size() <= kFirstWindow ? 0 : offset;
        const auto fill = static_cast<std::uint32_t>(
            std::min<std::uint64_t>(fNextWindow, fIdentity.fSize - start));
        fWindowFilled = 0;
        if (const QvxStatus status = ReadFile(start, {fWindow.get(), fill}))
            return status;
        fWindowStart = start;
        fWindowFilled = fill;
    }
    std::memcpy(dest.data(), fWindow.get() + (offset - fWindowStart), dest.size());
    return kQvxOK;
}

QvxStatus MemorySource::ReadAt(std::uint64_t offset, std::span<std::byte> dest)
{
    if (!RunFits<std::uint64_t>(offset, dest.size(), fBytes.size()))
        return kQvxEndOfFile;
    if (!dest.empty())
        std::memcpy(dest.data(), fBytes.data() + offset, dest.size());
    return kQvxOK;
}

#include "pixels/DiskPixFile.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/types.h>
#include <unistd.h>

QvxStatus DiskStatusOf(int error)
{
    switch (error) {
        case ENOSPC:
        case EDQUOT:
        case EFBIG:
            return kQvxDiskFull;
        case EMLINK:
            return kQvxDirectoryFull;
        case EMFILE:
        case ENFILE:
            return kQvxTooManyFiles;
        case ENOENT:
            return kQvxFileNotFound;
        default:
            return error;
    }
}

QvxStatus ReserveFile(int file, std::int64_t size)
{
    // So that a full disk shows now, not in the middle of the pixels.
    const int reserved = posix_fallocate(file, 0, size);
    if (reserved != 0 && reserved != EOPNOTSUPP && reserved != EINVAL)
        return DiskStatusOf(reserved);
    return ftruncate(file, size) == 0 ? kQvxOK : DiskStatusOf(errno);
}

QvxStatus ReadAt(int file, std::int64_t offset, void* bytes, std::size_t count)
{
    auto* at = static_cast<std::byte*>(bytes);
    while (count > 0) {
        const ssize_t got = pread(file, at, count, offset);
        if (got < 0 && errno == EINTR)
            continue;
        if (got <= 0)
            return got == 0 ? kQvxEndOfFile : DiskStatusOf(errno);
        at += got;
        offset += got;
        count -= static_cast<std::size_t>(got);
    }
    return kQvxOK;
}

QvxStatus WriteAt(int file, std::int64_t offset, const void* bytes, std::size_t count)
{
    const auto* at = static_cast<const std::byte*>(bytes);
    while (count > 0) {
        const ssize_t put = pwrite(file, at, count, offset);
        if (put < 0 && errno == EINTR)
            continue;
        if (put <= 0)
            return put == 0 ? kQvxDiskFull : DiskStatusOf(errno);
        at += put;
        offset += put;
        count -= static_cast<std::size_t>(put);
    }
    return kQvxOK;
}

#include "tool/OpenedFile.h"

#include "dicom_core/values/ParserOpen.h"

#include <cerrno>
#include <cstdlib>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

// Why a path can't be opened, better than its status alone would say it.
std::string ReasonOfPath(const std::string& path, QvxStatus status)
{
    struct stat info;
    if (::stat(path.c_str(), &info) != 0)
        return std::string(StatusText(status));
    if (S_ISDIR(info.st_mode))
        return "a folder, not a file";
    if (!S_ISREG(info.st_mode))
        return "not a regular file";
    if (info.st_size == 0)
        return "the file is empty";
    if (info.st_size > off_t{UINT32_MAX})
        return "larger than the format can address (4 GiB)";
    return std::string(StatusText(status));
}

bool WriteAll(int descriptor, std::span<const std::uint8_t> bytes)
{
    while (!bytes.empty()) {
        const ssize_t written = ::write(descriptor, bytes.data(), bytes.size());
        if (written < 0 && errno == EINTR)
            continue;
        if (written <= 0)
            return false;
        bytes = bytes.subspan(static_cast<std::size_t>(written));
    }
    return true;
}

// mkostemp makes files for the owner alone; a new file gets what the user's mask allows.
mode_t ModeOfNewFiles()
{
    const mode_t mask = ::umask(0);
    ::umask(mask);
    return static_cast<mode_t>(0666 & ~mask);
}

QvxStatus WriteAndRename(const std::string& path, std::span<const std::uint8_t> bytes)
{
    std::string temporary = path + ".XXXXXX";
    const int descriptor = ::mkostemp(temporary.data(), O_CLOEXEC);
    if (descriptor < 0)
        return errno;
    QvxStatus status = kQvxOK;
    if (!WriteAll(descriptor, bytes) || ::fchmod(descriptor, ModeOfNewFiles()) != 0)
        status = errno;
    if (::close(descriptor) != 0 && status == kQvxOK)
        status = errno;
    if (status == kQvxOK && ::rename(temporary.c_str(), path.c_str()) != 0)
        status = errno;
    if (status != kQvxOK)
        ::unlink(temporary.c_str());
    return status;
}

}  // namespace

QvxStatus OpenDicomFile(const std::string& path, QvxReaderPtr* reader, std::string* why)
{
    QvxReaderPtr opened;
    if (const QvxStatus status = U_NewDicomParserForFile(path, &opened, true)) {
        *why = ReasonOfPath(path, status);
        return status;
    }
    const QvxStatus walked = Parser_WalkHeader(opened.get());
    const std::string fault = Qvx2Reader_FaultText(opened.get());
    if (walked != kQvxOK)
        *why = std::string(StatusText(walked)) + (fault.empty() ? "" : " " + fault);
    else
        *why = fault.empty() ? "" : "header breaks off " + fault;
    *reader = std::move(opened);
    return walked;
}

QvxStatus WriteWholeFile(const std::string& path, std::span<const std::uint8_t> bytes,
                         std::string* why)
{
    struct stat info;
    if (::stat(path.c_str(), &info) == 0 && !S_ISREG(info.st_mode)) {
        *why = S_ISDIR(info.st_mode) ? "a folder, not a file" : "not a regular file";
        return kQvxNotOfKind;
    }
    const QvxStatus status = WriteAndRename(path, bytes);
    if (status != kQvxOK)
        *why = StatusText(status);
    return status;
}

#include "platform/ZipArchive.h"

#include <cerrno>
#include <ctime>
#include <fcntl.h>
#include <minizip/zip.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr int kBestCompression = 9;

bool Add(zipFile archive, const ZipEntry& entry)
{
    zip_fileinfo info{};
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    localtime_r(&now, &local);
    info.tmz_date = {static_cast<uInt>(local.tm_sec),  static_cast<uInt>(local.tm_min),
                     static_cast<uInt>(local.tm_hour), static_cast<uInt>(local.tm_mday),
                     static_cast<uInt>(local.tm_mon),  static_cast<uInt>(local.tm_year + 1900)};
    if (zipOpenNewFileInZip(archive, entry.name.c_str(), &info, nullptr, 0, nullptr, 0, nullptr,
                            Z_DEFLATED, kBestCompression) != ZIP_OK)
        return false;
    const bool written = zipWriteInFileInZip(archive, entry.bytes.data(),
                                             static_cast<unsigned>(entry.bytes.size())) == ZIP_OK;
    return zipCloseFileInZip(archive) == ZIP_OK && written;
}

}  // namespace

QvxStatus WriteZipArchive(const std::string& path, const std::vector<ZipEntry>& entries)
{
    // The library would make it for everyone to read, and over what is there.
    const int file = open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600);
    if (file < 0)
        return errno;
    close(file);
    bool good = false;
    if (zipFile archive = zipOpen(path.c_str(), APPEND_STATUS_CREATE)) {
        good = true;
        for (const ZipEntry& entry : entries)
            good = good && Add(archive, entry);
        good = zipClose(archive, nullptr) == ZIP_OK && good;
    }
    if (good)
        return kQvxOK;
    unlink(path.c_str());
    return EIO;
}

#include "platform/PreferenceFile.h"

#include "platform/Folders.h"
#include "platform/PropertyList.h"

#include <cerrno>
#include <cstdlib>
#include <fcntl.h>
#include <stdio.h>
#include <sys/file.h>
#include <unistd.h>

namespace {

constexpr int kMaxDamagedFiles = 100;

// Held by one program at a time while it reads, merges and writes. The lock's file stays.
class FileLock {
public:
    explicit FileLock(const std::string& path)
        : fDescriptor(
              open((path + ".lock").c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, 0600))
    {
        fStatus = fDescriptor < 0 ? errno : kQvxOK;
        while (fStatus == kQvxOK && flock(fDescriptor, LOCK_EX) != 0)
            fStatus = errno == EINTR ? kQvxOK : errno;
    }
    ~FileLock()
    {
        if (fDescriptor >= 0)
            close(fDescriptor);
    }
    FileLock(const FileLock&) = delete;
    FileLock& operator=(const FileLock&) = delete;
    [[nodiscard]] QvxStatus Status() const { return fStatus; }

private:
    int fDescriptor;
    QvxStatus fStatus;
};

// Gives the file another name that is free.
QvxStatus SetAside(const std::string& path)
{
    std::string name = path + ".damaged";
    for (int number = 1; number <= kMaxDamagedFiles; ++number) {
        if (access(name.c_str(), F_OK) != 0)
            return rename(path.c_str(), name.c_str()) == 0 ? kQvxOK : errno;
        name = path + ".damaged_" + std::to_string(number);
    }
    return EEXIST;
}

QvxStatus WriteAll(int descriptor, const QByteArray& bytes)
{
    for (qsizetype done = 0; done < bytes.size();) {
        const ssize_t written =
            write(descriptor, bytes.data() + done, static_cast<std::size_t>(bytes.size() - done));
        if (written < 0 && errno == EINTR)
            continue;
        if (written < 0)
            return errno;
        done += written;
    }
    return kQvxOK;
}

// To a name of its own in the same folder first, so that the file is there whole or not at all.
QvxStatus Replace(const std::string& path, const QByteArray& bytes)
{
    std::string temporary = path + ".XXXXXX";
    const int descriptor = mkostemp(temporary.data(), O_CLOEXEC);
    if (descriptor < 0)
        return errno;
    QvxStatus status = WriteAll(descriptor, bytes);
    if (close(descriptor) != 0 && status == kQvxOK)
        status = errno;
    if (status == kQvxOK && rename(temporary.c_str(), path.c_str()) != 0)
        status = errno;
    if (status != kQvxOK)
        unlink(temporary.c_str());
    return status;
}

// Sound, missing or set aside, the place is free for a new file afterwards.
QvxStatus TakeOver(const std::string& path, QVariantMap* values)
{
    const PropertyListReading reading = ReadPropertyListFile(path);
    *values = reading.fRoot.toMap();
    if (reading.fStatus == kQvxFileNotFound)
        return kQvxOK;
    const bool isDict = reading.fRoot.typeId() == QMetaType::QVariantMap;
    if (reading.fStatus == kQvxMalformed || (reading.IsSound() && !isDict))
        return SetAside(path);
    return reading.fStatus;
}

}  // namespace

QvxStatus MergeIntoPreferenceFile(const std::string& path, const QVariantMap& changes,
                                  QVariantMap* merged)
{
    if (!MakePrivateFolders(path.substr(0, path.rfind('/'))))
        return errno ? errno : ENOTDIR;
    const FileLock lock(path);
    QVariantMap values;
    QvxStatus status = lock.Status();
    if (status == kQvxOK)
        status = TakeOver(path, &values);
    if (status != kQvxOK)
        return status;
    for (auto change = changes.begin(); change != changes.end(); ++change) {
        if (change.value().isValid())
            values.insert(change.key(), change.value());
        else
            values.remove(change.key());
    }
    QByteArray bytes;
    status = WritePropertyList(values, &bytes);
    if (status == kQvxOK)
        status = Replace(path, bytes);
    if (status == kQvxOK)
        *merged = values;
    return status;
}

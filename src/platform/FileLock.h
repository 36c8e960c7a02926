// A lock between processes: a file that is locked while the object lives. Waits for it. A lock that
// can't be had is no lock; nothing is told of that.
#pragma once
#include <fcntl.h>
#include <string>
#include <sys/file.h>
#include <unistd.h>

class FileLock {
public:
    explicit FileLock(const std::string& path)
        : fFile(open(path.c_str(), O_RDWR | O_CREAT | O_NOFOLLOW | O_CLOEXEC, 0600))
    {
        if (fFile >= 0)
            static_cast<void>(flock(fFile, LOCK_EX));
    }
    ~FileLock()
    {
        if (fFile >= 0)
            close(fFile);
    }
    FileLock(const FileLock&) = delete;
    FileLock& operator=(const FileLock&) = delete;

private:
    int fFile;
};

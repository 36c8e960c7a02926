#include "platform/HiddenNames.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr std::size_t kMaxHiddenFile = 64 * 1024;

// Reads until `limit`, the end of the file or an error.
void ReadUpTo(int descriptor, std::size_t limit, std::string* text)
{
    text->resize(limit);
    std::size_t have = 0;
    while (have < limit) {
        const ssize_t got = read(descriptor, text->data() + have, limit - have);
        if (got < 0 && errno == EINTR)
            continue;
        if (got <= 0)
            break;
        have += static_cast<std::size_t>(got);
    }
    text->resize(have);
}

}  // namespace

bool ReadSmallFile(int folder, const char* path, std::size_t limit, std::string* text)
{
    struct stat info{};
    if (fstatat(folder, path, &info, AT_SYMLINK_NOFOLLOW) != 0 || !S_ISREG(info.st_mode))
        return false;  // a device would notice the open
    const int descriptor =
        openat(folder, path, O_RDONLY | O_NONBLOCK | O_NOFOLLOW | O_CLOEXEC | O_NOCTTY);
    if (descriptor < 0)
        return false;
    text->clear();
    if (fstat(descriptor, &info) == 0 && S_ISREG(info.st_mode))
        ReadUpTo(descriptor, limit, text);
    close(descriptor);
    return !text->empty();
}

HiddenNames ReadHiddenNames(int folder)
{
    HiddenNames names;
    std::string text;
    if (!ReadSmallFile(folder, kHiddenNamesFile.data(), kMaxHiddenFile, &text))
        return names;
    for (std::size_t start = 0; start < text.size();) {
        const std::size_t end = std::min(text.find('\n', start), text.size());
        // A last line that the limit has cut could name another file than was meant.
        const bool cut = end == text.size() && text.size() == kMaxHiddenFile;
        if (end > start && !cut)
            names.insert(text.substr(start, end - start));
        start = end + 1;
    }
    return names;
}

#include "platform/FileCatalog.h"

#include "platform/DesktopLinks.h"
#include "platform/HiddenNames.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <climits>
#include <cstdlib>
#include <cstring>
#include <dirent.h>
#include <fcntl.h>
#include <memory>
#include <new>
#include <string_view>
#include <sys/stat.h>
#include <unistd.h>

namespace {

struct CloseFolder {
    void operator()(DIR* folder) const noexcept { closedir(folder); }
};
using FolderPtr = std::unique_ptr<DIR, CloseFolder>;

constexpr int kMaxAliasSteps = 16;
constexpr auto kPackageEndings = std::to_array<std::string_view>(
    {".app", ".bundle", ".framework", ".plugin", ".pkg", ".mpkg", ".appdir"});

CatalogKind KindOfLink(int folder, const char* name)
{
    struct stat info{};
    if (fstatat(folder, name, &info, 0) != 0)
        return CatalogKind::BrokenLink;
    if (S_ISREG(info.st_mode))
        return CatalogKind::LinkToFile;
    return S_ISDIR(info.st_mode) ? CatalogKind::LinkToFolder : CatalogKind::Other;
}

// False if the entry has vanished.
bool KindOfUnknown(int folder, const char* name, CatalogKind* kind)
{
    struct stat info{};
    if (fstatat(folder, name, &info, AT_SYMLINK_NOFOLLOW) != 0)
        return false;
    if (S_ISLNK(info.st_mode))
        *kind = KindOfLink(folder, name);
    else if (S_ISREG(info.st_mode))
        *kind = CatalogKind::File;
    else
        *kind = S_ISDIR(info.st_mode) ? CatalogKind::Folder : CatalogKind::Other;
    return true;
}

bool KindOfEntry(int folder, const dirent& entry, CatalogKind* kind)
{
    switch (entry.d_type) {
        case DT_REG:
            *kind = CatalogKind::File;
            return true;
        case DT_DIR:
            *kind = CatalogKind::Folder;
            return true;
        case DT_LNK:
            *kind = KindOfLink(folder, entry.d_name);
            return true;
        case DT_UNKNOWN:
            return KindOfUnknown(folder, entry.d_name, kind);
        default:
            *kind = CatalogKind::Other;
            return true;
    }
}

QvxStatus ReadEntries(DIR* folder, std::vector<CatalogEntry>* entries)
{
    bool hasHiddenFile = false;
    for (;;) {
        errno = 0;
        const dirent* entry = readdir(folder);
        if (!entry)
            break;
        const std::string_view name = entry->d_name;
        if (name == "." || name == "..")
            continue;
        CatalogEntry row;
        if (!KindOfEntry(dirfd(folder), *entry, &row.fKind))
            continue;
        row.fName = name;
        row.fHidden = name.starts_with('.');
        hasHiddenFile = hasHiddenFile || name == kHiddenNamesFile;
        entries->push_back(std::move(row));
    }
    if (errno != 0)
        return errno;
    if (hasHiddenFile) {
        const HiddenNames hidden = ReadHiddenNames(dirfd(folder));
        for (CatalogEntry& row : *entries)
            row.fHidden = row.fHidden || hidden.contains(row.fName);
    }
    return kQvxOK;
}

std::string WithoutEndSlashes(const std::string& path)
{
    const std::size_t end = path.find_last_not_of('/');
    return end == std::string::npos ? path.substr(0, 1) : path.substr(0, end + 1);
}

std::string LastComponent(const std::string& path)
{
    const std::string plain = WithoutEndSlashes(path);
    return plain.substr(plain.rfind('/') + 1);
}

// Up to and with the last "/"; "./" for a bare name.
std::string FolderPartOf(const std::string& path)
{
    const std::size_t slash = path.rfind('/');
    return slash == std::string::npos ? "./" : path.substr(0, slash + 1);
}

bool EndsWithIgnoringCase(std::string_view name, std::string_view ending)
{
    const auto same = [](char a, char b) { return (a >= 'A' && a <= 'Z' ? a + 32 : a) == b; };
    return name.size() > ending.size() &&
           std::equal(ending.begin(), ending.end(), name.end() - std::ssize(ending),
                      [&same](char e, char n) { return same(n, e); });
}

bool ReadLink(const std::string& path, std::string* target)
{
    std::array<char, PATH_MAX> text{};
    const ssize_t size = readlink(path.c_str(), text.data(), text.size());
    if (size <= 0 || static_cast<std::size_t>(size) == text.size())
        return false;
    const std::string link(text.data(), static_cast<std::size_t>(size));
    *target = link.front() == '/' ? link : FolderPartOf(path) + link;
    return true;
}

// One step along a chain of aliases. False when `path` is the end of it, or leads nowhere.
bool NextOfAlias(const std::string& path, std::string* next)
{
    struct stat info{};
    if (lstat(path.c_str(), &info) != 0)
        return false;
    if (S_ISLNK(info.st_mode))
        return ReadLink(path, next);
    return S_ISREG(info.st_mode) && ReadDesktopLink(path, next);
}

struct FreeText {
    void operator()(char* text) const noexcept { std::free(text); }
};

}  // namespace

QvxStatus ListFolder(const std::string& path, std::vector<CatalogEntry>* entries)
{
    if (!entries)
        return kQvxBadArgument;
    const int descriptor =
        open(path.c_str(), O_RDONLY | O_DIRECTORY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY);
    if (descriptor < 0)
        return errno;
    const FolderPtr folder(fdopendir(descriptor));
    if (!folder) {
        const QvxStatus status = errno;
        close(descriptor);
        return status;
    }
    try {
        std::vector<CatalogEntry> found;
        const QvxStatus status = ReadEntries(folder.get(), &found);
        if (status != kQvxOK)
            return status;
        std::ranges::sort(found, {}, &CatalogEntry::fName);
        *entries = std::move(found);
    } catch (const std::bad_alloc&) {
        return kQvxNoMemory;
    }
    return kQvxOK;
}

bool PathIsInvisible(const std::string& path)
{
    const std::string name = LastComponent(path);
    if (name.empty() || name == "." || name == "..")
        return false;
    if (name.front() == '.')
        return true;
    const std::string parent = FolderPartOf(WithoutEndSlashes(path));
    const int folder = open(parent.c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC);
    if (folder < 0)
        return false;
    const bool listed = ReadHiddenNames(folder).contains(name);
    close(folder);
    return listed;
}

bool FolderIsPackage(const std::string& path)
{
    const std::string name = LastComponent(path);
    return std::ranges::any_of(kPackageEndings, [&name](std::string_view ending) {
        return EndsWithIgnoringCase(name, ending);
    });
}

bool ResolveAlias(const std::string& path, std::string* target)
{
    if (!target)
        return false;
    std::string here = WithoutEndSlashes(path), next;
    int steps = 0;
    while (NextOfAlias(here, &next)) {
        if (++steps > kMaxAliasSteps)
            return false;
        here = WithoutEndSlashes(next);
    }
    if (steps == 0)
        return false;
    const std::unique_ptr<char, FreeText> end(realpath(here.c_str(), nullptr));
    if (!end)
        return false;
    *target = end.get();
    return true;
}

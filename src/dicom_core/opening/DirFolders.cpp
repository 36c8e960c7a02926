#include "dicom_core/opening/DirFolders.h"

#include "dicom_core/opening/PathNames.h"
#include "platform/FileCatalog.h"

#include <algorithm>
#include <cstdint>
#include <optional>
#include <sys/stat.h>
#include <unordered_map>

// One folder. It hangs on what the disc calls it, so that records which spell it differently share
// its listing; what isn't on the disc leaves nothing behind, however many records name it.
struct RelFilePathRec {
    std::string fPath;
    std::vector<CatalogEntry> fItems;  // ascending by bytes; none if it can't be read
    // Upper-case name to the first item of the listing that bears it.
    std::unordered_map<std::string, std::uint32_t> fFiles, fFolders;
    std::unordered_map<std::uint32_t, std::unique_ptr<RelFilePathRec>> fBelow;  // those asked for
};

namespace {

bool IsPlainComponent(std::string_view component)
{
    return !component.empty() && component != "." && component != ".." &&
           component.find('/') == std::string_view::npos &&
           component.find('\0') == std::string_view::npos;
}

bool IsFile(const CatalogEntry& item)
{
    return item.fKind == CatalogKind::File || item.fKind == CatalogKind::LinkToFile;
}

void Index(RelFilePathRec* folder)
{
    for (std::uint32_t i = 0; i < folder->fItems.size(); ++i) {
        const CatalogEntry& item = folder->fItems[i];
        if (item.fKind == CatalogKind::Folder)
            folder->fFolders.try_emplace(UpperCaseName(item.fName), i);
        else if (IsFile(item))
            folder->fFiles.try_emplace(UpperCaseName(item.fName), i);
    }
}

// A folder that can't be read is one without files.
std::unique_ptr<RelFilePathRec> List(std::string path)
{
    auto folder = std::make_unique<RelFilePathRec>();
    folder->fPath = std::move(path);
    if (!ListFolder(folder->fPath, &folder->fItems))
        Index(folder.get());
    return folder;
}

// The item with exactly that name.
std::optional<std::uint32_t> ItemNamed(const RelFilePathRec& folder, std::string_view name)
{
    const auto found = std::ranges::lower_bound(
        folder.fItems, name, {}, [](const CatalogEntry& e) { return std::string_view(e.fName); });
    if (found == folder.fItems.end() || found->fName != name)
        return std::nullopt;
    return static_cast<std::uint32_t>(found - folder.fItems.begin());
}

std::optional<std::uint32_t> SubfolderOf(const RelFilePathRec& folder, std::string_view name)
{
    const auto exact = ItemNamed(folder, name);
    if (exact && folder.fItems[*exact].fKind == CatalogKind::Folder)
        return exact;
    const auto found = folder.fFolders.find(UpperCaseName(name));
    return found != folder.fFolders.end() ? std::optional(found->second) : std::nullopt;
}

// On discs that tell case apart, two records may mean two files.
std::optional<std::uint32_t> FileOf(const RelFilePathRec& folder, std::string_view name)
{
    std::optional<std::uint32_t> first = ItemNamed(folder, name);
    if (first && IsFile(folder.fItems[*first]))
        return first;
    first.reset();
    for (const std::string& form : FormsOfDirName(name)) {
        const auto found = folder.fFiles.find(form);
        if (found != folder.fFiles.end() && (!first || found->second < *first))
            first = found->second;
    }
    return first;
}

}  // namespace

std::vector<std::string> FormsOfDirName(std::string_view name)
{
    if (name.ends_with('.'))
        name.remove_suffix(1);
    const std::string bare = UpperCaseName(name);
    std::vector<std::string> forms{bare, bare + '.'};
    const std::size_t dot = bare.rfind('.');
    if (dot == std::string::npos || bare.substr(dot + 1) != "DCM")
        forms.push_back(bare + ".DCM");
    return forms;
}

DirFolders::DirFolders(std::string root)
    : fRoot(std::move(root)),
      fRealRoot(RealFolder(fRoot)),
      fListed(List(fRoot)),
      fLast(fListed.get())
{
}

DirFolders::~DirFolders() = default;

std::string DirFolders::PathBelow(const std::string& root, std::string_view relPath,
                                  std::string_view name)
{
    std::string tail(relPath);
    std::ranges::replace(tail, ':', '/');
    return JoinedPath(root + tail, std::string(name));
}

// From the root down, and no further than the disc goes; null for a folder that isn't there.
RelFilePathRec* DirFolders::Walk(std::string_view relPath)
{
    RelFilePathRec* folder = fListed.get();
    while (!relPath.empty()) {
        if (relPath.front() != ':')
            return nullptr;
        relPath.remove_prefix(1);
        const std::string_view name = relPath.substr(0, relPath.find(':'));
        relPath.remove_prefix(name.size());
        const auto item = IsPlainComponent(name) ? SubfolderOf(*folder, name) : std::nullopt;
        if (!item)
            return nullptr;
        auto& below = folder->fBelow[*item];
        if (!below)
            below = List(JoinedPath(folder->fPath, folder->fItems[*item].fName));
        folder = below.get();
    }
    return folder;
}

const RelFilePathRec* DirFolders::FolderOf(std::string_view relPath)
{
    if (relPath != fLastRelPath) {
        fLast = Walk(relPath);
        fLastRelPath = relPath;
    }
    return fLast;
}

DirFolders::Match DirFolders::Find(std::string_view relPath, std::string_view name, Hit* hit)
{
    const RelFilePathRec* folder = FolderOf(relPath);
    if (!folder || name.empty())
        return Match::NotThere;
    const auto first = FileOf(*folder, name);
    if (!first)
        return Match::NotThere;
    const CatalogEntry& item = folder->fItems[*first];
    const std::string path = JoinedPath(folder->fPath, item.fName);
    if (item.fKind == CatalogKind::LinkToFile && !LeadsInto(path, fRealRoot))
        return Match::NotThere;
    struct stat info{};
    if (stat(path.c_str(), &info) != 0 || !S_ISREG(info.st_mode))
        return Match::NotThere;
    if (info.st_size == 0)
        return Match::Empty;
    *hit = {path, item.fName};
    return Match::Found;
}

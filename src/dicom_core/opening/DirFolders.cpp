#include "dicom_core/opening/DirFolders.h"

#include "dicom_core/opening/PathNames.h"
#include "platform/FileCatalog.h"

#include <QString>
#include <QStringDecoder>
#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <optional>
#include <sys/stat.h>

// One folder; without a path when it isn't there.
struct RelFilePathRec {
    std::string fPath;
    std::vector<CatalogEntry> fItems;
    // Upper-case name to the first item of the listing that bears it.
    std::unordered_map<std::string, std::uint32_t> fFiles, fFolders;
};

namespace {

// Of any alphabet if it is UTF-8, else of ASCII alone.
std::string UpperCase(std::string_view name)
{
    const bool plain = std::ranges::all_of(name, [](char c) { return (c & 0x80) == 0; });
    if (!plain) {
        QStringDecoder decoder(QStringDecoder::Utf8, QStringConverter::Flag::Stateless);
        const QString text = decoder(QByteArrayView(name.data(), std::ssize(name)));
        if (!decoder.hasError())
            return text.toUpper().toStdString();
    }
    std::string upper(name);
    std::ranges::transform(upper, upper.begin(), [](char c) {
        return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
    });
    return upper;
}

std::string RealPath(const std::string& path)
{
    struct FreeText {
        void operator()(char* text) const noexcept { std::free(text); }
    };
    const std::unique_ptr<char, FreeText> real(realpath(path.c_str(), nullptr));
    return real ? real.get() : std::string();
}

bool IsPlainComponent(std::string_view component)
{
    return !component.empty() && component != "." && component != ".." &&
           component.find('/') == std::string_view::npos &&
           component.find('\0') == std::string_view::npos;
}

void Index(RelFilePathRec* folder)
{
    for (std::uint32_t i = 0; i < folder->fItems.size(); ++i) {
        const CatalogEntry& item = folder->fItems[i];
        if (item.fKind == CatalogKind::Folder)
            folder->fFolders.try_emplace(UpperCase(item.fName), i);
        else if (item.fKind == CatalogKind::File || item.fKind == CatalogKind::LinkToFile)
            folder->fFiles.try_emplace(UpperCase(item.fName), i);
    }
}

// The subfolder, with exactly that name if there is one.
const CatalogEntry* Subfolder(const RelFilePathRec& folder, std::string_view name)
{
    const auto exact = std::ranges::lower_bound(
        folder.fItems, name, {}, [](const CatalogEntry& e) { return std::string_view(e.fName); });
    if (exact != folder.fItems.end() && exact->fName == name && exact->fKind == CatalogKind::Folder)
        return &*exact;
    const auto found = folder.fFolders.find(UpperCase(name));
    return found != folder.fFolders.end() ? &folder.fItems[found->second] : nullptr;
}

}  // namespace

std::vector<std::string> FormsOfDirName(std::string_view name)
{
    if (name.ends_with('.'))
        name.remove_suffix(1);
    const std::string bare = UpperCase(name);
    std::vector<std::string> forms{bare, bare + '.'};
    const std::size_t dot = bare.rfind('.');
    if (dot == std::string::npos || bare.substr(dot + 1) != "DCM")
        forms.push_back(bare + ".DCM");
    return forms;
}

DirFolders::DirFolders(std::string root)
    : fRoot(std::move(root)), fRealRoot(JoinedPath(RealPath(fRoot), ""))
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

// A folder that isn't there, or can't be read, is one without files.
std::unique_ptr<RelFilePathRec> DirFolders::List(std::string_view relPath)
{
    auto folder = std::make_unique<RelFilePathRec>();
    if (relPath.empty()) {
        folder->fPath = fRoot;
    } else {
        const std::size_t last = relPath.rfind(':');
        const std::string_view name = relPath.substr(last == std::string_view::npos ? 0 : last + 1);
        if (last == std::string_view::npos || !IsPlainComponent(name))
            return folder;
        const RelFilePathRec& parent = FolderOf(relPath.substr(0, last));
        const CatalogEntry* entry = Subfolder(parent, name);
        if (!entry)
            return folder;
        folder->fPath = JoinedPath(parent.fPath, entry->fName);
    }
    if (!ListFolder(folder->fPath, &folder->fItems))
        Index(folder.get());
    return folder;
}

const RelFilePathRec& DirFolders::FolderOf(std::string_view relPath)
{
    const std::string key(relPath);
    if (const auto known = fFolders.find(key); known != fFolders.end())
        return *known->second;
    auto listed = List(relPath);  // may list its parents, too
    return *fFolders.insert_or_assign(key, std::move(listed)).first->second;
}

DirFolders::Match DirFolders::Find(std::string_view relPath, std::string_view name, Hit* hit)
{
    const RelFilePathRec& folder = FolderOf(relPath);
    std::optional<std::uint32_t> first;
    for (const std::string& form : FormsOfDirName(name)) {
        const auto found = folder.fFiles.find(form);
        if (found != folder.fFiles.end() && (!first || found->second < *first))
            first = found->second;
    }
    if (!first)
        return Match::NotThere;
    const CatalogEntry& item = folder.fItems[*first];
    const std::string path = JoinedPath(folder.fPath, item.fName);
    if (item.fKind == CatalogKind::LinkToFile && !RealPath(path).starts_with(fRealRoot))
        return Match::NotThere;
    struct stat info{};
    if (stat(path.c_str(), &info) != 0 || !S_ISREG(info.st_mode))
        return Match::NotThere;
    if (info.st_size == 0)
        return Match::Empty;
    *hit = {path, item.fName};
    return Match::Found;
}

#include "dicom_core/opening/FolderListing.h"

#include "dicom_core/opening/LeftOut.h"
#include "dicom_core/opening/PathNames.h"
#include "dicom_core/opening/ZELDcmTree.h"

namespace {

// Walks the folders with a stack of its own, so that their depth costs no stack of the thread's.
class Lister {
public:
    Lister(bool recursive, ZELDcmTree* tree, FolderListing* listing)
        : fRecursive(recursive), fTree(tree), fListing(listing)
    {
    }
    QvxStatus Run(const std::string& root, std::vector<CatalogEntry> top,
                  const std::function<QvxStatus()>& poll);

private:
    struct Level {
        std::uint32_t fFolder;
        std::vector<CatalogEntry> fEntries;
        std::size_t fNext = 0;
    };

    void Enter(std::string path, std::vector<CatalogEntry> entries);
    void EnterSubfolder(const ListedEntry& folder);
    [[nodiscard]] std::string_view WhyLeftOut(const CatalogEntry& entry, std::uint32_t folder);
    [[nodiscard]] std::string_view WhyFolderLeftOut(const CatalogEntry& entry) const;
    [[nodiscard]] bool LeadsIntoRoot(const std::string& link);

    bool fRecursive;
    ZELDcmTree* fTree;
    FolderListing* fListing;
    std::string fRealRoot;  // with a "/" behind it; empty until a link is met
    std::vector<Level> fLevels;
};

void Lister::Enter(std::string path, std::vector<CatalogEntry> entries)
{
    const auto number = static_cast<std::uint32_t>(fListing->fFolders.size());
    fListing->fFolders.push_back(std::move(path));
    fLevels.push_back({number, std::move(entries)});
}

void Lister::EnterSubfolder(const ListedEntry& folder)
{
    std::string path = fListing->PathOf(folder);
    std::vector<CatalogEntry> entries;
    if (const QvxStatus status = ListFolder(path, &entries))
        fTree->LeaveOut(std::move(path), LeftOutReason(status));
    else
        Enter(std::move(path), std::move(entries));
}

// A link is followed no further than to a file of the chosen folder: what lies outside was not
// chosen, and links to folders can go round in circles.
bool Lister::LeadsIntoRoot(const std::string& link)
{
    if (fRealRoot.empty())
        fRealRoot = RealFolder(fListing->fFolders.front());
    return LeadsInto(link, fRealRoot);
}

std::string_view Lister::WhyFolderLeftOut(const CatalogEntry& entry) const
{
    if (!fRecursive)
        return kLeftOutFolder;
    if (FolderIsPackage(entry.fName))
        return kLeftOutPackage;
    return fLevels.size() > kMaxFolderDepth ? kLeftOutTooDeep : std::string_view();
}

std::string_view Lister::WhyLeftOut(const CatalogEntry& entry, std::uint32_t folder)
{
    if (entry.fHidden)
        return kLeftOutHidden;
    switch (entry.fKind) {
        case CatalogKind::File:
            return {};
        case CatalogKind::Folder:
            return WhyFolderLeftOut(entry);
        case CatalogKind::LinkToFile:
            return LeadsIntoRoot(JoinedPath(fListing->fFolders[folder], entry.fName))
                       ? std::string_view()
                       : kLeftOutLink;
        case CatalogKind::LinkToFolder:
        case CatalogKind::BrokenLink:
            return kLeftOutLink;
        default:
            return kLeftOutSpecial;
    }
}

QvxStatus Lister::Run(const std::string& root, std::vector<CatalogEntry> top,
                      const std::function<QvxStatus()>& poll)
{
    Enter(root, std::move(top));
    while (!fLevels.empty()) {
        Level& level = fLevels.back();
        if (level.fNext == level.fEntries.size()) {
            fLevels.pop_back();
            continue;
        }
        CatalogEntry& entry = level.fEntries[level.fNext++];
        ListedEntry listed;
        listed.fFolder = level.fFolder;
        listed.fIsFolder = fRecursive && entry.fKind == CatalogKind::Folder;
        listed.fLeftOut = WhyLeftOut(entry, level.fFolder);
        listed.fName = std::move(entry.fName);
        fListing->fEntries.push_back(listed);
        if (!listed.fIsFolder || !listed.fLeftOut.empty())
            continue;
        if (const QvxStatus status = poll())
            return status;
        EnterSubfolder(listed);  // may move the levels
    }
    return kQvxOK;
}

}  // namespace

std::string FolderListing::PathOf(const ListedEntry& entry) const
{
    return JoinedPath(fFolders[entry.fFolder], entry.fName);
}

QvxStatus ListForScan(const std::string& root, std::vector<CatalogEntry> top, bool recursive,
                      ZELDcmTree* tree, const std::function<QvxStatus()>& poll,
                      FolderListing* listing)
{
    return Lister(recursive, tree, listing).Run(root, std::move(top), poll);
}

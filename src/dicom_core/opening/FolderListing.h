// Everything that a scan of a folder will come by, in the order in which it comes by it, from one
// pass over each folder: no file is opened, and only links are looked at singly.
#pragma once
#include "platform/FileCatalog.h"

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

class ZELDcmTree;

inline constexpr int kMaxFolderDepth = 128;  // folders inside one another, the chosen one aside

struct ListedEntry {
    std::string fName;          // bytes
    std::uint32_t fFolder = 0;  // index in FolderListing::fFolders
    bool fIsFolder = false;     // a step into a subfolder
    std::string_view fLeftOut;  // why it isn't taken; empty: it is
    [[nodiscard]] bool IsToRead() const { return !fIsFolder && fLeftOut.empty(); }
};

struct FolderListing {
    std::vector<std::string> fFolders;  // paths; the chosen one first
    std::vector<ListedEntry> fEntries;
    [[nodiscard]] std::string PathOf(const ListedEntry& entry) const;
};

// `top` is the listing of the folder `root`. With `recursive` the entries of a subfolder stand
// behind its own; without it a subfolder is an entry like a file, and left out. Subfolders that
// can't be read are noted in `tree`. `poll` is asked before each subfolder; what it answers but 0
// ends the listing.
[[nodiscard]] QvxStatus ListForScan(const std::string& root, std::vector<CatalogEntry> top,
                                    bool recursive, ZELDcmTree* tree,
                                    const std::function<QvxStatus()>& poll, FolderListing* listing);

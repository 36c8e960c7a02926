// What a folder holds, and what invisibility, package and alias mean on this desktop. Paths are
// bytes: a name that is no valid UTF-8 is a name like any other. Nothing here opens a pipe, a
// device or a socket, and nothing waits. Any thread.
#pragma once
#include "util/StatusCodes.h"

#include <cstdint>
#include <string>
#include <vector>

enum class CatalogKind : std::uint8_t {
    File,  // a regular file
    Folder,
    LinkToFile,    // a symbolic link that ends at a regular file
    LinkToFolder,  // a symbolic link that ends at a folder
    BrokenLink,    // leads nowhere, or round in a circle
    Other          // pipe, socket, device, or a link to one
};

struct CatalogEntry {
    std::string fName;  // bytes, no "/"
    CatalogKind fKind = CatalogKind::Other;
    bool fHidden = false;  // begins with ".", or is listed in the folder's ".hidden" file
};

// All entries of the folder `path` but "." and "..", sorted by bytes: one pass over the folder.
// Only links, and entries of which the file system does not tell the kind, are looked at singly;
// one that vanishes meanwhile is left out. The ".hidden" file is read once, if there is one, and
// never beyond 64 KiB. An errno when the folder can't be opened or read (ENOTDIR for a file).
[[nodiscard]] QvxStatus ListFolder(const std::string& path, std::vector<CatalogEntry>* entries);

// True when the last component of `path` begins with "." or is listed in the ".hidden" file beside
// it. "/", "." and ".." are visible.
[[nodiscard]] bool PathIsInvisible(const std::string& path);

// True when the name ends like an application bundle: .app .bundle .framework .plugin .pkg .mpkg
// .appdir, in any case. The disk is not asked; ask this of folders only.
[[nodiscard]] bool FolderIsPackage(const std::string& path);

// What an alias leads to. An alias is a symbolic link, or a desktop link file: a ".desktop" file of
// Type=Link whose URL is a "file:" one. Chains of both are followed for 16 steps. True if `path` is
// an alias and its end exists: `target` is then the end's absolute path without links. False for
// anything else, `target` untouched.
[[nodiscard]] bool ResolveAlias(const std::string& path, std::string* target);

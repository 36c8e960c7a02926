// The folders that the records of a DICOMDIR name, each listed once, and the files in them by the
// names that a disc may have given them. Discs change case, drop or add a "." and add ".DCM". Names
// are bytes; paths of records begin with ":" and have it between components.
#pragma once
#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

struct RelFilePathRec;

class DirFolders {
public:
    // Everything is looked up below `root`, the directory's own folder.
    explicit DirFolders(std::string root);
    ~DirFolders();
    DirFolders(const DirFolders&) = delete;
    DirFolders& operator=(const DirFolders&) = delete;

    enum class Match { Found, NotThere, Empty };
    struct Hit {
        std::string fPath, fName;  // as they are on the disc
    };
    // The file of exactly that name, else the first of the listing that bears a form of it. Folders
    // are no files, nor are devices, pipes, sockets, or links that lead out of the root. Valid for
    // any bytes; an empty name finds nothing.
    [[nodiscard]] Match Find(std::string_view relPath, std::string_view name, Hit* hit);

    // Where a record points, whether anything is there or not.
    [[nodiscard]] std::string PathOf(std::string_view relPath, std::string_view name) const
    {
        return PathBelow(fRoot, relPath, name);
    }
    [[nodiscard]] static std::string PathBelow(const std::string& root, std::string_view relPath,
                                               std::string_view name);

private:
    [[nodiscard]] const RelFilePathRec* FolderOf(std::string_view relPath);
    [[nodiscard]] RelFilePathRec* Walk(std::string_view relPath);

    std::string fRoot;
    std::string fRealRoot;                    // with a "/" behind it
    std::unique_ptr<RelFilePathRec> fListed;  // of the root; it owns those below
    // Records of one folder mostly follow one another.
    std::string fLastRelPath;
    const RelFilePathRec* fLast;
};

// Upper-case forms under which a file of that name may stand: the name without a "." at its end,
// that with ".DCM" unless it has this extension, that with a ".".
[[nodiscard]] std::vector<std::string> FormsOfDirName(std::string_view name);

// A folder of one process (0700), alive while a lock is held: on the folder, or on a marker file in
// it. Folders of a process that ended badly are known by a lock that can be taken. On a file system
// without locks none ever counts as abandoned. Paths are bytes. Any thread.
#pragma once
#include "util/StatusCodes.h"

#include <memory>
#include <string>
#include <string_view>

class PrivateFolder {
public:
    ~PrivateFolder();  // removes it with all it holds
    PrivateFolder(const PrivateFolder&) = delete;
    PrivateFolder& operator=(const PrivateFolder&) = delete;
    [[nodiscard]] const std::string& Path() const { return fPath; }

private:
    friend QvxStatus MakePrivateFolder(const std::string& path, const std::string& marker,
                                       std::unique_ptr<PrivateFolder>* folder);
    PrivateFolder() = default;
    std::string fPath;  // empty until it is made
    int fLock = -1;     // descriptor of what is locked
};

// Makes a new folder that nobody else uses; its parent must be there. `marker` is the name of the
// locked file in it; empty: the folder itself is locked.
//   EEXIST  the name is taken
// and any other errno: no folder can be made there, and nothing is left of it.
[[nodiscard]] QvxStatus MakePrivateFolder(const std::string& path, const std::string& marker,
                                          std::unique_ptr<PrivateFolder>* folder);
// Removes the folders in `parent` whose process is gone, of those names that `isOurs` knows.
// `marker` as they were made with; a folder that was given up before it had its marker goes too.
void RemoveAbandonedFolders(const std::string& parent, const std::string& marker,
                            bool (*isOurs)(std::string_view name));

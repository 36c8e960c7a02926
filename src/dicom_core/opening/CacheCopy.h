// Copies of the files of slow media in a private folder, which dies with its tree.
#pragma once
#include "platform/PrivateFolder.h"
#include "util/FileRef.h"
#include "util/StatusCodes.h"

#include <memory>
#include <string>

class ZELDcmTree;
class dk_ImageFile;
class zelImageSource;
struct OpenSettings;

// Removes the folders that a program which ended badly has left: those whose lock can be taken. The
// first CopiesDirectoryForDisk of a process does it.
void RemoveAbandonedCacheFolders();

// Optical or ejectable, or a network volume when the preference counts those.
[[nodiscard]] bool U_IsOnSlowVolume(const std::string& path);
[[nodiscard]] bool U_IsOnSlowVolumeBase(const std::string& path);
[[nodiscard]] bool U_IsOnNetworkVolume(const std::string& path);  // also when nothing tells

// A new folder "<name>.files" (or "<name>.files_1", …) in the user's caches, or in the temporary
// folder if there are none; null when none can be made. `name` is cleaned and may be cut.
[[nodiscard]] std::unique_ptr<PrivateFolder> CopiesDirectoryForDisk(const std::string& name);
// Make the tree's cache folder and store it in the tree; answer its path, empty on failure.
std::string U_Folder_CacheFolder(ZELDcmTree* tree);
std::string U_GetDICOMDIR_CacheFolder(ZELDcmTree* tree, zelImageSource* directory);

// 0, 20020 to 20022, kQvxUserCanceled, or an errno. A target that exists is never replaced; after a
// failure nothing is left of the copy. `settings` may be null: nobody watches then.
[[nodiscard]] QvxStatus UU_FileCopy(const std::string& source, const std::string& target,
                                    OpenSettings* settings);
// Path of the copy, empty on failure (`status` says why; kQvxFileNotFound without a source or a
// folder). A name that is taken gets the extension "1", or "2", ….
[[nodiscard]] std::string U_CopyFileToHDCache(dk_ImageFile* file, const std::string& folder,
                                              OpenSettings* settings, QvxStatus* status);
// Each makes the copy the image's file, and the original its `fSourceSpec`. False: not copied, and
// the image must not be used. The second also gives the image a new source, its reader open.
[[nodiscard]] bool CopyDICOMDIRFileToCache(dk_ImageFile* file, const std::string& folder,
                                           OpenSettings* settings);
[[nodiscard]] bool CopyFolderFileToCache(dk_ImageFile* file, const FileRef& source,
                                         const std::string& folder, OpenSettings* settings);

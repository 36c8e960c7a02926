// Where copies lie: a folder for each tree, named after what was opened.
#include "dicom_core/opening/CacheCopy.h"
#include "dicom_core/opening/PathNames.h"
#include "dicom_core/opening/ZELDcmTree.h"
#include "dicom_core/values/ParserText.h"
#include "platform/Folders.h"
#include "util/FileNames.h"
#include "util/Log.h"

#include "qpix/zelImageSource.h"
#include <cerrno>
#include <mutex>

namespace {

constexpr const char* kDataFolder = "Data";
constexpr const char* kExtension = ".files";
constexpr int kMostOfOneName = 10000;
constexpr std::size_t kMaxUIDBytes = 256;

// Empty if there is none.
std::string FolderOfCacheFolders()
{
    const std::string caches = UserCachesFolder();
    std::string folder = caches.empty() ? std::string() : JoinedPath(caches, kDataFolder);
    if (!folder.empty() && MakePrivateFolders(folder))
        return folder;
    const std::string temporary = TemporaryFolder();
    LogLine("ATT: cachesURL was nil, using: " + temporary);
    folder = JoinedPath(temporary, kDataFolder);
    return !temporary.empty() && MakePrivateFolders(folder) ? folder : std::string();
}

void RemoveAbandonedIn(const std::string& folder)
{
    RemoveAbandonedFolders(folder, {}, [](std::string_view name) {
        return name.find(kExtension) != std::string_view::npos;
    });
}

std::string MakeFolderOf(ZELDcmTree* tree, const std::string& ending)
{
    tree->setFileCopiesFolder(
        CopiesDirectoryForDisk(LastComponent(tree->sourceFilePath()) + ending));
    return tree->fileCopiesFolder();
}

}  // namespace

void RemoveAbandonedCacheFolders()
{
    if (const std::string folder = FolderOfCacheFolders(); !folder.empty())
        RemoveAbandonedIn(folder);
}

std::unique_ptr<PrivateFolder> CopiesDirectoryForDisk(const std::string& name)
{
    static std::once_flag cleaned;
    const std::string folder = FolderOfCacheFolders();
    if (folder.empty())
        return nullptr;
    std::call_once(cleaned, RemoveAbandonedIn, folder);
    for (int number = 0; number < kMostOfOneName; ++number) {
        const std::string ending =
            number == 0 ? kExtension : kExtension + ('_' + std::to_string(number));
        const std::string path =
            JoinedPath(folder, CleanFileName(name, kMaxFileNameBytes - ending.size()) + ending);
        std::unique_ptr<PrivateFolder> made;
        const QvxStatus status = MakePrivateFolder(path, {}, &made);
        if (status == kQvxOK)
            return made;
        if (status != EEXIST)
            return nullptr;
    }
    return nullptr;
}

std::string U_Folder_CacheFolder(ZELDcmTree* tree) { return MakeFolderOf(tree, "_folder"); }

std::string U_GetDICOMDIR_CacheFolder(ZELDcmTree* tree, zelImageSource* directory)
{
    std::string uid;  // of the file: (0002,0003)
    const zelParserVisit visit(directory);
    if (visit.Parser())
        static_cast<void>(Parser_GetElementValueInCString(visit.Parser(), QvxElementRef::None,
                                                          0x0002, 0x0003, 1, kMaxUIDBytes, &uid));
    return MakeFolderOf(tree, uid.empty() ? "_dicomdir" : '_' + uid);
}

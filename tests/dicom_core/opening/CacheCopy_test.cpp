// Copies from slow media: where they lie, what they are called, and what a cancel or a full disk
// leaves.
#include "dicom_core/opening/CacheCopy.h"

#include "dicom_core/opening/BuildTree.h"
#include "dicom_core/opening/Builders.h"
#include "dicom_core/opening/FolderScan.h"
#include "dicom_core/opening/LeftOut.h"
#include "dicom_core/opening/OpeningFixtures.h"
#include "dicom_core/opening/ZELDcmTree.h"
#include "dicom_core/tree/dk_ImageFile.h"
#include "fixtures/TempFolder.h"
#include "platform/PreferenceStore.h"
#include "prefs/Prefs.h"

#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <gtest/gtest.h>
#include <iterator>
#include <sys/resource.h>
#include <sys/stat.h>
#include <thread>

namespace fs = std::filesystem;

namespace {

constexpr std::uintmax_t kMiB = 1024 * 1024;

struct CacheCopy : testing::Test {
    CacheCopy()
    {
        setenv("XDG_CACHE_HOME", caches.Path().c_str(), 1);
        prefs_Store().UseFile({});
        prefs_InitializeForApplication();
        settings.progressIsON = true;
        settings.dcmDBRoot = &tree;
        tree.setSourceFilePath(disc.Path());
        folder = U_Folder_CacheFolder(&tree);
    }
    std::string BigFile(const char* name, std::uintmax_t size) const
    {
        std::string path = disc.WriteFile(name, "");
        fs::resize_file(path, size);  // with holes: no disk is filled
        return path;
    }
    std::string CopyOf(const std::string& path, QvxStatus* status)
    {
        dk_ImageFile file;
        file.fFileSpec.fPath = path;
        return U_CopyFileToHDCache(&file, folder, &settings, status);
    }
    TempFolder caches, disc;
    std::string data = caches.Path("org.zelora.Viewer/Data/");
    ZELDcmTree tree;
    OpenSettings settings;
    std::string folder;
};

TEST_F(CacheCopy, folders_are_named_after_what_is_opened_and_private)
{
    const std::string climbing = disc.WriteFile(
        "climbing", DicomBuilder()
                        .MetaGroup(Item()
                                       .Element(0x0002, 0x0003, "UI", "../../1.2")
                                       .Element(0x0002, 0x0010, "UI", kUidExplicitLittle))
                        .Element(0x0004, 0x1130, "CS", "DISC")
                        .CommonHeader()
                        .Bytes());
    const struct {
        const char* fault;
        std::string opened, directory, name;
    } rows[] = {
        {"a trailing slash is no name", "/media/Study 1/", "", "Study 1_folder.files"},
        {"the root leads out", "/", "", "__folder.files"},
        {"bytes that are no text are lost", "/media/\xFF", "", "\xFF_folder.files"},
        {"the name is too long for a folder", "/m/" + std::string(255, 'x'), "",
         std::string(249, 'x') + ".files"},
        {"the UID climbs", "/media/disc", climbing, "disc_.._.._1.2.files"},
        {"the directory can't be read", "/media/disc", "/none", "disc_dicomdir.files"},
    };
    for (const auto& row : rows) {
        ZELDcmTree own;
        own.setSourceFilePath(row.opened);
        zelImageSource source;
        if (!row.directory.empty())
            static_cast<void>(source.ImportFromFSSpec({row.directory}, kImportDicomNoCheck));
        const std::string made = row.directory.empty() ? U_Folder_CacheFolder(&own)
                                                       : U_GetDICOMDIR_CacheFolder(&own, &source);
        EXPECT_EQ(made, data + row.name) << row.fault;
        EXPECT_EQ(made, own.fileCopiesFolder());
        EXPECT_EQ(static_cast<unsigned>(fs::status(made).permissions()), 0700U);
    }
}

TEST_F(CacheCopy, folders_are_one_a_tree_and_go_with_it)
{
    const auto first = CopiesDirectoryForDisk("a");
    auto second = CopiesDirectoryForDisk("a");
    const auto third = CopiesDirectoryForDisk("a");
    ASSERT_TRUE(first && second && third);
    EXPECT_EQ(first->Path(), data + "a.files");
    EXPECT_EQ(second->Path(), data + "a.files_1");
    EXPECT_EQ(third->Path(), data + "a.files_2");
    const std::string outside = disc.WriteFile("outside/kept", "x");
    std::ofstream(second->Path() + "/copy") << "x";
    fs::create_directory_symlink(disc.Path("outside"), second->Path() + "/link");
    second.reset();
    EXPECT_FALSE(fs::exists(data + "a.files_1"));
    EXPECT_TRUE(fs::exists(outside));
    second = CopiesDirectoryForDisk("a");
    EXPECT_EQ(second->Path(), data + "a.files_1");

    fs::create_directories(data + "b.files/deep");  // of a program that is no longer there
    RemoveAbandonedCacheFolders();
    EXPECT_FALSE(fs::exists(data + "b.files"));
    EXPECT_TRUE(fs::exists(first->Path()));
}

TEST_F(CacheCopy, folder_lies_in_the_temporary_folder_without_caches_and_else_nowhere)
{
    disc.WriteFile("blocked", "a file where a folder should be");
    setenv("XDG_CACHE_HOME", disc.Path("blocked").c_str(), 1);
    setenv("TMPDIR", disc.Path().c_str(), 1);
    const auto made = CopiesDirectoryForDisk("a");
    setenv("TMPDIR", disc.Path("blocked").c_str(), 1);
    const auto none = CopiesDirectoryForDisk("a");
    unsetenv("TMPDIR");
    ASSERT_TRUE(made);
    EXPECT_TRUE(made->Path().starts_with(disc.Path("org.zelora.Viewer-")));
    EXPECT_EQ(none, nullptr);
    dk_ImageFile file;
    file.fFileSpec.fPath = disc.WriteFile("image", SmallImage());
    EXPECT_FALSE(CopyDICOMDIRFileToCache(&file, "", &settings));
    EXPECT_TRUE(file.fCacheCopyTried);
    EXPECT_TRUE(file.fSourceSpec.Empty());
}

TEST_F(CacheCopy, names_of_copies_are_those_of_the_files_with_a_number_when_taken)
{
    const std::string longest(255, 'x');
    const struct {
        const char* fault;
        std::string name, copy;
    } rows[] = {
        {"a plain name is changed", "a/IM1", "IM1"},
        {"the first copy is replaced", "b/IM1", "IM1.1"},
        {"a number is put on a number", "c/IM1", "IM1.2"},
        {"a name that is taken by a number is replaced", "d/IM1.1", "IM1.1.1"},
        {"bytes that are no text are lost", "\xE4\xFF", "\xE4\xFF"},
        {"a line is forged", "a\nb", "a_b"},
        {"the longest name does not fit", "a/" + longest, longest},
        {"nor does it with a number", "b/" + longest, longest.substr(2) + ".1"},
    };
    for (const auto& row : rows) {
        QvxStatus status = -1;
        EXPECT_EQ(CopyOf(disc.WriteFile(row.name, row.fault), &status), folder + '/' + row.copy);
        EXPECT_EQ(status, kQvxOK) << row.fault;
        EXPECT_EQ(fs::file_size(folder + '/' + row.copy), std::string(row.fault).size());
    }
    fs::create_symlink("IM1", disc.Path("a/link"));  // a scan takes it for the file
    QvxStatus status = -1;
    EXPECT_FALSE(fs::is_symlink(CopyOf(disc.Path("a/link"), &status)));
    mkfifo(disc.Path("pipe").c_str(), 0600);
    EXPECT_EQ(CopyOf(disc.Path("pipe"), &status), "");
    EXPECT_EQ(status, kZelCopyFailed);
    EXPECT_EQ(CopyOf(disc.Path("vanished"), &status), "");
    EXPECT_EQ(status, ENOENT);
}

TEST_F(CacheCopy, tells_of_files_above_8_MiB_only)
{
    QvxStatus status = -1;
    EXPECT_NE(CopyOf(BigFile("quiet", 8 * kMiB), &status), "");
    EXPECT_EQ(settings.progressMessage, kProgressNone);
    EXPECT_NE(CopyOf(BigFile("large", 8 * kMiB + 1), &status), "");
    EXPECT_EQ(settings.progressMessage, kProgressLabelThrottled);
    EXPECT_TRUE(settings.messageStr.contains("large") && settings.messageStr.contains("8 of 8"))
        << settings.messageStr.toStdString();
}

TEST_F(CacheCopy, that_is_cancelled_ends_at_once_and_leaves_nothing)
{
    const std::string path = BigFile("huge", 16384 * kMiB);
    std::chrono::steady_clock::time_point cancelled;
    std::thread user([&] {
        std::this_thread::sleep_for(std::chrono::milliseconds(30));
        cancelled = std::chrono::steady_clock::now();
        settings.userCancelled = true;
    });
    QvxStatus status = kQvxOK;
    EXPECT_EQ(CopyOf(path, &status), "");
    const auto ended = std::chrono::steady_clock::now();
    user.join();
    EXPECT_EQ(status, kQvxUserCanceled);
    EXPECT_LT(ended - cancelled, std::chrono::milliseconds(300));
    EXPECT_TRUE(fs::is_empty(folder));
}

TEST_F(CacheCopy, that_is_cancelled_at_the_only_file_ends_the_open)
{
    settings.openTargetPath = disc.WriteFile("huge", SmallImage());
    fs::resize_file(settings.openTargetPath, 3072 * kMiB);
    tree.SetSlowMediaFlag(true);
    prefs_Set_CopyCDFilesToDisk(true);
    tree.cleanCacheFiles();  // so that the open makes it anew, under the same name
    std::thread user([&] {
        const auto copyHasBegun = [&] { return fs::exists(folder) && !fs::is_empty(folder); };
        for (int tries = 0; tries < 5000 && !copyHasBegun(); ++tries)
            std::this_thread::sleep_for(std::chrono::milliseconds(1));
        settings.userCancelled = true;
    });
    EXPECT_EQ(CreatePatientListWithFile(&settings), kQvxUserCanceled);
    user.join();
    EXPECT_EQ(tree.numberOfPatients(), 0);
    EXPECT_TRUE(fs::is_empty(folder));
}

TEST_F(CacheCopy, to_a_full_disk_leaves_out_what_does_not_fit_and_nothing_half_written)
{
    for (const char* name : {"1", "2", "3"})
        disc.WriteFile(name, SmallImage({.instance = std::string("1.") + name}));
    const std::string large = disc.WriteFile("2", SmallImage({.instance = "1.2", .frames = 30000}));
    const std::string first = disc.Path("1");
    dk_DicomBaseElem collection;
    ASSERT_EQ(ScanDirectoryContents(disc.Path(), false, &collection, &settings), kQvxOK);
    ASSERT_EQ(collection.GetNumChildren(), 3);

    std::signal(SIGXFSZ, SIG_IGN);
    rlimit old{};
    getrlimit(RLIMIT_FSIZE, &old);
    const rlimit full{16384, old.rlim_max};
    setrlimit(RLIMIT_FSIZE, &full);
    const QvxStatus direct = UU_FileCopy(large, folder + "/direct", &settings);
    const QvxStatus status = ParseCollectionAndReadFileData(&collection, folder, true, &settings);
    setrlimit(RLIMIT_FSIZE, &old);

    EXPECT_EQ(direct, kZelCopyErrors);
    EXPECT_EQ(status, kQvxOK);
    ASSERT_EQ(collection.GetNumChildren(), 2);
    ASSERT_EQ(tree.leftOut().size(), 1U);
    EXPECT_EQ(tree.leftOut()[0].path, large);
    EXPECT_EQ(tree.leftOut()[0].reason, kLeftOutNotCopied);
    const auto* image = static_cast<dk_ImageFile*>(collection.GetFirstChild());
    EXPECT_EQ(image->fSourceSpec.fPath, first);
    EXPECT_EQ(image->fFileSpec.fPath, folder + "/1");
    EXPECT_EQ(image->GetSource()->GetDataPath(), folder + "/1");
    EXPECT_EQ(std::distance(fs::directory_iterator(folder), fs::directory_iterator()), 2);
}

TEST_F(CacheCopy, slow_are_network_volumes_if_wanted_and_never_the_root)
{
    const std::string gone = disc.Path("gone");  // nothing tells its volume
    EXPECT_TRUE(U_IsOnNetworkVolume(gone));
    EXPECT_FALSE(U_IsOnSlowVolumeBase(gone));
    EXPECT_FALSE(U_IsOnSlowVolumeBase("/"));
    for (const bool wanted : {true, false}) {
        prefs_Set_CopyRemoteFilesToDisk(wanted);
        EXPECT_EQ(U_IsOnSlowVolume(gone), wanted);
    }
}

}  // namespace

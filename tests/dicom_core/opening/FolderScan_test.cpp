// What a scan takes, what it leaves out and why, and in which order.
#include "dicom_core/opening/FolderScan.h"

#include "dicom_core/opening/Builders.h"
#include "dicom_core/opening/HeaderAhead.h"
#include "dicom_core/opening/OpeningFixtures.h"
#include "dicom_core/opening/ZELDcmTree.h"
#include "dicom_core/tree/dk_ImageFile.h"
#include "fixtures/TempFolder.h"
#include "platform/PreferenceStore.h"
#include "prefs/Prefs.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <map>
#include <sys/stat.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

std::string Numbered(int number)
{
    const std::string text = std::to_string(number);
    return SmallImage({.instance = "1.2.3." + text, .instanceNumber = text});
}

struct FolderScan : testing::Test {
    FolderScan()
    {
        prefs_Store().UseFile({});
        prefs_InitializeForApplication();
        settings.dcmDBRoot = &tree;
    }
    // Names of the files taken, in order.
    std::vector<std::string> Scan(bool recursive)
    {
        dk_DicomBaseElem collection;
        status = ScanDirectoryContents(folder.Path(), recursive, &collection, &settings);
        std::vector<std::string> names;
        for (auto* child = collection.GetFirstChild(); child; child = child->GetNext())
            names.push_back(static_cast<dk_ImageFile*>(child)->GetSource()->GetDataPath().substr(
                folder.Path().size() + 1));
        return names;
    }
    std::map<std::string, std::string> LeftOut() const
    {
        std::map<std::string, std::string> reasons;
        for (const LeftOutFile& file : tree.leftOut())
            reasons[file.path.substr(folder.Path().size() + 1)] = file.reason;
        return reasons;
    }
    TempFolder folder;
    ZELDcmTree tree;
    OpenSettings settings;
    QvxStatus status = -1;
};

TEST_F(FolderScan, tells_of_everything_that_it_does_not_take)
{
    const std::string image = SmallImage();
    for (const char* name : {"b", "a", "sub/c", "sub/a/d", "pr\xE9nom", "new\nline", "z", "listed",
                             ".dot/e", "Some.app/f", "folder.dcm/g"})
        folder.WriteFile(name, image);
    folder.WriteFile(".hidden-names", "");
    folder.WriteFile(".hidden", "listed\n");
    folder.WriteFile("text.dcm", "no image at all");
    folder.WriteFile("report", SmallImage({.modality = "SR"}));
    folder.WriteFile("nothing", "");
    folder.WriteFile("flat", DicomBuilder().Meta(kUidExplicitLittle).CommonHeader().Bytes());
    folder.WriteFile("floats", DicomBuilder()
                                   .Meta(kUidExplicitLittle)
                                   .CommonHeader()
                                   .Element(0x7FE0, 0x0008, "OF", std::vector<double>{1})
                                   .Bytes());
    TempFolder elsewhere;
    elsewhere.WriteFile("x", image);
    fs::create_symlink("sub/c", folder.Path("in"));
    fs::create_symlink(elsewhere.Path("x"), folder.Path("out"));
    fs::create_symlink("..", folder.Path("up"));
    fs::create_symlink("loop", folder.Path("loop"));
    fs::create_symlink("/dev/zero", folder.Path("zero"));
    mkfifo(folder.Path("pipe").c_str(), 0600);

    const std::vector<std::string> taken{"a",         "b",         "floats",  "folder.dcm/g", "in",
                                         "new\nline", "pr\xE9nom", "sub/a/d", "sub/c",        "z"};
    EXPECT_EQ(Scan(true), taken);
    EXPECT_EQ(status, kQvxOK);
    const std::map<std::string, std::string> reasons{
        {".hidden", "hidden"},
        {".hidden-names", "hidden"},
        {"listed", "hidden"},
        {".dot", "hidden"},
        {"Some.app", "an application bundle"},
        {"text.dcm", "not DICOM"},
        {"nothing", "not DICOM"},
        {"report", "a structured report"},
        {"flat", "no pixel data"},
        {"out", "a link that leads to no file of the folder"},
        {"up", "a link that leads to no file of the folder"},
        {"loop", "a link that leads to no file of the folder"},
        {"zero", "a device, pipe or socket"},
        {"pipe", "a device, pipe or socket"}};
    EXPECT_EQ(LeftOut(), reasons);
}

TEST_F(FolderScan, without_subfolders_takes_the_top_alone)
{
    folder.WriteFile("a", SmallImage());
    folder.WriteFile("sub/b", SmallImage());
    EXPECT_EQ(Scan(false), std::vector<std::string>{"a"});
    EXPECT_EQ(LeftOut().count("sub"), 1u);
}

TEST_F(FolderScan, survives_folders_that_are_too_deep_or_closed)
{
    std::string deep = folder.Path();
    for (int level = 0; level < 200; ++level)
        fs::create_directory(deep += "/d");
    folder.WriteFile("a", SmallImage());
    folder.WriteFile("closed/b", SmallImage());
    fs::permissions(folder.Path("closed"), fs::perms::none);
    // The administrator reads what nobody may.
    const std::size_t expected = geteuid() == 0 ? 2 : 1;
    EXPECT_EQ(Scan(true).size(), expected);
    EXPECT_EQ(tree.leftOut().size(), 3 - expected);
    fs::permissions(folder.Path("closed"), fs::perms::all);
}

// More files than the pool may be ahead by, in blocks that threads take in any order.
TEST_F(FolderScan, hands_over_headers_in_the_order_of_the_files)
{
    constexpr int kFiles = 7;
    for (int i = 0; i < kFiles; ++i)
        folder.WriteFile(std::to_string(i), Numbered(i + 1));
    for (const std::size_t count : {0u, 1u, 16u, 17u, 3001u}) {
        HeaderAhead ahead(
            count, [&](std::size_t index) { return folder.Path(std::to_string(index % kFiles)); });
        std::size_t got = 0;
        while (ImageHeader* header = ahead.Next(std::chrono::seconds(10))) {
            ASSERT_EQ(header->fVerdict, HeaderVerdict::Image);
            ASSERT_EQ(header->fRecord.recInstanceNumber, static_cast<int>(got % kFiles) + 1);
            ++got;
        }
        EXPECT_EQ(got, count);
    }
}

TEST_F(FolderScan, gives_every_file_its_record)
{
    for (int i = 100; i < 160; ++i)
        folder.WriteFile(std::to_string(i), Numbered(i));
    dk_DicomBaseElem collection;
    ASSERT_EQ(ScanDirectoryContents(folder.Path(), false, &collection, &settings), kQvxOK);
    int number = 100;
    const DicomImageFileRec* first = nullptr;
    for (auto* child = collection.GetFirstChild(); child; child = child->GetNext(), ++number) {
        auto* file = static_cast<dk_ImageFile*>(child);
        const DicomImageFileRec* record = file->GetParserInfoData();
        ASSERT_TRUE(record);
        first = first ? first : record;
        EXPECT_EQ(record->recInstanceNumber, number);
        EXPECT_EQ(record->recNumFrames, 1);
        EXPECT_TRUE(record->recPatientName.SharesWith(first->recPatientName));
        EXPECT_FALSE(file->GetSource()->HasOpenParser());
        EXPECT_TRUE(file->GetDICOMParser());
    }
    EXPECT_EQ(number, 160);
}

struct EndRow {
    const char* fault;
    const char* name;
    std::string bytes;
    std::int32_t flavor;
    QvxStatus status;
    int patients;
    bool dialog;
};

TEST_F(FolderScan, ends_in_a_tree_or_in_the_code_of_what_is_missing)
{
    const EndRow rows[] = {
        {"an image alone", "a", SmallImage(), kOpenFlavorFile, kQvxOK, 1, true},
        {"a hidden file alone", ".a", SmallImage(), kOpenFlavorFile, kQvxOK, 0, true},
        {"no DICOM at all", "a", "text", kOpenFlavorFile, kQvxOK, 0, true},
        {"a report", "a", SmallImage({.modality = "SR"}), kOpenFlavorFile, kQvxOK, 0, true},
        {"a vanished file", "", "", kOpenFlavorFile, ENOENT, 0, true},
        {"an image in a folder", "f/a", SmallImage(), kOpenFlavorFolder, kQvxOK, 1, true},
        {"hidden files alone", "f/.a", SmallImage(), kOpenFlavorFolderRecursive,
         kZelNoPatientInFolder, 0, false},
        {"only a subfolder", "f/g/a", SmallImage(), kOpenFlavorFolder, kZelNoPatientInFolder, 0,
         false},
        {"a subfolder", "f/g/a", SmallImage(), kOpenFlavorFolderRecursive, kQvxOK, 1, true},
        {"no image in it", "f/a", "text", kOpenFlavorFolder, kZelNoPatientInFolder, 0, true},
    };
    for (const EndRow& row : rows) {
        SCOPED_TRACE(row.fault);
        TempFolder own;
        ZELDcmTree result;
        OpenSettings request;
        request.dcmDBRoot = &result;
        request.actionFlavor = row.flavor;
        if (*row.name)
            own.WriteFile(row.name, row.bytes);
        const bool isFile = row.flavor == kOpenFlavorFile;
        request.openTargetPath = own.Path(isFile ? (*row.name ? row.name : "gone") : "f");
        const QvxStatus code =
            isFile ? CreatePatientListWithFile(&request) : CreatePatientListWithFolder(&request);
        EXPECT_EQ(code, row.status);
        EXPECT_EQ(result.numberOfPatients(), row.patients);
        EXPECT_EQ(request.progressIsON, row.dialog);
        EXPECT_EQ(result.leftOut().empty(), row.patients == 1);
    }
}

TEST_F(FolderScan, ends_when_the_user_cancels)
{
    for (int i = 0; i < 100; ++i)
        folder.WriteFile(std::to_string(i), Numbered(i));
    settings.progressIsON = true;
    settings.userCancelled = true;
    settings.actionFlavor = kOpenFlavorFolderRecursive;
    settings.openTargetPath = folder.Path();
    EXPECT_EQ(CreatePatientListWithFolder(&settings), kQvxUserCanceled);
    EXPECT_EQ(tree.numberOfPatients(), 0);
}

}  // namespace

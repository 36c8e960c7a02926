// What a path is taken for, and what the Open dialog says of it.
#include "dicom_core/opening/Classify.h"

#include "dicom_core/opening/OpenPanelRules.h"
#include "dicom_core/opening/OpeningFixtures.h"
#include "fixtures/TempFolder.h"
#include "platform/PreferenceStore.h"
#include "prefs/Prefs.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <sys/stat.h>

namespace fs = std::filesystem;

namespace {

struct Classify : testing::Test {
    Classify()
    {
        prefs_Store().UseFile({});
        prefs_InitializeForApplication();
        folder.WriteFile("plain/a", SmallImage());
        folder.WriteFile("disc/DICOMDIR", EmptyDirectory());
        folder.WriteFile("disc/a", SmallImage());
        folder.WriteFile("lower/dicomdir", EmptyDirectory());
        folder.WriteFile("liar/dicomdir", SmallImage());
        folder.WriteFile("decoy/DICOMDIR/a", SmallImage());
        folder.WriteFile("renamed/INDEX", EmptyDirectory());
        folder.WriteFile("plain.desktop",
                         "[Desktop Entry]\nType=Link\nURL=file://" + folder.Path("disc") + "\n");
        fs::create_symlink("disc", folder.Path("link"));
        fs::create_symlink("nowhere", folder.Path("broken"));
        fs::create_directory(folder.Path("empty"));
        mkfifo(folder.Path("pipe").c_str(), 0600);
    }
    ~Classify() override { gOpenFileCalled = false; }
    TempFolder folder;
};

TEST_F(Classify, takes_a_path_for_what_it_is)
{
    struct Row {
        const char* fault;
        const char* path;
        bool ignore, recursive, called, skip;
        std::int32_t flavor;
        const char* target;
    };
    const Row rows[] = {
        // clang-format off
        {"a file",                     "plain/a",        false, false, true,  false, kOpenFlavorFile, "plain/a"},
        {"a directory by its content", "liar/dicomdir",  false, false, true,  false, kOpenFlavorFile, "liar/dicomdir"},
        {"a directory by its name",    "renamed/INDEX",  false, false, true,  false, kOpenFlavorFile, "renamed/INDEX"},
        {"a chosen directory",         "lower/dicomdir", true,  false, true,  false, kOpenFlavorDICOMDIRFile, "lower/dicomdir"},
        {"a disc's folder",            "disc",           false, true,  true,  false, kOpenFlavorFolderDICOMDIR, "disc/DICOMDIR"},
        {"ignored from the dialog",    "disc",           true,  true,  true,  false, kOpenFlavorFolderRecursive, "disc"},
        {"not ignored at launch",      "disc",           true,  false, false, false, kOpenFlavorFolderDICOMDIR, "disc/DICOMDIR"},
        {"skipped",                    "disc",           false, false, true,  true,  kOpenFlavorFolder, "disc"},
        {"a folder named DICOMDIR",    "decoy",          false, false, true,  false, kOpenFlavorFolder, "decoy"},
        {"an image named dicomdir",    "liar",           false, false, true,  false, kOpenFlavorFolder, "liar"},
        {"deep at launch",             "plain",          false, false, false, false, kOpenFlavorFolderRecursive, "plain"},
        {"a link is resolved",         "link",           false, false, true,  false, kOpenFlavorFolderDICOMDIR, "disc/DICOMDIR"},
        {"a link file is resolved",    "plain.desktop",  false, false, true,  false, kOpenFlavorFolderDICOMDIR, "disc/DICOMDIR"},
        {"a link to nothing",          "broken",         false, false, true,  false, kOpenFlavorNone, nullptr},
        {"a pipe must not be opened",  "pipe",           false, false, true,  false, kOpenFlavorNone, nullptr},
        {"nothing there",              "nowhere",        false, false, true,  false, kOpenFlavorNone, nullptr},
        // clang-format on
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.fault);
        prefs_Set_IgnoreDICOMDIR(row.ignore);
        prefs_Set_ScanDirectoriesRecursively(row.recursive);
        gOpenFileCalled = row.called;
        std::int32_t flavor = -1;
        std::string target;
        U_ShouldWeOpenFileWithPath(folder.Path(row.path), row.skip, &flavor, &target);
        EXPECT_EQ(flavor, row.flavor);
        if (row.target) {
            EXPECT_EQ(target, fs::canonical(folder.Path(row.target)).string());
        }
    }
}

TEST_F(Classify, offers_what_may_be_an_image)
{
    struct Row {
        const char* name;
        bool enabled;
    };
    const Row rows[] = {{"IM1", true},      {"a.dcm", true},   {"a.DiCoM", true}, {"a.jpg", false},
                        {"a.1234", false},  {"a.12345", true}, {"ends.", true},   {".hidden", true},
                        {"a.b.txt", false}, {"a.éééé", false}};
    for (const Row& row : rows)
        EXPECT_EQ(ZELOpenPanelRules::shouldEnableURL(folder.Path(row.name)), row.enabled)
            << row.name;
    fs::create_directory(folder.Path("scan.jpg"));
    EXPECT_TRUE(ZELOpenPanelRules::shouldEnableURL(folder.Path("scan.jpg")));
    EXPECT_FALSE(ZELOpenPanelRules::shouldEnableURL({}));
    EXPECT_FALSE(ZELOpenPanelRules::validateURL(folder.Path("empty")));
    EXPECT_TRUE(ZELOpenPanelRules::validateURL(folder.Path("plain")));
    EXPECT_TRUE(ZELOpenPanelRules::validateURL(folder.Path("plain/a")));
}

TEST_F(Classify, tells_what_the_boxes_can_do)
{
    struct Row {
        const char* path;
        bool ignore, ignoreEnabled, recursiveEnabled, hint;
    };
    const Row rows[] = {{"", true, false, false, false},     {"plain/a", true, false, false, false},
                        {"empty", true, false, false, true}, {"disc", false, true, false, true},
                        {"lower", true, true, true, true},   {"plain", false, false, true, true},
                        {"decoy", false, false, true, true}, {"link", true, true, true, true}};
    for (const Row& row : rows) {
        SCOPED_TRACE(row.path);
        prefs_Set_IgnoreDICOMDIR(row.ignore);
        ZELOpenPanelRules rules;
        rules.userSelected(*row.path ? folder.Path(row.path) : std::string());
        EXPECT_EQ(rules.state().ignoreEnabled, row.ignoreEnabled);
        EXPECT_EQ(rules.state().recursiveEnabled, row.recursiveEnabled);
        EXPECT_EQ(!rules.state().hint.isEmpty(), row.hint);
    }
    ZELOpenPanelRules rules;
    rules.userSelected(folder.Path("disc"));
    rules.checkIgnoreDICOMDIR(false);
    EXPECT_FALSE(rules.state().recursiveEnabled);
    EXPECT_FALSE(prefs_IgnoreDICOMDIR());
    rules.checkIgnoreDICOMDIR(true);
    EXPECT_TRUE(rules.state().recursiveEnabled);
    EXPECT_TRUE(prefs_IgnoreDICOMDIR());
}

}  // namespace

// Every way in, from the question what a path is to the tree or the alert. Files are made by the
// test, preferences are in memory.
#include "dicom_core/opening/OpenController.h"

#include "dicom_core/opening/OpeningFixtures.h"
#include "dicom_core/opening/ZELDcmTree.h"
#include "fixtures/DicomBuilder.h"
#include "fixtures/TempFolder.h"
#include "platform/PreferenceStore.h"
#include "prefs/Prefs.h"

#include <gtest/gtest.h>

namespace {

class NotedObserver final : public OpenObserver {
public:
    bool docIsAlreadyOpen(const ZELRecentDocument& document) override
    {
        return fOpen && fOpen->matches(document);
    }
    void bringDocWindowToFront(const ZELRecentDocument&) override { ++fFronted; }
    void ShowAlertForError(QvxStatus code, const std::string& name) override
    {
        fAlerts.push_back(std::to_string(code) + ' ' + name);
    }
    void treeIsReady(std::unique_ptr<ZELDcmTree> tree, const std::string& represented,
                     const ZELRecentDocument& document) override
    {
        fTree = std::move(tree);
        fRepresented = represented;
        fOpen = document;
    }
    std::unique_ptr<ZELDcmTree> fTree;
    std::string fRepresented;
    std::optional<ZELRecentDocument> fOpen;
    std::vector<std::string> fAlerts;
    int fFronted = 0;
};

class NotedHost final : public OpenHost {
public:
    std::optional<Picked> runOpenPanel(const std::string&) override
    {
        if (fInPanel)
            fInPanel();
        return fPicked;
    }
    bool mainWindowIsViewer() override { return false; }
    void callLater(double, std::function<void()> call) override
    {
        fLater.push_back(std::move(call));
    }
    std::optional<Picked> fPicked;
    std::function<void()> fInPanel;
    std::vector<std::function<void()>> fLater;
};

struct Opening : testing::Test {
    Opening()
    {
        prefs_Store().UseFile({});
        prefs_InitializeForApplication();
        gOpenFileCalled = false;
    }
    std::string File(const std::string& name, const std::string& instance = "1.2.3")
    {
        return folder.WriteFile(name, SmallImage({.instance = instance}));
    }
    TempFolder folder;
    NotedObserver observer;
    NotedHost host;
    SilentProgress window;
    ZELRecentDocuments recents;
    ZELOpenController controller{&observer, &host, &window, &recents};
};

TEST_F(Opening, ends_in_a_tree_or_in_the_alert_that_fits)
{
    File("good/a.dcm");
    folder.WriteFile("text.txt", "no image at all");
    folder.WriteFile("texts/b.txt", "none here either");
    std::filesystem::create_directory(folder.Path("empty"));
    folder.WriteFile("disc/DICOMDIR", EmptyDirectory());
    struct Row {
        const char* name;
        const char* alert;
    };
    for (const Row& row : {Row{"text.txt", "20016 text.txt"}, Row{"texts", "20017 texts"},
                           Row{"empty", "20017 empty"}, Row{"disc", "20018 disc"},
                           Row{"disc/DICOMDIR", "20018 disc"}}) {
        SCOPED_TRACE(row.name);
        observer.fAlerts.clear();
        EXPECT_FALSE(controller.basic_openFile(folder.Path(row.name)));
        EXPECT_EQ(observer.fAlerts, std::vector<std::string>{row.alert});
    }
    EXPECT_TRUE(recents.list().empty());
    observer.fAlerts.clear();
    EXPECT_FALSE(controller.basic_openFile(folder.Path("nowhere")));
    EXPECT_TRUE(controller.basic_openFile(folder.Path("good")));
    EXPECT_TRUE(observer.fAlerts.empty());
    ASSERT_TRUE(observer.fTree);
    EXPECT_EQ(observer.fTree->numberOfSequences(), 1);
    EXPECT_EQ(observer.fRepresented, folder.Path("good"));
}

TEST_F(Opening, of_what_is_open_already_only_raises_its_window)
{
    const std::string path = File("a.dcm");
    File("b.dcm", "1.2.4");
    EXPECT_TRUE(controller.basic_openFile(path));
    EXPECT_TRUE(controller.basic_openFile(folder.Path("b.dcm")));
    observer.fOpen = {kOpenFlavorFile, path, {}};
    observer.fTree.reset();
    EXPECT_TRUE(controller.basic_openFile(folder.Path() + "/./a.dcm"));
    EXPECT_EQ(observer.fFronted, 1);
    EXPECT_FALSE(observer.fTree);
    EXPECT_EQ(recents.list().front().docPath, folder.Path("b.dcm"));  // no entry again
}

TEST_F(Opening, of_a_recent_document_drops_the_entry_that_fails)
{
    const std::string kept = File("kept.dcm"), gone = File("gone.dcm", "1.2.4");
    for (const std::string& path : {kept, gone})
        controller.basic_openFile(path);
    std::filesystem::remove(gone);
    observer.fOpen.reset();
    controller.openZELRecentDoc(0);
    EXPECT_EQ(observer.fAlerts, std::vector<std::string>{"20019 gone.dcm"});
    ASSERT_EQ(recents.list().size(), 1u);
    controller.openZELRecentDoc(0);
    EXPECT_EQ(observer.fOpen->docPath, kept);
    EXPECT_EQ(recents.list().size(), 1u);
    controller.openZELRecentDoc(7);  // no such item
}

TEST_F(Opening, through_the_dialog_defers_discs_and_counts_as_asked_for_even_when_cancelled)
{
    prefs_Set_AutoOpenDICOMCDs(true);
    host.fInPanel = [&] {
        EXPECT_TRUE(controller.inQTModalMode());
        controller.deviceDidMount(folder.Path());
    };
    controller.delayedOpenFile();
    EXPECT_TRUE(gOpenFileCalled);
    EXPECT_FALSE(controller.inQTModalMode());
    EXPECT_EQ(host.fLater.size(), 1u);
    host.fInPanel = [] { ADD_FAILURE() << "the dialog came again"; };
    controller.delayedOpenFile();

    host.fInPanel = nullptr;
    host.fPicked = {{File("sub/a.dcm")}, folder.Path("sub")};
    controller.doOpenMenuCommand();
    EXPECT_TRUE(observer.fTree);
    EXPECT_EQ(prefs_OpenTargetDirectory(), folder.Path("sub"));
}

TEST_F(Opening, keeps_twelve_recent_documents_newest_first_also_over_a_restart)
{
    for (int i = 0; i < 14; ++i)
        recents.U_AddZELRecentItem({kOpenFlavorFile, "/data/" + std::to_string(i), {}});
    recents.U_AddZELRecentItem({kOpenFlavorFile, "/data/x/../5", {}});  // known
    recents.U_AddZELRecentItem({kOpenFlavorFolder, "/data/\xE9", {}});  // no UTF-8, 12th goes
    ZELRecentDocuments later;
    later.loadSavedRecents();
    ASSERT_EQ(later.list().size(), 12u);
    EXPECT_EQ(later.list()[0].docPath, "/data/\xE9");
    EXPECT_EQ(later.list()[0].docType, kOpenFlavorFolder);
    EXPECT_EQ(later.list()[1].docPath, "/data/5");
    EXPECT_EQ(later.list()[2].docPath, "/data/13");
    EXPECT_EQ(later.list()[11].docPath, "/data/3");
    later.clearZELRecentDocuments();
    EXPECT_FALSE(prefs_Store().Has("ZELRecentDocuments"));
    const ZELRecentDocument disc{kOpenFlavorFolderDICOMDIR, "/media/disc/DICOMDIR", {}};
    EXPECT_EQ(disc.menuTitle(), "disc");
}

}  // namespace

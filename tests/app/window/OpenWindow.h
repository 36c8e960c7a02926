// A whole window on a made tree, and a program around it that only takes notes.
#pragma once
#include "app/grid/GridFixture.h"
#include "app/window/AppCommands.h"
#include "app/window/MainToolBar.h"
#include "app/window/ZELMainWindowController.h"
#include "dicom_core/opening/RecentDocuments.h"

#include <QMenu>
#include <QMenuBar>
#include <QTest>

class FakeApp final : public AppCommands {
public:
    void openFromDialog() override { log.push_back("open"); }
    void openPaths(std::vector<std::string> paths) override
    {
        for (const std::string& path : paths)
            log.push_back("path " + path);
    }
    void openRecent(const ZELRecentDocument& document) override
    {
        log.push_back("recent " + document.docPath);
    }
    ZELRecentDocuments& recents() override { return documents; }
    void windowClosed() override { log.push_back("closed"); }
    bool inQTModalMode() const override { return false; }
    void quit() override { log.push_back("quit"); }
    void showHidePreferencesWindow() override { log.push_back("preferences"); }
    void showPreferencesPane(const char* pane) override { log.emplace_back(pane); }
    void offerPreset(float width, float level) override
    {
        log.push_back("preset " + std::to_string(width) + " " + std::to_string(level));
    }
    void showHelp() override { log.push_back("help"); }
    void showAcknowledgments() override { log.push_back("acknowledgments"); }
    void showAbout() override { log.push_back("about"); }
    void showFirstAidWindow() override { log.push_back("first aid"); }
    bool hasUpdateCheck() const override { return false; }
    void checkForUpdates() override {}
    std::vector<QWidget*> viewerWindows() const override { return {}; }

    ZELRecentDocuments documents;
    Words log;
};

struct OpenWindow {
    explicit OpenWindow(
        const std::vector<SeriesForm>& forms = {{}, {.frames = 3}, {.frames = 2}},
        const std::function<void()>& prepare = [] {})
        : made(forms)
    {
        prefs_Set_ShowsUSRegions(false);
        prepare();
        auto tree = std::make_unique<ZELDcmTree>();
        while (dk_DicomBaseElem* patient = made.tree.patientTreeRoot()->GetFirstChild())
            tree->patientTreeRoot()->AddChild(made.tree.patientTreeRoot()->RemoveChild(patient));
        window = std::make_unique<ZELMainWindowController>(&app, std::move(tree), "/tmp/study",
                                                           ZELRecentDocument{1, "/tmp/study", {}});
        window->resize(900, 640);
        window->show();
        window->setZelWindowIsReady();
        EXPECT_TRUE(QTest::qWaitFor([&] { return window->pane()->layoutView()->showsAll(); }));
        QTest::qWait(20);
    }
    [[nodiscard]] QAction* Action(const QString& title)
    {
        for (QMenu* menu : window->menuBar()->findChildren<QMenu*>()) {
            emit menu->aboutToShow();
            for (QAction* action : menu->actions()) {
                if (action->text().section(u'\t', 0, 0) == title)
                    return action;
            }
        }
        return nullptr;
    }
    void Choose(const QString& title)
    {
        QAction* action = Action(title);
        ASSERT_TRUE(action) << title.toStdString();
        action->trigger();
    }
    [[nodiscard]] QAction* Button(const char* icon)
    {
        return window->findChild<MainToolBar*>()->findChild<QAction*>(QLatin1String(icon));
    }

    MadeTree made;
    FakeApp app;
    std::unique_ptr<ZELMainWindowController> window;
};

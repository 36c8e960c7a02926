// Sessions of the desktop program, from its start to the code with which it ends.
#include "app/shell/ZELAppDelegate.h"

#include "app/shell/OpenPanel.h"
#include "app/shell/StartWindow.h"
#include "app/window/ZELMainWindowController.h"
#include "browser/ZELPatientOutlineView.h"
#include "dicom_core/opening/OpeningFixtures.h"
#include "dicom_core/opening/ZELDcmTree.h"
#include "fixtures/TempFolder.h"
#include "platform/PreferenceStore.h"
#include "prefs/Prefs.h"

#include <QApplication>
#include <QDropEvent>
#include <QLabel>
#include <QListWidget>
#include <QMenu>
#include <QMessageBox>
#include <QMimeData>
#include <QTest>
#include <QTimer>
#include <QUrl>
#include <csignal>
#include <filesystem>
#include <gtest/gtest.h>

namespace {

constexpr int kNeverEnded = 99;

template <typename Window>
std::vector<Window*> Showing()
{
    std::vector<Window*> found;
    for (QWidget* widget : QApplication::topLevelWidgets())
        if (auto* window = dynamic_cast<Window*>(widget); window && window->isVisible())
            found.push_back(window);
    return found;
}

class ViewerSession : public testing::Test {
protected:
    ViewerSession()
    {
        prefs_Store().UseFile(folder.Path("preferences.plist"));
        gOpenFileCalled = false;
    }
    ~ViewerSession() override { prefs_Store().UseFile({}); }

    // Runs the program; each step is tried until it answers true, then the next one is. Answers the
    // program's code.
    int Run(std::vector<std::string> paths, std::vector<std::function<bool()>> steps)
    {
        const std::string place = folder.WriteFile("program", "");
        ZELAppDelegate application(std::nullopt, {folder.Path("data"), place, [place] {
                                                      return std::vector<std::string>{place};
                                                  }});
        delegate = &application;
        QTimer stepping;
        std::size_t next = 0;
        QObject::connect(&stepping, &QTimer::timeout, [&] {
            if (next < steps.size()) {
                if (steps[next]())
                    ++next;
                return;
            }
            // It stands where no other window does.
            for (StartWindow* window : Showing<StartWindow>())
                window->close();
        });
        stepping.start(5);
        QTimer::singleShot(10000, &stepping, [] { QCoreApplication::exit(kNeverEnded); });
        application.start(std::move(paths));
        const int code = QApplication::exec();
        EXPECT_EQ(next, steps.size());
        return code;
    }
    std::string Image(const std::string& name, const ImageWords& words = {})
    {
        return folder.WriteFile(name, SmallImage(words));
    }
    TempFolder folder;
    ZELAppDelegate* delegate = nullptr;  // while it runs
};

bool CloseAlert(const QString& part)
{
    const auto alerts = Showing<QMessageBox>();
    if (alerts.empty())
        return false;
    EXPECT_TRUE(alerts.front()->text().contains(part)) << alerts.front()->text().toStdString();
    alerts.front()->accept();
    return true;
}

QStringList RecentTitles(const ZELMainWindowController& window)
{
    QStringList titles;
    for (auto* menu : window.findChildren<QMenu*>())
        if (menu->title().contains(QLatin1String("Recent"))) {
            emit menu->aboutToShow();
            for (const QAction* action : menu->actions())
                if (!action->isSeparator())
                    titles += action->text();
        }
    return titles;
}

}  // namespace

TEST_F(ViewerSession, opens_a_path_once_and_ends_with_its_last_window)
{
    const std::string first = Image("a&b"), set = folder.Path("set");
    Image("set/c");
    const int code = Run({first, folder.Path("./set/../a&b"), set}, {[&] {
                             const auto windows = Showing<ZELMainWindowController>();
                             if (windows.size() < 2)
                                 return false;
                             EXPECT_EQ(windows.size(), 2u);
                             EXPECT_EQ(RecentTitles(*windows.front()),
                                       (QStringList{QStringLiteral("set"), QStringLiteral("a&&b"),
                                                    QStringLiteral("Clear Menu")}));
                             for (ZELMainWindowController* window : windows)
                                 window->close();
                             return true;
                         }});
    EXPECT_EQ(code, 0);
}

// Also when one of them has gone from the list meanwhile.
TEST_F(ViewerSession, a_recent_document_is_the_one_that_its_row_says)
{
    const std::string older = Image("older"), newer = Image("newer");
    Run({older, newer}, {[&] {
            const auto windows = Showing<ZELMainWindowController>();
            if (windows.size() < 2)
                return false;
            for (ZELMainWindowController* window : windows)
                window->close();
            return true;
        }});
    std::filesystem::remove(newer);
    const auto activate = [](int rows) {
        const auto windows = Showing<StartWindow>();
        auto* list = windows.empty() ? nullptr : windows.front()->findChild<QListWidget*>();
        if (!list || list->count() != rows)
            return false;
        emit list->itemActivated(list->item(0));
        return true;
    };
    const auto opened = [] {
        const auto windows = Showing<ZELMainWindowController>();
        if (windows.empty())
            return false;
        EXPECT_TRUE(windows.front()->windowTitle().contains(QStringLiteral("older")));
        return windows.front()->close();
    };
    const int code =
        Run({}, {[&] { return activate(2); }, [] { return CloseAlert(QStringLiteral("newer")); },
                 [&] { return activate(1); }, opened});
    EXPECT_EQ(code, 0);
}

// Down to the pixels on the screen: whatever the program has to make before a frame can be decoded.
TEST_F(ViewerSession, shows_the_pixels_of_the_first_frame)
{
    DicomBuilder builder;
    builder.Meta(kUidExplicitLittle).CommonHeader();
    builder.Image({.rows = 64, .columns = 64});
    std::vector<int> halves;
    for (int i = 0; i < 64 * 64; ++i)
        halves.push_back(i % 64 < 32 ? 250 : 3);
    const std::string path = folder.WriteFile("halves", builder.NativePixels(halves).Bytes());
    QImage shown;
    Run({path}, {[&] {
            const auto windows = Showing<ZELMainWindowController>();
            if (windows.empty() ||
                !windows.front()->windowTitle().contains(QStringLiteral("halves")))
                return false;
            shown = windows.front()->findChild<MUPhotoView*>()->grab().toImage();
            const QPoint middle = shown.rect().center();
            const bool painted = qGray(shown.pixel(middle - QPoint(20, 0))) > 200;
            return painted && windows.front()->close();
        }});
    ASSERT_FALSE(shown.isNull());
    EXPECT_LT(qGray(shown.pixel(shown.rect().center() + QPoint(20, 0))), 60);
}

TEST_F(ViewerSession, what_fails_is_told_and_only_a_session_of_failures_ends_with_1)
{
    const std::string good = Image("good"), bad = folder.WriteFile("bad.dcm", "no DICOM");
    const auto badAlert = [] { return CloseAlert(QStringLiteral("bad.dcm")); };
    EXPECT_EQ(Run({bad, folder.Path("none")},
                  {badAlert, [] { return CloseAlert(QStringLiteral("none")); }}),
              1);
    EXPECT_EQ(Run({bad, good}, {badAlert,
                                [] {
                                    const auto windows = Showing<ZELMainWindowController>();
                                    return !windows.empty() && windows.front()->close();
                                }}),
              0);
}

TEST_F(ViewerSession, without_a_path_it_asks_for_one)
{
    const auto cancel = [] {
        const auto panels = Showing<OpenPanel>();
        if (panels.empty())
            return false;
        panels.front()->reject();
        return true;
    };
    EXPECT_EQ(Run({}, {cancel}), 0);
    EXPECT_TRUE(gOpenFileCalled);
}

TEST_F(ViewerSession, a_drop_opens_another_window_and_a_row_shows_its_sequence)
{
    const std::string first = Image("first");
    Image("both/a", {.series = "1.2.8"});
    Image("both/b",
          {.series = "1.2.9", .number = "9", .instance = "1.7", .modality = "US", .frames = 5});
    const auto drop = [&] {
        const auto windows = Showing<ZELMainWindowController>();
        if (windows.empty())
            return false;
        QMimeData data;
        data.setUrls({QUrl::fromLocalFile(QString::fromStdString(folder.Path("both")))});
        QDragEnterEvent over({1, 1}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        // On a grid, which leaves files to its window.
        QWidget* grid = windows.front()->findChild<ZELDraggingSequenceGridView*>()->viewport();
        QApplication::sendEvent(grid, &over);
        EXPECT_TRUE(over.isAccepted());
        QDropEvent event({1, 1}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(grid, &event);
        return true;
    };
    const auto choose = [] {
        for (ZELMainWindowController* window : Showing<ZELMainWindowController>()) {
            if (window->imagesDB().numberOfSequences() < 2)
                continue;
            // By the keyboard, on its row.
            auto* outline = window->findChild<ZELPatientOutlineView*>();
            PatTreeDataSource* source = outline->dataSource();
            outline->setCurrentIndex(
                source->indexOf(source->nodeFor(window->imagesDB().lastSequence_DICOM())));
            QTest::keyClick(outline, Qt::Key_Return);
            QString labels;
            for (const QLabel* label : window->findChildren<QLabel*>())
                labels += label->text() + QLatin1Char('|');
            EXPECT_TRUE(labels.contains(QLatin1String("Frame 1 of 5"))) << labels.toStdString();
            for (ZELMainWindowController* shown : Showing<ZELMainWindowController>())
                shown->close();
            return true;
        }
        return false;
    };
    EXPECT_EQ(Run({first}, {drop, choose}), 0);
}

TEST_F(ViewerSession, a_request_of_the_system_ends_it_as_its_menu_does)
{
    const std::string first = Image("first");
    const auto ask = [] {
        if (Showing<ZELMainWindowController>().empty())
            return false;
        std::raise(SIGTERM);
        return true;
    };
    EXPECT_EQ(Run({first}, {ask}), 0);
    // Within an alert too.
    const auto askInAlert = [] {
        if (Showing<QMessageBox>().empty())
            return false;
        std::raise(SIGTERM);
        return true;
    };
    EXPECT_EQ(Run({folder.WriteFile("bad.dcm", "no DICOM")}, {askInAlert}), 1);
}

TEST_F(ViewerSession, windows_may_close_while_another_path_is_opened)
{
    const std::string first = Image("first");
    for (int i = 0; i < 200; ++i)
        Image("many/" + std::to_string(i), {.instance = "1.7." + std::to_string(i)});
    const auto closeAndOpen = [&] {
        const auto windows = Showing<ZELMainWindowController>();
        if (windows.empty())
            return false;
        EXPECT_TRUE(delegate->takeOver({folder.Path("many")}));
        QTimer::singleShot(0, windows.front(), &QWidget::close);
        return true;
    };
    const auto closeSecond = [] {
        for (ZELMainWindowController* window : Showing<ZELMainWindowController>()) {
            if (window->windowTitle().contains(QLatin1String("many")))
                return window->close();
        }
        return false;
    };
    EXPECT_EQ(Run({first}, {closeAndOpen, closeSecond}), 0);
}

// A disc that was taken out, a share that is gone.
TEST_F(ViewerSession, files_that_vanish_while_shown_leave_their_windows_usable)
{
    for (int i = 1; i <= 9; ++i)
        Image("disc/" + std::to_string(i), {.instance = "1.7." + std::to_string(i)});
    const auto page = [&] {
        const auto windows = Showing<ZELMainWindowController>();
        if (windows.empty() || !windows.front()->pane()->layoutView()->showsAll())
            return false;
        std::filesystem::remove_all(folder.Path("disc"));
        GridsPane& pane = *windows.front()->pane();
        for (int frame = 1; frame <= 9; ++frame) {
            pane.grid().gotoFrame(FrameStep::Next);
            pane.grid().removeFrameBuffersForAllFrames();
            pane.view()->viewport()->repaint();
            pane.actions().invertColorsForView(pane.grid(), 0);
            windows.front()->grab();
        }
        return windows.front()->close();
    };
    EXPECT_EQ(Run({folder.Path("disc")}, {page}), 0);
}

TEST_F(ViewerSession, counts_its_starts_and_hears_of_other_starts)
{
    const std::string first = Image("first"), second = Image("second", {.patient = "Q"});
    const int before = prefs_NumberOfRuns_Current();
    const auto another = [&] {
        if (Showing<ZELMainWindowController>().empty())
            return false;
        EXPECT_TRUE(delegate->takeOver({second}));
        EXPECT_TRUE(delegate->takeOver({}));
        return true;
    };
    const auto both = [] {
        const auto windows = Showing<ZELMainWindowController>();
        if (windows.size() < 2)
            return false;
        for (ZELMainWindowController* window : windows)
            window->close();
        return true;
    };
    EXPECT_EQ(Run({first}, {another, both}), 0);
    EXPECT_EQ(prefs_NumberOfRuns_Current(), before + 1);
}

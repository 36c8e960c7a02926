// First aid from its window to what has left the program.
#include "app/recovery/CrashRecovery.h"

#include "app/recovery/CrashReports.h"
#include "app/recovery/ReportReviewWindow.h"
#include "app/recovery/ZELFirstAidWindowController.h"
#include "fixtures/TempFolder.h"
#include "platform/PreferenceStore.h"
#include "prefs/Prefs.h"

#include <QApplication>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QTimer>
#include <filesystem>
#include <gtest/gtest.h>

namespace {

// Does `act` with the next modal window of that kind.
template <typename Window>
void WithNext(std::function<void(Window&)> act)
{
    auto* timer = new QTimer(qApp);
    QObject::connect(timer, &QTimer::timeout, [timer, act = std::move(act)] {
        auto* window = qobject_cast<Window*>(QApplication::activeModalWidget());
        if (!window)
            return;
        timer->deleteLater();
        timer->stop();
        act(*window);
    });
    timer->start(1);
}

struct Scene {
    Scene()
        : recovery({.programName = "zelora-viewer",
                    .dataFolder = folder.Path("data"),
                    .place = folder.WriteFile("program", ""),
                    .temporaryFolder = [this] { return folder.Path("tmp"); },
                    .running = [this] { return std::vector<std::string>{folder.Path("program")}; },
                    .terminate = [this] { terminated = true; },
                    .checkForUpdates = [this] { checked = true; },
                    .mail = {[this](const QString&, const QString& text, const std::string& path) {
                                 body = text;
                                 archive = path;
                                 return attaches;
                             },
                             [this](const QString&, const QString& text) {
                                 body = text;
                                 asText = true;
                                 return opensLinks;
                             }}})
    {
        std::filesystem::create_directories(folder.Path("tmp"));
        prefs_Store().UseFile(folder.Path("preferences.plist"));
        prefs_Set_OpenTargetDirectory("/media/DOE JANE/ct");
        prefs_Synchronize();
        folder.WriteFile("data/CrashReports/zelora-viewer_1.crash", "older\n");
        folder.WriteFile("data/CrashReports/zelora-viewer_2.crash", "in /media/DOE JANE/ct\n");
    }
    ~Scene() { prefs_Store().UseFile({}); }
    std::size_t Reports() const
    {
        return U_CollectCrashReportPaths("zelora-viewer", recovery.reportsFolder(), kCrashSuffix)
            .size();
    }
    TempFolder folder;
    bool terminated = false, checked = false, asText = false, attaches = true, opensLinks = true;
    QString body;
    std::string archive;
    CrashRecovery recovery;
};

TEST(FirstAid, is_prepared_for_how_it_came)
{
    ZELFirstAidWindowController window(false);
    window.setBombed(true);
    EXPECT_EQ(window.selectedAction(), ZELFirstAidWindowController::Action::Collect);
    EXPECT_EQ(window.height(), 392);
    EXPECT_TRUE(window.findChild<QPlainTextEdit*>()->isEnabled());
    window.setBombed(false);
    EXPECT_EQ(window.selectedAction(), ZELFirstAidWindowController::Action::Reset);
    EXPECT_FALSE(window.findChild<QPlainTextEdit*>()->isEnabled());
    EXPECT_TRUE(window.cleanUpLogs());
}

TEST(FirstAid, sends_what_was_seen_and_nothing_else)
{
    Scene scene;
    WithNext<ZELFirstAidWindowController>([](auto& window) {
        window.template findChild<QPlainTextEdit*>()->setPlainText(QStringLiteral("I paged."));
        window.accept();
        WithNext<ReportReviewWindow>([](auto& review) {
            EXPECT_TRUE(review.text().contains(QLatin1String("DOE")));
            EXPECT_GT(review.marks(), 0);
            review.strikeAll();
            EXPECT_EQ(review.marks(), 0);
            review.accept();
        });
    });
    EXPECT_TRUE(scene.recovery.doSpecialApplicationStartup(true, nullptr));
    EXPECT_TRUE(scene.body.startsWith(QLatin1String("I paged.")));
    EXPECT_FALSE(scene.body.contains(QLatin1String("DOE")));
    EXPECT_FALSE(scene.body.contains(QLatin1String("older"))) << "that is in the archive";
    ASSERT_TRUE(std::filesystem::exists(scene.archive));
    EXPECT_FALSE(scene.asText);
    EXPECT_EQ(scene.Reports(), 1u);
}

TEST(FirstAid, sends_text_alone_where_nothing_can_be_attached)
{
    Scene scene;
    scene.attaches = false;
    WithNext<ReportReviewWindow>([](auto& review) { review.accept(); });
    EXPECT_TRUE(scene.recovery.U_EmailOurCrashLogs({}, false, nullptr));
    EXPECT_TRUE(scene.asText);
    EXPECT_TRUE(scene.body.contains(QLatin1String("older")));
    EXPECT_FALSE(std::filesystem::exists(scene.archive));
    EXPECT_EQ(scene.Reports(), 2u);
}

// Nothing goes and nobody is left believing that it did.
TEST(FirstAid, says_where_the_reports_are_when_nothing_sends_them)
{
    Scene scene;
    scene.attaches = scene.opensLinks = false;
    QString said;
    WithNext<ReportReviewWindow>([&said](auto& review) {
        review.accept();
        WithNext<QMessageBox>([&said](auto& box) {
            said = box.informativeText();
            box.accept();
        });
    });
    EXPECT_FALSE(scene.recovery.U_EmailOurCrashLogs({}, true, nullptr));
    EXPECT_TRUE(said.contains(QString::fromStdString(scene.recovery.reportsFolder())));
    EXPECT_EQ(scene.Reports(), 2u);
}

TEST(FirstAid, leaves_everything_when_the_user_thinks_better_of_it)
{
    Scene scene;
    WithNext<ReportReviewWindow>([](auto& review) { review.reject(); });
    EXPECT_FALSE(scene.recovery.U_EmailOurCrashLogs({}, true, nullptr));
    EXPECT_TRUE(scene.body.isEmpty());
    EXPECT_EQ(scene.Reports(), 2u);
    WithNext<ZELFirstAidWindowController>([](auto& window) { window.reject(); });
    EXPECT_TRUE(scene.recovery.doSpecialApplicationStartup(true, nullptr));
    WithNext<ZELFirstAidWindowController>(
        [](auto& window) { window.done(ZELFirstAidWindowController::kUpdateCheck); });
    EXPECT_FALSE(scene.recovery.doSpecialApplicationStartup(true, nullptr));
    EXPECT_TRUE(scene.checked);
}

TEST(FirstAid, a_reset_takes_all_settings_and_keeps_a_copy)
{
    Scene scene;
    scene.recovery.U_ClearPrefsAndRelaunchApp();
    EXPECT_TRUE(scene.terminated);  // the program isn't one that can be started again
    EXPECT_TRUE(std::filesystem::exists(scene.folder.Path("preferences.plist")));
    std::filesystem::permissions(scene.folder.WriteFile("program", "#!/bin/sh\n"),
                                 std::filesystem::perms::owner_all);
    scene.recovery.U_ClearPrefsAndRelaunchApp();
    EXPECT_FALSE(std::filesystem::exists(scene.folder.Path("preferences.plist")));
    EXPECT_TRUE(std::filesystem::exists(scene.folder.Path("preferences.plist.before-reset")));
    prefs_Set_ToolScope(0);
    prefs_Synchronize();
    EXPECT_FALSE(std::filesystem::exists(scene.folder.Path("preferences.plist")));
}

}  // namespace

// The program as the desktop starts it, killed at any moment: what the next start makes of it, and
// what is left lying about.
#include "app/shell/Desk.h"

#include <array>

namespace {

TEST(KilledViewer, comes_back_with_first_aid_once_and_leaves_nothing)
{
    const Desk desk;
    desk.folder.WriteFile("cache/org.zelora.Viewer/Data/old.files/patient", "of a killed run");
    int crashes = 0;
    for (const int moment_ms : {0, 5, 20, 40, 60, 90, 130, 180, 250, 400}) {
        SCOPED_TRACE(moment_ms);
        const pid_t child = desk.Start();
        usleep(static_cast<useconds_t>(moment_ms) * 1000);
        kill(child, SIGKILL);
        EXPECT_EQ(Desk::Wait(child), 256 + SIGKILL);
        crashes += desk.HasLock() ? 1 : 0;
        EXPECT_EQ(desk.RunAndQuit(), 0);  // first aid, if there was a lock
        EXPECT_EQ(desk.Crashes(), crashes);
        EXPECT_FALSE(desk.HasLock());
        EXPECT_EQ(desk.RunAndQuit(), 0);  // and no more
        EXPECT_EQ(desk.Crashes(), crashes);
        EXPECT_EQ(desk.LeftInCaches(), std::vector<std::string>());
    }
    EXPECT_GT(crashes, 0);
    EXPECT_EQ(desk.Preferences().value(QStringLiteral("ZELRecentDocuments")).toList().size(), 1);
}

// Whatever it shows: the Open dialog, or first aid and what comes behind it.
TEST(KilledViewer, ends_when_it_is_asked_to)
{
    const Desk desk;
    for (const bool crashed : {false, true}) {
        SCOPED_TRACE(crashed);
        if (crashed) {
            const pid_t child = desk.Start();
            usleep(400'000);
            kill(child, SIGKILL);
            Desk::Wait(child);
        }
        const pid_t child = desk.Start(ZELORA_VIEWER, nullptr);
        usleep(400'000);
        kill(child, SIGTERM);
        EXPECT_EQ(Desk::Wait(child), 0);
        EXPECT_FALSE(desk.HasLock());
        EXPECT_EQ(desk.Crashes(), crashed ? 1 : 0);
    }
}

TEST(KilledViewer, outlives_whoever_reads_its_messages)
{
    Desk desk;
    std::array<int, 2> ends{};
    ASSERT_EQ(pipe(ends.data()), 0);
    close(ends[0]);
    desk.inChild = [&] { dup2(ends[1], STDERR_FILENO); };
    const pid_t child = desk.Start(ZELORA_VIEWER, "missing");
    usleep(400'000);
    kill(child, SIGTERM);
    EXPECT_EQ(Desk::Wait(child), 1);  // nothing was opened
    EXPECT_FALSE(desk.HasLock());
    close(ends[1]);
}

TEST(KilledViewer, copies_from_two_places_run_side_by_side_and_one_place_runs_once)
{
    const Desk desk;
    const std::string other = desk.folder.Path("elsewhere");
    fs::copy_file(ZELORA_VIEWER, other);
    const pid_t first = desk.Start();
    usleep(400'000);
    EXPECT_EQ(Desk::Wait(desk.Start()), 0);  // hands over, and ends by itself
    const pid_t second = desk.Start(other.c_str());
    usleep(400'000);
    EXPECT_EQ(desk.Crashes(), 0);
    kill(second, SIGTERM);
    EXPECT_EQ(Desk::Wait(second), 0);
    EXPECT_TRUE(desk.HasLock());  // the first one's
    kill(first, SIGTERM);
    EXPECT_EQ(Desk::Wait(first), 0);
    EXPECT_FALSE(desk.HasLock());
    EXPECT_EQ(desk.Crashes(), 0);
}

}  // namespace

// The program as the desktop starts it, killed at any moment: what the next start makes of it, and
// what is left lying about.
#include "dicom_core/opening/OpeningFixtures.h"
#include "fixtures/TempFolder.h"
#include "platform/PropertyList.h"

#include <csignal>
#include <filesystem>
#include <gtest/gtest.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

// A user of one's own, with nothing but a folder of images.
class Desk {
public:
    Desk()
    {
        for (int i = 0; i < 300; ++i)
            folder.WriteFile("study/" + std::to_string(i),
                             SmallImage({.instance = "1.7." + std::to_string(i)}));
        for (const char* name : {"config", "data", "cache", "runtime"})
            fs::create_directories(folder.Path(name));
        fs::permissions(folder.Path("runtime"), fs::perms::owner_all);
    }
    [[nodiscard]] pid_t Start(const char* program = ZELORA_VIEWER) const
    {
        const pid_t child = fork();
        if (child != 0)
            return child;
        setenv("XDG_CONFIG_HOME", folder.Path("config").c_str(), 1);
        setenv("XDG_DATA_HOME", folder.Path("data").c_str(), 1);
        setenv("XDG_CACHE_HOME", folder.Path("cache").c_str(), 1);
        setenv("XDG_RUNTIME_DIR", folder.Path("runtime").c_str(), 1);
        setenv("QT_QPA_PLATFORM", "offscreen", 1);
        setenv("QT_LOGGING_RULES", "*.warning=false", 1);
        execl(program, program, folder.Path("study").c_str(), static_cast<char*>(nullptr));
        _exit(127);
    }
    // How it ended: its code, or 256 and the signal.
    static int Wait(pid_t child)
    {
        int code = 0;
        waitpid(child, &code, 0);
        return WIFSIGNALED(code) ? 256 + WTERMSIG(code) : WEXITSTATUS(code);
    }
    // Runs until it has put its lock down, then asks it to end. With first aid before, that is
    // answered by the request to end, and the start goes on.
    [[nodiscard]] int RunAndQuit() const
    {
        const pid_t child = Start();
        for (int i = 0; i < 40; ++i)
            usleep(10'000);
        kill(child, SIGTERM);
        return Wait(child);
    }
    [[nodiscard]] QVariantMap Preferences() const
    {
        const PropertyListReading reading =
            ReadPropertyListFile(folder.Path("config/org.zelora.Viewer/preferences.plist"));
        EXPECT_TRUE(reading.IsSound() || reading.fStatus == kQvxFileNotFound) << reading.fFault;
        return reading.fRoot.toMap();
    }
    [[nodiscard]] int Crashes() const
    {
        return Preferences().value(QStringLiteral("CrashCounter")).toInt();
    }
    [[nodiscard]] bool HasLock() const
    {
        return fs::exists(folder.Path("data/org.zelora.Viewer/CrashLocks"));
    }
    // Folders of processes, and what they hold; not the one that all of them share.
    [[nodiscard]] std::vector<std::string> LeftInCaches() const
    {
        std::vector<std::string> left;
        for (const auto& entry :
             fs::recursive_directory_iterator(folder.Path("cache/org.zelora.Viewer"))) {
            if (entry.path().filename() != "Data")
                left.push_back(entry.path().native());
        }
        return left;
    }
    TempFolder folder;
};

TEST(KilledViewer, comes_back_with_first_aid_once_and_leaves_nothing)
{
    const Desk desk;
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

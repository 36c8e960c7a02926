// When a lock file means a crash, and which ones go.
#include "app/recovery/CrashLocks.h"

#include "fixtures/TempFolder.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <sys/stat.h>

namespace {

using Paths = std::vector<std::string>;

// Places are files that exist, unless their name says otherwise.
struct Scene {
    explicit Scene(const std::vector<std::string>& running = {"here"})
        : locks(folder.Path("data"), Place("here"), [this] { return places; })
    {
        for (const std::string& name : running)
            places.push_back(Place(name));
    }
    std::string Place(const std::string& name)
    {
        const std::string path = folder.Path("places/" + name);
        if (name != "gone")
            folder.WriteFile("places/" + name, "");
        return path;
    }
    void Lock(const std::string& file, const std::string& bytes)
    {
        folder.WriteFile("data/CrashLocks/" + file, bytes);
    }
    void LockOf(const std::string& name, const std::string& file = "lockfile_1")
    {
        const std::string place = Place(name);
        Lock(file, std::to_string(place.size()) + "\n" + place);
    }
    std::size_t Files() const
    {
        std::size_t count = 0;
        std::error_code failed;
        for ([[maybe_unused]] const auto& each :
             std::filesystem::directory_iterator(folder.Path("data/CrashLocks"), failed))
            ++count;
        return count;
    }
    TempFolder folder;
    Paths places;
    CrashLocks locks;
};

TEST(CrashLocks, tell_of_a_crash)
{
    struct Row {
        const char* rule;
        Paths running;
        std::function<void(Scene&)> given;
        bool crash;
    };
    const Row rows[] = {
        {"nothing was left", {"here"}, [](Scene&) {}, false},
        {"an empty folder",
         {"here"},
         [](Scene& s) { std::filesystem::create_directories(s.folder.Path("data/CrashLocks")); },
         false},
        {"any relic, alone", {"here"}, [](Scene& s) { s.Lock("lockfile_9", "?"); }, true},
        {"another copy runs, with its lock",
         {"here", "there"},
         [](Scene& s) { s.LockOf("there"); },
         false},
        {"a second start of this place",
         {"here", "there"},
         [](Scene& s) { s.LockOf("here"); },
         true},
        {"nobody of that place runs", {"here", "there"}, [](Scene& s) { s.LockOf("old"); }, true},
        {"its program was deleted", {"here", "there"}, [](Scene& s) { s.LockOf("gone"); }, true},
        {"an empty lock", {"here", "there"}, [](Scene& s) { s.Lock("lockfile_1", ""); }, true},
        {"one that was cut off is no evidence",
         {"here", "there"},
         [](Scene& s) { s.Lock("lockfile_1", "400\n/ab"); },
         false},
        {"other files don't count",
         {"here", "there"},
         [](Scene& s) { s.Lock("notes", ""); },
         false},
        {"the old folder",
         {"here"},
         [](Scene& s) { std::filesystem::create_directories(s.folder.Path("data/CrashLock")); },
         true},
        {"the old folder while another runs",
         {"here", "there"},
         [](Scene& s) { std::filesystem::create_directories(s.folder.Path("data/CrashLock")); },
         false},
    };
    for (const Row& row : rows) {
        Scene scene(row.running);
        row.given(scene);
        EXPECT_EQ(scene.locks.U_CrashSemaphoreExists(), row.crash) << row.rule;
    }
}

TEST(CrashLocks, are_read_with_their_faults)
{
    Scene scene;
    std::string place = "unchanged";
    EXPECT_EQ(CrashLocks::readContentsOfFile(scene.folder.Path("none"), &place), ENOENT);
    EXPECT_EQ(place, "unchanged");
    const std::string here = scene.Place("here");
    const auto read = [&](const std::string& bytes) {
        return CrashLocks::readContentsOfFile(scene.folder.WriteFile("lock", bytes), &place);
    };
    EXPECT_EQ(read(std::to_string(here.size()) + "\n" + here), 0);
    EXPECT_EQ(place, here);
    EXPECT_EQ(read(""), 0);
    EXPECT_EQ(place, "");
    EXPECT_EQ(read("5\n/non!"), 0);
    EXPECT_EQ(place, "/non!");
    EXPECT_EQ(read("0\n"), -43);
    EXPECT_EQ(read("5\n/no"), -19);
    EXPECT_EQ(read("12"), -19);
    EXPECT_EQ(read("20000\n" + std::string(20'000, '/')), -19);
    // Nothing that could keep the program waiting.
    const std::string pipe = scene.folder.Path("pipe");
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    EXPECT_EQ(CrashLocks::readContentsOfFile(pipe, &place), EINVAL);
    EXPECT_EQ(CrashLocks::readContentsOfFile(scene.folder.Path(""), &place), EINVAL);
    std::filesystem::create_symlink(here, scene.folder.Path("link"));
    EXPECT_EQ(CrashLocks::readContentsOfFile(scene.folder.Path("link"), &place), ELOOP);
}

TEST(CrashLocks, go_by_whose_they_are)
{
    Scene own({"here", "there"});
    own.locks.U_WriteCrashSemaphore();
    own.locks.U_WriteCrashSemaphore();  // in the same second: another name
    own.LockOf("there", "lockfile_there");
    EXPECT_EQ(own.Files(), 3u);
    own.locks.U_ClearCrashSemaphore(true, false);
    EXPECT_EQ(own.Files(), 2u);  // of this run alone
    own.locks.U_ClearCrashSemaphore(true, false);
    EXPECT_EQ(own.Files(), 1u);  // the other copy's stays

    Scene dead({"here", "there"});
    dead.LockOf("here", "lockfile_1");
    dead.LockOf("there", "lockfile_2");
    dead.LockOf("old", "lockfile_3");
    dead.LockOf("gone", "lockfile_4");
    dead.Lock("lockfile_5", "");
    dead.locks.U_ClearCrashSemaphore(false, true);
    EXPECT_EQ(dead.Files(), 2u);

    Scene last;
    last.locks.U_WriteCrashSemaphore();
    EXPECT_TRUE(last.locks.U_CrashSemaphoreExists());
    last.locks.U_ClearCrashSemaphore(true, false);
    EXPECT_FALSE(std::filesystem::exists(last.folder.Path("data/CrashLocks")));
}

}  // namespace

// Several processes of one program: who runs, who hands over to whom, what is left of one that was
// killed.
#include "platform/HandOver.h"

#include "fixtures/TempFolder.h"
#include "platform/RunningCopies.h"
#include "platform/ZipArchive.h"

#include <QCoreApplication>
#include <QTimer>
#include <csignal>
#include <filesystem>
#include <gtest/gtest.h>
#include <minizip/unzip.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

using Paths = std::vector<std::string>;

// A process of its own that runs `work`; its code is what that answers.
class Child {
public:
    template <typename Work>
    explicit Child(Work work) : fPid(fork())
    {
        if (fPid == 0)
            _exit(work());
    }
    int Wait()
    {
        int code = 0;
        waitpid(std::exchange(fPid, 0), &code, 0);
        return WIFEXITED(code) ? WEXITSTATUS(code) : -1;
    }
    void Kill()
    {
        kill(fPid, SIGKILL);
        Wait();
    }
    ~Child()
    {
        if (fPid > 0)
            Kill();
    }

private:
    pid_t fPid;
};

bool WaitUntil(const std::function<bool()>& done)
{
    for (int i = 0; i < 500 && !done(); ++i)
        usleep(10'000);
    return done();
}

TEST(RunningCopies, counts_who_lives_however_the_others_ended)
{
    TempFolder folder;
    const RunningCopies own(folder.Path(""), "/here");
    EXPECT_EQ(own.places(), Paths{"/here"});
    {
        const auto live = [&](const char* place) {
            return [&folder, place] {
                const RunningCopies copy(folder.Path(""), place);
                pause();
                return 0;
            };
        };
        Child killed(live("/there")), second(live("/here"));
        ASSERT_TRUE(WaitUntil([&] { return own.places().size() == 3; }));
        Paths places = own.places();
        std::sort(places.begin(), places.end());
        EXPECT_EQ(places, (Paths{"/here", "/here", "/there"}));
        killed.Kill();
        EXPECT_EQ(own.places().size(), 2u);
    }
    EXPECT_EQ(own.places(), Paths{"/here"});
}

TEST(HandOver, a_later_start_of_the_same_place_gives_its_paths_and_ends)
{
    int argc = 1;
    char name[] = "test";
    char* argv[] = {name, nullptr};
    QCoreApplication application(argc, argv);
    TempFolder folder;
    auto first = HandOverOrStart(folder.Path(""), "/here", {});
    ASSERT_TRUE(first);
    std::vector<Paths> received;
    const auto start = [&](const char* place, const Paths& paths) {
        return [&folder, place, paths] {
            return HandOverOrStart(folder.Path(""), place, paths) ? 1 : 0;
        };
    };
    const Paths odd = {"/a b", std::string("/\xff\n"), ""};
    Child second(start("/here", odd)), elsewhere(start("/there", {"/x"})), bare(start("/here", {}));
    first->setReceived([&](Paths paths) {
        received.push_back(std::move(paths));
        if (received.size() == 2)
            QCoreApplication::exit();
        return true;
    });
    QTimer::singleShot(5000, &application, [] { QCoreApplication::exit(1); });
    EXPECT_EQ(QCoreApplication::exec(), 0);
    EXPECT_EQ(second.Wait(), 0);
    EXPECT_EQ(bare.Wait(), 0);
    EXPECT_EQ(elsewhere.Wait(), 1);
    std::sort(received.begin(), received.end());
    EXPECT_EQ(received, (std::vector<Paths>{{}, odd}));
}

// Neither twice nor not at all.
TEST(HandOver, paths_are_opened_by_one_of_two)
{
    int argc = 1;
    char name[] = "test";
    char* argv[] = {name, nullptr};
    QCoreApplication application(argc, argv);
    TempFolder folder;
    auto first = HandOverOrStart(folder.Path(""), "/here", {});
    int asked = 0;
    // Who has waited too long has gone on alone.
    Child hasty([&] { return HandOverOrStart(folder.Path(""), "/here", {"/a"}, 50) ? 1 : 0; });
    EXPECT_EQ(hasty.Wait(), 1);
    // Who comes while the first one ends takes its place.
    Child next([&] {
        close_range(3, ~0U, 0);  // a program of its own holds no socket of the first one
        const auto own = HandOverOrStart(folder.Path(""), "/here", {"/b"}, 5000);
        for (const auto& entry : std::filesystem::directory_iterator(folder.Path(""))) {
            if (entry.path().extension() == ".socket")
                return own ? 2 : 3;
        }
        return 4;
    });
    first->setReceived([&](Paths paths) {
        ++asked;
        EXPECT_EQ(paths, Paths{"/b"});
        QTimer::singleShot(100, &application, [] { QCoreApplication::exit(); });
        return false;
    });
    QTimer::singleShot(5000, &application, [] { QCoreApplication::exit(1); });
    EXPECT_EQ(QCoreApplication::exec(), 0);
    first.reset();
    EXPECT_GE(asked, 1);
    EXPECT_EQ(next.Wait(), 2);
}

TEST(HandOver, one_that_was_killed_or_hangs_keeps_nobody_from_starting)
{
    TempFolder folder;
    int ready[2];
    ASSERT_EQ(pipe(ready), 0);
    Child running([&] {
        const auto own = HandOverOrStart(folder.Path(""), "/here", {});
        static_cast<void>(!write(ready[1], "x", 1));
        pause();
        return 0;
    });
    char byte = 0;
    ASSERT_EQ(read(ready[0], &byte, 1), 1);
    // It lives, but its event loop doesn't turn.
    EXPECT_TRUE(HandOverOrStart(folder.Path(""), "/here", {"/a"}, 100));
    running.Kill();
    auto next = HandOverOrStart(folder.Path(""), "/here", {"/a"});
    ASSERT_TRUE(next);
    next->setReceived({});
    Child third([&] { return HandOverOrStart(folder.Path(""), "/here", {}, 50) ? 1 : 0; });
    EXPECT_EQ(third.Wait(), 1);  // nobody turns this process's loop either
    close(ready[0]);
    close(ready[1]);
    EXPECT_TRUE(HandOverOrStart("", "/here", {}));
}

TEST(ZipArchive, holds_what_was_put_in_or_is_not_there)
{
    TempFolder folder;
    const std::string path = folder.Path("a.zip"), text(100'000, 'x');
    ASSERT_EQ(WriteZipArchive(path, {{"one", "first"}, {"two.log", text}}), kQvxOK);
    EXPECT_EQ(WriteZipArchive(path, {}), EEXIST);
    EXPECT_LT(std::filesystem::file_size(path), 1000u);
    unzFile archive = unzOpen(path.c_str());
    ASSERT_TRUE(archive);
    ASSERT_EQ(unzLocateFile(archive, "two.log", 1), UNZ_OK);
    ASSERT_EQ(unzOpenCurrentFile(archive), UNZ_OK);
    std::string read(text.size() + 1, '\0');
    EXPECT_EQ(unzReadCurrentFile(archive, read.data(), static_cast<unsigned>(read.size())),
              static_cast<int>(text.size()));
    unzClose(archive);
    EXPECT_NE(WriteZipArchive(folder.Path("no/such"), {}), kQvxOK);
    EXPECT_FALSE(std::filesystem::exists(folder.Path("no")));
}

}  // namespace

// The standing threads: every part runs once, whoever asks, and in a forked process too.
#include "pixels/RowPool.h"

#include <array>
#include <atomic>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>
#include <vector>

namespace {

bool RunsEachPartOnce(int parts)
{
    std::array<std::atomic<int>, 16> runs{};
    RunParts(parts, [&](int part) { ++runs[static_cast<std::size_t>(part)]; });
    for (std::size_t i = 0; i < runs.size(); ++i) {
        if (runs[i] != (static_cast<int>(i) < parts ? 1 : 0))
            return false;
    }
    return true;
}

}  // namespace

TEST(RowPool, runs_each_part_once_for_callers_of_several_threads)
{
    std::atomic<int> wrong = 0;
    std::vector<std::thread> callers;
    for (int caller = 0; caller < 3; ++caller)
        callers.emplace_back([&wrong] {
            for (int i = 0; i < 500; ++i)
                wrong += !RunsEachPartOnce(1 + i % 16);
        });
    for (std::thread& caller : callers)
        caller.join();
    EXPECT_EQ(wrong, 0);
}

TEST(RowPool, works_in_a_forked_process_without_threads)
{
    ASSERT_TRUE(RunsEachPartOnce(4));
    const pid_t child = ::fork();
    ASSERT_GE(child, 0);
    if (child == 0)
        ::_exit(RunsEachPartOnce(4) ? 0 : 1);
    int status = -1;
    ASSERT_EQ(::waitpid(child, &status, 0), child);
    EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0);
}

TEST(RowPool, leaves_small_work_to_one_thread)
{
    EXPECT_EQ(PartsOfWork(512 * 512), 1);
    EXPECT_LE(PartsOfWork(std::int64_t{1} << 30), 4);
}

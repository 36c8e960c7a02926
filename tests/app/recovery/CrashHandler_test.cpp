// What a process leaves that crashes.
#include "app/recovery/CrashHandler.h"

#include "app/recovery/CrashReports.h"
#include "app/recovery/Relaunch.h"
#include "fixtures/TempFolder.h"
#include "util/SignalStack.h"

#include <csignal>
#include <filesystem>
#include <fstream>
#include <functional>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace {

// How a child ends that installs the handler and then does `work`.
int EndOf(const std::string& folder, const std::function<void()>& work)
{
    const pid_t child = fork();
    if (child == 0) {
        InstallCrashHandler(folder, "zelora-viewer");
        work();
        _exit(0);
    }
    int code = 0;
    waitpid(child, &code, 0);
    return WIFSIGNALED(code) ? WTERMSIG(code) : 0;
}

__attribute__((noinline)) int Deeper(int depth)
{
    volatile char room[4096];
    room[0] = static_cast<char>(depth);
    return depth > 1'000'000'000 ? room[0] : Deeper(depth + 1) + room[0];
}

TEST(CrashHandler, writes_a_trace_and_dies_of_the_same_signal)
{
    struct Row {
        int signal;
        std::function<void()> crash;
    };
    const Row rows[] = {
        {SIGSEGV, [] { raise(SIGSEGV); }},
        {SIGABRT, [] { std::abort(); }},
        {SIGABRT, [] { [](void (*f)()) noexcept { f(); }([] { throw 1; }); }},
        {SIGSEGV, [] { std::exit(Deeper(0)); }},  // no stack is left
        {SIGSEGV,
         [] {
             std::thread([] {
                 const SignalStack stack;
                 std::exit(Deeper(0));
             }).join();
         }},
    };
    for (const Row& row : rows) {
        TempFolder folder;
        EXPECT_EQ(EndOf(folder.Path("reports"), row.crash), row.signal);
        const auto reports =
            U_CollectCrashReportPaths("zelora-viewer", folder.Path("reports"), kCrashSuffix);
        ASSERT_EQ(reports.size(), 1u);
        const std::string text = ReportFileText(reports.front());
        EXPECT_TRUE(text.starts_with("Signal " + std::to_string(row.signal))) << text.substr(0, 80);
        EXPECT_NE(text.find("Trace:\n"), std::string::npos);
        EXPECT_NE(text.find("recovery_test"), std::string::npos);
        namespace fs = std::filesystem;
        EXPECT_EQ(fs::status(reports.front()).permissions() & fs::perms::others_all,
                  fs::perms::none);
    }
    TempFolder calm;
    EXPECT_EQ(EndOf(calm.Path("reports"), [] {}), 0);
    EXPECT_FALSE(U_CrashReportExists("zelora-viewer", calm.Path("reports")));
}

TEST(CrashReports, are_those_of_the_program_and_older_ones_go)
{
    TempFolder folder;
    const std::string reports = folder.Path("reports");
    for (const char* name :
         {"zelora-viewer_1.crash", "zelora-viewer_2.crash", "below/zelora-viewer_3.crash",
          "zelora-viewer_4.hang", "other_5.crash", "zelora-viewer-6.crash", "zelora-viewer_7.txt"})
        folder.WriteFile(std::string("reports/") + name, name);
    // Names count from the folder: what lies in one of another name is another program's.
    EXPECT_EQ(U_CollectCrashReportPaths("zelora-viewer", reports, kCrashSuffix).size(), 2u);
    clearOlderCrashLogs("zelora-viewer", reports, 2);
    EXPECT_EQ(U_CollectCrashReportPaths("zelora-viewer", reports, kCrashSuffix).size(), 2u);
    clearOlderCrashLogs("zelora-viewer", reports);
    const auto left = U_CollectCrashReportPaths("zelora-viewer", reports, kCrashSuffix);
    ASSERT_EQ(left.size(), 1u);
    EXPECT_TRUE(left.front().ends_with("_2.crash"));
    EXPECT_EQ(U_CollectCrashReportPaths("zelora-viewer", reports, kHangSuffix).size(), 1u);
    EXPECT_TRUE(std::filesystem::exists(folder.Path("reports/other_5.crash")));
    folder.WriteFile("a.zip", "");
    EXPECT_TRUE(U_GetUniqueFileName(folder.Path("reports/.."), "a.zip").ends_with("a_1.zip"));
    // The signal and the trace stand first.
    const std::string longReport =
        ReportFileText(folder.WriteFile("long", "Signal 11\n" + std::string(400'000, 'm')));
    EXPECT_TRUE(longReport.starts_with("Signal 11\n"));
    EXPECT_EQ(longReport.size(), 256u * 1024);
    EXPECT_EQ(ReportFileText(folder.WriteFile("bytes", std::string("a\xff\0z", 4))), "a?z");
}

TEST(Relaunch, comes_back_once_the_process_has_ended)
{
    TempFolder folder;
    const std::string mark = folder.Path("mark");
    const std::string program =
        folder.WriteFile("again", "#!/bin/sh\necho started > '" + mark + "'\n");
    std::filesystem::permissions(program, std::filesystem::perms::owner_all);
    const pid_t child = fork();
    if (child == 0) {
        const bool started = RelaunchAfterEnd(program);
        usleep(200'000);
        _exit(started && !std::filesystem::exists(mark) ? 0 : 1);
    }
    int code = 1;
    waitpid(child, &code, 0);
    EXPECT_EQ(code, 0);
    for (int i = 0; i < 300 && !std::filesystem::exists(mark); ++i)
        usleep(10'000);
    EXPECT_TRUE(std::filesystem::exists(mark));
    EXPECT_FALSE(RelaunchAfterEnd(folder.Path("none")));
}

}  // namespace

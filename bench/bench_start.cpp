// From the start of the viewer to its first painted frame, process and all, against an empty window
// of the same toolkit: offscreen, and on the display if there is one.
//   bench_start
#include "CTFiles.h"
#include "PairedRatio.h"

#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>

extern char** environ;

namespace {

bool gAllHeld = true;

// Its output goes nowhere. Ends the benchmark if it fails.
void Run(std::vector<std::string> words, const char* platform)
{
    std::vector<std::string> surroundings = {
        std::string("QT_QPA_PLATFORM=") + platform,
        "ZELORA_SNAPSHOT=", "QT_LOGGING_RULES=*.warning=false"};
    for (char** each = environ; *each; ++each) {
        if (std::strncmp(*each, "QT_QPA_PLATFORM=", 16) != 0)
            surroundings.emplace_back(*each);
    }
    std::vector<char*> arguments, environment;
    for (std::string& word : words)
        arguments.push_back(word.data());
    for (std::string& word : surroundings)
        environment.push_back(word.data());
    arguments.push_back(nullptr);
    environment.push_back(nullptr);
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, 1, "/dev/null", O_WRONLY, 0);
    posix_spawn_file_actions_addopen(&actions, 2, "/dev/null", O_WRONLY, 0);
    pid_t child = 0;
    int code = 1;
    if (posix_spawn(&child, arguments[0], &actions, nullptr, arguments.data(),
                    environment.data()) != 0 ||
        waitpid(child, &code, 0) != child || code != 0) {
        std::printf("%s failed\n", arguments[0]);
        std::exit(1);
    }
    posix_spawn_file_actions_destroy(&actions);
}

void Report(const char* what, const PairedRatio& measured, double limit)
{
    const bool held = measured.fRatio <= limit;
    gAllHeld = gAllHeld && held;
    std::printf("%s: %.1f ms against %.1f ms, ratio %.2f, limit %.2f: %s\n", what,
                measured.fWork / 1000, measured.fFloor / 1000, measured.fRatio, limit,
                held ? "held" : "NOT HELD");
}

void MeasureStart(const std::string& demo, const char* platform, double limit)
{
    const PairedRatio ratio = MeasurePairs([&] { Run({ZELORA_VIEWER, demo}, platform); },
                                           [&] { Run({EMPTY_WINDOW}, platform); });
    Report(platform, ratio, limit);
}

// The first picture of 2,000 files, against that of the demo and twice a listing of the files.
void MeasureFolder(const std::string& demo, const char* platform)
{
    TempFolder folder;
    MakeFiles(folder, 2000, 256);
    const PairedRatio ratio =
        MeasurePairs([&] { Run({ZELORA_VIEWER, folder.Path("")}, platform); },
                     [&] {
                         Run({ZELORA_VIEWER, demo}, platform);
                         Run({ZELORA_TOOL, "tree", folder.Path("")}, platform);
                         Run({ZELORA_TOOL, "tree", folder.Path("")}, platform);
                     });
    Report("2,000 files", ratio, 1.0);
}

}  // namespace

int main()
{
    TempFolder settings, study;
    setenv("XDG_CONFIG_HOME", settings.Path("").c_str(), 1);
    Run({ZELORA_TOOL, "demo", study.Path("")}, "offscreen");
    MeasureStart(study.Path(""), "offscreen", 5.0);
    if (std::getenv("DISPLAY"))
        MeasureStart(study.Path(""), "xcb", 3.0);
    MeasureFolder(study.Path(""), "offscreen");
    return gAllHeld ? 0 : 1;
}

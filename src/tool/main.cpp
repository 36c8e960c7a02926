// zelora COMMAND …: the viewer's core without a window, for scripts and for checking.
#include "tool/CommandLine.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <exception>
#include <vector>

namespace {

struct CommandRow {
    std::string_view fName;
    int (*fRun)(CommandWords);
};
constexpr auto kCommands = std::to_array<CommandRow>({
    {"dump", RunDump},
    {"check", RunCheck},
    {"frame", RunFrame},
    {"stats", RunStats},
    {"tree", RunTree},
    {"demo", RunDemo},
});

constexpr std::string_view kHelp =
    "usage: zelora COMMAND ...\n"
    "\n"
    "  dump FILE                every element in file order, nested, one line each\n"
    "  check PATH...            open, read every value, decode every frame, close\n"
    "  frame FILE [-n N] [--raw | --png] [--window WIDTH,LEVEL] [--invert]\n"
    "        [--rotate 90|180|270] [--flip h|v] [--clut NUMBER] [--overlays] -o OUT\n"
    "                           one frame as a picture under its window (PNG), turned, then\n"
    "                           flipped, in the colours of a table, with its overlays; or its\n"
    "                           stored values (raw: little endian, interleaved, rows top-down)\n"
    "  stats [--frames ends | all] FILE...\n"
    "                           one tab-separated line a frame: path, frame, frames, rows,\n"
    "                           columns, samples, transfer syntax, minimum, maximum, mean,\n"
    "                           SHA-256 of the stored values; the first, middle and last\n"
    "                           frame unless all are wanted\n"
    "  tree PATH [--json] [--recursive=on|off] [--ignore-dicomdir=on|off] [--merge-us=on|off]\n"
    "       [--merge-xa=on|off] [--separate-localizers=on|off]\n"
    "                           what a file, a folder or a DICOMDIR holds: patients, studies,\n"
    "                           series, sequences, and what was left out; a switch sets that\n"
    "                           preference for this run\n"
    "  demo FOLDER              writes a study made by arithmetic\n"
    "\n"
    "  --help, --version\n"
    "\n"
    "Frames count from 1. Exit code: 0 success, 1 failure (one line on standard error for each\n"
    "file that failed), 2 wrong usage.\n";

int Run(CommandWords words)
{
    if (words.empty())
        return WrongUsage("which command?");
    if (words[0] == "--help" || words[0] == "-h") {
        Say(kHelp);
        return kExitOK;
    }
    if (words[0] == "--version") {
        Say("zelora " ZELORA_VERSION "\n");
        return kExitOK;
    }
    const auto row = std::ranges::find(kCommands, words[0], &CommandRow::fName);
    if (row == kCommands.end())
        return WrongUsage("unknown command " + words[0]);
    return row->fRun(words.subspan(1));
}

}  // namespace

int main(int argc, char** argv)
{
    try {
        const std::vector<std::string> words(argv + std::min(argc, 1), argv + argc);
        const int code = Run(words);
        if (std::fflush(stdout) != 0 || std::ferror(stdout) != 0)
            return Failure("standard output", "can't be written");
        return code;
    } catch (const std::exception& failure) {  // memory that ran out in a command itself
        return Failure("zelora", failure.what());
    }
}

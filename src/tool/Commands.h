// The commands of `zelora`, one function each. Each is a thin caller of the core that the window
// uses. They answer the program's exit code: 0 success, 1 a failure that was told in one line on
// standard error, 2 wrong usage.
#pragma once
#include <span>
#include <string>

inline constexpr int kExitOK = 0;
inline constexpr int kExitFailure = 1;
inline constexpr int kExitUsage = 2;

// What stands behind the command's name on the command line; paths are bytes.
using CommandWords = std::span<const std::string>;

int RunDump(CommandWords words);
int RunCheck(CommandWords words);
int RunFrame(CommandWords words);
int RunStats(CommandWords words);
int RunTree(CommandWords words);
int RunDemo(CommandWords words);

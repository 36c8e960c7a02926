// What the program writes of its own crash: which signal, where each thread of calls was, and what
// was loaded where, so that the places can be found again. No contents of memory, so nothing of a
// patient.
#pragma once
#include <string>

// From now on a crash of this process leaves NAME_date_pid.crash in `folder` (made here, 0700; its
// path is bytes), and the process ends by its signal as it would have. Only the first of two
// crashes at once is written. A thread that may use up its stack makes a SignalStack. False if that
// folder can't be had.
bool InstallCrashHandler(const std::string& folder, const std::string& programName);

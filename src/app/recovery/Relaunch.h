// Starts the program again once this process has ended. Main thread only.
#pragma once
#include <string>

// False if that can't be had; nothing is started then.
[[nodiscard]] bool RelaunchAfterEnd(const std::string& program);

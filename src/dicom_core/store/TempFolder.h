// The private folder of this process for temporary frames, with a marker file in it that is locked
// as long as the process lives.
#pragma once
#include "util/StatusCodes.h"

#include <string>

// Made once a run, on first need; empty if it can't be made. Its parent is the user's folder of
// caches, where there is room for frames, else that of temporary files.
[[nodiscard]] const std::string& GetProgramTempFolder();
// A path in it that no file has. kQvxFileNotFound without a folder.
[[nodiscard]] QvxStatus NewTempFile(std::string* path);
// Removes it, if it was made: at the end of the program. The next need makes another.
void RemoveProgramTempFolder();
// Removes the folders of processes that are no more.
void SweepDeadTempFolders();

// The mark that a run leaves and only a clean end removes: one lock file a run, in a folder that
// all copies of the program share. Nothing is held open; who runs is told by others. Failing file
// operations are ignored: the worst that comes of them is a first aid that wasn't needed. An exit
// by whomever counts as a clean end. Without a data folder there are no locks. Paths are bytes.
// Main thread only.
#pragma once
#include "util/StatusCodes.h"

#include <functional>
#include <string>
#include <vector>

class CrashLocks {
public:
    // `dataFolder` is the user's folder of the program's data. `place` tells where this copy was
    // started from; `running` answers the places of all copies that run, this one included.
    CrashLocks(std::string dataFolder, std::string place,
               std::function<std::vector<std::string>()> running);

    void U_WriteCrashSemaphore();
    // The lock of this run, and older ones of this place; what dead runs have left.
    void U_ClearCrashSemaphore(bool own, bool orphaned);
    // A run before this one did not end cleanly. Asked before this run writes its lock.
    [[nodiscard]] bool U_CrashSemaphoreExists() const;

    // `place` is empty for an empty file, and need not be there any more. -43 for a file that names
    // none, -19 for one that was cut off, an errno if it can't be read or is no plain file.
    [[nodiscard]] static QvxStatus readContentsOfFile(const std::string& path, std::string* place);
    [[nodiscard]] const std::string& crashLockFile() const { return fCrashLockFile; }

private:
    [[nodiscard]] std::vector<std::string> lockFiles() const;
    [[nodiscard]] bool oldFolderTells() const;
    [[nodiscard]] std::string U_UniqueLockFileURLInside(const std::string& baseName) const;
    void clearOwn();
    void clearOrphaned();

    std::string fFolder, fOldFolder, fPlace;
    std::function<std::vector<std::string>()> fRunning;
    std::string fCrashLockFile;  // of this run; empty until it is written
};

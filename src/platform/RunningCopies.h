// Which copies of the program run now, and where each was started from. Known to all copies of one
// user, whatever way a copy ends: a lock tells who is alive. Paths are bytes. Any thread.
#pragma once
#include <string>
#include <vector>

class RunningCopies {
public:
    // Counts this process, until it ends or the object goes. `folder` is one of the user's own, the
    // same for all copies; `place` is what the copy is known by.
    RunningCopies(std::string folder, std::string place);
    ~RunningCopies();
    RunningCopies(const RunningCopies&) = delete;
    RunningCopies& operator=(const RunningCopies&) = delete;

    [[nodiscard]] const std::string& place() const { return fPlace; }
    // One entry a copy, this one included, also where the folder can't be used.
    [[nodiscard]] std::vector<std::string> places() const;

private:
    std::string fFolder, fPlace, fName;
    int fFile = -1;  // locked while this copy runs
};

// Where copies of this user meet: the desktop's folder for running programs, else that of caches.
// Empty if there is none.
[[nodiscard]] std::string MeetingFolder();
// The program's own file, without links. Empty if the system doesn't tell.
[[nodiscard]] std::string PlaceOfProgram();

// The frames to page through: files in order, and which frames of each. Knows neither pictures nor
// widgets. An index counts all frames from 0; a frame counts those of its file from 1.
#pragma once
#include <cstddef>
#include <string>
#include <vector>

class FrameList {
public:
    struct Place {
        std::size_t file = 0;
        int frame = 1;
        bool operator==(const Place&) const = default;
    };
    // Frames of one file that follow one another.
    struct Part {
        int first = 1, count = 0;
        int framesOfFile = 0;  // all that the file has
    };

    // Adds frames of a file; one whose frames don't all lie together is added more than once.
    // False, and nothing is added, when the part is empty, begins below 1, or the total would pass
    // a 32-bit count.
    [[nodiscard]] bool Append(std::string path, const Part& part);
    [[nodiscard]] int FrameCount() const { return fRuns.empty() ? 0 : fRuns.back().end; }
    [[nodiscard]] std::size_t FileCount() const { return fRuns.size(); }
    [[nodiscard]] const std::string& PathOf(std::size_t file) const { return fRuns[file].path; }
    [[nodiscard]] int FramesOf(std::size_t file) const { return fRuns[file].part.framesOfFile; }
    // `index` lies in 0 to FrameCount() - 1.
    [[nodiscard]] Place PlaceOf(int index) const;

private:
    struct Run {
        std::string path;
        Part part;
        int end;  // one behind its last index
    };
    std::vector<Run> fRuns;
};

enum class FrameStep { First, Previous, Next, TenBack, TenOn, Last };

// Index after `step` from `current`, kept within 0 to `count` - 1; 0 without frames.
[[nodiscard]] int SteppedIndex(FrameStep step, int current, int count);

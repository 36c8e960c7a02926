// The frames to page through: files in order, and how many frames each of them has. Knows neither
// pictures nor widgets. An index counts all frames from 0; a frame counts those of its file from 1.
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

    // False, and nothing is added, when `frames` is below 1 or the total would pass a 32-bit count.
    [[nodiscard]] bool Append(std::string path, int frames);
    [[nodiscard]] int FrameCount() const { return fEnds.empty() ? 0 : fEnds.back(); }
    [[nodiscard]] std::size_t FileCount() const { return fPaths.size(); }
    [[nodiscard]] const std::string& PathOf(std::size_t file) const { return fPaths[file]; }
    [[nodiscard]] int FramesOf(std::size_t file) const;
    // `index` lies in 0 to FrameCount() - 1.
    [[nodiscard]] Place PlaceOf(int index) const;

private:
    std::vector<std::string> fPaths;
    std::vector<int> fEnds;  // one behind the last index of each file
};

enum class FrameStep { First, Previous, Next, TenBack, TenOn, Last };

// Index after `step` from `current`, kept within 0 to `count` - 1; 0 without frames.
[[nodiscard]] int SteppedIndex(FrameStep step, int current, int count);

#include "viewer/FrameList.h"

#include "util/CheckedMath.h"

#include <algorithm>
#include <utility>

bool FrameList::Append(std::string path, int frames)
{
    const auto end = CheckedAdd(FrameCount(), frames);
    if (frames < 1 || !end)
        return false;
    fPaths.push_back(std::move(path));
    fEnds.push_back(*end);
    return true;
}

int FrameList::FramesOf(std::size_t file) const
{
    return file == 0 ? fEnds[0] : fEnds[file] - fEnds[file - 1];
}

FrameList::Place FrameList::PlaceOf(int index) const
{
    const auto end = std::ranges::upper_bound(fEnds, index);
    const int begin = end == fEnds.begin() ? 0 : *(end - 1);
    return {static_cast<std::size_t>(end - fEnds.begin()), index - begin + 1};
}

int SteppedIndex(FrameStep step, int current, int count)
{
    static constexpr long long kPage = 10;  // frames
    const long long last = count - 1LL;
    const auto target = [&]() -> long long {
        switch (step) {
            case FrameStep::First:
                return 0;
            case FrameStep::Previous:
                return current - 1LL;
            case FrameStep::Next:
                return current + 1LL;
            case FrameStep::TenBack:
                return current - kPage;
            case FrameStep::TenOn:
                return current + kPage;
            case FrameStep::Last:
                return last;
        }
        return current;
    };
    return static_cast<int>(std::clamp(target(), 0LL, std::max(0LL, last)));
}

#include "viewer/FrameList.h"

#include "util/CheckedMath.h"

#include <algorithm>
#include <utility>

bool FrameList::Append(std::string path, const Part& part)
{
    const auto end = CheckedAdd(FrameCount(), part.count);
    if (part.count < 1 || part.first < 1 || !CheckedAdd(part.first, part.count) || !end)
        return false;
    fRuns.push_back({std::move(path), part, *end});
    return true;
}

FrameList::Place FrameList::PlaceOf(int index) const
{
    const auto run = std::ranges::upper_bound(fRuns, index, {}, &Run::end);
    const int begin = run->end - run->part.count;
    return {static_cast<std::size_t>(run - fRuns.begin()), run->part.first + (index - begin)};
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

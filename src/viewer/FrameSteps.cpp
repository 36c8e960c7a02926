#include "viewer/FrameSteps.h"

#include <algorithm>

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

// Where keys lead.
#include "viewer/FrameSteps.h"

#include <gtest/gtest.h>
#include <limits>

TEST(SteppedIndex, stops_at_both_ends)
{
    struct Row {
        FrameStep step;
        int current, count, wanted;
    };
    constexpr int kMost = std::numeric_limits<int>::max();
    const Row rows[] = {
        {FrameStep::Previous, 0, 60, 0}, {FrameStep::Next, 59, 60, 59},
        {FrameStep::TenBack, 4, 60, 0},  {FrameStep::TenOn, 49, 60, 59},
        {FrameStep::TenOn, 55, 60, 59},  {FrameStep::TenBack, 25, 60, 15},
        {FrameStep::Last, 3, 60, 59},    {FrameStep::First, 3, 60, 0},
        {FrameStep::Last, 0, 0, 0},      {FrameStep::TenOn, kMost - 2, kMost, kMost - 1},
    };
    for (const Row& row : rows)
        EXPECT_EQ(SteppedIndex(row.step, row.current, row.count), row.wanted) << row.current;
}

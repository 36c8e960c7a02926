// Where keys lead, and what a cache drops.
#include "viewer/FrameSteps.h"

#include "viewer/RecentItems.h"

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

TEST(RecentItems, drops_what_was_not_used_for_longest)
{
    RecentItems<int, int> cache(10);
    cache.Put(1, 100, 4);
    cache.Put(2, 200, 4);
    ASSERT_TRUE(cache.Find(1));  // used: 2 is the older one now
    cache.Put(3, 300, 4);
    EXPECT_FALSE(cache.Find(2));
    ASSERT_TRUE(cache.Find(1));
    EXPECT_EQ(*cache.Find(1), 100);

    cache.Put(1, 101, 2);  // in place of the old one, whose bytes no longer count
    EXPECT_EQ(*cache.Find(1), 101);
    EXPECT_EQ(cache.Bytes(), 6u);

    cache.Put(9, 900, 50);  // larger than the limit: alone, but there
    EXPECT_TRUE(cache.Find(9));
    EXPECT_FALSE(cache.Find(1));
    EXPECT_EQ(cache.Bytes(), 50u);
}

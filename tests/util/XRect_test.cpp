// The rectangle helpers where integer habits go wrong: edges, empty results, rounding.
#include "util/XRect.h"

#include <gtest/gtest.h>

TEST(XRect, mapping_rounds_half_away_from_zero_and_survives_flat_rectangles)
{
    const LongRect from{0, 0, 2, 4};
    struct Row {
        const char* fault;
        LongPoint point;
        LongRect to;
        LongPoint wanted;
    };
    const Row rows[] = {
        {"half rounds up", {1, 1}, {0, 0, 1, 2}, {1, 1}},
        {"half below zero rounds down", {1, 1}, {0, 0, -1, -2}, {-1, -1}},
        {"origin of the target counts", {2, 4}, {10, 20, 30, 40}, {30, 40}},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.fault);
        EXPECT_EQ(MapLPt(row.point, from, row.to), row.wanted);
    }
    EXPECT_EQ(MapLPt({5, 5}, LongRect{}, {3, 4, 9, 9}), (LongPoint{3, 4}));
}

TEST(XRect, edges_belong_where_they_are_said_to)
{
    const LongRect r{0, 0, 10, 20};
    EXPECT_TRUE(PointWithinEdges(r, LongPoint{10, 20}));
    EXPECT_FALSE(LPointInLRect({10, 5}, r));
    EXPECT_TRUE(LPointInLRect({9, 19}, r));
    LongRect common{1, 2, 3, 4};
    EXPECT_FALSE(SectLRect(r, {10, 0, 20, 20}, &common));  // they only touch
    EXPECT_EQ(common, LongRect{});
    EXPECT_EQ(LRectToRect({-40000, 0, 40000, 7}), (Rect{-32767, 0, 32767, 7}));
}

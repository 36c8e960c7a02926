// Points and rectangles between rectangles, and the limits of zoom.
#include "dicom_core/look/LocationMaths.h"

#include <gtest/gtest.h>

TEST(ZoomLimits, keep_an_image_between_32_and_32000_pixels)
{
    struct Row {
        std::int32_t width, height;
        double minimum, maximum;
    };
    const Row rows[] = {
        {1000, 1000, 0.05, 16}, {16, 16, 1, 16},    {0, 100, 1, 1}, {100, -1, 1, 1},
        {4000, 4000, 0.05, 8},  {64, 128, 0.5, 16},  // the shorter side keeps its 32 pixels
        {40000, 320, 0.1, 1},                        // never less than natural size
    };
    for (const Row& row : rows) {
        double minimum = 0, maximum = 0;
        QT_ImageZoomLimits(row.width, row.height, &minimum, &maximum);
        EXPECT_DOUBLE_EQ(minimum, row.minimum) << row.width;
        EXPECT_DOUBLE_EQ(maximum, row.maximum) << row.width;
    }
}

TEST(MapPt, is_whole_number_arithmetic_that_survives_odd_rectangles)
{
    using P = LongPoint;
    using R = LongRect;
    const R all{INT32_MIN, INT32_MIN, INT32_MAX, INT32_MAX};
    EXPECT_EQ(MapPt(P{1, 2}, R{0, 0, 3, 3}, R{0, 0, 5, 5}), (P{1, 3})) << "cut, not rounded";
    EXPECT_EQ(MapPt(P{-1, -2}, R{0, 0, 3, 3}, R{10, 10, 15, 15}), (P{9, 7})) << "so before it";
    EXPECT_EQ(MapPt(P{5, 2}, R{5, 0, 5, 4}, R{3, 0, 9, 8}), (P{3, 4})) << "flat source";
    EXPECT_EQ(MapPt(P{INT32_MAX, INT32_MIN}, all, all), (P{INT32_MAX, INT32_MIN}));
    EXPECT_EQ(MapPt(P{9, -9}, R{0, 0, 1, 1}, R{0, 0, 1 << 30, 1 << 30}), (P{INT32_MAX, INT32_MIN}));
    EXPECT_EQ(MapPt(Point{32767, 1}, Rect{0, 0, 1, 2}, Rect{0, 0, 9, 9}), (Point{32767, 4}));
}

TEST(TranslateLocation, answers_whether_both_ends_are_inside)
{
    const LongRect from{0, 0, 10, 10}, to{100, 100, 125, 125};
    LongPoint result;
    EXPECT_TRUE(TranslateLongLocation(from, to, {10, 1}, &result));
    EXPECT_EQ(result, (LongPoint{125, 103})) << "2.5 rounds away from zero, the edge is inside";
    EXPECT_FALSE(TranslateLongLocation(from, to, {11, 1}, &result));
    EXPECT_EQ(result, (LongPoint{128, 103})) << "written all the same";

    const XRect fromX{0, 0, 10, 10}, toX{100, 100, 125, 125};
    const CGPoint inside{1, 10}, outside{-1, 0};
    XPoint exact{7, 7};
    EXPECT_TRUE(CGTranslateLocationX(&fromX, &toX, nullptr, &exact));
    EXPECT_EQ(exact, (XPoint{7, 7}));
    EXPECT_TRUE(CGTranslateLocationX(&fromX, &toX, &inside, &exact));
    EXPECT_EQ(exact, (XPoint{125, 102.5}));
    EXPECT_FALSE(CGTranslateLocationX(&fromX, &toX, &outside, &exact));
}

TEST(FitRectIntoRect, cuts_and_centres_without_scaling)
{
    const auto fitted = [](const Rect& size, const Rect& into) {
        Rect result{1, 1, 1, 1};
        LongRect longer;
        FitRectIntoRect(size, into, &result);
        FitRectIntoRect(RectToLRect(size), RectToLRect(into), &longer);
        EXPECT_EQ(longer, RectToLRect(result));
        return result;
    };
    EXPECT_EQ(fitted({0, 0, 10, 20}, {5, 5, 20, 36}), (Rect{7, 10, 17, 30})) << "halves are cut";
    EXPECT_EQ(fitted({0, 0, 100, 20}, {5, 5, 20, 36}), (Rect{5, 10, 20, 30})) << "larger is cut";
    EXPECT_EQ(fitted({0, 0, 0, 20}, {5, 5, 20, 36}), Rect{});
    EXPECT_EQ(fitted({0, 0, 10, 20}, {5, 5, 5, 36}), Rect{});
}

TEST(FlipLocation, mirrors_within_the_size_of_the_rectangle)
{
    const XRect rect{10, 20, 110, 220};
    EXPECT_EQ(U_FlipLocation(true, false, rect, {30, 40}), (CGPoint{170, 40}));
    EXPECT_EQ(U_FlipLocation(false, true, rect, {30, 40}), (CGPoint{30, 60}));
}

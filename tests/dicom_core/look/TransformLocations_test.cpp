// Where points and rectangles of a frame lie once it is turned and mirrored.
#include "dicom_core/look/zel_TransformRec.h"

#include <gtest/gtest.h>
#include <random>

namespace {

zel_TransformRec Look(std::int16_t rotation, bool vert, bool horz)
{
    zel_TransformRec record;
    record.rotation = rotation;
    record.vertFlip = vert;
    record.horzFlip = horz;
    return record;
}

}  // namespace

TEST(TransformLocation, turns_first_and_then_mirrors_the_turned_frame)
{
    const auto moved = [](const zel_TransformRec& look, Point point) {
        Point result;
        EXPECT_EQ(look.TransformLocation(Rect{0, 0, 100, 200}, point, &result), kQvxOK);
        return result;
    };
    EXPECT_EQ(moved(Look(90, false, false), {10, 20}), (Point{20, 90}));
    EXPECT_EQ(moved(Look(180, false, false), {10, 20}), (Point{90, 180}));
    EXPECT_EQ(moved(Look(270, false, false), {10, 20}), (Point{180, 10}));
    EXPECT_EQ(moved(Look(0, true, false), {10, 20}), (Point{90, 20}));
    EXPECT_EQ(moved(Look(0, false, true), {10, 20}), (Point{10, 180}));
    EXPECT_EQ(moved(Look(90, true, false), {10, 20}), (Point{180, 90})) << "the turned height";
    EXPECT_EQ(moved(Look(270, false, true), {10, 20}), (Point{180, 90})) << "the turned width";
    EXPECT_EQ(moved(Look(90, false, false), {100, 200}), (Point{200, 0})) << "a corner is inside";
}

TEST(TransformLocation, refuses_and_leaves_the_result)
{
    Point p{7, 8};
    const zel_TransformRec plain = Look(0, false, false), quarter = Look(90, false, false);
    EXPECT_EQ(plain.TransformLocation(Rect{0, 0, 0, 10}, Point{0, 0}, &p), kQvxBadArgument);
    EXPECT_EQ(plain.TransformLocation(Rect{0, 0, 10, 10}, Point{10, 11}, &p), kQvxBadArgument);
    EXPECT_EQ(Look(45, false, false).TransformLocation(Rect{0, 0, 10, 10}, Point{1, 1}, &p),
              kQvxBadArgument);
    EXPECT_EQ(quarter.TransformLocation(Rect{30000, 0, 30010, 20000}, Point{30000, 20000}, &p),
              kQvxBadArgument)
        << "a result beyond 16 bits";
    EXPECT_EQ(p, (Point{7, 8}));
    const LongRect all{INT32_MIN, INT32_MIN, INT32_MAX, INT32_MAX};
    LongPoint far;
    EXPECT_EQ(Look(180, false, false).TransformLocation(all, {INT32_MIN, 5}, &far), kQvxOK);
    EXPECT_EQ(far, (LongPoint{INT32_MAX, -6})) << "extents beyond 32 bits";
}

TEST(TransformLocation, comes_back_for_every_look_point_and_kind_of_numbers)
{
    std::mt19937 random(4711);
    const auto below = [&](int limit) {
        return static_cast<std::int32_t>(random() % unsigned(limit));
    };
    for (int round = 0; round < 2000; ++round) {
        const zel_TransformRec look =
            Look(static_cast<std::int16_t>(90 * below(4)), below(2) == 0, below(2) == 0);
        const std::int32_t top = below(200) - 100, left = below(200) - 100;
        const LongRect bounds{top, left, top + 1 + below(500), left + 1 + below(500)};
        const LongPoint p{top + below(bounds.bottom - top + 1),
                          left + below(bounds.right - left + 1)};
        LongRect shown, back;
        LongPoint there, again;
        ASSERT_EQ(look.TransformRect(bounds, bounds, &shown), kQvxOK);
        ASSERT_EQ(look.ReverseTransformRect(shown, shown, &back), kQvxOK);
        ASSERT_EQ(back, bounds);
        ASSERT_EQ(look.TransformLocation(bounds, p, &there), kQvxOK);
        ASSERT_TRUE(PointWithinEdges(shown, there));
        ASSERT_EQ(look.ReverseTransformLocation(shown, there, &again), kQvxOK);
        ASSERT_EQ(again, p);

        Point shortThere;
        ASSERT_EQ(look.TransformLocation(LRectToRect(bounds), LPointToPoint(p), &shortThere),
                  kQvxOK);
        ASSERT_EQ(shortThere, LPointToPoint(there));

        const auto wide = [](const LongRect& r) {
            return XRect{double(r.top), double(r.left), double(r.bottom), double(r.right)};
        };
        XPoint thereX, againX;
        const XPoint px{double(p.v), double(p.h)};
        ASSERT_EQ(look.TransformLocationX(wide(bounds), px, &thereX), kQvxOK);
        ASSERT_EQ(thereX, (XPoint{double(there.v), double(there.h)}));
        ASSERT_EQ(look.ReverseTransformLocationX(wide(shown), thereX, &againX), kQvxOK);
        ASSERT_EQ(againX, px);
    }
}

TEST(TransformRect, puts_corners_in_order_and_stays_within)
{
    const zel_TransformRec quarter = Look(90, false, false);
    const Rect bounds{0, 0, 100, 200};
    Rect result;
    EXPECT_EQ(quarter.TransformRect(bounds, {10, 20, 30, 60}, &result), kQvxOK);
    EXPECT_EQ(quarter.TransformRect(bounds, {10, 20, 10, 60}, &result), kQvxBadArgument);
    EXPECT_EQ(quarter.TransformRect(bounds, {10, 20, 101, 60}, &result), kQvxBadArgument);
    EXPECT_EQ(result, (Rect{20, 70, 60, 90}));
}

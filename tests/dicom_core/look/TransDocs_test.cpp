// The road from frame coordinates to a drawing surface and back.
#include "dicom_core/look/TransDocs.h"

#include "dicom_core/look/GridFrameTransDoc.h"

#include <array>
#include <gtest/gtest.h>

namespace {

zel_TransformRec Look(std::int16_t rotation, bool horz)
{
    zel_TransformRec record;
    record.rotation = rotation;
    record.horzFlip = horz;
    return record;
}

// Every base location of `frame` comes back from where it is drawn.
void ExpectRoundTrip(const IdentityTransDoc& doc, const LongRect& frame)
{
    for (std::int32_t v = frame.top; v <= frame.bottom; v += 5) {
        for (std::int32_t h = frame.left; h <= frame.right; h += 5) {
            Point draw;
            LongPoint back;
            ASSERT_TRUE(doc.BaseLoc2DrawLoc({v, h}, &draw));
            ASSERT_TRUE(doc.DrawLoc2BaseLoc(draw, &back));
            ASSERT_EQ(back, (LongPoint{v, h}));
        }
    }
}

}  // namespace

TEST(IdentityTransDoc, cuts_to_16_bits_and_an_area_keeps_to_its_edges)
{
    Point draw;
    LongPoint base;
    EXPECT_TRUE(IdentityTransDoc().BaseLoc2DrawLoc({0x10005, -3}, &draw));
    EXPECT_EQ(draw, (Point{5, -3}));

    const Rect area{10, 20, 30, 40};
    const SimpleAreaTransDoc doc(&area), none(nullptr);
    EXPECT_TRUE(doc.BaseLoc2DrawLoc({30, 40}, &draw));
    EXPECT_FALSE(doc.BaseLoc2DrawLoc({31, 40}, &draw));
    EXPECT_FALSE(doc.DrawLoc2BaseLoc({9, 20}, &base));
    EXPECT_EQ(doc.GetBaseBounds(), RectToLRect(area));
    EXPECT_FALSE(none.BaseLoc2DrawLoc({0, 0}, &draw)) << "an empty area holds nothing";
    LongRect corners;
    EXPECT_TRUE(doc.DrawRect2BaseRect({30, 20, 10, 40}, &corners));
    EXPECT_EQ(corners, RectToLRect(area)) << "corners are put in order";
}

TEST(GenericTransDoc, turns_in_the_bounds_and_scales_the_source)
{
    const zel_TransformRec plain = Look(0, false), quarter = Look(90, false), flip = Look(90, true);
    // A part of a frame 100 high and 200 wide, on a surface three times its size (a turned part is
    // squeezed instead).
    const LongRect part{20, 40, 60, 140};
    const Rect surface{1000, 2000, 1120, 2300};
    const auto drawn = [&](const zel_TransformRec* look, const LongPoint& base) {
        GenericTransDoc doc(look, part, surface);
        doc.SetSourceBounds({0, 0, 100, 200});
        EXPECT_EQ(doc.GetBaseBounds(), part) << "the way back leads to the part";
        Point draw;
        EXPECT_TRUE(doc.BaseLoc2DrawLoc(base, &draw));
        return draw;
    };
    EXPECT_EQ(drawn(nullptr, {30, 60}), (Point{1030, 2060}));
    EXPECT_EQ(drawn(&plain, {30, 60}), (Point{1030, 2060}));
    EXPECT_EQ(drawn(&quarter, {20, 40}), (Point{1000, 2300})) << "the part's corner moves along";
    EXPECT_EQ(drawn(&quarter, {60, 40}), (Point{1000, 2000})) << "downward goes left";
    EXPECT_EQ(drawn(&flip, {60, 40}), (Point{1000, 2300})) << "downward goes right";

    LongPoint base{7, 7};
    Point draw;
    const GenericTransDoc doc(&plain, part, surface);
    EXPECT_FALSE(doc.BaseLoc2DrawLoc({19, 60}, &draw)) << "outside of the bounds";
    EXPECT_FALSE(doc.DrawLoc2BaseLoc({900, 2000}, &base));
    EXPECT_FALSE(GenericTransDoc(&plain, {}, surface).DrawLoc2BaseLoc({1000, 2000}, &base));
    EXPECT_FALSE(GenericTransDoc(&plain, part, {}).BaseLoc2DrawLoc({30, 60}, &draw));
    EXPECT_EQ(base, (LongPoint{7, 7}));
}

TEST(TransDocs, enlarged_locations_come_back_for_every_look)
{
    for (const std::int16_t rotation : {0, 90, 180, 270}) {
        for (const bool flip : {false, true}) {
            const zel_TransformRec look = Look(rotation, flip);
            const bool side = rotation % 180 != 0;
            const Rect surface = side ? Rect{5, 7, 405, 207} : Rect{5, 7, 205, 407};
            const LongRect frame{0, 0, 100, 200}, shown = side ? LongRect{0, 0, 200, 100} : frame;
            ExpectRoundTrip(GenericTransDoc(&look, frame, surface), frame);
            std::array cells = {zel_GridFrameInfoItem{}, zel_GridFrameInfoItem{}};
            cells[1].height = shown.bottom;
            cells[1].width = shown.right;
            cells[1].vertScale = cells[1].horzScale = 2 * kZoomOne;
            ExpectRoundTrip(
                GridFrameTransDoc(2, cells, true, look, {0, 0, 500, 600}, shown, nullptr), frame);
        }
    }
}

TEST(GridFrameTransDoc, centres_the_frame_and_stays_calm_at_its_ends)
{
    std::array cells = {zel_GridFrameInfoItem{}};
    cells[0].height = 601;
    cells[0].width = 100;
    cells[0].vertScale = 32713;  // 300 / 601, cut to 16.16: 299.996 pixels
    EXPECT_EQ(cells[0].GetCellDisplaySize(), (LongPoint{300, 100}))
        << "a fitted frame fills its cell";

    const zel_TransformRec look;
    const Rect cell{10, 10, 310, 210};
    const LongRect whole{0, 0, 601, 100};
    const GridFrameTransDoc doc(1, cells, true, look, cell, whole, nullptr);
    EXPECT_EQ(doc.GetDrawBounds(), (Rect{10, 60, 310, 160}));
    Point draw{7, 7};
    LongPoint base{7, 7};
    EXPECT_FALSE(doc.BaseLoc2DrawLoc({602, 0}, &draw)) << "outside of the frame";
    EXPECT_FALSE(doc.DrawLoc2BaseLoc({10, 59}, &base)) << "outside of the drawn part";
    EXPECT_EQ(draw, (Point{7, 7}));

    // Visible beyond the frame: the point is drawn somewhere, but is none of the frame's.
    const GridFrameTransDoc beyond(1, cells, true, look, cell, {0, 0, 601, 200}, nullptr);
    EXPECT_TRUE(beyond.DrawLoc2BaseLoc({10, 160}, &base));
    EXPECT_EQ(base, LongPoint{});

    const GridFrameTransDoc unseen(1, cells, true, look, cell, {}, nullptr);
    EXPECT_TRUE(unseen.BaseLoc2DrawLoc({5, 5}, &draw));
    EXPECT_EQ(draw, Point{});
    for (const std::int32_t frame : {0, 2, INT32_MIN}) {  // without a cell record
        const GridFrameTransDoc missing(frame, cells, true, look, cell, whole, nullptr);
        EXPECT_EQ(missing.GetDrawBounds(), Rect{}) << frame;
    }
}

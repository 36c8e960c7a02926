// What is drawn at which size of a cell, and the boxes of the lines.
#include "dicom_core/annotations/AnnotationLayout.h"

#include <gtest/gtest.h>
#include <ostream>

using enum TextPosition;

static void PrintTo(const AnnotationBox& box, std::ostream* out)
{
    *out << "y " << box.bottom << ".." << box.top << " x " << box.left << ".." << box.right;
}

namespace {

Rect Cell(std::int16_t width, std::int16_t height, std::int16_t left = 0, std::int16_t top = 0)
{
    return {top, left, static_cast<std::int16_t>(top + height),
            static_cast<std::int16_t>(left + width)};
}

}  // namespace

TEST(AnnotationLayout, positions_are_numbered_row_by_row)
{
    const TextPosition rows[] = {TopLeft,     TopCenter,  TopRight,     LeftCenter, TopLeft,
                                 RightCenter, BottomLeft, BottomCenter, BottomRight};
    for (int i = 0; i < 9; ++i)
        EXPECT_EQ(TextPositionOf(i), rows[i]) << i;
    EXPECT_EQ(TextPositionOf(-1), None);
    EXPECT_EQ(TextPositionOf(9), None);
    EXPECT_EQ(static_cast<std::uint32_t>(BottomCenter), 0x74704243u);
}

TEST(AnnotationLayout, size_of_the_cell_decides)
{
    struct Row {
        const char* fault;
        std::int16_t width, height;
        bool enough, tiny, small;
    };
    const Row rows[] = {
        {"too narrow by one", 48, 300, false, true, true},
        {"too low by one", 300, 48, false, true, true},
        {"just large enough", 49, 49, true, true, true},
        {"tiny in one direction", 128, 400, true, true, true},
        {"just not tiny", 129, 400, true, false, true},
        {"small in one direction", 400, 256, true, false, true},
        {"just not small", 257, 257, true, false, false},
        {"mirrored", -300, 300, false, true, true},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.fault);
        const Rect cell = Cell(row.width, row.height);
        EXPECT_EQ(AnnotationLayout::CellIsLargeEnough(cell), row.enough);
        const AnnotationLayout layout(cell, {});
        EXPECT_EQ(layout.IsTiny(), row.tiny);
        EXPECT_EQ(layout.IsSmall(), row.small);
    }
}

TEST(AnnotationLayout, texts_take_less_than_a_quarter)
{
    struct Row {
        const char* fault;
        Rect cell;
        double width, height;
        bool fits;
    };
    const Row rows[] = {
        {"margin of a small cell", Cell(256, 400), 115.9, 10, true},
        {"not as wide as the rest", Cell(256, 400), 116, 10, false},
        {"margin of a larger cell", Cell(257, 257), 109.9, 10, true},
        {"the half isn't rounded down", Cell(257, 257), 110, 10, false},
        {"too high", Cell(400, 257), 10, 110, false},
        {"an empty line", Cell(129, 129), 0, 1.3, true},
    };
    for (const Row& row : rows)
        EXPECT_EQ(AnnotationLayout(row.cell, {}).Fits(row.width, row.height), row.fits)
            << row.fault;
}

TEST(AnnotationLayout, corners_grow_line_by_line)
{
    struct Row {
        const char* fault;
        Rect cell;
        TextPosition position;
        AnnotationBox first, second;
    };
    // Lines of 20.9 by 10.9, cut to 20 by 10.
    const Row rows[] = {
        {"top left", Cell(300, 200), TopLeft, {1, 4, -9, 24}, {-9, 4, -19, 24}},
        {"top right, two pixels lower",
         Cell(300, 200),
         TopRight,
         {-1, 278, -11, 298},
         {-11, 278, -21, 298}},
        {"bottom left grows upward",
         Cell(300, 200),
         BottomLeft,
         {-183, 4, -193, 24},
         {-173, 4, -183, 24}},
        {"bottom right",
         Cell(300, 200),
         BottomRight,
         {-183, 278, -193, 298},
         {-173, 278, -183, 298}},
        {"a tiny cell has no margin", Cell(100, 100), TopLeft, {2, 3, -8, 23}, {-8, 3, -18, 23}},
        {"tiny, bottom right", Cell(100, 100), BottomRight, {-84, 79, -94, 99}, {-74, 79, -84, 99}},
        {"a cell away from the origin",
         Cell(300, 200, 50, 70),
         BottomRight,
         {-253, 328, -263, 348},
         {-243, 328, -253, 348}},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.fault);
        AnnotationLayout layout(row.cell, {30, 30, 30, 30});
        EXPECT_EQ(layout.Place(row.position, 20.9, 10.9), row.first);
        EXPECT_EQ(layout.Place(row.position, 20.9, 10.9), row.second);
        EXPECT_EQ(layout.Place(row.position, 0, 1.3).top - row.second.bottom,
                  IsBottomPosition(row.position) ? 11 : 0);
    }
}

TEST(AnnotationLayout, other_positions_stand_inside_the_cell)
{
    const AnnotationEdges edges{20, 15, 30, 25};
    struct Row {
        TextPosition position;
        AnnotationBox first, second;
    };
    const Row rows[] = {
        {TopCenter, {-92, 190, -102, 210}, {-102, 190, -112, 210}},
        {BottomCenter, {-226, 190, -236, 210}, {-216, 190, -226, 210}},
        {LeftCenter, {-170, 69, -180, 89}, {-180, 69, -190, 89}},
        {RightCenter, {-170, 301, -180, 321}, {-180, 301, -190, 321}},
        {None, {-170, 190, -180, 210}, {-180, 190, -190, 210}},
    };
    for (const Row& row : rows) {
        AnnotationLayout layout(Cell(300, 200, 50, 70), edges);
        EXPECT_EQ(layout.Place(row.position, 20, 10), row.first);
        EXPECT_EQ(layout.Place(row.position, 20, 10), row.second);
        for (int i = 0; i < 30; ++i) {
            const AnnotationBox box = layout.Place(row.position, 290, 10);
            EXPECT_LE(box.top, -70);
            EXPECT_GE(box.bottom, -270);
            EXPECT_GE(box.left, 50);
            EXPECT_LE(box.right, 350);
        }
    }
}

// Where cells lie: partly filled rows, cells at fractions of points, gaps, and far down a long
// list.
#include "app/grid/MUPhotoMatrix.h"

#include <gtest/gtest.h>

namespace {

// 2 by 3 cells in 300 by 200 points, so each 100 by 100.
MUPhotoMatrix TwoByThree(int photoCount)
{
    MUPhotoMatrix matrix;
    matrix.updateGridSize({200, 300}, 2, 3, photoCount);
    return matrix;
}

}  // namespace

TEST(MUPhotoMatrix, settles_cells_and_matrix)
{
    struct Row {
        const char* fault;
        XPoint content;
        int gridRows, gridCols, photos;
        CGSize cell;
        int rows, columns;
    };
    const Row rows[] = {
        {"a started row counts", {200, 300}, 2, 3, 7, {100, 100}, 3, 3},
        {"fewer photos than columns", {200, 300}, 2, 3, 2, {100, 100}, 1, 3},
        {"no photos, no matrix", {200, 300}, 2, 3, 0, {100, 100}, 0, 0},
        {"no division by no columns", {200, 300}, 0, 0, 4, {300, 200}, 4, 1},
        {"fractions are kept", {100, 100}, 3, 1, 3, {100, 100.0f / 3}, 3, 1},
        {"hidden view", {0, 0}, 2, 2, 3, {0, 0}, 2, 2},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.fault);
        MUPhotoMatrix matrix;
        matrix.updateGridSize(row.content, row.gridRows, row.gridCols, row.photos);
        EXPECT_EQ(matrix.gridCellSize(), row.cell);
        EXPECT_EQ(matrix.rows(), row.rows);
        EXPECT_EQ(matrix.columns(), row.columns);
    }
}

TEST(MUPhotoMatrix, finds_the_cell_under_a_point)
{
    const MUPhotoMatrix matrix = TwoByThree(7);
    struct Row {
        const char* fault;
        XPoint point;
        std::optional<int> index;
    };
    const Row rows[] = {
        {"origin", {0, 0}, 0},
        {"an edge belongs to the next cell", {100, 100}, 4},
        {"only cell of the last row", {250, 50}, 6},
        {"behind the last photo", {250, 150}, std::nullopt},
        {"right of the matrix is not the next row", {50, 300}, std::nullopt},
        {"left of it", {50, -1}, std::nullopt},
        {"far below", {1e18, 50}, std::nullopt},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.fault);
        EXPECT_EQ(matrix.photoIndexForPoint(row.point), row.index);
    }
    EXPECT_EQ(MUPhotoMatrix().photoIndexForPoint({0, 0}), std::nullopt);
}

TEST(MUPhotoMatrix, gaps_belong_to_no_cell)
{
    MUPhotoMatrix matrix;
    matrix.setSpacing(20, 10);
    matrix.updateGridSize({210, 320}, 2, 2, 4);
    EXPECT_EQ(matrix.gridRectForIndex(3), (XRect{110, 170, 210, 320}));
    EXPECT_EQ(matrix.photoIndexForPoint({50, 160}), std::nullopt);
    EXPECT_EQ(matrix.photoIndexForPoint({105, 10}), std::nullopt);
    EXPECT_EQ(matrix.photoIndexForPoint({110, 170}), 3);
}

TEST(MUPhotoMatrix, range_ends_a_point_inside_of_the_rectangle)
{
    const MUPhotoMatrix matrix = TwoByThree(7);
    struct Row {
        const char* fault;
        XRect rect;
        MUPhotoMatrix::IndexRange range;
    };
    const Row rows[] = {
        {"one cell exactly, not its neighbours", {0, 100, 100, 200}, {1, 1}},
        {"all that shows", {0, 0, 200, 300}, {0, 6}},
        {"pinned to the last photo", {200, 0, 400, 300}, {6, 1}},
        {"behind the last photo", {210, 150, 220, 160}, {}},
        {"beside the matrix", {300, 0, 400, 300}, {}},
        {"reaching over all edges", {-50, -50, 900, 900}, {0, 7}},
        {"nothing", {10, 10, 10, 10}, {}},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.fault);
        EXPECT_EQ(matrix.photoIndexRangeForRect(row.rect), row.range);
    }
}

TEST(MUPhotoMatrix, scrolls_only_when_a_cell_does_not_show_and_not_past_the_end)
{
    const MUPhotoMatrix matrix = TwoByThree(16);  // 6 rows, 2 visible
    EXPECT_EQ(matrix.lastFirstRow(), 4);
    EXPECT_EQ(matrix.firstRowShowing(8, 1), 1);   // second visible row
    EXPECT_EQ(matrix.firstRowShowing(8, 3), 2);   // above
    EXPECT_EQ(matrix.firstRowShowing(15, 0), 4);  // last row: the end, not an empty row
    EXPECT_EQ(matrix.firstRowShowing(16, 3), 0);  // no such cell
    EXPECT_EQ(TwoByThree(2).lastFirstRow(), 0);
}

TEST(MUPhotoMatrix, stays_exact_far_down)
{
    MUPhotoMatrix matrix;
    matrix.updateGridSize({701, 900}, 3, 1, 2'000'000'000);  // a height that no float has exactly
    for (const int index : {1, 999'999, 1'999'999'999}) {
        const XRect cell = matrix.gridRectForIndex(index);
        EXPECT_EQ(matrix.photoIndexForPoint({cell.top, 5}), index);
        EXPECT_EQ(cell.top, matrix.topOfRow(index));
    }
}

TEST(CropAndCenterRect, centres_what_is_smaller_and_cuts_what_is_larger)
{
    const XRect cell{100, 10, 200, 110};
    EXPECT_EQ(CropAndCenterRect({50, 80}, cell), (XRect{125, 20, 175, 100}));
    EXPECT_EQ(CropAndCenterRect({500, 80}, cell), (XRect{100, 20, 200, 100}));  // axis by axis
    EXPECT_EQ(CropAndCenterRect({100, 100}, cell), cell);
}

// Where the cells of a photo view lie: a matrix of equal cells, filled row by row, of which as many
// rows and columns as asked for fit the visible part. Arithmetic only, no Qt.
// Lengths are view points, y runs downward from the top of the first row, whether scrolled or not.
// Indexes count from 0. The visible part always begins at a whole row, so the scroll position is a
// row number: a million frames scroll as exactly as three.
#pragma once
#include "util/XRect.h"

#include <optional>

struct CGSize {
    float width = 0, height = 0;
    bool operator==(const CGSize&) const = default;
};

// `size` (h is width, v is height) in the middle of `rect`; an axis on which it is larger takes the
// whole extent of `rect`.
[[nodiscard]] XRect CropAndCenterRect(const XPoint& size, const XRect& rect);

class MUPhotoMatrix {
public:
    struct IndexRange {
        int first = 0, count = 0;
        bool operator==(const IndexRange&) const = default;
    };

    // Settles everything below. `content` is the size of the visible part, which `gridRows` times
    // `gridCols` cells and the gaps between them fill. A number of rows or columns below 1 is
    // logged and counts as 1. Without photos the matrix has no columns and no rows.
    void updateGridSize(const XPoint& content, int gridRows, int gridCols, int photoCount);
    // Gaps between cells, 0 at first; the next `updateGridSize` works with them.
    void setSpacing(double horizontal, double vertical);

    [[nodiscard]] CGSize gridCellSize() const { return fCellSize; }
    [[nodiscard]] int columns() const { return fColumns; }
    [[nodiscard]] int rows() const { return fRows; }  // of the whole matrix
    [[nodiscard]] int photoCount() const { return fPhotoCount; }

    [[nodiscard]] XRect gridRectForIndex(int index) const;
    // None between cells, outside of the matrix and behind the last photo.
    [[nodiscard]] std::optional<int> photoIndexForPoint(const XPoint& point) const;
    // From the cell at the top left of `rect` to the one a point inside of its bottom right corner;
    // in between are cells beside `rect` when it is narrower than the matrix.
    [[nodiscard]] IndexRange photoIndexRangeForRect(const XRect& rect) const;

    [[nodiscard]] double topOfRow(int row) const;
    [[nodiscard]] int lastFirstRow() const;  // as far as the visible part can be scrolled
    // First visible row after making cell `index` visible: `firstRow` where it is so already, else
    // the row of the cell. An index out of range is logged and counts as 0.
    [[nodiscard]] int firstRowShowing(int index, int firstRow) const;

private:
    [[nodiscard]] double columnPitch() const;
    [[nodiscard]] double rowPitch() const;
    [[nodiscard]] long columnAt(double h) const;
    [[nodiscard]] long rowAt(double v) const;

    CGSize fCellSize;
    double fHorizontalSpacing = 0, fVerticalSpacing = 0;
    int fColumns = 0, fRows = 0, fVisibleRows = 1, fPhotoCount = 0;
};

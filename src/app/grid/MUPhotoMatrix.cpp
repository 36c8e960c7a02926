#include "app/grid/MUPhotoMatrix.h"

#include "util/Log.h"

#include <algorithm>
#include <cmath>
#include <string>

namespace {

int AtLeastOne(int number, const char* what)
{
    if (number >= 1)
        return number;
    LogLine(std::string("possible error: ") + what + ' ' + std::to_string(number));
    return 1;
}

// Length of one of `count` equal cells with gaps between them, never below 0.
float CellLength(double whole, int count, double spacing)
{
    return static_cast<float>(std::max(0.0, (whole - spacing * (count - 1)) / count));
}

// Which of `count` runs of length `pitch` holds `at`; pinned, so that any number may be asked.
long RunAt(double at, double pitch, int count)
{
    if (!(pitch > 0) || count < 1)
        return 0;
    return std::lround(std::clamp(std::floor(at / pitch), 0.0, count - 1.0));
}

void CropAndCenterAxis(double size, double* low, double* high)
{
    const double spare = *high - *low - size;
    if (spare > 0) {
        *low += spare / 2;
        *high = *low + size;
    }
}

}  // namespace

XRect CropAndCenterRect(const XPoint& size, const XRect& rect)
{
    XRect result = rect;
    CropAndCenterAxis(size.h, &result.left, &result.right);
    CropAndCenterAxis(size.v, &result.top, &result.bottom);
    return result;
}

void MUPhotoMatrix::updateGridSize(const XPoint& content, int gridRows, int gridCols,
                                   int photoCount)
{
    fVisibleRows = AtLeastOne(gridRows, "rows");
    const int columns = AtLeastOne(gridCols, "columns");
    fCellSize = {CellLength(content.h, columns, fHorizontalSpacing),
                 CellLength(content.v, fVisibleRows, fVerticalSpacing)};
    fPhotoCount = std::max(0, photoCount);
    fColumns = fPhotoCount > 0 ? columns : 0;
    fRows = fPhotoCount > 0 ? (fPhotoCount - 1) / columns + 1 : 0;
}

void MUPhotoMatrix::setSpacing(double horizontal, double vertical)
{
    fHorizontalSpacing = std::max(0.0, horizontal);
    fVerticalSpacing = std::max(0.0, vertical);
}

double MUPhotoMatrix::columnPitch() const { return fCellSize.width + fHorizontalSpacing; }
double MUPhotoMatrix::rowPitch() const { return fCellSize.height + fVerticalSpacing; }
double MUPhotoMatrix::topOfRow(int row) const { return row * rowPitch(); }
long MUPhotoMatrix::columnAt(double h) const { return RunAt(h, columnPitch(), fColumns); }
long MUPhotoMatrix::rowAt(double v) const { return RunAt(v, rowPitch(), fRows); }

XRect MUPhotoMatrix::gridRectForIndex(int index) const
{
    if (fColumns < 1)
        return {};
    const double left = (index % fColumns) * columnPitch();
    const double top = topOfRow(index / fColumns);
    return {top, left, top + fCellSize.height, left + fCellSize.width};
}

std::optional<int> MUPhotoMatrix::photoIndexForPoint(const XPoint& point) const
{
    const long index = rowAt(point.v) * fColumns + columnAt(point.h);
    if (index >= fPhotoCount)
        return std::nullopt;
    // The pinned row and column may be those of a cell that the point only lies beside.
    const int found = static_cast<int>(index);
    const XRect cell = gridRectForIndex(found);
    const bool inside = point.h >= cell.left && point.h < cell.right && point.v >= cell.top &&
                        point.v < cell.bottom;
    return inside ? std::optional<int>(found) : std::nullopt;
}

MUPhotoMatrix::IndexRange MUPhotoMatrix::photoIndexRangeForRect(const XRect& rect) const
{
    if (EmptyRect(rect) || rect.bottom <= 0 || rect.right <= 0 || rect.top >= fRows * rowPitch())
        return {};
    const long first = rowAt(rect.top) * fColumns + columnAt(rect.left);
    const long last = std::min<long>(rowAt(rect.bottom - 1) * fColumns + columnAt(rect.right - 1),
                                     fPhotoCount - 1L);
    if (first > last)
        return {};
    return {static_cast<int>(first), static_cast<int>(last - first + 1)};
}

int MUPhotoMatrix::lastFirstRow() const { return std::max(0, fRows - fVisibleRows); }

int MUPhotoMatrix::firstRowShowing(int index, int firstRow) const
{
    if (index < 0 || index >= fPhotoCount) {
        LogLine("U_ScrollGridToPhotoWithIndex error at: " + std::to_string(index));
        index = 0;
    }
    const int row = fColumns > 0 ? index / fColumns : 0;
    const bool visible = row >= firstRow && row - firstRow < fVisibleRows;
    return std::clamp(visible ? firstRow : row, 0, lastFirstRow());
}

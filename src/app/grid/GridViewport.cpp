#include "app/grid/GridViewport.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace {

constexpr double kIntoCell = 5;  // below a cell's edge, where rounding can't miss it

}  // namespace

void GridViewport::setContent(const QSizeF& size, double pixelRatio)
{
    fContent = size;
    fPixelRatio = pixelRatio > 0 ? pixelRatio : 1;
    update();
}

void GridViewport::setGridDims(int rows, int columns)
{
    fRows = rows;
    fColumns = columns;
    update();
}

void GridViewport::setPhotoCount(int count)
{
    fPhotoCount = count;
    update();
}

void GridViewport::update()
{
    fMatrix.updateGridSize({fContent.height(), fContent.width()}, fRows, fColumns, fPhotoCount);
    fFirstRow = std::clamp(fFirstRow, 0, fMatrix.lastFirstRow());
}

QSizeF GridViewport::gridCellSize() const
{
    const CGSize size = fMatrix.gridCellSize();
    return {size.width, size.height};
}

QSizeF GridViewport::viewSize() const
{
    if (fMatrix.photoCount() < 1)
        return fContent;
    const bool fewer = fMatrix.photoCount() < fMatrix.columns();
    return {fewer ? fMatrix.photoCount() * fContent.width() / fMatrix.columns() : fContent.width(),
            fMatrix.rows() * gridCellSize().height()};
}

bool GridViewport::setFirstRow(int row)
{
    const int before = std::exchange(fFirstRow, std::clamp(row, 0, fMatrix.lastFirstRow()));
    return before != fFirstRow;
}

bool GridViewport::setScrollTop(double y)
{
    const double height = gridCellSize().height();
    if (!(height > 0))
        return false;
    return setFirstRow(static_cast<int>(std::clamp(y / height, 0.0, 2e9)));
}

int GridViewport::firstRowShowing(int index) const
{
    return fMatrix.firstRowShowing(index, fFirstRow);
}

bool GridViewport::scrollToPhoto(int index) { return setFirstRow(firstRowShowing(index)); }

std::optional<int> GridViewport::leadingPhoto() const
{
    return fMatrix.photoIndexForPoint({scrollTop() + kIntoCell, 0});
}

QRectF GridViewport::cellRect(int index) const
{
    const XRect r = fMatrix.gridRectForIndex(index);
    const auto snapped = [this](double edge) {
        return std::round(edge * fPixelRatio) / fPixelRatio;
    };
    const double top = scrollTop();
    return {QPointF(snapped(r.left), snapped(r.top - top)),
            QPointF(snapped(r.right), snapped(r.bottom - top))};
}

std::optional<int> GridViewport::photoIndexForPoint(const QPointF& point) const
{
    const auto index = fMatrix.photoIndexForPoint({point.y() + scrollTop(), point.x()});
    if (!index)
        return index;
    // An edge that was snapped may have moved over the point.
    const QRectF cell = cellRect(*index);
    int found = *index;
    const int column = *index % fMatrix.columns();
    if (point.x() >= cell.right() && column + 1 < fMatrix.columns())
        ++found;
    else if (point.x() < cell.left() && column > 0)
        --found;
    if (point.y() >= cell.bottom())
        found += fMatrix.columns();
    else if (point.y() < cell.top())
        found -= fMatrix.columns();
    return found >= 0 && found < fMatrix.photoCount() ? std::optional<int>(found) : std::nullopt;
}

MUPhotoMatrix::IndexRange GridViewport::photoIndexRangeForRect(const QRectF& rect) const
{
    // A point more on each side: the range leaves one out, and cells snap by half a pixel.
    const double top = scrollTop();
    return fMatrix.photoIndexRangeForRect(
        {rect.top() + top - 1, rect.left() - 1, rect.bottom() + top + 2, rect.right() + 2});
}

bool GridViewport::isCellVisible(int index, bool onlyPartly) const
{
    if (index < 0 || index >= fMatrix.photoCount())
        return false;
    const int row = index / std::max(fMatrix.columns(), 1);
    const bool visible = row >= fFirstRow && row < fFirstRow + fRows;
    // Scrolled by whole rows, a cell is seen whole or not at all.
    return visible &&
           (onlyPartly ||
            QRectF(QPointF(), fContent).adjusted(-1, -1, 1, 1).contains(cellRect(index)));
}

int GridViewport::firstVisibleFrame(bool onlyPartly) const
{
    for (int index = fFirstRow * fMatrix.columns(); index < fMatrix.photoCount(); ++index) {
        if (isCellVisible(index, onlyPartly))
            return index + 1;
        if (index >= (fFirstRow + fRows) * fMatrix.columns())
            break;
    }
    return 0;
}

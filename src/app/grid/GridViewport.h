// What of a grid's matrix of cells is seen: rows and columns that fit, how far it is scrolled (by
// whole rows), and where cells lie on the screen. Arithmetic only. View points are those of the
// visible part, y downward; cells above and below it lie beyond its edges. Indexes count from 0.
#pragma once
#include "app/grid/MUPhotoMatrix.h"

#include <QPointF>
#include <QRectF>

class GridViewport {
public:
    // The visible part, and how many device pixels a point of it has.
    void setContent(const QSizeF& size, double pixelRatio);
    void setGridDims(int rows, int columns);
    void setPhotoCount(int count);

    [[nodiscard]] int gridRows() const { return fRows; }
    [[nodiscard]] int gridCols() const { return fColumns; }
    [[nodiscard]] const QSizeF& content() const { return fContent; }
    [[nodiscard]] double pixelRatio() const { return fPixelRatio; }
    [[nodiscard]] const MUPhotoMatrix& matrix() const { return fMatrix; }
    [[nodiscard]] QSizeF gridCellSize() const;
    // Of the whole matrix: narrower than the visible part where there are fewer photos than
    // columns.
    [[nodiscard]] QSizeF viewSize() const;

    // ---- scrolling ----

    [[nodiscard]] int firstRow() const { return fFirstRow; }
    [[nodiscard]] double scrollTop() const { return fMatrix.topOfRow(fFirstRow); }
    // Each answers whether it has moved. A position is cut to a whole row.
    bool setFirstRow(int row);
    bool setScrollTop(double y);
    [[nodiscard]] int firstRowShowing(int index) const;  // once it was scrolled to
    bool scrollToPhoto(int index);  // only if it isn't visible; an index out of range is 0
    // The photo that leads what is visible.
    [[nodiscard]] std::optional<int> leadingPhoto() const;

    // ---- cells on the screen ----

    // On whole device pixels, so that neighbours share their edges.
    [[nodiscard]] QRectF cellRect(int index) const;
    [[nodiscard]] std::optional<int> photoIndexForPoint(const QPointF& point) const;
    // The cells that `rect` touches, as first index and count.
    [[nodiscard]] MUPhotoMatrix::IndexRange photoIndexRangeForRect(const QRectF& rect) const;
    [[nodiscard]] bool isCellVisible(int index, bool onlyPartly) const;
    [[nodiscard]] int firstVisibleFrame(bool onlyPartly) const;  // from 1, 0 none

private:
    void update();

    QSizeF fContent;
    double fPixelRatio = 1;
    int fRows = 1, fColumns = 1, fPhotoCount = 0, fFirstRow = 0;
    MUPhotoMatrix fMatrix;
};

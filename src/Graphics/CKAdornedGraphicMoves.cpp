// A measurement's geometry: handles, hits, resizing and moving.
#include "Graphics/CKAdornedGraphic.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace {

constexpr double kHandleHit = 9;  // side of the square that a handle is hit in, points
constexpr double kContentsReach = 3;

// Which edges each handle moves, and what it is called once the shape is turned over.
struct HandleRow {
    int horizontal, vertical;  // -1 left or top edge, 1 right or bottom edge, 0 neither
    ShapeHandle flippedHorizontally, flippedVertically;
};
constexpr std::array<HandleRow, 9> kHandles{{{0, 0, 0, 0},
                                             {-1, -1, 3, 6},
                                             {0, -1, 2, 7},
                                             {1, -1, 1, 8},
                                             {-1, 0, 5, 4},
                                             {1, 0, 4, 5},
                                             {-1, 1, 8, 1},
                                             {0, 1, 7, 2},
                                             {1, 1, 6, 3}}};

const HandleRow& RowOf(ShapeHandle handle)
{
    return kHandles[handle >= 1 && handle <= 8 ? static_cast<unsigned>(handle) : 0];
}

// Puts one of two edges at `to`; true when they have changed sides, and are put in order.
bool MoveEdge(int edge, double to, double* low, double* high)
{
    if (edge < 0)
        *low = to;
    else if (edge > 0)
        *high = to;
    if (*high >= *low)
        return false;
    std::swap(*low, *high);
    return true;
}

// A move along one axis that keeps what lies from `low` to `high` within 0 to `length`.
double HeldMove(double by, double low, double high, double length)
{
    return by > 0 ? std::min(by, std::max(length - high, 0.0)) : -std::min(-by, std::max(low, 0.0));
}

}  // namespace

QRectF U_ImageRectFromPoints(const QPointF& a, const QPointF& b)
{
    return QRectF(a, b).normalized();
}

double CKAdornedGraphic::zoom() const
{
    const double zoom = _gridController ? _gridController->U_ImageZoomForFrame(_theFrameIndex) : 1;
    return zoom > 0 ? zoom : 1;
}

QRectF CKAdornedGraphic::geometricBounds() const
{
    return U_ImageRectFromPoints(_shapeStart, _shapeEnd);
}

QRectF CKAdornedGraphic::drawingBounds() const
{
    return _shadowON ? grownBounds().adjusted(0, 0, 1, 1) : grownBounds();
}

QPointF CKAdornedGraphic::pointOfHandle(ShapeHandle handle) const
{
    if (handle < 1 || handle > 8)
        return {};
    const QRectF bounds = geometricBounds();
    const HandleRow& row = RowOf(handle);
    return {bounds.center().x() + row.horizontal * bounds.width() / 2,
            bounds.center().y() + row.vertical * bounds.height() / 2};
}

bool CKAdornedGraphic::isHandleAtPoint(const QPointF& handle, const QPointF& point) const
{
    const double reach = kHandleHit / zoom() / 2;
    return std::abs(point.x() - handle.x()) <= reach && std::abs(point.y() - handle.y()) <= reach;
}

ShapeHandle CKAdornedGraphic::handleUnderPoint(const QPointF& point) const
{
    for (ShapeHandle handle = 1; handle <= 8; ++handle) {
        if (isHandleAtPoint(pointOfHandle(handle), point))
            return handle;
    }
    return kNoHandle;
}

bool CKAdornedGraphic::isContentsUnderPoint(const QPointF& point) const
{
    const double by = double{strokeWidth()} * 0.5 + kContentsReach;
    const QRectF reach = geometricBounds().adjusted(-by, -by, by, by);
    return point.x() >= reach.left() && point.x() <= reach.right() && point.y() >= reach.top() &&
           point.y() <= reach.bottom();
}

ShapeHandle CKAdornedGraphic::resizeByMovingHandle(ShapeHandle handle, const QPointF& /*viewPoint*/,
                                                   const QPointF& framePoint)
{
    ShapeHandle held = handle;
    Announce({"statisticsText"}, [&] { held = U_ResizeByMovingHandle(handle, framePoint); });
    return held;
}

ShapeHandle CKAdornedGraphic::U_ResizeByMovingHandle(ShapeHandle handle, const QPointF& framePoint)
{
    const QRectF bounds = geometricBounds();
    double left = bounds.left(), right = bounds.right(), top = bounds.top(),
           bottom = bounds.bottom();
    if (MoveEdge(RowOf(handle).horizontal, framePoint.x(), &left, &right)) {
        handle = RowOf(handle).flippedHorizontally;
        flipHorizontally();
    }
    if (MoveEdge(RowOf(handle).vertical, framePoint.y(), &top, &bottom)) {
        handle = RowOf(handle).flippedVertically;
        flipVertically();
    }
    setShapeStart({left, top});
    setShapeEnd({right, bottom});
    return handle;
}

void CKAdornedGraphic::translateByXY(double dx, double dy)
{
    const QPointF by(dx, dy);
    setShapeStart(_shapeStart + by);
    setShapeEnd(_shapeEnd + by);
}

void CKAdornedGraphic::translateInFrame(double dx, double dy, const QSizeF& frame)
{
    Announce({"statisticsText", "labelText", "displayTitle", "labelAttributedText"}, [&] {
        const QRectF held = U_ImageRectFromPoints(_shapeStart, _shapeEnd);
        translateByXY(HeldMove(dx, held.left(), held.right(), frame.width()),
                      HeldMove(dy, held.top(), held.bottom(), frame.height()));
    });
}

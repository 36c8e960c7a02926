#include "app/grid/CellGeometry.h"

#include <algorithm>
#include <cmath>

namespace {

int RotationOf(const zel_TransformRec& record)
{
    const int rotation = record.rotation;
    return rotation == 90 || rotation == 180 || rotation == 270 ? rotation : 0;
}

// Clockwise, y growing downward.
QPointF Turned(const QPointF& p, int rotation)
{
    switch (rotation) {
        case 90:
            return {-p.y(), p.x()};
        case 180:
            return -p;
        case 270:
            return {p.y(), -p.x()};
        default:
            return p;
    }
}

QPointF Flipped(const QPointF& p, bool horizontally, bool vertically)
{
    return {horizontally ? -p.x() : p.x(), vertically ? -p.y() : p.y()};
}

double Held(double value, double limit) { return limit > 0 ? std::clamp(value, -limit, limit) : 0; }

QPointF MiddleOf(const QSizeF& size) { return {size.width() / 2, size.height() / 2}; }

// Whole device pixels, at least one.
void Snap(double pixelRatio, double* low, double* high)
{
    const double first = std::round(*low * pixelRatio);
    const double last = std::max(std::round(*high * pixelRatio), first + 1);
    *low = first / pixelRatio;
    *high = last / pixelRatio;
}

QRectF Snapped(const QRectF& rect, double pixelRatio)
{
    double left = rect.left(), right = rect.right(), top = rect.top(), bottom = rect.bottom();
    Snap(pixelRatio, &left, &right);
    Snap(pixelRatio, &top, &bottom);
    return {QPointF(left, top), QPointF(right, bottom)};
}

double FittingZoom(const QSizeF& image, const QSizeF& content)
{
    const double zoom =
        std::min(content.width() / image.width(), content.height() / image.height());
    return std::clamp(zoom, 1e-6, 1.0);  // a cell of nothing but border has no content
}

}  // namespace

CellGeometry::CellGeometry(const zel_TransformRec& record, const QSizeF& frame, const QRectF& cell,
                           double pixelRatio)
    : fRotation(RotationOf(record)),
      fHorzFlip(record.horzFlip),
      fVertFlip(record.vertFlip),
      fFrame(frame.isEmpty() ? QSizeF(1, 1) : frame),
      fImage(IsQuarterTurned() ? fFrame.transposed() : fFrame),
      fCell(cell)
{
    fZoom = record.autoFit ? FittingZoom(fImage, contentRect().size())
                           : std::max(record.zoom, 1) / double{kZoomOne};
    const QSizeF scaled = scaledSize();
    if (!record.autoFit) {
        // The stored pan of a frame on its side has the other sign.
        const QPointF pan =
            QPointF(record.scroll.x, record.scroll.y) * (IsQuarterTurned() ? -1 : 1);
        const QPointF moved = frameDeltaToViewDelta(pan) * fZoom;
        fScroll = {Held(moved.x(), (scaled.width() - cell.width()) / 2),
                   Held(moved.y(), (scaled.height() - cell.height()) / 2)};
    }
    fRect = Snapped({cell.center() + fScroll - MiddleOf(scaled), scaled}, pixelRatio);
}

QRectF CellGeometry::contentRect() const
{
    return fCell.adjusted(kCellInset, kCellInset, -kCellInset, -kCellInset);
}

QPointF CellGeometry::Excess() const
{
    const QSizeF excess = scaledSize() - contentRect().size();
    return {excess.width(), excess.height()};
}

bool CellGeometry::isBiggerThanCell() const
{
    const QPointF excess = Excess();
    return excess.x() > 0 || excess.y() > 0;
}

QPointF CellGeometry::viewScrollMax() const
{
    const QPointF excess = Excess();
    return {std::max(excess.x() / 2, 0.0), std::max(excess.y() / 2, 0.0)};
}

QPointF CellGeometry::transformedScrollMax() const
{
    const QPointF whole = viewScrollMax() * 2;
    return IsQuarterTurned() ? whole.transposed() : whole;
}

QPointF CellGeometry::scrollLimit() const { return transformedScrollMax() / fZoom / 2; }

QPointF CellGeometry::frameDeltaToViewDelta(const QPointF& delta) const
{
    return Flipped(Turned(delta, fRotation), fHorzFlip, fVertFlip);
}

QPointF CellGeometry::viewDeltaToFrameDelta(const QPointF& delta) const
{
    return Turned(Flipped(delta, fHorzFlip, fVertFlip), (360 - fRotation) % 360);
}

QPointF CellGeometry::viewDeltaToScrollDelta(const QPointF& delta) const
{
    return viewDeltaToFrameDelta(delta) * (IsQuarterTurned() ? -1 : 1) / fZoom;
}

// By way of the middle, which stays where it is in every turn.
QPointF CellGeometry::framePointToViewPoint(const QPointF& point) const
{
    const QPointF turned = frameDeltaToViewDelta(point - MiddleOf(fFrame));
    return fRect.center() + QPointF(turned.x() * fRect.width() / fImage.width(),
                                    turned.y() * fRect.height() / fImage.height());
}

QPointF CellGeometry::viewPointToFramePoint(const QPointF& point) const
{
    const QPointF off = point - fRect.center();
    const QPointF turned(off.x() * fImage.width() / fRect.width(),
                         off.y() * fImage.height() / fRect.height());
    return viewDeltaToFrameDelta(turned) + MiddleOf(fFrame);
}

QRectF CellGeometry::viewRectToFrameRect(const QRectF& rect) const
{
    return QRectF(viewPointToFramePoint(rect.topLeft()), viewPointToFramePoint(rect.bottomRight()))
        .normalized();
}

namespace {

struct ZoomStep {
    int tenths;  // of a percent
    double percent;
};
constexpr ZoomStep kNext[] = {{50, 5},     {100, 10},   {125, 12.5}, {250, 25},
                              {500, 50},   {750, 75},   {1000, 100}, {1250, 125},
                              {1500, 150}, {2000, 200}, {4000, 400}, {8000, 800}};
constexpr ZoomStep kPrevious[] = {{8001, 800}, {4001, 400}, {2001, 200}, {1501, 150},
                                  {1251, 125}, {1001, 100}, {751, 75},   {501, 50},
                                  {251, 25},   {126, 12.5}, {101, 10},   {51, 5}};

double TenthsOf(double factor) { return std::trunc(factor * 1000 + 0.5); }

}  // namespace

double U_NextZoomValue(double factor)
{
    for (const ZoomStep& step : kNext)
        if (TenthsOf(factor) < step.tenths)
            return step.percent;
    return factor * 100;
}

double U_PrevZoomValue(double factor)
{
    for (const ZoomStep& step : kPrevious)
        if (TenthsOf(factor) >= step.tenths)
            return step.percent;
    return factor * 100;
}

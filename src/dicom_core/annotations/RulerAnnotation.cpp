#include "dicom_core/annotations/RulerAnnotation.h"

#include "dicom_core/annotations/AnnotationText.h"
#include "dicom_core/annotations/PainterScope.h"
#include "dicom_core/annotations/RulerScale.h"
#include "dicom_core/annotations/RulerTicks.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr std::int32_t kLeastLength = 129;  // of the edge
constexpr std::int16_t kMargin = 8;
constexpr double kMajorTick = 6.0, kMinorTick = 3.0;
constexpr double kEdgePart = 2.5;  // the bar's span is the edge over this

// The bar of one edge before it is placed.
struct EdgeScale {
    double length_cm = 0;     // of the span
    std::int16_t span = 0;    // pixels
    std::int16_t pixels = 0;  // of one count
    RulerUnitType unit = RulerUnitType::None;
    std::int16_t count = 0;
};

bool IsDrawn(std::int32_t edge, double spacing, double zoom)
{
    return edge >= kLeastLength && spacing > 0 && zoom > 0;
}

EdgeScale ScaleOfEdge(std::int32_t edge, double spacing, double zoom, bool minorTicks)
{
    EdgeScale scale;
    scale.length_cm = edge * spacing / (zoom * kEdgePart * 10.0);
    scale.span = static_cast<std::int16_t>(edge / kEdgePart);
    scale.pixels = CalculateMajorScaleTicks(scale.length_cm, scale.span, &scale.unit, &scale.count,
                                            minorTicks);
    return scale;
}

// `towardsImage` is the sign of the ticks.
RulerBar BarOf(const EdgeScale& scale, bool minorTicks, double towardsImage)
{
    const std::int16_t minor = minorTicks ? CalculateMinorScaleTicks(scale.pixels) : std::int16_t{};
    return {static_cast<double>(scale.pixels) * scale.count, scale.count, kMajorTick * towardsImage,
            minor, minor > 0 ? kMinorTick * towardsImage : 0};
}

// How a frame is scaled across and down its cell, in mm a pixel; 0 where that isn't known.
struct FrameScale {
    double horizontal = 0, vertical = 0, zoom = 0;
};

FrameScale ScaleOfFrame(const AnnotatedFrame& frame)
{
    // Asked first, since its answer is kept: without one, all files would be looked at each time.
    if (!frame.fSequence.HasPixelSizeData() || !frame.fSequence.GetCurrentSource())
        return {};
    float first = 0, second = 0;
    frame.fSequence.GetPixelDimensions(&first, &second);
    if (first == 0 || second == 0)
        return {};
    const zel_TransformRec& record = frame.fInfo.fTransform;
    if (record.rotation == 90 || record.rotation == 270)
        std::swap(first, second);
    return {first, second, record.zoom / static_cast<double>(kZoomOne)};
}

QRectF BoundsOfW(const QPainter& painter)
{
    return CalculateTextBounds(QStringLiteral("W"), painter, GetAnnotationFontRef());
}

void SetPen(QPainter& painter, const ZELRGBColor& color)
{
    QPen pen(ColorOfHighBytes(color), 1.0);
    pen.setCapStyle(Qt::FlatCap);
    painter.setPen(pen);
}

}  // namespace

RulerAnnotation::RulerAnnotation() { fVertMargin = fHorzMargin = kMargin; }

void RulerAnnotation::DrawSelf(const AnnotationBox&, const QString&, const AnnotatedFrame& frame,
                               QPainter& painter) const
{
    if (EmptyRect(frame.fCell))
        return;
    const FrameScale scale = ScaleOfFrame(frame);
    const PainterScope scope(painter);
    painter.setRenderHint(QPainter::Antialiasing, false);
    DrawHorizontalScale(frame.fCell, painter, scale.horizontal, scale.zoom);
    DrawVerticalScale(frame.fCell, painter, scale.vertical, scale.zoom);
}

void RulerAnnotation::DrawHorizontalScale(const Rect& cell, QPainter& painter, double spacing,
                                          double zoom) const
{
    const std::int32_t width = cell.right - cell.left;
    if (!IsDrawn(width, spacing, zoom))
        return;
    const EdgeScale scale = ScaleOfEdge(width, spacing, zoom, fMinorTicks);
    const RulerBar bar = BarOf(scale, fMinorTicks, 1);
    const double length = bar.length + 1.0;
    double x = (width - length) * 0.5 + cell.left + 1.0;
    double y = 1.3 * BoundsOfW(painter).height() - cell.bottom + fVertMargin + 1.0;
    SetPen(painter, kAnnotationShadow);
    DrawHorzMajorRulerTicks(painter, x, y, bar);
    x -= 1.0;
    y += 1.0;
    SetPen(painter, fColor);
    DrawHorzMajorRulerTicks(painter, x, y, bar);
    if (!fLabels || scale.count <= 0)
        return;
    const QString label = RulerLabel(scale.unit, scale.count);
    const double height = CalculateTextBounds(label, painter, GetScaleFontRef()).height();
    ShapeDrawStringWithFontX(label, painter,
                             {fHorzMargin + length + x - 2.0, y + 3.0 - height * 0.5},
                             GetScaleFontRef(), fColor);
}

void RulerAnnotation::DrawVerticalScale(const Rect& cell, QPainter& painter, double spacing,
                                        double zoom) const
{
    const std::int32_t height = cell.bottom - cell.top;
    if (!IsDrawn(height, spacing, zoom))
        return;
    const EdgeScale scale = ScaleOfEdge(height, spacing, zoom, fMinorTicks);
    const RulerBar bar = BarOf(scale, fMinorTicks, -1);
    const double span = RulerSpan(scale.length_cm, scale.span, scale.unit, scale.count);
    double x = cell.right - fHorzMargin - BoundsOfW(painter).width() + 3.0;
    double y = -((height - span) * 0.5 + cell.top);
    SetPen(painter, kAnnotationShadow);
    DrawVertMajorRulerTicks(painter, x, y, bar);
    x -= 1.0;
    y += 1.0;
    SetPen(painter, fColor);
    DrawVertMajorRulerTicks(painter, x, y, bar);
    if (!fLabels || scale.count <= 0)
        return;
    const QString label = RulerLabel(scale.unit, scale.count);
    const QRectF bounds = CalculateTextBounds(label, painter, GetScaleFontRef());
    const double left =
        std::min(x - bounds.width() * 0.5 - 1.0, cell.right - 1 - fHorzMargin - bounds.width());
    ShapeDrawStringWithFontX(label, painter, {left, y - span - bounds.height() - 4.0},
                             GetScaleFontRef(), fColor);
}

AnnotationEdges RulerAnnotation::EdgesTakenBy(const AnnotatedFrame& frame, const QPainter& painter)
{
    const FrameScale scale = ScaleOfFrame(frame);
    const Rect& cell = frame.fCell;
    const QRectF letter = BoundsOfW(painter);
    AnnotationEdges taken;
    if (IsDrawn(cell.right - cell.left, scale.horizontal, scale.zoom))
        taken.bottom = static_cast<std::int32_t>(
            std::ceil(1.3 * letter.height() + kMargin + 2.0 + kMajorTick));
    if (IsDrawn(cell.bottom - cell.top, scale.vertical, scale.zoom))
        taken.right =
            static_cast<std::int32_t>(std::ceil(kMargin + letter.width() - 3.0 + 1.0 + kMajorTick));
    return taken;
}

// How a measurement is drawn, and its cursors.
#include "Graphics/CKAdornedGraphic.h"
#include "Graphics/ShapeShadow.h"
#include "prefs/Prefs.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QTransform>
#include <algorithm>
#include <array>
#include <cmath>

namespace {

constexpr double kHandleDiameter = 6;  // points of the screen, as the next
constexpr double kLabelGap = 3;
constexpr QSizeF kLabelBound(3000, 120);
const QColor kKnobColor(0xD0, 0xD0, 0xD0);

constexpr ShapeHandle kLastHandle = 8;

QFont LabelFont()
{
    QFont font(prefs_Get_AnnotationsFontName());
    font.setStyleHint(QFont::Monospace);
    font.setPixelSize(std::max(1, static_cast<int>(std::lround(prefs_Get_AnnotationsFontSize()))));
    return font;
}

class Saved {
public:
    explicit Saved(QPainter* painter) : fPainter(painter) { painter->save(); }
    ~Saved() { fPainter->restore(); }
    Saved(const Saved&) = delete;
    Saved& operator=(const Saved&) = delete;

private:
    QPainter* fPainter;
};

}  // namespace

QColor CKAdornedGraphic::drawingStrokeColor() const
{
    const bool active = _fUseHandles && _gridController && _gridController->isTheActiveGrid() &&
                        _shapeSequence && _shapeSequence->currentFrame() == _theFrameIndex;
    return active ? ColorOf(prefs_Get_ActiveCellColor()) : strokeColorCK();
}

void CKAdornedGraphic::drawContentsInView(QPainter* painter, bool /*isBeingCreatedOrEdited*/) const
{
    const QPainterPath path = bezierPathForDrawing();
    if (path.isEmpty())
        return;
    const Saved saved(painter);
    const double width = double{strokeWidth()} / zoom();
    if (isDrawingFill())
        painter->fillPath(path, fillColorCK());
    if (!isDrawingStroke())
        return;
    if (_shadowON)
        DrawStrokeShadow(painter, path, width);
    painter->strokePath(path, QPen(drawingStrokeColor(), width));
}

void CKAdornedGraphic::drawHandlesInView(QPainter* painter) const
{
    for (ShapeHandle handle = 1; handle <= kLastHandle; ++handle)
        drawHandleInView(painter, pointOfHandle(handle));
}

void CKAdornedGraphic::drawHandleInView(QPainter* painter, const QPointF& point) const
{
    const Saved saved(painter);
    const double radius = kHandleDiameter / zoom() / 2;
    QPainterPath oval;
    oval.addEllipse(point, radius, radius);
    if (_shadowON)
        DrawFillShadow(painter, oval);
    painter->fillPath(oval, kKnobColor);
    painter->strokePath(oval, QPen(Qt::white, 1 / zoom()));
}

void CKAdornedGraphic::drawCenterXInView(QPainter* painter, const QPointF& point) const
{
    const Saved saved(painter);
    const double half = kHandleDiameter / zoom() / 2;
    QPainterPath cross;
    cross.moveTo(point + QPointF(-half, -half));
    cross.lineTo(point + QPointF(half, half));
    cross.moveTo(point + QPointF(half, -half));
    cross.lineTo(point + QPointF(-half, half));
    if (_shadowON)
        DrawStrokeShadow(painter, cross, 1 / zoom());
    painter->strokePath(cross, QPen(Qt::white, 1 / zoom()));
}

ShapeText CKAdornedGraphic::labelAttributedText() const
{
    return {labelText(), LabelFont(), strokeColorCK()};
}

QSizeF CKAdornedGraphic::labelSize() const
{
    const ShapeText label = labelAttributedText();
    if (label.text.isEmpty())
        return {};
    return QFontMetricsF(label.font)
        .boundingRect(QRectF(QPointF(), kLabelBound), Qt::AlignLeft | Qt::AlignTop, label.text)
        .size();
}

QPointF CKAdornedGraphic::labelDrawPoint(const QTransform& frameToCell) const
{
    const QRectF bounds = frameToCell.mapRect(geometricBounds());
    switch (_descriptionPosition) {
        case LabelPosition::BelowRight:
            return bounds.bottomRight() + QPointF(kLabelGap, kLabelGap);
        case LabelPosition::TopLeft:
            return bounds.topLeft() + QPointF(kLabelGap, 0);
        case LabelPosition::Above:
            break;
    }
    return bounds.topLeft() + QPointF(1 + kLabelGap, -labelSize().height() - kLabelGap);
}

void CKAdornedGraphic::drawLabel(QPainter* painter, const QTransform& frameToCell) const
{
    const ShapeText label = labelAttributedText();
    if (label.text.isEmpty())
        return;
    const Saved saved(painter);
    painter->setFont(label.font);
    const QFontMetricsF metrics(label.font, painter->device());
    QPointF baseline = labelDrawPoint(frameToCell) + QPointF(0, metrics.ascent());
    for (const QString& line : label.text.split(QLatin1Char('\n'))) {
        if (_shadowON)
            DrawTextShadow(painter, baseline, line);
        painter->setPen(label.color);
        painter->drawText(baseline, line);
        baseline.ry() += metrics.lineSpacing();
    }
}

ShapeCursor CKAdornedGraphic::cursorForHandle(ShapeHandle handle, bool /*forResize*/) const
{
    switch (handle) {
        case 1:
        case 8:
            return {QStringLiteral("resizeTLBR_cur"), {8, 8}};
        case 2:
        case 7:
            return {QStringLiteral("resizevert_cur"), {9, 9}};
        case 3:
        case 6:
            return {QStringLiteral("resizeTRBL_cur"), {8, 8}};
        case 4:
        case 5:
            return {QStringLiteral("resizehorz_cur"), {5, 9}};
        default:
            return {QString::fromLatin1(kPointingHandCursor), {}};
    }
}

ShapeCursor CKAdornedGraphic::creationCursor() const
{
    return {QString::fromLatin1(kCrosshairCursor), {}};
}

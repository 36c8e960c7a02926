#include "Graphics/CKGraphic.h"

#include "prefs/Prefs.h"
#include "util/Log.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double kHandleReach = 3;

const std::vector<DerivedKey>& DerivedKeys()
{
    static const std::vector<DerivedKey> keys{
        {"drawingBounds", {"bounds", "strokeWidth"}},
        {"drawingContents",
         {"drawingFill", "fillColor", "drawingStroke", "strokeColor", "strokeWidth"}},
        {"hasFillON", {"drawingFill"}},
        {"fillColorCK", {"fillColor"}},
        {"fillOpacity", {"fillColor"}},
        {"hasStrokeON", {"drawingStroke"}},
        {"strokeColorCK", {"strokeColor"}},
        {"strokeOpacity", {"strokeColor"}},
        {"strokeWidthCK", {"strokeWidth"}},
        {"strokeWidthString", {"strokeWidth"}},
        {"xPosition", {"bounds"}},
        {"yPosition", {"bounds"}},
        {"width", {"bounds"}},
        {"height", {"bounds"}},
        {"statisticsText", {"xPosition", "yPosition", "width", "height", "bounds"}},
    };
    return keys;
}

}  // namespace

QColor ColorOf(const ZELColor& color)
{
    return QColor::fromRgbF(static_cast<float>(color.red), static_cast<float>(color.green),
                            static_cast<float>(color.blue), static_cast<float>(color.alpha));
}

CKGraphic::CKGraphic()
    : ObservableKeys(DerivedKeys()),
      _fillColor(ColorOf(prefs_Get_MeasurementFillColor())),
      _strokeColor(ColorOf(prefs_Get_MeasurementStrokeColor()))
{
}

void CKGraphic::setBounds(const QRectF& bounds) { change("bounds", &_bounds, bounds); }
void CKGraphic::setDrawingFill(bool on) { change("drawingFill", &_isDrawingFill, on); }
void CKGraphic::setFillColor(const QColor& color) { change("fillColor", &_fillColor, color); }
void CKGraphic::setDrawingStroke(bool on) { change("drawingStroke", &_isDrawingStroke, on); }
void CKGraphic::setStrokeColor(const QColor& color) { change("strokeColor", &_strokeColor, color); }
void CKGraphic::setStrokeWidth(float width) { change("strokeWidth", &_strokeWidth, width); }
void CKGraphic::setLocked(bool locked) { change("locked", &_locked, locked); }

QRectF CKGraphic::grownBounds() const
{
    const double stroke = _isDrawingStroke ? double{_strokeWidth} / 2 : 0;
    const double by = std::max(kHandleReach, stroke);
    return _bounds.adjusted(-by, -by, by, by);
}

QRectF CKGraphic::drawingBounds() const { return grownBounds().adjusted(0, 0, 1, 1); }

QPainterPath CKGraphic::bezierPathForDrawing() const
{
    LogLine("Neither -drawContentsInView: nor -bezierPathForDrawing has been overridden.");
    return {};
}

bool CKGraphic::isHandleAtPoint(const QPointF& handle, const QPointF& point) const
{
    return std::abs(point.x() - handle.x()) <= kHandleReach &&
           std::abs(point.y() - handle.y()) <= kHandleReach;
}

void CKGraphic::copyDrawingOf(const CKGraphic& other)
{
    _bounds = other._bounds;
    _isDrawingFill = other._isDrawingFill;
    _fillColor = other._fillColor;
    _isDrawingStroke = other._isDrawingStroke;
    _strokeColor = other._strokeColor;
    _strokeWidth = other._strokeWidth;
    _locked = other._locked;
}

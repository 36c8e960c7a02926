// A measurement's attributes, calibration and life.
#include "Graphics/CKAdornedGraphic.h"

#include "platform/Words.h"
#include "prefs/Prefs.h"
#include "util/Log.h"

#include <algorithm>
#include <charconv>
#include <cmath>

bool CKAdornedGraphic::isVoid() const
{
    LogLine("CKAdornedGraphic isVoid should be overriden for class " + shapeName().toStdString());
    return false;
}

void CKAdornedGraphic::setStrokeColorCK(const QColor& color) { setStrokeColor(color); }

void CKAdornedGraphic::setFillColorCK(const QColor& color) { setFillColor(color); }

void CKAdornedGraphic::setStrokeOpacity(float alpha)
{
    QColor color = strokeColor();
    color.setAlphaF(std::clamp(alpha, 0.0F, 1.0F));
    setStrokeColorCK(color);
}

void CKAdornedGraphic::setFillOpacity(float alpha)
{
    if (!isDrawingFill() && canSetDrawingFill())
        setHasFillON(true);
    QColor color = fillColor();
    color.setAlphaF(std::clamp(alpha, 0.0F, 1.0F));
    setFillColorCK(color);
}

QString CKAdornedGraphic::strokeWidthString() const
{
    return QString::number(double{strokeWidth()}, 'f', 1) + QStringLiteral(" pt");
}

// A number at the begin of the text; none is 0.
void CKAdornedGraphic::setStrokeWidthString(const QString& text)
{
    const std::string bytes = text.trimmed().toStdString();
    float width = 0;
    std::from_chars(bytes.data(), bytes.data() + bytes.size(), width);
    setStrokeWidthCK(std::isfinite(width) ? std::max(width, 0.0F) : 0);
}

void CKAdornedGraphic::setStrokeWidthCK(float width)
{
    if (!isDrawingStroke() && canSetDrawingStroke())
        setHasStrokeON(true);
    setStrokeWidth(width);
}

void CKAdornedGraphic::setColor(const QColor& color)
{
    if (isStraight()) {
        setStrokeColorCK(color);
    } else if (canSetDrawingFill()) {
        setHasFillON(true);
        setFillColorCK(color);
    }
}

void CKAdornedGraphic::setDescriptionPosition(LabelPosition position)
{
    Announce({"descriptionPosition"}, [&] { _descriptionPosition = position; });
}

void CKAdornedGraphic::setPixelSizeHor(float horizontal, float vertical)
{
    fPixelSizeHorz = horizontal;
    fPixelSizeVert = vertical;
}

bool CKAdornedGraphic::belongsToRegion(const US_ROIRegDataRec& region) const
{
    const QRectF bounds = geometricBounds();
    return bounds.left() >= region.fX0 && bounds.top() >= region.fY0 &&
           bounds.right() <= region.fX1 && bounds.bottom() <= region.fY1;
}

const US_ROIRegDataRec* CKAdornedGraphic::regionToUse() const
{
    if (!_gridController || _ignoresUSRegions || !_shapeSequence || !_shapeSequence->hasUSRegions())
        return nullptr;
    const auto belongs = [this](const US_ROIRegDataRec& region) { return belongsToRegion(region); };
    const US_ROIRegDataRec* region =
        _targetUSRegion ? _targetUSRegion
                        : U_USRegionForShape(_shapeSequence->usRegions(), false, belongs);
    const bool fits = region && region->fUnitsX != ROIUnitType::None && belongsToRegion(*region);
    return fits ? region : nullptr;
}

QString CKAdornedGraphic::displayTitle() const
{
    const QString title =
        ZelWord(kWordsMeasurements, "kMeasDisplayTitle")
            .arg(shapeInitial(), QString::number(_countingIndex), measuredValueText());
    return _global ? ZelWord(kWordsMeasurements, "kGlobalMeasPrefix") + title : title;
}

ShapeText CKAdornedGraphic::statisticsText() const
{
    constexpr int kTextSize = 12;
    QFont font(QStringLiteral("Sans Serif"));
    font.setPixelSize(kTextSize);
    return {statisticsPsaxno(), font, Qt::black};
}

CKShapePtr CKAdornedGraphic::copyWithZone() const
{
    CKShapePtr copy = newOfSameClass();
    copy->copyDrawingOf(*this);
    copy->_shadowON = _shadowON;
    copy->_canSetDrawingLabel = _canSetDrawingLabel;
    copy->_hasDescription = _hasDescription;
    copy->_descriptionON = _descriptionON;
    copy->_descriptionPosition = _descriptionPosition;
    copy->_canSetDrawingShadow = _canSetDrawingShadow;
    return copy;
}

void CKAdornedGraphic::removeReference(bool dispose)
{
    fDisposeIsPending |= dispose;
    fRefCounter = std::max(fRefCounter - 1, 0);
}

#include "app/tools/MouseTrackers.h"

#include "app/tools/ZELToolsController.h"
#include "dicom_core/tree/dk_SequenceBase.h"
#include "platform/NotificationCenter.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double kStarts = 2;                      // points: a press that moves less is a click
constexpr double kLeastZoom = 5, kMostZoom = 800;  // percent
constexpr std::int32_t kMostBnC = 100;

bool IsAtLeast(const QPointF& offset, double distance)
{
    return std::abs(offset.x()) >= distance || std::abs(offset.y()) >= distance;
}

std::int64_t Rounded(double value)
{
    return std::llround(std::clamp(value, -4e9, 4e9));  // half away from zero
}

}  // namespace

ZELMouseTracker::ZELMouseTracker(Grid& grid, int cell, const QPointF& press)
    : _grid(grid), _targetCell(cell), _startPoint(press)
{
}

void ZELMouseTracker::track(const TrackerEvent& event) { move(event.point - _startPoint, event); }

void ZELMouseTracker::release(const TrackerEvent& event)
{
    track(event);
    endTracking();
}

QPointF ZELMouseTracker::lockedOffset(const QPointF& offset, bool shift)
{
    if (!shift) {
        _mouseMovement = Axis::None;
        return offset;
    }
    if (offset.isNull())
        return offset;
    if (_mouseMovement == Axis::None)
        _mouseMovement = std::trunc(std::abs(offset.x())) > std::trunc(std::abs(offset.y()))
                             ? Axis::Horizontal
                             : Axis::Vertical;
    return _mouseMovement == Axis::Horizontal ? QPointF(offset.x(), 0) : QPointF(0, offset.y());
}

dk_ImageFrameInfo* ZELMouseTracker::frameInfo() const
{
    dk_SequenceBase* sequence = _grid.curr_dkSequence();
    return sequence ? sequence->GetImageFrameInfo(frame()) : nullptr;
}

void ZELMouseTracker::setNeedsDisplay() const
{
    if (_grid.view())
        _grid.view()->setNeedsDisplayForFrame(frame());
}

void ZELMouseTracker::post(std::string_view name, const QVariantMap& info) const
{
    NotificationCenter::Default().Post(name, _grid.view(), info);
}

// ---- pan ----

ZELPanTracker::ZELPanTracker(Grid& grid, int cell, const QPointF& press)
    : ZELMouseTracker(grid, cell, press),
      origScrollPos(grid.currZELSequence()->scrollForFrame(cell + 1)),
      fLimit(grid.U_GetViewScrollLimitsForViewFrame(cell + 1))
{
}

void ZELPanTracker::move(const QPointF& offset, const TrackerEvent& event)
{
    const QPointF held = lockedOffset(offset, event.shift);
    if (fLimit.isNull() || held.isNull())  // it fits, or there is nothing to add
        return;
    const QPointF by = _grid.U_ReverseGeomTransformDeltaScroll(held, frame());
    const QPointF to = origScrollPos + by;
    proxy().changeScrollPositionForAllFrames(false, {std::clamp(to.x(), -fLimit.x(), fLimit.x()),
                                                     std::clamp(to.y(), -fLimit.y(), fLimit.y())});
    fMoved = true;
    setNeedsDisplay();
}

void ZELPanTracker::endTracking()
{
    if (!fMoved)
        return;
    const QPointF scroll = proxy().scrollForFrame(frame());
    proxy().changeScrollPositionForAllFrames(false, origScrollPos);
    post(kNoteImageCenterChanged,
         {{QLatin1String(kKeyPositionX), scroll.x()}, {QLatin1String(kKeyPositionY), scroll.y()}});
}

// ---- zoom ----

ZELZoomTracker::ZELZoomTracker(Grid& grid, int cell, const QPointF& press)
    : ZELMouseTracker(grid, cell, press),
      origZoom(grid.currZELSequence()->currentZoom()),
      fWasAutoFit(grid.currZELSequence()->zoomIsAutoFit())
{
}

void ZELZoomTracker::move(const QPointF& offset, const TrackerEvent& event)
{
    fFast |= event.option;
    if (std::abs(offset.y()) < kStarts)
        return;
    fMoved = true;
    const double zoom = origZoom - (fFast ? 5 : 1) * offset.y();
    const double percent = zoom < kLeastZoom ? kLeastZoom : std::min(std::trunc(zoom), kMostZoom);
    if (percent == fLast)
        return;
    fLast = percent;
    proxy().changeZoomForFrame(frame(), percent);
    setNeedsDisplay();
}

void ZELZoomTracker::endTracking()
{
    if (!fMoved)
        return;
    const dk_ImageFrameInfo* info = frameInfo();
    const double percent = info ? info->fTransform.zoom * 100.0 / kZoomOne : fLast;
    proxy().changeZoomForFrame(frame(), double{origZoom});
    if (fWasAutoFit)
        proxy().zoomAutofitForFrame(frame());
    post(kNoteZoomChanged, {{QLatin1String(kKeyZoom), percent}});
}

// ---- window and level ----

ZELVOITracker::ZELVOITracker(Grid& grid, int cell, const QPointF& press)
    : ZELMouseTracker(grid, cell, press)
{
    const dk_ImageFrameInfo* info = frameInfo();
    fKnown = info && U_GetDisplayVOILimits(info->fTransform, &fLimits) == kQvxOK &&
             U_GetDisplayVOIParams(info->fTransform, &winWidthOrig, &winLevelOrig) == kQvxOK &&
             fLimits.minWidth <= fLimits.maxWidth && fLimits.minLevel <= fLimits.maxLevel;
    fWidth = winWidthOrig;
    fLevel = winLevelOrig;
}

void ZELVOITracker::move(const QPointF& offset, const TrackerEvent& event)
{
    dk_ImageFrameInfo* info = frameInfo();
    if (!fKnown || !info)
        return;
    if (event.option)  // kept also when it is released
        fSpeed = event.shift ? 8 : 0.25;
    const QPointF held = lockedOffset(offset, event.shift);
    fStarted |= IsAtLeast(held, kStarts);
    if (!fStarted)
        return;
    const double unit = fLimits.maxWidth / 256.0;
    if (held.x() != 0)
        fWidth = static_cast<std::uint32_t>(std::clamp<std::int64_t>(
            winWidthOrig + Rounded(held.x() * unit / fSpeed), fLimits.minWidth, fLimits.maxWidth));
    if (held.y() != 0)
        fLevel = static_cast<std::int32_t>(std::clamp<std::int64_t>(
            winLevelOrig - Rounded(held.y() * unit / fSpeed), fLimits.minLevel, fLimits.maxLevel));
    zel_TransformRec record = info->fTransform;
    std::int32_t minimum = 0, maximum = 0;
    info->GetActualPixelValuesRange(&minimum, &maximum);
    if (U_SetDisplayVOIParams(&record, minimum, maximum, fWidth, fLevel, false))
        return;
    const bool whole = record.voiInfo.IsPlain();
    proxy().changeVOIForAllFrames(false, whole ? std::trunc(record.voiWidth) : record.voiWidth,
                                  whole ? std::trunc(record.voiLevel) : record.voiLevel);
    setNeedsDisplay();
}

void ZELVOITracker::endTracking()
{
    setNeedsDisplay();
    const dk_ImageFrameInfo* info = frameInfo();
    if (!fStarted || !info || (fWidth == winWidthOrig && fLevel == winLevelOrig))
        return;
    post(kNoteVOIChanged, {{QLatin1String(kKeyCellNum), _targetCell},
                           {QLatin1String(kKeyWWidth), double{info->fTransform.voiWidth}},
                           {QLatin1String(kKeyWLevel), double{info->fTransform.voiLevel}}});
}

// ---- brightness and contrast ----

ZELBnCTracker::ZELBnCTracker(Grid& grid, int cell, const QPointF& press)
    : ZELMouseTracker(grid, cell, press),
      fBrightnessOrig(grid.currZELSequence()->theWWBrightnessForFrame(cell + 1)),
      fContrastOrig(grid.currZELSequence()->theWLContrastForFrame(cell + 1)),
      _brightness(fBrightnessOrig),
      _contrast(fContrastOrig)
{
}

void ZELBnCTracker::move(const QPointF& offset, const TrackerEvent& event)
{
    if (event.option)
        fFactor = event.shift ? 0.5 : 4;
    const QPointF held = lockedOffset(offset, event.shift);
    fStarted |= IsAtLeast(held, kStarts);
    if (!fStarted)
        return;
    const auto limited = [](std::int64_t value) {
        return static_cast<std::int32_t>(std::clamp<std::int64_t>(value, -kMostBnC, kMostBnC));
    };
    if (held.x() != 0)
        _brightness = limited(fBrightnessOrig + Rounded(held.x() * fFactor));
    if (held.y() != 0)
        _contrast = limited(fContrastOrig - Rounded(held.y() * fFactor));
    proxy().changeBnCForAllFrames(false, _brightness, _contrast);
    setNeedsDisplay();
}

void ZELBnCTracker::endTracking()
{
    setNeedsDisplay();
    if (!fStarted || (_brightness == fBrightnessOrig && _contrast == fContrastOrig))
        return;
    post(kNoteBnCChanged, {{QLatin1String(kKeyCellNum), _targetCell},
                           {QLatin1String(kKeyBrightness), _brightness},
                           {QLatin1String(kKeyContrast), _contrast}});
}

std::unique_ptr<ZELMouseTracker> NewTrackerForTool(std::int32_t tool,
                                                   ZELSequenceGridViewModelController& grid,
                                                   int cell, const QPointF& press)
{
    if (!grid.currZELSequence() || !grid.currZELSequence()->isGood())
        return nullptr;
    switch (tool) {
        case kToolZoom:
            return std::make_unique<ZELZoomTracker>(grid, cell, press);
        case kToolPan:
            return std::make_unique<ZELPanTracker>(grid, cell, press);
        case kToolWindow:
            if (grid.currZELSequence()->isDICOMGray())
                return std::make_unique<ZELVOITracker>(grid, cell, press);
            return std::make_unique<ZELBnCTracker>(grid, cell, press);
        default:
            return nullptr;
    }
}

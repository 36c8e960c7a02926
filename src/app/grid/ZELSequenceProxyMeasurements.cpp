// A proxy's measurements and crops.
#include "app/grid/ZELSequenceProxy.h"
#include "dicom_core/tree/dk_SequenceBase.h"

#include <array>

namespace {

// What may change when measurements come, and when they go.
constexpr std::array<std::string_view, 5> kAdded{
    "hasMeasurements", "currentFrameHasMoreThan1", "currentFrameHasMoreThan1Lines",
    "currentFrameHasMeasurements", "currentFrameMeasurements"};
constexpr std::array<std::string_view, 8> kRemoved{"hasMeasurements",
                                                   "currentFrameHasMoreThan1",
                                                   "currentFrameHasMoreThan1Lines",
                                                   "currentFrameHasMeasurements",
                                                   "currentMeasurementIsLast",
                                                   "currentMeasurementIsTopmost",
                                                   "currentFrameMeasurements",
                                                   "currentMeasurement"};
constexpr std::array<std::string_view, 3> kCurrent{
    "currentMeasurementIsLast", "currentMeasurementIsTopmost", "currentMeasurement"};

}  // namespace

// Made on the first question, so only for commands; questions go by the states.
CKFrameShapesMgr* ZELSequenceProxy::managerOf(std::int32_t frame) const
{
    ZELFrameViewState* state = viewStateForFrame(frame);
    return state ? &state->shapesMgr() : nullptr;
}

bool ZELSequenceProxy::currentFrameHasMeasurements() const
{
    return totalMeasurementsInFrame(currentFrame()) >= 1;
}

bool ZELSequenceProxy::currentFrameHasMoreThan1() const
{
    return totalMeasurementsInFrame(currentFrame()) >= 2;
}

bool ZELSequenceProxy::currentFrameHasMoreThan1Lines() const
{
    return currentFrameHasMoreThan1() && managerOf(currentFrame())->HasTwoOrMoreLines();
}

std::vector<CKShapePtr> ZELSequenceProxy::currentFrameMeasurements() const
{
    return measurementsForFrame(currentFrame());
}

std::int32_t ZELSequenceProxy::numberOf(std::int32_t frame) const
{
    return frame == kCurrentFrame ? currentFrame() : frame;
}

std::vector<CKShapePtr> ZELSequenceProxy::measurementsForFrame(std::int32_t frame) const
{
    return _frameViewStates.measurementsOfFrame(numberOf(frame));
}

std::int32_t ZELSequenceProxy::totalMeasurementsInFrame(std::int32_t frame) const
{
    const ZELFrameViewState* state = viewStateForFrame(frame);
    return state ? state->totalMeasurements() : 0;
}

std::int32_t ZELSequenceProxy::measurementIndexForShape(const CKAdornedGraphic* shape,
                                                        std::int32_t frame) const
{
    const bool known = totalMeasurementsInFrame(frame) > 0;
    const std::int32_t position = known ? managerOf(frame)->GetMeasurementIndex(shape) : 0;
    return position > 0 ? position : -1;
}

CKShapePtr ZELSequenceProxy::currentMeasurement() const
{
    const ZELFrameViewState* state = currentFrameViewState();
    return state ? state->theCurrentMeasurement() : nullptr;
}

bool ZELSequenceProxy::currentMeasurementIsTopmost() const
{
    const CKShapePtr current = currentMeasurement();
    return current && managerOf(currentFrame())->ShapeIsOnTop(current.get());
}

bool ZELSequenceProxy::currentMeasurementIsLast() const
{
    const CKShapePtr current = currentMeasurement();
    return current && managerOf(currentFrame())->ShapeIsAtBottom(current.get());
}

void ZELSequenceProxy::makeCurrent(CKFrameShapesMgr* manager, const CKShapePtr& shape)
{
    manager->DeselectAll();
    manager->SetCurrentMeasurement(shape.get());
    manager->SelectShape(shape.get());  // nothing for none
}

void ZELSequenceProxy::setCurrentMeasurement(const CKShapePtr& shape)
{
    CKFrameShapesMgr* manager = managerOf(currentFrame());
    if (manager && shape != currentMeasurement())
        Announce(kCurrent, [&] { makeCurrent(manager, shape); });
}

void ZELSequenceProxy::setCurrentAndSelectedMeasurement(const CKShapePtr& shape)
{
    setCurrentMeasurement(shape);
}

void ZELSequenceProxy::addNewMeasurement(const CKShapePtr& shape, bool current)
{
    CKFrameShapesMgr* manager = managerOf(currentFrame());
    if (!manager || !shape)
        return;
    Announce(kAdded, [&] {
        manager->AppendMeasurement(shape);
        if (current)
            Announce(kCurrent, [&] { makeCurrent(manager, shape); });
    });
}

void ZELSequenceProxy::removeCurrentMeasurementAndDelete(bool dispose)
{
    if (const CKShapePtr current = currentMeasurement())
        removeMeasurement(current, currentFrame(), dispose);
}

void ZELSequenceProxy::removeMeasurement(const CKShapePtr& shape, std::int32_t frame, bool dispose)
{
    if (!shape || !viewStateForFrame(frame))
        return;
    const bool wasCurrent = shape == currentMeasurement();
    announceIf(wasCurrent, kRemoved, [&] {
        const bool everywhere = shape->_global;
        const std::int32_t last = everywhere ? _frameViewStates.count() : frame;
        for (std::int32_t each = everywhere ? 1 : frame; each <= last; ++each) {
            if (totalMeasurementsInFrame(each) > 0)
                managerOf(each)->RemoveMeasurement(shape.get(), dispose);
        }
        shape->_selected = shape->_fUseHandles = false;  // it may come back by an undo
        if (wasCurrent) {
            managerOf(currentFrame())->DeselectAll();
            managerOf(currentFrame())->SetCurrentMeasurement(nullptr);
        }
    });
}

void ZELSequenceProxy::removeAllMeasurementsForFrame(std::int32_t selector)
{
    if (selector == kAllFrames) {
        removeAllMeasurements();
        return;
    }
    const std::int32_t frame = numberOf(selector);
    if (!viewStateForFrame(frame))
        return;
    announceIf(frame == currentFrame(), kRemoved, [&] {
        managerOf(frame)->RemoveLocalMeasurements(true);
        if (!managerOf(frame)->List().HasGlobalMeasurements())
            return;
        for (std::int32_t each = 1; each <= _frameViewStates.count(); ++each) {
            if (totalMeasurementsInFrame(each) > 0)
                managerOf(each)->RemoveGlobalMeasurements(true);
        }
    });
    if (frame == currentFrame())
        setCurrentMeasurement(nullptr);
}

void ZELSequenceProxy::removeAllMeasurements()
{
    if (!_theSequence)
        return;
    Announce(kRemoved, [&] {
        for (std::int32_t frame = 1; frame <= _frameViewStates.count(); ++frame) {
            if (totalMeasurementsInFrame(frame) > 0)
                managerOf(frame)->RemoveAllMeasurements(true);
        }
    });
}

void ZELSequenceProxy::changeScaleForAllFrames(float scale)
{
    if (!_theSequence || scale == _theSequence->GetViewState()->fManualPixelScale)
        return;
    _theSequence->GetViewState()->fManualPixelScale = scale;
    float working = scale;
    if (working == 0 && _theSequence->HasBuiltInScaleInfo()) {
        float second = 0;
        _theSequence->GetPixelDimensions(&working, &second);
    }
    for (std::int32_t frame = 1; frame <= _frameViewStates.count(); ++frame) {
        if (totalMeasurementsInFrame(frame) > 0)
            managerOf(frame)->SetPixelDims(working, working);
    }
    setViewShowsScale(working != 0);
}

CKShapePtr ZELSequenceProxy::cropForFrame(std::int32_t frame) const
{
    const ZELFrameViewState* state = viewStateForFrame(numberOf(frame));
    return state ? state->frameCrop() : nullptr;
}

QRectF ZELSequenceProxy::cropRectForFrame(std::int32_t frame) const
{
    const CKShapePtr crop = cropForFrame(frame);
    return crop ? crop->geometricBounds() : QRectF();
}

void ZELSequenceProxy::setCropForFrame(const CKShapePtr& crop, std::int32_t selector)
{
    if (selector == kAllFrames) {
        setSequenceCrop(crop);
        return;
    }
    ZELFrameViewState* state = viewStateForFrame(numberOf(selector));
    if (!state)
        return;
    state->setFrameCrop(crop);
    bufHasCrops = crop ? 1 : 0;
}

void ZELSequenceProxy::setSequenceCrop(const CKShapePtr& crop)
{
    if (!_theSequence)
        return;
    for (std::int32_t frame = 1; frame <= _frameViewStates.count(); ++frame)
        viewStateForFrame(frame)->setFrameCrop(crop);
    bufHasCrops = crop ? 1 : 0;
}

void ZELSequenceProxy::clearCrops() { setSequenceCrop(nullptr); }

// The commands on a grid's measurements.
#include "app/grid/ZELSequenceGridViewModelController.h"
#include "platform/NotificationCenter.h"

#include <algorithm>

CKFrameShapesMgr* ZELSequenceGridViewModelController::shapesOf(std::int32_t frame) const
{
    ZELFrameViewState* state =
        _currZELSequence ? _currZELSequence->viewStateForFrame(resolved(frame)) : nullptr;
    return state ? &state->shapesMgr() : nullptr;
}

void ZELSequenceGridViewModelController::endGestures()
{
    if (!gridView)
        return;
    gridView->closePendingMeasurements(true);
    gridView->stopEditing();
}

void ZELSequenceGridViewModelController::setNeedsDisplayForMeasurement(bool global,
                                                                       std::int32_t frame)
{
    if (!gridView)
        return;
    if (global)
        gridView->setNeedsDisplay();
    else
        gridView->setNeedsDisplayForFrame(frame);
}

void ZELSequenceGridViewModelController::post(MeasurementAction action, std::int32_t frame,
                                              const CKShapePtr& shape,
                                              std::int32_t previousPosition)
{
    QVariantMap info{{QLatin1String(kKeyTargetFrame), frame},
                     {QLatin1String(kKeyMeasurementAction), static_cast<int>(action)}};
    if (shape)
        info.insert(QLatin1String(kKeyTargetMeasurement), QVariant::fromValue(shape));
    if (previousPosition > 0)
        info.insert(QLatin1String(kKeyPreviousPosition), previousPosition);
    NotificationCenter::Default().Post(kNoteMeasurementChange, gridView, info);
}

void ZELSequenceGridViewModelController::deleteSelectedMeasurement()
{
    const CKShapePtr shape = _currZELSequence ? _currZELSequence->currentMeasurement() : nullptr;
    if (!shape || shape->isCrop())
        return;
    endGestures();
    if (shape != _currZELSequence->currentMeasurement())
        return;  // it was unfinished, and is gone
    const std::int32_t frame = _currZELSequence->currentFrame();
    const std::int32_t position = _currZELSequence->measurementIndexForShape(shape.get(), frame);
    const bool global = shape->_global;
    _currZELSequence->removeCurrentMeasurementAndDelete(true);
    _currZELSequence->setCurrentMeasurement(nullptr);
    setNeedsDisplayForMeasurement(global, frame);
    post(MeasurementAction::Deleted, frame, shape, position);
}

void ZELSequenceGridViewModelController::deleteMeasurementInFrame(const CKShapePtr& shape,
                                                                  std::int32_t frame)
{
    CKFrameShapesMgr* shapes = shapesOf(frame);
    if (!shapes || !shapes->Contains(shape.get()))
        return;
    const std::int32_t number = resolved(frame);
    const bool isHere = number == _currZELSequence->currentFrame();
    const bool wasCurrent = isHere && shape == _currZELSequence->currentMeasurement();
    if (shape == _currZELSequence->currentMeasurement())  // a global one also from other frames
        endGestures();
    if (!shapes->Contains(shape.get()))
        return;  // it was unfinished, and is gone
    const std::int32_t position = shapes->GetMeasurementIndex(shape.get());
    const bool global = shape->_global;
    _currZELSequence->removeMeasurement(shape, number, true);
    if (wasCurrent && shapes->CountMeasurements() > 0)
        _currZELSequence->setCurrentAndSelectedMeasurement(
            shapes->GetNthMeasurement(std::min(position, shapes->CountMeasurements())));
    setNeedsDisplayForMeasurement(global, number);
    if (isHere)
        post(MeasurementAction::Deleted, number, shape, position);
}

void ZELSequenceGridViewModelController::deleteAllFrameMeasurements()
{
    deleteAllMeasurementsInFrame(resolved(0));
}

void ZELSequenceGridViewModelController::deleteAllMeasurementsInFrame(std::int32_t frame)
{
    CKFrameShapesMgr* shapes = shapesOf(frame);
    if (!shapes)
        return;
    const std::int32_t number = resolved(frame);
    if (number == _currZELSequence->currentFrame() && gridView)
        gridView->stopEditing();
    const bool global = shapes->List().HasGlobalMeasurements();
    _currZELSequence->removeAllMeasurementsForFrame(number);
    setNeedsDisplayForMeasurement(global, number);
    post(MeasurementAction::DeletedAll, number, nullptr);
}

void ZELSequenceGridViewModelController::deleteAllSequenceMeasurements()
{
    if (!_currZELSequence)
        return;
    endGestures();
    _currZELSequence->removeAllMeasurements();
    setNeedsDisplayForMeasurement(true, 0);
    post(MeasurementAction::DeletedAll, -1, nullptr);
}

// ---- order ----

void ZELSequenceGridViewModelController::restack(const CKShapePtr& shape, std::int32_t frame,
                                                 StackMove move, MeasurementAction action)
{
    CKFrameShapesMgr* shapes = shapesOf(frame);
    if (!shapes || !shapes->Contains(shape.get()))
        return;
    const bool toFront =
        move == &CKFrameShapesMgr::MoveToFront || move == &CKFrameShapesMgr::MoveForward;
    if (toFront ? shapes->ShapeIsOnTop(shape.get()) : shapes->ShapeIsAtBottom(shape.get()))
        return;
    const std::int32_t number = resolved(frame);
    const std::int32_t position = shapes->GetMeasurementIndex(shape.get());
    const auto stack = [&] { (shapes->*move)(shape.get()); };
    if (number == _currZELSequence->currentFrame())
        _currZELSequence->Announce({"currentMeasurementIsTopmost", "currentMeasurementIsLast"},
                                   stack);
    else
        stack();
    setNeedsDisplayForMeasurement(shape->_global, number);
    post(action, number, shape, position);
}

void ZELSequenceGridViewModelController::bringMeasurementToFront(const CKShapePtr& shape)
{
    restack(shape, 0, &CKFrameShapesMgr::MoveToFront, MeasurementAction::ToFront);
}

void ZELSequenceGridViewModelController::bringMeasurementForward(const CKShapePtr& shape)
{
    restack(shape, 0, &CKFrameShapesMgr::MoveForward, MeasurementAction::Forward);
}

void ZELSequenceGridViewModelController::sendMeasurementToBack(const CKShapePtr& shape)
{
    restack(shape, 0, &CKFrameShapesMgr::MoveToBack, MeasurementAction::ToBack);
}

void ZELSequenceGridViewModelController::sendMeasurementBackwards(const CKShapePtr& shape)
{
    restack(shape, 0, &CKFrameShapesMgr::MoveBackwards, MeasurementAction::Backwards);
}

void ZELSequenceGridViewModelController::bringMeasurementToFrontInFrame(const CKShapePtr& shape,
                                                                        std::int32_t frame)
{
    restack(shape, frame, &CKFrameShapesMgr::MoveToFront, MeasurementAction::Moved);
}

void ZELSequenceGridViewModelController::bringMeasurementForwardInFrame(const CKShapePtr& shape,
                                                                        std::int32_t frame)
{
    restack(shape, frame, &CKFrameShapesMgr::MoveForward, MeasurementAction::Moved);
}

void ZELSequenceGridViewModelController::sendMeasurementToBackInFrame(const CKShapePtr& shape,
                                                                      std::int32_t frame)
{
    restack(shape, frame, &CKFrameShapesMgr::MoveToBack, MeasurementAction::Moved);
}

void ZELSequenceGridViewModelController::sendMeasurementBackwardsInFrame(const CKShapePtr& shape,
                                                                         std::int32_t frame)
{
    restack(shape, frame, &CKFrameShapesMgr::MoveBackwards, MeasurementAction::Moved);
}

void ZELSequenceGridViewModelController::moveMeasurementToPosition(const CKShapePtr& shape,
                                                                   std::int32_t position)
{
    CKFrameShapesMgr* shapes = shapesOf(0);
    if (!shapes || !shapes->Contains(shape.get()))
        return;
    const std::int32_t before = shapes->GetMeasurementIndex(shape.get());
    _currZELSequence->Announce({"currentMeasurementIsTopmost", "currentMeasurementIsLast"},
                               [&] { shapes->MoveToPosition(shape.get(), position); });
    setNeedsDisplayForMeasurement(shape->_global, resolved(0));
    post(MeasurementAction::Moved, resolved(0), shape, before);
}

// ---- every frame ----

void ZELSequenceGridViewModelController::appendToAllFrames(const CKShapePtr& shape)
{
    if (!_currZELSequence || !shape)
        return;
    for (std::int32_t frame = 1; frame <= _currZELSequence->totalFrames(); ++frame) {
        CKFrameShapesMgr* shapes = shapesOf(frame);
        if (shapes && !shapes->Contains(shape.get()))
            shapes->AppendMeasurement(shape);
    }
    shape->_isNew = false;
    shape->_global = true;
}

void ZELSequenceGridViewModelController::propagateCurrentMeasurement()
{
    const CKShapePtr shape = _currZELSequence ? _currZELSequence->currentMeasurement() : nullptr;
    if (shape)
        propagateMeasurement(shape, resolved(0));
}

void ZELSequenceGridViewModelController::propagateMeasurement(const CKShapePtr& shape,
                                                              std::int32_t frame)
{
    if (!_currZELSequence || !shape)
        return;
    appendToAllFrames(shape);
    setNeedsDisplayForMeasurement(true, 0);
    const std::int32_t number = resolved(frame);
    if (number == _currZELSequence->currentFrame())
        post(MeasurementAction::Changed, number, shape);
    else
        post(MeasurementAction::Added, -1, shape);
}

void ZELSequenceGridViewModelController::makeEraserMeasurement()
{
    if (!_currZELSequence)
        return;
    endGestures();
    const CKShapePtr shape = _currZELSequence->currentMeasurement();
    if (!shape || !shape->supportsEraserMode())
        return;
    shape->_eraserModeON = true;
    shape->setHasStrokeON(false);
    shape->setHasFillON(true);
    shape->setFillOpacity(1);
    shape->_descriptionON = false;
    shape->_shadowON = false;
    CKPixelInfo info;
    if (pixelColorInfoForPoint(shape->shapeStart(), 0, &info)) {
        const auto byte = [](std::uint16_t value) { return value / 257; };
        shape->setFillColorCK(
            QColor(byte(info.pixColor.red), byte(info.pixColor.green), byte(info.pixColor.blue)));
    }
    setNeedsDisplayForMeasurement(shape->_global, resolved(0));
}

// ---- hits ----

GraphicHit ZELSequenceGridViewModelController::graphicUnderPoint(const QPointF& viewPoint,
                                                                 bool preferSelected,
                                                                 std::int32_t frame) const
{
    const CKFrameShapesMgr* shapes = shapesOf(frame);
    if (!shapes)
        return {};
    const QPointF point = viewPointToFramePoint(viewPoint, frame);
    const auto hitOf = [&](const CKShapePtr& shape) -> std::optional<GraphicHit> {
        const ShapeHandle handle =
            shape->_selected ? shape->handleUnderPoint(point) : ShapeHandle{kNoHandle};
        if (handle == kNoHandle && !shape->isContentsUnderPoint(point))
            return std::nullopt;
        return GraphicHit{shape, shapes->GetMeasurementIndex(shape.get()), handle};
    };
    if (const CKShapePtr current = preferSelected ? shapes->GetCurrentMeasurement() : nullptr) {
        if (const auto hit = hitOf(current))
            return *hit;
    }
    for (std::int32_t position = shapes->CountMeasurements(); position >= 1; --position) {
        if (const auto hit = hitOf(shapes->GetNthMeasurement(position)))
            return *hit;
    }
    return {};
}

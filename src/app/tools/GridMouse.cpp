#include "app/tools/GridMouse.h"

#include "app/tools/ZELToolsController.h"

#include <cmath>

namespace {

constexpr double kRightDrag = 4;  // points that a right click may wander

}  // namespace

void GridMouse::press(const GridPress& press)
{
    fPress = press;
    fTracker.reset();
    fGesture = fPotentialDragDrop = fRightWaits = false;
    if (fGrid->view())
        fGrid->view()->stopEditing();
    const auto cell = fGrid->viewport().photoIndexForPoint(press.point);
    if (fGrid->cineModeIsON())
        return;
    fPressedCell = cell.value_or(-1);
    fRightWaits = press.button == MouseButton::Right;  // the menu comes beside the cells too
    if (fRightWaits || !cell || !fGrid->currZELSequence())
        return;
    if (press.button == MouseButton::Middle)
        trackElsewhere(kToolPan);
    else
        pressLeft(press, *cell);
}

// The buttons that are no tool act where they are pressed, which becomes the current cell.
void GridMouse::trackElsewhere(std::int32_t tool)
{
    if (fPressedCell + 1 != fGrid->currZELSequence()->currentFrame())
        fGrid->U_SendNotificationForNewFrame(fPressedCell + 1, CellChangeType::Click);
    fTracker = NewTrackerForTool(tool, *fGrid, fPressedCell, fPress.point);
}

// A click in another cell only moves there, and so does one that came with the keyboard's focus.
void GridMouse::pressLeft(const GridPress& press, int cell)
{
    const std::int32_t tool = fTools->currentTool();
    const bool elsewhere = cell + 1 != fGrid->currZELSequence()->currentFrame();
    if (elsewhere || (press.gaveFocus && ZELToolsController::IsToolbarTool(tool))) {
        fGrid->U_SendNotificationForNewFrame(cell + 1, CellChangeType::Click);
        return;
    }
    if (press.doubleClick && tookDoubleClick(press, cell))
        return;
    if (ZELToolsController::IsDrawTool(tool)) {
        fGesture = fGestures && fGestures->beginCreating(tool, press.point);
        return;
    }
    if (press.command && press.option) {
        fPotentialDragDrop = true;
        return;
    }
    fTracker = NewTrackerForTool(tool, *fGrid, cell, press.point);
    if (!fTracker && fGrid->currZELSequence()->viewShowsMeasurements())
        fGesture = fGestures && fGestures->beginSelecting(press.point, press.shift);
}

bool GridMouse::tookDoubleClick(const GridPress& press, int cell)
{
    const std::int32_t tool = fTools->currentTool();
    if (fGrid->currZELSequence()->viewShowsMeasurements() && fGestures &&
        fGestures->doubleClicked(tool, press.point))
        return true;
    if (ZELToolsController::IsDrawTool(tool) && tool != kToolCrop)
        return false;
    fGrid->doubleClickOnPhotoAtIndex(cell);
    return true;
}

void GridMouse::drag(const TrackerEvent& event)
{
    const QPointF moved = event.point - fPress.point;
    if (fRightWaits && (std::abs(moved.x()) > kRightDrag || std::abs(moved.y()) > kRightDrag)) {
        fRightWaits = false;
        if (fPressedCell >= 0 && fGrid->currZELSequence())
            trackElsewhere(kToolWindow);
    }
    if (fTracker)
        fTracker->track(event);
    else if (fGesture)
        fGestures->drag(event.point, event.shift, event.option);
}

bool GridMouse::release(const TrackerEvent& event)
{
    if (fTracker)
        fTracker->release(event);
    else if (fGesture)
        fGestures->release(event.point);
    fTracker.reset();
    fGesture = fPotentialDragDrop = false;
    return std::exchange(fRightWaits, false);
}

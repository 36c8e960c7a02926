#include "app/views/ZELEnhancedGridView.h"

#include "app/tools/ZELToolsController.h"

#include <QKeyEvent>
#include <optional>

namespace {

std::optional<FrameStep> StepForKey(int key)
{
    switch (key) {
        case Qt::Key_Home:
        case Qt::Key_Clear:  // Begin, in the middle of a keypad
            return FrameStep::First;
        case Qt::Key_End:
            return FrameStep::Last;
        case Qt::Key_PageUp:
            return FrameStep::PreviousPage;
        case Qt::Key_PageDown:
            return FrameStep::NextPage;
        default:
            return std::nullopt;
    }
}

// What an arrow moves by on the screen, view points.
QPointF DeltaOfArrow(int key)
{
    switch (key) {
        case Qt::Key_Left:
            return {-1, 0};
        case Qt::Key_Right:
            return {1, 0};
        case Qt::Key_Up:
            return {0, -1};
        default:
            return {0, 1};
    }
}

FrameStep StepForArrow(int key, bool matrix)
{
    switch (key) {
        case Qt::Key_Left:
            return FrameStep::Previous;
        case Qt::Key_Right:
            return FrameStep::Next;
        case Qt::Key_Up:
            return matrix ? FrameStep::PreviousRow : FrameStep::Previous;
        default:
            return matrix ? FrameStep::NextRow : FrameStep::Next;
    }
}

}  // namespace

void ZELEnhancedGridView::keyPressEvent(QKeyEvent* event)
{
    event->accept();
    if (!theGridSequence())
        return;
    const bool command = event->modifiers().testFlag(Qt::ControlModifier);
    const int key = event->key() == Qt::Key_Back      ? Qt::Key_Left
                    : event->key() == Qt::Key_Forward ? Qt::Key_Right
                                                      : event->key();
    switch (key) {
        case Qt::Key_Left:
            return command ? links().actions->gotoPreviousSequence(*links().grid)
                           : handleKey_Arrow(key);
        case Qt::Key_Right:
            return command ? links().actions->gotoNextSequence(*links().grid)
                           : handleKey_Arrow(key);
        case Qt::Key_Up:
        case Qt::Key_Down:
            return handleKey_Arrow(key);
        case Qt::Key_Space:
            return handleKey_Space();
        case Qt::Key_Backspace:
        case Qt::Key_Delete:
            return handleKey_Delete();
        default:
            break;
    }
    if (const auto step = StepForKey(key))
        links().grid->gotoFrame(*step);
}

// Moves the current measurement in the direction seen, however its frame is turned.
void ZELEnhancedGridView::handleKey_Arrow(int key)
{
    Grid& grid = *links().grid;
    if (theGridSequence()->currentMeasurement()) {
        if (links().gestures)
            links().gestures->moveSelectedGraphicsBy(
                grid.U_ReverseGeomTransformDeltaPoint(DeltaOfArrow(key), 0));
        return;
    }
    grid.gotoFrame(StepForArrow(key, theGridSequence()->viewGridSetupID() != 0));
}

void ZELEnhancedGridView::handleKey_Space()
{
    CineStage& cine = links().grid->host()->cineStage();
    if (links().grid->cineModeIsON())
        cine.stopCine(*links().grid);
    else if (cine.isAvailable() && theGridSequence()->canPlayCine())
        cine.startCine(*links().grid, 0);
}

void ZELEnhancedGridView::handleKey_Delete()
{
    if (links().tools->currentTool() == kToolCrop && theGridSequence()->hasCrops())
        links().actions->selectWholeImage();
    else
        links().grid->deleteSelectedMeasurement();
}

// From frame to frame: where keys lead, what is kept visible, what is decoded ahead.
#include "app/grid/Localizers.h"
#include "app/grid/ZELSequenceGridViewModelController.h"
#include "platform/NotificationCenter.h"

#include <algorithm>

namespace {

constexpr std::int32_t kFramesAhead = 4;

}  // namespace

CellChangeType ChangeTypeOf(FrameStep step)
{
    switch (step) {
        case FrameStep::First:
        case FrameStep::Last:
            return CellChangeType::Jump;
        case FrameStep::PreviousRow:
        case FrameStep::NextRow:
            return CellChangeType::Row;
        case FrameStep::PreviousPage:
        case FrameStep::NextPage:
            return CellChangeType::Page;
        case FrameStep::Previous:
        case FrameStep::Next:
            break;
    }
    return CellChangeType::Step;
}

std::int32_t FrameAfterStep(FrameStep step, std::int32_t current, std::int32_t total, int rows,
                            int columns)
{
    const bool back = step == FrameStep::First || step == FrameStep::Previous ||
                      step == FrameStep::PreviousRow || step == FrameStep::PreviousPage;
    if (back ? current <= 1 : current >= total)
        return current;
    std::int64_t by = total;  // to the end
    if (ChangeTypeOf(step) == CellChangeType::Step)
        by = 1;
    else if (ChangeTypeOf(step) == CellChangeType::Row)
        by = columns;
    else if (ChangeTypeOf(step) == CellChangeType::Page)
        by = std::int64_t{rows} * columns;
    return static_cast<std::int32_t>(
        std::clamp<std::int64_t>(back ? current - by : current + by, 1, total));
}

void ZELSequenceGridViewModelController::U_SendNotificationForNewFrame(std::int32_t frame,
                                                                       CellChangeType type)
{
    NotificationCenter::Default().Post(
        kNoteFrameShouldChange, gridView,
        {{QLatin1String(kKeyNewCellIndex), frame - 1},
         {QLatin1String(kKeyCellChangeType), static_cast<int>(type)}});
}

void ZELSequenceGridViewModelController::gotoFrame(FrameStep step)
{
    if (!_currZELSequence)
        return;
    const std::int32_t current = _currZELSequence->currentFrame();
    const std::int32_t frame = FrameAfterStep(step, current, _currZELSequence->totalFrames(),
                                              _viewport.gridRows(), _viewport.gridCols());
    if (frame != current)
        U_SendNotificationForNewFrame(frame, ChangeTypeOf(step));
}

void ZELSequenceGridViewModelController::U_ScrollGridToPhotoWithIndex(int index)
{
    const bool moved = _viewport.scrollToPhoto(index);
    if (!gridView)
        return;
    if (moved)
        gridView->viewportDidChange();
    gridView->setNeedsDisplay();
}

void ZELSequenceGridViewModelController::revealCurrentCell()
{
    const int index = resolved(0) - 1;
    if (index >= 0 && !_viewport.isCellVisible(index, false))
        U_ScrollGridToPhotoWithIndex(index);
}

void ZELSequenceGridViewModelController::currentFrameDidChange()
{
    const std::int32_t frame = resolved(0);
    if (frame != _frameBefore && _frameBefore > 0 && !_printingGrid)
        prepareNextFrames(frame > _frameBefore ? 1 : -1);
    _frameBefore = frame;
}

// What shows after the next step comes first; in a matrix that is the row beyond what is seen.
void ZELSequenceGridViewModelController::prepareNextFrames(std::int32_t direction)
{
    const int columns = std::max(_viewport.gridCols(), 1);
    const std::int32_t seen = _viewport.gridRows() * columns;
    std::int32_t first = resolved(0) + direction;
    if (seen > 1) {
        // The frame is announced before the grid scrolls to it.
        const std::int32_t top = _viewport.firstRowShowing(resolved(0) - 1) * columns + 1;
        first = direction > 0 ? top + seen : top - 1;
    }
    std::vector<std::int32_t> frames;
    for (std::int32_t i = 0; i < std::max(kFramesAhead, std::int32_t{columns}); ++i) {
        const std::int32_t frame = first + i * direction;
        if (frame >= 1 && frame <= photoCountForPhotoView())
            frames.push_back(frame);
    }
    _pictures.prepare(frames);
}

// ---- reference lines ----

std::vector<QLineF> ZELSequenceGridViewModelController::localizersForFrame(std::int32_t frame)
{
    ZELSequenceGridViewModelController* active =
        _host ? _host->activeSequenceGridController() : nullptr;
    if (!active || active == this)
        return {};
    return LocalizerLinesOf(*active, *this, resolved(frame));
}

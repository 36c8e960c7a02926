#include "app/views/ZELSequenceGridView.h"

#include "app/tools/ZELToolsController.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QWheelEvent>
#include <algorithm>
#include <utility>

namespace {

TrackerEvent TrackerEventOf(const QMouseEvent& event)
{
    return {event.position(), event.modifiers().testFlag(Qt::ShiftModifier),
            event.modifiers().testFlag(Qt::AltModifier)};
}

MouseButton ButtonOf(const QMouseEvent& event)
{
    if (event.button() == Qt::MiddleButton)
        return MouseButton::Middle;
    return event.button() == Qt::RightButton ? MouseButton::Right : MouseButton::Left;
}

// Up and Down step a row of a matrix.
std::optional<FrameStep> StepForKey(int key, bool singleFrame)
{
    switch (key) {
        case Qt::Key_Left:
            return FrameStep::Previous;
        case Qt::Key_Right:
            return FrameStep::Next;
        case Qt::Key_Up:
            return singleFrame ? FrameStep::Previous : FrameStep::PreviousRow;
        case Qt::Key_Down:
            return singleFrame ? FrameStep::Next : FrameStep::NextRow;
        case Qt::Key_PageUp:
            return FrameStep::PreviousPage;
        case Qt::Key_PageDown:
            return FrameStep::NextPage;
        case Qt::Key_Home:
            return FrameStep::First;
        case Qt::Key_End:
            return FrameStep::Last;
        default:
            return std::nullopt;
    }
}

}  // namespace

ZELSequenceGridView::ZELSequenceGridView(const Links& links, QWidget* parent)
    : MUPhotoView(parent), _links(links), _mouse(links.grid, links.tools)
{
    _links.grid->setGridView(this);
}

ZELSequenceGridView::~ZELSequenceGridView()
{
    if (_links.grid->view() == this)
        _links.grid->setGridView(nullptr);
}

void ZELSequenceGridView::setLook(const GridLook& look)
{
    _look = look;
    setNeedsDisplay();
}

void ZELSequenceGridView::drawRect(QPainter* painter, const QRectF& dirty)
{
    DrawGrid(painter, *_links.grid, dirty, _look);
}

void ZELSequenceGridView::setNeedsDisplayForFrame(std::int32_t frame)
{
    const QRectF cell = _links.grid->viewport().cellRect(_links.grid->resolved(frame) - 1);
    viewport()->update(cell.toAlignedRect());
}

GridViewport* ZELSequenceGridView::cells() { return &_links.grid->viewport(); }

void ZELSequenceGridView::contentDidResize(const QSizeF& size, double pixelRatio)
{
    _links.grid->U_UpdateGridSizeAndFrame(size, pixelRatio);
}

void ZELSequenceGridView::boundsDidChange()
{
    _links.navigation->gridViewBoundsDidChange(*_links.grid);
}

// A frame of a grid that shows one, a row of a matrix.
void ZELSequenceGridView::wheelBy(int steps)
{
    Grid& grid = *_links.grid;
    if (grid.inSingleFrameMode()) {
        const std::int32_t current = grid.resolved(0);
        const std::int32_t frame =
            std::clamp(current - steps, 1, std::max(grid.photoCountForPhotoView(), 1));
        if (frame != current && grid.photoCountForPhotoView() > 0)
            grid.U_SendNotificationForNewFrame(frame, CellChangeType::Step);
        return;
    }
    if (grid.viewport().setFirstRow(grid.viewport().firstRow() - steps)) {
        syncScrollBar();
        boundsDidChange();
        setNeedsDisplay();
    }
}

void ZELSequenceGridView::wheelEvent(QWheelEvent* event)
{
    if (!event->modifiers().testFlag(Qt::ControlModifier))
        return MUPhotoView::wheelEvent(event);
    zoomAbout(event->position(), event->angleDelta().y() > 0 ? 1 : -1);
    event->accept();
}

// The frame's point under the pointer stays there.
void ZELSequenceGridView::zoomAbout(const QPointF& point, int steps)
{
    Grid& grid = *_links.grid;
    const auto cell = grid.viewport().photoIndexForPoint(point);
    if (!cell || !grid.currZELSequence() || grid.cineModeIsON())
        return;
    const std::int32_t frame = *cell + 1;
    const QPointF held = grid.viewPointToFramePoint(point, frame);
    if (steps > 0)
        _links.actions->nextZoomValue(grid, frame);
    else
        _links.actions->prevZoomValue(grid, frame);
    if (frame != grid.currZELSequence()->currentFrame())
        return;
    const QPointF off = point - grid.framePointToViewPoint(held, frame);
    const QPointF limit = grid.U_GetViewScrollLimitsForViewFrame(frame);
    const QPointF scroll = grid.currZELSequence()->scrollForFrame(frame) +
                           grid.U_ReverseGeomTransformDeltaScroll(off, frame);
    grid.currZELSequence()->changeScrollPositionForAllFrames(
        false, {std::clamp(scroll.x(), -limit.x(), limit.x()),
                std::clamp(scroll.y(), -limit.y(), limit.y())});
    setNeedsDisplayForFrame(frame);
}

void ZELSequenceGridView::keyPressEvent(QKeyEvent* event)
{
    const bool command = event->modifiers().testFlag(Qt::ControlModifier);
    const int key = event->key();
    if (command && (key == Qt::Key_Left || key == Qt::Key_Right)) {
        if (key == Qt::Key_Left)
            _links.actions->gotoPreviousSequence(*_links.grid);
        else
            _links.actions->gotoNextSequence(*_links.grid);
        return;
    }
    const bool plain = !(event->modifiers() & ~(Qt::KeypadModifier | Qt::ShiftModifier));
    const auto step = plain ? StepForKey(key, _links.grid->inSingleFrameMode()) : std::nullopt;
    if (step)
        _links.grid->gotoFrame(*step);
    else if (plain && (key == Qt::Key_Delete || key == Qt::Key_Backspace))
        _links.grid->deleteSelectedMeasurement();
    else
        event->ignore();
}

void ZELSequenceGridView::press(const QMouseEvent& event, bool doubleClick)
{
    mouseDownPoint = event.position();
    GridPress press;
    press.point = event.position();
    press.button = ButtonOf(event);
    press.doubleClick = doubleClick;
    press.gaveFocus = std::exchange(isActivateClick, false);
    press.shift = event.modifiers().testFlag(Qt::ShiftModifier);
    press.option = event.modifiers().testFlag(Qt::AltModifier);
    press.command = event.modifiers().testFlag(Qt::ControlModifier);
    _mouse.press(press);
    potentialDragDrop = _mouse.potentialDragDrop();
}

void ZELSequenceGridView::mousePressEvent(QMouseEvent* event) { press(*event, false); }
void ZELSequenceGridView::mouseDoubleClickEvent(QMouseEvent* event) { press(*event, true); }

void ZELSequenceGridView::mouseMoveEvent(QMouseEvent* event)
{
    _mouse.drag(TrackerEventOf(*event));
}

void ZELSequenceGridView::mouseReleaseEvent(QMouseEvent* event)
{
    static_cast<void>(_mouse.release(TrackerEventOf(*event)));
}

void ZELSequenceGridView::focusInEvent(QFocusEvent* event)
{
    MUPhotoView::focusInEvent(event);
    isActivateClick = event->reason() == Qt::MouseFocusReason;
    emit tookFocus();
}

#include "app/views/ZELSequenceGridView.h"

#include "app/tools/OptionKey.h"
#include "app/tools/ZELToolsController.h"
#include "app/views/CursorPictures.h"
#include "platform/NotificationCenter.h"

#include <QCoreApplication>
#include <QMouseEvent>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>
#include <utility>

namespace {

constexpr double kSequenceDrag = 10;  // points in either axis

TrackerEvent TrackerEventOf(const QMouseEvent& event)
{
    return {event.position(), event.modifiers().testFlag(Qt::ShiftModifier),
            HasOption(event.modifiers())};
}

MouseButton ButtonOf(const QMouseEvent& event)
{
    if (event.button() == Qt::MiddleButton)
        return MouseButton::Middle;
    return event.button() == Qt::RightButton ? MouseButton::Right : MouseButton::Left;
}

// Drawn once for all grids of the program.
CursorPictures& Pictures()
{
    static CursorPictures* pictures = nullptr;
    if (!pictures) {
        pictures = new CursorPictures;
        qAddPostRoutine([] { delete std::exchange(pictures, nullptr); });
    }
    return *pictures;
}

}  // namespace

ZELSequenceGridView::ZELSequenceGridView(const Links& links, QWidget* parent)
    : MUPhotoView(parent), _links(links), _mouse(links.grid, links.tools, links.gestures)
{
    setFocusPolicy(Qt::TabFocus);  // a click asks first
    viewport()->setMouseTracking(true);
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

void ZELSequenceGridView::press(const QMouseEvent& event, bool doubleClick)
{
    mouseDownPoint = event.position();
    if (!isActiveWindow() && !acceptsFirstMouse())
        return activateWindow();
    isActivateClick = !hasFocus() && acceptsFirstResponder();
    if (isActivateClick)
        becomeFirstResponder();
    GridPress press;
    press.point = event.position();
    press.button = ButtonOf(event);
    press.doubleClick = doubleClick;
    press.gaveFocus = std::exchange(isActivateClick, false);
    press.shift = event.modifiers().testFlag(Qt::ShiftModifier);
    press.option = HasOption(event.modifiers());
    press.command = event.modifiers().testFlag(Qt::ControlModifier);
    _mouse.press(press);
    potentialDragDrop = _mouse.potentialDragDrop();
}

void ZELSequenceGridView::mousePressEvent(QMouseEvent* event) { press(*event, false); }
void ZELSequenceGridView::mouseDoubleClickEvent(QMouseEvent* event) { press(*event, true); }

void ZELSequenceGridView::mouseMoveEvent(QMouseEvent* event)
{
    if (event->buttons() == Qt::NoButton)
        return updateCursor(event->position());
    if (!potentialDragDrop)
        return _mouse.drag(TrackerEventOf(*event));
    const QPointF moved = event->position() - mouseDownPoint;
    if (std::abs(moved.x()) < kSequenceDrag && std::abs(moved.y()) < kSequenceDrag)
        return;
    potentialDragDrop = false;
    dragSequence();
}

void ZELSequenceGridView::mouseReleaseEvent(QMouseEvent* event)
{
    potentialDragDrop = false;
    if (_mouse.release(TrackerEventOf(*event)))
        rightClicked(event->position());
}

// ---- focus ----

ZELSequenceProxy* ZELSequenceGridView::theGridSequence() const
{
    return _links.grid->currZELSequence().get();
}

bool ZELSequenceGridView::acceptsFirstResponder() const
{
    return !_links.grid->cineModeIsON() && _links.grid->photoCountForPhotoView() > 0;
}

bool ZELSequenceGridView::acceptsFirstMouse() const
{
    return !theGridSequence() || !theGridSequence()->currentMeasurement();
}

void ZELSequenceGridView::becomeFirstResponder()
{
    if (!acceptsFirstResponder())
        return;
    if (!hasFocus())
        setFocus(Qt::MouseFocusReason);
    if (!hasFocus())  // its window is not the active one
        tellOfFocus();
}

void ZELSequenceGridView::tellOfFocus()
{
    if (!_links.grid->windowIsReady())
        return;
    const auto pointer = [](const void* p) { return QVariant::fromValue(const_cast<void*>(p)); };
    NotificationCenter::Default().Post(
        kNoteGridDidChange, static_cast<GridSurface*>(this),
        {{QLatin1String(kKeyNewGridController), pointer(_links.grid)},
         {QLatin1String(kKeyWindow), pointer(_links.grid->host()->windowKey())}});
}

void ZELSequenceGridView::focusInEvent(QFocusEvent* event)
{
    MUPhotoView::focusInEvent(event);
    if (acceptsFirstResponder())
        tellOfFocus();
}

// A menu, or another window in front, ends nothing.
void ZELSequenceGridView::focusOutEvent(QFocusEvent* event)
{
    MUPhotoView::focusOutEvent(event);
    if (event->reason() == Qt::PopupFocusReason || event->reason() == Qt::ActiveWindowFocusReason)
        return;
    closePendingMeasurements(true);
    isActivateClick = false;
    setNeedsDisplay();
}

void ZELSequenceGridView::closePendingMeasurements(bool close)
{
    if (_links.gestures)
        _links.gestures->closePendingMeasurements(close);
}

void ZELSequenceGridView::stopEditing()
{
    if (_links.gestures)
        _links.gestures->stopEditing();
}

// ---- cursor ----

void ZELSequenceGridView::updateTrackingAreas()
{
    const QPointF point = viewport()->mapFromGlobal(QPointF(QCursor::pos()));
    if (viewport()->underMouse())
        updateCursor(point);
}

// The tool's over the current frame's picture in the active grid, the arrow elsewhere.
void ZELSequenceGridView::updateCursor(const QPointF& point)
{
    const Grid& grid = *_links.grid;
    const bool overFrame = grid.isTheActiveGrid() && !grid.cineModeIsON() && theGridSequence() &&
                           grid.geometryForFrame(0).shownRect().contains(point);
    if (overFrame)
        viewport()->setCursor(Pictures().cursorFor(
            cursorUnderPoint(grid, _links.tools->currentTool(), point), devicePixelRatioF()));
    else
        viewport()->unsetCursor();
}

void ZELSequenceGridView::leaveEvent(QEvent* event)
{
    MUPhotoView::leaveEvent(event);
    viewport()->unsetCursor();
}

#include "app/views/ZELDraggingSequenceGridView.h"

#include "app/views/MenuFromEntries.h"
#include "app/views/SequenceMime.h"
#include "app/views/Sheets.h"
#include "platform/NotificationCenter.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QDialog>
#include <QDrag>
#include <QMenu>
#include <QPainter>
#include <algorithm>

namespace {

constexpr double kHighlightWidth = 5;  // points
constexpr double kDragOpacity = 0.5;

QVariant Pointer(const void* pointer) { return QVariant::fromValue(const_cast<void*>(pointer)); }

}  // namespace

ZELDraggingSequenceGridView::ZELDraggingSequenceGridView(const Links& links, QWidget* parent)
    : ZELEnhancedGridView(links, parent)
{
    setAcceptDrops(true);
    viewport()->setAcceptDrops(true);
}

void ZELDraggingSequenceGridView::drawRect(QPainter* painter, const QRectF& dirty)
{
    ZELEnhancedGridView::drawRect(painter, dirty);
    if (!_highlight)
        return;
    const double inset = kHighlightWidth / 2;
    painter->setPen(QPen(Qt::yellow, kHighlightWidth, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    painter->setBrush(Qt::NoBrush);
    painter->drawRect(QRectF(viewport()->rect()).adjusted(inset, inset, -inset, -inset));
}

// ---- menus ----

std::unique_ptr<QMenu> ZELDraggingSequenceGridView::menuForPoint(const QPointF& point)
{
    Grid& grid = sequenceGridController();
    if (HasSheet(*window()))
        return nullptr;
    _contextual = contextualTarget(grid, point);
    const auto menu = menuForTarget(grid, *grid.host(), *links().actions, _contextual);
    return menu ? NewMenu(*menu, window()) : nullptr;
}

void ZELDraggingSequenceGridView::rightClicked(const QPointF& point)
{
    std::unique_ptr<QMenu> menu = menuForPoint(point);
    if (!menu)
        return;
    // What it does may end this view, so it doesn't run in here.
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu.release()->popup(viewport()->mapToGlobal(point.toPoint()));
}

// The mouse's come with the release of its button; the keyboard's is for the current cell.
void ZELDraggingSequenceGridView::contextMenuEvent(QContextMenuEvent* event)
{
    event->accept();
    if (event->reason() == QContextMenuEvent::Mouse)
        return;
    const Grid& grid = sequenceGridController();
    rightClicked(grid.viewport().cellRect(grid.resolved(0) - 1).center());
}

// ---- a sequence dragged out ----

QPixmap ZELDraggingSequenceGridView::dragImageWithAlpha()
{
    const QPixmap shown = viewport()->grab();
    QPixmap image(shown.size());
    image.setDevicePixelRatio(shown.devicePixelRatio());
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setOpacity(kDragOpacity);
    painter.drawPixmap(0, 0, shown);
    return image;
}

void ZELDraggingSequenceGridView::dragSequence()
{
    const std::shared_ptr<ZELSequenceProxy>& shown = sequenceGridController().currZELSequence();
    if (!shown || !shown->theSequence())
        return;
    auto* drag = new QDrag(this);  // goes by itself
    drag->setMimeData(new SequenceMime(kSequencePasteboardType, shown->copyWithZone(),
                                       sequenceGridController().host()->windowKey()));
    drag->setPixmap(dragImageWithAlpha());
    drag->setHotSpot(mouseDownPoint.toPoint());
    drag->exec(Qt::CopyAction);
}

// ---- a sequence dropped ----

bool ZELDraggingSequenceGridView::accepts(const SequenceMime* mime) const
{
    return mime && mime->proxy() && mime->proxy()->theSequence() &&
           mime->window() == sequenceGridController().host()->windowKey() &&
           mime->proxy()->theSequence() != sequenceGridController().curr_dkSequence();
}

void ZELDraggingSequenceGridView::setHighlight(bool on)
{
    if (on == _highlight)
        return;
    _highlight = on;
    setNeedsDisplay();
}

// Files, and what nobody here takes, go on to the window.
void ZELDraggingSequenceGridView::dragEnterEvent(QDragEnterEvent* event)
{
    const bool accepted = accepts(SequenceMime::Of(event->mimeData()));
    event->setAccepted(accepted);
    setHighlight(accepted);
}

void ZELDraggingSequenceGridView::dragMoveEvent(QDragMoveEvent* event)
{
    event->setAccepted(_highlight);
}

void ZELDraggingSequenceGridView::dragLeaveEvent(QDragLeaveEvent* event)
{
    event->accept();
    setHighlight(false);
}

void ZELDraggingSequenceGridView::dropEvent(QDropEvent* event)
{
    const SequenceMime* mime = SequenceMime::Of(event->mimeData());
    const bool accepted = accepts(mime);
    setHighlight(false);
    event->setAccepted(accepted);
    if (!accepted)
        return;
    if (mime->isFromGrid())
        dropSequence(mime->proxy());
    else
        dropNode(mime->proxy());
}

void ZELDraggingSequenceGridView::dropNode(const std::shared_ptr<ZELSequenceProxy>& proxy)
{
    Grid& grid = sequenceGridController();
    GridHost& host = *grid.host();
    dk_SequenceBase* sequence = proxy->theSequence();
    host.U_ActivateSequence(host.proxyOf(sequence), grid);
    if (grid.isTheActiveGrid())
        NotificationCenter::Default().Post(
            kNoteGridDidChangeSequence, host.windowKey(),
            {{QLatin1String(kKeyNewDkSequence), Pointer(sequence)},
             {QLatin1String(kKeyNewSequence), QVariant::fromValue(host.proxyOf(sequence))},
             {QLatin1String(kKeyWindow), Pointer(host.windowKey())}});
}

// Both grids exchange what they show; one that shows nothing just takes it.
void ZELDraggingSequenceGridView::dropSequence(const std::shared_ptr<ZELSequenceProxy>& proxy)
{
    Grid& grid = sequenceGridController();
    GridHost& host = *grid.host();
    host.U_ActivateSequence(host.proxyOf(proxy->theSequence()), grid);
    NotificationCenter::Default().Post(
        kNoteMeasurementChange, static_cast<GridSurface*>(this),
        {{QLatin1String(kKeyMeasurementAction),
          static_cast<int>(MeasurementAction::SequenceExchanged)},
         {QLatin1String(kKeyTargetFrame), proxy->currentFrame()},
         {QLatin1String(kKeyNewSequence), QVariant::fromValue(proxy)}});
}

#include "app/views/MUPhotoView.h"

#include <QCoreApplication>
#include <QPaintEvent>
#include <QPainter>
#include <QScrollBar>
#include <QWheelEvent>
#include <utility>

namespace {

constexpr int kLiveResizePause_ms = 120;  // sizes that come closer together are one resizing

}  // namespace

MUPhotoView::MUPhotoView(QWidget* parent) : QAbstractScrollArea(parent)
{
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::StrongFocus);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    viewport()->setAttribute(Qt::WA_OpaquePaintEvent);
    verticalScrollBar()->installEventFilter(this);
    _liveResize.setSingleShot(true);
    _liveResize.setInterval(kLiveResizePause_ms);
    connect(&_liveResize, &QTimer::timeout, viewport(), qOverload<>(&QWidget::update));
}

void MUPhotoView::syncScrollBar()
{
    const GridViewport* shown = cells();
    QScrollBar* bar = verticalScrollBar();
    // Its signals go on: with them it shows and hides.
    const bool was = std::exchange(_syncing, true);
    bar->setPageStep(shown ? shown->gridRows() : 1);
    bar->setRange(0, shown ? shown->matrix().lastFirstRow() : 0);
    bar->setValue(shown ? shown->firstRow() : 0);
    _syncing = was;
    // Within a resizing the base class doesn't look at the range.
    if (bar->isVisibleTo(this) != (bar->maximum() > bar->minimum()))
        QMetaObject::invokeMethod(this, &MUPhotoView::layOutScrollBar, Qt::QueuedConnection);
}

void MUPhotoView::layOutScrollBar()
{
    QResizeEvent event(size(), size());
    QCoreApplication::sendEvent(this, &event);
}

bool MUPhotoView::eventFilter(QObject* watched, QEvent* event)
{
    // A wheel turn over the scroll bar pages as one over the cells does.
    if (watched == verticalScrollBar() && event->type() == QEvent::Wheel) {
        wheelEvent(static_cast<QWheelEvent*>(event));
        return true;
    }
    return QAbstractScrollArea::eventFilter(watched, event);
}

void MUPhotoView::setShowsCells(bool shows)
{
    _showsCells = shows;
    viewport()->update();
}

void MUPhotoView::paintEvent(QPaintEvent* event)
{
    if (!_showsCells) {
        QPainter(viewport()).fillRect(event->rect(), Qt::black);
        return;
    }
    // The window may have come to a screen of another scale factor.
    const GridViewport* shown = cells();
    if (shown && shown->pixelRatio() != viewport()->devicePixelRatioF())
        contentDidResize(viewport()->size(), viewport()->devicePixelRatioF());
    QPainter painter(viewport());
    drawRect(&painter, event->rect());
    painter.end();
    emit cellsPainted();
}

void MUPhotoView::resizeEvent(QResizeEvent* event)
{
    QAbstractScrollArea::resizeEvent(event);
    contentDidResize(viewport()->size(), viewport()->devicePixelRatioF());
    syncScrollBar();
    _liveResize.start();
}

void MUPhotoView::wheelEvent(QWheelEvent* event)
{
    if (event->phase() == Qt::ScrollBegin)
        _wheel.reset();
    if (const int steps = _wheel.add(event->angleDelta().y()))
        wheelBy(steps);
    event->accept();
}

void MUPhotoView::scrollContentsBy(int /*dx*/, int /*dy*/)
{
    if (_syncing)
        return;
    if (GridViewport* shown = cells(); shown && shown->setFirstRow(verticalScrollBar()->value()))
        boundsDidChange();
    viewport()->update();
}

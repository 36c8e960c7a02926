#include "app/views/MUPhotoView.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QScrollBar>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>
#include <limits>

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

void MUPhotoView::setDelegate(MUPhotoViewDelegate* delegate)
{
    _delegate = delegate;
    updateGrid();
    viewport()->update();
}

void MUPhotoView::updatePhotoCount()
{
    const MUPhotoMatrix::IndexRange shown{firstVisibleIndex(), _visibleRows * _visibleColumns};
    const int before = _matrix.photoCount();
    updateGrid();
    // Photos that came behind the visible ones change nothing that shows.
    if (std::min(before, _matrix.photoCount()) < shown.first + shown.count)
        viewport()->update();
}

void MUPhotoView::setLook(const MUPhotoViewLook& look)
{
    _look = look;
    _matrix.setSpacing(look.photoHorizontalSpacing, look.photoVerticalSpacing);
    updateGrid();
    viewport()->update();
}

void MUPhotoView::setVisibleCells(int rows, int columns)
{
    const int index = firstVisibleIndex();
    _visibleRows = std::max(1, rows);
    _visibleColumns = std::max(1, columns);
    updateGrid();
    if (index < _matrix.photoCount())
        scrollToPhotoAtIndex(index);
    viewport()->update();
}

void MUPhotoView::setSelectedPhotoIndex(std::optional<int> index)
{
    if (_selectedPhotoIndex)
        setNeedsDisplayForIndex(*_selectedPhotoIndex);
    _selectedPhotoIndex = index;
    if (_selectedPhotoIndex)
        setNeedsDisplayForIndex(*_selectedPhotoIndex);
}

void MUPhotoView::updateGrid()
{
    const QSize content = viewport()->size();
    _matrix.updateGridSize(XPoint{double(content.height()), double(content.width())}, _visibleRows,
                           _visibleColumns, _delegate ? _delegate->photoCountForPhotoView() : 0);
    QScrollBar* bar = verticalScrollBar();
    bar->setPageStep(_visibleRows);
    bar->setRange(0, _matrix.lastFirstRow());
}

QRectF MUPhotoView::cellContentRect() const
{
    const CGSize cell = _matrix.gridCellSize();
    const double inset = _look.selectionBorderWidth;
    return {inset, inset, std::max(0.0, cell.width - 2 * inset),
            std::max(0.0, cell.height - 2 * inset)};
}

int MUPhotoView::firstVisibleIndex() const
{
    return verticalScrollBar()->value() * _matrix.columns();
}

QPointF MUPhotoView::viewPointFor(const QPointF& viewportPoint) const
{
    return viewportPoint + QPointF(0, _matrix.topOfRow(verticalScrollBar()->value()));
}

void MUPhotoView::scrollToPhotoAtIndex(int index)
{
    QScrollBar* bar = verticalScrollBar();
    bar->setValue(_matrix.firstRowShowing(index, bar->value()));
}

void MUPhotoView::setNeedsDisplayForIndex(int index)
{
    const double pixelRatio = viewport()->devicePixelRatioF();
    const QRect device = deviceRectForIndex(index, pixelRatio);
    const QRectF cell(QPointF(device.topLeft()) / pixelRatio, QSizeF(device.size()) / pixelRatio);
    viewport()->update(cell.toAlignedRect());
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

void MUPhotoView::resizeEvent(QResizeEvent* event)
{
    QAbstractScrollArea::resizeEvent(event);
    updateGrid();
    _liveResize.start();
}

void MUPhotoView::wheelEvent(QWheelEvent* event)
{
    if (event->phase() == Qt::ScrollBegin)
        _wheel.reset();
    QScrollBar* bar = verticalScrollBar();
    bar->setValue(bar->value() - _wheel.add(event->angleDelta().y()));
    event->accept();
}

void MUPhotoView::keyPressEvent(QKeyEvent* event) { event->ignore(); }

void MUPhotoView::mousePressEvent(QMouseEvent* event)
{
    mouseDownPoint = viewPointFor(event->position());
    potentialDragDrop = false;
}

void MUPhotoView::scrollContentsBy(int /*dx*/, int /*dy*/)
{
    viewport()->update();
    emit firstVisibleIndexChanged(firstVisibleIndex());
}

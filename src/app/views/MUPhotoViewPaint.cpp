// The painting of a photo view. Photos are placed in whole device pixels, so that one that comes in
// its final size is copied as it is, at any pixel ratio.
#include "app/views/MUPhotoView.h"
#include "util/Log.h"

#include <QIcon>
#include <QPaintEvent>
#include <QPainter>
#include <QScrollBar>
#include <cmath>
#include <string>

namespace {

constexpr int kWarningSide = 48;  // view points

QRectF PointsFor(const QRect& device, double pixelRatio)
{
    return {QPointF(device.topLeft()) / pixelRatio, QSizeF(device.size()) / pixelRatio};
}

int Rounded(double value) { return static_cast<int>(std::lround(value)); }

// `size` device pixels in the middle of `cell`, both axes cut to it.
QRect CentredIn(const QRect& cell, const QSize& size)
{
    const XRect around{double(cell.y()), double(cell.x()), double(cell.y() + cell.height()),
                       double(cell.x() + cell.width())};
    const XRect c = CropAndCenterRect(XPoint{double(size.height()), double(size.width())}, around);
    return {static_cast<int>(std::floor(c.left)), static_cast<int>(std::floor(c.top)),
            Rounded(c.right - c.left), Rounded(c.bottom - c.top)};
}

// The middle of the image that `shown` of `whole` device pixels stand for.
QRectF ShownPart(const QSize& image, const QSize& whole, const QSize& shown)
{
    const double width = double(image.width()) * shown.width() / whole.width();
    const double height = double(image.height()) * shown.height() / whole.height();
    return {(image.width() - width) / 2, (image.height() - height) / 2, width, height};
}

void DrawWarning(QPainter* painter, const QRectF& cell)
{
    QRect place(0, 0, kWarningSide, kWarningSide);
    place.moveCenter(cell.center().toPoint());
    QIcon(QStringLiteral(":/icons/warning.svg")).paint(painter, place);
}

}  // namespace

void MUPhotoView::paintEvent(QPaintEvent* event)
{
    QPainter painter(viewport());
    drawRect(&painter, event->rect(), viewport()->devicePixelRatioF());
    painter.end();
    emit cellsPainted();
}

void MUPhotoView::drawRect(QPainter* painter, const QRectF& dirty, double pixelRatio)
{
    painter->fillRect(dirty, _look.backgroundColor);
    // The range leaves a point out at the far edges, and cells snap to pixels by up to half a one:
    // asking for a little more leaves no sliver unpainted.
    const QRectF asked = dirty.adjusted(-1, -1, 2, 2);
    const QPointF from = viewPointFor(asked.topLeft()), to = viewPointFor(asked.bottomRight());
    const auto range = _matrix.photoIndexRangeForRect({from.y(), from.x(), to.y(), to.x()});
    for (int index = range.first; index < range.first + range.count; ++index) {
        const QRect cell = deviceRectForIndex(index, pixelRatio);
        if (PointsFor(cell, pixelRatio).intersects(dirty))
            drawCell(painter, index, cell, pixelRatio);
    }
}

QRect MUPhotoView::deviceRectForIndex(int index, double pixelRatio) const
{
    const XRect r = _matrix.gridRectForIndex(index);
    const double scrolled = _matrix.topOfRow(verticalScrollBar()->value());
    const QPoint topLeft(Rounded(r.left * pixelRatio), Rounded((r.top - scrolled) * pixelRatio));
    const QPoint end(Rounded(r.right * pixelRatio), Rounded((r.bottom - scrolled) * pixelRatio));
    return {topLeft, QSize(end.x() - topLeft.x(), end.y() - topLeft.y())};
}

void MUPhotoView::drawCell(QPainter* painter, int index, const QRect& cell, double pixelRatio)
{
    const QRectF cellPoints = PointsFor(cell, pixelRatio);
    painter->save();
    painter->setClipRect(cellPoints, Qt::IntersectClip);
    const MUPhoto photo = photoFor(index, pixelRatio);
    if (photo.isNull()) {
        if (index != _loggedIndex)  // not again at each painting
            LogLine("drawRect ERROR: photo == nil for frame: " + std::to_string(index + 1));
        _loggedIndex = index;
        DrawWarning(painter, cellPoints);
    } else {
        const QRect image = drawPhoto(painter, photo, cell, pixelRatio);
        painter->save();
        _delegate->drawOverPhotoAtIndex(index, painter, cellPoints, PointsFor(image, pixelRatio));
        painter->restore();
    }
    drawBorders(painter, index, cellPoints);
    painter->restore();
}

MUPhoto MUPhotoView::photoFor(int index, double pixelRatio)
{
    const QSizeF content = cellContentRect().size();
    if (_liveResize.isActive()) {
        MUPhoto fast = _delegate->fastPhotoAtIndex(index, content);
        if (!fast.isNull())
            return fast;
    }
    return _delegate->photoAtIndex(index, content, pixelRatio);
}

QRect MUPhotoView::drawPhoto(QPainter* painter, const MUPhoto& photo, const QRect& cell,
                             double pixelRatio) const
{
    const QSize whole(std::max(1, Rounded(photo.size.width() * pixelRatio)),
                      std::max(1, Rounded(photo.size.height() * pixelRatio)));
    const QRect place = CentredIn(cell, whole);
    painter->save();
    painter->scale(1 / pixelRatio, 1 / pixelRatio);
    painter->setRenderHint(QPainter::SmoothPixmapTransform, _look.useHighQualityResize);
    painter->drawImage(QRectF(place), photo.image,
                       ShownPart(photo.image.size(), whole, place.size()));
    painter->restore();
    return place;
}

void MUPhotoView::drawBorders(QPainter* painter, int index, const QRectF& cell) const
{
    const auto stroke = [&](const QColor& color, double width) {
        const double inset = width / 2;
        painter->setPen(QPen(color, width, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
        painter->drawRect(cell.adjusted(inset, inset, -inset, -inset));
    };
    if (_look.useOutlineBorder)
        stroke(_look.borderOutlineColor, 1.0);
    if (_look.useBorderSelection && index == _selectedPhotoIndex)
        stroke(_look.selectionBorderColor, _look.selectionBorderWidth);
}

#include "app/views/CursorPictures.h"

#include <QGuiApplication>
#include <QPainter>
#include <QSvgRenderer>
#include <cmath>

namespace {

QCursor Standard(CursorKind kind)
{
    switch (kind) {
        case CursorKind::Crosshair:
            return Qt::CrossCursor;
        case CursorKind::PointingHand:
            return Qt::PointingHandCursor;
        case CursorKind::NotAllowed:
            return Qt::ForbiddenCursor;
        default:
            return Qt::ArrowCursor;
    }
}

}  // namespace

QPixmap CursorPicture(const QString& picture, int size, double pixelRatio)
{
    QSvgRenderer drawing(QStringLiteral(":/cursors/%1.svg").arg(picture));
    if (!drawing.isValid() || size <= 0 || pixelRatio <= 0)
        return {};
    const double side = size * pixelRatio;
    const int pixels = static_cast<int>(std::ceil(side));
    QPixmap drawn(pixels, pixels);
    drawn.fill(Qt::transparent);
    QPainter painter(&drawn);
    drawing.render(&painter, QRectF(0, 0, side, side));
    painter.end();
    drawn.setDevicePixelRatio(pixelRatio);
    return drawn;
}

CursorPictures::HotSpots CursorPictures::HotSpotsOfDesktop()
{
    return QGuiApplication::platformName() == QLatin1String("xcb") ? HotSpots::Pixels
                                                                   : HotSpots::Points;
}

QCursor CursorPictures::made(const GridCursor& cursor, double pixelRatio) const
{
    QPixmap picture = CursorPicture(cursor.picture, cursor.size, pixelRatio);
    if (picture.isNull())
        return Qt::ArrowCursor;
    if (fHotSpots == HotSpots::Points)
        return QCursor(picture, cursor.hotSpot.x(), cursor.hotSpot.y());
    // The pixel in the middle of that point.
    const auto pixel = [&](int point) {
        return static_cast<int>(std::floor((point + 0.5) * pixelRatio));
    };
    picture.setDevicePixelRatio(1);
    return QCursor(picture, pixel(cursor.hotSpot.x()), pixel(cursor.hotSpot.y()));
}

QCursor CursorPictures::cursorFor(const GridCursor& cursor, double pixelRatio)
{
    if (cursor.kind != CursorKind::Drawn)
        return Standard(cursor.kind);
    auto& [described, kept] = fMade[{cursor.picture, pixelRatio}];
    if (described != cursor) {
        kept = made(cursor, pixelRatio);
        described = cursor;
    }
    return kept;
}

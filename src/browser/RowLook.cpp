#include "browser/RowLook.h"

#include "Graphics/CKGraphic.h"
#include "app/draw/Badge.h"
#include "app/draw/SavedPainter.h"
#include "app/nodes/DicomElemChildNode.h"
#include "prefs/Prefs.h"

#include <QFont>
#include <QFontMetrics>
#include <QPainter>
#include <QPixmapCache>
#include <cmath>
#include <cstdlib>

namespace {

constexpr int kBadge = 13, kGap = 4, kBar = 3;
constexpr int kTitleOfIcon = 19;  // under a picture in icon-only mode

// Smoothly scaled, which costs too much for every painting.
QPixmap Scaled(const QImage& image, const QSize& size, double ratio)
{
    const QSize pixels = (QSizeF(size) * ratio).toSize().expandedTo({1, 1});
    const QString key = QStringLiteral("browser/%1/%2x%3")
                            .arg(image.cacheKey())
                            .arg(pixels.width())
                            .arg(pixels.height());
    QPixmap pixmap;
    if (!QPixmapCache::find(key, &pixmap)) {
        pixmap = QPixmap::fromImage(
            image.scaled(pixels, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
        QPixmapCache::insert(key, pixmap);
    }
    pixmap.setDevicePixelRatio(ratio);
    return pixmap;
}

// The thumbnail within its frame of bars.
void DrawIcon(QPainter* painter, const RowLook& look, const QRect& frame)
{
    const QRect inside = frame.adjusted(kBar, kBar, -kBar, -kBar);
    painter->fillRect(frame, QColor(0xD8, 0xD8, 0xD8));
    const QColor bars =
        ColorOf(look.isTarget ? prefs_Get_ActiveCellColor() : prefs_Get_InactiveCellColor());
    painter->fillRect(frame, bars);
    painter->fillRect(inside, QColor(0xD8, 0xD8, 0xD8));
    if (look.icon.isNull() || inside.isEmpty())
        return;
    const QSize size = look.icon.size().scaled(inside.size(), Qt::KeepAspectRatio);
    QRect place(QPoint(), size);
    place.moveCenter(inside.center());
    painter->drawPixmap(place.topLeft(),
                        Scaled(look.icon, size, painter->device()->devicePixelRatioF()));
}

// From the right edge of `line` to the left, the first rightmost; answers the place left over.
QRect DrawBadges(QPainter* painter, const RowLook& look, QRect line)
{
    const auto next = [&line] {
        line.setRight(line.right() - kBadge - kGap);
        return QRectF(line.right() + 1, line.top() + (line.height() - kBadge) / 2.0, kBadge,
                      kBadge);
    };
    for (auto grid = look.gridsBelow.rbegin(); grid != look.gridsBelow.rend(); ++grid)
        DrawCircleWithNumber(painter, std::abs(*grid), next(), *grid < 0, false);
    if (look.gridID != 0)
        DrawCircleWithNumber(painter, look.gridID, next(), look.isTarget, false);
    if (look.isMarked)
        DrawCircleWithNumber(painter, kBadgeMark, next(), false, false);
    return line;
}

void DrawLine(QPainter* painter, const QRect& line, const QString& text, Qt::Alignment align)
{
    painter->drawText(line, static_cast<int>(align | Qt::TextSingleLine),
                      painter->fontMetrics().elidedText(text, Qt::ElideRight, line.width()));
}

void DrawHeading(QPainter* painter, const RowLook& look, const QRect& row)
{
    const QRect line = DrawBadges(painter, look, row.adjusted(2, 0, 0, 0));
    DrawLine(painter, line, look.title, Qt::AlignLeft | Qt::AlignVCenter);
}

// Title, subtitle and size one below the other, in the middle of the row.
void DrawTexts(QPainter* painter, const RowLook& look, const QRect& place, const QColor& dimmed)
{
    const int height = painter->fontMetrics().height();
    const int lines = 1 + !look.subtitle.isEmpty() + !look.dims.isEmpty();
    QRect line(place.left(), place.top() + (place.height() - lines * height) / 2, place.width(),
               height);
    DrawLine(painter, DrawBadges(painter, look, line), look.title, Qt::AlignLeft);
    painter->setPen(dimmed);
    for (const QString* text : {&look.subtitle, &look.dims}) {
        if (text->isEmpty())
            continue;
        line.translate(0, height);
        DrawLine(painter, line, *text, Qt::AlignLeft);
    }
}

void DrawSequence(QPainter* painter, const RowLook& look, const QRect& row, const QColor& dimmed)
{
    QRect texts = row.adjusted(kGap, 0, 0, 0);
    if (IsTextOnly(look.iconSize)) {
        if (look.isTarget)
            painter->fillRect(QRect(row.left(), row.top() + 1, kBar, row.height() - 2),
                              ColorOf(prefs_Get_ActiveCellColor()));
        texts.setLeft(texts.left() + kBar);
    } else {
        const QRect frame(row.left(), row.top() + 2, look.iconSize, row.height() - 4);
        DrawIcon(painter, look, frame);
        texts.setLeft(frame.right() + 1 + kGap);
    }
    DrawTexts(painter, look, texts, dimmed);
}

void DrawLargeIcon(QPainter* painter, const RowLook& look, const QRect& row)
{
    DrawIcon(painter, look, row.adjusted(1, 1, -1, -kTitleOfIcon));
    QRect line(row.left() + kGap, row.bottom() + 1 - kTitleOfIcon, row.width() - 2 * kGap,
               kTitleOfIcon);
    line = DrawBadges(painter, look, line);
    painter->setPen(Qt::white);
    DrawLine(painter, line, look.title, Qt::AlignCenter);
}

}  // namespace

int U_CalcCellRowHeight(int iconSize, float iconHeight, int outline)
{
    const double part = static_cast<double>(iconHeight) / kThumbnailSide;
    const bool square = iconHeight == static_cast<float>(kThumbnailSide);
    if (IsIconOnly(iconSize))
        return (square ? outline : static_cast<int>(std::lround((outline - 2) * part)) + 2) +
               kTitleOfIcon;
    if (IsTextOnly(iconSize))
        return iconSize + 12;
    return (square ? iconSize : static_cast<int>(std::lround(iconSize * part))) + 4;
}

QFont RowFont(const QFont& base, RowLook::Kind kind)
{
    constexpr int kHeadingPixels = 12, kSequencePixels = 11;  // logical
    QFont font = base;
    font.setPixelSize(kind == RowLook::Kind::Sequence ? kSequencePixels : kHeadingPixels);
    font.setBold(kind == RowLook::Kind::Patient);
    return font;
}

void DrawRow(QPainter* painter, const RowLook& look, const QRect& row, const QFont& base,
             const QPalette& palette, bool selected)
{
    const SavedPainter saved(painter);
    painter->setFont(RowFont(base, look.kind));
    const QColor text = palette.color(selected ? QPalette::HighlightedText : QPalette::Text);
    QColor dimmed = text;
    dimmed.setAlphaF(0.65F);
    painter->setPen(look.kind == RowLook::Kind::Patient && !selected ? dimmed : text);
    if (look.kind != RowLook::Kind::Sequence)
        DrawHeading(painter, look, row);
    else if (IsIconOnly(look.iconSize))
        DrawLargeIcon(painter, look, row);
    else
        DrawSequence(painter, look, row, dimmed);
}

QImage U_ImageForGridID(int grid, double pixelRatio)
{
    QImage image((QSizeF(kBadge, kBadge) * pixelRatio).toSize(),
                 QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(pixelRatio);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    DrawCircleWithNumber(&painter, grid, QRectF(0, 0, kBadge, kBadge), true, true);
    return image;
}

#include "app/draw/Badge.h"

#include "Graphics/CKGraphic.h"
#include "app/draw/SavedPainter.h"
#include "prefs/Prefs.h"

#include <QPainter>
#include <QPainterPath>
#include <algorithm>

namespace {

void FillOval(QPainter* painter, const QRectF& rect, const QColor& color)
{
    painter->setPen(Qt::NoPen);
    painter->setBrush(color);
    painter->drawEllipse(rect);
}

void DrawTick(QPainter* painter, const QRectF& rect)
{
    const auto at = [&rect](double x, double y) {
        return QPointF(rect.left() + x * rect.width(), rect.top() + y * rect.height());
    };
    QPainterPath tick(at(0.18, 0.55));
    tick.lineTo(at(0.42, 0.8));
    tick.lineTo(at(0.84, 0.22));
    painter->strokePath(
        tick, QPen(Qt::white, rect.width() * 0.14, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
}

void DrawDigit(QPainter* painter, int number, const QRectF& rect)
{
    QFont font = painter->font();
    font.setBold(true);
    font.setPixelSize(std::max(1, static_cast<int>(rect.height() * 0.8)));
    painter->setFont(font);
    painter->setPen(Qt::white);
    painter->drawText(rect, Qt::AlignCenter, QString::number(number));
}

}  // namespace

void DrawCircleWithNumber(QPainter* painter, int number, const QRectF& rect, bool active,
                          bool plain)
{
    const SavedPainter saved(painter);
    painter->setRenderHint(QPainter::Antialiasing, true);
    if (number == kBadgeMark) {
        FillOval(painter, rect, ColorOf(prefs_Get_MarkedCellColor()));
        DrawTick(painter, rect.adjusted(2, 2, -2, -2));
        return;
    }
    if (!plain)
        FillOval(painter, rect, Qt::white);
    FillOval(painter, rect,
             ColorOf(active  ? prefs_Get_ActiveCellColor()
                     : plain ? prefs_Get_InactiveCellColor()
                             : prefs_Get_InactiveCellColor2()));
    if (number >= 1 && number <= 4)
        DrawDigit(painter, number, rect.adjusted(1, 1, -1, -1));
}

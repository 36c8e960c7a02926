#include "app/views/LayoutIcons.h"

#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>
#include <QPalette>
#include <algorithm>
#include <cmath>

namespace {

constexpr double kGap = 1.0 / 16;  // of the icon's shorter side
constexpr double kFillAlpha = 0.25;

// Part `i` of `count` equal ones along one side.
QRectF Slice(const QRectF& area, bool stacked, int i, int count, double gap)
{
    const double side = stacked ? area.height() : area.width();
    const double length = (side - gap * (count - 1)) / count;
    const double from = i * (length + gap);
    return stacked ? QRectF(area.left(), area.top() + from, area.width(), length)
                   : QRectF(area.left() + from, area.top(), length, area.height());
}

// On whole pixels of the device; the line's width counts them.
void PaintCell(QPainter* painter, const QRectF& cell, const QColor& color, double line)
{
    const QRectF outer(QPointF(std::round(cell.left()), std::round(cell.top())),
                       QPointF(std::round(cell.right()), std::round(cell.bottom())));
    const QRectF inner = outer.adjusted(line, line, -line, -line);
    QPainterPath frame;
    frame.addRect(outer);
    frame.addRect(inner);
    painter->fillPath(frame, color);
    QColor fill = color;
    fill.setAlphaF(color.alphaF() * static_cast<float>(kFillAlpha));
    painter->fillRect(inner, fill);
}

QColor LineColor(QIcon::Mode mode)
{
    const QPalette palette = QGuiApplication::palette();
    if (mode == QIcon::Selected)
        return palette.color(QPalette::Active, QPalette::HighlightedText);
    return palette.color(mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active,
                         QPalette::WindowText);
}

class LayoutIconEngine final : public QIconEngine {
public:
    explicit LayoutIconEngine(const GridLayout& layout) : fLayout(layout) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override
    {
        const double ratio = painter->device()->devicePixelRatioF();
        painter->save();
        painter->translate(rect.topLeft());
        painter->scale(1 / ratio, 1 / ratio);
        paintPixels(painter, QSizeF(rect.size()) * ratio, LineColor(mode), ratio);
        painter->restore();
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State) override
    {
        return scaledPixmap(size, mode, QIcon::Off, 1);
    }

    // The size counts device pixels here.
    QPixmap scaledPixmap(const QSize& size, QIcon::Mode mode, QIcon::State, qreal scale) override
    {
        QPixmap picture(size);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        paintPixels(&painter, size, LineColor(mode), scale);
        return picture;
    }

    [[nodiscard]] QIconEngine* clone() const override { return new LayoutIconEngine(fLayout); }

private:
    void paintPixels(QPainter* painter, const QSizeF& size, const QColor& color,
                     double pixelRatio) const
    {
        // Not a point is given away to margins: four rows of 16 points have three each.
        const double side = std::min(size.width(), size.height());
        const double gap = std::max(1.0, std::round(side * kGap));
        const double line = std::max(1.0, std::floor(pixelRatio));
        for (const QRectF& cell : LayoutCells(fLayout, QRectF(QPointF(), size), gap))
            PaintCell(painter, cell, color, line);
    }

    const GridLayout& fLayout;  // of the table
};

}  // namespace

std::vector<QRectF> LayoutCells(const GridLayout& layout, const QRectF& area, double gap)
{
    const int parts = layout.part[1] > 0 ? 2 : 1;
    std::vector<QRectF> cells;
    for (int part = 0; part < parts; ++part) {
        const QRectF piece = Slice(area, layout.partsStacked, part, parts, gap);
        const int grids = layout.part[static_cast<std::size_t>(part)];
        for (int grid = 0; grid < grids; ++grid)
            cells.push_back(Slice(piece, !layout.partsStacked, grid, grids, gap));
    }
    return cells;
}

QIcon LayoutIcon(const GridLayout& layout) { return QIcon(new LayoutIconEngine(layout)); }

#include "dicom_core/annotations/RulerTicks.h"

#include <QPainter>

namespace {

using Lines = std::vector<QLineF>;

bool DividesEvenly(std::int16_t count) { return count == 2 || count == 5 || count == 10; }

// The axis from `start` and the ticks at both ends.
void AddEnds(double start, double length, double tick, Lines* lines)
{
    lines->emplace_back(start, 0, start, tick);
    lines->emplace_back(start, 0, start + length, 0);
    lines->emplace_back(start + length, 0, start + length, tick);
}

void AddMinorTicks(double start, double length, std::int16_t count, double tick, Lines* lines)
{
    AddEnds(start, length, tick, lines);
    if (!DividesEvenly(count))
        return;
    for (std::int16_t i = 1; i < count; ++i) {
        const double at = start + length * i / count - (i > count / 2 ? 1.0 : 0.0);
        lines->emplace_back(at, 0, at, tick);
    }
}

void DrawLines(QPainter& painter, const Lines& lines)
{
    painter.drawLines(lines.data(), static_cast<int>(lines.size()));
}

}  // namespace

Lines RulerBarLines(const RulerBar& bar)
{
    Lines lines;
    AddEnds(0, bar.length, bar.tick, &lines);
    if (bar.count != 1 && !DividesEvenly(bar.count))
        return lines;
    for (std::int16_t i = 0; i < bar.count; ++i) {
        const double at = bar.length * i / bar.count;
        if (i > 0)
            lines.emplace_back(at, 0, at, bar.tick);
        if (bar.minorCount > 0)
            AddMinorTicks(at, bar.length / bar.count, bar.minorCount, bar.minorTick, &lines);
    }
    return lines;
}

void DrawHorzMajorRulerTicks(QPainter& painter, double x, double y, const RulerBar& bar)
{
    Lines lines = RulerBarLines(bar);
    for (QLineF& line : lines)
        line.translate(x, y);
    DrawLines(painter, lines);
}

void DrawVertMajorRulerTicks(QPainter& painter, double x, double y, const RulerBar& bar)
{
    Lines lines = RulerBarLines(bar);
    for (QLineF& line : lines)
        line = {x + line.y1(), y - line.x1(), x + line.y2(), y - line.x2()};
    DrawLines(painter, lines);
}

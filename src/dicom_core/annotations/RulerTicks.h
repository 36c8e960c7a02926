// The strokes of a ruler's bar with its ticks, in the plane of the annotations (y upward).
#pragma once
#include <QLineF>
#include <cstdint>
#include <vector>

class QPainter;

// One bar: from its start along the axis, with a tick at each end. It is divided for a count of 1,
// 2, 5 or 10, with ticks between; each part by minor ticks in the same way if there are any.
struct RulerBar {
    double length = 0;
    std::int16_t count = 0;
    double tick = 0;              // signed length across the axis
    std::int16_t minorCount = 0;  // 0: no minor ticks
    double minorTick = 0;
};

// The strokes with the axis along x and the start at 0, 0. Minor ticks in the second half of their
// division stand one pixel nearer to its start, so as to fall on whole pixels.
[[nodiscard]] std::vector<QLineF> RulerBarLines(const RulerBar& bar);

// With the painter's pen. The horizontal bar runs along x with ticks along y, the vertical one
// along -y with ticks along x.
void DrawHorzMajorRulerTicks(QPainter& painter, double x, double y, const RulerBar& bar);
void DrawVertMajorRulerTicks(QPainter& painter, double x, double y, const RulerBar& bar);

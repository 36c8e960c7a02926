// What is read of single pixels of a frame, and the working record of statistics over many.
#pragma once
#include "pixels/RGBColor.h"
#include "util/XRect.h"

#include <QPointF>
#include <cstdint>
#include <functional>

struct CKPixelInfo {
    std::uint32_t orgFormat = 0;  // pixel format that it was read from
    RGBColor orgColor;            // as stored: 16-bit gray as it is, 8 bits times 257
    RGBColor pixColor;            // as displayed; not filled while iterating
    std::int32_t hUnit = 0;       // value in the file's rescaled units, rounded; 0 for colour
    double value = 0;             // the same exactly, where steps are no whole units
};

struct CKMetricsParams {
    double halfWidth2 = 0, halfHeight2 = 0;  // of an ellipse, squared
    QPointF center;                          // of an ellipse
    const void* vertices = nullptr;          // of a polygon
    long double sum = 0, sumOfSquares = 0;
    std::int32_t pixelCount = 0;
    double mean = 0, minimum = 0, maximum = 0;
    bool isGray = false, isSixteenBit = false, started = false;
};

// Called for each pixel, `point` its column (h) and row (v) in frame coordinates; false ends it.
using CKPixelVisitor =
    std::function<bool(const LongPoint& point, const CKPixelInfo& info, CKMetricsParams* params)>;

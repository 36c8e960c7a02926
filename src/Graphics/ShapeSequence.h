// What measurements ask of those who show them. Implemented on a higher floor.
#pragma once
#include "dicom_core/values/USRegions.h"

#include <QPointF>
#include <cstdint>
#include <vector>

// The sequence that a measurement stands on.
class ShapeSequence {
public:
    virtual ~ShapeSequence() = default;
    [[nodiscard]] virtual std::int32_t currentFrame() const = 0;  // from 1
    [[nodiscard]] virtual bool hasUSRegions() const = 0;
    [[nodiscard]] virtual const std::vector<US_ROIRegDataRec>* usRegions() const = 0;  // or null
};

// The grid that drew a measurement last.
class ShapeSurroundings {
public:
    virtual ~ShapeSurroundings() = default;
    [[nodiscard]] virtual double U_ImageZoomForFrame(std::int32_t frame) const = 0;  // factor
    [[nodiscard]] virtual bool isTheActiveGrid() const = 0;
};

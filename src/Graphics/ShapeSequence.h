// What measurements ask of those who show them. Implemented on a higher floor.
#pragma once
#include "Graphics/CKPixelInfo.h"
#include "dicom_core/values/USRegions.h"
#include "util/StatusCodes.h"

#include <QPointF>
#include <QRectF>
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
    // The pixel under a frame point, without the user's windows and colours. False outside of the
    // frame and where it can't be read.
    [[nodiscard]] virtual bool pixelColorInfoForPoint(const QPointF& point, std::int32_t frame,
                                                      CKPixelInfo* info) = 0;
    // Rows from the top, each from the left, of the whole pixels of `rect` (truncated, far edges
    // excluded, cut to the frame). kQvxUserCanceled when the visitor ends it, kQvxLockFailed.
    [[nodiscard]] virtual QvxStatus iteratePixelInRect(const QRectF& rect, std::int32_t frame,
                                                       const CKPixelVisitor& visitor,
                                                       CKMetricsParams* params) = 0;
};

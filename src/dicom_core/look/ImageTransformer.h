// What a record does to pixels that are in hand: turn and flips, brightness and contrast, negative.
#pragma once
#include "dicom_core/look/zel_TransformRec.h"
#include "pixels/COffscreen.h"

// Rotation, then the vertical, then the horizontal flip. A rotation of 0 or 180 wants source and
// target to be one port, 90 and 270 two, the target of the exchanged size; else, and for any other
// rotation, kQvxBadArgument.
[[nodiscard]] QvxStatus ApplyGeometricTransformations(const zel_TransformRec& record, Port* source,
                                                      Port* target);

class ImageTransformer {
public:
    void SetTransformations(const zel_TransformRec& record) { fRecord = record; }

    // Geometry from the source into the target, then the rest on the target.
    [[nodiscard]] QvxStatus ApplyAll(COffscreen* source, COffscreen* target) const;
    [[nodiscard]] QvxStatus ApplyGeometric(COffscreen* source, COffscreen* target) const;
    // Each from -100 to 100, pinned; nothing for two zeros.
    [[nodiscard]] QvxStatus ApplyBnC(Port* target, std::int32_t brightness,
                                     std::int32_t contrast) const;
    [[nodiscard]] QvxStatus ApplyInvert(COffscreen* target) const;

private:
    zel_TransformRec fRecord;
};

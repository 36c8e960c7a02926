// Everything the user has done to the look of one frame: flips, rotation, negative, zoom, window,
// brightness and contrast, pan. A plain value, copied whole. Window values are user values.
// Rotation comes before the flips: these act on the turned frame.
#pragma once
#include "dicom_core/look/zelVOIBlitterInfo.h"
#include "dicom_core/look/zelVOIFunction.h"
#include "util/StatusCodes.h"
#include "util/XRect.h"

#include <cstdint>
#include <memory>

inline constexpr std::int32_t kZoomOne = 0x10000;  // 16.16

struct zel_TransformRec {
    // The order of the fields is that of stored records.
    bool vertFlip = false;         // mirrored top to bottom
    bool horzFlip = false;         // mirrored left to right; never both
    bool invert = false;           // shown as a negative
    std::int32_t zoom = kZoomOne;  // 16.16, while `autoFit` is off
    std::int16_t rotation = 0;     // degrees clockwise: 0, 90, 180 or 270
    float voiWidth = 0, voiWidthOriginal = 0, voiWidthMin = 0, voiWidthMax = 0;
    float voiLevel = 0, voiLevelOriginal = 0, voiLevelMin = 0, voiLevelMax = 0;
    std::int32_t brightness = 0, contrast = 0;  // -100 to 100
    zelVOIBlitterInfo voiInfo;
    bool autoFit = true;  // fitted to the cell, whatever `zoom` says
    CGPoint reserved;     // no logic reads it
    CGPoint scroll;       // pan within the cell
    // No part of stored records.
    zelVOIFunction voiFunction = zelVOIFunction::Linear;  // the file's, for every window
    std::shared_ptr<const zelVOITable> voiTable;          // shown in place of the window; or null
    std::shared_ptr<const zelVOITable> voiTableOriginal;  // belongs to the original window

    bool operator==(const zel_TransformRec&) const = default;

    void ResetAll();
    void ResetCommon();    // flips, negative, rotation, zoom
    void ResetBnC();       // brightness, contrast
    void ResetVOI();       // the eight window values to 0, no tables, linear
    void ResetFlipNRot();  // flips, rotation
    void ResetColors();    // window back to its originals, brightness, contrast, negative
    void SetToVoid();      // ResetCommon and ResetColors; fit, pan and `voiInfo` stay
    // Nothing done to the frame: zoom and pan don't count, but `autoFit` must be on.
    [[nodiscard]] bool IsVoid() const;

    // Each value is pinned to its limits: the minimum if that is greater, else the smaller of value
    // and maximum. A NaN becomes the maximum, so none is ever stored.
    // A table goes with a new window; the original window brings the original table back.
    void RecordVOI(float width, float level);
    void SetVOIOriginals(float width, float level,
                         std::shared_ptr<const zelVOITable> table = nullptr);
    // Shows a table of the file; the window is its span then. Null is ignored.
    void RecordVOITable(std::shared_ptr<const zelVOITable> table);
    // Window and table of another frame.
    void AdoptVOI(const zel_TransformRec& other);
    [[nodiscard]] bool IsVOIAtOriginals() const;
    // Ignored unless the maximum is above the minimum and that is at least one display step: 1.0,
    // or the factor of `voiInfo` where that isn't 1.
    void SetVOIWidthLimits(float minimum, float maximum);
    // Ignored unless the maximum is above the minimum.
    void SetVOILevelLimits(float minimum, float maximum);
    void RecordBnC(std::int32_t newBrightness, std::int32_t newContrast);  // pinned to -100 to 100

    // A flip turns over; both together become a half turn.
    void RecVertFlip();
    void RecHorzFlip();
    // A quarter turn runs the other way on a mirrored frame. Any angle but 90, 180, 270 (and what
    // is the same turn) sets the rotation to 0.
    void RecRotation(std::int32_t degrees);

    // Where a point of the stored frame lies on the displayed one, and back. `bounds` is the stored
    // frame for the first and the displayed one for the reverse; both keep their top left corner.
    // kQvxBadArgument, and nothing written, for empty bounds, a point outside of them (all edges
    // are inside), a result outside of the type's range, or a rotation that is none of the four.
    [[nodiscard]] QvxStatus TransformLocation(const Rect& bounds, Point point, Point* result) const;
    [[nodiscard]] QvxStatus TransformLocation(const LongRect& bounds, LongPoint point,
                                              LongPoint* result) const;
    [[nodiscard]] QvxStatus TransformLocationX(const XRect& bounds, XPoint point,
                                               XPoint* result) const;
    [[nodiscard]] QvxStatus ReverseTransformLocation(const Rect& bounds, Point point,
                                                     Point* result) const;
    [[nodiscard]] QvxStatus ReverseTransformLocation(const LongRect& bounds, LongPoint point,
                                                     LongPoint* result) const;
    [[nodiscard]] QvxStatus ReverseTransformLocationX(const XRect& bounds, XPoint point,
                                                      XPoint* result) const;

    // The same for a rectangle within `bounds`, neither of them empty. TransformRect(bounds,
    // bounds) is the size of the displayed frame.
    [[nodiscard]] QvxStatus TransformRect(const Rect& bounds, const Rect& rect, Rect* result) const;
    [[nodiscard]] QvxStatus TransformRect(const LongRect& bounds, const LongRect& rect,
                                          LongRect* result) const;
    [[nodiscard]] QvxStatus ReverseTransformRect(const Rect& bounds, const Rect& rect,
                                                 Rect* result) const;
    [[nodiscard]] QvxStatus ReverseTransformRect(const LongRect& bounds, const LongRect& rect,
                                                 LongRect* result) const;
};

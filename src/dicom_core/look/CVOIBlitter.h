// Windowing as a transform record says, and the record's window in display values.
// Levels and widths are display values, in that order, where they come as whole numbers.
#pragma once
#include "dicom_core/look/VOICurve.h"
#include "dicom_core/look/zel_TransformRec.h"
#include "util/ColorTable.h"

#include "Qvx2VOIBlitter/VOIBlitter.h"
#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

// Owns an instance of the windowing library and one gray table. Holds no window between calls.
// Every operation gives kQvxBadArgument for missing arguments or a missing instance; those with a
// record also for one whose `voiInfo` was never set up or has no factor above 0.
class CVOIBlitter {
public:
    CVOIBlitter();
    // False when there was no room for the instance.
    [[nodiscard]] bool IsOpen() const { return fBlit != nullptr; }

    // A level between the two scales; kQvxMalformed for an inverted frame that isn't gray.
    [[nodiscard]] QvxStatus UserToDisplay(const zel_TransformRec& record, float user,
                                          std::int32_t* display) const;
    [[nodiscard]] QvxStatus DisplayToUser(const zel_TransformRec& record, std::int32_t display,
                                          float* user) const;

    // The four that follow: a linear window goes through the library's kernels, at any whole level.
    // A table or another function (PS3.3 C.11.2.1) is a curve over user values; the pixel range
    // cuts that of LINEAR_EXACT and plays no part for tables and SIGMOID. Without a pixel range a
    // linear window of a scale with a factor, or of a fractional level, is such a curve too.

    // Windows `sourceRect` into `destinationRect` with the record's width, rounded half away from
    // zero, and level. The second form cuts the window to the pixel range, both display values,
    // kQvxBadArgument if the maximum is below the minimum. Formats and further codes as of
    // Qvx2_VOIBlit_VOICopyPixels.
    [[nodiscard]] QvxStatus CopyPixelsTo8Bits(const zel_TransformRec& record, PixMap* source,
                                              PixMap* destination, const Rect& sourceRect,
                                              const Rect& destinationRect);
    [[nodiscard]] QvxStatus CopyPixelsTo8Bits(const zel_TransformRec& record,
                                              std::int32_t pixelMinimum, std::int32_t pixelMaximum,
                                              PixMap* source, PixMap* destination,
                                              const Rect& sourceRect, const Rect& destinationRect);

    // The same window as a table for 8-bit gray pixels, which then need not be touched. The table
    // stays this object's and changes with the next call.
    [[nodiscard]] QvxStatus GetCTableForVOI(const zel_TransformRec& record,
                                            const ColorTable** table);
    [[nodiscard]] QvxStatus GetCTableForVOI(const zel_TransformRec& record,
                                            std::int32_t pixelMinimum, std::int32_t pixelMaximum,
                                            const ColorTable** table);
    // Fills the owned table for a window under the present clipping, and gives it a new seed.
    // kQvxNoMemory; kQvxSeekFailed while no clipping was chosen.
    [[nodiscard]] QvxStatus BuildCTableForVOI(std::int32_t level, std::uint32_t width);

    // Narrows a window to the pixel range. Its upper end is lo + width here, one more than the last
    // value of a copy's window.
    [[nodiscard]] QvxStatus EnhanceVOIValues(std::int32_t pixelMinimum, std::int32_t pixelMaximum,
                                             std::int32_t* level, std::uint32_t* width) const;

private:
    struct Window {
        std::int32_t level = 0;
        std::uint32_t width = 0;
    };
    [[nodiscard]] QvxStatus GetWindow(const zel_TransformRec& record, Window* window) const;
    [[nodiscard]] QvxStatus ClipToNothing();
    [[nodiscard]] QvxStatus ClipTo(std::int32_t pixelMinimum, std::int32_t pixelMaximum);
    using PixelRange = std::optional<zelPixelRange>;
    [[nodiscard]] QvxStatus MakeCurve(const zel_TransformRec& record, const PixelRange& range,
                                      std::vector<std::uint8_t>* grays) const;
    [[nodiscard]] QvxStatus CopyWindowed(const zel_TransformRec& record, const PixelRange& range,
                                         PixMap* source, PixMap* destination,
                                         const Rect& sourceRect, const Rect& destinationRect);
    [[nodiscard]] QvxStatus BuildWindowed(const zel_TransformRec& record, const PixelRange& range,
                                          const ColorTable** table);
    [[nodiscard]] QvxStatus FillTable(const VOIScale256& scale);

    VOIBlitterPtr fBlit;
    std::optional<ColorTable> fTable;  // made when first needed
};

// Null when the library instance could not be opened; kQvxOK in both cases.
QvxStatus U_NewVOIBlitter(std::unique_ptr<CVOIBlitter>* blitter);
// Frees and clears; a null is left alone.
void U_DeleteVOIBlitter(std::unique_ptr<CVOIBlitter>* blitter);

// What a window may be, in display values.
struct zelDisplayVOILimits {
    std::uint32_t minWidth = 0;
    std::int32_t minLevel = 0;
    std::uint32_t maxWidth = 0;
    std::int32_t maxLevel = 0;
    bool operator==(const zelDisplayVOILimits&) const = default;
};
// The record's limits, widths rounded; the lower level first, also on an inverted frame, where the
// scales run against each other. Codes of CVOIBlitter::UserToDisplay.
[[nodiscard]] QvxStatus U_GetDisplayVOILimits(const zel_TransformRec& record,
                                              zelDisplayVOILimits* limits);
// The record's current window, its width truncated. The same codes.
[[nodiscard]] QvxStatus U_GetDisplayVOIParams(const zel_TransformRec& record, std::uint32_t* width,
                                              std::int32_t* level);
// Records a display width and level as the user's window. With `enhance` they are narrowed to the
// pixel range first (EnhanceVOIValues, its codes). The further codes are those of DisplayToUser.
[[nodiscard]] QvxStatus U_SetDisplayVOIParams(zel_TransformRec* record, std::int32_t pixelMinimum,
                                              std::int32_t pixelMaximum, std::uint32_t width,
                                              std::int32_t level, bool enhance);

// What the window set-up and the offscreens ask of the decoder of one file: display pixels of a
// frame, and what their values mean. Display values are what gray offscreens hold.
//
// The display scale of gray pixels is made by these rules, so that window, probe and statistics are
// in the file's own units wherever whole numbers allow it:
//   - Display values are unsigned, 0 is the least. `steps` is what the stored values span, in the
//     direction in which user values grow: a negative slope turns it round.
//   - Slope 1 (or -1): display = stored less the least storable value; the shift is that value and
//     the intercept. A fraction of the intercept is the offset.
//   - Another whole slope, if the rescaled range fits 16 bits: display is in rescaled units.
//   - Any other slope: display counts stored values, the factor is the slope without its sign, the
//     shift holds what of the intercept is a multiple of it, the offset the rest.
//   - More than 16 stored bits: display = stored >> k, factor times 2^k, with the least k that fits
//     the frame's own values (of all storable ones as long as no frame is given) into 16 bits.
//   - Float pixels: the frame's own range in 65535 steps, or in steps of 1 when all its values are
//     whole and span no more.
//   - MONOCHROME1: display runs against user values (low ones are white), fPhotometric is 0, the
//     shift 0, and the range the greatest possible user value, counted in factors.
#pragma once
#include "util/PixMap.h"

#include "QvxToolkit/DecodedFrame.h"
#include "QvxToolkit/QvxFrameRecord.h"
#include <cstdint>

// The display scale of a file's gray pixels:
//   user = (display + fPixelShift) * fFactor + fOffset                   fPhotometric not 0
//   user = (fPixelRange - (display + fPixelShift)) * fFactor + fOffset   fPhotometric 0 (inverted)
// fFactor is 1 and fOffset 0 whenever the slope is 1 and the intercept whole, or the rescaled range
// fits the pixels without losing steps; then user values are whole numbers.
struct QvxPixelInfo {
    std::int32_t fPhotometric = 1;
    std::int32_t fPixelExtra = 0;
    std::int32_t fPixelRange = 0;  // the greatest user value, counted in factors from the offset
    std::int32_t fPixelShift = 0;
    double fFactor = 1, fOffset = 0;
};

// Limits of the window in display values.
struct QvxVOILimits {
    std::uint32_t fMinWidth = 1, fMaxWidth = 1;
    std::int32_t fMinLevel = 0, fMaxLevel = 0;
};

struct QvxDefaultWindow {
    bool fFound = false;
    float fWidth = 0, fLevel = 0;  // user values
};

// True for gray of more than 16 stored bits and for float pixels: the scale is a frame's own, and
// the operations below must be given the frame whose pixels are filled. Other scales are the
// file's; a frame makes no difference then.
[[nodiscard]] bool QvxCodecScaleIsPerFrame(const QvxFrameRecord& record);

// Pixel format in which frames of this record are shown: kPixelFormatGray16 for gray of more than
// 8 stored bits (or an unrepresentable 8-bit scale), kPixelFormatGray8 for the rest of gray,
// kPixelFormatARGB32 for colour and palettes.
[[nodiscard]] std::uint32_t QvxCodecPixelFormat(const QvxFrameRecord& record);
[[nodiscard]] QvxPixelInfo QvxCodecPixelInfo(const QvxFrameRecord& record,
                                             const DecodedFrame* frame = nullptr);
[[nodiscard]] QvxVOILimits QvxCodecGetDisplayVOILimits(const QvxFrameRecord& record,
                                                       const DecodedFrame* frame = nullptr);
// First window of (0028,1050) and (0028,1051) with both numbers finite and a width of at least 1,
// or of the least step of a finer scale.
[[nodiscard]] QvxDefaultWindow QvxCodecDefaultWindow(QvxParserRec* reader,
                                                     const QvxFrameRecord& record);

// Writes the frame's display pixels into `map`, whose format and size are those of the record, and
// the smallest and largest display value of the pixels (padding left out, unless there is nothing
// else) into `pixelMin` and `pixelMax` (gray only; both may be null).
// In format 40 the byte is 255 less the display value. Colour and palettes become A 255, R, G, B;
// deeper components lose their lowest bits. A palette's index is clamped to the table; without a
// table the index itself is shown as gray. kQvxBadArgument for a map or frame that doesn't match.
[[nodiscard]] QvxStatus QvxCodecFillPixels(QvxParserRec* reader, const QvxFrameRecord& record,
                                           const DecodedFrame& frame, const PixMap& map,
                                           std::int32_t* pixelMin, std::int32_t* pixelMax);

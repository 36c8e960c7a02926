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
//   - A modality table: display values are its entries, and so are user values.
//   - Inverted images: display runs against user values (low ones are white), fPhotometric is 0,
//     the shift 0, and the range the greatest possible user value, counted in factors.
// Where frames of a file differ in their slopes, each has its own scale, and all are 16-bit; the
// record that the functions take is that of the frame then (QvxRecordOfFrame).
#pragma once
#include "util/FourCC.h"
#include "util/PixMap.h"

#include "QvxToolkit/DecodedFrame.h"
#include "QvxToolkit/QvxFrameRecord.h"
#include <array>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

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

// What a decoder knows of the frame that it decoded, by selector, and the longs of each reply.
inline constexpr std::uint32_t kPixelInfoPhotometric = FourCC("S_PI");  // one
inline constexpr std::uint32_t kPixelInfoExtra = FourCC("S_PX");        // three, the second counts
inline constexpr std::uint32_t kPixelInfoShift = FourCC("S_PS");        // one
inline constexpr std::uint32_t kPixelInfoRange = FourCC("S_PR");        // one
inline constexpr std::uint32_t kPixelInfoMinMax = FourCC("S_MM");       // three: least, most, 0
using QvxPixelInfoReply = std::array<std::int32_t, 3>;
// The longs that a selector doesn't have are 0. kQvxUnsupported for another one.
[[nodiscard]] QvxStatus QvxCodecGetPixelInfo(const QvxPixelInfo& info, std::int32_t pixelMin,
                                             std::int32_t pixelMax, std::uint32_t selector,
                                             QvxPixelInfoReply* reply);

// How a window becomes gray: (0028,1056), PS3.3 C.11.2.1.2 and C.11.2.1.3.
enum class QvxVOIFunction : std::uint8_t { Linear, LinearExact, Sigmoid };

// One of the looks that a file offers for a frame: a window, or a table. Values are user values;
// the window of a table is the span of its input.
struct QvxVOIChoice {
    float fWidth = 0, fLevel = 0;
    QvxVOIFunction fFunction = QvxVOIFunction::Linear;
    std::shared_ptr<const QvxLookupTable> fTable;  // null for a window
    std::string fExplanation;  // (0028,1055) or (0028,3003), bytes of the file's character set
};

// The look that a frame is shown with first.
struct QvxDefaultWindow {
    bool fFound = false;
    float fWidth = 0, fLevel = 0;  // user values
    QvxVOIFunction fFunction = QvxVOIFunction::Linear;
    std::shared_ptr<const QvxLookupTable> fTable;  // null for a window
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
// The looks that the file offers for frame `frameNumber` (from 1): its windows, (0028,1050) and
// (0028,1051) in pairs, then its tables, (0028,3010). From the frame's own Frame VOI LUT
// (0028,9132), else the shared one, else the top level: the first of them that offers any. Windows
// need finite numbers, a linear one a width of at least 1, or of the least step of a finer scale.
// No choice is no error. kQvxBadArgument, kQvxNoMemory.
[[nodiscard]] QvxStatus QvxCodecVOIChoices(QvxParserRec* reader, const QvxFrameRecord& record,
                                           std::uint32_t frameNumber,
                                           std::vector<QvxVOIChoice>* choices);
// The first choice; a function that the file states is told even where there is none.
[[nodiscard]] QvxDefaultWindow QvxCodecDefaultWindow(QvxParserRec* reader,
                                                     const QvxFrameRecord& record,
                                                     std::uint32_t frameNumber = 1);

// Writes the frame's display pixels into `map`, whose format and size are those of the record, and
// the smallest and largest display value of the pixels (padding left out, unless there is nothing
// else) into `pixelMin` and `pixelMax` (gray only; both may be null).
// In format 40 the byte is 255 less the display value. Colour and palettes become A 255, R, G, B;
// deeper components lose their lowest bits. A palette's index is clamped to the table; without a
// table the index itself is shown as gray. kQvxBadArgument for a map or frame that doesn't match.
[[nodiscard]] QvxStatus QvxCodecFillPixels(QvxParserRec* reader, const QvxFrameRecord& record,
                                           const DecodedFrame& frame, const PixMap& map,
                                           std::int32_t* pixelMin, std::int32_t* pixelMax);

// The windowing library: an instance with its clipping state, and the copy of gray pixels to
// display pixels. Levels (signed) and widths (unsigned) are display values, in that order.
// One thread at a time for an instance.
#pragma once
#include "util/FourCC.h"
#include "util/PixMap.h"
#include "util/StatusCodes.h"

#include "Qvx2VOIBlitter/VOIValues.h"
#include <array>
#include <cstdint>
#include <memory>
#include <span>

inline constexpr std::uint32_t kSignatureVOIBlitter = FourCC("VBLT");

enum class QvxVOIBoundsClippingOption : std::uint32_t {
    None = 0,
    PixelBounds = 1,          // the window is cut to the pixel minimum and maximum
    Unknown = kUnknownState,  // a new instance: choose before the first copy
};

struct VOIBlitter {
    std::uint32_t fSignature = kSignatureVOIBlitter;
    QvxVOIBoundsClippingOption fClipping = QvxVOIBoundsClippingOption::Unknown;
    std::int32_t fPixelMinimum = 0, fPixelMaximum = 0;
    bool fBoundsSet = false;
};
using VOIBlitterPtr = std::unique_ptr<VOIBlitter>;
using VOIScale256 = std::array<std::uint8_t, 256>;

// True for an instance that can be used: there, and with its signature.
[[nodiscard]] bool IsVOIBlitter(const VOIBlitter* blit);

// A cleared instance; null and kQvxNoMemory when there is no room for one.
[[nodiscard]] QvxStatus VOIBlitter_Open(VOIBlitterPtr* blit);
// Frees it. kQvxBadArgument for null.
QvxStatus VOIBlitter_Close(VOIBlitterPtr blit);

// The two above under the names of the library's interface.
[[nodiscard]] QvxStatus Qvx2_VOIBlit_New(VOIBlitterPtr* blit);
QvxStatus Qvx2_VOIBlit_Close(VOIBlitterPtr blit);

// kQvxBadArgument for a missing instance or for an option other than the first two.
[[nodiscard]] QvxStatus Qvx2_VOIBlit_SetVOIBoundsClippingOption(VOIBlitter* blit,
                                                                QvxVOIBoundsClippingOption option);
[[nodiscard]] QvxStatus Qvx2_VOIBlit_GetVOIBoundsClippingOption(const VOIBlitter* blit,
                                                                QvxVOIBoundsClippingOption* option);

// kQvxBadArgument when the minimum exceeds the maximum, both read as unsigned: display values are
// never negative, so a range from below 0 to above it is a mistake of the caller.
[[nodiscard]] QvxStatus Qvx2_VOIBlit_SetPixelBounds(VOIBlitter* blit, std::int32_t minimum,
                                                    std::int32_t maximum);
// Always kQvxOK; writes only bounds that were set.
QvxStatus Qvx2_VOIBlit_GetPixelBounds(const VOIBlitter* blit, std::int32_t* minimum,
                                      std::int32_t* maximum);

// Windows `sourceRect` of `source` into `destinationRect` of `destination`, of equal size, each
// within the bounds of its map. Pairs of formats (a format of 0: the pixel size stands in):
//   8, 40 to 8, 40       look-up in inverted luminance; in place too, unless the rows of the
//                        destination are padded less than those of the source
//   'b16g' to 8, 40      inverted: black is 255
//   'b16g', 'DMXD' to 32
// kQvxBadArgument  something missing, unequal sizes, a rectangle outside of its map, rows shorter
//                  than the bounds, bounds not set under PixelBounds
// kQvxUnsupported  any other pair, or the in-place case above
// kQvxSeekFailed   a map without pixels to lock, or a clipping option not chosen
// kQvxNoMemory     no room for a table where one is needed; no pixel is written
// Both maps are locked meanwhile and get their lock state back in every case.
[[nodiscard]] QvxStatus Qvx2_VOIBlit_VOICopyPixels(const VOIBlitter* blit, std::int32_t level,
                                                   std::uint32_t width, PixMap* source,
                                                   PixMap* destination, const Rect* sourceRect,
                                                   const Rect* destinationRect);

// A curve that is no straight line, as a table: grays for the display values `first`, `first` + 1
// and so on, inverted as in format 40 (255 is black). Values below and above take the nearest
// entry.
struct VOICurve {
    std::int32_t first = 0;                 // may be below 0
    std::span<const std::uint8_t> entries;  // 1 to 65536
};

// The copy above through `curve` in place of a window; the clipping option plays no part. The pairs
// of formats are the same, and 8 and 40 go to 32 too. The display value of an 8-bit pixel is 255
// less its byte. Codes as above; kQvxBadArgument for a curve of another length.
[[nodiscard]] QvxStatus Qvx2_VOIBlit_TableCopyPixels(const VOIBlitter* blit, const VOICurve& curve,
                                                     PixMap* source, PixMap* destination,
                                                     const Rect* sourceRect,
                                                     const Rect* destinationRect);

// Converts one value, see VOIValues.h; reads one of the two and writes the other.
// kQvxBadArgument for another direction, a missing instance or address; kQvxMalformed for
// inverted values of a format that isn't gray.
[[nodiscard]] QvxStatus Qvx2_VOIBlit_ConvertBetweenUserAndDisplayValues(
    const VOIBlitter* blit, QvxVOIDirection direction, std::uint32_t pixelFormat,
    const QvxPixelScale& scale, std::int32_t* display, float* user);

// The 8-bit scale (VOIScales.h) of the window under the clipping option. Codes as for the copy.
[[nodiscard]] QvxStatus Qvx2_VOIBlit_GetVOIScale256(const VOIBlitter* blit, std::int32_t level,
                                                    std::uint32_t width, VOIScale256* scale);

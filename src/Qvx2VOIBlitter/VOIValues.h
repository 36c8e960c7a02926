// Display values (what gray pixels of a decoded frame hold) to user values (what the image means,
// as the user reads it) and back.
#pragma once
#include "util/PixMap.h"
#include "util/StatusCodes.h"

#include <algorithm>
#include <cstdint>
#include <limits>

// 0: stored values run against user values (inverted); any other number: they run with them.
using QvxPhotometricInterpretation = std::int32_t;
inline constexpr QvxPhotometricInterpretation kPhotometricInverted = 0;
inline constexpr QvxPhotometricInterpretation kPhotometricStraight = 1;

// What a decoder says of the relation between display and user values.
struct QvxPixelScale {
    QvxPhotometricInterpretation photometric = kPhotometricInverted;
    std::int32_t pixelRange = 0;  // an inverted pixel is subtracted from it
    std::int32_t pixelShift = 0;  // added to a display value on the way to the user
};

enum class QvxVOIDirection : std::int32_t { UserToDisplay = 0, DisplayToUser = 1 };

[[nodiscard]] constexpr std::int32_t PinnedToInt32(std::int64_t value)
{
    using Limits = std::numeric_limits<std::int32_t>;
    return static_cast<std::int32_t>(std::clamp<std::int64_t>(value, Limits::min(), Limits::max()));
}

// Inverted values are defined for gray pixels only: formats 40, 'DMXD' and 'b16g'.
[[nodiscard]] constexpr bool IsGrayPixelFormat(std::uint32_t format)
{
    return format == kPixelFormatGray8 || format == kPixelFormatMixed32 ||
           format == kPixelFormatGray16;
}

// `value` truncated toward zero, less `shift`; pinned to 32 bits, 0 less shift for a NaN.
[[nodiscard]] std::int32_t TruncatedLessShift(double value, std::int32_t shift);

// One value between the two scales, `direction` says which of the two is read.
//   to display  trunc(user) - shift, inverted trunc(float(range) - user) - shift; the subtraction
//               in the brackets is one of single precision
//   to user     float(display + shift), inverted float(range - (display + shift))
// kQvxBadArgument for another direction or a missing address; kQvxMalformed for inverted values of
// a format that isn't gray.
[[nodiscard]] QvxStatus ConvertBetweenUserAndDisplayValues(QvxVOIDirection direction,
                                                           std::uint32_t pixelFormat,
                                                           const QvxPixelScale& scale,
                                                           std::int32_t* display, float* user);

// What a pixel reader shows for a gray pixel: inverted within `range` and cut to the pixel's size,
// then shifted. For inverted pixels with a shift this is not the way of the function above, which
// subtracts the shift: readers show stored values, the window is set in the image's own units.
[[nodiscard]] std::int32_t Gray16ToDicomPixelValue(std::uint16_t value,
                                                   QvxPhotometricInterpretation photometric,
                                                   std::int32_t range, std::int32_t shift);
[[nodiscard]] std::int32_t Gray8ToDicomPixelValue(std::uint8_t value,
                                                  QvxPhotometricInterpretation photometric,
                                                  std::int32_t range, std::int32_t shift);

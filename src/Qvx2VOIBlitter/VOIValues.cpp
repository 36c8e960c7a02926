#include "Qvx2VOIBlitter/VOIValues.h"

#include <cmath>

namespace {

std::int32_t ToDisplay(const QvxPixelScale& scale, float user)
{
    if (scale.photometric == kPhotometricInverted)
        user = static_cast<float>(scale.pixelRange) - user;
    return TruncatedLessShift(user, scale.pixelShift);
}

float ToUser(const QvxPixelScale& scale, std::int32_t display)
{
    std::int64_t value = std::int64_t{display} + scale.pixelShift;
    if (scale.photometric == kPhotometricInverted)
        value = scale.pixelRange - value;
    return static_cast<float>(value);
}

std::int32_t GrayToDicomPixelValue(std::int64_t value, QvxPhotometricInterpretation photometric,
                                   std::int32_t range, std::int32_t shift, std::int64_t mask)
{
    if (photometric == kPhotometricInverted)
        value = (range - value) & mask;
    return PinnedToInt32(value + shift);
}

}  // namespace

std::int32_t TruncatedLessShift(double value, std::int32_t shift)
{
    constexpr double kFarBeyond = 1e12;  // far outside of 32 bits, whatever the shift
    const double whole = std::isnan(value) ? 0 : std::clamp(value, -kFarBeyond, kFarBeyond);
    return PinnedToInt32(static_cast<std::int64_t>(whole) - shift);
}

QvxStatus ConvertBetweenUserAndDisplayValues(QvxVOIDirection direction, std::uint32_t pixelFormat,
                                             const QvxPixelScale& scale, std::int32_t* display,
                                             float* user)
{
    const bool toDisplay = direction == QvxVOIDirection::UserToDisplay;
    if (!display || !user || (!toDisplay && direction != QvxVOIDirection::DisplayToUser))
        return kQvxBadArgument;
    if (scale.photometric == kPhotometricInverted && !IsGrayPixelFormat(pixelFormat))
        return kQvxMalformed;
    if (toDisplay)
        *display = ToDisplay(scale, *user);
    else
        *user = ToUser(scale, *display);
    return kQvxOK;
}

std::int32_t Gray16ToDicomPixelValue(std::uint16_t value, QvxPhotometricInterpretation photometric,
                                     std::int32_t range, std::int32_t shift)
{
    return GrayToDicomPixelValue(value, photometric, range, shift, 0xFFFF);
}

std::int32_t Gray8ToDicomPixelValue(std::uint8_t value, QvxPhotometricInterpretation photometric,
                                    std::int32_t range, std::int32_t shift)
{
    return GrayToDicomPixelValue(value, photometric, range, shift, 0xFF);
}

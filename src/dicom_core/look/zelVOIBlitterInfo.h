// How the display values of one frame's pixels relate to the user's values: those of the decoder,
// and behind them the scale's own factor.
#pragma once
#include "Qvx2VOIBlitter/VOIValues.h"
#include <cstdint>

// user = (display + shift) * factor + offset, or (range - (display + shift)) * factor + offset for
// an inverted frame. With a factor of 1 and an offset of 0, as for every image whose values fit the
// display scale without losing steps, this is the plain arithmetic of VOIValues.h, bit for bit.
// The order of the fields is that of stored records.
struct zelVOIBlitterInfo {
    QvxPhotometricInterpretation photometric = kPhotometricInverted;
    std::int32_t pixelExtra = 0;    // carried along, no logic reads it
    std::int32_t pixelRange = 0;    // an inverted pixel is subtracted from it
    std::uint32_t pixelFormat = 0;  // 'b16g' or 40; 0: the frame has not been set up yet
    std::int32_t pixelShift = 0;    // added to a display value on the way to the user
    double pixelFactor = 1;         // user units of one display step, above 0
    double pixelOffset = 0;         // user units

    [[nodiscard]] bool IsPlain() const { return pixelFactor == 1 && pixelOffset == 0; }
    [[nodiscard]] QvxPixelScale Scale() const { return {photometric, pixelRange, pixelShift}; }
    bool operator==(const zelVOIBlitterInfo&) const = default;
};

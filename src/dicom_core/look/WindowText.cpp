#include "dicom_core/look/WindowText.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

std::string WindowValueText(const zelVOIBlitterInfo& scale, double value)
{
    constexpr double kMost = 6;
    int decimals = 0;
    const double step = scale.pixelFactor;
    if (step > 0 &&
        (step != std::trunc(step) || scale.pixelOffset != std::trunc(scale.pixelOffset)))
        decimals = static_cast<int>(std::clamp(std::ceil(-std::log10(step)), 1.0, kMost));
    const double unit = std::pow(10, decimals);
    const double rounded = std::round(value * unit) / unit;
    std::array<char, 400> text{};  // the largest double has 309 places
    const auto end = std::to_chars(text.begin(), text.end(), rounded == 0 ? 0.0 : rounded,
                                   std::chars_format::fixed, decimals);
    return {text.begin(), end.ptr};
}

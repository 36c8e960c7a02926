#include "Qvx2VOIBlitter/VOIScales.h"

#include <algorithm>
#include <limits>
#include <new>

namespace {

constexpr std::int64_t kLast16 = 0xFFFF;

// `Index` is 32 bits wide where that is enough, so that the loop runs in vectors.
template <typename Index>
void FillScale16(Index firstIndex, float n, std::vector<std::uint8_t>* entries)
{
    std::uint8_t* out = entries->data();
    const auto count = static_cast<std::int32_t>(entries->size());
    for (std::int32_t k = 0; k < count; ++k) {
        const float v = static_cast<float>(firstIndex + k) / n * 255.0F;
        auto r = static_cast<std::int32_t>(v);
        r += v - static_cast<float>(r) >= 0.5F;  // the difference is exact: no wider type is needed
        out[k] = static_cast<std::uint8_t>(255 - std::min(r, 255));
    }
}

}  // namespace

QvxStatus VOIBlitterBase_GetVOIBounds(const VOIBlitter* blit, std::int32_t level,
                                      std::uint32_t width, VOIBounds* bounds)
{
    if (!IsVOIBlitter(blit) || !bounds)
        return kQvxBadArgument;
    VOIBounds window;
    window.lo = std::int64_t{level} - (width >> 1);
    window.hi = window.lo + width - 1;
    if (blit->fClipping == QvxVOIBoundsClippingOption::PixelBounds) {
        if (!blit->fBoundsSet)
            return kQvxBadArgument;
        window.lo = std::max<std::int64_t>(window.lo, blit->fPixelMinimum);
        window.hi = std::min<std::int64_t>(window.hi, blit->fPixelMaximum);
    } else if (blit->fClipping != QvxVOIBoundsClippingOption::None) {
        return kQvxSeekFailed;
    }
    if (window.hi <= window.lo)
        window.hi = window.lo + 1;
    *bounds = window;
    return kQvxOK;
}

QvxStatus VOIBlitterBase_GetVOIScale16to8(const VOIBounds& bounds, VOIScale16* scale)
{
    if (!scale || bounds.hi <= bounds.lo)
        return kQvxBadArgument;
    const std::int64_t first = std::clamp<std::int64_t>(0, bounds.lo, bounds.hi);
    const std::int64_t last = std::clamp(kLast16, bounds.lo, bounds.hi);
    VOIScale16 made{first, {}};
    try {
        made.entries.resize(static_cast<std::size_t>(last - first + 1));
    } catch (const std::bad_alloc&) {
        return kQvxNoMemory;
    }
    const auto n = static_cast<float>(bounds.hi - bounds.lo);
    if (last - bounds.lo <= std::numeric_limits<std::int32_t>::max())
        FillScale16(static_cast<std::int32_t>(first - bounds.lo), n, &made.entries);
    else
        FillScale16(first - bounds.lo, n, &made.entries);
    *scale = std::move(made);
    return kQvxOK;
}

QvxStatus VOIBlitterBase_GetVOIScale8_256(const VOIBounds& bounds, VOIScale256* scale)
{
    if (!scale || bounds.hi <= bounds.lo)
        return kQvxBadArgument;
    const auto edge = [](std::int64_t bound) {
        return static_cast<int>(std::clamp<std::int64_t>(bound, -1, 255));
    };
    const int lo = edge(bounds.lo), hi = edge(bounds.hi);
    const float step = 255.0F / static_cast<float>(bounds.hi - bounds.lo);
    int i = 0;
    for (; i <= lo; ++i)
        (*scale)[static_cast<std::size_t>(i)] = 0;
    for (; i <= hi; ++i)
        (*scale)[static_cast<std::size_t>(i)] =
            static_cast<std::uint8_t>(static_cast<float>(i - bounds.lo) * step);
    for (; i <= 255; ++i)
        (*scale)[static_cast<std::size_t>(i)] = 255;
    return kQvxOK;
}

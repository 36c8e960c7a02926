#include "pixels/RGBRows.h"

// This file is compiled once for each kind of processor: foreach_target.h includes it again.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "pixels/RGBRows.cpp"
#include <hwy/foreach_target.h>
#include <hwy/highway.h>

HWY_BEFORE_NAMESPACE();
namespace zel_rgb {
namespace HWY_NAMESPACE {  // NOLINT: one namespace for each kind of processor
namespace hn = hwy::HWY_NAMESPACE;

constexpr std::size_t kBlock = 4;  // pixels in 16 bytes of memory
// A block of three-byte pixels is loaded and stored with the 4 bytes behind it, which must be of
// the row: so many pixels at its end are left.
constexpr std::size_t kSpare = 2;

#if HWY_TARGET == HWY_SCALAR
std::size_t SpreadBlocks(const std::uint8_t*, std::uint8_t*, std::size_t) { return 0; }
std::size_t PackBlocks(const std::uint8_t*, std::uint8_t*, std::size_t) { return 0; }
#else
using Block = hn::FixedTag<std::uint8_t, 16>;
constexpr std::uint8_t kNone = 0x80;  // a byte 0

// Each answers how many pixels it did.
std::size_t SpreadBlocks(const std::uint8_t* rgb, std::uint8_t* argb, std::size_t pixels)
{
    alignas(16) static constexpr std::uint8_t kFrom[16] = {kNone, 0, 1, 2, kNone, 3, 4,  5,
                                                           kNone, 6, 7, 8, kNone, 9, 10, 11};
    const Block d;
    const auto from = hn::Load(d, kFrom);
    std::size_t i = 0;
    for (; i + kBlock + kSpare <= pixels; i += kBlock)
        hn::StoreU(hn::TableLookupBytesOr0(hn::LoadU(d, rgb + 3 * i), from), d, argb + 4 * i);
    return i;
}

std::size_t PackBlocks(const std::uint8_t* argb, std::uint8_t* rgb, std::size_t pixels)
{
    alignas(16) static constexpr std::uint8_t kFrom[16] = {
        1, 2, 3, 5, 6, 7, 9, 10, 11, 13, 14, 15, kNone, kNone, kNone, kNone};
    const Block d;
    const auto from = hn::Load(d, kFrom);
    std::size_t i = 0;
    for (; i + kBlock + kSpare <= pixels; i += kBlock)
        hn::StoreU(hn::TableLookupBytesOr0(hn::LoadU(d, argb + 4 * i), from), d, rgb + 3 * i);
    return i;
}
#endif

}  // namespace HWY_NAMESPACE
}  // namespace zel_rgb
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace zel_rgb {
HWY_EXPORT(SpreadBlocks);
HWY_EXPORT(PackBlocks);
}  // namespace zel_rgb

void SpreadRGBRow(const std::uint8_t* rgb, std::uint8_t* argb, std::size_t pixels)
{
    using namespace zel_rgb;
    for (std::size_t i = HWY_DYNAMIC_DISPATCH(SpreadBlocks)(rgb, argb, pixels); i < pixels; ++i) {
        argb[4 * i] = 0;
        argb[4 * i + 1] = rgb[3 * i];
        argb[4 * i + 2] = rgb[3 * i + 1];
        argb[4 * i + 3] = rgb[3 * i + 2];
    }
}

void PackARGBRow(const std::uint8_t* argb, std::uint8_t* rgb, std::size_t pixels)
{
    using namespace zel_rgb;
    for (std::size_t i = HWY_DYNAMIC_DISPATCH(PackBlocks)(argb, rgb, pixels); i < pixels; ++i) {
        rgb[3 * i] = argb[4 * i + 1];
        rgb[3 * i + 1] = argb[4 * i + 2];
        rgb[3 * i + 2] = argb[4 * i + 3];
    }
}
#endif

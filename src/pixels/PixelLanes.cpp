#include "pixels/PixelLanes.h"

// This file is compiled once for each kind of processor: foreach_target.h includes it again.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "pixels/PixelLanes.cpp"
#include <bit>
#include <cstring>
#include <hwy/foreach_target.h>
#include <hwy/highway.h>

static_assert(std::endian::native == std::endian::little, "words are B, G, R, 255 in memory");
HWY_BEFORE_NAMESPACE();
namespace zel_pixels {
namespace HWY_NAMESPACE {  // NOLINT: one namespace for each kind of processor
namespace hn = hwy::HWY_NAMESPACE;
using PixelLanes::ColorRows;

// Each function begins with whole vectors, and a plain loop does what is left of the row.
#if HWY_TARGET != HWY_SCALAR
using Bytes = hn::ScalableTag<std::uint8_t>;
HWY_INLINE std::size_t Whole(std::size_t count) { return count - count % hn::Lanes(Bytes()); }
#endif

void GrayToARGB(const std::uint8_t* gray, std::uint8_t flip, std::size_t count, std::uint8_t* argb)
{
    std::size_t i = 0;
#if HWY_TARGET != HWY_SCALAR
    const Bytes d;
    const auto turn = hn::Set(d, flip), opaque = hn::Set(d, 255);
    for (const std::size_t end = Whole(count); i < end; i += hn::Lanes(d)) {
        const auto g = hn::Xor(hn::LoadU(d, gray + i), turn);
        hn::StoreInterleaved4(opaque, g, g, g, d, argb + 4 * i);
    }
#endif
    for (; i < count; ++i) {
        const auto g = static_cast<std::uint8_t>(gray[i] ^ flip);
        const std::uint8_t pixel[4] = {255, g, g, g};
        std::memcpy(argb + 4 * i, pixel, sizeof pixel);
    }
}

void GrayToWords(const std::uint8_t* gray, std::uint8_t flip, std::size_t count,
                 std::uint8_t* words)
{
    std::size_t i = 0;
#if HWY_TARGET != HWY_SCALAR
    const Bytes d;
    const auto turn = hn::Set(d, flip), opaque = hn::Set(d, 255);
    for (const std::size_t end = Whole(count); i < end; i += hn::Lanes(d)) {
        const auto g = hn::Xor(hn::LoadU(d, gray + i), turn);
        hn::StoreInterleaved4(g, g, g, opaque, d, words + 4 * i);
    }
#endif
    for (; i < count; ++i) {
        const auto g = static_cast<std::uint8_t>(gray[i] ^ flip);
        const std::uint8_t pixel[4] = {g, g, g, 255};
        std::memcpy(words + 4 * i, pixel, sizeof pixel);
    }
}

void ARGBToWords(const std::uint8_t* argb, std::size_t count, std::uint8_t* words)
{
    std::size_t i = 0;
#if HWY_TARGET != HWY_SCALAR
    alignas(16) static constexpr std::uint8_t kTurned[16] = {3,  2,  1, 0, 7,  6,  5,  4,
                                                             11, 10, 9, 8, 15, 14, 13, 12};
    const Bytes d;
    const hn::Repartition<std::uint32_t, Bytes> d32;
    const auto order = hn::LoadDup128(d, kTurned);
    const auto opaque = hn::BitCast(d, hn::Set(d32, 0xFF000000u));
    for (const std::size_t end = Whole(4 * count) / 4; i < end; i += hn::Lanes(d32)) {
        const auto pixels = hn::TableLookupBytes(hn::LoadU(d, argb + 4 * i), order);
        hn::StoreU(hn::Or(pixels, opaque), d, words + 4 * i);
    }
#endif
    for (; i < count; ++i) {
        const std::uint8_t* in = argb + 4 * i;
        const std::uint8_t pixel[4] = {in[3], in[2], in[1], 255};
        std::memcpy(words + 4 * i, pixel, sizeof pixel);
    }
}

void SplitARGB(const std::uint8_t* argb, std::size_t count, const ColorRows& planes)
{
    std::size_t i = 0;
#if HWY_TARGET != HWY_SCALAR
    const Bytes d;
    for (const std::size_t end = Whole(count); i < end; i += hn::Lanes(d)) {
        hn::Vec<Bytes> a, r, g, b;
        hn::LoadInterleaved4(d, argb + 4 * i, a, r, g, b);
        hn::StoreU(r, d, planes.red + i);
        hn::StoreU(g, d, planes.green + i);
        hn::StoreU(b, d, planes.blue + i);
    }
#endif
    for (; i < count; ++i) {
        planes.red[i] = argb[4 * i + 1];
        planes.green[i] = argb[4 * i + 2];
        planes.blue[i] = argb[4 * i + 3];
    }
}

void JoinARGB(const ColorRows& planes, std::size_t count, std::uint8_t* argb)
{
    std::size_t i = 0;
#if HWY_TARGET != HWY_SCALAR
    const Bytes d;
    const auto opaque = hn::Set(d, 255);
    for (const std::size_t end = Whole(count); i < end; i += hn::Lanes(d))
        hn::StoreInterleaved4(opaque, hn::LoadU(d, planes.red + i), hn::LoadU(d, planes.green + i),
                              hn::LoadU(d, planes.blue + i), d, argb + 4 * i);
#endif
    for (; i < count; ++i) {
        const std::uint8_t pixel[4] = {255, planes.red[i], planes.green[i], planes.blue[i]};
        std::memcpy(argb + 4 * i, pixel, sizeof pixel);
    }
}

void FlipBytes(std::uint8_t* bytes, std::uint32_t pattern, std::size_t count)
{
    std::size_t i = 0;
#if HWY_TARGET != HWY_SCALAR
    const Bytes d;
    const auto turn = hn::BitCast(d, hn::Set(hn::Repartition<std::uint32_t, Bytes>(), pattern));
    for (const std::size_t end = Whole(count); i < end; i += hn::Lanes(d))
        hn::StoreU(hn::Xor(hn::LoadU(d, bytes + i), turn), d, bytes + i);
#endif
    for (; i < count; ++i)
        bytes[i] ^= static_cast<std::uint8_t>(pattern >> 8 * (i % 4));
}

}  // namespace HWY_NAMESPACE
}  // namespace zel_pixels
HWY_AFTER_NAMESPACE();

#if HWY_ONCE

namespace zel_pixels {
HWY_EXPORT(GrayToARGB);
HWY_EXPORT(GrayToWords);
HWY_EXPORT(ARGBToWords);
HWY_EXPORT(SplitARGB);
HWY_EXPORT(JoinARGB);
HWY_EXPORT(FlipBytes);
}  // namespace zel_pixels

using namespace zel_pixels;

void PixelLanes::GrayToARGB(const std::uint8_t* gray, std::uint8_t flip, std::size_t count,
                            std::uint8_t* argb)
{
    HWY_DYNAMIC_DISPATCH(GrayToARGB)(gray, flip, count, argb);
}

void PixelLanes::GrayToWords(const std::uint8_t* gray, std::uint8_t flip, std::size_t count,
                             std::uint8_t* words)
{
    HWY_DYNAMIC_DISPATCH(GrayToWords)(gray, flip, count, words);
}

void PixelLanes::ARGBToWords(const std::uint8_t* argb, std::size_t count, std::uint8_t* words)
{
    HWY_DYNAMIC_DISPATCH(ARGBToWords)(argb, count, words);
}

void PixelLanes::SplitARGB(const std::uint8_t* argb, std::size_t count, const ColorRows& planes)
{
    HWY_DYNAMIC_DISPATCH(SplitARGB)(argb, count, planes);
}

void PixelLanes::JoinARGB(const ColorRows& planes, std::size_t count, std::uint8_t* argb)
{
    HWY_DYNAMIC_DISPATCH(JoinARGB)(planes, count, argb);
}

void PixelLanes::FlipBytes(std::uint8_t* bytes, std::uint32_t pattern, std::size_t count)
{
    HWY_DYNAMIC_DISPATCH(FlipBytes)(bytes, pattern, count);
}

#endif  // HWY_ONCE

#include "Qvx2VOIBlitter/VOIKernels.h"

#include "util/ByteOrder.h"

#include <algorithm>
#include <cstring>

namespace {

constexpr std::uint32_t kOpaqueBlack = 0xFF000000;
constexpr std::uint32_t kGrayStep = 0x00010101;    // one gray level in a 32-bit pixel
constexpr std::uint32_t kLastGrayWord = 0xFFFFFF;  // mixed words above it are colour

// A table as the loops use it: a value clamped to `first` to `last` is looked up less `first`.
struct Lookup {
    const std::uint8_t* entries = nullptr;
    std::uint32_t first = 0, last = 0;

    [[nodiscard]] std::uint8_t operator[](std::uint32_t value) const
    {
        return entries[std::min(std::max(value, first), last) - first];
    }
    [[nodiscard]] std::uint32_t Pixel(std::uint32_t value) const
    {
        return kOpaqueBlack + kGrayStep * (255U - (*this)[value]);
    }
};

Lookup LookupFrom(const std::uint8_t* entries, std::int64_t first, std::size_t count)
{
    const auto from = static_cast<std::uint32_t>(std::clamp<std::int64_t>(first, 0, 0xFFFF));
    return {entries, from, from + static_cast<std::uint32_t>(count) - 1};
}

QvxStatus CheckParams(const VOIParams& params)
{
    switch (params.tag) {
        case VOIParamTag::Bounds:
        case VOIParamTag::BoundsAndTable:
            return params.bounds.hi > params.bounds.lo ? kQvxOK : kQvxBadArgument;
        case VOIParamTag::Other:
            return kQvxUnsupported;
    }
    return kQvxSeekFailed;
}

// The look-up of a 16-bit kernel; `made` keeps the table if one must be made.
QvxStatus GetLookup16(const VOIParams& params, VOIScale16* made, Lookup* lookup)
{
    if (const QvxStatus status = CheckParams(params))
        return status;
    const auto [lo, hi] = params.bounds;
    if (params.tag == VOIParamTag::BoundsAndTable) {
        if (params.table.size() != static_cast<std::uint64_t>(hi - lo) + 1)
            return kQvxBadArgument;
        const std::int64_t first = std::clamp<std::int64_t>(0, lo, hi);
        const std::int64_t last = std::clamp<std::int64_t>(0xFFFF, lo, hi);
        *lookup = LookupFrom(params.table.data() + (first - lo), first,
                             static_cast<std::size_t>(last - first + 1));
        return kQvxOK;
    }
    if (const QvxStatus status = VOIBlitterBase_GetVOIScale16to8(params.bounds, made))
        return status;
    *lookup = LookupFrom(made->entries.data(), made->first, made->entries.size());
    return kQvxOK;
}

// Runs `row(source, destination, width)` over all rows.
template <typename Row>
void ForEachRow(const VOIPixels& pixels, Row row)
{
    for (std::int32_t y = 0; y < pixels.height; ++y) {
        row(pixels.source + std::ptrdiff_t{y} * pixels.sourceRowBytes,
            pixels.destination + std::ptrdiff_t{y} * pixels.destinationRowBytes, pixels.width);
    }
}

// In place, with rows of the destination that are at least as long: from the last pixel to the
// first, so that nothing is overwritten before it was read.
void LookUpInPlace(const VOIScale256& lookup, const VOIPixels& pixels)
{
    for (std::ptrdiff_t y = pixels.height - 1; y >= 0; --y) {
        const std::uint8_t* in = pixels.source + y * pixels.sourceRowBytes;
        std::uint8_t* out = pixels.destination + y * pixels.destinationRowBytes;
        for (std::ptrdiff_t x = pixels.width - 1; x >= 0; --x)
            out[x] = lookup[in[x]];
    }
}

// A 16-bit kernel: the look-up, then the rows.
template <typename Row>
QvxStatus Apply16(const VOIParams& params, const VOIPixels& pixels, Row row)
{
    VOIScale16 made;
    Lookup lookup;
    if (const QvxStatus status = GetLookup16(params, &made, &lookup))
        return status;
    ForEachRow(pixels, [&](const std::uint8_t* in, std::uint8_t* out, std::int32_t width) {
        row(lookup, in, out, width);
    });
    return kQvxOK;
}

}  // namespace

QvxStatus VOIBlitterBase_ApplyVOITransformation16to8(const VOIParams& params,
                                                     const VOIPixels& pixels)
{
    return Apply16(
        params, pixels,
        [](Lookup lookup, const std::uint8_t* in, std::uint8_t* out, std::int32_t width) {
            for (std::int32_t x = 0; x < width; ++x)
                out[x] = lookup[LoadBE<std::uint16_t>(in + 2 * std::ptrdiff_t{x})];
        });
}

QvxStatus VOIBlitterBase_ApplyVOITransformation16to32ARGB(const VOIParams& params,
                                                          const VOIPixels& pixels)
{
    return Apply16(
        params, pixels,
        [](Lookup lookup, const std::uint8_t* in, std::uint8_t* out, std::int32_t width) {
            for (std::int32_t x = 0; x < width; ++x, in += 2, out += 4)
                StoreBE(out, lookup.Pixel(LoadBE<std::uint16_t>(in)));
        });
}

QvxStatus VOIBlitterBase_ApplyVOITransformation32MixedTo32ARGB(const VOIParams& params,
                                                               const VOIPixels& pixels)
{
    return Apply16(
        params, pixels,
        [](Lookup lookup, const std::uint8_t* in, std::uint8_t* out, std::int32_t width) {
            for (std::int32_t x = 0; x < width; ++x, in += 4, out += 4) {
                std::uint32_t word;
                std::memcpy(&word, in, sizeof word);
                const std::uint32_t gray = lookup.Pixel(word & 0xFFFF);
                word = word > kLastGrayWord ? word : gray;
                std::memcpy(out, &word, sizeof word);
            }
        });
}

QvxStatus VOIBlitterBase_ApplyVOITransformation8to8_256(const VOIParams& params,
                                                        const VOIPixels& pixels)
{
    if (const QvxStatus status = CheckParams(params))
        return status;
    // Equal widths, so the shorter row has the smaller padding.
    if (pixels.source == pixels.destination && pixels.destinationRowBytes < pixels.sourceRowBytes)
        return kQvxUnsupported;
    VOIScale256 scale;
    if (params.tag == VOIParamTag::BoundsAndTable) {
        if (params.table.size() != scale.size())
            return kQvxBadArgument;
        std::ranges::copy(params.table, scale.begin());
    } else if (const QvxStatus status = VOIBlitterBase_GetVOIScale8_256(params.bounds, &scale)) {
        return status;
    }
    VOIScale256 lookup;
    for (std::size_t j = 0; j < lookup.size(); ++j)
        lookup[j] = static_cast<std::uint8_t>(255 - scale[255 - j]);
    if (pixels.source == pixels.destination)
        LookUpInPlace(lookup, pixels);
    else
        ForEachRow(pixels, [&](const std::uint8_t* in, std::uint8_t* out, std::int32_t width) {
            for (std::int32_t x = 0; x < width; ++x)
                out[x] = lookup[in[x]];
        });
    return kQvxOK;
}

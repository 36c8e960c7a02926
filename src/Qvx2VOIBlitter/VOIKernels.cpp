#include "Qvx2VOIBlitter/VOIKernels.h"

#include "Qvx2VOIBlitter/VOIVectorRows.h"
#include <algorithm>
#include <cstring>

namespace {

constexpr std::uint32_t kOpaqueBlack = 0xFF000000;
constexpr std::uint32_t kGrayStep = 0x00010101;    // one gray level in a 32-bit pixel
constexpr std::uint32_t kLastGrayWord = 0xFFFFFF;  // mixed words above it are colour

std::uint8_t EntryOf(const VOILookup& lookup, std::uint32_t value)
{
    return lookup
        .entries[std::clamp<std::uint32_t>(value, lookup.first, lookup.last) - lookup.first];
}

VOILookup LookupFrom(const std::uint8_t* entries, std::int64_t first, std::size_t count)
{
    const auto from = static_cast<std::uint16_t>(std::clamp<std::int64_t>(first, 0, 0xFFFF));
    return {entries, from, static_cast<std::uint16_t>(from + count - 1)};
}

QvxStatus CheckParams(const VOIParams& params)
{
    switch (params.tag) {
        case VOIParamTag::Bounds:
            return params.bounds.hi > params.bounds.lo ? kQvxOK : kQvxBadArgument;
        case VOIParamTag::BoundsAndTable:
            return params.bounds.hi >= params.bounds.lo ? kQvxOK : kQvxBadArgument;
        case VOIParamTag::Other:
            return kQvxUnsupported;
    }
    return kQvxSeekFailed;
}

// The look-up of a 16-bit kernel; `made` keeps the table if one must be made.
QvxStatus GetLookup16(const VOIParams& params, VOIScale16* made, VOILookup* lookup)
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

// The look-up of bytes by a curve over display values.
QvxStatus GetLookup8(const VOIParams& params, VOIScale256* table)
{
    if (params.tag == VOIParamTag::Bounds)
        return kQvxUnsupported;
    VOILookup lookup;
    if (const QvxStatus status = GetLookup16(params, nullptr, &lookup))
        return status;
    for (std::uint32_t byte = 0; byte < table->size(); ++byte)
        (*table)[byte] = EntryOf(lookup, 255 - byte);
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

void MixedTableRows(const VOILookup& lookup, const VOIPixels& pixels)
{
    ForEachRow(pixels, [&](const std::uint8_t* in, std::uint8_t* out, std::int32_t width) {
        for (std::int32_t x = 0; x < width; ++x, in += 4, out += 4) {
            std::uint32_t word;
            std::memcpy(&word, in, sizeof word);
            if (word <= kLastGrayWord)
                word = kOpaqueBlack + kGrayStep * (255U - EntryOf(lookup, word & 0xFFFF));
            std::memcpy(out, &word, sizeof word);
        }
    });
}

// A 16-bit kernel: a window by its ramp where that can be computed, all else by a table.
QvxStatus Apply16(const VOIParams& params, const VOIRampUse& use,
                  bool (*rampRows)(const VOIRamp&, const VOIPixels&),
                  void (*tableRows)(const VOILookup&, const VOIPixels&), const VOIPixels& pixels)
{
    if (const QvxStatus status = CheckParams(params))
        return status;
    VOIRamp ramp;
    if (params.tag == VOIParamTag::Bounds && MakeVOIRamp(params.bounds, use, &ramp) &&
        rampRows(ramp, pixels))
        return kQvxOK;
    VOIScale16 made;
    VOILookup lookup;
    if (const QvxStatus status = GetLookup16(params, &made, &lookup))
        return status;
    tableRows(lookup, pixels);
    return kQvxOK;
}

}  // namespace

QvxStatus VOIBlitterBase_ApplyVOITransformation16to8(const VOIParams& params,
                                                     const VOIPixels& pixels)
{
    return Apply16(params, {.bigEndian = true, .grayFlip = 255}, VOIRampRows16to8,
                   VOITableRows16to8, pixels);
}

QvxStatus VOIBlitterBase_ApplyVOITransformation16to32ARGB(const VOIParams& params,
                                                          const VOIPixels& pixels)
{
    return Apply16(params, {.bigEndian = true, .grayFlip = 0}, VOIRampRows16to32ARGB,
                   VOITableRows16to32ARGB, pixels);
}

QvxStatus VOIBlitterBase_ApplyVOITransformation32MixedTo32ARGB(const VOIParams& params,
                                                               const VOIPixels& pixels)
{
    return Apply16(params, {.bigEndian = false, .grayFlip = 0}, VOIRampRowsMixedTo32ARGB,
                   MixedTableRows, pixels);
}

QvxStatus VOIBlitterBase_ApplyVOITransformation8to8_256(const VOIParams& params,
                                                        const VOIPixels& pixels)
{
    if (const QvxStatus status = CheckParams(params))
        return status;
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
    return LookUp8to8(lookup, pixels);
}

QvxStatus ApplyCurve8to8(const VOIParams& params, const VOIPixels& pixels)
{
    VOIScale256 lookup;
    if (const QvxStatus status = GetLookup8(params, &lookup))
        return status;
    return LookUp8to8(lookup, pixels);
}

QvxStatus ApplyCurve8to32ARGB(const VOIParams& params, const VOIPixels& pixels)
{
    VOIScale256 lookup;
    if (const QvxStatus status = GetLookup8(params, &lookup))
        return status;
    for (std::uint8_t& entry : lookup)
        entry = static_cast<std::uint8_t>(255 - entry);
    LookUp8to32ARGB(lookup, pixels);
    return kQvxOK;
}

QvxStatus LookUp8to8(const VOIScale256& table, const VOIPixels& pixels)
{
    if (pixels.source == pixels.destination) {
        // Equal widths, so the shorter row has the smaller padding.
        if (pixels.destinationRowBytes < pixels.sourceRowBytes)
            return kQvxUnsupported;
        LookUpInPlace(table, pixels);
        return kQvxOK;
    }
    ForEachRow(pixels, [&](const std::uint8_t* in, std::uint8_t* out, std::int32_t width) {
        for (std::int32_t x = 0; x < width; ++x)
            out[x] = table[in[x]];
    });
    return kQvxOK;
}

void LookUp8to32ARGB(const VOIScale256& table, const VOIPixels& pixels)
{
    VOITableRows8to32ARGB(table, pixels);
}

#include "Qvx2VOIBlitter/VOIHostKernels.h"

#include "Qvx2VOIBlitter/VOIVectorRows.h"
#include <algorithm>
#include <cstring>
#include <new>
#include <type_traits>

namespace {

constexpr std::int32_t kBlock = 32;  // pixels, and bytes of the destination's alignment
constexpr std::int32_t kGroup = 4;

// The window over words of type `Word`.
template <typename Word>
class HostScale {
public:
    QvxStatus Set(std::int32_t lo, std::int32_t hi)
    {
        fLo = lo;
        fHi = hi;
        return GetVOIScale16to8(lo, hi, &fTable);
    }
    [[nodiscard]] std::uint8_t At(const std::uint8_t* word) const
    {
        Word stored;
        std::memcpy(&stored, word, sizeof stored);
        const std::int32_t value = stored;
        if (value < fLo)
            return 0;
        if (value > fHi)
            return 255;
        const auto index = static_cast<std::size_t>(std::int64_t{value} - fLo);
        return fTable[std::min(index, fTable.size() - 1)];
    }

private:
    std::int32_t fLo = 0, fHi = 0;
    std::vector<std::uint8_t> fTable;
};

template <typename Word>
void Singles(const HostScale<Word>& scale, const std::uint8_t* in, std::uint8_t* out,
             std::int32_t count)
{
    for (std::int32_t x = 0; x < count; ++x)
        out[x] = scale.At(in + std::ptrdiff_t{x} * 2);
}

// Blocks of 32 pixels, in groups of four that are stored with one write.
void Blocks(const HostScale<std::uint16_t>& scale, const std::uint8_t* in, std::uint8_t* out,
            std::int32_t blocks)
{
    for (std::int32_t group = 0; group < blocks * (kBlock / kGroup); ++group) {
        std::uint8_t four[kGroup];
        for (std::uint8_t& pixel : four) {
            pixel = scale.At(in);
            in += 2;
        }
        std::memcpy(out, four, sizeof four);
        out += kGroup;
    }
}

// Pixels of a row before the next 32-byte boundary of the destination.
std::int32_t LeadOf(const std::uint8_t* out, std::int32_t width)
{
    const auto past = reinterpret_cast<std::uintptr_t>(out) % kBlock;
    return std::min(width, static_cast<std::int32_t>((kBlock - past) % kBlock));
}

bool PixelsUsable(const VOIHostPixels& pixels)
{
    return pixels.source && pixels.destination && pixels.width >= 0 && pixels.height >= 0 &&
           pixels.destinationRowBytes >= pixels.width;
}

// A window whose table is a plain ramp, without the table; words of `wordFlip` 0x8000 are signed.
// False with nothing written if it needs the table.
bool ApplyAsRamp(const VOIHostPixels& pixels, std::uint16_t wordFlip)
{
    const VOIBounds bounds{std::int64_t{pixels.lo} + wordFlip, std::int64_t{pixels.hi} + wordFlip};
    const VOIRampUse use{.bigEndian = false, .wordFlip = wordFlip, .grayFlip = 0};
    VOIRamp ramp;
    return bounds.hi > bounds.lo && bounds.hi - bounds.lo <= kLastWholeLength &&
           MakeVOIRamp(bounds, use, &ramp) &&
           VOIRampRows16to8(
               ramp,
               {pixels.width, pixels.height, static_cast<const std::uint8_t*>(pixels.source),
                pixels.destination, std::ptrdiff_t{pixels.width} * 2, pixels.destinationRowBytes});
}

// Runs `row(scale, source, destination, width)` over all rows.
template <typename Word, typename Row>
QvxStatus ApplyToRows(const VOIHostPixels& pixels, Row row)
{
    if (!PixelsUsable(pixels))
        return kQvxBadArgument;
    if (ApplyAsRamp(pixels, std::is_signed_v<Word> ? 0x8000 : 0))
        return kQvxOK;
    HostScale<Word> scale;
    if (const QvxStatus status = scale.Set(pixels.lo, pixels.hi))
        return status;
    const auto* in = static_cast<const std::uint8_t*>(pixels.source);
    for (std::int32_t y = 0; y < pixels.height; ++y) {
        row(scale, in + std::ptrdiff_t{y} * pixels.width * 2,
            pixels.destination + std::ptrdiff_t{y} * pixels.destinationRowBytes, pixels.width);
    }
    return kQvxOK;
}

}  // namespace

QvxStatus GetVOIScale16to8(std::int32_t lo, std::int32_t hi, std::vector<std::uint8_t>* table)
{
    if (!table)
        return kQvxBadArgument;
    const auto n = static_cast<std::int32_t>((std::int64_t{hi} - lo) & 0xFFFF);
    std::vector<std::uint8_t> made;
    try {
        made.resize(static_cast<std::size_t>(n) + 1);
    } catch (const std::bad_alloc&) {
        return kQvxNoMemory;
    }
    for (std::int32_t i = 1; i <= n; ++i)  // entry 0 is 0
        made[static_cast<std::size_t>(i)] = static_cast<std::uint8_t>((510 * i / n + 1) >> 1);
    *table = std::move(made);
    return kQvxOK;
}

QvxStatus ApplyVOITransformation_SInt16to8(const VOIHostPixels& pixels)
{
    return ApplyToRows<std::int16_t>(pixels, Singles<std::int16_t>);
}

QvxStatus ApplyVOITransformation_UInt16to8(const VOIHostPixels& pixels)
{
    return ApplyToRows<std::uint16_t>(
        pixels, [](const HostScale<std::uint16_t>& scale, const std::uint8_t* in, std::uint8_t* out,
                   std::int32_t width) {
            const std::int32_t lead = LeadOf(out, width);
            const std::int32_t blocks = (width - lead) / kBlock;
            const std::int32_t done = lead + blocks * kBlock;
            Singles(scale, in, out, lead);
            Blocks(scale, in + std::ptrdiff_t{lead} * 2, out + lead, blocks);
            Singles(scale, in + std::ptrdiff_t{done} * 2, out + done, width - done);
        });
}

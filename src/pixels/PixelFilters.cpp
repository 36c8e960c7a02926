#include "pixels/PixelFilters.h"

#include "pixels/COffscreenUtils.h"
#include "pixels/ColorMatch.h"
#include "pixels/Guarded.h"
#include "pixels/PixelFormat.h"
#include "util/ByteOrder.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

namespace {

constexpr double kMostPercent = 100;

// The line of brightness and contrast for values from 0 to `most`.
class BrightnessContrast {
public:
    BrightnessContrast(const FilterParameters& parameters, double most)
        : fMost(most),
          fMiddle(most / 2),
          fShift(Percent(parameters.Get(kFilterBrightness)) * most / 2),
          // The tangent runs from 0 by 1 to no bounds: the line lies flat, straight, upright.
          fSlope(std::tan((Percent(parameters.Get(kFilterContrast)) + 1) * kEighthTurn))
    {
    }
    [[nodiscard]] std::uint32_t Of(double value) const
    {
        const double changed = (value - fMiddle) * fSlope + fMiddle + fShift;
        return static_cast<std::uint32_t>(std::lround(std::clamp(changed, 0.0, fMost)));
    }

private:
    static constexpr double kEighthTurn = 0.78539816339744831;
    static double Percent(std::int32_t value)
    {
        return std::clamp<double>(value, -kMostPercent, kMostPercent) / kMostPercent;
    }
    double fMost, fMiddle, fShift, fSlope;
};

bool IsKnown(const FilterParameters& parameters)
{
    return static_cast<std::uint32_t>(parameters.Get(kFilterWhat)) == kFilterBrightnessContrast;
}

bool IsNeutral(const FilterParameters& parameters)
{
    return parameters.Get(kFilterBrightness) == 0 && parameters.Get(kFilterContrast) == 0;
}

using ByteTable = std::array<std::uint8_t, 256>;

ByteTable TableOfBytes(const FilterParameters& parameters)
{
    const BrightnessContrast line(parameters, 255);
    ByteTable table{};
    for (std::size_t i = 0; i < table.size(); ++i)
        table[i] = static_cast<std::uint8_t>(line.Of(static_cast<double>(i)));
    return table;
}

template <typename Row>
void ForRows(const Port& source, Port* target, Row&& row)
{
    for (int v = 0; v < HeightOf(source.bounds); ++v)
        row(source.baseAddr + std::ptrdiff_t{v} * source.rowBytes,
            target->baseAddr + std::ptrdiff_t{v} * target->rowBytes);
}

void FilterARGB(const FilterParameters& parameters, const Port& source, Port* target)
{
    const ByteTable table = TableOfBytes(parameters);
    const auto width = static_cast<std::size_t>(WidthOf(source.bounds));
    ForRows(source, target, [&](const std::uint8_t* from, std::uint8_t* to) {
        for (std::size_t i = 0; i < 4 * width; i += 4) {
            to[i] = from[i];
            for (std::size_t color = 1; color < 4; ++color)
                to[i + color] = table[from[i + color]];
        }
    });
}

void FilterGray16(const FilterParameters& parameters, const Port& source, Port* target)
{
    const BrightnessContrast line(parameters, 65535);
    std::vector<std::uint16_t> table(65536);
    for (std::size_t i = 0; i < table.size(); ++i)
        table[i] = static_cast<std::uint16_t>(line.Of(static_cast<double>(i)));
    const auto width = static_cast<std::size_t>(WidthOf(source.bounds));
    ForRows(source, target, [&](const std::uint8_t* from, std::uint8_t* to) {
        for (std::size_t i = 0; i < 2 * width; i += 2)
            StoreBE(to + i, table[LoadBE<std::uint16_t>(from + i)]);
    });
}

// A new index for each index: the first one whose gray comes nearest to the changed one.
void FilterGray8(const FilterParameters& parameters, const ColorTable& colors, const Port& source,
                 Port* target)
{
    const ByteTable table = TableOfBytes(parameters);
    const ColorLookup grays = LookupOf(colors);
    ByteTable indexes{};
    for (std::size_t i = 0; i < indexes.size(); ++i) {
        const std::uint8_t gray = table[grays[i][1]];
        indexes[i] = NearestEntry(colors, {0xFF, gray, gray, gray});
    }
    const auto width = static_cast<std::size_t>(WidthOf(source.bounds));
    ForRows(source, target, [&](const std::uint8_t* from, std::uint8_t* to) {
        for (std::size_t i = 0; i < width; ++i)
            to[i] = indexes[from[i]];
    });
}

QvxStatus CopyWhole(const Port& source, Port* target)
{
    return COffscreenUtils::CopyOffscreen(source, target, nullptr, nullptr, CopyMode::Replace,
                                          nullptr);
}

}  // namespace

void FilterParameters::Set(std::uint32_t tag, std::int32_t value)
{
    auto entry = std::ranges::find(fEntries, tag, &Entry::fTag);
    if (entry == fEntries.end())
        entry = fEntries.insert(entry, {tag, {}});
    StoreBE(entry->fBytes, static_cast<std::uint32_t>(value));
}

std::int32_t FilterParameters::Get(std::uint32_t tag) const
{
    const auto entry = std::ranges::find(fEntries, tag, &Entry::fTag);
    return entry != fEntries.end() ? static_cast<std::int32_t>(LoadBE<std::uint32_t>(entry->fBytes))
                                   : 0;
}

QvxStatus FilterGWorldToGWorld(const FilterParameters& parameters, const Port& source, Port* target)
{
    if (!target || !source.baseAddr || !target->baseAddr ||
        source.pixelFormat != target->pixelFormat ||
        WidthOf(source.bounds) != WidthOf(target->bounds) ||
        HeightOf(source.bounds) != HeightOf(target->bounds))
        return kQvxBadArgument;
    if (!IsKnown(parameters))
        return kQvxUnsupported;
    const bool inPlace = target->baseAddr == source.baseAddr;
    if (IsNeutral(parameters))
        return inPlace ? kQvxOK : CopyWhole(source, target);
    return Guarded([&]() -> QvxStatus {
        const ColorTable& colors = TableOf(source);
        if (source.pixelFormat == kPixelFormatARGB32) {
            FilterARGB(parameters, source, target);
        } else if (source.pixelFormat == kPixelFormatGray16) {
            FilterGray16(parameters, source, target);
        } else if (source.pixelSize == 8 && IsGrayTable(colors) &&
                   SameColors(colors, TableOf(*target))) {
            FilterGray8(parameters, colors, source, target);
        } else {
            const QvxStatus status = inPlace ? kQvxOK : CopyWhole(source, target);
            return status ? status : FilterGWorldThroughBuffer(parameters, target);
        }
        return kQvxOK;
    });
}

QvxStatus FilterGWorldThroughBuffer(const FilterParameters& parameters, Port* port)
{
    if (!port || !port->baseAddr)
        return kQvxBadArgument;
    if (!IsKnown(parameters))
        return kQvxUnsupported;
    // A 32-bit port holds 8 bits of a 'b16g' pixel: nothing goes through it that need not.
    if (IsNeutral(parameters))
        return kQvxOK;
    std::unique_ptr<Port> buffer;
    if (const QvxStatus status = COffscreenUtils::NewQTOffscreen(
            kPixelFormatARGB32, WidthOf(port->bounds), HeightOf(port->bounds), true, &buffer))
        return status;
    if (const QvxStatus status = CopyWhole(*port, buffer.get()))
        return status;
    if (const QvxStatus status = FilterGWorldToGWorld(parameters, *buffer, buffer.get()))
        return status;
    return COffscreenUtils::CopyOffscreen(*buffer, port, nullptr, nullptr, CopyMode::Dither,
                                          nullptr);
}

QvxStatus FilterCOffscreenThroughBufferIfNeeded(const FilterParameters& parameters,
                                                COffscreen* offscreen)
{
    Port* port = offscreen ? offscreen->GetGWorldPtr() : nullptr;
    if (!port)
        return kQvxBadArgument;
    return port->pixelSize == 32 ? FilterGWorldToGWorld(parameters, *port, port)
                                 : FilterGWorldThroughBuffer(parameters, port);
}

#include "pixels/PixelFilters.h"

#include "pixels/COffscreenUtils.h"
#include "pixels/Guarded.h"
#include "pixels/PixelFormat.h"
#include "util/ByteOrder.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstring>
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

template <typename Row>
void ForRows(const Port& source, Port* target, Row&& row)
{
    for (int v = 0; v < HeightOf(source.bounds); ++v)
        row(source.baseAddr + std::ptrdiff_t{v} * source.rowBytes,
            target->baseAddr + std::ptrdiff_t{v} * target->rowBytes);
}

void FilterARGB(const FilterParameters& parameters, const Port& source, Port* target)
{
    const BrightnessContrast line(parameters, 255);
    std::array<std::uint8_t, 256> table{};
    for (std::size_t i = 0; i < table.size(); ++i)
        table[i] = static_cast<std::uint8_t>(line.Of(static_cast<double>(i)));
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

void FilterTable(const FilterParameters& parameters, const Port& source, Port* target)
{
    const auto used =
        static_cast<std::size_t>(UsedRowBytes(WidthOf(source.bounds), source.pixelSize));
    if (target != &source) {
        target->colorTable = source.colorTable;
        ForRows(source, target, [used](const std::uint8_t* from, std::uint8_t* to) {
            std::memcpy(to, from, used);
        });
    }
    const BrightnessContrast line(parameters, 65535);
    for (ColorSpec& entry : target->colorTable.fEntries) {
        entry.red = static_cast<std::uint16_t>(line.Of(entry.red));
        entry.green = static_cast<std::uint16_t>(line.Of(entry.green));
        entry.blue = static_cast<std::uint16_t>(line.Of(entry.blue));
    }
    CTabChanged(&target->colorTable);
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
    if (static_cast<std::uint32_t>(parameters.Get(kFilterWhat)) != kFilterBrightnessContrast)
        return kQvxUnsupported;
    return Guarded([&]() -> QvxStatus {
        if (source.pixelFormat == kPixelFormatARGB32)
            FilterARGB(parameters, source, target);
        else if (source.pixelFormat == kPixelFormatGray16)
            FilterGray16(parameters, source, target);
        else if (!source.colorTable.fEntries.empty())
            FilterTable(parameters, source, target);
        else if (target == &source)
            return FilterGWorldThroughBuffer(parameters, target);
        else
            return kQvxBadArgument;
        return kQvxOK;
    });
}

QvxStatus FilterGWorldThroughBuffer(const FilterParameters& parameters, Port* port)
{
    if (!port || !port->baseAddr)
        return kQvxBadArgument;
    std::unique_ptr<Port> buffer;
    if (const QvxStatus status = COffscreenUtils::NewQTOffscreen(
            kPixelFormatARGB32, WidthOf(port->bounds), HeightOf(port->bounds), true, &buffer))
        return status;
    if (const QvxStatus status = COffscreenUtils::CopyOffscreen(
            *port, buffer.get(), nullptr, nullptr, CopyMode::Replace, nullptr))
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

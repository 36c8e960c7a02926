#include "util/ColorTable.h"

#include <array>
#include <atomic>

namespace {

ColorSpec Entry(std::size_t index, unsigned red, unsigned green, unsigned blue)
{
    return {static_cast<std::uint16_t>(index), static_cast<std::uint16_t>(red),
            static_cast<std::uint16_t>(green), static_cast<std::uint16_t>(blue)};
}

ColorTable GrayTable(unsigned id, std::size_t count)
{
    ColorTable table{id, {}};
    for (std::size_t i = 0; i < count; ++i) {
        const auto gray = static_cast<unsigned>(0xFFFF - i * 0xFFFF / (count - 1));
        table.fEntries.push_back(Entry(i, gray, gray, gray));
    }
    return table;
}

// A 6 by 6 by 6 cube from white down, then ten steps each of red, green, blue and gray, then black.
ColorTable CubeTable(unsigned id)
{
    ColorTable table{id, {}};
    auto& entries = table.fEntries;
    for (unsigned i = 0; i < 215; ++i)
        entries.push_back(
            Entry(i, (5 - i / 36) * 0x3333, (5 - i / 6 % 6) * 0x3333, (5 - i % 6) * 0x3333));
    static constexpr std::array<unsigned, 10> kSteps = {0xEEEE, 0xDDDD, 0xBBBB, 0xAAAA, 0x8888,
                                                        0x7777, 0x5555, 0x4444, 0x2222, 0x1111};
    for (unsigned channel = 0; channel < 4; ++channel) {
        for (const unsigned step : kSteps)
            entries.push_back(Entry(entries.size(), channel == 0 || channel == 3 ? step : 0,
                                    channel == 1 || channel == 3 ? step : 0,
                                    channel == 2 || channel == 3 ? step : 0));
    }
    entries.push_back(Entry(255, 0, 0, 0));
    return table;
}

// The first `count` of sixteen basic colours from white to black.
ColorTable BasicTable(unsigned id, std::size_t count)
{
    static constexpr std::array<std::array<unsigned, 3>, 16> kBasic = {{
        {0xFFFF, 0xFFFF, 0xFFFF},
        {0xFC00, 0xF37D, 0x052F},
        {0xFFFF, 0x648A, 0x028C},
        {0xDD6B, 0x08C2, 0x06A2},
        {0xF2D7, 0x0856, 0x84EC},
        {0x46E3, 0x0000, 0xA53E},
        {0x0000, 0x0000, 0xD400},
        {0x0241, 0xAB54, 0xEAFF},
        {0x1F21, 0xB793, 0x1431},
        {0x0000, 0x64AF, 0x11B0},
        {0x5600, 0x2C9D, 0x0524},
        {0x90D7, 0x7160, 0x3A34},
        {0xC000, 0xC000, 0xC000},
        {0x8000, 0x8000, 0x8000},
        {0x4000, 0x4000, 0x4000},
        {0x0000, 0x0000, 0x0000},
    }};
    ColorTable table{id, {}};
    for (std::size_t i = 0; i < count; ++i) {
        const auto& c = kBasic[i + 1 == count ? 15 : i * 16 / count];
        table.fEntries.push_back(Entry(i, c[0], c[1], c[2]));
    }
    return table;
}

}  // namespace

std::optional<ColorTable> SystemColorTable(int id)
{
    const auto seed = static_cast<unsigned>(id);
    switch (id) {
        case 1:
        case 33:
            return GrayTable(seed, 2);
        case 34:
            return GrayTable(seed, 4);
        case 36:
            return GrayTable(seed, 16);
        case 40:
            return GrayTable(seed, 256);
        case 2:
        case 66:
            return BasicTable(2, 4);
        case 4:
        case 68:
            return BasicTable(4, 16);
        case 8:
        case 72:
            return CubeTable(8);
        default:
            return std::nullopt;
    }
}

bool IsStandardSeed(std::uint32_t seed)
{
    static constexpr std::array<std::uint32_t, 8> kStandard = {1, 2, 4, 8, 33, 34, 36, 40};
    for (const std::uint32_t standard : kStandard) {
        if (seed == standard)
            return true;
    }
    return false;
}

void CTabChanged(ColorTable* table)
{
    static std::atomic<std::uint32_t> sNextSeed{1024};  // above every system table's number
    table->fSeed = sNextSeed.fetch_add(1, std::memory_order_relaxed);
}

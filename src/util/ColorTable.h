// Colour tables of indexed pixels: 16 bits a component.
#pragma once
#include <cstdint>
#include <optional>
#include <vector>

struct ColorSpec {
    std::uint16_t value = 0, red = 0, green = 0, blue = 0;
    bool operator==(const ColorSpec&) const = default;
};

struct ColorTable {
    // The number of a system table for an untouched one, else a number that moves with each change.
    std::uint32_t fSeed = 0;
    std::vector<ColorSpec> fEntries;
    // The stored size field: one less than the number of entries, -1 when there are none.
    [[nodiscard]] std::int32_t SizeField() const
    {
        return static_cast<std::int32_t>(fEntries.size()) - 1;
    }
};

// The system table of number `id`: 1, 2, 4, 8 are the colour ones (black and white, 4, 16 and 256
// colours), 33, 34, 36, 40 the gray ones of 2, 4, 16 and 256 steps, entry 0 white and the last
// black. 64 more than a depth of 2, 4 or 8 names the same table as the depth. nullopt for any other
// number.
[[nodiscard]] std::optional<ColorTable> SystemColorTable(int id);
// True for the seeds that name a system table.
[[nodiscard]] bool IsStandardSeed(std::uint32_t seed);
// Gives the table a seed that no other table has, so that whoever cached it sees the change.
void CTabChanged(ColorTable* table);

// A tag: group and element.
#pragma once
#include <compare>
#include <cstdint>

struct QvxElementTag {
    std::uint16_t group = 0, element = 0;
    // Both as one number, in the order of files and tables.
    [[nodiscard]] constexpr std::uint32_t Key() const
    {
        return std::uint32_t{group} << 16 | element;
    }
    auto operator<=>(const QvxElementTag&) const = default;
};

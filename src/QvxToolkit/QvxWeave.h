// Planes brought together, vector by vector. Internal.
#pragma once
#include <cstddef>
#include <cstdint>
#include <span>

// 2 to 4 planes of `count` elements become one row of elements, one of each plane in turn.
// Elements have 1, 2 or 4 bytes; planes and `to` are aligned to them.
void QvxWeave(std::span<const std::uint8_t* const> planes, std::size_t elementBytes,
              std::size_t count, std::uint8_t* to);

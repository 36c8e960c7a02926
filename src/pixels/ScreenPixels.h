// The border to the screen: pixels of a port as opaque words 0xFFRRGGBB in the machine's order,
// which is what a window's picture of 32 bits holds. Ports keep the bytes A, R, G, B in memory; the
// first of them may be anything and is not looked at.
#pragma once
#include "pixels/PixView.h"

#include <array>
#include <cstddef>
#include <cstdint>

using ScreenTable = std::array<std::uint32_t, 256>;  // the word of each index

// Black for indexes beyond the table.
[[nodiscard]] ScreenTable ScreenTableOf(const ColorTable& table);

// Writes `from` of `source`, null for the whole, as words from `screen` on.
//   source          of any format; gray of 8 bits and indexes go through the source's table
//   screen          room for the rectangle's rows, `screenRowBytes` apart, of 4 bytes a pixel
// A source of 32 bits may be turned where it stands: `screen` is then the first pixel of `from`,
// and `screenRowBytes` the source's own.
// kQvxBadArgument for a source without pixels or of an unknown format, a rectangle that is empty or
// beyond it, a missing `screen` or rows too short; kQvxNoMemory.
[[nodiscard]] QvxStatus CopyToScreen(const PixView& source, const Rect* from, std::uint8_t* screen,
                                     std::ptrdiff_t screenRowBytes);

// Colour tables of ports, and the pixel format that a table makes of a port.
#pragma once
#include "pixels/Port.h"

// Copies the whole table; both must have the same number of entries, else kQvxBadArgument. A
// standard seed of `from` comes along, any other gives `to` a new seed of its own.
[[nodiscard]] QvxStatus CopyCTable(const ColorTable& from, ColorTable* to);
// The same into a port's table. kQvxBadArgument for a port of no table.
[[nodiscard]] QvxStatus EnforceColorTable(Port* port, const ColorTable& table);

// The port's format; for pixels of 2, 4 and 8 bits its table decides, whatever the port was made
// with: 34, 36 or 40 when the seed says so or entry i is gray of 0xFFFF - 257 i, else the size.
[[nodiscard]] std::uint32_t GetPixelFormatOfGWorld(const Port& port);

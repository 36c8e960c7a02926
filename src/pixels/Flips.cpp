#include "pixels/Flips.h"

#include "pixels/Guarded.h"
#include "pixels/RawPixels.h"

#include <algorithm>
#include <cstring>
#include <vector>

namespace {

// Exchanges rows from the outside in. A last byte that pixels fill only in part goes under a mask.
void ExchangeRows(const Port& port, std::vector<std::uint8_t>* buffer)
{
    const int width = WidthOf(port.bounds), height = HeightOf(port.bounds);
    const auto whole = static_cast<std::size_t>(width) * static_cast<unsigned>(port.pixelSize) / 8;
    const int restBits = width * port.pixelSize % 8;
    const int mask = 0xFF00 >> restBits & 0xFF;  // 0 when the row ends with its byte
    for (int y = 0; y < height / 2; ++y) {
        std::uint8_t* a = RowAddress(port, port.bounds.top + y);
        std::uint8_t* b = RowAddress(port, port.bounds.bottom - 1 - y);
        std::copy_n(a, whole, buffer->data());
        std::memcpy(a, b, whole);
        std::copy_n(buffer->data(), whole, b);
        if (mask != 0) {
            const int differ = (a[whole] ^ b[whole]) & mask;
            a[whole] = static_cast<std::uint8_t>(a[whole] ^ differ);
            b[whole] = static_cast<std::uint8_t>(b[whole] ^ differ);
        }
    }
}

void ReverseRows(const Port& port, std::vector<std::uint8_t>* buffer)
{
    const int width = WidthOf(port.bounds), height = HeightOf(port.bounds);
    ForPixelBytes(port.pixelSize, [&]<std::size_t kBytes>() {
        if constexpr (kBytes != 0) {
            for (int y = 0; y < height; ++y) {
                auto* row = RawRow<kBytes>(port, y);
                std::reverse(row, row + width);
            }
        } else {
            std::uint8_t* const pixels = buffer->data();
            for (int y = 0; y < height; ++y) {
                std::uint8_t* row = RowAddress(port, port.bounds.top + y);
                UnpackIndexes(row, 0, width, port.pixelSize, pixels);
                std::reverse(pixels, pixels + width);
                PackIndexes(row, 0, width, port.pixelSize, pixels);
            }
        }
    });
}

QvxStatus Flip(Port* port, bool vertical, bool horizontal)
{
    if (!port || !CanMoveRawPixels(*port))
        return kQvxBadArgument;
    return Guarded([&] {
        std::vector<std::uint8_t> buffer(static_cast<std::size_t>(WidthOf(port->bounds)) *
                                         4);  // any row
        if (horizontal)
            ReverseRows(*port, &buffer);
        if (vertical)
            ExchangeRows(*port, &buffer);
        return kQvxOK;
    });
}

}  // namespace

QvxStatus FlipOffscreenVert(Port* port) { return Flip(port, true, false); }

QvxStatus FlipOffscreenHorz(Port* port) { return Flip(port, false, true); }

QvxStatus FlipOffscreenBoth(Port* port) { return Flip(port, true, true); }

#include "pixels/Flips.h"
#include "pixels/Guarded.h"
#include "pixels/RawPixels.h"

#include <algorithm>
#include <vector>

namespace {

// In squares that stay in the cache: one of the two sides walks down columns.
constexpr int kSquare = 32;

template <std::size_t kBytes>
void TurnBytes(const Port& source, const Port& target)
{
    const int width = WidthOf(source.bounds), height = HeightOf(source.bounds);
    for (int top = 0; top < height; top += kSquare) {
        const int bottom = std::min(height, top + kSquare);
        for (int left = 0; left < width; left += kSquare) {
            const int right = std::min(width, left + kSquare);
            for (int x = left; x < right; ++x) {
                auto* out = RawRow<kBytes>(target, x) + (height - bottom);
                for (int y = bottom - 1; y >= top; --y)
                    *out++ = RawRow<kBytes>(source, y)[x];
            }
        }
    }
}

void TurnPacked(const Port& source, const Port& target)
{
    const int width = WidthOf(source.bounds), height = HeightOf(source.bounds);
    const auto columns = static_cast<std::size_t>(width);
    std::vector<std::uint8_t> pixels(columns * static_cast<std::size_t>(height));
    for (int y = 0; y < height; ++y)
        UnpackIndexes(RowAddress(source, source.bounds.top + y), 0, width, source.pixelSize,
                      pixels.data() + static_cast<std::size_t>(y) * columns);
    std::vector<std::uint8_t> turned(static_cast<std::size_t>(height));
    for (int x = 0; x < width; ++x) {
        const std::uint8_t* pixel = pixels.data() + pixels.size() + x;
        for (std::uint8_t& out : turned)
            out = *(pixel -= columns);  // from the last row up
        PackIndexes(RowAddress(target, target.bounds.top + x), 0, height, target.pixelSize,
                    turned.data());
    }
}

}  // namespace

QvxStatus RotateOffscreen90(const Port& source, Port* target)
{
    if (!target || !CanMoveRawPixels(source) || !target->baseAddr ||
        source.baseAddr == target->baseAddr || target->pixelSize != source.pixelSize ||
        WidthOf(target->bounds) != HeightOf(source.bounds) ||
        HeightOf(target->bounds) != WidthOf(source.bounds))
        return kQvxBadArgument;
    return Guarded([&] {
        ForPixelBytes(source.pixelSize, [&]<std::size_t kBytes>() {
            if constexpr (kBytes != 0)
                TurnBytes<kBytes>(source, *target);
            else
                TurnPacked(source, *target);
        });
        target->horzResolution = source.vertResolution;
        target->vertResolution = source.horzResolution;
        return kQvxOK;
    });
}

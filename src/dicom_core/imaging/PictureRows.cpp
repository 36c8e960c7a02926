#include "dicom_core/imaging/PictureRows.h"

#include <array>
#include <cstddef>
#include <cstring>

namespace {

constexpr std::uint32_t kPixelBytes = 4;
using Pixel = std::array<std::uint8_t, kPixelBytes>;  // A, R, G, B

// The pixel as a word in whatever order the machine has: moves as one.
std::uint32_t WordOf(const Pixel& pixel)
{
    std::uint32_t word = 0;
    std::memcpy(&word, pixel.data(), sizeof word);
    return word;
}

template <typename Row>
void ForRows(const PixMap& map, Row&& row)
{
    for (std::ptrdiff_t v = 0; v < map.bounds.bottom - map.bounds.top; ++v)
        row(v, map.baseAddr + v * map.rowBytes);
}

std::size_t Columns(const PixMap& map)
{
    return static_cast<std::size_t>(map.bounds.right - map.bounds.left);
}

// Every word of the map through `change`.
template <typename Change>
void ForWords(const PixMap& argb, Change&& change)
{
    ForRows(argb, [&](std::ptrdiff_t, std::uint8_t* row) {
        for (std::size_t h = 0; h < Columns(argb); ++h) {
            std::uint32_t word = 0;
            std::memcpy(&word, row + h * kPixelBytes, sizeof word);
            word = change(word);
            std::memcpy(row + h * kPixelBytes, &word, sizeof word);
        }
    });
}

}  // namespace

void PictureRows_Colors(const PixMap& indexes, const ColorTable& table, const PixMap& argb)
{
    std::array<std::uint32_t, 256> words{};
    words.fill(WordOf({255, 0, 0, 0}));
    for (std::size_t i = 0; i < words.size() && i < table.fEntries.size(); ++i) {
        const ColorSpec& entry = table.fEntries[i];
        words[i] = WordOf({255, static_cast<std::uint8_t>(entry.red >> 8),
                           static_cast<std::uint8_t>(entry.green >> 8),
                           static_cast<std::uint8_t>(entry.blue >> 8)});
    }
    ForRows(argb, [&](std::ptrdiff_t v, std::uint8_t* row) {
        const std::uint8_t* index = indexes.baseAddr + v * indexes.rowBytes;
        for (std::size_t h = 0; h < Columns(argb); ++h)
            std::memcpy(row + h * kPixelBytes, &words[index[h]], kPixelBytes);
    });
}

void PictureRows_Copy(const PixMap& source, const PixMap& argb)
{
    ForRows(argb, [&](std::ptrdiff_t v, std::uint8_t* row) {
        std::memcpy(row, source.baseAddr + v * source.rowBytes, Columns(argb) * kPixelBytes);
    });
    const std::uint32_t opaque = WordOf({255, 0, 0, 0});
    ForWords(argb, [opaque](std::uint32_t word) { return word | opaque; });
}

void PictureRows_Invert(const PixMap& argb)
{
    const std::uint32_t colors = WordOf({0, 255, 255, 255});
    ForWords(argb, [colors](std::uint32_t word) { return word ^ colors; });
}

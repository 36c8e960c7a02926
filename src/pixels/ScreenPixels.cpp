#include "pixels/ScreenPixels.h"

#include "pixels/Guarded.h"
#include "pixels/PixelLanes.h"
#include "pixels/SourceRows.h"

#include <cstring>

namespace {

// A row's indexes, looked up one by one.
void WordsByTable(const std::uint8_t* indexes, std::size_t count, const ScreenTable& table,
                  std::uint8_t* words)
{
    for (std::size_t i = 0; i < count; ++i)
        std::memcpy(words + 4 * i, &table[indexes[i]], sizeof table[0]);
}

struct ScreenBlock {
    std::uint8_t* pixels;
    std::ptrdiff_t rowBytes;
    [[nodiscard]] std::uint8_t* Row(int row) const { return pixels + row * rowBytes; }
};

void CopyBytes(const PixView& source, const Rect& from, const ScreenBlock& screen)
{
    const ColorTable& colors = TableOf(source);
    const bool ramp = IsGrayRamp(colors);
    const ScreenTable table = ScreenTableOf(colors);
    const auto width = static_cast<std::size_t>(WidthOf(from));
    for (int row = 0; row < HeightOf(from); ++row) {
        const std::uint8_t* indexes =
            RowAddress(source.map, from.top + row) + (from.left - source.map.bounds.left);
        if (ramp)
            PixelLanes::GrayToWords(indexes, 255, width, screen.Row(row));
        else
            WordsByTable(indexes, width, table, screen.Row(row));
    }
}

void CopyColors(const PixView& source, const PixelLayout& layout, const Rect& from,
                const ScreenBlock& screen)
{
    const auto width = static_cast<std::size_t>(WidthOf(from));
    SourceRows rows(source, layout, from, SampleKind::ARGB, nullptr);
    std::vector<std::uint8_t> argb(layout.pixelSize == 32 ? 0 : 4 * width);
    for (int row = 0; row < HeightOf(from); ++row) {
        const std::uint8_t* pixels = rows.Direct(row);
        if (!pixels) {
            rows.Load(row, 0, WidthOf(from), argb.data());
            pixels = argb.data();
        }
        PixelLanes::ARGBToWords(pixels, width, screen.Row(row));
    }
}

void CopyGray16(const PixView& source, const PixelLayout& layout, const Rect& from,
                const ScreenBlock& screen)
{
    const auto width = static_cast<std::size_t>(WidthOf(from));
    SourceRows rows(source, layout, from, SampleKind::Gray8, nullptr);
    std::vector<std::uint8_t> gray(width);
    for (int row = 0; row < HeightOf(from); ++row) {
        rows.Load(row, 0, WidthOf(from), gray.data());
        PixelLanes::GrayToWords(gray.data(), 0, width, screen.Row(row));
    }
}

}  // namespace

ScreenTable ScreenTableOf(const ColorTable& table)
{
    ScreenTable words{};
    const ColorLookup colors = LookupOf(table);
    for (std::size_t i = 0; i < words.size(); ++i) {
        void* const word = &words[i];
        PixelLanes::ARGBToWords(colors[i].data(), 1, static_cast<std::uint8_t*>(word));
    }
    return words;
}

QvxStatus CopyToScreen(const PixView& source, const Rect* from, std::uint8_t* screen,
                       std::ptrdiff_t screenRowBytes)
{
    const auto layout = LayoutOfPixMap(source.map);
    const Rect wanted = from ? *from : source.map.bounds;
    if (!layout || !source.map.baseAddr || !screen || EmptyRect(wanted) ||
        !RectWithin(wanted, source.map.bounds) ||
        screenRowBytes < std::ptrdiff_t{4} * WidthOf(wanted))
        return kQvxBadArgument;
    return Guarded([&] {
        const ScreenBlock block{screen, screenRowBytes};
        if (layout->pixelSize == 8)
            CopyBytes(source, wanted, block);
        else if (layout->pixelSize == 16 && layout->cmpCount == 1)
            CopyGray16(source, *layout, wanted, block);
        else
            CopyColors(source, *layout, wanted, block);
        return kQvxOK;
    });
}

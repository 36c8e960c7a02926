#include "pixels/PaintCopy.h"

#include "pixels/SourceRows.h"

#include <algorithm>
#include <cstring>
#include <vector>

namespace {

struct Run {
    int begin = 0, end = 0;
};

// The source pixels that fall on result i: at least one, and each on one result when it shrinks.
Run SourceRun(int i, int source, int target)
{
    const std::int64_t begin =
        target < source ? std::int64_t{i} * source / target
                        : (2 * std::int64_t{i} + 1) * source / (2 * std::int64_t{target});
    const std::int64_t end = (std::int64_t{i} + 1) * source / target;
    return {static_cast<int>(begin), static_cast<int>(std::max(begin + 1, end))};
}

// Adds the black pixels of a source row to `black`, one byte a pixel.
void AddBlack(const PixView& source, const PixelLayout& layout, SourceRows* rows, const Rect& from,
              int row, std::vector<std::uint8_t>* samples, std::vector<std::uint8_t>* black)
{
    const int width = WidthOf(from);
    const bool gray16 = layout.pixelSize == 16 && layout.cmpCount == 1;
    if (gray16) {
        const std::uint8_t* words = RowAddress(source.map, from.top + row) +
                                    std::ptrdiff_t{from.left - source.map.bounds.left} * 2;
        for (int i = 0; i < width; ++i)
            (*black)[static_cast<std::size_t>(i)] |= words[2 * i] == 0 && words[2 * i + 1] == 0;
        return;
    }
    rows->Load(row, 0, width, samples->data());
    const std::uint8_t* argb = samples->data();
    for (int i = 0; i < width; ++i, argb += 4)
        (*black)[static_cast<std::size_t>(i)] |= (argb[1] | argb[2] | argb[3]) == 0;
}

void PaintRow(const PixView& target, const PixelLayout& layout, const Rect& window, int v,
              const NativePixel& pixel, const std::vector<std::uint8_t>& mask)
{
    std::uint8_t* const row = RowAddress(target.map, v);
    const int first = window.left - target.map.bounds.left;
    const auto bytes = static_cast<std::size_t>(layout.PixelBytes());
    for (int i = 0; i < WidthOf(window); ++i) {
        if (!mask[static_cast<std::size_t>(i)])
            continue;
        if (bytes == 0)
            PackIndexes(row, first + i, 1, layout.pixelSize, pixel.data());
        else
            std::memcpy(row + static_cast<std::size_t>(first + i) * bytes, pixel.data(), bytes);
    }
}

}  // namespace

void PaintPixels(const PixView& source, const PixelLayout& sourceLayout, const Rect& from,
                 const PixView& target, const PixelLayout& targetLayout, const Rect& to,
                 const Rect& window)
{
    const auto width = static_cast<std::size_t>(WidthOf(from));
    const NativePixel pixel = NativeColor(target, targetLayout, target.foreColor);
    SourceRows rows(source, sourceLayout, from, SampleKind::ARGB, nullptr);
    std::vector<std::uint8_t> samples(width * 4), black(width);
    std::vector<std::uint8_t> mask(static_cast<std::size_t>(WidthOf(window)));
    for (int v = window.top; v < window.bottom; ++v) {
        std::ranges::fill(black, std::uint8_t{0});
        const Run run = SourceRun(v - to.top, HeightOf(from), HeightOf(to));
        for (int row = run.begin; row < run.end; ++row)
            AddBlack(source, sourceLayout, &rows, from, row, &samples, &black);
        for (int h = window.left; h < window.right; ++h) {
            const Run columns = SourceRun(h - to.left, WidthOf(from), WidthOf(to));
            mask[static_cast<std::size_t>(h - window.left)] =
                std::any_of(black.begin() + columns.begin, black.begin() + columns.end,
                            [](std::uint8_t b) { return b != 0; });
        }
        PaintRow(target, targetLayout, window, v, pixel, mask);
    }
}

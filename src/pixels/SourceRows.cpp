#include "pixels/SourceRows.h"

#include "pixels/PixelLanes.h"
#include "util/ByteOrder.h"

#include <algorithm>
#include <cstring>

int SampleBytes(SampleKind kind)
{
    switch (kind) {
        case SampleKind::ARGB:
            return 4;
        case SampleKind::Gray16:
            return 2;
        default:
            return 1;
    }
}

SourceRows::SourceRows(const PixView& view, const PixelLayout& layout, const Rect& from,
                       SampleKind kind, const IndexMap* indexMap)
    : fView(view), fLayout(layout), fFrom(from), fKind(kind), fIndexMap(indexMap)
{
    if (layout.Indexed()) {
        fColors = LookupOf(TableOf(view));
        std::ranges::transform(fColors, fGrays.begin(), [](const NativePixel& c) { return c[1]; });
        fRamp = layout.pixelSize == 8 && IsGrayRamp(TableOf(view));
        fIndexes.resize(static_cast<std::size_t>(WidthOf(from)));
    }
}

const std::uint8_t* SourceRows::Direct(int row) const
{
    const bool asItStands = fKind == SampleKind::Native ||
                            (fKind == SampleKind::ARGB && fLayout.pixelSize == 32) ||
                            (fKind == SampleKind::Index && fLayout.pixelSize == 8 && !fIndexMap);
    if (!asItStands)
        return nullptr;
    return RowAddress(fView.map, fFrom.top + row) +
           std::ptrdiff_t{fFrom.left - fView.map.bounds.left} * fLayout.PixelBytes();
}

void SourceRows::Load(int row, int first, int count, std::uint8_t* samples)
{
    const std::uint8_t* pixels = RowAddress(fView.map, fFrom.top + row);
    first += fFrom.left - fView.map.bounds.left;
    if (fKind == SampleKind::ARGB) {
        LoadARGB(pixels, first, count, samples);
    } else if (fKind == SampleKind::Gray16) {
        for (int i = 0; i < count; ++i) {
            const auto word = LoadBE<std::uint16_t>(pixels + 2 * (first + i));
            std::memcpy(samples + 2 * i, &word, sizeof word);
        }
    } else if (!fLayout.Indexed()) {  // gray of 16 bits as 8: the high byte, which comes first
        for (int i = 0; i < count; ++i)
            samples[i] = pixels[2 * (first + i)];
    } else {
        UnpackIndexes(pixels, first, count, fLayout.pixelSize, samples);
        if (fKind == SampleKind::Gray8 && fRamp)
            PixelLanes::FlipBytes(samples, 0xFFFFFFFF, static_cast<std::size_t>(count));
        for (int i = 0; i < count && fKind == SampleKind::Gray8 && !fRamp; ++i)
            samples[i] = fGrays[samples[i]];
        for (int i = 0; i < count && fKind == SampleKind::Index && fIndexMap; ++i)
            samples[i] = (*fIndexMap)[samples[i]];
    }
}

void SourceRows::LoadARGB(const std::uint8_t* row, int first, int count, std::uint8_t* samples)
{
    if (fLayout.Indexed()) {
        UnpackIndexes(row, first, count, fLayout.pixelSize, fIndexes.data());
        for (int i = 0; i < count; ++i)
            std::memcpy(samples + 4 * i, fColors[fIndexes[static_cast<std::size_t>(i)]].data(), 4);
    } else if (fLayout.pixelSize == 24) {
        for (int i = 0; i < count; ++i) {
            samples[4 * i] = 0xFF;
            std::memcpy(samples + 4 * i + 1, row + 3 * (first + i), 3);
        }
    } else if (fLayout.pixelSize == 32) {
        std::memcpy(samples, row + 4 * first, static_cast<std::size_t>(count) * 4);
    } else {
        const auto wide = [](int five) { return static_cast<std::uint8_t>(five << 3 | five >> 2); };
        for (int i = 0; i < count; ++i) {
            const int word = LoadBE<std::uint16_t>(row + 2 * (first + i));
            const NativePixel argb = {0xFF, wide(word >> 10 & 31), wide(word >> 5 & 31),
                                      wide(word & 31)};
            std::memcpy(samples + 4 * i, argb.data(), 4);
        }
    }
}

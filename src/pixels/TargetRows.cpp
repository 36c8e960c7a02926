#include "pixels/TargetRows.h"

#include "pixels/PixelLanes.h"
#include "util/ByteOrder.h"

#include <algorithm>
#include <cstring>

TargetRows::TargetRows(const PixView& view, const PixelLayout& layout, const Rect& window,
                       CopyMode mode)
    : fView(view),
      fLayout(layout),
      fWindow(window),
      fMode(mode),
      fRamp(layout.pixelSize == 8 && IsGrayRamp(TableOf(view))),
      fMatcher(TableOf(view))
{
    const auto count = static_cast<std::size_t>(WidthOf(window));
    if (layout.pixelSize < 8)
        fIndexes.resize(count);
    if (layout.Indexed() && !fRamp && mode == CopyMode::Dither)
        fErrors.resize(3 * (count + 2));
    if (layout.pixelSize != 32 && !fRamp)
        fWide.resize(4 * count);
}

void TargetRows::Put(int row, int first, int count, SampleKind kind, const std::uint8_t* samples)
{
    std::uint8_t* const place = RowAddress(fView.map, fWindow.top + row);
    first += fWindow.left - fView.map.bounds.left;
    const bool packed = fLayout.pixelSize < 8;
    std::uint8_t* const pixels =
        packed ? fIndexes.data() : place + std::ptrdiff_t{first} * fLayout.PixelBytes();
    switch (kind) {
        case SampleKind::Native:
            std::memmove(
                pixels, samples,
                static_cast<std::size_t>(count) * static_cast<std::size_t>(fLayout.PixelBytes()));
            break;
        case SampleKind::Index:
            std::memmove(pixels, samples, static_cast<std::size_t>(count));
            break;
        case SampleKind::Gray16:
            for (int i = 0; i < count; ++i) {
                std::uint16_t word = 0;
                std::memcpy(&word, samples + 2 * i, sizeof word);
                StoreBE(pixels + 2 * i, word);
            }
            break;
        case SampleKind::Gray8:
            PutGray8(samples, count, pixels);
            break;
        case SampleKind::ARGB:
            PutARGB(samples, count, pixels);
            break;
    }
    if (fMode == CopyMode::ReplaceInverted)
        Invert(pixels, count);
    if (packed)
        PackIndexes(place, first, count, fLayout.pixelSize, pixels);
}

void TargetRows::PutGray8(const std::uint8_t* gray, int count, std::uint8_t* pixels)
{
    const auto run = static_cast<std::size_t>(count);
    if (fRamp) {
        std::memmove(pixels, gray, run);
        PixelLanes::FlipBytes(pixels, 0xFFFFFFFF, run);
    } else if (fLayout.pixelSize == 32) {
        PixelLanes::GrayToARGB(gray, 0, run, pixels);
    } else {
        PixelLanes::GrayToARGB(gray, 0, run, fWide.data());
        PutARGB(fWide.data(), count, pixels);
    }
}

void TargetRows::PutARGB(const std::uint8_t* argb, int count, std::uint8_t* pixels)
{
    if (fLayout.pixelSize == 32) {
        std::memmove(pixels, argb, static_cast<std::size_t>(count) * 4);
    } else if (fRamp) {
        for (int i = 0; i < count; ++i)
            pixels[i] = static_cast<std::uint8_t>(255 - LumaOf(argb + 4 * i));
    } else if (!fErrors.empty()) {
        PutDithered(argb, pixels);
    } else if (fLayout.Indexed()) {
        PutMatched(argb, count, pixels);
    } else {
        const auto bytes = static_cast<std::size_t>(fLayout.PixelBytes());
        for (int i = 0; i < count; ++i, argb += 4, pixels += bytes) {
            const NativePixel pixel = NativeFromARGB(fLayout, {argb[0], argb[1], argb[2], argb[3]});
            std::memcpy(pixels, pixel.data(), bytes);
        }
    }
}

void TargetRows::PutMatched(const std::uint8_t* argb, int count, std::uint8_t* indexes)
{
    for (int i = 0; i < count; ++i, argb += 4)
        indexes[i] = fMatcher.Match({argb[0], argb[1], argb[2], argb[3]});
}

// What a pixel lacks goes to its neighbours: 7 sixteenths to the right, 3, 5 and 1 to the row
// below. `fErrors` holds the row below, shifted by one pixel; each cell is read before it is
// reused.
void TargetRows::PutDithered(const std::uint8_t* argb, std::uint8_t* indexes)
{
    const ColorTable& table = TableOf(fView);
    std::array<int, 3> right{}, belowLeft{}, below{};
    int* errors = fErrors.data() + 3;  // of pixel i
    for (int i = 0; i < WidthOf(fWindow); ++i, argb += 4, errors += 3) {
        std::array<int, 3> wanted;
        NativePixel pixel{0xFF, 0, 0, 0};
        for (std::size_t c = 0; c < 3; ++c) {
            const int sum = argb[c + 1] * 16 + right[c] + errors[c];
            wanted[c] = std::clamp(sum, 0, 255 * 16);  // what no colour can give is dropped
            pixel[c + 1] = static_cast<std::uint8_t>((wanted[c] + 8) / 16);
        }
        indexes[i] = fMatcher.Match(pixel);
        const ColorSpec& entry = table.fEntries[indexes[i]];
        const std::array<int, 3> got = {entry.red >> 8, entry.green >> 8, entry.blue >> 8};
        for (std::size_t c = 0; c < 3; ++c) {
            const int lack = wanted[c] - got[c] * 16;
            right[c] = lack * 7 / 16;
            errors[c - 3] = belowLeft[c] + lack * 3 / 16;
            belowLeft[c] = below[c] + lack * 5 / 16;
            below[c] = lack / 16;
        }
    }
    std::copy(belowLeft.begin(), belowLeft.end(), errors - 3);
}

void TargetRows::Invert(std::uint8_t* pixels, int count) const
{
    const std::size_t bytes = fLayout.PixelBytes() == 0 ? 1 : fLayout.pixelSize / 8u;
    const std::size_t run = bytes * static_cast<std::size_t>(count);
    // The pattern of a pixel of 1, 2 or 4 bytes repeats in a word; a pixel of 3 turns over whole.
    std::uint32_t pattern = 0;
    for (std::size_t b = 0; b < 4; ++b)
        pattern |= std::uint32_t{fLayout.invert[bytes == 3 ? 0 : b % bytes]} << 8 * b;
    PixelLanes::FlipBytes(pixels, pattern, run);
}

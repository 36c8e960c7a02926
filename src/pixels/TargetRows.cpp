#include "pixels/TargetRows.h"

#include "util/ByteOrder.h"

#include <algorithm>
#include <cstring>

TargetRows::TargetRows(const PixView& view, const PixelLayout& layout, const Rect& window,
                       CopyMode mode)
    : fView(view),
      fLayout(layout),
      fWindow(window),
      fMode(mode),
      fCount(WidthOf(window)),
      fRamp(layout.pixelSize == 8 && IsGrayRamp(TableOf(view))),
      fMatcher(TableOf(view))
{
    const auto count = static_cast<std::size_t>(fCount);
    if (layout.pixelSize < 8)
        fIndexes.resize(count);
    if (layout.Indexed() && !fRamp && mode == CopyMode::Dither)
        fErrors.resize(3 * (count + 2));
}

void TargetRows::Put(int row, SampleKind kind, const std::uint8_t* samples)
{
    std::uint8_t* const place = RowAddress(fView.map, fWindow.top + row);
    const int first = fWindow.left - fView.map.bounds.left;
    const bool packed = fLayout.pixelSize < 8;
    std::uint8_t* const pixels =
        packed ? fIndexes.data() : place + std::ptrdiff_t{first} * fLayout.PixelBytes();
    switch (kind) {
        case SampleKind::Native:
            std::memmove(
                pixels, samples,
                static_cast<std::size_t>(fCount) * static_cast<std::size_t>(fLayout.PixelBytes()));
            break;
        case SampleKind::Index:
            std::memmove(pixels, samples, static_cast<std::size_t>(fCount));
            break;
        case SampleKind::Gray16:
            for (int i = 0; i < fCount; ++i) {
                std::uint16_t word = 0;
                std::memcpy(&word, samples + 2 * i, sizeof word);
                StoreBE(pixels + 2 * i, word);
            }
            break;
        case SampleKind::Gray8:
            PutGray8(samples, pixels);
            break;
        case SampleKind::ARGB:
            PutARGB(samples, pixels);
            break;
    }
    if (fMode == CopyMode::ReplaceInverted)
        Invert(pixels);
    if (packed)
        PackIndexes(place, first, fCount, fLayout.pixelSize, pixels);
}

void TargetRows::PutGray8(const std::uint8_t* gray, std::uint8_t* pixels)
{
    if (fRamp) {
        for (int i = 0; i < fCount; ++i)
            pixels[i] = static_cast<std::uint8_t>(255 - gray[i]);
        return;
    }
    const bool direct = fLayout.pixelSize == 32;
    if (!direct)
        fWide.resize(static_cast<std::size_t>(fCount) * 4);
    std::uint8_t* const wide = direct ? pixels : fWide.data();
    for (int i = 0; i < fCount; ++i) {
        const std::uint32_t word = 0xFF000000u | gray[i] * 0x010101u;
        StoreBE(wide + 4 * i, word);
    }
    if (!direct)
        PutARGB(wide, pixels);
}

void TargetRows::PutARGB(const std::uint8_t* argb, std::uint8_t* pixels)
{
    if (fLayout.pixelSize == 32) {
        std::memmove(pixels, argb, static_cast<std::size_t>(fCount) * 4);
    } else if (fRamp) {
        for (int i = 0; i < fCount; ++i)
            pixels[i] = static_cast<std::uint8_t>(255 - LumaOf(argb + 4 * i));
    } else if (!fErrors.empty()) {
        PutDithered(argb, pixels);
    } else if (fLayout.Indexed()) {
        PutMatched(argb, pixels);
    } else {
        const auto bytes = static_cast<std::size_t>(fLayout.PixelBytes());
        for (int i = 0; i < fCount; ++i, argb += 4, pixels += bytes) {
            const NativePixel pixel = NativeFromARGB(fLayout, {argb[0], argb[1], argb[2], argb[3]});
            std::memcpy(pixels, pixel.data(), bytes);
        }
    }
}

void TargetRows::PutMatched(const std::uint8_t* argb, std::uint8_t* indexes)
{
    for (int i = 0; i < fCount; ++i, argb += 4)
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
    for (int i = 0; i < fCount; ++i, argb += 4, errors += 3) {
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

void TargetRows::Invert(std::uint8_t* pixels) const
{
    const int bytes = fLayout.PixelBytes() == 0 ? 1 : fLayout.PixelBytes();
    for (int i = 0; i < fCount; ++i) {
        for (int b = 0; b < bytes; ++b)
            *pixels++ ^= fLayout.invert[static_cast<std::size_t>(b)];
    }
}

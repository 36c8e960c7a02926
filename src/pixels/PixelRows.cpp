#include "pixels/PixelRows.h"

#include "pixels/ColorMatch.h"
#include "util/ByteOrder.h"

#include <cstring>

void UnpackIndexes(const std::uint8_t* row, int first, int count, int pixelSize,
                   std::uint8_t* values)
{
    if (pixelSize == 8) {
        std::memcpy(values, row + first, static_cast<std::size_t>(count));
        return;
    }
    const int perByte = 8 / pixelSize, mask = (1 << pixelSize) - 1;
    for (int i = 0; i < count; ++i) {
        const int pixel = first + i;
        const int shift = 8 - pixelSize * (1 + pixel % perByte);
        values[i] = static_cast<std::uint8_t>(row[pixel / perByte] >> shift & mask);
    }
}

void PackIndexes(std::uint8_t* row, int first, int count, int pixelSize, const std::uint8_t* values)
{
    if (pixelSize == 8) {
        std::memcpy(row + first, values, static_cast<std::size_t>(count));
        return;
    }
    const int perByte = 8 / pixelSize, mask = (1 << pixelSize) - 1;
    for (int i = 0; i < count; ++i) {
        const int pixel = first + i;
        const int shift = 8 - pixelSize * (1 + pixel % perByte);
        std::uint8_t& byte = row[pixel / perByte];
        byte = static_cast<std::uint8_t>((byte & ~(mask << shift)) | (values[i] & mask) << shift);
    }
}

void FillPixels(std::uint8_t* row, int count, const PixelLayout& layout, const NativePixel& pixel)
{
    if (layout.pixelSize <= 8) {
        int byte = pixel[0];
        for (int bits = layout.pixelSize; bits < 8; bits *= 2)
            byte |= byte << bits;
        std::memset(row, byte, static_cast<std::size_t>(UsedRowBytes(count, layout.pixelSize)));
        return;
    }
    const auto bytes = static_cast<std::size_t>(layout.PixelBytes());
    for (int i = 0; i < count; ++i, row += bytes)
        std::memcpy(row, pixel.data(), bytes);
}

NativePixel NativeFromARGB(const PixelLayout& layout, const NativePixel& argb)
{
    NativePixel pixel = argb;
    if (layout.pixelSize == 24) {
        pixel = {argb[1], argb[2], argb[3], 0};
    } else if (layout.pixelSize == 16 && layout.cmpCount == 1) {
        const std::uint8_t luma = LumaOf(argb.data());  // times 257: the byte twice
        pixel = {luma, luma, 0, 0};
    } else if (layout.pixelSize == 16) {
        const int word = (argb[1] >> 3) << 10 | (argb[2] >> 3) << 5 | argb[3] >> 3;
        StoreBE(pixel.data(), static_cast<std::uint16_t>(word));
    }
    return pixel;
}

NativePixel NativeColor(const PixView& view, const PixelLayout& layout, RGBColor color)
{
    const NativePixel argb = ARGBOf(color.red, color.green, color.blue);
    if (layout.Indexed())
        return {NearestEntry(TableOf(view), argb), 0, 0, 0};
    NativePixel pixel = NativeFromARGB(layout, argb);
    if (layout.pixelSize == 16 && layout.cmpCount == 1 && color.red == color.green &&
        color.green == color.blue)
        StoreBE(pixel.data(), color.red);  // gray of 16 bits keeps all of them
    return pixel;
}

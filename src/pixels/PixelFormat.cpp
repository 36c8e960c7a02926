#include "pixels/PixelFormat.h"

namespace {

struct FormatRow {
    std::uint32_t format;
    PixelLayout layout;
};
// clang-format off
constexpr auto kFormats = std::to_array<FormatRow>({
    // format             size  count  cmp  table  inverted bits
    {  1,                 { 1,  1,     1,   1,     {0x01}                   }},
    {  2,                 { 2,  1,     2,   66,    {0x03}                   }},
    {  4,                 { 4,  1,     4,   68,    {0x0F}                   }},
    {  8,                 { 8,  1,     8,   72,    {0xFF}                   }},
    { 33,                 { 1,  1,     1,   33,    {0x01}                   }},
    { 34,                 { 2,  1,     2,   34,    {0x03}                   }},
    { 36,                 { 4,  1,     4,   36,    {0x0F}                   }},
    { kPixelFormatGray8,  { 8,  1,     8,   40,    {0xFF}                   }},
    { 16,                 {16,  3,     5,   0,     {0x7F, 0xFF}             }},
    { 24,                 {24,  3,     8,   0,     {0xFF, 0xFF, 0xFF}       }},
    { kPixelFormatARGB32, {32,  4,     8,   0,     {0x00, 0xFF, 0xFF, 0xFF} }},  // alpha stays
    { kPixelFormatGray16, {16,  1,     16,  0,     {0xFF, 0xFF}             }},
});
// clang-format on

}  // namespace

std::optional<PixelLayout> LayoutOfPixelFormat(std::uint32_t format)
{
    for (const FormatRow& row : kFormats) {
        if (row.format == format)
            return row.layout;
    }
    return std::nullopt;
}

std::optional<PixelLayout> LayoutOfPixMap(const PixMap& map)
{
    return LayoutOfPixelFormat(map.pixelFormat != 0 ? map.pixelFormat
                                                    : static_cast<std::uint32_t>(map.pixelSize));
}

std::int32_t PaddedRowBytes(int width, int pixelSize)
{
    return (width * pixelSize + 127) / 128 * 16;
}

std::int32_t UsedRowBytes(int width, int pixelSize) { return (width * pixelSize + 7) / 8; }

// Brightness and contrast on ports of every kind.
#include "pixels/PixelFilters.h"

#include "pixels/ColorMatch.h"
#include "pixels/OffscreenFactory.h"
#include "pixels/Pictures.h"

namespace {

constexpr std::uint32_t kGray16 = kPixelFormatGray16;

FilterParameters BrightnessContrast(int brightness, int contrast)
{
    FilterParameters parameters;
    parameters.Set(kFilterWhat, static_cast<std::int32_t>(kFilterBrightnessContrast));
    parameters.Set(kFilterBrightness, brightness);
    parameters.Set(kFilterContrast, contrast);
    return parameters;
}

QvxStatus InPlace(const FilterParameters& parameters, Port* port)
{
    return FilterGWorldToGWorld(parameters, *port, port);
}

// A port of one pixel.
std::unique_ptr<Port> PixelPort(std::uint32_t format, std::uint32_t bits)
{
    auto port = WhitePort(format, 1, 1);
    for (int i = 0; i < port->pixelSize / 8; ++i)
        port->baseAddr[i] = static_cast<std::uint8_t>(bits >> (port->pixelSize - 8 - 8 * i));
    return port;
}

}  // namespace

TEST(PixelFilters, move_values_along_the_line)
{
    struct Row {
        const char* fault;
        std::uint32_t format, before;
        int brightness, contrast;
        std::uint32_t after;
    };
    const Row rows[] = {
        {"half of the range at most", 32, 0x00102030, 100, 0, 0x0090A0B0},
        {"cut at black, alpha kept", 32, 0x7F10FF80, -100, 0, 0x7F008001},
        {"flat at the lowest contrast", 32, 0xFF00FF33, 0, -100, 0xFF808080},
        {"a step at the highest", 32, 0xFF007F80, 0, 100, 0xFF0000FF},
        {"beyond 100 is 100", 32, 0xFF007F80, 0, 1000, 0xFF0000FF},
        {"16 bits keep theirs", kGray16, 0x1235, 50, 0, 0x1235 + 0x4000},
        {"the middle stays", kGray16, 0x8000, 0, 50, 0x8001},
        {"gray of 8 bits is stored turned over", 40, 0xFF, 100, 0, 0x7F},
        {"colours by way of 32 bits", 8, 108, 0, 100, 180},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.fault);
        const auto port = PixelPort(row.format, row.before);
        ASSERT_EQ(InPlace(BrightnessContrast(row.brightness, row.contrast), port.get()), kQvxOK);
        EXPECT_EQ(BitsAt(*port, 0, 0), row.after);
    }
}

TEST(PixelFilters, leave_every_bit_for_two_zeros_and_every_table_always)
{
    for (const std::uint32_t format : {1u, 4u, 8u, 16u, 24u, 32u, 40u, kGray16}) {
        SCOPED_TRACE(format);
        const auto port = NoisePort(format, 9, 5), before = NoisePort(format, 9, 5);
        ASSERT_EQ(InPlace(BrightnessContrast(0, 0), port.get()), kQvxOK);
        ASSERT_EQ(FilterGWorldThroughBuffer(BrightnessContrast(0, 0), port.get()), kQvxOK);
        for (int i = 0; i < 45; ++i)
            ASSERT_EQ(BitsAt(*port, i / 9, i % 9), BitsAt(*before, i / 9, i % 9));
        ASSERT_EQ(InPlace(BrightnessContrast(30, 30), port.get()), kQvxOK);
        EXPECT_TRUE(SameColors(port->colorTable, before->colorTable));
    }
}

TEST(PixelFilters, fill_a_second_port_and_leave_the_first)
{
    for (const std::uint32_t format : {8u, 16u, 32u, 40u, kGray16}) {
        SCOPED_TRACE(format);
        const auto source = NoisePort(format, 9, 5), before = NoisePort(format, 9, 5),
                   target = WhitePort(format, 9, 5);
        ASSERT_EQ(FilterGWorldToGWorld(BrightnessContrast(20, 40), *source, target.get()), kQvxOK);
        ASSERT_EQ(InPlace(BrightnessContrast(20, 40), before.get()), kQvxOK);
        for (int i = 0; i < 45; ++i)
            ASSERT_EQ(BitsAt(*target, i / 9, i % 9), BitsAt(*before, i / 9, i % 9));
        EXPECT_EQ(BitsAt(*source, 4, 8), BitsAt(*NoisePort(format, 9, 5), 4, 8));
    }
    EXPECT_EQ(FilterGWorldToGWorld(BrightnessContrast(1, 1), *WhitePort(32, 3, 2),
                                   WhitePort(32, 2, 3).get()),
              kQvxBadArgument);
    FilterParameters other = BrightnessContrast(1, 1);
    other.Set(kFilterWhat, 0);
    EXPECT_EQ(InPlace(other, WhitePort(32, 3, 2).get()), kQvxUnsupported);
}

TEST(PixelFilters, take_a_buffer_where_an_offscreen_has_not_32_bits)
{
    for (const std::uint32_t format : {32u, 40u}) {
        std::unique_ptr<zel_Offscreen> offscreen;
        ASSERT_EQ(zel_OffscreenFactory::NewCOffscreen(format, 4, 4, false, &offscreen), kQvxOK);
        ASSERT_EQ(
            FilterCOffscreenThroughBufferIfNeeded(BrightnessContrast(-100, 0), offscreen.get()),
            kQvxOK);
        EXPECT_EQ(BitsAt(*offscreen->GetGWorldPtr(), 3, 3), format == 32 ? 0xFF808080u : 0x7Fu);
    }
    EXPECT_EQ(FilterCOffscreenThroughBufferIfNeeded(BrightnessContrast(0, 0), nullptr),
              kQvxBadArgument);
}

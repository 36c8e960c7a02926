// Words for the screen from ports of every format, beside a slow way pixel by pixel.
#include "pixels/ScreenPixels.h"

#include "pixels/Pictures.h"
#include "pixels/PixelCopy.h"

#include <cstring>

namespace {

std::uint32_t WordAt(const std::uint8_t* screen, int rowBytes, int v, int h)
{
    std::uint32_t word = 0;
    std::memcpy(&word, screen + v * rowBytes + 4 * h, sizeof word);
    return word;
}

}  // namespace

TEST(CopyToScreen, gives_opaque_words_of_every_format_and_width)
{
    ColorTable windowed = *SystemColorTable(40);
    for (std::size_t i = 0; i < 200; ++i)
        windowed.fEntries[i].red = windowed.fEntries[i].green = windowed.fEntries[i].blue = 0xFFFF;
    struct Row {
        std::uint32_t format;
        const ColorTable* table;
    };
    const Row rows[] = {{1, nullptr},  {4, nullptr},    {8, nullptr},
                        {40, nullptr}, {40, &windowed}, {16, nullptr},
                        {24, nullptr}, {32, nullptr},   {kPixelFormatGray16, nullptr}};
    for (const Row& row : rows) {
        for (const int width : {1, 15, 64, 131}) {
            SCOPED_TRACE(testing::Message() << row.format << ", " << width);
            const auto port = NoisePort(row.format, width + 3, 4);
            if (row.table)
                port->colorTable = *row.table;
            const auto colors = WhitePort(32, width + 3, 4);
            ASSERT_EQ(CopyPixels(*port, *colors, nullptr, nullptr, CopyMode::Replace, nullptr),
                      kQvxOK);
            const int rowBytes = 4 * width + 12;
            std::vector<std::uint8_t> screen(static_cast<std::size_t>(rowBytes) * 3 + 4, 0x5A);
            const Rect from = RectOf(1, 2, 4, width + 2);
            ASSERT_EQ(CopyToScreen(*port, &from, screen.data(), rowBytes), kQvxOK);
            for (int i = 0; i < 3 * width; ++i)
                ASSERT_EQ(WordAt(screen.data(), rowBytes, i / width, i % width),
                          BitsAt(*colors, 1 + i / width, 2 + i % width) | 0xFF000000);
            EXPECT_EQ(WordAt(screen.data(), rowBytes, 1, width), 0x5A5A5A5Au);
        }
    }
}

TEST(CopyToScreen, turns_a_port_where_it_stands)
{
    const auto port = NoisePort(32, 37, 5), before = NoisePort(32, 37, 5);
    ASSERT_EQ(CopyToScreen(*port, nullptr, port->baseAddr, port->rowBytes), kQvxOK);
    for (int i = 0; i < 37 * 5; ++i)
        ASSERT_EQ(WordAt(port->baseAddr, port->rowBytes, i / 37, i % 37),
                  BitsAt(*before, i / 37, i % 37) | 0xFF000000);
}

TEST(CopyToScreen, refuses_what_does_not_fit)
{
    const auto port = WhitePort(32, 10, 10);
    std::vector<std::uint8_t> screen(400);
    const Rect beyond = RectOf(0, 0, 11, 10), empty = RectOf(3, 3, 3, 9);
    EXPECT_EQ(CopyToScreen(*port, &beyond, screen.data(), 40), kQvxBadArgument);
    EXPECT_EQ(CopyToScreen(*port, &empty, screen.data(), 40), kQvxBadArgument);
    EXPECT_EQ(CopyToScreen(*port, nullptr, screen.data(), 39), kQvxBadArgument);
    EXPECT_EQ(CopyToScreen(*port, nullptr, nullptr, 40), kQvxBadArgument);
    EXPECT_EQ(CopyToScreen(PixMap{}, nullptr, screen.data(), 40), kQvxBadArgument);
}

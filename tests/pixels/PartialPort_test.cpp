// Ports over a part: they reach their own pixels only, in the coordinates of the whole.
#include "pixels/PartialPort.h"

#include "pixels/Pictures.h"
#include "pixels/PixelCopy.h"

TEST(MakePartialGWorld, shares_memory_and_touches_nothing_beside_its_part)
{
    for (const std::uint32_t format : {8u, 16u, 24u, 32u, FourCC("b16g")}) {
        SCOPED_TRACE(format);
        const auto whole = NoisePort(format, 23, 9);
        const auto before = NoisePort(format, 23, 9);
        const Rect part = RectOf(2, 3, 7, 20), inner = RectOf(3, 5, 6, 11);
        std::unique_ptr<Port> partial, nested;
        ASSERT_EQ(MakePartialGWorld(*whole, part, &partial), kQvxOK);
        ASSERT_EQ(MakePartialGWorld(*partial, inner, &nested), kQvxOK);
        EXPECT_EQ(BitsAt(*nested, 4, 6), BitsAt(*whole, 4, 6));
        ASSERT_EQ(SetQTGWorldBits(nested.get(), 7), kQvxOK);
        for (int v = 0; v < 9; ++v) {
            for (int h = 0; h < 23; ++h) {
                const bool inside = v >= 3 && v < 6 && h >= 5 && h < 11;
                const std::uint32_t full = 0xFFFFFFFFu >> (32 - whole->pixelSize);
                ASSERT_EQ(BitsAt(*whole, v, h), inside ? full : BitsAt(*before, v, h));
            }
        }
        ASSERT_EQ(FillPort(partial.get(), kColorBlack), kQvxOK);
        EXPECT_EQ(BitsAt(*whole, 2, 20), BitsAt(*before, 2, 20));
        EXPECT_EQ(BitsAt(*whole, 6, 19), BitsAt(*partial, 2, 3));
    }
}

TEST(MakePartialGWorld, refuses_what_is_no_part)
{
    const auto port = WhitePort(8, 10, 10), packed = WhitePort(4, 10, 10);
    std::unique_ptr<Port> partial;
    for (const Rect& rect : {RectOf(0, 0, 10, 11), RectOf(-1, 0, 5, 5), RectOf(4, 4, 4, 8), Rect{}})
        EXPECT_EQ(MakePartialGWorld(*port, rect, &partial), kQvxBadArgument);
    EXPECT_EQ(MakePartialGWorld(*packed, packed->bounds, &partial), kQvxBadArgument);
    EXPECT_EQ(partial, nullptr);
}

TEST(MakePartialOrCloneGWorld, clones_only_packed_pixels)
{
    const auto packed = NoisePort(4, 10, 10);
    std::unique_ptr<Port> made;
    bool isClone = false;
    ASSERT_EQ(MakePartialOrCloneGWorld(*packed, RectOf(1, 3, 5, 9), &made, &isClone), kQvxOK);
    EXPECT_TRUE(isClone);
    EXPECT_NE(made->pixels, nullptr);
    EXPECT_EQ(made->bounds, RectOf(0, 0, 4, 6));
    EXPECT_EQ(BitsAt(*made, 3, 5), BitsAt(*packed, 4, 8));
    ASSERT_EQ(MakePartialOrCloneGWorld(*WhitePort(8, 9, 9), RectOf(1, 3, 5, 9), &made, &isClone),
              kQvxOK);
    EXPECT_FALSE(isClone);
}

TEST(MakeCloneGWorld, rounds_its_size_and_keeps_a_changed_table)
{
    const auto port = WhitePort(40, 10, 10);
    port->colorTable.fEntries[0] = {0, 0x8000, 0x8000, 0x8000};
    CTabChanged(&port->colorTable);
    std::unique_ptr<Port> clone;
    ASSERT_EQ(MakeCloneGWorld(*port, RectOf(0, 0, 5, 3), 0x8000, false, &clone), kQvxOK);
    EXPECT_EQ(clone->bounds, RectOf(0, 0, 3, 2));  // 2.5 and 1.5
    EXPECT_EQ(BitsAt(*clone, 1, 1), 0u);
    EXPECT_EQ(clone->colorTable.fEntries[0].red, 0x8000);
    ASSERT_EQ(MakeCloneGWorld(*port, RectOf(0, 0, 5, 3), 0x20000, true, &clone), kQvxOK);
    EXPECT_EQ(BitsAt(*clone, 9, 5), 0xFF808080u);
    EXPECT_EQ(MakeCloneGWorld(*port, port->bounds, 0x4000'0000, false, &clone), kQvxBadArgument);
    EXPECT_EQ(MakeCloneGWorld(*port, port->bounds, 0x100, false, &clone), kQvxBadArgument);
}

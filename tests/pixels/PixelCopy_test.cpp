// The copy between formats and sizes, its modes, and where it may write.
#include "pixels/PixelCopy.h"

#include "pixels/COffscreenUtils.h"
#include "pixels/Pictures.h"
#include "util/ByteOrder.h"

#include <cstring>

namespace {

constexpr std::uint32_t kGray16 = kPixelFormatGray16;
constexpr std::uint32_t kFormats[] = {1, 2, 4, 8, 16, 24, 32, 40, kGray16};

QvxStatus Copy(const Port& source, const Port& target, CopyMode mode = CopyMode::Replace)
{
    return CopyPixels(source, target, nullptr, nullptr, mode, nullptr);
}

void SetPixel(const Port& port, int v, int h, std::uint32_t bits)  // of 8 bits and more
{
    const int bytes = port.pixelSize / 8;
    for (int i = 0; i < bytes; ++i)
        RowAddress(port, v)[h * bytes + i] = static_cast<std::uint8_t>(bits >> 8 * (bytes - 1 - i));
}

}  // namespace

TEST(CopyPixels, of_equal_sizes_and_formats_moves_the_very_bits)
{
    const Rect from = RectOf(1, 3, 8, 16), to = RectOf(0, 5, 7, 18);
    for (const std::uint32_t format : kFormats) {
        for (const CopyMode mode : {CopyMode::Replace, CopyMode::Dither}) {
            SCOPED_TRACE(format);
            const auto source = NoisePort(format, 19, 9), before = NoisePort(format, 21, 8);
            const auto target = NoisePort(format, 21, 8);
            ASSERT_EQ(CopyPixels(*source, *target, &from, &to, mode, nullptr), kQvxOK);
            for (int v = 0; v < 8; ++v) {
                for (int h = 0; h < 21; ++h) {
                    const bool inside = v < 7 && h >= 5 && h < 18;
                    ASSERT_EQ(BitsAt(*target, v, h),
                              inside ? BitsAt(*source, v + 1, h - 2) : BitsAt(*before, v, h));
                }
            }
        }
    }
}

TEST(CopyPixels, changes_formats_by_colour)
{
    ColorTable windowed = *SystemColorTable(40);
    windowed.fEntries[9] = {9, 0x6000, 0x6000, 0x6000};
    struct Row {
        const char* fault;
        std::uint32_t from, bits;
        const ColorTable* table;
        std::uint32_t to, wanted;
    };
    const Row rows[] = {
        {"gray of 8 bits is stored turned over", 40, 0x10, nullptr, 32, 0xFFEFEFEF},
        {"and back", 32, 0x00EFEFEF, nullptr, 40, 0x10},
        {"the port's table counts", 40, 9, &windowed, 32, 0xFF606060},
        {"also between gray ports", 40, 9, &windowed, 40, 0x9F},
        {"gray of 16 bits, high byte first", kGray16, 0x12FF, nullptr, 32, 0xFF121212},
        {"its inverse in 8 bits", kGray16, 0x12FF, nullptr, 40, 0xED},
        {"8 bits fill 16", 40, 0, nullptr, kGray16, 0xFFFF},
        {"colours become their luma", 32, 0xFF00FF00, nullptr, 40, 255 - 149},
        {"bytes of 24 and 32", 24, 0x123456, nullptr, 32, 0xFF123456},
        {"fives become eights", 16, 0x7C10, nullptr, 32, 0xFFFF0084},
        {"eights become fives", 32, 0xFFFF0084, nullptr, 16, 0x7C10},
        {"the cube's own colours", 8, 35, nullptr, 24, 0xFF0000},
        {"nearest of the cube", 32, 0xFF340034, nullptr, 8, 178},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.fault);
        const auto source = WhitePort(row.from, 3, 2, row.table), target = WhitePort(row.to, 3, 2);
        SetPixel(*source, 1, 2, row.bits);
        ASSERT_EQ(Copy(*source, *target), kQvxOK);
        EXPECT_EQ(BitsAt(*target, 1, 2), row.wanted);
    }
}

TEST(CopyPixels, keeps_a_flat_picture_flat_in_every_format_and_size)
{
    for (const std::uint32_t from : kFormats) {
        for (const std::uint32_t to : kFormats) {
            for (const int side : {3, 11, 40}) {
                SCOPED_TRACE(testing::Message() << from << " to " << to << ", " << side);
                const auto source = WhitePort(from, 11, 9), target = WhitePort(to, side, side);
                const auto black = WhitePort(to, 1, 1);
                ASSERT_EQ(FillPort(source.get(), kColorBlack), kQvxOK);
                ASSERT_EQ(FillPort(black.get(), kColorBlack), kQvxOK);
                ASSERT_EQ(Copy(*source, *target, CopyMode::Dither), kQvxOK);
                for (int i = 0; i < side * side; ++i)
                    ASSERT_EQ(BitsAt(*target, i / side, i % side), BitsAt(*black, 0, 0));
            }
        }
    }
}

TEST(CopyPixels, averages_values_but_never_indexes_of_colours)
{
    struct Row {
        std::uint32_t format, left, right, mean;
    };
    const Row rows[] = {{40, 10, 20, 15},
                        {kGray16, 0x1000, 0x2001, 0x1801},
                        {32, 0xFF102030, 0xFF304050, 0xFF203040},
                        {8, 10, 20, 20}};
    for (const Row& row : rows) {
        SCOPED_TRACE(row.format);
        const auto source = WhitePort(row.format, 2, 1), target = WhitePort(row.format, 1, 1);
        SetPixel(*source, 0, 0, row.left);
        SetPixel(*source, 0, 1, row.right);
        ASSERT_EQ(Copy(*source, *target), kQvxOK);
        EXPECT_EQ(BitsAt(*target, 0, 0), row.mean);
    }
}

TEST(CopyPixels, paints_black_only_and_loses_no_thin_line)
{
    const auto plane = WhitePort(1, 40, 40), target = WhitePort(32, 10, 10);
    for (int v = 0; v < 40; ++v)
        RowAddress(*plane, v)[17 / 8] |= 0x80 >> 17 % 8;  // one column
    ASSERT_EQ(FillPort(target.get(), {0x2000, 0x2000, 0x2000}), kQvxOK);
    target->foreColor = {0xFFFF, 0x8000, 0};
    ASSERT_EQ(Copy(*plane, *target, CopyMode::Paint), kQvxOK);
    for (int i = 0; i < 100; ++i)
        ASSERT_EQ(BitsAt(*target, i / 10, i % 10), i % 10 == 4 ? 0xFFFF8000 : 0xFF202020) << i;

    const auto large = WhitePort(32, 120, 120);  // growing makes it no wider than its share
    ASSERT_EQ(Copy(*plane, *large, CopyMode::Paint), kQvxOK);
    for (int h = 0; h < 120; ++h)
        ASSERT_EQ(BitsAt(*large, 60, h), h / 3 == 17 ? 0xFF000000 : 0xFFFFFFFF) << h;
}

TEST(CopyPixels, inverts_after_the_change_of_format)
{
    const auto source = WhitePort(40, 3, 1), colour = WhitePort(32, 3, 1),
               gray = WhitePort(40, 3, 1);
    SetPixel(*source, 0, 1, 0x10);
    ASSERT_EQ(Copy(*source, *colour, CopyMode::ReplaceInverted), kQvxOK);
    EXPECT_EQ(BitsAt(*colour, 0, 1), 0xFF101010u);
    ASSERT_EQ(Copy(*source, *gray, CopyMode::ReplaceInverted), kQvxOK);
    EXPECT_EQ(BitsAt(*gray, 0, 1), 0xEFu);
}

TEST(CopyPixels, dithers_to_the_mean)
{
    const auto source = WhitePort(40, 64, 64), target = WhitePort(1, 64, 64);
    ASSERT_EQ(SetQTGWorldBits(source.get(), 0), kQvxOK);
    ASSERT_EQ(FillPort(source.get(), {0x4000, 0x4000, 0x4000}), kQvxOK);
    ASSERT_EQ(Copy(*source, *target), kQvxOK);
    EXPECT_EQ(BitsAt(*target, 5, 5), 1u);  // plain: all black
    ASSERT_EQ(Copy(*source, *target, CopyMode::Dither), kQvxOK);
    int white = 0;
    for (int i = 0; i < 64 * 64; ++i)
        white += BitsAt(*target, i / 64, i % 64) == 0;
    EXPECT_NEAR(white / 4096.0, 0.25, 0.02);
}

TEST(CopyPixels, writes_within_target_and_clip_only)
{
    const auto source = NoisePort(32, 16, 16), whole = WhitePort(32, 24, 24);
    const auto clipped = WhitePort(32, 24, 24);
    const Rect to = RectOf(-6, -6, 34, 34);
    const ClipRegion clip{{RectOf(0, 0, 5, 5), RectOf(10, 20, 40, 40)}};
    ASSERT_EQ(CopyPixels(*source, *whole, nullptr, &to, CopyMode::Replace, nullptr), kQvxOK);
    ASSERT_EQ(CopyPixels(*source, *clipped, nullptr, &to, CopyMode::Replace, &clip), kQvxOK);
    for (int v = 0; v < 24; ++v) {
        for (int h = 0; h < 24; ++h) {
            const bool inside = (v < 5 && h < 5) || (v >= 10 && h >= 20);
            ASSERT_EQ(BitsAt(*clipped, v, h), inside ? BitsAt(*whole, v, h) : 0xFFFFFFFFu);
        }
    }
}

TEST(CopyPixels, of_large_pictures_is_that_of_their_strips)
{
    ColorTable windowed = *SystemColorTable(40);
    for (std::size_t i = 0; i < 128; ++i)
        windowed.fEntries[i].red = windowed.fEntries[i].green = windowed.fEntries[i].blue = 0x9000;
    struct Row {
        std::uint32_t from, to;
        CopyMode mode;
    };
    const Row rows[] = {{40, 32, CopyMode::Replace},
                        {32, 24, CopyMode::ReplaceInverted},
                        {kGray16, kGray16, CopyMode::Replace}};
    for (const Row& row : rows) {
        SCOPED_TRACE(row.from);
        const auto source = NoisePort(row.from, 900, 1000);
        const auto whole = WhitePort(row.to, 1101, 801), strips = WhitePort(row.to, 1101, 801);
        if (row.from == 40)
            source->colorTable = windowed;
        ASSERT_EQ(Copy(*source, *whole, row.mode), kQvxOK);
        ClipRegion clip;
        for (int top = 0; top < 801; top += 100)
            clip.rects.push_back(RectOf(top, 0, top + 100, 1101));
        ASSERT_EQ(CopyPixels(*source, *strips, nullptr, nullptr, row.mode, &clip), kQvxOK);
        for (int v = 0; v < 801; ++v)
            ASSERT_EQ(std::memcmp(RowAddress(*whole, v), RowAddress(*strips, v),
                                  static_cast<std::size_t>(whole->rowBytes)),
                      0)
                << v;
    }
}

TEST(CopyPixels, moves_within_one_block)
{
    for (const std::uint32_t format : {4u, 8u, 32u}) {
        SCOPED_TRACE(format);
        const auto port = NoisePort(format, 20, 20), before = NoisePort(format, 20, 20);
        const Rect from = RectOf(0, 0, 18, 18), to = RectOf(2, 1, 20, 19);
        ASSERT_EQ(CopyPixels(*port, *port, &from, &to, CopyMode::Replace, nullptr), kQvxOK);
        for (int i = 0; i < 18 * 18; ++i)
            ASSERT_EQ(BitsAt(*port, 2 + i / 18, 1 + i % 18), BitsAt(*before, i / 18, i % 18));
    }
}

TEST(CopyPixels, refuses_what_it_cannot_do)
{
    const auto port = WhitePort(8, 10, 10), target = WhitePort(32, 10, 10);
    const Rect beyond = RectOf(0, 0, 11, 10), empty = RectOf(3, 3, 3, 9);
    const auto copy = [&](const PixView& source, const Rect* from, const Rect* to, CopyMode mode) {
        return CopyPixels(source, *target, from, to, mode, nullptr);
    };
    constexpr CopyMode kReplace = CopyMode::Replace;
    EXPECT_EQ(copy(*port, &beyond, nullptr, kReplace), kQvxBadArgument);
    EXPECT_EQ(copy(*port, &empty, nullptr, kReplace), kQvxBadArgument);
    EXPECT_EQ(copy(*port, nullptr, &empty, kReplace), kQvxBadArgument);
    EXPECT_EQ(copy(*port, nullptr, nullptr, static_cast<CopyMode>(7)), kQvxBadArgument);
    EXPECT_EQ(copy(PixMap{}, nullptr, nullptr, kReplace), kQvxBadArgument);
    const Rect wide = RectOf(0, -32767, 10, 32767);
    EXPECT_EQ(copy(*port, nullptr, &wide, kReplace), kQvxBadArgument);
    EXPECT_EQ(CopyOffscreenQ(*port, target.get(), 1023, nullptr, &beyond, kReplace, nullptr),
              kQvxBadArgument);
    EXPECT_EQ(CopyOffscreenQ(*port, target.get(), 1023, nullptr, nullptr, kReplace, nullptr),
              kQvxOK);
    EXPECT_FALSE(target->locked);
}

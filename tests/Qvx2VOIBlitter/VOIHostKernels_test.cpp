// Windowing of host-order words: the whole-number table, and rows of any length and alignment.
#include "Qvx2VOIBlitter/VOIHostKernels.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <numeric>

TEST(GetVOIScale16to8, rounds_to_the_nearest_and_cuts_its_length_to_16_bits)
{
    struct Row {
        std::int32_t lo, hi;
        std::size_t count;
    };
    // Among them a tie, a length cut to nothing (no division by zero), and ends the wrong way
    // round.
    const Row rows[] = {{5, 6, 2},         {-1024, 3071, 4096}, {0, 2, 3},
                        {0, 65535, 65536}, {0, 65536, 1},       {1, 0, 65536}};
    for (const Row& row : rows) {
        std::vector<std::uint8_t> table;
        ASSERT_EQ(GetVOIScale16to8(row.lo, row.hi, &table), kQvxOK);
        ASSERT_EQ(table.size(), row.count);
        EXPECT_EQ(table[0], 0);
        const double n = static_cast<double>(row.count) - 1;
        for (std::size_t i = 1; i < table.size(); ++i)
            ASSERT_EQ(table[i], std::floor(static_cast<double>(i) * 255 / n + 0.5)) << i;
    }
}

TEST(ApplyVOITransformation, signed_words_sort_below_zero)
{
    const std::int16_t source[] = {-32768, -100, 0, 100, 32767, -1};
    std::vector<std::uint8_t> to(8, 7);
    const VOIHostPixels pixels{-100, 100, source, to.data(), 3, 2, 4};
    EXPECT_EQ(ApplyVOITransformation_SInt16to8(pixels), kQvxOK);
    EXPECT_EQ(to, (std::vector<std::uint8_t>{0, 0, 128, 7, 255, 255, 126, 7}));
}

// All words, through windows with a table and without, partly and wholly outside of the words.
TEST(ApplyVOITransformation, all_words_agree_with_the_formula)
{
    struct Row {
        std::int32_t lo, hi;
    };
    const Row rows[] = {{-100, 100},      {-32768, -12000}, {-32768, 32767}, {0, 65535},
                        {-50000, -32000}, {30000, 40000},   {60000, 70000},  {-70000, -60000},
                        {100000, 100005}, {-10000, 11845},  {-10000, 11846}};
    std::vector<std::uint16_t> words(65536);
    std::iota(words.begin(), words.end(), std::uint16_t{0});
    for (const auto [lo, hi] : rows) {
        std::vector<std::uint8_t> plain(words.size()), sorted(words.size());
        ASSERT_EQ(
            ApplyVOITransformation_UInt16to8({lo, hi, words.data(), plain.data(), 256, 256, 256}),
            kQvxOK);
        ASSERT_EQ(
            ApplyVOITransformation_SInt16to8({lo, hi, words.data(), sorted.data(), 256, 256, 256}),
            kQvxOK);
        const auto gray = [&](int value) {
            const double share = (double(value) - lo) / (hi - lo);
            return std::floor(std::clamp(share, 0.0, 1.0) * 255 + 0.5);
        };
        for (std::size_t i = 0; i < words.size(); ++i) {
            ASSERT_EQ(plain[i], gray(words[i])) << lo << " " << i;
            ASSERT_EQ(sorted[i], gray(static_cast<std::int16_t>(words[i]))) << lo << " " << i;
        }
    }
}

// The row is cut at 32-byte boundaries of the destination; every start and length must agree with
// the pixel taken alone, and nothing around it may change.
TEST(ApplyVOITransformation, unsigned_rows_of_any_start_and_length_agree_pixel_by_pixel)
{
    std::vector<std::uint16_t> source(200);
    for (std::size_t i = 0; i < source.size(); ++i)
        source[i] = static_cast<std::uint16_t>(i * 331);
    for (std::size_t start = 0; start < 33; ++start) {
        for (std::int32_t width = 0; width <= 100; width += width < 4 ? 1 : 7) {
            std::vector<std::uint8_t> to(300, 7);
            const std::int32_t rowBytes = width + 5;
            ASSERT_EQ(ApplyVOITransformation_UInt16to8(
                          {1000, 50000, source.data(), to.data() + start, width, 2, rowBytes}),
                      kQvxOK);
            for (std::size_t k = 0; k < to.size(); ++k) {
                const auto at = static_cast<std::int32_t>(k) - static_cast<std::int32_t>(start);
                const std::int32_t x = at % rowBytes, y = at / rowBytes;
                const bool inside = at >= 0 && y < 2 && x < width;
                const int value = inside ? source[static_cast<std::size_t>(y * width + x)] : 0;
                const double share = std::clamp((value - 1000) / 49000.0, 0.0, 1.0);
                ASSERT_EQ(to[k], inside ? std::floor(share * 255 + 0.5) : 7)
                    << start << " " << width << " " << k;
            }
        }
    }
}

TEST(ApplyVOITransformation, stays_within_its_table_and_its_rows)
{
    const std::uint16_t source[2] = {0, 65535};
    std::uint8_t to[2] = {7, 7};
    EXPECT_EQ(ApplyVOITransformation_UInt16to8({-1, 65535, source, to, 2, 1, 2}), kQvxOK);
    EXPECT_TRUE(to[0] == 0 && to[1] == 0) << "a length of 65,536 leaves one entry";
    EXPECT_EQ(ApplyVOITransformation_UInt16to8({0, 9, source, to, 2, 1, 1}), kQvxBadArgument);
    EXPECT_EQ(ApplyVOITransformation_SInt16to8({0, 9, nullptr, to, 2, 1, 2}), kQvxBadArgument);
    EXPECT_EQ(ApplyVOITransformation_SInt16to8({0, 9, source, to, 2, -1, 2}), kQvxBadArgument);
}

// Window to bounds, bounds to look-up tables. Display values throughout.
#include "Qvx2VOIBlitter/VOIScales.h"

#include <gtest/gtest.h>

namespace {

using Option = QvxVOIBoundsClippingOption;

// An independent form of the 16-to-8 table: whole numbers for short windows, a sum truncated once
// for long ones.
int ExpectedEntry(std::uint32_t i, std::uint32_t n)
{
    if (n > 21845)
        return 255 - static_cast<int>(static_cast<float>(i) / static_cast<float>(n) * 255 + 0.5F);
    return 255 - static_cast<int>((510 * i + n) / (2 * n));
}

}  // namespace

TEST(VOIBounds, follow_from_level_width_and_clipping)
{
    struct Row {
        const char* fault;
        bool clipped;  // to 0 to 1000
        std::int32_t level;
        std::uint32_t width;
        VOIBounds wanted;
    };
    // clang-format off
    const Row rows[] = {
        {"even width",                   false, 50, 100,     {0, 99}},
        {"odd width is treated alike",   false, 50, 101,     {0, 100}},
        {"width 0",                      false, 7, 0,        {7, 8}},
        {"width 1",                      false, 7, 1,        {7, 8}},
        {"clipped at both ends",         true,  500, 4096,   {0, 1000}},
        {"wholly above the pixels",      true,  5000, 100,   {4950, 4951}},
        {"wholly below the pixels",      true,  -500, 100,   {0, 1}},
        {"upper end beyond 32 bits",     false, 1000, 4294967295U, {-2147482647, 2147484647}},
        {"lower end beyond 32 bits",     false, INT32_MIN, 4294967295U, {-4294967295, -1}},
    };
    // clang-format on
    for (const Row& row : rows) {
        SCOPED_TRACE(row.fault);
        const VOIBlitter blit{kSignatureVOIBlitter,
                              row.clipped ? Option::PixelBounds : Option::None, 0, 1000, true};
        VOIBounds bounds;
        EXPECT_EQ(VOIBlitterBase_GetVOIBounds(&blit, row.level, row.width, &bounds), kQvxOK);
        EXPECT_EQ(bounds, row.wanted);
    }
}

TEST(VOIBlitter, guards_its_state)
{
    VOIBlitterPtr made;
    ASSERT_EQ(Qvx2_VOIBlit_New(&made), kQvxOK);
    VOIBlitter* blit = made.get();
    std::int32_t minimum = 11, maximum = 22;
    EXPECT_EQ(Qvx2_VOIBlit_GetPixelBounds(blit, &minimum, &maximum), kQvxOK);
    EXPECT_TRUE(minimum == 11 && maximum == 22) << "never set, so not written";

    VOIScale256 scale;
    EXPECT_EQ(Qvx2_VOIBlit_GetVOIScale256(blit, 10, 10, &scale), kQvxSeekFailed);
    EXPECT_EQ(Qvx2_VOIBlit_SetVOIBoundsClippingOption(blit, Option::Unknown), kQvxBadArgument);
    EXPECT_EQ(Qvx2_VOIBlit_SetVOIBoundsClippingOption(blit, Option::PixelBounds), kQvxOK);
    EXPECT_EQ(Qvx2_VOIBlit_GetVOIScale256(blit, 10, 10, &scale), kQvxBadArgument)
        << "clipping to bounds that were never set";
    EXPECT_EQ(Qvx2_VOIBlit_SetPixelBounds(blit, -1, 5), kQvxBadArgument) << "as unsigned";
    EXPECT_EQ(Qvx2_VOIBlit_SetPixelBounds(blit, 5, -1), kQvxOK);
    blit->fSignature = 0;
    EXPECT_EQ(Qvx2_VOIBlit_GetVOIScale256(blit, 10, 10, &scale), kQvxBadArgument);
    EXPECT_EQ(Qvx2_VOIBlit_Close(nullptr), kQvxBadArgument);
}

TEST(VOIScale16to8, equals_an_independent_form_over_a_spread_of_lengths)
{
    for (std::uint32_t n = 1; n <= 65535; n += n < 1100 ? 1 : 331) {
        VOIScale16 scale;
        ASSERT_EQ(VOIBlitterBase_GetVOIScale16to8({0, n}, &scale), kQvxOK);
        ASSERT_EQ(scale.entries.size(), n + 1);
        for (std::uint32_t i = 0; i <= n; ++i)
            ASSERT_EQ(scale.entries[i], ExpectedEntry(i, n)) << i << " of " << n;
    }
}

TEST(VOIScale16to8, makes_only_what_16_bit_pixels_reach)
{
    struct Row {
        VOIBounds bounds;
        std::int64_t first;
        std::size_t count;
        int front, back;
    };
    const Row rows[] = {
        {{-2147483647, 2147483648}, 0, 65536, 127, 127},
        {{-4294967295, 65535}, 0, 65536, 0, 0},  // an index beyond 32 bits
        {{-10, 10}, 0, 11, 127, 0},
        {{65530, 65540}, 65530, 6, 255, 127},
        {{70000, 80000}, 70000, 1, 255, 255},
        {{-90, -80}, -80, 1, 0, 0},
    };
    for (const Row& row : rows) {
        VOIScale16 scale;
        ASSERT_EQ(VOIBlitterBase_GetVOIScale16to8(row.bounds, &scale), kQvxOK);
        EXPECT_EQ(scale.first, row.first);
        ASSERT_EQ(scale.entries.size(), row.count) << row.first;
        EXPECT_EQ(scale.entries.front(), row.front) << row.first;
        EXPECT_EQ(scale.entries.back(), row.back) << row.first;
    }
}

TEST(VOIScale8, fills_by_rule_and_keeps_the_true_ramp)
{
    using Probes = std::array<int, 5>;
    const auto probes = [](const VOIBounds& bounds) {
        VOIScale256 t;
        EXPECT_EQ(VOIBlitterBase_GetVOIScale8_256(bounds, &t), kQvxOK);
        return Probes{t[0], t[1], t[100], t[254], t[255]};
    };
    EXPECT_EQ(probes({0, 255}), (Probes{0, 1, 100, 254, 255}));
    EXPECT_EQ(probes({0, 2}), (Probes{0, 127, 255, 255, 255})) << "truncates";
    EXPECT_EQ(probes({300, 400}), (Probes{0, 0, 0, 0, 0}));
    EXPECT_EQ(probes({-50, -5}), (Probes{255, 255, 255, 255, 255}));
    EXPECT_EQ(probes({-100, 100}), (Probes{127, 128, 255, 255, 255})) << "from below 0";
    EXPECT_EQ(probes({100, 1120}), (Probes{0, 0, 0, 38, 38})) << "to above 255";
    EXPECT_EQ(probes({100, 101}), (Probes{0, 0, 0, 255, 255})) << "up to and with lo";
    EXPECT_EQ(probes({255, 256}), (Probes{0, 0, 0, 0, 0}));
    EXPECT_EQ(probes({-300, 254}), (Probes{138, 138, 184, 255, 255})) << "above hi";
}

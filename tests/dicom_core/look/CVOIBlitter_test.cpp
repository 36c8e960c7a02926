// Windowing by a record: conversions with and without a factor, tables, narrowed windows.
#include "dicom_core/look/CVOIBlitter.h"

#include <gtest/gtest.h>
#include <limits>

namespace {

zel_TransformRec Record(std::int32_t photometric, std::int32_t range, std::int32_t shift,
                        double factor = 1, double offset = 0)
{
    zel_TransformRec record;
    record.voiInfo = {photometric, 0, range, kPixelFormatGray16, shift, factor, offset};
    return record;
}

}  // namespace

TEST(CVOIBlitter, converts_levels_plainly_or_by_the_factor)
{
    struct Row {
        const char* fault;
        zel_TransformRec record;
        float user;
        std::int32_t display;
        float back;  // of that display value
    };
    const Row rows[] = {
        {"plain", Record(1, 0, -1024), 40.9F, 1064, 40},
        {"plain, inverted", Record(0, 4095, -1000), 95.5F, 4999, 96},
        {"factor", Record(1, 0, -10, 0.5), 3.25F, 16, 3},
        {"toward zero after undoing the factor", Record(1, 0, 0, 0.5), -3.25F, -6, -3},
        {"factor and offset", Record(1, 0, 0, 0.25, 100), 101, 4, 101},
        {"offset alone is not plain", Record(1, 0, 0, 1, 0.5), 10.5F, 10, 10.5F},
        {"inverted factor", Record(0, 100, 10, 2, 1), 41, 70, 41},
    };
    const CVOIBlitter blitter;
    for (const Row& row : rows) {
        SCOPED_TRACE(row.fault);
        std::int32_t display = 0;
        float user = 0;
        EXPECT_EQ(blitter.UserToDisplay(row.record, row.user, &display), kQvxOK);
        EXPECT_EQ(display, row.display);
        EXPECT_EQ(blitter.DisplayToUser(row.record, row.display, &user), kQvxOK);
        EXPECT_EQ(user, row.back);
    }
}

TEST(CVOIBlitter, refuses_scales_that_cannot_be_used)
{
    zel_TransformRec unset = Record(1, 0, 0), colour = Record(0, 255, 0);
    unset.voiInfo.pixelFormat = 0;
    colour.voiInfo.pixelFormat = kPixelFormatARGB32;
    zel_TransformRec factored = colour;
    factored.voiInfo.pixelFactor = 2;
    constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
    const std::pair<zel_TransformRec, QvxStatus> rows[] = {
        {unset, kQvxBadArgument},  {Record(1, 0, 0, 0), kQvxBadArgument},
        {colour, kQvxMalformed},   {Record(1, 0, 0, kNan), kQvxBadArgument},
        {factored, kQvxMalformed},
    };
    CVOIBlitter blitter;
    for (const auto& [record, status] : rows) {
        std::int32_t display = 77;
        float user = 77;
        const ColorTable* table = nullptr;
        zelDisplayVOILimits limits;
        EXPECT_EQ(blitter.UserToDisplay(record, 1, &display), status);
        EXPECT_EQ(blitter.DisplayToUser(record, 1, &user), status);
        EXPECT_EQ(blitter.GetCTableForVOI(record, &table), status);
        EXPECT_EQ(U_GetDisplayVOILimits(record, &limits), status);
        EXPECT_EQ(limits, zelDisplayVOILimits{});
    }
}

TEST(CVOIBlitter, copies_with_the_record_s_window_and_the_chosen_clipping)
{
    std::array<std::uint8_t, 8> from = {0, 0, 0, 10, 0, 20, 0, 30};
    std::array<std::uint8_t, 4> to = {};
    PixMap source{from.data(), 8, {0, 0, 1, 4}, kPixelFormatGray16, 16, 1, 16, false};
    PixMap target{to.data(), 4, {0, 0, 1, 4}, kPixelFormatGray8, 8, 1, 8, false};
    CVOIBlitter blitter;
    zel_TransformRec record = Record(1, 0, -100);
    record.voiLevel = -89.5F;  // display value 11, toward zero before the shift
    record.voiWidth = 20.5F;   // rounded half away to 21
    const Rect all = source.bounds;
    using Row = std::array<std::uint8_t, 4>;
    EXPECT_EQ(blitter.CopyPixelsTo8Bits(record, 10, 20, &source, &target, all, all), kQvxOK);
    EXPECT_EQ(to, (Row{255, 255, 0, 0}));
    record.voiLevel = -89;
    EXPECT_EQ(blitter.CopyPixelsTo8Bits(record, &source, &target, all, all), kQvxOK);
    EXPECT_EQ(to, (Row{255, 140, 13, 0})) << "without bounds the former clipping is forgotten";
    EXPECT_EQ(blitter.CopyPixelsTo8Bits(record, 20, 10, &source, &target, all, all),
              kQvxBadArgument);
    EXPECT_EQ(blitter.CopyPixelsTo8Bits(record, &source, nullptr, all, all), kQvxBadArgument);
    record.voiInfo.pixelFactor = 1000;
    record.voiLevel = -89000;
    EXPECT_EQ(blitter.CopyPixelsTo8Bits(record, 0, 100, &source, &target, all, all), kQvxOK);
    EXPECT_EQ(to, (Row{255, 255, 0, 0})) << "a width far below a step is one step";
}

TEST(CVOIBlitter, colour_table_windows_gray_without_touching_pixels)
{
    CVOIBlitter blitter;
    EXPECT_EQ(blitter.BuildCTableForVOI(128, 256), kQvxSeekFailed) << "no clipping chosen yet";
    zel_TransformRec record = Record(1, 255, 0);
    record.voiInfo.pixelFormat = kPixelFormatGray8;
    record.voiLevel = 100;
    record.voiWidth = 51;  // 75 to 125
    const ColorTable* table = nullptr;
    ASSERT_EQ(blitter.GetCTableForVOI(record, &table), kQvxOK);
    const std::uint32_t seed = table->fSeed;
    EXPECT_EQ(table->fEntries[255 - 75].red, 0);
    EXPECT_EQ(table->fEntries[255 - 76].green, 5 * 257);
    EXPECT_EQ(table->fEntries[255 - 126].blue, 65535);
    ASSERT_EQ(blitter.GetCTableForVOI(record, 100, 101, &table), kQvxOK);
    EXPECT_EQ(table->fEntries[255 - 100].red, 0);
    EXPECT_EQ(table->fEntries[255 - 101].red, 65535);
    EXPECT_NE(table->fSeed, seed) << "who cached the table must see the change";
}

TEST(CVOIBlitter, narrowed_windows_lie_within_the_pixels)
{
    const CVOIBlitter blitter;
    using Window = std::pair<std::int32_t, std::uint32_t>;  // level, width
    const auto narrowed = [&](std::int32_t minimum, std::int32_t maximum, Window window) {
        EXPECT_EQ(blitter.EnhanceVOIValues(minimum, maximum, &window.first, &window.second),
                  maximum < minimum ? kQvxBadArgument : kQvxOK);
        return window;
    };
    EXPECT_EQ(narrowed(100, 200, {150, 1000}), Window(150, 100));
    EXPECT_EQ(narrowed(0, 1000, {500, 101}), Window(500, 101)) << "the whole of an odd width";
    EXPECT_EQ(narrowed(0, 1000, {0, 100}), Window(25, 50));
    EXPECT_EQ(narrowed(0, 1000, {5000, 100}), Window(1000, 0));
    EXPECT_EQ(narrowed(-9, 9, {-5, 3}), Window(-4, 3)) << "toward zero";
    EXPECT_EQ(narrowed(0, 65535, {INT32_MAX, UINT32_MAX}), Window(32767, 65535));
    EXPECT_EQ(narrowed(2, 1, {5, 5}), Window(5, 5));
}

TEST(DisplayVOI, limits_are_in_order_and_widths_round_by_their_own_rule)
{
    zel_TransformRec record = Record(0, 4095, 0);
    record.SetVOIWidthLimits(1.5F, 4000.4F);
    record.SetVOILevelLimits(-1000, 3000);
    record.RecordVOI(99.9F, 40);
    zelDisplayVOILimits limits;
    EXPECT_EQ(U_GetDisplayVOILimits(record, &limits), kQvxOK);
    EXPECT_EQ(limits, (zelDisplayVOILimits{2, 1095, 4000, 5095})) << "inverted: lower level first";
    std::uint32_t width = 0;
    std::int32_t level = 0;
    EXPECT_EQ(U_GetDisplayVOIParams(record, &width, &level), kQvxOK);
    EXPECT_EQ(width, 99U) << "truncated here";
    EXPECT_EQ(level, 4055);
    record.voiInfo.pixelFactor = 0.5;
    EXPECT_EQ(U_GetDisplayVOIParams(record, &width, &level), kQvxOK);
    EXPECT_EQ(width, 200U) << "in steps of the scale, rounded";
}

TEST(DisplayVOI, a_window_is_recorded_in_user_values_and_enhanced_before)
{
    struct Row {
        const char* fault;
        std::int32_t photometric;
        double factor;
        bool enhance;
        std::uint32_t width;
        std::int32_t level;
        float userWidth, userLevel;
    };
    const Row rows[] = {
        {"plain", 1, 1, false, 1000, 150, 1000, 50},
        {"narrowed to 100 to 200", 1, 1, true, 1000, 150, 100, 50},
        {"steps of the scale", 1, 0.5, true, 1000, 150, 50, 25},
        {"inverted", 0, 1, false, 10, 4000, 10, 195},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.fault);
        zel_TransformRec record = Record(row.photometric, 4095, -100, row.factor);
        record.SetVOIWidthLimits(1, 5000);
        record.SetVOILevelLimits(-5000, 5000);
        EXPECT_EQ(U_SetDisplayVOIParams(&record, 100, 200, row.width, row.level, row.enhance),
                  kQvxOK);
        EXPECT_EQ(record.voiWidth, row.userWidth);
        EXPECT_EQ(record.voiLevel, row.userLevel);
        const zel_TransformRec before = record;
        EXPECT_EQ(U_SetDisplayVOIParams(&record, 200, 100, 5, 5, true), kQvxBadArgument);
        EXPECT_EQ(record, before);
    }
}

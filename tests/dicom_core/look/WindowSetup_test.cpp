// A frame's first window and its limits.
#include "dicom_core/look/WindowSetup.h"

#include <gtest/gtest.h>
#include <limits>

namespace {

constexpr zelDisplayVOILimits kCodec{1, 0, 4096, 4095};
constexpr float kNan = std::numeric_limits<float>::quiet_NaN();

zel_TransformRec Record(std::int32_t photometric, std::int32_t shift, double factor = 1)
{
    zel_TransformRec record;
    record.voiInfo = {photometric, 0, 4095, kPixelFormatGray16, shift, factor, 0};
    return record;
}

// What is known of a frame with pixels from `low` to `high`, without or with a default.
zelWindowFacts Bare(std::int32_t low, std::int32_t high)
{
    return {low, high, kCodec, false, 5, 5};
}
zelWindowFacts Stated(float width, float level) { return {0, 2000, kCodec, true, width, level}; }

}  // namespace

TEST(WindowSetup, numbers_follow_from_range_limits_and_default)
{
    struct Row {
        const char* fault;
        zel_TransformRec record;
        zelWindowFacts facts;
        std::array<float, 4> limits;  // width, level
        float width, level;
    };
    const zel_TransformRec ct = Record(1, -1024), shifted = Record(1, -10);
    const std::array codec{1.F, 4096.F, -1024.F, 3071.F};
    // clang-format off
    const Row rows[] = {
        {"range widened by its half",  ct, Bare(0, 2000),           {1, 2001, -2024, 1976}, 2001, -24},
        {"inverted: levels turned",    Record(0, 0), Bare(0, 2000), {1, 2001, 1095, 5095},  2001, 3095},
        {"a middle between values",    shifted, Bare(0, 3),         {1, 4, -12, -5},        4,    -9},
        {"one value leaves no room",   shifted, Bare(7, 7),         {0, 0, 0, 0},           0,    0},
        {"the decoder's limits",       ct, Stated(400, 40),         codec,                  400,  40},
        {"a level of 0 counts",        ct, Stated(400, 0),          codec,                  400,  0},
        {"both exactly 0 is none",     ct, Stated(0, 0),            codec,                  4096, 1024},
        {"a NaN counts, pinned",       ct, Stated(kNan, 0),         codec,                  4096, 0},
        {"a factor: the level stands on a step", Record(1, 0, 0.25), Bare(0, 2),
         {0.25F, 0.75F, -0.25F, 0.75F}, 0.75F, 0.25F},
    };
    // clang-format on
    for (const Row& row : rows) {
        SCOPED_TRACE(row.fault);
        zel_TransformRec record = row.record;
        zelWindowSetup setup;
        ASSERT_EQ(SetupWindow(row.facts, &record, &setup), kQvxOK);
        EXPECT_EQ((std::array{record.voiWidthMin, record.voiWidthMax, record.voiLevelMin,
                              record.voiLevelMax}),
                  row.limits);
        EXPECT_EQ(record.voiWidthOriginal, row.width);
        EXPECT_EQ(record.voiLevelOriginal, row.level);
        EXPECT_EQ(record.voiWidth, row.width) << "a window at its originals follows";
        EXPECT_EQ(record.voiLevel, row.level);
    }
}

TEST(WindowSetup, answers_display_values_and_refuses_an_empty_range)
{
    zel_TransformRec record = Record(1, -1024);
    zelWindowSetup setup;
    ASSERT_EQ(SetupWindow(Bare(100, 199), &record, &setup), kQvxOK);
    EXPECT_EQ(setup.limits, (zelDisplayVOILimits{1, 50, 100, 249}));
    ASSERT_EQ(SetupWindow(Bare(INT32_MIN, INT32_MAX), &record, &setup), kQvxOK);
    EXPECT_EQ(setup.limits, (zelDisplayVOILimits{1, INT32_MIN, UINT32_MAX, INT32_MAX}));

    const zel_TransformRec before = record;
    EXPECT_EQ(SetupWindow(Bare(5, 4), &record, &setup), kQvxBadArgument);
    EXPECT_EQ(SetupWindow(Bare(5, 3), &record, &setup), kQvxBadArgument);
    EXPECT_EQ(record, before);
    record.voiInfo.pixelFormat = 0;
    EXPECT_EQ(SetupWindow(Bare(0, 9), &record, &setup), kQvxBadArgument);
}

TEST(WindowSetup, a_window_that_the_user_set_stays)
{
    zel_TransformRec record = Record(1, 0);
    zelWindowSetup setup;
    ASSERT_EQ(SetupWindow(Stated(400, 40), &record, &setup), kQvxOK);
    record.RecordVOI(300, 40);
    ASSERT_EQ(SetupWindow(Stated(500, 60), &record, &setup), kQvxOK);
    EXPECT_EQ(record.voiWidthOriginal, 500);
    EXPECT_EQ(record.voiWidth, 300);
    EXPECT_EQ(record.voiLevel, 40);
}

TEST(WindowSetup, a_default_table_is_an_original_that_the_user_leaves_and_returns_to)
{
    const auto table =
        std::make_shared<const zelVOITable>(zelVOITable{100, 8, {0, 50, 255, 255}, ""});
    zelWindowFacts facts = Stated(table->Width(), table->Level());
    facts.function = zelVOIFunction::Sigmoid;
    facts.defaultTable = table;
    zel_TransformRec record = Record(1, 0), sibling = record;
    zelWindowSetup setup;
    ASSERT_EQ(SetupWindow(facts, &record, &setup), kQvxOK);
    ASSERT_EQ(SetupWindow(facts, &sibling, &setup), kQvxOK);
    EXPECT_EQ(record.voiTable, table);
    EXPECT_EQ(record.voiFunction, zelVOIFunction::Sigmoid);
    EXPECT_TRUE(record.IsVoid());

    record.RecordVOI(300, 40);
    EXPECT_EQ(record.voiTable, nullptr);
    EXPECT_EQ(record.voiFunction, zelVOIFunction::Sigmoid) << "it belongs to all windows";
    sibling.AdoptVOI(record);
    EXPECT_EQ(sibling.voiTable, nullptr);
    EXPECT_EQ(sibling.voiWidth, 300);
    record.ResetColors();
    EXPECT_EQ(record.voiTable, table);

    // Another table of the same span is no original.
    const auto other = std::make_shared<const zelVOITable>(*table);
    record.RecordVOITable(other);
    EXPECT_FALSE(record.IsVOIAtOriginals());
    sibling.AdoptVOI(record);
    EXPECT_EQ(sibling.voiTable, other);
    record.RecordVOITable(nullptr);
    EXPECT_EQ(record.voiTable, other);
}

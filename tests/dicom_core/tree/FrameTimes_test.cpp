// How long frames show, and how fast a cine runs.
#include "dicom_core/tree/TreeFixtures.h"
#include "platform/PreferenceStore.h"
#include "prefs/Prefs.h"

#include <gtest/gtest.h>
#include <numeric>

namespace {

constexpr float kDefault = kDefaultFrameDuration_ms;

FileWords Timed(const char* modality, int frames, const char* single, const char* vector)
{
    return {.modality = modality,
            .frames = frames,
            .elements = {{0x0018, 0x1063, "DS", single}, {0x0018, 0x1065, "DS", vector}}};
}

TEST(FrameTimes, come_from_the_file_where_they_can_be_meant)
{
    struct Row {
        const char* fault;
        FileWords words;
        std::vector<float> times;
    };
    const Row rows[] = {
        {"one time for all", Timed("XA", 3, "33.3", nullptr), {33.3F, 33.3F, 33.3F}},
        {"too short a time", Timed("XA", 2, "0.5", nullptr), {kDefault, kDefault}},
        {"a negative time", Timed("XA", 2, "-5", nullptr), {kDefault, kDefault}},
        {"one frame", Timed("XA", 1, "33.3", nullptr), {kDefault}},
        {"a series of files", Timed("CT", 2, "33.3", nullptr), {kDefault, kDefault}},
        {"a list", Timed("XA", 3, nullptr, "40\\50\\60"), {40, 50, 60}},
        {"zero and one in a list", Timed("XA", 3, nullptr, "40\\0\\1"), {40, kDefault, kDefault}},
        {"too short a list", Timed("XA", 3, nullptr, "40\\50"), {kDefault, kDefault, kDefault}},
    };
    TempFolder folder;
    for (const Row& row : rows) {
        SCOPED_TRACE(row.fault);
        dk_Sequence sequence;
        AddedFile(&sequence, WriteImage(folder, "a", row.words));
        ASSERT_EQ(sequence.GetNumberOfFrames(), static_cast<int>(row.times.size()));
        for (std::size_t i = 0; i < row.times.size(); ++i)
            EXPECT_FLOAT_EQ(sequence.GetFrameDuration(static_cast<int>(i) + 1), row.times[i]);
        EXPECT_FLOAT_EQ(sequence.GetTotalSequenceDuration(),
                        std::accumulate(row.times.begin(), row.times.end(), 0.0F));
    }
}

TEST(FrameTimes, of_ten_files_of_a_series_are_fifteen_a_second)
{
    dk_Sequence sequence;
    for (int i = 0; i < 10; ++i)
        AddedRecord(&sequence, "CT", 1);
    EXPECT_FLOAT_EQ(sequence.GetTotalSequenceDuration(), 666.66664F);
    EXPECT_FLOAT_EQ(sequence.GetBuiltInSequenceFPS(), 15);
    dk_Sequence empty;
    EXPECT_EQ(empty.GetTotalSequenceDuration(), 0);
    EXPECT_EQ(empty.GetBuiltInSequenceFPS(), 0);
    empty.SetCurrentCineSpeed(30);
    EXPECT_EQ(empty.GetCurrentCineRate(), dk_SequenceFrameInfo::kRateOne);
}

TEST(FrameTimes, find_the_frame_of_a_time_and_back)
{
    TempFolder folder;
    dk_Sequence sequence;
    AddedFile(&sequence, WriteImage(folder, "a", Timed("XA", 4, nullptr, "10\\20\\30\\40")));
    struct Row {
        float time;
        int frame;
    };
    for (const Row& row : {Row{-0.5F, 0}, Row{0, 1}, Row{9.9F, 1}, Row{10, 2}, Row{59.9F, 3},
                           Row{60, 4}, Row{100, 4}, Row{100.9F, 4}, Row{101, 0}, Row{1e9F, 0},
                           Row{std::numeric_limits<float>::quiet_NaN(), 0}})
        EXPECT_EQ(sequence.GetFrameForTimePos(row.time), row.frame) << row.time;
    const float positions[] = {0, 0, 10, 30, 60, 0};
    for (int frame = 0; frame < 6; ++frame)
        EXPECT_FLOAT_EQ(sequence.GetTimePosOfFrame(frame), positions[frame]) << frame;
}

TEST(CineSpeed, is_a_factor_on_the_files_own_unless_enforced)
{
    prefs_Store().UseFile({});
    prefs_InitializeForApplication();
    TempFolder folder;
    dk_Sequence sequence;
    AddedFile(&sequence, WriteImage(folder, "a", Timed("XA", 4, "50", nullptr)));
    EXPECT_FLOAT_EQ(sequence.GetCurrentCineSpeed(), 20);
    sequence.SetCurrentCineSpeed(30);
    EXPECT_EQ(sequence.GetCurrentCineRate(), 0x18000);
    for (const float ignored : {0.0F, -5.0F, std::numeric_limits<float>::quiet_NaN()})
        sequence.SetCurrentCineSpeed(ignored);
    EXPECT_FLOAT_EQ(sequence.GetCurrentCineSpeed(), 30);
    EXPECT_EQ(sequence.GetCurrentAdjustedCineRate(), 0x18000);
    prefs_Set_HasCineEnforceSpeed(true);
    prefs_Set_CineDefaultSpeed(40);
    EXPECT_EQ(sequence.GetCurrentAdjustedCineRate(), 0x20000);
    EXPECT_EQ(sequence.GetCurrentCineRate(), 0x18000);
    prefs_Store().UseFile({});
}

// A table of as many frames answers at once: a cine asks for each frame that it shows.
TEST(FrameTimes, of_a_hundred_thousand_frames_are_summed_once)
{
    dk_SequenceFrameInfo table;
    table.fFrames.resize(100'000);
    std::int64_t sum = 0;
    for (int frame = 1; frame <= 100'000; ++frame)
        sum += table.GetFrameForTimePos(table.GetTimePosOfFrame(frame, false) + 1, false) - frame;
    EXPECT_EQ(sum, 0);
}

}  // namespace

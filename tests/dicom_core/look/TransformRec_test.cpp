// What the user's acts leave in the record: flips, turns, window limits, resets.
#include "dicom_core/look/zel_TransformRec.h"

#include <gtest/gtest.h>
#include <limits>

namespace {

using Rec = zel_TransformRec;
using Act = void (*)(Rec&);

Rec Limited()
{
    Rec record;
    record.SetVOIWidthLimits(1, 4000);
    record.SetVOILevelLimits(-1000, 3000);
    record.SetVOIOriginals(400, 40);
    record.RecordVOI(400, 40);
    return record;
}

}  // namespace

TEST(TransformRec, flips_and_turns_keep_the_shorter_form)
{
    struct Turn {
        bool vert, horz;
        std::int16_t rotation;
        bool operator==(const Turn&) const = default;
    };
    struct Row {
        const char* fault;
        Turn before;
        Act act;
        Turn after;
    };
    // clang-format off
    const Row rows[] = {
        {"both are a half turn",   {false, true, 90},  [](Rec& r) { r.RecVertFlip(); },    {false, false, 270}},
        {"past the full turn",     {true, false, 270}, [](Rec& r) { r.RecHorzFlip(); },    {false, false, 90}},
        {"a flip is taken back",   {true, false, 90},  [](Rec& r) { r.RecVertFlip(); },    {false, false, 90}},
        {"450 is a quarter",       {false, false, 0},  [](Rec& r) { r.RecRotation(450); }, {false, false, 90}},
        {"-90 is three quarters",  {false, false, 0},  [](Rec& r) { r.RecRotation(-90); }, {false, false, 270}},
        {"a crooked angle resets", {false, false, 90}, [](Rec& r) { r.RecRotation(45); },  {false, false, 0}},
        {"so does a full turn",    {false, false, 90}, [](Rec& r) { r.RecRotation(360); }, {false, false, 0}},
        {"mirrored turns back",    {false, true, 0},   [](Rec& r) { r.RecRotation(90); },  {false, true, 270}},
        {"either mirror does it",  {true, false, 90},  [](Rec& r) { r.RecRotation(-90); }, {true, false, 180}},
        {"a half turn is a half",  {true, false, 270}, [](Rec& r) { r.RecRotation(180); }, {true, false, 90}},
    };
    // clang-format on
    for (const Row& row : rows) {
        Rec record;
        record.vertFlip = row.before.vert;
        record.horzFlip = row.before.horz;
        record.rotation = row.before.rotation;
        row.act(record);
        EXPECT_EQ((Turn{record.vertFlip, record.horzFlip, record.rotation}), row.after)
            << row.fault;
    }
}

TEST(TransformRec, windows_are_pinned_to_limits_that_make_sense)
{
    struct Row {
        const char* fault;
        Act act;
        float width, level;
    };
    constexpr float kNan = std::numeric_limits<float>::quiet_NaN();
    // clang-format off
    const Row rows[] = {
        {"below the minima",             [](Rec& r) { r.RecordVOI(0.25F, -5000); }, 1,    -1000},
        {"above the maxima",             [](Rec& r) { r.RecordVOI(9000, 9000); },   4000, 3000},
        {"not a number",                 [](Rec& r) { r.RecordVOI(kNan, kNan); },   4000, 3000},
        {"a minimum below 1 is ignored", [](Rec& r) { r.SetVOIWidthLimits(0.5F, 100); r.RecordVOI(4000, 0); }, 4000, 0},
        {"no room between the widths",   [](Rec& r) { r.SetVOIWidthLimits(5, 5); r.RecordVOI(2, 3); },  2, 3},
        {"no room between the levels",   [](Rec& r) { r.SetVOILevelLimits(7, 7); r.RecordVOI(2, 3); },  2, 3},
        {"a fine scale has a finer smallest width",
         [](Rec& r) { r.voiInfo.pixelFactor = 0.25; r.SetVOIWidthLimits(0.25F, 9); r.RecordVOI(0, 0); }, 0.25F, 0},
        {"a coarse scale has a coarser one",
         [](Rec& r) { r.voiInfo.pixelFactor = 4; r.SetVOIWidthLimits(2, 100); r.RecordVOI(4000, 0); },   4000, 0},
        {"a reset goes to the originals", [](Rec& r) { r.RecordVOI(1000, 1000); r.ResetColors(); },      400, 40},
    };
    // clang-format on
    for (const Row& row : rows) {
        Rec record = Limited();
        row.act(record);
        EXPECT_EQ(record.voiWidth, row.width);
        EXPECT_EQ(record.voiLevel, row.level) << row.fault;
    }
}

TEST(TransformRec, is_void_tells_what_counts_as_a_change)
{
    Rec record = Limited();
    record.voiInfo.pixelFormat = 40;
    record.zoom = 5;
    record.scroll = {1, 2};
    EXPECT_TRUE(record.IsVoid()) << "zoom and pan do not count";
    const Act changes[] = {
        [](Rec& r) { r.RecHorzFlip(); },      [](Rec& r) { r.RecVertFlip(); },
        [](Rec& r) { r.RecRotation(90); },    [](Rec& r) { r.invert = true; },
        [](Rec& r) { r.RecordBnC(500, 0); },  [](Rec& r) { r.RecordBnC(0, -500); },
        [](Rec& r) { r.RecordVOI(401, 40); }, [](Rec& r) { r.RecordVOI(400, 41); },
    };
    for (const Act act : changes) {
        Rec changed = record;
        act(changed);
        EXPECT_FALSE(changed.IsVoid());
        changed.SetToVoid();
        changed.zoom = record.zoom;  // goes with the rest
        EXPECT_EQ(changed, record) << "pan and scale stay";
    }
    record.autoFit = false;
    record.SetToVoid();
    EXPECT_FALSE(record.IsVoid()) << "fit counts, and stays off";
}

// Edits of frames, and the sizes of frames and tables.
#include "dicom_core/tree/TreeFixtures.h"

#include "qpix/CImporterFactory.h"
#include <gtest/gtest.h>

namespace {

constexpr std::int32_t kAll = dk_SequenceFrameInfo::kAllFrames;

// A table of three frames without files, the second being current.
dk_SequenceFrameInfo ThreeFrames()
{
    dk_SequenceFrameInfo table;
    table.fFrames.resize(3);
    table.fCurrentFrame = 2;
    return table;
}

TEST(FrameTable, edits_the_frames_that_are_selected)
{
    struct Row {
        int frame;
        const char* edited;
    };
    for (const Row& row : {Row{0, "-x-"}, Row{-1, "xxx"}, Row{1, "x--"}, Row{3, "--x"},
                           Row{4, "---"}, Row{-2, "---"}, Row{INT32_MIN, "---"}}) {
        dk_SequenceFrameInfo table = ThreeFrames();
        table.SetFrameColorTable(row.frame, 7);
        std::string edited;
        for (const dk_ImageFrameInfo& info : table.fFrames)
            edited += info.fColorTable == 7 ? 'x' : '-';
        EXPECT_EQ(edited, row.edited) << row.frame;
    }
}

using Edit = std::function<void(dk_SequenceFrameInfo&)>;

// What each edit can be reverted by: flags 1, 2, 4, 16, 32 and all, '1' where they can.
TEST(FrameTable, knows_what_can_be_reverted)
{
    struct Row {
        const char* fault;
        Edit edit;
        const char* can;
    };
    const Row rows[] = {
        {"nothing", [](auto&) {}, "000000"},
        {"negative", [](auto& t) { t.InvertFrame(0); }, "100001"},
        {"window", [](auto& t) { t.SetFrameVOI(0, 50, 10); }, "100001"},
        {"a table of the file, over the original window",
         [](auto& t) { t.fFrames[1].fTransform.voiTable = std::make_shared<zelVOITable>(); },
         "100001"},
        {"contrast", [](auto& t) { t.SetFrameBnC(0, 0, 5); }, "100001"},
        {"colours", [](auto& t) { t.SetFrameColorTable(0, 3); }, "100011"},
        {"flip", [](auto& t) { t.VerticalFlipFrame(0); }, "010001"},
        {"pan", [](auto& t) { t.SetFrameScroll(0, {1, 0}); }, "001001"},
        {"no fit", [](auto& t) { t.SetFrameAutoFit(0, false); }, "000001"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.fault);
        dk_SequenceFrameInfo table = ThreeFrames();
        for (dk_ImageFrameInfo& info : table.fFrames) {
            info.fTransform.voiWidthMax = info.fTransform.voiLevelMax = 1000;
            info.fTransform.voiWidth = info.fTransform.voiWidthOriginal = 400;
        }
        row.edit(table);
        std::string can, canAll;
        for (const int flags : {1, 2, 4, 16, 32, -1}) {
            can += table.CanRevertFrame(0, flags) ? '1' : '0';
            canAll += table.CanRevertFrame(kAll, flags) ? '1' : '0';
            EXPECT_FALSE(table.CanRevertFrame(1, flags));
        }
        EXPECT_EQ(can, row.can);
        EXPECT_EQ(canAll, row.can);
        EXPECT_FALSE(table.CanRevertFrame(kAll, 0));
        table.RevertFrame(0, kRevertColors);
        EXPECT_FALSE(table.CanRevertFrame(0, kRevertColors));
        EXPECT_EQ(table.fFrames[1].fTransform.voiWidth, 400);
    }
    dk_SequenceFrameInfo table = ThreeFrames();
    table.fCineRate *= 2;
    EXPECT_TRUE(table.CanRevertFrame(kAll, kRevertAll));
    EXPECT_FALSE(table.CanRevertFrame(0, kRevertAll));
    table.RevertAllTransformations(0);
    EXPECT_TRUE(table.CanRevertFrame(kAll, kRevertAll));
    table.RevertAllTransformations(kAll);
    EXPECT_FALSE(table.CanRevertFrame(kAll, kRevertAll));
}

// Files of 2 rows by 4 columns, then 3 by 3.
struct Sizes : testing::Test {
    Sizes() { CImporterPlusFactory::InitFactory(); }
    dk_ImageFile* Add(std::uint16_t rows, std::uint16_t columns, const char* ratio)
    {
        const FileWords words{.modality = "MR",
                              .elements = {{0x0028, 0x0034, "IS", ratio}},
                              .rows = rows,
                              .columns = columns};
        const std::string name = std::to_string(sequence.GetNumChildren());
        return AddedFile(&sequence, WriteImage(folder, name, words));
    }
    dk_ImageFrameInfo& Frame(int n) { return *sequence.GetImageFrameInfo(n); }
    TempFolder folder;
    dk_Sequence sequence;
    Point size;
};

#define EXPECT_SIZE(status, height, width) \
    EXPECT_EQ(status, kQvxOK);             \
    EXPECT_EQ(size, (Point{height, width}))

TEST_F(Sizes, apply_the_pixel_shape_before_the_turn)
{
    Add(2, 4, "3\\1");
    dk_ImageFrameInfo& info = *sequence.GetImageFrameInfo(1);
    EXPECT_SIZE(info.GetFrameSize(&size), 2, 4);
    EXPECT_SIZE(info.GetFrameSizeWithAspectRatio(&size), 6, 4);
    EXPECT_EQ(info.GetDisplayedPixelAspectRatio(), 0x30000);
    info.fTransform.rotation = 270;
    EXPECT_SIZE(info.GetEffectiveFrameSize(&size, true, true), 4, 6);
    EXPECT_EQ(info.GetDisplayedPixelAspectRatio(), 0x10000 / 3);
    LongRect visible;
    EXPECT_EQ(info.GetImageVisibleRect(&visible), kQvxOK);
    EXPECT_EQ(visible, (LongRect{0, 0, 4, 2}));
    dk_ImageFrameInfo sourceless;
    EXPECT_EQ(sourceless.GetFrameSize(&size), kQvxBadArgument);
    EXPECT_EQ(sourceless.fFrameSize, Point{});
}

TEST_F(Sizes, span_all_files_and_turn_square_only_for_a_lone_one)
{
    Add(2, 4, "1\\1");
    Add(3, 3, "1\\1");
    EXPECT_SIZE(sequence.GetMaxFrameSize(&size), 3, 4);
    EXPECT_SIZE(sequence.GetMinFrameSize(&size), 2, 3);
    Frame(1).fTransform.rotation = 90;
    EXPECT_SIZE(sequence.GetFrameSizeEnvelop(&size), 4, 3);
    EXPECT_SIZE(sequence.GetFrameSizeNormalEnvelop(&size), 3, 4);
    dk_SequenceFrameInfo& table = *sequence.GetSequenceFrameInfo();
    EXPECT_SIZE(table.GetFrameSizeEnvelop(&size, true), 4, 4);
    Frame(2).fTransform.rotation = 270;
    EXPECT_SIZE(table.GetFrameSizeEnvelop(&size, true), 4, 2);
    sequence.SetCurrentFrameIndex(2);
    EXPECT_SIZE(sequence.GetMaxFrameSizeFast(&size), 3, 4);
}

}  // namespace

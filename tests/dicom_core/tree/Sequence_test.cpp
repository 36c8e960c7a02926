// What a sequence counts, is called and knows of its files; sequences appended and cloned.
#include "dicom_core/tree/TreeFixtures.h"

#include <cstdlib>
#include <cstring>
#include <gtest/gtest.h>

namespace {

TEST(SequenceFrames, of_a_directory_are_counted_without_opening_a_file)
{
    TempFolder folder;
    for (const char* modality : {"CT", "XA"}) {
        DicomImageFileRec record;
        record.recModality.Assign(modality);
        dk_Sequence sequence(record, true);
        for (const char* name : {"a", "b", "c"})
            AddedFile(&sequence, WriteImage(folder, name, {.modality = modality, .frames = 2}),
                      kImportDeferCheck);
        const bool many = record.recModality.View() == "CT";
        EXPECT_EQ(sequence.GetNumberOfFrames(), many ? 3 : 6);
        EXPECT_EQ(sequence.AllParsersLoaded(), !many);
        ASSERT_NE(sequence.GetSequenceFrameInfo(), nullptr);
        EXPECT_EQ(sequence.GetNumberOfFrames(), 6) << "the table says what is there";
        EXPECT_EQ(sequence.GetImageFrameInfo(6)->fFrameInFile, 2);
    }
}

// The header is the word of a stranger: what it claims takes no room that the data don't fill.
TEST(SequenceFrames, are_bounded_by_the_data_where_a_file_claims_very_many)
{
    TempFolder folder;
    struct Row {
        const char* claimed;
        int frames, inTable;
    };
    for (const Row& row : {Row{"60000", 60000, 2}, Row{"900", 900, 900}, Row{"2", 2, 2}}) {
        dk_Sequence sequence;
        DicomBuilder file;
        file.Meta(kUidExplicitLittle)
            .CommonHeader("XA")
            .Element(0x0028, 0x0008, "IS", row.claimed)
            .Image({})
            .NativePixels({1, 2});
        AddedFile(&sequence, {folder.WriteFile("a", file.Bytes())});
        EXPECT_EQ(sequence.GetNumberOfFrames(), row.frames);
        const dk_SequenceFrameInfo* const table = sequence.GetSequenceFrameInfo();
        ASSERT_NE(table, nullptr);
        EXPECT_EQ(table->fFrames.size(), static_cast<std::size_t>(row.inTable)) << row.claimed;
        EXPECT_EQ(sequence.GetNumberOfFrames(), row.inTable);
    }
}

TEST(SequenceFrames, find_their_files_and_keep_a_current_one)
{
    dk_Sequence sequence;
    AddedRecord(&sequence, "XA", 2);
    dk_ImageFile* const second = AddedRecord(&sequence, "XA", 3);
    dk_ImageFile stranger;
    EXPECT_EQ(sequence.GetCurrentImageFile(), sequence.GetFirstChild());
    EXPECT_EQ(sequence.GetCurrentFrameIndex(), 0) << "no table was needed";
    sequence.SetCurrentFrameIndex(4);  // before there is a table
    EXPECT_EQ(sequence.GetCurrentImageFile(), second);
    EXPECT_EQ(sequence.GetCurrentFrameIndex(), 4);
    EXPECT_EQ(sequence.GetImageFrameInfo(0)->fFrameInFile, 2);
    EXPECT_EQ(sequence.FirstFrameInImageFile(second), 3);
    EXPECT_EQ(sequence.FirstFrameInImageFile(&stranger), 0);
    EXPECT_NE(sequence.GetCellInfo(5), nullptr);
    EXPECT_EQ(sequence.GetCellInfo(6), nullptr);
    sequence.GetImageFrameInfo(2)->AddToFrameHealth(0x20);
    sequence.GetImageFrameInfo(5)->AddToFrameHealth(kHandicapNoBlitter);
    EXPECT_EQ(sequence.CountHandicaps(~0x20u), 1);
    EXPECT_EQ(sequence.GetHandicapSum(UINT32_MAX), 0x120u);
}

// ---- titles -------------------------------------------------------------------------------------

struct TitleRow {
    const char *modality, *instance, *comments;
    int frames, files;
    const char *narrow, *wide = nullptr;  // null: the same
    const char* imageType = nullptr;
};

TEST(SequenceTitle, is_that_of_its_modality)
{
    const TitleRow rows[] = {
        {"CR", "5", "", 1, 1, " 5: 1 image", "5: 1 image"},
        {"CT", "5", "", 1, 1, "1 file"},
        {"CT", "5", "Head", 1, 2, "Head, 2 files"},
        {"US", "5", "Apex", 9, 1, "Clip 5: Apex"},
        {"IVUS", "5", "", 9, 2, "Clip #2: 2 files"},
        {"US", "0", "", 9, 1, "Clip #2: 9 frames"},
        {"XA", "5", "", 9, 1, "Clip 5: 9 frames"},
        {"XA", "0", "LAO", 1, 1, "Clip #2 B: LAO, 1 frame", nullptr, "A\\B\\BIPLANE B"},
        {"XA", "3", "", 2, 1, "Clip 3 A: 2 frames", nullptr, "A\\B\\BIPLANE A"},
        {"NM", "3", "x", 4, 1, "4 frames"},
        {"MR", "3", "x", 4, 1, "1 file"},
    };
    for (const TitleRow& row : rows) {
        SCOPED_TRACE(row.narrow);
        TempFolder folder;
        dk_Series series;
        Added<dk_Sequence>(&series);
        auto* const sequence = Added<dk_Sequence>(&series);
        const FileWords words{.modality = row.modality,
                              .frames = row.frames,
                              .elements = {{0x0008, 0x0008, "CS", row.imageType},
                                           {0x0020, 0x0013, "IS", row.instance},
                                           {0x0020, 0x4000, "LT", row.comments}}};
        for (int i = 0; i < row.files; ++i)
            AddedFile(sequence, WriteImage(folder, std::to_string(i), words));
        EXPECT_EQ(sequence->GetDKTitle(), row.narrow);
        EXPECT_EQ(sequence->CopyDKTitle().toStdString(), row.wide ? row.wide : row.narrow);
    }
}

TEST(SequenceTitle, of_a_file_is_the_name_of_the_file_or_its_folder_or_the_series)
{
    struct Row {
        const char *modality, *name, *wide, *display;
    };
    for (const Row& row :
         {Row{"XA", "RUN 7/STILL", "RUN 7", "RUN 7"}, Row{"US", "RUN 7/STILL", "STILL", "STILL"},
          Row{"XA", "RUN 7/a.dcm", "a", "a.dcm"}, Row{"CT", "RUN 7/a.dcm", "a", "Se #1"}}) {
        TempFolder folder;
        dk_Series series;
        auto* const sequence = Added<dk_Sequence>(&series);
        AddedFile(sequence, WriteImage(folder, row.name, {.modality = row.modality}));
        EXPECT_EQ(sequence->Copy_DK_ExportTitle().toStdString(), row.wide);
        EXPECT_EQ(sequence->GetDisplayTitle(), row.display);
    }
}

// ---- what its files say -------------------------------------------------------------------------

TEST(SequenceFacts, come_from_the_first_file_that_knows_and_the_user_before_it)
{
    TempFolder folder;
    dk_Sequence sequence;
    AddedFile(&sequence, WriteImage(folder, "a", {}));
    float first = 9, second = 9;
    sequence.GetPixelDimensions(&first, &second);
    EXPECT_TRUE(first == 0 && second == 0);
    const FileWords spaced{.elements = {{0x0028, 0x0030, "DS", "0.5\\0.5"}}};
    AddedFile(&sequence, WriteImage(folder, "b", spaced));
    sequence.GetPixelDimensions(&first, &second);
    EXPECT_TRUE(first == 0.5F && second == 0.5F);
    EXPECT_TRUE(sequence.HasBuiltInScaleInfo());
    sequence.GetViewState()->fManualPixelScale = 2;
    sequence.GetPixelDimensions(&first, &second);
    EXPECT_TRUE(first == 2 && second == 2);
}

TEST(SequenceFacts, give_the_size_of_pixels_as_they_are_shown)
{
    struct Row {
        const char* spacing;  // between rows, between columns
        const char* aspect;
        float across, down;
    };
    const Row rows[] = {
        {"0.5\\0.5", nullptr, 0.5F, 0.5F}, {"1\\0.5", nullptr, 0.5F, 0.5F},
        {"0.5\\1", nullptr, 0.5F, 0.5F},   {"0.5\\1", "1\\1", 1, 0.5F},
        {"1\\1", "2\\1", 1, 0.5F},         {"1\\1", "1\\2", 0.5F, 1},
    };
    for (const Row& row : rows) {
        TempFolder folder;
        dk_Sequence sequence;
        FileWords words{
            .elements = {{0x0028, 0x0030, "DS", row.spacing}, {0x0028, 0x0034, "IS", row.aspect}},
            .rows = 4,
            .columns = 4};
        AddedFile(&sequence, WriteImage(folder, "a", words));
        float across = 0, down = 0;
        sequence.GetPixelDimensions(&across, &down);
        EXPECT_FLOAT_EQ(across, row.across) << row.spacing;
        EXPECT_FLOAT_EQ(down, row.down) << row.spacing;
        // The frame is as wide and as high in millimetres as it was.
        Point size;
        CImporterPlusFactory::InitFactory();
        ASSERT_EQ(sequence.GetImageFrameInfo(1)->GetFrameSizeWithAspectRatio(&size), kQvxOK);
        if (!row.aspect) {
            EXPECT_FLOAT_EQ(size.h * across,
                            4 * std::strtof(std::strchr(row.spacing, '\\') + 1, nullptr));
        }
    }
}

// ---- appended and cloned ------------------------------------------------------------------------

TEST(AppendSequence, moves_files_and_frames_and_forgets_what_it_knew)
{
    for (const bool tables : {false, true}) {
        dk_Sequence first, second;
        AddedRecord(&first, "US", 1);
        dk_ImageFile* const moved = AddedRecord(&second, "US", 2);
        AddedRecord(&second, "US", 1);
        if (tables) {
            second.GetImageFrameInfo(2)->fColorTable = 7;
            EXPECT_NE(first.GetCellInfo(1), nullptr);
        }
        first.fMarked = first.fTitleDataRead = true;
        first.SetRepresentativeFrameNumber(1);
        EXPECT_TRUE(first.AllFilesOnDisk());
        moved->fCacheCopyTried = true;
        first.AppendSequence(&second);
        EXPECT_EQ(second.GetNumChildren(), 0);
        EXPECT_EQ(second.GetSequenceFrameInfo(), nullptr);
        EXPECT_EQ(first.GetNumberOfFrames(), 4);
        EXPECT_EQ(first.GetCurrentFrameIndex(), 1);
        EXPECT_EQ(first.GetFrameImageFile(3), moved);
        EXPECT_EQ(first.GetImageFrameInfo(3)->fColorTable, tables ? 7 : 0);
        EXPECT_NE(first.GetCellInfo(4), nullptr);
        EXPECT_FALSE(first.fMarked || first.fTitleDataRead || first.AllFilesOnDisk());
        first.SetCurrentFrameIndex(4);
        EXPECT_EQ(first.GetCurrentImageFile(), first.GetLastChild());
    }
}

TEST(CloneOfASequence, has_files_frames_and_look_of_its_own)
{
    TempFolder folder;
    dk_Series series;
    auto* const sequence = Added<dk_Sequence>(&series);
    AddedFile(sequence, WriteImage(folder, "a", {.modality = "XA", .frames = 3}));
    sequence->SetCurrentFrameIndex(2);
    sequence->GetImageFrameInfo(3)->fTransform.rotation = 90;
    sequence->GetViewState()->fManualPixelScale = 2;
    sequence->SetCurrentCineSpeed(30);
    const std::unique_ptr<dk_DicomBaseElem> made = sequence->MakeClone();
    auto* const clone = static_cast<dk_Sequence*>(made.get());
    sequence->GetViewState()->fManualPixelScale = 3;
    sequence->GetImageFrameInfo(3)->fTransform.rotation = 0;
    static_cast<void>(series.DeleteChildAndGetNext(sequence));

    EXPECT_TRUE(clone->fIsClone);
    EXPECT_EQ(clone->GetParent(), nullptr);
    EXPECT_EQ(clone->GetNumberOfFrames(), 3);
    EXPECT_EQ(clone->GetCurrentFrameIndex(), 2);
    EXPECT_EQ(clone->GetImageFrameInfo(3)->fTransform.rotation, 90);
    EXPECT_EQ(clone->GetImageFrameInfo(3)->fImageFile, clone->GetFirstChild());
    EXPECT_EQ(clone->GetViewState()->fManualPixelScale, 2);
    EXPECT_FLOAT_EQ(clone->GetCurrentCineSpeed(), 30);
    EXPECT_NE(clone->GetFrameParser(3), nullptr);
}

}  // namespace

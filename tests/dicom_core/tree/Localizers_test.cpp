// Which frames are localizers, and what is split off a sequence.
#include "dicom_core/tree/TreeFixtures.h"

#include <gtest/gtest.h>

namespace {

// One-frame files by their letters: L a localizer, N a normal image.
struct Series : testing::Test {
    dk_Sequence* Of(std::string_view letters, const char* modality = "CT")
    {
        auto* const made = Added<dk_Sequence>(&list);
        for (const char letter : letters) {
            const char* const type = letter == 'L' ? "ORIGINAL\\LOCALIZER" : "ORIGINAL\\LOCALIZERS";
            const FileWords words{.modality = modality, .elements = {{0x0008, 0x0008, "CS", type}}};
            const std::string name = std::to_string(++files) + letter;
            AddedFile(made, WriteImage(folder, name, words));
        }
        return made;
    }
    // The letters of the files of a sequence's frames.
    static std::string Letters(dk_Sequence* sequence)
    {
        std::string letters;
        for (int frame = 1; frame <= sequence->GetNumberOfFrames(); ++frame)
            letters += sequence->GetFrameImageFile(frame)->GetExportTitle().back();
        return letters;
    }
    TempFolder folder;
    dk_DicomBaseElem list;
    int files = 0;
};

TEST_F(Series, is_counted_from_both_ends)
{
    struct Row {
        const char* letters;
        bool all, ends;
        int first, last, total;
    };
    for (const Row& row : {
             Row{"LLNNNL", false, true, 3, 5, 3},
             Row{"LNN", false, true, 2, 3, 1},
             Row{"NLN", false, false, 1, 3, 0},
             Row{"LLN", false, true, 3, 0, 2},
             Row{"LLL", true, true, 3, 0, 2},
             Row{"L", true, true, 1, 0, 0},
             Row{"", true, false, 0, 0, 0},
         }) {
        SCOPED_TRACE(row.letters);
        dk_Sequence* const sequence = Of(row.letters);
        EXPECT_EQ(sequence->fFirstNormalFrame, -1);
        EXPECT_EQ(sequence->fLastNormalFrame, -1);
        sequence->fModalityStr.Assign("CT");  // of the one without a file, too
        EXPECT_EQ(sequence->IsLocalizerSequence(), row.all);
        EXPECT_EQ(sequence->HasLocalizerFrames(), row.ends);
        EXPECT_EQ(sequence->CalcTotalLocalizers(), row.total);
        EXPECT_EQ(sequence->fFirstNormalFrame, row.first);
        EXPECT_EQ(sequence->fLastNormalFrame, row.last);
    }
    dk_Sequence* const other = Of("LL", "PT");
    EXPECT_FALSE(other->IsLocalizerSequence());
    EXPECT_FALSE(other->HasLocalizerFrames());
}

TEST_F(Series, is_split_with_the_settings_of_its_frames)
{
    struct Row {
        const char *letters, *localizers, *normal;
    };
    for (const Row& row : {Row{"LLNNNL", "LLL", "NNN"}, Row{"LLN", "LL", "N"},
                           Row{"NNL", "L", "NN"}, Row{"LNLNL", "LL", "NLN"}}) {
        SCOPED_TRACE(row.letters);
        dk_Sequence* const source = Of(row.letters);
        dk_LocalaSequence localizers;
        dk_Sequence normal;
        source->fMarked = true;
        source->GetSequenceFrameInfo()->fCineRate = 5;
        source->GetImageFrameInfo(1)->fColorTable = 7;
        static_cast<void>(source->GetTotalSequenceDuration());
        source->CountInSequenceLocalizerFrames();
        localizers.ExtractLocalizerFrames(source);
        normal.ExtractNormalFrames(source);
        static_cast<void>(list.DeleteChildAndGetNext(source));

        EXPECT_EQ(Letters(&localizers), row.localizers);
        EXPECT_EQ(Letters(&normal), row.normal);
        EXPECT_TRUE(normal.fMarked && localizers.fMarked);
        EXPECT_EQ(normal.GetCurrentCineRate(), 5);
        EXPECT_EQ(normal.GetCurrentFrameIndex(), 1);
        dk_Sequence& head = row.letters[0] == 'L' ? localizers : normal;
        EXPECT_EQ(head.GetImageFrameInfo(1)->fColorTable, 7);
        EXPECT_EQ(normal.fFirstNormalFrame, -1);
        EXPECT_FLOAT_EQ(normal.GetFrameDuration(1), kDefaultFrameDuration_ms);
        // Sources outlive the sequence that they came from.
        EXPECT_NE(localizers.GetFrameParser(1), nullptr);
    }
}

}  // namespace

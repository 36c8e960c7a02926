#include "dicom_core/look/dk_SequenceViewState.h"

#include <gtest/gtest.h>

namespace {

struct NotedAnnotations final : SequenceAnnotations {
    void SetShowsDemographics(bool shows) override { demographics = shows; }
    void SetShowsScale(bool shows) override { scale = shows; }
    bool demographics = false, scale = false;
};

TEST(SequenceViewState, takes_its_grid_from_the_modality_or_the_number_of_frames)
{
    struct Row {
        const char* modality;
        int frames, rows, columns, lastRows, lastColumns;
    };
    for (const Row& row : {Row{"US", 40, 1, 1, 2, 2}, Row{"CT", 5, 2, 3, 2, 3},
                           Row{"CT", 1, 1, 1, 1, 1}, Row{"CT", 0, 0, 0, 0, 0}}) {
        SCOPED_TRACE(row.modality);
        const dk_SequenceViewState state(DicomUtil_ModalityFromString(row.modality), row.frames);
        EXPECT_EQ(state.fCurrRows, row.rows);
        EXPECT_EQ(state.fCurrColumns, row.columns);
        EXPECT_EQ(state.fLastRows, row.lastRows);
        EXPECT_EQ(state.fLastColumns, row.lastColumns);
    }
    dk_SequenceViewState state;
    state.SetCurrGridDims(3, 2);
    state.SetCurrGridDims(1, 1);
    EXPECT_EQ(state.fCurrRows, 1);
    EXPECT_EQ(state.fLastRows, 3);
}

TEST(SequenceViewState, prepares_annotations_of_its_own)
{
    SetSequenceAnnotationsMaker([](ModalityType) { return std::make_unique<NotedAnnotations>(); });
    const ModalityType ct = DicomUtil_ModalityFromString("CT");
    dk_SequenceViewState state(ct, 3);
    EXPECT_TRUE(static_cast<NotedAnnotations*>(state.TextAnnotations())->scale);
    state.SetShowsScale(false);
    EXPECT_FALSE(static_cast<NotedAnnotations*>(state.TextAnnotations())->scale);
    EXPECT_TRUE(state.CellHasAnnotationsToDraw(1));  // demographics are
    state.fManualPixelScale = 0.5F;
    const dk_SequenceViewState copy(ct, state);
    EXPECT_NE(copy.TextAnnotations(), state.TextAnnotations());
    EXPECT_FALSE(copy.fShowsScale);
    EXPECT_EQ(copy.fManualPixelScale, 0.5F);
    state.Reset();
    EXPECT_FALSE(state.CellHasAnnotationsToDraw(1));
    SetSequenceAnnotationsMaker(nullptr);
}

}  // namespace

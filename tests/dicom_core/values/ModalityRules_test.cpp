// What a modality's text and code answer.
#include "dicom_core/values/ModalityRules.h"

#include <gtest/gtest.h>

TEST(ModalityRules, code_of_a_text)
{
    const std::pair<const char*, ModalityType> rows[] = {
        {"", 0x20202020},    {"CT", 0x20204354},    {"IVUS", 0x49565553},
        {"CTA", 0x20204354}, {"IVUSX", 0x20204956},
    };
    for (const auto& [text, code] : rows)
        EXPECT_EQ(DicomUtil_ModalityFromString(text), code) << text;
}

TEST(ModalityRules, answers_beside_the_table)
{
    struct Row {
        const char* modality;
        bool singleFiles, singleSequence;
        const char* name;
        std::int32_t index, grid;
    };
    const Row rows[] = {
        {"CT", false, true, "File", 4, 0}, {"SC", false, true, "Image", 4, 0},
        {"CR", true, true, "File", 4, 0},  // one sequence against its own row
        {"DX", true, true, "Image", 4, 0}, {"US", true, false, "Clip", 3, 1},
        {"NM", true, false, "File", 4, 1}, {"file", true, false, "File", 4, 1},
        {"RF", true, false, "file", 0, 0},  // not in the table
        {"ct", true, false, "file", 0, 0},  // case counts
        {"C", true, false, "file", 0, 0},  {"", true, false, "file", 0, 0},
    };
    const auto check = [](const Row& row, auto modality) {
        EXPECT_EQ(Modality_HasSingleFileSequences(modality), row.singleFiles);
        EXPECT_EQ(Modality_SeriesIsSingleSequence(modality), row.singleSequence);
        EXPECT_EQ(Modality_GetSequenceName(modality), row.name);
        EXPECT_EQ(Modality_GetPreferedIndexGridPosition(modality), row.index);
        std::int32_t first = -1, second = -1;
        Modality_GetPreferedFrameGridSetup(modality, &first, &second);
        EXPECT_EQ(first, row.grid);
        EXPECT_EQ(second, row.grid);
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.modality);
        check(row, std::string_view(row.modality));
        check(row, DicomUtil_ModalityFromString(row.modality));
    }
    // A text is compared whole; its code has lost the third letter.
    EXPECT_FALSE(Modality_HasScale("CTA"));
    EXPECT_TRUE(Modality_HasScale(DicomUtil_ModalityFromString("CTA")));
}

// Each question asks its own column: the modalities of the table that it answers yes for.
TEST(ModalityRules, columns)
{
    struct Row {
        bool (*question)(std::string_view);
        std::string_view yes;
    };
    const Row rows[] = {
        {Modality_HasCineOnOpen, "XA US IVUS "},
        {Modality_HasMultiLoopCine, "XA US IVUS "},
        {Modality_HasCineAutoplay, "XA US IVUS "},
        {Modality_SupportsLocalizers, "CT MR "},
        {Modality_SupportsSplit, "CT MR PT NM "},
        {Modality_HasDemographics, "CT MR CR PT NM DX SC "},
        {Modality_HasScale, "CT MR CR PT NM DX SC "},
    };
    for (const Row& row : rows) {
        std::string yes;
        for (const ZELModalityPrefs& modality : kModalityPrefs)
            if (row.question(modality.fName))
                yes.append(modality.fName).append(" ");
        EXPECT_EQ(yes, row.yes);
    }
}

TEST(ModalityRules, grid_for_a_number_of_frames)
{
    const std::int32_t rows[][3] = {{-1, 0, 0}, {0, 0, 0}, {1, 1, 1},  {2, 1, 2},
                                    {3, 2, 2},  {4, 2, 2}, {5, 2, 3},  {6, 2, 3},
                                    {7, 3, 3},  {9, 3, 3}, {10, 2, 2}, {INT32_MAX, 2, 2}};
    for (const auto& row : rows) {
        std::int32_t first = -1, second = -1;
        DicomUtil_GridSetupForTotalFrames(row[0], &first, &second);
        EXPECT_EQ(first, row[1]) << row[0];
        EXPECT_EQ(second, row[2]) << row[0];
    }
}

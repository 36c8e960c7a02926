// Decimals of window values.
#include "dicom_core/look/WindowText.h"

#include <gtest/gtest.h>

TEST(WindowValueText, has_the_decimals_that_a_step_needs)
{
    struct Row {
        double factor, value;
        const char* text;
    };
    const Row rows[] = {
        {1, 39.5, "40"},       {1, -39.5, "-40"},        {1, -0.2, "0"},
        {0.25, 39.26, "39.3"}, {0.0123, 1.007, "1.01"},  {1e-9, 0.5, "0.500000"},
        {4, 1234.6, "1235"},   {1.5, 1234.56, "1234.6"}, {0, 7.4, "7"},
    };
    for (const Row& row : rows) {
        zelVOIBlitterInfo scale;
        scale.pixelFactor = row.factor;
        EXPECT_EQ(WindowValueText(scale, row.value), row.text) << row.factor;
    }
}

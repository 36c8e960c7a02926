// Colours and colour tables among the preferences.
#include "fixtures/TempFolder.h"
#include "platform/PreferenceStore.h"
#include "prefs/Prefs.h"

#include <QByteArray>
#include <QVariant>
#include <gtest/gtest.h>
#include <limits>

namespace {

class PrefsColorsTest : public testing::Test {
protected:
    PrefsColorsTest() { prefs_Store().UseFile(""); }
};

struct StoredColor {
    const char* key;
    ZELColor (*get)();
    void (*set)(const ZELColor&);
    ZELColor usual;
};
const StoredColor kColors[] = {
    {"ActiveGrid_SelectionColor",
     prefs_Get_ActiveCellColor,
     prefs_Set_ActiveCellColor,
     {1, 0, 0, 1}},
    {"DefaultOverlayColor", prefs_Get_OverlaysColor, prefs_Set_OverlaysColor, {0, 1, 1, 1}},
    {"LocalizerLinesColor",
     prefs_Get_LocalizerLinesColorX,
     prefs_Set_LocalizerLinesColorX,
     {1, 0, 1, 1}},
    {"USRegionsColor", prefs_Get_USRegionsColor, prefs_Set_USRegionsColor, {1, 0, 1, 1}},
    {"SelectedMeasurementColor",
     prefs_Get_SelectedMeasurementColor,
     prefs_Set_SelectedMeasurementColor,
     {0, 1, 0, 1}},
    {"MeasurementStrokeColor",
     prefs_Get_MeasurementStrokeColor,
     prefs_Set_MeasurementStrokeColor,
     {1, 1, 0, 1}},
    {"MeasurementFillColor",
     prefs_Get_MeasurementFillColor,
     prefs_Set_MeasurementFillColor,
     {0.0745, 0.6, 0.8902, 0.3}},
};

TEST_F(PrefsColorsTest, absent_and_damaged_colours_are_repaired)
{
    QByteArray outOfRange = ArchivedColor({1, 1, 1, 1});
    outOfRange[outOfRange.size() - 1] = 0x7F;
    const QVariant damaged[] = {QByteArray(), QByteArray("ZCL1"), outOfRange,
                                ArchivedColor({0, 0, 0, 0}).prepend('x'), 5LL};
    for (const StoredColor& color : kColors) {
        SCOPED_TRACE(color.key);
        EXPECT_EQ(color.get(), color.usual);
        EXPECT_EQ(UnarchivedColor(prefs_Store().Data(color.key)), color.usual);
        color.set({0.1, 0.2, 0.3, 0.4});
        EXPECT_EQ(color.get(), (ZELColor{0.1, 0.2, 0.3, 0.4}));
        for (const QVariant& value : damaged) {
            prefs_Store().Set(color.key, value);
            EXPECT_EQ(color.get(), color.usual);
            EXPECT_EQ(UnarchivedColor(prefs_Store().Data(color.key)), color.usual);
        }
    }
    // This one form leaves a damaged value where it is; the 16-bit form repairs it.
    prefs_Store().Set("DefaultAnnotationColor", QByteArray("damaged"));
    EXPECT_EQ(prefs_Get_AnnotationsDefaultColorX(), (ZELColor{1, 1, 0, 1}));
    EXPECT_EQ(prefs_Store().Data("DefaultAnnotationColor"), "damaged");
    EXPECT_EQ(prefs_Get_AnnotationsDefaultColor(), (ZELRGBColor{0xFFFF, 0xFFFF, 0}));
    EXPECT_NE(prefs_Store().Data("DefaultAnnotationColor"), "damaged");
}

TEST_F(PrefsColorsTest, sixteen_bit_components_are_cut_and_doubled)
{
    const double nan = std::numeric_limits<double>::quiet_NaN();
    EXPECT_EQ(RGBColorFromColor({0.5, 1, 0.999, 1}), (ZELRGBColor{0x7F7F, 0xFFFF, 0xFEFE}));
    EXPECT_EQ(RGBColorFromColor({-1, 2, nan, 1}), (ZELRGBColor{0, 0xFFFF, 0}));
    prefs_Set_AnnotationsDefaultColor({0x12FF, 0xFF00, 0x0033});  // the low bytes count
    EXPECT_EQ(prefs_Get_AnnotationsDefaultColorX(), (ZELColor{1, 0, 0.2, 1}));
    prefs_Set_AnnotationsDefaultColorX({-1, 2, nan, 1});
    EXPECT_EQ(prefs_Get_AnnotationsDefaultColorX(), (ZELColor{0, 1, 0, 1}));
}

TEST_F(PrefsColorsTest, inactive_cells_are_fainter_but_not_pure_red)
{
    prefs_Set_ActiveCellColor({0.99, 0.03, 0.01, 0.5});
    EXPECT_EQ(prefs_Get_InactiveCellColor(), (ZELColor{0.99, 0.03, 0.01, 0.2}));
    EXPECT_EQ(prefs_Get_InactiveCellColor2(), (ZELColor{0.99, 0.03, 0.01, 0.25}));
    EXPECT_EQ(prefs_Get_InactiveCellColor3(), (ZELColor{0.9098, 0.5372, 0.5451, 1}));
    for (const ZELColor& color :
         {ZELColor{0.985, 0, 0, 0.5}, ZELColor{1, 0.04, 0, 0.5}, ZELColor{1, 0, 0.015, 0.5}}) {
        prefs_Set_ActiveCellColor(color);
        EXPECT_EQ(prefs_Get_InactiveCellColor3(),
                  (ZELColor{color.red, color.green, color.blue, 0.2}));
    }
}

TEST(ColorTables, count_from_one)
{
    prefs_SetCLUTs({});
    EXPECT_EQ(prefs_GetColorSpecs(1), nullptr);
    EXPECT_EQ(prefs_GetColorRampName(1), "unnamed");
    ZELCLUT shortOne{"Hot", {}};
    shortOne.fTable.fEntries = {{0, 0xFFFF, 0x8080, 0x0101}};
    prefs_SetCLUTs({{"Gray", {}}, shortOne});
    EXPECT_EQ(prefs_GetNumberOfCLUTs(), 2);
    EXPECT_EQ(prefs_GetColorRampName(2), "Hot");
    ASSERT_NE(prefs_GetColorRamp(2), nullptr);
    EXPECT_EQ((*prefs_GetColorRamp(2))[0], 0xFFFF8001U);
    EXPECT_EQ(prefs_GetColorSpecs(2)->fEntries.size(), 256U);
    for (const int number : {-1, 0, 3}) {
        EXPECT_EQ(prefs_GetColorSpecs(number), nullptr) << number;
        EXPECT_EQ(prefs_GetColorRamp(number), nullptr) << number;
        EXPECT_EQ(prefs_GetColorRampName(number), "unnamed") << number;
    }
    prefs_SetCLUTs({});
}

}  // namespace

// Regions of an ultrasound file: reading them, choosing one, and their titles.
#include "dicom_core/values/USRegions.h"

#include "fixtures/DicomBuilder.h"

#include <QString>
#include <gtest/gtest.h>
#include <limits>

namespace {

Item Region(std::uint32_t x0, std::uint16_t unitsX = 3, std::uint16_t unitsY = 3)
{
    return Item()
        .Element(0x0018, 0x6012, "US", 1)
        .Element(0x0018, 0x6014, "US", 10)
        .Element(0x0018, 0x6016, "UL", 2)
        .Element(0x0018, 0x6018, "UL", x0)
        .Element(0x0018, 0x601A, "UL", 20)
        .Element(0x0018, 0x601C, "UL", 99)
        .Element(0x0018, 0x601E, "UL", 0xFFFFFFFFu)
        .Element(0x0018, 0x6020, "SL", -5)
        .Element(0x0018, 0x6024, "US", unitsX)
        .Element(0x0018, 0x6026, "US", unitsY);
}

DicomBuilder File(std::vector<Item> items, const char* modality = "US")
{
    return DicomBuilder()
        .Meta(kUidExplicitLittle)
        .CommonHeader(modality)
        .Sequence(0x0018, 0x6011, std::move(items), Undefined);
}

QvxStatus RegionsOf(const DicomBuilder& file, std::vector<US_ROIRegDataRec>* regions)
{
    QvxReaderPtr reader;
    EXPECT_EQ(Qvx2Parser_OpenBytes(&reader, file.ByteVector(), kQvxProgramOptions), kQvxOK);
    return Parser_GetUSROIData(reader.get(), regions);
}

}  // namespace

TEST(Parser_GetUSROIData, stores_every_field_in_its_place)
{
    const double infinite = std::numeric_limits<double>::infinity();
    std::vector<US_ROIRegDataRec> regions;
    ASSERT_EQ(RegionsOf(File({Region(7, 3, 4)
                                  .Element(0x0018, 0x602C, "FD", 0.25)
                                  .Element(0x0018, 0x602E, "DS", "0.5")
                                  .Element(0x0018, 0x6044, "US", 1)
                                  .Element(0x0018, 0x604C, "US", 7)
                                  .Element(0x0018, 0x604E, "US", 2)
                                  .Element(0x0019, 0x6018, "UL", 77),
                              Region(8).Element(0x0018, 0x602C, "FD", infinite)}),
                        &regions),
              kQvxOK);
    ASSERT_EQ(regions.size(), 2u);
    US_ROIRegDataRec first;
    first.fSpatialFormat = 1;
    first.fDataType = 10;
    first.fFlags = 2;
    first.fX0 = 7;
    first.fY0 = 20;
    first.fX1 = 99;
    first.fY1 = 0xFFFFFFFF;
    first.fReferenceX = static_cast<std::uint32_t>(-5);
    first.fUnitsX = ROIUnitType::Centimetre;
    first.fUnitsY = ROIUnitType::Second;
    first.fPhysicalDeltaX = 0.25;  // Y is no double
    first.fPixelComponentOrganization = 1;
    first.fPixelComponentPhysicalUnits = 7;
    first.fPixelComponentDataType = 2;
    EXPECT_EQ(regions[0], first);
    EXPECT_EQ(US_RectOfRegion(first), (XRect{20, 7, 4294967296.0, 100}));
    EXPECT_EQ(regions[1].fX0, 8u);
    EXPECT_EQ(regions[1].fPixelComponentOrganization, kNoPixelComponents);
    EXPECT_EQ(regions[1].fPhysicalDeltaX, 0) << "no length is infinite";
}

TEST(Parser_GetUSROIData, refuses_files_without_regions)
{
    struct Row {
        const char* fault;
        DicomBuilder file;
        QvxStatus status;
    };
    const Row rows[] = {
        {"intravascular", File({Region(0)}, "IVUS"), kQvxOK},
        {"a blank behind the modality", File({Region(0)}, "US  "), kQvxOK},
        {"another modality", File({Region(0)}, "CT"), kQvxBadArgument},
        {"no items", File({}), kQvxBadArgument},
        {"no sequence", DicomBuilder().Meta(kUidExplicitLittle).CommonHeader("US"),
         kQvxNoSuchElement},
        {"no modality",
         DicomBuilder().Meta(kUidExplicitLittle).Sequence(0x0018, 0x6011, {Region(0)}),
         kQvxNoSuchElement},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.fault);
        std::vector<US_ROIRegDataRec> regions;
        EXPECT_EQ(RegionsOf(row.file, &regions), row.status);
        EXPECT_EQ(regions.size(), row.status == kQvxOK ? 1u : 0u);
    }
}

TEST(Parser_GetUSROIData, keeps_the_other_items_of_a_damaged_one)
{
    struct Row {
        const char* fault;
        Item second;
        std::vector<std::uint32_t> lefts;
    };
    const Row rows[] = {
        {"an item that can't be taken apart has no place",
         Region(2).Element(0x0018, 0x6044, "UL", 1).StateLength(0x7000),
         {1, 3, 0}},
        {"one whose last element can't be read keeps its place",
         Region(2).Element(0x0018, 0x602E, "PN", "A"),
         {1, 0, 3}},
        {"an element before the last may fail",
         Region(2).Element(0x0018, 0x602C, "PN", "A").Element(0x0018, 0x6044, "US", 1),
         {1, 2, 3}},
        {"an empty item", Item(), {1, 0, 3}},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.fault);
        std::vector<US_ROIRegDataRec> regions;
        EXPECT_EQ(RegionsOf(File({Region(1), row.second, Region(3)}), &regions), kQvxOK);
        std::vector<std::uint32_t> lefts;
        for (const US_ROIRegDataRec& region : regions)
            lefts.push_back(region.fX0);
        EXPECT_EQ(lefts, row.lefts);
    }
}

TEST(U_USRegionForShape, prefers_the_last_and_then_centimetres)
{
    std::vector<US_ROIRegDataRec> regions(4);
    for (std::uint32_t i = 0; i < 4; ++i)
        regions[i].fX0 = i;
    regions[1].fUnitsX = regions[1].fUnitsY = ROIUnitType::Centimetre;
    regions[2].fUnitsX = ROIUnitType::Centimetre;  // of one direction only
    struct Row {
        const char* fault;
        std::uint32_t belongsTo;  // a bit for each region
        bool prefer;
        int chosen;  // -1: none
    };
    const Row rows[] = {
        {"none holds it", 0b0000, true, -1},
        {"the later of two", 0b0011, false, 1},
        {"the calibrated one, though earlier", 0b1110, true, 1},
        {"none calibrated among them: the later", 0b0101, true, 2},
        {"calibration doesn't count unasked", 0b1110, false, 3},
        {"a calibrated one that doesn't hold it", 0b0001, true, 0},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.fault);
        const US_ROIRegDataRec* found =
            U_USRegionForShape(&regions, row.prefer, [&row](const US_ROIRegDataRec& region) {
                return (row.belongsTo >> region.fX0 & 1) != 0;
            });
        EXPECT_EQ(found ? static_cast<int>(found->fX0) : -1, row.chosen);
    }
    EXPECT_EQ(U_USRegionForShape(nullptr, true, [](const auto&) { return true; }), nullptr);
}

TEST(U_MenuItemTitleForUSRegion, words_type_and_units)
{
    struct Row {
        std::int32_t dataType;
        std::int32_t unitX;
        bool withUnits;
        const char* title;
    };
    const Row rows[] = {
        {10, 3, false, "Region 3: ECG Trace"},
        {0, 3, false, "Region 3"},
        {18, 4, true, "3 – Other Physiological Input (x:s, y:cm)"},
        {19, 13, true, "3 (x:N/A, y:cm)"},
        {-1, -1, true, "3 (x:N/A, y:cm)"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.title);
        US_ROIRegDataRec region;
        region.fDataType = row.dataType;
        region.fUnitsX = static_cast<ROIUnitType>(row.unitX);
        region.fUnitsY = ROIUnitType::Centimetre;
        EXPECT_EQ(U_MenuItemTitleForUSRegion(region, 2, row.withUnits).toStdString(), row.title);
    }
    EXPECT_STREQ(U_USRegion_UnitForUnitType(ROIUnitType{13}), "kLineUnits_Pix");
}

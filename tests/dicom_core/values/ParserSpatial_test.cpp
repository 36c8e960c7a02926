// Pixel sizes, orientation letters and planes from a file's top level.
#include "dicom_core/values/ParserSpatial.h"

#include "fixtures/DicomBuilder.h"

#include <gtest/gtest.h>

namespace {

QvxReaderPtr Open(const DicomBuilder& file)
{
    QvxReaderPtr reader;
    EXPECT_EQ(Qvx2Parser_OpenBytes(&reader, file.ByteVector(), kQvxProgramOptions), kQvxOK);
    return reader;
}

DicomBuilder Header() { return DicomBuilder().Meta(kUidExplicitLittle).CommonHeader("CT"); }

DicomBuilder Oriented(const char* cosines)
{
    return Header().Element(0x0020, 0x0037, "DS", cosines);
}

}  // namespace

TEST(Parser_GetPixelDimensions, puts_the_aspect_correction_on_top_of_the_spacing)
{
    struct Row {
        const char* fault;
        const char *spacing, *aspect;  // null: no such element
        std::int32_t factor1, factor2;
        float first, second;
        bool scaled;
    };
    const Row rows[] = {
        {"nothing stated", nullptr, nullptr, 1000, 1000, 0, 0, false},
        {"square pixels", "0.5\\0.5", nullptr, 1000, 1000, 0.5F, 0.5F, true},
        {"an aspect ratio", "1\\1", "4\\3", 1333, 1000, 1.333F, 1, true},
        {"a ratio below 1 cuts the second factor", "1\\1", "3\\4", 1000, 750, 4.0F / 3, 1, true},
        {"the spacing's own ratio doubles it", "0.5\\0.25", nullptr, 2000, 1000, 1, 0.25F, true},
        {"the stated ratio goes before the spacing's", "0.5\\0.25", "1\\1", 1000, 1000, 0.5F, 0.25F,
         true},
        {"a ratio over 0", "1\\1", "4\\0", 1000, 1000, 1, 1, true},
        {"a ratio too large", "1\\1", "11\\1", 1000, 1000, 1, 1, true},
        {"half a ratio isn't the spacing's", "0.5\\0.25", "2", 1000, 1000, 0.5F, 0.25F, true},
        {"half a spacing", "0.5", nullptr, 1000, 1000, 0.5F, 0, false},
        {"a negative spacing", "-1\\-1", nullptr, 1000, 1000, -1, -1, false},
        {"a spacing of no number", "nan\\inf", nullptr, 1000, 1000, 0, 0, false},
        {"a spacing beyond a float", "1e300\\1e300", nullptr, 1000, 1000, 0, 0, false},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.fault);
        DicomBuilder file = Header();
        if (row.spacing)
            file.Element(0x0028, 0x0030, "DS", row.spacing);
        if (row.aspect)
            file.Element(0x0028, 0x0034, "IS", row.aspect);
        const QvxReaderPtr reader = Open(file);
        std::int32_t factor1 = 0, factor2 = 0;
        EXPECT_EQ(Qvx2_ParserGetPixelAspectRatioFactors(reader.get(), &factor1, &factor2), kQvxOK);
        EXPECT_EQ(factor1, row.factor1);
        EXPECT_EQ(factor2, row.factor2);
        float first = -9, second = -9;
        const QvxStatus status = Parser_GetPixelDimensions(reader.get(), &first, &second);
        EXPECT_TRUE(status == kQvxOK || first == 0);
        EXPECT_FLOAT_EQ(first, row.first);
        EXPECT_FLOAT_EQ(second, row.second);
        EXPECT_EQ(Parser_FileHasScaleInfo(reader.get()), row.scaled);
    }
}

TEST(Parser_GetFramePositionStrings, takes_the_strongest_axis_first)
{
    struct Row {
        const char* fault;
        DicomBuilder file;
        const char *top, *left, *bottom, *right;
    };
    const Row rows[] = {
        {"axial", Oriented("1\\0\\0\\0\\1\\0"), "A", "R", "P", "L"},
        {"a coronal column points to the feet", Oriented("-1\\0\\0\\0\\0\\-1"), "H", "L", "F", "R"},
        {"oblique", Oriented("0.8\\0.6\\0\\0\\0\\1"), "F", "RA", "H", "LP"},
        {"the stronger one isn't the first", Oriented("0.36\\-0.48\\0.8\\0\\1\\0"), "A", "FPR", "P",
         "HAL"},
        {"equal components end the string", Oriented("0.7071068\\0.7071068\\0\\0\\0\\1"), "F", "",
         "H", ""},
        {"a value that can't be read is stronger than any", Oriented("1\\x\\0\\0\\1\\0"), "A", "R",
         "P", "L"},
        {"an empty value counts as 2", Oriented("1\\\\0\\0\\1\\0"), "A", "AR", "P", "PL"},
        {"no orientation", Header(), "", "", "", ""},
        {"an empty orientation", Oriented(""), "", "", "", ""},
        {"the pair of directions isn't taken",
         Oriented("1\\0\\0\\0\\1\\0").Element(0x0020, 0x0020, "CS", "H\\F"), "A", "R", "P", "L"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.fault);
        std::string top = "?", left = "?", bottom = "?", right = "?";
        Parser_GetFramePositionStrings(Open(row.file).get(), &top, &left, &bottom, &right);
        EXPECT_EQ(top, row.top);
        EXPECT_EQ(left, row.left);
        EXPECT_EQ(bottom, row.bottom);
        EXPECT_EQ(right, row.right);
    }
}

TEST(Parser_GetPositionOrientationSpacingAndSize, fills_a_plane)
{
    const auto file = Oriented("1\\0\\0\\0\\0\\-1")
                          .Element(0x0020, 0x0032, "DS", "-10.123456789\\20\\30.5")
                          .Element(0x0028, 0x0030, "DS", "0.5\\0.25");
    zelPlane plane;
    EXPECT_EQ(Parser_GetPositionOrientationSpacingAndSize(Open(file).get(), 100, 40, &plane),
              kQvxOK);
    EXPECT_EQ(plane.fCosines.fNormal, (std::array<double, 3>{0, 1, 0}));
    EXPECT_EQ(plane.fPosition, (std::array<double, 3>{-10.123456789, 20, 30.5}));
    EXPECT_DOUBLE_EQ(plane.fExtent1, 10);   // 40 rows of 0.25
    EXPECT_DOUBLE_EQ(plane.fExtent2, 100);  // 100 columns of 1, after the correction

    plane.fCosines.fRow = {7, 7, 7};
    EXPECT_EQ(Parser_GetPositionOrientationSpacingAndSize(Open(Header()).get(), 1, 1, &plane),
              kQvxNoSuchElement);
    EXPECT_EQ(plane.fCosines.fRow[0], 7);  // stays
    EXPECT_EQ(plane.fPosition[2], 0);
}

TEST(Parser_HasSpatialLocationFields, wants_all_three)
{
    auto file = Oriented("1\\0\\0\\0\\1\\0").Element(0x0020, 0x0032, "DS", "0\\0\\0");
    EXPECT_FALSE(Parser_HasSpatialLocationFields(Open(file).get()));
    file.Element(0x0020, 0x0052, "UI", "1.2.3");
    EXPECT_TRUE(Parser_HasSpatialLocationFields(Open(file).get()));
}

TEST(Parser_ImageTypeIsLocalizer, compares_whole_values)
{
    const std::pair<const char*, bool> rows[] = {
        {"ORIGINAL\\PRIMARY\\LOCALIZER", true},
        {"DERIVED\\LOCALIZER \\M", true},
        {"ORIGINAL\\PRIMARY\\NOT_LOCALIZER", false},
        {"ORIGINAL\\PRIMARY\\LOCALIZER2", false},
        {"", false},
    };
    for (const auto& [type, isLocalizer] : rows) {
        SCOPED_TRACE(type);
        const auto file =
            DicomBuilder().Meta(kUidExplicitLittle).Element(0x0008, 0x0008, "CS", type);
        EXPECT_EQ(Parser_ImageTypeIsLocalizer(Open(file).get()), isLocalizer);
    }
}

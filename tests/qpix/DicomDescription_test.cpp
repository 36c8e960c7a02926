// The extensions' bytes: they are a wire format.
#include "qpix/DicomDescription.h"

#include "fixtures/DicomValue.h"
#include "pixels/PortDescription.h"

#include <gtest/gtest.h>

namespace {

std::vector<std::uint8_t> Bytes(std::string_view hex)
{
    const std::string bytes = Hex(hex);
    return {bytes.begin(), bytes.end()};
}

}  // namespace

TEST(DicomDescription, reads_the_default_window)
{
    struct Row {
        const char* fault;
        std::optional<std::string> data;
        QvxStatus status;
        float width, level;
    };
    const Row rows[] = {
        {"level comes before width", "00000001 42200000 43C80000", kQvxOK, 400, 40},
        {"any flag but 0 counts", "80000000 42200000 43C80000 FFFF", kQvxOK, 400, 40},
        {"no extension", std::nullopt, kQvxNoDefaultWindow, -1, -1},
        {"flag 0", "00000000 42200000 43C80000", kQvxNoDefaultWindow, -1, -1},
        {"too short", "00000001 42200000", kQvxBadArgument, -1, -1},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.fault);
        ImageDescription description;
        if (row.data)
            description.fExtensions.push_back({FourCC("DVPA"), Bytes(*row.data)});
        float width = -1, level = -1;
        EXPECT_EQ(GetDicomDescriptionVOIParams(description, &width, &level), row.status);
        EXPECT_EQ(width, row.width);
        EXPECT_EQ(level, row.level);
    }
}

TEST(DicomDescription, a_writer_leaves_one_extension_of_its_tag)
{
    ImageDescription description;
    description.fExtensions = {{FourCC("DHNT"), Bytes("00")},
                               {FourCC("cspc"), Bytes("62313667")},
                               {FourCC("DHNT"), Bytes("01")}};
    ASSERT_EQ(SetDicomDescriptionHints(&description, 162), kQvxOK);
    ASSERT_EQ(description.fExtensions.size(), 2U);
    EXPECT_EQ(ColorSpaceOf(description), FourCC("b16g"));
    EXPECT_EQ(description.fExtensions[1].fData, Bytes("000000A2"));

    ASSERT_EQ(SetDicomDescriptionVOIParams(&description, {{1, 0xFFFFFFFE}}), kQvxOK);
    EXPECT_EQ(FindExtension(description, FourCC("DVOI"))->fData, Bytes("00000001 FFFFFFFE"));
    ASSERT_EQ(SetDicomDescriptionVOIBoundClippingOption(&description,
                                                        QvxVOIBoundsClippingOption::PixelBounds),
              kQvxOK);
    EXPECT_EQ(FindExtension(description, FourCC("DVCL"))->fData, Bytes("00000001"));
}

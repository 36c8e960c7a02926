// Which format a table makes of a depth, what becomes of seeds, and that descriptions go round.
#include "pixels/PortTables.h"

#include "pixels/Pictures.h"
#include "pixels/PortDescription.h"

namespace {

ImageDescription Described(std::int16_t depth, std::int16_t id, int systemTable = 0)
{
    ImageDescription description;
    description.fDepth = depth;
    description.fColorTableId = id;
    if (systemTable != 0)
        description.fColorTable = SystemColorTable(systemTable);
    return description;
}

ImageDescription WithSpace(ImageDescription description, std::vector<std::uint8_t> payload)
{
    description.fExtensions.push_back({FourCC("cspc"), std::move(payload)});
    return description;
}

}  // namespace

TEST(GetPixelFormatFromImageDescription, asks_the_extension_then_the_tables)
{
    struct Row {
        const char* fault;
        ImageDescription description;
        std::uint32_t format;
    };
    const Row rows[] = {
        {"gray by id", Described(8, 40), 40},
        {"gray by its own table", Described(8, 0, 40), 40},
        {"colour by its own table", Described(8, 0, 8), 8},
        {"id 0 without a table", Described(8, 0), 8},
        {"four grays", Described(2, 0, 34), 34},
        {"one bit by id", Described(1, 33), 33},
        {"one bit never by its table", Described(1, 0, 33), 1},
        {"9 and 41 are no gray", Described(9, 41), 9},
        {"gray already", Described(40, 40), 40},
        {"the extension wins", WithSpace(Described(16, -1), {'b', '1', '6', 'g'}), FourCC("b16g")},
        {"an empty extension doesn't", WithSpace(Described(32, -1), {0, 0, 0, 0}), 32},
        {"nor a short one", WithSpace(Described(32, -1), {'b', '1'}), 32},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.fault);
        EXPECT_EQ(GetPixelFormatFromImageDescription(row.description), row.format);
    }
}

TEST(MakeImageDescriptionForPixMap, leads_back_to_the_same_port)
{
    for (const std::uint32_t format :
         {1u, 2u, 4u, 8u, 16u, 24u, 32u, 33u, 34u, 36u, 40u, FourCC("b16g")}) {
        SCOPED_TRACE(format);
        const auto port = WhitePort(format, 5, 3);
        ImageDescription made;
        ASSERT_EQ(MakeImageDescriptionForPixMap(*port, &made), kQvxOK);
        EXPECT_EQ(GetPixelFormatFromImageDescription(made), format);
        EXPECT_EQ(OwnTableOf(made), nullptr);
        std::int16_t size = 0;
        EXPECT_EQ(GetRecommendedPixelSize(made, &size), kQvxOK);
        EXPECT_EQ(size, port->pixelSize);
    }
    const auto windowed = WhitePort(40, 5, 3);
    windowed->colorTable.fEntries[7].red = 1;  // the seed still says 40
    ImageDescription made;
    ASSERT_EQ(MakeImageDescriptionForPixMap(*windowed, &made), kQvxOK);
    ASSERT_NE(OwnTableOf(made), nullptr);
    EXPECT_EQ(OwnTableOf(made)->fEntries[7].red, 1);
}

TEST(GetPixelFormatOfGWorld, looks_at_the_table_of_2_4_and_8_bits)
{
    const auto port = WhitePort(8, 4, 4);
    EXPECT_EQ(GetPixelFormatOfGWorld(*port), 8u);
    ASSERT_EQ(EnforceColorTable(port.get(), *SystemColorTable(40)), kQvxOK);
    EXPECT_EQ(GetPixelFormatOfGWorld(*port), 40u);
    CTabChanged(&port->colorTable);  // the ramp is enough
    EXPECT_EQ(GetPixelFormatOfGWorld(*port), 40u);
    port->colorTable.fEntries[255].blue = 1;
    EXPECT_EQ(GetPixelFormatOfGWorld(*port), 8u);
    EXPECT_EQ(GetPixelFormatOfGWorld(*WhitePort(36, 4, 4)), 36u);
    EXPECT_EQ(GetPixelFormatOfGWorld(*WhitePort(1, 4, 4)), 1u);
    EXPECT_EQ(GetPixelFormatOfGWorld(*WhitePort(FourCC("b16g"), 4, 4)), FourCC("b16g"));
}

TEST(EnforceColorTable, keeps_standard_seeds_and_renews_others)
{
    const auto port = WhitePort(8, 4, 4);
    ASSERT_EQ(EnforceColorTable(port.get(), *SystemColorTable(40)), kQvxOK);
    EXPECT_EQ(port->colorTable.fSeed, 40u);
    ColorTable window = port->colorTable;
    CTabChanged(&window);
    window.fEntries[3] = {3, 1, 2, 3};
    ASSERT_EQ(EnforceColorTable(port.get(), window), kQvxOK);
    EXPECT_EQ(port->colorTable.fEntries[3], window.fEntries[3]);
    const std::uint32_t first = port->colorTable.fSeed;
    EXPECT_NE(first, window.fSeed);
    ASSERT_EQ(EnforceColorTable(port.get(), window), kQvxOK);
    EXPECT_NE(port->colorTable.fSeed, first);
    EXPECT_EQ(EnforceColorTable(port.get(), *SystemColorTable(36)), kQvxBadArgument);
    EXPECT_EQ(EnforceColorTable(WhitePort(32, 4, 4).get(), ColorTable{}), kQvxBadArgument);
}

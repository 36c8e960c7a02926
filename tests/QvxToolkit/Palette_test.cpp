// Palette tables: entries, indexes, and the forms in which files keep them.
#include "ToolkitFixture.h"

#include "QvxToolkit/QvxPalette.h"
#include <gtest/gtest.h>

namespace {

struct TableRow {
    const char* fault;
    std::string_view uid;
    std::uint16_t isSigned;
    std::vector<int> descriptor;
    std::uint16_t element;                   // of the red table
    const char *vr, *data;                   // of all three
    std::vector<std::pair<int, int>> looks;  // stored value, colour
};

// clang-format off
const TableRow kTableRows[] = {
    {"16 bits keep their upper byte", kUidExplicitLittle, 0, {3, 0, 16}, 0x1201, "OW", "0000 0180 FFFF",
     {{0, 0}, {1, 0x80}, {2, 0xFF}}},
    {"big-endian words", kUidExplicitBig, 0, {3, 0, 16}, 0x1201, "OW", "0000 8001 FFFF",
     {{0, 0}, {1, 0x80}, {2, 0xFF}}},
    {"tables that call themselves US", kUidExplicitLittle, 0, {3, 0, 16}, 0x1201, "US", "0000 0180 FFFF",
     {{0, 0}, {1, 0x80}, {2, 0xFF}}},
    {"indexes are clamped", kUidExplicitLittle, 0, {2, 10, 16}, 0x1201, "OW", "0011 0022",
     {{0, 0x11}, {10, 0x11}, {11, 0x22}, {65535, 0x22}}},
    {"a signed first value", kUidExplicitLittle, 1, {2, -1, 16}, 0x1201, "OW", "0011 0022",
     {{-2, 0x11}, {-1, 0x11}, {0, 0x22}}},
    {"two 8-bit entries a word", kUidExplicitLittle, 0, {4, 0, 8}, 0x1201, "OW", "1122 3344",
     {{0, 0x11}, {1, 0x22}, {2, 0x33}, {3, 0x44}}},
    {"two 8-bit entries a big-endian word", kUidExplicitBig, 0, {4, 0, 8}, 0x1201, "OW", "2211 4433",
     {{0, 0x11}, {3, 0x44}}},
    {"an 8-bit entry in each word", kUidExplicitLittle, 0, {2, 0, 8}, 0x1201, "OW", "1100 2200",
     {{0, 0x11}, {1, 0x22}}},
    {"16 bits by word, 8 by their values", kUidExplicitLittle, 0, {2, 0, 16}, 0x1201, "OW", "1100 FF00",
     {{0, 0x11}, {1, 0xFF}}},
    {"0 entries are 65536; fewer are there", kUidExplicitLittle, 0, {0, 0, 16}, 0x1201, "OW", "0011 0022",
     {{1, 0x22}, {65535, 0x22}}},
    {"no tables: a ramp", kUidExplicitLittle, 0, {2, 0, 16}, 0x1299, "OW", "0011 0022",
     {{0, 0}, {65535, 255}}},
    // a run of 2, a line of 2 to 0x4000, and both once more
    {"segments", kUidExplicitLittle, 0, {8, 0, 16}, 0x1221, "OW", "0000 0200 0010 0020  0100 0200 0040  0200 0200 0000 0000",
     {{0, 0x10}, {1, 0x20}, {2, 0x30}, {3, 0x40}, {4, 0x10}, {7, 0x40}}},
    {"segments of bytes", kUidExplicitLittle, 0, {3, 0, 8}, 0x1221, "OW", "0001 10 01 02 30",
     {{0, 0x10}, {1, 0x20}, {2, 0x30}}},
    {"segments that refer to themselves", kUidExplicitLittle, 0, {4, 0, 16}, 0x1221, "OW", "0000 0100 0033  0200 FFFF 0600 0000",
     {{0, 0x33}, {3, 0x33}}},
    {"segments without entries", kUidExplicitLittle, 0, {4, 0, 16}, 0x1221, "OW", "0000 0100 0033  0000 0000 0000 0100 0044",
     {{0, 0x33}, {3, 0x33}}},
    {"a run longer than its table", kUidExplicitLittle, 0, {4, 0, 16}, 0x1221, "OW", "0000 FFFF 0033",
     {{0, 0}, {65535, 255}}},
};
// clang-format on

TEST(Palette, entries_by_stored_value)
{
    for (const TableRow& row : kTableRows) {
        SCOPED_TRACE(row.fault);
        DicomBuilder builder =
            ImageFile({.isSigned = row.isSigned, .photometric = "PALETTE COLOR"}, row.uid);
        for (std::uint16_t color = 0; color < 3; ++color)
            builder.Element(0x0028, static_cast<std::uint16_t>(0x1101 + color), "US",
                            row.descriptor);
        for (std::uint16_t color = 0; color < 3; ++color)
            builder.Element(0x0028, static_cast<std::uint16_t>(row.element + color), row.vr,
                            Hex(row.data));
        ToolkitFile file(builder.NativePixels(Hex("0000 0100")));
        ASSERT_EQ(file.status, kQvxOK) << file.why;
        const QvxPalette palette = QvxReadPalette(file.reader.get(), file.record);
        for (const auto& [stored, color] : row.looks) {
            for (const auto& component : palette.fColors)
                EXPECT_EQ(component.Of(stored), color) << "of " << stored;
        }
    }
}

TEST(Palette, the_three_tables_are_kept_apart)
{
    DicomBuilder builder =
        ImageFile({.allocated = 8, .stored = 8, .highBit = 7, .photometric = "PALETTE COLOR"});
    for (std::uint16_t color = 0; color < 3; ++color)
        builder.Element(0x0028, static_cast<std::uint16_t>(0x1101 + color), "US", {2, 1, 16});
    builder.Element(0x0028, 0x1201, "OW", Hex("0011 0012"));
    builder.Element(0x0028, 0x1202, "OW", Hex("0021 0022"));
    builder.Element(0x0028, 0x1203, "OW", Hex("0031 0032"));
    ToolkitFile file(builder.NativePixels(Hex("0102"), "OB"));
    EXPECT_EQ(file.Values(), (std::vector<double>{1, 2}));  // indexes, not colours
    const QvxPalette palette = QvxReadPalette(file.reader.get(), file.record);
    EXPECT_EQ(palette.fColors[0].Of(1), 0x11);
    EXPECT_EQ(palette.fColors[1].Of(2), 0x22);
    EXPECT_EQ(palette.fColors[2].Of(1), 0x31);
}

}  // namespace

// Stored values of native frames: bits, byte orders, arrangements, frames that are not there.
#include "ToolkitFixture.h"

#include <gtest/gtest.h>

namespace {

using Values = std::vector<double>;

struct PixelRow {
    const char* fault;
    ImageHead head;
    std::string_view uid;
    const char* vr;
    const char* pixels;  // hexadecimal, as they stand in the file
    std::uint32_t frame;
    Values values;
};

// clang-format off
const PixelRow kPixelRows[] = {
    {"bits above the stored ones are no pixel", {.stored = 12, .highBit = 11},
     kUidExplicitLittle, "OW", "34F2 FF0F", 1, {0x234, 0xFFF}},
    {"the sign is that of the stored bits", {.stored = 12, .highBit = 11, .isSigned = 1},
     kUidExplicitLittle, "OW", "0018 FFF7", 1, {-2048, 2047}},
    {"a high bit above the stored ones shifts", {.stored = 12, .highBit = 15, .isSigned = 1},
     kUidExplicitLittle, "OW", "0F80 F07F", 1, {-2048, 2047}},
    {"all 16 bits signed", {.isSigned = 1},
     kUidExplicitLittle, "OW", "0080 FFFF", 1, {-32768, -1}},
    {"big-endian words", {.stored = 12, .highBit = 11},
     kUidExplicitBig, "OW", "F234 0FFF", 1, {0x234, 0xFFF}},
    {"bytes of big-endian words are swapped", {.allocated = 8, .stored = 8, .highBit = 7},
     kUidExplicitBig, "OW", "0201", 1, {1, 2}},
    {"bytes of OB are not", {.allocated = 8, .stored = 8, .highBit = 7},
     kUidExplicitBig, "OB", "0201", 1, {2, 1}},
    {"a frame begins within a word", {.columns = 3, .allocated = 8, .stored = 8, .highBit = 7, .frames = "2"},
     kUidExplicitBig, "OW", "0201 0403 0605", 2, {4, 5, 6}},
    {"signed bytes", {.allocated = 8, .stored = 8, .highBit = 7, .isSigned = 1},
     kUidExplicitLittle, "OB", "80FF", 1, {-128, -1}},
    {"8 bits stored in 16", {.stored = 8, .highBit = 7},
     kUidExplicitLittle, "OW", "11EE 22EE", 1, {0x11, 0x22}},
    {"12 packed bits", {.allocated = 12, .stored = 12, .highBit = 11},
     kUidExplicitLittle, "OW", "23 61 45 00", 1, {0x123, 0x456}},
    {"12 packed bits in big-endian words", {.allocated = 12, .stored = 12, .highBit = 11},
     kUidExplicitBig, "OW", "61 23 00 45", 1, {0x123, 0x456}},
    {"24 bits", {.allocated = 24, .stored = 24, .highBit = 23, .isSigned = 1},
     kUidExplicitLittle, "OB", "010203 FFFFFF", 1, {0x030201, -1}},
    {"32 bits", {.allocated = 32, .stored = 32, .highBit = 31},
     kUidExplicitLittle, "OW", "FFFFFFFF 01000000", 1, {4294967295.0, 1}},
    {"32 bits, big endian, signed", {.allocated = 32, .stored = 32, .highBit = 31, .isSigned = 1},
     kUidExplicitBig, "OW", "FFFFFFFE 00000001", 1, {-2, 1}},
    {"the stored bits of 64", {.allocated = 64, .stored = 20, .highBit = 51},
     kUidExplicitLittle, "OW", "FFFFFFFF 0100F0FF  00000000 00000800", 1, {1, 0x80000}},
    {"single bits, lowest first", {.rows = 3, .columns = 3, .allocated = 1, .stored = 1, .highBit = 0},
     kUidExplicitLittle, "OB", "0501", 1, {1, 0, 1, 0, 0, 0, 0, 0, 1}},
    {"frames of bits follow without a gap", {.rows = 3, .columns = 1, .allocated = 1, .stored = 1, .highBit = 0, .frames = "3"},
     kUidExplicitLittle, "OB", "A801", 3, {0, 1, 1}},
    {"frames of bits in whole bytes", {.rows = 3, .columns = 1, .allocated = 1, .stored = 1, .highBit = 0, .frames = "2"},
     kUidExplicitLittle, "OB", "0705", 2, {1, 0, 1}},
    {"colour by pixel", {.allocated = 8, .stored = 8, .highBit = 7, .samples = 3, .photometric = "RGB"},
     kUidExplicitLittle, "OB", "010203 040506", 1, {1, 2, 3, 4, 5, 6}},
    {"colour by plane", {.allocated = 8, .stored = 8, .highBit = 7, .samples = 3, .planar = 1, .photometric = "RGB"},
     kUidExplicitLittle, "OB", "0104 0205 0306", 1, {1, 2, 3, 4, 5, 6}},
    {"deep colour by plane, big endian", {.samples = 3, .planar = 1, .photometric = "RGB"},
     kUidExplicitBig, "OW", "00010004 00020005 00030006", 1, {1, 2, 3, 4, 5, 6}},
    {"full range", {.allocated = 8, .stored = 8, .highBit = 7, .samples = 3, .photometric = "YBR_FULL"},
     kUidExplicitLittle, "OB", "FF8080 4C55FF", 1, {255, 255, 255, 254, 0, 0}},
    {"two pixels share their colour", {.allocated = 8, .stored = 8, .highBit = 7, .samples = 3, .photometric = "YBR_FULL_422"},
     kUidExplicitLittle, "OB", "10F0 8080", 1, {16, 16, 16, 240, 240, 240}},
    {"partial range", {.allocated = 8, .stored = 8, .highBit = 7, .samples = 3, .photometric = "YBR_PARTIAL_422"},
     kUidExplicitLittle, "OB", "10EB 8080", 1, {0, 0, 0, 255, 255, 255}},
    {"4:2:2 by name, full colour by length", {.allocated = 8, .stored = 8, .highBit = 7, .samples = 3, .photometric = "YBR_FULL_422"},
     kUidExplicitLittle, "OB", "108080 F08080", 1, {16, 16, 16, 240, 240, 240}},
    {"full range of 16 bits", {.columns = 1, .samples = 3, .photometric = "YBR_FULL"},
     kUidExplicitLittle, "OW", "FFFF 0080 0080", 1, {65535, 65535, 65535}},
};
// clang-format on

TEST(NativeFrame, cells_become_samples)
{
    for (const PixelRow& row : kPixelRows) {
        SCOPED_TRACE(row.fault);
        DicomBuilder file = ImageFile(row.head, row.uid);
        file.NativePixels(Hex(row.pixels), row.vr);
        ToolkitFile opened(file);
        EXPECT_EQ(opened.Values(row.frame), row.values) << opened.why;
        EXPECT_EQ(opened.frame.fIsRGB, row.head.samples == 3);
        EXPECT_FALSE(opened.frame.fCutShort);
    }
}

TEST(NativeFrame, the_form_follows_from_the_stored_bits)
{
    const struct {
        std::uint16_t allocated, stored, isSigned;
        DecodedForm form;
    } rows[] = {
        {16, 8, 0, DecodedForm::UInt8},   {8, 8, 1, DecodedForm::Int16},
        {16, 9, 0, DecodedForm::UInt16},  {32, 16, 1, DecodedForm::Int16},
        {32, 17, 0, DecodedForm::UInt32}, {32, 32, 1, DecodedForm::Int32},
    };
    for (const auto& row : rows) {
        const auto high = static_cast<std::uint16_t>(row.stored - 1);
        ToolkitFile file(ImageFile({.columns = 1,
                                    .allocated = row.allocated,
                                    .stored = row.stored,
                                    .highBit = high,
                                    .isSigned = row.isSigned})
                             .NativePixels(std::string(row.allocated / 8u, '\1'), "OW"));
        EXPECT_EQ(file.Values().size(), 1u);
        EXPECT_EQ(file.frame.fForm, row.form) << row.allocated << ' ' << row.stored;
    }
}

TEST(NativeFrame, float_pixels)
{
    for (const std::string_view uid : {kUidExplicitLittle, kUidExplicitBig}) {
        const ImageHead head{.rows = 1, .columns = 2, .allocated = 32, .frames = "2"};
        ToolkitFile single(
            ImageFile(head, uid).Element(0x7FE0, 0x0008, "OF", {0.5, -2.0, 3.25, 1e10}));
        EXPECT_EQ(single.Values(1), (Values{0.5, -2})) << single.why;
        EXPECT_EQ(single.Values(2), (Values{3.25, 1e10}));
        ToolkitFile wide(
            ImageFile(head, uid).Element(0x7FE0, 0x0009, "OD", {0.1, -2.0, 1e300, 1.0}));
        EXPECT_EQ(wide.Values(2), (Values{1e300, 1})) << wide.why;
        EXPECT_EQ(CanonicalBytes(wide.frame).size(), 16u);
    }
}

TEST(NativeFrame, frames_that_are_not_there)
{
    const ImageHead ten{.rows = 2, .columns = 2, .frames = "10"};
    ToolkitFile some(ImageFile(ten).NativePixels(std::string(20, '\1')));  // two and a half
    EXPECT_EQ(some.record.fFrames, 2u);
    EXPECT_EQ(some.record.fClaimedFrames, 10u);
    const struct {
        std::uint32_t number;
        QvxStatus status;
    } rows[] = {{1, kQvxOK},
                {2, kQvxOK},
                {3, kQvxEndOfFile},
                {10, kQvxEndOfFile},
                {0, kQvxBadArgument},
                {11, kQvxBadArgument},
                {0xFFFFFFFF, kQvxBadArgument}};
    for (const auto& row : rows)
        EXPECT_EQ(DecodeFrame(some.reader.get(), some.record, row.number, &some.frame), row.status)
            << row.number;
}

TEST(NativeFrame, the_only_frame_is_decoded_as_far_as_it_is_there)
{
    const ImageHead head{.rows = 2, .columns = 2};
    ToolkitFile atEnd(ImageFile(head).NativePixels(Hex("0100 0200 0300 0400")).CutTail(3));
    EXPECT_EQ(atEnd.Values(), (Values{1, 2, 0, 0})) << "half a sample is none";
    EXPECT_TRUE(atEnd.frame.fCutShort);
    ToolkitFile before(ImageFile(head)
                           .NativePixels(Hex("0100 0200"))
                           .Element(0xFFFC, 0xFFFC, "OB", std::string(8, '\xFF')));
    EXPECT_EQ(before.Values(), (Values{1, 2, 0, 0})) << before.why;
    ToolkitFile planar(ImageFile({.rows = 1,
                                  .columns = 2,
                                  .allocated = 8,
                                  .stored = 8,
                                  .highBit = 7,
                                  .samples = 3,
                                  .planar = 1,
                                  .photometric = "RGB"})
                           .NativePixels(Hex("0104 0205"), "OB"));
    EXPECT_EQ(planar.Values(), (Values{1, 2, 0, 4, 5, 0})) << planar.why;
    EXPECT_TRUE(planar.frame.fCutShort);
    ToolkitFile again(ImageFile(head).NativePixels(Hex("0100 0200 0300 0400")));
    again.frame = atEnd.frame;  // a block in use again
    EXPECT_EQ(again.Values(), (Values{1, 2, 3, 4}));
    EXPECT_FALSE(again.frame.fCutShort);
}

TEST(NativeFrame, an_encoding_without_a_decoder_is_named)
{
    constexpr std::string_view kUid = "1.2.840.10008.1.2.4.94";  // pixels by reference
    const ImageHead head{.rows = 1, .columns = 2};
    ToolkitFile file(ImageFile(head, kUid).Encapsulated({{"some bytes"}}));
    EXPECT_EQ(file.status, kQvxOK) << file.why;
    EXPECT_TRUE(file.Values().empty());
    EXPECT_EQ(file.status, kQvxUnsupported);
    EXPECT_NE(file.why.find(kUid), std::string::npos) << file.why;
}

TEST(DecodedValues, statistics_and_canonical_bytes)
{
    ToolkitFile gray(ImageFile({.columns = 3, .stored = 12, .highBit = 11, .isSigned = 1})
                         .NativePixels(Hex("FFFF 0100 0600")));
    ASSERT_EQ(gray.Values().size(), 3u);
    const DecodedStats stats = StatsOf(gray.frame);
    EXPECT_EQ(stats.fMinimum, -1);
    EXPECT_EQ(stats.fMaximum, 6);
    EXPECT_EQ(stats.fMean, 2);
    const auto canonical = [](const DecodedFrame& frame) {
        const auto bytes = CanonicalBytes(frame);
        return std::string(bytes.begin(), bytes.end());
    };
    EXPECT_EQ(canonical(gray.frame), Hex("FFFFFFFF 01000000 06000000"));
    DecodedFrame rgb;
    rgb.fRows = rgb.fColumns = 1;
    rgb.fSamples = 3;
    rgb.fBytes = {1, 2, 3};
    rgb.fIsRGB = true;
    EXPECT_EQ(canonical(rgb), Hex("010203"));
    rgb.fForm = DecodedForm::UInt16;
    rgb.fBytes = {1, 0, 2, 0, 3, 0};
    EXPECT_EQ(canonical(rgb), Hex("01000000 02000000 03000000"));
    DecodedFrame floats;
    floats.fRows = 1;
    floats.fColumns = 2;
    floats.fForm = DecodedForm::Float64;
    const double values[] = {std::numeric_limits<double>::quiet_NaN(), 2.5};
    floats.fBytes.resize(sizeof values);
    std::memcpy(floats.fBytes.data(), values, sizeof values);
    EXPECT_EQ(StatsOf(floats).fMinimum, 2.5);
    EXPECT_EQ(StatsOf(floats).fMean, 2.5);
}

}  // namespace

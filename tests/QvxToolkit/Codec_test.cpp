// Display values and what they mean: whatever the scale, the user value that comes back from a
// display pixel is the rescaled stored one.
#include "ToolkitFixture.h"

#include "QvxToolkit/QvxCodec.h"
#include <cmath>
#include <gtest/gtest.h>
#include <limits>

namespace {

struct Filled {
    QvxStatus status = kQvxBadArgument;
    std::uint32_t format = 0;
    std::vector<std::uint8_t> bytes;
    std::vector<int> display;  // of gray
    std::int32_t least = -1, most = -1;
};

// Rows are a few bytes further apart than they need to be.
Filled Fill(ToolkitFile& file)
{
    Filled filled;
    if (file.Values().empty())
        return filled;
    const QvxFrameRecord& record = file.record;
    filled.format = QvxCodecPixelFormat(record);
    const std::size_t size = filled.format == kPixelFormatGray8    ? 1
                             : filled.format == kPixelFormatGray16 ? 2
                                                                   : 4;
    PixMap map;
    map.rowBytes = static_cast<std::int32_t>(record.fColumns * size + 4);
    std::vector<std::uint8_t> block(static_cast<std::size_t>(map.rowBytes) * record.fRows, 0xEE);
    map.baseAddr = block.data();
    map.pixelFormat = filled.format;
    map.bounds = {0, 0, static_cast<std::int16_t>(record.fRows),
                  static_cast<std::int16_t>(record.fColumns)};
    filled.status =
        QvxCodecFillPixels(file.reader.get(), record, file.frame, map, &filled.least, &filled.most);
    for (std::uint32_t line = 0; line < record.fRows; ++line) {
        const auto row = block.begin() + static_cast<std::ptrdiff_t>(line) * map.rowBytes;
        const auto end = row + static_cast<std::ptrdiff_t>(record.fColumns * size);
        filled.bytes.insert(filled.bytes.end(), row, end);
        EXPECT_EQ(*end, 0xEE) << "the row's padding was written";
    }
    for (std::size_t i = 0; size < 4 && i < filled.bytes.size(); i += size)
        filled.display.push_back(size == 1 ? 255 - filled.bytes[i]
                                           : filled.bytes[i] << 8 | filled.bytes[i + 1]);
    return filled;
}

double UserOf(const QvxPixelInfo& info, int display)
{
    const double steps = info.fPhotometric ? display + info.fPixelShift
                                           : info.fPixelRange - (display + info.fPixelShift);
    return steps * info.fFactor + info.fOffset;
}

struct ScaleRow {
    const char* fault;
    ImageHead head;
    const char *slope, *intercept;
    const char* pixels;
    std::uint32_t format;
    QvxPixelInfo info;
    std::vector<int> display;
};

constexpr std::uint32_t k16 = kPixelFormatGray16, k8 = kPixelFormatGray8;
constexpr std::uint16_t k12 = 12, kHigh12 = 11;

// clang-format off
const ScaleRow kScaleRows[] = {
    {"CT: shift is the intercept", {.stored = k12, .highBit = kHigh12}, "1", "-1024", "0000 FF0F", k16,
     {1, 0, 3071, -1024, 1, 0}, {0, 4095}},
    {"signed: the least value is 0", {.isSigned = 1}, "1", "0", "0080 FF7F", k16,
     {1, 0, 32767, -32768, 1, 0}, {0, 65535}},
    {"signed, with an intercept", {.stored = k12, .highBit = kHigh12, .isSigned = 1}, "1", "10", "0008 FF07", k16,
     {1, 0, 2057, -2038, 1, 0}, {0, 4095}},
    {"a fraction of the intercept stays beside", {.stored = k12, .highBit = kHigh12}, "1", "-1000.25", "0000 0100", k16,
     {1, 0, 3095, -1000, 1, -0.25}, {0, 1}},
    {"whole slope that fits: rescaled units", {.stored = k12, .highBit = kHigh12}, "2", "-4096", "0000 0100", k16,
     {1, 0, 4094, -4096, 1, 0}, {0, 2}},
    {"whole slope that doesn't fit", {}, "2", "0", "0000 0100", k16,
     {1, 0, 65535, 0, 2, 0}, {0, 1}},
    {"fractional slope", {}, "0.5", "-3", "0000 FFFF", k16,
     {1, 0, 65529, -6, 0.5, 0}, {0, 65535}},
    {"intercept that is no multiple", {.stored = k12, .highBit = kHigh12}, "0.75", "-1", "0000 0100", k16,
     {1, 0, 4094, -1, 0.75, -0.25}, {0, 1}},
    {"negative slope turns the direction", {.stored = k12, .highBit = kHigh12}, "-1", "100", "0000 FF0F", k16,
     {1, 0, 100, -3995, 1, 0}, {4095, 0}},
    {"an intercept far out", {.stored = k12, .highBit = kHigh12}, "1", "1e15", "0000 0100", k16,
     {1, 0, 4095, 0, 1, 1e15}, {0, 1}},
    {"MONOCHROME1: low is white", {.stored = k12, .highBit = kHigh12, .photometric = "MONOCHROME1"}, "1", "0", "0000 FF0F", k16,
     {0, 0, 4095, 0, 1, 0}, {4095, 0}},
    {"MONOCHROME1 with an intercept", {.stored = k12, .highBit = kHigh12, .photometric = "MONOCHROME1"}, "1", "-1024", "0000 FF0F", k16,
     {0, 0, 3071, 0, 1, 0}, {4095, 0}},
    {"MONOCHROME1, signed, fractional", {.stored = k12, .highBit = kHigh12, .isSigned = 1, .photometric = "MONOCHROME1"}, "0.5", "0", "0008 FF07", k16,
     {0, 0, 2047, 0, 0.5, 0}, {4095, 0}},
    {"MONOCHROME1 with a negative slope", {.stored = k12, .highBit = kHigh12, .photometric = "MONOCHROME1"}, "-1", "0", "0000 FF0F", k16,
     {0, 0, 0, 0, 1, 0}, {0, 4095}},
    {"bytes are inverted in memory only", {.allocated = 8, .stored = 8, .highBit = 7}, "1", "0", "00FF", k8,
     {1, 0, 255, 0, 1, 0}, {0, 255}},
    {"signed bytes", {.allocated = 8, .stored = 8, .highBit = 7, .isSigned = 1}, "1", "0", "807F", k8,
     {1, 0, 127, -128, 1, 0}, {0, 255}},
    {"bytes that need 16 bits", {.allocated = 8, .stored = 8, .highBit = 7}, "3", "0", "00FF", k16,
     {1, 0, 765, 0, 1, 0}, {0, 765}},
    {"32 bits: the frame's own range fits", {.allocated = 32, .stored = 32, .highBit = 31}, "1", "0", "10000080 20000080", k16,
     {1, 0, 65535, 0, 1, 0}, {0, 16}},
    {"32 bits: the lowest ones are dropped", {.allocated = 32, .stored = 32, .highBit = 31, .isSigned = 1}, "1", "0", "0000FFFF 0000FF7F", k16,
     {1, 0, 32767, -1, 65536, 0}, {0, 32768}},
};
// clang-format on

TEST(QvxCodec, scale_of_gray_pixels)
{
    for (const ScaleRow& row : kScaleRows) {
        SCOPED_TRACE(row.fault);
        ToolkitFile file(ImageFile(row.head)
                             .Element(0x0028, 0x1052, "DS", row.intercept)
                             .Element(0x0028, 0x1053, "DS", row.slope)
                             .NativePixels(Hex(row.pixels)));
        const Filled filled = Fill(file);
        ASSERT_EQ(filled.status, kQvxOK) << file.why;
        EXPECT_EQ(filled.format, row.format);
        EXPECT_EQ(filled.display, row.display);
        const QvxPixelInfo info = QvxCodecPixelInfo(file.record, &file.frame);
        EXPECT_EQ(info.fPhotometric, row.info.fPhotometric);
        EXPECT_EQ(info.fFactor, row.info.fFactor);
        // The scale of a deep frame with values that no shift holds is told by its user values.
        if (!QvxCodecScaleIsPerFrame(file.record)) {
            EXPECT_EQ(info.fPixelRange, row.info.fPixelRange);
            EXPECT_EQ(info.fPixelShift, row.info.fPixelShift);
            EXPECT_EQ(info.fOffset, row.info.fOffset);
        }
        const auto stored = file.Values();
        for (std::size_t i = 0; i < stored.size(); ++i)
            EXPECT_DOUBLE_EQ(UserOf(info, filled.display[i]),
                             stored[i] * file.record.fSlope + file.record.fIntercept);
        const auto limits = QvxCodecGetDisplayVOILimits(file.record, &file.frame);
        EXPECT_GE(limits.fMaxLevel, filled.most);
        EXPECT_EQ(limits.fMaxWidth, static_cast<std::uint32_t>(limits.fMaxLevel) + 1);
        EXPECT_EQ(filled.least, std::min(row.display[0], row.display[1]));
        EXPECT_EQ(filled.most, std::max(row.display[0], row.display[1]));
    }
}

TEST(QvxCodec, scale_of_float_pixels)
{
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const struct {
        const char* fault;
        std::vector<double> pixels;
        const char* slope;
        double factor;
        std::vector<int> display;
    } rows[] = {
        {"whole values keep steps of 1", {-5, 0, 60000}, "1", 1, {0, 5, 60005}},
        {"the frame's own range", {-0.5, 0, 0.5}, "1", 1 / 65535.0, {0, 32768, 65535}},
        {"rescaled downward", {0, 0.5, 1}, "-4", 4 / 65535.0, {65535, 32767, 0}},
        {"one value", {0.25, 0.25, 0.25}, "1", 1, {0, 0, 0}},
        {"no number is the least", {nan, 1, 2}, "1", 1, {0, 0, 1}},
        {"nothing but that", {nan, nan, nan}, "1", 1, {0, 0, 0}},
        {"the ends of the range", {-1.7e308, 0, 1.7e308}, "1", 3.4e304 / 6.5535, {0, 32768, 65535}},
        {"almost nothing", {0, 4e-324, 5e-324}, "1", 1, {0, 0, 0}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.fault);
        ToolkitFile file(ImageFile({.columns = 3})
                             .Element(0x0028, 0x1053, "DS", row.slope)
                             .Element(0x7FE0, 0x0009, "OD", row.pixels));
        const Filled filled = Fill(file);
        ASSERT_EQ(filled.status, kQvxOK) << file.why;
        EXPECT_EQ(filled.format, kPixelFormatGray16);
        EXPECT_EQ(filled.display, row.display);
        const QvxPixelInfo info = QvxCodecPixelInfo(file.record, &file.frame);
        EXPECT_NEAR(info.fFactor, row.factor, row.factor * 1e-9);
        const auto stored = file.Values();
        for (std::size_t i = 0; i < stored.size(); ++i) {
            const double user = UserOf(info, filled.display[i]);
            EXPECT_TRUE(std::isfinite(user));
            if (std::isnan(stored[i]))
                continue;
            EXPECT_NEAR(user / info.fFactor, stored[i] * file.record.fSlope / info.fFactor, 0.5001);
        }
    }
}

TEST(QvxCodec, padding_is_left_out_of_the_range)
{
    const struct {
        const char* fault;
        const char* pixels;
        int limit;  // 0: none
        std::int32_t least, most;
    } rows[] = {
        {"one value", "30F8 0000 0A00", 0, 32768, 32778},
        {"a range", "30F8 31F8 0A00", -1999, 32778, 32778},
        {"only padding: better than nothing", "30F8 30F8 30F8", 0, 30768, 30768},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.fault);
        DicomBuilder builder = ImageFile({.columns = 3, .isSigned = 1});
        builder.Element(0x0028, 0x0120, "SS", -2000);
        if (row.limit)
            builder.Element(0x0028, 0x0121, "SS", row.limit);
        ToolkitFile file(builder.NativePixels(Hex(row.pixels)));
        const Filled filled = Fill(file);
        EXPECT_EQ(filled.least, row.least);
        EXPECT_EQ(filled.most, row.most);
    }
}

TEST(QvxCodec, padding_of_floats_and_deep_integers_does_not_stretch_the_scale)
{
    struct Row {
        const char* fault;
        DicomBuilder builder;
        double factor;
        std::vector<int> display;
        std::int32_t least, most;
    };
    const auto floats = [](const char* vr, std::uint16_t tag, const std::vector<double>& pixels) {
        return ImageFile({.columns = 4})
            .Element(0x0028, tag, vr, pixels[0])
            .Element(0x7FE0, tag == 0x0122 ? 0x0008 : 0x0009, tag == 0x0122 ? "OF" : "OD", pixels);
    };
    const ImageHead deep{.columns = 4, .allocated = 32, .stored = 32, .highBit = 31, .isSigned = 1};
    const Row rows[] = {
        {"float", floats("FL", 0x0122, {-1e30, 1, 2, 3}), 1, {0, 0, 1, 2}, 0, 2},
        {"double",
         floats("FD", 0x0123, {1e300, 0, 0.5, 1}),
         1 / 65535.0,
         {65535, 0, 32768, 65535},
         0,
         65535},
        {"32 bits",
         ImageFile(deep)
             .Element(0x0028, 0x0120, "SL", INT32_MIN)
             .NativePixels(Hex("00000080 0A000000 0B000000 0C000000")),
         1,
         {0, 0, 1, 2},
         0,
         2},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.fault);
        ToolkitFile file(row.builder);
        const Filled filled = Fill(file);
        ASSERT_EQ(filled.status, kQvxOK) << file.why;
        EXPECT_EQ(QvxCodecPixelInfo(file.record, &file.frame).fFactor, row.factor);
        EXPECT_EQ(filled.display, row.display);
        EXPECT_EQ(filled.least, row.least);
        EXPECT_EQ(filled.most, row.most);
    }
}

TEST(QvxCodec, colour_becomes_argb)
{
    const struct {
        const char* fault;
        ImageHead head;
        const char *pixels, *argb;
    } rows[] = {
        {"8 bits",
         {.columns = 1,
          .allocated = 8,
          .stored = 8,
          .highBit = 7,
          .samples = 3,
          .photometric = "RGB"},
         "010203",
         "FF010203"},
        {"16 bits are cut",
         {.columns = 1, .samples = 3, .photometric = "RGB"},
         "FF01 00FF 3412",
         "FF01FF12"},
        {"12 of 16",
         {.columns = 1, .stored = 12, .highBit = 11, .samples = 3, .photometric = "RGB"},
         "FF0F F000 1000",
         "FFFF0F01"},
        {"few bits are spread",
         {.columns = 1,
          .allocated = 8,
          .stored = 2,
          .highBit = 1,
          .samples = 3,
          .photometric = "RGB"},
         "000103",
         "FF0055FF"},
        {"32 bits",
         {.columns = 1,
          .allocated = 32,
          .stored = 32,
          .highBit = 31,
          .samples = 3,
          .photometric = "RGB"},
         "FFFFFFFF 00000080 00000001",
         "FFFF8001"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.fault);
        ToolkitFile file(ImageFile(row.head).NativePixels(Hex(row.pixels)));
        const Filled filled = Fill(file);
        EXPECT_EQ(filled.format, kPixelFormatARGB32);
        EXPECT_EQ(std::string(filled.bytes.begin(), filled.bytes.end()), Hex(row.argb));
    }
}

TEST(QvxCodec, a_map_that_does_not_match_is_refused)
{
    ToolkitFile file(ImageFile({}).NativePixels(Hex("0000 0100")));
    ASSERT_EQ(file.Values().size(), 2u);
    std::vector<std::uint8_t> block(64);
    PixMap good;
    good.baseAddr = block.data();
    good.rowBytes = 4;
    good.bounds = {0, 0, 1, 2};
    good.pixelFormat = kPixelFormatGray16;
    std::vector<PixMap> bad(4, good);
    bad[0].baseAddr = nullptr;
    bad[1].rowBytes = 3;
    bad[2].bounds.right = 3;
    bad[3].pixelFormat = kPixelFormatARGB32;
    const auto fill = [&](const PixMap& map, const DecodedFrame& frame) {
        return QvxCodecFillPixels(file.reader.get(), file.record, frame, map, nullptr, nullptr);
    };
    EXPECT_EQ(fill(good, file.frame), kQvxOK);
    for (const PixMap& map : bad)
        EXPECT_EQ(fill(map, file.frame), kQvxBadArgument);
    DecodedFrame other = file.frame;
    other.fBytes.pop_back();
    EXPECT_EQ(fill(good, other), kQvxBadArgument);
    other = file.frame;
    other.fForm = DecodedForm::Float64;
    EXPECT_EQ(fill(good, other), kQvxBadArgument);
}

TEST(QvxCodec, default_window)
{
    const struct {
        const char* fault;
        const char *center, *width, *slope;
        bool found;
        float level, size;
    } rows[] = {
        {"the first", "40\\300", "400\\2000", "1", true, 40, 400},
        {"the first that is one", "40\\300", "0\\2000", "1", true, 300, 2000},
        {"too narrow", "40", "0.5", "1", false, 0, 0},
        {"narrow, on a fine scale", "0.25", "0.5", "0.001", true, 0.25f, 0.5f},
        {"no number", "x", "400", "1", false, 0, 0},
        {"not finite", "40", "1e99", "1", false, 0, 0},
        {"an empty first value", "\\50", "\\100", "1", true, 50, 100},
        {"no width", "40", "", "1", false, 0, 0},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.fault);
        ToolkitFile file(ImageFile({})
                             .Element(0x0028, 0x1050, "DS", row.center)
                             .Element(0x0028, 0x1051, "DS", row.width)
                             .Element(0x0028, 0x1053, "DS", row.slope)
                             .NativePixels(Hex("0000 0100")));
        const auto window = QvxCodecDefaultWindow(file.reader.get(), file.record);
        EXPECT_EQ(window.fFound, row.found);
        EXPECT_EQ(window.fLevel, row.level);
        EXPECT_EQ(window.fWidth, row.size);
    }
}

}  // namespace

// From a file to grays: every form of window, polarity and slope against the standard's formulas
// (PS3.3 C.11.2.1) in plain double arithmetic over user values.
#include "dicom_core/look/VOICurve.h"

#include "dicom_core/look/CVOIBlitter.h"

#include "QvxToolkit/ToolkitFixture.h"
#include <cmath>
#include <functional>
#include <gtest/gtest.h>
#include <limits>

namespace {

constexpr std::uint16_t kColumns = 4096;
using Gray = std::function<double(double user)>;

std::string Ramp(std::uint16_t first)
{
    std::string bytes;
    for (std::uint16_t i = 0; i < kColumns; ++i) {
        bytes.push_back(static_cast<char>((first + i) & 0xFF));
        bytes.push_back(static_cast<char>((first + i) >> 8));
    }
    return bytes;
}

// A frame of one row, decoded, with the record that it is shown by.
struct Shown {
    explicit Shown(const DicomBuilder& builder, std::uint32_t frame = 1) : file(builder)
    {
        stored = file.Values(frame);
        EXPECT_EQ(file.status, kQvxOK) << file.why;
        EXPECT_EQ(QvxRecordOfFrame(file.reader.get(), file.record, frame, &own), kQvxOK);
        pixels.resize(stored.size() * 2);
        const auto side = static_cast<std::int16_t>(stored.size());
        source = {pixels.data(), side * 2, {0, 0, 1, side}, QvxCodecPixelFormat(own), 16, 1, 16,
                  false};
        EXPECT_EQ(QvxCodecFillPixels(file.reader.get(), own, file.frame, source, &least, &most),
                  kQvxOK);
        const QvxPixelInfo info = QvxCodecPixelInfo(own, &file.frame);
        record.voiInfo = {
            info.fPhotometric, 0,           info.fPixelRange, source.pixelFormat, info.fPixelShift,
            info.fFactor,      info.fOffset};
        record.SetVOIWidthLimits(static_cast<float>(info.fFactor), 1e12F);
        record.SetVOILevelLimits(-1e12F, 1e12F);
    }
    std::vector<int> Grays(bool bounded)
    {
        std::vector<std::uint8_t> bytes(stored.size());
        PixMap target{bytes.data(), source.rowBytes / 2, source.bounds, kPixelFormatGray8, 8, 1, 8,
                      false};
        const Rect all = source.bounds;
        EXPECT_EQ(bounded
                      ? blitter.CopyPixelsTo8Bits(record, least, most, &source, &target, all, all)
                      : blitter.CopyPixelsTo8Bits(record, &source, &target, all, all),
                  kQvxOK);
        std::vector<int> grays;
        for (const std::uint8_t byte : bytes)
            grays.push_back(255 - byte);
        return grays;
    }
    [[nodiscard]] double UserOf(std::size_t i) const
    {
        return own.fModality ? own.fModality->Of(static_cast<std::int64_t>(stored[i]))
                             : stored[i] * own.fSlope + own.fIntercept;
    }
    // Every pixel is within one gray of `gray`, turned round for an inverted frame.
    void ExpectGrays(bool bounded, const Gray& gray)
    {
        const std::vector<int> grays = Grays(bounded);
        int worst = 0;
        std::size_t where = 0;
        for (std::size_t i = 0; i < grays.size(); ++i) {
            const double y = gray(UserOf(i));
            const int wanted = static_cast<int>(std::lround(own.fInverted ? 255 - y : y));
            if (std::abs(grays[i] - wanted) > worst) {
                worst = std::abs(grays[i] - wanted);
                where = i;
            }
        }
        EXPECT_LE(worst, 1) << "stored " << stored[where] << " is " << grays[where];
    }

    ToolkitFile file;
    QvxFrameRecord own;
    zel_TransformRec record;
    std::vector<double> stored;
    std::vector<std::uint8_t> pixels;
    PixMap source;
    std::int32_t least = 0, most = 0;
    CVOIBlitter blitter;
};

Gray Standard(zelVOIFunction function, double c, double w)
{
    switch (function) {
        case zelVOIFunction::Sigmoid:
            return [=](double x) { return 255 / (1 + std::exp(-4 * (x - c) / w)); };
        case zelVOIFunction::LinearExact:
            return [=](double x) { return std::clamp(((x - c) / w + 0.5) * 255, 0.0, 255.0); };
        default:
            return [=](double x) {
                return std::clamp(((x - (c - 0.5)) / (w - 1) + 0.5) * 255, 0.0, 255.0);
            };
    }
}

ImageHead RampHead(const char* photometric)
{
    return {.columns = kColumns, .stored = 12, .highBit = 11, .photometric = photometric};
}

struct SlopeRow {
    const char *slope, *intercept;
    double level, width;  // whole and even where whole numbers are steps
};
constexpr SlopeRow kSlopes[] = {
    {"1", "-1024", 40, 400},       {"1", "-1024", 40.5, 80},  {"1", "0", 100, 10},
    {"-1", "100", -2000, 300},     {"2", "-4096", 300, 1000}, {"0.37", "-10.25", 700.5, 400},
    {"1e-3", "0", 2, 2},           {"1e-3", "0", 2, 0.5},     {"5000", "-7", 9e6, 4000000},
    {"5000", "0", 1000000, 20000}, {"-0.37", "3", -500, 64},
};

}  // namespace

TEST(VOICurve, without_bounds_grays_are_the_standard_s)
{
    for (const SlopeRow& row : kSlopes) {
        for (const char* photometric : {"MONOCHROME1", "MONOCHROME2"}) {
            Shown shown(ImageFile(RampHead(photometric))
                            .Element(0x0028, 0x1052, "DS", row.intercept)
                            .Element(0x0028, 0x1053, "DS", row.slope)
                            .NativePixels(Ramp(0)));
            for (const auto function :
                 {zelVOIFunction::Linear, zelVOIFunction::LinearExact, zelVOIFunction::Sigmoid}) {
                SCOPED_TRACE(std::string(photometric) + ' ' + row.slope + ' ' +
                             std::to_string(row.width) + ' ' +
                             std::to_string(static_cast<int>(function)));
                shown.record.RecordVOI(static_cast<float>(row.width),
                                       static_cast<float>(row.level));
                shown.record.voiFunction = function;
                const bool narrow = function == zelVOIFunction::Linear && row.width < 1;
                shown.ExpectGrays(false, Standard(narrow ? zelVOIFunction::LinearExact : function,
                                                  row.level, row.width));
            }
        }
    }
}

// The window in whole display values, cut to those that the frame has.
TEST(VOICurve, with_bounds_a_linear_window_is_cut_to_the_pixels)
{
    for (const SlopeRow& row : kSlopes) {
        for (const char* photometric : {"MONOCHROME1", "MONOCHROME2"}) {
            SCOPED_TRACE(std::string(photometric) + ' ' + row.slope);
            const std::string high = Ramp(0).substr(2 * 1800);  // a frame without low values
            const std::string pixels = high + high.substr(high.size() - 2 * 1800);
            Shown shown(ImageFile(RampHead(photometric))
                            .Element(0x0028, 0x1052, "DS", row.intercept)
                            .Element(0x0028, 0x1053, "DS", row.slope)
                            .NativePixels(pixels));
            shown.record.RecordVOI(static_cast<float>(row.width), static_cast<float>(row.level));
            const zelVOIBlitterInfo& info = shown.record.voiInfo;
            const double factor = info.pixelFactor;
            double level = (row.level - info.pixelOffset) / factor;
            if (shown.own.fInverted)
                level = info.pixelRange - level;
            const double width = std::max(std::round(row.width / factor), 1.0);
            double lo = std::trunc(level) - info.pixelShift - std::floor(width / 2);
            double hi = std::min(lo + width - 1, static_cast<double>(shown.most));
            lo = std::max(lo, static_cast<double>(shown.least));
            hi = std::max(hi, lo + 1);
            shown.ExpectGrays(true, [&](double user) {
                double display = (user - info.pixelOffset) / factor;
                if (shown.own.fInverted)
                    display = info.pixelRange - display;
                const double place = (display - info.pixelShift - lo) / (hi - lo);
                const double gray = std::clamp(place, 0.0, 1.0) * 255;
                return shown.own.fInverted ? 255 - gray : gray;
            });
        }
    }
}

TEST(VOICurve, bounds_cut_an_exact_window_and_leave_a_sigmoid_alone)
{
    Shown shown(ImageFile({.columns = kColumns}).NativePixels(Ramp(1000)));
    shown.record.voiFunction = zelVOIFunction::LinearExact;
    shown.record.RecordVOI(4000, 1500);  // -500 to 3500, pixels are 1000 and up
    shown.ExpectGrays(true, [](double x) { return std::clamp((x - 1000) / 2500, 0.0, 1.0) * 255; });
    shown.record.RecordVOI(10, 0);  // none of it is left: a step
    shown.ExpectGrays(true, [](double x) { return x > 1000 ? 255.0 : 0.0; });
    shown.record.voiFunction = zelVOIFunction::Sigmoid;
    shown.record.RecordVOI(900, 1500);
    shown.ExpectGrays(true, Standard(zelVOIFunction::Sigmoid, 1500, 900));
}

Item TableItem(std::vector<std::uint16_t> descriptor, const std::vector<std::uint16_t>& entries)
{
    std::string data;
    for (const std::uint16_t entry : entries) {
        data.push_back(static_cast<char>(entry & 0xFF));
        data.push_back(static_cast<char>(entry >> 8));
    }
    return Item().Element(0x0028, 0x3002, "US", descriptor).Element(0x0028, 0x3006, "OW", data);
}

TEST(VOICurve, tables_of_both_kinds_one_behind_the_other)
{
    std::vector<std::uint16_t> square(4096), step(512);
    for (std::size_t i = 0; i < square.size(); ++i)
        square[i] = static_cast<std::uint16_t>(i * i / 16384);
    for (std::size_t i = 0; i < step.size(); ++i)
        step[i] = static_cast<std::uint16_t>((i / 100) * 1000);  // of 12 bits, never all of them
    for (const char* photometric : {"MONOCHROME1", "MONOCHROME2"}) {
        SCOPED_TRACE(photometric);
        Shown shown(ImageFile(RampHead(photometric))
                        .Sequence(0x0028, 0x3000, {TableItem({4096, 0, 10}, square)})
                        .Sequence(0x0028, 0x3010, {TableItem({512, 200, 13}, step)})
                        .NativePixels(Ramp(0)));
        const QvxDefaultWindow look = QvxCodecDefaultWindow(shown.file.reader.get(), shown.own);
        ASSERT_TRUE(look.fTable);
        EXPECT_EQ(look.fWidth, 512);
        EXPECT_EQ(look.fLevel, 456);
        shown.record.SetVOIOriginals(look.fWidth, look.fLevel, look.fTable);
        shown.record.RecordVOI(look.fWidth, look.fLevel);
        const Gray byTable = [&](double user) {
            const auto place = static_cast<std::size_t>(std::clamp(user - 200, 0.0, 511.0));
            return step[place] * 255.0 / 8191;
        };
        shown.ExpectGrays(false, byTable);
        shown.ExpectGrays(true, byTable);
        shown.record.RecordVOI(500, 400);  // the user's own window has no table
        shown.ExpectGrays(false, Standard(zelVOIFunction::Linear, 400, 500));
        shown.record.ResetColors();
        shown.ExpectGrays(false, byTable);
    }
}

TEST(VOICurve, frames_of_an_enhanced_image_have_their_own_slopes)
{
    std::vector<Item> groups;
    for (const char* slope : {"1", "2.5"})
        groups.push_back(Item().Sequence(
            0x0028, 0x9145,
            {Item().Element(0x0028, 0x1052, "DS", "-100").Element(0x0028, 0x1053, "DS", slope)}));
    ImageHead head = RampHead("MONOCHROME2");
    head.frames = "2";
    const DicomBuilder builder =
        ImageFile(head).Sequence(0x5200, 0x9230, groups).NativePixels(Ramp(0) + Ramp(0));
    for (const std::uint32_t frame : {1U, 2U}) {
        SCOPED_TRACE(frame);
        Shown shown(builder, frame);
        EXPECT_EQ(shown.UserOf(1000), frame == 1 ? 900 : 2400);
        shown.record.RecordVOI(600, 1000);
        shown.ExpectGrays(false, Standard(zelVOIFunction::Linear, 1000, 600));
    }
}

TEST(VOICurve, bytes_are_windowed_by_their_colour_table)
{
    std::string pixels;
    for (int i = 0; i < 256; ++i)
        pixels.push_back(static_cast<char>(i));
    for (const char* photometric : {"MONOCHROME1", "MONOCHROME2"}) {
        Shown shown(ImageFile({.columns = 256,
                               .allocated = 8,
                               .stored = 8,
                               .highBit = 7,
                               .photometric = photometric})
                        .NativePixels(pixels));
        shown.record.RecordVOI(100, 90);
        for (const auto function :
             {zelVOIFunction::Linear, zelVOIFunction::LinearExact, zelVOIFunction::Sigmoid}) {
            shown.record.voiFunction = function;
            const ColorTable* table = nullptr;
            ASSERT_EQ(shown.blitter.GetCTableForVOI(shown.record, &table), kQvxOK);
            const Gray gray = Standard(function, 90, 100);
            for (std::size_t i = 0; i < 256; ++i) {
                const double y = gray(static_cast<double>(i));
                EXPECT_NEAR(table->fEntries[shown.pixels[i]].green / 257.0,
                            shown.own.fInverted ? 255 - y : y, 1)
                    << photometric << ' ' << i;
            }
        }
    }
}

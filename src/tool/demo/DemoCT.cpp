#include "tool/demo/DemoHeader.h"
#include "tool/demo/DemoNoise.h"
#include "tool/demo/DemoSeries.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr int kSlices = 60, kSize = 512;
constexpr double kPixel_mm = 0.75, kSpacing_mm = 5;
constexpr double kFirst_mm = -(kSize - 1) * kPixel_mm / 2;  // centre of the first pixel
constexpr double kTop_mm = 150;                             // height of the first slice
constexpr int kIntercept = -1024;

constexpr std::string_view kUidCT = "1.2.840.10008.5.1.4.1.1.2";
constexpr DemoSeries kVolume = {.number = 2,
                                .modality = "CT",
                                .sopClass = kUidCT,
                                .description = "Chest and abdomen 5.0",
                                .bodyPart = "CHEST",
                                .time = "101530"};
constexpr DemoSeries kLocalizer = {.number = 1,
                                   .modality = "CT",
                                   .sopClass = kUidCT,
                                   .description = "Localizer",
                                   .bodyPart = "CHEST",
                                   .time = "101510",
                                   .syntax = DemoSyntax::Deflated};
constexpr DemoPixelForm kForm = {.rows = kSize, .columns = kSize};

std::size_t At(int row, int column)
{
    return static_cast<std::size_t>(row) * kSize + static_cast<std::size_t>(column);
}

// (1 2 1) / 4 down and across: softens edges and noise alike, as a reconstruction does.
void Soften(std::vector<float>* image)
{
    std::vector<float> above(image->begin(), image->begin() + kSize), here(kSize);
    for (int row = 0; row < kSize; ++row) {
        float* line = image->data() + At(row, 0);
        const float* below = image->data() + At(std::min(row + 1, kSize - 1), 0);
        std::copy(line, line + kSize, here.begin());
        for (std::size_t x = 0; x < kSize; ++x)
            line[x] = (above[x] + 2 * here[x] + below[x]) * 0.25F;
        std::swap(above, here);
        float left = line[0];
        for (int x = 0; x < kSize; ++x) {
            const float middle = line[x];
            line[x] = (left + 2 * middle + line[std::min(x + 1, kSize - 1)]) * 0.25F;
            left = middle;
        }
    }
}

// The couch that the patient lies on: a shell filled with foam.
void AddCouch(DemoSlice* slice)
{
    slice->insert(slice->begin(), {DemoEllipse::Turned(0, 142, 200, 20, 0, -150),
                                   DemoEllipse::Turned(0, 142, 198, 17.5, 0, -940)});
}

std::string StoredValues(std::vector<float> hounsfield)
{
    for (float& value : hounsfield)
        value -= kIntercept;
    return DemoStoredValues(hounsfield, 0, 4095);
}

std::string SlicePixels(const DemoPhantom& phantom, double z, std::uint64_t seed)
{
    constexpr float kNoise = 30;  // HU, before Soften leaves a little over a third of it
    DemoSlice slice = phantom.SliceAt(z);
    AddCouch(&slice);
    DemoNoise noise(seed);
    std::vector<float> image(std::size_t{kSize} * kSize), row(kSize);
    for (int y = 0; y < kSize; ++y) {
        DemoSlice_PaintRow(slice, kFirst_mm + y * kPixel_mm, kFirst_mm, kPixel_mm, &row);
        std::ranges::transform(row, image.begin() + static_cast<std::ptrdiff_t>(At(y, 0)),
                               [&](float hu) { return hu + kNoise * noise.Normal(); });
    }
    Soften(&image);
    return StoredValues(image);
}

// Lines of the body as seen from the front, heads up. A scout is weighed in water, not in HU.
std::string LocalizerPixels(const DemoPhantom& phantom)
{
    constexpr float kHUPer_mm = 4;
    DemoNoise noise(1);
    std::vector<float> image(std::size_t{kSize} * kSize), row(kSize);
    for (int y = 0; y < kSize; ++y) {
        DemoSlice_Project(phantom.SliceAt(-kFirst_mm - y * kPixel_mm), kFirst_mm, kPixel_mm, &row);
        std::ranges::transform(
            row, image.begin() + static_cast<std::ptrdiff_t>(At(y, 0)),
            [&](float water) { return kAirHU + kHUPer_mm * water + 6 * noise.Normal(); });
    }
    return StoredValues(image);
}

// What both series share: the scanner's settings, geometry, and how stored values become HU.
DemoDataSet ScannerHeader(const DemoSeries& series, int instance)
{
    DemoDataSet dataSet = DemoHeader(series, instance);
    dataSet.Decimals(0x00180060, {120});
    dataSet.Decimals(0x00180090, {500});
    dataSet.Text(0x00181030, "LO", "Chest demo");
    dataSet.Decimals(0x00181100, {kSize * kPixel_mm});
    dataSet.Decimals(0x00181120, {0});
    dataSet.Integer(0x00181151, 200);
    dataSet.Text(0x00185100, "CS", "HFS");
    dataSet.Integer(0x00200012, series.number);
    dataSet.Text(0x00200052, "UI", DemoFrameOfReferenceUid());
    dataSet.Text(0x00201040, "LO", "");
    dataSet.Decimals(0x00280030, {kPixel_mm, kPixel_mm});
    dataSet.Decimals(0x00281052, {kIntercept});
    dataSet.Decimals(0x00281053, {1});
    dataSet.Text(0x00281054, "LO", "HU");
    return dataSet;
}

DemoDataSet SliceHeader(int instance, double z)
{
    DemoDataSet dataSet = ScannerHeader(kVolume, instance);
    dataSet.Text(0x00080008, "CS", "ORIGINAL\\PRIMARY\\AXIAL");
    DemoDataSet localizer;
    localizer.Text(0x00081150, "UI", kLocalizer.sopClass);
    localizer.Text(0x00081155, "UI", DemoInstanceUid(kLocalizer, 1));
    dataSet.Item(0x00081140, localizer);
    dataSet.Decimals(0x00180050, {kSpacing_mm});
    dataSet.Decimals(0x00180088, {kSpacing_mm});
    dataSet.Integer(0x00181150, 500);
    dataSet.Text(0x00181210, "SH", "SOFT");
    dataSet.Decimals(0x00200032, {kFirst_mm, kFirst_mm, z});
    dataSet.Decimals(0x00200037, {1, 0, 0, 0, 1, 0});
    dataSet.Decimals(0x00201041, {z});
    dataSet.Decimals(0x00281050, {40, -600});
    dataSet.Decimals(0x00281051, {400, 1500});
    dataSet.Text(0x00281055, "LO", "SOFT TISSUE\\LUNG");
    return dataSet;
}

}  // namespace

QvxStatus WriteDemoCT(const DemoPhantom& phantom, DemoFolder* folder)
{
    for (int instance = 1; instance <= kSlices; ++instance) {
        const double z = kTop_mm - (instance - 1) * kSpacing_mm;
        const auto pixels = SlicePixels(phantom, z, static_cast<std::uint64_t>(instance) << 32);
        if (const QvxStatus status = DemoImage_Write(folder, kVolume, instance,
                                                     SliceHeader(instance, z), kForm, {pixels}))
            return status;
    }
    return kQvxOK;
}

QvxStatus WriteDemoLocalizer(const DemoPhantom& phantom, DemoFolder* folder)
{
    DemoDataSet dataSet = ScannerHeader(kLocalizer, 1);
    dataSet.Text(0x00080008, "CS", "ORIGINAL\\PRIMARY\\LOCALIZER");
    dataSet.Text(0x00180050, "DS", "");
    dataSet.Decimals(0x00200032, {kFirst_mm, 0, -kFirst_mm});
    dataSet.Decimals(0x00200037, {1, 0, 0, 0, 0, -1});
    dataSet.Decimals(0x00281050, {-480});
    dataSet.Decimals(0x00281051, {1000});
    return DemoImage_Write(folder, kLocalizer, 1, std::move(dataSet), kForm,
                           {LocalizerPixels(phantom)});
}

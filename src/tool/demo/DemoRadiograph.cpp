#include "tool/demo/DemoGlyphs.h"
#include "tool/demo/DemoNoise.h"
#include "tool/demo/DemoSeries.h"
#include "util/ByteOrder.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr int kColumns = 2000, kRows = 2500;
constexpr double kDetector_mm = 0.168, kMagnification = 1.05;
constexpr double kPatient_mm = kDetector_mm / kMagnification;  // 0.16
constexpr double kTop_mm = 206;                                // height of the first row
constexpr float kWhitest = 4095;

// Rays are followed for every second pixel of every second row and smoothed in between, which is
// about as sharp as a detector is.
constexpr int kStep = 2;
constexpr int kRays = kColumns / kStep, kLines = kRows / kStep;

constexpr DemoSeries kSeries = {3, "DX", kUidDXForPresentation, "Chest PA", "CHEST", "102000"};

using Map = std::vector<float>;  // kRays by kLines

std::size_t At(int line, int ray)
{
    return static_cast<std::size_t>(line) * kRays + static_cast<std::size_t>(ray);
}

Map WaterThickness(const DemoPhantom& phantom)
{
    constexpr double kPitch = kPatient_mm * kStep;
    Map map(std::size_t{kRays} * kLines), row(kRays);
    for (int line = 0; line < kLines; ++line) {
        const DemoSlice slice = phantom.SliceAt(kTop_mm - (line + 0.5) * kPitch);
        DemoSlice_Project(slice, -(kRays - 1) * kPitch / 2, kPitch, &row);
        std::ranges::copy(row, map.begin() + static_cast<std::ptrdiff_t>(At(line, 0)));
    }
    return map;
}

// Means over `2 * reach + 1` values of a run of `count`, `stride` apart; ends are repeated.
void Average(float* values, int count, std::ptrdiff_t stride, int reach, Map* scratch)
{
    const auto value = [&](int i) { return values[std::clamp(i, 0, count - 1) * stride]; };
    double sum = 0;
    for (int i = -reach; i < reach; ++i)
        sum += static_cast<double>(value(i));
    for (int i = 0; i < count; ++i) {
        sum += static_cast<double>(value(i + reach));
        (*scratch)[static_cast<std::size_t>(i)] = static_cast<float>(sum / (2 * reach + 1));
        sum -= static_cast<double>(value(i - reach));
    }
    for (int i = 0; i < count; ++i)
        values[i * stride] = (*scratch)[static_cast<std::size_t>(i)];
}

Map Blurred(Map map, int reach)
{
    Map scratch(std::max(kRays, kLines));
    for (int pass = 0; pass < 2; ++pass) {
        for (int line = 0; line < kLines; ++line)
            Average(map.data() + At(line, 0), kRays, 1, reach, &scratch);
        for (int ray = 0; ray < kRays; ++ray)
            Average(map.data() + ray, kLines, kRays, reach, &scratch);
    }
    return map;
}

// As a radiograph is prepared for reading: coarse differences pressed together, fine ones raised.
Map ForReading(const Map& water)
{
    constexpr float kCoarse = 10.5F, kFine = 22, kDarkest = 150;
    const Map coarse = Blurred(water, 45);
    Map map(water.size());
    for (std::size_t i = 0; i < map.size(); ++i) {
        const float body = std::min(1.0F, water[i] / 40);  // the air beside the body stays black
        map[i] = kDarkest + body * (kCoarse * coarse[i] + kFine * (water[i] - coarse[i]));
    }
    return map;
}

// The lead letter beside the patient's left shoulder.
void PlaceMarker(std::vector<float>* image)
{
    constexpr int kDot = 14, kLeft = 1790, kTop = 160;
    DemoGlyphs_Draw("L", [&](int dotX, int dotY) {
        for (int i = 0; i < kDot * kDot; ++i) {
            const int x = kLeft + dotX * kDot + i % kDot, y = kTop + dotY * kDot + i / kDot;
            (*image)[static_cast<std::size_t>(y) * kColumns + static_cast<std::size_t>(x)] = 3900;
        }
    });
}

std::vector<float> Enlarged(const Map& map)
{
    std::vector<float> image(std::size_t{kColumns} * kRows);
    for (int y = 0; y < kRows; ++y) {
        // Pixel centres stand a quarter of a step beside the rays.
        const int line = y / kStep;
        const int nextLine = std::clamp(line + (y % kStep ? 1 : -1), 0, kLines - 1);
        for (int x = 0; x < kColumns; ++x) {
            const int ray = x / kStep;
            const int nextRay = std::clamp(ray + (x % kStep ? 1 : -1), 0, kRays - 1);
            const float near = 3 * map[At(line, ray)] + map[At(line, nextRay)];
            const float far = 3 * map[At(nextLine, ray)] + map[At(nextLine, nextRay)];
            image[static_cast<std::size_t>(y) * kColumns + static_cast<std::size_t>(x)] =
                (3 * near + far) / 16;
        }
    }
    return image;
}

std::string Pixels(const DemoPhantom& phantom)
{
    constexpr float kNoise = 14;
    std::vector<float> image = Enlarged(ForReading(WaterThickness(phantom)));
    PlaceMarker(&image);
    DemoNoise noise(3);
    std::string bytes(image.size() * 2, '\0');
    for (std::size_t i = 0; i < image.size(); ++i) {
        const float value = std::clamp(image[i] + kNoise * noise.Normal() + 0.5F, 0.0F, kWhitest);
        StoreLE(bytes.data() + 2 * i, static_cast<std::uint16_t>(value));
    }
    return bytes;
}

void AddProjectionHeader(DemoDataSet* dataSet)
{
    dataSet->Text(0x00080008, "CS", "ORIGINAL\\PRIMARY\\");
    dataSet->Text(0x00080068, "CS", "FOR PRESENTATION");
    DemoDataSet region;
    region.Text(0x00080100, "SH", "51185008");
    region.Text(0x00080102, "SH", "SCT");
    region.Text(0x00080104, "LO", "Chest");
    dataSet->Item(0x00082218, region);
    dataSet->Decimals(0x00180060, {125});
    dataSet->Decimals(0x00181110, {1800});
    dataSet->Decimals(0x00181111, {1800 / kMagnification});
    dataSet->Decimals(0x00181114, {kMagnification});
    dataSet->Integer(0x00181150, 10);
    dataSet->Decimals(0x00181164, {kDetector_mm, kDetector_mm});
    dataSet->Text(0x00181508, "CS", "NONE");
    dataSet->Text(0x00185101, "CS", "PA");
    dataSet->Text(0x00187004, "CS", "DIRECT");
    dataSet->Text(0x00200020, "CS", "L\\F");
    dataSet->Text(0x00200062, "CS", "U");
}

}  // namespace

QvxStatus WriteDemoRadiograph(const DemoPhantom& phantom, DemoFolder* folder)
{
    if (const QvxStatus status = folder->MakeFolder("DX"))
        return status;
    DemoDataSet dataSet = DemoHeader(kSeries, 1);
    AddProjectionHeader(&dataSet);
    DemoHeader_AddPixelForm(&dataSet, {.rows = kRows, .columns = kColumns});
    dataSet.Decimals(0x00280030, {kPatient_mm, kPatient_mm});
    dataSet.Text(0x00280301, "CS", "NO");
    dataSet.Text(0x00280A02, "CS", "GEOMETRY");
    dataSet.Text(0x00280A04, "LO", "At the middle of the body");
    dataSet.Text(0x00281040, "CS", "LOG");
    dataSet.Short(0x00281041, -1, "SS");  // more X-rays, lower values
    dataSet.Decimals(0x00281050, {1900});
    dataSet.Decimals(0x00281051, {3000});
    dataSet.Decimals(0x00281052, {0});
    dataSet.Decimals(0x00281053, {1});
    dataSet.Text(0x00281054, "LO", "US");
    dataSet.Text(0x00282110, "CS", "00");
    dataSet.Text(0x20500020, "CS", "IDENTITY");
    dataSet.Pixels(Pixels(phantom), "OW");
    return folder->WriteFile(DemoFileName("DX", 1), dataSet);
}

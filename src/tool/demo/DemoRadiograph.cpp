#include "tool/demo/DemoGlyphs.h"
#include "tool/demo/DemoHeader.h"
#include "tool/demo/DemoNoise.h"
#include "tool/demo/DemoSeries.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace {

constexpr double kMagnification = 1.05;
constexpr double kTop_mm = 206;  // height of the first row
constexpr float kWhitest = 4095;

// Rays are followed for every second pixel of every second row and smoothed in between, which is
// about as sharp as a detector is.
constexpr int kStep = 2;

// One exposure. Pixels are square.
struct View {
    double angle;  // by which the rays turn from the y axis, radians
    int columns, rows;
    double detector_mm;
    float coarse, fine;  // weight of differences over wide and narrow places
    int markerLeft;      // where the lead letter lies
    [[nodiscard]] int Rays() const { return columns / kStep; }
    [[nodiscard]] int Lines() const { return rows / kStep; }
    [[nodiscard]] constexpr double Patient_mm() const { return detector_mm / kMagnification; }
    [[nodiscard]] std::size_t At(int line, int ray) const
    {
        return static_cast<std::size_t>(line) * static_cast<std::size_t>(Rays()) +
               static_cast<std::size_t>(ray);
    }
};
constexpr View kFrontal = {0, 2000, 2500, 0.168, 10.5F, 22, 1790};
constexpr View kLateral = {std::numbers::pi / 2, 1280, 1640, 0.255, 7.0F, 16, 1120};

constexpr DemoSeries kFrontalSeries = {.number = 3,
                                       .modality = "DX",
                                       .sopClass = "1.2.840.10008.5.1.4.1.1.1.1",
                                       .description = "Chest PA",
                                       .bodyPart = "CHEST",
                                       .time = "102000",
                                       .syntax = DemoSyntax::JPEGLossless};
// "Chest, lateral" in JIS X 0208.
constexpr DemoSeries kLateralSeries = {.patient = DemoPatient::Hanako,
                                       .number = 2,
                                       .modality = "CR",
                                       .sopClass = "1.2.840.10008.5.1.4.1.1.1",
                                       .description = "\x1b$B6;ItB&LL\x1b(B",
                                       .bodyPart = "CHEST",
                                       .time = "093000",
                                       .syntax = DemoSyntax::JPEGLS};

using Map = std::vector<float>;  // a view's Rays() by its Lines()

Map WaterThickness(const DemoPhantom& phantom, const View& view)
{
    const double pitch = view.Patient_mm() * kStep;
    const int rays = view.Rays();
    Map map(view.At(view.Lines(), 0)), row(static_cast<std::size_t>(rays));
    for (int line = 0; line < view.Lines(); ++line) {
        const DemoSlice slice = phantom.SliceAt(kTop_mm - (line + 0.5) * pitch);
        DemoSlice_Project(DemoSlice_Turned(slice, view.angle), -(rays - 1) * pitch / 2, pitch,
                          &row);
        std::ranges::copy(row, map.begin() + static_cast<std::ptrdiff_t>(view.At(line, 0)));
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

Map Blurred(Map map, const View& view, int reach)
{
    Map scratch(static_cast<std::size_t>(std::max(view.Rays(), view.Lines())));
    for (int pass = 0; pass < 2; ++pass) {
        for (int line = 0; line < view.Lines(); ++line)
            Average(map.data() + view.At(line, 0), view.Rays(), 1, reach, &scratch);
        for (int ray = 0; ray < view.Rays(); ++ray)
            Average(map.data() + ray, view.Lines(), view.Rays(), reach, &scratch);
    }
    return map;
}

// As a radiograph is prepared for reading: coarse differences pressed together, fine ones raised.
Map ForReading(const Map& water, const View& view)
{
    constexpr float kDarkest = 150;
    const Map coarse = Blurred(water, view, 45);
    Map map(water.size());
    for (std::size_t i = 0; i < map.size(); ++i) {
        const float body = std::min(1.0F, water[i] / 40);  // the air beside the body stays black
        map[i] = kDarkest + body * (view.coarse * coarse[i] + view.fine * (water[i] - coarse[i]));
    }
    return map;
}

// The lead letter beside the patient.
void PlaceMarker(const View& view, std::vector<float>* image)
{
    constexpr int kDot = 14, kTop = 160;
    DemoGlyphs_Draw("L", [&](int dotX, int dotY) {
        for (int i = 0; i < kDot * kDot; ++i) {
            const int x = view.markerLeft + dotX * kDot + i % kDot;
            const int y = kTop + dotY * kDot + i / kDot;
            (*image)[static_cast<std::size_t>(y * view.columns + x)] = 3900;
        }
    });
}

std::vector<float> Enlarged(const Map& map, const View& view)
{
    std::vector<float> image;
    image.reserve(map.size() * kStep * kStep);
    for (int y = 0; y < view.rows; ++y) {
        // Pixel centres stand a quarter of a step beside the rays.
        const int line = y / kStep;
        const int nextLine = std::clamp(line + (y % kStep ? 1 : -1), 0, view.Lines() - 1);
        for (int x = 0; x < view.columns; ++x) {
            const int ray = x / kStep;
            const int nextRay = std::clamp(ray + (x % kStep ? 1 : -1), 0, view.Rays() - 1);
            const float near = 3 * map[view.At(line, ray)] + map[view.At(line, nextRay)];
            const float far = 3 * map[view.At(nextLine, ray)] + map[view.At(nextLine, nextRay)];
            image.push_back((3 * near + far) / 16);
        }
    }
    return image;
}

// What absorbs is bright.
std::vector<float> Image(const DemoPhantom& phantom, const View& view)
{
    constexpr float kNoise = 14;
    std::vector<float> image = Enlarged(ForReading(WaterThickness(phantom, view), view), view);
    PlaceMarker(view, &image);
    DemoNoise noise(3);
    for (float& value : image)
        value += kNoise * noise.Normal();
    return image;
}

void AddProjectionHeader(DemoDataSet* dataSet)
{
    dataSet->Text(0x00080008, "CS", "ORIGINAL\\PRIMARY\\");
    dataSet->Text(0x00080068, "CS", "FOR PRESENTATION");
    dataSet->Item(0x00082218, DemoCode("51185008", "SCT", "Chest"));
    dataSet->Decimals(0x00180060, {125});
    dataSet->Decimals(0x00181110, {1800});
    dataSet->Decimals(0x00181111, {1800 / kMagnification});
    dataSet->Decimals(0x00181114, {kMagnification});
    dataSet->Integer(0x00181150, 10);
    dataSet->Decimals(0x00181164, {kFrontal.detector_mm, kFrontal.detector_mm});
    dataSet->Text(0x00181508, "CS", "NONE");
    dataSet->Text(0x00185101, "CS", "PA");
    dataSet->Text(0x00187004, "CS", "DIRECT");
    dataSet->Text(0x00200020, "CS", "L\\F");
    dataSet->Text(0x00200062, "CS", "U");
    dataSet->Items(0x00400555, {});
    dataSet->Item(0x00540220, DemoCode("399348003", "SCT", "postero-anterior"));
}

}  // namespace

QvxStatus WriteDemoRadiograph(const DemoPhantom& phantom, DemoFolder* folder)
{
    constexpr double kPixel_mm = kFrontal.Patient_mm();
    DemoDataSet dataSet = DemoHeader(kFrontalSeries, 1);
    AddProjectionHeader(&dataSet);
    dataSet.Decimals(0x00280030, {kPixel_mm, kPixel_mm});
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
    return DemoImage_Write(folder, kFrontalSeries, 1, std::move(dataSet),
                           {.rows = kFrontal.rows, .columns = kFrontal.columns},
                           {DemoStoredValues(Image(phantom, kFrontal), 0, kWhitest)});
}

// As older plates are read: what absorbs has low values, and the lowest is to be shown white.
QvxStatus WriteDemoLateral(const DemoPhantom& phantom, DemoFolder* folder)
{
    std::vector<float> image = Image(phantom, kLateral);
    std::ranges::transform(image, image.begin(), [](float value) { return kWhitest - value; });
    DemoDataSet dataSet = DemoHeader(kLateralSeries, 1);
    dataSet.Text(0x00080008, "CS", "ORIGINAL\\PRIMARY");
    dataSet.Decimals(0x00180060, {125});
    dataSet.Text(0x00181260, "SH", "STORAGE PHOSPHOR");
    dataSet.Text(0x00185101, "CS", "LL");
    dataSet.Decimals(0x00181164, {kLateral.detector_mm, kLateral.detector_mm});
    dataSet.Text(0x00200020, "CS", "P\\F");
    dataSet.Decimals(0x00281050, {kWhitest - 2000});
    dataSet.Decimals(0x00281051, {3000});
    return DemoImage_Write(
        folder, kLateralSeries, 1, std::move(dataSet),
        {.rows = kLateral.rows, .columns = kLateral.columns, .photometric = "MONOCHROME1"},
        {DemoStoredValues(image, 0, kWhitest)});
}

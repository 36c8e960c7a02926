// A PET series over the same body: becquerels a millilitre, with a slope of its own in each slice,
// as its scanner fits every slice into 16 bits (PS3.3 C.8.9.4.1.2).
#include "tool/demo/DemoHeader.h"
#include "tool/demo/DemoNoise.h"
#include "tool/demo/DemoSeries.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr int kSlices = 60, kSize = 128, kFine = 2 * kSize;  // painted finer, then averaged
constexpr double kPixel_mm = 3.6, kSpacing_mm = 5, kTop_mm = 150;
constexpr double kFirst_mm = -(kSize - 1) * kPixel_mm / 2;
constexpr float kMost = 32767;
constexpr DemoPixelForm kForm = {.rows = kSize, .columns = kSize, .stored = 16, .isSigned = true};
constexpr DemoSeries kSeries = {.number = 6,
                                .modality = "PT",
                                .sopClass = "1.2.840.10008.5.1.4.1.1.128",
                                .description = "PET corrected",
                                .bodyPart = "CHEST",
                                .time = "112000"};

using Image = std::vector<float>;

// Activity of a tissue after an hour, Bq/ml.
float ActivityOf(float hu)
{
    struct Row {
        float below, activity;
    };
    static constexpr Row kRows[] = {{-900, 0},  {-800, 1500}, {-40, 800},  {7, 4000},
                                    {15, 600},  {25, 3500},   {33, 14000}, {37, 5000},
                                    {43, 6500}, {47, 7000},   {53, 2900},  {57, 38000},
                                    {70, 9800}, {150, 2500},  {300, 5200}, {2000, 2000}};
    for (const Row& row : kRows) {
        if (hu < row.below)
            return row.activity;
    }
    return 0;
}

// The nodules of the lungs, as bright as the phantom places them.
void AddHotSpots(double z, DemoSlice* slice)
{
    DemoEllipsoid({-76, -28, 62}, {5, 5, 6}, 30000 + kAirHU).AddTo(slice, z);
    DemoEllipsoid({88, 24, 22}, {8, 7, 8}, 52000 + kAirHU).AddTo(slice, z);
}

// Means over 3 by 3 places, which are what a detector ring can't tell apart; ends are repeated.
void Smear(int size, Image* image)
{
    const auto at = [size](int y, int x) {
        return static_cast<std::size_t>(std::clamp(y, 0, size - 1)) *
                   static_cast<std::size_t>(size) +
               static_cast<std::size_t>(std::clamp(x, 0, size - 1));
    };
    const Image before = *image;
    for (int y = 0; y < size; ++y) {
        for (int x = 0; x < size; ++x) {
            float sum = 0;
            for (int i = 0; i < 9; ++i)
                sum += before[at(y + i / 3 - 1, x + i % 3 - 1)];
            (*image)[at(y, x)] = sum / 9;
        }
    }
}

Image Activity(const DemoPhantom& phantom, double z, std::uint64_t seed)
{
    constexpr double kFinePixel = kPixel_mm / 2, kFineFirst = kFirst_mm - kPixel_mm / 4;
    DemoSlice slice = phantom.SliceAt(z);
    for (DemoEllipse& ellipse : slice)
        ellipse.hu = ActivityOf(ellipse.hu) + kAirHU;
    AddHotSpots(z, &slice);
    Image fine, row(kFine), image(std::size_t{kSize} * kSize);
    for (int y = 0; y < kFine; ++y) {
        DemoSlice_PaintRow(slice, kFineFirst + y * kFinePixel, kFineFirst, kFinePixel, &row);
        fine.insert(fine.end(), row.begin(), row.end());
    }
    for (int pass = 0; pass < 3; ++pass)
        Smear(kFine, &fine);
    DemoNoise noise(seed);
    for (std::size_t i = 0; i < image.size(); ++i) {
        const float* upper = fine.data() + i / kSize * 2 * kFine + i % kSize * 2;
        const float mean = (upper[0] + upper[1] + upper[kFine] + upper[kFine + 1]) / 4 - kAirHU;
        image[i] = std::max(0.0F, mean + 5 * std::sqrt(mean + 40) * noise.Normal());
    }
    Smear(kSize, &image);
    return image;
}

void AddTracer(DemoDataSet* dataSet)
{
    DemoDataSet tracer;
    tracer.Text(0x00180031, "LO", "Fluorodeoxyglucose");
    tracer.Text(0x00181072, "TM", "102000");
    tracer.Decimals(0x00181074, {350e6});
    tracer.Decimals(0x00181075, {6586.2});
    tracer.Decimals(0x00181076, {0.97});
    tracer.Text(0x00181078, "DT", "20240115102000");
    tracer.Item(0x00540300, DemoCode("77004003", "SCT", "^18^Fluorine"));
    tracer.Item(0x00540304, DemoCode("35321007", "SCT", "Fluorodeoxyglucose F^18^"));
    dataSet->Item(0x00540016, tracer);
    dataSet->Decimals(0x00101020, {1.75});
    dataSet->Decimals(0x00101030, {75});
}

void AddScan(DemoDataSet* dataSet, int instance)
{
    dataSet->Text(0x00080008, "CS", "ORIGINAL\\PRIMARY");
    dataSet->Text(0x00181181, "CS", "NONE");
    dataSet->Integer(0x00181242, 180000);
    dataSet->Text(0x00185100, "CS", "HFS");
    dataSet->Text(0x00280051, "CS", "NORM\\ATTN\\SCAT\\DECY\\RAN\\DTIM");
    dataSet->Text(0x00282110, "CS", "00");
    dataSet->Short(0x00540081, kSlices);
    dataSet->Items(0x00540410, {});
    dataSet->Items(0x00540414, {});
    dataSet->Text(0x00541000, "CS", "WHOLE BODY\\IMAGE");
    dataSet->Text(0x00541001, "CS", "BQML");
    dataSet->Text(0x00541002, "CS", "EMISSION");
    dataSet->Text(0x00541100, "CS", "DLYD");
    dataSet->Text(0x00541101, "LO", "CT");
    dataSet->Text(0x00541102, "CS", "START");
    dataSet->Text(0x00541103, "LO", "Arithmetic");
    dataSet->Decimals(0x00541300, {90000});
    dataSet->Decimals(0x00541321, {1.0095});
    dataSet->Short(0x00541330, instance);
}

DemoDataSet Header(int instance, double z, double slope)
{
    DemoDataSet dataSet = DemoHeader(kSeries, instance);
    AddScan(&dataSet, instance);
    AddTracer(&dataSet);
    dataSet.Decimals(0x00180050, {kSpacing_mm});
    dataSet.Decimals(0x00200032, {kFirst_mm, kFirst_mm, z});
    dataSet.Decimals(0x00200037, {1, 0, 0, 0, 1, 0});
    dataSet.Text(0x00200052, "UI", DemoFrameOfReferenceUid());
    dataSet.Text(0x00201040, "LO", "");
    dataSet.Decimals(0x00201041, {z});
    dataSet.Decimals(0x00280030, {kPixel_mm, kPixel_mm});
    dataSet.Decimals(0x00281050, {7500});
    dataSet.Decimals(0x00281051, {15000});
    dataSet.Decimals(0x00281052, {0});
    dataSet.Decimals(0x00281053, {slope});
    dataSet.Text(0x00281054, "LO", "BQML");
    return dataSet;
}

}  // namespace

QvxStatus WriteDemoPET(const DemoPhantom& phantom, DemoFolder* folder)
{
    for (int instance = 1; instance <= kSlices; ++instance) {
        const double z = kTop_mm - (instance - 1) * kSpacing_mm;
        Image image = Activity(phantom, z, static_cast<std::uint64_t>(instance) << 28);
        const float slope = *std::ranges::max_element(image) / kMost;
        std::ranges::transform(image, image.begin(), [slope](float v) { return v / slope; });
        if (const QvxStatus status = DemoImage_Write(
                folder, kSeries, instance, Header(instance, z, static_cast<double>(slope)), kForm,
                {DemoStoredValues(image, 0, kMost)}))
            return status;
    }
    return kQvxOK;
}

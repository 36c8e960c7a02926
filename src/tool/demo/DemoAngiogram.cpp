// A clip of the left coronary artery while contrast medium runs through it. Its frames don't follow
// each other evenly: the frame time vector says when.
#include "tool/demo/DemoHeader.h"
#include "tool/demo/DemoNoise.h"
#include "tool/demo/DemoSeries.h"
#include "tool/demo/DemoVessels.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace {

constexpr int kSize = kVesselSize, kFrames = 30;
constexpr double kDetector_mm = 0.4, kMagnification = 4.0 / 3;
constexpr double kPixel_mm = kDetector_mm / kMagnification;
constexpr double kPrimaryAngle = -30, kSecondaryAngle = 0;  // degrees: 30 right anterior oblique
constexpr DemoPoint kHeart = {22, -26, 6};                  // middle of the picture, mm
constexpr int kFastFrames = 18;
constexpr double kFast_ms = 66.7, kSlow_ms = 133.3;  // before and after the vessels are full
// "Left coronary artery" in ISO 8859-7.
constexpr DemoSeries kSeries = {.patient = DemoPatient::Eleni,
                                .number = 1,
                                .modality = "XA",
                                .sopClass = "1.2.840.10008.5.1.4.1.1.12.1",
                                .description =
                                    "\xC1\xF1\xE9\xF3\xF4\xE5\xF1\xDE "
                                    "\xF3\xF4\xE5\xF6\xE1\xED\xE9\xE1\xDF\xE1",
                                .bodyPart = "HEART",
                                .time = "134500",
                                .syntax = DemoSyntax::JPEGLossless};

using Image = std::vector<float>;

// Gray of the chest without the medium. What absorbs is dark; differences over wide places are
// pressed together as the chain of an angiograph does.
Image Background(const DemoPhantom& phantom)
{
    constexpr double kTurn = kPrimaryAngle * std::numbers::pi / 180;
    const double middle = kHeart.x * std::cos(kTurn) + kHeart.y * std::sin(kTurn);
    Image image, row(kSize);
    for (int y = 0; y < kSize; ++y) {
        const double z = kHeart.z + (kSize / 2.0 - y) * kPixel_mm;
        DemoSlice_Project(DemoSlice_Turned(phantom.SliceAt(z), kTurn),
                          middle - kSize / 2.0 * kPixel_mm, kPixel_mm, &row);
        for (const float water : row)
            image.push_back(228 - 0.42F * water);
    }
    return image;
}

float Between(const Image& image, double x, double y)
{
    const double left = std::clamp(x, 0.0, kSize - 2.0), top = std::clamp(y, 0.0, kSize - 2.0);
    const auto at = static_cast<std::size_t>(top) * kSize + static_cast<std::size_t>(left);
    const auto across = static_cast<float>(left - std::floor(left));
    const auto down = static_cast<float>(top - std::floor(top));
    const float* p = image.data() + at;
    return (p[0] * (1 - across) + p[1] * across) * (1 - down) +
           (p[kSize] * (1 - across) + p[kSize + 1] * across) * down;
}

// How much of the medium is at `distance` along the vessels, 0 to 1, `ms` after the first frame.
double Contrast(double distance, double ms)
{
    const double front = 0.62 * (ms - 200), tail = 0.35 * (ms - 1150);
    const double come = std::clamp((front - distance) / 40, 0.0, 1.0);
    const double gone = std::clamp((tail - distance) / 160, 0.0, 1.0);
    return come * (1 - 0.85 * gone);
}

std::string Frame(const Image& background, const DemoVessels& vessels, double ms,
                  std::uint64_t seed)
{
    constexpr double kBeat_ms = 880, kDarkening = 7.5, kTube = 5;
    const double beat = 0.5 - 0.5 * std::cos(2 * std::numbers::pi * ms / kBeat_ms);
    DemoNoise noise(seed);
    std::string pixels;
    for (int y = 0; y < kSize; ++y) {
        for (int x = 0; x < kSize; ++x) {
            const double fromMiddle = std::hypot(x - 255.5, y - 255.5);
            if (fromMiddle > 286) {  // the round edge of the detector
                pixels += '\x08';
                continue;
            }
            // The heart draws together around a place below its middle.
            const double fromX = x + 0.055 * beat * (x - 290), fromY = y + 0.07 * beat * (y - 300);
            const auto i = static_cast<std::size_t>(y * kSize + x);
            const double thick = static_cast<double>(Between(vessels.thickness, fromX, fromY));
            double dark = kTube * static_cast<double>(Between(vessels.catheter, fromX, fromY)) *
                          (0.5 + 0.5 * Contrast(0, ms));
            if (thick > 0)
                dark += kDarkening * thick *
                        Contrast(static_cast<double>(Between(vessels.distance, fromX, fromY)), ms);
            const double gray = static_cast<double>(background[i]) - std::min(dark, 110.0) +
                                2.6 * static_cast<double>(noise.Normal());
            pixels += static_cast<char>(static_cast<unsigned char>(std::clamp(gray, 8.0, 255.0)));
        }
    }
    return pixels;
}

// Milliseconds from each frame's forerunner, 0 for the first (PS3.3 C.7.6.5.1.2).
std::vector<double> FrameTimes()
{
    std::vector<double> times = {0};
    for (int i = 1; i < kFrames; ++i)
        times.push_back(i < kFastFrames ? kFast_ms : kSlow_ms);
    return times;
}

DemoDataSet Header()
{
    constexpr std::uint32_t kFrameTimeVector = 0x00181065;
    DemoDataSet dataSet = DemoHeader(kSeries, 1);
    dataSet.Text(0x00080008, "CS", "ORIGINAL\\PRIMARY\\SINGLE PLANE");
    dataSet.Decimals(0x00180060, {78});
    dataSet.Decimals(kFrameTimeVector, FrameTimes());
    dataSet.Decimals(0x00181110, {1000});
    dataSet.Decimals(0x00181111, {750});
    dataSet.Decimals(0x00181114, {kMagnification});
    dataSet.Integer(0x00181150, 6);
    dataSet.Integer(0x00181151, 720);
    dataSet.Integer(0x00181152, 4);
    dataSet.Text(0x00181155, "CS", "GR");
    dataSet.Decimals(0x00181164, {kDetector_mm, kDetector_mm});
    dataSet.Text(0x00181500, "CS", "STATIC");
    dataSet.Decimals(0x00181510, {kPrimaryAngle});
    dataSet.Decimals(0x00181511, {kSecondaryAngle});
    dataSet.Text(0x00200020, "CS", "");
    dataSet.TagOf(0x00280009, kFrameTimeVector);
    dataSet.Text(0x00281040, "CS", "LIN");
    dataSet.Decimals(0x00281050, {128});
    dataSet.Decimals(0x00281051, {240});
    dataSet.Text(0x00282110, "CS", "00");
    return dataSet;
}

}  // namespace

QvxStatus WriteDemoAngiogram(const DemoPhantom& phantom, DemoFolder* folder)
{
    const Image background = Background(phantom);
    const DemoVessels vessels = DemoVessels_Make();
    std::vector<std::string> frames;
    double ms = 0;
    for (const double step : FrameTimes()) {
        ms += step;
        frames.push_back(Frame(background, vessels, ms, frames.size() + 1));
    }
    return DemoImage_Write(folder, kSeries, 1, Header(),
                           {.rows = kSize, .columns = kSize, .allocated = 8, .stored = 8}, frames);
}

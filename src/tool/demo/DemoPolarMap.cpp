// The perfusion of the heart's muscle as a target, in a palette of its own with 16-bit entries.
#include "tool/demo/DemoGlyphs.h"
#include "tool/demo/DemoHeader.h"
#include "tool/demo/DemoNoise.h"
#include "tool/demo/DemoSeries.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace {

constexpr int kSize = 448, kRadius = 176, kCentre = 208;
constexpr int kWarmest = 239, kInk = 255;  // 240 to 255 is a scale of gray
// "Perfusion of the heart's muscle" in ISO 8859-7.
constexpr DemoSeries kSeries = {.patient = DemoPatient::Eleni,
                                .number = 2,
                                .modality = "NM",
                                .sopClass = "1.2.840.10008.5.1.4.1.1.7",
                                .description =
                                    "\xC1\xE9\xEC\xDC\xF4\xF9\xF3\xE7 \xF4\xEF\xF5 "
                                    "\xEC\xF5\xEF\xEA\xE1\xF1\xE4\xDF\xEF\xF5",
                                .bodyPart = "HEART",
                                .time = "150000"};

// Places between which the palette runs straight, in parts of 65535.
struct Stop {
    int index;
    std::array<double, 3> colour;
};
constexpr auto kStops = std::to_array<Stop>({{0, {0, 0, 0}},
                                             {40, {0.10, 0.0, 0.35}},
                                             {90, {0.0, 0.35, 0.75}},
                                             {130, {0.0, 0.65, 0.35}},
                                             {170, {0.95, 0.85, 0.1}},
                                             {215, {0.95, 0.3, 0.05}},
                                             {239, {1.0, 0.9, 0.85}},
                                             {240, {0, 0, 0}},
                                             {255, {1, 1, 1}}});

// 256 entries of one colour: 0 red, 1 green, 2 blue.
std::string Table(std::size_t colour)
{
    std::string bytes;
    for (int i = 0; i < 256; ++i) {
        const auto* const above = std::ranges::lower_bound(kStops, i, {}, &Stop::index);
        double value = above->colour[colour];
        if (above->index != i) {
            const Stop& below = *(above - 1);
            const double part = static_cast<double>(i - below.index) / (above->index - below.index);
            value = below.colour[colour] + part * (value - below.colour[colour]);
        }
        DemoAppendLE(&bytes, static_cast<std::uint16_t>(std::lround(65535 * value)));
    }
    return bytes;
}

// 0 to 1 at `far` (0 the tip of the heart, in the middle, 1 its base) and `angle`.
double Perfusion(double far, double angle)
{
    const auto lack = [&](double f, double a, double width, double depth) {
        const double across = std::remainder(angle - a, 2 * std::numbers::pi) * far;
        return depth * std::exp(-(std::pow(far - f, 2) + across * across) / (width * width));
    };
    const double even = 0.86 - 0.06 * std::cos(angle - 0.4) + 0.05 * std::sin(2 * angle);
    return even - lack(0.55, 1.9, 0.33, 0.55) - lack(0.1, 0, 0.2, 0.2) - lack(1.0, -2.4, 0.2, 0.2);
}

// Borders of the 17 segments: four around the tip, six and six around those.
bool IsBorder(double far, double angle)
{
    const double width = 0.9 / kRadius;
    for (const double ring : {0.18, 0.45, 0.72, 1.0}) {
        if (std::abs(far - ring) < width)
            return true;
    }
    const int count = far < 0.45 ? 4 : 6;
    const double step = 2 * std::numbers::pi / count;
    const double start = count == 4 ? std::numbers::pi / 4 : 0;
    return far > 0.18 && std::abs(std::remainder(angle - start, step)) * far < width;
}

std::string Pixels()
{
    DemoNoise noise(5);
    std::string pixels(std::size_t{kSize} * kSize, '\0');
    const auto set = [&](int x, int y, int index) {
        pixels[static_cast<std::size_t>(y * kSize + x)] = static_cast<char>(index);
    };
    for (int y = 0; y < kSize; ++y) {
        for (int x = 0; x < kSize; ++x) {
            const double far = std::hypot(x - kCentre, y - kCentre) / kRadius;
            const double angle = std::atan2(y - kCentre, x - kCentre);
            if (far > 1.01)
                continue;
            const double value =
                kWarmest * Perfusion(far, angle) + 2 * static_cast<double>(noise.Normal());
            set(x, y,
                IsBorder(far, angle) ? kInk : std::clamp(static_cast<int>(value), 1, kWarmest));
        }
    }
    for (int y = 0; y < 240; ++y) {
        for (int x = 0; x < 16; ++x)
            set(412 + x, 88 + y, kWarmest - y);
    }
    DemoGlyphs_Draw("ZELORA DEMO", [&](int x, int y) {
        for (int i = 0; i < 4; ++i)
            set(24 + 2 * x + i % 2, 416 + 2 * y + i / 2, kInk - 5);
    });
    return pixels;
}

}  // namespace

QvxStatus WriteDemoPolarMap(const DemoPhantom& /*phantom*/, DemoFolder* folder)
{
    DemoDataSet dataSet = DemoHeader(kSeries, 1);
    dataSet.Text(0x00080008, "CS", "DERIVED\\SECONDARY");
    dataSet.Text(0x00080064, "CS", "WSD");
    dataSet.Text(0x00200020, "CS", "");
    for (std::uint32_t colour = 0; colour < 3; ++colour) {
        dataSet.Shorts(0x00281101 + colour, {256, 0, 16});
        dataSet.Words(0x00281201 + colour, Table(colour));
    }
    return DemoImage_Write(folder, kSeries, 1, std::move(dataSet),
                           {kSize, kSize, 1, 8, 8, false, "PALETTE COLOR"}, {Pixels()});
}

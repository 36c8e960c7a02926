#include "tool/demo/DemoGlyphs.h"
#include "tool/demo/DemoHeader.h"
#include "tool/demo/DemoSeries.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <vector>

namespace {

constexpr int kColumns = 1024, kRows = 768, kMargin = 32;

struct Colour {
    double r, g, b;  // 0 to 255
};
constexpr Colour kBackground = {40, 42, 46}, kInk = {235, 235, 235};

constexpr DemoSeries kSeries = {.number = 4,
                                .modality = "OT",
                                .sopClass = "1.2.840.10008.5.1.4.1.1.7",
                                .description = "Colour chart",
                                .bodyPart = "",
                                .time = "103000",
                                .syntax = DemoSyntax::RLE};

class Picture {
public:
    Picture() : fBytes(std::size_t{kColumns} * kRows * 3, '\0')
    {
        Fill(0, 0, kColumns, kRows, [](double, double) { return kBackground; });
    }
    void Set(int x, int y, Colour colour)
    {
        if (x < 0 || y < 0 || x >= kColumns || y >= kRows)
            return;
        const std::size_t at =
            (static_cast<std::size_t>(y) * kColumns + static_cast<std::size_t>(x)) * 3;
        fBytes[at] = static_cast<char>(std::lround(colour.r));
        fBytes[at + 1] = static_cast<char>(std::lround(colour.g));
        fBytes[at + 2] = static_cast<char>(std::lround(colour.b));
    }
    // `colour` gets the place in the rectangle, both ways from 0 at the first pixel to 1 at the
    // last.
    template <typename ColourAt>
    void Fill(int left, int top, int width, int height, ColourAt colour)
    {
        for (int y = 0; y < height; ++y) {
            for (int x = 0; x < width; ++x)
                Set(left + x, top + y,
                    colour(static_cast<double>(x) / std::max(1, width - 1),
                           static_cast<double>(y) / std::max(1, height - 1)));
        }
    }
    void Write(int left, int top, int dotSize, std::string_view text)
    {
        DemoGlyphs_Draw(text, [&](int x, int y) {
            Fill(left + x * dotSize, top + y * dotSize, dotSize, dotSize,
                 [](double, double) { return kInk; });
        });
    }
    [[nodiscard]] std::string TakeBytes() { return std::move(fBytes); }

private:
    std::string fBytes;
};

Colour Hue(double turn, double value)  // full saturation; red at 0, green at 1/3, blue at 2/3
{
    const auto part = [&](double shift) {
        const double distance = std::abs(std::remainder(turn - shift, 1.0)) * 6;
        return 255 * value * std::clamp(2 - distance, 0.0, 1.0);
    };
    return {part(0), part(1.0 / 3), part(2.0 / 3)};
}

void DrawBars(Picture* picture)
{
    static constexpr auto kBars = std::to_array<Colour>({{255, 255, 255},
                                                         {255, 255, 0},
                                                         {0, 255, 255},
                                                         {0, 255, 0},
                                                         {255, 0, 255},
                                                         {255, 0, 0},
                                                         {0, 0, 255},
                                                         {0, 0, 0}});
    constexpr int kWidth = (kColumns - 2 * kMargin) / static_cast<int>(kBars.size());
    int left = kMargin;
    for (const Colour& bar : kBars) {
        picture->Fill(left, 84, kWidth, 110, [&](double, double) { return bar; });
        left += kWidth;
    }
}

void DrawRamps(Picture* picture)
{
    constexpr int kWidth = kColumns - 2 * kMargin;
    picture->Fill(kMargin, 210, kWidth, 120, [](double x, double y) { return Hue(x, 1 - y); });
    picture->Fill(kMargin, 346, kWidth, 20, [](double x, double) { return Colour{255 * x, 0, 0}; });
    picture->Fill(kMargin, 366, kWidth, 20, [](double x, double) { return Colour{0, 255 * x, 0}; });
    picture->Fill(kMargin, 386, kWidth, 20, [](double x, double) { return Colour{0, 0, 255 * x}; });
    picture->Fill(kMargin, 406, kWidth, 20,
                  [](double x, double) { return Colour{255 * x, 255 * x, 255 * x}; });
}

void DrawGraySteps(Picture* picture)
{
    constexpr int kSteps = 16, kWidth = (kColumns - 2 * kMargin) / kSteps;
    for (int i = 0; i < kSteps; ++i) {
        const double gray = 17 * i;
        const int left = kMargin + i * kWidth;
        picture->Fill(left, 466, kWidth, 60,
                      [&](double, double) { return Colour{gray, gray, gray}; });
        picture->Write(left + 8, 534, 2, std::to_string(17 * i));
    }
}

// Pairs of lines, 1 to 4 pixels wide, upright and level.
void DrawLinePairs(Picture* picture)
{
    constexpr int kSize = 96;
    for (int width = 1; width <= 4; ++width) {
        const int left = kMargin + (width - 1) * (kSize + 16);
        for (int y = 0; y < kSize; ++y) {
            for (int x = 0; x < kSize; ++x) {
                const bool light = (y < kSize / 2 ? x : y) / width % 2 == 0;
                picture->Set(left + x, 600 + y, light ? kInk : Colour{0, 0, 0});
            }
        }
        picture->Write(left, 704, 2, std::to_string(width) + " PX");
    }
}

// Rings and spokes: straight and round at any aspect, or it shows.
void DrawTarget(Picture* picture)
{
    constexpr int kX = 760, kY = 652, kRadius = 90;
    for (int y = -kRadius; y <= kRadius; ++y) {
        for (int x = -kRadius; x <= kRadius; ++x) {
            const double distance = std::hypot(x, y);
            const double fromRing = std::abs(std::remainder(distance, 22.0));
            const double ring = std::clamp(2.0 - fromRing, 0.0, 1.0);
            const double spoke = x == 0 || y == 0 || std::abs(x) == std::abs(y) ? 1.0 : 0.0;
            const double ink = distance > kRadius ? 0 : std::max(ring, spoke);
            const auto mix = [&](double back, double front) { return back + ink * (front - back); };
            picture->Set(
                kX + x, kY + y,
                {mix(kBackground.r, 255), mix(kBackground.g, 200), mix(kBackground.b, 60)});
        }
    }
}

}  // namespace

QvxStatus WriteDemoChart(const DemoPhantom& /*phantom*/, DemoFolder* folder)
{
    Picture picture;
    picture.Write(kMargin, 28, 5, "ZELORA DEMO");
    picture.Write(520, 42, 3, "RGB CHART 1024 X 768");
    DrawBars(&picture);
    DrawRamps(&picture);
    picture.Write(kMargin, 442, 2, "16 GRAY STEPS");
    DrawGraySteps(&picture);
    picture.Write(kMargin, 576, 2, "LINE PAIRS");
    DrawLinePairs(&picture);
    DrawTarget(&picture);

    DemoDataSet dataSet = DemoHeader(kSeries, 1);
    dataSet.Text(0x00080008, "CS", "DERIVED\\SECONDARY");
    dataSet.Text(0x00080064, "CS", "WSD");
    dataSet.Text(0x00200020, "CS", "");
    return DemoImage_Write(folder, kSeries, 1, std::move(dataSet),
                           {kRows, kColumns, 3, 8, 8, false, "RGB"}, {picture.TakeBytes()});
}

// Windowing of big-endian 16-bit pixels against a memory copy that moves as many bytes: one that
// reads and writes half of what the windowing reads and writes together. All buffers are touched
// before. One thread.
#include "PairedRatio.h"

#include "Qvx2VOIBlitter/VOIBlitter.h"
#include <cstdlib>
#include <cstring>
#include <random>
#include <string>

namespace {

bool gAllHeld = true;

constexpr double kLimitInMemory = 1 / 0.8;  // 0.8 of the speed
constexpr double kLimitInCache = 1 / 0.25;  // 0.25 of the speed

struct Format {
    const char* name;
    std::uint32_t code;
    std::int32_t bytes;  // a pixel
};
constexpr Format kFormats[] = {{"8 bit", kPixelFormatGray8, 1}, {"32 bit", kPixelFormatARGB32, 4}};

struct Window {
    const char* name;
    std::int32_t level;
    std::uint32_t width;
};
constexpr Window kWindows[] = {
    {"width 400", 1064, 400}, {"width 4096", 2048, 4096}, {"width 65536", 32768, 65536}};

// Grays of 12 bits with noise, as a scanner's.
std::vector<std::uint8_t> NoisyPixels(std::size_t count)
{
    std::vector<std::uint8_t> bytes(2 * count);
    std::minstd_rand random(1);
    for (std::size_t i = 0; i < count; ++i) {
        const auto value = static_cast<std::uint32_t>(random() >> 8 & 0xFFF);
        bytes[2 * i] = static_cast<std::uint8_t>(value >> 8);
        bytes[2 * i + 1] = static_cast<std::uint8_t>(value);
    }
    return bytes;
}

// A square picture, its windowed form, and what the copy moves.
struct Pictures {
    std::int32_t side;
    Format format;
    std::vector<std::uint8_t> source, windowed, copyFrom, copyTo;
    PixMap sourceMap, windowedMap;

    Pictures(std::int16_t sideOf, const Format& formatOf)
        : side(sideOf),
          format(formatOf),
          source(NoisyPixels(Count())),
          windowed(Count() * static_cast<std::size_t>(format.bytes), 1),
          copyFrom((source.size() + windowed.size()) / 2, 2),
          copyTo(copyFrom.size(), 3)
    {
        const Rect bounds{0, 0, sideOf, sideOf};
        sourceMap = {source.data(), side * 2, bounds, kPixelFormatGray16, 0, 0, 0, false};
        windowedMap = {windowed.data(), side * format.bytes, bounds, format.code, 0, 0, 0, false};
    }
    [[nodiscard]] std::size_t Count() const { return static_cast<std::size_t>(side * side); }
};

// Each of `repeats` runs windows the whole picture. `curve` null: the window.
void Measure(benchmark::State& state, Pictures* pictures, const std::string& what, int repeats,
             double limit, const Window& window, const VOICurve* curve)
{
    VOIBlitter blit;
    blit.fClipping = QvxVOIBoundsClippingOption::None;
    const Rect all = pictures->sourceMap.bounds;
    const PairedRatio measured = MeasurePairs(
        [&] {
            for (int i = 0; i < repeats; ++i) {
                const QvxStatus status =
                    curve ? Qvx2_VOIBlit_TableCopyPixels(&blit, *curve, &pictures->sourceMap,
                                                         &pictures->windowedMap, &all, &all)
                          : Qvx2_VOIBlit_VOICopyPixels(&blit, window.level, window.width,
                                                       &pictures->sourceMap, &pictures->windowedMap,
                                                       &all, &all);
                if (status != kQvxOK)
                    std::abort();
                benchmark::ClobberMemory();
            }
        },
        [&] {
            for (int i = 0; i < repeats; ++i) {
                std::memcpy(pictures->copyTo.data(), pictures->copyFrom.data(),
                            pictures->copyTo.size());
                benchmark::ClobberMemory();
            }
        });
    const std::string line = what + " to " + pictures->format.name;
    if (curve)  // has no limit of its own
        std::printf("%s: %.1f us, ratio %.3f\n", line.c_str(), measured.fWork, measured.fRatio);
    else
        gAllHeld &= ReportRatio(state, line.c_str(), measured, limit);
}

void WindowBench(benchmark::State& state, std::int16_t side, int repeats, double limit)
{
    std::vector<std::uint8_t> sigmoid(4096);
    for (std::size_t i = 0; i < sigmoid.size(); ++i)
        sigmoid[i] = static_cast<std::uint8_t>(255 * (4095 - i) * (4095 - i) / (4095 * 4095));
    const VOICurve curve{0, sigmoid};
    const std::string size = std::to_string(side) + " squared, ";
    for (auto _ : state) {
        for (const Format& format : kFormats) {
            Pictures pictures(side, format);
            for (const Window& window : kWindows)
                Measure(state, &pictures, size + window.name, repeats, limit, window, nullptr);
            Measure(state, &pictures, size + "a curve", repeats, limit, kWindows[0], &curve);
        }
    }
}

}  // namespace

int main(int argc, char** argv)
{
    benchmark::Initialize(&argc, argv);
    const auto once = [](benchmark::internal::Benchmark* b) { b->Iterations(1); };
    once(benchmark::RegisterBenchmark("window/memory",
                                      [](auto& s) { WindowBench(s, 8192, 1, kLimitInMemory); }));
    once(benchmark::RegisterBenchmark("window/cache",
                                      [](auto& s) { WindowBench(s, 512, 20, kLimitInCache); }));
    benchmark::RunSpecifiedBenchmarks();
    return gAllHeld ? 0 : 1;
}

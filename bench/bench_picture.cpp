// A frame in memory after a change of its window: windowed from 16 bits into gray of 8, then scaled
// into the 32-bit port that a cell shows, against memory copies of as many bytes as the frame and
// the port hold; then the same with the frame fetched from its store first, its file being in the
// page cache. All buffers are touched before; the scaler's preparations are made once, by the pair
// that isn't counted.
#include "PairedRatio.h"
#include "dicom_core/store/TempFolder.h"
#include "dicom_core/store/zel_ImageBuffer.h"
#include "fixtures/TempFolder.h"
#include "pixels/PixelCopy.h"
#include "pixels/PixelFormat.h"
#include "pixels/ScreenPixels.h"

#include "Qvx2VOIBlitter/VOIBlitter.h"
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <string>

namespace {

bool gAllHeld = true;

struct Size {
    const char* name;
    int width, height, toWidth, toHeight, repeats;
    double limit;         // of work in memory
    double fetchedLimit;  // with the frame read from its store; 0 for none
};
constexpr Size kSizes[] = {{"2048x2048 to 1600x1200", 2048, 2048, 1600, 1200, 1, 3.0, 6.0},
                           {"512x512 to 1024x1024", 512, 512, 1024, 1024, 8, 4.6, 0}};

std::unique_ptr<Port> PortOf(std::uint32_t format, int width, int height)
{
    std::unique_ptr<Port> port;
    if (NewPort(format, width, height, nullptr, &port) != kQvxOK)
        std::abort();
    return port;
}

std::size_t BytesOf(const Port& port)
{
    return static_cast<std::size_t>(port.rowBytes) *
           static_cast<std::size_t>(HeightOf(port.bounds));
}

// Soft shapes of 12 bits with a little grain.
void Paint(const Port& gray16)
{
    for (int v = 0; v < HeightOf(gray16.bounds); ++v) {
        for (int h = 0; h < WidthOf(gray16.bounds); ++h) {
            const double soft = 2000 + 1400 * std::sin(h / 90.0) * std::cos(v / 70.0);
            const auto word = static_cast<unsigned>(soft) + (h * 7919u ^ v * 104729u) % 64;
            std::uint8_t* pixel = RowAddress(gray16, v) + 2 * h;
            pixel[0] = static_cast<std::uint8_t>(word >> 8);
            pixel[1] = static_cast<std::uint8_t>(word);
        }
    }
}

struct Pictures {
    std::unique_ptr<Port> frame, back, shown;
    std::vector<std::uint8_t> frameCopy, shownFrom, shownTo;

    explicit Pictures(const Size& size)
        : frame(PortOf(kPixelFormatGray16, size.width, size.height)),
          back(PortOf(kPixelFormatGray8, size.width, size.height)),
          shown(PortOf(kPixelFormatARGB32, size.toWidth, size.toHeight)),
          frameCopy(BytesOf(*frame), 1),
          shownFrom(BytesOf(*shown), 2),
          shownTo(BytesOf(*shown), 3)
    {
        Paint(*frame);
    }

    void Render(std::int32_t level)
    {
        VOIBlitter blit;
        blit.fClipping = QvxVOIBoundsClippingOption::None;
        const Rect all = frame->bounds;
        if (Qvx2_VOIBlit_VOICopyPixels(&blit, level, 1600, frame.get(), back.get(), &all, &all) ||
            CopyPixels(*back, *shown, nullptr, nullptr, CopyMode::Replace, nullptr))
            std::abort();
        benchmark::ClobberMemory();
    }
    void RenderStored(zel_ImageBuffer* store, std::int32_t level)
    {
        if (store->DrawImageByID(1, 1, frame.get(), nullptr))
            std::abort();
        Render(level);
    }
    void CopyFrame()
    {
        std::memcpy(frameCopy.data(), frame->baseAddr, frameCopy.size());
        benchmark::ClobberMemory();
    }
    void CopyBoth()
    {
        CopyFrame();
        std::memcpy(shownTo.data(), shownFrom.data(), shownTo.size());
        benchmark::ClobberMemory();
    }
    void ToScreen()
    {
        if (CopyToScreen(*shown, nullptr, shownTo.data(), shown->rowBytes))
            std::abort();
        benchmark::ClobberMemory();
    }
};

void PictureBench(benchmark::State& state, const Size& size)
{
    Pictures pictures(size);
    std::int32_t level = 2000;
    const auto times = [&size](auto&& work) {
        return [&size, work] {
            for (int i = 0; i < size.repeats; ++i)
                work();
        };
    };
    const auto render = times([&] { pictures.Render(level ^= 64); });
    const std::string name = size.name;
    for (auto _ : state) {
        const PairedRatio whole = MeasurePairs(render, times([&] { pictures.CopyBoth(); }));
        gAllHeld &= ReportRatio(state, (name + ", frame and result").c_str(), whole, size.limit);
        if (size.fetchedLimit > 0) {
            zel_ImageBuffer store;
            store.SetIOBufferSize(kBaseBufferIOBytes);
            if (store.UpdateImage(*pictures.frame, Rect{}, 1, 1))
                std::abort();
            const PairedRatio fetched =
                MeasurePairs(times([&] { pictures.RenderStored(&store, level ^= 64); }),
                             times([&] { pictures.CopyBoth(); }));
            gAllHeld &= ReportRatio(state, (name + ", fetched from its store first").c_str(),
                                    fetched, size.fetchedLimit);
        }
        // These have no limit.
        const PairedRatio frame = MeasurePairs(render, times([&] { pictures.CopyFrame(); }));
        std::printf("%s, against the frame alone: ratio %.3f\n", size.name, frame.fRatio);
        const PairedRatio screen =
            MeasurePairs(times([&] { pictures.ToScreen(); }), times([&] {
                             std::memcpy(pictures.shownTo.data(), pictures.shownFrom.data(),
                                         pictures.shownTo.size());
                             benchmark::ClobberMemory();
                         }));
        std::printf("%s, result to screen words: %.1f us, ratio %.3f\n", size.name, screen.fWork,
                    screen.fRatio);
    }
}

}  // namespace

int main(int argc, char** argv)
{
    const TempFolder caches;
    setenv("XDG_CACHE_HOME", caches.Path().c_str(), 1);
    benchmark::Initialize(&argc, argv);
    for (const Size& size : kSizes)
        benchmark::RegisterBenchmark((std::string("picture/") + size.name).c_str(),
                                     [size](auto& state) { PictureBench(state, size); })
            ->Iterations(1);
    benchmark::RunSpecifiedBenchmarks();
    RemoveProgramTempFolder();
    return gAllHeld ? 0 : 1;
}

// A stored frame drawn into a port, its file being in the page cache, against one read of the same
// bytes of that file into memory of its own. All memory is touched before. One thread.
#include "PairedRatio.h"
#include "dicom_core/store/TempFolder.h"
#include "dicom_core/store/zel_ImageBuffer.h"
#include "fixtures/TempFolder.h"
#include "pixels/PixelFormat.h"

#include <cstdlib>
#include <fcntl.h>
#include <random>
#include <string>
#include <unistd.h>

namespace {

bool gAllHeld = true;

constexpr double kLimit = 1 / 0.5;  // half of the speed
constexpr int kSide = 1024;
constexpr int kRepeats = 20;  // in one time that is taken

struct Format {
    const char* name;
    std::uint32_t code;
};
constexpr Format kFormats[] = {{"16 bit gray", kPixelFormatGray16}, {"color", kPixelFormatARGB32}};

std::unique_ptr<Port> NewNoise(std::uint32_t format)
{
    std::unique_ptr<Port> port;
    if (NewPort(format, kSide, kSide, nullptr, &port))
        std::abort();
    std::minstd_rand random(1);
    for (std::ptrdiff_t i = 0; i < std::ptrdiff_t{kSide} * port->rowBytes; ++i)
        port->baseAddr[i] = static_cast<std::uint8_t>(random() >> 8);
    return port;
}

void StoreBench(benchmark::State& state, const Format& format)
{
    zel_ImageBuffer buffer;
    buffer.SetIOBufferSize(kBaseBufferIOBytes);
    const std::unique_ptr<Port> frame = NewNoise(format.code), target = NewNoise(format.code);
    if (buffer.UpdateImage(*frame, Rect{}, 1, 1))
        std::abort();
    const DiskPix& disk = *buffer.GetImageInfoByID(1, 1)->fDisk;
    const int file = open(disk.fPath.c_str(), O_RDONLY | O_CLOEXEC);
    std::vector<std::uint8_t> plain(static_cast<std::size_t>(disk.fDataSize), 1);
    for (auto _ : state) {
        const PairedRatio measured = MeasurePairs(
            [&] {
                for (int i = 0; i < kRepeats; ++i) {
                    if (buffer.DrawImageByID(1, 1, target.get(), nullptr))
                        std::abort();
                    benchmark::ClobberMemory();
                }
            },
            [&] {
                for (int i = 0; i < kRepeats; ++i) {
                    if (pread(file, plain.data(), plain.size(), disk.fDataOffset) !=
                        static_cast<ssize_t>(plain.size()))
                        std::abort();
                    benchmark::ClobberMemory();
                }
            });
        gAllHeld &= ReportRatio(state, format.name, measured, kLimit);
    }
    close(file);
}

}  // namespace

int main(int argc, char** argv)
{
    const TempFolder caches;
    setenv("XDG_CACHE_HOME", caches.Path().c_str(), 1);
    benchmark::Initialize(&argc, argv);
    for (const Format& format : kFormats)
        benchmark::RegisterBenchmark((std::string("store/") + format.name).c_str(), [&format](
                                                                                        auto& s) {
            StoreBench(s, format);
        })->Iterations(1);
    benchmark::RunSpecifiedBenchmarks();
    RemoveProgramTempFolder();
    return gAllHeld ? 0 : 1;
}

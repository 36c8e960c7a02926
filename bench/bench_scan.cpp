// Opening and walking headers against a bare open, one 16 KiB read and close of the same files;
// what 2,000 walked and open files cost in memory; reading native frames against plain reads.
//   bench_scan [FOLDER]   FOLDER: real files to scan besides the made ones
#include "PairedRatio.h"
#include "fixtures/DicomBuilder.h"
#include "fixtures/TempFolder.h"

#include "Qvx2Parser/Qvx2Reader.h"
#include "QvxToolkit/DecodedFrame.h"
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <malloc.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr int kFiles = 2000;
bool gAllHeld = true;

// A CT header of about a hundred elements, as scanners write them, and a picture of 512 by 512.
std::string CTFile(int number)
{
    DicomBuilder file;
    file.Meta(kUidExplicitLittle).CommonHeader();
    for (std::uint16_t i = 0; i < 30; ++i)
        file.Element(0x0018, static_cast<std::uint16_t>(0x1100 + i), "DS", "123.456");
    for (std::uint16_t i = 0; i < 25; ++i)
        file.Element(0x0019, static_cast<std::uint16_t>(0x1000 + i), "LO", "PRIVATE VALUE 1");
    for (std::uint16_t i = 0; i < 20; ++i)
        file.Element(0x0020, static_cast<std::uint16_t>(0x1000 + i), "IS", std::to_string(number));
    file.Sequence(0x0020, 0x9116, {Item().Element(0x0020, 0x0032, "DS", "1\\2\\3")});
    file.Image({.rows = 512, .columns = 512});
    for (std::uint16_t i = 0; i < 10; ++i)
        file.Element(0x0043, static_cast<std::uint16_t>(0x1000 + i), "SH", "MORE");
    return file.NativePixels(std::string(512 * 512 * 2, 'p')).Bytes();
}

std::vector<std::string> MakeFolder(const TempFolder& folder)
{
    std::vector<std::string> paths;
    for (int i = 0; i < kFiles; ++i)
        paths.push_back(folder.WriteFile("ct" + std::to_string(i) + ".dcm", CTFile(i)));
    return paths;
}

std::vector<std::string> FilesOf(const char* root)
{
    std::vector<std::string> paths;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(root)) {
        QvxReaderPtr reader;
        if (entry.is_regular_file() &&
            Qvx2Parser_Open(&reader, entry.path().c_str(), kQvxProgramOptions) == kQvxOK)
            paths.push_back(entry.path().string());
    }
    std::sort(paths.begin(), paths.end());
    return paths;
}

QvxReaderPtr OpenAndWalk(const std::string& path)
{
    QvxReaderPtr reader;
    bool valid = false;
    if (Qvx2Parser_Open(&reader, path.c_str(), kQvxProgramOptions) != kQvxOK)
        return reader;
    const QvxReaderUse use(reader.get());
    (void)Qvx2Reader_ValidateDataRef(reader.get(), &valid);
    if (valid)
        (void)CheckAndFillDICOMHeaderPointers(reader.get(), QvxParseMode::Lazy, 0);
    return reader;
}

// Those that are not deflated: a deflated header costs the inflating of the whole data set.
std::vector<std::string> NotDeflated(const std::vector<std::string>& paths)
{
    std::vector<std::string> plain;
    for (const auto& path : paths) {
        const QvxReaderPtr reader = OpenAndWalk(path);
        const ExtraHeaderDataRec* state = Qvx2Reader_State(reader.get());
        if (!state || !state->fWasInflated)
            plain.push_back(path);
    }
    return plain;
}

void BareRead(const std::string& path)
{
    char buffer[16 * 1024];
    const int fd = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
    if (fd < 0)
        return;
    benchmark::DoNotOptimize(::pread(fd, buffer, sizeof buffer, 0));
    ::close(fd);
}

void ScanBench(benchmark::State& state, const char* what, const std::vector<std::string>& paths,
               double limit)
{
    for (auto _ : state) {
        const PairedRatio measured = MeasurePairs(
            [&] {
                for (const auto& path : paths)
                    benchmark::DoNotOptimize(OpenAndWalk(path));
            },
            [&] {
                for (const auto& path : paths)
                    BareRead(path);
            });
        gAllHeld &= ReportRatio(state, what, measured, limit);
    }
}

std::size_t ResidentBytes()
{
    std::ifstream statm("/proc/self/statm");
    std::size_t total = 0, resident = 0;
    statm >> total >> resident;
    return resident * static_cast<std::size_t>(::sysconf(_SC_PAGESIZE));
}

void MemoryBench(benchmark::State& state, const std::vector<std::string>& paths)
{
    for (auto _ : state) {
        constexpr double kLimit = 6 * 1024;
        ::malloc_trim(0);
        const std::size_t before = ResidentBytes();
        std::vector<QvxReaderPtr> open;
        for (const auto& path : paths)
            open.push_back(OpenAndWalk(path));
        const double each = static_cast<double>(ResidentBytes() - before) / double(paths.size());
        state.counters["bytes"] = each;
        const bool held = each <= kLimit;
        gAllHeld &= held;
        std::printf("resident bytes for each of %zu open files: %.0f, limit %.0f: %s\n",
                    paths.size(), each, kLimit, held ? "held" : "NOT HELD");
    }
}

void DecodeAll(const std::vector<QvxReaderPtr>& readers, const QvxFrameRecord& record,
               DecodedFrame* frame)
{
    for (const auto& reader : readers) {
        const QvxReaderUse use(reader.get());
        if (DecodeFrame(reader.get(), record, 1, frame) != kQvxOK)
            std::abort();
        benchmark::DoNotOptimize(frame->fBytes.data());
    }
}

// The floor opens and reads the same bytes with one positioned read into one block.
void FrameBench(benchmark::State& state, const std::vector<std::string>& paths)
{
    for (auto _ : state) {
        std::vector<QvxReaderPtr> readers;
        for (const auto& path : paths)
            readers.push_back(OpenAndWalk(path));
        QvxFrameRecord record;
        QvxFrameMapRecord row;
        if (QvxMakeFrameRecord(readers[0].get(), &record) != kQvxOK ||
            Qvx2Reader_GetFrameMapRecord(readers[0].get(), 1, &row) != kQvxOK)
            std::abort();
        DecodedFrame frame;
        std::vector<char> block(row.fSize);
        const PairedRatio measured = MeasurePairs(
            [&] { DecodeAll(readers, record, &frame); },
            [&] {
                for (const auto& path : paths) {
                    const int fd = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
                    benchmark::DoNotOptimize(::pread(fd, block.data(), row.fSize, row.fOffset));
                    ::close(fd);
                }
            });
        // 0.7 of the speed is 1 / 0.7 of the time.
        gAllHeld &= ReportRatio(state, "reading native frames", measured, 1 / 0.7);
    }
}

}  // namespace

int main(int argc, char** argv)
{
    benchmark::Initialize(&argc, argv);
    const TempFolder folder;
    const std::vector<std::string> made = MakeFolder(folder);
    const std::vector<std::string> real = argc > 1 ? FilesOf(argv[1]) : std::vector<std::string>();
    const auto once = [](benchmark::internal::Benchmark* b) { b->Iterations(1); };
    once(benchmark::RegisterBenchmark("memory", [&](auto& s) { MemoryBench(s, made); }));
    once(benchmark::RegisterBenchmark(
        "scan/made", [&](auto& s) { ScanBench(s, "scanning 2,000 CT headers", made, 1.1); }));
    if (!real.empty())
        once(benchmark::RegisterBenchmark(
            "scan/real", [&](auto& s) { ScanBench(s, "scanning real files", real, 1.8); }));
    const std::vector<std::string> plain = NotDeflated(real);
    if (!plain.empty())
        once(benchmark::RegisterBenchmark("scan/plain", [&](auto& s) {
            ScanBench(s, "scanning those that are not deflated", plain, 1.8);
        }));
    once(benchmark::RegisterBenchmark("frames", [&](auto& s) { FrameBench(s, made); }));
    benchmark::RunSpecifiedBenchmarks();
    return gAllHeld ? 0 : 1;
}

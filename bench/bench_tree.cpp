// The whole of `zelora tree`, process and all, against a bare open, fstat, one 16 KiB read and
// close of the same files; how time and memory grow with their number; a directory of 20,000
// records.
//   bench_tree [huge]   huge: 100,000 files too
#include "CTFiles.h"
#include "PairedRatio.h"
#include "fixtures/DicomDirectory.h"

#include <cstring>
#include <fcntl.h>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

bool gAllHeld = true;

void BareReads(const Paths& paths)
{
    static char bytes[16384];
    for (const std::string& path : paths) {
        const int file = open(path.c_str(), O_RDONLY | O_CLOEXEC);
        struct stat info{};
        if (file < 0 || fstat(file, &info) != 0 || pread(file, bytes, sizeof bytes, 0) < 0)
            std::abort();
        close(file);
    }
}

void DropPages(const Paths& paths)
{
    for (const std::string& path : paths) {
        const int file = open(path.c_str(), O_RDONLY | O_CLOEXEC);
        fdatasync(file);
        posix_fadvise(file, 0, 0, POSIX_FADV_DONTNEED);
        close(file);
    }
}

struct Finished {
    double fMicroseconds = 0;
    long fResident_KiB = 0;
};

// Runs `zelora tree target` with its output thrown away.
Finished RunTree(const std::string& target)
{
    const char* program = ZELORA_TOOL;
    std::string words[] = {program, "tree", target};
    char* argv[] = {words[0].data(), words[1].data(), words[2].data(), nullptr};
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, 1, "/dev/null", O_WRONLY, 0);
    pid_t process = 0;
    Finished done;
    rusage usage{};
    done.fMicroseconds = MicrosecondsOf([&] {
        int status = 0;
        if (posix_spawn(&process, program, &actions, nullptr, argv, environ) != 0 ||
            wait4(process, &status, 0, &usage) < 0 || status != 0) {
            std::printf("%s tree failed\n", program);
            std::exit(1);
        }
    });
    posix_spawn_file_actions_destroy(&actions);
    done.fResident_KiB = usage.ru_maxrss;
    return done;
}

void Tell(const char* what, double value, double limit)
{
    const bool held = value <= limit;
    std::printf("%s: %.3f, limit %.3f: %s\n", what, value, limit, held ? "held" : "NOT HELD");
    gAllHeld &= held;
}

double MedianTree(const std::string& target, int runs)
{
    std::vector<double> times;
    for (int i = 0; i < runs; ++i)
        times.push_back(RunTree(target).fMicroseconds);
    return MedianOf(times);
}

void Warm(benchmark::State& state)
{
    const TempFolder folder, twenty, none;
    const Paths paths = MakeFiles(folder, 2000, 64);
    none.WriteFile("one", CTFile(1, 64));
    for (auto _ : state) {
        const PairedRatio warm =
            MeasurePairs([&] { RunTree(folder.Path()); }, [&] { BareReads(paths); });
        gAllHeld &= ReportRatio(state, "tree of 2,000 CT files, warm", warm, 1.6);
        const double start = MedianTree(none.Path(), 11);
        std::printf("  of it the tree of one file, so the start of the program: %.0f us\n", start);
        MakeFiles(twenty, 20000, 64);
        std::vector<double> small, large;
        for (int i = 0; i < 9; ++i) {
            small.push_back(RunTree(folder.Path()).fMicroseconds);
            large.push_back(RunTree(twenty.Path()).fMicroseconds);
        }
        Tell("20,000 files against 2,000", MedianOf(large) / MedianOf(small), 11);
        const long base = RunTree(none.Path()).fResident_KiB;
        Tell("KiB a file over the start, 20,000 files",
             static_cast<double>(RunTree(twenty.Path()).fResident_KiB - base) / 20000, 4);
    }
}

void Cold(benchmark::State& state)
{
    const TempFolder folder;
    const Paths paths = MakeFiles(folder, 2000, 512);
    for (auto _ : state) {
        std::vector<double> trees, bares;
        for (int pair = 0; pair < 9; ++pair) {
            DropPages(paths);
            trees.push_back(RunTree(folder.Path()).fMicroseconds);
            DropPages(paths);
            bares.push_back(MicrosecondsOf([&] { BareReads(paths); }));
        }
        const double tree = MedianOf(trees), bare = MedianOf(bares);
        gAllHeld &= ReportRatio(state, "tree of 2,000 CT files, pages dropped",
                                {tree, bare, tree / bare}, 0.6);
    }
}

void Directory(benchmark::State& state)
{
    const TempFolder half, whole;
    for (auto _ : state) {
        for (const auto& [folder, count] : {std::pair{&half, 10000}, std::pair{&whole, 20000}}) {
            for (int i = 0; i < count; ++i)
                folder->WriteFile("IM" + std::to_string(i), "x");
            folder->WriteFile("DICOMDIR", DirectoryOfImages(count));
        }
        std::vector<double> small, large;
        for (int i = 0; i < 9; ++i) {
            small.push_back(RunTree(half.Path()).fMicroseconds);
            large.push_back(RunTree(whole.Path()).fMicroseconds);
        }
        Tell("seconds of a directory of 20,000 records", MedianOf(large) / 1e6, 2);
        Tell("its MiB", static_cast<double>(RunTree(whole.Path()).fResident_KiB) / 1024, 96);
        Tell("20,000 records against 10,000", MedianOf(large) / MedianOf(small), 2.5);
    }
}

void Huge(benchmark::State& state)
{
    const TempFolder folder;
    MakeFiles(folder, 100000, 16);
    for (auto _ : state)
        Tell("MiB of 100,000 files",
             static_cast<double>(RunTree(folder.Path()).fResident_KiB) / 1024, 250);
}

}  // namespace

int main(int argc, char** argv)
{
    // The user's own preferences and caches stay out of it.
    const TempFolder home;
    for (const char* name : {"XDG_CONFIG_HOME", "XDG_CACHE_HOME", "XDG_DATA_HOME"})
        setenv(name, home.Path().c_str(), 1);
    benchmark::RegisterBenchmark("Warm", Warm)->Iterations(1);
    benchmark::RegisterBenchmark("Cold", Cold)->Iterations(1);
    benchmark::RegisterBenchmark("Directory", Directory)->Iterations(1);
    if (argc > 1 && std::strcmp(argv[1], "huge") == 0)
        benchmark::RegisterBenchmark("Huge", Huge)->Iterations(1);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return gAllHeld ? 0 : 1;
}

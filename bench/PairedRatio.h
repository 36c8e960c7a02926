// Speed as a ratio: the work and its floor run in turn, so that both see the same machine, and the
// ratio of their medians stands against a limit. The exit code tells whether all limits held.
#pragma once
#include <algorithm>
#include <benchmark/benchmark.h>
#include <chrono>
#include <cstdio>
#include <vector>

struct PairedRatio {
    double fWork = 0, fFloor = 0;  // medians, in microseconds
    double fRatio = 0;
};

inline constexpr int kPairs = 11;

template <typename Function>
double MicrosecondsOf(Function&& function)
{
    const auto start = std::chrono::steady_clock::now();
    function();
    const std::chrono::duration<double, std::micro> time = std::chrono::steady_clock::now() - start;
    return time.count();
}

inline double MedianOf(std::vector<double> values)
{
    std::nth_element(values.begin(), values.begin() + values.size() / 2, values.end());
    return values[values.size() / 2];
}

// One pair is run first and not counted: it warms caches and code.
template <typename Work, typename Floor>
PairedRatio MeasurePairs(Work&& work, Floor&& floor)
{
    std::vector<double> works, floors;
    for (int pair = 0; pair <= kPairs; ++pair) {
        const double w = MicrosecondsOf(work), f = MicrosecondsOf(floor);
        if (pair > 0) {
            works.push_back(w);
            floors.push_back(f);
        }
    }
    const double work1 = MedianOf(works), floor1 = MedianOf(floors);
    return {work1, floor1, work1 / floor1};
}

// Reports through Google Benchmark as counters, prints one line, answers whether the limit held.
inline bool ReportRatio(benchmark::State& state, const char* what, const PairedRatio& measured,
                        double limit)
{
    state.counters["ratio"] = measured.fRatio;
    state.counters["limit"] = limit;
    const bool held = measured.fRatio <= limit;
    std::printf("%s: %.1f us against %.1f us, ratio %.3f, limit %.2f: %s\n", what, measured.fWork,
                measured.fFloor, measured.fRatio, limit, held ? "held" : "NOT HELD");
    return held;
}

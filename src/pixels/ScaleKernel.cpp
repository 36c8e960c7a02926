#include "pixels/ScaleKernel.h"

#include <algorithm>
#include <vector>

namespace {

// Whole-number weights of the source pixels that make one result. Their sum is `Axis::sum`, at most
// 65,534, so that a column of 16-bit samples adds up within 32 bits and both axes within 64.
struct Taps {
    int first = 0, count = 0;
    std::size_t weights = 0;  // index of the first one
};
struct Axis {
    std::uint32_t sum = 0;
    std::vector<Taps> taps;
    std::vector<std::uint32_t> weights;
};

// Result i covers i * source to (i + 1) * source in units of 1 / target of a source pixel.
void AddAreaTaps(int source, int target, int i, Axis* axis)
{
    const std::int64_t low = std::int64_t{i} * source, high = low + source;
    Taps taps{static_cast<int>(low / target), 0, axis->weights.size()};
    for (std::int64_t at = low; at < high; ++taps.count) {
        const std::int64_t next = std::min(high, (at / target + 1) * target);
        axis->weights.push_back(static_cast<std::uint32_t>(next - at));
        at = next;
    }
    axis->taps.push_back(taps);
}

// The centre of result i in units of 1 / (2 target) of a source pixel, from the first centre.
void AddLinearTaps(int source, int target, int i, Axis* axis)
{
    const std::int64_t unit = 2 * std::int64_t{target};
    const std::int64_t place = std::clamp<std::int64_t>((2 * std::int64_t{i} + 1) * source - target,
                                                        0, (source - 1) * unit);
    Taps taps{static_cast<int>(place / unit), 1, axis->weights.size()};
    const auto second = static_cast<std::uint32_t>(place % unit);
    axis->weights.push_back(axis->sum - second);
    if (second != 0) {
        axis->weights.push_back(second);
        taps.count = 2;
    }
    axis->taps.push_back(taps);
}

Axis MakeAxis(int source, int target, int begin, int end)
{
    Axis axis;
    const bool shrinks = target < source;
    axis.sum = static_cast<std::uint32_t>(shrinks ? source : 2 * target);
    axis.taps.reserve(static_cast<std::size_t>(end - begin));
    for (int i = begin; i < end; ++i)
        (shrinks ? AddAreaTaps : AddLinearTaps)(source, target, i, &axis);
    return axis;
}

template <typename Sample>
const Sample* RowAt(const ScaleJob& job, int row)
{
    const void* address = job.source + row * job.sourceRowBytes;
    return static_cast<const Sample*>(address);
}

// Sums the rows of one result row, columns `first` to `first + sums.size()`.
template <typename Sample>
void SumRows(const ScaleJob& job, const Axis& rows, const Taps& taps, std::size_t first,
             std::vector<std::uint32_t>* sums)
{
    const std::size_t count = sums->size();
    std::uint32_t* const sum = sums->data();
    for (int k = 0; k < taps.count; ++k) {
        const std::uint32_t weight = rows.weights[taps.weights + static_cast<std::size_t>(k)];
        const Sample* row = RowAt<Sample>(job, taps.first + k) + first;
        if (k == 0) {
            for (std::size_t i = 0; i < count; ++i)
                sum[i] = weight * row[i];
        } else {
            for (std::size_t i = 0; i < count; ++i)
                sum[i] += weight * row[i];
        }
    }
}

// Through signed numbers: these have instructions of their own on every machine.
template <typename Sample>
Sample Rounded(std::uint64_t total, double scale)
{
    const auto value = static_cast<double>(static_cast<std::int64_t>(total)) * scale + 0.5;
    return static_cast<Sample>(static_cast<std::int32_t>(value));
}

template <typename Sample, int kChannels>
void ScaleAs(const ScaleJob& job, std::uint8_t* target, std::ptrdiff_t targetRowBytes)
{
    const Axis columns =
        MakeAxis(job.sourceWidth, job.targetWidth, job.window.left, job.window.right);
    const Axis rows =
        MakeAxis(job.sourceHeight, job.targetHeight, job.window.top, job.window.bottom);
    const int first = columns.taps.front().first;
    const int last = columns.taps.back().first + columns.taps.back().count;
    std::vector<std::uint32_t> sums(static_cast<std::size_t>(last - first) * kChannels);
    const double scale = 1.0 / (static_cast<double>(columns.sum) * rows.sum);
    for (const Taps& rowTaps : rows.taps) {
        SumRows<Sample>(job, rows, rowTaps, static_cast<std::size_t>(first) * kChannels, &sums);
        void* const address = target;
        auto* out = static_cast<Sample*>(address);
        for (const Taps& taps : columns.taps) {
            const std::uint32_t* sum =
                sums.data() + static_cast<std::size_t>(taps.first - first) * kChannels;
            const std::uint32_t* weight = columns.weights.data() + taps.weights;
            std::uint64_t total[kChannels] = {};
            for (int k = 0; k < taps.count; ++k, sum += kChannels) {
                for (int c = 0; c < kChannels; ++c)
                    total[c] += std::uint64_t{weight[k]} * sum[c];
            }
            for (int c = 0; c < kChannels; ++c)
                *out++ = Rounded<Sample>(total[c], scale);
        }
        target += targetRowBytes;
    }
}

}  // namespace

void ScaleSamples(const ScaleJob& job, std::uint8_t* target, std::ptrdiff_t targetRowBytes)
{
    switch (job.sample) {
        case ScaleSample::Gray8:
            ScaleAs<std::uint8_t, 1>(job, target, targetRowBytes);
            break;
        case ScaleSample::Gray16:
            ScaleAs<std::uint16_t, 1>(job, target, targetRowBytes);
            break;
        case ScaleSample::ARGB8:
            ScaleAs<std::uint8_t, 4>(job, target, targetRowBytes);
            break;
    }
}

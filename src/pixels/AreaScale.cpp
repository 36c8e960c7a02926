#include "pixels/AreaScale.h"

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

// Samples of a row behind any address; rows are aligned to their samples.
template <typename Sample>
Sample* SamplesAt(std::uint8_t* bytes)
{
    void* const address = bytes;
    return static_cast<Sample*>(address);
}

// Sums the rows of one result row into `sums`, which begins with column `first`. `row` is room for
// one row of them.
template <typename Sample, int kChannels>
void SumRows(ScaleEnds* ends, const Axis& rows, const Taps& taps, int first, std::uint8_t* row,
             std::vector<std::uint32_t>* sums)
{
    const Sample* samples = SamplesAt<Sample>(row);
    std::fill(sums->begin(), sums->end(), 0);
    for (int k = 0; k < taps.count; ++k) {
        const std::uint32_t weight = rows.weights[taps.weights + static_cast<std::size_t>(k)];
        ends->Load(taps.first + k, first, static_cast<int>(sums->size()) / kChannels, row);
        for (std::size_t i = 0; i < sums->size(); ++i)
            (*sums)[i] += weight * samples[i];
    }
}

// Through signed numbers: these have instructions of their own on every machine.
template <typename Sample>
Sample Rounded(std::uint64_t total, double scale)
{
    const auto value = static_cast<double>(static_cast<std::int64_t>(total)) * scale + 0.5;
    return static_cast<Sample>(static_cast<std::int32_t>(value));
}

// One result row of `columns` from the summed rows, which begin with column `first`.
template <typename Sample, int kChannels>
void SumColumns(const Axis& columns, int first, const std::vector<std::uint32_t>& sums,
                double scale, Sample* out)
{
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
            out[c] = Rounded<Sample>(total[c], scale);
        if constexpr (kChannels == 4)
            out[0] = 255;
        out += kChannels;
    }
}

template <typename Sample, int kChannels>
void ScaleAs(const ScaleJob& job, ScaleEnds* ends)
{
    const LongRect& window = job.window;
    const Axis columns = MakeAxis(job.sourceWidth, job.targetWidth, window.left, window.right);
    const Axis rows = MakeAxis(job.sourceHeight, job.targetHeight, window.top, window.bottom);
    const int first = columns.taps.front().first;
    const int last = columns.taps.back().first + columns.taps.back().count;
    std::vector<std::uint32_t> sums(static_cast<std::size_t>(last - first) * kChannels);
    std::vector<std::uint8_t> in(sums.size() * sizeof(Sample));
    std::vector<std::uint8_t> out(columns.taps.size() * kChannels * sizeof(Sample));
    const double scale = 1.0 / (static_cast<double>(columns.sum) * rows.sum);
    int row = window.top;
    for (const Taps& taps : rows.taps) {
        SumRows<Sample, kChannels>(ends, rows, taps, first, in.data(), &sums);
        SumColumns<Sample, kChannels>(columns, first, sums, scale, SamplesAt<Sample>(out.data()));
        ends->Put(row++, window.left, static_cast<int>(columns.taps.size()), out.data());
    }
}

}  // namespace

void ScaleByArea(const ScaleJob& job, ScaleEnds* ends)
{
    switch (job.sample) {
        case ScaleSample::Gray8:
            ScaleAs<std::uint8_t, 1>(job, ends);
            break;
        case ScaleSample::Gray16:
            ScaleAs<std::uint16_t, 1>(job, ends);
            break;
        case ScaleSample::ARGB8:
            ScaleAs<std::uint8_t, 4>(job, ends);
            break;
    }
}

// What is told of a decoded frame: statistics and canonical bytes.
#include "util/ByteOrder.h"

#include "QvxToolkit/DecodedFrame.h"
#include <algorithm>
#include <cmath>
#include <new>
#include <type_traits>

namespace {

template <typename T>
DecodedStats StatsOfSamples(SampleView<T> samples)
{
    if (samples.fCount == 0)
        return {};
    T least = samples[0], most = samples[0];
    std::int64_t sum = 0;  // 2^34 samples of 32 bits don't reach its end by far
    for (std::size_t i = 0; i < samples.fCount; ++i) {
        const T value = samples[i];
        least = std::min(least, value);
        most = std::max(most, value);
        sum += value;
    }
    return {static_cast<double>(least), static_cast<double>(most),
            static_cast<double>(sum) / static_cast<double>(samples.fCount)};
}

template <>
DecodedStats StatsOfSamples(SampleView<double> samples)
{
    DecodedStats stats;
    std::size_t counted = 0;
    double sum = 0;
    for (std::size_t i = 0; i < samples.fCount; ++i) {
        const double value = samples[i];
        if (!std::isfinite(value))
            continue;
        stats.fMinimum = counted == 0 ? value : std::min(stats.fMinimum, value);
        stats.fMaximum = counted == 0 ? value : std::max(stats.fMaximum, value);
        sum += value;
        ++counted;
    }
    stats.fMean = counted == 0 ? 0 : sum / static_cast<double>(counted);
    return stats;
}

template <typename T>
std::vector<std::uint8_t> CanonicalOf(SampleView<T> samples)
{
    std::vector<std::uint8_t> bytes(samples.fCount * 4);
    for (std::size_t i = 0; i < samples.fCount; ++i)
        StoreLE(bytes.data() + i * 4, static_cast<std::uint32_t>(samples[i]));
    return bytes;
}

template <>
std::vector<std::uint8_t> CanonicalOf(SampleView<double> samples)
{
    std::vector<std::uint8_t> bytes(samples.fCount * 8);
    for (std::size_t i = 0; i < samples.fCount; ++i)
        StoreLE(bytes.data() + i * 8, std::bit_cast<std::uint64_t>(samples[i]));
    return bytes;
}

}  // namespace

DecodedStats StatsOf(const DecodedFrame& frame)
{
    return VisitSamples(frame, [](auto samples) { return StatsOfSamples(samples); });
}

std::vector<std::uint8_t> CanonicalBytes(const DecodedFrame& frame)
{
    try {
        if (frame.fIsRGB && frame.fForm == DecodedForm::UInt8)
            return frame.fBytes;
        return VisitSamples(frame, [](auto samples) { return CanonicalOf(samples); });
    } catch (const std::bad_alloc&) {
        return {};
    }
}

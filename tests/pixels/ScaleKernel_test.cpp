// Both kernels: the exact one against a slow one in doubles, the library's against the exact one on
// smooth pictures; flatness, edges, and parts against the whole.
#include "pixels/ScaleKernel.h"

#include "pixels/AreaScale.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <gtest/gtest.h>
#include <random>
#include <vector>

namespace {

// Weight of source pixel j in result i: the shared area, or the distance of the centres.
double Weight(int source, int target, int i, int j)
{
    const double ratio = static_cast<double>(source) / target;
    if (target < source)
        return std::max(0.0, std::min((i + 1) * ratio, j + 1.0) - std::max(i * ratio, j + 0.0)) /
               ratio;
    const double place = std::clamp((i + 0.5) * ratio - 0.5, 0.0, source - 1.0);
    return std::max(0.0, 1.0 - std::abs(place - j));
}

ScaleJob JobOf(ScaleSample sample, int width, int height, int toWidth, int toHeight)
{
    return {sample, width, height, toWidth, toHeight, {0, 0, toHeight, toWidth}};
}

// A picture in memory and its result; what is beyond a window stays 0.
class Memory : public ScaleEnds {
public:
    explicit Memory(const ScaleJob& job)
        : fJob(job),
          fBytes(static_cast<std::size_t>(ScaleSampleBytes(job.sample))),
          in(fBytes * Count(job.sourceWidth, job.sourceHeight)),
          out(fBytes * Count(job.targetWidth, job.targetHeight))
    {
    }
    void Load(int row, int first, int count, std::uint8_t* samples) override
    {
        const std::size_t at = Count(fJob.sourceWidth, row) + static_cast<std::size_t>(first);
        std::memcpy(samples, in.data() + fBytes * at, fBytes * static_cast<std::size_t>(count));
    }
    void Put(int row, int first, int count, const std::uint8_t* samples) override
    {
        const std::size_t at = Count(fJob.targetWidth, row) + static_cast<std::size_t>(first);
        std::memcpy(out.data() + fBytes * at, samples, fBytes * static_cast<std::size_t>(count));
    }

private:
    static std::size_t Count(int a, int b)
    {
        return static_cast<std::size_t>(a) * static_cast<std::size_t>(b);
    }
    ScaleJob fJob;
    std::size_t fBytes;

public:
    std::vector<std::uint8_t> in, out;
};

void FillWithNoise(std::vector<std::uint8_t>* bytes)
{
    std::minstd_rand random(5);
    std::ranges::generate(*bytes, [&] { return static_cast<std::uint8_t>(random() >> 9); });
}

constexpr ScaleSample kSamples[] = {ScaleSample::Gray8, ScaleSample::Gray16, ScaleSample::ARGB8};

}  // namespace

TEST(ScaleByArea, agrees_with_a_slow_reference)
{
    constexpr int kWidth = 13, kHeight = 7;
    const int sizes[][2] = {{5, 3}, {29, 17}, {5, 17}, {40, 2}, {1, 1}, {13, 20}, {12, 6}};
    for (const auto& [toWidth, toHeight] : sizes) {
        SCOPED_TRACE(toWidth);
        const ScaleJob job = JobOf(ScaleSample::ARGB8, kWidth, kHeight, toWidth, toHeight);
        Memory memory(job);
        FillWithNoise(&memory.in);
        ScaleByArea(job, &memory);
        for (int at = 0; at < 4 * toWidth * toHeight; ++at) {
            const int c = at % 4, x = at / 4 % toWidth, y = at / 4 / toWidth;
            double sum = c == 0 ? 255 : 0;
            for (int j = 0; j < kWidth * kHeight && c != 0; ++j)
                sum += Weight(kWidth, toWidth, x, j % kWidth) *
                       Weight(kHeight, toHeight, y, j / kWidth) *
                       memory.in[static_cast<std::size_t>(4 * j + c)];
            ASSERT_NEAR(memory.out[static_cast<std::size_t>(at)], sum, 0.5 + 1e-6) << x << "," << y;
        }
    }
}

TEST(ScaleSamples, is_within_a_level_of_the_exact_kernel_on_a_smooth_picture)
{
    const int sizes[][2] = {{200, 170}, {121, 93}, {60, 40}, {7, 5}, {611, 499}, {90, 499}};
    for (const ScaleSample sample : {ScaleSample::Gray8, ScaleSample::ARGB8}) {
        for (const auto& [toWidth, toHeight] : sizes) {
            SCOPED_TRACE(toWidth);
            const ScaleJob job = JobOf(sample, 301, 257, toWidth, toHeight);
            Memory exact(job);
            const int channels = ScaleSampleBytes(sample);
            for (int i = 0; i < 301 * 257 * channels; ++i) {
                const int c = i % channels, x = i / channels % 301, y = i / channels / 301;
                const double soft = std::sin(x / 40.0 + c) * std::cos(y / 35.0);
                exact.in[static_cast<std::size_t>(i)] = static_cast<std::uint8_t>(128 + 100 * soft);
            }
            Memory scaled = exact;
            ScaleByArea(job, &exact);
            ScaleSamples(job, &scaled);
            // A result that covers much of a wave takes some of its neighbours' share.
            const int limit = toWidth < 30 ? 12 : 2;
            for (std::size_t i = 0; i < exact.out.size(); ++i)
                ASSERT_NEAR(scaled.out[i], exact.out[i], limit) << i;
        }
    }
}

TEST(ScaleSamples, counts_every_source_pixel_when_it_shrinks)
{
    for (const int to : {100, 37, 10}) {  // one white column may fall between no two results
        for (int column = 0; column < 200; column += 7) {
            const ScaleJob job = JobOf(ScaleSample::Gray16, 200, 3, to, 2);
            Memory memory(job);
            for (int row = 0; row < 3; ++row)
                std::memset(memory.in.data() + 2 * (row * 200 + column), 255, 2);
            ScaleSamples(job, &memory);
            EXPECT_TRUE(std::ranges::any_of(memory.out, [](auto byte) { return byte != 0; }))
                << column << " to " << to;
        }
    }
}

TEST(ScaleSamples, keeps_a_flat_picture_flat_up_to_its_limits)
{
    const int rows[][4] = {{32767, 3, 1, 1},     {3, 32767, 5, 2},       {1, 1, 32767, 2},
                           {2, 1, 3, 32767},     {32767, 2, 32766, 1},   {2, 32766, 2, 32767},
                           {997, 3, 331, 7},     {1, 1, 1, 900},         {1, 500, 1, 3},
                           {500, 1, 499, 1},     {3, 1, 1, 5},           {300, 300, 5, 5},
                           {16384, 2, 256, 300}, {255, 255, 1001, 1001}, {1001, 1001, 255, 1}};
    for (const auto& [width, height, toWidth, toHeight] : rows) {
        for (const ScaleSample sample : kSamples) {
            for (const int value : {0, 1, 127, 254, 255}) {
                const ScaleJob job = JobOf(sample, width, height, toWidth, toHeight);
                Memory memory(job);
                std::ranges::fill(memory.in, static_cast<std::uint8_t>(value));
                ScaleSamples(job, &memory);
                for (std::size_t i = 0; i < memory.out.size(); ++i) {
                    const bool first = sample == ScaleSample::ARGB8 && i % 4 == 0;
                    ASSERT_EQ(memory.out[i], first ? 255 : value) << width << " to " << toWidth;
                }
            }
        }
    }
}

TEST(ScaleSamples, cuts_what_an_edge_throws_beyond_the_range)
{
    for (const ScaleSample sample : kSamples) {
        const ScaleJob job = JobOf(sample, 16, 2, 61, 5);
        Memory memory(job);
        const auto bytes = static_cast<std::size_t>(ScaleSampleBytes(sample));
        for (std::size_t i = 0; i < memory.in.size(); ++i)
            memory.in[i] = i / bytes % 16 < 8 ? 0 : 255;
        ScaleSamples(job, &memory);
        for (std::size_t i = bytes - 1; i < memory.out.size(); i += bytes) {
            const std::size_t x = i / bytes % 61;  // the edge lies at 30.5
            if (x != 30) {
                ASSERT_EQ(memory.out[i] >= 128, x > 30) << x;
            }
        }
    }
}

TEST(ScaleSamples, gives_parts_of_the_whole_bit_for_bit)
{
    const int sizes[][4] = {{200, 180, 91, 77},   {200, 180, 555, 333}, {64, 300, 300, 64},
                            {300, 64, 64, 300},   {512, 512, 400, 300}, {512, 512, 511, 513},
                            {128, 128, 256, 256}, {90, 90, 90, 45},     {90, 90, 45, 90},
                            {90, 90, 90, 200},    {388, 73, 171, 338},  {30, 370, 154, 13},
                            {400, 400, 200, 300}, {16, 900, 40, 2700}};
    for (const auto& [width, height, toWidth, toHeight] : sizes) {
        const LongRect parts[] = {{0, 0, toHeight / 2, toWidth},
                                  {toHeight / 2, 0, toHeight, toWidth},
                                  {toHeight / 3, 0, toHeight / 3 + 1, toWidth},
                                  {4, 2, std::min(27, toHeight), 36},
                                  {0, toWidth - 1, toHeight, toWidth}};
        for (const ScaleSample sample : kSamples) {
            ScaleJob job = JobOf(sample, width, height, toWidth, toHeight);
            Memory whole(job);
            FillWithNoise(&whole.in);
            ScaleSamples(job, &whole);
            for (const LongRect& part : parts) {
                SCOPED_TRACE(testing::Message()
                             << width << " to " << toWidth << "x" << toHeight << " sample "
                             << static_cast<int>(sample) << " at " << part.top << "," << part.left);
                job.window = part;
                Memory piece(job);
                piece.in = whole.in;
                ScaleSamples(job, &piece);
                const auto bytes = static_cast<std::size_t>(ScaleSampleBytes(sample));
                std::size_t wrong = 0;
                for (std::size_t i = 0; i < whole.out.size(); ++i) {
                    const auto x = static_cast<int>(i / bytes) % toWidth;
                    const auto y = static_cast<int>(i / bytes) / toWidth;
                    const bool inside =
                        y >= part.top && y < part.bottom && x >= part.left && x < part.right;
                    wrong += piece.out[i] != (inside ? whole.out[i] : 0);
                }
                EXPECT_EQ(wrong, 0u);
            }
        }
    }
}

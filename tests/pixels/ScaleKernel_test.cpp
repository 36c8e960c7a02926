// The kernel against a slow one in doubles, at its limits, and in parts.
#include "pixels/ScaleKernel.h"

#include <algorithm>
#include <cmath>
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

ScaleJob JobOf(ScaleSample sample, const void* source, int width, int height, int toWidth,
               int toHeight, int bytes)
{
    ScaleJob job;
    job.sample = sample;
    job.source = static_cast<const std::uint8_t*>(source);
    job.sourceRowBytes = std::ptrdiff_t{width} * bytes;
    job.sourceWidth = width;
    job.sourceHeight = height;
    job.targetWidth = toWidth;
    job.targetHeight = toHeight;
    job.window = {0, 0, toHeight, toWidth};
    return job;
}

}  // namespace

TEST(ScaleSamples, agrees_with_a_slow_reference)
{
    constexpr int kWidth = 13, kHeight = 7;
    std::minstd_rand random(5);
    std::vector<std::uint8_t> picture(4 * kWidth * kHeight);
    std::ranges::generate(picture, [&] { return static_cast<std::uint8_t>(random() >> 9); });
    const int sizes[][2] = {{5, 3}, {29, 17}, {5, 17}, {40, 2}, {1, 1}, {13, 20}, {12, 6}};
    for (const auto& [toWidth, toHeight] : sizes) {
        SCOPED_TRACE(toWidth);
        std::vector<std::uint8_t> out(static_cast<std::size_t>(4 * toWidth * toHeight));
        ScaleSamples(
            JobOf(ScaleSample::ARGB8, picture.data(), kWidth, kHeight, toWidth, toHeight, 4),
            out.data(), 4 * toWidth);
        for (int at = 0; at < 4 * toWidth * toHeight; ++at) {
            const int c = at % 4, x = at / 4 % toWidth, y = at / 4 / toWidth;
            double sum = 0;
            for (int j = 0; j < kWidth * kHeight; ++j)
                sum += Weight(kWidth, toWidth, x, j % kWidth) *
                       Weight(kHeight, toHeight, y, j / kWidth) *
                       picture[static_cast<std::size_t>(4 * j + c)];
            ASSERT_NEAR(out[static_cast<std::size_t>(at)], sum, 0.5 + 1e-6) << x << "," << y;
        }
    }
}

TEST(ScaleSamples, keeps_a_flat_picture_flat_up_to_its_limits)
{
    struct Row {
        int width, height, toWidth, toHeight;
    };
    const Row rows[] = {{32767, 3, 1, 1}, {3, 32767, 5, 2},     {1, 1, 32767, 2},
                        {2, 1, 3, 32767}, {32767, 2, 32766, 1}, {2, 32766, 2, 32767},
                        {997, 3, 331, 7}};
    for (const Row& row : rows) {
        SCOPED_TRACE(row.width);
        for (const std::uint16_t value : {1, 257, 65534, 65535}) {
            const std::vector<std::uint16_t> flat(static_cast<std::size_t>(row.width * row.height),
                                                  value);
            std::vector<std::uint16_t> out(static_cast<std::size_t>(row.toWidth * row.toHeight));
            void* const bytes = out.data();
            ScaleSamples(JobOf(ScaleSample::Gray16, flat.data(), row.width, row.height, row.toWidth,
                               row.toHeight, 2),
                         static_cast<std::uint8_t*>(bytes), 2 * row.toWidth);
            ASSERT_TRUE(std::ranges::all_of(out, [&](auto v) { return v == value; })) << value;
        }
    }
}

TEST(ScaleSamples, gives_a_window_of_the_whole)
{
    std::vector<std::uint8_t> picture(20 * 20);
    for (std::size_t i = 0; i < picture.size(); ++i)
        picture[i] = static_cast<std::uint8_t>(i * 7);
    for (const int to : {9, 55}) {
        ScaleJob job = JobOf(ScaleSample::Gray8, picture.data(), 20, 20, to, to, 1);
        std::vector<std::uint8_t> whole(static_cast<std::size_t>(to * to)), part(3 * 4);
        ScaleSamples(job, whole.data(), to);
        job.window = {4, 2, 7, 6};
        ScaleSamples(job, part.data(), 4);
        for (int i = 0; i < 12; ++i)
            EXPECT_EQ(part[static_cast<std::size_t>(i)],
                      whole[static_cast<std::size_t>((4 + i / 4) * to + 2 + i % 4)]);
    }
}

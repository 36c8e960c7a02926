// The vector loops against the plain tables, bit for bit, on every kind of processor that this one
// can stand in for; the last of them has no vectors.
#include "Qvx2VOIBlitter/VOIKernels.h"
#include <algorithm>
#include <cstring>
#include <gtest/gtest.h>
#include <hwy/targets.h>
#include <numeric>
#include <vector>

namespace {

using Bytes = std::vector<std::uint8_t>;

constexpr std::int32_t kValues = 65536;
#ifdef NDEBUG
constexpr std::int64_t kSparse = 1;
#else
constexpr std::int64_t kSparse = 97;  // lengths left out, that a slow build has done in time
#endif

template <typename Check>
void OnEachProcessor(Check check)
{
    for (std::int64_t left = hwy::SupportedTargets(); left != 0; left &= left - 1) {
        const std::int64_t target = left & -left;
        SCOPED_TRACE(hwy::TargetName(target));
        hwy::GetChosenTarget().Update(target);
        check();
    }
    hwy::GetChosenTarget().DeInit();
}

// Big-endian words of all values.
Bytes AllValues()
{
    Bytes words(2 * kValues);
    for (std::size_t v = 0; v < kValues; ++v) {
        words[2 * v] = static_cast<std::uint8_t>(v >> 8);
        words[2 * v + 1] = static_cast<std::uint8_t>(v);
    }
    return words;
}

// The grays of all values by the plain table.
Bytes ByTable(const VOIBounds& bounds)
{
    VOIScale16 scale;
    EXPECT_EQ(VOIBlitterBase_GetVOIScale16to8(bounds, &scale), kQvxOK);
    const std::int64_t last = scale.first + static_cast<std::int64_t>(scale.entries.size()) - 1;
    Bytes grays(kValues);
    for (std::int64_t v = 0; v < kValues; ++v)
        grays[static_cast<std::size_t>(v)] =
            scale.entries[static_cast<std::size_t>(std::clamp(v, scale.first, last) - scale.first)];
    return grays;
}

Bytes ARGBOf(const Bytes& inverted)
{
    Bytes pixels;
    for (const std::uint8_t entry : inverted) {
        const auto g = static_cast<std::uint8_t>(255 - entry);
        pixels.insert(pixels.end(), {255, g, g, g});
    }
    return pixels;
}

Bytes Windowed16to8(const VOIBounds& bounds, const Bytes& words, std::int32_t count)
{
    Bytes to(static_cast<std::size_t>(count), 7);
    EXPECT_EQ(VOIBlitterBase_ApplyVOITransformation16to8(
                  {VOIParamTag::Bounds, bounds, {}},
                  {count, 1, words.data(), to.data(), 2 * count, count}),
              kQvxOK);
    return to;
}

// Whether a ramp of n from `lo` on has the grays of its table.
void CheckLength(const Bytes& words, std::int64_t n)
{
    VOIScale16 scale;
    ASSERT_EQ(VOIBlitterBase_GetVOIScale16to8({0, n}, &scale), kQvxOK);
    ASSERT_TRUE(Windowed16to8({0, n}, words, static_cast<std::int32_t>(n) + 1) == scale.entries)
        << n;
}

}  // namespace

TEST(VOIVectorRows, every_length_gives_the_grays_of_its_table)
{
    const Bytes words = AllValues();
    for (std::int64_t n = 1; n < kValues; n += n < 21846 ? kSparse : 61 * kSparse)
        CheckLength(words, n);
    OnEachProcessor([&] {
        for (std::int64_t n = 1; n < kValues; n += n < 300 ? 1 : 331 * kSparse)
            CheckLength(words, n);
    });
}

TEST(VOIVectorRows, windows_anywhere_beside_the_values_give_the_grays_of_their_table)
{
    const VOIBounds rows[] = {
        {-10, 10},        {65530, 65540},  {70000, 80000},   {-90, -80},  // partly, wholly outside
        {-1, 0},          {65535, 65536},  {-21000, 800},    {64000, 85000},      {0, 65535},
        {1000, 61001},    {-30000, 30001}, {60000, 120000},  {-1, 65536},  // longer than 16 bits
        {-100000, 65535}, {0, 7000000},    {-2147483000, 1}, {-4294967295, 65535}};
    const Bytes words = AllValues();
    for (const VOIBounds& bounds : rows) {
        SCOPED_TRACE(testing::Message() << bounds.lo << " to " << bounds.hi);
        const Bytes wanted = ByTable(bounds);
        const Bytes wantedPixels = ARGBOf(wanted);
        OnEachProcessor([&] {
            EXPECT_TRUE(Windowed16to8(bounds, words, kValues) == wanted);
            Bytes pixels(4 * kValues);
            const VOIPixels to32{kValues, 1, words.data(), pixels.data(), 2 * kValues, 4 * kValues};
            EXPECT_EQ(VOIBlitterBase_ApplyVOITransformation16to32ARGB(
                          {VOIParamTag::Bounds, bounds, {}}, to32),
                      kQvxOK);
            EXPECT_TRUE(pixels == wantedPixels);
        });
    }
}

namespace {

// A kernel with the bytes of a pixel on both sides, and what a pixel becomes.
struct Kernel {
    const char* name;
    std::size_t in, out;
    void (*run)(const VOIPixels& pixels);
    void (*wanted)(const std::uint8_t* in, std::uint8_t* out);
};

constexpr VOIBounds kBounds{1000, 50000};

const Bytes& Grays()
{
    static const Bytes grays = ByTable(kBounds);
    return grays;
}

void Wanted8(const std::uint8_t* in, std::uint8_t* out)
{
    *out = Grays()[static_cast<std::size_t>(in[0] << 8 | in[1])];
}

void WantedARGB(const std::uint8_t* in, std::uint8_t* out)
{
    Wanted8(in, out + 1);
    out[0] = 255;
    out[1] = out[2] = out[3] = static_cast<std::uint8_t>(255 - out[1]);
}

void WantedMixed(const std::uint8_t* in, std::uint8_t* out)
{
    std::uint32_t word;
    std::memcpy(&word, in, sizeof word);
    if (word <= 0xFFFFFF)
        word = 0xFF000000 + 0x010101 * (255U - Grays()[word & 0xFFFF]);
    std::memcpy(out, &word, sizeof word);
}

VOIParams Params(bool ready)
{
    if (!ready)
        return {VOIParamTag::Bounds, kBounds, {}};
    return {VOIParamTag::BoundsAndTable, kBounds, std::span(Grays()).subspan(1000, 49001)};
}

VOIScale256 Backwards()
{
    VOIScale256 table;
    std::iota(table.rbegin(), table.rend(), std::uint8_t{0});
    return table;
}

#define KERNEL(name, ready) [](const VOIPixels& p) { EXPECT_EQ(name(Params(ready), p), kQvxOK); }
// clang-format off
const Kernel kKernels[] = {
    {"16 to 8",           2, 1, KERNEL(VOIBlitterBase_ApplyVOITransformation16to8, false), Wanted8},
    {"16 to 8, table",    2, 1, KERNEL(VOIBlitterBase_ApplyVOITransformation16to8, true), Wanted8},
    {"16 to ARGB",        2, 4, KERNEL(VOIBlitterBase_ApplyVOITransformation16to32ARGB, false), WantedARGB},
    {"16 to ARGB, table", 2, 4, KERNEL(VOIBlitterBase_ApplyVOITransformation16to32ARGB, true), WantedARGB},
    {"mixed",             4, 4, KERNEL(VOIBlitterBase_ApplyVOITransformation32MixedTo32ARGB, false), WantedMixed},
    {"mixed, table",      4, 4, KERNEL(VOIBlitterBase_ApplyVOITransformation32MixedTo32ARGB, true), WantedMixed},
    {"8 to 8",            1, 1, [](const VOIPixels& p) { EXPECT_EQ(LookUp8to8(Backwards(), p), kQvxOK); },
     [](const std::uint8_t* in, std::uint8_t* out) { *out = static_cast<std::uint8_t>(255 - *in); }},
    {"8 to ARGB",         1, 4, [](const VOIPixels& p) { LookUp8to32ARGB(Backwards(), p); },
     [](const std::uint8_t* in, std::uint8_t* out) {
         out[0] = 255;
         out[1] = out[2] = out[3] = static_cast<std::uint8_t>(255 - *in);
     }},
};
// clang-format on
#undef KERNEL

// Bytes without a pattern; every fourth word of 32 bits is small, so that mixed words are gray too.
Bytes SourceBytes(std::size_t count)
{
    Bytes bytes(count);
    std::uint32_t state = 1;
    for (std::size_t i = 0; i < count; ++i) {
        state = state * 1664525 + 1013904223;
        bytes[i] = i % 16 == 3 ? 0 : static_cast<std::uint8_t>(state >> 24);
    }
    return bytes;
}

// `rows` rows of `width` pixels that begin `start` bytes into their buffers, with gaps behind them:
// each pixel as wanted, nothing else touched.
void CheckRows(const Kernel& kernel, std::int32_t width, std::int32_t rows, std::size_t start)
{
    const auto count = static_cast<std::size_t>(width);
    const std::size_t fromRow = count * kernel.in + start, toRow = (count + start % 2) * kernel.out;
    const auto height = static_cast<std::size_t>(rows);
    const Bytes from = SourceBytes(start + fromRow * height);
    Bytes to(start * kernel.out + toRow * height + 8, 7), wanted = to;
    for (std::size_t y = 0; y < height; ++y)
        for (std::size_t x = 0; x < count; ++x)
            kernel.wanted(from.data() + start + y * fromRow + x * kernel.in,
                          wanted.data() + start * kernel.out + y * toRow + x * kernel.out);
    kernel.run({width, rows, from.data() + start, to.data() + start * kernel.out,
                static_cast<std::ptrdiff_t>(fromRow), static_cast<std::ptrdiff_t>(toRow)});
    ASSERT_TRUE(to == wanted) << kernel.name << ", width " << width << ", start " << start;
}

}  // namespace

TEST(VOIVectorRows, rows_of_any_width_and_start_change_only_their_pixels)
{
    OnEachProcessor([] {
        for (const Kernel& kernel : kKernels)
            for (std::int32_t width = 0; width <= 140; width += width < 70 ? 1 : 35)
                for (std::size_t start = 0; start < 4; ++start)
                    CheckRows(kernel, width, 2, start);
        for (const Kernel& kernel : kKernels)
            CheckRows(kernel, 1100, 2, 1);  // more than a block of table reads
    });
}

// A picture too large for the caches is written by another road, in aligned pieces.
TEST(VOIVectorRows, pictures_beyond_the_caches_are_the_same)
{
    CheckRows(kKernels[2], 2901, 2900, 1);
    CheckRows(kKernels[2], 2896, 2900, 0);
    CheckRows(kKernels[0], 5801, 5800, 3);
}

TEST(VOIVectorRows, mixed_and_8_bit_pixels_change_in_place)
{
    OnEachProcessor([] {
        for (const std::size_t which : {4U, 6U}) {
            const Kernel& kernel = kKernels[which];
            Bytes pixels = SourceBytes(kernel.in * 77), wanted = pixels;
            for (std::size_t x = 0; x < 77; ++x)
                kernel.wanted(pixels.data() + x * kernel.in, wanted.data() + x * kernel.in);
            const auto row = static_cast<std::ptrdiff_t>(pixels.size());
            kernel.run({77, 1, pixels.data(), pixels.data(), row, row});
            EXPECT_TRUE(pixels == wanted) << kernel.name;
        }
    });
}

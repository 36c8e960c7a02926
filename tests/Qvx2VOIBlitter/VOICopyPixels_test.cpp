// The copy of gray pixels to display pixels: formats, kernels, refusals, locks.
#include "Qvx2VOIBlitter/VOIBlitter.h"
#include "Qvx2VOIBlitter/VOIKernels.h"
#include <cstring>
#include <gtest/gtest.h>

namespace {

using Bytes = std::vector<std::uint8_t>;

constexpr std::uint32_t k8 = kPixelFormatIndexed8, k40 = kPixelFormatGray8;
constexpr std::uint32_t k16 = kPixelFormatGray16, k32 = kPixelFormatARGB32;
constexpr std::uint32_t kMixed = kPixelFormatMixed32;

PixMap MapOf(std::uint32_t format, Bytes& bytes, const Rect& bounds, std::int32_t rowBytes)
{
    return {bytes.data(), rowBytes, bounds, format, 0, 0, 0, false};
}

// A copy of 2 by 2 pixels that works, for tests to spoil.
struct Copy {
    Bytes sourceBytes = Bytes(8, 0), targetBytes = Bytes(4, 7);
    PixMap source = MapOf(k16, sourceBytes, {0, 0, 2, 2}, 4);
    PixMap target = MapOf(k8, targetBytes, {0, 0, 2, 2}, 2);
    Rect from{0, 0, 2, 2}, to{0, 0, 2, 2};
    VOIBlitter blit;

    Copy() { blit.fClipping = QvxVOIBoundsClippingOption::None; }
    QvxStatus Run(std::int32_t level, std::uint32_t width)
    {
        return Qvx2_VOIBlit_VOICopyPixels(&blit, level, width, &source, &target, &from, &to);
    }
};

Bytes NativeWords(std::initializer_list<std::uint32_t> words)
{
    Bytes bytes(words.size() * 4);
    std::memcpy(bytes.data(), words.begin(), bytes.size());
    return bytes;
}

}  // namespace

TEST(VOICopyPixels, windows_each_pair_of_formats)
{
    struct Row {
        const char* fault;
        std::uint32_t from, to;
        std::int32_t level;
        std::uint32_t width;
        Bytes pixels, wanted;
    };
    // clang-format off
    const Row rows[] = {
        {"the word is big-endian on any host", k16, k40, 258, 1, {1, 2, 2, 1}, {255, 0}},
        {"width 0: the level is black",        k16, k8,  10, 0,  {0, 9, 0, 10, 0, 11}, {255, 255, 0}},
        {"inverted, half rounded up",          k16, k40, 6, 3,   {0, 5, 0, 6, 0, 7}, {255, 127, 0}},
        {"a window above all pixels",          k16, k40, 100000, 100, {0, 0, 255, 255}, {255, 255}},
        {"a window below all pixels",          k16, k40, -1000, 100,  {0, 0, 255, 255}, {0, 0}},
        {"the greatest width",                 k16, k40, 0, 4294967295U, {0, 0, 255, 255}, {127, 127}},
        {"bytes A, R, G, B and not inverted",  k16, k32, 6, 3, {0, 5, 0, 6, 0, 7},
         {255, 0, 0, 0, 255, 128, 128, 128, 255, 255, 255, 255}},
        {"low 16 bits are gray, colour stays", kMixed, k32, 6, 3,
         NativeWords({0x00FFFFFF, 0x00FF0005, 0x01000000, 0xFF123456}),
         NativeWords({0xFFFFFFFF, 0xFF000000, 0x01000000, 0xFF123456})},
        {"8 bits in inverted luminance",       k40, k8, 150, 101, {255, 155, 54, 0}, {255, 255, 0, 0}},
        {"8 bits, the identity",               k8, k40, 128, 256, {0, 1, 200, 255}, {0, 1, 200, 255}},
    };
    // clang-format on
    for (const Row& row : rows) {
        Bytes pixels = row.pixels, result(row.wanted.size());
        const std::size_t bytesPerPixel = row.from == k16 ? 2 : row.from == kMixed ? 4 : 1;
        const auto count = static_cast<std::int16_t>(pixels.size() / bytesPerPixel);
        Copy copy;
        copy.from = copy.to = {0, 0, 1, count};
        copy.source = MapOf(row.from, pixels, copy.from, static_cast<int>(pixels.size()));
        copy.target = MapOf(row.to, result, copy.to, static_cast<int>(result.size()));
        EXPECT_EQ(copy.Run(row.level, row.width), kQvxOK);
        EXPECT_EQ(result, row.wanted) << row.fault;
    }
}

TEST(TableCopyPixels, takes_each_pair_of_formats_through_a_curve)
{
    struct Row {
        const char* fault;
        std::uint32_t from, to;
        VOICurve curve;
        Bytes pixels, wanted;
        QvxStatus status = kQvxOK;
    };
    const Bytes curve = {250, 90, 100, 3};
    // clang-format off
    const Row rows[] = {
        {"clamped at both ends",        k16, k40, {5, curve},   {0, 4, 0, 6, 0, 7, 9, 9}, {250, 90, 100, 3}},
        {"from below 0",                k16, k8,  {-2, curve},  {0, 0, 0, 1, 0, 2}, {100, 3, 3}},
        {"wholly below 0",              k16, k8,  {-20, curve}, {0, 0, 255, 255}, {3, 3}},
        {"wholly above",                k16, k8,  {70000, curve}, {0, 0, 255, 255}, {250, 250}},
        {"one entry",                   k16, k8,  {9, std::span(curve).first(1)}, {0, 0, 0, 99}, {250, 250}},
        {"an inverted curve turns",     k16, k32, {5, curve},   {0, 5, 0, 8}, {255, 5, 5, 5, 255, 252, 252, 252}},
        {"a byte is 255 less its value", k40, k8, {0, curve},   {255, 254, 253, 0}, {250, 90, 100, 3}},
        {"bytes to ARGB",               k8, k32,  {0, curve},   {255, 0}, {255, 5, 5, 5, 255, 252, 252, 252}},
        {"mixed words",                 kMixed, k32, {0, curve}, NativeWords({0x00AA0001, 0x01000001}),
         NativeWords({0xFFA5A5A5, 0x01000001})},
        {"no entry",                    k16, k8,  {0, {}},      {0, 0}, {7}, kQvxBadArgument},
        {"no such pair",                k32, k32, {0, curve},   {0, 0, 0, 0}, {7, 7, 7, 7}, kQvxUnsupported},
    };
    // clang-format on
    for (const Row& row : rows) {
        Bytes pixels = row.pixels, result(row.wanted.size(), 7);
        const std::size_t bytesPerPixel = row.to == k32 ? 4 : 1;
        const auto count = static_cast<std::int16_t>(result.size() / bytesPerPixel);
        Copy copy;
        copy.from = copy.to = {0, 0, 1, count};
        copy.source = MapOf(row.from, pixels, copy.from, static_cast<int>(pixels.size()));
        copy.target = MapOf(row.to, result, copy.to, static_cast<int>(result.size()));
        const VOIBlitter fresh;  // the clipping option plays no part
        EXPECT_EQ(Qvx2_VOIBlit_TableCopyPixels(&fresh, row.curve, &copy.source, &copy.target,
                                               &copy.from, &copy.to),
                  row.status)
            << row.fault;
        EXPECT_EQ(result, row.wanted) << row.fault;
    }
}

TEST(VOICopyPixels, writes_only_its_rectangle_and_clips_to_pixel_bounds)
{
    Bytes pixels = {0, 1, 0, 2, 0, 3, 9, 9, 0, 4, 0, 5, 0, 6, 9, 9, 0, 7, 0, 8, 0, 9, 9, 9};
    Bytes result(15, 7);
    Copy copy;
    copy.source = MapOf(k16, pixels, {10, 20, 13, 23}, 8);
    copy.target = MapOf(0, result, {0, 0, 3, 4}, 5);
    copy.target.pixelSize = 8;  // stands in for the format
    copy.from = {11, 21, 13, 23};
    copy.to = {1, 2, 3, 4};
    ASSERT_EQ(Qvx2_VOIBlit_SetPixelBounds(&copy.blit, 6, 8), kQvxOK);
    copy.blit.fClipping = QvxVOIBoundsClippingOption::PixelBounds;
    EXPECT_EQ(copy.Run(500, 1000), kQvxOK);
    EXPECT_EQ(result, (Bytes{7, 7, 7, 7, 7, 7, 7, 255, 255, 7, 7, 7, 0, 0, 7}));
}

TEST(VOICopyPixels, in_place_needs_rows_as_long_as_the_source)
{
    // Level 128 and width 2 leave black or white: 255 for bytes above 127.
    const auto copied = [](Bytes pixels, std::int32_t sourceRow, std::int32_t targetRow) {
        Copy copy;
        copy.source = MapOf(k40, pixels, copy.from, sourceRow);
        copy.target = MapOf(k40, pixels, copy.to, targetRow);
        EXPECT_EQ(copy.Run(128, 2), targetRow < sourceRow ? kQvxUnsupported : kQvxOK);
        return pixels;
    };
    EXPECT_EQ(copied({1, 200, 9, 9, 3, 250}, 4, 3), (Bytes{1, 200, 9, 9, 3, 250}));
    EXPECT_EQ(copied({1, 200, 9, 9, 3, 250}, 4, 4), (Bytes{0, 255, 9, 9, 0, 255}));
    EXPECT_EQ(copied({1, 200, 9, 240, 9}, 2, 3), (Bytes{0, 255, 9, 0, 255}))
        << "longer rows: read before they are overwritten";
}

TEST(VOICopyPixels, refuses_what_it_cannot_copy_and_restores_the_locks)
{
    struct Row {
        const char* fault;
        void (*spoil)(Copy& copy);
        QvxStatus status;
    };
    // clang-format off
    const Row rows[] = {
        {"unequal heights",   [](Copy& c) { c.from.bottom = 1; },                 kQvxBadArgument},
        {"source outside",    [](Copy& c) { c.from = {1, 0, 3, 2}; },             kQvxBadArgument},
        {"target outside",    [](Copy& c) { c.to = {0, -1, 2, 1}; },              kQvxBadArgument},
        {"negative height",   [](Copy& c) { c.from = c.to = {2, 0, 0, 2}; },      kQvxBadArgument},
        {"rows too short",    [](Copy& c) { c.source.rowBytes = 3; },             kQvxBadArgument},
        {"no such source",    [](Copy& c) { c.source.pixelFormat = k32; },        kQvxUnsupported},
        {"no such target",    [](Copy& c) { c.target.pixelFormat = k16; },        kQvxUnsupported},
        {"no pixels to lock", [](Copy& c) { c.target.baseAddr = nullptr; },       kQvxSeekFailed},
        {"no option chosen",  [](Copy& c) { c.blit = {}; },                       kQvxSeekFailed},
    };
    // clang-format on
    for (const Row& row : rows) {
        SCOPED_TRACE(row.fault);
        Copy copy;
        copy.source.locked = true;
        row.spoil(copy);
        EXPECT_EQ(copy.Run(10, 10), row.status);
        EXPECT_TRUE(copy.source.locked);
        EXPECT_FALSE(copy.target.locked);
        EXPECT_EQ(copy.targetBytes, Bytes(4, 7));
    }
}

TEST(VOIKernels, take_a_ready_table_and_refuse_other_records)
{
    const Bytes table = {40, 30, 20, 10, 5, 2};  // for the values -2 to 3
    const Bytes from = {0, 0, 0, 1, 0, 99};
    Bytes to(3, 7);
    const VOIPixels pixels{3, 1, from.data(), to.data(), 6, 3};
    const auto apply = [&](VOIParamTag tag, std::size_t entries) {
        return VOIBlitterBase_ApplyVOITransformation16to8({tag, {-2, 3}, {table.data(), entries}},
                                                          pixels);
    };
    EXPECT_EQ(apply(VOIParamTag::BoundsAndTable, 5), kQvxBadArgument) << "a table too short";
    EXPECT_EQ(apply(VOIParamTag::Other, 6), kQvxUnsupported);
    EXPECT_EQ(apply(VOIParamTag{0}, 6), kQvxSeekFailed);
    EXPECT_EQ(VOIBlitterBase_ApplyVOITransformation8to8_256(
                  {VOIParamTag::BoundsAndTable, {}, table}, pixels),
              kQvxBadArgument)
        << "its table has 256 entries";
    EXPECT_EQ(to, Bytes(3, 7));
    EXPECT_EQ(apply(VOIParamTag::BoundsAndTable, 6), kQvxOK);
    EXPECT_EQ(to, (Bytes{20, 10, 2})) << "entries below 0 are skipped";
}

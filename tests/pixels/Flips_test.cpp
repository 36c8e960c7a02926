// Flips and turns of every pixel size against pixels moved one by one, on widths that end inside a
// byte; bytes beside the pixels stay.
#include "pixels/Flips.h"

#include "pixels/PartialPort.h"
#include "pixels/Pictures.h"

namespace {

constexpr std::uint32_t kFormats[] = {1, 2, 4, 8, 16, 24, 32};
struct Size {
    int width, height;
};
constexpr Size kSizes[] = {{1, 1}, {7, 4}, {13, 5}, {37, 67}, {64, 33}};

// True when the bits of the rows beyond `width` pixels are the same in both.
bool SameBeside(const PixMap& a, const PixMap& b, int width)
{
    PixMap wideA = a, wideB = b;
    wideA.pixelSize = wideB.pixelSize = 1;  // bit by bit
    for (int v = 0; v < a.bounds.bottom; ++v) {
        for (int bit = width * a.pixelSize; bit < a.rowBytes * 8; ++bit) {
            if (BitsAt(wideA, v, bit) != BitsAt(wideB, v, bit))
                return false;
        }
    }
    return true;
}

}  // namespace

TEST(Flips, move_each_pixel_to_its_place)
{
    struct Row {
        const char* name;
        QvxStatus (*flip)(Port*);
        bool vertical, horizontal;
    };
    const Row rows[] = {{"vertical", FlipOffscreenVert, true, false},
                        {"horizontal", FlipOffscreenHorz, false, true},
                        {"both", FlipOffscreenBoth, true, true}};
    for (const Row& row : rows) {
        for (const std::uint32_t format : kFormats) {
            for (const Size& size : kSizes) {
                SCOPED_TRACE(testing::Message() << row.name << " " << format << " " << size.width);
                const auto before = NoisePort(format, size.width, size.height);
                const auto port = NoisePort(format, size.width, size.height);
                ASSERT_EQ(row.flip(port.get()), kQvxOK);
                for (int v = 0; v < size.height; ++v) {
                    for (int h = 0; h < size.width; ++h)
                        ASSERT_EQ(BitsAt(*port, v, h),
                                  BitsAt(*before, row.vertical ? size.height - 1 - v : v,
                                         row.horizontal ? size.width - 1 - h : h));
                }
                EXPECT_TRUE(SameBeside(*port, *before, size.width));
            }
        }
    }
}

TEST(Flips, of_a_part_leave_the_rest)
{
    const auto whole = NoisePort(24, 11, 6), before = NoisePort(24, 11, 6);
    std::unique_ptr<Port> part;
    ASSERT_EQ(MakePartialGWorld(*whole, RectOf(1, 2, 5, 9), &part), kQvxOK);
    ASSERT_EQ(FlipOffscreenBoth(part.get()), kQvxOK);
    EXPECT_EQ(BitsAt(*whole, 1, 2), BitsAt(*before, 4, 8));
    EXPECT_EQ(BitsAt(*whole, 1, 9), BitsAt(*before, 1, 9));
    EXPECT_EQ(BitsAt(*whole, 0, 2), BitsAt(*before, 0, 2));
}

TEST(RotateOffscreen90, turns_clockwise)
{
    for (const std::uint32_t format : kFormats) {
        for (const Size& size : kSizes) {
            SCOPED_TRACE(testing::Message() << format << " " << size.width);
            const auto source = NoisePort(format, size.width, size.height);
            source->horzResolution = 100 << 16;
            const auto target = NoisePort(format, size.height, size.width);
            const auto before = NoisePort(format, size.height, size.width);
            ASSERT_EQ(RotateOffscreen90(*source, target.get()), kQvxOK);
            for (int y = 0; y < size.height; ++y) {
                for (int x = 0; x < size.width; ++x)
                    ASSERT_EQ(BitsAt(*target, x, size.height - 1 - y), BitsAt(*source, y, x));
            }
            EXPECT_TRUE(SameBeside(*target, *before, size.height));
            EXPECT_EQ(target->vertResolution, 100 << 16);
            EXPECT_EQ(target->horzResolution, 72 << 16);
        }
    }
}

TEST(RotateOffscreen90, needs_another_port_of_the_exchanged_size_and_the_same_pixels)
{
    const auto source = WhitePort(8, 50, 100), square = WhitePort(8, 9, 9);
    EXPECT_EQ(RotateOffscreen90(*source, WhitePort(8, 100, 50).get()), kQvxOK);
    EXPECT_EQ(RotateOffscreen90(*source, WhitePort(8, 50, 100).get()), kQvxBadArgument);
    EXPECT_EQ(RotateOffscreen90(*source, WhitePort(16, 100, 50).get()), kQvxBadArgument);
    EXPECT_EQ(RotateOffscreen90(*square, square.get()), kQvxBadArgument);
    square->pixelSize = 12;
    EXPECT_EQ(FlipOffscreenHorz(square.get()), kQvxBadArgument);
}

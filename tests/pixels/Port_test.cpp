// Making and filling ports: shapes, white in every format, and what is refused.
#include "pixels/FreeMemory.h"
#include "pixels/Pictures.h"

namespace {

std::uint64_t TenMegabytes() { return 10 << 20; }

}  // namespace

TEST(Port, has_the_shape_of_its_format_and_is_white)
{
    struct Row {
        std::uint32_t format;
        std::int32_t rowBytes;  // of 33 pixels
        std::int16_t size, count, component;
        std::uint32_t white;
    };
    const Row rows[] = {
        {1, 16, 1, 1, 1, 0},
        {2, 16, 2, 1, 2, 0},
        {4, 32, 4, 1, 4, 0},
        {8, 48, 8, 1, 8, 0},
        {33, 16, 1, 1, 1, 0},
        {34, 16, 2, 1, 2, 0},
        {36, 32, 4, 1, 4, 0},
        {40, 48, 8, 1, 8, 0},
        {16, 80, 16, 3, 5, 0x7FFF},
        {24, 112, 24, 3, 8, 0xFFFFFF},
        {32, 144, 32, 4, 8, 0xFFFFFFFF},
        {kPixelFormatGray16, 80, 16, 1, 16, 0xFFFF},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.format);
        const auto port = WhitePort(row.format, 33, 3);
        EXPECT_EQ(port->rowBytes, row.rowBytes);
        EXPECT_EQ(port->pixelSize, row.size);
        EXPECT_EQ(port->cmpCount, row.count);
        EXPECT_EQ(port->cmpSize, row.component);
        EXPECT_EQ(reinterpret_cast<std::uintptr_t>(port->baseAddr) % 64, 0u);
        EXPECT_EQ(BitsAt(*port, 2, 32), row.white);
        EXPECT_EQ(port->colorTable.fEntries.size(), row.size <= 8 ? 1u << row.size : 0u);
        ASSERT_EQ(FillPort(port.get(), kColorBlack), kQvxOK);
        const std::uint32_t black = row.format == 32 ? 0xFF000000 : 0;
        const std::uint32_t last = (1u << row.size % 32) - 1;  // of a system table
        EXPECT_EQ(BitsAt(*port, 0, 0), row.size <= 8 ? last : black);
    }
}

TEST(Port, takes_white_from_its_own_table_and_completes_a_short_one)
{
    ColorTable rising;
    for (unsigned i = 0; i < 200; ++i) {
        const auto gray = static_cast<std::uint16_t>(i * 0xFFFF / 199);
        rising.fEntries.push_back({static_cast<std::uint16_t>(i), gray, gray, gray});
    }
    const auto port = WhitePort(8, 4, 4, &rising);
    EXPECT_EQ(BitsAt(*port, 3, 3), 199u);
    ASSERT_EQ(port->colorTable.fEntries.size(), 256u);
    EXPECT_EQ(port->colorTable.fEntries[255], (ColorSpec{255, 0, 0, 0}));
}

TEST(Port, is_refused_with_the_output_as_it_was)
{
    SetFreeMemoryReader(TenMegabytes);
    struct Row {
        const char* fault;
        std::uint32_t format;
        int width, height;
        QvxStatus status;
    };
    const Row rows[] = {
        {"no side", 32, 0, 5, kQvxBadArgument},
        {"below zero", 32, 5, -1, kQvxBadArgument},
        {"wraps to a small 16-bit number", 32, 65537, 5, kQvxBadArgument},
        {"gray of 3 bits", 35, 5, 5, kQvxBadArgument},
        {"no such depth", 0, 5, 5, kQvxBadArgument},
        {"unknown code", FourCC("yuvs"), 5, 5, kQvxBadArgument},
        {"more than there is, and than 32 bits count", 32, 32767, 32767, kQvxNoMemory},
    };
    const auto old = WhitePort(8, 2, 2);
    for (const Row& row : rows) {
        SCOPED_TRACE(row.fault);
        std::unique_ptr<Port> port;
        EXPECT_EQ(NewPort(row.format, row.width, row.height, nullptr, &port), row.status);
        EXPECT_EQ(port, nullptr);
    }
    SetFreeMemoryReader(nullptr);
    EXPECT_GT(FreeMemory(), 0u);
}

TEST(CanGWorldFitToHeep, leaves_one_megabyte_and_pads_rows)
{
    SetFreeMemoryReader(TenMegabytes);  // 9 MiB are for ports
    struct Row {
        const char* fault;
        int width, height, depth;
        QvxStatus status;
        bool fits;
    };
    const Row rows[] = {
        {"one row less than all of it", 16, 9 * 65536 - 1, 8, kQvxOK, true},
        {"all of it is too much", 16, 9 * 65536, 8, kQvxOK, false},
        {"padding counts", 1, 9 * 65536, 1, kQvxOK, false},
        {"beyond 32 bits", 0x7FFFFFFF, 2, 32, kQvxOK, false},
        {"beyond 64 bits", 0x7FFFFFFF, 0x7FFFFFFF, 0x7FFFFFFF, kQvxBadArgument, true},
        {"no width", 0, 1, 8, kQvxBadArgument, true},
        {"no depth", 1, 1, 0, kQvxBadArgument, true},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.fault);
        bool fits = true;
        EXPECT_EQ(CanGWorldFitToHeep(row.width, row.height, row.depth, &fits), row.status);
        EXPECT_EQ(fits, row.fits);
    }
    SetFreeMemoryReader(nullptr);
}

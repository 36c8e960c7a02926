// The temporary image file: its bytes, rectangles of it, and what fails without leaving a file.
#include "pixels/DiskPix.h"

#include "fixtures/TempFolder.h"
#include "pixels/Pictures.h"
#include "util/ByteOrder.h"

#include <csignal>
#include <cstring>
#include <sys/resource.h>

namespace {

constexpr std::int32_t k72 = 72 << 16;

std::string BytesOfFile(const std::string& path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

template <typename T>
T NumberAt(const std::string& bytes, std::size_t at)
{
    return LoadBE<T>(bytes.data() + at);
}

// A store made of a whole port, through an I/O block of `blockBytes`.
DiskPixPtr StoreOf(const std::string& path, const Port& port, std::vector<std::uint8_t>* block)
{
    DiskPixPtr store;
    const bool argb = port.pixelFormat == kPixelFormatARGB32;
    EXPECT_EQ(DiskPixQTIFCreate(&store, path, argb ? 24 : port.pixelFormat, port.bounds.right,
                                port.bounds.bottom, &port.colorTable, k72, k72),
              kQvxOK);
    EXPECT_EQ(argb ? DiskPixSetTilePixelsARGBtoRGB(store.get(), port.bounds, port.baseAddr,
                                                   port.rowBytes, *block)
                   : DiskPixSetTilePixelsEx(store.get(), port.bounds, port.baseAddr, port.rowBytes,
                                            *block),
              kQvxOK);
    return store;
}

}  // namespace

TEST(DiskPix, the_file_has_the_stated_form)
{
    const TempFolder folder;
    struct Row {
        std::uint32_t format;
        int rowBytes, depth, tableBytes;
    };
    ColorTable colors = *SystemColorTable(8);
    CTabChanged(&colors);
    for (const Row& row : {Row{24, 304, 24, 0}, Row{kPixelFormatGray8, 112, 40, 0},
                           Row{kPixelFormatIndexed8, 112, 8, 2056}}) {
        SCOPED_TRACE(row.format);
        const std::string path = folder.Path(std::to_string(row.format));
        DiskPixPtr store;
        ASSERT_EQ(DiskPixQTIFCreate(&store, path, row.format, 100, 50,
                                    row.tableBytes ? &colors : nullptr, k72, k72),
                  kQvxOK);
        DiskPixCloseFileRef(store.get());
        const std::string bytes = BytesOfFile(path);
        const auto data = static_cast<std::uint32_t>(row.rowBytes * 50);
        const auto description = static_cast<std::uint32_t>(86 + row.tableBytes);
        ASSERT_EQ(bytes.size(), data + description + 16);
        EXPECT_EQ(NumberAt<std::uint32_t>(bytes, 0), data + 8);
        EXPECT_EQ(bytes.substr(4, 4), "idat");
        EXPECT_EQ(NumberAt<std::uint32_t>(bytes, 8 + data), description + 8);
        EXPECT_EQ(bytes.substr(12 + data, 4), "idsc");
        const std::size_t at = 16 + data;
        EXPECT_EQ(NumberAt<std::uint32_t>(bytes, at), description);
        EXPECT_EQ(bytes.substr(at + 20, 4), "appl");
        EXPECT_EQ(NumberAt<std::uint32_t>(bytes, at + 32), 100u << 16 | 50u);
        EXPECT_EQ(NumberAt<std::uint32_t>(bytes, at + 36), 0x480000u);
        EXPECT_EQ(NumberAt<std::uint32_t>(bytes, at + 44), data);
        EXPECT_EQ(NumberAt<std::uint16_t>(bytes, at + 82), row.depth);
        if (row.tableBytes) {
            EXPECT_EQ(NumberAt<std::uint16_t>(bytes, at + 84), 0);
            EXPECT_EQ(NumberAt<std::uint16_t>(bytes, at + 86 + 6), 255);
        }
        EXPECT_EQ(DiskPixGetImageType(*store), FourCC("PXMP"));
        DiskPixDispose(&store);
        EXPECT_FALSE(std::filesystem::exists(path));
    }
}

TEST(DiskPix, pixels_come_back_whole_and_in_parts)
{
    const TempFolder folder;
    // Rows of the file that are longer, equal and shorter than those of the memory; a block of less
    // than two rows, of a few and of all.
    for (const std::uint32_t format : {std::uint32_t{4}, std::uint32_t{40}, kPixelFormatGray16,
                                       kPixelFormatARGB32, std::uint32_t{1}}) {
        for (const std::size_t blockBytes : {600UL, 2000UL, 100000UL}) {
            SCOPED_TRACE(std::to_string(format) + " " + std::to_string(blockBytes));
            std::vector<std::uint8_t> block(blockBytes);
            const auto source = NoisePort(format, 93, 21);
            DiskPixPtr store = StoreOf(folder.Path("a"), *source, &block);
            auto whole = WhitePort(format, 93, 21);
            auto part = WhitePort(format, 40, 9);
            const bool argb = format == kPixelFormatARGB32;
            const auto read = argb ? DiskPixGetTilePixelsRGBtoARGB : DiskPixGetTilePixelsEx;
            ASSERT_EQ(read(store.get(), whole->bounds, whole->baseAddr, whole->rowBytes, block),
                      kQvxOK);
            const Rect window = RectOf(5, 8, 14, 48);
            ASSERT_EQ(read(store.get(), window, part->baseAddr, part->rowBytes, block), kQvxOK);
            const std::uint32_t mask = argb ? 0x00FFFFFF : 0xFFFFFFFF;  // the first byte is 0
            for (int v = 0; v < 21; ++v)
                for (int h = 0; h < 93; ++h)
                    ASSERT_EQ(BitsAt(*whole, v, h), BitsAt(*source, v, h) & mask) << v << ',' << h;
            for (int v = 0; v < 9; ++v)
                for (int h = 0; h < 40; ++h)
                    ASSERT_EQ(BitsAt(*part, v, h), BitsAt(*source, v + 5, h + 8) & mask);
            DiskPixDispose(&store);
        }
    }
}

TEST(DiskPix, what_lies_beside_a_rectangle_in_memory_stays)
{
    const TempFolder folder;
    std::vector<std::uint8_t> block(4096);
    // The rows of the file and of the larger image in memory have the same step.
    const auto source = NoisePort(kPixelFormatGray8, 93, 21);
    auto larger = WhitePort(kPixelFormatGray8, 96, 21);
    ASSERT_EQ(larger->rowBytes, source->rowBytes);
    DiskPixPtr store = StoreOf(folder.Path("a"), *source, &block);
    ASSERT_EQ(DiskPixGetTilePixelsEx(store.get(), source->bounds, larger->baseAddr,
                                     larger->rowBytes, block),
              kQvxOK);
    for (int v = 0; v < 21; ++v) {
        EXPECT_EQ(BitsAt(*larger, v, 92), BitsAt(*source, v, 92));
        EXPECT_EQ(BitsAt(*larger, v, 93), BitsAt(*WhitePort(kPixelFormatGray8, 1, 1), 0, 0)) << v;
    }
}

TEST(DiskPix, rectangles_and_blocks_that_do_not_fit_are_refused)
{
    const TempFolder folder;
    std::vector<std::uint8_t> block(4096), small(64);
    const auto nibbles = NoisePort(4, 32, 8);
    DiskPixPtr store = StoreOf(folder.Path("a"), *nibbles, &block);
    std::uint8_t memory[4096] = {};
    EXPECT_EQ(DiskPixGetTilePixels(store.get(), RectOf(0, 3, 1, 7), memory, 64), kQvxBadArgument);
    EXPECT_EQ(DiskPixGetTilePixels(store.get(), RectOf(0, 0, 9, 7), memory, 64), kQvxBadArgument);
    EXPECT_EQ(DiskPixGetTilePixels(store.get(), RectOf(0, 4, 8, 4), memory, 64), kQvxOK);
    const auto color = NoisePort(kPixelFormatARGB32, 32, 8);
    DiskPixPtr rgb = StoreOf(folder.Path("b"), *color, &block);
    EXPECT_EQ(DiskPixGetTilePixelsRGBtoARGB(rgb.get(), color->bounds, memory, 128, small),
              kQvxBadArgument);
    EXPECT_EQ(DiskPixGetTilePixelsRGBtoARGB(store.get(), RectOf(0, 0, 8, 32), memory, 128, block),
              kQvxBadArgument);
    DiskPixPtr again;
    EXPECT_NE(DiskPixQTIFCreate(&again, folder.Path("a"), 40, 3, 3, nullptr, k72, k72), kQvxOK)
        << "a file of that name is there";
}

TEST(DiskPix, a_file_beyond_the_limit_leaves_nothing)
{
    const TempFolder folder;
    rlimit before{};
    getrlimit(RLIMIT_FSIZE, &before);
    const auto handler = std::signal(SIGXFSZ, SIG_IGN);
    const rlimit tight{4096, before.rlim_max};
    setrlimit(RLIMIT_FSIZE, &tight);
    DiskPixPtr store;
    const QvxStatus status =
        DiskPixQTIFCreate(&store, folder.Path("a"), 40, 500, 500, nullptr, k72, k72);
    setrlimit(RLIMIT_FSIZE, &before);
    std::signal(SIGXFSZ, handler);
    EXPECT_EQ(status, kQvxDiskFull);
    EXPECT_FALSE(store);
    EXPECT_FALSE(std::filesystem::exists(folder.Path("a")));
}

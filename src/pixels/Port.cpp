#include "pixels/Port.h"

#include "pixels/ColorMatch.h"
#include "pixels/FreeMemory.h"
#include "pixels/Guarded.h"
#include "pixels/PixelCopy.h"
#include "pixels/PixelFormat.h"
#include "pixels/PixelRows.h"
#include "util/CheckedMath.h"

#include <cstring>
#include <limits>

namespace {

// From this size on the free memory is asked before a block is taken; asking costs a file read.
constexpr std::size_t kAskFreeMemoryFrom = std::size_t{64} << 20;

ColorTable TableFor(const PixelLayout& layout, const ColorTable* wanted)
{
    if (!layout.Indexed())
        return {};
    if (!wanted || wanted->fEntries.empty())
        return SystemColorTable(layout.colorTableId).value_or(ColorTable{});
    ColorTable table = *wanted;
    const std::size_t had = table.fEntries.size();
    table.fEntries.resize(std::size_t{1} << layout.pixelSize);
    for (std::size_t i = had; i < table.fEntries.size(); ++i)
        table.fEntries[i].value = static_cast<std::uint16_t>(i);
    return table;
}

PixelBlock AllocatePixels(std::int32_t rowBytes, int height)
{
    constexpr std::size_t kAlignment = 64;
    const auto size =
        CheckedMul(static_cast<std::size_t>(rowBytes), static_cast<std::size_t>(height));
    const auto padded = size ? CheckedAdd(*size, kAlignment - 1) : std::nullopt;
    if (!padded || (*padded >= kAskFreeMemoryFrom && *padded > FreeMemory()))
        return nullptr;
    const std::size_t whole = *padded / kAlignment * kAlignment;
    return PixelBlock(static_cast<std::uint8_t*>(std::aligned_alloc(kAlignment, whole)));
}

}  // namespace

QvxStatus NewPort(std::uint32_t format, int width, int height, const ColorTable* table,
                  std::unique_ptr<Port>* port)
{
    const auto layout = LayoutOfPixelFormat(format);
    constexpr int kLimit = std::numeric_limits<std::int16_t>::max();
    if (!port || !layout || width < 1 || height < 1 || width > kLimit || height > kLimit)
        return kQvxBadArgument;
    return Guarded([&] {
        auto made = std::make_unique<Port>();
        made->rowBytes = PaddedRowBytes(width, layout->pixelSize);
        made->bounds = {0, 0, static_cast<std::int16_t>(height), static_cast<std::int16_t>(width)};
        made->pixelFormat = format;
        made->pixelSize = layout->pixelSize;
        made->cmpCount = layout->cmpCount;
        made->cmpSize = layout->cmpSize;
        made->colorTable = TableFor(*layout, table);
        made->pixels = AllocatePixels(made->rowBytes, height);
        if (!made->pixels)
            return kQvxNoMemory;
        made->baseAddr = made->pixels.get();
        const QvxStatus status = FillPort(made.get(), kColorWhite);
        if (status == kQvxOK)
            *port = std::move(made);
        return status;
    });
}

QvxStatus FillPort(Port* port, RGBColor color)
{
    const auto layout = port ? LayoutOfPixMap(*port) : std::nullopt;
    if (!layout || !port->baseAddr)
        return kQvxBadArgument;
    const NativePixel pixel = NativeColor(PixView(*port), *layout, color);
    const int width = WidthOf(port->bounds);
    std::uint8_t* row = port->baseAddr;
    FillPixels(row, width, *layout, pixel);
    // The padding of an own row is set too, so that a row written to a file shows no old memory.
    const auto used = static_cast<std::size_t>(UsedRowBytes(width, layout->pixelSize));
    if (port->pixels)
        std::memset(row + used, 0, static_cast<std::size_t>(port->rowBytes) - used);
    const auto copied = port->pixels ? static_cast<std::size_t>(port->rowBytes) : used;
    for (int y = 1; y < HeightOf(port->bounds); ++y)
        std::memcpy(row + std::ptrdiff_t{y} * port->rowBytes, row, copied);
    return kQvxOK;
}

QvxStatus SetQTGWorldBits(Port* port, int value)
{
    if (!port || !port->baseAddr)
        return kQvxBadArgument;
    const int bytes =
        port->pixels ? port->rowBytes : UsedRowBytes(WidthOf(port->bounds), port->pixelSize);
    for (int y = 0; y < HeightOf(port->bounds); ++y)
        std::memset(port->baseAddr + std::ptrdiff_t{y} * port->rowBytes, value != 0 ? 255 : 0,
                    static_cast<std::size_t>(bytes));
    return kQvxOK;
}

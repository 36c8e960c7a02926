// Rectangles of a stored image, from and to memory.
#include "pixels/DiskPix.h"
#include "pixels/DiskPixFile.h"
#include "pixels/Guarded.h"
#include "pixels/PixelFormat.h"
#include "pixels/RGBRows.h"

#include <algorithm>
#include <cstring>

namespace {

constexpr std::uint32_t kFormatRGB24 = 24;
// Groups of rows no larger than this stay in the processor's caches while they are moved on.
constexpr std::size_t kGroupBytes = std::size_t{128} << 10;

// The run of bytes that a rectangle has in each row of the file.
struct TileRun {
    std::int64_t fFirst = 0;  // of the first row, in the file
    std::size_t fBytes = 0;   // of a row
    std::int32_t fRows = 0;
    bool fWholeRows = false;
};

QvxStatus FindRun(const DiskPix* store, const Rect& rect, const void* memory,
                  std::int32_t memoryRowBytes, TileRun* run)
{
    if (!store || !memory || memoryRowBytes < 1 || store->fFile < 0 || store->fPixelSize < 1)
        return kQvxBadArgument;
    if (rect.left < 0 || rect.top < 0 || rect.right > store->fWidth ||
        rect.bottom > store->fHeight || rect.right < rect.left)
        return kQvxBadArgument;
    const std::int64_t leftBits = std::int64_t{rect.left} * store->fPixelSize;
    if (leftBits % 8 != 0)
        return kQvxBadArgument;
    run->fBytes = static_cast<std::size_t>(UsedRowBytes(WidthOf(rect), store->fPixelSize));
    run->fRows = std::max(HeightOf(rect), 0);
    run->fFirst = store->fDataOffset + std::int64_t{store->fRowBytes} * rect.top + leftBits / 8;
    run->fWholeRows = rect.left == 0 && rect.right == store->fWidth;
    return kQvxOK;
}

bool IsEmptyRun(const TileRun& run) { return run.fBytes == 0 || run.fRows == 0; }

// Whole rows, which have the same step in memory as in the file.
bool LiesAlike(const DiskPix& store, const TileRun& run, std::int32_t memoryRowBytes)
{
    return run.fWholeRows && memoryRowBytes == store.fRowBytes;
}

// Rows without padding: what would be read there may be other pixels of a larger image in memory.
bool HasNoPadding(const DiskPix& store, const TileRun& run)
{
    return run.fBytes == static_cast<std::size_t>(store.fRowBytes);
}

// What lies behind the last row may not be the memory's own.
std::size_t BytesAlike(const DiskPix& store, const TileRun& run)
{
    return static_cast<std::size_t>(store.fRowBytes) * static_cast<std::size_t>(run.fRows - 1) +
           run.fBytes;
}

std::int32_t RowsOfGroup(const DiskPix& store, std::span<std::uint8_t> buffer, std::int32_t rows)
{
    const auto rowBytes = static_cast<std::size_t>(store.fRowBytes);
    const std::size_t fit =
        std::min(buffer.size() / rowBytes, std::max(kGroupBytes / rowBytes, std::size_t{2}));
    return static_cast<std::int32_t>(std::min<std::size_t>(fit, static_cast<std::size_t>(rows)));
}

// Rows by groups of whole rows of the file, or one by one where the rectangle is a part of them.
struct Groups {
    std::uint8_t* fBuffer = nullptr;
    std::int32_t fRows = 1;     // of a group
    std::size_t fRowStep = 0;   // from one row to the next in the buffer
    std::size_t fRowBytes = 0;  // moved of each row
};

QvxStatus PlanGroups(const DiskPix& store, const TileRun& run, std::span<std::uint8_t> buffer,
                     Groups* groups)
{
    const std::size_t skip = (16 - reinterpret_cast<std::uintptr_t>(buffer.data()) % 16) % 16;
    if (store.fPixelFormat != kFormatRGB24 || buffer.size() <= skip ||
        static_cast<std::size_t>(store.fRowBytes) >= buffer.size() - skip)
        return kQvxBadArgument;
    const std::span<std::uint8_t> usable = buffer.subspan(skip);
    groups->fBuffer = usable.data();
    groups->fRowStep = static_cast<std::size_t>(store.fRowBytes);
    groups->fRowBytes = run.fBytes;
    groups->fRows = run.fWholeRows ? std::max(RowsOfGroup(store, usable, run.fRows), 1) : 1;
    return kQvxOK;
}

}  // namespace

QvxStatus DiskPixGetTilePixels(DiskPix* store, const Rect& rect, std::uint8_t* memory,
                               std::int32_t memoryRowBytes)
{
    TileRun run;
    if (const QvxStatus status = FindRun(store, rect, memory, memoryRowBytes, &run))
        return status;
    for (std::int32_t row = 0; row < run.fRows && run.fBytes > 0; ++row) {
        if (const QvxStatus status =
                ReadAt(store->fFile, run.fFirst + std::int64_t{row} * store->fRowBytes,
                       memory + std::ptrdiff_t{row} * memoryRowBytes, run.fBytes))
            return status;
    }
    return kQvxOK;
}

QvxStatus DiskPixSetTilePixels(DiskPix* store, const Rect& rect, const std::uint8_t* memory,
                               std::int32_t memoryRowBytes)
{
    TileRun run;
    if (const QvxStatus status = FindRun(store, rect, memory, memoryRowBytes, &run))
        return status;
    for (std::int32_t row = 0; row < run.fRows && run.fBytes > 0; ++row) {
        if (const QvxStatus status =
                WriteAt(store->fFile, run.fFirst + std::int64_t{row} * store->fRowBytes,
                        memory + std::ptrdiff_t{row} * memoryRowBytes, run.fBytes))
            return status;
    }
    return kQvxOK;
}

QvxStatus DiskPixGetTilePixelsEx(DiskPix* store, const Rect& rect, std::uint8_t* memory,
                                 std::int32_t memoryRowBytes, std::span<std::uint8_t> buffer)
{
    TileRun run;
    if (const QvxStatus status = FindRun(store, rect, memory, memoryRowBytes, &run))
        return status;
    if (IsEmptyRun(run))
        return kQvxOK;
    if (LiesAlike(*store, run, memoryRowBytes) && HasNoPadding(*store, run))
        return ReadAt(store->fFile, run.fFirst, memory, BytesAlike(*store, run));
    const std::int32_t group = RowsOfGroup(*store, buffer, run.fRows);
    if (run.fRows != store->fHeight || group < 2)
        return DiskPixGetTilePixels(store, rect, memory, memoryRowBytes);
    const std::int64_t left = run.fFirst - store->fDataOffset;  // the rectangle's top is row 0
    for (std::int32_t row = 0; row < run.fRows; row += group) {
        const std::int32_t rows = std::min(group, run.fRows - row);
        const auto rowBytes = static_cast<std::size_t>(store->fRowBytes);
        if (const QvxStatus status =
                ReadAt(store->fFile, store->fDataOffset + std::int64_t{row} * store->fRowBytes,
                       buffer.data(), rowBytes * static_cast<std::size_t>(rows)))
            return status;
        for (std::int32_t i = 0; i < rows; ++i)
            std::memmove(memory + std::ptrdiff_t{row + i} * memoryRowBytes,
                         buffer.data() + static_cast<std::size_t>(i) * rowBytes + left, run.fBytes);
    }
    return kQvxOK;
}

QvxStatus DiskPixSetTilePixelsEx(DiskPix* store, const Rect& rect, const std::uint8_t* memory,
                                 std::int32_t memoryRowBytes, std::span<std::uint8_t> buffer)
{
    TileRun run;
    if (const QvxStatus status = FindRun(store, rect, memory, memoryRowBytes, &run))
        return status;
    if (IsEmptyRun(run))
        return kQvxOK;
    if (LiesAlike(*store, run, memoryRowBytes))
        return WriteAt(store->fFile, run.fFirst, memory, BytesAlike(*store, run));
    const std::int32_t group = RowsOfGroup(*store, buffer, run.fRows);
    // Parts of rows are written one by one: what lies beside them stays.
    if (run.fRows != store->fHeight || group < 2 || !run.fWholeRows)
        return DiskPixSetTilePixels(store, rect, memory, memoryRowBytes);
    const auto rowBytes = static_cast<std::size_t>(store->fRowBytes);
    for (std::int32_t row = 0; row < run.fRows; row += group) {
        const std::int32_t rows = std::min(group, run.fRows - row);
        for (std::int32_t i = 0; i < rows; ++i) {
            std::uint8_t* to = buffer.data() + static_cast<std::size_t>(i) * rowBytes;
            std::memmove(to, memory + std::ptrdiff_t{row + i} * memoryRowBytes, run.fBytes);
            std::memset(to + run.fBytes, 0, rowBytes - run.fBytes);
        }
        if (const QvxStatus status =
                WriteAt(store->fFile, store->fDataOffset + std::int64_t{row} * store->fRowBytes,
                        buffer.data(), rowBytes * static_cast<std::size_t>(rows)))
            return status;
    }
    return kQvxOK;
}

QvxStatus DiskPixGetTilePixelsRGBtoARGB(DiskPix* store, const Rect& rect, std::uint8_t* memory,
                                        std::int32_t memoryRowBytes, std::span<std::uint8_t> buffer)
{
    TileRun run;
    Groups groups;
    if (const QvxStatus status = FindRun(store, rect, memory, memoryRowBytes, &run))
        return status;
    if (const QvxStatus status = PlanGroups(*store, run, buffer, &groups))
        return status;
    for (std::int32_t row = 0; row < run.fRows && run.fBytes > 0; row += groups.fRows) {
        const std::int32_t rows = std::min(groups.fRows, run.fRows - row);
        const std::size_t bytes =
            groups.fRowStep * static_cast<std::size_t>(rows - 1) + groups.fRowBytes;
        if (const QvxStatus status =
                ReadAt(store->fFile, run.fFirst + std::int64_t{row} * store->fRowBytes,
                       groups.fBuffer, bytes))
            return status;
        for (std::int32_t i = 0; i < rows; ++i)
            SpreadRGBRow(groups.fBuffer + static_cast<std::size_t>(i) * groups.fRowStep,
                         memory + std::ptrdiff_t{row + i} * memoryRowBytes, run.fBytes / 3);
    }
    return kQvxOK;
}

QvxStatus DiskPixSetTilePixelsARGBtoRGB(DiskPix* store, const Rect& rect,
                                        const std::uint8_t* memory, std::int32_t memoryRowBytes,
                                        std::span<std::uint8_t> buffer)
{
    TileRun run;
    Groups groups;
    if (const QvxStatus status = FindRun(store, rect, memory, memoryRowBytes, &run))
        return status;
    if (const QvxStatus status = PlanGroups(*store, run, buffer, &groups))
        return status;
    for (std::int32_t row = 0; row < run.fRows && run.fBytes > 0; row += groups.fRows) {
        const std::int32_t rows = std::min(groups.fRows, run.fRows - row);
        for (std::int32_t i = 0; i < rows; ++i) {
            std::uint8_t* to = groups.fBuffer + static_cast<std::size_t>(i) * groups.fRowStep;
            PackARGBRow(memory + std::ptrdiff_t{row + i} * memoryRowBytes, to, run.fBytes / 3);
            std::memset(to + run.fBytes, 0, groups.fRowStep - run.fBytes);
        }
        const std::size_t bytes =
            groups.fRowStep * static_cast<std::size_t>(rows - 1) + groups.fRowBytes;
        if (const QvxStatus status =
                WriteAt(store->fFile, run.fFirst + std::int64_t{row} * store->fRowBytes,
                        groups.fBuffer, bytes))
            return status;
    }
    return kQvxOK;
}

QvxStatus DiskPixLoadImageData(DiskPix* store, std::vector<std::byte>* data)
{
    if (!store || !data || store->fFile < 0)
        return kQvxBadArgument;
    return Guarded([&]() -> QvxStatus {
        std::vector<std::byte> read(static_cast<std::size_t>(store->fDataSize));
        if (const QvxStatus status =
                ReadAt(store->fFile, store->fDataOffset, read.data(), read.size()))
            return status;
        *data = std::move(read);
        return kQvxOK;
    });
}

// Making, opening and removing the file; its description as bytes.
#include "pixels/DiskPix.h"

#include "pixels/DiskPixFile.h"
#include "pixels/Guarded.h"
#include "pixels/PixelFormat.h"
#include "pixels/PortDescription.h"
#include "util/ByteOrder.h"

#include <fcntl.h>
#include <unistd.h>

namespace {

constexpr std::size_t kAtomHeader = 8, kDescriptionBytes = 86, kTableHead = 8, kTableEntry = 8;
constexpr std::uint32_t kFormatRGB24 = 24;

std::uint32_t StoredDepth(const DiskPix& store)
{
    const std::uint32_t format = store.fPixelFormat;
    if (format == 34 || format == 36 || format == kPixelFormatGray8 || format == kFormatRGB24)
        return format;
    return static_cast<std::uint16_t>(store.fDescription.fDepth);
}

// The table that follows the description: only where that says id 0.
const ColorTable* TableInFile(const DiskPix& store)
{
    const ImageDescription& description = store.fDescription;
    return description.fColorTableId == 0 && description.fColorTable &&
                   !description.fColorTable->fEntries.empty()
               ? &*description.fColorTable
               : nullptr;
}

void StoreTable(const ColorTable& table, std::uint8_t* at)
{
    StoreBE(at, table.fSeed);
    StoreBE(at + 4, std::uint16_t{0});
    StoreBE(at + 6, static_cast<std::uint16_t>(table.SizeField()));
    at += kTableHead;
    for (const ColorSpec& entry : table.fEntries) {
        StoreBE(at, entry.value);
        StoreBE(at + 2, entry.red);
        StoreBE(at + 4, entry.green);
        StoreBE(at + 6, entry.blue);
        at += kTableEntry;
    }
}

// The atom 'idsc', table included.
std::vector<std::uint8_t> DescriptionAtom(const DiskPix& store)
{
    const ColorTable* table = TableInFile(store);
    const std::size_t tableBytes = table ? kTableHead + kTableEntry * table->fEntries.size() : 0;
    std::vector<std::uint8_t> atom(kAtomHeader + kDescriptionBytes + tableBytes);
    std::uint8_t* at = atom.data();
    const ImageDescription& description = store.fDescription;
    StoreBE(at, static_cast<std::uint32_t>(atom.size()));
    StoreBE(at + 4, FourCC("idsc"));
    at += kAtomHeader;
    StoreBE(at, static_cast<std::uint32_t>(kDescriptionBytes + tableBytes));
    StoreBE(at + 4, description.fCodecType);
    StoreBE(at + 14, std::uint16_t{1});
    StoreBE(at + 20, FourCC("appl"));
    StoreBE(at + 32, static_cast<std::uint16_t>(store.fWidth));
    StoreBE(at + 34, static_cast<std::uint16_t>(store.fHeight));
    StoreBE(at + 36, static_cast<std::uint32_t>(description.fHorzResolution));
    StoreBE(at + 40, static_cast<std::uint32_t>(description.fVertResolution));
    StoreBE(at + 44, static_cast<std::uint32_t>(store.fDataSize));
    StoreBE(at + 48, std::uint16_t{1});
    StoreBE(at + 82, static_cast<std::uint16_t>(StoredDepth(store)));
    StoreBE(at + 84, static_cast<std::uint16_t>(description.fColorTableId));
    if (table)
        StoreTable(*table, at + kDescriptionBytes);
    return atom;
}

QvxStatus CreateFile(DiskPix* store)
{
    store->fFile = open(store->fPath.c_str(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, 0600);
    return store->fFile < 0 ? DiskStatusOf(errno) : kQvxOK;
}

// Size, header and description; the pixels are written later, in place.
QvxStatus WriteForm(DiskPix* store)
{
    const std::vector<std::uint8_t> atom = DescriptionAtom(*store);
    const std::int64_t behind = store->fDataOffset + store->fDataSize;
    if (const QvxStatus status =
            ReserveFile(store->fFile, behind + static_cast<std::int64_t>(atom.size())))
        return status;
    std::uint8_t header[kAtomHeader];
    StoreBE(header, static_cast<std::uint32_t>(store->fDataSize + store->fDataOffset));
    StoreBE(header + 4, FourCC("idat"));
    if (const QvxStatus status = WriteAt(store->fFile, 0, header, sizeof header))
        return status;
    return WriteAt(store->fFile, behind, atom.data(), atom.size());
}

QvxStatus Finish(DiskPixPtr made, QvxStatus status, DiskPixPtr* store)
{
    if (status) {
        DiskPixDispose(&made);
        return status;
    }
    *store = std::move(made);
    return kQvxOK;
}

// What an image of this format says of itself, with the table that goes with it.
QvxStatus DescribeFormat(DiskPix* store, const ColorTable* table)
{
    std::unique_ptr<Port> trial;
    if (const QvxStatus status = NewPort(store->fPixelFormat, 1, 1, table, &trial))
        return status;
    return MakeImageDescriptionForPixMap(*trial, &store->fDescription);
}

}  // namespace

DiskPix::~DiskPix() { DiskPixCloseFileRef(this); }

QvxStatus GetRealPixelSize(std::uint32_t format, std::int16_t* size)
{
    const auto layout = LayoutOfPixelFormat(format);
    if (!layout || !size)
        return kQvxBadArgument;
    *size = layout->pixelSize;
    return kQvxOK;
}

QvxStatus DiskPixQTIFCreate(DiskPixPtr* store, const std::string& path, std::uint32_t pixelFormat,
                            int width, int height, const ColorTable* table,
                            std::int32_t horzResolution, std::int32_t vertResolution)
{
    if (!store || path.empty() || width < 1 || height < 1 || width > INT16_MAX ||
        height > INT16_MAX)
        return kQvxBadArgument;
    store->reset();
    return Guarded([&]() -> QvxStatus {
        auto made = std::make_unique<DiskPix>();
        made->fPath = path;
        made->fPixelFormat = pixelFormat;
        made->fWidth = width;
        made->fHeight = height;
        if (const QvxStatus status = GetRealPixelSize(pixelFormat, &made->fPixelSize))
            return status;
        made->fRowBytes = PaddedRowBytes(width, made->fPixelSize);
        made->fDataSize = std::int64_t{made->fRowBytes} * height;
        if (made->fDataSize > INT32_MAX - 0x10000)
            return kQvxBadArgument;
        if (const QvxStatus status = DescribeFormat(made.get(), table))
            return status;
        made->fDescription.fWidth = static_cast<std::int16_t>(width);
        made->fDescription.fHeight = static_cast<std::int16_t>(height);
        made->fDescription.fHorzResolution = horzResolution;
        made->fDescription.fVertResolution = vertResolution;
        made->fDescription.fDataSize = static_cast<std::uint32_t>(made->fDataSize);
        if (const QvxStatus status = CreateFile(made.get()))
            return status;
        const QvxStatus status = WriteForm(made.get());
        return Finish(std::move(made), status, store);
    });
}

QvxStatus DiskPixQTIFCreateCompressed(DiskPixPtr* store, const std::string& path,
                                      const ImageDescription& description,
                                      std::span<const std::byte> bytes)
{
    if (!store || path.empty() || bytes.empty() || bytes.size() > INT32_MAX - 0x10000)
        return kQvxBadArgument;
    store->reset();
    return Guarded([&]() -> QvxStatus {
        auto made = std::make_unique<DiskPix>();
        made->fPath = path;
        made->fDescription = description;
        made->fWidth = description.fWidth;
        made->fHeight = description.fHeight;
        made->fDataSize = static_cast<std::int64_t>(bytes.size());
        made->fDescription.fDataSize = static_cast<std::uint32_t>(bytes.size());
        if (const QvxStatus status = CreateFile(made.get()))
            return status;
        QvxStatus status = WriteForm(made.get());
        if (!status)
            status = WriteAt(made->fFile, made->fDataOffset, bytes.data(), bytes.size());
        return Finish(std::move(made), status, store);
    });
}

void DiskPixDispose(DiskPixPtr* store)
{
    if (!store || !*store)
        return;
    DiskPixCloseFileRef(store->get());
    unlink((*store)->fPath.c_str());
    store->reset();
}

void DiskPixCloseFileRef(DiskPix* store)
{
    if (store->fFile >= 0)
        close(store->fFile);
    store->fFile = -1;
}

QvxStatus DiskPixUpdateFileRef(DiskPix* store)
{
    if (!store)
        return kQvxBadArgument;
    if (store->fFile >= 0)
        return kQvxOK;
    store->fFile = open(store->fPath.c_str(), O_RDWR | O_CLOEXEC | O_NOFOLLOW);
    return store->fFile < 0 ? DiskStatusOf(errno) : kQvxOK;
}

QvxStatus DiskPixGetImageDescription(const DiskPix& store, ImageDescription* description)
{
    if (!description)
        return kQvxBadArgument;
    return Guarded([&]() -> QvxStatus {
        *description = store.fDescription;
        return kQvxOK;
    });
}

std::uint32_t DiskPixGetPixelFormat(const DiskPix& store) { return store.fPixelFormat; }

std::uint32_t DiskPixGetImageType(const DiskPix& store)
{
    return store.fPixelSize < 1 ? store.fDescription.fCodecType : FourCC("PXMP");
}

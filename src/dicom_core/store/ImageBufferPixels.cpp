// How pixels get into a buffer and out of it.
#include "dicom_core/store/TempFolder.h"
#include "dicom_core/store/zel_ImageBuffer.h"
#include "pixels/OffscreenFactory.h"
#include "pixels/PixelFormat.h"
#include "pixels/PortDescription.h"

#include <algorithm>
#include <new>
#include <optional>

namespace {

constexpr std::int32_t kResolution = 72 << 16;

// Closes a store's file when its use ends: a stored image holds no open file.
class OpenDisk {
public:
    explicit OpenDisk(DiskPix* disk) : fDisk(disk), fStatus(DiskPixUpdateFileRef(disk)) {}
    ~OpenDisk() { DiskPixCloseFileRef(fDisk); }
    OpenDisk(const OpenDisk&) = delete;
    OpenDisk& operator=(const OpenDisk&) = delete;
    [[nodiscard]] QvxStatus Status() const { return fStatus; }

private:
    DiskPix* fDisk;
    QvxStatus fStatus;
};

// That making room may help against.
bool IsShortage(QvxStatus status, std::uint32_t bufferType)
{
    if (bufferType == kBufferInMemory)
        return status == kQvxNoMemory;
    return status == kQvxDiskFull || status == kQvxDirectoryFull || status == kQvxTooManyFiles;
}

// The rectangle that is stored: empty means the whole port.
QvxStatus StoredRect(const ImageInsertionParams& params, Rect* rect)
{
    if (!params.source || !params.source->baseAddr)
        return kQvxBadArgument;
    const Rect& bounds = params.source->bounds;
    const Rect& wanted = params.rect;
    *rect = bounds;
    if (EmptyRect(wanted))
        return kQvxOK;
    if (wanted.top < bounds.top || wanted.left < bounds.left || wanted.bottom > bounds.bottom ||
        wanted.right > bounds.right)
        return kQvxBadArgument;
    *rect = wanted;
    return kQvxOK;
}

// A table goes with pixels of few bits unless it is the system's of that depth.
const ColorTable* TableForFile(const Port& port, std::uint32_t format)
{
    const bool indexed = format == 2 || format == 4 || format == 8;
    return indexed && port.colorTable.fSeed != static_cast<std::uint32_t>(port.pixelSize)
               ? &port.colorTable
               : nullptr;
}

// The image's own, or the system's that it names.
std::optional<ColorTable> TableOf(const ImageDescription& description)
{
    return description.fColorTable ? description.fColorTable
                                   : SystemColorTable(description.fColorTableId);
}

std::int64_t BytesOfPixels(std::uint32_t format, const Rect& rect)
{
    return CalcQTImageDataSize(GWorldPixelFormatToDiskPixPixelFormat(format), WidthOf(rect),
                               HeightOf(rect));
}

Rect AtOrigin(const Rect& r)
{
    return {0, 0, static_cast<std::int16_t>(HeightOf(r)), static_cast<std::int16_t>(WidthOf(r))};
}

ImageBufferInfo InfoOf(const ImageInsertionParams& params, std::uint32_t type)
{
    ImageBufferInfo info;
    info.fStorageType = type;
    info.fPrimaryID = params.primaryID;
    info.fSecondaryID = params.secondaryID;
    info.fPriority = params.storagePriority;
    return info;
}

QvxStatus StorePortTileToDiskPix(const Port& source, const Rect& rect, DiskPix* disk,
                                 std::span<std::uint8_t> block)
{
    const std::int64_t leftBits = std::int64_t{rect.left - source.bounds.left} * source.pixelSize;
    if (leftBits % 8 != 0)
        return kQvxBadArgument;
    const std::uint8_t* first = source.baseAddr +
                                std::ptrdiff_t{rect.top - source.bounds.top} * source.rowBytes +
                                leftBits / 8;
    const auto set = source.pixelFormat == kPixelFormatARGB32 ? DiskPixSetTilePixelsARGBtoRGB
                                                              : DiskPixSetTilePixelsEx;
    return set(disk, AtOrigin(rect), first, source.rowBytes, block);
}

}  // namespace

QvxStatus WrittenPixels::Write(const Port& port, const Rect& rect, const std::string& path,
                               std::span<std::uint8_t> block)
{
    const std::uint32_t format = GWorldPixelFormatToDiskPixPixelFormat(port.pixelFormat);
    DiskPixDispose(&fDisk);
    fBytes = BytesOfPixels(format, rect);
    if (const QvxStatus status =
            DiskPixQTIFCreate(&fDisk, path, format, WidthOf(rect), HeightOf(rect),
                              TableForFile(port, port.pixelFormat), kResolution, kResolution))
        return status;
    if (const QvxStatus status = StorePortTileToDiskPix(port, rect, fDisk.get(), block)) {
        DiskPixDispose(&fDisk);
        return status;
    }
    DiskPixCloseFileRef(fDisk.get());
    return kQvxOK;
}

// What no image can be made of. `rect` is the part of the port that is stored.
QvxStatus zel_ImageBuffer::CheckInsertion(const ImageInsertionParams& params, Rect* rect) const
{
    if (params.primaryID == 0)
        return kQvxBadArgument;
    if (params.type == kInsertPixels)
        return StoredRect(params, rect);
    const bool compressed = fType == kBufferOnDisk && params.type == kInsertCompressed &&
                            params.description && !params.bytes.empty();
    return compressed ? kQvxOK : kQvxBadArgument;
}

QvxStatus zel_ImageBuffer::AddNewImage(const ImageInsertionParams& params)
{
    Rect rect;
    if (const QvxStatus status = CheckInsertion(params, &rect))
        return status;
    if (Find(params.primaryID, params.secondaryID))
        return kQvxBadArgument;
    try {
        if (params.type == kInsertCompressed)
            return AddNewImage_DiskPix_Compressed(params);
        return fType == kBufferInMemory ? AddNewImage_MemBuf(params, rect)
                                        : AddNewImage_DiskPix_Pixmap(params, rect);
    } catch (const std::bad_alloc&) {
        return kQvxNoMemory;
    }
}

QvxStatus zel_ImageBuffer::CreateWithRoom(std::int64_t bytes, std::uint32_t limit,
                                          const std::function<QvxStatus()>& create)
{
    if (const QvxStatus status = MakeRoom(bytes, limit))
        return status;
    const QvxStatus status = create();
    if (!IsShortage(status, fType))
        return status;
    // The true shortage is not the budget's: all that it leaves free goes, and a margin. Where
    // there is less to go, that may be enough.
    const QvxStatus made = MakeRoom(std::max<std::int64_t>(fLimit - fUsed, 0) + 2 * bytes, limit);
    return made && made != kZelBufferFull ? made : create();
}

QvxStatus zel_ImageBuffer::AddNewImage_DiskPix_Pixmap(const ImageInsertionParams& params,
                                                      const Rect& rect)
{
    const std::int64_t bytes = BytesOfPixels(params.source->pixelFormat, rect);
    WrittenPixels pixels;
    const auto create = [&]() -> QvxStatus {
        std::string path;
        if (const QvxStatus status = NewTempFile(&path))
            return status;
        return pixels.Write(*params.source, rect, path, IOBuffer());
    };
    if (const QvxStatus status = CreateWithRoom(bytes, params.makeRoomLimit, create))
        return status;
    return InsertWritten(std::move(pixels), InfoOf(params, kBufferOnDisk));
}

QvxStatus zel_ImageBuffer::TakeImage(WrittenPixels pixels, const ImageInsertionParams& params)
{
    if (!pixels || params.primaryID == 0 || !IsOnDisk() ||
        Find(params.primaryID, params.secondaryID))
        return kQvxBadArgument;
    if (const QvxStatus status = MakeRoom(pixels.fBytes, params.makeRoomLimit))
        return status;
    return InsertWritten(std::move(pixels), InfoOf(params, kBufferOnDisk));
}

QvxStatus zel_ImageBuffer::InsertWritten(WrittenPixels pixels, ImageBufferInfo info)
{
    info.fDisk = std::move(pixels.fDisk);
    info.fWidth = info.fDisk->fWidth;
    info.fHeight = info.fDisk->fHeight;
    info.fBytes = pixels.fBytes;
    return Insert(std::move(info));
}

QvxStatus zel_ImageBuffer::AddNewImage_DiskPix_Compressed(const ImageInsertionParams& params)
{
    const auto bytes = static_cast<std::int64_t>(params.bytes.size());
    ImageBufferInfo info = InfoOf(params, kBufferOnDisk);
    const auto create = [&]() -> QvxStatus {
        std::string path;
        if (const QvxStatus status = NewTempFile(&path))
            return status;
        return DiskPixQTIFCreateCompressed(&info.fDisk, path, *params.description, params.bytes);
    };
    if (const QvxStatus status = CreateWithRoom(bytes, params.makeRoomLimit, create))
        return status;
    DiskPixCloseFileRef(info.fDisk.get());
    info.fWidth = params.description->fWidth;
    info.fHeight = params.description->fHeight;
    info.fBytes = bytes;
    return Insert(std::move(info));
}

QvxStatus zel_ImageBuffer::AddNewImage_MemBuf(const ImageInsertionParams& params, const Rect& rect)
{
    ImageDescription description;
    if (const QvxStatus status = MakeImageDescriptionForPixMap(*params.source, &description))
        return status;
    const std::int64_t bytes =
        CalcQTImageDataSize(params.source->pixelFormat, WidthOf(rect), HeightOf(rect));
    ImageBufferInfo info = InfoOf(params, kBufferInMemory);
    const auto create = [&] {
        return COffscreenFactory::NewCOffscreen(description, WidthOf(rect), HeightOf(rect), true,
                                                &info.fMemory);
    };
    if (const QvxStatus status = CreateWithRoom(bytes, params.makeRoomLimit, create))
        return status;
    if (const QvxStatus status =
            COffscreenUtils::CopyOffscreen(*params.source, info.fMemory->GetGWorldPtr(), &rect,
                                           nullptr, CopyMode::Replace, nullptr))
        return status;
    info.fWidth = WidthOf(rect);
    info.fHeight = HeightOf(rect);
    info.fBytes = bytes;
    return Insert(std::move(info));
}

QvxStatus zel_ImageBuffer::UpdateImage(const Port& source, const Rect& rect, std::int32_t primary,
                                       std::int32_t secondary)
{
    ImageInsertionParams params;
    params.source = &source;
    params.rect = rect;
    params.primaryID = primary;
    params.secondaryID = secondary;
    return UpdateImage(params);
}

QvxStatus zel_ImageBuffer::UpdateImage(const ImageInsertionParams& params)
{
    Rect rect;
    if (const QvxStatus status = CheckInsertion(params, &rect))
        return status;  // what is there stays
    ImageBufferInfo* info = Find(params.primaryID, params.secondaryID);
    const bool inPlace = info && info->fDisk && info->fDisk->fPixelSize > 0 &&
                         params.type == kInsertPixels &&
                         info->fDisk->fPixelFormat ==
                             GWorldPixelFormatToDiskPixPixelFormat(params.source->pixelFormat) &&
                         info->fWidth == WidthOf(rect) && info->fHeight == HeightOf(rect);
    QvxStatus status = kQvxOK;
    if (inPlace) {
        status = UpdateInPlace(params, rect, info);
    } else {
        DisposeImageByID(params.primaryID, params.secondaryID);
        status = AddNewImage(params);
    }
    return IsShortage(status, fType) ? kZelBufferFull : status;
}

QvxStatus zel_ImageBuffer::UpdateInPlace(const ImageInsertionParams& params, const Rect& rect,
                                         ImageBufferInfo* info)
{
    QvxStatus status = kQvxOK;
    {
        const OpenDisk open(info->fDisk.get());
        status = open.Status();
        Touch(info);
        if (!status)
            status = StorePortTileToDiskPix(*params.source, rect, info->fDisk.get(), IOBuffer());
    }
    // Half a picture is none.
    if (status)
        DisposeImageByID(params.primaryID, params.secondaryID);
    return status;
}

QvxStatus zel_ImageBuffer::DrawImageByID(std::int32_t primary, std::int32_t secondary, Port* target,
                                         const Rect* rect)
{
    ImageBufferInfo* info = Find(primary, secondary);
    if (!info || !target || !target->baseAddr)
        return kQvxBadArgument;
    const Rect to = rect ? *rect : target->bounds;
    if (EmptyRect(to))
        return kQvxBadArgument;
    Touch(info);
    if (info->fMemory)
        return info->fMemory->CopyPixelsTo(target, nullptr, &to);
    const OpenDisk open(info->fDisk.get());
    if (open.Status())
        return open.Status();
    try {
        return info->fDisk->fPixelSize > 0 ? DrawDisk(info->fDisk.get(), target, to)
                                           : DrawCompressed(info->fDisk.get(), target, to);
    } catch (const std::bad_alloc&) {
        return kQvxNoMemory;
    }
}

QvxStatus zel_ImageBuffer::DrawDisk(DiskPix* disk, Port* target, const Rect& rect)
{
    const std::uint32_t format = DiskPixPixelFormatToGWorldPixelFormat(disk->fPixelFormat);
    const bool within = rect.top >= target->bounds.top && rect.left >= target->bounds.left &&
                        rect.bottom <= target->bounds.bottom && rect.right <= target->bounds.right;
    const bool straight = within && WidthOf(rect) == disk->fWidth &&
                          HeightOf(rect) == disk->fHeight && target->pixelFormat == format &&
                          (rect.left - target->bounds.left) * target->pixelSize % 8 == 0;
    if (straight)
        return ReadTile(disk, target, rect);
    const std::optional<ColorTable> table = TableOf(disk->fDescription);
    std::unique_ptr<Port> stored;
    if (const QvxStatus status =
            NewPort(format, disk->fWidth, disk->fHeight, table ? &*table : nullptr, &stored))
        return status;
    if (const QvxStatus status = ReadTile(disk, stored.get(), stored->bounds))
        return status;
    return COffscreenUtils::CopyOffscreen(*stored, target, nullptr, &rect, CopyMode::Replace,
                                          nullptr);
}

QvxStatus zel_ImageBuffer::ReadTile(DiskPix* disk, Port* target, const Rect& rect)
{
    std::uint8_t* first = target->baseAddr +
                          std::ptrdiff_t{rect.top - target->bounds.top} * target->rowBytes +
                          std::ptrdiff_t{rect.left - target->bounds.left} * target->pixelSize / 8;
    const auto get = target->pixelFormat == kPixelFormatARGB32 ? DiskPixGetTilePixelsRGBtoARGB
                                                               : DiskPixGetTilePixelsEx;
    return get(disk, AtOrigin(rect), first, target->rowBytes, IOBuffer());
}

QvxStatus zel_ImageBuffer::DrawCompressed(DiskPix* disk, Port* target, const Rect& rect)
{
    std::vector<std::byte> bytes;
    if (!fDecompress)
        return kQvxUnsupported;
    if (const QvxStatus status = DiskPixLoadImageData(disk, &bytes))
        return status;
    return fDecompress(disk->fDescription, bytes, target, rect);
}

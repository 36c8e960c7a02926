// How pixels get into a buffer and out of it.
#include "dicom_core/store/TempFolder.h"
#include "dicom_core/store/zel_ImageBuffer.h"
#include "pixels/OffscreenFactory.h"
#include "pixels/PixelFormat.h"
#include "pixels/PortDescription.h"

#include <algorithm>
#include <new>

namespace {

constexpr std::uint32_t kFormatRGB24 = 24;
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

bool IsShortage(QvxStatus status)
{
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

}  // namespace

QvxStatus zel_ImageBuffer::AddNewImage(const ImageInsertionParams& params)
{
    if (params.primaryID == 0 || Find(params.primaryID, params.secondaryID))
        return kQvxBadArgument;
    try {
        if (fType == kBufferInMemory)
            return AddNewImage_MemBuf(params);
        QvxStatus status = kQvxBadArgument;
        if (params.type == kInsertPixels)
            status = AddNewImage_DiskPix_Pixmap(params);
        else if (params.type == kInsertCompressed)
            status = AddNewImage_DiskPix_Compressed(params);
        return status;
    } catch (const std::bad_alloc&) {
        return kQvxNoMemory;
    }
}

QvxStatus zel_ImageBuffer::AddNewImage_DiskPix_Pixmap(const ImageInsertionParams& params)
{
    Rect rect;
    if (const QvxStatus status = StoredRect(params, &rect))
        return status;
    const Port& port = *params.source;
    const std::uint32_t format = GWorldPixelFormatToDiskPixPixelFormat(port.pixelFormat);
    const std::int64_t bytes = BytesOfPixels(format, rect);
    if (const QvxStatus status = MakeRoom(bytes, params.makeRoomLimit))
        return status;
    ImageBufferInfo info = InfoOf(params, kBufferOnDisk);
    const auto create = [&]() -> QvxStatus {
        std::string path;
        if (const QvxStatus status = NewTempFile(&path))
            return status;
        return DiskPixQTIFCreate(&info.fDisk, path, format, WidthOf(rect), HeightOf(rect),
                                 TableForFile(port, port.pixelFormat), kResolution, kResolution);
    };
    QvxStatus status = create();
    if (IsShortage(status)) {
        // The true shortage is on the disk: all that the budget allows goes, and a margin.
        if (const QvxStatus made = MakeRoom(std::max<std::int64_t>(fLimit - fUsed, 0) + 2 * bytes,
                                            params.makeRoomLimit))
            return made == kZelBufferFull ? status : made;
        status = create();
    }
    if (status)
        return status;
    status = StoreGWorldTileToDiskPix(port, rect, info.fDisk.get());
    if (status) {
        DiskPixDispose(&info.fDisk);
        return status;
    }
    DiskPixCloseFileRef(info.fDisk.get());
    info.fWidth = WidthOf(rect);
    info.fHeight = HeightOf(rect);
    info.fBytes = bytes;
    return Insert(std::move(info));
}

QvxStatus zel_ImageBuffer::AddNewImage_DiskPix_Compressed(const ImageInsertionParams& params)
{
    if (!params.description || params.bytes.empty())
        return kQvxBadArgument;
    const auto bytes = static_cast<std::int64_t>(params.bytes.size());
    if (const QvxStatus status = MakeRoom(bytes, params.makeRoomLimit))
        return status;
    ImageBufferInfo info = InfoOf(params, kBufferOnDisk);
    const auto create = [&]() -> QvxStatus {
        std::string path;
        if (const QvxStatus status = NewTempFile(&path))
            return status;
        return DiskPixQTIFCreateCompressed(&info.fDisk, path, *params.description, params.bytes);
    };
    QvxStatus status = create();
    if (IsShortage(status)) {
        if (const QvxStatus made = MakeRoom(std::max<std::int64_t>(fLimit - fUsed, 0) + 2 * bytes,
                                            params.makeRoomLimit))
            return made == kZelBufferFull ? status : made;
        status = create();
    }
    if (status)
        return status;
    DiskPixCloseFileRef(info.fDisk.get());
    info.fWidth = params.description->fWidth;
    info.fHeight = params.description->fHeight;
    info.fBytes = bytes;
    return Insert(std::move(info));
}

QvxStatus zel_ImageBuffer::AddNewImage_MemBuf(const ImageInsertionParams& params)
{
    Rect rect;
    if (params.type != kInsertPixels)
        return kQvxBadArgument;
    if (const QvxStatus status = StoredRect(params, &rect))
        return status;
    ImageDescription description;
    if (const QvxStatus status = MakeImageDescriptionForPixMap(*params.source, &description))
        return status;
    const std::int64_t bytes =
        CalcQTImageDataSize(params.source->pixelFormat, WidthOf(rect), HeightOf(rect));
    if (const QvxStatus status = MakeRoom(bytes, params.makeRoomLimit))
        return status;
    ImageBufferInfo info = InfoOf(params, kBufferInMemory);
    const auto create = [&] {
        return COffscreenFactory::NewCOffscreen(description, WidthOf(rect), HeightOf(rect), true,
                                                &info.fMemory);
    };
    QvxStatus status = create();
    if (status == kQvxNoMemory) {
        if (const QvxStatus made = MakeRoom(std::max<std::int64_t>(fLimit - fUsed, 0) + 2 * bytes,
                                            params.makeRoomLimit))
            return made == kZelBufferFull ? status : made;
        status = create();
    }
    if (!status)
        status = COffscreenUtils::CopyOffscreen(*params.source, info.fMemory->GetGWorldPtr(), &rect,
                                                nullptr, CopyMode::Replace, nullptr);
    if (status)
        return status;
    info.fWidth = WidthOf(rect);
    info.fHeight = HeightOf(rect);
    info.fBytes = bytes;
    return Insert(std::move(info));
}

QvxStatus zel_ImageBuffer::StoreGWorldTileToDiskPix(const Port& source, const Rect& rect,
                                                    DiskPix* disk)
{
    const std::int64_t leftBits = std::int64_t{rect.left - source.bounds.left} * source.pixelSize;
    if (leftBits % 8 != 0)
        return kQvxBadArgument;
    const std::uint8_t* first = source.baseAddr +
                                std::ptrdiff_t{rect.top - source.bounds.top} * source.rowBytes +
                                leftBits / 8;
    QvxStatus status = kQvxBadArgument;
    if (source.pixelFormat != kPixelFormatARGB32)
        status = DiskPixSetTilePixelsEx(disk, AtOrigin(rect), first, source.rowBytes, IOBuffer());
    else if (fIOBlock)
        status =
            DiskPixSetTilePixelsARGBtoRGB(disk, AtOrigin(rect), first, source.rowBytes, IOBuffer());
    RestIOBuffer();
    return status;
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
    ImageBufferInfo* info = Find(params.primaryID, params.secondaryID);
    QvxStatus status = kQvxOK;
    Rect rect;
    const bool pixels = params.type == kInsertPixels && StoredRect(params, &rect) == kQvxOK;
    const bool inPlace = pixels && info && info->fDisk && info->fDisk->fPixelSize > 0 &&
                         info->fDisk->fPixelFormat ==
                             GWorldPixelFormatToDiskPixPixelFormat(params.source->pixelFormat) &&
                         info->fWidth == WidthOf(rect) && info->fHeight == HeightOf(rect);
    if (inPlace) {
        status = UpdateInPlace(params, rect, info);
    } else {
        if (info)
            DisposeImageByID(params.primaryID, params.secondaryID);
        status = AddNewImage(params);
    }
    if (IsShortage(status) || (fType == kBufferInMemory && status == kQvxNoMemory))
        return kZelBufferFull;
    return status;
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
            status = StoreGWorldTileToDiskPix(*params.source, rect, info->fDisk.get());
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
    const ColorTable* table =
        disk->fDescription.fColorTable ? &*disk->fDescription.fColorTable : nullptr;
    std::unique_ptr<Port> stored;
    if (const QvxStatus status = NewPort(format, disk->fWidth, disk->fHeight, table, &stored))
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
    QvxStatus status = kQvxBadArgument;
    if (disk->fPixelFormat != kFormatRGB24 || target->pixelFormat != kPixelFormatARGB32)
        status = DiskPixGetTilePixelsEx(disk, AtOrigin(rect), first, target->rowBytes, IOBuffer());
    else if (fIOBlock)
        status = DiskPixGetTilePixelsRGBtoARGB(disk, AtOrigin(rect), first, target->rowBytes,
                                               IOBuffer());
    RestIOBuffer();
    return status;
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

// The images of a buffer: keys, priorities, eviction and what is kept beside them.
#include "dicom_core/store/zel_ImageBuffer.h"

#include "pixels/PixelFormat.h"

#include <algorithm>
#include <cstring>
#include <new>
#include <sys/mman.h>

zel_ImageBuffer* gAppBaseBuffer = nullptr;

namespace {

std::uint32_t NextStamp()
{
    static std::uint32_t sStamp = 0;
    return ++sStamp;
}

}  // namespace

std::uint32_t GWorldPixelFormatToDiskPixPixelFormat(std::uint32_t format)
{
    return format == kPixelFormatARGB32 ? 24 : format;
}

std::uint32_t DiskPixPixelFormatToGWorldPixelFormat(std::uint32_t format)
{
    return format == 24 ? kPixelFormatARGB32 : format;
}

std::int64_t CalcQTImageDataSize(std::uint32_t pixelFormat, std::int32_t width, std::int32_t height)
{
    std::int16_t size = 0;
    if (width < 1 || height < 1 || GetRealPixelSize(pixelFormat, &size))
        return 0;
    return std::int64_t{width} * height * size / 8;
}

zel_ImageBuffer::zel_ImageBuffer(std::uint32_t type) : fType(type) {}

zel_ImageBuffer::~zel_ImageBuffer()
{
    Reset();
    FreeIOBuffer();
    if (gAppBaseBuffer == this)
        gAppBaseBuffer = nullptr;
}

QvxStatus zel_ImageBuffer::SetBufLimit(std::int32_t bytes)
{
    if (bytes < 0)
        return kQvxBadArgument;
    fLimit = bytes;
    return MakeRoom(0, kAllPriorities);
}

void zel_ImageBuffer::FreeIOBuffer()
{
    if (fIOBlock)
        munmap(fIOBlock, static_cast<std::size_t>(fIOSize));
    fIOBlock = nullptr;
    fIOSize = 0;
}

void zel_ImageBuffer::SetIOBufferSize(std::int32_t bytes)
{
    if (bytes < 0)
        return;
    if (bytes == 0)
        return FreeIOBuffer();
    void* block = mmap(nullptr, static_cast<std::size_t>(bytes), PROT_READ | PROT_WRITE,
                       MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
    if (block == MAP_FAILED)
        return;
    FreeIOBuffer();
    fIOBlock = static_cast<std::uint8_t*>(block);
    fIOSize = bytes;
}

std::span<std::uint8_t> zel_ImageBuffer::IOBuffer() const
{
    return {fIOBlock, static_cast<std::size_t>(fIOSize)};
}

std::int64_t zel_ImageBuffer::CalcMaxAvailableSpace() const
{
    std::int64_t space = std::max<std::int64_t>(fLimit - fUsed, 0);
    for (const auto& [key, info] : fImages) {
        if ((info.fLock & ImageBufferInfo::kLocked) == 0)
            space += info.fBytes;
    }
    return space;
}

zel_ImageBuffer::Turn zel_ImageBuffer::TurnOf(const ImageBufferInfo& info)
{
    return {{info.fPriority, info.fAccessStamp}, KeyOf(info.fPrimaryID, info.fSecondaryID)};
}

ImageBufferInfo* zel_ImageBuffer::Find(std::int32_t primary, std::int32_t secondary)
{
    const auto found = primary != 0 ? fImages.find(KeyOf(primary, secondary)) : fImages.end();
    return found != fImages.end() ? &found->second : nullptr;
}

const ImageBufferInfo* zel_ImageBuffer::GetImageInfoByID(std::int32_t primary,
                                                         std::int32_t secondary) const
{
    const auto found = primary != 0 ? fImages.find(KeyOf(primary, secondary)) : fImages.end();
    return found != fImages.end() ? &found->second : nullptr;
}

void zel_ImageBuffer::Renew(ImageBufferInfo* info, std::uint32_t priority, std::uint32_t stamp)
{
    auto turn = fTurns.extract(TurnOf(*info));  // its memory serves again: nothing can fail
    info->fPriority = priority;
    info->fAccessStamp = stamp;
    turn.value() = TurnOf(*info);
    fTurns.insert(std::move(turn));
}

void zel_ImageBuffer::Touch(ImageBufferInfo* info) { Renew(info, info->fPriority, NextStamp()); }

void zel_ImageBuffer::SetPriority(ImageBufferInfo* info, std::uint32_t priority)
{
    Renew(info, priority, info->fAccessStamp);
}

QvxStatus zel_ImageBuffer::Insert(ImageBufferInfo info)
{
    info.fAccessStamp = NextStamp();
    const Turn turn = TurnOf(info);
    try {
        fTurns.insert(turn);
        ImageBufferInfo& kept = fImages[turn.second];
        kept = std::move(info);
        fUsed += kept.fBytes;
        return kQvxOK;
    } catch (const std::bad_alloc&) {
        fTurns.erase(turn);
        DiskPixDispose(&info.fDisk);
        return kQvxNoMemory;
    }
}

zel_ImageBuffer::Images::iterator zel_ImageBuffer::Dispose(Images::iterator image)
{
    ImageBufferInfo& info = image->second;
    fTurns.erase(TurnOf(info));
    DiskPixDispose(&info.fDisk);
    fUsed -= info.fBytes;
    return fImages.erase(image);
}

bool zel_ImageBuffer::DisposeImageByID(std::int32_t primary, std::int32_t secondary)
{
    const auto found = primary != 0 ? fImages.find(KeyOf(primary, secondary)) : fImages.end();
    if (found == fImages.end())
        return false;
    Dispose(found);
    return true;
}

void zel_ImageBuffer::DisposeImagesBySecondaryID(std::int32_t secondary)
{
    auto image = fImages.lower_bound({secondary, INT32_MIN});
    while (image != fImages.end() && image->first.first == secondary)
        image = Dispose(image);
}

void zel_ImageBuffer::DisposeImagesByFlags(std::uint32_t mask)
{
    for (auto image = fImages.begin(); image != fImages.end();)
        image = (image->second.fFlags & mask) == mask ? Dispose(image) : std::next(image);
}

void zel_ImageBuffer::Reset()
{
    for (auto image = fImages.begin(); image != fImages.end();)
        image = Dispose(image);
    fUsed = 0;
}

zel_ImageBuffer::Images::iterator zel_ImageBuffer::ChooseImageToDispose(std::uint32_t limit)
{
    for (const Turn& turn : fTurns) {
        if (limit != kAllPriorities && turn.first.first >= limit)
            break;
        const auto image = fImages.find(turn.second);
        if ((image->second.fLock & ImageBufferInfo::kLocked) == 0)
            return image;
    }
    return fImages.end();
}

QvxStatus zel_ImageBuffer::MakeRoom(std::int64_t bytes, std::uint32_t limit)
{
    if (bytes < 0)
        return kQvxBadArgument;
    while (fUsed + bytes > fLimit) {
        const auto image = ChooseImageToDispose(limit);
        if (image == fImages.end())
            return kZelBufferFull;
        Dispose(image);
    }
    return kQvxOK;
}

bool zel_ImageBuffer::GetImageSizeByID(std::int32_t primary, std::int32_t secondary,
                                       std::int32_t* width, std::int32_t* height) const
{
    const ImageBufferInfo* info = GetImageInfoByID(primary, secondary);
    if (!info || !width || !height)
        return false;
    *width = info->fWidth;
    *height = info->fHeight;
    return true;
}

bool zel_ImageBuffer::GetImageAuxInfoByID(std::int32_t primary, std::int32_t secondary,
                                          std::uint32_t tag, void* data, std::size_t size) const
{
    const ImageBufferInfo* info = GetImageInfoByID(primary, secondary);
    if (!info || tag == 0 || info->fAuxTag != tag || info->fAuxData.size() > size)
        return false;
    if (!info->fAuxData.empty())
        std::memcpy(data, info->fAuxData.data(), info->fAuxData.size());
    return true;
}

QvxStatus zel_ImageBuffer::SetImageAuxInfoByID(std::int32_t primary, std::int32_t secondary,
                                               std::uint32_t tag, const void* data,
                                               std::size_t size)
{
    ImageBufferInfo* info = Find(primary, secondary);
    if (!info || (!data && size > 0))
        return kQvxBadArgument;
    try {
        const auto* bytes = static_cast<const std::byte*>(data);
        info->fAuxData.assign(bytes, bytes + size);
        info->fAuxTag = tag;
        return kQvxOK;
    } catch (const std::bad_alloc&) {
        return kQvxNoMemory;
    }
}

void zel_ImageBuffer::ChangeAllPriorities(std::uint32_t from, std::uint32_t to)
{
    for (auto& [key, info] : fImages) {
        if (info.fPriority == from)
            SetPriority(&info, to);
    }
}

void zel_ImageBuffer::SetImageStoragePriorityByID(std::int32_t primary, std::int32_t secondary,
                                                  std::uint32_t priority, std::int32_t mode)
{
    ImageBufferInfo* info = Find(primary, secondary);
    if (!info)
        return;
    const bool wanted = mode == 0 || (mode == -1 && priority < info->fPriority) ||
                        (mode == 1 && priority > info->fPriority);
    if (wanted)
        SetPriority(info, priority);
}

bool zel_ImageBuffer::GetImageStoragePriorityByID(std::int32_t primary, std::int32_t secondary,
                                                  std::uint32_t* priority) const
{
    const ImageBufferInfo* info = GetImageInfoByID(primary, secondary);
    if (info && priority)
        *priority = info->fPriority;
    return info != nullptr;
}

bool zel_ImageBuffer::GetImageFlagsByID(std::int32_t primary, std::int32_t secondary,
                                        std::uint32_t* flags) const
{
    const ImageBufferInfo* info = GetImageInfoByID(primary, secondary);
    if (info && flags)
        *flags = info->fFlags;
    return info != nullptr;
}

bool zel_ImageBuffer::SetImageFlagsByID(std::int32_t primary, std::int32_t secondary,
                                        std::uint32_t flags)
{
    ImageBufferInfo* info = Find(primary, secondary);
    if (info)
        info->fFlags = flags;
    return info != nullptr;
}

bool zel_ImageBuffer::UpdateImageFlagsByID(std::int32_t primary, std::int32_t secondary,
                                           std::uint32_t flags)
{
    ImageBufferInfo* info = Find(primary, secondary);
    if (info)
        info->fFlags |= flags;
    return info != nullptr;
}

void zel_ImageBuffer::UpdateImageFlagsBySecondaryID(std::int32_t secondary, std::uint32_t flags)
{
    for (auto image = fImages.lower_bound({secondary, INT32_MIN});
         image != fImages.end() && image->first.first == secondary; ++image)
        image->second.fFlags |= flags;
}

bool zel_ImageBuffer::SetImageLockByID(std::int32_t primary, std::int32_t secondary,
                                       std::uint32_t lock)
{
    ImageBufferInfo* info = Find(primary, secondary);
    if (info)
        info->fLock = lock;
    return info != nullptr;
}

bool zel_ImageBuffer::GetImageLockByID(std::int32_t primary, std::int32_t secondary,
                                       std::uint32_t* lock) const
{
    const ImageBufferInfo* info = GetImageInfoByID(primary, secondary);
    if (info && lock)
        *lock = info->fLock;
    return info != nullptr;
}

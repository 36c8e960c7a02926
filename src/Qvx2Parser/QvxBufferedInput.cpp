#include "Qvx2Parser/QvxBufferedInput.h"

#include "util/CheckedMath.h"

#include <algorithm>
#include <cstring>
#include <new>

std::unique_ptr<InputBufferInfo> CreateInputBufferInfoPtr(std::uintptr_t memoryEnv,
                                                          ByteSource* stream,
                                                          std::uint32_t endOffset)
{
    std::unique_ptr<InputBufferInfo> info(new (std::nothrow) InputBufferInfo);
    if (!info)
        return nullptr;
    info->fMemoryEnv = memoryEnv;
    info->fStream = stream;
    info->fEndOffset = endOffset;
    info->fWindow.reset(static_cast<std::byte*>(NoxMemAlloc(memoryEnv, info->fWindowSize)));
    return info->fWindow ? std::move(info) : nullptr;
}

QvxStatus NoQT_FillBuffer(InputBufferInfo* info, std::uint32_t offset)
{
    info->fWindowStart = info->fWindowEnd = offset;
    if (offset > info->fEndOffset)
        return kQvxEndOfFile;
    const std::uint32_t count = std::min(info->fWindowSize, info->fEndOffset - offset);
    std::uint32_t position = offset;
    if (const QvxStatus status =
            FILE_ReadData(info->fStream, info->fWindow.get(), &position, count))
        return status;
    info->fWindowEnd = position;
    return kQvxOK;
}

QvxStatus NoQT_Read_Buffered_Data(InputBufferInfo* info, void* dest, std::uint32_t* offset,
                                  std::uint32_t count)
{
    if (!RunFits<std::uint32_t>(*offset, count, info->fEndOffset)) {
        *offset = info->fEndOffset + 1;
        return kQvxEndOfFile;
    }
    if (count > info->fWindowSize)
        return FILE_ReadData(info->fStream, dest, offset, count);
    auto* out = static_cast<std::byte*>(dest);
    while (count > 0) {
        if (*offset < info->fWindowStart || *offset >= info->fWindowEnd) {
            if (const QvxStatus status = NoQT_FillBuffer(info, *offset))
                return status;
        }
        const std::uint32_t part = std::min(count, info->fWindowEnd - *offset);
        std::memcpy(out, info->fWindow.get() + (*offset - info->fWindowStart), part);
        out += part;
        *offset += part;
        count -= part;
    }
    return kQvxOK;
}

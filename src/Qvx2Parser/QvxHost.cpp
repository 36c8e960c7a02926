#include "Qvx2Parser/QvxHost.h"

#include "util/ByteOrder.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <new>
#include <stdexcept>

namespace {

thread_local QvxStatus tMemError = kQvxOK;
thread_local QvxStatus tNoxError = kQvxOK;

void* Allocate(std::int64_t size, bool clear)
{
    if (size < 0) {
        tNoxError = kQvxNegativeSize;
        return nullptr;
    }
    const auto bytes = static_cast<std::size_t>(std::max<std::int64_t>(size, 1));
    void* block = clear ? std::calloc(1, bytes) : std::malloc(bytes);
    tNoxError = block ? kQvxOK : kQvxOutOfMemory;
    return block;
}

template <typename T>
QvxStatus ReadNumber(QvxReadProc read, ByteSource* dataRef, std::uint32_t* offset, T* dest,
                     std::uint32_t byteOrder)
{
    if (byteOrder > 1)
        return kQvxMalformed;
    std::byte bytes[sizeof(T)];
    if (const QvxStatus status = read(dataRef, bytes, offset, sizeof bytes))
        return status;
    *dest = byteOrder == 0 ? LoadLE<T>(bytes) : LoadBE<T>(bytes);
    return kQvxOK;
}

}  // namespace

std::int64_t Qvx_GetHandleSize(const QvxHandle& handle)
{
    tMemError = handle.fBlock ? kQvxOK : kQvxNullHandle;
    return handle.fBlock ? static_cast<std::int64_t>(handle.fBlock->size()) : 0;
}

void Qvx_SetHandleSize(QvxHandle& handle, std::int64_t size)
{
    if (!handle.fBlock || size < 0) {
        tMemError = handle.fBlock ? kQvxBadArgument : kQvxNullHandle;
        return;
    }
    try {
        handle.fBlock->resize(static_cast<std::size_t>(size));
        tMemError = kQvxOK;
    } catch (const std::bad_alloc&) {
        tMemError = kQvxNoMemory;
    } catch (const std::length_error&) {
        tMemError = kQvxNoMemory;
    }
}

QvxHandle Qvx_NewHandle(std::int64_t size)
{
    if (size < 0) {
        tMemError = kQvxBadArgument;
        return {};
    }
    try {
        QvxHandle handle(std::make_unique<std::vector<std::byte>>(static_cast<std::size_t>(size)));
        tMemError = kQvxOK;
        return handle;
    } catch (const std::bad_alloc&) {
        tMemError = kQvxNoMemory;
    } catch (const std::length_error&) {
        tMemError = kQvxNoMemory;
    }
    return {};
}

QvxHandle Qvx_NewHandleClear(std::int64_t size)
{
    return Qvx_NewHandle(size);  // a new block is always zero
}

void Qvx_DisposeHandle(QvxHandle& handle)
{
    tMemError = handle.IsNull() ? kQvxNullHandle : kQvxOK;
    handle = QvxHandle();
}

void Qvx_BlockMoveData(const void* source, void* dest, std::int64_t count)
{
    if (source && dest && count > 0)
        std::memmove(dest, source, static_cast<std::size_t>(count));
}

QvxStatus Qvx_MemError() { return tMemError; }

QvxStatus Qvx_HandToHand(QvxHandle* handle)
{
    if (!handle || !handle->fBlock)
        return tMemError = handle ? kQvxNullHandle : kQvxBadArgument;
    QvxHandle copy = Qvx_NewHandle(static_cast<std::int64_t>(handle->fBlock->size()));
    if (copy.IsNull())
        return tMemError;
    std::copy(handle->fBlock->begin(), handle->fBlock->end(), copy.fBlock->begin());
    // The former block belongs to whoever holds the original; here that is nobody.
    *handle = std::move(copy);
    return kQvxOK;
}

QvxStatus FILE_ReadData(ByteSource* stream, void* dest, std::uint32_t* offset, std::uint32_t count)
{
    const QvxStatus status =
        stream->ReadAt(*offset, {static_cast<std::byte*>(dest), std::size_t{count}});
    if (status == kQvxOK)
        *offset += count;
    else if (status == kQvxEndOfFile)
        *offset =
            static_cast<std::uint32_t>(std::min<std::uint64_t>(stream->Size() + 1, UINT32_MAX));
    return status;
}

const QvxHostCallbacks* QvxStandardCallbacks()
{
    static constexpr QvxHostCallbacks kStandard{};
    return &kStandard;
}

void* NoxMemAlloc(std::uintptr_t, std::int64_t size) { return Allocate(size, false); }

void* NoxMemClearAlloc(std::uintptr_t, std::int64_t size) { return Allocate(size, true); }

void NoxMemFree(std::uintptr_t, void* block) { std::free(block); }

QvxStatus NoxMemError(std::uintptr_t) { return tNoxError; }

std::uintptr_t NoxMemEnvInit()
{
    tNoxError = kQvxOK;
    return 0;
}

void NoxMemEnvClear(std::uintptr_t* environment)
{
    *environment = 0;
    tNoxError = kQvxOK;
}

QvxStatus Read_ShortU(QvxReadProc read, ByteSource* dataRef, std::uint32_t* offset,
                      std::uint16_t* dest, std::uint32_t byteOrder)
{
    return ReadNumber(read, dataRef, offset, dest, byteOrder);
}

QvxStatus Read_ShortS(QvxReadProc read, ByteSource* dataRef, std::uint32_t* offset,
                      std::int16_t* dest, std::uint32_t byteOrder)
{
    std::uint16_t bits = 0;
    const QvxStatus status = ReadNumber(read, dataRef, offset, &bits, byteOrder);
    if (status == kQvxOK)
        *dest = static_cast<std::int16_t>(bits);
    return status;
}

QvxStatus Read_LongU(QvxReadProc read, ByteSource* dataRef, std::uint32_t* offset,
                     std::uint32_t* dest, std::uint32_t byteOrder)
{
    return ReadNumber(read, dataRef, offset, dest, byteOrder);
}

QvxStatus Read_LongS(QvxReadProc read, ByteSource* dataRef, std::uint32_t* offset,
                     std::int32_t* dest, std::uint32_t byteOrder)
{
    std::uint32_t bits = 0;
    const QvxStatus status = ReadNumber(read, dataRef, offset, &bits, byteOrder);
    if (status == kQvxOK)
        *dest = static_cast<std::int32_t>(bits);
    return status;
}

QvxStatus Read_FL(QvxReadProc read, ByteSource* dataRef, std::uint32_t* offset,
                  std::uint32_t* destBits, std::uint32_t byteOrder)
{
    return ReadNumber(read, dataRef, offset, destBits, byteOrder);
}

// What the reader asks of its host: resizable blocks, memory, and reads of the file. The walk goes
// through the table of nine callbacks and knows nothing else of memory or files.
// The last-error values of both layers are kept for each thread.
#pragma once
#include "util/ByteSource.h"
#include "util/StatusCodes.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string_view>
#include <vector>

// A resizable block with a stable identity, or null. Move-only; frees itself.
class QvxHandle {
public:
    QvxHandle() = default;
    explicit QvxHandle(std::unique_ptr<std::vector<std::byte>> block) : fBlock(std::move(block)) {}
    [[nodiscard]] bool IsNull() const { return fBlock == nullptr; }
    [[nodiscard]] std::byte* Data() { return fBlock ? fBlock->data() : nullptr; }
    [[nodiscard]] std::span<const std::byte> Bytes() const
    {
        return fBlock ? std::span<const std::byte>(*fBlock) : std::span<const std::byte>();
    }
    // The block as text, without any terminator.
    [[nodiscard]] std::string_view Text() const
    {
        const auto bytes = Bytes();
        return {reinterpret_cast<const char*>(bytes.data()), bytes.size()};
    }
    // The block as an array that begins `skip` bytes in; a rest too short for one is left out.
    template <typename T>
    [[nodiscard]] std::span<const T> Array(std::size_t skip = 0) const
    {
        const auto bytes = Bytes();
        if (bytes.size() < skip)
            return {};
        return {reinterpret_cast<const T*>(bytes.data() + skip), (bytes.size() - skip) / sizeof(T)};
    }

private:
    friend std::int64_t Qvx_GetHandleSize(const QvxHandle& handle);
    friend void Qvx_SetHandleSize(QvxHandle& handle, std::int64_t size);
    friend QvxStatus Qvx_HandToHand(QvxHandle* handle);
    std::unique_ptr<std::vector<std::byte>> fBlock;
};

// Each sets the result of Qvx_MemError: 0, kQvxNullHandle for a null handle, kQvxBadArgument for a
// negative size, kQvxNoMemory when memory ran out (a new handle is null then).
[[nodiscard]] std::int64_t Qvx_GetHandleSize(const QvxHandle& handle);
void Qvx_SetHandleSize(QvxHandle& handle, std::int64_t size);  // what is added is zero
[[nodiscard]] QvxHandle Qvx_NewHandle(std::int64_t size);
[[nodiscard]] QvxHandle Qvx_NewHandleClear(std::int64_t size);
void Qvx_DisposeHandle(QvxHandle& handle);
// Nothing for a null pointer or a count of 0 or less; the two runs may overlap.
void Qvx_BlockMoveData(const void* source, void* dest, std::int64_t count);
[[nodiscard]] QvxStatus Qvx_MemError();
// Puts a copy of the block in place of the handle itself, which the caller has kept elsewhere.
// kQvxBadArgument for a null variable, kQvxNullHandle for a null handle in it.
[[nodiscard]] QvxStatus Qvx_HandToHand(QvxHandle* handle);

// Reads `count` bytes at `*offset` and moves the offset behind them. A run that doesn't lie in the
// file moves the offset past the file's end and gives kQvxEndOfFile; a file that can't be read
// gives kQvxSeekFailed.
[[nodiscard]] QvxStatus FILE_ReadData(ByteSource* stream, void* dest, std::uint32_t* offset,
                                      std::uint32_t count);

using QvxReadProc = QvxStatus (*)(ByteSource*, void*, std::uint32_t*, std::uint32_t);

struct QvxHostCallbacks {
    std::int64_t (*fGetHandleSize)(const QvxHandle&) = Qvx_GetHandleSize;
    void (*fSetHandleSize)(QvxHandle&, std::int64_t) = Qvx_SetHandleSize;
    QvxHandle (*fNewHandle)(std::int64_t) = Qvx_NewHandle;
    QvxHandle (*fNewHandleClear)(std::int64_t) = Qvx_NewHandleClear;
    void (*fDisposeHandle)(QvxHandle&) = Qvx_DisposeHandle;
    void (*fBlockMoveData)(const void*, void*, std::int64_t) = Qvx_BlockMoveData;
    QvxStatus (*fMemError)() = Qvx_MemError;
    QvxStatus (*fHandToHand)(QvxHandle*) = Qvx_HandToHand;
    QvxReadProc fReadData = FILE_ReadData;
};

// The table that the program uses.
[[nodiscard]] const QvxHostCallbacks* QvxStandardCallbacks();

// Memory layer. The environment word is handed through and not used.
[[nodiscard]] void* NoxMemAlloc(std::uintptr_t environment, std::int64_t size);
[[nodiscard]] void* NoxMemClearAlloc(std::uintptr_t environment, std::int64_t size);
void NoxMemFree(std::uintptr_t environment, void* block);  // nothing for null
// Result of this thread's last call: 0, kQvxOutOfMemory, kQvxNegativeSize.
[[nodiscard]] QvxStatus NoxMemError(std::uintptr_t environment);
[[nodiscard]] std::uintptr_t NoxMemEnvInit();
void NoxMemEnvClear(std::uintptr_t* environment);

struct NoxMemFreer {
    void operator()(std::byte* block) const { NoxMemFree(0, block); }
};
using NoxBlock = std::unique_ptr<std::byte[], NoxMemFreer>;

// Numbers through a read callback, brought to host order; the offset moves. `byteOrder` is 0 for
// little and 1 for big endian, anything else gives kQvxMalformed and reads nothing.
[[nodiscard]] QvxStatus Read_ShortU(QvxReadProc read, ByteSource* dataRef, std::uint32_t* offset,
                                    std::uint16_t* dest, std::uint32_t byteOrder);
[[nodiscard]] QvxStatus Read_ShortS(QvxReadProc read, ByteSource* dataRef, std::uint32_t* offset,
                                    std::int16_t* dest, std::uint32_t byteOrder);
[[nodiscard]] QvxStatus Read_LongU(QvxReadProc read, ByteSource* dataRef, std::uint32_t* offset,
                                   std::uint32_t* dest, std::uint32_t byteOrder);
[[nodiscard]] QvxStatus Read_LongS(QvxReadProc read, ByteSource* dataRef, std::uint32_t* offset,
                                   std::int32_t* dest, std::uint32_t byteOrder);
// The bit pattern of a float, which never passes through a floating-point register.
[[nodiscard]] QvxStatus Read_FL(QvxReadProc read, ByteSource* dataRef, std::uint32_t* offset,
                                std::uint32_t* destBits, std::uint32_t byteOrder);

// The buffered form of the read callback: a window of 1 KiB over a source that has none itself.
#pragma once
#include "Qvx2Parser/QvxHost.h"
#include <cstdint>
#include <memory>

inline constexpr std::uint32_t kInputWindowSize = 1024;

struct InputBufferInfo {
    std::uintptr_t fMemoryEnv = 0;
    ByteSource* fStream = nullptr;  // not owned
    std::uint32_t fEndOffset = 0;   // a read that ends behind it is the end of the file
    std::uint32_t fWindowSize = kInputWindowSize;
    std::uint32_t fWindowStart = 0;
    std::uint32_t fWindowEnd = 0;
    NoxBlock fWindow;
};

// Null when memory ran out.
[[nodiscard]] std::unique_ptr<InputBufferInfo> CreateInputBufferInfoPtr(std::uintptr_t memoryEnv,
                                                                        ByteSource* stream,
                                                                        std::uint32_t endOffset);
// Fills the window from `offset` on, up to the end offset.
[[nodiscard]] QvxStatus NoQT_FillBuffer(InputBufferInfo* info, std::uint32_t offset);
// Like FILE_ReadData. A request no larger than the window is served from it, a larger one reads
// the file directly.
[[nodiscard]] QvxStatus NoQT_Read_Buffered_Data(InputBufferInfo* info, void* dest,
                                                std::uint32_t* offset, std::uint32_t count);

// How much memory the machine can still give, and whether a port fits in it.
#pragma once
#include "util/StatusCodes.h"

#include <cstdint>

// Bytes that a program can take without pushing others out; 0 when the system doesn't tell.
[[nodiscard]] std::uint64_t FreeMemory();

// Who answers `FreeMemory`. Another one is for tests; null puts the system's own back.
using FreeMemoryReader = std::uint64_t (*)();
void SetFreeMemoryReader(FreeMemoryReader reader);

// True in `fits` when a port of that size, rows padded to 16 bytes, is smaller than the free memory
// less one MiB. Only a hint where to put it: `temporary` of an offscreen is its negation.
//   depth  bits a pixel
// kQvxBadArgument for a width, height or depth below 1, or a size beyond 64 bits.
[[nodiscard]] QvxStatus CanGWorldFitToHeep(std::int32_t width, std::int32_t height,
                                           std::int32_t depth, bool* fits);

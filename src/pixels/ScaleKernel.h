// The scaling of samples: the one place to put a library's kernel in. Internal to this folder.
#pragma once
#include "util/XRect.h"

#include <cstddef>
#include <cstdint>

enum class ScaleSample : std::uint8_t {
    Gray8,   // one byte
    Gray16,  // one word in the machine's order
    ARGB8,   // four bytes, each on its own
};

struct ScaleJob {
    ScaleSample sample = ScaleSample::Gray8;
    const std::uint8_t* source = nullptr;  // rows top-down; a 16-bit one is aligned to 2
    std::ptrdiff_t sourceRowBytes = 0;
    int sourceWidth = 0, sourceHeight = 0;  // 1 to 32767, as the next two
    int targetWidth = 0, targetHeight = 0;  // the whole result
    LongRect window;                        // the part of it that is wanted, within it
};

// Writes the window's samples to `target`, `targetRowBytes` apart, aligned like the source. Along
// an axis that shrinks each result is the mean of the area that it covers, along one that grows
// it lies between the two nearest pixel centres. Exact up to one final rounding (half up), so a
// flat picture stays flat. Throws std::bad_alloc only.
void ScaleSamples(const ScaleJob& job, std::uint8_t* target, std::ptrdiff_t targetRowBytes);

// Do two sources hold images of one make, so that one may stand in for the other?
#pragma once
#include "qpix/zelImageSource.h"
#include <cstdint>

struct ImageSourcePattern {
    bool fHasFrames = false;  // more than one
    std::int32_t fWidth = 0, fHeight = 0;
    std::int32_t fDepth = 0;
    std::uint32_t fColorSpace = 0;
};

// Why a source has no pattern.
inline constexpr std::int32_t kPatternSourceInvalid = 1;
inline constexpr std::int32_t kPatternNotDicom = 2;  // or without an importer
inline constexpr std::int32_t kPatternNoFrameCount = 4;
inline constexpr std::int32_t kPatternNoFrameInfo = 8;
// What differs between two patterns, as a sum.
inline constexpr std::int32_t kPatternFramesDiffer = 16;
inline constexpr std::int32_t kPatternSizeDiffers = 32;
inline constexpr std::int32_t kPatternPixelsDiffer = 64;

// 0, or one of the first four; `pattern` is untouched then.
[[nodiscard]] std::int32_t GetImageSourcePattern(zelImageSource& source,
                                                 ImageSourcePattern* pattern);
[[nodiscard]] std::int32_t CompareImageSourcePatterns(const ImageSourcePattern& a,
                                                      const ImageSourcePattern& b);

// The loops over the pixels, one for each pair of formats. Trusted callers only: sizes and
// addresses are taken as they are, VOICopyPixels has checked them.
#pragma once
#include "Qvx2VOIBlitter/VOIScales.h"
#include <cstdint>
#include <span>

// What a parameter record brings.
enum class VOIParamTag : std::uint32_t {
    Bounds = FourCC("UNKP"),          // lo and hi; all else is made and freed inside
    BoundsAndTable = FourCC("UNKQ"),  // lo, hi and a ready table, which stays the caller's
    Other = FourCC("UNKO"),           // not supported
};

struct VOIParams {
    VOIParamTag tag = VOIParamTag::Bounds;
    VOIBounds bounds;
    // 16-bit kernels: n + 1 entries as of VOIBlitterBase_GetVOIScale16to8, from lo on.
    // 8-bit kernel: the 256 entries of VOIBlitterBase_GetVOIScale8_256.
    std::span<const std::uint8_t> table;
};

// Rows run top-down, each so many bytes after the one before.
struct VOIPixels {
    std::int32_t width = 0, height = 0;  // pixels
    const std::uint8_t* source = nullptr;
    std::uint8_t* destination = nullptr;
    std::ptrdiff_t sourceRowBytes = 0, destinationRowBytes = 0;
};

// All give kQvxUnsupported for the tag Other, kQvxSeekFailed for an unknown one, kQvxBadArgument
// for a ready table of the wrong size or hi not above lo (a ready table may have one entry),
// kQvxNoMemory before the first pixel.

// 'b16g' to 8 or 40: the value, clamped to lo to hi, looked up.
[[nodiscard]] QvxStatus VOIBlitterBase_ApplyVOITransformation16to8(const VOIParams& params,
                                                                   const VOIPixels& pixels);
// 'b16g' to 32: bytes 255, g, g, g with g = 255 less the entry.
[[nodiscard]] QvxStatus VOIBlitterBase_ApplyVOITransformation16to32ARGB(const VOIParams& params,
                                                                        const VOIPixels& pixels);
// 'DMXD' to 32, native words on both sides: above 0xFFFFFF a colour pixel, copied as it is; else
// gray in the low 16 bits, which becomes 0xFF000000 with g in each of the other bytes.
[[nodiscard]] QvxStatus VOIBlitterBase_ApplyVOITransformation32MixedTo32ARGB(
    const VOIParams& params, const VOIPixels& pixels);
// 8 or 40 to 8 or 40, inverted luminance on both sides. kQvxUnsupported in place if the rows of
// the destination are padded less than those of the source.
[[nodiscard]] QvxStatus VOIBlitterBase_ApplyVOITransformation8to8_256(const VOIParams& params,
                                                                      const VOIPixels& pixels);

// 8 or 40 through a ready table of n + 1 entries from lo on, inverted as that of the 16-bit
// kernels; the display value of a byte is 255 less it. kQvxUnsupported for the tag Bounds.
[[nodiscard]] QvxStatus ApplyCurve8to8(const VOIParams& params, const VOIPixels& pixels);
[[nodiscard]] QvxStatus ApplyCurve8to32ARGB(const VOIParams& params, const VOIPixels& pixels);

// Bytes through a table of 256, as they are: to bytes (in place too, as above), and to bytes
// 255, g, g, g with g the entry.
[[nodiscard]] QvxStatus LookUp8to8(const VOIScale256& table, const VOIPixels& pixels);
void LookUp8to32ARGB(const VOIScale256& table, const VOIPixels& pixels);

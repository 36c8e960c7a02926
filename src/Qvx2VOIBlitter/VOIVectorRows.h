// The loops over pixels in vector registers, compiled for several kinds of processor; the best one
// for the present processor runs. Trusted callers only, as VOIKernels.h. Nothing is allocated.
#pragma once
#include "Qvx2VOIBlitter/VOIKernels.h"
#include "Qvx2VOIBlitter/VOIRamp.h"
#include <cstdint>

// A table as the loops use it: a value clamped to `first` to `last` is looked up less `first`.
struct VOILookup {
    const std::uint8_t* entries = nullptr;
    std::uint16_t first = 0, last = 0;
};

// 16-bit words along a ramp to 8 bits, to bytes 255, g, g, g, and the native mixed words of 'DMXD'
// (in place too). False, with nothing written, on a processor without vectors: a table is then
// the better way.
[[nodiscard]] bool VOIRampRows16to8(const VOIRamp& ramp, const VOIPixels& pixels);
[[nodiscard]] bool VOIRampRows16to32ARGB(const VOIRamp& ramp, const VOIPixels& pixels);
[[nodiscard]] bool VOIRampRowsMixedTo32ARGB(const VOIRamp& ramp, const VOIPixels& pixels);

// 'b16g' through a table of inverted grays: entry e as it is, and as bytes 255, g, g, g with
// g = 255 - e.
void VOITableRows16to8(const VOILookup& lookup, const VOIPixels& pixels);
void VOITableRows16to32ARGB(const VOILookup& lookup, const VOIPixels& pixels);

// Bytes through a table of 256 to bytes 255, g, g, g, g being the entry.
void VOITableRows8to32ARGB(const VOIScale256& table, const VOIPixels& pixels);

// Effects on whole ports, named by a container of parameters. There is one: 'brco', brightness and
// contrast.
#pragma once
#include "pixels/COffscreen.h"

#include <cstdint>
#include <vector>

inline constexpr std::uint32_t kFilterWhat = FourCC("what");
inline constexpr std::uint32_t kFilterBrightnessContrast = FourCC("brco");
inline constexpr std::uint32_t kFilterBrightness = FourCC("bryt");
inline constexpr std::uint32_t kFilterContrast = FourCC("cntr");

// Parameters by tag, 32-bit values kept big-endian as they are stored.
class FilterParameters {
public:
    void Set(std::uint32_t tag, std::int32_t value);          // may throw std::bad_alloc
    [[nodiscard]] std::int32_t Get(std::uint32_t tag) const;  // 0 when it is missing

private:
    struct Entry {
        std::uint32_t fTag;
        std::uint8_t fBytes[4];
    };
    std::vector<Entry> fEntries;
};

// Runs the effect from one port into another of the same size and format, or in place. Brightness
// adds up to half of the full range at 100; contrast turns the line about the middle gray, to flat
// at -100 and to a step at 100. Each colour component on its own, cut to its range; alpha stays.
//   both 0          nothing changes: two ports make a plain copy
//   'b16g'          the line is that of 65,536 values, so no value loses its low bits
//   8 bits of gray  pixels change to those of the table's entries that come nearest; the table
//                   stays, as windowing writes it anew
//   all others      by way of a 32-bit port and back with dithering; tables stay
// kQvxBadArgument for ports without pixels or of different size or format, kQvxUnsupported for
// another effect, kQvxNoMemory.
[[nodiscard]] QvxStatus FilterGWorldToGWorld(const FilterParameters& parameters, const Port& source,
                                             Port* target);
// The same in place, by way of a 32-bit port of the same size; 'b16g' keeps 8 bits. Two values of 0
// leave every bit as it is.
[[nodiscard]] QvxStatus FilterGWorldThroughBuffer(const FilterParameters& parameters, Port* port);
// In place where the port has 32 bits, else through a 32-bit one and back with dithering.
[[nodiscard]] QvxStatus FilterCOffscreenThroughBufferIfNeeded(const FilterParameters& parameters,
                                                              COffscreen* offscreen);

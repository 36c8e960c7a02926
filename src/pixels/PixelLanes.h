// Runs of pixels, many at a time, by the widest vectors that the processor has. Internal to this
// folder. Counts are pixels; nothing needs an alignment; ends don't overlap unless said.
#pragma once
#include <cstddef>
#include <cstdint>

namespace PixelLanes {

// Gray to the bytes 255, g, g, g, with g = gray ^ flip.
void GrayToARGB(const std::uint8_t* gray, std::uint8_t flip, std::size_t count, std::uint8_t* argb);
// Gray to words 0xFFgggggg in the machine's order, with g = gray ^ flip.
void GrayToWords(const std::uint8_t* gray, std::uint8_t flip, std::size_t count,
                 std::uint8_t* words);
// The bytes A, R, G, B to words 0xFFRRGGBB in the machine's order. In place too.
void ARGBToWords(const std::uint8_t* argb, std::size_t count, std::uint8_t* words);

// Into planes, without the first byte, and back, with 255 as the first byte.
struct ColorRows {
    std::uint8_t *red, *green, *blue;
};
void SplitARGB(const std::uint8_t* argb, std::size_t count, const ColorRows& planes);
void JoinARGB(const ColorRows& planes, std::size_t count, std::uint8_t* argb);

// Turns over the bits of `pattern`, which repeats every four bytes, in `count` bytes. In place.
void FlipBytes(std::uint8_t* bytes, std::uint32_t pattern, std::size_t count);

}  // namespace PixelLanes

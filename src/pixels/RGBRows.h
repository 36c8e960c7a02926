// Rows of three bytes a pixel against rows of four, in vector registers: the best code for the
// present processor runs. Internal to this folder.
#pragma once
#include <cstddef>
#include <cstdint>

// R, G, B to 0, R, G, B.
void SpreadRGBRow(const std::uint8_t* rgb, std::uint8_t* argb, std::size_t pixels);
// A, R, G, B to R, G, B.
void PackARGBRow(const std::uint8_t* argb, std::uint8_t* rgb, std::size_t pixels);

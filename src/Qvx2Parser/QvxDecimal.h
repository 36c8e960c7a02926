// Numbers written as text (DS and IS, PS3.5 6.2), whatever the locale: leading blanks and a plus
// sign are passed over, reading ends at the first sign that doesn't belong, no number reads as 0.
#pragma once
#include <cstdint>
#include <string_view>

[[nodiscard]] double QvxDecimalToDouble(std::string_view text);
// Kept in 32 bits; too large a number is infinite.
[[nodiscard]] float QvxDecimalToFloat(std::string_view text);
// The whole part; too large a number stops at the ends of the range.
[[nodiscard]] std::int32_t QvxDecimalToInt(std::string_view text);

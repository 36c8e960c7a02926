// Values of elements as plain numbers.
#pragma once
#include "Qvx2Parser/Qvx2Reader.h"
#include <cstdint>

// Cut toward 0; what 32 bits can't hold is pinned, and a NaN is 0.
[[nodiscard]] std::int32_t CutToLong(double value);

// Value number `index` (from 1) of any numeric kind as a whole number: floats are cut toward 0, and
// what 32 bits can't hold is pinned (a NaN is 0). `result` is 0 on failure.
// kQvxUnsupported for an element that is empty or holds no number, kQvxNoSuchElement if there is
// none, else the reader's codes.
[[nodiscard]] QvxStatus Parser_GetElementValueAsLong(ParserHandle parser, QvxElementRef element,
                                                     std::int32_t index, std::int32_t* result);
// The same by tag, below `parent` or at the top level.
[[nodiscard]] QvxStatus Parser_GetElementValueAsLong(ParserHandle parser, QvxElementRef parent,
                                                     std::uint16_t group, std::uint16_t element,
                                                     std::int32_t index, std::int32_t* result);

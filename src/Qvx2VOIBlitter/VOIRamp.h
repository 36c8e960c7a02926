// A straight ramp of grays over 16-bit values, in the form in which vector registers compute it
// without a table: with the very grays of the table.
#pragma once
#include "Qvx2VOIBlitter/VOIScales.h"
#include <cstdint>

// Where the ramp's words come from and which way it runs.
struct VOIRampUse {
    bool bigEndian = true;         // words in memory; false: native order
    std::uint16_t wordFlip = 0;    // added without carry to a word: 0x8000 makes signed ones sort
    std::uint16_t grayFlip = 255;  // the same for a gray: 255 turns the ramp round, 0 leaves it
};

// Position i of a value on the ramp is how far it lies above lo, 0 to n; its gray is i / n * 255,
// rounded half up, in single precision.
//   Whole    n up to kLastWholeLength. The quotient is taken low by a 16-bit factor and put right
//            by its remainder, all in 16 bits.
//   Line     n up to 65535: one product, rounded to the nearest, with a slope that was tried and
//            gives every gray right. Takes fused multiply-add; without it Divided serves too.
//   Divided  as written above: for windows longer than the values, or if no slope was right.
enum class VOIRampForm : std::uint8_t { Whole, Line, Divided };

struct VOIRamp {
    VOIRampForm form = VOIRampForm::Whole;
    VOIRampUse use;
    // Whole and Line: i = min(value less `down`, not below 0, and `up` added; n)
    std::uint16_t down = 0, up = 0, n = 1;
    std::uint16_t factor = 0;  // Whole
    int shift = 0;             // Whole: of i, before the factor; 0 for n above 255
    float slope = 0;           // Line
    // Divided: i = value, clamped to first to last, and `base` added
    std::uint16_t first = 0, last = 0;
    std::int32_t base = 0;
    float length = 1;  // n
};

// The longest ramp for which rounding in whole numbers and in single precision always agree.
inline constexpr std::int64_t kLastWholeLength = 21845;

// The ramp of a window, hi above lo, anywhere on or beside the 16-bit values. False when positions
// on it need more than 32 bits: that window takes a table.
[[nodiscard]] bool MakeVOIRamp(VOIBounds bounds, const VOIRampUse& use, VOIRamp* ramp);

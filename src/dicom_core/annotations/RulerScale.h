// Which round length a ruler shows, how it is divided and what it is called. Arithmetic only.
#pragma once
#include <QString>
#include <cstdint>

enum class RulerUnitType : std::int32_t {
    None = 0,
    HundredMicrometres = 2,
    Millimetre = 3,
    Centimetre = 4,
    TenCentimetres = 5,
    Metre = 6,
};

// The greatest round length that fits into a span of `n` pixels, `d` centimetres long: `count`
// times `unit`. The result is the pixels of one unit, rounded half down. With `minorTicks` lengths
// of one larger unit are one count of it, since minor ticks divide that. No unit, a count of 0 and
// 0 for less than a millimetre.
[[nodiscard]] std::int16_t CalculateMajorScaleTicks(double d, std::int16_t n, RulerUnitType* unit,
                                                    std::int16_t* count, bool minorTicks);
// Into how many parts a division of that many pixels is divided by minor ticks, so that these are
// 9 pixels apart or more: 10, 5 or 2; 0 for none.
[[nodiscard]] std::int16_t CalculateMinorScaleTicks(std::int16_t division);
// "5 cm"; empty without a unit.
[[nodiscard]] QString RulerLabel(RulerUnitType unit, std::int16_t count);
// Pixels that `count` units take where `n` pixels are `d` centimetres long, unrounded.
[[nodiscard]] double RulerSpan(double d, std::int16_t n, RulerUnitType unit, std::int16_t count);

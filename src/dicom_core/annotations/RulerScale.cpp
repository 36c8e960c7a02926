#include "dicom_core/annotations/RulerScale.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace {

struct Division {
    RulerUnitType fUnit;
    std::int16_t fCount;  // and into how many the threshold is divided
};

struct ScaleRow {
    double fThreshold_cm;
    Division fPlain, fWithMinorTicks;
};

using enum RulerUnitType;
// clang-format off
constexpr auto kScaleRows = std::to_array<ScaleRow>({
    // from   unit, count                 with minor ticks
    { 100.0, {TenCentimetres,     10}, {Metre,          1} },
    {  50.0, {TenCentimetres,      5}, {TenCentimetres, 5} },
    {  20.0, {TenCentimetres,      2}, {TenCentimetres, 2} },
    {  10.0, {Centimetre,         10}, {TenCentimetres, 1} },
    {   5.0, {Centimetre,          5}, {Centimetre,     5} },
    {   2.0, {Centimetre,          2}, {Centimetre,     2} },
    {   1.0, {Centimetre,          1}, {Centimetre,     1} },
    {   0.5, {Millimetre,          5}, {Millimetre,     5} },
    {   0.2, {Millimetre,          2}, {Millimetre,     2} },
    {   0.1, {HundredMicrometres, 10}, {Millimetre,     1} },
});

struct UnitRow {
    RulerUnitType fUnit;
    double fLength_cm;
    const char* fBehindCount;
};
constexpr auto kUnitRows = std::to_array<UnitRow>({
    { HundredMicrometres,   0.01, "00 micros" },
    { Millimetre,           0.1,  " mm"       },
    { Centimetre,           1.0,  " cm"       },
    { TenCentimetres,      10.0,  "0 cm"      },
    { Metre,              100.0,  " m"        },
});
// clang-format on

const UnitRow* RowOf(RulerUnitType unit)
{
    const auto row = std::ranges::find(kUnitRows, unit, &UnitRow::fUnit);
    return row != kUnitRows.end() ? &*row : nullptr;
}

}  // namespace

std::int16_t CalculateMajorScaleTicks(double d, std::int16_t n, RulerUnitType* unit,
                                      std::int16_t* count, bool minorTicks)
{
    *unit = None;
    *count = 0;
    const auto row =
        std::ranges::find_if(kScaleRows, [d](const ScaleRow& r) { return d >= r.fThreshold_cm; });
    if (row == kScaleRows.end())
        return 0;
    const Division& division = minorTicks ? row->fWithMinorTicks : row->fPlain;
    *unit = division.fUnit;
    *count = division.fCount;
    const double pixels = n * row->fThreshold_cm / d / division.fCount;
    const double whole = std::trunc(pixels);
    return static_cast<std::int16_t>(pixels - whole > 0.5 ? whole + 1 : whole);
}

std::int16_t CalculateMinorScaleTicks(std::int16_t division)
{
    constexpr std::int16_t kLeastDistance = 9;
    for (const std::int16_t parts : {10, 5, 2})
        if (division / parts >= kLeastDistance)
            return parts;
    return 0;
}

QString RulerLabel(RulerUnitType unit, std::int16_t count)
{
    const UnitRow* row = RowOf(unit);
    return row ? QString::number(count) + QLatin1String(row->fBehindCount) : QString();
}

double RulerSpan(double d, std::int16_t n, RulerUnitType unit, std::int16_t count)
{
    const UnitRow* row = RowOf(unit);
    return row ? n * static_cast<double>(count) * row->fLength_cm / d : 0;
}

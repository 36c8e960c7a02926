// Ultrasound regions (PS3.3 C.8.5.5): rectangles of an image, each with its own content and its own
// physical scale.
#pragma once
#include "util/XRect.h"

#include "Qvx2Parser/Qvx2Reader.h"
#include <array>
#include <cstdint>
#include <vector>

class QString;

// Physical units of one direction. Other numbers may come from files.
enum class ROIUnitType : std::int32_t {
    None = 0,
    Percent = 1,
    Decibel = 2,
    Centimetre = 3,
    Second = 4,
    Hertz = 5,
    DecibelPerSecond = 6,
    CentimetrePerSecond = 7,
    SquareCentimetre = 8,
    SquareCentimetrePerSecond = 9,
    CubicCentimetre = 10,
    CubicCentimetrePerSecond = 11,
    Degree = 12,
};

inline constexpr std::uint32_t kNoPixelComponents = 0xFFFFFFFF;

// One region as its item states it; what the item lacks is 0.
struct US_ROIRegDataRec {
    std::int32_t fSpatialFormat = 0;  // 0 none, 1 2D, 2 M-Mode, 3 spectral, 4 waveform, 5 graphics
    std::int32_t fDataType = 0;       // place in USRegionTitles from 1; 0 none
    std::uint32_t fFlags = 0;
    std::uint32_t fX0 = 0, fY0 = 0;  // left and top, image pixels
    std::uint32_t fX1 = 0, fY1 = 0;  // right and bottom, inclusive
    std::uint32_t fReferenceX = 0, fReferenceY = 0;
    ROIUnitType fUnitsX = ROIUnitType::None, fUnitsY = ROIUnitType::None;
    double fPhysicalDeltaX = 0, fPhysicalDeltaY = 0;  // units per pixel; 0 unknown
    std::uint32_t fPixelComponentOrganization = 0;    // kNoPixelComponents: not stated
    std::int32_t fPixelComponentPhysicalUnits = 0;
    std::int32_t fPixelComponentDataType = 0;
    bool operator==(const US_ROIRegDataRec&) const = default;
};

// Keys of the table "MenuItems"; data type 1 stands first.
inline constexpr std::array<const char*, 18> USRegionTitles{
    "Tissue",
    "Color Flow",
    "PW Spectral Doppler",
    "CW Spectral Doppler",
    "Doppler Mean Trace",
    "Doppler Mode Trace",
    "Doppler Max Trace",
    "Volume Trace",
    "d(volume)/dt Trace",
    "ECG Trace",
    "Pulse Trace",
    "Phonocardiogram Trace",
    "Gray bar",
    "Color bar",
    "Integrated Backscatter",
    "Area Trace",
    "d(area)/dt",
    "Other Physiological input",
};

// The regions of an ultrasound file, one record for each item. An item that can't be taken apart
// leaves no record, and a zeroed one stands at the end in its place; an item whose last element
// can't be read has a zeroed record. `regions` is set only on kQvxOK.
// kQvxBadArgument for a file whose modality is neither "US" nor "IVUS", and for one without items;
// kQvxNoSuchElement without (0018,6011), else the reader's codes.
[[nodiscard]] QvxStatus Parser_GetUSROIData(ParserHandle parser,
                                            std::vector<US_ROIRegDataRec>* regions);

// The pixels of a region: right and bottom lie behind the last ones.
[[nodiscard]] XRect US_RectOfRegion(const US_ROIRegDataRec& region);

// Both directions are in centimetres.
[[nodiscard]] constexpr bool US_RegionIsCalibrated(const US_ROIRegDataRec& region)
{
    return region.fUnitsX == ROIUnitType::Centimetre && region.fUnitsY == ROIUnitType::Centimetre;
}

// The region that a shape belongs to, or null: the last one for which `belongs(region)` is true.
// With `preferCalibrated` the last of those that are calibrated goes before it. `regions` may be
// null; the answer points into it.
template <typename Belongs>
[[nodiscard]] const US_ROIRegDataRec* U_USRegionForShape(
    const std::vector<US_ROIRegDataRec>* regions, bool preferCalibrated, Belongs belongs)
{
    if (!regions)
        return nullptr;
    const US_ROIRegDataRec* found = nullptr;
    for (auto region = regions->rbegin(); region != regions->rend(); ++region) {
        if (!belongs(*region))
            continue;
        if (!preferCalibrated || US_RegionIsCalibrated(*region))
            return &*region;
        if (!found)
            found = &*region;
    }
    return found;
}

// Keys of the table "Measurements": a unit as the title of a region words it, and as a measured
// value bears it.
[[nodiscard]] const char* U_USRegionUnits_FormatStrForUnitType(ROIUnitType unit);
[[nodiscard]] const char* U_USRegion_UnitForUnitType(ROIUnitType unit);

// Title of region number `index` (from 0) in a menu, with its units in a list of regions.
[[nodiscard]] QString U_MenuItemTitleForUSRegion(const US_ROIRegDataRec& region, std::int32_t index,
                                                 bool withUnits);

#include "dicom_core/look/zel_TransformRec.h"

#include <algorithm>
#include <utility>

namespace {

// Written so that a NaN falls through to the maximum.
float PinnedVOI(float value, float minimum, float maximum)
{
    if (minimum > value)
        return minimum;
    return value < maximum ? value : maximum;
}

void AddToRotation(zel_TransformRec* record, int degrees)
{
    record->rotation = static_cast<std::int16_t>(((record->rotation + degrees) % 360 + 360) % 360);
}

void TurnFlipOver(zel_TransformRec* record, bool* flip, bool* other)
{
    *flip = !*flip;
    if (*flip && *other) {
        *flip = *other = false;
        AddToRotation(record, 180);
    }
}

}  // namespace

void zel_TransformRec::ResetAll() { *this = {}; }

void zel_TransformRec::ResetCommon()
{
    ResetFlipNRot();
    invert = false;
    zoom = kZoomOne;
}

void zel_TransformRec::ResetBnC() { brightness = contrast = 0; }

void zel_TransformRec::ResetVOI()
{
    voiWidth = voiWidthOriginal = voiWidthMin = voiWidthMax = 0;
    voiLevel = voiLevelOriginal = voiLevelMin = voiLevelMax = 0;
    voiFunction = zelVOIFunction::Linear;
    voiTable = voiTableOriginal = nullptr;
}

void zel_TransformRec::ResetFlipNRot()
{
    vertFlip = horzFlip = false;
    rotation = 0;
}

void zel_TransformRec::ResetColors()
{
    RecordVOI(voiWidthOriginal, voiLevelOriginal);
    ResetBnC();
    invert = false;
}

void zel_TransformRec::SetToVoid()
{
    ResetCommon();
    ResetColors();
}

bool zel_TransformRec::IsVoid() const
{
    return !vertFlip && !horzFlip && rotation == 0 && !invert && brightness == 0 && contrast == 0 &&
           autoFit && IsVOIAtOriginals();
}

void zel_TransformRec::RecordVOI(float width, float level)
{
    voiWidth = PinnedVOI(width, voiWidthMin, voiWidthMax);
    voiLevel = PinnedVOI(level, voiLevelMin, voiLevelMax);
    const bool original = voiWidth == voiWidthOriginal && voiLevel == voiLevelOriginal;
    voiTable = original ? voiTableOriginal : nullptr;
}

void zel_TransformRec::SetVOIOriginals(float width, float level,
                                       std::shared_ptr<const zelVOITable> table)
{
    voiWidthOriginal = PinnedVOI(width, voiWidthMin, voiWidthMax);
    voiLevelOriginal = PinnedVOI(level, voiLevelMin, voiLevelMax);
    voiTableOriginal = std::move(table);
}

void zel_TransformRec::RecordVOITable(std::shared_ptr<const zelVOITable> table)
{
    if (!table)
        return;
    RecordVOI(table->Width(), table->Level());
    voiTable = std::move(table);
}

void zel_TransformRec::AdoptVOI(const zel_TransformRec& other)
{
    const auto table = other.voiTable;  // `other` may be this record
    RecordVOI(other.voiWidth, other.voiLevel);
    voiTable = table;
}

bool zel_TransformRec::IsVOIAtOriginals() const
{
    return voiWidth == voiWidthOriginal && voiLevel == voiLevelOriginal &&
           voiTable == voiTableOriginal;
}

void zel_TransformRec::SetVOIWidthLimits(float minimum, float maximum)
{
    if (minimum >= static_cast<float>(voiInfo.pixelFactor) && maximum > minimum) {
        voiWidthMin = minimum;
        voiWidthMax = maximum;
    }
}

void zel_TransformRec::SetVOILevelLimits(float minimum, float maximum)
{
    if (maximum > minimum) {
        voiLevelMin = minimum;
        voiLevelMax = maximum;
    }
}

void zel_TransformRec::RecordBnC(std::int32_t newBrightness, std::int32_t newContrast)
{
    brightness = std::clamp(newBrightness, -100, 100);
    contrast = std::clamp(newContrast, -100, 100);
}

void zel_TransformRec::RecVertFlip() { TurnFlipOver(this, &vertFlip, &horzFlip); }

void zel_TransformRec::RecHorzFlip() { TurnFlipOver(this, &horzFlip, &vertFlip); }

void zel_TransformRec::RecRotation(std::int32_t degrees)
{
    const std::int32_t turn = (degrees % 360 + 360) % 360;
    if (turn == 90 || turn == 270)
        AddToRotation(this, vertFlip || horzFlip ? -turn : turn);
    else if (turn == 180)
        AddToRotation(this, turn);
    else
        rotation = 0;
}

#include "dicom_core/values/ModalityRules.h"

#include <algorithm>

namespace {

// What the questions answer for a modality that the table doesn't hold. Its files are sequences of
// their own, so that frames that don't belong together never meet.
constexpr ZELModalityPrefs kOtherModality{"",    0,     "file", false, false, false,
                                          false, false, false,  false, false, {0, 0}};

constexpr const ZELModalityPrefs& RowOf(std::string_view modality)
{
    const auto row = std::ranges::find(kModalityPrefs, modality, &ZELModalityPrefs::fName);
    return row != kModalityPrefs.end() ? *row : kOtherModality;
}

constexpr const ZELModalityPrefs& RowOf(ModalityType modality)
{
    const auto row = std::ranges::find(kModalityPrefs, modality, &ZELModalityPrefs::fType);
    return row != kModalityPrefs.end() ? *row : kOtherModality;
}

constexpr ModalityType kModalityCR = DicomUtil_ModalityFromString("CR");
constexpr ModalityType kModalityDX = DicomUtil_ModalityFromString("DX");

bool IsSingleSequence(const ZELModalityPrefs& row)
{
    return row.fFramesAreOneSequence || row.fType == kModalityCR || row.fType == kModalityDX;
}

void TakeGrid(const ZELModalityPrefs& row, std::int32_t* first, std::int32_t* second)
{
    *first = row.fFrameGrid[0];
    *second = row.fFrameGrid[1];
}

}  // namespace

bool Modality_HasSingleFileSequences(std::string_view modality)
{
    return !RowOf(modality).fFramesAreOneSequence;
}
bool Modality_HasSingleFileSequences(ModalityType modality)
{
    return !RowOf(modality).fFramesAreOneSequence;
}

bool Modality_SeriesIsSingleSequence(std::string_view modality)
{
    return IsSingleSequence(RowOf(modality));
}
bool Modality_SeriesIsSingleSequence(ModalityType modality)
{
    return IsSingleSequence(RowOf(modality));
}

bool Modality_HasCineOnOpen(std::string_view modality) { return RowOf(modality).fCineOnOpen; }
bool Modality_HasCineOnOpen(ModalityType modality) { return RowOf(modality).fCineOnOpen; }

bool Modality_HasMultiLoopCine(std::string_view modality) { return RowOf(modality).fMultiLoopCine; }
bool Modality_HasMultiLoopCine(ModalityType modality) { return RowOf(modality).fMultiLoopCine; }

bool Modality_HasCineAutoplay(std::string_view modality) { return RowOf(modality).fCineAutoplay; }
bool Modality_HasCineAutoplay(ModalityType modality) { return RowOf(modality).fCineAutoplay; }

bool Modality_SupportsLocalizers(std::string_view modality) { return RowOf(modality).fLocalizers; }
bool Modality_SupportsLocalizers(ModalityType modality) { return RowOf(modality).fLocalizers; }

bool Modality_SupportsSplit(std::string_view modality) { return RowOf(modality).fSplit; }
bool Modality_SupportsSplit(ModalityType modality) { return RowOf(modality).fSplit; }

bool Modality_HasDemographics(std::string_view modality) { return RowOf(modality).fDemographics; }
bool Modality_HasDemographics(ModalityType modality) { return RowOf(modality).fDemographics; }

bool Modality_HasScale(std::string_view modality) { return RowOf(modality).fScale; }
bool Modality_HasScale(ModalityType modality) { return RowOf(modality).fScale; }

std::string_view Modality_GetSequenceName(std::string_view modality)
{
    return RowOf(modality).fSequenceName;
}
std::string_view Modality_GetSequenceName(ModalityType modality)
{
    return RowOf(modality).fSequenceName;
}

std::int32_t Modality_GetPreferedIndexGridPosition(std::string_view modality)
{
    return RowOf(modality).fIndexGridPosition;
}
std::int32_t Modality_GetPreferedIndexGridPosition(ModalityType modality)
{
    return RowOf(modality).fIndexGridPosition;
}

void Modality_GetPreferedFrameGridSetup(std::string_view modality, std::int32_t* first,
                                        std::int32_t* second)
{
    TakeGrid(RowOf(modality), first, second);
}
void Modality_GetPreferedFrameGridSetup(ModalityType modality, std::int32_t* first,
                                        std::int32_t* second)
{
    TakeGrid(RowOf(modality), first, second);
}

void DicomUtil_GridSetupForTotalFrames(std::int32_t frames, std::int32_t* first,
                                       std::int32_t* second)
{
    struct Row {
        std::int32_t fUpTo, fFirst, fSecond;
    };
    static constexpr Row kGrids[] = {{0, 0, 0}, {1, 1, 1}, {2, 1, 2},
                                     {4, 2, 2}, {6, 2, 3}, {9, 3, 3}};
    const auto* row = std::ranges::lower_bound(kGrids, frames, {}, &Row::fUpTo);
    const Row grid = row != std::ranges::end(kGrids) ? *row : Row{0, 2, 2};
    *first = grid.fFirst;
    *second = grid.fSecond;
}

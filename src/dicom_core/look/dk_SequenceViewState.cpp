#include "dicom_core/look/dk_SequenceViewState.h"

#include <utility>

namespace {

SequenceAnnotationsMaker& Maker()
{
    static SequenceAnnotationsMaker sMaker;
    return sMaker;
}

}  // namespace

void SetSequenceAnnotationsMaker(SequenceAnnotationsMaker maker) { Maker() = std::move(maker); }

dk_SequenceViewState::dk_SequenceViewState() = default;

dk_SequenceViewState::dk_SequenceViewState(ModalityType modality, std::int32_t frames)
{
    fShowsDemographics = Modality_HasDemographics(modality);
    fShowsScale = Modality_HasScale(modality);
    PrepareSequenceAnnotations(modality);
    GetPreferedGridDims(modality, frames, &fCurrRows, &fCurrColumns);
    fLastRows = fCurrRows;
    fLastColumns = fCurrColumns;
    if (fLastRows == 1 && fLastColumns == 1)
        DicomUtil_GridSetupForTotalFrames(frames, &fLastRows, &fLastColumns);
}

dk_SequenceViewState::dk_SequenceViewState(ModalityType modality, const dk_SequenceViewState& other)
    : fCurrRows(other.fCurrRows),
      fCurrColumns(other.fCurrColumns),
      fLastRows(other.fLastRows),
      fLastColumns(other.fLastColumns),
      fShowsDemographics(other.fShowsDemographics),
      fShowsScale(other.fShowsScale),
      fManualPixelScale(other.fManualPixelScale),
      fShowsDICOMOverlays(other.fShowsDICOMOverlays),
      fShowsMeasurements(other.fShowsMeasurements)
{
    PrepareSequenceAnnotations(modality);
}

void dk_SequenceViewState::PrepareSequenceAnnotations(ModalityType modality)
{
    fAnnotations = Maker() ? Maker()(modality) : nullptr;
    if (!fAnnotations)
        return;
    fAnnotations->SetShowsDemographics(fShowsDemographics);
    fAnnotations->SetShowsScale(fShowsScale);
}

void dk_SequenceViewState::Reset() { *this = dk_SequenceViewState(); }

void dk_SequenceViewState::Revert(ModalityType modality, std::int32_t frames)
{
    *this = dk_SequenceViewState(modality, frames);
}

void dk_SequenceViewState::SetCurrGridDims(std::int32_t rows, std::int32_t columns)
{
    fCurrRows = rows;
    fCurrColumns = columns;
    if (rows == 1 && columns == 1)
        return;
    fLastRows = rows;
    fLastColumns = columns;
}

void dk_SequenceViewState::GetPreferedGridDims(ModalityType modality, std::int32_t frames,
                                               std::int32_t* rows, std::int32_t* columns)
{
    Modality_GetPreferedFrameGridSetup(modality, rows, columns);
    if (*rows == 0 && *columns == 0)
        DicomUtil_GridSetupForTotalFrames(frames, rows, columns);
}

void dk_SequenceViewState::SetShowsDemographics(bool shows)
{
    fShowsDemographics = shows;
    if (fAnnotations)
        fAnnotations->SetShowsDemographics(shows);
}

void dk_SequenceViewState::SetShowsScale(bool shows)
{
    fShowsScale = shows;
    if (fAnnotations)
        fAnnotations->SetShowsScale(shows);
}

void dk_SequenceViewState::SetTextAnnotations(std::unique_ptr<SequenceAnnotations> annotations)
{
    fAnnotations = std::move(annotations);
}

bool dk_SequenceViewState::CellHasAnnotationsToDraw(std::int32_t) const
{
    return (fShowsDemographics || fShowsScale) && fAnnotations != nullptr;
}

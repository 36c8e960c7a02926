// How one sequence is shown as a whole: the shape of its frame matrix, what is drawn over frames,
// the user's calibration. Main thread only.
#pragma once
#include "dicom_core/values/ModalityRules.h"

#include <cstdint>
#include <functional>
#include <memory>

// Text over a frame. Made on a higher floor, which sets the maker.
class SequenceAnnotations {
public:
    virtual ~SequenceAnnotations() = default;
    virtual void SetShowsDemographics(bool shows) = 0;
    virtual void SetShowsScale(bool shows) = 0;
};
using SequenceAnnotationsMaker =
    std::function<std::unique_ptr<SequenceAnnotations>(ModalityType modality)>;
// Called whenever a view state prepares its annotations; none are made without one.
void SetSequenceAnnotationsMaker(SequenceAnnotationsMaker maker);

class dk_SequenceViewState {
public:
    dk_SequenceViewState();
    // All fields of `other` but its annotations, which are prepared anew.
    dk_SequenceViewState(ModalityType modality, const dk_SequenceViewState& other);
    dk_SequenceViewState(ModalityType modality, std::int32_t frames);

    void Reset();  // drops the annotations and clears the fields
    void Revert(ModalityType modality, std::int32_t frames);  // as made with these arguments
    void SetCurrGridDims(std::int32_t rows, std::int32_t columns);
    // The modality's grid, else the one for the number of frames.
    static void GetPreferedGridDims(ModalityType modality, std::int32_t frames, std::int32_t* rows,
                                    std::int32_t* columns);
    void SetShowsDemographics(bool shows);
    void SetShowsScale(bool shows);
    void SetTextAnnotations(std::unique_ptr<SequenceAnnotations> annotations);
    [[nodiscard]] SequenceAnnotations* TextAnnotations() const { return fAnnotations.get(); }
    [[nodiscard]] bool CellHasAnnotationsToDraw(std::int32_t frame) const;

    std::int32_t fCurrRows = 1, fCurrColumns = 1;
    std::int32_t fLastRows = 1, fLastColumns = 1;  // the last shape that was not 1 by 1
    bool fShowsDemographics = false;
    bool fShowsScale = false;
    float fManualPixelScale = 0;  // mm a pixel, by a calibration line; 0 none
    bool fShowsDICOMOverlays = true;
    bool fShowsMeasurements = true;

private:
    void PrepareSequenceAnnotations(ModalityType modality);

    std::unique_ptr<SequenceAnnotations> fAnnotations;
};

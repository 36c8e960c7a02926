// Level 2 of the tree.
#pragma once
#include "dicom_core/tree/dk_SequenceParent.h"

#include <optional>

class dk_Series final : public dk_SequenceParent {
public:
    dk_Series() = default;
    explicit dk_Series(const DicomImageFileRec& record);
    [[nodiscard]] std::string GetDKTitle() override;
    [[nodiscard]] QString CopyDKTitle() override;
    [[nodiscard]] std::int32_t GetDicomTreeLevel() const override { return 2; }
    [[nodiscard]] ModalityType GetModality() override;  // of `fModalityStr`
    [[nodiscard]] std::int32_t GetNumberRepresentatives() override { return GetNumChildren(); }
    [[nodiscard]] std::int32_t GetRepresentativeChildIndex(
        const dk_SequenceBase* sequence) override;
    [[nodiscard]] dk_SequenceBase* GetIndexedSequence(std::int32_t n) override;
    [[nodiscard]] std::int32_t GetNumMarkedSequences();
    // Of every sequence below; false without one.
    [[nodiscard]] bool SeriesIs_XAUS();
    [[nodiscard]] bool SeriesHas_SingleFileSequences();

    BoundedText<256> fSeriesUID;
    std::int32_t fSeriesNumber = 0;
    BoundedText<256> fSeriesDescription;
    std::optional<QString> fWideSeriesDescription;
    BoundedText<256> fBodyPart;
    BoundedText<16> fModalityStr;

private:
    void ReadTitleData(bool wide);
};

// Level 1 of the tree.
#pragma once
#include "dicom_core/tree/dk_SequenceParent.h"

#include <optional>

class dk_Study final : public dk_SequenceParent {
public:
    dk_Study() = default;
    explicit dk_Study(const DicomImageFileRec& record);
    [[nodiscard]] std::string GetDKTitle() override;
    [[nodiscard]] QString CopyDKTitle() override;
    [[nodiscard]] std::int32_t GetDicomTreeLevel() const override { return 1; }
    [[nodiscard]] std::int32_t GetNumberRepresentatives() override;
    [[nodiscard]] std::int32_t GetRepresentativeChildIndex(
        const dk_SequenceBase* sequence) override;
    [[nodiscard]] dk_SequenceBase* GetIndexedSequence(std::int32_t n) override;
    [[nodiscard]] std::int32_t GetNumMarkedSequences();

    BoundedText<256> fStudyUID;
    BoundedText<32> fAccessionNumber;
    BoundedText<64> fStudyID, fStudyDate, fStudyTime;
    BoundedText<256> fStudyDescription;
    std::optional<QString> fWideStudyDescription;

private:
    void ReadTitleData(bool wide);
};

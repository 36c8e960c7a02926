// Level 0 of the tree.
#pragma once
#include "dicom_core/tree/dk_DicomBaseElem.h"

#include <optional>

class dk_Patient final : public dk_DicomBaseElem {
public:
    dk_Patient() = default;
    explicit dk_Patient(const DicomImageFileRec& record);
    [[nodiscard]] std::string GetDKTitle() override;
    [[nodiscard]] QString CopyDKTitle() override;
    [[nodiscard]] std::int32_t GetDicomTreeLevel() const override { return 0; }
    // "Given Family, Middle" from the decoded name; "Anonymized" in the user's language when there
    // is nothing; none only when no name could be had at all.
    [[nodiscard]] virtual std::optional<QString> Copy_ProperPatientName();
    [[nodiscard]] std::int32_t GetNumMarkedSequences();

    std::optional<QString> fWidePatientName;  // decoded with the file's character set
    std::optional<QString> fProperPatientName;
    BoundedText<256> fPatientName, fPatientID;
    BoundedText<16> fPatientSex;

private:
    void ReadTitleData(bool wide);
};

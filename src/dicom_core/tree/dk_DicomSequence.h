// The sequences that an open makes: of DICOM files, and the localizers that were split off one.
#pragma once
#include "dicom_core/tree/dk_SequenceBase.h"

class dk_Sequence : public dk_SequenceBase {
public:
    dk_Sequence() = default;
    explicit dk_Sequence(const DicomImageFileRec& record, bool fromDICOMDIR = false);

    [[nodiscard]] std::unique_ptr<dk_DicomBaseElem> MakeClone() override;
    [[nodiscard]] std::string GetDKTitle() override;
    [[nodiscard]] QString CopyDKTitle() override;
    [[nodiscard]] std::string GetExportTitle() override;
    [[nodiscard]] QString Copy_DK_ExportTitle() override;
    [[nodiscard]] std::string GetDisplayTitle() override;
    [[nodiscard]] QString Copy_DK_DisplayTitle() override;
    [[nodiscard]] ModalityType GetModality() override;
    [[nodiscard]] bool AllParsersLoaded() override;  // latches true
    [[nodiscard]] bool IsDICOM() const override { return true; }
    [[nodiscard]] std::int32_t GetNumberOfFrames() override;
    [[nodiscard]] const std::vector<US_ROIRegDataRec>* GetROIData() override;
    [[nodiscard]] std::int32_t GetROINumber() override;
    [[nodiscard]] bool AllFilesOnDisk() override;  // latches true
    void AppendSequence(dk_SequenceBase* other) override;

    // Display values over the frames that have limits; kQvxBadArgument when none has.
    [[nodiscard]] QvxStatus GetSequenceVOILimits(std::uint32_t* minU, std::int32_t* minS,
                                                 std::uint32_t* maxU, std::int32_t* maxS);
    [[nodiscard]] QvxStatus GetFrameOfReferenceUID(std::int32_t frame,
                                                   std::string* uid);  // 0: current
    [[nodiscard]] std::optional<QString> Copy_ProperPatientName();     // only of a lone file

    // Localizers at the head and the tail.
    [[nodiscard]] bool IsLocalizerSequence();
    [[nodiscard]] bool HasLocalizerFrames();
    [[nodiscard]] bool HasLocalizerSpatialData();
    void CountInSequenceLocalizerFrames();
    [[nodiscard]] std::int32_t CalcTotalLocalizers();
    // Take the frames of `source` before and behind (between) its normal ones, with their settings;
    // files are duplicated, sources shared. `source` must have been counted.
    void ExtractLocalizerFrames(dk_Sequence* source);
    void ExtractNormalFrames(dk_Sequence* source);

    bool fFromDICOMDIR = false;
    std::int32_t fFirstNormalFrame = -1, fLastNormalFrame = -1;  // -1 unknown
    BoundedText<16> fModalityStr;

protected:
    void TakeFrames(dk_Sequence* source, bool normal);

    std::vector<US_ROIRegDataRec> fROIData;
    std::int32_t fROINumber = -1;  // -1 unknown
    bool fAllParsersLoaded = false, fAllFilesOnDisk = false;
};

class dk_LocalaSequence final : public dk_Sequence {
public:
    using dk_Sequence::dk_Sequence;
    [[nodiscard]] bool IsExtracted() const override { return true; }
};

// The two middle bases of the tree: what has a modality, and what shows one frame for each
// sequence.
#pragma once
#include "dicom_core/tree/dk_DicomBaseElem.h"
#include "dicom_core/values/ModalityRules.h"

class dk_SequenceBase;
class zelImageSource;

inline constexpr ModalityType kModalityUnknown = FourCC("    ");
inline constexpr ModalityType kModalityNone = FourCC("none");
inline constexpr ModalityType kModalityPlainFile = FourCC("file");   // no parser to be had
inline constexpr ModalityType kModalityOtherDicom = FourCC("odcm");  // DICOM that states none

class dk_ModalityBaseElem : public dk_DicomBaseElem {
public:
    using dk_DicomBaseElem::dk_DicomBaseElem;
    [[nodiscard]] virtual ModalityType GetModality() { return kModalityNone; }
    [[nodiscard]] virtual bool Is_XAUS() { return false; }
};

class dk_SequenceParent : public dk_ModalityBaseElem {
public:
    using dk_ModalityBaseElem::dk_ModalityBaseElem;
    [[nodiscard]] virtual std::int32_t GetNumberRepresentatives() = 0;
    // Source and frame number within its file of sequence `n`; null and 0 if there is none.
    virtual void GetRepresentativeFrame(std::int32_t n, zelImageSource** source,
                                        std::int32_t* frame);
    [[nodiscard]] virtual std::string GetRepresentativeFrameTitle(std::int32_t n);
    [[nodiscard]] virtual std::int32_t GetRepresentativeChildIndex(
        const dk_SequenceBase* sequence) = 0;
    [[nodiscard]] virtual ModalityType GetRepresentativeFrameModality(std::int32_t n);
    [[nodiscard]] virtual dk_SequenceBase* GetIndexedSequence(std::int32_t n) = 0;
};

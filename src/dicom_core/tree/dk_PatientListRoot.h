// The root of the patient tree: where the tree came from, and counts over its four levels.
#pragma once
#include "dicom_core/tree/dk_DicomBaseElem.h"

class dk_SequenceBase;
class dk_Patient;

class dk_PatientListRoot final : public dk_DicomBaseElem {
public:
    void SetRootIsDICOMDIR(bool isDirectory);
    void SetRootIsFile();
    void SetRootIsImageSource();

    [[nodiscard]] std::int32_t GetNumPatients() const { return GetNumChildren(); }
    [[nodiscard]] std::int32_t GetNumStudies() const { return GetNumOffsprings(1); }
    [[nodiscard]] std::int32_t GetNumSeries() const { return GetNumOffsprings(2); }
    [[nodiscard]] std::int32_t GetNumSequences() const { return GetNumOffsprings(3); }
    [[nodiscard]] std::int32_t GetNumImageFiles() const { return GetNumOffsprings(4); }
    [[nodiscard]] std::int32_t NumberOfGoodSequences();
    // The same up to 4, where counting stops; kept from the first call on.
    [[nodiscard]] std::int32_t NumberOfGoodSequencesFast();
    [[nodiscard]] bool HasManyCineSequencesFast();  // a second sequence of two frames or more
    [[nodiscard]] std::int32_t GetNumMarkedSequences();
    [[nodiscard]] std::int32_t GetNumMarkedCineSequences();
    void MarkAll(bool marked);  // marks good sequences only, clears all
    void SwitchMarked();        // of good sequences only

    // Along first (last) children only; null if any of them is missing.
    [[nodiscard]] dk_SequenceBase* GetFirstSequence_DICOM();
    [[nodiscard]] dk_SequenceBase* GetLastSequence_DICOM();
    [[nodiscard]] dk_SequenceBase* GetFirstGoodSequence_DICOM();
    [[nodiscard]] dk_SequenceBase* GetLastGoodSequence_DICOM();
    [[nodiscard]] dk_SequenceBase* GetIndexedSequence(std::int32_t n);  // below 2: the first

    bool rootIsFile = false;
    bool rootIsFolder = false;
    bool rootIsRecursive = false;
    bool rootIsDICOMDIR = false;
    bool rootIsImageSource = false;
    bool isOnSlowMedia = false;

private:
    int fNumGoodSequencesFast = -1;
};

// Owner of one tree and its surroundings: where it came from, its cache folder, what was left out.
// One thread at a time: the open worker while it fills the tree, the main thread afterwards.
#pragma once
#include "dicom_core/tree/dk_DicomSequence.h"
#include "dicom_core/tree/dk_Patient.h"
#include "dicom_core/tree/dk_PatientListRoot.h"
#include "dicom_core/tree/dk_Series.h"
#include "dicom_core/tree/dk_Study.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

class SequenceProxies;
class PrivateFolder;

// A file that an open did not take, and why, in a few plain words.
struct LeftOutFile {
    std::string path;  // bytes; of a directory record: where it points, or the directory's own
    std::string reason;
};

class ZELDcmTree {
public:
    ZELDcmTree();
    ~ZELDcmTree();  // frees the tree, then removes the cache folder
    ZELDcmTree(const ZELDcmTree&) = delete;
    ZELDcmTree& operator=(const ZELDcmTree&) = delete;

    [[nodiscard]] dk_PatientListRoot* patientTreeRoot() const { return _dicomTreeRoot.get(); }
    [[nodiscard]] const std::string& sourceFilePath() const { return _sourceFilePath; }
    void setSourceFilePath(std::string path) { _sourceFilePath = std::move(path); }
    // Empty without a cache folder.
    [[nodiscard]] std::string fileCopiesFolder() const;
    void setFileCopiesFolder(std::unique_ptr<PrivateFolder> folder);
    void cleanCacheFiles();  // removes the folder with all it holds
    // Answers for proxies and crops; null until someone who shows the tree sets it. Not owned.
    void setSequenceProxies(SequenceProxies* proxies) { _sequenceProxies = proxies; }

    void LeaveOut(std::string path, std::string reason);
    [[nodiscard]] const std::vector<LeftOutFile>& leftOut() const { return _leftOut; }

    // Counts.
    [[nodiscard]] std::int32_t numberOfPatients() const;
    [[nodiscard]] std::int32_t numberOfSequences() const;
    [[nodiscard]] std::int32_t numberOfGoodSequences() const;
    [[nodiscard]] std::int32_t numberOfGoodSequencesFast() const;
    [[nodiscard]] std::int32_t numberOfMarkedSequences() const;
    [[nodiscard]] std::int32_t numberOfHangingSequences() const;
    // First and last.
    [[nodiscard]] dk_Patient* firstPatient() const;
    [[nodiscard]] dk_Study* firstStudy() const;
    [[nodiscard]] dk_Series* firstSeries() const;
    [[nodiscard]] dk_SequenceBase* firstSequence_DICOM() const;
    [[nodiscard]] dk_SequenceBase* lastSequence_DICOM() const;
    [[nodiscard]] dk_SequenceBase* firstGoodSequence_DICOM() const;
    [[nodiscard]] dk_SequenceBase* lastGoodSequence_DICOM() const;
    // Walking; null at the end, and from null.
    [[nodiscard]] dk_SequenceBase* nextSequence_DICOMFrom(dk_SequenceBase* sequence) const;
    [[nodiscard]] dk_SequenceBase* prevSequence_DICOMFrom(dk_SequenceBase* sequence) const;
    [[nodiscard]] dk_SequenceBase* nextGoodSequence_DICOMFrom(dk_SequenceBase* sequence) const;
    [[nodiscard]] dk_SequenceBase* prevGoodSequence_DICOMFrom(dk_SequenceBase* sequence) const;
    // Tests.
    [[nodiscard]] bool hasDICOMSequences() const;
    [[nodiscard]] bool hasGoodSequences() const;
    [[nodiscard]] bool hasSingleGoodSequence() const;
    [[nodiscard]] bool hasMoreThanOneGoodSequences() const;
    [[nodiscard]] bool hasSingleCine() const;
    [[nodiscard]] bool hasMoreThanOneSequences() const;
    [[nodiscard]] bool hasManyCines() const;
    [[nodiscard]] bool hasMarkedSequences() const;
    [[nodiscard]] bool hasUnmarkedSequences() const;
    [[nodiscard]] bool hasMarkedCineSequences() const;
    [[nodiscard]] bool hasCrops() const;
    // Marks, slow media.
    void markAll(bool marked);
    void switchMarked();
    [[nodiscard]] bool isOnSlowMedia() const;
    void SetSlowMediaFlag(bool slow);
    // Proxies, through SequenceProxies; null and no calls without one.
    [[nodiscard]] ZELSequenceProxy* sequenceFor_dkSequence(dk_SequenceBase* sequence) const;
    void U_EnsureZELSequenceIsLoadedFor(dk_SequenceBase* sequence) const;
    void executeForAllSequencesUsingBlock(
        const std::function<void(ZELSequenceProxy*)>& block) const;

private:
    SequenceProxies* _sequenceProxies = nullptr;
    std::unique_ptr<PrivateFolder> _fileCopiesFolder;
    std::unique_ptr<dk_PatientListRoot> _dicomTreeRoot;
    std::string _sourceFilePath;
    std::vector<LeftOutFile> _leftOut;
};

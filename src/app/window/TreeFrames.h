// What a window lists, out of a patient tree.
#pragma once
#include <cstdint>
#include <vector>

class ZELDcmTree;
class dk_DicomBaseElem;
class dk_SequenceBase;

struct TreeRow {
    dk_DicomBaseElem* element = nullptr;  // of the tree, which must outlive the row
    std::int32_t level = 0;  // GetDicomTreeLevel: 0 patient, 1 study, 2 series, 3 sequence
    [[nodiscard]] bool IsSequence() const { return level == 3; }
    [[nodiscard]] dk_SequenceBase* Sequence() const;  // of a row that IsSequence
};

// The good sequences in tree order, each below its patient and series, and below its study where
// the patient has several.
[[nodiscard]] std::vector<TreeRow> RowsOfTree(const ZELDcmTree& tree);

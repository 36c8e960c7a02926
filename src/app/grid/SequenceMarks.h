// The user's marks on many sequences at once. Only good sequences are marked. Main thread only.
#pragma once
#include <vector>

class ZELDcmTree;
class dk_SequenceBase;

enum class SequenceMark { Set, Clear, Switch };

[[nodiscard]] std::vector<dk_SequenceBase*> SequencesOfTree(const ZELDcmTree& tree);
// Those that have changed, whose rows are to be shown anew.
[[nodiscard]] std::vector<dk_SequenceBase*> MarkSequences(
    const ZELDcmTree& tree, const std::vector<dk_SequenceBase*>& sequences, SequenceMark change);
// A good one among them is marked, or is not.
[[nodiscard]] bool HasSequence(const std::vector<dk_SequenceBase*>& sequences, bool marked);

// The user's marks on many sequences at once. Only good sequences are marked, and each row that
// changes is shown anew. Main thread only.
#pragma once
#include <vector>

class GridHost;
class ZELDcmTree;
class dk_SequenceBase;

enum class MarkChange { Mark, Unmark, Switch };

[[nodiscard]] std::vector<dk_SequenceBase*> SequencesOfTree(const ZELDcmTree& tree);
void MarkSequences(GridHost& host, const std::vector<dk_SequenceBase*>& sequences,
                   MarkChange change);
// A good one among them is marked, or is not.
[[nodiscard]] bool HasSequence(const std::vector<dk_SequenceBase*>& sequences, bool marked);

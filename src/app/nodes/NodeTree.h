// The nodes beside a patient tree: patients, studies, then either a series with its clips or the
// sequences themselves. So a CT series is one row, and an ultrasound series a folder of its clips.
#pragma once
#include "app/nodes/DicomElemChildNode.h"

class dk_PatientListRoot;
class dk_Series;

// All nodes of a tree; the root's is their owner. O(n).
[[nodiscard]] std::unique_ptr<DicomElemChildNode> U_NodesOfTree(dk_PatientListRoot* root);
// A leaf for `sequence` at the end of `parent`.
DicomElemChildNode* U_AppendSequenceNode(DicomElemChildNode* parent, dk_SequenceBase* sequence);
// A leaf for each sequence of the series, in order.
void U_LoadSeriesSequences(DicomElemChildNode* parent, dk_Series* series);

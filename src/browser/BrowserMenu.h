// The menu on the browser's rows, and what it does to sequences. Main thread only.
#pragma once
#include "app/grid/SequenceMarks.h"
#include "app/tools/MenuEntry.h"

#include <string>
#include <vector>

class BrowserHost;
class DicomElemChildNode;
class PatTreeDataSource;
class dk_SequenceBase;

struct BrowserMenuTarget {
    PatTreeDataSource* source = nullptr;
    BrowserHost* host = nullptr;
    DicomElemChildNode* clicked = nullptr;  // null: none, or no sequence
    std::vector<DicomElemChildNode*> selected;
    bool isSelected = false;            // the clicked one is among them
    std::function<void()> afterAction;  // runs after each action; may be empty
};

[[nodiscard]] MenuEntry U_BrowserMenu(const BrowserMenuTarget& target);

// Of those that are good; the rows that changed are painted anew.
void U_MarkNodes(PatTreeDataSource* source, const std::vector<DicomElemChildNode*>& nodes,
                 SequenceMark change);

// The file of the sequence's current image, where it came from; empty if there is none.
[[nodiscard]] std::string U_RevealPathOf(dk_SequenceBase* sequence);
void U_RevealInFinder(BrowserHost* host, DicomElemChildNode* node);
void U_RevealNodesInFinder(BrowserHost* host, const std::vector<DicomElemChildNode*>& nodes);

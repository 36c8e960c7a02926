#include "browser/BrowserMenu.h"

#include "browser/PatTreeDataSource.h"
#include "dicom_core/opening/ZELDcmTree.h"
#include "dicom_core/tree/dk_ImageFile.h"
#include "platform/Words.h"

#include <algorithm>

namespace {

using Nodes = std::vector<DicomElemChildNode*>;

MenuEntry Command(const BrowserMenuTarget& target, const char* title, bool enabled,
                  std::function<void()> action)
{
    MenuEntry entry;
    entry.kind = MenuEntry::Kind::Command;
    entry.title = ZelWord(kWordsMenuItems, title);
    entry.enabled = enabled;
    entry.perform = [action = std::move(action), after = target.afterAction](bool) {
        if (action)
            action();
        if (after)
            after();
    };
    return entry;
}

MenuEntry MarkCommand(const BrowserMenuTarget& target, const char* title, bool enabled,
                      const Nodes& nodes, SequenceMark change)
{
    return Command(target, title, enabled,
                   [source = target.source, nodes, change] { U_MarkNodes(source, nodes, change); });
}

bool IsGood(const DicomElemChildNode* node) { return node && node->sequence()->IsGood(); }

void AddSelectionMarks(const BrowserMenuTarget& target, std::vector<MenuEntry>* entries)
{
    const bool several = target.isSelected && target.selected.size() > 1;
    const auto any = [&](bool marked) {
        return several && std::ranges::any_of(target.selected, [marked](auto* node) {
                   return node->userMarked() == marked;
               });
    };
    const auto add = [&](const char* title, bool enabled, SequenceMark change) {
        entries->push_back(MarkCommand(target, title, enabled, target.selected, change));
    };
    add("Mark Selected", any(false), SequenceMark::Set);
    add("Unmark Selected", any(true), SequenceMark::Clear);
    add("Toggle Marked in Selection", several, SequenceMark::Switch);
}

void AddAllMarks(const BrowserMenuTarget& target, std::vector<MenuEntry>* entries)
{
    const ZELDcmTree* tree = target.source->tree();
    const Nodes& all = target.source->sequenceNodes();
    const auto add = [&](const char* title, bool enabled, SequenceMark change) {
        entries->push_back(MarkCommand(target, title, tree && enabled, all, change));
    };
    add("Mark All", tree && tree->hasUnmarkedSequences(), SequenceMark::Set);
    add("Unmark All", tree && tree->hasMarkedSequences(), SequenceMark::Clear);
    add("Toggle Marked", tree && tree->hasGoodSequences(), SequenceMark::Switch);
}

}  // namespace

void U_MarkNodes(PatTreeDataSource* source, const Nodes& nodes, SequenceMark change)
{
    std::vector<dk_SequenceBase*> sequences;
    for (const DicomElemChildNode* node : nodes) {
        if (node)
            sequences.push_back(node->sequence());
    }
    for (dk_SequenceBase* changed : MarkSequences(*source->tree(), sequences, change))
        source->updateNodeForSequence(changed);
}

MenuEntry U_BrowserMenu(const BrowserMenuTarget& target)
{
    MenuEntry menu;
    menu.kind = MenuEntry::Kind::Submenu;
    menu.title = ZelWord(kWordsMenuItems, "Grid Contextual");
    const bool several = target.isSelected && target.selected.size() > 1;
    BrowserHost* host = target.host;
    if (several)
        menu.children.push_back(
            Command(target, "Reveal Selected in Finder", true,
                    [host, nodes = target.selected] { U_RevealNodesInFinder(host, nodes); }));
    else
        menu.children.push_back(
            Command(target, "Reveal in Finder", true,
                    [host, node = target.clicked] { U_RevealInFinder(host, node); }));
    menu.children.emplace_back();
    menu.children.push_back(Command(target, "Mark", false, nullptr));
    const bool marked = target.clicked && target.clicked->userMarked();
    const Nodes clicked = target.clicked ? Nodes{target.clicked} : Nodes{};
    menu.children.push_back(MarkCommand(target, marked ? "Unmark Sequence" : "Mark Sequence",
                                        IsGood(target.clicked), clicked, SequenceMark::Switch));
    menu.children.emplace_back();
    AddSelectionMarks(target, &menu.children);
    menu.children.emplace_back();
    AddAllMarks(target, &menu.children);
    return menu;
}

std::string U_RevealPathOf(dk_SequenceBase* sequence)
{
    dk_ImageFile* file = sequence ? sequence->GetCurrentImageFile() : nullptr;
    if (!file)
        return {};
    if (!file->fSourceSpec.Empty())
        return file->fSourceSpec.fPath;
    if (file->GetSource() && !file->GetSource()->GetDataFile().Empty())
        return file->GetSource()->GetDataFile().fPath;
    return file->fFileSpec.fPath;
}

void U_RevealInFinder(BrowserHost* host, DicomElemChildNode* node)
{
    if (node)
        U_RevealNodesInFinder(host, {node});
}

void U_RevealNodesInFinder(BrowserHost* host, const Nodes& nodes)
{
    std::vector<std::string> paths;
    for (const DicomElemChildNode* node : nodes) {
        std::string path = U_RevealPathOf(node->sequence());
        if (!path.empty() && std::ranges::find(paths, path) == paths.end())
            paths.push_back(std::move(path));
    }
    if (!paths.empty())
        host->revealFiles(paths);
}

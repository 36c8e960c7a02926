// zelora tree PATH [--json] [--recursive=on|off] …
#include "dicom_core/opening/OpenController.h"
#include "dicom_core/opening/ZELDcmTree.h"
#include "dicom_core/progress/NoProgressWindow.h"
#include "dicom_core/tree/dk_ImageFile.h"
#include "platform/AlertWords.h"
#include "prefs/Prefs.h"
#include "tool/CommandLine.h"
#include "tool/TreeOutput.h"
#include "util/Log.h"

#include <array>
#include <sys/stat.h>

namespace {

struct SwitchRow {
    std::string_view fOption;
    const char* fKey;
};
constexpr auto kSwitches = std::to_array<SwitchRow>({
    {"--recursive", "ScanDirectoriesRecursivelyFlag"},
    {"--ignore-dicomdir", "IgnoreDICOMDIRFlag"},
    {"--merge-us", "MergeSingleFrameUSsFlag"},
    {"--merge-xa", "MergeSingleFrameXAsFlag"},
    {"--separate-localizers", "SeparateSequenceLocalizerFrames"},
});

class TreeKeeper final : public OpenObserver {
public:
    bool docIsAlreadyOpen(const ZELRecentDocument&) override { return false; }
    void bringDocWindowToFront(const ZELRecentDocument&) override {}
    void ShowAlertForError(QvxStatus code, const std::string& name) override
    {
        const ZELAlertWords words =
            AlertWordsForError(code, QString::fromStdString(EscapedText(name)));
        fProblem = (words.message + ' ' + words.informative).trimmed().toStdString();
        if (fProblem.empty())
            fProblem = StatusText(code);
    }
    void treeIsReady(std::unique_ptr<ZELDcmTree> tree, const std::string&,
                     const ZELRecentDocument&) override
    {
        fTree = std::move(tree);
    }
    std::unique_ptr<ZELDcmTree> fTree;
    std::string fProblem;
};

// "--name=on" sets the preference for this run. False with `problem` for any other value.
bool TakeSwitch(const std::string& word, const SwitchRow& row, std::string* problem)
{
    const std::string_view value = std::string_view(word).substr(row.fOption.size());
    if (value != "=on" && value != "=off") {
        *problem = std::string(row.fOption) + " wants =on or =off";
        return false;
    }
    prefs_OverrideForRun(row.fKey, value == "=on");
    return true;
}

// Takes the switches out of `words`; false when one is wrong.
bool TakeSwitches(CommandWords words, std::vector<std::string>* others, std::string* problem)
{
    bool onlyPaths = false;
    for (const std::string& word : words) {
        onlyPaths |= word == "--";
        const SwitchRow* found = nullptr;
        for (const SwitchRow& row : kSwitches)
            if (!onlyPaths && word.starts_with(row.fOption))
                found = &row;
        if (!found)
            others->push_back(word);
        else if (!TakeSwitch(word, *found, problem))
            return false;
    }
    return true;
}

}  // namespace

int RunTree(CommandWords words)
{
    std::vector<std::string> others;
    std::string problem;
    prefs_InitializeForApplication();
    if (!TakeSwitches(words, &others, &problem))
        return WrongUsage(problem);
    const ParsedWords parsed = ParseWords(others, {{"--json", false}});
    if (!parsed.fProblem.empty())
        return WrongUsage(parsed.fProblem);
    if (parsed.fPaths.size() != 1)
        return WrongUsage("tree wants one PATH");

    TreeKeeper keeper;
    OpenHost host;
    NoProgressWindow window;
    ZELOpenController controller(&keeper, &host, &window, nullptr);
    gOpenFileCalled = true;  // as from the Open dialog
    controller.basic_openFile(parsed.fPaths[0]);
    if (!keeper.fTree) {
        struct stat info{};
        if (keeper.fProblem.empty() && stat(parsed.fPaths[0].c_str(), &info) != 0)
            return Failure(parsed.fPaths[0], StatusText(errno));
        return Failure(parsed.fPaths[0], keeper.fProblem.empty()
                                             ? "leads to nothing that can be opened"
                                             : keeper.fProblem);
    }
    if (parsed.Has("--json"))
        SayTreeAsJson(*keeper.fTree);
    else
        SayTree(*keeper.fTree);
    return kExitOK;
}

#include "app/window/WindowCommands.h"

#include "app/grid/CineRules.h"
#include "app/grid/SequenceMarks.h"
#include "app/tools/BnCDialogController.h"
#include "app/tools/TargetWatch.h"
#include "dicom_core/opening/ZELDcmTree.h"
#include "dicom_core/tree/dk_SequenceFrameInfo.h"
#include "platform/Words.h"
#include "prefs/Prefs.h"
#include "prefs/PrefsTables.h"

#include <algorithm>

namespace {

using T = WindowTarget;
using C = WindowCommand;
using Mark = WindowCommandState::Mark;

ZELSequenceProxy* Target(const T& t) { return TargetWatch::SequenceOf(*t.host); }
ZELSequenceGridViewModelController* Grid(const T& t)
{
    return t.host->activeSequenceGridController();
}

bool Always(const T&) { return true; }

bool NoCineInTheGrid(const T& t) { return Grid(t) && !Grid(t)->cineModeIsON(); }
bool NoCineAtAll(const T& t) { return !HasCinePlaying(*t.host); }

template <Feature Wanted>
bool Can(const T& t)
{
    return t.panes->hasFeature(Wanted) && NoCineAtAll(t);
}

void DoNothing(const T&) {}

// ---- panes and bars ----

template <bool (WindowPanes::*Shows)() const>
bool Is(const T& t)
{
    return (t.panes->*Shows)();
}

template <void (WindowPanes::*Act)()>
void Do(const T& t)
{
    (t.panes->*Act)();
}

bool HasMeasurements(const T& t) { return t.panes->hasFeature(Feature::Measurements); }
bool HasPalette(const T& t) { return t.panes->hasFeature(Feature::MetadataPalette); }

bool CanTogglePalette(const T& t)
{
    return !t.panes->windowHasSheetOpen() || t.panes->showsMetadataPalette();
}

// ---- marks ----

template <bool (ZELDcmTree::*Question)() const>
bool Tree(const T& t)
{
    return t.host->tree() && (t.host->tree()->*Question)();
}

bool IsMarked(const T& t) { return Target(t) && Target(t)->userMarked(); }

void ChangeMarks(const T& t, const std::vector<dk_SequenceBase*>& sequences, SequenceMark change)
{
    for (dk_SequenceBase* changed : MarkSequences(*t.host->tree(), sequences, change))
        t.host->updateNodeForSequence(changed);
}

template <SequenceMark Change>
void MarkTree(const T& t)
{
    ChangeMarks(t, SequencesOfTree(*t.host->tree()), Change);
}

template <SequenceMark Change>
void MarkSelection(const T& t)
{
    ChangeMarks(t, t.panes->selectedSequences(), Change);
}

bool HasSelection(const T& t) { return t.panes->selectedSequences().size() >= 2; }

template <bool Marked>
bool SelectionHas(const T& t)
{
    return HasSelection(t) && HasSequence(t.panes->selectedSequences(), Marked);
}

void SwitchMark(const T& t)
{
    if (Grid(t) && Target(t) && Target(t)->isGood())
        t.actions->switchSequenceMark(*Grid(t));
}

// ---- resets and colours ----

constexpr std::int32_t kEverything = -1;
constexpr std::int32_t kOrientation = 2, kScrolled = 4;  // what can be reverted

template <std::int32_t Flags>
bool CanRevert(const T& t)
{
    return t.actions->canRevertSeqWithFlags(Flags);
}

template <void (ViewerActions::*Act)()>
void Actions(const T& t)
{
    (t.actions->*Act)();
}

bool CanAdjust(const T& t) { return BnCDialogController::canOpen(*t.host); }

bool IsColorTable(const T& t)
{
    return Target(t) && t.tag >= 0 && t.tag <= prefs_GetNumberOfCLUTs() + 1 && t.tag != 1;
}

bool IsPresentColorTable(const T& t)
{
    return Target(t) && t.panes->multiGridController().currentClutMenuItemID() == t.tag;
}

void SetColorTable(const T& t) { t.panes->multiGridController().setCurrentClutMenuItemID(t.tag); }

// ---- measurements and crops ----

bool CanPropagate(const T& t)
{
    const ZELSequenceProxy* proxy = Target(t);
    const CKShapePtr shape = proxy ? proxy->currentMeasurement() : nullptr;
    return shape && proxy->viewShowsMeasurements() && !shape->_global && proxy->totalFrames() >= 2;
}

bool CanDelete(const T& t)
{
    const CKShapePtr shape = Target(t) ? Target(t)->currentMeasurement() : nullptr;
    return shape && !shape->isCrop();
}

bool FrameHasMeasurements(const T& t)
{
    return Target(t) && Target(t)->currentFrameHasMeasurements();
}

void Propagate(const T& t)
{
    Grid(t)->propagateMeasurement(Target(t)->currentMeasurement(), Target(t)->currentFrame());
}

void Delete(const T& t) { Grid(t)->deleteSelectedMeasurement(); }
void DeleteAll(const T& t) { Grid(t)->deleteAllFrameMeasurements(); }

bool FrameHasCrop(const T& t)
{
    return Target(t) && Target(t)->cropForFrame(ZELSequenceProxy::kCurrentFrame);
}

// Of a list that has the keys, or of the image.
bool CanSelectAll(const T& t)
{
    return t.panes->canSelectAllRows() || (FrameHasCrop(t) && NoCineInTheGrid(t));
}

void SelectAll(const T& t)
{
    if (t.panes->canSelectAllRows())
        t.panes->selectAllRows();
    else
        t.actions->selectWholeImage();
}

bool CanPropagateCrop(const T& t)
{
    return FrameHasCrop(t) && Tree<&ZELDcmTree::hasMoreThanOneGoodSequences>(t);
}

bool HasNoCrops(const T& t) { return Target(t) && !Target(t)->hasCrops(); }

// To every sequence of the tree; null takes all crops away.
void U_ApplyCropToAllSequences(const T& t, const CKShapePtr& crop)
{
    for (dk_SequenceBase* sequence : SequencesOfTree(*t.host->tree())) {
        const auto proxy = t.host->proxyOf(sequence);
        if (crop)
            proxy->setSequenceCrop(crop);
        else
            proxy->clearCrops();
    }
    for (auto* grid : t.host->gridControllers()) {
        grid->removeFrameBuffersForAllFrames();
        if (grid->view())
            grid->view()->setNeedsDisplay();
    }
    t.host->refreshRegionsMenu();
}

void PropagateCrop(const T& t)
{
    U_ApplyCropToAllSequences(t, Target(t)->cropForFrame(ZELSequenceProxy::kCurrentFrame));
}

void ClearCrops(const T& t)
{
    if (t.host->toolBox().currentTool() == kToolCrop)
        t.host->toolBox().U_FreezeTheCrop(*Grid(t));
    U_ApplyCropToAllSequences(t, nullptr);
}

// ---- reference lines, tools, scope ----

bool CanShowLines(const T& t)
{
    return t.panes->multiGridController().localizers().menuItem().enabled;
}
bool ShowsLines(const T& t)
{
    return CanShowLines(t) && t.panes->multiGridController().localizers().showLocalizers();
}
void SwitchLines(const T& t)
{
    t.panes->multiGridController().localizers().showHideLocalizers();
    t.host->refreshToolbarItems();
}

bool IsTool(const T& t)
{
    const bool ready = t.tag != kToolCrop && !ZELToolsController::IsDrawTool(t.tag);
    return ready || HasMeasurements(t);
}
bool IsPresentTool(const T& t) { return t.tools->currentTool() == t.tag; }
void SelectTool(const T& t)
{
    if (t.tag >= kToolWindow)
        t.tools->changeToolTo(t.tag);
    else
        t.tools->selectTool(t.tag);
}

bool IsPresentScope(const T& t)
{
    const std::int32_t scope =
        t.tag == ToolScope::kTagSequence ? ToolScope::kSequence : ToolScope::kFrame;
    return t.host->toolScope().toolScope() == scope;
}
void ChangeScope(const T& t) { t.host->toolScope().changeToolScope(t.tag); }

// ---- cine ----

bool HasPlayer(const T& t) { return t.host->cineStage().isAvailable(); }
bool IsLoop(const T&) { return prefs_CineDoLoop(); }
bool IsSweep(const T&) { return prefs_CineDoSweep(); }
bool IsAutoplay(const T&) { return prefs_HasCineAutoplay(); }
bool TraversesList(const T&) { return prefs_HasCineSeriesPlay(); }

void SwitchLoop(const T&) { IsLoop({}) ? prefs_Set_CineDoNOTLoop() : prefs_Set_CineDoLoop(); }
void SwitchSweep(const T&) { IsSweep({}) ? prefs_Set_CineDoNOTLoop() : prefs_Set_CineDoSweep(); }
void SwitchAutoplay(const T&) { prefs_Set_HasCineAutoplay(!prefs_HasCineAutoplay()); }
void SwitchTraverse(const T&) { prefs_Set_HasCineSeriesPlay(!prefs_HasCineSeriesPlay()); }

bool CanTraverseList(const T& t)
{
    return prefs_HasCineAutoplay() && prefs_CineDoLoop() && Grid(t) &&
           t.host->gridControllers().size() == 1 && Grid(t)->inSingleFrameMode();
}

// ---- the table ----

using Test = bool (*)(const T&);

enum Kind : unsigned char {
    kPlain,    // one title
    kTurned,   // another title while it is on
    kChecked,  // a check mark while it is on
};

struct Row {
    C command;
    Kind kind;
    const char* title;    // key of "MenuItems"; null: by tag
    const char* titleOn;  // of kTurned
    Test isOn, rule, needs;
    void (*perform)(const T&);
    const char* shortcut = nullptr;
};

using W = WindowPanes;
using A = ViewerActions;
using D = ZELDcmTree;
constexpr auto kStill = NoCineInTheGrid;

// clang-format off
constexpr Row kRows[] = {
    // command, kind, titles, whether it is on, its rule, what it needs besides, what it does, key
    {C::Export, kPlain, "Export...", nullptr, nullptr, Can<Feature::Export>, Always, DoNothing, "Ctrl+E"},
    {C::ExportMetadata, kPlain, "Export Metadata...", nullptr, nullptr, Can<Feature::ExportMetadata>, Always, DoNothing},
    {C::Anonymize, kPlain, "Anonymize...", nullptr, nullptr, Can<Feature::Anonymize>, Always, DoNothing},
    {C::Print, kPlain, "Print...", nullptr, nullptr, Can<Feature::Print>, Always, DoNothing, "Ctrl+P"},
    {C::FullScreen, kTurned, "Enter Full Screen", "Exit Full Screen", Is<&W::isInFullScreen>, Always, Always, Do<&W::zelToggleFullScreen>, "F11"},
    {C::Toolbar, kTurned, "Show Toolbar", "Hide Toolbar", Is<&W::showsToolbar>, Always, Always, Do<&W::zelToggleToolbar>, "Ctrl+Shift+B"},
    {C::CustomizeToolbar, kPlain, "Customize Toolbar...", nullptr, nullptr, Always, Always, Do<&W::customizeToolbar>},
    {C::PatientList, kTurned, "Show Patient List", "Hide Patient List", Is<&W::showsPatientList>, Always, Always, Do<&W::showHidePatientList>, "F9"},
    {C::StudyInfo, kTurned, "Show Study Info", "Hide Study Info", Is<&W::showsStudyInfo>, Is<&W::showsPatientList>, Always, Do<&W::showHideStudyInfo>, "Shift+F9"},
    {C::SecondaryToolbar, kTurned, "Show Secondary Toolbar", "Hide Secondary Toolbar", Is<&W::showsZELToolbar>, Always, Always, Do<&W::showHideZELToolbar>, "Ctrl+Shift+T"},
    {C::MeasurementPane, kTurned, "Show Measurement Pane", "Hide Measurement Pane", Is<&W::showsMeasurementInfoBox>, Always, HasMeasurements, Do<&W::showHideMeasurementInfoBox>, "Ctrl+Shift+M"},
    {C::MetadataPalette, kTurned, "Show Metadata Palette", "Hide Metadata Palette", Is<&W::showsMetadataPalette>, CanTogglePalette, HasPalette, DoNothing, "Ctrl+D"},
    {C::SwitchSequenceMark, kTurned, "Mark Current Sequence", "Unmark Current Sequence", IsMarked, Always, Always, SwitchMark, "Ctrl+M"},
    {C::MarkAll, kPlain, "Mark All", nullptr, nullptr, Tree<&D::hasUnmarkedSequences>, Always, MarkTree<SequenceMark::Set>},
    {C::UnmarkAll, kPlain, "Unmark All", nullptr, nullptr, Tree<&D::hasMarkedSequences>, Always, MarkTree<SequenceMark::Clear>},
    {C::SwitchAllMarked, kPlain, "Toggle Marked", nullptr, nullptr, Tree<&D::hasGoodSequences>, Always, MarkTree<SequenceMark::Switch>},
    {C::MarkSelected, kPlain, "Mark Selected", nullptr, nullptr, SelectionHas<false>, Always, MarkSelection<SequenceMark::Set>},
    {C::UnmarkSelected, kPlain, "Unmark Selected", nullptr, nullptr, SelectionHas<true>, Always, MarkSelection<SequenceMark::Clear>},
    {C::SwitchSelectedMarked, kPlain, "Toggle Marked in Selection", nullptr, nullptr, HasSelection, Always, MarkSelection<SequenceMark::Switch>},
    {C::ResetAll, kPlain, "Reset All", nullptr, nullptr, CanRevert<kEverything>, kStill, Actions<&A::resetAllChanges>, "Ctrl+Shift+R"},
    {C::ResetColors, kPlain, "Reset Colors", nullptr, nullptr, CanRevert<kRevertColors>, kStill, Actions<&A::resetColors>},
    {C::ResetOrientation, kPlain, "Reset Orientation", nullptr, nullptr, CanRevert<kOrientation>, kStill, Actions<&A::resetOrientation>},
    {C::ResetFramePosition, kPlain, "Reset Position", nullptr, nullptr, CanRevert<kScrolled>, kStill, Actions<&A::resetFramePosition>},
    {C::ResetMeasurements, kPlain, "Reset Measurements", nullptr, nullptr, CanRevert<kRevertMeasurements>, kStill, Actions<&A::resetMeasurements>},
    {C::AdjustColors, kPlain, "Adjust...", nullptr, nullptr, CanAdjust, kStill, Do<&W::openAdjustColorsDialog>, "Ctrl+Shift+W"},
    {C::OriginalColors, kPlain, "Original Window", nullptr, nullptr, CanAdjust, kStill, Actions<&A::originalWWWLorBnC>, "Ctrl+Shift+O"},
    {C::SetColorTable, kChecked, nullptr, nullptr, IsPresentColorTable, IsColorTable, kStill, SetColorTable},
    {C::PropagateMeasurement, kPlain, "Propagate Measurement", nullptr, nullptr, CanPropagate, kStill, Propagate},
    {C::DeleteMeasurement, kPlain, "Delete Measurement", nullptr, nullptr, CanDelete, kStill, Delete},
    {C::DeleteAllMeasurements, kPlain, "Delete All Measurements", nullptr, nullptr, FrameHasMeasurements, kStill, DeleteAll},
    {C::ReferenceLines, kTurned, "Show Reference Lines", "Hide Reference Lines", ShowsLines, CanShowLines, Always, SwitchLines, "Ctrl+Shift+L"},
    {C::SelectAll, kPlain, "Select All", nullptr, nullptr, CanSelectAll, Always, SelectAll, "Ctrl+A"},
    {C::WholeImage, kChecked, "Whole Image", nullptr, HasNoCrops, FrameHasCrop, kStill, Actions<&A::selectWholeImage>},
    {C::PropagateCrop, kPlain, "Propagate Crop", nullptr, nullptr, CanPropagateCrop, kStill, PropagateCrop},
    {C::ClearCrops, kPlain, "Clear Crop in All Series", nullptr, nullptr, Tree<&D::hasCrops>, kStill, ClearCrops},
    {C::SelectTool, kChecked, nullptr, nullptr, IsPresentTool, IsTool, Always, SelectTool},
    {C::ChangeToolScope, kChecked, nullptr, nullptr, IsPresentScope, Always, Always, ChangeScope},
    {C::CineLoop, kChecked, "Loop", nullptr, IsLoop, NoCineAtAll, HasPlayer, SwitchLoop},
    {C::CineSweep, kChecked, "Sweep", nullptr, IsSweep, NoCineAtAll, HasPlayer, SwitchSweep},
    {C::AutoplayCine, kChecked, "Play Automatically", nullptr, IsAutoplay, Always, HasPlayer, SwitchAutoplay},
    {C::PlaylistTraverse, kChecked, "Play Next Series", nullptr, TraversesList, CanTraverseList, HasPlayer, SwitchTraverse},
};

struct ToolRow {
    int tag;
    const char* title;
    const char* shortcut;
};
// By tag: tools, and what they act on.
constexpr ToolRow kToolRows[] = {
    {kToolSelection, "Select", "V"},
    {kToolZoom, "Zoom Tool", "Z"},
    {kToolPan, "Pan", "P"},
    {kToolWindow, "Window and Level", "W"},
    {kToolCrop, "Crop", "C"},
    {kToolLine, "Line", nullptr},
    {kToolAngle, "Angle", nullptr},
    {kToolRectangle, "Rectangle", nullptr},
    {kToolEllipse, "Ellipse", nullptr},
    {kToolPolygon, "Polygon", nullptr},
    {kToolArrow, "Arrow", nullptr},
    {kToolCalibration, "Calibration Line", nullptr},
    {kToolText, "Text", nullptr},
    {kToolEyedropper, "Eyedropper", nullptr},
    {ToolScope::kTagFrame, "Current Frame", "Shift+S"},
    {ToolScope::kTagSequence, "All Frames of the Sequence", "S"},
};
// clang-format on

constexpr bool RowsAreInTheOrderOfCommands()
{
    for (std::size_t i = 0; i < std::size(kRows); ++i) {
        if (static_cast<std::size_t>(kRows[i].command) != i)
            return false;
    }
    return std::size(kRows) == static_cast<std::size_t>(C::PlaylistTraverse) + 1;
}
static_assert(RowsAreInTheOrderOfCommands());

const ToolRow* ToolRowOf(int tag)
{
    const auto* row = std::ranges::find(kToolRows, tag, &ToolRow::tag);
    return row == std::end(kToolRows) ? nullptr : row;
}

QString TitleOf(const Row& row, const T& t, bool on)
{
    const char* key = row.kind == kTurned && on ? row.titleOn : row.title;
    if (row.command == C::SetColorTable) {
        if (t.tag > 1)
            return QString::fromStdString(prefs_GetColorRampName(t.tag - 1));
        key = "No Color Table";
    }
    if (const ToolRow* tool = key ? nullptr : ToolRowOf(t.tag))
        key = tool->title;
    return key ? ZelWord(kWordsMenuItems, key) : QString();
}

Mark MarkOf(const Row& row, bool on)
{
    if (row.kind != kChecked)
        return Mark::None;
    if (row.command == C::PlaylistTraverse && !(prefs_HasCineAutoplay() && prefs_CineDoLoop()))
        return Mark::Mixed;
    return on ? Mark::On : Mark::Off;
}

const Row& RowOf(C command) { return kRows[static_cast<std::size_t>(command)]; }
bool IsEnabled(const Row& row, const T& t) { return row.needs(t) && row.rule(t); }

}  // namespace

WindowCommandState StateOfWindowCommand(WindowCommand command, const WindowTarget& target)
{
    const Row& row = RowOf(command);
    const bool on = row.isOn && row.isOn(target);
    return {TitleOf(row, target, on), ShortcutOfWindowCommand(command, target.tag),
            IsEnabled(row, target), MarkOf(row, on)};
}

const char* ShortcutOfWindowCommand(WindowCommand command, int tag)
{
    const Row& row = RowOf(command);
    const ToolRow* tool = row.title ? nullptr : ToolRowOf(tag);
    return tool ? tool->shortcut : row.shortcut;
}

void PerformWindowCommand(WindowCommand command, const WindowTarget& target)
{
    const Row& row = RowOf(command);
    if (IsEnabled(row, target))
        row.perform(target);
}

GridTarget ActiveGridTarget(const WindowTarget& target)
{
    return {Grid(target), target.host, target.actions, 0, nullptr, target.tag};
}

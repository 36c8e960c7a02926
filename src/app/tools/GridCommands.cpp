#include "app/tools/GridCommands.h"

#include "app/grid/CineRules.h"
#include "app/tools/GridMenuItems.h"
#include "app/tools/ViewSwitches.h"
#include "dicom_core/opening/ZELDcmTree.h"
#include "prefs/Prefs.h"

#include <algorithm>

namespace {

using Target = GridTarget;
using P = ZELSequenceProxy;

P* ProxyOf(const Target& t) { return t.grid->currZELSequence().get(); }

// What the sequence answers; no without one.
template <auto Question>
bool Is(const Target& t)
{
    return ProxyOf(t) && (ProxyOf(t)->*Question)();
}

bool Always(const Target&) { return true; }
bool Never(const Target&) { return false; }

bool HasFrame(const Target& t)
{
    return ProxyOf(t) && t.frame >= 0 && t.grid->resolved(t.frame) <= ProxyOf(t)->totalFrames() &&
           ProxyOf(t)->totalFrames() > 0;
}

// ---- layouts, shapes of the grid, sequences ----

// The last layout that so many sequences can fill.
int LastLayoutTagFor(std::int32_t sequences)
{
    const int grids = std::min<int>(sequences, kMostGrids);
    int tag = kFirstLayoutTag - 1;
    while (NumGridsForControllerWithID(tag + 1 + kLayoutMenuOffset) > 0 &&
           NumGridsForControllerWithID(tag + 1 + kLayoutMenuOffset) <= grids)
        ++tag;
    return tag;
}

bool IsPresentLayout(const Target& t)
{
    return t.tag + kLayoutMenuOffset == t.host->protocolItemTag();
}

bool LayoutIsOffered(const Target& t)
{
    const ZELDcmTree* tree = t.host->tree();
    return LayoutMenuItemOf(t.tag) && tree && !HasCinePlaying(*t.host) &&
           t.tag <= LastLayoutTagFor(tree->numberOfGoodSequencesFast());
}

void SwitchLayout(const Target& t, bool)
{
    if (!IsPresentLayout(t))
        t.host->switchToSequenceViewWithID(t.tag + kLayoutMenuOffset, true);
}

bool IsImageGrid(const Target& t) { return GridShapeOf(t.tag - kFirstImageGridTag) != nullptr; }
bool IsPresentImageGrid(const Target& t)
{
    return t.grid->gridSetupID() == t.tag - kFirstImageGridTag;
}
bool HasCustomGrid(const Target& t) { return t.grid->gridSetupID() == kCustomGridSetup; }
void SetImageGrid(const Target& t, bool) { t.grid->setGridSetupID(t.tag - kFirstImageGridTag); }
void OpenGridSetup(const Target& t, bool) { t.host->openGridSetupDialog(*t.grid); }

bool HasManyGoodSequences(const Target& t)
{
    return t.host->tree() && t.host->tree()->hasMoreThanOneGoodSequences();
}

template <void (ViewerActions::*Action)(ViewerActions::Grid&)>
void OnGrid(const Target& t, bool)
{
    (t.actions->*Action)(*t.grid);
}

// ---- frames ----

template <FrameStep Step>
void Go(const Target& t, bool)
{
    t.grid->gotoFrame(Step);
}

template <void (ViewerActions::*Action)(ViewerActions::Grid&, std::int32_t)>
void OnFrame(const Target& t, bool)
{
    (t.actions->*Action)(*t.grid, t.frame);
}

template <bool Vertical>
void Flip(const Target& t, bool)
{
    t.actions->flipView(*t.grid, t.frame, Vertical);
}

template <bool Left>
void Rotate(const Target& t, bool)
{
    t.actions->rotateView(*t.grid, t.frame, Left);
}

void Reveal(const Target& t, bool) { t.grid->revealFileForFrame(t.frame); }

// ---- what lies over the frames ----

bool ShowsMeasurements(const Target& t)
{
    return Is<&P::viewShowsMeasurements>(t) && Is<&P::hasMeasurements>(t);
}

bool ShowsUSRegions(const Target& t)
{
    return Is<&P::hasUSRegions>(t) && prefs_Get_ShowsUSRegions();
}

void Demographics(const Target& t, bool option)
{
    SwitchDemographicsForView(*t.host, *t.grid, option);
}

void Scale(const Target& t, bool) { SwitchScaleForView(*t.grid); }
void Overlays(const Target& t, bool) { SwitchDicomOverlaysForView(*t.host, *t.grid); }
void Measurements(const Target& t, bool) { SwitchMeasurementsForView(*t.grid); }
void USRegions(const Target& t, bool) { SwitchUSRegions(*t.host); }

// ---- cine ----

bool IsPlaying(const Target& t) { return t.grid->cineModeIsON(); }
bool HasManyGrids(const Target& t) { return t.host->gridControllers().size() >= 2; }

bool CanPlayAll(const Target& t)
{
    return HasManyGrids(t) && CanPlaySomeCine(*t.host) && !AllCinesArePlaying(*t.host);
}

bool CanStopAll(const Target& t) { return HasManyGrids(t) && HasCinePlaying(*t.host); }
void Play(const Target& t, bool) { t.host->cineStage().startCine(*t.grid, t.frame); }
void Stop(const Target& t, bool) { t.host->cineStage().stopCine(*t.grid); }
void PlayAll(const Target& t, bool) { t.host->cineStage().playAllCines(); }
void StopAll(const Target& t, bool) { t.host->cineStage().stopAllCines(); }

// ---- one measurement ----

bool HasStroke(const Target& t) { return t.shape->canSetStroke() && t.shape->hasStrokeON(); }
bool CanSetStroke(const Target& t) { return t.shape->canSetStroke(); }
bool HasFill(const Target& t) { return t.shape->canSetFill() && t.shape->hasFillON(); }
bool CanSetFill(const Target& t) { return t.shape->canSetFill(); }
bool HasLabel(const Target& t) { return t.shape->_hasDescription && t.shape->_descriptionON; }
bool CanSetLabel(const Target& t) { return t.shape->_hasDescription; }
bool HasShadow(const Target& t) { return t.shape->_shadowON; }

void Redraw(const Target& t) { t.grid->setNeedsDisplayForMeasurement(t.shape->_global, t.frame); }

void Stroke(const Target& t, bool)
{
    t.shape->setHasStrokeON(!t.shape->hasStrokeON());
    Redraw(t);
}

void Fill(const Target& t, bool)
{
    t.shape->setHasFillON(!t.shape->hasFillON());
    Redraw(t);
}

template <bool CKAdornedGraphic::* Switch>
void Turn(const Target& t, bool)
{
    (*t.shape).*Switch = !((*t.shape).*Switch);
    Redraw(t);
}

// From 1; -1 when it isn't there.
std::int32_t StackIndex(const Target& t)
{
    return ProxyOf(t)->measurementIndexForShape(t.shape.get(), t.frame);
}

bool CanRise(const Target& t)
{
    return StackIndex(t) >= 1 && StackIndex(t) < ProxyOf(t)->totalMeasurementsInFrame(t.frame) &&
           ProxyOf(t)->totalFrames() > 1;
}

bool CanSink(const Target& t) { return StackIndex(t) > 1; }

bool CanPropagate(const Target& t) { return !t.shape->_global && ProxyOf(t)->totalFrames() >= 2; }

template <void (ZELSequenceGridViewModelController::*Action)(const CKShapePtr&, std::int32_t)>
void OnShape(const Target& t, bool)
{
    (t.grid->*Action)(t.shape, t.frame);
}

void DeleteAll(const Target& t, bool) { t.grid->deleteAllMeasurementsInFrame(t.frame); }

// ---- the table ----

// What a command needs beside its own rule.
enum Need : unsigned {
    kNothing = 0,
    kStill = 1,   // the grid plays no cine
    kFrame = 2,   // the frame is there
    kPlayer = 4,  // there is something that plays
    kShape = 8,   // a measurement, and its frame
};

using Test = bool (*)(const Target&);
using Act = void (*)(const Target&, bool option);

struct Row {
    GridCommand command;
    const char* title;
    const char* titleOn;  // null: the same, with a check mark
    Test isOn, rule;
    unsigned needs;
    Act perform;
    const char* shortcut = nullptr;
};

// A command with one title,
constexpr Row Plain(GridCommand command, const char* title, Test rule, unsigned needs, Act perform,
                    const char* shortcut = nullptr)
{
    return {command, title, nullptr, Never, rule, needs, perform, shortcut};
}

// one with a check mark while it is on,
constexpr Row Checked(GridCommand command, const char* title, Test isOn, Test rule, unsigned needs,
                      Act perform)
{
    return {command, title, nullptr, isOn, rule, needs, perform};
}

// and one with another title then.
constexpr Row Turned(GridCommand command, const char* title, const char* titleOn, Test isOn,
                     Test rule, unsigned needs, Act perform, const char* key = nullptr)
{
    return {command, title, titleOn, isOn, rule, needs, perform, key};
}

using C = GridCommand;
using V = ViewerActions;
using G = ZELSequenceGridViewModelController;
using K = CKAdornedGraphic;

// clang-format off
constexpr Row kRows[] = {
    // command, titles, whether it is on, its rule, its needs, what it does, key
    Checked(C::SwitchLayout, nullptr, IsPresentLayout, LayoutIsOffered, kNothing, SwitchLayout),
    Checked(C::SetImageGrid, nullptr, IsPresentImageGrid, IsImageGrid, kStill, SetImageGrid),
    Checked(C::OpenGridSetup, "Other...", HasCustomGrid, Always, kStill, OpenGridSetup),
    Plain(C::PreviousSequence, "Previous Sequence", HasManyGoodSequences, kNothing, OnGrid<&V::gotoPreviousSequence>, "Ctrl+Left"),
    Plain(C::NextSequence, "Next Sequence", HasManyGoodSequences, kNothing, OnGrid<&V::gotoNextSequence>, "Ctrl+Right"),
    Turned(C::SwitchSequenceMark, "Mark Sequence", "Unmark Sequence", Is<&P::userMarked>, Always, kNothing, OnGrid<&V::switchSequenceMark>),
    Plain(C::FirstFrame, "First Frame", Is<&P::hasPrevFrame>, kStill, Go<FrameStep::First>, "Home"),
    Plain(C::PreviousFrame, "Previous Frame", Is<&P::hasPrevFrame>, kStill, Go<FrameStep::Previous>, "Left"),
    Plain(C::NextFrame, "Next Frame", Is<&P::hasNextFrame>, kStill, Go<FrameStep::Next>, "Right"),
    Plain(C::LastFrame, "Last Frame", Is<&P::hasNextFrame>, kStill, Go<FrameStep::Last>, "End"),
    Plain(C::Enlarge, "Enlarge", Is<&P::hasNextZoom>, kStill | kFrame, OnFrame<&V::nextZoomValue>, "Ctrl++"),
    Plain(C::Reduce, "Reduce", Is<&P::hasPrevZoom>, kStill | kFrame, OnFrame<&V::prevZoomValue>, "Ctrl+-"),
    Plain(C::NormalSize, "Normal Size", Always, kStill | kFrame, OnFrame<&V::normalZoomValue>, "Ctrl+1"),
    Plain(C::FitInWindow, "Fit in Window", Always, kStill | kFrame, OnFrame<&V::autoFitView>, "Ctrl+0"),
    Plain(C::FlipHorizontal, "Flip Horizontal", Always, kStill | kFrame, Flip<false>, "Ctrl+Shift+H"),
    Plain(C::FlipVertical, "Flip Vertical", Always, kStill | kFrame, Flip<true>, "Ctrl+Shift+V"),
    Plain(C::RotateLeft, "Rotate Left", Always, kStill | kFrame, Rotate<true>, "Ctrl+L"),
    Plain(C::RotateRight, "Rotate Right", Always, kStill | kFrame, Rotate<false>, "Ctrl+R"),
    Plain(C::Invert, "Invert", Always, kStill | kFrame, OnFrame<&V::invertColorsForView>, "Ctrl+I"),
    Turned(C::SwitchDemographics, "Show Demographics", "Hide Demographics", Is<&P::viewShowsDemographics>, Always, kStill, Demographics, "Ctrl+T"),
    Turned(C::SwitchScale, "Show Scale", "Hide Scale", Is<&P::viewShowsScale>, Is<&P::hasScale>, kStill, Scale, "Ctrl+U"),
    Turned(C::SwitchOverlays, "Show Overlays", "Hide Overlays", Is<&P::viewShowsDicomOverlays>, Is<&P::hasDicomOverlays>, kStill, Overlays, "Ctrl+Y"),
    Turned(C::SwitchMeasurements, "Show Measurements", "Hide Measurements", ShowsMeasurements, Is<&P::hasMeasurements>, kStill, Measurements),
    Turned(C::SwitchUSRegions, "Show US Regions", "Hide US Regions", ShowsUSRegions, Is<&P::hasUSRegions>, kStill, USRegions),
    Plain(C::PlayCine, "Play Cine", Is<&P::canPlayCine>, kStill | kFrame | kPlayer, Play, "Space"),
    Plain(C::StopCine, "Stop Cine", IsPlaying, kPlayer, Stop, "Space"),
    Plain(C::PlayAllCines, "Play All", CanPlayAll, kPlayer, PlayAll),
    Plain(C::StopAllCines, "Stop All", CanStopAll, kPlayer, StopAll),
    Plain(C::RevealFile, "Reveal in Finder", Always, kFrame, Reveal),
    Turned(C::SwitchStroke, "Stroke On", "Stroke Off", HasStroke, CanSetStroke, kShape, Stroke),
    Turned(C::SwitchFill, "Fill On", "Fill Off", HasFill, CanSetFill, kShape, Fill),
    Turned(C::SwitchLabel, "Show Label", "Hide Label", HasLabel, CanSetLabel, kShape, Turn<&K::_descriptionON>),
    Turned(C::SwitchShadow, "Shadow On", "Shadow Off", HasShadow, Always, kShape, Turn<&K::_shadowON>),
    Plain(C::BringToFront, "Bring to Front", CanRise, kShape, OnShape<&G::bringMeasurementToFrontInFrame>),
    Plain(C::MoveForward, "Move Forward", CanRise, kShape, OnShape<&G::bringMeasurementForwardInFrame>),
    Plain(C::MoveBackwards, "Move Backwards", CanSink, kShape, OnShape<&G::sendMeasurementBackwardsInFrame>),
    Plain(C::SendToBack, "Send to Back", CanSink, kShape, OnShape<&G::sendMeasurementToBackInFrame>),
    Plain(C::PropagateMeasurement, "Propagate Measurement", CanPropagate, kShape, OnShape<&G::propagateMeasurement>),
    Plain(C::DeleteMeasurement, "Delete Measurement", Always, kShape, OnShape<&G::deleteMeasurementInFrame>),
    Plain(C::DeleteAllMeasurements, "Delete All Measurements", Always, kShape, DeleteAll),
};
// clang-format on

constexpr bool RowsAreInTheOrderOfCommands()
{
    for (std::size_t i = 0; i < std::size(kRows); ++i) {
        if (static_cast<std::size_t>(kRows[i].command) != i)
            return false;
    }
    return std::size(kRows) == static_cast<std::size_t>(C::DeleteAllMeasurements) + 1;
}
static_assert(RowsAreInTheOrderOfCommands());

const Row& RowOf(GridCommand command) { return kRows[static_cast<std::size_t>(command)]; }

bool NeedsAreMet(unsigned needs, const Target& t)
{
    return !((needs & kStill) && t.grid->cineModeIsON()) &&
           !((needs & kPlayer) && !t.host->cineStage().isAvailable()) &&
           !((needs & kFrame) && !HasFrame(t)) && !((needs & kShape) && !(t.shape && HasFrame(t)));
}

bool IsEnabled(const Row& row, const Target& t) { return NeedsAreMet(row.needs, t) && row.rule(t); }

const char* TitleOf(const Row& row, const Target& t, bool on)
{
    if (row.command == C::SwitchLayout)
        return LayoutMenuItemOf(t.tag) ? LayoutMenuItemOf(t.tag)->title : nullptr;
    if (row.command == C::SetImageGrid)
        return IsImageGrid(t)
                   ? kImageGridTitles[static_cast<std::size_t>(t.tag - kFirstImageGridTag)]
                   : nullptr;
    return on && row.titleOn ? row.titleOn : row.title;
}

}  // namespace

GridCommandState StateOfGridCommand(GridCommand command, const GridTarget& target)
{
    const Row& row = RowOf(command);
    const bool needsShape = row.needs & kShape;
    const bool on = (!needsShape || target.shape) && row.isOn(target);
    return {TitleOf(row, target, on), row.shortcut, IsEnabled(row, target), on && !row.titleOn};
}

const char* ShortcutOfGridCommand(GridCommand command) { return RowOf(command).shortcut; }

void PerformGridCommand(GridCommand command, const GridTarget& target, bool option)
{
    const Row& row = RowOf(command);
    if (IsEnabled(row, target))
        row.perform(target, option);
}

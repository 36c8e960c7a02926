#include "app/grid/MultiGridViewController.h"

#include "app/grid/GridNotifications.h"
#include "dicom_core/tree/dk_SequenceBase.h"
#include "dicom_core/values/ModalityRules.h"
#include "prefs/Prefs.h"
#include "util/Log.h"

#include <algorithm>

namespace {

const std::vector<DerivedKey>& ControllerKeys()
{
    static const std::vector<DerivedKey> keys{{"targetSequence", {"activeSequenceGridController"}}};
    return keys;
}

}  // namespace

MultiGridViewController::MultiGridViewController(GridHost* host, int layout)
    : ObservableKeys(ControllerKeys()),
      _host(host),
      _protocolItemTag(layout),
      _activeSequenceGridController(nullptr),
      _localizers(host)
{
    for (int i = 0; i < std::max(NumGridsForControllerWithID(layout), 1); ++i)
        fGridControllerArray.push_back(std::make_unique<Grid>(host));
    _activeSequenceGridController = fGridControllerArray.front().get();
    NotificationCenter& center = NotificationCenter::Default();
    _observations.push_back(center.AddObserver(
        kNoteGridDidChange,
        [this](const Notification& note) { activeGrid_DidChangeNotification(note); }));
    _observations.push_back(
        center.AddObserver(kNoteGridDidChangeSequence, [this](const Notification& note) {
            if (isOfThisWindow(note))
                _localizers.redrawOthers();
        }));
    _observations.push_back(center.AddObserver(
        kNoteFrameDidChange, [this](const Notification& note) { updateForNewFrame(note); }));
    for (const std::string_view name : {kNoteOverlayColorChanged, kNoteActiveCellColorChanged,
                                        kNoteLocalizerColorChanged, kNoteLocalizerChanged})
        _observations.push_back(
            center.AddObserver(name, [this](const Notification&) { redrawAllViews(); }));
}

MultiGridViewController::~MultiGridViewController()
{
    for (const auto& grid : fGridControllerArray)
        grid->prepareToRelease();
}

// ---- the grids ----

std::vector<MultiGridViewController::Grid*> MultiGridViewController::theSequenceViewControllers()
    const
{
    std::vector<Grid*> grids;
    for (const auto& grid : fGridControllerArray)
        grids.push_back(grid.get());
    return grids;
}

std::vector<MultiGridViewController::Proxy> MultiGridViewController::theSequenceProxies() const
{
    std::vector<Proxy> proxies;
    for (const auto& grid : fGridControllerArray)
        proxies.push_back(grid->currZELSequence());
    return proxies;
}

MultiGridViewController::Grid* MultiGridViewController::gridWithNumber(int number) const
{
    return number >= 1 && number <= numGrids()
               ? fGridControllerArray[static_cast<std::size_t>(number - 1)].get()
               : nullptr;
}

int MultiGridViewController::seqGridIDForController(const Grid* grid) const
{
    for (int number = 1; number <= numGrids(); ++number) {
        if (grid && gridWithNumber(number) == grid)
            return number;
    }
    return 0;
}

MultiGridViewController::Grid* MultiGridViewController::controllerWithDkSequence(
    const dk_SequenceBase* sequence) const
{
    for (const auto& grid : fGridControllerArray) {
        if (sequence && grid->curr_dkSequence() == sequence)
            return grid.get();
    }
    return nullptr;
}

// Several proxies may stand for a sequence: those of drags are copies.
MultiGridViewController::Grid* MultiGridViewController::controllerWithSequence(
    const ZELSequenceProxy* proxy) const
{
    return proxy ? controllerWithDkSequence(proxy->theSequence()) : nullptr;
}

int MultiGridViewController::seqGridIDForSequence(const dk_SequenceBase* sequence) const
{
    return seqGridIDForController(controllerWithDkSequence(sequence));
}

// ---- the active one ----

void MultiGridViewController::setActiveSequenceGridController(Grid* grid)
{
    if (grid != _activeSequenceGridController)
        Announce({"activeSequenceGridController"}, [&] { _activeSequenceGridController = grid; });
}

GridSurface* MultiGridViewController::targetGridView() const { return targetGrid()->view(); }

ZELSequenceProxy* MultiGridViewController::targetSequence() const
{
    return targetGrid()->currZELSequence().get();
}

bool MultiGridViewController::isOfThisWindow(const Notification& note) const
{
    return note.userInfo.value(QLatin1String(kKeyWindow)).value<void*>() == _host->windowKey();
}

void MultiGridViewController::activeGrid_DidChangeNotification(const Notification& note)
{
    const void* named = note.userInfo.value(QLatin1String(kKeyNewGridController)).value<void*>();
    const auto grids = theSequenceViewControllers();
    const auto grid = std::ranges::find_if(
        grids, [named](const Grid* each) { return static_cast<const void*>(each) == named; });
    if (!isOfThisWindow(note) || grid == grids.end())
        return;
    Grid* before = _activeSequenceGridController;
    setActiveSequenceGridController(*grid);
    for (const Grid* each : {before, *grid}) {  // their borders
        if (each->view())
            each->view()->setNeedsDisplay();
    }
    _host->refreshRegionsMenu();
    _localizers.redrawOthers();
}

void MultiGridViewController::updateForNewFrame(const Notification& note)
{
    if (note.object && note.object == static_cast<const void*>(targetGridView()))
        _localizers.updateLocalizers();
}

void MultiGridViewController::redrawAllViews()
{
    for (const auto& grid : fGridControllerArray) {
        if (grid->view() && !grid->cineModeIsON())
            grid->view()->setNeedsDisplay();
    }
}

// ---- which sequence stands where ----

void MultiGridViewController::withActiveAside(const std::function<void()>& change)
{
    Grid* active = _activeSequenceGridController;
    Grid empty(_host);
    Grid* aside = &empty;
    if (numGrids() > 1)
        aside = gridWithNumber(active == gridWithNumber(1) ? 2 : 1);
    setActiveSequenceGridController(aside);
    change();
    setActiveSequenceGridController(active);
}

void MultiGridViewController::aroundCrop(Grid& grid, const std::function<void()>& change)
{
    ToolBox& tools = _host->toolBox();
    const bool crops = &grid == targetGrid() && tools.currentTool() == kToolCrop;
    if (crops)
        tools.U_FreezeTheCrop(grid);
    change();
    if (crops)
        tools.U_ActivateTheCrop(grid);
}

void MultiGridViewController::reloadNode(dk_SequenceBase* sequence)
{
    if (sequence)
        _host->updateNodeForSequence(sequence);
}

void MultiGridViewController::takeGridDims(Grid& grid)
{
    if (!grid.curr_dkSequence())
        return;
    const dk_SequenceViewState& state = *grid.curr_dkSequence()->GetViewState();
    grid.setGridRowsTo(state.fCurrRows, state.fCurrColumns, false);
}

void MultiGridViewController::changeSequenceTo(Proxy proxy, Grid& grid)
{
    dk_SequenceBase* before = grid.curr_dkSequence();
    aroundCrop(grid, [&] {
        if (&grid == targetGrid())
            withActiveAside([&] { grid.setCurrZELSequence(proxy); });
        else
            grid.setCurrZELSequence(proxy);
    });
    takeGridDims(grid);
    grid.revealCurrentCell();
    if (grid.view()) {
        grid.view()->viewportDidChange();
        grid.view()->setNeedsDisplay();
    }
    reloadNode(before);
    reloadNode(grid.curr_dkSequence());
}

void MultiGridViewController::U_ActivateSequence(const Proxy& proxy, Grid& grid)
{
    if (!proxy || !proxy->theSequence())
        return;
    const bool isTarget = &grid == targetGrid();
    if (const Grid* where = controllerWithSequence(proxy.get())) {
        if (where != &grid)
            aroundCrop(grid, [&] {
                exchangeActiveSequence(grid.currZELSequence().get(), proxy.get());
                // With nothing to exchange the sequence comes over.
                if (!grid.curr_dkSequence()) {
                    changeSequenceTo(nullptr, *controllerWithSequence(proxy.get()));
                    changeSequenceTo(proxy, grid);
                }
            });
        return;
    }
    if (isTarget && grid.cineModeIsON())
        _host->cineStage().stopCine(grid);
    changeSequenceTo(proxy, grid);
    if (prefs_HasCineAutoplay() && Modality_HasCineAutoplay(proxy->theSequence()->GetModality()) &&
        !grid.cineModeIsON())
        _host->cineStage().startCine(grid, 0);
    if (!grid.cineModeIsON())
        grid.revealCurrentCell();
    _host->refreshToolbarItems();
}

void MultiGridViewController::exchangeActiveSequence(const ZELSequenceProxy* one,
                                                     const ZELSequenceProxy* other)
{
    Grid* first = controllerWithSequence(one);
    Grid* second = controllerWithSequence(other);
    if (!first || !second)
        return;
    const bool firstPlayed = first->cineModeIsON(), secondPlayed = second->cineModeIsON();
    for (Grid* grid : {first, second}) {
        if (grid->cineModeIsON())
            _host->cineStage().stopCine(*grid);
    }
    U_ExchangeSequencesBetweenController(*first, *second);
    reloadNode(first->curr_dkSequence());
    reloadNode(second->curr_dkSequence());
    if (firstPlayed)
        _host->cineStage().startCine(*second, 0);
    if (secondPlayed)
        _host->cineStage().startCine(*first, 0);
    _host->refreshToolbarItems();
}

void MultiGridViewController::U_ExchangeSequencesBetweenController(Grid& one, Grid& other)
{
    if (&one == &other) {
        LogLine("ERROR aController == bController");
        return;
    }
    const Proxy ofOne = one.currZELSequence(), ofOther = other.currZELSequence();
    const auto exchange = [&] {
        one.setCurrZELSequence(ofOther);
        other.setCurrZELSequence(ofOne);
    };
    if (&one == targetGrid() || &other == targetGrid())
        withActiveAside(exchange);
    else
        exchange();
    for (Grid* grid : {&one, &other}) {
        takeGridDims(*grid);
        grid->revealCurrentCell();
        if (grid->view()) {
            grid->view()->viewportDidChange();
            grid->view()->setNeedsDisplay();
        }
    }
}

// ---- values ----

int MultiGridViewController::currentGridMenuID() const { return targetGrid()->gridSetupID(); }
void MultiGridViewController::setCurrentGridMenuID(int setup)
{
    targetGrid()->setGridSetupID(setup);
}

int MultiGridViewController::currentClutMenuItemID() const
{
    const std::int32_t table = targetSequence() ? targetSequence()->currentClutID() : 0;
    return table != 0 ? table + 1 : 0;
}

void MultiGridViewController::setCurrentClutMenuItemID(int item)
{
    if (!targetSequence() || !_host->toolScope().isKnown())
        return;
    targetSequence()->setClutIDTo(item > 0 ? item - 1 : 0, _host->toolScope().isSequence());
    if (targetGridView())
        targetGridView()->setNeedsDisplay();
}

bool MultiGridViewController::currentInvert() const
{
    return targetSequence() && targetSequence()->currentFrameIsInverted();
}

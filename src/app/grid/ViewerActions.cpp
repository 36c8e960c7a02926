// Zoom, turns, windows and what undoes them.
#include "app/grid/ViewerActions.h"

#include "app/grid/ZELSequenceGridViewModelController.h"
#include "dicom_core/look/LocationMaths.h"
#include "dicom_core/tree/dk_SequenceBase.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr std::int32_t kAllFrames = ZELSequenceProxy::kAllFrames;
constexpr std::int16_t kTurnLeft = 270, kTurnRight = 90;

}  // namespace

ViewerActions::ViewerActions(GridHost* host) : fHost(host)
{
    NotificationCenter& center = NotificationCenter::Default();
    fVOI = center.AddObserver(kNoteVOIChanged, [this](const Notification& n) { voiDidChange(n); });
    fBnC = center.AddObserver(kNoteBnCChanged, [this](const Notification& n) { bncDidChange(n); });
    fCenter = center.AddObserver(kNoteImageCenterChanged,
                                 [this](const Notification& n) { panePositionDidChange(n); });
}

ViewerActions::Grid* ViewerActions::gridOf(const void* view) const
{
    for (Grid* grid : fHost->gridControllers()) {
        if (view && static_cast<const void*>(grid->view()) == view)
            return grid;
    }
    return nullptr;
}

ZELSequenceProxy* ViewerActions::activeSequence() const
{
    return target() ? target()->currZELSequence().get() : nullptr;
}

template <typename Change>
bool ViewerActions::inScope(Grid& grid, std::int32_t frame, Change change)
{
    ZELSequenceProxy* proxy = grid.currZELSequence().get();
    if (!proxy || !proxy->theSequence() || !fHost->toolScope().isKnown())
        return false;
    change(*proxy, forAll() ? kAllFrames : frame);
    return true;
}

void ViewerActions::dropPictures(Grid& grid, std::int32_t frame)
{
    if (forAll())
        grid.removeFrameBuffersForAllFrames();
    else
        grid.removeFrameBufferForFrame(frame);
}

void ViewerActions::redraw(Grid& grid, std::int32_t frame)
{
    if (!grid.view())
        return;
    if (forAll())
        grid.view()->setNeedsDisplay();
    else
        grid.view()->setNeedsDisplayForFrame(frame);
}

void ViewerActions::redrawTarget()
{
    if (target())
        redraw(*target(), 0);
}

// ---- zoom ----

void ViewerActions::zoomDidChange(Grid& grid, std::int32_t frame)
{
    redraw(grid, frame);
    if (&grid == target())
        fHost->refreshZoomMenu();
    NotificationCenter::Default().Post(kNoteZoomDidChange, grid.view());
}

void ViewerActions::setZoomTo(double percent, Grid& grid, std::int32_t frame)
{
    Point size;
    double minimum = 1, maximum = 1;
    dk_SequenceBase* sequence = grid.curr_dkSequence();
    if (!sequence || sequence->GetMaxFrameSize(&size))
        size = {};
    QT_ImageZoomLimits(size.h, size.v, &minimum, &maximum);
    const double held = std::clamp(percent, minimum * 100, maximum * 100);
    if (!inScope(grid, frame, [&](ZELSequenceProxy& proxy, std::int32_t selector) {
            proxy.changeZoomForFrame(selector, held);
        }))
        return;
    dropPictures(grid, frame);
    zoomDidChange(grid, frame);
}

void ViewerActions::autoFitView(Grid& grid, std::int32_t frame)
{
    if (!inScope(grid, frame, [](ZELSequenceProxy& proxy, std::int32_t selector) {
            proxy.zoomAutofitForFrame(selector);
        }))
        return;
    if (&grid != target())
        dropPictures(grid, frame);
    zoomDidChange(grid, frame);
}

void ViewerActions::nextZoomValue(Grid& grid, std::int32_t frame)
{
    setZoomTo(U_NextZoomValue(grid.U_ImageZoomForFrame(frame)), grid, frame);
}

void ViewerActions::prevZoomValue(Grid& grid, std::int32_t frame)
{
    setZoomTo(U_PrevZoomValue(grid.U_ImageZoomForFrame(frame)), grid, frame);
}

void ViewerActions::normalZoomValue(Grid& grid, std::int32_t frame) { setZoomTo(100, grid, frame); }

void ViewerActions::doSegmentZoom(int segment)
{
    if (!target())
        return;
    constexpr double kActualSize = 1000;  // tenths of a percent
    const double zoom = target()->U_ImageZoomForFrame(0);
    double percent = 0;
    if (segment == 0)
        percent = U_PrevZoomValue(zoom);
    else if (segment == 2)
        percent = U_NextZoomValue(zoom);
    else if (segment == 1 && std::trunc(zoom * 1000 + 0.5) != kActualSize)
        percent = 100;
    if (percent > 0)
        setZoomTo(percent, *target(), 0);
}

// ---- negative and turns ----

void ViewerActions::invertColorsForView(Grid& grid, std::int32_t frame)
{
    if (!inScope(grid, frame, [](ZELSequenceProxy& proxy, std::int32_t selector) {
            proxy.invertColorsForFrame(selector);
        }))
        return;
    redraw(grid, frame);
    if (&grid == target())
        fHost->refreshToolbarItems();
}

void ViewerActions::flipView(Grid& grid, std::int32_t frame, bool vertical)
{
    if (!inScope(grid, frame, [&](ZELSequenceProxy& proxy, std::int32_t selector) {
            dk_SequenceFrameInfo* table = proxy.theSequence()->GetSequenceFrameInfo();
            if (table && vertical)
                table->VerticalFlipFrame(selector);
            else if (table)
                table->HorizontalFlipFrame(selector);
        }))
        return;
    redraw(grid, frame);
    if (&grid == target())
        fHost->refreshToolbarItems();
}

void ViewerActions::rotateView(Grid& grid, std::int32_t frame, bool toLeft)
{
    if (!inScope(grid, frame, [&](ZELSequenceProxy& proxy, std::int32_t selector) {
            proxy.changeRotationForFrame(selector, toLeft ? kTurnLeft : kTurnRight);
        }))
        return;
    dropPictures(grid, frame);
    redraw(grid, frame);
    if (&grid == target())
        fHost->refreshToolbarItems();
}

// ---- windows and colours of the active grid ----

void ViewerActions::U_ChangeBrightnessTo(double brightnessOrWidth, double contrastOrLevel)
{
    ZELSequenceProxy* proxy = activeSequence();
    if (!proxy || !fHost->toolScope().isKnown())
        return;
    if (proxy->isDICOMGray())
        proxy->changeVOIForAllFrames(forAll(), static_cast<float>(brightnessOrWidth),
                                     static_cast<float>(contrastOrLevel));
    else
        proxy->changeBnCForAllFrames(forAll(), static_cast<std::int32_t>(brightnessOrWidth),
                                     static_cast<std::int32_t>(contrastOrLevel));
    dropPictures(*target(), 0);
    redrawTarget();
    if (forAll())
        fHost->refreshToolbarItems();
}

void ViewerActions::showVOITable(const std::shared_ptr<const zelVOITable>& table)
{
    ZELSequenceProxy* proxy = activeSequence();
    if (!proxy || !table || !proxy->isDICOMGray() || !fHost->toolScope().isKnown())
        return;
    proxy->changeVOITableForAllFrames(forAll(), table);
    dropPictures(*target(), 0);
    redrawTarget();
}

void ViewerActions::voiDidChange(const Notification& note)
{
    if (gridOf(note.object))
        U_ChangeBrightnessTo(note.userInfo.value(QLatin1String(kKeyWWidth)).toDouble(),
                             note.userInfo.value(QLatin1String(kKeyWLevel)).toDouble());
}

void ViewerActions::bncDidChange(const Notification& note)
{
    if (gridOf(note.object))
        U_ChangeBrightnessTo(note.userInfo.value(QLatin1String(kKeyBrightness)).toDouble(),
                             note.userInfo.value(QLatin1String(kKeyContrast)).toDouble());
}

void ViewerActions::panePositionDidChange(const Notification& note)
{
    ZELSequenceProxy* proxy = activeSequence();
    if (!gridOf(note.object) || !proxy || !fHost->toolScope().isKnown())
        return;
    proxy->changeScrollPositionForAllFrames(
        forAll(), {note.userInfo.value(QLatin1String(kKeyPositionX)).toDouble(),
                   note.userInfo.value(QLatin1String(kKeyPositionY)).toDouble()});
    dropPictures(*target(), 0);
    redrawTarget();
}

void ViewerActions::originalWWWLorBnC()
{
    ZELSequenceProxy* proxy = activeSequence();
    if (!proxy || !fHost->toolScope().isKnown())
        return;
    proxy->originalColorsForAllFrames(forAll());
    dropPictures(*target(), 0);
    redrawTarget();
}

void ViewerActions::setCurrentClutID(std::int32_t table)
{
    ZELSequenceProxy* proxy = activeSequence();
    if (!proxy || !fHost->toolScope().isKnown())
        return;
    proxy->setClutIDTo(table, forAll());
    dropPictures(*target(), 0);
    redrawTarget();
}

// ---- resets ----

void ViewerActions::resetColors()
{
    if (!activeSequence())
        return;
    activeSequence()->resetColorsForAllFrames(forAll());
    redrawTarget();
    fHost->refreshToolbarItems();
}

void ViewerActions::resetCLUTs()
{
    if (!activeSequence())
        return;
    activeSequence()->resetCLUTsForAllFrames(forAll());
    redrawTarget();
    fHost->refreshToolbarItems();
}

void ViewerActions::resetOrientation()
{
    if (!activeSequence())
        return;
    activeSequence()->resetOrientationForAllFrames(forAll());
    redrawTarget();
}

namespace {

// The proxy stops at the current frame's own pan, which may be none where others have one.
void CenterFrames(ZELSequenceProxy* proxy, bool all)
{
    proxy->changeScrollPositionForAllFrames(all, {});
    if (dk_SequenceFrameInfo* table = proxy->theSequence()->GetSequenceFrameInfo(); table && all)
        table->SetFrameScroll(kAllFrames, {});
}

}  // namespace

void ViewerActions::resetFramePosition()
{
    if (!activeSequence() || !activeSequence()->theSequence())
        return;
    CenterFrames(activeSequence(), forAll());
    redrawTarget();
}

void ViewerActions::resetMeasurements()
{
    if (!target())
        return;
    if (forAll())
        target()->deleteAllSequenceMeasurements();
    else
        target()->deleteAllFrameMeasurements();
}

void ViewerActions::resetAllChanges()
{
    ZELSequenceProxy* proxy = activeSequence();
    dk_SequenceBase* sequence = proxy ? proxy->theSequence() : nullptr;
    if (!sequence)
        return;
    proxy->resetColorsForAllFrames(forAll());
    proxy->resetOrientationForAllFrames(forAll());
    CenterFrames(proxy, forAll());
    const bool beyondFrame = fHost->toolScope().toolScope() > 0;
    if (beyondFrame) {
        selectWholeImage();
        clearViewState();
    }
    proxy->zoomAutofitForFrame(beyondFrame ? kAllFrames : ZELSequenceProxy::kCurrentFrame);
    resetMeasurements();
    redrawTarget();
    fHost->refreshToolbarItems();
}

// The view of the sequence as it was made: what is shown over frames, calibration, grid, speed.
void ViewerActions::clearViewState()
{
    ZELSequenceProxy& proxy = *activeSequence();
    proxy.Announce({"viewShowsDemographics", "viewShowsScale", "viewShowsMeasurements",
                    "viewShowsDicomOverlays", "viewGridSetupID"},
                   [&] { proxy.theSequence()->ClearViewState(); });
    if (proxy.cineRate() != 1)
        proxy.setCineRate(1);
}

void ViewerActions::selectWholeImage()
{
    ZELSequenceProxy* proxy = activeSequence();
    if (!proxy)
        return;
    ToolBox& tools = fHost->toolBox();
    if (tools.isDrawingCrop() || (tools.currentTool() == kToolCrop && proxy->hasCrops()))
        tools.U_FreezeTheCrop(*target());
    proxy->clearCrops();
    target()->removeFrameBufferForFrame(0);
    redrawTarget();
    fHost->refreshRegionsMenu();
}

bool ViewerActions::canRevertSeqWithFlags(std::int32_t flags) const
{
    ZELSequenceProxy* proxy = activeSequence();
    dk_SequenceBase* sequence = proxy ? proxy->theSequence() : nullptr;
    if (!sequence || !fHost->toolScope().isKnown())
        return false;
    if (forAll())
        return canRevertSequence(flags);
    if (flags == kRevertMeasurements)
        return proxy->currentFrameHasMeasurements();
    const dk_SequenceFrameInfo* table = sequence->GetSequenceFrameInfo();
    const bool any = flags == kRevertAll && proxy->currentFrameHasMeasurements();
    return any || (table && table->CanRevertFrame(ZELSequenceProxy::kCurrentFrame, flags));
}

bool ViewerActions::canRevertSequence(std::int32_t flags) const
{
    const ZELSequenceProxy& proxy = *activeSequence();
    dk_SequenceBase* sequence = proxy.theSequence();
    if (flags == kRevertMeasurements)
        return proxy.hasMeasurements();
    if (flags == kRevertAll) {
        std::int32_t rows = 1, columns = 1;
        const dk_SequenceViewState& state = *sequence->GetViewState();
        dk_SequenceViewState::GetPreferedGridDims(sequence->GetModality(), proxy.totalFrames(),
                                                  &rows, &columns);
        if (state.fManualPixelScale != 0 || state.fCurrRows != rows ||
            state.fCurrColumns != columns || proxy.hasMeasurements() || proxy.hasCrops())
            return true;
    }
    const dk_SequenceFrameInfo* table = sequence->GetSequenceFrameInfo();
    return table && table->CanRevertFrame(kAllFrames, flags);
}

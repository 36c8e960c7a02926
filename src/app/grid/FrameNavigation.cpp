#include "app/grid/FrameNavigation.h"

#include "app/grid/ZELSequenceGridViewModelController.h"

FrameNavigation::FrameNavigation(GridHost* host)
    : fHost(host),
      fShouldChange(NotificationCenter::Default().AddObserver(
          kNoteFrameShouldChange,
          [this](const Notification& note) { handleShouldChangeCurrentFrame(note); })),
      fMeasurementChange(NotificationCenter::Default().AddObserver(
          kNoteMeasurementChange,
          [this](const Notification& note) { handleMeasurementChange(note); }))
{
}

FrameNavigation::Grid* FrameNavigation::gridOf(const void* view) const
{
    for (Grid* grid : fHost->gridControllers()) {
        if (view && static_cast<const void*>(grid->view()) == view)
            return grid;
    }
    return nullptr;
}

void FrameNavigation::postDidChange(const Grid& grid, const QVariantMap& info) const
{
    NotificationCenter::Default().Post(kNoteFrameDidChange, grid.view(), info);
}

void FrameNavigation::handleShouldChangeCurrentFrame(const Notification& note)
{
    Grid* grid = gridOf(note.object);
    if (!grid || !grid->currZELSequence())
        return;
    const std::int32_t frame = note.userInfo.value(QLatin1String(kKeyNewCellIndex)).toInt() + 1;
    if (grid->isTheActiveGrid()) {
        setTargetSequenceFrameTo(frame);
        postDidChange(*grid, note.userInfo);
        return;
    }
    grid->currZELSequence()->setCurrentFrame(frame);
    if (!grid->cineModeIsON())
        grid->U_ScrollGridToPhotoWithIndex(frame - 1);
}

void FrameNavigation::setTargetSequenceFrameTo(std::int32_t frame)
{
    Grid* grid = fHost->activeSequenceGridController();
    if (!grid || !grid->currZELSequence())
        return;
    ZELSequenceProxy& proxy = *grid->currZELSequence();
    GridSurface* view = grid->view();
    const bool still = !grid->cineModeIsON();
    if (still && view) {
        view->closePendingMeasurements(true);
        view->stopEditing();
    }
    if (still)
        proxy.setCurrentAndSelectedMeasurement(nullptr);
    proxy.setCurrentFrame(frame);
    if (still)
        grid->U_ScrollGridToPhotoWithIndex(frame - 1);
    if (view)
        view->setNeedsDisplay();
    if (!still)
        return;
    fHost->refreshZoomMenu();
    fHost->refreshWindowControls();
    fHost->refreshToolbarItems();
    if (view)
        view->updateTrackingAreas();
    if (fHost->toolBox().currentTool() == kToolCrop)
        fHost->toolBox().U_ActivateTheCrop(*grid);
}

void FrameNavigation::gridViewBoundsDidChange(Grid& grid)
{
    const auto index = grid.viewport().leadingPhoto();
    if (!grid.windowIsUsable() || !grid.currZELSequence() || !index)
        return;
    if (*index != grid.currZELSequence()->currentFrame() - 1)
        handleChangeScrollPosition(grid, *index);
}

// In a matrix the active grid's frame doesn't follow the scroll bar.
void FrameNavigation::handleChangeScrollPosition(Grid& grid, int index)
{
    if (grid.isTheActiveGrid()) {
        if (grid.inSingleFrameMode())
            setTargetSequenceFrameTo(index + 1);
        postDidChange(grid, {{QLatin1String(kKeyNewCellIndex), index}});
        return;
    }
    if (grid.currZELSequence()->currentFrame() == index + 1)
        return;
    grid.currZELSequence()->setCurrentFrame(index + 1);
    if (!grid.cineModeIsON())
        grid.U_ScrollGridToPhotoWithIndex(index);
    if (grid.view())
        grid.view()->updateTrackingAreas();
}

void FrameNavigation::handleMeasurementChange(const Notification& note)
{
    Grid* grid = gridOf(note.object);
    const auto shape =
        note.userInfo.value(QLatin1String(kKeyTargetMeasurement)).value<CKShapePtr>();
    if (!grid || !grid->currZELSequence() || !shape || shape->isCalibrationLine())
        return;
    const bool becomesGlobal = shape->_isNew && fHost->toolScope().isSequence() &&
                               grid->currZELSequence()->hasManyFrames();
    if (!becomesGlobal && !shape->_global)
        return;
    const auto action = static_cast<MeasurementAction>(
        note.userInfo.value(QLatin1String(kKeyMeasurementAction)).toInt());
    if (action == MeasurementAction::Added && !shape->_global) {
        grid->appendToAllFrames(shape);
    } else if (action == MeasurementAction::Deleted && shape->_global) {
        ZELSequenceProxy& proxy = *grid->currZELSequence();
        proxy.removeMeasurement(shape, proxy.currentFrame(), true);
    } else {
        return;
    }
    grid->setNeedsDisplayForMeasurement(true, 0);
}

#include "app/tools/ViewSwitches.h"

#include "app/grid/ZELSequenceGridViewModelController.h"
#include "platform/NotificationCenter.h"
#include "prefs/Prefs.h"

namespace {

using Grid = ZELSequenceGridViewModelController;

void Redraw(const Grid& grid)
{
    if (grid.view())
        grid.view()->setNeedsDisplay();
}

void ShowDemographics(Grid& grid, bool shows)
{
    grid.currZELSequence()->setViewShowsDemographics(shows ? 1 : 0);
    Redraw(grid);
}

// The tool bar shows the state of the active grid.
void ToolbarFollows(GridHost& host, const Grid& grid)
{
    if (&grid == host.activeSequenceGridController())
        host.refreshToolbarItems();
}

}  // namespace

void SwitchDemographicsForView(GridHost& host, Grid& grid, bool allGrids)
{
    if (!grid.currZELSequence())
        return;
    const bool shows = !grid.currZELSequence()->viewShowsDemographics();
    ShowDemographics(grid, shows);
    ToolbarFollows(host, grid);
    if (!allGrids)
        return;
    for (Grid* other : host.gridControllers()) {
        if (other->currZELSequence() && other->currZELSequence()->viewShowsDemographics() != shows)
            ShowDemographics(*other, shows);
    }
}

void SwitchScaleForView(Grid& grid)
{
    if (!grid.currZELSequence())
        return;
    grid.currZELSequence()->setViewShowsScale(!grid.currZELSequence()->viewShowsScale());
    Redraw(grid);
}

void SwitchDicomOverlaysForView(GridHost& host, Grid& grid)
{
    if (!grid.currZELSequence())
        return;
    ZELSequenceProxy& proxy = *grid.currZELSequence();
    proxy.setViewShowsDicomOverlays(!proxy.viewShowsDicomOverlays());
    Redraw(grid);
    ToolbarFollows(host, grid);
}

void SwitchMeasurementsForView(Grid& grid)
{
    if (!grid.currZELSequence())
        return;
    ZELSequenceProxy& proxy = *grid.currZELSequence();
    proxy.setViewShowsMeasurements(!proxy.viewShowsMeasurements());
    Redraw(grid);
}

void SwitchUSRegions(GridHost& host)
{
    prefs_Set_ShowsUSRegions(!prefs_Get_ShowsUSRegions());
    NotificationCenter::Default().Post(kNoteUSRegionsShowHide, nullptr);
    for (const Grid* grid : host.gridControllers())
        Redraw(*grid);
}

// Shows and hides what lies over the frames of a grid: of its sequence, but for the regions, which
// are shown or hidden everywhere. Main thread only.
#pragma once
class GridHost;
class ZELSequenceGridViewModelController;

// With `allGrids` the other grids of the window follow where they differ.
void SwitchDemographicsForView(GridHost& host, ZELSequenceGridViewModelController& grid,
                               bool allGrids);
void SwitchScaleForView(ZELSequenceGridViewModelController& grid);
void SwitchDicomOverlaysForView(GridHost& host, ZELSequenceGridViewModelController& grid);
void SwitchMeasurementsForView(ZELSequenceGridViewModelController& grid);
// Told to all windows by kNoteUSRegionsShowHide.
void SwitchUSRegions(GridHost& host);

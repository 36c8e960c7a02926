// How a window's grids come to another frame: views ask by notification, the window decides here.
// Also what happens to measurements that are to stand on every frame. Main thread only.
#pragma once
#include "app/grid/GridHost.h"
#include "app/grid/GridNotifications.h"
#include "platform/NotificationCenter.h"

class FrameNavigation {
public:
    using Grid = ZELSequenceGridViewModelController;

    explicit FrameNavigation(GridHost* host);

    // Grids of other windows are none of its business.
    void handleShouldChangeCurrentFrame(const Notification& note);
    // The frame of the active grid: what was unfinished is ended, nothing stays selected.
    void setTargetSequenceFrameTo(std::int32_t frame);
    // The grid was scrolled: another cell may lead what is seen now.
    void gridViewBoundsDidChange(Grid& grid);
    void handleMeasurementChange(const Notification& note);

private:
    void handleChangeScrollPosition(Grid& grid, int index);
    [[nodiscard]] Grid* gridOf(const void* view) const;  // null: of another window
    void postDidChange(const Grid& grid, const QVariantMap& info) const;

    GridHost* fHost;  // not owned
    NotificationCenter::Observation fShouldChange, fMeasurementChange;
};

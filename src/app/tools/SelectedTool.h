// What another tool means for the window: unfinished shapes go, the crop lets go or takes hold.
// Main thread only.
#pragma once
#include "app/grid/GridHost.h"
#include "platform/NotificationCenter.h"

class ZELToolsController;

class SelectedTool {
public:
    // Both outlive it.
    SelectedTool(GridHost* host, const ZELToolsController* tools);

private:
    void selectedToolDidChange(const Notification& note);

    GridHost* fHost;
    const ZELToolsController* fTools;
    NotificationCenter::Observation fChanged;
};

// What full screen hides of a window, and brings back with it. Main thread only.
#pragma once
#include "app/window/WindowPanes.h"

// Which panes the user wants out of the way.
struct FullScreenWishes {
    bool hideTopbars = false, hideMeasurement = false, hidePatientList = false;
};

class FullScreenPanes {
public:
    explicit FullScreenPanes(WindowPanes* panes) : fPanes(panes) {}
    // Bar and list are turned over whatever they were, so that one that was hidden comes into view.
    void windowWillEnterFullScreen(const FullScreenWishes& wishes);
    void windowWillExitFullScreen(const FullScreenWishes& wishes);

private:
    WindowPanes* fPanes;
    bool fDidSwitchMeasurementPane = false, fDidHideTopbars = false, fDidHidePatientList = false;
};

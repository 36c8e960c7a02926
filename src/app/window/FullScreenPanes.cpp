#include "app/window/FullScreenPanes.h"

#include <utility>

void FullScreenPanes::windowWillEnterFullScreen(const FullScreenWishes& wishes)
{
    if (wishes.hideTopbars) {
        fPanes->showHideZELToolbar();
        fDidHideTopbars = true;
    }
    if (wishes.hideMeasurement && fPanes->showsMeasurementInfoBox()) {
        fPanes->showHideMeasurementInfoBox();
        fDidSwitchMeasurementPane = true;
    }
    if (wishes.hidePatientList) {
        fPanes->showHidePatientList();
        fDidHidePatientList = true;
    }
}

void FullScreenPanes::windowWillExitFullScreen(const FullScreenWishes& wishes)
{
    if (std::exchange(fDidHidePatientList, false) && wishes.hidePatientList)
        fPanes->showHidePatientList();
    if (std::exchange(fDidSwitchMeasurementPane, false) && wishes.hideMeasurement)
        fPanes->showHideMeasurementInfoBox();
    if (std::exchange(fDidHideTopbars, false) && wishes.hideTopbars)
        fPanes->showHideZELToolbar();
}

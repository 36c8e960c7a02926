// The zoom of the active grid's frame, in a box of the tool bar and its menu. No widgets. Main
// thread only.
#pragma once
#include "app/grid/ViewerActions.h"
#include "app/tools/MenuEntry.h"
#include "app/tools/NumberText.h"
#include "app/tools/TargetWatch.h"

class ZELZoomTextBoxController {
public:
    static constexpr int kTagAutoFit = 13;  // 1 to 11 are percents, 12 separates

    // Both outlive the controller. `changed`: the text or the menu is another one.
    ZELZoomTextBoxController(GridHost* host, ViewerActions* actions, std::function<void()> changed);

    [[nodiscard]] QString text() const;  // empty without a sequence
    [[nodiscard]] bool mayEdit() const;
    [[nodiscard]] EditEnd textShouldEndEditing(const QString& typed) const;
    void changeZoomValue(const QString& typed);  // nothing for what was refused

    void setZoomValueTo(double percent);
    void setZoomToAutoFit();
    void setNextZoomValue();
    void setPrevZoomValue();
    void dopopupZoomValue(int tag);
    // The place of a percent among the menu's eleven, from 0; -1 for any other.
    [[nodiscard]] static int menuIDForZoom(double percent);
    [[nodiscard]] std::vector<MenuEntry> updateZoomMenu();

    void retarget() { fWatch.retarget(); }

private:
    void zoomDidChange(const Notification& note);

    GridHost* _gridsController;
    ViewerActions* fActions;
    NotificationCenter::Observation fZoomed;
    TargetWatch fWatch;
};

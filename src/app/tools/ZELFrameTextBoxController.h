// The number of the active grid's frame, in a box of the tool bar. No widgets. Main thread only.
#pragma once
#include "app/tools/NumberText.h"
#include "app/tools/TargetWatch.h"

class ZELFrameTextBoxController {
public:
    // The host outlives the controller. `changed`: the text is another one.
    ZELFrameTextBoxController(GridHost* host, std::function<void()> changed);

    [[nodiscard]] QString text() const;  // "3 of 12"; empty without a sequence
    [[nodiscard]] bool mayEdit() const;  // there is another frame to go to
    [[nodiscard]] EditEnd textShouldEndEditing(const QString& typed) const;
    void dothething(const QString& typed);  // goes there; nothing for what was refused

    void retarget() { fWatch.retarget(); }

private:
    void changeCurrentFrameCine(const Notification& note);
    [[nodiscard]] int frameOf(const QString& typed) const;  // 0 for none of the sequence's

    GridHost* _gridsController;
    std::function<void()> fChanged;
    int fCineFrame = 0;  // that a playing grid shows
    NotificationCenter::Observation fCine;
    TargetWatch fWatch;
};

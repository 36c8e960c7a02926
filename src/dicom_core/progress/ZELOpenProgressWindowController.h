// Decides what a progress window shows: the messages of the worker, the throttle of fast labels,
// the two seconds in which it stays hidden, and the cancel. No widgets. Main thread only.
#pragma once
#include "dicom_core/progress/ExportLevelSettings.h"
#include "dicom_core/progress/ProgressWindow.h"

#include <chrono>

class ZELOpenProgressWindowController {
public:
    using Clock = std::chrono::steady_clock;
    static constexpr std::chrono::milliseconds kLabelPause{351};
    static constexpr std::chrono::milliseconds kHiddenFor{2000};

    explicit ZELOpenProgressWindowController(ProgressWindow* window) : fWindow(window) {}

    // Begins the modal session of `context`, with the window hidden, and handles its message.
    void initOpenProgress(ExportLevelSettings* context);
    // Always 1.
    int processMessage(ZELProgressMessageID message, ExportLevelSettings* context,
                       Clock::time_point now = Clock::now());
    // One turn of the modal session: the user's events, and the window once its time has come.
    // False when the session is to end, since the user cancelled.
    [[nodiscard]] bool runModalSession(const ExportLevelSettings* context,
                                       Clock::time_point now = Clock::now());
    void endModalSession(ExportLevelSettings* context);
    // What the Cancel button does.
    void cancelProcessing();
    void orderOut() { fWindow->orderOut(); }
    [[nodiscard]] bool userCancelled() const { return fUserCancelled; }

private:
    void initProgress(const ExportLevelSettings* context, Clock::time_point now);
    void stopProgress();
    void stepTotalValue(std::int32_t steps);
    void setLimits(const ExportLevelSettings* context);
    void setIndeterminate(bool indeterminate);
    void setValue(double value);
    void setLabel(const QString& text);
    void setLabelThrottled(const QString& text, Clock::time_point now);
    void showTheWindow(const ExportLevelSettings* context);

    ProgressWindow* fWindow;  // not owned
    bool fUserCancelled = false;
    bool fModalStopped = false;
    bool fIndeterminate = false;
    bool fShowPending = false;
    double fValue = 0;
    Clock::time_point fShowAt{}, fLastLabel{};
};

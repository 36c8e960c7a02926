// A progress window that nobody sees.
#pragma once
#include "dicom_core/progress/ProgressWindow.h"

class NoProgressWindow : public ProgressWindow {
public:
    void setTitle(const QString&) override {}
    void setLabel(const QString&) override {}
    void setSubLabel(const QString&) override {}
    void setIndeterminate(bool) override {}
    void setLimits(std::int32_t, std::int32_t) override {}
    void setValue(double) override {}
    void setAnimated(bool) override {}
    void place(double, double, double, double) override {}
    [[nodiscard]] bool screenSize(double*, double*) const override { return false; }
    void orderFront() override {}
    void orderOut() override {}
    void redraw() override {}
    void processEvents() override {}
};

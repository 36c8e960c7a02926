// What the user sees of a long open: what is being opened, how far it is, and a Cancel button.
// Escape and the window's own close button cancel too. When it shows is decided elsewhere. Main
// thread only.
#pragma once
#include "dicom_core/progress/ProgressWindow.h"

#include <QDialog>
#include <functional>

class QLabel;
class QProgressBar;

class OpenProgressWindow final : public QDialog, public ProgressWindow {
public:
    // `cancel` is what the Cancel button does; the window stays until it is ordered out.
    explicit OpenProgressWindow(std::function<void()> cancel);

    void setTitle(const QString& title) override;
    void setLabel(const QString& text) override;
    void setSubLabel(const QString& text) override;
    void setIndeterminate(bool indeterminate) override;
    void setLimits(std::int32_t minimum, std::int32_t maximum) override;
    void setValue(double value) override;
    void setAnimated(bool animated) override;
    void place(double x, double y, double width, double height) override;
    [[nodiscard]] bool screenSize(double* width, double* height) const override;
    void orderFront() override;
    void orderOut() override;
    void redraw() override { update(); }
    // While it is hidden, clicks and keys for other windows wait until the open is over.
    void processEvents() override;

protected:
    void reject() override { _cancel(); }

private:
    void showBar();

    std::function<void()> _cancel;
    QLabel *_title, *_label, *_subLabel;
    QProgressBar* _bar;
    std::int32_t _minimum = 0, _maximum = 100;
    double _value = 0;
    bool _indeterminate = false, _animated = false;
};

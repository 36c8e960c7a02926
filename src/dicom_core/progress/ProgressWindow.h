// What a progress window must be able to do; when it does what is decided elsewhere. Main thread
// only.
#pragma once
#include <QString>
#include <cstdint>

class ProgressWindow {
public:
    virtual ~ProgressWindow() = default;
    virtual void setTitle(const QString& title) = 0;  // what is being opened
    virtual void setLabel(const QString& text) = 0;
    virtual void setSubLabel(const QString& text) = 0;
    virtual void setIndeterminate(bool indeterminate) = 0;
    virtual void setLimits(std::int32_t minimum, std::int32_t maximum) = 0;
    virtual void setValue(double value) = 0;
    virtual void setAnimated(bool animated) = 0;
    // Top left corner from that of the screen, in points.
    virtual void place(double x, double y, double width, double height) = 0;
    [[nodiscard]] virtual bool screenSize(double* width,
                                          double* height) const = 0;  // false: no screen
    virtual void orderFront() = 0;
    virtual void orderOut() = 0;
    virtual void redraw() = 0;
    // Lets the user's events in, without waiting for any.
    virtual void processEvents() = 0;
};

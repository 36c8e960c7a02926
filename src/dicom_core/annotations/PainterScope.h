// A painter's state, put back on every way out; and the colours of the preferences for it.
#pragma once
#include "prefs/PrefsColors.h"

#include <QColor>
#include <QPainter>

class PainterScope {
public:
    explicit PainterScope(QPainter& painter) : fPainter(painter) { fPainter.save(); }
    ~PainterScope() { fPainter.restore(); }
    PainterScope(const PainterScope&) = delete;
    PainterScope& operator=(const PainterScope&) = delete;

private:
    QPainter& fPainter;
};

[[nodiscard]] inline QColor ColorOfHighBytes(const ZELRGBColor& color)
{
    return {color.red >> 8, color.green >> 8, color.blue >> 8};
}

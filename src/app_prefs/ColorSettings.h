// The colours that the user may choose, each with what it is stored by and who is told. No widgets.
// Main thread only.
#pragma once
#include "prefs/PrefsColors.h"

#include <QColor>
#include <span>
#include <string_view>

struct ColorSetting {
    const char* title;  // key of "Preferences"
    ZELColor (*get)();
    void (*set)(const ZELColor& color);
    std::string_view note;  // posted after a change; empty: nobody is told
    const char* noteKey;    // holds the new color, a QColor; null: none does
    bool hasAlpha;          // may be see-through
};

[[nodiscard]] std::span<const ColorSetting> TextAndGridColors();
[[nodiscard]] std::span<const ColorSetting> MeasurementColors();
[[nodiscard]] std::span<const ColorSetting> DicomColors();

[[nodiscard]] QColor ColorOf(const ColorSetting& setting);
// Stores and tells, unless the color is the stored one in the 8 bits a component that can be
// chosen. Its alpha counts where the setting has one, and is 1 elsewhere. True if it was another.
bool ChangeColor(const ColorSetting& setting, const QColor& color);

// Colours among the preferences. Components are 0 to 1, in sRGB, not premultiplied. Stored as data;
// a stored colour that can't be read counts as absent, and is replaced by its default. Any thread.
#pragma once
#include <cstdint>
#include <optional>

class QByteArray;

struct ZELColor {
    double red = 0, green = 0, blue = 0, alpha = 1;
    bool operator==(const ZELColor&) const = default;
};

// 16 bits a component, 0xFFFF being full.
struct ZELRGBColor {
    std::uint16_t red = 0, green = 0, blue = 0;
    bool operator==(const ZELRGBColor&) const = default;
};

// Each component cut to an integer after multiplying by 255, then times 0x101.
[[nodiscard]] ZELRGBColor RGBColorFromColor(const ZELColor& color);
// The low byte of each component over 255, alpha 1.
[[nodiscard]] ZELColor ColorFromRGBColor(const ZELRGBColor& color);

// The stored form. Reading refuses anything but 36 bytes of our own with components of 0 to 1.
[[nodiscard]] QByteArray ArchivedColor(const ZELColor& color);
[[nodiscard]] std::optional<ZELColor> UnarchivedColor(const QByteArray& data);

// Fixed colours.
constexpr ZELColor prefs_Get_BackgroundColor() { return {0, 0, 0, 1}; }
constexpr ZELRGBColor prefs_GetDICOMOverlayColor() { return {0, 0xFFFF, 0xFFFF}; }  // cyan
constexpr ZELColor prefs_Get_MarkedCellColor() { return {0.0784, 0.4314, 0.0, 1}; }

// Frame of the active cell; red.
[[nodiscard]] ZELColor prefs_Get_ActiveCellColor();
void prefs_Set_ActiveCellColor(const ZELColor& color);
[[nodiscard]] ZELColor prefs_Get_InactiveCellColor();   // the active colour at 0.4 of its alpha
[[nodiscard]] ZELColor prefs_Get_InactiveCellColor2();  // at 0.5
// A pure red gives a fixed opaque rose instead, any other colour 0.4 of its alpha.
[[nodiscard]] ZELColor prefs_Get_InactiveCellColor3();

// DICOM overlays; cyan.
[[nodiscard]] ZELColor prefs_Get_OverlaysColor();
void prefs_Set_OverlaysColor(const ZELColor& color);
[[nodiscard]] ZELRGBColor prefs_Get_OverlayColorRGB();

// Text over the image; yellow. The form X answers yellow for a damaged one without storing that.
[[nodiscard]] ZELColor prefs_Get_AnnotationsDefaultColorX();
void prefs_Set_AnnotationsDefaultColorX(const ZELColor& color);
[[nodiscard]] ZELRGBColor prefs_Get_AnnotationsDefaultColor();
void prefs_Set_AnnotationsDefaultColor(const ZELRGBColor& color);  // alpha becomes 1

// Localizer lines; magenta.
[[nodiscard]] ZELColor prefs_Get_LocalizerLinesColorX();
void prefs_Set_LocalizerLinesColorX(const ZELColor& color);
[[nodiscard]] ZELColor prefs_Get_LocalizerLinesCGColorRef();  // the same, for drawing

// Ultrasound regions; magenta.
[[nodiscard]] ZELColor prefs_Get_USRegionsColor();
void prefs_Set_USRegionsColor(const ZELColor& color);

// Measurements: green when selected, yellow outline, see-through blue fill; light gray grid.
[[nodiscard]] ZELColor prefs_Get_SelectedMeasurementColor();
void prefs_Set_SelectedMeasurementColor(const ZELColor& color);
[[nodiscard]] ZELColor prefs_Get_MeasurementStrokeColor();
void prefs_Set_MeasurementStrokeColor(const ZELColor& color);
[[nodiscard]] ZELColor prefs_Get_MeasurementFillColor();
void prefs_Set_MeasurementFillColor(const ZELColor& color);
[[nodiscard]] ZELColor prefs_Get_DrawingGridColor();
void prefs_Set_DrawingGridColor(const ZELColor& color);
// Stores the default of each of the last four that is missing or damaged.
void prefs_RepairMeasurementColors();

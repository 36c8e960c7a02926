#include "prefs/PrefsColors.h"

#include "platform/PreferenceStore.h"
#include "prefs/Prefs.h"
#include "prefs/PrefsAccess.h"

#include <QByteArray>
#include <array>
#include <bit>
#include <cmath>
#include <cstring>

namespace {

constexpr const char* kKeyActive = "ActiveGrid_SelectionColor";
constexpr const char* kKeyOverlay = "DefaultOverlayColor";
constexpr const char* kKeyAnnotation = "DefaultAnnotationColor";
constexpr const char* kKeyLocalizer = "LocalizerLinesColor";
constexpr const char* kKeyUSRegions = "USRegionsColor";
constexpr const char* kKeySelected = "SelectedMeasurementColor";
constexpr const char* kKeyStroke = "MeasurementStrokeColor";
constexpr const char* kKeyFill = "MeasurementFillColor";
constexpr const char* kKeyDrawingGrid = "DefaultDrawingGridColorKey";

constexpr ZELColor kRed{1, 0, 0, 1}, kGreen{0, 1, 0, 1}, kCyan{0, 1, 1, 1};
constexpr ZELColor kYellow{1, 1, 0, 1}, kMagenta{1, 0, 1, 1};
constexpr ZELColor kLightGray{2.0 / 3, 2.0 / 3, 2.0 / 3, 1};
constexpr ZELColor kFillBlue{0.0745, 0.6, 0.8902, 0.3};
constexpr ZELColor kRose{0.9098, 0.5372, 0.5451, 1};

// Four doubles, lowest byte first, behind a mark.
constexpr std::array<char, 4> kMark{'Z', 'C', 'L', '1'};
constexpr int kComponents = 4, kBytesEach = 8;
constexpr int kArchivedSize = static_cast<int>(kMark.size()) + kComponents * kBytesEach;

void AppendNumber(double number, QByteArray* data)
{
    const auto bits = std::bit_cast<std::uint64_t>(number);
    for (int i = 0; i < kBytesEach; ++i)
        data->append(static_cast<char>(bits >> (8 * i) & 0xFF));
}

double NumberAt(const QByteArray& data, int index)
{
    std::uint64_t bits = 0;
    const qsizetype start = static_cast<qsizetype>(kMark.size()) + index * kBytesEach;
    for (int i = kBytesEach - 1; i >= 0; --i)
        bits = bits << 8 | static_cast<unsigned char>(data.at(start + i));
    return std::bit_cast<double>(bits);
}

std::optional<ZELColor> StoredColor(const char* key)
{
    return UnarchivedColor(prefs_Store().Data(key));
}

void StoreColor(const char* key, const ZELColor& color) { Store(key, ArchivedColor(color)); }

ZELColor ColorOrRepaired(const char* key, const ZELColor& usual)
{
    if (const auto color = StoredColor(key))
        return *color;
    StoreColor(key, usual);
    return usual;
}

ZELColor Fainter(ZELColor color, double factor)
{
    color.alpha *= factor;
    return color;
}

// Into 0 to 1; what is no number is 0.
double Clamped(double component) { return component > 0 ? std::fmin(component, 1.0) : 0.0; }

std::uint16_t Component16(double component)
{
    return static_cast<std::uint16_t>(static_cast<int>(Clamped(component) * 255.0) * 0x101);
}

}  // namespace

ZELRGBColor RGBColorFromColor(const ZELColor& color)
{
    return {Component16(color.red), Component16(color.green), Component16(color.blue)};
}

ZELColor ColorFromRGBColor(const ZELRGBColor& color)
{
    const auto part = [](std::uint16_t component) { return (component & 0xFF) / 255.0; };
    return {part(color.red), part(color.green), part(color.blue), 1};
}

QByteArray ArchivedColor(const ZELColor& color)
{
    QByteArray data(kMark.data(), static_cast<qsizetype>(kMark.size()));
    for (const double component : {color.red, color.green, color.blue, color.alpha})
        AppendNumber(Clamped(component), &data);
    return data;
}

std::optional<ZELColor> UnarchivedColor(const QByteArray& data)
{
    if (data.size() != kArchivedSize ||
        std::memcmp(data.constData(), kMark.data(), kMark.size()) != 0)
        return std::nullopt;
    std::array<double, kComponents> parts{};
    for (int i = 0; i < kComponents; ++i) {
        const double part = NumberAt(data, i);
        if (!(part >= 0 && part <= 1))
            return std::nullopt;
        parts[static_cast<std::size_t>(i)] = part;
    }
    return ZELColor{parts[0], parts[1], parts[2], parts[3]};
}

ZELColor prefs_Get_ActiveCellColor() { return ColorOrRepaired(kKeyActive, kRed); }
void prefs_Set_ActiveCellColor(const ZELColor& color) { StoreColor(kKeyActive, color); }
ZELColor prefs_Get_InactiveCellColor() { return Fainter(prefs_Get_ActiveCellColor(), 0.4); }
ZELColor prefs_Get_InactiveCellColor2() { return Fainter(prefs_Get_ActiveCellColor(), 0.5); }

ZELColor prefs_Get_InactiveCellColor3()
{
    const ZELColor active = prefs_Get_ActiveCellColor();
    const bool isPureRed = active.red > 0.985 && active.green < 0.04 && active.blue < 0.015;
    return isPureRed ? kRose : Fainter(active, 0.4);
}

ZELColor prefs_Get_OverlaysColor() { return ColorOrRepaired(kKeyOverlay, kCyan); }
void prefs_Set_OverlaysColor(const ZELColor& color) { StoreColor(kKeyOverlay, color); }
ZELRGBColor prefs_Get_OverlayColorRGB() { return RGBColorFromColor(prefs_Get_OverlaysColor()); }

ZELColor prefs_Get_AnnotationsDefaultColorX()
{
    if (prefs_Store().Has(kKeyAnnotation))
        return StoredColor(kKeyAnnotation).value_or(kYellow);
    StoreColor(kKeyAnnotation, kYellow);
    return kYellow;
}
void prefs_Set_AnnotationsDefaultColorX(const ZELColor& color)
{
    StoreColor(kKeyAnnotation, color);
}
ZELRGBColor prefs_Get_AnnotationsDefaultColor()
{
    return RGBColorFromColor(ColorOrRepaired(kKeyAnnotation, kYellow));
}
void prefs_Set_AnnotationsDefaultColor(const ZELRGBColor& color)
{
    StoreColor(kKeyAnnotation, ColorFromRGBColor(color));
}

ZELColor prefs_Get_LocalizerLinesColorX() { return ColorOrRepaired(kKeyLocalizer, kMagenta); }
void prefs_Set_LocalizerLinesColorX(const ZELColor& color) { StoreColor(kKeyLocalizer, color); }
ZELColor prefs_Get_LocalizerLinesCGColorRef() { return prefs_Get_LocalizerLinesColorX(); }

ZELColor prefs_Get_USRegionsColor() { return ColorOrRepaired(kKeyUSRegions, kMagenta); }
void prefs_Set_USRegionsColor(const ZELColor& color) { StoreColor(kKeyUSRegions, color); }

ZELColor prefs_Get_SelectedMeasurementColor() { return ColorOrRepaired(kKeySelected, kGreen); }
void prefs_Set_SelectedMeasurementColor(const ZELColor& color) { StoreColor(kKeySelected, color); }
ZELColor prefs_Get_MeasurementStrokeColor() { return ColorOrRepaired(kKeyStroke, kYellow); }
void prefs_Set_MeasurementStrokeColor(const ZELColor& color) { StoreColor(kKeyStroke, color); }
ZELColor prefs_Get_MeasurementFillColor() { return ColorOrRepaired(kKeyFill, kFillBlue); }
void prefs_Set_MeasurementFillColor(const ZELColor& color) { StoreColor(kKeyFill, color); }
ZELColor prefs_Get_DrawingGridColor() { return ColorOrRepaired(kKeyDrawingGrid, kLightGray); }
void prefs_Set_DrawingGridColor(const ZELColor& color) { StoreColor(kKeyDrawingGrid, color); }

void prefs_RepairMeasurementColors()
{
    static_cast<void>(prefs_Get_DrawingGridColor());
    static_cast<void>(prefs_Get_MeasurementStrokeColor());
    static_cast<void>(prefs_Get_MeasurementFillColor());
    static_cast<void>(prefs_Get_SelectedMeasurementColor());
}

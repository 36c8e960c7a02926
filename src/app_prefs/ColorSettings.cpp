#include "app_prefs/ColorSettings.h"

#include "app/draw/AnnotationLook.h"
#include "app/grid/MultiGridViewController.h"
#include "platform/NotificationCenter.h"

#include <array>

namespace {

// clang-format off
constexpr std::array<ColorSetting, 2> kTextAndGrid{{
    // title                get                                 set                                 told                        with                    alpha
    {"Text color",          prefs_Get_AnnotationsDefaultColorX, prefs_Set_AnnotationsDefaultColorX, kNoteAnnotationColorChanged, kKeyNewAnnotationColor, false},
    {"Active cell color",   prefs_Get_ActiveCellColor,          prefs_Set_ActiveCellColor,          kNoteActiveCellColorChanged, "NewActiveCellColor",   true},
}};
constexpr std::array<ColorSetting, 2> kMeasurements{{
    // New measurements take them: nobody is told.
    {"Outline color",       prefs_Get_MeasurementStrokeColor,   prefs_Set_MeasurementStrokeColor,   {},                          nullptr,                true},
    {"Fill color",          prefs_Get_MeasurementFillColor,     prefs_Set_MeasurementFillColor,     {},                          nullptr,                true},
}};
constexpr std::array<ColorSetting, 3> kDicom{{
    {"Overlay color",       prefs_Get_OverlaysColor,            prefs_Set_OverlaysColor,            kNoteOverlayColorChanged,    nullptr,                false},
    {"US region color",     prefs_Get_USRegionsColor,           prefs_Set_USRegionsColor,           kNoteUSRegionsColorChange,   nullptr,                false},
    {"Localizer color",     prefs_Get_LocalizerLinesColorX,     prefs_Set_LocalizerLinesColorX,     kNoteLocalizerColorChanged,  "NewLocalizerColor",    false},
}};
// clang-format on

}  // namespace

std::span<const ColorSetting> TextAndGridColors() { return kTextAndGrid; }
std::span<const ColorSetting> MeasurementColors() { return kMeasurements; }
std::span<const ColorSetting> DicomColors() { return kDicom; }

QColor ColorOf(const ColorSetting& setting)
{
    const ZELColor color = setting.get();
    return QColor::fromRgbF(static_cast<float>(color.red), static_cast<float>(color.green),
                            static_cast<float>(color.blue),
                            setting.hasAlpha ? static_cast<float>(color.alpha) : 1.0F);
}

bool ChangeColor(const ColorSetting& setting, const QColor& color)
{
    if (!color.isValid())
        return false;
    QColor wanted = color.toRgb();
    if (!setting.hasAlpha)
        wanted.setAlpha(255);
    if (ColorOf(setting).rgba() == wanted.rgba())
        return false;
    setting.set({double{wanted.redF()}, double{wanted.greenF()}, double{wanted.blueF()},
                 double{wanted.alphaF()}});
    QVariantMap told;
    if (setting.noteKey)
        told.insert(QLatin1String(setting.noteKey), wanted);
    if (!setting.note.empty())
        NotificationCenter::Default().Post(setting.note, nullptr, told);
    return true;
}

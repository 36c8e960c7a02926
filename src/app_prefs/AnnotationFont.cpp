#include "app_prefs/AnnotationFont.h"

#include "app/draw/AnnotationLook.h"
#include "app_prefs/PrefsWords.h"
#include "platform/NotificationCenter.h"
#include "prefs/Prefs.h"

#include <QFontInfo>
#include <algorithm>

QFont AnnotationFont::current()
{
    QFont font(prefs_Get_AnnotationsFontName());
    font.setStyleHint(QFont::Monospace);
    font.setPointSizeF(double{prefs_Get_AnnotationsFontSize()});
    return font;
}

QString AnnotationFont::sampleText()
{
    const double size = double{prefs_Get_AnnotationsFontSize()};
    return PrefsWord("Font sample")
        .arg(QString::number(size, 'f', 1), prefs_Get_AnnotationsFontName());
}

void AnnotationFont::changeFontForInfoText(const QFont& font)
{
    const QString name = font.family();
    // A font given in pixels has no size in points of its own.
    const double points = font.pointSizeF() > 0 ? font.pointSizeF() : QFontInfo(font).pointSizeF();
    const auto size = static_cast<float>(std::max(1, static_cast<int>(points)));
    prefs_Set_AnnotationsFontName(name);
    prefs_Set_AnnotationsFontSize(size);
    NotificationCenter::Default().Post(kNoteAnnotationFontChanged, nullptr,
                                       {{QLatin1String(kKeyNewAnnotationFontName), name},
                                        {QLatin1String(kKeyNewAnnotationFontSize), size}});
}

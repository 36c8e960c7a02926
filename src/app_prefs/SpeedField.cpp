#include "app_prefs/SpeedField.h"

#include "platform/NotificationCenter.h"
#include "prefs/Prefs.h"
#include "prefs/PrefsNotes.h"

#include <algorithm>

namespace {

constexpr int kUsualSpeed = 15;
constexpr qsizetype kMostDigits = 6;  // more than any speed has

// More digits than a number holds are a speed beyond the range like any other.
int SpeedOf(QString digits)
{
    while (digits.size() > 1 && digits.startsWith(QLatin1Char('0')))
        digits.remove(0, 1);
    return digits.left(kMostDigits).toInt();
}

bool IsDigits(const QString& text)
{
    return std::ranges::all_of(text, [](QChar c) { return c >= u'0' && c <= u'9'; });
}

}  // namespace

QString SpeedField::text() { return QString::number(prefs_CineDefaultSpeed()); }

void SpeedField::beginEditing(const QString& text)
{
    fOldText = text;
    fOldValue = text.toInt();
}

QString SpeedField::endEditing(const QString& typed) const
{
    if (!IsDigits(typed))
        return fOldText;
    const bool changed = typed.isEmpty() ? fOldValue != kUsualSpeed : typed != fOldText;
    if (!changed)
        return typed.isEmpty() ? QString::number(kUsualSpeed) : typed;
    prefs_Set_CineDefaultSpeed(typed.isEmpty() ? kUsualSpeed : SpeedOf(typed));
    NotificationCenter::Default().Post(kNoteFPSEnforceSpeedChanged, nullptr);
    return text();
}

#include "platform/LocalDates.h"

#include <QDate>
#include <QLocale>

QString ShortLocalDate(int year, int month, int day)
{
    const QDate date(year, month, day);
    return date.isValid() ? QLocale::system().toString(date, QLocale::ShortFormat) : QString();
}

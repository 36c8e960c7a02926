// Texts of the windows, and text from files made fit for them.
#pragma once
#include "platform/Words.h"
#include "util/Log.h"

#include <QString>
#include <string_view>

[[nodiscard]] inline QString ViewerWord(const char* key) { return ZelWord("Viewer", key); }

// A menu's title with the program's name where it says so.
[[nodiscard]] inline QString U_FixApplicationMenuTitle(QString title)
{
    return title.replace(QLatin1String("productNameXX"),
                         ZelWord("VendorStrings_zel", "MenuProductName"));
}

// Bytes for people: control characters, and bytes that are no UTF-8, as \xNN.
[[nodiscard]] inline QString DisplayText(std::string_view bytes)
{
    return QString::fromStdString(EscapedText(bytes));
}

// A tool tip would take a name with markup in it for rich text.
[[nodiscard]] inline QString PlainToolTip(const QString& text)
{
    return QStringLiteral("<span>%1</span>").arg(text.toHtmlEscaped());
}

// Qt takes a lone "[*]" in a title for the place of its mark for changed documents.
[[nodiscard]] inline QString WindowTitleText(QString text)
{
    return text.replace(QLatin1String("[*]"), QLatin1String("[*][*]"));
}

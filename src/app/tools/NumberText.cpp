#include "app/tools/NumberText.h"

#include <charconv>
#include <cmath>
#include <string>

QString CutAt(const QString& text, std::string_view accepted)
{
    qsizetype length = 0;
    while (length < text.size() && text[length].unicode() < 0x80 &&
           accepted.find(text[length].toLatin1()) != std::string_view::npos)
        ++length;
    return text.left(length);
}

double NumberAtStart(const QString& text)
{
    const std::string bytes = text.toStdString();
    std::string_view rest(bytes);
    if (rest.starts_with('+') && !rest.starts_with("+-"))
        rest.remove_prefix(1);
    double number = 0;
    const auto [end, error] =
        std::from_chars(rest.data(), rest.data() + rest.size(), number, std::chars_format::fixed);
    return error == std::errc() && std::isfinite(number) ? number : 0;
}

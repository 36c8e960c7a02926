// Numbers as people type them into small boxes: what stands behind the first character that a box
// doesn't take is left out, and no number at all is 0. No locale, no exceptions.
#pragma once
#include <QString>
#include <string_view>

inline constexpr std::string_view kDigits = "0123456789";

// The text up to its first character that is none of `accepted` (ASCII).
[[nodiscard]] QString CutAt(const QString& text, std::string_view accepted);
// The number at the begin of the text, of the sign, digits and point that belong to it.
[[nodiscard]] double NumberAtStart(const QString& text);

// What becomes of an edit when the user leaves a box: whether it ends, and what the box shows
// instead of what was typed (null: that).
struct EditEnd {
    bool ends = true;
    QString shows;
};

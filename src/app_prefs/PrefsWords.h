// Words of the preferences window.
#pragma once
#include "platform/Words.h"

#include <QString>

inline constexpr const char* kWordsPreferences = "Preferences";

[[nodiscard]] inline QString PrefsWord(const char* key) { return ZelWord(kWordsPreferences, key); }
// What a control does; every control has such a text, under its own key and this ending.
[[nodiscard]] inline QString PrefsTip(const char* key)
{
    return PrefsWord((std::string(key) + " tip").c_str());
}

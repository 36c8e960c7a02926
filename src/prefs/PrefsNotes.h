// Notifications of changed preferences that rooms of several floors post or observe. The others
// stand beside their observers.
#pragma once
#include <string_view>

// Whether the file's own timing is ignored. The object is the window in which the user chose so,
// null from the preferences window.
inline constexpr std::string_view kNoteFPSEnforceChanged = "Pref_FPSEnforceChanged";
// Another default speed; see prefs_CineDefaultSpeed.
inline constexpr std::string_view kNoteFPSEnforceSpeedChanged = "Pref_FPSEnforceSpeedChanged";

// Words for people, by key from named tables. English is always there; the language of the
// desktop comes first if it has been translated. Any thread.
#pragma once
class QString;

// Keys that are quoted without a table stand in this one.
inline constexpr const char* kWordsMain = "Localizable";
inline constexpr const char* kWordsMenuItems = "MenuItems";
inline constexpr const char* kWordsMeasurements = "Measurements";
inline constexpr const char* kWordsErrors = "ZELErrors";

// The text of `key` in `table`; the key itself if the table lacks it. Formats hold %1, %2, … for
// QString::arg: use its form with several arguments where a text comes from a file, so that a "%1"
// in a patient's name stays what it is. Nothing is loaded before the first call.
[[nodiscard]] QString ZelWord(const char* table, const char* key);

// Dates in the user's own spelling. Any thread.
#pragma once
class QString;

// The short form of the system's locale. Empty for a day that no calendar has.
[[nodiscard]] QString ShortLocalDate(int year, int month, int day);

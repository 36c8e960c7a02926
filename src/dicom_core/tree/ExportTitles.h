// Titles as names of files. Blanks directly behind a sign that is replaced are dropped.
#pragma once
#include <QString>
#include <string>

// "/" and "\" become "-", ":" becomes "_".
[[nodiscard]] std::string NarrowExportTitle(std::string title);
// All three become "_".
[[nodiscard]] QString WideExportTitle(QString title);

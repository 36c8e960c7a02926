// Pictures of color tables. Main thread only.
#pragma once
#include <QImage>

// 256 by 32 pixels, from the table's first entry to its last; black for a number that is none.
// Made once.
[[nodiscard]] const QImage& colorRampImage(int table);
// Menu entries name it as an image.
[[nodiscard]] QString ImageOfColorTable(int table);
[[nodiscard]] int ColorTableOfImage(const QString& image);  // 0 for another image

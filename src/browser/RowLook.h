// What a row of the browser shows, how high it is, and its painting. Lengths are view points.
#pragma once
#include <QImage>
#include <QPalette>
#include <QRect>
#include <QString>
#include <vector>

class QFont;
class QPainter;

inline constexpr int kTextOnlySize = 23;  // and all below kSmallestIcon
inline constexpr int kSmallestIcon = 24, kLargestIcon = 256;
inline constexpr int kIconOnlySize = 257;

[[nodiscard]] constexpr bool IsTextOnly(int iconSize) { return iconSize < kSmallestIcon; }
[[nodiscard]] constexpr bool IsIconOnly(int iconSize) { return iconSize > kLargestIcon; }

inline constexpr int kHeadingHeight = 21;
// Of a sequence's row; `iconHeight` where the thumbnail is kThumbnailSide wide, `outline` the
// width of the whole list.
[[nodiscard]] int U_CalcCellRowHeight(int iconSize, float iconHeight, int outline);

struct RowLook {
    enum class Kind { Patient, Parent, Sequence };
    Kind kind = Kind::Sequence;
    QString title, subtitle, dims;
    int iconSize = kTextOnlySize;
    QImage icon;           // null: none yet
    float iconHeight = 0;  // as above
    int gridID = 0;        // 0 in none
    bool isTarget = false, isMarked = false;
    std::vector<int> gridsBelow;  // of a collapsed row; the target's negative
};

// `base`: the widget's font.
[[nodiscard]] QFont RowFont(const QFont& base, RowLook::Kind kind);
// The row's ground has been painted; `selected`: as selected.
void DrawRow(QPainter* painter, const RowLook& look, const QRect& row, const QFont& base,
             const QPalette& palette, bool selected);

// A circle in the colour of active cells with the number of a grid, 13 by 13 points.
[[nodiscard]] QImage U_ImageForGridID(int grid, double pixelRatio = 1);

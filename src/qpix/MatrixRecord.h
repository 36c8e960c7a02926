// Where a draw puts an image: x' = a x + c y + tx, y' = b x + d y + ty, in pixels of the target.
#pragma once
#include "util/XRect.h"

struct MatrixRecord {
    double a = 1, b = 0, c = 0, d = 1, tx = 0, ty = 0;
    bool operator==(const MatrixRecord&) const = default;

    [[nodiscard]] bool IsTranslation() const { return a == 1 && b == 0 && c == 0 && d == 1; }
    [[nodiscard]] bool IsIdentity() const { return *this == MatrixRecord{}; }
    // Rectangles stay upright rectangles: nothing is turned, slanted or mirrored.
    [[nodiscard]] bool KeepsRectangles() const { return b == 0 && c == 0 && a > 0 && d > 0; }
};

// Where the matrix puts `r`, rounded and pinned to 16 bits. For matrices that keep rectangles.
[[nodiscard]] Rect MapRectByMatrix(const MatrixRecord& matrix, const Rect& r);
// The matrix that maps `from`, which isn't empty, on `to`.
[[nodiscard]] MatrixRecord MatrixOfRects(const Rect& from, const Rect& to);

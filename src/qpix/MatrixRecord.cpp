#include "qpix/MatrixRecord.h"

#include <algorithm>
#include <cmath>

namespace {

std::int16_t Pinned(double value)
{
    return static_cast<std::int16_t>(std::clamp(std::round(value), -32767.0, 32767.0));
}

}  // namespace

Rect MapRectByMatrix(const MatrixRecord& matrix, const Rect& r)
{
    return {Pinned(matrix.d * r.top + matrix.ty), Pinned(matrix.a * r.left + matrix.tx),
            Pinned(matrix.d * r.bottom + matrix.ty), Pinned(matrix.a * r.right + matrix.tx)};
}

MatrixRecord MatrixOfRects(const Rect& from, const Rect& to)
{
    MatrixRecord matrix;
    matrix.a = double(to.right - to.left) / (from.right - from.left);
    matrix.d = double(to.bottom - to.top) / (from.bottom - from.top);
    matrix.tx = to.left - matrix.a * from.left;
    matrix.ty = to.top - matrix.d * from.top;
    return matrix;
}

#include "dicom_core/look/LocationMaths.h"

#include "util/CheckedMath.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

constexpr double kShortestSide = 32, kLongestSide = 32000;  // pixels on screen
constexpr double kSmallestZoom = 1.0 / 20, kGreatestZoom = 16;

double MappedX(double value, double from0, double from1, double to0, double to1)
{
    if (from1 == from0)
        return to0;
    return to0 + (value - from0) / (from1 - from0) * (to1 - to0);
}

// One axis of MapPt. `T` is the type of the coordinates.
template <typename T>
T MappedWhole(std::int64_t value, std::int64_t from0, std::int64_t from1, std::int64_t to0,
              std::int64_t to1)
{
    if (from1 == from0)
        return static_cast<T>(to0);
    constexpr std::int64_t kMin = std::numeric_limits<T>::min(),
                           kMax = std::numeric_limits<T>::max();
    const auto product = CheckedMul(value - from0, to1 - to0);
    if (!product)  // two lengths near 2^32: no whole number holds it, and no frame is that long
        return static_cast<T>(
            std::clamp<double>(std::trunc(MappedX(double(value), double(from0), double(from1),
                                                  double(to0), double(to1))),
                               double(kMin), double(kMax)));
    return static_cast<T>(std::clamp(to0 + *product / (from1 - from0), kMin, kMax));
}

template <typename R>
R Fitted(const R& size, const R& into)
{
    if (EmptyRect(size) || EmptyRect(into))
        return {};
    using T = decltype(R::top);
    using Wide = std::int64_t;
    const Wide intoHeight = Wide{into.bottom} - into.top, intoWidth = Wide{into.right} - into.left;
    const Wide height = std::min(Wide{size.bottom} - size.top, intoHeight);
    const Wide width = std::min(Wide{size.right} - size.left, intoWidth);
    const Wide top = into.top + (intoHeight - height) / 2;
    const Wide left = into.left + (intoWidth - width) / 2;
    return {static_cast<T>(top), static_cast<T>(left), static_cast<T>(top + height),
            static_cast<T>(left + width)};
}

}  // namespace

void QT_ImageZoomLimits(std::int32_t width, std::int32_t height, double* minimum, double* maximum)
{
    *minimum = *maximum = 1;
    if (width <= 0 || height <= 0)
        return;
    const double shorter = std::min(width, height), longer = std::max(width, height);
    *minimum = std::clamp(kShortestSide / shorter, kSmallestZoom, 1.0);
    *maximum = std::clamp(kLongestSide / longer, 1.0, kGreatestZoom);
}

Point MapPt(const Point& point, const Rect& from, const Rect& to)
{
    return {MappedWhole<std::int16_t>(point.v, from.top, from.bottom, to.top, to.bottom),
            MappedWhole<std::int16_t>(point.h, from.left, from.right, to.left, to.right)};
}

LongPoint MapPt(const LongPoint& point, const LongRect& from, const LongRect& to)
{
    return {MappedWhole<std::int32_t>(point.v, from.top, from.bottom, to.top, to.bottom),
            MappedWhole<std::int32_t>(point.h, from.left, from.right, to.left, to.right)};
}

bool TranslateLongLocation(const LongRect& from, const LongRect& to, const LongPoint& point,
                           LongPoint* result)
{
    *result = MapLPt(point, from, to);
    return PointWithinEdges(from, point) && PointWithinEdges(to, *result);
}

bool CGTranslateLocationX(const XRect* from, const XRect* to, const CGPoint* point, XPoint* result)
{
    if (!from || !to || !point || !result)
        return true;
    const XPoint p{point->y, point->x};
    *result = {MappedX(p.v, from->top, from->bottom, to->top, to->bottom),
               MappedX(p.h, from->left, from->right, to->left, to->right)};
    return PointWithinEdges(*from, p) && PointWithinEdges(*to, *result);
}

void FitRectIntoRect(const Rect& size, const Rect& into, Rect* result)
{
    *result = Fitted(size, into);
}

void FitRectIntoRect(const LongRect& size, const LongRect& into, LongRect* result)
{
    *result = Fitted(size, into);
}

CGPoint U_FlipLocation(bool horizontally, bool vertically, const XRect& rect, CGPoint point)
{
    if (horizontally)
        point.x = static_cast<float>(rect.right - rect.left - point.x);
    if (vertically)
        point.y = static_cast<float>(rect.bottom - rect.top - point.y);
    return point;
}

CGPoint U_RotateLocation(int rotation, const XRect& rect, CGPoint point)
{
    const auto width = static_cast<float>(rect.right - rect.left);
    const auto height = static_cast<float>(rect.bottom - rect.top);
    switch (rotation) {
        case 0:
            return point;
        case 90:
            return {point.y, width - point.x};
        case 180:
            return {width - point.x, height - point.y};
        case 270:
            return {height - point.y, point.x};
        default:
            return {};
    }
}

Rect FitRectScaledProp(const Rect& size, const Rect& into, bool centered)
{
    if (EmptyRect(size) || EmptyRect(into))
        return {};
    const double width = size.right - size.left, height = size.bottom - size.top;
    const int roomWidth = into.right - into.left, roomHeight = into.bottom - into.top;
    const double scale = std::min(roomWidth / width, roomHeight / height);
    const int fitWidth = std::clamp(static_cast<int>(std::lround(width * scale)), 1, roomWidth);
    const int fitHeight = std::clamp(static_cast<int>(std::lround(height * scale)), 1, roomHeight);
    const int top = into.top + (centered ? (roomHeight - fitHeight) / 2 : 0);
    const int left = into.left + (centered ? (roomWidth - fitWidth) / 2 : 0);
    return {static_cast<std::int16_t>(top), static_cast<std::int16_t>(left),
            static_cast<std::int16_t>(top + fitHeight), static_cast<std::int16_t>(left + fitWidth)};
}

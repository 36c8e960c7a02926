#include "util/XRect.h"

#include <algorithm>
#include <cmath>

namespace {

std::int16_t Pinned(std::int32_t value)
{
    return static_cast<std::int16_t>(std::clamp(value, -32767, 32767));
}

std::int32_t MapAxis(std::int32_t value, std::int32_t from0, std::int32_t from1, std::int32_t to0,
                     std::int32_t to1)
{
    const double length = double(from1) - from0;
    if (length == 0)
        return to0;
    const double mapped = std::round((double(value) - from0) / length * (double(to1) - to0)) + to0;
    return static_cast<std::int32_t>(std::clamp(mapped, double(INT32_MIN), double(INT32_MAX)));
}

}  // namespace

void SetLRect(LongRect* r, std::int32_t left, std::int32_t top, std::int32_t right,
              std::int32_t bottom)
{
    *r = {top, left, bottom, right};
}

LongRect RectToLRect(const Rect& r) { return {r.top, r.left, r.bottom, r.right}; }

Rect LRectToRect(const LongRect& r)
{
    return {Pinned(r.top), Pinned(r.left), Pinned(r.bottom), Pinned(r.right)};
}

Point LPointToPoint(const LongPoint& p) { return {Pinned(p.v), Pinned(p.h)}; }

void OffsetLRect(LongRect* r, std::int32_t dh, std::int32_t dv)
{
    *r = {r->top + dv, r->left + dh, r->bottom + dv, r->right + dh};
}

bool LPointInLRect(const LongPoint& p, const LongRect& r)
{
    return p.v >= r.top && p.v < r.bottom && p.h >= r.left && p.h < r.right;
}

bool SectLRect(const LongRect& a, const LongRect& b, LongRect* result)
{
    const LongRect common{std::max(a.top, b.top), std::max(a.left, b.left),
                          std::min(a.bottom, b.bottom), std::min(a.right, b.right)};
    const bool any = !EmptyRect(common);
    *result = any ? common : LongRect{};
    return any;
}

LongRect UnionLRect(const LongRect& a, const LongRect& b)
{
    return {std::min(a.top, b.top), std::min(a.left, b.left), std::max(a.bottom, b.bottom),
            std::max(a.right, b.right)};
}

LongRect LPointsToLRect(const LongPoint& a, const LongPoint& b)
{
    return {std::min(a.v, b.v), std::min(a.h, b.h), std::max(a.v, b.v), std::max(a.h, b.h)};
}

LongPoint MapLPt(const LongPoint& p, const LongRect& from, const LongRect& to)
{
    return {MapAxis(p.v, from.top, from.bottom, to.top, to.bottom),
            MapAxis(p.h, from.left, from.right, to.left, to.right)};
}

LongRect MapLRect(const LongRect& r, const LongRect& from, const LongRect& to)
{
    const LongPoint a = MapLPt({r.top, r.left}, from, to);
    const LongPoint b = MapLPt({r.bottom, r.right}, from, to);
    return {a.v, a.h, b.v, b.h};
}

// Points and rectangles: signed 16 bits (`Point`, `Rect`), 32 bits (`LongPoint`, `LongRect`) and
// 64-bit floats (`XPoint`, `XRect`). v and y run downward. `CGPoint` is the pair of floats that
// stored records hold. Arithmetic only, no drawing.
#pragma once
#include <cstdint>

struct Point {
    std::int16_t v = 0, h = 0;
    bool operator==(const Point&) const = default;
};
struct Rect {
    std::int16_t top = 0, left = 0, bottom = 0, right = 0;
    bool operator==(const Rect&) const = default;
};
struct LongPoint {
    std::int32_t v = 0, h = 0;
    bool operator==(const LongPoint&) const = default;
};
struct LongRect {
    std::int32_t top = 0, left = 0, bottom = 0, right = 0;
    bool operator==(const LongRect&) const = default;
};
struct XPoint {
    double v = 0, h = 0;
    bool operator==(const XPoint&) const = default;
};
struct XRect {
    double top = 0, left = 0, bottom = 0, right = 0;
    bool operator==(const XRect&) const = default;
};
struct CGPoint {
    float x = 0, y = 0;
    bool operator==(const CGPoint&) const = default;
};

// True when the rectangle has no area; of any of the three kinds.
template <typename R>
[[nodiscard]] constexpr bool EmptyRect(const R& r)
{
    return !(r.bottom > r.top && r.right > r.left);
}

// `point` lies in `r`, all four edges included; of any matching pair of kinds.
template <typename R, typename P>
[[nodiscard]] constexpr bool PointWithinEdges(const R& r, const P& point)
{
    return point.v >= r.top && point.v <= r.bottom && point.h >= r.left && point.h <= r.right;
}

// `inner` lies wholly within `outer`; both of one kind.
template <typename R>
[[nodiscard]] constexpr bool RectWithin(const R& inner, const R& outer)
{
    return inner.top >= outer.top && inner.left >= outer.left && inner.bottom <= outer.bottom &&
           inner.right <= outer.right;
}

void SetLRect(LongRect* r, std::int32_t left, std::int32_t top, std::int32_t right,
              std::int32_t bottom);
[[nodiscard]] LongRect RectToLRect(const Rect& r);
// Each value is pinned to -32767 to 32767.
[[nodiscard]] Rect LRectToRect(const LongRect& r);
[[nodiscard]] Point LPointToPoint(const LongPoint& p);
void OffsetLRect(LongRect* r, std::int32_t dh, std::int32_t dv);
// Bottom and right edge are outside.
[[nodiscard]] bool LPointInLRect(const LongPoint& p, const LongRect& r);
// The common area; false and all zero when there is none.
bool SectLRect(const LongRect& a, const LongRect& b, LongRect* result);
[[nodiscard]] LongRect UnionLRect(const LongRect& a, const LongRect& b);
// The rectangle that two opposite corners, in any order, span.
[[nodiscard]] LongRect LPointsToLRect(const LongPoint& a, const LongPoint& b);
// The proportional point of `to`, in double precision, rounded half away from zero. An axis of
// `from` without length maps to the origin of `to`.
[[nodiscard]] LongPoint MapLPt(const LongPoint& p, const LongRect& from, const LongRect& to);
[[nodiscard]] LongRect MapLRect(const LongRect& r, const LongRect& from, const LongRect& to);

// The geometry of a transform record: one turn and one mirroring for all three kinds of numbers.
#include "dicom_core/look/zel_TransformRec.h"

#include <algorithm>
#include <limits>
#include <optional>

namespace {

// A location or an extent with the frame's top left corner at 0; `T` is wide enough for sums.
template <typename T>
struct Pair {
    T v, h;
};

// `p` after a turn of a frame of the size `size`.
template <typename T>
std::optional<Pair<T>> Turned(int degrees, Pair<T> size, Pair<T> p)
{
    switch (degrees) {
        case 0:
            return p;
        case 90:
            return Pair<T>{p.h, size.v - p.v};
        case 180:
            return Pair<T>{size.v - p.v, size.h - p.h};
        case 270:
            return Pair<T>{size.h - p.h, p.v};
        default:
            return std::nullopt;
    }
}

template <typename T>
Pair<T> Mirrored(const zel_TransformRec& record, Pair<T> size, Pair<T> p)
{
    if (record.vertFlip)
        p.v = size.v - p.v;
    if (record.horzFlip)
        p.h = size.h - p.h;
    return p;
}

template <typename T>
std::optional<Pair<T>> Forward(const zel_TransformRec& record, Pair<T> size, Pair<T> p)
{
    const auto turned = Turned(record.rotation, size, p);
    if (!turned)
        return std::nullopt;
    const bool onItsSide = record.rotation == 90 || record.rotation == 270;
    return Mirrored(record, onItsSide ? Pair<T>{size.h, size.v} : size, *turned);
}

template <typename T>
std::optional<Pair<T>> Backward(const zel_TransformRec& record, Pair<T> size, Pair<T> p)
{
    return Turned((360 - record.rotation) % 360, size, Mirrored(record, size, p));
}

// Runs `way` on a point of any kind, in numbers of type `Wide`.
template <typename Wide, typename R, typename P, typename Way>
QvxStatus MoveLocation(const zel_TransformRec& record, const R& bounds, P point, P* result, Way way)
{
    using Narrow = decltype(P::v);
    if (!result || EmptyRect(bounds) || !PointWithinEdges(bounds, point))
        return kQvxBadArgument;
    const Wide top = bounds.top, left = bounds.left;
    auto moved = way(record, Pair<Wide>{bounds.bottom - top, bounds.right - left},
                     Pair<Wide>{point.v - top, point.h - left});
    if (!moved)
        return kQvxBadArgument;
    moved->v += top;
    moved->h += left;
    const auto fits = [](Wide value) {
        return value >= std::numeric_limits<Narrow>::lowest() &&
               value <= std::numeric_limits<Narrow>::max();
    };
    if (!fits(moved->v) || !fits(moved->h))
        return kQvxBadArgument;
    *result = {static_cast<Narrow>(moved->v), static_cast<Narrow>(moved->h)};
    return kQvxOK;
}

template <typename P, typename R, typename Way>
QvxStatus MoveRect(const zel_TransformRec& record, const R& bounds, const R& rect, R* result,
                   Way way)
{
    if (!result || EmptyRect(bounds) || EmptyRect(rect) || !RectWithin(rect, bounds))
        return kQvxBadArgument;
    P a, b;
    if (const QvxStatus status =
            MoveLocation<std::int64_t>(record, bounds, P{rect.top, rect.left}, &a, way))
        return status;
    if (const QvxStatus status =
            MoveLocation<std::int64_t>(record, bounds, P{rect.bottom, rect.right}, &b, way))
        return status;
    const R moved{std::min(a.v, b.v), std::min(a.h, b.h), std::max(a.v, b.v), std::max(a.h, b.h)};
    if (EmptyRect(moved))
        return kQvxBadArgument;
    *result = moved;
    return kQvxOK;
}

}  // namespace

QvxStatus zel_TransformRec::TransformLocation(const Rect& bounds, Point point, Point* result) const
{
    return MoveLocation<std::int64_t>(*this, bounds, point, result, Forward<std::int64_t>);
}

QvxStatus zel_TransformRec::TransformLocation(const LongRect& bounds, LongPoint point,
                                              LongPoint* result) const
{
    return MoveLocation<std::int64_t>(*this, bounds, point, result, Forward<std::int64_t>);
}

QvxStatus zel_TransformRec::TransformLocationX(const XRect& bounds, XPoint point,
                                               XPoint* result) const
{
    return MoveLocation<double>(*this, bounds, point, result, Forward<double>);
}

QvxStatus zel_TransformRec::ReverseTransformLocation(const Rect& bounds, Point point,
                                                     Point* result) const
{
    return MoveLocation<std::int64_t>(*this, bounds, point, result, Backward<std::int64_t>);
}

QvxStatus zel_TransformRec::ReverseTransformLocation(const LongRect& bounds, LongPoint point,
                                                     LongPoint* result) const
{
    return MoveLocation<std::int64_t>(*this, bounds, point, result, Backward<std::int64_t>);
}

QvxStatus zel_TransformRec::ReverseTransformLocationX(const XRect& bounds, XPoint point,
                                                      XPoint* result) const
{
    return MoveLocation<double>(*this, bounds, point, result, Backward<double>);
}

QvxStatus zel_TransformRec::TransformRect(const Rect& bounds, const Rect& rect, Rect* result) const
{
    return MoveRect<Point>(*this, bounds, rect, result, Forward<std::int64_t>);
}

QvxStatus zel_TransformRec::TransformRect(const LongRect& bounds, const LongRect& rect,
                                          LongRect* result) const
{
    return MoveRect<LongPoint>(*this, bounds, rect, result, Forward<std::int64_t>);
}

QvxStatus zel_TransformRec::ReverseTransformRect(const Rect& bounds, const Rect& rect,
                                                 Rect* result) const
{
    return MoveRect<Point>(*this, bounds, rect, result, Backward<std::int64_t>);
}

QvxStatus zel_TransformRec::ReverseTransformRect(const LongRect& bounds, const LongRect& rect,
                                                 LongRect* result) const
{
    return MoveRect<LongPoint>(*this, bounds, rect, result, Backward<std::int64_t>);
}

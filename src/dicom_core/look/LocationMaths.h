// Points and rectangles carried from one rectangle to another, and the limits of zoom.
#pragma once
#include "util/XRect.h"

#include <cstdint>

// Between what factors an image of `width` by `height` pixels may be zoomed: it stays at least 32
// and at most 32,000 pixels long, within 1/20 to 16; 1 is always allowed. Both 1 for an image
// without area.
void QT_ImageZoomLimits(std::int32_t width, std::int32_t height, double* minimum, double* maximum);

// The point of `to` that lies in proportion as `point` does in `from`, in whole numbers, cut toward
// the origin of `to` (pinned to the type's range). An axis of `from` without length maps to the
// origin of `to`.
[[nodiscard]] Point MapPt(const Point& point, const Rect& from, const Rect& to);
[[nodiscard]] LongPoint MapPt(const LongPoint& point, const LongRect& from, const LongRect& to);

// The same in double precision, rounded half away from zero. `result` is always written; true when
// the point lies in `from` and the result in `to`, edges included.
bool TranslateLongLocation(const LongRect& from, const LongRect& to, const LongPoint& point,
                           LongPoint* result);
// The same without rounding. With an argument missing it answers true and writes nothing.
bool CGTranslateLocationX(const XRect* from, const XRect* to, const CGPoint* point, XPoint* result);

// Centres `size` in `into` without scaling: each side is the smaller one of the two. All zero when
// either is empty.
void FitRectIntoRect(const Rect& size, const Rect& into, Rect* result);
void FitRectIntoRect(const LongRect& size, const LongRect& into, LongRect* result);

// A point of a rectangle, measured from its top left corner, mirrored within it: sideways with the
// first flag, top to bottom with the second.
[[nodiscard]] CGPoint U_FlipLocation(bool horizontally, bool vertically, const XRect& rect,
                                     CGPoint point);
// A point of the displayed rectangle, measured likewise, as it lies before a turn by `rotation`
// degrees clockwise; 0 and 0 for a rotation that is none of 0, 90, 180 and 270.
[[nodiscard]] CGPoint U_RotateLocation(int rotation, const XRect& rect, CGPoint point);
// `size` scaled in its proportions until it just fits into the other, centred or at its top left
// corner; empty when either is.
[[nodiscard]] Rect FitRectScaledProp(const Rect& size, const Rect& into, bool centered);

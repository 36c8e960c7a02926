#include "dicom_core/look/TransDocs.h"

#include "dicom_core/look/LocationMaths.h"

bool IdentityTransDoc::BaseLoc2DrawLoc(const LongPoint& base, Point* draw) const
{
    *draw = {static_cast<std::int16_t>(base.v), static_cast<std::int16_t>(base.h)};
    return true;
}

bool IdentityTransDoc::DrawLoc2BaseLoc(const Point& draw, LongPoint* base) const
{
    *base = {draw.v, draw.h};
    return true;
}

LongRect IdentityTransDoc::GetBaseBounds() const
{
    LongRect bounds;
    DrawRect2BaseRect(GetDrawBounds(), &bounds);
    return bounds;
}

bool IdentityTransDoc::BaseRect2DrawRect(const LongRect& base, Rect* draw) const
{
    Point a, b;
    if (!BaseLoc2DrawLoc({base.top, base.left}, &a) ||
        !BaseLoc2DrawLoc({base.bottom, base.right}, &b))
        return false;
    *draw = LRectToRect(LPointsToLRect({a.v, a.h}, {b.v, b.h}));
    return true;
}

bool IdentityTransDoc::DrawRect2BaseRect(const Rect& draw, LongRect* base) const
{
    LongPoint a, b;
    if (!DrawLoc2BaseLoc({draw.top, draw.left}, &a) ||
        !DrawLoc2BaseLoc({draw.bottom, draw.right}, &b))
        return false;
    *base = LPointsToLRect(a, b);
    return true;
}

SimpleAreaTransDoc::SimpleAreaTransDoc(const Rect* area)
    : fArea(area && !EmptyRect(*area) ? *area : Rect{})
{
}

bool SimpleAreaTransDoc::BaseLoc2DrawLoc(const LongPoint& base, Point* draw) const
{
    return !EmptyRect(fArea) && PointWithinEdges(fArea, base) &&
           IdentityTransDoc::BaseLoc2DrawLoc(base, draw);
}

bool SimpleAreaTransDoc::DrawLoc2BaseLoc(const Point& draw, LongPoint* base) const
{
    return !EmptyRect(fArea) && PointWithinEdges(fArea, draw) &&
           IdentityTransDoc::DrawLoc2BaseLoc(draw, base);
}

GenericTransDoc::GenericTransDoc(const zel_TransformRec* record, const LongRect& source,
                                 const Rect& destination)
    : fSourceBounds(source), fSource(source), fDestination(destination)
{
    if (record)
        fRecord = *record;
}

bool GenericTransDoc::AnyEmpty() const
{
    return EmptyRect(fSourceBounds) || EmptyRect(fSource) || EmptyRect(fDestination);
}

bool GenericTransDoc::BaseLoc2DrawLoc(const LongPoint& base, Point* draw) const
{
    if (AnyEmpty())
        return false;
    LongPoint turned = base;
    LongRect from = fSource;
    if (fRecord && (fRecord->TransformLocation(fSourceBounds, base, &turned) ||
                    fRecord->TransformRect(fSourceBounds, fSource, &from)))
        return false;
    *draw = LPointToPoint(MapPt(turned, from, RectToLRect(fDestination)));
    return true;
}

bool GenericTransDoc::DrawLoc2BaseLoc(const Point& draw, LongPoint* base) const
{
    if (AnyEmpty())
        return false;
    const LongRect destination = RectToLRect(fDestination);
    const LongPoint point{draw.v, draw.h};
    if (!fRecord) {
        *base = MapPt(point, destination, fSource);
        return true;
    }
    LongRect turnedBounds, turnedSource;
    if (fRecord->TransformRect(fSourceBounds, fSourceBounds, &turnedBounds) ||
        fRecord->TransformRect(fSourceBounds, fSource, &turnedSource))
        return false;
    return fRecord->ReverseTransformLocation(turnedBounds, MapPt(point, destination, turnedSource),
                                             base) == kQvxOK;
}

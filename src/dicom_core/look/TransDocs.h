// From frame coordinates to a drawing surface and back, for drawing that need not know whether its
// target is a grid cell, an exported image or a plain rectangle. Base locations are pixels of the
// stored frame, draw locations those of the surface. Objects of a drawing call; one thread.
#pragma once
#include "dicom_core/look/zel_TransformRec.h"
#include "util/XRect.h"

#include <optional>

class QTImageDoc;

// Passes locations through. The base of all others.
class IdentityTransDoc {
public:
    IdentityTransDoc() = default;
    IdentityTransDoc(const IdentityTransDoc&) = delete;
    IdentityTransDoc& operator=(const IdentityTransDoc&) = delete;
    virtual ~IdentityTransDoc() = default;

    // True when the location has a counterpart; otherwise nothing is written and the item that
    // stands there isn't drawn. The identity cuts a base location to its low 16 bits.
    virtual bool BaseLoc2DrawLoc(const LongPoint& base, Point* draw) const;
    virtual bool DrawLoc2BaseLoc(const Point& draw, LongPoint* base) const;
    // Where on the surface the frame is drawn; empty if that isn't known.
    [[nodiscard]] virtual Rect GetDrawBounds() const { return {}; }
    // The draw bounds in base locations; empty if they have no counterpart.
    [[nodiscard]] virtual LongRect GetBaseBounds() const;
    // The document that is drawn, borrowed; null if there is none.
    [[nodiscard]] virtual QTImageDoc* GetImageDoc() const { return nullptr; }
    // The frame is the current one of its sequence.
    [[nodiscard]] virtual bool InActiveEnvironment() const { return true; }

    // Two opposite corners, carried over and put in order. False, and nothing written, if one of
    // them has no counterpart.
    bool BaseRect2DrawRect(const LongRect& base, Rect* draw) const;
    bool DrawRect2BaseRect(const Rect& draw, LongRect* base) const;
};

// Passes locations through that lie in an area, edges included; none if the area is empty.
class SimpleAreaTransDoc : public IdentityTransDoc {
public:
    // Null stands for an empty area.
    explicit SimpleAreaTransDoc(const Rect* area);

    bool BaseLoc2DrawLoc(const LongPoint& base, Point* draw) const override;
    bool DrawLoc2BaseLoc(const Point& draw, LongPoint* base) const override;
    [[nodiscard]] Rect GetDrawBounds() const override { return fArea; }

private:
    Rect fArea;
};

// Turns a location as `record` says (null: not at all), then scales the turned `source` rectangle
// of the frame to the `destination`. Empty rectangles give no counterparts.
class GenericTransDoc : public IdentityTransDoc {
public:
    // The source is also taken for the bounds of the whole frame; the record is copied.
    GenericTransDoc(const zel_TransformRec* record, const LongRect& source,
                    const Rect& destination);

    void SetSourceBounds(const LongRect& bounds) { fSourceBounds = bounds; }
    void SetActive(bool active) { fActive = active; }

    bool BaseLoc2DrawLoc(const LongPoint& base, Point* draw) const override;
    bool DrawLoc2BaseLoc(const Point& draw, LongPoint* base) const override;
    [[nodiscard]] Rect GetDrawBounds() const override { return fDestination; }
    [[nodiscard]] bool InActiveEnvironment() const override { return fActive; }

private:
    [[nodiscard]] bool AnyEmpty() const;

    std::optional<zel_TransformRec> fRecord;
    LongRect fSourceBounds, fSource;
    Rect fDestination;
    bool fActive = true;
};

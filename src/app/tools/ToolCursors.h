// Which pointer the mouse has over a grid: by the tool, and by the measurement under it. Says which
// drawing, not how it is drawn. Main thread only.
#pragma once
#include "app/grid/ZELSequenceGridViewModelController.h"

// One of the desktop's own, or a drawing of ours.
enum class CursorKind { Arrow, Crosshair, PointingHand, NotAllowed, Drawn };

struct GridCursor {
    CursorKind kind = CursorKind::Arrow;
    QString picture;  // of a drawn one: its name
    int size = 0;     // of the square drawing, points
    QPoint hotSpot;   // the point of it that points
    bool operator==(const GridCursor&) const = default;
};

// A shape's own, whose drawings are as large as their names say here; the arrow for a name that
// isn't known.
[[nodiscard]] GridCursor GridCursorOf(const ShapeCursor& cursor);

// What a press with the angle tool would find: no line yet, one that waits for its second, an
// angle.
enum class AngleState { Start = 3, LineChosen = 4, AngleChosen = 5 };
[[nodiscard]] AngleState AngleStateOf(const CKAdornedGraphic* currentMeasurement);

// Of a tool of ZELToolsController.h by itself; the measurement may be null.
[[nodiscard]] GridCursor currentToolCursor(std::int32_t tool,
                                           const CKAdornedGraphic* currentMeasurement);

struct PointerPlace {
    std::int32_t tool;
    const CKAdornedGraphic* currentMeasurement = nullptr;
    GraphicHit hit;                              // under the pointer, selected ones first
    const CKAdornedGraphic* creating = nullptr;  // the shape that is being drawn
};
[[nodiscard]] GridCursor cursorForPointer(const PointerPlace& place);

// The same for a view point over the grid's current frame.
[[nodiscard]] GridCursor cursorUnderPoint(const ZELSequenceGridViewModelController& grid,
                                          std::int32_t tool, const QPointF& viewPoint);

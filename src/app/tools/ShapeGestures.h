// What the mouse does to measurements: asked by presses in a grid, implemented by whoever draws
// them. Points are view points. Main thread only.
#pragma once
#include "Graphics/CKAdornedGraphic.h"

class ShapeGestures {
public:
    virtual ~ShapeGestures() = default;
    // A press with a drawing tool, or with the selection tool; true when the drag and the release
    // that follow are the gesture's.
    virtual bool beginCreating(std::int32_t tool, const QPointF& point) = 0;
    virtual bool beginSelecting(const QPointF& point, bool extend) = 0;
    // A double click; true when a measurement took it.
    virtual bool doubleClicked(std::int32_t tool, const QPointF& point) = 0;
    virtual void drag(const QPointF& point, bool shift, bool option) = 0;
    virtual void release(const QPointF& point) = 0;
    // The arrow keys: all that are selected, by frame pixels.
    virtual void moveSelectedGraphicsBy(const QPointF& delta) = 0;
    virtual void closePendingMeasurements(bool close) = 0;  // else dropped
    virtual void stopEditing() = 0;                         // of a text note
};

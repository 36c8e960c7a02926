// What a grid's model asks of the view that shows it. Main thread only.
#pragma once
#include <cstdint>

class CKAdornedGraphic;

class GridSurface {
public:
    virtual ~GridSurface() = default;

    virtual void setNeedsDisplay() = 0;
    virtual void setNeedsDisplayForFrame(std::int32_t frame) = 0;  // 0: the current one
    // Cells or the scroll position of the model's viewport have changed.
    virtual void viewportDidChange() = 0;
    virtual void updateTrackingAreas() = 0;

    // An unfinished polygon is closed with `close`, else dropped.
    virtual void closePendingMeasurements(bool close) = 0;
    virtual void stopEditing() = 0;  // of a text note
    [[nodiscard]] virtual bool isHidingHandles() const { return false; }
    [[nodiscard]] virtual const CKAdornedGraphic* creatingGraphic() const { return nullptr; }
    [[nodiscard]] virtual const CKAdornedGraphic* editingGraphic() const { return nullptr; }
    // A gesture is under way, or the window is being resized: pictures at hand will do.
    [[nodiscard]] virtual bool userIsDrawing() const { return false; }
    [[nodiscard]] virtual bool inLiveResize() const { return false; }
};

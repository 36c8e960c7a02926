// What presses, drags and releases of the mouse mean in one grid. Decides, and hands on: to another
// cell, to a tracker, to the gestures of measurements. Main thread only.
#pragma once
#include "app/tools/MouseTrackers.h"
#include "app/tools/ShapeGestures.h"

class ZELToolsController;

enum class MouseButton { Left, Middle, Right };

struct GridPress {
    QPointF point;  // view points
    MouseButton button = MouseButton::Left;
    bool doubleClick = false;
    bool gaveFocus = false;  // this very press gave the grid the keyboard
    bool shift = false, option = false, command = false;
};

class GridMouse {
public:
    using Grid = ZELSequenceGridViewModelController;

    // All outlive it; gestures may be null while there are no measurements to make.
    GridMouse(Grid* grid, const ZELToolsController* tools, ShapeGestures* gestures = nullptr)
        : fGrid(grid), fTools(tools), fGestures(gestures)
    {
    }

    // The middle button pans whatever the tool is; the right one adjusts the window once it has
    // moved more than 4 points.
    void press(const GridPress& press);
    void drag(const TrackerEvent& event);
    // True for a right button that stayed in its place: the menu is wanted.
    bool release(const TrackerEvent& event);
    [[nodiscard]] bool isTracking() const { return fTracker || fGesture; }
    // A drag with Command and Option is of the sequence itself.
    [[nodiscard]] bool potentialDragDrop() const { return fPotentialDragDrop; }

private:
    void trackElsewhere(std::int32_t tool);
    void pressLeft(const GridPress& press, int cell);
    [[nodiscard]] bool tookDoubleClick(const GridPress& press, int cell);

    Grid* fGrid;
    const ZELToolsController* fTools;
    ShapeGestures* fGestures;
    std::unique_ptr<ZELMouseTracker> fTracker;
    GridPress fPress;
    int fPressedCell = -1;
    bool fGesture = false, fPotentialDragDrop = false, fRightWaits = false;
};

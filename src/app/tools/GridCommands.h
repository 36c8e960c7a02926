// The commands on one grid and its sequence that stand in menus, each with its title, when it can
// be chosen, and what it does. One table for every menu that has them: contextual menus name the
// frame under the click, the menu bar the active grid and its current frame. Main thread only.
#pragma once
#include "Graphics/CKAdornedGraphic.h"
#include "app/grid/ViewerActions.h"

enum class GridCommand {
    SwitchLayout,  // these two by tag, of GridMenuItems.h
    SetImageGrid,
    OpenGridSetup,
    PreviousSequence,
    NextSequence,
    SwitchSequenceMark,
    FirstFrame,
    PreviousFrame,
    NextFrame,
    LastFrame,
    Enlarge,
    Reduce,
    NormalSize,
    FitInWindow,
    FlipHorizontal,
    FlipVertical,
    RotateLeft,
    RotateRight,
    Invert,
    SwitchDemographics,
    SwitchScale,
    SwitchOverlays,
    SwitchMeasurements,
    SwitchUSRegions,
    PlayCine,
    StopCine,
    PlayAllCines,
    StopAllCines,
    RevealFile,
    // On one measurement.
    SwitchStroke,
    SwitchFill,
    SwitchLabel,
    SwitchShadow,
    BringToFront,
    MoveForward,
    MoveBackwards,
    SendToBack,
    PropagateMeasurement,
    DeleteMeasurement,
    DeleteAllMeasurements,
};

// On what a command acts. A frame of 0 is the current one; for one that the sequence doesn't have
// (a click beside the last cell) the commands on frames can't be chosen.
struct GridTarget {
    ZELSequenceGridViewModelController* grid;
    GridHost* host;
    ViewerActions* actions;
    std::int32_t frame = 0;
    CKShapePtr shape = nullptr;
    int tag = 0;
};

struct GridCommandState {
    const char* title;     // key of "MenuItems"; of the families null for an unknown tag
    const char* shortcut;  // the key that grids take for it, as QKeySequence reads it, or null
    bool enabled, checked;
};
[[nodiscard]] GridCommandState StateOfGridCommand(GridCommand command, const GridTarget& target);
[[nodiscard]] const char* ShortcutOfGridCommand(GridCommand command);  // asks no rule
// Nothing when it can't be chosen (any more). `option`: the key is held while it is chosen.
void PerformGridCommand(GridCommand command, const GridTarget& target, bool option = false);

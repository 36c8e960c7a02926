// The commands of a window that its menu bar and tool bar offer, beside those on one grid: title,
// key, when it can be chosen, whether it is on, what it does. One table, whoever shows it. Main
// thread only.
#pragma once
#include "app/tools/GridCommands.h"
#include "app/tools/ZELToolsController.h"
#include "app/window/WindowPanes.h"

enum class WindowCommand {
    Export,
    ExportMetadata,
    Anonymize,
    Print,
    FullScreen,
    Toolbar,
    CustomizeToolbar,
    PatientList,
    StudyInfo,
    SecondaryToolbar,
    MeasurementPane,
    MetadataPalette,
    SwitchSequenceMark,
    MarkAll,
    UnmarkAll,
    SwitchAllMarked,
    MarkSelected,
    UnmarkSelected,
    SwitchSelectedMarked,
    ResetAll,
    ResetColors,
    ResetOrientation,
    ResetFramePosition,
    ResetMeasurements,
    AdjustColors,
    OriginalColors,
    SetColorTable,  // by tag: the table plus 1, 0 for none
    PropagateMeasurement,
    DeleteMeasurement,
    DeleteAllMeasurements,
    ReferenceLines,
    SelectAll,
    WholeImage,
    PropagateCrop,
    ClearCrops,
    SelectTool,       // by tag: the tool
    ChangeToolScope,  // by tag, of ToolScope
    CineLoop,
    CineSweep,
    AutoplayCine,
    PlaylistTraverse,
};

// Everything a command may act on; nothing is owned, and all of it outlives the use.
struct WindowTarget {
    GridHost* host;
    ViewerActions* actions;
    ZELToolsController* tools;
    WindowPanes* panes;
    int tag = 0;
};

struct WindowCommandState {
    enum class Mark { None, Off, On, Mixed };
    QString title;         // in the user's language
    const char* shortcut;  // as QKeySequence reads it, or null
    bool enabled;
    Mark mark;
};
[[nodiscard]] WindowCommandState StateOfWindowCommand(WindowCommand command,
                                                      const WindowTarget& target);
[[nodiscard]] const char* ShortcutOfWindowCommand(WindowCommand command, int tag);  // asks no rule
// Nothing when it can't be chosen (any more).
void PerformWindowCommand(WindowCommand command, const WindowTarget& target);

// The target of commands on the active grid and its current frame.
[[nodiscard]] GridTarget ActiveGridTarget(const WindowTarget& target);

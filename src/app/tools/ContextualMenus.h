// The two menus of a click with the right button in a grid, as data: one for a measurement, one for
// everything else. Main thread only.
#pragma once
#include "app/tools/GridCommands.h"
#include "app/tools/MenuEntry.h"

#include <optional>

class QPointF;

// What lies under the click.
struct ContextualTarget {
    std::int32_t frame = 0;  // beyond the last one: beside the cells; 0 none
    CKShapePtr measurement;  // of that frame, where measurements are shown
};
[[nodiscard]] ContextualTarget contextualTarget(const ZELSequenceGridViewModelController& grid,
                                                const QPointF& viewPoint);

// Both are submenus whose children are the menu. They act on the target as it was when they were
// made; grid, host and actions outlive them. The commands of the menu for a measurement set the
// frame of `target`, which outlives that menu too, back to none.
[[nodiscard]] MenuEntry viewContextualForShape(ZELSequenceGridViewModelController& grid,
                                               GridHost& host, ViewerActions& actions,
                                               ContextualTarget& target);
[[nodiscard]] MenuEntry viewContextualGeneric(ZELSequenceGridViewModelController& grid,
                                              GridHost& host, ViewerActions& actions,
                                              const ContextualTarget& target);
// What a submenu of that holds for the active grid, by its title's key; empty where there is none.
[[nodiscard]] std::vector<MenuEntry> SubmenuOfActiveGrid(GridHost& host, ViewerActions& actions,
                                                         const char* title);
// The one that fits the target: a crop counts as no measurement. None while the grid plays a cine.
[[nodiscard]] std::optional<MenuEntry> menuForTarget(ZELSequenceGridViewModelController& grid,
                                                     GridHost& host, ViewerActions& actions,
                                                     ContextualTarget& target);

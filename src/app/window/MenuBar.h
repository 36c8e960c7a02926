// The menu bar of a window. Entries ask their rule whenever their menu shows, and again when they
// are chosen, so that keys work whatever a menu last said. Main thread only.
#pragma once
#include "app/tools/MenuEntry.h"
#include "app/window/AppCommands.h"
#include "app/window/WindowCommands.h"

#include <functional>

class QMainWindow;
class ZELWWWLTextBoxController;

// Everything that the menus act on outlives the window. `windowMenu`: which windows there are.
void AddMenuBar(QMainWindow* window, const WindowTarget& target, AppCommands* app,
                ZELWWWLTextBoxController* windowValues);

// The menu of crops for the active grid's sequence, in a fixed order.
[[nodiscard]] std::vector<MenuEntry> U_UpdateRegionsMenuFor(const WindowTarget& target);

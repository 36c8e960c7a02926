// Commands as actions of menus and tool bars. Main thread only.
#pragma once
#include "app/tools/MenuEntry.h"
#include "app/window/WindowCommands.h"

#include <variant>

class QAction;
class QMenu;

// A command of a window or of its active grid, by tag where there is a family of them.
struct AnyCommand {
    std::variant<WindowCommand, GridCommand> command;
    int tag = 0;
};
[[nodiscard]] WindowCommandState StateOf(const AnyCommand& command, const WindowTarget& target);
[[nodiscard]] const char* ShortcutOf(const AnyCommand& command);  // or null
// `option`: the key is held.
void Perform(const AnyCommand& command, const WindowTarget& target, bool option);

// An action whose state is asked whenever the menu shows, and whose key works at any other time.
QAction* AddCommandAction(QMenu* menu, const AnyCommand& command, const WindowTarget& target);
// Title, mark and whether it can be chosen, as they are now.
void UpdateAction(QAction* action, const WindowCommandState& state);
[[nodiscard]] MenuEntry EntryOf(const AnyCommand& command, const WindowTarget& target);

// A menu, filled anew whenever it is about to show.
QMenu* AddFilledMenu(QMenu* menu, const QString& title,
                     std::function<std::vector<MenuEntry>()> entries);
// A title's "&" would be taken for the mark of a key.
[[nodiscard]] QString MenuText(QString title);

#include "app/window/CommandActions.h"

#include "app/tools/OptionKey.h"
#include "app/views/MenuFromEntries.h"
#include "platform/Words.h"

#include <QAction>
#include <QGuiApplication>
#include <QMenu>
#include <algorithm>

namespace {

using Mark = WindowCommandState::Mark;

// Keys that a grid takes by itself when it has the focus, and that mean something else elsewhere:
// menus show them, and no more.
bool IsKeyOfGrids(const QKeySequence& key)
{
    static const QKeySequence kKeys[] = {Qt::Key_Home, Qt::Key_End, Qt::Key_Left, Qt::Key_Right,
                                         Qt::Key_Space};
    return std::ranges::find(kKeys, key) != std::end(kKeys);
}

bool HoldsOption() { return HasOption(QGuiApplication::keyboardModifiers()); }

}  // namespace

QString MenuText(QString title) { return title.replace(QLatin1Char('&'), QLatin1String("&&")); }

WindowCommandState StateOf(const AnyCommand& command, const WindowTarget& target)
{
    WindowTarget tagged = target;
    tagged.tag = command.tag;
    if (const auto* window = std::get_if<WindowCommand>(&command.command))
        return StateOfWindowCommand(*window, tagged);
    const GridTarget grid = ActiveGridTarget(tagged);
    if (!grid.grid)
        return {{}, nullptr, false, Mark::None};
    const GridCommandState state = StateOfGridCommand(std::get<GridCommand>(command.command), grid);
    return {state.title ? ZelWord(kWordsMenuItems, state.title) : QString(), state.shortcut,
            state.enabled, state.checked ? Mark::On : Mark::None};
}

const char* ShortcutOf(const AnyCommand& command)
{
    if (const auto* window = std::get_if<WindowCommand>(&command.command))
        return ShortcutOfWindowCommand(*window, command.tag);
    return ShortcutOfGridCommand(std::get<GridCommand>(command.command));
}

void Perform(const AnyCommand& command, const WindowTarget& target, bool option)
{
    WindowTarget tagged = target;
    tagged.tag = command.tag;
    if (const auto* window = std::get_if<WindowCommand>(&command.command))
        PerformWindowCommand(*window, tagged);
    else if (const GridTarget grid = ActiveGridTarget(tagged); grid.grid)
        PerformGridCommand(std::get<GridCommand>(command.command), grid, option);
}

void UpdateAction(QAction* action, const WindowCommandState& state)
{
    const QVariant key = action->data();  // shown behind the title, and not taken
    action->setText(key.toString().isEmpty() ? MenuText(state.title)
                                             : MenuText(state.title) + u'\t' + key.toString());
    action->setEnabled(state.enabled);
    action->setCheckable(state.mark != Mark::None);
    action->setChecked(state.mark == Mark::On);  // menus have no third state
}

QAction* AddCommandAction(QMenu* menu, const AnyCommand& command, const WindowTarget& target)
{
    // What it is called is asked when it shows: rules may have to read files.
    QAction* action = menu->addAction(QString());
    if (const QKeySequence key(QString::fromLatin1(ShortcutOf(command))); IsKeyOfGrids(key))
        action->setData(key.toString(QKeySequence::NativeText));
    else
        action->setShortcut(key);
    QObject::connect(action, &QAction::triggered, menu,
                     [=] { Perform(command, target, HoldsOption()); });
    QObject::connect(menu, &QMenu::aboutToShow, action,
                     [=] { UpdateAction(action, StateOf(command, target)); });
    QObject::connect(menu, &QMenu::aboutToHide, action, [=] { action->setEnabled(true); });
    return action;
}

MenuEntry EntryOf(const AnyCommand& command, const WindowTarget& target)
{
    const WindowCommandState state = StateOf(command, target);
    MenuEntry entry;
    entry.kind = MenuEntry::Kind::Command;
    entry.title = state.title;
    entry.shortcut = QString::fromLatin1(state.shortcut);
    entry.tag = command.tag;
    entry.enabled = state.enabled;
    entry.checked = state.mark == Mark::On;
    entry.perform = [=](bool option) { Perform(command, target, option); };
    return entry;
}

QMenu* AddFilledMenu(QMenu* menu, const QString& title,
                     std::function<std::vector<MenuEntry>()> entries)
{
    QMenu* filled = menu->addMenu(MenuText(title));
    QObject::connect(filled, &QMenu::aboutToShow, filled, [=] { FillMenu(filled, entries()); });
    return filled;
}

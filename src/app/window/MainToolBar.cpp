#include "app/window/MainToolBar.h"

#include "app/tools/GridMenuItems.h"
#include "app/tools/OptionKey.h"
#include "app/views/LayoutIcons.h"
#include "app/views/MenuFromEntries.h"
#include "app/views/ToolIcons.h"
#include "app/window/ToolBarItems.h"
#include "platform/Words.h"

#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QMenu>
#include <QToolButton>
#include <algorithm>

namespace {

using W = WindowCommand;
using G = GridCommand;
using Mark = WindowCommandState::Mark;

constexpr int kSpaceWidth = 12;  // view points

QString Word(const char* key) { return ZelWord(kWordsMenuItems, key); }

// Layouts of one grid, of two, of three in two parts, in a row, of four in two parts.
bool EndsGroup(int layout)
{
    static constexpr int kLast[] = {651, 653, 657, 659, 663};
    return std::ranges::find(kLast, layout) != std::end(kLast);
}

QString TipOf(const WindowCommandState& state)
{
    const QString key =
        QKeySequence(QString::fromLatin1(state.shortcut)).toString(QKeySequence::NativeText);
    return key.isEmpty() ? state.title : QStringLiteral("%1 (%2)").arg(state.title, key);
}

}  // namespace

MainToolBar::MainToolBar(const WindowTarget& target, QWidget* parent)
    : QToolBar(Word("Toolbar"), parent), _target(target)
{
    setObjectName(QStringLiteral("MainToolBar"));
    setMovable(false);
    setIconSize({20, 20});
    addItems();
    _changes =
        NotificationCenter::Default().AddObserver(kNoteToolBarChanged, [this](const Notification&) {
            addItems();
            updateToolbarElements();
        });
}

void MainToolBar::addItems()
{
    _buttons.clear();
    hangingProtocolPopup = nullptr;
    _layout = 0;
    qDeleteAll(actions());
    for (const ToolBarItem* item : PresentToolBar()) {
        if (item->name == kToolBarSeparator)
            addSeparator();
        else if (item->name == kToolBarSpace)
            addSpace(false);
        else if (item->name == kToolBarStretch)
            addSpace(true);
        else if (item->name == kToolBarReset)
            addReset();
        else if (item->name == kToolBarLayouts)
            addLayouts();
        for (const ToolBarItem::Button& button : item->buttons)
            addButton({nullptr, button.command, button.isOn}, button.icon, button.menuForm);
    }
    for (QToolButton* button : findChildren<QToolButton*>())
        button->setFocusPolicy(Qt::TabFocus);  // a click leaves the keys where they are
}

void MainToolBar::contextMenuEvent(QContextMenuEvent* event)
{
    QMenu menu;
    for (const W command : {W::Toolbar, W::CustomizeToolbar}) {
        QAction* action = AddCommandAction(&menu, {command}, _target);
        action->setShortcut({});
    }
    menu.exec(event->globalPos());
}

void MainToolBar::addButton(const Button& button, const char* icon, const char* menuForm)
{
    QAction* action = addAction(ToolIcon(QString::fromLatin1(icon)), QString());
    action->setObjectName(QString::fromLatin1(icon));
    if (menuForm)
        action->setData(Word(menuForm));
    connect(action, &QAction::triggered, this, [this, command = button.command] {
        Perform(command, _target, HasOption(QGuiApplication::keyboardModifiers()));
        updateToolbarElements();
    });
    _buttons.push_back({action, button.command, button.isOn});
}

// All changes at once by the button, one kind of them by its menu.
void MainToolBar::addReset()
{
    addButton({nullptr, {W::ResetAll}, nullptr}, "tool_reset", nullptr);
    auto* button = qobject_cast<QToolButton*>(widgetForAction(_buttons.back().action));
    auto* menu = new QMenu(button);
    for (const W command :
         {W::ResetColors, W::ResetOrientation, W::ResetFramePosition, W::ResetMeasurements})
        AddCommandAction(menu, {command}, _target)->setShortcut({});
    button->setMenu(menu);
    button->setPopupMode(QToolButton::MenuButtonPopup);
}

void MainToolBar::addLayouts()
{
    hangingProtocolPopup = new QToolButton(this);
    hangingProtocolPopup->setObjectName(QStringLiteral("hangingProtocolPopup"));
    hangingProtocolPopup->setPopupMode(QToolButton::InstantPopup);
    hangingProtocolPopup->setToolTip(Word("Series Grid"));
    hangingProtocolPopup->setAccessibleName(Word("Series Grid"));
    auto* menu = new QMenu(hangingProtocolPopup);
    connect(menu, &QMenu::aboutToShow, menu, [this, menu] {
        std::vector<MenuEntry> entries;
        for (int tag = kFirstLayoutTag; const LayoutMenuItem& item : kLayoutMenuItems) {
            entries.push_back(EntryOf({G::SwitchLayout, tag}, _target));
            entries.back().image = QString::fromLatin1(item.image);
            if (EndsGroup(tag++ + kLayoutMenuOffset))
                entries.emplace_back();
        }
        FillMenu(menu, entries);
    });
    hangingProtocolPopup->setMenu(menu);
    addWidget(hangingProtocolPopup);
}

void MainToolBar::addSpace(bool stretches)
{
    auto* space = new QWidget(this);
    space->setSizePolicy(stretches ? QSizePolicy::Expanding : QSizePolicy::Fixed,
                         QSizePolicy::Preferred);
    space->setFixedWidth(kSpaceWidth);
    if (stretches)
        space->setMaximumWidth(QWIDGETSIZE_MAX);
    addWidget(space);
}

void MainToolBar::selectLayout(int layout)
{
    const GridLayout* shown = ControllerWithID(layout);
    if (hangingProtocolPopup && shown && layout != _layout) {
        hangingProtocolPopup->setIcon(LayoutIcon(*shown));
        _layout = layout;
    }
}

void MainToolBar::updateToolbarElements()
{
    for (const Button& button : _buttons) {
        const WindowCommandState state = StateOf(button.command, _target);
        const QString menuForm = button.action->data().toString();
        button.action->setText(MenuText(menuForm.isEmpty() ? state.title : menuForm));
        button.action->setToolTip(TipOf(state));
        button.action->setEnabled(state.enabled);
        button.action->setCheckable(button.isOn || state.mark != Mark::None);
        button.action->setChecked(button.isOn ? button.isOn(_target) : state.mark == Mark::On);
    }
    selectLayout(_target.host->protocolItemTag());
}

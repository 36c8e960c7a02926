#include "app/window/MainToolBar.h"

#include "app/tools/GridMenuItems.h"
#include "app/tools/TargetWatch.h"
#include "app/views/LayoutIcons.h"
#include "app/views/MenuFromEntries.h"
#include "app/window/ToolIcons.h"
#include "platform/Words.h"

#include <QGuiApplication>
#include <QMenu>
#include <QToolButton>

namespace {

using W = WindowCommand;
using G = GridCommand;
using Mark = WindowCommandState::Mark;
using T = WindowTarget;

QString Word(const char* key) { return ZelWord(kWordsMenuItems, key); }

// ---- what is on, of commands whose menu entries have another title then ----

template <bool (ZELSequenceProxy::*Question)() const>
bool Is(const T& t)
{
    const ZELSequenceProxy* proxy = TargetWatch::SequenceOf(*t.host);
    return proxy && (proxy->*Question)();
}

bool ShowsOverlays(const T& t)
{
    return Is<&ZELSequenceProxy::hasDicomOverlays>(t) &&
           Is<&ZELSequenceProxy::viewShowsDicomOverlays>(t);
}

bool ShowsLines(const T& t)
{
    return t.panes->multiGridController().localizers().toolbarSegment().on;
}
bool IsPlaying(const T& t)
{
    const auto* grid = t.host->activeSequenceGridController();
    return grid && grid->cineModeIsON();
}
bool ShowsMeasurements(const T& t) { return t.panes->showsMeasurementInfoBox(); }

// One item of the bar, which may have several buttons; an empty one is a separator.
struct Item {
    const char* name;
    struct Button {
        AnyCommand command;
        const char* icon;
        const char* menuForm = nullptr;  // its title where the bar is too narrow for its picture
        bool (*isOn)(const T&) = nullptr;
    };
    std::vector<Button> buttons;
};

const std::vector<Item>& Items()
{
    static const std::vector<Item> kItems = {
        {"ResetTBItem", {}},
        {"SequenceTB",
         {{{G::PreviousSequence}, "tool_previous"}, {{G::NextSequence}, "tool_next"}}},
        {},
        {"LayoutTB", {}},
        {"ScopeTB",
         {{{W::ChangeToolScope, ToolScope::kTagFrame}, "tool_scope_frame"},
          {{W::ChangeToolScope, ToolScope::kTagSequence}, "tool_scope_sequence"}}},
        {},
        {"ToolsGroupTBItem",
         {{{W::SelectTool, kToolSelection}, "tool_select"},
          {{W::SelectTool, kToolZoom}, "tool_zoom"},
          {{W::SelectTool, kToolPan}, "tool_pan"},
          {{W::SelectTool, kToolWindow}, "tool_window"},
          {{W::SelectTool, kToolCrop}, "tool_crop"}}},
        {},
        {"InvertTB",
         {{{G::Invert}, "tool_invert", nullptr, Is<&ZELSequenceProxy::currentFrameIsInverted>}}},
        {"RotateFlipTB",
         {{{G::RotateLeft}, "tool_rotate_left"},
          {{G::RotateRight}, "tool_rotate_right"},
          {{G::FlipHorizontal}, "tool_flip_horizontal"},
          {{G::FlipVertical}, "tool_flip_vertical"}}},
        {},
        {"DemographicsTB",
         {{{G::SwitchDemographics},
           "tool_demographics",
           "Demographics",
           Is<&ZELSequenceProxy::viewShowsDemographics>}}},
        {"OverlaysTB", {{{G::SwitchOverlays}, "tool_overlays", "Overlays", ShowsOverlays}}},
        {"LocalizersTB", {{{W::ReferenceLines}, "tool_localizers", "Reference Lines", ShowsLines}}},
        {},
        {"CineTB", {Item::Button{{G::PlayCine}, "tool_cine", "Play Cine", IsPlaying}}},
        {"FlexibleSpace", {}},
        {"MeasureTB", {{{W::MeasurementPane}, "tool_measure", "Measure", ShowsMeasurements}}},
    };
    return kItems;
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
    for (const Item& item : Items()) {
        const std::string_view name = item.name ? item.name : "";
        if (name.empty())
            addSeparator();
        else if (name == "ResetTBItem")
            addReset();
        else if (name == "LayoutTB")
            addLayouts();
        else if (name == "FlexibleSpace")
            addStretch();
        for (const Item::Button& button : item.buttons)
            addButton({nullptr, button.command, button.isOn}, button.icon, button.menuForm);
    }
    for (QToolButton* button : findChildren<QToolButton*>())
        button->setFocusPolicy(Qt::TabFocus);  // a click leaves the keys where they are
}

void MainToolBar::addButton(const Button& button, const char* icon, const char* menuForm)
{
    QAction* action = addAction(ToolIcon(QString::fromLatin1(icon)), QString());
    action->setObjectName(QString::fromLatin1(icon));
    if (menuForm)
        action->setData(Word(menuForm));
    connect(action, &QAction::triggered, this, [this, command = button.command] {
        Perform(command, _target, QGuiApplication::keyboardModifiers().testFlag(Qt::AltModifier));
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
            entries.push_back(EntryOf({G::SwitchLayout, tag++}, _target));
            entries.back().image = QString::fromLatin1(item.image);
        }
        FillMenu(menu, entries);
    });
    hangingProtocolPopup->setMenu(menu);
    addWidget(hangingProtocolPopup);
}

void MainToolBar::addStretch()
{
    auto* space = new QWidget(this);
    space->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    addWidget(space);
}

void MainToolBar::selectLayout(int layout)
{
    if (const GridLayout* shown = ControllerWithID(layout); shown && layout != _layout) {
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

#include "viewer/ViewerMenus.h"

#include "app/tools/ContextualMenus.h"
#include "app/views/MenuFromEntries.h"
#include "dicom_core/opening/RecentDocuments.h"
#include "platform/Words.h"
#include "viewer/DocumentIcon.h"
#include "viewer/GridsPane.h"
#include "viewer/ViewerCommands.h"
#include "viewer/ViewerWords.h"

#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <algorithm>

namespace {

// A name's "&" would be taken for the mark of a shortcut.
QString MenuText(QString name) { return name.replace(QLatin1Char('&'), QLatin1String("&&")); }

// Filled whenever it is about to show, so it is never out of date.
void FillRecentMenu(QMenu* menu, ViewerCommands* commands)
{
    menu->clear();
    const std::vector<ZELRecentDocument>& list = commands->recents().list();
    for (std::size_t i = 0; i < list.size(); ++i)
        menu->addAction(DocumentIcon(list[i]), MenuText(list[i].menuTitle()), menu,
                        [commands, i] { commands->openRecent(i); });
    if (!list.empty())
        menu->addSeparator();
    menu->addAction(ZelWord(kWordsMenuItems, "Clear Menu"), menu,
                    [commands] { commands->recents().clearZELRecentDocuments(); })
        ->setEnabled(!list.empty());
}

}  // namespace

void AddFileMenu(QMainWindow* window, ViewerCommands* commands)
{
    QMenu* file = window->menuBar()->addMenu(ViewerWord("&File"));
    file->addAction(ViewerWord("&Open…"), QKeySequence::Open, window,
                    [commands] { commands->openFromDialog(); });
    QMenu* recent = file->addMenu(ViewerWord("Open &Recent"));
    QObject::connect(recent, &QMenu::aboutToShow, recent,
                     [recent, commands] { FillRecentMenu(recent, commands); });
    file->addSeparator();
    file->addAction(ViewerWord("&Close"), QKeySequence::Close, window, &QWidget::close);
    file->addAction(ViewerWord("&Quit"), Qt::CTRL | Qt::Key_Q, window,
                    [commands] { commands->quit(); });
}

// ---- View ----

namespace {

// A menu whose entries find the pane, and say what they are when it shows.
class PaneMenu {
public:
    PaneMenu(QMenu* menu, GridsPane* pane) : fMenu(menu), fPane(pane) {}

    [[nodiscard]] QMenu* menu() const { return fMenu; }
    [[nodiscard]] GridsPane* pane() const { return fPane; }
    template <typename Work>
    QAction* Add(const char* title, const QKeySequence& shortcut, Work work)
    {
        GridsPane* pane = fPane;
        return fMenu->addAction(ViewerWord(title), shortcut, fMenu, [pane, work] {
            if (pane->proxy())
                work(*pane);
        });
    }
    // With a mark where `isOn` holds.
    template <typename IsOn, typename Work>
    void AddMarked(const char* title, const QKeySequence& shortcut, IsOn isOn, Work work)
    {
        QAction* action = Add(title, shortcut, work);
        action->setCheckable(true);
        GridsPane* pane = fPane;
        QObject::connect(fMenu, &QMenu::aboutToShow, action, [action, pane, isOn] {
            action->setChecked(pane->proxy() && isOn(*pane));
        });
    }

    // One that the right button offers as well, on the active grid and its current frame.
    void AddCommand(GridCommand command)
    {
        GridsPane* pane = fPane;
        const auto target = [pane] {
            return GridTarget{&pane->grid(), pane, &pane->actions(), 0, nullptr, 0};
        };
        const GridCommandState first = StateOfGridCommand(command, target());
        QAction* action =
            fMenu->addAction(ZelWord(kWordsMenuItems, first.title), QKeySequence(first.shortcut),
                             fMenu, [command, target] { PerformGridCommand(command, target()); });
        QObject::connect(fMenu, &QMenu::aboutToShow, action, [action, command, target] {
            const GridCommandState state = StateOfGridCommand(command, target());
            action->setText(ZelWord(kWordsMenuItems, state.title));
            action->setEnabled(state.enabled);
        });
        // Its key asks the rule anew, whatever the menu last said.
        QObject::connect(fMenu, &QMenu::aboutToHide, action,
                         [action] { action->setEnabled(true); });
    }

private:
    QMenu* fMenu;
    GridsPane* fPane;
};

void AddLooks(PaneMenu menu)
{
    using C = GridCommand;
    for (const C command : {C::Enlarge, C::Reduce, C::NormalSize, C::FitInWindow})
        menu.AddCommand(command);
    menu.menu()->addSeparator();
    for (const C command :
         {C::Invert, C::RotateLeft, C::RotateRight, C::FlipHorizontal, C::FlipVertical})
        menu.AddCommand(command);
    menu.menu()->addSeparator();
    menu.Add("Original &Window", Qt::CTRL | Qt::SHIFT | Qt::Key_O,
             [](GridsPane& p) { p.actions().originalWWWLorBnC(); });
    menu.Add("Ad&just…", Qt::CTRL | Qt::SHIFT | Qt::Key_W,
             [](GridsPane& p) { p.openAdjustColorsDialog(); });
    menu.Add("Reset &All", Qt::CTRL | Qt::SHIFT | Qt::Key_R,
             [](GridsPane& p) { p.actions().resetAllChanges(); });
}

void AddShown(PaneMenu menu)
{
    for (const GridCommand command :
         {GridCommand::SwitchDemographics, GridCommand::SwitchScale, GridCommand::SwitchOverlays})
        menu.AddCommand(command);
}

// One of the submenus that the right button shows too, made anew whenever it shows.
void AddGridSubmenu(PaneMenu menu, const char* title)
{
    const QString word = ZelWord(kWordsMenuItems, title);
    QMenu* submenu = menu.menu()->addMenu(word);
    GridsPane* pane = menu.pane();
    QObject::connect(submenu, &QMenu::aboutToShow, submenu, [submenu, pane, word] {
        const MenuEntry all = viewContextualGeneric(pane->grid(), *pane, pane->actions(), {});
        const auto found = std::ranges::find(all.children, word, &MenuEntry::title);
        if (found != all.children.end())
            FillMenu(submenu, found->children);
    });
}

void AddReferenceLines(PaneMenu menu)
{
    QAction* action =
        menu.Add("Show &Reference Lines", Qt::CTRL | Qt::SHIFT | Qt::Key_L,
                 [](GridsPane& p) { p.multiGridController().localizers().showHideLocalizers(); });
    GridsPane* pane = menu.pane();
    QObject::connect(menu.menu(), &QMenu::aboutToShow, action, [action, pane] {
        const LocalizerSwitch::Item item = pane->multiGridController().localizers().menuItem();
        action->setText(ZelWord(kWordsMenuItems, item.title));
        action->setEnabled(item.enabled);
    });
    // Its key works whatever the menu last said.
    QObject::connect(menu.menu(), &QMenu::aboutToHide, action,
                     [action] { action->setEnabled(true); });
}

}  // namespace

void AddViewMenus(QMainWindow* window, GridsPane* pane)
{
    QMenu* view = window->menuBar()->addMenu(ViewerWord("&View"));
    AddLooks({view, pane});
    view->addSeparator();
    AddGridSubmenu({view, pane}, "Series Grid");
    AddGridSubmenu({view, pane}, "Image Grid");
    AddReferenceLines({view, pane});
    AddShown({view, pane});
    view->addSeparator();
    for (const GridCommand command : {GridCommand::PreviousSequence, GridCommand::NextSequence})
        PaneMenu(view, pane).AddCommand(command);

    PaneMenu tools(window->menuBar()->addMenu(ViewerWord("&Tools")), pane);
    struct Row {
        const char* title;
        std::int32_t tool;
        QKeySequence shortcut;
    };
    for (const Row& row : {Row{"&Window and Level", kToolWindow, Qt::Key_W},
                           Row{"&Pan", kToolPan, Qt::Key_P}, Row{"&Zoom", kToolZoom, Qt::Key_Z}})
        tools.AddMarked(
            row.title, row.shortcut,
            [tool = row.tool](GridsPane& p) { return p.tools().currentTool() == tool; },
            [tool = row.tool](GridsPane& p) { p.tools().changeToolTo(tool); });
    tools.menu()->addSeparator();
    tools.AddMarked(
        "Apply to Whole &Sequence", Qt::Key_S,
        [](GridsPane& p) { return p.toolScope().isSequence(); },
        [](GridsPane& p) {
            p.toolScope().setToolScope(p.toolScope().isSequence() ? ToolScope::kFrame
                                                                  : ToolScope::kSequence);
        });
}

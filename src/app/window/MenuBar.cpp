#include "app/window/MenuBar.h"

#include "app/tools/ContextualMenus.h"
#include "app/tools/GridMenuItems.h"
#include "app/tools/TargetWatch.h"
#include "app/tools/ZELWWWLTextBoxController.h"
#include "app/views/ColorRamps.h"
#include "app/window/CommandActions.h"
#include "app/window/DocumentIcon.h"
#include "app/window/WindowWords.h"
#include "dicom_core/opening/RecentDocuments.h"
#include "dicom_core/values/USRegions.h"
#include "platform/Words.h"
#include "prefs/PrefsTables.h"

#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPointer>
#include <algorithm>

namespace {

using W = WindowCommand;
using G = GridCommand;
using Entries = std::vector<MenuEntry>;

QString Word(const char* key) { return ZelWord(kWordsMenuItems, key); }

// One menu of the bar in the making.
class Menu {
public:
    Menu(QMainWindow* window, const char* title, const WindowTarget& target)
        : fWindow(window), fMenu(window->menuBar()->addMenu(Word(title))), fTarget(target)
    {
    }
    Menu(QMainWindow* window, QMenu* menu, const WindowTarget& target)
        : fWindow(window), fMenu(menu), fTarget(target)
    {
    }
    ~Menu()
    {
        // Their keys stay alive where the bar is hidden.
        fWindow->addActions(fMenu->actions());
    }
    Menu(const Menu&) = delete;
    Menu& operator=(const Menu&) = delete;

    Menu& operator<<(W command) { return Add({command}); }
    Menu& operator<<(G command) { return Add({command}); }
    Menu& operator<<(const AnyCommand& command) { return Add(command); }
    Menu& Separator()
    {
        fMenu->addSeparator();
        return *this;
    }
    template <typename Act>
    QAction* Plain(const char* title, const QKeySequence& key, Act act)
    {
        return fMenu->addAction(MenuText(U_FixApplicationMenuTitle(Word(title))), key, fMenu, act);
    }
    void Filled(const char* title, std::function<Entries()> entries)
    {
        AddFilledMenu(fMenu, Word(title), std::move(entries));
    }
    [[nodiscard]] QMenu* menu() const { return fMenu; }
    [[nodiscard]] QMenu* Submenu(const char* title) { return fMenu->addMenu(Word(title)); }

private:
    Menu& Add(const AnyCommand& command)
    {
        AddCommandAction(fMenu, command, fTarget);
        return *this;
    }

    QMainWindow* fWindow;
    QMenu* fMenu;
    WindowTarget fTarget;
};

// ---- menus whose entries are made anew ----

// Filled whenever it is about to show, so it is never out of date.
void FillRecentMenu(QMenu* menu, AppCommands* app)
{
    menu->clear();
    const std::vector<ZELRecentDocument>& list = app->recents().list();
    for (const ZELRecentDocument& document : list)
        menu->addAction(DocumentIcon(document), MenuText(document.menuTitle()), menu,
                        [app, document] { app->openRecent(document); });
    if (!list.empty())
        menu->addSeparator();
    menu->addAction(Word("Clear Menu"), menu, [app] { app->recents().clearZELRecentDocuments(); })
        ->setEnabled(!list.empty());
}

// One of the submenus that the right button shows too.
std::function<Entries()> GridSubmenu(const WindowTarget& target, const char* title)
{
    return [target, title] { return SubmenuOfActiveGrid(*target.host, *target.actions, title); };
}

std::function<Entries()> ColorTables(const WindowTarget& target)
{
    return [target] {
        Entries entries;
        entries.push_back(EntryOf({W::SetColorTable, 0}, target));
        entries.push_back({});
        for (const int table : prefs_GetCLUTsInMenuOrder()) {
            entries.push_back(EntryOf({W::SetColorTable, table + 1}, target));
            entries.back().image = ImageOfColorTable(table);
        }
        return entries;
    };
}

std::function<Entries()> WindowList(AppCommands* app, const QWidget* self)
{
    return [app, self] {
        Entries entries;
        for (QWidget* window : app->viewerWindows()) {
            MenuEntry entry;
            entry.kind = MenuEntry::Kind::Command;
            entry.title =
                window->windowTitle().replace(QLatin1String("[*][*]"), QLatin1String("[*]"));
            entry.checked = window == self;
            entry.perform = [window = QPointer(window)](bool) {
                if (!window)
                    return;
                window->setWindowState(window->windowState() & ~Qt::WindowMinimized);
                window->raise();
                window->activateWindow();
            };
            entries.push_back(std::move(entry));
        }
        return entries;
    };
}

// ---- the menus of the bar ----

void AddFileMenu(QMainWindow* window, const WindowTarget& target, AppCommands* app)
{
    Menu file(window, "&File", target);
    file.Plain("Open...", QKeySequence::Open, [app] { app->openFromDialog(); });
    QMenu* recent = file.Submenu("Open Recent");
    QObject::connect(recent, &QMenu::aboutToShow, recent,
                     [recent, app] { FillRecentMenu(recent, app); });
    file.Separator() << W::Export << W::ExportMetadata << W::Anonymize;
    file.Separator() << W::Print;
    file.Separator();
    file.Plain("Close Window", QKeySequence::Close, [window] { window->close(); });
    file.Plain("Quit", Qt::CTRL | Qt::Key_Q, [app] { app->quit(); });
}

void AddEditMenu(QMainWindow* window, const WindowTarget& target, AppCommands* app)
{
    Menu edit(window, "&Edit", target);
    edit << W::SelectAll;
    edit.Separator() << W::PropagateMeasurement << W::DeleteMeasurement << W::DeleteAllMeasurements;
    edit.Separator();
    edit.Plain("Preferences...", Qt::CTRL | Qt::Key_Comma,
               [app] { app->showHidePreferencesWindow(); });
}

void AddViewMenu(QMainWindow* window, const WindowTarget& target)
{
    Menu view(window, "&View", target);
    view.Filled("Series Grid", GridSubmenu(target, "Series Grid"));
    view.Filled("Image Grid", GridSubmenu(target, "Image Grid"));
    view.Separator() << G::Enlarge << G::Reduce << G::NormalSize << G::FitInWindow;
    view.Separator() << G::SwitchDemographics << G::SwitchScale << G::SwitchOverlays
                     << G::SwitchMeasurements << G::SwitchUSRegions << W::ReferenceLines;
    view.Separator() << W::PatientList << W::StudyInfo << W::MeasurementPane << W::MetadataPalette;
    view.Separator() << W::Toolbar << W::CustomizeToolbar << W::SecondaryToolbar << W::FullScreen;
}

void AddImageMenu(QMainWindow* window, const WindowTarget& target,
                  ZELWWWLTextBoxController* windowValues)
{
    Menu image(window, "&Image", target);
    image.Filled("Window Presets", [windowValues] { return windowValues->updateWWWLMenu(); });
    image << W::AdjustColors << W::OriginalColors;
    image.Filled("Color Table", ColorTables(target));
    image << G::Invert;
    image.Separator() << G::RotateLeft << G::RotateRight << G::FlipHorizontal << G::FlipVertical;
    image.Separator();
    image.Filled("Crop", [target] { return U_UpdateRegionsMenuFor(target); });
    image.Separator() << W::ResetAll << W::ResetColors << W::ResetOrientation
                      << W::ResetFramePosition << W::ResetMeasurements;
    image.Separator();
    Menu scope(window, image.Submenu("Apply To"), target);
    scope << AnyCommand{W::ChangeToolScope, ToolScope::kTagFrame}
          << AnyCommand{W::ChangeToolScope, ToolScope::kTagSequence};
}

void AddSequenceMenu(QMainWindow* window, const WindowTarget& target)
{
    Menu sequence(window, "&Sequence", target);
    sequence << G::PreviousSequence << G::NextSequence;
    sequence.Separator() << G::FirstFrame << G::PreviousFrame << G::NextFrame << G::LastFrame;
    sequence.Separator() << W::SwitchSequenceMark;
    sequence.Separator() << W::MarkSelected << W::UnmarkSelected << W::SwitchSelectedMarked;
    sequence.Separator() << W::MarkAll << W::UnmarkAll << W::SwitchAllMarked;
    sequence.Separator() << G::RevealFile;
}

void AddToolsMenu(QMainWindow* window, const WindowTarget& target)
{
    Menu tools(window, "&Tools", target);
    for (const int tool : {+kToolSelection, +kToolZoom, +kToolPan, +kToolWindow, kToolCrop})
        tools << AnyCommand{W::SelectTool, tool};
    tools.Separator();
    for (const ZELTool tool : {kToolLine, kToolAngle, kToolRectangle, kToolEllipse, kToolPolygon,
                               kToolArrow, kToolCalibration, kToolText, kToolEyedropper})
        tools << AnyCommand{W::SelectTool, tool};
}

void AddCineMenu(QMainWindow* window, const WindowTarget& target)
{
    Menu cine(window, "&Cine", target);
    cine << G::PlayCine << G::StopCine << G::PlayAllCines << G::StopAllCines;
    cine.Separator() << W::CineLoop << W::CineSweep << W::AutoplayCine << W::PlaylistTraverse;
}

void AddWindowMenu(QMainWindow* window, const WindowTarget& target, AppCommands* app)
{
    Menu menu(window, "&Window", target);
    menu.Plain("Minimize", {}, [window] { window->showMinimized(); });
    menu.Filled("Windows", WindowList(app, window));
}

void AddHelpMenu(QMainWindow* window, const WindowTarget& target, AppCommands* app)
{
    Menu help(window, "&Help", target);
    help.Plain("Help", QKeySequence::HelpContents, [app] { app->showHelp(); });
    help.Plain("Acknowledgments", {}, [app] { app->showAcknowledgments(); });
    help.Separator();
    help.Plain("First Aid...", {}, [app] { app->showFirstAidWindow(); });
    help.Plain("Check for Updates...", {}, [app] { app->checkForUpdates(); })
        ->setEnabled(app->hasUpdateCheck());
    help.Separator();
    help.Plain("About", {}, [app] { app->showAbout(); });
}

// ---- crops ----

// The crop of the current frame is exactly that region.
bool IsCropOf(const US_ROIRegDataRec& region, const QRectF& crop)
{
    return crop ==
           QRectF(QPointF(region.fX0, region.fY0), QPointF(region.fX1 + 1.0, region.fY1 + 1.0));
}

MenuEntry Heading(const QString& title)
{
    MenuEntry entry;
    entry.kind = MenuEntry::Kind::Command;
    entry.title = title;
    entry.enabled = false;
    return entry;
}

}  // namespace

std::vector<MenuEntry> U_UpdateRegionsMenuFor(const WindowTarget& target)
{
    const ZELSequenceProxy* proxy = TargetWatch::SequenceOf(*target.host);
    Entries entries = {EntryOf({W::WholeImage}, target),    Heading(Word("User Selection")),  {},
                       EntryOf({W::PropagateCrop}, target), EntryOf({W::ClearCrops}, target), {}};
    const auto* regions = proxy ? proxy->usRegions() : nullptr;
    if (!regions || regions->empty()) {
        entries.push_back(Heading(Word("No regions found")));
    }
    const QRectF crop = proxy ? proxy->cropRectForFrame(ZELSequenceProxy::kCurrentFrame) : QRectF();
    bool matches = false;
    for (std::size_t i = 0; regions && i < regions->size(); ++i) {
        MenuEntry entry =
            Heading(U_MenuItemTitleForUSRegion((*regions)[i], static_cast<std::int32_t>(i), true));
        entry.checked = proxy->hasCrops() && IsCropOf((*regions)[i], crop);
        matches = matches || entry.checked;
        entries.push_back(std::move(entry));
    }
    if (proxy && proxy->hasCrops() && !matches)
        entries[1].enabled = entries[1].checked = true;
    return entries;
}

void AddMenuBar(QMainWindow* window, const WindowTarget& target, AppCommands* app,
                ZELWWWLTextBoxController* windowValues)
{
    AddFileMenu(window, target, app);
    AddEditMenu(window, target, app);
    AddViewMenu(window, target);
    AddImageMenu(window, target, windowValues);
    AddSequenceMenu(window, target);
    AddToolsMenu(window, target);
    AddCineMenu(window, target);
    AddWindowMenu(window, target, app);
    AddHelpMenu(window, target, app);
}

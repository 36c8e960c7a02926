// Panes and bars of the window: shown, hidden, and remembered.
#include "app/window/MainToolBar.h"
#include "app/window/PatientPane.h"
#include "app/window/ToolBarSheet.h"
#include "app/window/ZELMainWindowController.h"
#include "prefs/Prefs.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QPointer>

namespace {

constexpr int kShown = 1, kHidden = 2;  // of the secondary tool bar, as it is stored

FullScreenWishes WishesOfPreferences()
{
    return {prefs_FullScreen_HideTopbars(), prefs_FullScreen_HideMeasurement(),
            prefs_FullScreen_HidePatientList()};
}

}  // namespace

bool ZELMainWindowController::hasFeature(Feature /*feature*/) const { return false; }

MultiGridViewController& ZELMainWindowController::multiGridController() const
{
    return _pane->multiGridController();
}

std::vector<dk_SequenceBase*> ZELMainWindowController::selectedSequences() const
{
    return _patients->selectedSequences();
}

bool ZELMainWindowController::canSelectAllRows() const
{
    return qobject_cast<QAbstractItemView*>(focusWidget());
}

void ZELMainWindowController::selectAllRows()
{
    if (auto* list = qobject_cast<QAbstractItemView*>(focusWidget()))
        list->selectAll();
}

void ZELMainWindowController::keepingFocus(const std::function<void()>& change)
{
    const QPointer<QWidget> focus = focusWidget();
    change();
    if (focus && focus->isVisible())
        focus->setFocus();
    else
        _pane->view()->setFocus();
}

void ZELMainWindowController::zelToggleFullScreen()
{
    if (isFullScreen())
        _fullScreen.windowWillExitFullScreen(WishesOfPreferences());
    else
        _fullScreen.windowWillEnterFullScreen(WishesOfPreferences());
    setWindowState(windowState() ^ Qt::WindowFullScreen);
}

bool ZELMainWindowController::showsToolbar() const { return !_toolBar->isHidden(); }

void ZELMainWindowController::zelToggleToolbar()
{
    keepingFocus([this] { _toolBar->setVisible(_toolBar->isHidden()); });
}

void ZELMainWindowController::customizeToolbar()
{
    if (!showsToolbar())
        zelToggleToolbar();
    auto* sheet = new ToolBarSheet(this);
    sheet->setAttribute(Qt::WA_DeleteOnClose);
    sheet->open();
}

bool ZELMainWindowController::showsPatientList() const { return !_patients->isHidden(); }

void ZELMainWindowController::showHidePatientList()
{
    keepingFocus([this] { _patients->setVisible(_patients->isHidden()); });
    prefs_Set_ShowPatientListPane(showsPatientList());
    prefs_Synchronize();
}

bool ZELMainWindowController::showsStudyInfo() const
{
    return showsPatientList() && _patients->showsStudyInfo();
}

void ZELMainWindowController::showHideStudyInfo() { _patients->toggleInfoPane(); }

bool ZELMainWindowController::showsZELToolbar() const { return !infoBarBox->isHidden(); }

void ZELMainWindowController::showHideZELToolbar()
{
    keepingFocus([this] { infoBarBox->setVisible(infoBarBox->isHidden()); });
    prefs_Set_ShowZELToolbarPane(showsZELToolbar() ? kShown : kHidden);
}

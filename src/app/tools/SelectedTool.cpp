#include "app/tools/SelectedTool.h"

#include "app/grid/ZELSequenceGridViewModelController.h"
#include "app/tools/ZELToolsController.h"

SelectedTool::SelectedTool(GridHost* host, const ZELToolsController* tools)
    : fHost(host),
      fTools(tools),
      fChanged(NotificationCenter::Default().AddObserver(
          kNoteSelectedToolDidChange,
          [this](const Notification& note) { selectedToolDidChange(note); }, tools))
{
}

void SelectedTool::selectedToolDidChange(const Notification& note)
{
    ZELSequenceGridViewModelController* grid = fHost->activeSequenceGridController();
    if (grid && grid->view()) {
        grid->view()->closePendingMeasurements(false);
        grid->view()->stopEditing();
    }
    const int old = note.userInfo.value(QLatin1String(kKeyOldTool)).toInt();
    const std::int32_t tool = fTools->currentTool();
    if (grid && old == kToolCrop && tool != kToolCrop)
        fHost->toolBox().U_FreezeTheCrop(*grid);
    if (grid && old != kToolCrop && tool == kToolCrop)
        fHost->toolBox().U_ActivateTheCrop(*grid);
    fHost->refreshToolbarItems();
}

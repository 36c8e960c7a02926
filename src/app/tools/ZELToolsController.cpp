#include "app/tools/ZELToolsController.h"

#include "app/grid/ToolBox.h"
#include "platform/NotificationCenter.h"

#include <algorithm>
#include <array>

namespace {

struct ToolRow {
    std::int32_t tool;
    bool draws, inToolbar;
};
constexpr auto kTools = std::to_array<ToolRow>({
    {kToolSelection, false, true},
    {kToolLine, true, false},
    {kToolAngle, true, false},
    {kToolRectangle, true, false},
    {kToolEllipse, true, false},
    {kToolPolygon, true, false},
    {kToolArrow, true, false},
    {kToolCalibration, true, false},
    {kToolText, true, false},
    {kToolEyedropper, true, false},
    {kToolWindow, false, true},
    {kToolPan, false, true},
    {kToolZoom, false, true},
    {kToolCrop, true, true},
});

const ToolRow* RowOf(std::int32_t tool)
{
    const auto row = std::ranges::find(kTools, tool, &ToolRow::tool);
    return row == kTools.end() ? nullptr : &*row;
}

}  // namespace

bool ZELToolsController::IsDrawTool(std::int32_t tool)
{
    const ToolRow* row = RowOf(tool);
    return row && row->draws;
}

bool ZELToolsController::IsToolbarTool(std::int32_t tool)
{
    const ToolRow* row = RowOf(tool);
    return row && row->inToolbar;
}

void ZELToolsController::selectTool(std::int32_t tool)
{
    _automaticallyRevertsToSelectionTool = false;
    U_ChangeToolTo(tool);
}

void ZELToolsController::U_ChangeToolTo(std::int32_t tool)
{
    const std::int32_t old = toolID;
    Announce({"currentTool"}, [&] { toolID = tool; });
    NotificationCenter::Default().Post(kNoteSelectedToolDidChange, this,
                                       {{QLatin1String(kKeyOldTool), old}});
}

void ZELToolsController::changeToolTo(std::int32_t tool)
{
    if (tool != toolID)
        U_ChangeToolTo(tool);
}

void ZELToolsController::pushTool(std::int32_t tool)
{
    if (tool == toolID)
        return;
    prevToolID = toolID;
    changeToolTo(tool);
}

void ZELToolsController::popTool()
{
    if (prevToolID != 0)
        changeToolTo(prevToolID);
    prevToolID = 0;
}

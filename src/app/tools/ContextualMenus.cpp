#include "app/tools/ContextualMenus.h"

#include "app/grid/ZELSequenceGridViewModelController.h"
#include "app/tools/GridMenuItems.h"
#include "platform/Words.h"
#include "prefs/MenuItems.h"

#include <algorithm>
#include <initializer_list>

namespace {

using C = GridCommand;
using Entries = std::vector<MenuEntry>;

QString MenuWord(const char* key) { return ZelWord(kWordsMenuItems, key); }

MenuEntry Submenu(const char* title, Entries children)
{
    MenuEntry entry;
    entry.kind = MenuEntry::Kind::Submenu;
    entry.title = MenuWord(title);
    entry.enabled = std::ranges::any_of(children, [](const MenuEntry& child) {
        return child.kind != MenuEntry::Kind::Separator && child.enabled;
    });
    entry.children = std::move(children);
    return entry;
}

// Makes the entries of one menu, all for the same target.
class Builder {
public:
    Builder(const GridTarget& target, ContextualTarget* cleared)
        : fTarget(target), fCleared(cleared)
    {
    }

    [[nodiscard]] MenuEntry command(GridCommand command, int tag = 0) const
    {
        GridTarget target = fTarget;
        target.tag = tag;
        const GridCommandState state = StateOfGridCommand(command, target);
        MenuEntry entry;
        entry.kind = MenuEntry::Kind::Command;
        entry.title = MenuWord(state.title);
        entry.shortcut = QString::fromLatin1(state.shortcut ? state.shortcut : "");
        entry.tag = tag;
        entry.enabled = state.enabled;
        entry.checked = state.checked;
        entry.perform = [command, target, cleared = fCleared](bool option) {
            PerformGridCommand(command, target, option);
            if (cleared)
                cleared->frame = 0;
        };
        return entry;
    }

    [[nodiscard]] Entries commands(std::initializer_list<GridCommand> list) const
    {
        Entries entries;
        for (const GridCommand each : list)
            entries.push_back(command(each));
        return entries;
    }

    [[nodiscard]] MenuEntry layouts() const
    {
        Entries entries;
        for (int tag = kFirstLayoutTag; const LayoutMenuItem& item : kLayoutMenuItems) {
            entries.push_back(command(C::SwitchLayout, tag++));
            entries.back().image = QString::fromLatin1(item.image);
        }
        return Submenu("Series Grid", std::move(entries));
    }

    [[nodiscard]] MenuEntry imageGrids() const
    {
        Entries entries;
        const auto table = ZELGridMenuItemsArray::initFromFile(QLatin1String(kMenuTableGrids),
                                                               MenuWord("Other..."));
        for (int i = 0; i < table.count(); ++i) {
            if (const ZELGridDimMenuItem* item = table.standardItemAt(i))
                entries.push_back(
                    command(C::SetImageGrid,
                            kFirstImageGridTag + GridSetupIDFromRows(item->rows, item->columns)));
            else if (i + 1 < table.count())
                entries.push_back({});
            else
                entries.push_back(command(C::OpenGridSetup));
        }
        return Submenu("Image Grid", std::move(entries));
    }

private:
    GridTarget fTarget;
    ContextualTarget* fCleared;  // whose frame goes when a command is done, or null
};

// One after the other, with a separator between; groups without entries count as none.
Entries Joined(std::initializer_list<Entries> groups)
{
    Entries joined;
    for (const Entries& group : groups) {
        if (!group.empty() && !joined.empty())
            joined.push_back({});
        joined.insert(joined.end(), group.begin(), group.end());
    }
    return joined;
}

GridTarget TargetOf(ZELSequenceGridViewModelController& grid, GridHost& host,
                    ViewerActions& actions, const ContextualTarget& target)
{
    // 0 would be the current frame, which nobody has clicked on.
    constexpr std::int32_t kNoFrame = -1;
    return {.grid = &grid,
            .host = &host,
            .actions = &actions,
            .frame = target.frame > 0 ? target.frame : kNoFrame,
            .shape = target.measurement};
}

Entries ShowAndHide(const Builder& menu, const ZELSequenceProxy* proxy)
{
    Entries entries = menu.commands(
        {C::SwitchDemographics, C::SwitchScale, C::SwitchOverlays, C::SwitchMeasurements});
    if (proxy && proxy->supportsUSRegions())
        entries.push_back(menu.command(C::SwitchUSRegions));
    return entries;
}

}  // namespace

ContextualTarget contextualTarget(const ZELSequenceGridViewModelController& grid,
                                  const QPointF& viewPoint)
{
    const ZELSequenceProxy* proxy = grid.currZELSequence().get();
    const std::int32_t total = proxy ? proxy->totalFrames() : 0;
    const auto cell = grid.viewport().photoIndexForPoint(viewPoint);
    ContextualTarget target;
    target.frame = cell ? *cell + 1 : total + 1;
    if (proxy && proxy->viewShowsMeasurements() && target.frame <= total)
        target.measurement = grid.graphicUnderPoint(viewPoint, true, target.frame).graphic;
    return target;
}

MenuEntry viewContextualForShape(ZELSequenceGridViewModelController& grid, GridHost& host,
                                 ViewerActions& actions, ContextualTarget& target)
{
    const Builder menu(TargetOf(grid, host, actions, target), &target);
    return Submenu(
        "Meas Contextual",
        Joined({menu.commands({C::SwitchStroke, C::SwitchFill, C::SwitchLabel, C::SwitchShadow}),
                menu.commands({C::BringToFront, C::MoveForward, C::MoveBackwards, C::SendToBack}),
                menu.commands({C::PropagateMeasurement}),
                menu.commands({C::DeleteMeasurement, C::DeleteAllMeasurements})}));
}

MenuEntry viewContextualGeneric(ZELSequenceGridViewModelController& grid, GridHost& host,
                                ViewerActions& actions, const ContextualTarget& target)
{
    const Builder menu(TargetOf(grid, host, actions, target), nullptr);
    const bool playing = grid.cineModeIsON();
    const bool manyGrids = host.gridControllers().size() >= 2;
    return Submenu(
        "Grid Contextual",
        Joined({{menu.layouts()},
                {menu.imageGrids()},
                menu.commands({C::PreviousSequence, C::NextSequence}),
                menu.commands({C::SwitchSequenceMark}),
                {Submenu("Go", menu.commands(
                                   {C::FirstFrame, C::PreviousFrame, C::NextFrame, C::LastFrame}))},
                {Submenu("Zoom",
                         menu.commands({C::Enlarge, C::Reduce, C::NormalSize, C::FitInWindow}))},
                {Submenu("Orientation", menu.commands({C::FlipHorizontal, C::FlipVertical,
                                                       C::RotateLeft, C::RotateRight})),
                 menu.command(C::Invert)},
                ShowAndHide(menu, grid.currZELSequence().get()),
                {menu.command(playing ? C::StopCine : C::PlayCine)},
                manyGrids ? menu.commands({C::PlayAllCines, C::StopAllCines}) : Entries(),
                menu.commands({C::RevealFile})}));
}

std::vector<MenuEntry> SubmenuOfActiveGrid(GridHost& host, ViewerActions& actions,
                                           const char* title)
{
    auto* grid = host.activeSequenceGridController();
    if (!grid)
        return {};
    const MenuEntry all = viewContextualGeneric(*grid, host, actions, {});
    const auto found =
        std::ranges::find(all.children, ZelWord(kWordsMenuItems, title), &MenuEntry::title);
    return found == all.children.end() ? std::vector<MenuEntry>() : found->children;
}

std::optional<MenuEntry> menuForTarget(ZELSequenceGridViewModelController& grid, GridHost& host,
                                       ViewerActions& actions, ContextualTarget& target)
{
    if (grid.cineModeIsON())
        return std::nullopt;
    const bool forShape = target.measurement && !target.measurement->isCrop();
    return forShape ? viewContextualForShape(grid, host, actions, target)
                    : viewContextualGeneric(grid, host, actions, target);
}

#include "app/window/ToolBarItems.h"

#include "app/tools/TargetWatch.h"
#include "app/views/LayoutIcons.h"
#include "app/views/ToolIcons.h"
#include "platform/NotificationCenter.h"
#include "prefs/Prefs.h"

#include <algorithm>

namespace {

using W = WindowCommand;
using G = GridCommand;
using T = WindowTarget;

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

constexpr int kIconLayout = 664;  // two by two

constexpr std::string_view kDefault[] = {
    kToolBarReset,     "SequenceTB",       kToolBarSeparator, kToolBarLayouts, "ScopeTB",
    kToolBarSeparator, "ToolsGroupTBItem", kToolBarSeparator, "InvertTB",      "RotateFlipTB",
    kToolBarSeparator, "DemographicsTB",   "OverlaysTB",      "LocalizersTB",  kToolBarSeparator,
    "CineTB",          kToolBarStretch,    "MeasureTB"};

template <typename Names, typename Name>
std::vector<const ToolBarItem*> ItemsNamed(const Names& names, Name nameOf)
{
    std::vector<const ToolBarItem*> items;
    for (const auto& name : names) {
        const ToolBarItem* item = ToolBarItemNamed(nameOf(name));
        if (item && (IsToolBarSpace(*item) || std::ranges::find(items, item) == items.end()))
            items.push_back(item);
    }
    return items;
}

}  // namespace

const std::vector<ToolBarItem>& AllToolBarItems()
{
    static const std::vector<ToolBarItem> kItems = {
        {kToolBarReset.data(), "Reset All", {}},
        {"SequenceTB",
         "Previous and Next Series",
         {{{G::PreviousSequence}, "tool_previous"}, {{G::NextSequence}, "tool_next"}}},
        {kToolBarLayouts.data(), "Series Grid", {}},
        {"ScopeTB",
         "Apply To",
         {{{W::ChangeToolScope, ToolScope::kTagFrame}, "tool_scope_frame"},
          {{W::ChangeToolScope, ToolScope::kTagSequence}, "tool_scope_sequence"}}},
        {"ToolsGroupTBItem",
         "Tools",
         {{{W::SelectTool, kToolSelection}, "tool_select"},
          {{W::SelectTool, kToolZoom}, "tool_zoom"},
          {{W::SelectTool, kToolPan}, "tool_pan"},
          {{W::SelectTool, kToolWindow}, "tool_window"},
          {{W::SelectTool, kToolCrop}, "tool_crop"}}},
        {"InvertTB",
         "Invert",
         {{{G::Invert}, "tool_invert", nullptr, Is<&ZELSequenceProxy::currentFrameIsInverted>}}},
        {"RotateFlipTB",
         "Rotate and Flip",
         {{{G::RotateLeft}, "tool_rotate_left"},
          {{G::RotateRight}, "tool_rotate_right"},
          {{G::FlipHorizontal}, "tool_flip_horizontal"},
          {{G::FlipVertical}, "tool_flip_vertical"}}},
        {"DemographicsTB",
         "Demographics",
         {{{G::SwitchDemographics},
           "tool_demographics",
           "Demographics",
           Is<&ZELSequenceProxy::viewShowsDemographics>}}},
        {"OverlaysTB",
         "Overlays",
         {{{G::SwitchOverlays}, "tool_overlays", "Overlays", ShowsOverlays}}},
        {"LocalizersTB",
         "Reference Lines",
         {{{W::ReferenceLines}, "tool_localizers", "Reference Lines", ShowsLines}}},
        {"CineTB", "Play Cine", {{{G::PlayCine}, "tool_cine", "Play Cine", IsPlaying}}},
        {"MeasureTB",
         "Measure",
         {{{W::MeasurementPane}, "tool_measure", "Measure", ShowsMeasurements}}},
        {kToolBarSeparator.data(), "Separator", {}},
        {kToolBarSpace.data(), "Space", {}},
        {kToolBarStretch.data(), "Flexible Space", {}},
    };
    return kItems;
}

const ToolBarItem* ToolBarItemNamed(std::string_view name)
{
    const auto& items = AllToolBarItems();
    const auto found = std::ranges::find(items, name, &ToolBarItem::name);
    return found == items.end() ? nullptr : &*found;
}

bool IsToolBarSpace(const ToolBarItem& item)
{
    return item.name == kToolBarSeparator || item.name == kToolBarSpace ||
           item.name == kToolBarStretch;
}

QIcon ToolBarItemIcon(const ToolBarItem& item)
{
    if (item.name == kToolBarReset)
        return ToolIcon(QStringLiteral("tool_reset"));
    if (item.name == kToolBarLayouts)
        return LayoutIcon(*ControllerWithID(kIconLayout));
    return item.buttons.empty() ? QIcon() : ToolIcon(QLatin1String(item.buttons.front().icon));
}

std::vector<const ToolBarItem*> DefaultToolBar()
{
    return ItemsNamed(kDefault, [](std::string_view name) { return name; });
}

std::vector<const ToolBarItem*> PresentToolBar()
{
    const auto items = ItemsNamed(prefs_ToolbarItems(),
                                  [](const std::string& name) -> std::string_view { return name; });
    return std::ranges::all_of(items, [](const auto* item) { return IsToolBarSpace(*item); })
               ? DefaultToolBar()
               : items;
}

void SetToolBar(const std::vector<const ToolBarItem*>& items)
{
    std::vector<std::string> names;
    if (items != DefaultToolBar())  // a later program's default then comes by itself
        for (const ToolBarItem* item : items)
            names.emplace_back(item->name);
    prefs_Set_ToolbarItems(names);
    NotificationCenter::Default().Post(kNoteToolBarChanged, nullptr);
}

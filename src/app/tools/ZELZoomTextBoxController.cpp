#include "app/tools/ZELZoomTextBoxController.h"

#include "app/tools/MouseTrackers.h"
#include "platform/Words.h"
#include "prefs/MenuItems.h"

#include <algorithm>

namespace {

constexpr double kLeast = 5, kMost = 800;  // percent that may be typed

double PercentOf(const QString& typed) { return NumberAtStart(CutAt(typed, "0123456789.")); }

bool IsInRange(double percent) { return percent >= kLeast && percent <= kMost; }

// Its places are the menu's tags, from 1.
const ZELZoomMenuItemsArray& ZoomMenuItems()
{
    static const auto items = ZELZoomMenuItemsArray::initFromFile(
        QLatin1String(kMenuTableZoom), ZelWord(kWordsMenuItems, "Fit in Window"));
    return items;
}

}  // namespace

ZELZoomTextBoxController::ZELZoomTextBoxController(GridHost* host, ViewerActions* actions,
                                                   std::function<void()> changed)
    : _gridsController(host),
      fActions(actions),
      fZoomed(NotificationCenter::Default().AddObserver(
          kNoteZoomChanged, [this](const Notification& note) { zoomDidChange(note); })),
      fWatch(host, {"currentZoomString"}, std::move(changed))
{
}

QString ZELZoomTextBoxController::text() const
{
    const ZELSequenceProxy* proxy = TargetWatch::SequenceOf(*_gridsController);
    return proxy ? proxy->currentZoomString() : QString();
}

bool ZELZoomTextBoxController::mayEdit() const
{
    const ZELSequenceProxy* proxy = TargetWatch::SequenceOf(*_gridsController);
    return proxy && proxy->isGood();
}

EditEnd ZELZoomTextBoxController::textShouldEndEditing(const QString& typed) const
{
    return {true, IsInRange(PercentOf(typed)) ? QString() : text()};
}

void ZELZoomTextBoxController::changeZoomValue(const QString& typed)
{
    if (IsInRange(PercentOf(typed)))
        setZoomValueTo(PercentOf(typed));
}

void ZELZoomTextBoxController::setZoomValueTo(double percent)
{
    if (mayEdit())
        fActions->setZoomTo(percent, *_gridsController->activeSequenceGridController(), 0);
}

void ZELZoomTextBoxController::setZoomToAutoFit()
{
    if (mayEdit())
        fActions->autoFitView(*_gridsController->activeSequenceGridController(), 0);
}

void ZELZoomTextBoxController::setNextZoomValue()
{
    if (mayEdit())
        fActions->nextZoomValue(*_gridsController->activeSequenceGridController());
}

void ZELZoomTextBoxController::setPrevZoomValue()
{
    if (mayEdit())
        fActions->prevZoomValue(*_gridsController->activeSequenceGridController());
}

// A drag's result, from the active grid of this window.
void ZELZoomTextBoxController::zoomDidChange(const Notification& note)
{
    const ZELSequenceGridViewModelController* grid =
        _gridsController->activeSequenceGridController();
    if (note.object && grid && note.object == static_cast<const void*>(grid->view()))
        setZoomValueTo(note.userInfo.value(QLatin1String(kKeyZoom)).toDouble());
}

void ZELZoomTextBoxController::dopopupZoomValue(int tag)
{
    if (tag == kTagAutoFit)
        setZoomToAutoFit();
    else if (const ZELZoomMenuItem* item = ZoomMenuItems().standardItemAt(tag - 1))
        setZoomValueTo(item->zoomValue);
}

int ZELZoomTextBoxController::menuIDForZoom(double percent)
{
    const auto& items = ZoomMenuItems().standardItemsArray;
    const auto found = std::ranges::find(items, percent, &ZELZoomMenuItem::zoomValue);
    return found == items.end() ? -1 : static_cast<int>(found - items.begin());
}

std::vector<MenuEntry> ZELZoomTextBoxController::updateZoomMenu()
{
    const ZELSequenceProxy* proxy = TargetWatch::SequenceOf(*_gridsController);
    const int current = proxy ? menuIDForZoom(double{proxy->currentZoom()}) : -1;
    const bool fits = proxy && proxy->zoomIsAutoFit();
    std::vector<MenuEntry> menu;
    const auto add = [&](int tag, const QString& title, bool checked) {
        MenuEntry entry;
        entry.kind = MenuEntry::Kind::Command;
        entry.title = title;
        entry.tag = tag;
        entry.enabled = mayEdit();
        entry.checked = checked;
        entry.perform = [this, tag](bool) { dopopupZoomValue(tag); };
        menu.push_back(std::move(entry));
    };
    const ZELZoomMenuItemsArray& items = ZoomMenuItems();
    for (int i = 0; i < items.count(); ++i) {
        const QString title = items.objectAtIndex(i);
        if (items.standardItemAt(i))
            add(i + 1, title, i == current);
        else if (title == QLatin1String("-"))
            menu.emplace_back();  // a separator
        else
            add(kTagAutoFit, title, fits);
    }
    return menu;
}

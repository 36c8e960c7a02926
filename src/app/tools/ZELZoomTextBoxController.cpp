#include "app/tools/ZELZoomTextBoxController.h"

#include "app/tools/MouseTrackers.h"
#include "platform/Words.h"

#include <algorithm>
#include <array>

namespace {

constexpr std::array<double, 11> kMenuPercents{800, 400, 200, 150, 125, 100, 75, 50, 25, 12.5, 10};
constexpr double kLeast = 5, kMost = 800;  // percent that may be typed

double PercentOf(const QString& typed) { return NumberAtStart(CutAt(typed, "0123456789.")); }

bool IsInRange(double percent) { return percent >= kLeast && percent <= kMost; }

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
    else if (tag >= 1 && tag <= static_cast<int>(kMenuPercents.size()))
        setZoomValueTo(kMenuPercents[static_cast<std::size_t>(tag - 1)]);
}

int ZELZoomTextBoxController::menuIDForZoom(double percent)
{
    const auto found = std::ranges::find(kMenuPercents, percent);
    return found == kMenuPercents.end() ? -1 : static_cast<int>(found - kMenuPercents.begin());
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
    for (int i = 0; i < static_cast<int>(kMenuPercents.size()); ++i)
        add(i + 1, QString::number(kMenuPercents[static_cast<std::size_t>(i)]) + QLatin1Char('%'),
            i == current);
    menu.emplace_back();  // a separator
    add(kTagAutoFit, ZelWord(kWordsMenuItems, "Fit in Window"), fits);
    return menu;
}

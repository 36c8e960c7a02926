#include "app/tools/TargetWatch.h"

#include "app/grid/GridNotifications.h"

#include <utility>

TargetWatch::TargetWatch(GridHost* host, std::vector<std::string_view> keys,
                         std::function<void()> changed)
    : fHost(host), fKeys(std::move(keys)), fChanged(std::move(changed))
{
    for (const std::string_view name : {kNoteGridDidChange, kNoteGridDidChangeSequence})
        fNotes.push_back(
            NotificationCenter::Default().AddObserver(name, [this](const Notification& note) {
                const void* window = note.userInfo.value(QLatin1String(kKeyWindow)).value<void*>();
                if (window == fHost->windowKey())
                    retarget();
            }));
    attach();
}

ZELSequenceProxy* TargetWatch::SequenceOf(const GridHost& host)
{
    const ZELSequenceGridViewModelController* grid = host.activeSequenceGridController();
    return grid ? grid->currZELSequence().get() : nullptr;
}

void TargetWatch::attach()
{
    fWatches.clear();
    if (ZELSequenceProxy* proxy = SequenceOf(*fHost)) {
        for (const std::string_view key : fKeys)
            fWatches.push_back(proxy->ObserveKey(key, [this](std::string_view, KeyPhase phase) {
                if (phase == KeyPhase::DidChange)
                    fChanged();
            }));
    }
}

void TargetWatch::retarget()
{
    attach();
    fChanged();
}

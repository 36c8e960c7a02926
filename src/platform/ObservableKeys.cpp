#include "platform/ObservableKeys.h"

#include <algorithm>

ObservableKeys::Watch ObservableKeys::ObserveKey(std::string_view key, Observer observer)
{
    std::erase_if(fObservers, [](const auto& entry) { return entry.expired(); });
    const auto entry = std::make_shared<const Entry>(key, std::move(observer));
    fObservers.push_back(entry);
    Watch watch;
    watch.fEntry = entry;
    return watch;
}

void ObservableKeys::WillChangeValueForKey(std::string_view key)
{
    for (const std::string_view changed : ChangedWith(key))
        Tell(changed, KeyPhase::WillChange);
}

void ObservableKeys::DidChangeValueForKey(std::string_view key)
{
    const auto changed = ChangedWith(key);
    for (auto each = changed.rbegin(); each != changed.rend(); ++each)
        Tell(*each, KeyPhase::DidChange);
}

std::vector<std::string_view> ObservableKeys::ChangedWith(std::string_view key) const
{
    std::vector<std::string_view> changed{key};
    if (fObservers.empty())
        return changed;
    // A row may depend on one that stands below it.
    for (bool grew = true; grew;) {
        grew = false;
        for (const DerivedKey& row : fDerived) {
            const auto hasChanged = [&changed](std::string_view each) {
                return std::ranges::find(changed, each) != changed.end();
            };
            if (!hasChanged(row.key) && std::ranges::any_of(row.dependsOn, hasChanged)) {
                changed.push_back(row.key);
                grew = true;
            }
        }
    }
    return changed;
}

void ObservableKeys::Tell(std::string_view key, KeyPhase phase)
{
    // A copy: an observer may add others, or let one go.
    for (const auto& weak : std::vector(fObservers)) {
        const auto entry = weak.lock();
        if (entry && (entry->key.empty() || entry->key == key))
            entry->observer(key, phase);
    }
}

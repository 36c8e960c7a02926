#include "platform/NotificationCenter.h"

NotificationCenter& NotificationCenter::Default()
{
    static NotificationCenter center;
    return center;
}

NotificationCenter::Observation NotificationCenter::AddObserver(std::string_view name,
                                                                Observer observer,
                                                                const void* object)
{
    std::erase_if(fObservers, [](const auto& entry) { return entry.expired(); });
    const auto entry = std::make_shared<const Entry>(name, object, std::move(observer));
    fObservers.push_back(entry);
    Observation observation;
    observation.fEntry = entry;
    return observation;
}

void NotificationCenter::Post(std::string_view name, const void* object, QVariantMap userInfo)
{
    const Notification notification{name, object, std::move(userInfo)};
    // A copy: an observer may add others, or let one go.
    for (const auto& weak : std::vector(fObservers)) {
        const auto entry = weak.lock();
        if (entry && entry->name == name && (!entry->object || entry->object == object))
            entry->observer(notification);
    }
}

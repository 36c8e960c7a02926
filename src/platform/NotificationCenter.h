// Named messages between parts of the program that don't know each other: delivered at once, in the
// poster's stack, on the main thread. A poster must be in a state fit for re-entry.
#pragma once
#include <QVariantMap>
#include <functional>
#include <memory>
#include <string_view>
#include <vector>

struct Notification {
    std::string_view name;
    const void* object = nullptr;  // the poster, or what the message is about; compared only
    QVariantMap userInfo;
};

class NotificationCenter {
public:
    using Observer = std::function<void(const Notification&)>;

    // Ends the observing when it goes; may outlive the centre.
    class [[nodiscard]] Observation {
    public:
        Observation() = default;

    private:
        friend class NotificationCenter;
        std::shared_ptr<const void> fEntry;
    };

    // The one that the whole program shares.
    static NotificationCenter& Default();

    // `name` is a text that outlives the observing. With an `object` only what is posted with it.
    // Observers are called in the order in which they came.
    Observation AddObserver(std::string_view name, Observer observer, const void* object = nullptr);
    void Post(std::string_view name, const void* object, QVariantMap userInfo = {});

private:
    struct Entry {
        std::string_view name;
        const void* object;
        Observer observer;
    };
    std::vector<std::weak_ptr<const Entry>> fObservers;
};

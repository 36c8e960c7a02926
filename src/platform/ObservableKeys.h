// Values of an object that others watch by name. Whoever changes one says so before and after; keys
// that are worked out from others are announced with those they depend on. Main thread only.
#pragma once
#include <functional>
#include <memory>
#include <span>
#include <string_view>
#include <vector>

enum class KeyPhase { WillChange, DidChange };

// One row of a class's table: `key` changes whenever one of `dependsOn` does. Both are texts that
// outlive the program's use of them, as literals do.
struct DerivedKey {
    std::string_view key;
    std::vector<std::string_view> dependsOn;
};

class ObservableKeys {
public:
    using Observer = std::function<void(std::string_view key, KeyPhase phase)>;

    // Ends the watching when it goes; may outlive the watched object.
    class [[nodiscard]] Watch {
    public:
        Watch() = default;

    private:
        friend class ObservableKeys;
        std::shared_ptr<const void> fEntry;
    };

    // `derived` is read during each announcement and must outlive the object.
    explicit ObservableKeys(std::span<const DerivedKey> derived) : fDerived(derived) {}
    ObservableKeys(const ObservableKeys&) = delete;
    ObservableKeys& operator=(const ObservableKeys&) = delete;

    // Both phases of one key; of every key with an empty one. Observers are called in the order in
    // which they came; one that comes or goes during an announcement counts from the next.
    Watch ObserveKey(std::string_view key, Observer observer);

    // The key itself, then (transitively, each once, in the table's order) what depends on it. The
    // second runs through the same keys backwards.
    void WillChangeValueForKey(std::string_view key);
    void DidChangeValueForKey(std::string_view key);

    // Announces `keys` in their order, runs `change`, announces them in reverse.
    template <typename Change>
    void Announce(std::initializer_list<std::string_view> keys, Change change)
    {
        Announce(std::span(keys.begin(), keys.size()), change);
    }
    template <typename Change>
    void Announce(std::span<const std::string_view> keys, Change change)
    {
        for (const std::string_view key : keys)
            WillChangeValueForKey(key);
        change();
        for (auto key = keys.rbegin(); key != keys.rend(); ++key)
            DidChangeValueForKey(*key);
    }

private:
    struct Entry {
        std::string_view key;
        Observer observer;
    };
    [[nodiscard]] std::vector<std::string_view> ChangedWith(std::string_view key) const;
    void Tell(std::string_view key, KeyPhase phase);

    std::span<const DerivedKey> fDerived;
    std::vector<std::weak_ptr<const Entry>> fObservers;
};

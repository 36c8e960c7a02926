// A cache of things that cost memory: keeps those used last, up to a number of bytes.
#pragma once
#include <cstddef>
#include <list>
#include <unordered_map>
#include <utility>

template <typename Key, typename Value>
class RecentItems {
public:
    explicit RecentItems(std::size_t byteLimit) : fByteLimit(byteLimit) {}

    // The item of `key`, now the one used last; null when it isn't kept. Valid until the next Put.
    [[nodiscard]] Value* Find(const Key& key)
    {
        const auto found = fWhere.find(key);
        if (found == fWhere.end())
            return nullptr;
        fItems.splice(fItems.begin(), fItems, found->second);
        return &found->second->value;
    }
    // Keeps `value` in place of an earlier one of `key`, and drops what was not used for longest
    // until the limit holds. The new item stays even when it alone is larger.
    Value* Put(const Key& key, Value value, std::size_t bytes)
    {
        if (const auto found = fWhere.find(key); found != fWhere.end())
            Drop(found->second);
        fItems.push_front({key, std::move(value), bytes});
        fWhere[key] = fItems.begin();
        fBytes += bytes;
        while (fBytes > fByteLimit && fItems.size() > 1)
            Drop(std::prev(fItems.end()));
        return &fItems.front().value;
    }
    void Remove(const Key& key)  // nothing when it isn't kept
    {
        if (const auto found = fWhere.find(key); found != fWhere.end())
            Drop(found->second);
    }
    void Clear()
    {
        fItems.clear();
        fWhere.clear();
        fBytes = 0;
    }
    [[nodiscard]] std::size_t Bytes() const { return fBytes; }

private:
    struct Item {
        Key key;
        Value value;
        std::size_t bytes;
    };
    using Place = typename std::list<Item>::iterator;

    void Drop(Place place)
    {
        fBytes -= place->bytes;
        fWhere.erase(place->key);
        fItems.erase(place);
    }

    std::list<Item> fItems;  // used last first
    std::unordered_map<Key, Place> fWhere;
    std::size_t fByteLimit, fBytes = 0;
};

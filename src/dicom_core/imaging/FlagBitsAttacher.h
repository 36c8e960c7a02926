// 32 flags for each of a few objects, by address; what isn't listed has the default.
#pragma once
#include <algorithm>
#include <cstdint>
#include <utility>
#include <vector>

class FlagBitsAttacher {
public:
    explicit FlagBitsAttacher(std::uint32_t defaultFlags = 0) : fDefault(defaultFlags) {}

    void Attach(const void* object, std::uint32_t flags)  // in place of older flags
    {
        Detach(object);
        fPairs.emplace_back(object, flags);
    }
    void Detach(const void* object)
    {
        std::erase_if(fPairs, [object](const auto& pair) { return pair.first == object; });
    }
    [[nodiscard]] std::uint32_t GetFlags(const void* object) const
    {
        const auto found = std::ranges::find(fPairs, object, &Pair::first);
        return found != fPairs.end() ? found->second : fDefault;
    }

private:
    using Pair = std::pair<const void*, std::uint32_t>;
    std::vector<Pair> fPairs;
    std::uint32_t fDefault;
};

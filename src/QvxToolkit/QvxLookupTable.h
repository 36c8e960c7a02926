// Tables of gray values that a file states: modality, PS3.3 C.11.1, and value of interest, C.11.2.
#pragma once
#include <cstdint>
#include <string>
#include <vector>

// A value below the first entry takes that one, one above the last takes the last.
struct QvxLookupTable {
    std::int64_t fFirst = 0;              // the value of the first entry
    std::uint32_t fBits = 16;             // of an entry, 8 to 16
    std::vector<std::uint16_t> fEntries;  // 1 to 65536
    std::string fExplanation;             // (0028,3003), bytes of the file's character set

    [[nodiscard]] std::int64_t Last() const
    {
        return fFirst + static_cast<std::int64_t>(fEntries.size()) - 1;
    }
    [[nodiscard]] std::uint16_t Of(std::int64_t value) const
    {
        if (value <= fFirst)
            return fEntries.front();
        const auto place = static_cast<std::uint64_t>(value - fFirst);
        return place < fEntries.size() ? fEntries[place] : fEntries.back();
    }
    // The window that is the span of the table's input.
    [[nodiscard]] float Width() const { return static_cast<float>(fEntries.size()); }
    [[nodiscard]] float Level() const
    {
        return static_cast<float>(static_cast<double>(fFirst) +
                                  static_cast<double>(fEntries.size()) / 2);
    }
    // What entries can be at most.
    [[nodiscard]] std::uint32_t Greatest() const { return (1u << fBits) - 1; }
    bool operator==(const QvxLookupTable&) const = default;
};

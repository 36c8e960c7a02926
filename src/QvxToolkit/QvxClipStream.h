// The stream of a clip: the bytes of all fragments of (7FE0,0010), one behind the other, read where
// they lie. Internal.
#pragma once
#include "Qvx2Parser/Qvx2Reader.h"
#include <cstdint>
#include <vector>

// Fragments that are looked at; what follows is not there.
inline constexpr std::uint32_t kMaxClipFragments = 1'000'000;

class QvxClipStream {
public:
    // Walks the items from `offset` on, where the value of (7FE0,0010) begins. What is no item ends
    // it, and is missing. May throw std::bad_alloc.
    void Build(QvxParserRec* reader, std::uint32_t offset);

    [[nodiscard]] std::uint64_t Size() const { return fSize; }
    // The file ends, or something else begins, before the last item's end.
    [[nodiscard]] bool IsCutShort() const { return fCutShort; }
    // Reads up to `count` bytes from `offset` of the stream on, within one fragment; answers how
    // many, 0 behind the end, -1 when the file can't be read.
    [[nodiscard]] std::int32_t Read(std::uint64_t offset, void* dest, std::int32_t count) const;

private:
    struct Fragment {
        std::uint64_t fBegin;   // in the stream
        std::uint32_t fOffset;  // in the file
    };
    void Add(std::uint32_t offset, std::uint32_t length);

    QvxParserRec* fReader = nullptr;
    std::vector<Fragment> fFragments;  // none is empty
    std::uint64_t fSize = 0;
    bool fCutShort = false;
};

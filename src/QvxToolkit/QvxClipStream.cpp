#include "QvxToolkit/QvxClipStream.h"

#include <algorithm>
#include <array>

namespace {

constexpr std::uint32_t kItemHeader = 8;  // tag and length

struct ItemHeader {
    std::uint32_t fTag, fLength;  // the tag as group and element
};

std::uint32_t WordAt(const std::uint8_t* bytes)
{
    return static_cast<std::uint32_t>(bytes[0]) | static_cast<std::uint32_t>(bytes[1]) << 8 |
           static_cast<std::uint32_t>(bytes[2]) << 16 | static_cast<std::uint32_t>(bytes[3]) << 24;
}

constexpr std::uint32_t kTagItem = 0xE000FFFE, kTagSequenceEnd = 0xE0DDFFFE;  // as they are read

bool ReadHeader(QvxParserRec* reader, std::uint32_t offset, ItemHeader* header)
{
    std::array<std::uint8_t, kItemHeader> bytes{};
    if (Qvx2Reader_ReadData(reader, bytes.data(), offset, kItemHeader) != kQvxOK)
        return false;
    *header = {WordAt(bytes.data()), WordAt(bytes.data() + 4)};
    return true;
}

// The first item is the offset table, whose first entry is 0; but some leave it out. No stream
// begins with four zeroes.
bool IsOffsetTable(QvxParserRec* reader, std::uint32_t offset, std::uint32_t length)
{
    if (length < 4)
        return true;
    std::array<std::uint8_t, 4> entry{};
    return Qvx2Reader_ReadData(reader, entry.data(), offset, 4) == kQvxOK &&
           WordAt(entry.data()) == 0;
}

}  // namespace

void QvxClipStream::Add(std::uint32_t offset, std::uint32_t length)
{
    if (length == 0)
        return;
    fFragments.push_back({fSize, offset});
    fSize += length;
}

void QvxClipStream::Build(QvxParserRec* reader, std::uint32_t offset)
{
    *this = {};
    fReader = reader;
    const std::uint32_t end = Qvx2Reader_FileSize(reader);
    std::uint64_t at = offset;
    fCutShort = true;  // until the end is met
    for (bool first = true; fFragments.size() < kMaxClipFragments; first = false) {
        ItemHeader header{};
        if (at + kItemHeader > end || !ReadHeader(reader, static_cast<std::uint32_t>(at), &header))
            return;
        if (header.fTag != kTagItem) {
            fCutShort = header.fTag != kTagSequenceEnd;
            return;
        }
        at += kItemHeader;
        const auto start = static_cast<std::uint32_t>(at);
        const auto there =
            static_cast<std::uint32_t>(std::min<std::uint64_t>(header.fLength, end - at));
        if (!first || !IsOffsetTable(reader, start, header.fLength))
            Add(start, there);
        at += header.fLength;
    }
}

std::int32_t QvxClipStream::Read(std::uint64_t offset, void* dest, std::int32_t count) const
{
    if (offset >= fSize || count <= 0)
        return 0;
    const auto next = std::ranges::upper_bound(fFragments, offset, {}, &Fragment::fBegin);
    const Fragment& fragment = *(next - 1);  // the first begins at 0
    const std::uint64_t end = next == fFragments.end() ? fSize : next->fBegin;
    const auto within = static_cast<std::uint32_t>(offset - fragment.fBegin);
    const auto bytes = static_cast<std::uint32_t>(
        std::min<std::uint64_t>(end - offset, static_cast<std::uint32_t>(count)));
    if (Qvx2Reader_ReadData(fReader, dest, fragment.fOffset + within, bytes) != kQvxOK)
        return -1;
    return static_cast<std::int32_t>(bytes);
}

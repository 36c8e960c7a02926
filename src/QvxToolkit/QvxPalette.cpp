#include "QvxToolkit/QvxPalette.h"

#include "QvxToolkit/QvxTables.h"
#include <algorithm>

namespace {

using Words = std::vector<std::uint16_t>;

QvxElementTag TagOf(std::uint16_t element, std::size_t color)
{
    return {0x0028, static_cast<std::uint16_t>(element + color)};
}

// Expands segments: 0 is a run of entries, 1 a line to an entry, 2 earlier segments once more.
class SegmentReader {
public:
    SegmentReader(const Words& data, bool bytes) : fData(data), fBytes(bytes) {}
    Words Expand()
    {
        std::size_t at = 0;
        while (at < fData.size() && fEntries.size() < kMostTableEntries && Segment(&at, true)) {
        }
        if (fEntries.size() > kMostTableEntries)
            fEntries.resize(kMostTableEntries);
        return std::move(fEntries);
    }

private:
    bool Segment(std::size_t* at, bool mayRefer);
    bool Line(std::size_t count, std::uint16_t end);
    bool Again(std::size_t segments, std::size_t at);

    const Words& fData;
    bool fBytes;  // an offset is four entries of 8 bits, else two of 16
    Words fEntries;
};

bool SegmentReader::Segment(std::size_t* at, bool mayRefer)
{
    if (fData.size() - *at < 3)
        return false;
    const std::uint16_t kind = fData[*at], count = fData[*at + 1];
    if (count == 0)  // each one adds an entry, or the work would have no bound
        return false;
    const auto data = fData.begin() + static_cast<std::ptrdiff_t>(*at + 2);
    *at += 2;
    if (kind == 0) {
        if (fData.size() - *at < count)
            return false;
        fEntries.insert(fEntries.end(), data, data + count);
        *at += count;
        return true;
    }
    if (kind == 1) {
        *at += 1;
        return Line(count, *data);
    }
    const std::size_t words = fBytes ? 4 : 2;
    if (kind != 2 || !mayRefer || fData.size() - *at < words)
        return false;
    *at += words;
    // The offset is in bytes of the table.
    if (fBytes)
        return Again(count, data[0] | data[1] << 8u | data[2] << 16u | std::size_t{data[3]} << 24u);
    return Again(count, (data[0] | std::size_t{data[1]} << 16u) / 2);
}

bool SegmentReader::Line(std::size_t count, std::uint16_t end)
{
    if (fEntries.empty())
        return false;
    const std::int64_t from = fEntries.back(), rise = end - from;
    const auto steps = static_cast<std::int64_t>(count);
    for (std::int64_t i = 1; i <= steps; ++i)
        fEntries.push_back(static_cast<std::uint16_t>(from + rise * i / steps));
    return true;
}

bool SegmentReader::Again(std::size_t segments, std::size_t at)
{
    for (std::size_t i = 0; i < segments && fEntries.size() < kMostTableEntries; ++i) {
        if (at >= fData.size() || !Segment(&at, false))
            return false;
    }
    return true;
}

struct Table {
    std::int64_t fFirst = 0;
    Words fEntries;
};

Table ReadTable(QvxParserRec* reader, const QvxFrameRecord& record, std::size_t color)
{
    const Words descriptor = QvxHeaderWords(reader, TagOf(0x1101, color), record.fByteOrder);
    if (descriptor.size() < 3)
        return {};
    Table table;
    const std::uint16_t first = descriptor[1];
    table.fFirst = record.fSigned ? static_cast<std::int16_t>(first) : std::int64_t{first};
    const std::size_t count = descriptor[0] == 0 ? kMostTableEntries : descriptor[0];
    Words data = QvxHeaderWords(reader, TagOf(0x1201, color), record.fByteOrder);
    const bool bytes = descriptor[2] <= 8 && data.size() < count;
    if (data.empty()) {
        const Words segments = QvxHeaderWords(reader, TagOf(0x1221, color), record.fByteOrder);
        const bool byteSegments = descriptor[2] <= 8;
        data =
            SegmentReader(byteSegments ? QvxSplitWords(segments) : segments, byteSegments).Expand();
    } else if (bytes) {
        data = QvxSplitWords(data);
    }
    data.resize(std::min(data.size(), count));
    table.fEntries = std::move(data);
    return table;
}

QvxPalette GrayRamp(const QvxFrameRecord& record)
{
    QvxPalette palette;
    const std::uint32_t bits = std::min(record.fBitsStored, 16u);
    const std::uint32_t most = (1u << bits) - 1;
    for (QvxPalette::Component& color : palette.fColors) {
        color.fFirst = record.fSigned ? -(std::int64_t{1} << (bits - 1)) : 0;
        for (std::uint32_t i = 0; i <= most; ++i)
            color.fEntries.push_back(static_cast<std::uint8_t>(i * 255u / most));
    }
    return palette;
}

}  // namespace

std::uint8_t QvxPalette::Component::Of(std::int64_t stored) const
{
    const auto last = static_cast<std::int64_t>(fEntries.size()) - 1;
    return fEntries[static_cast<std::size_t>(std::clamp<std::int64_t>(stored - fFirst, 0, last))];
}

QvxPalette QvxReadPalette(QvxParserRec* reader, const QvxFrameRecord& record)
{
    std::array<Table, 3> tables;
    bool wide = false;
    for (std::size_t color = 0; color < 3; ++color) {
        tables[color] = ReadTable(reader, record, color);
        const Words& entries = tables[color].fEntries;
        if (entries.empty())
            return GrayRamp(record);
        wide = wide || *std::ranges::max_element(entries) > 255;
    }
    QvxPalette palette;
    for (std::size_t color = 0; color < 3; ++color) {
        palette.fColors[color].fFirst = tables[color].fFirst;
        for (const std::uint16_t entry : tables[color].fEntries)
            palette.fColors[color].fEntries.push_back(
                static_cast<std::uint8_t>(wide ? entry >> 8 : entry));
    }
    return palette;
}

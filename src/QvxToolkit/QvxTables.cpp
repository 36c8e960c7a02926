#include "QvxToolkit/QvxTables.h"

#include <algorithm>
#include <bit>

namespace {

constexpr QvxElementTag kTagDescriptor{0x0028, 0x3002};
constexpr QvxElementTag kTagExplanation{0x0028, 0x3003};
constexpr QvxElementTag kTagData{0x0028, 0x3006};

}  // namespace

std::vector<std::uint16_t> QvxSplitWords(const std::vector<std::uint16_t>& words)
{
    std::vector<std::uint16_t> bytes;
    bytes.reserve(words.size() * 2);
    for (const std::uint16_t word : words) {
        bytes.push_back(word & 0xFF);
        bytes.push_back(word >> 8);
    }
    return bytes;
}

std::optional<QvxLookupTable> QvxReadLookupTable(QvxParserRec* reader, QvxElementRef item,
                                                 std::uint32_t byteOrder, std::string* why)
{
    const auto descriptor = QvxHeaderWords(reader, kTagDescriptor, byteOrder, item);
    if (descriptor.size() < 3 || descriptor[2] < 8 || descriptor[2] > 16) {
        *why = "(0028,3002) describes no table of 8 to 16 bits";
        return std::nullopt;
    }
    QvxLookupTable table;
    table.fFirst = descriptor[1];
    table.fBits = descriptor[2];
    const std::size_t count = descriptor[0] == 0 ? kMostTableEntries : descriptor[0];
    table.fEntries = QvxHeaderWords(reader, kTagData, byteOrder, item);
    if (table.fBits == 8 && table.fEntries.size() < count)
        table.fEntries = QvxSplitWords(table.fEntries);
    table.fEntries.resize(std::min(table.fEntries.size(), count));
    if (table.fEntries.empty()) {
        *why = "(0028,3006) has no entries";
        return std::nullopt;
    }
    const std::uint16_t greatest = *std::ranges::max_element(table.fEntries);
    table.fBits = std::max(table.fBits, static_cast<std::uint32_t>(std::bit_width(greatest)));
    table.fExplanation = QvxHeaderText(reader, kTagExplanation, item);
    return table;
}

void QvxReadFirstAsSigned(QvxLookupTable* table)
{
    table->fFirst = static_cast<std::int16_t>(table->fFirst);
}

// Tables of 16-bit words as files keep them, PS3.3 C.11.1.1 and C.11.2.1.1. Internal.
#pragma once
#include "QvxToolkit/QvxHeaderValue.h"
#include "QvxToolkit/QvxLookupTable.h"
#include <cstddef>
#include <optional>
#include <string>

inline constexpr std::size_t kMostTableEntries = 65536;

// Two entries of 8 bits in each word, the first one low.
[[nodiscard]] std::vector<std::uint16_t> QvxSplitWords(const std::vector<std::uint16_t>& words);

// The table of (0028,3002) and (0028,3006) in `item`. The first value is as it stands, unsigned: a
// caller that knows better calls QvxReadFirstAsSigned. A count of 0 is 65536; fewer entries than
// counted are as many as there are; bits grow to what the entries need. nullopt, with the reason
// in `why`, for a table without entries or of other than 8 to 16 bits. May throw std::bad_alloc.
[[nodiscard]] std::optional<QvxLookupTable> QvxReadLookupTable(QvxParserRec* reader,
                                                               QvxElementRef item,
                                                               std::uint32_t byteOrder,
                                                               std::string* why);
void QvxReadFirstAsSigned(QvxLookupTable* table);

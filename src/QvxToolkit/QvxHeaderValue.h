// Numbers and words from a header, whatever VR the file gave them. Internal.
#pragma once
#include "Qvx2Parser/Qvx2Reader.h"
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

// Value number `index` (from 1) of `tag` below `parent` as a number: of a numeric VR as it is, of a
// text as far as it reads as one, of 2 or 4 unexplained bytes as an unsigned one. nullopt when it
// is missing, empty or not finite.
[[nodiscard]] std::optional<double> QvxHeaderNumber(QvxParserRec* reader, QvxElementRef parent,
                                                    QvxElementTag tag, std::int32_t index = 1);
// The same for what counts something: nullopt too for a negative one, or one above `maximum`.
[[nodiscard]] std::optional<std::uint32_t> QvxHeaderCount(QvxParserRec* reader, QvxElementTag tag,
                                                          std::uint32_t maximum = UINT32_MAX);
// First value without padding, in capitals; empty when it is missing.
[[nodiscard]] std::string QvxHeaderWord(QvxParserRec* reader, QvxElementTag tag,
                                        QvxElementRef parent = QvxElementRef::None);
// Value number `index` (from 1) as it stands, bytes of the file's character set, without padding
// behind it; empty when it is missing.
[[nodiscard]] std::string QvxHeaderText(QvxParserRec* reader, QvxElementTag tag,
                                        QvxElementRef parent, std::int32_t index = 1);
// Words of 16 bits in host order, however many; empty when the element is missing.
[[nodiscard]] std::vector<std::uint16_t> QvxHeaderWords(QvxParserRec* reader, QvxElementTag tag,
                                                        std::uint32_t byteOrder,
                                                        QvxElementRef parent = QvxElementRef::None);
// The items of sequence `tag` below `parent`; none when it is missing.
[[nodiscard]] std::vector<QvxElementRef> QvxHeaderItems(QvxParserRec* reader, QvxElementRef parent,
                                                        QvxElementTag tag);
// Item number `index` (from 0) of sequence `tag` below `parent`; None when there is none.
[[nodiscard]] QvxElementRef QvxHeaderItem(QvxParserRec* reader, QvxElementRef parent,
                                          QvxElementTag tag, std::size_t index = 0);

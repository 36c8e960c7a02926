// Values of elements that hold no other elements: reading, counting, splitting.
#pragma once
#include "Qvx2Parser/QvxRecords.h"
#include <cstdint>
#include <string_view>

// Multiplicity of an element before anything is known of its value: 1 for the kinds that always
// have one value, else -1.
[[nodiscard]] constexpr std::int32_t InitialMultiplicity(QvxVRIndex vr)
{
    constexpr auto bit = [](QvxVRIndex row) { return std::uint64_t{1} << row; };
    constexpr std::uint64_t kOneValue = bit(kVRIndexOB) | bit(kVRIndexOF) | bit(kVRIndexOW) |
                                        bit(kVRIndexSQ) | bit(kVRIndexUN) | bit(kVRIndexItem) |
                                        bit(kVRIndexItemEnd) | bit(kVRIndexSequenceEnd);
    return InVRSet(kOneValue, vr) ? 1 : -1;
}
// Reads the value of `element` at `*offset` into its record. kQvxMalformed when it was read before.
[[nodiscard]] QvxStatus GetFlatElementContent(ExtraHeaderDataRec& state, QvxIndex element,
                                              std::uint32_t* offset);
// Number of values: by the dictionary where that fixes it, else by the length or the backslashes.
[[nodiscard]] std::int32_t GetMultiplicity(ExtraHeaderDataRec& state, QvxIndex element);
// Value `index` (from 0) of a text; `start` and `size` are bytes in it. kQvxBadArgument for an
// index outside the multiplicity or no text.
[[nodiscard]] QvxStatus IndexedRetrieveFromVariableLengthElemVector(std::string_view text,
                                                                    std::int32_t multiplicity,
                                                                    std::int32_t index,
                                                                    std::uint32_t* start,
                                                                    std::uint32_t* size);
// Byte order of an element's value: that of the file, but little endian in group 0002.
[[nodiscard]] std::uint32_t ValueByteOrder(const ExtraHeaderDataRec& state, QvxIndex element);

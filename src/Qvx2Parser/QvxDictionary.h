// The data dictionary of PS3.6 with its retired tags: tag to VR, multiplicity and name. No private
// tags. The rows are generated at build time from resources/dicom_dictionary.tsv. Constant tables,
// no start-up work; any thread.
#pragma once
#include "util/FourCC.h"
#include "util/StatusCodes.h"

#include "Qvx2Parser/QvxElementTag.h"
#include "Qvx2Parser/QvxVRTable.h"
#include <cstdint>
#include <string_view>

// One row of `DICOM_Dictionary`. Counts: 1 to 99 plain; as maximum -4 is n, -3 2n, -2 3n; -1 in
// both means that the row states none. `name` is plain ASCII.
struct QvxDictEntry {
    std::uint16_t group, element;
    std::uint32_t vr;  // two letters as a big-endian number; U2, U3, O2 are ours
    std::string_view name;
    std::int32_t minVM, maxVM;
    std::uint32_t status;  // 1 current, 0 retired
};

// Answer to a lookup. A tag that isn't in the table has VR `QvxVR::None`, status "UNKN", counts of
// -1 and an empty name.
struct QvxDictInfo {
    std::uint16_t group = 0, element = 0;
    QvxVR vr = QvxVR::None;
    std::uint32_t status = kUnknownState;
    std::int32_t minVM = -1, maxVM = -1;
    std::string_view name;
    std::uint32_t reserved = 0;
};

struct QvxMultiplicity {
    std::int32_t fMinimum, fMaximum;
};

// Rows stand in ascending order of tags. `row` must be from 0 to DictionaryRowCount() - 1.
[[nodiscard]] std::int32_t DictionaryRowCount();
[[nodiscard]] QvxDictEntry DictionaryRow(std::int32_t row);
[[nodiscard]] QvxVRIndex DictionaryVRIndex(std::int32_t row);
[[nodiscard]] QvxMultiplicity DictionaryMultiplicity(std::int32_t row);

// The tag's row, or -1. Even groups 5000 to 501E and 6000 to 601E count as 5000 and 6000,
// (0020,3100) to (0020,31FF) as (0020,3100). A few nanoseconds: every element of a walk asks.
[[nodiscard]] std::int32_t PositionInDictionary(std::uint16_t group, std::uint16_t element);
// What the dictionary says of a tag, without the folding of (0020,31xx); `info` has the group that
// was asked for. A tag not found is no error; a null `info` gives kQvxBadArgument. That each row
// has one of the 31 codes is made sure by the build. `flags` are a reader's, and change nothing.
[[nodiscard]] QvxStatus GetDictInfoForTag(std::uint32_t flags, std::uint16_t group,
                                          std::uint16_t element, QvxDictInfo* info);
// The same lookup without a reader, for callers above it; `kind` is always 1.
[[nodiscard]] QvxStatus QvxStandardGetDictInfoForTag(std::int32_t kind, QvxElementTag tag,
                                                     QvxDictInfo* info);

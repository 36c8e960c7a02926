// What a caller sees of an element: references, what is known of it, and a tagged value.
#pragma once
#include "util/FourCC.h"

#include "Qvx2Parser/QvxHost.h"
#include "Qvx2Parser/QvxVRTable.h"
#include <cstdint>

// An element, as callers name it: valid until its reader closes or walks anew. A stale, foreign or
// made-up reference answers kQvxBadChain.
enum class QvxElementRef : std::uint32_t { None = 0 };

struct QvxElementDataInfo {
    std::int32_t fMultiplicity = 0;  // 0 for an empty element
    std::uint32_t fDataSize = 0;     // bytes; kUndefinedLength stays as it is
    QvxVR fVR{};
    std::uint32_t fValueOffset = 0;  // file offset of the first value byte
};

enum class QvxNumericValueType : std::uint32_t {
    Int8 = 0,
    UInt8 = 1,
    Int16 = 2,
    UInt16 = 3,
    Int32 = 4,
    UInt32 = 5,
    Float32 = 6,
    Float64 = 7,
    Empty = 8,  // the element has length 0
    NotANumber = 9,
    BytesOB = 10,   // a new block with the bytes
    WordsOW = 11,   // a new block with 16-bit words in host order
    FloatsOF = 12,  // a new block with 32-bit words in host order
    Tag = 13,       // group and element
    Unknown = kUnknownState,
};

struct QvxElementValue {
    QvxNumericValueType fType = QvxNumericValueType::Unknown;
    union {
        std::int16_t fInt16;
        std::uint16_t fUInt16;
        std::int32_t fInt32;
        std::uint32_t fUInt32;
        float fFloat32;
        double fFloat64 = 0;
        std::uint16_t fTag[2];
    };
    QvxHandle fBlock;  // of the three block types
};

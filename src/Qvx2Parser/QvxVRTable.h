// The value representations by number, as letters and as four-character codes (PS3.5 6.2).
#pragma once
#include "util/FourCC.h"

#include <array>
#include <cstdint>

// Row of the table of 31 codes, a marker, or one of the two numbers behind them.
enum QvxVRIndex : std::uint32_t {
    kVRIndexBlank = 0,
    kVRIndexAE,
    kVRIndexAS,
    kVRIndexAT,
    kVRIndexCS,
    kVRIndexDA,
    kVRIndexDS,
    kVRIndexDT,
    kVRIndexFL,
    kVRIndexFD,
    kVRIndexIS,
    kVRIndexLO,
    kVRIndexLT,
    kVRIndexOB,
    kVRIndexOF,
    kVRIndexOW,
    kVRIndexPN,
    kVRIndexSH,
    kVRIndexSL,
    kVRIndexSQ,
    kVRIndexSS,
    kVRIndexST,
    kVRIndexTM,
    kVRIndexUI,
    kVRIndexUL,
    kVRIndexUN,
    kVRIndexUS,
    kVRIndexUT,
    kVRIndexU2,  // US or SS, by Pixel Representation
    kVRIndexU3,  // US or OW
    kVRIndexO2,  // OB or OW
    kVRIndexItem = 31,
    kVRIndexItemEnd = 32,
    kVRIndexSequenceEnd = 33,
    kVRIndexNativeFrame = 35,   // pseudo element of a native frame
    kVRIndexNone = 0x7FFFFFFF,  // no VR is known
};
inline constexpr int kVRIndexOther = 34;  // of a code that is none of ours

// What callers see: the letters "VR" and the two of the code.
enum class QvxVR : std::uint32_t {
    None = FourCC("VRND"),
    Item = FourCC("VRS1"),
    ItemEnd = FourCC("VRS2"),
    SequenceEnd = FourCC("VRS3"),
};

enum class QvxSuperType : std::uint8_t { Text, Numeric, Binary };

struct QvxVRRow {
    std::uint16_t fLetters;  // as a big-endian number
    bool fLongForm;          // 32-bit length behind two reserved bytes in explicit form
    bool fCountedByLength;   // the number of values follows from the length
    QvxSuperType fSuperType;
};

constexpr std::uint16_t VRLetters(const char (&text)[3])
{
    return static_cast<std::uint16_t>(static_cast<unsigned char>(text[0]) << 8 |
                                      static_cast<unsigned char>(text[1]));
}

// clang-format off
inline constexpr auto kVRTable = std::to_array<QvxVRRow>({
    // letters         long   by length  super type
    { VRLetters("  "), false, false, QvxSuperType::Binary },
    { VRLetters("AE"), false, false, QvxSuperType::Text },
    { VRLetters("AS"), false, true,  QvxSuperType::Text },
    { VRLetters("AT"), false, true,  QvxSuperType::Binary },
    { VRLetters("CS"), false, false, QvxSuperType::Text },
    { VRLetters("DA"), false, false, QvxSuperType::Text },
    { VRLetters("DS"), false, false, QvxSuperType::Text },
    { VRLetters("DT"), false, false, QvxSuperType::Text },
    { VRLetters("FL"), false, true,  QvxSuperType::Numeric },
    { VRLetters("FD"), false, true,  QvxSuperType::Numeric },
    { VRLetters("IS"), false, false, QvxSuperType::Text },
    { VRLetters("LO"), false, false, QvxSuperType::Text },
    { VRLetters("LT"), false, false, QvxSuperType::Text },
    { VRLetters("OB"), true,  false, QvxSuperType::Binary },
    { VRLetters("OF"), true,  false, QvxSuperType::Binary },
    { VRLetters("OW"), true,  false, QvxSuperType::Binary },
    { VRLetters("PN"), false, false, QvxSuperType::Text },
    { VRLetters("SH"), false, false, QvxSuperType::Text },
    { VRLetters("SL"), false, true,  QvxSuperType::Numeric },
    { VRLetters("SQ"), true,  false, QvxSuperType::Binary },
    { VRLetters("SS"), false, true,  QvxSuperType::Numeric },
    { VRLetters("ST"), false, false, QvxSuperType::Text },
    { VRLetters("TM"), false, false, QvxSuperType::Text },
    { VRLetters("UI"), false, false, QvxSuperType::Text },
    { VRLetters("UL"), false, true,  QvxSuperType::Numeric },
    { VRLetters("UN"), true,  false, QvxSuperType::Binary },
    { VRLetters("US"), false, true,  QvxSuperType::Numeric },
    { VRLetters("UT"), true,  false, QvxSuperType::Text },
    { VRLetters("U2"), false, true,  QvxSuperType::Binary },
    { VRLetters("U3"), false, true,  QvxSuperType::Binary },
    { VRLetters("O2"), false, false, QvxSuperType::Binary },
});
// clang-format on
static_assert(kVRTable.size() == kVRIndexO2 + 1);

[[nodiscard]] constexpr bool IsItemMarker(QvxVRIndex vr)
{
    return vr >= kVRIndexItem && vr <= kVRIndexSequenceEnd;
}

// A place of its own for each of the 31 codes: five bits of the first letter, six of the second.
[[nodiscard]] constexpr std::size_t VRPlace(std::uint16_t letters)
{
    return static_cast<std::size_t>((letters >> 8 & 31) << 6 | (letters & 63));
}
inline constexpr auto kVRRowsByPlace = [] {
    std::array<std::uint8_t, 2048> rows{};  // a free place leads to the blanks
    for (std::size_t i = 0; i < kVRTable.size(); ++i)
        rows[VRPlace(kVRTable[i].fLetters)] = static_cast<std::uint8_t>(i);
    return rows;
}();

// Row of two letters, read big-endian; kVRIndexNone when the table doesn't hold them.
[[nodiscard]] constexpr QvxVRIndex QvxVRIndexOfLetters(std::uint16_t letters)
{
    const std::uint8_t row = kVRRowsByPlace[VRPlace(letters)];
    return kVRTable[row].fLetters == letters ? QvxVRIndex{row} : kVRIndexNone;
}

// The codes that the standard has added since, by the row that reads their bytes: all have the
// long form. kVRIndexNone for any other letters.
[[nodiscard]] constexpr QvxVRIndex QvxModernVR(std::uint16_t letters)
{
    switch (letters) {
        case VRLetters("UC"):
        case VRLetters("UR"):
            return kVRIndexUT;
        case VRLetters("OD"):
        case VRLetters("OL"):
        case VRLetters("OV"):
        case VRLetters("SV"):
        case VRLetters("UV"):
            return kVRIndexUN;
        default:
            return kVRIndexNone;
    }
}

// A VR of the standard, of then or now.
[[nodiscard]] constexpr bool QvxIsVR(std::uint16_t letters)
{
    const QvxVRIndex row = QvxVRIndexOfLetters(letters);
    return (row != kVRIndexNone && row != kVRIndexBlank) || QvxModernVR(letters) != kVRIndexNone;
}

// Sets of rows as bits, for what every element of a walk asks.
[[nodiscard]] constexpr bool InVRSet(std::uint64_t set, QvxVRIndex vr)
{
    return vr < 64 && (set >> vr & 1) != 0;
}

inline constexpr std::uint64_t kLongFormVRs = [] {
    std::uint64_t set = 0;
    for (std::size_t i = 0; i < kVRTable.size(); ++i)
        set |= kVRTable[i].fLongForm ? std::uint64_t{1} << i : 0;
    return set;
}();

[[nodiscard]] constexpr bool HasLongForm(QvxVRIndex vr) { return InVRSet(kLongFormVRs, vr); }

// 1: the number of values follows from the length; 2: it is counted in the value.
[[nodiscard]] constexpr int MultiplicityRule(QvxVRIndex vr)
{
    return vr <= kVRIndexO2 && kVRTable[vr].fCountedByLength ? 1 : 2;
}

[[nodiscard]] constexpr QvxSuperType GetElementSuperType(QvxVRIndex vr)
{
    return vr <= kVRIndexO2 ? kVRTable[vr].fSuperType : QvxSuperType::Binary;
}

// The code that callers see; QvxVR::None for an index that has none.
[[nodiscard]] constexpr QvxVR QvxVROfIndex(QvxVRIndex vr)
{
    switch (vr) {
        case kVRIndexItem:
            return QvxVR::Item;
        case kVRIndexItemEnd:
            return QvxVR::ItemEnd;
        case kVRIndexSequenceEnd:
            return QvxVR::SequenceEnd;
        default:
            return vr <= kVRIndexO2 ? static_cast<QvxVR>(0x56520000u | kVRTable[vr].fLetters)
                                    : QvxVR::None;
    }
}

// The index of a code; kVRIndexOther for one that names no row and no marker.
[[nodiscard]] constexpr int GetDCM_VR_Index(QvxVR code)
{
    for (std::uint32_t i = 0; i <= kVRIndexSequenceEnd; ++i) {
        if (QvxVROfIndex(static_cast<QvxVRIndex>(i)) == code)
            return static_cast<int>(i);
    }
    return kVRIndexOther;
}

// An index in the one byte that an element has for it.
inline constexpr std::uint8_t kVRIndexByteNone = 0xFF;
[[nodiscard]] constexpr std::uint8_t ByteOfVRIndex(QvxVRIndex vr)
{
    return vr == kVRIndexNone ? kVRIndexByteNone : static_cast<std::uint8_t>(vr);
}
[[nodiscard]] constexpr QvxVRIndex VRIndexOfByte(std::uint8_t byte)
{
    return byte == kVRIndexByteNone ? kVRIndexNone : static_cast<QvxVRIndex>(byte);
}

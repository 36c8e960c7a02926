// The dictionary's rows are packed: names are offsets into one text, so that the tables need no
// relocation when the program loads. A hash without collisions, made with the rows, finds a tag
// with two table reads and one comparison.
#include "Qvx2Parser/QvxDictionary.h"

#include <cstddef>
#include <iterator>

namespace {

struct PackedRow {
    std::uint32_t fKey;   // group and element
    std::uint32_t fName;  // offset in kNames << 8 | length
    std::uint8_t fVR;
    std::int8_t fMinimumVM, fMaximumVM;
    std::uint8_t fStatus;
};

// A code that the table of VRs doesn't hold stops the build.
consteval std::uint8_t Index(const char (&letters)[3])
{
    const QvxVRIndex vr = QvxVRIndexOfLetters(VRLetters(letters));
    return vr <= kVRIndexO2 ? static_cast<std::uint8_t>(vr) : throw "not one of the 31 codes";
}

#include "QvxDictionaryRows.inc"

constexpr std::int32_t kNoRow = -1;

std::int32_t RowOf(std::uint32_t key)
{
    const std::uint32_t home = (key * kSlotMultiplier) >> kSlotShift;
    const std::uint32_t shift = kDisplacements[(key * kBucketMultiplier) >> kBucketShift];
    const std::uint16_t row = kSlots[(home + shift) % std::size(kSlots)];
    return DICOM_Dictionary[row].fKey == key ? row : kNoRow;
}

// The tag in the table that stands for curves and overlays of all their groups.
std::uint32_t FoldedKey(std::uint16_t group, std::uint16_t element)
{
    const std::uint32_t key = QvxElementTag{group, element}.Key();
    constexpr std::uint32_t kRepeating = 0xFFE10000;  // the bits that 5000 to 501E share
    const bool folds = (key & kRepeating) == 0x50000000 || (key & kRepeating) == 0x60000000;
    return folds ? key & (kRepeating | 0xFFFF) : key;
}

std::string_view NameOf(const PackedRow& row)
{
    return {kNames + (row.fName >> 8), row.fName & 0xFF};
}

const PackedRow& At(std::int32_t row) { return DICOM_Dictionary[static_cast<std::size_t>(row)]; }

}  // namespace

std::int32_t DictionaryRowCount() { return static_cast<std::int32_t>(std::size(DICOM_Dictionary)); }

QvxDictEntry DictionaryRow(std::int32_t row)
{
    const PackedRow& packed = At(row);
    return {.group = static_cast<std::uint16_t>(packed.fKey >> 16),
            .element = static_cast<std::uint16_t>(packed.fKey),
            .vr = kVRTable[packed.fVR].fLetters,
            .name = NameOf(packed),
            .minVM = packed.fMinimumVM,
            .maxVM = packed.fMaximumVM,
            .status = packed.fStatus};
}

QvxVRIndex DictionaryVRIndex(std::int32_t row) { return QvxVRIndex{At(row).fVR}; }

QvxMultiplicity DictionaryMultiplicity(std::int32_t row)
{
    return {At(row).fMinimumVM, At(row).fMaximumVM};
}

std::int32_t PositionInDictionary(std::uint16_t group, std::uint16_t element)
{
    const std::uint32_t key = FoldedKey(group, element);
    return RowOf((key & 0xFFFFFF00) == 0x00203100 ? 0x00203100 : key);
}

QvxStatus GetDictInfoForTag(std::uint32_t /*flags*/, std::uint16_t group, std::uint16_t element,
                            QvxDictInfo* info)
{
    if (!info)
        return kQvxBadArgument;
    QvxDictInfo found;
    found.group = group;
    found.element = element;
    const std::int32_t row = RowOf(FoldedKey(group, element));
    if (row != kNoRow) {
        const PackedRow& packed = At(row);
        found.vr = QvxVROfIndex(QvxVRIndex{packed.fVR});
        found.status = packed.fStatus;
        found.minVM = packed.fMinimumVM;
        found.maxVM = packed.fMaximumVM;
        found.name = NameOf(packed);
    }
    *info = found;
    return kQvxOK;
}

QvxStatus QvxStandardGetDictInfoForTag(std::int32_t /*kind*/, QvxElementTag tag, QvxDictInfo* info)
{
    return GetDictInfoForTag(0, tag.group, tag.element, info);
}

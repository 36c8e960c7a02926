// Values of elements: what is known of one, its bytes, and its numbers.
#include "util/ByteOrder.h"
#include "util/CheckedMath.h"

#include "Qvx2Parser/QvxDecimal.h"
#include "Qvx2Parser/QvxDictionary.h"
#include "Qvx2Parser/QvxReaderRec.h"
#include <algorithm>
#include <cstring>

namespace {

// The element behind a reference, with its value read.
QvxStatus ReadElement(QvxParserRec* reader, QvxElementRef element, QvxIndex* index)
{
    if (const QvxStatus status = QvxIndexOf(reader, element, index))
        return status;
    return QvxEnsureValue(reader, *index);
}

QvxVR CodeOf(const QvxParserRec& reader, const DicomHeaderDataStruct& element)
{
    if (IsItemMarker(element.VR()) && (reader.fParserFlags & kParserBlankItemVR) != 0)
        return QvxVROfIndex(kVRIndexBlank);
    return QvxVROfIndex(element.VR());
}

// Bytes of value `number` (from 0) of a kind of `size` bytes, brought to host order.
template <typename T>
QvxStatus TakeNumber(ExtraHeaderDataRec& state, QvxIndex index, std::int32_t number, T* bits)
{
    const DicomHeaderDataStruct& element = state[index];
    if (element.fContentKind == QvxContent::Immediate) {
        if (number != 0)
            return kQvxNoValue;
        *bits = static_cast<T>(element.fContent);
        return kQvxOK;
    }
    if (element.fContentKind != QvxContent::Block || element.fContent == 0)
        return kQvxNoValue;
    const auto start = static_cast<std::uint64_t>(number) * sizeof(T);
    if (!RunFits<std::uint64_t>(start, sizeof(T), element.fLength))
        return kQvxNoValue;
    const std::byte* bytes = state.fArena.Block(element.fContent) + start;
    // A single FD is kept big-endian, everything else as the file has it.
    const bool keptBig = element.VR() == kVRIndexFD && element.fMultiplicity < 2;
    const bool big = keptBig || ValueByteOrder(state, index) == 1;
    *bits = big ? LoadBE<T>(bytes) : LoadLE<T>(bytes);
    return kQvxOK;
}

template <typename T, typename Field>
QvxStatus TakeField(ExtraHeaderDataRec& state, QvxIndex index, std::int32_t number,
                    QvxNumericValueType type, QvxElementValue* value, Field* field)
{
    T bits = 0;
    if (const QvxStatus status = TakeNumber<T>(state, index, number, &bits))
        return status;
    static_assert(sizeof bits == sizeof *field);
    std::memcpy(field, &bits, sizeof bits);
    value->fType = type;
    return kQvxOK;
}

// A new block with the value's bytes, words of `wordSize` brought to host order.
QvxStatus TakeBlock(QvxParserRec* reader, QvxIndex index, std::uint32_t wordSize,
                    QvxNumericValueType type, QvxElementValue* value)
{
    ExtraHeaderDataRec& state = *reader->fState;
    const DicomHeaderDataStruct& element = state[index];
    if (element.fMultiplicity != 1)
        return kQvxWrongVR;
    if (element.fContentKind != QvxContent::Block || element.fContent == 0)
        return kQvxWrongVR;  // Pixel Data is mapped, not read
    QvxHandle made = reader->fCallbacks->fNewHandle(element.fLength);
    if (made.IsNull())
        return reader->fCallbacks->fMemError();
    std::memcpy(made.Data(), state.fArena.Block(element.fContent), element.fLength);
    const bool swap = wordSize > 1 && (ValueByteOrder(state, index) == 1) !=
                                          (std::endian::native == std::endian::big);
    for (std::uint32_t i = 0; swap && i + wordSize <= element.fLength; i += wordSize)
        std::reverse(made.Data() + i, made.Data() + i + wordSize);
    value->fBlock = std::move(made);
    value->fType = type;
    return kQvxOK;
}

QvxStatus TakeDecimal(ExtraHeaderDataRec& state, QvxIndex index, std::int32_t number,
                      QvxElementValue* value)
{
    const DicomHeaderDataStruct& element = state[index];
    if (element.fContentKind != QvxContent::Block || element.fContent == 0)
        return kQvxNoValue;
    const std::string_view text(reinterpret_cast<const char*>(state.fArena.Block(element.fContent)),
                                element.fLength);
    std::uint32_t start = 0, size = 0;
    if (const QvxStatus status = IndexedRetrieveFromVariableLengthElemVector(
            text, element.fMultiplicity, number, &start, &size))
        return status;
    if (size == 0)
        return kQvxNoValue;
    const std::string_view part = text.substr(start, size);
    if (element.VR() == kVRIndexDS) {
        value->fType = QvxNumericValueType::Float32;
        value->fFloat32 = QvxDecimalToFloat(part);
    } else {
        value->fType = QvxNumericValueType::Int32;
        value->fInt32 = QvxDecimalToInt(part);
    }
    return kQvxOK;
}

QvxStatus TakeTag(ExtraHeaderDataRec& state, QvxIndex index, std::int32_t number,
                  QvxElementValue* value)
{
    std::uint16_t group = 0, element = 0;
    if (TakeNumber<std::uint16_t>(state, index, number * 2, &group) != kQvxOK ||
        TakeNumber<std::uint16_t>(state, index, number * 2 + 1, &element) != kQvxOK)
        return kQvxNoValue;
    value->fType = QvxNumericValueType::Tag;
    value->fTag[0] = group;
    value->fTag[1] = element;
    return kQvxOK;
}

QvxStatus TakeValue(QvxParserRec* reader, QvxIndex index, std::int32_t number,
                    QvxElementValue* value)
{
    using Type = QvxNumericValueType;
    ExtraHeaderDataRec& s = *reader->fState;
    switch (s[index].VR()) {
        case kVRIndexAT:
            return TakeTag(s, index, number, value);
        case kVRIndexDS:
        case kVRIndexIS:
            return TakeDecimal(s, index, number, value);
        case kVRIndexFL:
            return TakeField<std::uint32_t>(s, index, number, Type::Float32, value,
                                            &value->fFloat32);
        case kVRIndexFD:
            return TakeField<std::uint64_t>(s, index, number, Type::Float64, value,
                                            &value->fFloat64);
        case kVRIndexSL:
            return TakeField<std::uint32_t>(s, index, number, Type::Int32, value, &value->fInt32);
        case kVRIndexUL:
            return TakeField<std::uint32_t>(s, index, number, Type::UInt32, value, &value->fUInt32);
        case kVRIndexSS:
            return TakeField<std::uint16_t>(s, index, number, Type::Int16, value, &value->fInt16);
        case kVRIndexUS:
            return TakeField<std::uint16_t>(s, index, number, Type::UInt16, value, &value->fUInt16);
        case kVRIndexOB:
            return TakeBlock(reader, index, 1, Type::BytesOB, value);
        case kVRIndexOW:
            return TakeBlock(reader, index, 2, Type::WordsOW, value);
        case kVRIndexOF:
            return TakeBlock(reader, index, 4, Type::FloatsOF, value);
        default:
            value->fType = Type::NotANumber;
            value->fUInt32 = 0;
            return kQvxWrongVR;
    }
}

}  // namespace

QvxStatus Qvx2Reader_GetElementDataInfo(QvxParserRec* reader, QvxElementRef element,
                                        QvxElementDataInfo* info)
{
    if (!info)
        return kQvxNoResultRecord;
    QvxIndex index = 0;
    if (const QvxStatus status = ReadElement(reader, element, &index))
        return status;
    const DicomHeaderDataStruct& known = (*reader->fState)[index];
    info->fDataSize = known.fLength;
    info->fMultiplicity = known.fLength == 0 ? 0 : known.fMultiplicity;
    info->fValueOffset = known.fValueOffset;
    info->fVR = CodeOf(*reader, known);
    return known.VR() > kVRIndexSequenceEnd && known.VR() != kVRIndexNone ? kQvxMalformed : kQvxOK;
}

QvxStatus Qvx2Reader_GetElementDataSize(QvxParserRec* reader, QvxElementRef element,
                                        std::uint32_t* size)
{
    QvxElementDataInfo info;
    const QvxStatus status = Qvx2Reader_GetElementDataInfo(reader, element, &info);
    if (status == kQvxOK)
        *size = info.fDataSize;
    return status;
}

QvxStatus Qvx2Reader_GetElementValueMultiplicity(QvxParserRec* reader, QvxElementRef element,
                                                 std::int32_t* multiplicity)
{
    QvxElementDataInfo info;
    const QvxStatus status = Qvx2Reader_GetElementDataInfo(reader, element, &info);
    if (status == kQvxOK)
        *multiplicity = info.fMultiplicity;
    return status;
}

QvxStatus Qvx2Reader_GetElementValueRepresentation(QvxParserRec* reader, QvxElementRef element,
                                                   QvxVR* vr)
{
    QvxElementDataInfo info;
    const QvxStatus status = Qvx2Reader_GetElementDataInfo(reader, element, &info);
    if (status == kQvxOK)
        *vr = info.fVR;
    return status;
}

QvxStatus Qvx2Reader_GetElementData(QvxParserRec* reader, QvxElementRef element,
                                    std::uint32_t maximum, void* dest)
{
    QvxIndex index = 0;
    if (const QvxStatus status = QvxIndexOf(reader, element, &index))
        return status;
    if (!dest)
        return kQvxNoDestination;
    ExtraHeaderDataRec& state = *reader->fState;
    const DicomHeaderDataStruct asked = state[index];
    if (asked.VR() == kVRIndexSQ || IsItemMarker(asked.VR()))
        return kQvxWrongVR;
    const std::uint32_t count = std::min(asked.fLength, maximum);
    if (asked.Undefined() || count >= 0x7FFFFFFF)
        return kQvxBadArgument;
    if ((reader->fParserFlags & kParserDataFromFile) != 0) {
        std::uint32_t offset = asked.fValueOffset;
        return reader->fCallbacks->fReadData(state.fDataRef, dest, &offset, count);
    }
    if (const QvxStatus status = QvxEnsureValue(reader, index))
        return status;
    const DicomHeaderDataStruct& read = state[index];
    switch (read.fContentKind) {
        case QvxContent::None:
            return count == 0 ? kQvxOK : kQvxMalformed;
        case QvxContent::Immediate: {
            const std::uint16_t word = static_cast<std::uint16_t>(read.fContent);
            const bool isShort = read.VR() == kVRIndexUS || read.VR() == kVRIndexSS;
            const void* cell = isShort ? static_cast<const void*>(&word) : &read.fContent;
            std::memcpy(dest, cell, std::min<std::size_t>(count, isShort ? 2 : 4));
            return kQvxOK;
        }
        case QvxContent::Block:
            if (read.fContent != 0)
                std::memcpy(dest, state.fArena.Block(read.fContent), count);
            return kQvxOK;
        default:
            return kQvxSeekFailed;
    }
}

QvxStatus Qvx2Reader_GetElementDataAsValue(QvxParserRec* reader, QvxElementRef element,
                                           std::int32_t index, QvxElementValue* value)
{
    QvxIndex at = 0;
    if (const QvxStatus status = ReadElement(reader, element, &at))
        return status;
    const DicomHeaderDataStruct& read = (*reader->fState)[at];
    if (!read.fRead)
        return kQvxMalformed;
    if (read.VR() == kVRIndexSQ || IsItemMarker(read.VR()))
        return kQvxWrongVR;
    if (!value)
        return kQvxNoResultRecord;
    *value = QvxElementValue();
    if (read.fLength == 0) {
        value->fType = QvxNumericValueType::Empty;
        return index < 1 || index > std::max(read.fMultiplicity, 1) ? kQvxBadValueIndex : kQvxOK;
    }
    if (index < 1 || index > read.fMultiplicity)
        return read.fMultiplicity <= 0 && index == 1 ? kQvxBadMultiplicity : kQvxBadValueIndex;
    return TakeValue(reader, at, index - 1, value);
}

QvxStatus Qvx2Reader_GetDictInfoForTag(QvxParserRec* reader, QvxElementTag tag, QvxDictInfo* info)
{
    if (!reader || !info)
        return kQvxBadArgument;
    return GetDictInfoForTag(reader->fParserFlags, tag.group, tag.element, info);
}

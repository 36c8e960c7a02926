#include "Qvx2Parser/QvxFlatValue.h"

#include "util/CheckedMath.h"

#include "Qvx2Parser/QvxDictionary.h"
#include "Qvx2Parser/QvxWalk.h"
#include <algorithm>
#include <cstring>

namespace {

// Bytes of one value of a kind whose number of values follows from the length; 0 for the rest.
std::uint32_t SizeOfOne(QvxVRIndex vr)
{
    switch (vr) {
        case kVRIndexAT:
        case kVRIndexFL:
        case kVRIndexSL:
        case kVRIndexUL:
            return 4;
        case kVRIndexFD:
            return 8;
        case kVRIndexSS:
        case kVRIndexUS:
        case kVRIndexU2:
        case kVRIndexU3:
            return 2;
        default:
            return 0;
    }
}

std::int32_t CountByBackslashes(ExtraHeaderDataRec& state, const DicomHeaderDataStruct& element)
{
    if (element.fContentKind != QvxContent::Block || element.fContent == 0)
        return 1;
    const std::byte* block = state.fArena.Block(element.fContent);
    const auto* text = reinterpret_cast<const char*>(block);
    const std::size_t end = ::strnlen(text, element.fLength);
    return 1 + static_cast<std::int32_t>(std::count(text, text + end, '\\'));
}

// A block with the value's bytes as they stand in the file, and a terminator.
QvxStatus ReadBlock(ExtraHeaderDataRec& state, QvxIndex element, std::uint32_t* offset)
{
    const std::uint32_t length = state[element].fLength;
    if (!RunFits<std::uint32_t>(*offset, length, state.fFileSize)) {
        *offset = AdvancedOffset(state.fFileSize, 1);
        return kQvxEndOfFile;
    }
    const std::uint32_t block = state.fArena.NewBlock(length);
    if (block == 0)
        return kQvxOutOfMemory;
    if (const QvxStatus status =
            state.fCallbacks->fReadData(state.fDataRef, state.fArena.Block(block), offset, length))
        return status;
    state[element].fContent = block;
    state[element].fContentKind = QvxContent::Block;
    return kQvxOK;
}

// A single number in the content cell, in host order.
QvxStatus ReadImmediate(ExtraHeaderDataRec& state, QvxIndex element, std::uint32_t natural,
                        std::uint32_t* offset)
{
    DicomHeaderDataStruct& read = state[element];
    const std::uint32_t order = ValueByteOrder(state, element);
    if (read.fLength != natural)
        state.fAnomalies |= kAnomalyLength;
    std::uint32_t position = *offset, value = 0;
    std::uint16_t word = 0;
    const QvxStatus status = natural == 4 ? WalkNumber(state, &position, &value, order)
                                          : WalkNumber(state, &position, &word, order);
    if (status != kQvxOK) {
        *offset = position;
        return status;
    }
    read.fContent = natural == 4 ? value : word;
    read.fContentKind = QvxContent::Immediate;
    *offset = AdvancedOffset(*offset, read.fLength);
    return kQvxOK;
}

QvxStatus ReadSingle(ExtraHeaderDataRec& state, QvxIndex element, std::uint32_t* offset)
{
    const DicomHeaderDataStruct seen = state[element];
    if (seen.fLength == 0)
        return kQvxOK;
    if (seen.Tag() == kTagPixelData) {  // mapped, never read
        state[element].fContentKind = QvxContent::Block;
        *offset = AdvancedOffset(*offset, AdvancedOffset(seen.fLength, seen.fLength & 1));
        return kQvxOK;
    }
    switch (seen.VR()) {
        case kVRIndexFL:
        case kVRIndexSL:
        case kVRIndexUL:
            return ReadImmediate(state, element, 4, offset);
        case kVRIndexSS:
        case kVRIndexUS:
            return ReadImmediate(state, element, 2, offset);
        case kVRIndexAT:
        case kVRIndexFD:
            if (seen.fLength < SizeOfOne(seen.VR())) {
                *offset = AdvancedOffset(*offset, seen.fLength);
                return kQvxOK;
            }
            if (const QvxStatus status = ReadBlock(state, element, offset))
                return status;
            if (seen.VR() == kVRIndexFD && ValueByteOrder(state, element) == 0) {
                std::byte* bytes = state.fArena.Block(state[element].fContent);
                std::reverse(bytes, bytes + 8);  // kept big-endian
            }
            return kQvxOK;
        default:
            return ReadBlock(state, element, offset);
    }
}

}  // namespace

std::uint32_t ValueByteOrder(const ExtraHeaderDataRec& state, QvxIndex element)
{
    return state.fArena.At(element).fGroup == 0x0002 ? 0 : state.fByteOrder;
}

std::int32_t GetMultiplicity(ExtraHeaderDataRec& state, QvxIndex element)
{
    DicomHeaderDataStruct& counted = state[element];
    if (counted.fDictIndex == kDictIndexOpen)
        counted.fDictIndex =
            static_cast<std::int16_t>(PositionInDictionary(counted.fGroup, counted.fElement));
    if (counted.fDictIndex >= 0) {
        const QvxMultiplicity row = DictionaryMultiplicity(counted.fDictIndex);
        if (row.fMaximum >= 1)  // a plain count, whatever the value says
            return row.fMinimum;
    }
    const QvxVRIndex vr = counted.VR();
    if (const std::uint32_t size = SizeOfOne(vr))
        return static_cast<std::uint16_t>(counted.fLength / size);
    switch (vr) {
        case kVRIndexBlank:
        case kVRIndexOB:
        case kVRIndexOF:
        case kVRIndexOW:
        case kVRIndexO2:
        case kVRIndexSQ:
        case kVRIndexUN:
            return 1;
        default:
            break;
    }
    return vr > kVRIndexO2 ? -1 : CountByBackslashes(state, counted);
}

QvxStatus GetFlatElementContent(ExtraHeaderDataRec& state, QvxIndex element, std::uint32_t* offset)
{
    const QvxVRIndex vr = state[element].VR();
    if (vr == kVRIndexSQ || IsItemMarker(vr)) {
        *offset = AdvancedOffset(*offset, state[element].fLength);
        return kQvxOK;
    }
    if (state[element].fRead)
        return kQvxMalformed;
    const bool countFirst = MultiplicityRule(vr) == 1;
    if (countFirst)
        state[element].fMultiplicity = GetMultiplicity(state, element);
    const bool severalNumbers =
        countFirst && state[element].fMultiplicity >= 2 && state[element].fLength > 0;
    const QvxStatus status =
        severalNumbers ? ReadBlock(state, element, offset) : ReadSingle(state, element, offset);
    if (status != kQvxOK)
        return status;
    state[element].fRead = true;
    if (!countFirst)
        state[element].fMultiplicity = GetMultiplicity(state, element);
    return kQvxOK;
}

QvxStatus IndexedRetrieveFromVariableLengthElemVector(std::string_view text,
                                                      std::int32_t multiplicity, std::int32_t index,
                                                      std::uint32_t* start, std::uint32_t* size)
{
    if (index < 0 || index >= multiplicity || text.empty())
        return kQvxBadArgument;
    *start = 0;
    *size = static_cast<std::uint32_t>(text.size());
    if (multiplicity < 2)
        return kQvxOK;
    std::size_t from = 0;
    for (std::int32_t passed = 0; passed < index; ++passed) {
        const std::size_t slash = text.find('\\', from);
        if (slash == std::string_view::npos) {
            *start = static_cast<std::uint32_t>(text.size());
            *size = 0;
            return kQvxOK;
        }
        from = slash + 1;
    }
    const std::size_t end = std::min(text.find('\\', from), text.size());
    *start = static_cast<std::uint32_t>(from);
    *size = static_cast<std::uint32_t>(end - from);
    return kQvxOK;
}

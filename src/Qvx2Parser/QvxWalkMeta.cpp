// Preamble, meta group, and what the first bytes of a data set tell of byte order and VR form.
#include "util/ByteOrder.h"

#include "Qvx2Parser/QvxDictionary.h"
#include "Qvx2Parser/QvxWalk.h"
#include <cstring>

namespace {

constexpr std::uint32_t kPreambleSize = 128;
constexpr std::uint32_t kMarkerSize = 4;

// One element of the meta group. kQvxOK with `*ends` set at the first element of another group.
QvxStatus ReadMetaElement(std::uint32_t* offset, ExtraHeaderDataRec& state,
                          std::uint32_t explicitFlag, bool* ends, QvxIndex* made)
{
    QvxElementHeader header;
    header.fTagOffset = *offset;
    if (state.fFirstElementOffset == 0)
        state.fFirstElementOffset = *offset;
    ReadAheadAt(state, *offset);
    if (const QvxStatus status = WalkNumber(state, offset, &header.fTag.group, 0))
        return status;
    if (header.fTag.group != 0x0002) {
        *offset = header.fTagOffset;
        *ends = true;
        return kQvxOK;
    }
    if (const QvxStatus status = WalkNumber(state, offset, &header.fTag.element, 0))
        return status;
    header.fDictIndex = kDictIndexOpen;
    if (explicitFlag == 0 || state.fDictHits < 5) {
        header.fDictIndex = PositionInDictionary(header.fTag.group, header.fTag.element);
        state.fDictHits += header.fDictIndex >= 0 ? 1 : 0;
        if (state.fDictHits >= 5 && state.fMode == QvxParseMode::Validate) {
            *ends = true;
            return kQvxOK;
        }
    }
    if (const QvxStatus status = GetVRandLength(offset, state, header.fTag, header.fDictIndex,
                                                explicitFlag, 0, &header.fVR, &header.fLength))
        return status;
    std::uint32_t skip = 0;
    if (SkipOverElementQuery(state, header.fTag, *offset, header.fLength, 1, header.fVR, &skip)) {
        *offset = AdvancedOffset(*offset, skip);
        return kQvxOK;
    }
    QvxStatus error = kQvxOK;
    *made = FillDICOMHeaderDataStruct_Combined(header, offset, state, 1, &error);
    return error;
}

}  // namespace

QvxStatus HasMarker(const QvxHostCallbacks* callbacks, ByteSource* dataRef, bool* answer)
{
    char marker[kMarkerSize] = {};
    std::uint32_t position = kPreambleSize;
    const QvxStatus status = callbacks->fReadData(dataRef, marker, &position, sizeof marker);
    *answer = status == kQvxOK && std::memcmp(marker, "DICM", sizeof marker) == 0;
    return status == kQvxEndOfFile ? kQvxOK : status;
}

QvxIndex Handle_DICOM_MetaInformation(std::uint32_t* offset, ExtraHeaderDataRec& state,
                                      QvxStatus* error)
{
    bool marked = false;
    *error = HasMarker(state.fCallbacks, state.fDataRef, &marked);
    if (*error != kQvxOK)
        return 0;
    if (!marked) {
        *offset = 0;
        return Read_DICOM_MetaInformation(offset, state, 0, error);
    }
    state.fDictHits = 5;
    if (state.fMode == QvxParseMode::Validate)
        return 0;
    if (state.fMode > QvxParseMode::SingleElement) {
        *error = kQvxBadArgument;
        return 0;
    }
    *offset = kPreambleSize + kMarkerSize;
    return Read_DICOM_MetaInformation(offset, state, 0, error);
}

QvxIndex Read_DICOM_MetaInformation(std::uint32_t* offset, ExtraHeaderDataRec& state, int attempt,
                                    QvxStatus* error)
{
    state.fSopClassKind = kUnknownState;
    const std::uint32_t begin = *offset;
    const QvxIndex firstOwn = state.fArena.Count();
    const std::uint32_t explicitFlag = attempt == 0 ? 1 : 0;
    QvxIndex last = 0;
    while (*offset < state.fFileSize) {
        const std::uint32_t elementOffset = *offset;
        bool ends = false;
        QvxIndex made = 0;
        const QvxStatus status = ReadMetaElement(offset, state, explicitFlag, &ends, &made);
        if (status != kQvxOK && attempt == 0) {
            state.fListHead = 0;
            state.fArena.CutTo(firstOwn);
            *offset = begin;
            return Read_DICOM_MetaInformation(offset, state, 1, error);
        }
        if (status != kQvxOK) {
            state.fFaultOffset = elementOffset;
            *error = status;
            break;
        }
        if (ends)
            break;
        if (!made)
            continue;
        UpdateExtraHeaderData(made, state);
        if (state.fMode == QvxParseMode::SingleElement)
            state.fArena.DropLast(made);
        else if (last)
            state[last].fNext = made;
        else
            state.fListHead = made;
        last = state.fMode == QvxParseMode::SingleElement ? 0 : made;
    }
    return last;
}

namespace {

bool PlausibleFirstGroup(std::uint16_t group) { return group < 9 || group == 0x0028; }

// Some writers change the encoding and leave the meta group as it was. The first element shows
// byte order by its group, and form by the letters of its VR or by a length that can't be one.
void DoubtSettings(std::uint32_t offset, ExtraHeaderDataRec& state)
{
    unsigned char bytes[8];
    if (!state.Wants(kWalkDoubtSyntax) || state.fByteOrder > 1 || state.fExplicitVR > 1 ||
        state.fCallbacks->fReadData(state.fDataRef, bytes, &offset, sizeof bytes) != kQvxOK)
        return;
    const bool claimsBig = state.fByteOrder == 1;
    const auto little = LoadLE<std::uint16_t>(bytes);
    const std::uint16_t claimed = claimsBig ? ByteSwapped(little) : little;
    if (!PlausibleFirstGroup(claimed) && PlausibleFirstGroup(ByteSwapped(claimed)))
        state.fByteOrder = claimsBig ? 0 : 1;
    const bool letters = QvxIsVR(LoadBE<std::uint16_t>(bytes + 4));
    const std::uint32_t length =
        state.fByteOrder == 1 ? LoadBE<std::uint32_t>(bytes + 4) : LoadLE<std::uint32_t>(bytes + 4);
    if (state.fExplicitVR == 1 && !letters && length <= state.fFileSize)
        state.fExplicitVR = 0;
    else if (state.fExplicitVR == 0 && letters && length > state.fFileSize)
        state.fExplicitVR = 1;
}

}  // namespace

QvxStatus GetTransferSettings(std::uint32_t offset, ExtraHeaderDataRec& state, std::uint16_t* group,
                              std::uint16_t* element)
{
    const std::uint32_t tagOffset = offset;
    const QvxReadProc read = state.fCallbacks->fReadData;
    DoubtSettings(offset, state);
    std::uint16_t little = 0;
    if (const QvxStatus status = Read_ShortU(read, state.fDataRef, &offset, &little, 0))
        return status;
    const std::uint16_t big = ByteSwapped(little);
    if (state.fByteOrder == kUnknownState) {
        if (little == big && little != 0)
            return kQvxMalformed;
        const std::uint32_t order = big < little ? 1 : 0;
        const std::uint16_t smaller = order == 1 ? big : little;
        if (!PlausibleFirstGroup(smaller))
            return kQvxMalformed;
        state.fByteOrder = order;
    }
    *group = state.fByteOrder == 1 ? big : little;
    if (const QvxStatus status =
            Read_ShortU(read, state.fDataRef, &offset, element, state.fByteOrder))
        return status;
    if (state.fFirstElementOffset == 0)
        state.fFirstElementOffset = tagOffset;
    if (state.fExplicitVR == kUnknownState) {
        std::uint16_t letters = 0;
        if (const QvxStatus status = Read_ShortU(read, state.fDataRef, &offset, &letters, 1))
            return status;
        const bool known = QvxVRIndexOfLetters(letters) != kVRIndexNone ||
                           (state.Wants(kWalkModernVRs) && QvxIsVR(letters));
        state.fExplicitVR = known ? 1 : 0;
    }
    return kQvxOK;
}

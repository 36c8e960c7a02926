// An element's VR and length, and what the walk takes from the elements that it meets.
#include "Qvx2Parser/QvxDictionary.h"
#include "Qvx2Parser/QvxTransferSyntax.h"
#include "Qvx2Parser/QvxWalk.h"
#include <algorithm>
#include <array>
#include <cstdlib>
#include <optional>
#include <string_view>

namespace {

struct SopClassRow {
    std::string_view fUID;
    std::uint32_t fKind;
};
constexpr auto kSopClasses = std::to_array<SopClassRow>({
    {"1.2.840.10008.1.3.10", kSOPMediaDirectory},
    {"1.2.840.10008.3.1.2.2.1", kSOPManagement1},
    {"1.2.840.10008.3.1.2.3.1", kSOPManagement2},
    {"1.2.840.10008.3.1.2.3.2", kSOPManagement3},
});

// Explicit form: two letters, then a length of 16 or 32 bits.
QvxStatus ReadExplicitHeader(std::uint32_t* offset, ExtraHeaderDataRec& state, QvxElementTag tag,
                             std::uint32_t byteOrder, QvxVRIndex* vr, std::uint32_t* length)
{
    std::uint16_t letters = 0;
    if (const QvxStatus status = WalkNumber(state, offset, &letters, 1))
        return status;
    *vr = QvxVRIndexOfLetters(letters);
    if (*vr == kVRIndexNone && state.Wants(kWalkModernVRs))
        *vr = QvxModernVR(letters);
    if (*vr == kVRIndexNone && tag != kTagPixelData)
        return kQvxMalformed;
    if (*vr != kVRIndexNone && HasLongForm(*vr)) {
        *offset = AdvancedOffset(*offset, 2);
        if (const QvxStatus status = WalkNumber(state, offset, length, byteOrder))
            return status;
        return *vr == kVRIndexUT && *length == kUndefinedLength ? kQvxMalformed : kQvxOK;
    }
    std::uint16_t shortLength = 0;
    const QvxStatus status = WalkNumber(state, offset, &shortLength, byteOrder);
    *length = shortLength;
    return status;
}

// The value of a text element in the header, up to its first NUL; empty when it can't be had or is
// longer than any that means something here. It is not kept: most files are never asked again.
class HeaderText {
public:
    HeaderText(QvxIndex element, ExtraHeaderDataRec& state)
    {
        const DicomHeaderDataStruct& met = state[element];
        std::uint32_t offset = met.fValueOffset;
        if (met.fLength < sizeof fText &&
            state.fCallbacks->fReadData(state.fDataRef, fText, &offset, met.fLength) != kQvxOK)
            fText[0] = 0;
    }
    [[nodiscard]] const char* Text() const { return fText; }

private:
    char fText[80] = {};
};

// The value of a single 16-bit element; nullopt when it is none. Not kept either.
std::optional<std::uint16_t> ShortOf(QvxIndex element, ExtraHeaderDataRec& state)
{
    const DicomHeaderDataStruct& met = state[element];
    if ((met.VR() != kVRIndexUS && met.VR() != kVRIndexSS) || met.fLength < 2)
        return std::nullopt;
    if (met.fLength != 2)
        state.fAnomalies |= kAnomalyLength;
    std::uint32_t offset = met.fValueOffset;
    std::uint16_t value = 0;
    if (WalkNumber(state, &offset, &value, state.fByteOrder) != kQvxOK)
        return std::nullopt;
    return value;
}

void TakeTransferSyntax(std::string_view uid, ExtraHeaderDataRec& state)
{
    if (TransferSyntaxIndex(uid) == int{kTransferSyntaxDeflated} && state.Wants(kWalkInflate)) {
        state.fTransferSyntax = kTransferSyntaxDeflated;
        return;
    }
    const WalkSettingsRow* row = WalkSettingsOf(uid);
    if (!row) {
        const int index = TransferSyntaxIndex(uid.substr(0, uid.find(' ')));
        if (index >= 0 && state.Wants(kWalkAllSyntaxes))
            state.fTransferSyntax = static_cast<std::uint32_t>(index);
        return;
    }
    state.fTransferSyntax = row->fIndex;
    if (row->fSettlesForm) {
        state.fByteOrder = row->fByteOrder;
        state.fExplicitVR = row->fExplicitVR;
        state.fImageForm = row->fImageForm;
    }
}

void TakeSopClass(std::string_view uid, ExtraHeaderDataRec& state)
{
    const auto row = std::ranges::find(kSopClasses, uid, &SopClassRow::fUID);
    if (row != kSopClasses.end())
        state.fSopClassKind = row->fKind;
}

void TakePixelData(const DicomHeaderDataStruct& element, ExtraHeaderDataRec& state)
{
    state.fPixelDataSeen = 1;
    state.fPixelDataUndefined = element.Undefined() ? 1 : 0;
    state.fPixelDataLength = element.Undefined() ? 0 : element.fLength;
    state.fPixelDataOffset = element.fValueOffset;
}

template <typename Field>
void SetUnlessZero(Field* field, std::optional<std::uint16_t> value)
{
    if (value.value_or(0) != 0)
        *field = *value;
}

}  // namespace

QvxStatus GetVRandLength(std::uint32_t* offset, ExtraHeaderDataRec& state, QvxElementTag tag,
                         std::int32_t dictIndex, std::uint32_t explicitFlag,
                         std::uint32_t byteOrder, QvxVRIndex* vr, std::uint32_t* length)
{
    const bool marker = tag.group == 0xFFFE &&
                        (tag.element == 0xE000 || tag.element == 0xE00D || tag.element == 0xE0DD);
    QvxStatus status = kQvxOK;
    if (!marker && explicitFlag == 1) {
        status = ReadExplicitHeader(offset, state, tag, byteOrder, vr, length);
    } else {
        if (marker)
            *vr = tag.element == 0xE000   ? kVRIndexItem
                  : tag.element == 0xE00D ? kVRIndexItemEnd
                                          : kVRIndexSequenceEnd;
        else if (tag == kTagPixelData)
            *vr = kVRIndexOW;
        else
            *vr = dictIndex < 0 ? kVRIndexNone : DictionaryVRIndex(dictIndex);
        status = WalkNumber(state, offset, length, byteOrder);
    }
    if (status != kQvxOK)
        return status;
    if (*vr == kVRIndexItemEnd || *vr == kVRIndexSequenceEnd)
        *length = 0;
    if (*length > state.fFileSize && *length != kUndefinedLength && tag != kTagPixelData)
        return kQvxMalformed;
    if (state.fMode == QvxParseMode::Validate && state.fDictHits < 5 && *offset >= 1024) {
        state.fDictHits = -1;
        return kQvxMalformed;
    }
    return kQvxOK;
}

void UpdateExtraHeaderData(QvxIndex element, ExtraHeaderDataRec& state)
{
    switch (state[element].Tag().Key()) {
        case 0x00020002:
            TakeSopClass(HeaderText(element, state).Text(), state);
            break;
        case 0x00020010:
            TakeTransferSyntax(HeaderText(element, state).Text(), state);
            break;
        case 0x00280002:
            state.fSamplesPerPixel = ShortOf(element, state).value_or(state.fSamplesPerPixel);
            break;
        case 0x00280008: {
            // atoi's reading, then 16 bits: what a header claims is only a claim.
            const long frames = std::strtol(HeaderText(element, state).Text(), nullptr, 10);
            SetUnlessZero(&state.fNominalFrames, static_cast<std::uint16_t>(frames));
            break;
        }
        case 0x00280010:
            SetUnlessZero(&state.fRows, ShortOf(element, state));
            break;
        case 0x00280011:
            SetUnlessZero(&state.fColumns, ShortOf(element, state));
            break;
        case 0x00280100:
            SetUnlessZero(&state.fBitsAllocated, ShortOf(element, state));
            break;
        case 0x00280103:
            SetUnlessZero(&state.fPixelRepresentation, ShortOf(element, state));
            break;
        case 0x7FE00010:
            TakePixelData(state[element], state);
            break;
        default:
            break;
    }
}

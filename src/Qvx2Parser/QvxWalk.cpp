// The walk proper: one element after another, at the top level and inside sequences.
#include "Qvx2Parser/QvxWalk.h"

#include "Qvx2Parser/QvxDictionary.h"
#include "Qvx2Parser/QvxFlatValue.h"
#include "Qvx2Parser/QvxPixelMap.h"
#include <new>

namespace {

constexpr std::int32_t kHitsOfDicom = 5;  // tags of the dictionary that make a file DICOM

bool IsManagementClass(std::uint32_t kind)
{
    return kind == kSOPManagement1 || kind == kSOPManagement2 || kind == kSOPManagement3;
}

bool ValidatedEnough(const ExtraHeaderDataRec& state)
{
    return state.fMode == QvxParseMode::Validate && state.fDictHits >= kHitsOfDicom;
}

void Link(ExtraHeaderDataRec& state, QvxIndex* head, QvxIndex previous, QvxIndex element)
{
    if (previous)
        state[previous].fNext = element;
    else
        *head = element;
}

// Without Pixel Data there are no frames, whatever the header claims.
void HandleImageData(ExtraHeaderDataRec& state)
{
    if (state.fPixelDataSeen)
        return;
    state.fOffsetTableState = kNoOffsetTable;
    state.fNominalFrames = state.fActualFrames = 0;
    state.fPixelDataOffset = state.fPixelDataLength = 0;
}

void UpdateIfWatched(QvxIndex element, ExtraHeaderDataRec& state)
{
    const DicomHeaderDataStruct& met = state[element];
    if ((met.fGroup == 0x0028 || met.Tag() == kTagPixelData) && met.VR() != kVRIndexSQ &&
        met.fLength != 0)
        UpdateExtraHeaderData(element, state);
}

bool MayBeKnownUN(const ExtraHeaderDataRec& state, QvxVRIndex vr, std::uint16_t group)
{
    return vr == kVRIndexUN && group % 2 == 0 && state.fExplicitVR == 1 &&
           state.Wants(kWalkKnownUN);
}

// The element at `offset`, which must have been read ahead, if it is one of definite length that a
// lazy walk of a little endian file only jumps over; false for anything else, pixels, markers and
// faults included: the full form decides on those.
bool IsJumpedOver(std::uint32_t offset, const std::byte* bytes, const ExtraHeaderDataRec& state,
                  DicomHeaderDataStruct* made)
{
    made->fGroup = LoadLE<std::uint16_t>(bytes);
    made->fElement = LoadLE<std::uint16_t>(bytes + 2);
    if (made->fGroup >= kTagPixelData.group)
        return false;
    QvxVRIndex vr = kVRIndexNone;
    std::uint32_t header = 8;
    made->fDictIndex = kDictIndexOpen;
    if (state.fExplicitVR == 1) {
        vr = QvxVRIndexOfLetters(LoadBE<std::uint16_t>(bytes + 4));
        if (vr == kVRIndexNone)
            return false;
        header = HasLongForm(vr) ? 12 : 8;
        made->fLength =
            HasLongForm(vr) ? LoadLE<std::uint32_t>(bytes + 8) : LoadLE<std::uint16_t>(bytes + 6);
    } else {
        const std::int32_t row = PositionInDictionary(made->fGroup, made->fElement);
        made->fDictIndex = static_cast<std::int16_t>(row);
        if (row >= 0)
            vr = DictionaryVRIndex(row);
        made->fLength = LoadLE<std::uint32_t>(bytes + 4);
    }
    // Undefined, a fault, or a kind that other elements or the dictionary decide.
    if (made->fLength > state.fFileSize || vr == kVRIndexU2 || vr == kVRIndexU3 ||
        MayBeKnownUN(state, vr, made->fGroup))
        return false;
    made->fTagOffset = offset;
    made->fValueOffset = offset + header;
    made->fMultiplicity = InitialMultiplicity(vr);
    made->fVR = ByteOfVRIndex(vr);
    return true;
}

// What an explicit file's UN of definite length stands for: some writers state UN for all they
// hold. A sequence in UN has its own form (PS3.5 6.2.2), and binary data is the same either way.
QvxVRIndex KnownVROf(const ExtraHeaderDataRec& state, const QvxElementHeader& header)
{
    if (header.fLength == kUndefinedLength || !MayBeKnownUN(state, header.fVR, header.fTag.group))
        return header.fVR;
    const std::int32_t row = PositionInDictionary(header.fTag.group, header.fTag.element);
    const QvxVRIndex known = row >= 0 ? DictionaryVRIndex(row) : kVRIndexUN;
    constexpr auto bit = [](QvxVRIndex vr) { return std::uint64_t{1} << vr; };
    constexpr std::uint64_t kStaysUN = bit(kVRIndexBlank) | bit(kVRIndexSQ) | bit(kVRIndexOB) |
                                       bit(kVRIndexOF) | bit(kVRIndexOW) | bit(kVRIndexO2);
    return InVRSet(kStaysUN, known) ? kVRIndexUN : known;
}

// The lazy walk's common case in a few instructions: a run of elements that are only jumped over,
// up to `end`. Links them behind `previous` and answers the last; `previous` when there is none.
QvxIndex JumpOverRun(std::uint32_t* offset, std::uint64_t end, QvxIndex* head, QvxIndex previous,
                     ExtraHeaderDataRec& state, bool topLevel)
{
    if (state.fMode != QvxParseMode::Lazy || state.fExplicitVR > 1 || state.fByteOrder != 0 ||
        state.fDictHits < kHitsOfDicom || !state.fAhead)
        return previous;
    const QvxReadAhead& ahead = *state.fAhead;
    DicomHeaderDataStruct made;
    made.fImplicit = state.fInImplicitUN;
    while (*offset < end) {
        ReadAheadAt(state, *offset);
        if (*offset < ahead.fStart || *offset - ahead.fStart + kLongestHeader > ahead.fCount ||
            !IsJumpedOver(*offset, ahead.fBytes + (*offset - ahead.fStart), state, &made))
            break;
        const QvxIndex element = state.fArena.New(made);
        if (!element)
            break;
        Link(state, head, previous, element);
        previous = element;
        *offset = AdvancedOffset(made.fValueOffset, made.fLength);
        if (topLevel)
            UpdateIfWatched(element, state);
    }
    return previous;
}

// The top-level loop from `offset` on, behind the meta group's last element.
QvxStatus WalkTopLevel(std::uint32_t offset, ExtraHeaderDataRec& state, QvxIndex previous)
{
    while (offset < state.fFileSize) {
        previous = JumpOverRun(&offset, state.fFileSize, &state.fListHead, previous, state, true);
        if (offset >= state.fFileSize)
            break;
        QvxStatus error = kQvxOK;
        std::int32_t dictIndex = -1;
        const QvxIndex element =
            Read_DICOM_NextElement_Combined(&offset, previous, state, 1, &dictIndex, &error);
        if (error != kQvxOK)
            return error;
        if (ValidatedEnough(state))
            return kQvxOK;
        if (element && element != previous) {
            Link(state, &state.fListHead, previous, element);
            previous = element;
            UpdateIfWatched(element, state);
        }
        if (state.fPixelDataSeen)
            break;
    }
    if (state.fMode == QvxParseMode::Validate)
        state.fDictHits = kHitsOfDicom;
    return kQvxOK;
}

QvxStatus WalkFile(ExtraHeaderDataRec& state)
{
    QvxStatus error = kQvxOK;
    std::uint32_t offset = 0;
    const QvxIndex lastMeta = Handle_DICOM_MetaInformation(&offset, state, &error);
    if (error != kQvxOK)
        return error;
    if (ValidatedEnough(state))
        return kQvxOK;
    const bool validating = state.fMode == QvxParseMode::Validate;
    if ((validating || state.fMode == QvxParseMode::Graphics) &&
        IsManagementClass(state.fSopClassKind)) {
        state.fDictHits += validating ? 1 : 0;
        return kQvxOK;
    }
    if (const QvxStatus status = InflateDataSet(offset, state))
        return status;
    std::uint16_t group = 0, number = 0;
    if (const QvxStatus status = GetTransferSettings(offset, state, &group, &number)) {
        state.fFaultOffset = offset;
        return status;
    }
    if (const QvxStatus status = WalkTopLevel(offset, state, lastMeta))
        return status;
    if (state.fTransferSyntax == kUnknownState && state.fByteOrder == 0 && state.fExplicitVR == 0)
        state.fTransferSyntax = 0;
    return kQvxOK;
}

bool EndsNesting(const DicomHeaderDataStruct& element)
{
    return element.fGroup == 0xFFFE && (element.fElement == 0xE00D || element.fElement == 0xE0DD);
}

// Elements below a UN of undefined length are in implicit form even in an explicit file
// (PS3.5 6.2.2 note 2); those of writers that keep their own form show it in the first VR.
class ImplicitScope {
public:
    ImplicitScope(ExtraHeaderDataRec& state, const DicomHeaderDataStruct& element,
                  std::uint32_t valueOffset)
        : fState(state), fExplicitBefore(state.fExplicitVR), fInBefore(state.fInImplicitUN)
    {
        const bool begins = element.VR() == kVRIndexUN && element.Undefined() &&
                            state.Wants(kWalkImplicitUN) && state.fExplicitVR == 1 &&
                            state.fByteOrder == 0 && !LooksExplicit(valueOffset);
        if (begins || element.fImplicit) {
            fState.fExplicitVR = 0;
            fState.fInImplicitUN = true;
        }
    }
    ~ImplicitScope()
    {
        fState.fExplicitVR = fExplicitBefore;
        fState.fInImplicitUN = fInBefore;
    }
    ImplicitScope(const ImplicitScope&) = delete;
    ImplicitScope& operator=(const ImplicitScope&) = delete;

private:
    // Behind the item's header and the first element's tag stand two letters of a VR.
    [[nodiscard]] bool LooksExplicit(std::uint32_t valueOffset) const
    {
        std::uint32_t offset = AdvancedOffset(valueOffset, 12);
        std::uint16_t letters = 0;
        return Read_ShortU(fState.fCallbacks->fReadData, fState.fDataRef, &offset, &letters, 1) ==
                   kQvxOK &&
               QvxIsVR(letters);
    }

    ExtraHeaderDataRec& fState;
    std::uint32_t fExplicitBefore;
    bool fInBefore;
};

// Which nested data of definite length the mode jumps over.
bool JumpsOverNested(const ExtraHeaderDataRec& state, int workingLevel)
{
    if (workingLevel < 2)
        return false;
    switch (state.fMode) {
        case QvxParseMode::Lazy:
        case QvxParseMode::SingleElement:
            return true;
        case QvxParseMode::Graphics:
            return state.fEnclosingGroup != 0x0028 && !state.IsDirectory();
        default:
            return false;
    }
}

// Is the sequence just entered a directory's (0004,1220), in the mode that jumps among its items?
bool HoldsRecordsForGraphics(const ExtraHeaderDataRec& state, int workingLevel)
{
    return state.fMode == QvxParseMode::Graphics && state.IsDirectory() && workingLevel == 2 &&
           QvxElementTag{state.fEnclosingGroup, state.fEnclosingElement} ==
               QvxElementTag{0x0004, 0x1220};
}

}  // namespace

QvxStatePtr InitExtraHeaderDataRec(const QvxHostCallbacks* callbacks, ByteSource* dataRef,
                                   QvxParseMode mode, std::uintptr_t memoryEnv,
                                   std::uint32_t walkFlags)
{
    try {
        auto state = std::make_unique<ExtraHeaderDataRec>();
        state->fCallbacks = callbacks;
        state->fDataRef = dataRef;
        state->fMemoryEnv = memoryEnv;
        state->fMode = mode;
        state->fWalkFlags = walkFlags;
        state->fFileSize = static_cast<std::uint32_t>(dataRef->Size());
        return state;
    } catch (const std::bad_alloc&) {
        return nullptr;
    }
}

QvxStatus Read_DICOM_Header(const QvxHostCallbacks* callbacks, ByteSource* dataRef,
                            QvxStatePtr* state, QvxParseMode mode, std::uint32_t searchStart,
                            std::uintptr_t memoryEnv, std::uint32_t walkFlags)
{
    if (!callbacks || !dataRef || !state)
        return kQvxBadArgument;
    if (*state && (*state)->fSignature != kSignatureState)
        return kQvxMalformed;
    // The largest 32-bit number means "undefined" and "past the end": no offset may reach it.
    if (dataRef->Size() == 0 || dataRef->Size() >= UINT32_MAX)
        return kQvxMalformed;
    *state = InitExtraHeaderDataRec(callbacks, dataRef, mode, memoryEnv, walkFlags);
    if (!*state)
        return kQvxOutOfMemory;
    (*state)->fSearchStart = searchStart;
    const ByteSourceUse use(dataRef);
    const ReadAheadScope ahead(**state);
    const QvxStatus status = WalkFile(**state);
    if (mode == QvxParseMode::Lazy)
        HandleImageData(**state);
    (*state)->fArena.Trim();
    return status;
}

QvxStatePtr SetupNewExtraHeaderDataStruct(const QvxHostCallbacks* callbacks, ByteSource* dataRef,
                                          std::uintptr_t memoryEnv, std::uint32_t walkFlags,
                                          QvxStatus* error)
{
    *error = kQvxMalformed;
    if (dataRef->Size() == 0 || dataRef->Size() >= UINT32_MAX)
        return nullptr;
    QvxStatePtr state = InitExtraHeaderDataRec(callbacks, dataRef, QvxParseMode::SingleElement,
                                               memoryEnv, walkFlags);
    *error = kQvxOutOfMemory;
    if (!state)
        return nullptr;
    const ByteSourceUse use(dataRef);
    const ReadAheadScope ahead(*state);
    *error = kQvxOK;
    std::uint32_t offset = 0;
    (void)Handle_DICOM_MetaInformation(&offset, *state, error);
    if (*error == kQvxOK)
        *error = InflateDataSet(offset, *state);
    std::uint16_t group = 0, number = 0;
    if (*error == kQvxOK)
        *error = GetTransferSettings(offset, *state, &group, &number);
    if (*error != kQvxOK)
        return nullptr;
    state->fSearchStart = offset;
    return state;
}

QvxIndex Read_DICOM_NextElement_Combined(std::uint32_t* offset, QvxIndex previous,
                                         ExtraHeaderDataRec& state, int level,
                                         std::int32_t* dictIndex, QvxStatus* error)
{
    const auto failed = [&](QvxStatus status, std::uint32_t at, QvxElementTag tag) -> QvxIndex {
        *error = status == kQvxEndOfFile ? kQvxOK : status;
        if (status != kQvxEndOfFile && state.fFaultOffset == 0) {
            state.fFaultTag = tag;
            state.fFaultOffset = at;
        }
        if (status == kQvxEndOfFile && *offset < state.fFileSize)
            *offset = state.fFileSize;  // the end of data, wherever it was met
        return 0;
    };
    QvxElementHeader header;
    header.fTagOffset = *offset;
    ReadAheadAt(state, *offset);
    if (const QvxStatus status = WalkNumber(state, offset, &header.fTag.group, state.fByteOrder))
        return failed(status, header.fTagOffset, header.fTag);
    if (const QvxStatus status = WalkNumber(state, offset, &header.fTag.element, state.fByteOrder))
        return failed(status, header.fTagOffset, header.fTag);
    const QvxElementTag target{state.fTargetGroup, state.fTargetElement};
    if (state.fMode == QvxParseMode::SingleElement && level == 1 && state.fNesting == 0 &&
        header.fTag.Key() > target.Key()) {
        *offset = state.fFileSize;
        return previous;
    }
    // Only implicit form, and a file not known to be DICOM yet, need the dictionary now.
    header.fDictIndex = kDictIndexOpen;
    if (state.fExplicitVR != 1 || state.fDictHits < kHitsOfDicom) {
        header.fDictIndex = PositionInDictionary(header.fTag.group, header.fTag.element);
        state.fDictHits += header.fDictIndex >= 0 ? 1 : 0;
        if (header.fDictIndex >= 0 && ValidatedEnough(state))
            return previous;
    }
    *dictIndex = header.fDictIndex;
    if (const QvxStatus status =
            GetVRandLength(offset, state, header.fTag, header.fDictIndex, state.fExplicitVR,
                           state.fByteOrder, &header.fVR, &header.fLength))
        return failed(status, header.fTagOffset, header.fTag);
    header.fVR = KnownVROf(state, header);
    std::uint32_t skip = 0;
    if (SkipOverElementQuery(state, header.fTag, *offset, header.fLength, level, header.fVR,
                             &skip)) {
        *offset = AdvancedOffset(*offset, skip);
        return previous;
    }
    QvxStatus status = kQvxOK;
    const QvxIndex element =
        FillDICOMHeaderDataStruct_Combined(header, offset, state, level, &status);
    return element ? element : failed(status, header.fTagOffset, header.fTag);
}

QvxIndex FillDICOMHeaderDataStruct_Combined(const QvxElementHeader& header, std::uint32_t* offset,
                                            ExtraHeaderDataRec& state, int level, QvxStatus* error)
{
    QvxVRIndex vr = header.fVR;
    if (vr == kVRIndexU2 || vr == kVRIndexU3)
        vr = state.fPixelRepresentation == 1 ? kVRIndexSS : kVRIndexUS;
    DicomHeaderDataStruct made;
    made.fGroup = header.fTag.group;
    made.fElement = header.fTag.element;
    made.fVR = ByteOfVRIndex(vr);
    made.fLength = header.fLength;
    made.fDictIndex = static_cast<std::int16_t>(header.fDictIndex);
    made.fTagOffset = header.fTagOffset;
    made.fValueOffset = *offset;
    made.fMultiplicity = InitialMultiplicity(vr);
    made.fImplicit = state.fInImplicitUN;
    const QvxIndex index = state.fArena.New(made);
    if (!index) {
        *error = state.fArena.Count() >= kMaxElements ? kQvxMalformed : kQvxOutOfMemory;
        return 0;
    }
    const std::uint32_t valueOffset = *offset;
    const bool definite = header.fLength != kUndefinedLength;
    const bool isTarget = header.fTag == QvxElementTag{state.fTargetGroup, state.fTargetElement};
    if (header.fTag == kTagPixelData && level == 1 && state.fNesting == 0) {
        state.fPixelElement = index;
        const QvxIndex chain = HandlePixelData(offset, state, level, error);
        if (*error == kQvxOK) {
            HangFrameChain(state, chain);
            if (definite)
                *offset = AdvancedOffset(valueOffset, header.fLength);
        }
    } else if (definite && (state.fMode == QvxParseMode::Lazy ||
                            (state.fMode == QvxParseMode::SingleElement && !isTarget))) {
        *offset = AdvancedOffset(valueOffset, header.fLength);
    } else {
        *error = GetElementContent(state, index, offset, level);
    }
    if (*error == kQvxOK)
        return index;
    if (state.fPixelElement == index)
        state.fPixelElement = 0;
    state.fArena.DropLast(index);
    return 0;
}

QvxStatus GetElementContent(ExtraHeaderDataRec& state, QvxIndex element, std::uint32_t* offset,
                            int level)
{
    const DicomHeaderDataStruct seen = state[element];
    if (seen.VR() == kVRIndexSQ) {
        state.fEnclosingGroup = seen.fGroup;
        state.fEnclosingElement = seen.fElement;
    } else if (seen.VR() == kVRIndexItem && state.fItemsAreFlat) {
        return seen.Undefined() ? kQvxUnsupported : GetFlatElementContent(state, element, offset);
    } else if (seen.VR() != kVRIndexItem && !seen.Undefined()) {
        return GetFlatElementContent(state, element, offset);
    }
    QvxStatus error = kQvxOK;
    QvxIndex head = 0;
    {
        const ImplicitScope form(state, seen, *offset);
        if (seen.Tag() == kTagPixelData && element == state.fPixelElement) {
            head = HandlePixelData(offset, state, level, &error);
        } else if (seen.Tag() == kTagPixelData) {
            const NestingScope nested(state);
            head = HandlePixelData(offset, state, level, &error);
        } else {
            head = ParseDICOMHeaderFromOffset(offset, seen.fLength, state, level, &error);
        }
    }
    DicomHeaderDataStruct& filled = state[element];
    filled.fContent = head;
    filled.fContentKind = QvxContent::Children;
    filled.fRead = true;
    for (QvxIndex child = head; child; child = state[child].fNext)
        state[child].fParent = element;
    return error;
}

QvxIndex ParseDICOMHeaderFromOffset(std::uint32_t* offset, std::uint32_t length,
                                    ExtraHeaderDataRec& state, int level, QvxStatus* error)
{
    if (length == 0)
        return 0;
    const int workingLevel = level + 1;
    const bool definite = length != kUndefinedLength;
    if (definite && JumpsOverNested(state, workingLevel)) {
        *offset = AdvancedOffset(*offset, length);
        return 0;
    }
    const NestingScope nesting(state);
    if (nesting.TooDeep()) {
        *error = kQvxMalformed;
        return 0;
    }
    const std::uint64_t end = std::uint64_t{*offset} + length;
    const bool holdsRecords = HoldsRecordsForGraphics(state, workingLevel);
    QvxIndex head = 0, previous = 0;
    const std::uint64_t stop = definite && end < state.fFileSize ? end : state.fFileSize;
    while (*offset < state.fFileSize) {
        previous = JumpOverRun(offset, stop, &head, previous, state, false);
        if (*offset >= stop) {
            if (definite && *offset > end && *offset <= state.fFileSize)
                *error = kQvxMalformed;
            break;
        }
        std::int32_t dictIndex = -1;
        const QvxIndex element = Read_DICOM_NextElement_Combined(offset, previous, state,
                                                                 workingLevel, &dictIndex, error);
        if (*error != kQvxOK)
            break;
        if (element && element != previous) {
            Link(state, &head, previous, element);
            previous = element;
            if (holdsRecords && !StepBehindDirectoryRecord(state, element, end, offset)) {
                *offset = static_cast<std::uint32_t>(stop);
                break;
            }
        }
        if (!definite && element && EndsNesting(state[element]))
            break;
        if (definite && *offset == end)
            break;
        if (definite && *offset > end && *offset <= state.fFileSize) {
            *error = kQvxMalformed;
            break;
        }
    }
    return head;
}

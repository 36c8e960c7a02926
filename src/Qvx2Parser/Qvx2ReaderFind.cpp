// Finding elements: references, children, the first of a tag, one tag without a walk.
#include "Qvx2Parser/QvxReaderRec.h"
#include <algorithm>
#include <cstring>
#include <new>

namespace {

bool IsClosingDelimiter(const DicomHeaderDataStruct& element)
{
    return element.VR() == kVRIndexItemEnd || element.VR() == kVRIndexSequenceEnd;
}

QvxStatus FillRefs(QvxParserRec* reader, QvxIndex head, QvxElementRefArray* refs)
{
    std::uint32_t count = 0;
    for (QvxIndex i = head; i; i = (*reader->fState)[i].fNext) {
        const DicomHeaderDataStruct& element = (*reader->fState)[i];
        count += element.fNext == 0 && IsClosingDelimiter(element) ? 0 : 1;
    }
    QvxHandle made = reader->fCallbacks->fNewHandle(4 + std::int64_t{count} * 4);
    if (made.IsNull())
        return kQvxNoMemory;
    auto* words = reinterpret_cast<std::uint32_t*>(made.Data());
    words[0] = count;
    QvxIndex element = head;
    for (std::uint32_t i = 0; i < count; ++i, element = (*reader->fState)[element].fNext)
        words[i + 1] = static_cast<std::uint32_t>(QvxRefOf(*reader, element));
    *refs = std::move(made);
    return kQvxOK;
}

QvxIndex FirstOf(QvxParserRec* reader, QvxIndex head, QvxElementTag tag)
{
    for (QvxIndex i = head; i; i = (*reader->fState)[i].fNext) {
        if ((*reader->fState)[i].Tag() == tag)
            return i;
    }
    return 0;
}

// Is there a walk to ask, or can one be made?
QvxStatus EnsureWalked(QvxParserRec* reader)
{
    return CheckAndFillDICOMHeaderPointers(reader, QvxParseMode::Lazy, 0);
}

bool SideBefore(const QvxSideElement& entry, const QvxSideElement& wanted)
{
    return entry.fParent != wanted.fParent ? entry.fParent < wanted.fParent
                                           : entry.fKey < wanted.fKey;
}

// Reads forward in single element mode from `offset`; 0 when the tag isn't met.
QvxStatus SeekForward(QvxParserRec* reader, QvxElementTag tag, std::uint32_t offset,
                      QvxSideElement* found)
{
    ExtraHeaderDataRec& state = *reader->fState;
    const ByteSourceUse use(state.fDataRef);
    const ReadAheadScope ahead(state);
    state.fMode = QvxParseMode::SingleElement;
    state.fTargetGroup = tag.group;
    state.fTargetElement = tag.element;
    while (offset < state.fFileSize) {
        const QvxIndex before = state.fArena.Count();
        QvxStatus error = kQvxOK;
        std::int32_t dictIndex = -1;
        const QvxIndex element =
            Read_DICOM_NextElement_Combined(&offset, 0, state, 1, &dictIndex, &error);
        if (error != kQvxOK)
            return error;
        if (element && state[element].Tag() == tag) {
            *found = {0, tag.Key(), element, offset};
            return kQvxOK;
        }
        if (element && state[element].Tag() == kTagPixelData)
            break;
        if (state.fArena.Count() > before && element + 1 == state.fArena.Count())
            state.fArena.DropLast(element);  // passed over
    }
    return kQvxNoSuchElement;
}

// The search without a walk: the side list first, then on from the place that it has reached.
QvxStatus FindAlone(QvxParserRec* reader, QvxElementTag tag, QvxElementRef* found)
{
    const QvxSideElement wanted{0, tag.Key(), 0, 0};
    auto& list = reader->fSideList;
    const auto place = std::lower_bound(list.begin(), list.end(), wanted, SideBefore);
    if (place != list.end() && place->fParent == 0 && place->fKey == wanted.fKey) {
        *found = QvxRefOf(*reader, place->fElement);
        return kQvxOK;
    }
    const std::uint32_t from = place == list.begin() || std::prev(place)->fParent != 0
                                   ? reader->fState->fSearchStart
                                   : std::prev(place)->fBehind;
    QvxSideElement met;
    if (const QvxStatus status = SeekForward(reader, tag, from, &met))
        return status;
    try {
        list.insert(std::lower_bound(list.begin(), list.end(), wanted, SideBefore), met);
    } catch (const std::bad_alloc&) {
        return kQvxNoMemory;
    }
    *found = QvxRefOf(*reader, met.fElement);
    return kQvxOK;
}

// An item of encapsulated pixels holds bytes, no elements.
bool IsFragment(const ExtraHeaderDataRec& state, const DicomHeaderDataStruct& element)
{
    const auto isPixelData = [&state](QvxIndex index) {
        return index != 0 && state.fArena.At(index).Tag() == kTagPixelData;
    };
    return element.VR() == kVRIndexItem && element.fParent != 0 &&
           (isPixelData(element.fParent) || isPixelData(state.fArena.At(element.fParent).fParent));
}

}  // namespace

QvxElementRef QvxRefOf(const QvxParserRec& reader, QvxIndex index)
{
    return static_cast<QvxElementRef>(reader.fSalt * kMaxElements + index);
}

QvxStatus QvxIndexOf(const QvxParserRec* reader, QvxElementRef element, QvxIndex* index)
{
    const auto word = static_cast<std::uint32_t>(element);
    if (!reader || !reader->fState || word / kMaxElements != reader->fSalt)
        return kQvxBadChain;
    const QvxIndex found = word % kMaxElements;
    if (!reader->fState->fArena.Holds(found) ||
        reader->fState->fArena.At(found).fSignature != kSignatureElement)
        return kQvxBadChain;
    *index = found;
    return kQvxOK;
}

QvxStatus CheckAndFillDICOMHeaderPointers(QvxParserRec* reader, QvxParseMode mode,
                                          std::uint32_t startOffset)
{
    if (!reader)
        return kQvxBadArgument;
    if (!reader->fStream)
        return kQvxNoDataRef;
    const bool wantsFrames = (reader->fReaderFlags & kReaderWantsFrames) != 0;
    if (!reader->fWalked || !reader->fState) {
        // References to elements that were found alone die with the state that holds them.
        reader->fSideList.clear();
        QvxRenewSalt(reader);
        const QvxStatus status = Read_DICOM_Header(
            reader->fCallbacks, reader->fStream.get(), &reader->fState, mode, startOffset,
            reader->fMemoryEnv, reader->fOptions | (wantsFrames ? kWalkMapFrames : 0));
        reader->fWalked = reader->fState != nullptr;
        return status;
    }
    ExtraHeaderDataRec& state = *reader->fState;
    const bool mapped = state.fFrameChain != 0 && (state.fActualFrames > 0 || state.Wants(1));
    if (!wantsFrames || !state.fPixelDataSeen || mapped || !state.fPixelElement)
        return kQvxOK;
    const ByteSourceUse use(state.fDataRef);
    state.fWalkFlags |= kWalkMapFrames;
    state.fMode = QvxParseMode::Lazy;
    std::uint32_t offset = state[state.fPixelElement].fValueOffset;
    QvxStatus error = kQvxOK;
    const QvxIndex chain = HandlePixelData(&offset, state, 0, &error);
    if (error != kQvxOK) {
        state.fFrameChain = 0;
        state.fActualFrames = 0;
        return error;
    }
    HangFrameChain(state, chain);
    return kQvxOK;
}

QvxStatus QvxChildrenOf(QvxParserRec* reader, QvxIndex parent, int firstLevel, QvxIndex* head)
{
    ExtraHeaderDataRec& state = *reader->fState;
    *head = 0;
    if (parent == 0) {
        *head = state.fListHead;
        return kQvxOK;
    }
    const DicomHeaderDataStruct seen = state[parent];
    const bool mayHave =
        seen.VR() == kVRIndexSQ || seen.VR() == kVRIndexItem ||
        seen.fContentKind == QvxContent::Children ||
        (parent == state.fPixelElement && state.fImageForm == kImageFormEncapsulated);
    if (!mayHave)
        return kQvxNotASequence;
    QvxStatus status = kQvxOK;
    if (!IsFragment(state, seen) && (!seen.fRead || (seen.fContent == 0 && seen.fLength != 0))) {
        const ByteSourceUse use(state.fDataRef);
        const ReadAheadScope ahead(state);
        state.fMode = QvxParseMode::Lazy;
        for (int level = firstLevel; level >= 0 && state[parent].fContent == 0; --level) {
            std::uint32_t offset = seen.fValueOffset;
            status = GetElementContent(state, parent, &offset, level);
            if (status != kQvxOK)
                break;
        }
    }
    if (state[parent].fContentKind == QvxContent::Children)
        *head = state[parent].fContent;
    return status;
}

QvxStatus QvxEnsureValue(QvxParserRec* reader, QvxIndex element)
{
    ExtraHeaderDataRec& state = *reader->fState;
    if (state[element].fRead)
        return kQvxOK;
    std::uint32_t offset = state[element].fValueOffset;
    const QvxVRIndex vr = state[element].VR();
    if (vr == kVRIndexSQ || IsItemMarker(vr) || state[element].Undefined()) {
        state.fMode = QvxParseMode::Lazy;
        return GetElementContent(state, element, &offset, 1);
    }
    return GetFlatElementContent(state, element, &offset);
}

std::span<const QvxElementRef> QvxRefsOf(const QvxElementRefArray& refs)
{
    return refs.Array<QvxElementRef>(4);
}

QvxStatus Qvx2Reader_GetTopLevelElementRefs(QvxParserRec* reader, QvxElementRefArray* refs)
{
    return Qvx2Reader_GetElementRefs(reader, QvxElementRef::None, refs);
}

QvxStatus Qvx2Reader_GetElementRefs(QvxParserRec* reader, QvxElementRef parent,
                                    QvxElementRefArray* refs)
{
    if (!reader || !refs)
        return kQvxBadArgument;
    const QvxStatus walked = EnsureWalked(reader);
    if (walked != kQvxOK && !reader->fState)
        return walked;
    QvxIndex index = 0;
    if (parent != QvxElementRef::None) {
        if (const QvxStatus status = QvxIndexOf(reader, parent, &index))
            return status;
    }
    QvxIndex head = 0;
    const QvxStatus status = QvxChildrenOf(reader, index, 1, &head);
    if (status == kQvxNotASequence)
        return status;
    if (const QvxStatus filled = FillRefs(reader, head, refs))
        return filled;
    return walked != kQvxOK ? walked : status;
}

QvxStatus Qvx2Reader_GetSequenceElementRefs(QvxParserRec* reader, QvxElementTag tag,
                                            QvxElementRefArray* refs)
{
    QvxElementRef sequence{};
    if (const QvxStatus status =
            Qvx2Reader_FindElement(reader, QvxElementRef::None, tag, &sequence))
        return status;
    QvxElementRefArray made;
    const QvxStatus status = Qvx2Reader_GetElementRefs(reader, sequence, &made);
    if (!made.IsNull() && QvxRefsOf(made).empty())
        made = QvxElementRefArray();
    *refs = std::move(made);
    return status;
}

QvxStatus Qvx2Reader_GetSequenceNumItems(QvxParserRec* reader, QvxElementTag tag,
                                         std::uint32_t* count)
{
    QvxElementRefArray refs;
    const QvxStatus status = Qvx2Reader_GetSequenceElementRefs(reader, tag, &refs);
    if (status == kQvxOK)
        *count = static_cast<std::uint32_t>(QvxRefsOf(refs).size());
    return status;
}

QvxStatus Qvx2Reader_FindElement(QvxParserRec* reader, QvxElementRef parent, QvxElementTag tag,
                                 QvxElementRef* found)
{
    if (!reader || !found)
        return kQvxBadArgument;
    // A failed walk is reported once; afterwards what it built answers.
    if (const QvxStatus status = EnsureWalked(reader))
        return status;
    QvxIndex index = 0, head = 0;
    if (parent != QvxElementRef::None) {
        if (const QvxStatus status = QvxIndexOf(reader, parent, &index))
            return status;
    }
    const QvxStatus status = QvxChildrenOf(reader, index, 0, &head);
    if (status == kQvxNotASequence)
        return status;
    const QvxIndex element = FirstOf(reader, head, tag);
    if (!element)
        return status != kQvxOK ? status : kQvxNoSuchElement;
    *found = QvxRefOf(*reader, element);
    return kQvxOK;
}

QvxStatus Qvx2Reader_FindTopLevelElements(QvxParserRec* reader, std::span<const QvxElementTag> tags,
                                          std::span<QvxElementRef> found)
{
    if (!reader || tags.size() != found.size())
        return kQvxBadArgument;
    if (const QvxStatus status = EnsureWalked(reader))
        return status;
    std::ranges::fill(found, QvxElementRef::None);
    constexpr std::uint64_t kNoTag = UINT64_MAX;
    const auto keyOf = [&](std::size_t i) {
        return i < tags.size() ? std::uint64_t{tags[i].Key()} : kNoTag;
    };
    const QvxArena& arena = reader->fState->fArena;
    std::size_t next = 0;  // of `tags`, the first that isn't below the element
    std::uint64_t wanted = keyOf(next), last = 0;
    for (QvxIndex i = reader->fState->fListHead; i; i = arena.At(i).fNext) {
        const std::uint64_t key = arena.At(i).Tag().Key();
        if (key < last)  // out of order
            wanted = keyOf(next = 0);
        last = key;
        while (wanted < key)
            wanted = keyOf(++next);
        if (wanted == key)
            found[next] = QvxRefOf(*reader, i);
    }
    return kQvxOK;
}

QvxStatus Qvx2Reader_GetElementRef(QvxParserRec* reader, QvxElementRef parent, QvxElementTag tag,
                                   QvxElementRef* found)
{
    if (!reader || !found)
        return kQvxBadArgument;
    if (!reader->fStream)
        return kQvxNoDataRef;
    if (parent != QvxElementRef::None || reader->fWalked)
        return Qvx2Reader_FindElement(reader, parent, tag, found);
    if (const QvxStatus status = QvxEnsureState(reader))
        return status;
    return FindAlone(reader, tag, found);
}

QvxStatus Qvx2Reader_GetElementTag(const QvxParserRec* reader, QvxElementRef element,
                                   QvxElementTag* tag)
{
    QvxIndex index = 0;
    if (const QvxStatus status = QvxIndexOf(reader, element, &index))
        return status;
    *tag = (*reader->fState)[index].Tag();
    return kQvxOK;
}

QvxStatus Qvx2Reader_GetTagOffset(const QvxParserRec* reader, QvxElementRef element,
                                  std::uint32_t* offset)
{
    QvxIndex index = 0;
    if (const QvxStatus status = QvxIndexOf(reader, element, &index))
        return status;
    *offset = (*reader->fState)[index].fTagOffset;
    return kQvxOK;
}

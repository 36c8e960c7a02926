#include "Qvx2Parser/QvxPixelMap.h"

#include "Qvx2Parser/QvxDictionary.h"
#include "Qvx2Parser/QvxTransferSyntax.h"
#include "Qvx2Parser/QvxWalk.h"
#include <algorithm>
#include <new>
#include <string_view>

namespace {

constexpr std::uint32_t kItemHeader = 8;  // tag and length
constexpr QvxElementTag kTagItem{0xFFFE, 0xE000};
constexpr QvxElementTag kTagSequenceEnd{0xFFFE, 0xE0DD};

bool MapsFrames(const ExtraHeaderDataRec& state) { return state.Wants(kWalkMapFrames); }

QvxStatus ReadTag(ExtraHeaderDataRec& state, std::uint32_t* offset, QvxElementTag* tag)
{
    const QvxReadProc read = state.fCallbacks->fReadData;
    if (const QvxStatus status =
            Read_ShortU(read, state.fDataRef, offset, &tag->group, state.fByteOrder))
        return status;
    return Read_ShortU(read, state.fDataRef, offset, &tag->element, state.fByteOrder);
}

// A frame or fragment item, or the pseudo item of a native frame; 0 when no more can be made.
QvxIndex NewItem(ExtraHeaderDataRec& state, QvxVRIndex vr, std::uint32_t tagOffset,
                 std::uint32_t valueOffset, std::uint32_t length)
{
    DicomHeaderDataStruct item;
    item.fGroup = kTagItem.group;
    item.fElement = kTagItem.element;
    item.fVR = ByteOfVRIndex(vr);
    item.fTagOffset = tagOffset;
    item.fValueOffset = valueOffset;
    item.fLength = length;
    item.fMultiplicity = 1;
    item.fDictIndex = static_cast<std::int16_t>(PositionInDictionary(0xFFFE, 0xE000));
    return state.fArena.New(item);
}

void HangChildren(ExtraHeaderDataRec& state, QvxIndex parent, QvxIndex head)
{
    if (!head)
        return;
    state[parent].fContent = head;
    state[parent].fContentKind = QvxContent::Children;
    state[parent].fRead = true;
    for (QvxIndex child = head; child; child = state[child].fNext)
        state[child].fParent = parent;
}

// Keeps items flat for a scope: a fragment is no data set.
class FlatItems {
public:
    explicit FlatItems(ExtraHeaderDataRec& state) : fState(state), fBefore(state.fItemsAreFlat)
    {
        fState.fItemsAreFlat = true;
    }
    ~FlatItems() { fState.fItemsAreFlat = fBefore; }
    FlatItems(const FlatItems&) = delete;
    FlatItems& operator=(const FlatItems&) = delete;

private:
    ExtraHeaderDataRec& fState;
    bool fBefore;
};

// The fragments from `offset` on, as a list of items.
QvxIndex WalkFragments(std::uint32_t* offset, ExtraHeaderDataRec& state, int level,
                       QvxStatus* error)
{
    const FlatItems flat(state);
    const std::uint32_t begin = *offset;
    const QvxIndex head = ParseDICOMHeaderFromOffset(offset, kUndefinedLength, state, level, error);
    const bool pastFirst = head && *offset > begin + kItemHeader &&
                           *offset >= AdvancedOffset(state[head].fValueOffset, state[head].fLength);
    if (*error == kQvxMalformed && pastFirst)
        *error = kQvxOK;  // the chain stands as far as it got
    return *error == kQvxOK ? head : 0;
}

// An RLE frame begins with the number of its segments and the offset of the first (PS3.5 G.5).
bool StartsRLEFrame(ExtraHeaderDataRec& state, const DicomHeaderDataStruct& fragment)
{
    const QvxReadProc read = state.fCallbacks->fReadData;
    std::uint32_t offset = fragment.fValueOffset, segments = 0, first = 0;
    return fragment.fLength >= 64 &&
           Read_LongU(read, state.fDataRef, &offset, &segments, 0) == kQvxOK &&
           Read_LongU(read, state.fDataRef, &offset, &first, 0) == kQvxOK && segments >= 1 &&
           segments <= 15 && first == 64;
}

// Does the fragment begin a frame? Asked of every fragment but the first.
bool StartsFrame(ExtraHeaderDataRec& state, const DicomHeaderDataStruct& fragment)
{
    if (state.Wants(kWalkOneFrameTakesAll) && state.fNominalFrames == 1)
        return false;
    // An encoding of later years, in a file that does not speak of frames, holds one.
    if (state.Wants(kWalkOneFrameTakesAll) && state.fNominalFrames == 0 &&
        state.fTransferSyntax == kUnknownState)
        return false;
    if (state.Wants(kWalkOneFrameTakesAll) && state.fNominalFrames == 0 &&
        state.fTransferSyntax == kTransferSyntaxRLE)
        return StartsRLEFrame(state, fragment);
    if (state.fTransferSyntax < kTransferSyntaxFirstJPEG ||
        state.fTransferSyntax > kTransferSyntaxLastJ2K)
        return true;  // each fragment is a frame
    std::uint32_t offset = fragment.fValueOffset;
    std::uint16_t marker = 0;
    if (fragment.fLength < 2 ||
        Read_ShortU(state.fCallbacks->fReadData, state.fDataRef, &offset, &marker, 1) != kQvxOK)
        return false;
    return marker == 0xFFD8 || (marker == 0xFF4F && state.Wants(kWalkJ2KStarts));
}

// Sorts a list of fragments into frames: what does not begin a frame goes below the one before.
// Answers the number of frames.
std::uint32_t SortFragments(ExtraHeaderDataRec& state, QvxIndex head, bool lastIsCut)
{
    std::uint32_t frames = 0;
    QvxIndex frame = 0, before = 0, tail = 0;
    for (QvxIndex item = head, next = 0; item; item = next) {
        next = state[item].fNext;
        const bool isItem = state[item].Tag() == kTagItem;
        if (!isItem || !frame || StartsFrame(state, state[item])) {
            if (isItem) {
                ++frames;
                before = frame;
                tail = 0;
            }
            if (frame)
                state[frame].fNext = item;
            if (!isItem)
                return frames;  // the closing delimiter is the chain's last
            frame = item;
            continue;
        }
        state[frame].fNext = 0;
        if (tail)
            state[tail].fNext = item;
        else
            HangChildren(state, frame, item);
        state[item].fParent = frame;
        state[item].fNext = 0;
        tail = item;
    }
    if (frame)
        state[frame].fNext = 0;
    if (lastIsCut && frames > 0) {
        --frames;
        if (before)
            state[before].fNext = 0;
    }
    return frames;
}

// Encapsulated data without an offset table. `table` is the empty table's item.
void MapByFragments(std::uint32_t* offset, ExtraHeaderDataRec& state, int level, QvxIndex table,
                    QvxStatus* error)
{
    const QvxIndex head = WalkFragments(offset, state, level, error);
    if (*error != kQvxOK)
        return;
    const bool lastIsCut = *offset > state.fFileSize;
    state.fActualFrames = SortFragments(state, head, lastIsCut);
    if (state.fNominalFrames == 0)
        state.fNominalFrames = state.fActualFrames;
    const bool onlyCutFrame = lastIsCut && state.fActualFrames == 0;
    state[table].fNext = onlyCutFrame ? 0 : head;
}

// Encapsulated data with an offset table of `nominalFrames` entries.
void MapByTable(ExtraHeaderDataRec& state, QvxIndex table, std::uint32_t tableLength)
{
    const QvxReadProc read = state.fCallbacks->fReadData;
    const std::uint32_t base = AdvancedOffset(state.fOffsetTableOffset, tableLength);
    std::uint32_t entryOffset = state.fOffsetTableOffset;
    const auto frameStart = [&](std::uint32_t frame, std::uint32_t* start) {
        std::uint32_t entry = 0;
        const QvxStatus status =
            Read_LongU(read, state.fDataRef, &entryOffset, &entry, state.fByteOrder);
        *start = AdvancedOffset(base, frame == 0 ? 0 : entry);
        return status;
    };
    QvxIndex last = table;
    std::uint32_t start = 0, next = 0;
    state.fActualFrames = 0;
    if (frameStart(0, &start) != kQvxOK)
        return;
    for (std::uint32_t frame = 0; frame < state.fNominalFrames; ++frame, start = next) {
        const bool isLast = frame + 1 == state.fNominalFrames;
        if (isLast)
            next = state.fFileSize < kItemHeader ? 0 : state.fFileSize - kItemHeader;
        else if (frameStart(frame + 1, &next) != kQvxOK)
            return;
        if (next <= start)  // a table that runs backwards is rubbish from here on
            return;
        QvxFragments fragments;
        if (HandleFrameFragments(state, start, next, &fragments) != kQvxOK)
            return;
        const QvxIndex item = NewItem(state, kVRIndexItem, start,
                                      AdvancedOffset(start, kItemHeader), fragments.fFirstSize);
        if (!item)
            return;
        HangChildren(state, item, fragments.fList);
        state[last].fNext = item;
        last = item;
        ++state.fActualFrames;
    }
}

QvxIndex MapEncapsulated(std::uint32_t* offset, ExtraHeaderDataRec& state, int level,
                         QvxStatus* error)
{
    std::uint32_t length = 0;
    if (const QvxStatus status = Read_LongU(state.fCallbacks->fReadData, state.fDataRef, offset,
                                            &length, state.fByteOrder)) {
        *error = status;
        return 0;
    }
    if (state.IsDirectory())
        length = 0;
    else
        state.fImageForm = kImageFormEncapsulated;
    state.fOffsetTableOffset = *offset;
    bool hasTable = length != 0 && length != kUndefinedLength;
    const bool ofFragments = length > 4 && state.fNominalFrames == 1;
    const bool ofStream = length == 4 && state.fNominalFrames > 1;  // a clip's: it begins at 0
    if (hasTable && (ofFragments || ofStream) && state.Wants(kWalkOneFrameTakesAll)) {
        *offset = AdvancedOffset(*offset, length);  // a table of something else than frames
        hasTable = false;
    }
    if (hasTable)
        state.fNominalFrames = length / 4;
    if (!MapsFrames(state) && state.fNominalFrames != 0)
        return 0;
    const QvxIndex table =
        NewItem(state, kVRIndexItem, state.fOffsetTableOffset - kItemHeader,
                state.fOffsetTableOffset, length == kUndefinedLength ? 0 : length);
    if (!table) {
        *error = kQvxOutOfMemory;
        return 0;
    }
    state.fOffsetTableState = kUnknownState;
    if (!hasTable)
        MapByFragments(offset, state, level, table, error);
    else if (MapsFrames(state))
        MapByTable(state, table, length);
    return *error == kQvxOK ? table : 0;
}

// Two pixels share their colour: (0028,0004) ends in 422, PS3.3 C.7.6.3.1.2.
bool IsSubsampled(ExtraHeaderDataRec& state)
{
    QvxIndex element = state.fListHead;
    while (element && state[element].Tag() != QvxElementTag{0x0028, 0x0004})
        element = state[element].fNext;
    if (!element || state[element].fLength > 64 || state[element].fLength < 3)
        return false;
    char text[64] = {};
    std::uint32_t offset = state[element].fValueOffset;
    if (state.fCallbacks->fReadData(state.fDataRef, text, &offset, state[element].fLength) !=
        kQvxOK)
        return false;
    std::string_view name(text, state[element].fLength);
    while (name.ends_with(' ') || name.ends_with('\0'))
        name.remove_suffix(1);
    return name.ends_with("422");
}

// Bytes of a native frame, rounded up to whole ones; 0 when the geometry is incomplete.
std::uint64_t NativeFrameSize(ExtraHeaderDataRec& state)
{
    const bool subsampled = state.Wants(kWalkSubsampled) && state.fSamplesPerPixel == 3 &&
                            state.fColumns % 2 == 0 && IsSubsampled(state);
    const std::uint64_t samples = subsampled ? 2 : state.fSamplesPerPixel;
    const std::uint64_t bits = samples * state.fBitsAllocated * state.fColumns * state.fRows;
    return bits / 8 + (bits % 8 != 0 ? 1 : 0);
}

void CountNativeFrames(ExtraHeaderDataRec& state, std::uint32_t valueOffset, std::uint32_t length,
                       std::uint64_t frameSize)
{
    const std::uint32_t room = valueOffset < state.fFileSize ? state.fFileSize - valueOffset : 0;
    state.fActualFrames = static_cast<std::uint32_t>(room / frameSize);
    if (state.fNominalFrames == 0 && length != 0 && length != kUndefinedLength)
        state.fNominalFrames = static_cast<std::uint32_t>(length / frameSize);
    if (state.fNominalFrames == 0)
        state.fNominalFrames = state.fActualFrames;
    state.fActualFrames = std::min({state.fActualFrames, state.fNominalFrames, kMaxMappedFrames});
}

QvxIndex MapNative(std::uint32_t* offset, ExtraHeaderDataRec& state, QvxStatus* error)
{
    const std::uint32_t valueOffset = *offset;
    if (state.IsDirectory())
        return 0;
    state.fPixelDataOffset = valueOffset;
    state.fOffsetTableState = kNoOffsetTable;
    state.fImageForm = kImageFormNative;
    const std::uint64_t frameSize = NativeFrameSize(state);
    state.fActualFrames = 0;
    if (frameSize == 0)
        return 0;
    const std::uint32_t length = state.fPixelElement ? state[state.fPixelElement].fLength : 0;
    CountNativeFrames(state, valueOffset, length, frameSize);
    QvxIndex head = 0, last = 0;
    const auto size = static_cast<std::uint32_t>(frameSize);
    for (std::uint32_t frame = 0; frame < state.fActualFrames; ++frame) {
        const QvxIndex item = NewItem(state, kVRIndexNativeFrame, *offset, *offset, size);
        if (!item) {
            *error = kQvxOutOfMemory;
            return 0;
        }
        if (last)
            state[last].fNext = item;
        else
            head = item;
        last = item;
        *offset = AdvancedOffset(*offset, size);
    }
    return head;
}

}  // namespace

QvxIndex HandlePixelData(std::uint32_t* offset, ExtraHeaderDataRec& state, int level,
                         QvxStatus* error)
{
    if (state.fNesting > 0) {  // an icon's: its fragments are no frames of this file
        const QvxIndex head = WalkFragments(offset, state, level, error);
        return head;
    }
    if (!state.IsDirectory() && !MapsFrames(state) && state.fNominalFrames != 0)
        return 0;
    QvxElementTag tag;
    std::uint32_t behindTag = *offset;
    // Pixels of fewer than four bytes at the end of a file are no item either.
    const QvxStatus status = ReadTag(state, &behindTag, &tag);
    const bool fewBytes = status == kQvxEndOfFile && *offset < state.fFileSize;
    if (status != kQvxOK && !fewBytes) {
        *offset = behindTag;
        *error = status;
        return 0;
    }
    QvxIndex chain = 0;
    if (status == kQvxOK && tag == kTagItem) {
        *offset = behindTag;
        chain = MapEncapsulated(offset, state, level, error);
    } else {
        chain = MapNative(offset, state, error);
    }
    if (*error == kQvxOK)
        state.fFrameChain = chain;
    return chain;
}

void HangFrameChain(ExtraHeaderDataRec& state, QvxIndex chain)
{
    if (!chain || !state.fPixelElement)
        return;
    HangChildren(state, state.fPixelElement, chain);
    state[state.fPixelElement].fMultiplicity = 1;
}

QvxStatus HandleFrameFragments(ExtraHeaderDataRec& state, std::uint32_t start, std::uint32_t end,
                               QvxFragments* fragments)
{
    if (end > state.fFileSize)
        return kQvxEndOfFile;
    std::uint32_t offset = start;
    QvxIndex last = 0;
    while (offset < end) {
        QvxElementTag tag;
        if (const QvxStatus status = ReadTag(state, &offset, &tag))
            return status;
        if (tag != kTagItem && tag != kTagSequenceEnd)
            return kQvxSeekFailed;
        if (tag == kTagSequenceEnd)
            break;
        std::uint32_t length = 0;
        if (const QvxStatus status = Read_LongU(state.fCallbacks->fReadData, state.fDataRef,
                                                &offset, &length, state.fByteOrder))
            return status;
        if (fragments->fCount++ == 0) {
            fragments->fFirstSize = length;
        } else {
            const QvxIndex item =
                NewItem(state, kVRIndexItem, offset - kItemHeader, offset, length);
            if (!item)
                return kQvxOutOfMemory;
            (last ? state[last].fNext : fragments->fList) = item;
            last = item;
            fragments->fTotalSize = AdvancedOffset(fragments->fTotalSize, kItemHeader);
        }
        fragments->fTotalSize = AdvancedOffset(fragments->fTotalSize, length);
        offset = AdvancedOffset(offset, length);
    }
    return offset > end ? kQvxEndOfFile : kQvxOK;
}

QvxStatus GetOffsetsAndSizesFromImageDataPtr(ExtraHeaderDataRec& state,
                                             std::vector<QvxFrameMapRecord>* rows)
{
    if (!state.fFrameChain)
        return kQvxSeekFailed;
    QvxIndex item = state.fFrameChain;
    if (state.fOffsetTableState != kNoOffsetTable)
        item = state[item].fNext;
    for (; item && rows->size() < state.fActualFrames; item = state[item].fNext) {
        const DicomHeaderDataStruct& frame = state[item];
        if (frame.Tag() == kTagSequenceEnd)
            break;
        QvxFrameMapRecord row{frame.fValueOffset, frame.fLength, 1, frame.fLength};
        if (frame.fContentKind == QvxContent::Children) {
            for (QvxIndex part = frame.fContent; part; part = state[part].fNext) {
                ++row.fFragmentCount;
                row.fSize =
                    AdvancedOffset(row.fSize, AdvancedOffset(state[part].fLength, kItemHeader));
            }
        }
        rows->push_back(row);
    }
    return kQvxOK;
}

QvxStatus GetImageOffsets(ExtraHeaderDataRec& state)
{
    if (state.fFrameMapMade)
        return kQvxOK;
    state.fMaxFrameSize = 0;
    std::vector<QvxFrameMapRecord> rows;
    try {
        if (state.fActualFrames > 0 && !state.IsDirectory()) {
            rows.reserve(state.fActualFrames);
            if (const QvxStatus status = GetOffsetsAndSizesFromImageDataPtr(state, &rows))
                return status;
        }
        if (state.IsDirectory()) {
            for (const ImageFrameDataStruct* icon = state.fFrameList.get(); icon;
                 icon = icon->fNext.get())
                rows.push_back({icon->fOffset, icon->fSize, 1, icon->fSize});
            if (rows.size() != state.fActualFrames)
                return kQvxMalformed;
        }
    } catch (const std::bad_alloc&) {
        return kQvxOutOfMemory;
    }
    for (const QvxFrameMapRecord& row : rows)
        state.fMaxFrameSize = std::max(state.fMaxFrameSize, row.fSize);
    state.fFrameMap = std::move(rows);
    state.fFrameMapMade = true;
    return kQvxOK;
}

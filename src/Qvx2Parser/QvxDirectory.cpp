#include "Qvx2Parser/QvxDirectory.h"

#include "Qvx2Parser/QvxReaderRec.h"
#include <algorithm>
#include <cstring>
#include <new>

namespace {

constexpr QvxElementTag kTagFirstOfRoot{0x0004, 0x1200};
constexpr QvxElementTag kTagRecords{0x0004, 0x1220};
constexpr QvxElementTag kTagNextRecord{0x0004, 0x1400};
constexpr QvxElementTag kTagFirstBelow{0x0004, 0x1420};
constexpr QvxElementTag kTagIconSequence{0x0088, 0x0200};
constexpr QvxElementTag kTagItem{0xFFFE, 0xE000};

bool IsMemoryStatus(QvxStatus status)
{
    return status == kQvxNoMemory || status == kQvxOutOfMemory;
}

// Something in the file's own bytes, not in reading them or in keeping them.
bool IsFaultOfTheFile(QvxStatus status)
{
    return status != kQvxSeekFailed && !IsMemoryStatus(status);
}

// A link's value; none when it isn't UL.
struct Link {
    bool fIsUL = false;
    std::uint32_t fOffset = 0;
};

QvxStatus ReadLink(QvxParserRec* reader, QvxElementRef parent, QvxElementTag tag, Link* link)
{
    QvxElementRef element{};
    if (const QvxStatus status = Qvx2Reader_FindElement(reader, parent, tag, &element))
        return status;
    QvxElementValue value;
    const QvxStatus status = Qvx2Reader_GetElementDataAsValue(reader, element, 1, &value);
    if (status == kQvxOK && value.fType == QvxNumericValueType::UInt32)
        *link = {true, value.fUInt32};
    return status == kQvxWrongVR ? kQvxOK : status;
}

// Lists the records, once for a walk. None, whatever the reason, is no error.
QvxStatus ListRecords(QvxParserRec* reader)
{
    if (reader->fDirectoryRecords != 0)
        return kQvxOK;
    QvxElementRef sequence{};
    QvxIndex index = 0, head = 0;
    if (Qvx2Reader_FindElement(reader, QvxElementRef::None, kTagRecords, &sequence) != kQvxOK ||
        QvxIndexOf(reader, sequence, &index) != kQvxOK)
        return kQvxOK;
    if (const QvxStatus status = QvxChildrenOf(reader, index, 0, &head); IsMemoryStatus(status))
        return status;
    try {
        std::vector<QvxDirectoryRecord> records;
        for (QvxIndex i = head; i; i = (*reader->fState)[i].fNext) {
            if ((*reader->fState)[i].VR() == kVRIndexItem)  // and no closing delimiter
                records.push_back({i, 0});
        }
        records.shrink_to_fit();
        reader->fDirectoryList = std::move(records);
    } catch (const std::bad_alloc&) {
        return kQvxNoMemory;
    }
    reader->fDirectoryRecords = head;
    return kQvxOK;
}

// The record that begins at `offset`, or null. A walk only moves forward, so that records stand in
// the order of their offsets.
QvxDirectoryRecord* RecordAt(QvxParserRec* reader, std::uint32_t offset)
{
    const auto offsetOf = [reader](const QvxDirectoryRecord& record) {
        return (*reader->fState)[record.fRecord].fTagOffset;
    };
    const auto found = std::ranges::lower_bound(reader->fDirectoryList, offset, {}, offsetOf);
    return found != reader->fDirectoryList.end() && offsetOf(*found) == offset ? &*found : nullptr;
}

QvxStatus NewRefs(QvxParserRec* reader, const std::vector<QvxElementRef>& records,
                  QvxElementRefArray* refs)
{
    const std::size_t bytes = records.size() * sizeof(QvxElementRef);
    QvxHandle made = reader->fCallbacks->fNewHandle(static_cast<std::int64_t>(4 + bytes));
    if (made.IsNull())
        return kQvxNoMemory;
    const auto count = static_cast<std::uint32_t>(records.size());
    std::memcpy(made.Data(), &count, sizeof count);
    if (bytes > 0)
        std::memcpy(made.Data() + 4, records.data(), bytes);
    *refs = std::move(made);
    return kQvxOK;
}

// Follows the next links from `record` on.
QvxStatus FollowLevel(QvxParserRec* reader, QvxDirectoryRecord* record,
                      std::vector<QvxElementRef>* records)
{
    const std::uint32_t level = ++reader->fDirectoryLevels;
    while (record && record->fListedBy != level) {
        record->fListedBy = level;
        records->push_back(QvxRefOf(*reader, record->fRecord));
        QvxStatus status = kQvxOK;
        const std::uint32_t next = OffsetOfNextDirRecord(reader, records->back(), &status);
        if (status != kQvxOK)
            return status;
        if (next == 0)
            return kQvxOK;
        record = RecordAt(reader, next);
    }
    return record ? kQvxOK : kQvxNoSuchElement;
}

QvxStatus ListLevel(QvxParserRec* reader, std::uint32_t firstOffset, QvxElementRefArray* refs)
{
    std::vector<QvxElementRef> records;
    if (firstOffset == 0)
        return NewRefs(reader, records, refs);
    if (const QvxStatus status = ListRecords(reader))
        return status;
    QvxDirectoryRecord* const first = RecordAt(reader, firstOffset);
    if (!first)
        return kQvxOK;
    try {
        const QvxStatus status = FollowLevel(reader, first, &records);
        const bool keepsCut = (reader->fOptions & kWalkKeepCutLevels) != 0;
        if (status != kQvxOK && !(keepsCut && IsFaultOfTheFile(status)))
            return status;
    } catch (const std::bad_alloc&) {
        return kQvxNoMemory;
    }
    return NewRefs(reader, records, refs);
}

// Calls `take` with each record's Icon Image Sequence, until a status ends it.
template <typename Take>
QvxStatus ForEachIcon(QvxParserRec* reader, Take take)
{
    QvxElementRef sequence{};
    if (const QvxStatus status =
            Qvx2Reader_FindElement(reader, QvxElementRef::None, kTagRecords, &sequence))
        return status;
    const QvxReaderUse use(reader);
    if (const QvxStatus status = ListRecords(reader))
        return status;
    for (const QvxDirectoryRecord& record : reader->fDirectoryList) {
        QvxElementRef icon{};
        QvxStatus status = Qvx2Reader_FindElement(reader, QvxRefOf(*reader, record.fRecord),
                                                  kTagIconSequence, &icon);
        if (status == kQvxNoSuchElement)
            continue;
        if (status == kQvxOK)
            status = take(icon);
        if (status != kQvxOK)
            return status;
    }
    return kQvxOK;
}

QvxStatus IconRow(QvxParserRec* reader, QvxElementRef icon, QvxFrameMapRecord* row)
{
    QvxElementRef item{}, pixels{};
    if (const QvxStatus status = Qvx2Reader_FindElement(reader, icon, kTagItem, &item))
        return status;
    if (const QvxStatus status = Qvx2Reader_FindElement(reader, item, kTagPixelData, &pixels))
        return status;
    QvxElementDataInfo info;
    if (const QvxStatus status = Qvx2Reader_GetElementDataInfo(reader, pixels, &info))
        return status;
    *row = {info.fValueOffset, info.fDataSize, 1, info.fDataSize};
    return kQvxOK;
}

}  // namespace

QvxStatus Qvx2Reader_GetDIRElementRefs(QvxParserRec* reader, QvxElementRef parent,
                                       QvxElementRefArray* refs)
{
    if (!reader || !refs)
        return kQvxBadArgument;
    *refs = QvxElementRefArray();
    const QvxReaderUse use(reader);
    const bool isRoot = parent == QvxElementRef::None;
    Link first;
    const QvxStatus status =
        ReadLink(reader, parent, isRoot ? kTagFirstOfRoot : kTagFirstBelow, &first);
    if (status == kQvxNoSuchElement && !isRoot && (reader->fOptions & kWalkKeepCutLevels) != 0)
        return NewRefs(reader, {}, refs);
    if (status != kQvxOK || !first.fIsUL)
        return status;
    return ListLevel(reader, first.fOffset, refs);
}

std::uint32_t OffsetOfNextDirRecord(QvxParserRec* reader, QvxElementRef record, QvxStatus* error)
{
    Link next;
    *error = ReadLink(reader, record, kTagNextRecord, &next);
    if (*error == kQvxOK && !next.fIsUL)
        *error = kQvxMalformed;
    return next.fOffset;
}

QvxStatus ParserGetNumDICOMDIRImages(QvxParserRec* reader, std::uint32_t* count)
{
    if (!reader || !count)
        return kQvxBadArgument;
    std::uint32_t icons = 0;
    const QvxStatus status = ForEachIcon(reader, [&icons](QvxElementRef) {
        ++icons;
        return kQvxOK;
    });
    if (status == kQvxOK)
        *count = icons;
    return status;
}

QvxStatus Qvx2Reader_GetDICOMDIRImageOffsetsAndSizes(QvxParserRec* reader, QvxHandle* map)
{
    if (!reader || !map)
        return kQvxBadArgument;
    try {
        std::vector<QvxFrameMapRecord> rows;
        const QvxStatus status = ForEachIcon(reader, [reader, &rows](QvxElementRef icon) {
            QvxFrameMapRecord row;
            const QvxStatus read = IconRow(reader, icon, &row);
            if (read == kQvxOK)
                rows.push_back(row);
            return read;
        });
        return status != kQvxOK ? status : QvxNewFrameMap(*reader, rows, map);
    } catch (const std::bad_alloc&) {
        return kQvxNoMemory;
    }
}

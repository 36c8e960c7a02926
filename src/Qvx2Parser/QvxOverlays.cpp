#include "Qvx2Parser/QvxOverlays.h"

#include "util/ByteOrder.h"

#include "Qvx2Parser/QvxReaderRec.h"
#include <array>
#include <cstring>
#include <new>

namespace {

constexpr std::uint16_t kFirstGroup = 0x6000, kLastGroup = 0x601E;
constexpr std::uint16_t kRows = 0x0010, kColumns = 0x0011, kFrames = 0x0015, kType = 0x0040,
                        kOrigin = 0x0050, kFrameOrigin = 0x0051, kData = 0x3000;

// Value number `index`, a whole number of whatever kind. kQvxUnsupported for other numbers,
// kQvxWrongVR for what is none.
QvxStatus GetNumber(QvxParserRec* reader, std::int32_t index, std::uint16_t group,
                    std::uint16_t element, std::int32_t* number)
{
    QvxElementRef found{};
    QvxElementValue value;
    if (const QvxStatus status =
            Qvx2Reader_FindElement(reader, QvxElementRef::None, {group, element}, &found))
        return status;
    if (const QvxStatus status = Qvx2Reader_GetElementDataAsValue(reader, found, index, &value))
        return status;
    switch (value.fType) {
        case QvxNumericValueType::Int16:
            *number = value.fInt16;
            return kQvxOK;
        case QvxNumericValueType::UInt16:
            *number = value.fUInt16;
            return kQvxOK;
        case QvxNumericValueType::Int32:
        case QvxNumericValueType::UInt32:
            *number = value.fInt32;
            return kQvxOK;
        case QvxNumericValueType::Empty:
            return kQvxNoValue;
        case QvxNumericValueType::Float32:
        case QvxNumericValueType::Float64:
            return kQvxUnsupported;
        default:
            return kQvxWrongVR;
    }
}

// A word that stands there as another kind of number, of IS or UL for one.
QvxStatus GetOddWord(QvxParserRec* reader, std::int32_t index, std::uint16_t group,
                     std::uint16_t element, std::uint16_t* word)
{
    std::int32_t number = 0;
    if (const QvxStatus status = GetNumber(reader, index, group, element, &number))
        return status;
    if (number < INT16_MIN || number > UINT16_MAX)
        return kQvxUnsupported;
    *word = static_cast<std::uint16_t>(number);
    return kQvxOK;
}

// Words of 16 bits by their wanted type; of an element with a VR of no numbers its first bytes.
template <std::size_t kCount>
QvxStatus GetWords(QvxParserRec* reader, std::uint16_t group, std::uint16_t element,
                   QvxNumericValueType wanted, std::array<std::uint16_t, kCount>* words)
{
    std::array<std::uint16_t, kCount> read{};
    for (std::size_t i = 0; i < kCount; ++i) {
        const auto index = static_cast<std::int32_t>(i + 1);
        QvxStatus status = Qvx2_ParserGetElementValue(reader, QvxElementRef::None, group, element,
                                                      index, wanted, &read[i]);
        if (status == kQvxUnsupported)
            status = GetOddWord(reader, index, group, element, &read[i]);
        if (status != kQvxWrongVR && status != kQvxOK)
            return status;
        if (status == kQvxOK)
            continue;
        QvxHandle raw;
        if (const QvxStatus taken =
                Qvx2_ParserGetElementRawData(reader, QvxElementRef::None, group, element, &raw))
            return taken;
        if (raw.Bytes().size() < 2 * kCount)
            return kQvxWrongVR;
        std::uint32_t order = 0;
        const bool big =
            !Qvx2Reader_GetFileMetaInformation(reader, kMetaByteOrder, &order) && order == 1;
        std::array<std::uint8_t, 2 * kCount> bytes{};
        std::memcpy(bytes.data(), raw.Bytes().data(), bytes.size());
        for (std::size_t word = 0; word < kCount; ++word) {
            const std::uint8_t* at = bytes.data() + 2 * word;
            read[word] = big ? LoadBE<std::uint16_t>(at) : LoadLE<std::uint16_t>(at);
        }
        break;
    }
    *words = read;
    return kQvxOK;
}

QvxStatus NewNumbers(const QvxParserRec& reader, const std::vector<std::int32_t>& numbers,
                     QvxHandle* handle)
{
    const std::size_t bytes = numbers.size() * sizeof(std::int32_t);
    QvxHandle made = reader.fCallbacks->fNewHandle(static_cast<std::int64_t>(bytes + 4));
    if (made.IsNull())
        return kQvxNoMemory;
    const auto count = static_cast<std::uint32_t>(numbers.size());
    std::memcpy(made.Data(), &count, sizeof count);
    if (bytes > 0)
        std::memcpy(made.Data() + 4, numbers.data(), bytes);
    *handle = std::move(made);
    return kQvxOK;
}

QvxStatus LiesOnFrame(QvxParserRec* reader, std::uint16_t group, std::uint32_t frame, bool* lies)
{
    std::uint32_t frames = 0;
    if (const QvxStatus status = ParserOverlayGetOverlayNumberofFrames(reader, group, &frames))
        return status;
    std::int32_t origin = 1;
    const QvxStatus status = GetNumber(reader, 1, group, kFrameOrigin, &origin);
    if (status == kQvxNoSuchElement && frame == 1)
        origin = 1;
    else if (status)
        return status;
    const std::int64_t first = origin & 0xFFFF, asked = frame;
    *lies = first <= asked && asked < first + (frames & 0xFFFF);
    return kQvxOK;
}

// Calls `use` with each group and its identifier from 0, until it answers other than kQvxOK.
template <typename Use>
QvxStatus ForGroups(QvxParserRec* reader, Use&& use)
{
    std::uint16_t group = 0;
    if (const QvxStatus status = ParserOverlayGetFirstGroup(reader, &group))
        return status;
    for (std::int32_t identifier = 0; group != 0; ++identifier) {
        if (const QvxStatus status = use(group, identifier))
            return status;
        if (const QvxStatus status = ParserOverlayGetNextGroup(reader, &group))
            return status;
    }
    return kQvxOK;
}

QvxStatus IDsForFrame(QvxParserRec* reader, std::uint32_t frame, std::vector<std::int32_t>* numbers)
{
    return ForGroups(reader, [&](std::uint16_t group, std::int32_t identifier) {
        bool lies = false;
        const QvxStatus status = LiesOnFrame(reader, group, frame, &lies);
        if (!status && lies)
            numbers->push_back(identifier);
        return status;
    });
}

}  // namespace

std::span<const std::int32_t> QvxNumbersOf(const QvxHandle& numbers)
{
    return numbers.Array<std::int32_t>(4);
}

QvxStatus ParserOverlayGetFirstGroup(QvxParserRec* reader, std::uint16_t* group)
{
    std::uint16_t walk = 0;
    const QvxStatus status = ParserOverlayGetNextGroup(reader, group ? &walk : nullptr);
    if (!status)
        *group = walk;
    return status;
}

QvxStatus ParserOverlayGetNextGroup(QvxParserRec* reader, std::uint16_t* group)
{
    if (!reader || !group)
        return kQvxBadArgument;
    unsigned next = *group == 0 ? kFirstGroup : (*group + 2U) & ~1U;
    for (; next <= kLastGroup; next += 2) {
        QvxElementRef found{};
        const QvxElementTag tag{static_cast<std::uint16_t>(next), kType};
        const QvxStatus status = Qvx2Reader_FindElement(reader, QvxElementRef::None, tag, &found);
        if (status != kQvxOK && status != kQvxNoSuchElement)
            return status;
        if (status == kQvxOK)
            break;
    }
    *group = next <= kLastGroup ? static_cast<std::uint16_t>(next) : 0;
    return kQvxOK;
}

QvxStatus Qvx2_ParserOverlayGetOverlayCountForFile(QvxParserRec* reader, std::uint32_t* count)
{
    if (!reader || !count)
        return kQvxBadArgument;
    std::uint32_t groups = 0;
    const QvxStatus status = ForGroups(reader, [&groups](std::uint16_t, std::int32_t) {
        ++groups;
        return kQvxOK;
    });
    if (!status)
        *count = groups;
    return status;
}

QvxStatus Qvx2_ParserOverlayID2Group(QvxParserRec* reader, std::uint32_t identifier,
                                     std::uint16_t* group)
{
    if (!reader || !group)
        return kQvxBadArgument;
    std::uint16_t found = 0;
    const QvxStatus status = ForGroups(reader, [&](std::uint16_t each, std::int32_t at) {
        if (static_cast<std::uint32_t>(at) + 1 == identifier)
            found = each;
        return kQvxOK;
    });
    if (!status)
        *group = found;
    return status;
}

QvxStatus ParserOverlayGroup2ID(QvxParserRec* reader, std::uint16_t group,
                                std::uint32_t* identifier)
{
    if (!reader || !identifier)
        return kQvxBadArgument;
    return ForGroups(reader, [&](std::uint16_t each, std::int32_t at) {
        if (each == group)
            *identifier = static_cast<std::uint32_t>(at);
        return kQvxOK;
    });
}

QvxStatus ParserOverlayGetOverlayNumberofFrames(QvxParserRec* reader, std::uint16_t group,
                                                std::uint32_t* count)
{
    if (!reader || !count)
        return kQvxBadArgument;
    std::int32_t frames = 0;
    const QvxStatus status = GetNumber(reader, 1, group, kFrames, &frames);
    if (status != kQvxOK && status != kQvxNoSuchElement)
        return status;
    *count = status == kQvxOK ? static_cast<std::uint32_t>(frames) : 1;
    return kQvxOK;
}

QvxStatus ParserOverlayGetFrameCountForOverlay(QvxParserRec* reader, std::uint32_t identifier,
                                               std::uint32_t* count)
{
    std::uint16_t group = 0;
    if (const QvxStatus status = Qvx2_ParserOverlayID2Group(reader, identifier, &group))
        return status;
    return ParserOverlayGetOverlayNumberofFrames(reader, group, count);
}

QvxStatus ParserOverlayGetOverlayCountForFrame(QvxParserRec* reader, std::uint32_t frame,
                                               std::uint32_t* count)
{
    if (!reader || !count)
        return kQvxBadArgument;
    try {
        std::vector<std::int32_t> identifiers;
        if (const QvxStatus status = IDsForFrame(reader, frame, &identifiers))
            return status;
        *count = static_cast<std::uint32_t>(identifiers.size());
        return kQvxOK;
    } catch (const std::bad_alloc&) {
        return kQvxNoMemory;
    }
}

QvxStatus ParserOverlayGetOverlayIDsForImageFrame(QvxParserRec* reader, std::uint32_t frame,
                                                  QvxHandle* identifiers)
{
    if (!reader || !identifiers)
        return kQvxBadArgument;
    if (!identifiers->IsNull())
        return kQvxResultNotNull;
    try {
        std::vector<std::int32_t> numbers;
        if (const QvxStatus status = IDsForFrame(reader, frame, &numbers))
            return status;
        return NewNumbers(*reader, numbers, identifiers);
    } catch (const std::bad_alloc&) {
        return kQvxNoMemory;
    }
}

QvxStatus ParserOverlayGetImageIDsForOverlay(QvxParserRec* reader, std::uint32_t identifier,
                                             QvxHandle* frames)
{
    std::uint16_t group = 0;
    if (!frames)
        return kQvxBadArgument;
    if (!frames->IsNull())
        return kQvxResultNotNull;
    if (const QvxStatus status = Qvx2_ParserOverlayID2Group(reader, identifier, &group))
        return status;
    std::int32_t origin = 1, count = 1;
    const QvxStatus status = GetNumber(reader, 1, group, kFrameOrigin, &origin);
    if (status == kQvxNoSuchElement)
        origin = 1;
    else if (status)
        return status;
    else if (const QvxStatus counted = GetNumber(reader, 1, group, kFrames, &count))
        return counted;
    try {
        std::vector<std::int32_t> numbers;
        for (std::int32_t i = 0; i < (count & 0xFFFF); ++i)
            numbers.push_back((origin & 0xFFFF) + i);
        return NewNumbers(*reader, numbers, frames);
    } catch (const std::bad_alloc&) {
        return kQvxNoMemory;
    }
}

QvxStatus Qvx2_ParserOverlayGetDimensionsFromOverlayGroup(QvxParserRec* reader, std::uint16_t group,
                                                          std::uint16_t* columns,
                                                          std::uint16_t* rows)
{
    if (!reader || !columns || !rows)
        return kQvxBadArgument;
    std::array<std::uint16_t, 1> height{}, width{};
    if (const QvxStatus status =
            GetWords(reader, group, kRows, QvxNumericValueType::UInt16, &height))
        return status;
    if (const QvxStatus status =
            GetWords(reader, group, kColumns, QvxNumericValueType::UInt16, &width))
        return status;
    *columns = width[0];
    *rows = height[0];
    return kQvxOK;
}

QvxStatus Qvx2_ParserOverlayGetDimensionsFromOverlayID(QvxParserRec* reader,
                                                       std::uint32_t identifier,
                                                       std::uint16_t* columns, std::uint16_t* rows)
{
    std::uint16_t group = 0;
    if (const QvxStatus status = Qvx2_ParserOverlayID2Group(reader, identifier, &group))
        return status;
    return Qvx2_ParserOverlayGetDimensionsFromOverlayGroup(reader, group, columns, rows);
}

QvxStatus ParserOverlayGetOriginFromOverlayGroup(QvxParserRec* reader, std::uint16_t group,
                                                 std::int16_t* row, std::int16_t* column)
{
    if (!reader || !row || !column)
        return kQvxBadArgument;
    std::array<std::uint16_t, 2> words{};
    if (const QvxStatus status =
            GetWords(reader, group, kOrigin, QvxNumericValueType::Int16, &words))
        return status;
    *row = static_cast<std::int16_t>(words[0] - 1);
    *column = static_cast<std::int16_t>(words[1] - 1);
    return kQvxOK;
}

QvxStatus ParserOverlayGetOriginFromOverlayID(QvxParserRec* reader, std::uint32_t identifier,
                                              std::int16_t* row, std::int16_t* column)
{
    std::uint16_t group = 0;
    if (const QvxStatus status = Qvx2_ParserOverlayID2Group(reader, identifier, &group))
        return status;
    return ParserOverlayGetOriginFromOverlayGroup(reader, group, row, column);
}

namespace {

QvxStatus PlaceOfOverlay(QvxParserRec* reader, std::uint16_t group, std::uint32_t* offset,
                         std::uint32_t* size)
{
    QvxElementRef data{};
    const QvxStatus found =
        Qvx2Reader_FindElement(reader, QvxElementRef::None, {group, kData}, &data);
    if (found == kQvxOK) {
        QvxElementDataInfo info;
        if (const QvxStatus status = Qvx2Reader_GetElementDataInfo(reader, data, &info))
            return status;
        *offset = info.fValueOffset;
        *size = info.fDataSize;
        return kQvxOK;
    }
    if (found != kQvxNoSuchElement)
        return found;
    std::int32_t origin = 1;
    if (GetNumber(reader, 1, group, kFrameOrigin, &origin) != kQvxOK || origin < 1)
        origin = 1;
    QvxFrameMapRecord row;
    if (const QvxStatus status =
            Qvx2Reader_GetFrameMapRecord(reader, static_cast<std::uint32_t>(origin), &row))
        return status;
    *offset = row.fOffset;
    *size = row.fSize;
    return kQvxOK;
}

}  // namespace

QvxStatus ParserOverlayGetOffsetsAndSizesForFile(QvxParserRec* reader,
                                                 std::vector<std::uint32_t>* offsets,
                                                 std::vector<std::uint32_t>* sizes)
{
    if (!reader || !offsets || !sizes)
        return kQvxBadArgument;
    try {
        std::vector<std::uint32_t> starts, lengths;
        if (const QvxStatus status = ForGroups(reader, [&](std::uint16_t group, std::int32_t) {
                std::uint32_t offset = 0, size = 0;
                const QvxStatus placed = PlaceOfOverlay(reader, group, &offset, &size);
                starts.push_back(offset);
                lengths.push_back(size);
                return placed;
            }))
            return status;
        *offsets = std::move(starts);
        *sizes = std::move(lengths);
        return kQvxOK;
    } catch (const std::bad_alloc&) {
        return kQvxNoMemory;
    }
}

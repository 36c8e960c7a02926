#include "Qvx2Parser/QvxImageParams.h"

#include "Qvx2Parser/QvxReaderRec.h"
#include <algorithm>
#include <cstring>
#include <new>
#include <vector>

namespace {

constexpr QvxElementTag kTagSharedGroups{0x5200, 0x9229};
constexpr QvxElementTag kTagFrameGroups{0x5200, 0x9230};
constexpr QvxElementTag kTagFrameVOI{0x0028, 0x9132};
constexpr QvxElementTag kTagWindowCenter{0x0028, 0x1050};
constexpr QvxElementTag kTagWindowWidth{0x0028, 0x1051};
constexpr QvxElementTag kTagApplicableRange{0x0028, 0x6102};
constexpr QvxElementTag kTagMaskFrames{0x0028, 0x6110};

// Item number `index` (from 0) of a sequence below `parent`. kQvxSeekFailed past the last.
QvxStatus FindItem(QvxParserRec* reader, QvxElementRef parent, QvxElementTag tag,
                   std::uint32_t index, QvxElementRef* item)
{
    QvxElementRef sequence{};
    if (const QvxStatus status = Qvx2Reader_FindElement(reader, parent, tag, &sequence))
        return status;
    QvxElementRefArray items;
    if (const QvxStatus status = Qvx2Reader_GetElementRefs(reader, sequence, &items))
        return status;
    const auto refs = QvxRefsOf(items);
    if (index >= refs.size())
        return kQvxSeekFailed;
    *item = refs[index];
    return kQvxOK;
}

// The item with the window, by way of the functional groups in `groups`.
QvxStatus FindWindowItem(QvxParserRec* reader, QvxElementTag groups, std::uint32_t index,
                         QvxElementRef* item)
{
    QvxElementRef group{}, voi{}, center{};
    if (const QvxStatus status = FindItem(reader, QvxElementRef::None, groups, index, &group))
        return status;
    if (const QvxStatus status = FindItem(reader, group, kTagFrameVOI, 0, &voi))
        return status;
    if (const QvxStatus status = Qvx2Reader_FindElement(reader, voi, kTagWindowCenter, &center))
        return status;
    *item = voi;
    return kQvxOK;
}

QvxStatus FindWindowParent(QvxParserRec* reader, std::uint32_t frame, QvxElementRef* parent)
{
    bool enhanced = false;
    if (const QvxStatus status = ParserQueryIsEnhancedMR(reader, &enhanced))
        return status;
    *parent = QvxElementRef::None;
    if (!enhanced)
        return kQvxOK;
    const QvxStatus shared = FindWindowItem(reader, kTagSharedGroups, 0, parent);
    return shared == kQvxNoSuchElement ? FindWindowItem(reader, kTagFrameGroups, frame, parent)
                                       : shared;
}

QvxStatus NumberAt(QvxParserRec* reader, QvxElementRef element, std::int32_t index, float* number)
{
    QvxElementValue value;
    if (const QvxStatus status = Qvx2Reader_GetElementDataAsValue(reader, element, index, &value))
        return status;
    if (value.fType != QvxNumericValueType::Float32)
        return kQvxMalformed;
    *number = value.fFloat32;
    return kQvxOK;
}

QvxStatus ReadWindows(QvxParserRec* reader, std::uint32_t frame, std::vector<QvxVOIParams>* windows)
{
    QvxElementRef parent{}, centers{}, widths{};
    std::int32_t centerCount = 0, widthCount = 0;
    if (const QvxStatus status = FindWindowParent(reader, frame, &parent))
        return status;
    if (const QvxStatus status = Qvx2Reader_FindElement(reader, parent, kTagWindowCenter, &centers))
        return status;
    if (const QvxStatus status = Qvx2Reader_FindElement(reader, parent, kTagWindowWidth, &widths))
        return status;
    if (const QvxStatus status =
            Qvx2Reader_GetElementValueMultiplicity(reader, centers, &centerCount))
        return status;
    if (const QvxStatus status =
            Qvx2Reader_GetElementValueMultiplicity(reader, widths, &widthCount))
        return status;
    for (std::int32_t i = 1; i <= std::min(centerCount, widthCount); ++i) {
        QvxVOIParams window;
        if (const QvxStatus status = NumberAt(reader, centers, i, &window.fCenter))
            return status;
        if (const QvxStatus status = NumberAt(reader, widths, i, &window.fWidth))
            return status;
        windows->push_back(window);
    }
    return kQvxOK;
}

// A handle of `words` and behind them `count` records.
template <typename T>
QvxStatus NewArray(const QvxParserRec& reader, std::initializer_list<std::uint32_t> words,
                   const std::vector<T>& records, QvxHandle* handle)
{
    const std::size_t head = words.size() * sizeof(std::uint32_t);
    const std::size_t bytes = records.size() * sizeof(T);
    QvxHandle made = reader.fCallbacks->fNewHandle(static_cast<std::int64_t>(head + bytes));
    if (made.IsNull())
        return kQvxNoMemory;
    std::memcpy(made.Data(), words.begin(), head);
    if (bytes > 0)
        std::memcpy(made.Data() + head, records.data(), bytes);
    *handle = std::move(made);
    return kQvxOK;
}

// All values of a US element of an item.
QvxStatus ReadWords(QvxParserRec* reader, QvxElementRef item, QvxElementTag tag,
                    std::vector<std::uint16_t>* words)
{
    QvxElementRef element{};
    std::int32_t count = 0;
    if (const QvxStatus status = Qvx2Reader_FindElement(reader, item, tag, &element))
        return status;
    if (const QvxStatus status = Qvx2Reader_GetElementValueMultiplicity(reader, element, &count))
        return status;
    for (std::int32_t i = 1; i <= count; ++i) {
        QvxElementValue value;
        if (const QvxStatus status = Qvx2Reader_GetElementDataAsValue(reader, element, i, &value))
            return status;
        if (value.fType != QvxNumericValueType::UInt16)
            return kQvxWrongVR;
        words->push_back(value.fUInt16);
    }
    return words->empty() ? kQvxNoValue : kQvxOK;
}

}  // namespace

QvxStatus ParserGetVOIParamsArray(QvxParserRec* reader, std::uint32_t frame, QvxHandle* params)
{
    if (!reader || !params)
        return kQvxBadArgument;
    if (!params->IsNull())
        return kQvxResultNotNull;
    try {
        std::vector<QvxVOIParams> windows;
        QvxStatus status = ReadWindows(reader, frame, &windows);
        if (status == kQvxNoSuchElement) {
            windows.clear();
            status = kQvxOK;
        }
        if (status)
            return status;
        return NewArray(*reader, {static_cast<std::uint32_t>(windows.size())}, windows, params);
    } catch (const std::bad_alloc&) {
        return kQvxNoMemory;
    }
}

std::span<const QvxVOIParams> QvxVOIParamsOf(const QvxHandle& params)
{
    return params.Array<QvxVOIParams>(4);
}

QvxStatus GetMaskFrameNumberRange(QvxParserRec* reader, QvxElementRef maskItem,
                                  std::uint16_t* first, std::uint16_t* last)
{
    if (!reader || !first || !last)
        return kQvxBadArgument;
    try {
        std::vector<std::uint16_t> frames;
        if (const QvxStatus status = ReadWords(reader, maskItem, kTagMaskFrames, &frames))
            return status;
        *first = frames.front();
        *last = frames.back();
        return kQvxOK;
    } catch (const std::bad_alloc&) {
        return kQvxNoMemory;
    }
}

QvxStatus GetApplicableFrameRanges(QvxParserRec* reader, QvxElementRef maskItem, QvxHandle* ranges)
{
    if (!reader || !ranges)
        return kQvxBadArgument;
    if (!ranges->IsNull())
        return kQvxResultNotNull;
    try {
        std::vector<std::uint16_t> words;
        if (const QvxStatus status = ReadWords(reader, maskItem, kTagApplicableRange, &words))
            return status;
        std::vector<QvxFrameRange> pairs;
        for (std::size_t i = 0; i + 1 < words.size(); i += 2)
            pairs.push_back({words[i], words[i + 1]});
        return NewArray(*reader,
                        {static_cast<std::uint32_t>(pairs.size()),
                         static_cast<std::uint32_t>(sizeof(QvxFrameRange))},
                        pairs, ranges);
    } catch (const std::bad_alloc&) {
        return kQvxNoMemory;
    }
}

std::span<const QvxFrameRange> QvxFrameRangesOf(const QvxHandle& ranges)
{
    return ranges.Array<QvxFrameRange>(8);
}

#include "dicom_core/values/ParserTiming.h"

#include "dicom_core/values/ParserValues.h"
#include "dicom_core/values/ValueList.h"
#include "util/ByteOrder.h"

#include <algorithm>
#include <array>
#include <optional>

namespace {

constexpr QvxElementTag kTagDisplayFrameRate{0x0008, 0x2144};
constexpr QvxElementTag kTagCineRate{0x0018, 0x0040};
constexpr QvxElementTag kTagFrameTime{0x0018, 0x1063};
constexpr QvxElementTag kTagFrameTimeVector{0x0018, 0x1065};
constexpr QvxElementTag kTagFrameDuration{0x0018, 0x1242};
constexpr QvxElementTag kTagFrameIncrementPointer{0x0028, 0x0009};

constexpr QvxElementTag kTagNumberOfFrames{0x0028, 0x0008};
constexpr QvxElementTag kTagCineType{0x0018, 0x1244};
constexpr QvxElementTag kTagRepresentativeFrame{0x0028, 0x6010};

// No file has as many frames; four bytes for each backslash of a hostile one are too many.
constexpr std::int32_t kMaxFrameTimes = 1 << 24;

constexpr std::uint32_t kOffsetTableEntry = 4;  // bytes for one frame
constexpr std::int32_t kNoCineType = -2;

// Bytes of the first item of encapsulated pixels; 0 if there is none. Read from the file: as long
// as the frames aren't mapped, the reader has no element for the item.
std::uint32_t OffsetTableSize(ParserHandle parser)
{
    const ExtraHeaderDataRec* state = Qvx2Reader_State(parser);
    std::array<std::byte, 4> length{};
    if (!state || state->fImageForm != kImageFormEncapsulated ||
        state->fOffsetTableOffset < length.size() ||
        Qvx2Reader_ReadData(parser, length.data(),
                            state->fOffsetTableOffset - std::uint32_t{length.size()},
                            std::uint32_t{length.size()}))
        return 0;
    const auto size = state->fByteOrder == 1 ? LoadBE<std::uint32_t>(length.data())
                                             : LoadLE<std::uint32_t>(length.data());
    return size != kUndefinedLength ? size : 0;
}

// A 16-bit whole number other than 0, or nothing.
std::optional<float> WholeNumber(ParserHandle parser, QvxElementTag tag)
{
    std::int32_t number = 0;
    if (Parser_GetElementValueAsLong(parser, QvxElementRef::None, tag.group, tag.element, 1,
                                     &number))
        return std::nullopt;
    const auto cut = static_cast<std::int16_t>(number);
    return cut != 0 ? std::optional<float>(cut) : std::nullopt;
}

QvxStatus SingleTime(ParserHandle parser, zelFrameTimes* times)
{
    const QvxStatus status = Parser_GetSingleFrameTime(parser, &times->fSingle);
    if (!status)
        times->fCount = 1;
    return status;
}

QvxStatus VectorTimes(ParserHandle parser, zelFrameTimes* times)
{
    const QvxStatus status = Parser_GetMultipleTimes(parser, &times->fVector);
    if (status)
        return status;
    times->fCount = static_cast<std::int32_t>(times->fVector.size());
    return kQvxOK;
}

}  // namespace

QvxStatus Parser_GetFrameIncrementPointer(ParserHandle parser, std::uint16_t* group,
                                          std::uint16_t* element)
{
    if (!parser || !group || !element)
        return kQvxBadArgument;
    QvxElementRef found = QvxElementRef::None;
    if (const QvxStatus status =
            Qvx2Reader_FindElement(parser, QvxElementRef::None, kTagFrameIncrementPointer, &found))
        return status;
    QvxElementValue value;
    if (const QvxStatus status = Qvx2Reader_GetElementDataAsValue(parser, found, 1, &value))
        return status;
    if (value.fType != QvxNumericValueType::Tag)
        return kQvxNoValue;
    *group = value.fTag[0];
    *element = value.fTag[1];
    return kQvxOK;
}

QvxStatus Parser_GetFrameTimeVector(ParserHandle parser, std::vector<float>* vector)
{
    if (!parser || !vector)
        return kQvxBadArgument;
    vector->clear();
    QvxElementRef element = QvxElementRef::None;
    if (const QvxStatus status =
            Qvx2Reader_FindElement(parser, QvxElementRef::None, kTagFrameTimeVector, &element))
        return status;
    return Parser_GetElementValuesAsFloats(parser, element, kMaxFrameTimes, vector);
}

QvxStatus Parser_GetSingleFrameTime(ParserHandle parser, float* time)
{
    if (!parser || !time)
        return kQvxBadArgument;
    return Qvx2_ParserGetElementValue(parser, QvxElementRef::None, kTagFrameTime.group,
                                      kTagFrameTime.element, 1, QvxNumericValueType::Float32, time);
}

QvxStatus Parser_GetMultipleTimes(ParserHandle parser, std::vector<float>* vector)
{
    if (const QvxStatus status = Parser_GetFrameTimeVector(parser, vector))
        return status;
    if (vector->size() > 1 && vector->front() == 0)
        std::shift_left(vector->begin(), vector->end(), 1);
    return kQvxOK;
}

bool Parser_GetDisplayRateTime(ParserHandle parser, float* time)
{
    for (const QvxElementTag rate : {kTagDisplayFrameRate, kTagCineRate})
        if (const auto perSecond = WholeNumber(parser, rate)) {
            *time = 1000.0F / *perSecond;
            return true;
        }
    return false;
}

QvxStatus Parser_GetFrameTimes(ParserHandle parser, zelFrameTimes* times)
{
    if (!parser || !times)
        return kQvxBadArgument;
    *times = {};
    if (Parser_GetDisplayRateTime(parser, &times->fSingle)) {
        times->fCount = 1;
        return kQvxOK;
    }
    if (const auto duration = WholeNumber(parser, kTagFrameDuration)) {
        times->fCount = 1;
        times->fSingle = *duration;
        return kQvxOK;
    }
    std::uint16_t group = 0, element = 0;
    const bool pointed = !Parser_GetFrameIncrementPointer(parser, &group, &element);
    const bool singleFirst = !pointed || QvxElementTag{group, element} == kTagFrameTime;
    if (!(singleFirst ? SingleTime(parser, times) : VectorTimes(parser, times)))
        return kQvxOK;
    return singleFirst ? VectorTimes(parser, times) : SingleTime(parser, times);
}

QvxStatus Parser_GetNumberOfFrames(ParserHandle parser, std::int32_t* count)
{
    if (!parser || !count)
        return kQvxBadArgument;
    std::int32_t stated = 0;
    if (!Parser_GetElementValueAsLong(parser, QvxElementRef::None, kTagNumberOfFrames.group,
                                      kTagNumberOfFrames.element, 1, &stated)) {
        *count = stated < 0 ? 1 : stated;
        return kQvxOK;
    }
    QvxElementRef pixels = QvxElementRef::None;
    const QvxStatus status =
        Qvx2Reader_FindElement(parser, QvxElementRef::None, kTagPixelData, &pixels);
    if (status == kQvxNoSuchElement) {
        *count = 0;
        return kQvxOK;
    }
    if (status)
        return status;
    const std::uint32_t table = OffsetTableSize(parser);
    std::uint32_t explicitVR = 0;
    const bool counts = table > 0 &&
                        !Qvx2Reader_GetFileMetaInformation(parser, kMetaExplicitVR, &explicitVR) &&
                        explicitVR == 1;
    *count = counts ? static_cast<std::uint16_t>(table / kOffsetTableEntry) : 1;
    return kQvxOK;
}

std::int32_t Parser_GetDefaultCineType(ParserHandle parser)
{
    std::uint16_t sequencing = 0;
    if (Qvx2_ParserGetElementValue(parser, QvxElementRef::None, kTagCineType.group,
                                   kTagCineType.element, 1, QvxNumericValueType::UInt16,
                                   &sequencing))
        return kNoCineType;
    return sequencing + 1;
}

std::int32_t Parser_GetRepresentativeFrameNumber(ParserHandle parser)
{
    std::int32_t frame = 0;
    if (Parser_GetElementValueAsLong(parser, QvxElementRef::None, kTagRepresentativeFrame.group,
                                     kTagRepresentativeFrame.element, 1, &frame))
        return 0;
    return frame;
}

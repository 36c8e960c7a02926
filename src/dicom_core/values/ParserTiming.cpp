#include "dicom_core/values/ParserTiming.h"

#include "dicom_core/values/ParserValues.h"

#include "Qvx2Parser/QvxDecimal.h"
#include <algorithm>
#include <new>
#include <optional>
#include <string_view>

namespace {

constexpr QvxElementTag kTagDisplayFrameRate{0x0008, 0x2144};
constexpr QvxElementTag kTagCineRate{0x0018, 0x0040};
constexpr QvxElementTag kTagFrameTime{0x0018, 0x1063};
constexpr QvxElementTag kTagFrameTimeVector{0x0018, 0x1065};
constexpr QvxElementTag kTagFrameDuration{0x0018, 0x1242};
constexpr QvxElementTag kTagFrameIncrementPointer{0x0028, 0x0009};

// No file has as many frames; four bytes for each backslash of a hostile one are too many.
constexpr std::ptrdiff_t kMaxFrameTimes = 1 << 24;

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

// One pass over the text, so that the cost doesn't grow with the square of the count.
QvxStatus SplitDecimals(std::string_view text, std::vector<float>* numbers)
{
    text = text.substr(0, text.find('\0'));
    const auto count = std::ranges::count(text, '\\') + 1;
    if (count > kMaxFrameTimes)
        return kQvxBadMultiplicity;
    numbers->reserve(static_cast<std::size_t>(count));
    for (std::size_t start = 0;;) {
        const std::size_t end = text.find('\\', start);
        numbers->push_back(QvxDecimalToFloat(text.substr(start, end - start)));
        if (end == std::string_view::npos)
            return kQvxOK;
        start = end + 1;
    }
}

// For a vector that is binary, against the standard: each value is found at once.
void ReadNumbers(ParserHandle parser, QvxElementRef element, std::int32_t count,
                 std::vector<float>* numbers)
{
    for (std::int32_t index = 1; index <= count; ++index) {
        QvxElementValue value;
        float number = 0;
        std::int32_t whole = 0;
        if (!Qvx2Reader_GetElementDataAsValue(parser, element, index, &value) &&
            value.fType == QvxNumericValueType::Float32)
            number = value.fFloat32;
        else if (!Parser_GetElementValueAsLong(parser, element, index, &whole))
            number = static_cast<float>(whole);
        numbers->push_back(number);
    }
}

QvxStatus FillVector(ParserHandle parser, std::vector<float>* vector)
{
    QvxElementRef element = QvxElementRef::None;
    if (const QvxStatus status =
            Qvx2Reader_FindElement(parser, QvxElementRef::None, kTagFrameTimeVector, &element))
        return status;
    QvxElementDataInfo info;
    if (const QvxStatus status = Qvx2Reader_GetElementDataInfo(parser, element, &info))
        return status;
    if (info.fMultiplicity < 1)
        return kQvxOK;
    if (info.fVR != QvxVROfIndex(kVRIndexDS)) {
        ReadNumbers(parser, element, info.fMultiplicity, vector);
        return kQvxOK;
    }
    QvxHandle text;
    if (const QvxStatus status =
            Qvx2_ParserGetElementRawData(parser, QvxElementRef::None, kTagFrameTimeVector.group,
                                         kTagFrameTimeVector.element, &text))
        return status;
    return SplitDecimals(text.Text(), vector);
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
    try {
        return FillVector(parser, vector);
    } catch (const std::bad_alloc&) {
        vector->clear();
        return kQvxNoMemory;
    }
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

QvxStatus Parser_GetFrameTimes(ParserHandle parser, zelFrameTimes* times)
{
    if (!parser || !times)
        return kQvxBadArgument;
    *times = {};
    for (const QvxElementTag rate : {kTagDisplayFrameRate, kTagCineRate})
        if (const auto perSecond = WholeNumber(parser, rate)) {
            times->fCount = 1;
            times->fSingle = 1000.0F / *perSecond;
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

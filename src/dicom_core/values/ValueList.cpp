#include "dicom_core/values/ValueList.h"

#include "dicom_core/values/ParserValues.h"

#include "Qvx2Parser/QvxDecimal.h"
#include <algorithm>
#include <limits>
#include <new>

namespace {

constexpr std::uint32_t kWholeText = std::numeric_limits<std::uint32_t>::max();

void TakeNumber(ParserHandle parser, QvxElementRef element, std::int32_t index, float* number)
{
    QvxElementValue value;
    std::int32_t whole = 0;
    if (!Qvx2Reader_GetElementDataAsValue(parser, element, index, &value) &&
        value.fType == QvxNumericValueType::Float32)
        *number = value.fFloat32;
    else if (!Parser_GetElementValueAsLong(parser, element, index, &whole))
        *number = static_cast<float>(whole);
}

void TakeNumber(ParserHandle parser, QvxElementRef element, std::int32_t index,
                std::int32_t* number)
{
    if (Parser_GetElementValueAsLong(parser, element, index, number))
        *number = 0;
}

void TakeText(std::string_view text, bool decimal, float* number)
{
    *number = decimal ? QvxDecimalToFloat(text) : static_cast<float>(QvxDecimalToInt(text));
}

void TakeText(std::string_view text, bool decimal, std::int32_t* number)
{
    *number = decimal ? CutToLong(QvxDecimalToFloat(text)) : QvxDecimalToInt(text);
}

template <typename Number>
QvxStatus FillList(ParserHandle parser, QvxElementRef element, std::int32_t maximum,
                   std::vector<Number>* values)
{
    QvxElementDataInfo info;
    if (const QvxStatus status = Qvx2Reader_GetElementDataInfo(parser, element, &info))
        return status;
    const auto count = static_cast<std::size_t>(std::clamp(info.fMultiplicity, 0, maximum));
    std::vector<Number> taken;
    const bool decimal = info.fVR == QvxVROfIndex(kVRIndexDS);
    if (decimal || info.fVR == QvxVROfIndex(kVRIndexIS)) {
        std::string text;
        if (const QvxStatus status = TextOfElement(parser, element, kWholeText, &text))
            return status;
        taken.reserve(count);
        if (count > 0)
            ForEachValue(text, [&](std::string_view value) {
                TakeText(value, decimal, &taken.emplace_back());
                return taken.size() < count;
            });
    } else {  // binary, against the standard: each value is found at once
        taken.resize(count);
        for (std::size_t i = 0; i < count; ++i)
            TakeNumber(parser, element, static_cast<std::int32_t>(i + 1), &taken[i]);
    }
    *values = std::move(taken);
    return kQvxOK;
}

template <typename Number>
QvxStatus ListOf(ParserHandle parser, QvxElementRef element, std::int32_t maximum,
                 std::vector<Number>* values)
{
    if (!parser || !values)
        return kQvxBadArgument;
    try {
        return FillList(parser, element, maximum, values);
    } catch (const std::bad_alloc&) {
        return kQvxNoMemory;
    }
}

}  // namespace

QvxStatus TextOfElement(ParserHandle parser, QvxElementRef element, std::uint32_t maximum,
                        std::string* text)
{
    if (!parser || !text)
        return kQvxBadArgument;
    // Asking for it reads the value: what a file claims and doesn't have ends here.
    QvxElementDataInfo info;
    if (const QvxStatus status = Qvx2Reader_GetElementDataInfo(parser, element, &info))
        return status;
    if (info.fDataSize == kUndefinedLength)
        return kQvxWrongVR;
    try {
        std::string taken(std::min(info.fDataSize, maximum), '\0');
        if (const QvxStatus status =
                Qvx2Reader_GetElementData(parser, element, maximum, taken.data()))
            return status;
        *text = std::move(taken);
        return kQvxOK;
    } catch (const std::bad_alloc&) {
        return kQvxNoMemory;
    }
}

bool ElementHasValue(ParserHandle parser, QvxElementRef element, std::string_view wanted)
{
    std::string text;
    if (TextOfElement(parser, element, kWholeText, &text))
        return false;
    bool found = false;
    ForEachValue(text, [&](std::string_view value) {
        const std::size_t last = value.find_last_not_of(std::string_view(" \0", 2));
        found = last != std::string_view::npos && value.substr(0, last + 1) == wanted;
        return !found;
    });
    return found;
}

QvxStatus Parser_GetElementValuesAsFloats(ParserHandle parser, QvxElementRef element,
                                          std::int32_t maximum, std::vector<float>* values)
{
    return ListOf(parser, element, maximum, values);
}

QvxStatus Parser_GetElementValuesAsLongs(ParserHandle parser, QvxElementRef element,
                                         std::int32_t maximum, std::vector<std::int32_t>* values)
{
    return ListOf(parser, element, maximum, values);
}

#include "dicom_core/values/ParserValues.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

// The number as it was stored; kQvxUnsupported for what is none.
QvxStatus NumberOf(const QvxElementValue& value, std::int32_t* number)
{
    switch (value.fType) {
        case QvxNumericValueType::Int16:
            *number = value.fInt16;
            return kQvxOK;
        case QvxNumericValueType::UInt16:
            *number = value.fUInt16;
            return kQvxOK;
        case QvxNumericValueType::Int8:
        case QvxNumericValueType::UInt8:
        case QvxNumericValueType::Int32:
            *number = value.fInt32;
            return kQvxOK;
        // Kept bit for bit: a count that large is read as an unsigned word by who expects one.
        case QvxNumericValueType::UInt32:
            *number = static_cast<std::int32_t>(value.fUInt32);
            return kQvxOK;
        case QvxNumericValueType::Float32:
            *number = CutToLong(value.fFloat32);
            return kQvxOK;
        case QvxNumericValueType::Float64:
            *number = CutToLong(value.fFloat64);
            return kQvxOK;
        default:
            return kQvxUnsupported;
    }
}

}  // namespace

std::int32_t CutToLong(double value)
{
    using Limits = std::numeric_limits<std::int32_t>;
    if (std::isnan(value))
        return 0;
    return static_cast<std::int32_t>(
        std::clamp(value, static_cast<double>(Limits::min()), static_cast<double>(Limits::max())));
}

QvxStatus Parser_GetElementValueAsLong(ParserHandle parser, QvxElementRef element,
                                       std::int32_t index, std::int32_t* result)
{
    if (!result)
        return kQvxBadArgument;
    *result = 0;
    QvxElementValue value;
    if (const QvxStatus status = Qvx2Reader_GetElementDataAsValue(parser, element, index, &value))
        return status;
    return NumberOf(value, result);
}

QvxStatus Parser_GetElementValueAsLong(ParserHandle parser, QvxElementRef parent,
                                       std::uint16_t group, std::uint16_t element,
                                       std::int32_t index, std::int32_t* result)
{
    if (!result)
        return kQvxBadArgument;
    *result = 0;
    QvxElementRef found = QvxElementRef::None;
    if (const QvxStatus status = Qvx2Reader_FindElement(parser, parent, {group, element}, &found))
        return status;
    return Parser_GetElementValueAsLong(parser, found, index, result);
}

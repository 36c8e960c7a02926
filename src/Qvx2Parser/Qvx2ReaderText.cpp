// Values as text, and the operations by tag.
#include "Qvx2Parser/QvxReaderRec.h"
#include <algorithm>
#include <bit>
#include <cstdio>
#include <cstring>
#include <string>

namespace {

QvxStatus NewText(QvxParserRec* reader, std::string_view text, QvxHandle* handle)
{
    QvxHandle made = reader->fCallbacks->fNewHandle(static_cast<std::int64_t>(text.size()));
    if (made.IsNull())
        return reader->fCallbacks->fMemError();
    reader->fCallbacks->fBlockMoveData(text.data(), made.Data(),
                                       static_cast<std::int64_t>(text.size()));
    *handle = std::move(made);
    return kQvxOK;
}

QvxStatus TextValue(QvxParserRec* reader, const DicomHeaderDataStruct& element, std::int32_t number,
                    QvxHandle* handle)
{
    if (element.fContentKind != QvxContent::Block || element.fContent == 0)
        return kQvxNoValue;
    const std::string_view whole(
        reinterpret_cast<const char*>(reader->fState->fArena.Block(element.fContent)),
        element.fLength);
    std::uint32_t start = 0, size = 0;
    if (const QvxStatus status = IndexedRetrieveFromVariableLengthElemVector(
            whole, element.fMultiplicity, number, &start, &size))
        return status;
    if (size == 0)
        return kQvxNoValue;
    std::string text(whole.substr(start, size));
    if (element.VR() == kVRIndexUI && text.ends_with('\0'))
        text.pop_back();
    if (element.VR() == kVRIndexDA)
        std::erase(text, '.');
    if (element.VR() == kVRIndexTM)
        std::erase(text, ':');
    return NewText(reader, text, handle);
}

QvxStatus NumberText(QvxParserRec* reader, QvxElementRef element, std::int32_t index,
                     QvxHandle* handle)
{
    QvxElementValue value;
    if (const QvxStatus status = Qvx2Reader_GetElementDataAsValue(reader, element, index, &value))
        return status;
    char text[400];  // the longest double in %f
    switch (value.fType) {
        case QvxNumericValueType::Int32:
            std::snprintf(text, sizeof text, "%d", value.fInt32);
            break;
        case QvxNumericValueType::UInt32:
            std::snprintf(text, sizeof text, "%u", value.fUInt32);
            break;
        case QvxNumericValueType::Int16:
            std::snprintf(text, sizeof text, "%hd", value.fInt16);
            break;
        case QvxNumericValueType::UInt16:
            std::snprintf(text, sizeof text, "%hu", value.fUInt16);
            break;
        case QvxNumericValueType::Float32:
            std::snprintf(text, sizeof text, "%f", static_cast<double>(value.fFloat32));
            break;
        case QvxNumericValueType::Float64:
            std::snprintf(text, sizeof text, "%f", value.fFloat64);
            break;
        default:
            return kQvxWrongVR;
    }
    if (value.fType == QvxNumericValueType::Float32 || value.fType == QvxNumericValueType::Float64)
        std::replace(text, text + std::strlen(text), ',', '.');  // whatever the locale
    return NewText(reader, text, handle);
}

QvxStatus BinaryText(QvxParserRec* reader, QvxElementRef element, std::int32_t index, QvxVRIndex vr,
                     QvxHandle* handle)
{
    if (vr != kVRIndexAT)
        return NewText(reader, {}, handle);
    QvxElementValue value;
    if (const QvxStatus status = Qvx2Reader_GetElementDataAsValue(reader, element, index, &value))
        return status;
    char text[48];
    std::snprintf(text, sizeof text, "Group: 0x%04x, Element: 0x%04x", value.fTag[0],
                  value.fTag[1]);
    return NewText(reader, text, handle);
}

}  // namespace

QvxStatus Qvx2Reader_GetElementDataAsText(QvxParserRec* reader, QvxElementRef element,
                                          std::int32_t index, QvxHandle* text)
{
    if (!text)
        return kQvxBadArgument;
    QvxIndex at = 0;
    if (const QvxStatus status = QvxIndexOf(reader, element, &at))
        return status;
    *text = QvxHandle();
    if (const QvxStatus status = QvxEnsureValue(reader, at))
        return status;
    const DicomHeaderDataStruct read = (*reader->fState)[at];
    if (read.VR() == kVRIndexSQ || IsItemMarker(read.VR()))
        return kQvxWrongVR;
    if (read.fLength == 0) {
        if (index < 1 || index > std::max(read.fMultiplicity, 1))
            return kQvxBadValueIndex;
        return NewText(reader, {}, text);
    }
    if (index < 1 || index > read.fMultiplicity)
        return read.fMultiplicity <= 0 && index == 1 ? kQvxBadMultiplicity : kQvxBadValueIndex;
    switch (GetElementSuperType(read.VR())) {
        case QvxSuperType::Text:
            return TextValue(reader, read, index - 1, text);
        case QvxSuperType::Numeric:
            return NumberText(reader, element, index, text);
        default:
            return BinaryText(reader, element, index, read.VR(), text);
    }
}

QvxStatus Qvx2Reader_GetPlainText(QvxParserRec* reader, QvxElementRef element,
                                  std::string_view* text)
{
    if (!text)
        return kQvxBadArgument;
    QvxIndex at = 0;
    if (const QvxStatus status = QvxIndexOf(reader, element, &at))
        return status;
    if (const QvxStatus status = QvxEnsureValue(reader, at))
        return status;
    const DicomHeaderDataStruct& read = (*reader->fState)[at];
    if (read.fMultiplicity != 1 || read.fContentKind != QvxContent::Block || read.fContent == 0 ||
        read.fLength == 0 || GetElementSuperType(read.VR()) != QvxSuperType::Text)
        return kQvxUnsupported;
    std::string_view value(
        reinterpret_cast<const char*>(reader->fState->fArena.Block(read.fContent)), read.fLength);
    if (read.VR() == kVRIndexUI && value.ends_with('\0'))
        value.remove_suffix(1);
    if ((read.VR() == kVRIndexDA && value.find('.') != std::string_view::npos) ||
        (read.VR() == kVRIndexTM && value.find(':') != std::string_view::npos))
        return kQvxUnsupported;
    *text = value;
    return kQvxOK;
}

QvxStatus Qvx2_ParserGetElementValue(QvxParserRec* reader, QvxElementRef parent,
                                     std::uint16_t group, std::uint16_t element, std::int32_t index,
                                     QvxNumericValueType wanted, void* dest)
{
    if (!dest)
        return kQvxNoDestination;
    QvxElementRef found{};
    if (const QvxStatus status = Qvx2Reader_FindElement(reader, parent, {group, element}, &found))
        return status;
    QvxElementValue value;
    if (const QvxStatus status = Qvx2Reader_GetElementDataAsValue(reader, found, index, &value))
        return status;
    if (value.fType == QvxNumericValueType::Empty)
        return kQvxNoValue;
    if (value.fType != wanted)
        return kQvxUnsupported;
    switch (wanted) {
        case QvxNumericValueType::Int16:
        case QvxNumericValueType::UInt16:
            std::memcpy(dest, &value.fUInt16, 2);
            return kQvxOK;
        case QvxNumericValueType::Int32:
        case QvxNumericValueType::UInt32:
        case QvxNumericValueType::Float32:
        case QvxNumericValueType::Tag:
            std::memcpy(dest, &value.fUInt32, 4);
            return kQvxOK;
        case QvxNumericValueType::Float64:
            std::memcpy(dest, &value.fFloat64, 8);
            return kQvxOK;
        default:
            return kQvxUnsupported;
    }
}

QvxStatus Qvx2_ParserGetElementRawData(QvxParserRec* reader, QvxElementRef parent,
                                       std::uint16_t group, std::uint16_t element, QvxHandle* data)
{
    if (!data)
        return kQvxBadArgument;
    QvxElementRef found{};
    if (const QvxStatus status = Qvx2Reader_FindElement(reader, parent, {group, element}, &found))
        return status;
    std::uint32_t size = 0;
    if (const QvxStatus status = Qvx2Reader_GetElementDataSize(reader, found, &size))
        return status;
    if (size > reader->fFileSize && size > reader->fState->fFileSize)
        return kQvxBadArgument;  // undefined, or more than there is
    QvxHandle made = reader->fCallbacks->fNewHandle(size);
    if (made.IsNull())
        return kQvxNoMemory;
    if (size > 0) {
        if (const QvxStatus status = Qvx2Reader_GetElementData(reader, found, size, made.Data()))
            return status;
    }
    *data = std::move(made);
    return kQvxOK;
}

QvxStatus ParserGetElementDataAsText(QvxParserRec* reader, QvxElementRef parent,
                                     std::uint16_t group, std::uint16_t element, std::int32_t index,
                                     QvxHandle* text)
{
    QvxElementRef found{};
    if (const QvxStatus status = Qvx2Reader_FindElement(reader, parent, {group, element}, &found))
        return status;
    return Qvx2Reader_GetElementDataAsText(reader, found, index, text);
}

QvxStatus ParserGetElementDataAsCString(QvxParserRec* reader, QvxElementRef parent,
                                        std::uint16_t group, std::uint16_t element,
                                        std::int32_t index, QvxHandle* text)
{
    QvxHandle made;
    if (const QvxStatus status =
            ParserGetElementDataAsText(reader, parent, group, element, index, &made))
        return status;
    // What a block gains in size is zero: the terminator.
    reader->fCallbacks->fSetHandleSize(made, reader->fCallbacks->fGetHandleSize(made) + 1);
    if (const QvxStatus status = reader->fCallbacks->fMemError())
        return status;
    *text = std::move(made);
    return kQvxOK;
}

QvxStatus ParserQueryIsEnhancedMR(QvxParserRec* reader, bool* answer)
{
    QvxHandle uid;
    const QvxStatus status =
        ParserGetElementDataAsText(reader, QvxElementRef::None, 0x0008, 0x0016, 1, &uid);
    if (status != kQvxOK && status != kQvxNoSuchElement)
        return status;
    *answer = status == kQvxOK && uid.Text() == "1.2.840.10008.5.1.4.1.1.4.1";
    return kQvxOK;
}

#include "QvxToolkit/QvxHeaderValue.h"

#include "util/ByteOrder.h"
#include "util/CheckedMath.h"

#include "Qvx2Parser/QvxDecimal.h"
#include <cmath>

namespace {

std::optional<double> NumberOfText(QvxParserRec* reader, QvxElementRef element, std::int32_t index)
{
    QvxHandle text;
    if (Qvx2Reader_GetElementDataAsText(reader, element, index, &text) != kQvxOK)
        return std::nullopt;
    if (text.Text().find_first_of("0123456789") == std::string_view::npos)
        return std::nullopt;
    return QvxDecimalToDouble(text.Text());
}

// Of bytes without a numeric VR: UN, or what was written as OB or OW.
std::optional<double> NumberOfBytes(QvxParserRec* reader, QvxElementRef element)
{
    std::uint32_t size = 0, order = 0;
    std::byte bytes[4] = {};
    if (Qvx2Reader_GetElementDataSize(reader, element, &size) != kQvxOK ||
        (size != 2 && size != 4) ||
        Qvx2Reader_GetElementData(reader, element, size, bytes) != kQvxOK ||
        Qvx2Reader_GetFileMetaInformation(reader, kMetaByteOrder, &order) != kQvxOK)
        return std::nullopt;
    if (size == 2)
        return order == 1 ? LoadBE<std::uint16_t>(bytes) : LoadLE<std::uint16_t>(bytes);
    return order == 1 ? LoadBE<std::uint32_t>(bytes) : LoadLE<std::uint32_t>(bytes);
}

std::optional<double> NumberOfValue(QvxParserRec* reader, QvxElementRef element, std::int32_t index)
{
    QvxElementValue value;
    if (Qvx2Reader_GetElementDataAsValue(reader, element, index, &value) != kQvxOK)
        return std::nullopt;
    switch (value.fType) {
        case QvxNumericValueType::Int16:
            return value.fInt16;
        case QvxNumericValueType::UInt16:
            return value.fUInt16;
        case QvxNumericValueType::Int32:
            return value.fInt32;
        case QvxNumericValueType::UInt32:
            return value.fUInt32;
        case QvxNumericValueType::Float32:
            return value.fFloat32;
        case QvxNumericValueType::Float64:
            return value.fFloat64;
        default:
            return std::nullopt;
    }
}

std::optional<double> NumberOf(QvxParserRec* reader, QvxElementRef element, std::int32_t index)
{
    QvxElementDataInfo info;
    if (Qvx2Reader_GetElementDataInfo(reader, element, &info) != kQvxOK)
        return std::nullopt;
    switch (GetElementSuperType(static_cast<QvxVRIndex>(GetDCM_VR_Index(info.fVR)))) {
        // A decimal's text holds more digits than the reader's value of it.
        case QvxSuperType::Text:
            return NumberOfText(reader, element, index);
        case QvxSuperType::Numeric:
            return NumberOfValue(reader, element, index);
        default:
            return index == 1 ? NumberOfBytes(reader, element) : std::nullopt;
    }
}

}  // namespace

std::optional<double> QvxHeaderNumber(QvxParserRec* reader, QvxElementRef parent, QvxElementTag tag,
                                      std::int32_t index)
{
    QvxElementRef element{};
    if (Qvx2Reader_FindElement(reader, parent, tag, &element) != kQvxOK)
        return std::nullopt;
    const auto number = NumberOf(reader, element, index);
    return number && std::isfinite(*number) ? number : std::nullopt;
}

std::optional<std::uint32_t> QvxHeaderCount(QvxParserRec* reader, QvxElementTag tag,
                                            std::uint32_t maximum)
{
    const auto number = QvxHeaderNumber(reader, QvxElementRef::None, tag);
    if (!number || *number < 0 || *number > maximum)
        return std::nullopt;
    return static_cast<std::uint32_t>(*number);
}

std::string QvxHeaderText(QvxParserRec* reader, QvxElementTag tag, QvxElementRef parent,
                          std::int32_t index)
{
    QvxHandle handle;
    if (ParserGetElementDataAsText(reader, parent, tag.group, tag.element, index, &handle) !=
        kQvxOK)
        return {};
    std::string text(handle.Text());
    while (!text.empty() && (text.back() == ' ' || text.back() == '\0'))
        text.pop_back();
    return text;
}

std::string QvxHeaderWord(QvxParserRec* reader, QvxElementTag tag, QvxElementRef parent)
{
    std::string word = QvxHeaderText(reader, tag, parent);
    word.erase(0, word.find_first_not_of(' '));
    for (char& letter : word) {
        if (letter >= 'a' && letter <= 'z')
            letter = static_cast<char>(letter - 'a' + 'A');
    }
    return word;
}

// From the file: what the reader keeps of a value follows the dictionary's count, and tables that
// call themselves US are longer.
std::vector<std::uint16_t> QvxHeaderWords(QvxParserRec* reader, QvxElementTag tag,
                                          std::uint32_t byteOrder, QvxElementRef parent)
{
    QvxElementRef element{};
    QvxElementDataInfo info;
    if (Qvx2Reader_FindElement(reader, parent, tag, &element) != kQvxOK ||
        Qvx2Reader_GetElementDataInfo(reader, element, &info) != kQvxOK)
        return {};
    const ExtraHeaderDataRec* state = Qvx2Reader_State(reader);
    if (!state || !RunFits(info.fValueOffset, info.fDataSize, state->fFileSize))
        return {};
    std::vector<std::uint16_t> words(info.fDataSize / 2);
    if (words.empty() ||
        Qvx2Reader_ReadData(reader, words.data(), info.fValueOffset,
                            static_cast<std::uint32_t>(words.size() * 2)) != kQvxOK)
        return {};
    for (std::uint16_t& word : words)
        word = byteOrder == 1 ? LoadBE<std::uint16_t>(&word) : LoadLE<std::uint16_t>(&word);
    return words;
}

std::vector<QvxElementRef> QvxHeaderItems(QvxParserRec* reader, QvxElementRef parent,
                                          QvxElementTag tag)
{
    QvxElementRef sequence{};
    QvxElementRefArray items;
    if (Qvx2Reader_FindElement(reader, parent, tag, &sequence) != kQvxOK ||
        Qvx2Reader_GetElementRefs(reader, sequence, &items) != kQvxOK)
        return {};
    const auto refs = QvxRefsOf(items);
    return {refs.begin(), refs.end()};
}

QvxElementRef QvxHeaderItem(QvxParserRec* reader, QvxElementRef parent, QvxElementTag tag,
                            std::size_t index)
{
    const auto items = QvxHeaderItems(reader, parent, tag);
    return index < items.size() ? items[index] : QvxElementRef::None;
}

#include "dicom_core/values/ElementText.h"

#include "dicom_core/values/CharacterEncoding.h"
#include "dicom_core/values/ParserText.h"
#include "dicom_core/values/TextFormats.h"
#include "dicom_core/values/TrimText.h"
#include "dicom_core/values/UniText.h"
#include "prefs/Prefs.h"

#include <algorithm>
#include <array>
#include <new>
#include <vector>

namespace {

constexpr QvxElementTag kTagInstitutionName{0x0008, 0x0080};
constexpr QvxElementTag kTagStudyDescription{0x0008, 0x1030};
constexpr QvxElementTag kTagPatientName{0x0010, 0x0010};
constexpr QvxElementTag kTagSliceThickness{0x0018, 0x0050};
constexpr QvxElementTag kTagSliceLocation{0x0020, 0x1041};

constexpr std::size_t kJoinedSize = 1024;  // with a terminator
constexpr qsizetype kShownCharacters = 255;
constexpr std::uint32_t kValueBytes = 1u << 20;  // of a value, that anyone would want to see

// Their text is in the character set of the file (PS3.5 6.1.2.3).
constexpr std::uint64_t kCharacterSetVRs =
    std::uint64_t{1} << kVRIndexLO | std::uint64_t{1} << kVRIndexLT |
    std::uint64_t{1} << kVRIndexPN | std::uint64_t{1} << kVRIndexSH |
    std::uint64_t{1} << kVRIndexST | std::uint64_t{1} << kVRIndexUT;

QvxVRIndex RowOf(QvxVR vr) { return static_cast<QvxVRIndex>(GetDCM_VR_Index(vr)); }

std::span<char> Chars(QvxHandle& handle)
{
    return {reinterpret_cast<char*>(handle.Data()), handle.Bytes().size()};
}

QvxStatus Raw(ParserHandle parser, QvxElementRef element, std::size_t size, std::string* bytes)
{
    bytes->assign(size, '\0');
    if (size == 0)
        return kQvxOK;
    return Qvx2Reader_GetElementData(parser, element, static_cast<std::uint32_t>(size),
                                     bytes->data());
}

QvxStatus HexText(ParserHandle parser, QvxElementRef element, QvxElementTag tag,
                  const QvxElementDataInfo& info, QvxHandle* text)
{
    if (info.fDataSize == kUndefinedLength)
        return kQvxBadArgument;
    std::vector<std::byte> bytes(std::min(info.fDataSize, kValueBytes));
    if (!bytes.empty()) {
        const auto count = static_cast<std::uint32_t>(bytes.size());
        // The reader maps pixels and doesn't keep them as a value.
        if (const QvxStatus status =
                tag == kTagPixelData
                    ? Qvx2Reader_ReadData(parser, bytes.data(), info.fValueOffset, count)
                    : Qvx2Reader_GetElementData(parser, element, count, bytes.data()))
            return status;
    }
    const std::string digits = BytesToHexString8(bytes);
    return CopyCStringToTextHandle({digits.c_str(), digits.size() + 1}, text);
}

// The first value of a name, or the only value of anything.
QvxStatus SingleText(ParserHandle parser, QvxElementRef element, bool isName, QvxHandle* text)
{
    QvxHandle value;
    if (const QvxStatus status = Qvx2Reader_GetElementDataAsText(parser, element, 1, &value))
        return status;
    if (isName)
        TrimCarets(Chars(value));
    TrimTrailingSpaces(Chars(value));
    if (isName)
        TrimDoubleSpaces(Chars(value));
    *text = std::move(value);
    return kQvxOK;
}

QvxStatus ElementText(ParserHandle parser, QvxElementTag tag, QvxHandle* text)
{
    QvxElementRef element = QvxElementRef::None;
    if (const QvxStatus status = Qvx2Reader_FindElement(parser, QvxElementRef::None, tag, &element))
        return status;
    QvxElementDataInfo info;
    if (const QvxStatus status = Qvx2Reader_GetElementDataInfo(parser, element, &info))
        return status;
    switch (RowOf(info.fVR)) {
        case kVRIndexAT:
        case kVRIndexOB:
        case kVRIndexOW:
            return HexText(parser, element, tag, info, text);
        case kVRIndexDA:
            return Parser_GetDateElementTextHandle(parser, element, info, 1, true, text);
        case kVRIndexTM:
            return Parser_GetTimeElementTextHandle(parser, element, info, 1, true, text);
        case kVRIndexPN:
            return SingleText(parser, element, true, text);
        default:
            break;
    }
    if (info.fMultiplicity == 0)
        return kQvxOK;
    if (info.fMultiplicity == 1)
        return SingleText(parser, element, false, text);
    std::string joined;
    if (const QvxStatus status =
            Parser_JoinElementValues(parser, element, true, kJoinedSize, &joined))
        return status;
    return CopyCStringToTextHandle(joined, text);
}

// Lays out a text that has been decoded to UTF-8 as ElementText does with the file's bytes. In
// bytes of some sets a half of a character looks like a caret or a backslash.
void LayOut(bool isName, std::int32_t multiplicity, std::string* text)
{
    if (isName && multiplicity > 1)
        text->resize(std::min(text->find('\\'), text->size()));
    if (isName) {
        TrimCarets(text);
        return;
    }
    if (multiplicity < 2)
        return;
    const std::string_view all = *text;
    std::string joined;
    for (std::size_t start = 0; start <= all.size();) {
        const std::size_t end = std::min(all.find('\\', start), all.size());
        std::string value(all.substr(start, end - start));
        TrimTrailingSpaces(&value);
        if (!value.empty())
            joined.append(joined.empty() ? "" : "\\").append(value);
        start = end + 1;
    }
    *text = std::move(joined);
}

std::optional<QString> Shown(std::string text, const dk_DicomCharacterEncoding& encoding,
                             bool isUTF8)
{
    TrimTrailingSpaces(&text);
    TrimDoubleSpaces(&text);
    if (text.empty())
        return std::nullopt;
    QString shown = isUTF8 ? QString::fromStdString(text) : UniTextWithBytes(text, encoding);
    // A pair of halves stays whole.
    const bool cutsPair =
        shown.size() > kShownCharacters && shown.at(kShownCharacters).isLowSurrogate();
    shown.truncate(cutsPair ? kShownCharacters - 1 : kShownCharacters);
    return shown;
}

std::optional<QString> DecodedText(ParserHandle parser, QvxElementRef element,
                                   const dk_DicomCharacterEncoding& encoding)
{
    QvxElementDataInfo info;
    std::string bytes;
    if (Qvx2Reader_GetElementDataInfo(parser, element, &info) ||
        Raw(parser, element, std::min(info.fDataSize, kValueBytes), &bytes))
        return std::nullopt;
    bytes.resize(std::min(bytes.find('\0'), bytes.size()));
    std::string text = encoding.DecodeText(bytes).toStdString();
    LayOut(RowOf(info.fVR) == kVRIndexPN, info.fMultiplicity, &text);
    return Shown(std::move(text), encoding, true);
}

std::optional<QString> PlainText(ParserHandle parser, const dk_DicomCharacterEncoding& encoding,
                                 QvxElementTag tag)
{
    QvxElementRef element = QvxElementRef::None;
    QvxVR vr{};
    if (Qvx2Reader_FindElement(parser, QvxElementRef::None, tag, &element) ||
        Qvx2Reader_GetElementValueRepresentation(parser, element, &vr))
        return std::nullopt;
    if (InVRSet(kCharacterSetVRs, RowOf(vr)) && prefs_DecodeTextByCharacterSet())
        return DecodedText(parser, element, encoding);
    QvxHandle handle;
    if (Parser_GetElementText(parser, tag, &handle))
        return std::nullopt;
    std::string text;
    CopyTextHandleToCString(handle, kShownCharacters + 1, &text);
    if (tag == kTagSliceThickness || tag == kTagSliceLocation)
        FixNumericTextTo2Decimals(&text);
    return Shown(std::move(text), encoding, RowOf(vr) == kVRIndexDA);
}

std::optional<QString> UniText(ParserHandle parser, const dk_DicomCharacterEncoding& encoding,
                               QvxElementTag tag)
{
    std::optional<QString> text;
    if (Parser_GetElementTextUni(parser, encoding, tag, &text) || !text || text->isEmpty())
        return std::nullopt;
    return text->replace(u'^', u' ');
}

}  // namespace

QvxStatus Parser_GetElementText(ParserHandle parser, QvxElementTag tag, QvxHandle* text)
{
    if (!text)
        return kQvxBadArgument;
    *text = QvxHandle();
    try {
        return ElementText(parser, tag, text);
    } catch (const std::bad_alloc&) {
        return kQvxNoMemory;
    }
}

std::optional<QString> ParserUtil_GetElemText(ParserHandle parser,
                                              const dk_DicomCharacterEncoding& encoding,
                                              QvxElementTag tag)
{
    try {
        if (tag == kTagInstitutionName || tag == kTagStudyDescription || tag == kTagPatientName)
            return UniText(parser, encoding, tag);
        return PlainText(parser, encoding, tag);
    } catch (const std::bad_alloc&) {
        return std::nullopt;
    }
}

QvxStatus Parser_GetDateElementTextHandle(ParserHandle parser, QvxElementRef element,
                                          const QvxElementDataInfo& info, std::int32_t index,
                                          bool format, QvxHandle* text)
{
    if (!text)
        return kQvxBadArgument;
    if (format && (info.fDataSize == 8 || info.fDataSize == 10)) {
        try {
            std::string bytes, date;
            if (!Raw(parser, element, info.fDataSize, &bytes))
                date = ParserUtil_FormatDateString(bytes);
            if (!date.empty())
                return CopyCStringToTextHandle(date, text);
        } catch (const std::bad_alloc&) {
            return kQvxNoMemory;
        }
    }
    return Qvx2Reader_GetElementDataAsText(parser, element, index, text);
}

QvxStatus Parser_GetTimeElementTextHandle(ParserHandle parser, QvxElementRef element,
                                          const QvxElementDataInfo& info, std::int32_t index,
                                          bool format, QvxHandle* text)
{
    if (!text)
        return kQvxBadArgument;
    std::array<char, 6> t{};
    if (!format || info.fDataSize < t.size() || info.fDataSize == kUndefinedLength ||
        Qvx2Reader_GetElementData(parser, element, t.size(), t.data()))
        return Qvx2Reader_GetElementDataAsText(parser, element, index, text);
    const std::array<char, 9> laidOut{t[0], t[1], ':', t[2], t[3], ':', t[4], t[5], '\0'};
    return CopyCStringToTextHandle({laidOut.data(), laidOut.size()}, text);
}

std::string BytesToHexString8(std::span<const std::byte> bytes)
{
    constexpr std::string_view kDigits = "0123456789ABCDEF";
    std::string text;
    text.reserve(bytes.size() * 3);
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        const auto byte = std::to_integer<std::size_t>(bytes[i]);
        text.push_back(kDigits[byte >> 4]);
        text.push_back(kDigits[byte & 15]);
        text.push_back(i % 8 == 7 ? '\r' : ' ');
    }
    return text;
}

#include "dicom_core/values/UniText.h"

#include "platform/TextConverter.h"
#include "prefs/Prefs.h"

#include <algorithm>

namespace {

constexpr char kEscape = '\x1B';

std::uint32_t FirstEncoding(const dk_DicomCharacterEncoding& encoding)
{
    return encoding.Encodings().empty() ? kEncodingNone : encoding.Encodings().front();
}

// What can't be decoded adds nothing.
void AppendDecoded(std::string_view bytes, std::uint32_t encoding, QString* text)
{
    if (const auto decoded = TextFromBytes(bytes, ConverterOfEncoding(encoding)))
        *text += *decoded;
}

// The decoder of this set keeps the designator as text. What stood before `from` was cleaned
// already, but for a designator that goes on into the new group.
void DeleteKoreanDesignators(qsizetype from, QString* text)
{
    const qsizetype start = std::max<qsizetype>(from - 2, 0);
    QString cleaned = text->mid(start);
    UniReplaceOccurrencesOfString(&cleaned, u"$)C", u"");
    text->replace(start, text->size() - start, cleaned);
}

bool IsPersonNameOrLongString(QvxVR vr, bool* isName)
{
    *isName = vr == QvxVROfIndex(kVRIndexPN);
    return *isName || vr == QvxVROfIndex(kVRIndexLO);
}

}  // namespace

void UniReplaceOccurrencesOfString(QString* text, QStringView find, QStringView replacement)
{
    text->replace(find.data(), find.size(), replacement.data(), replacement.size());
}

QString UniStringWithBytes(std::string_view bytes, const dk_DicomCharacterEncoding& encoding)
{
    const auto encodings = encoding.Encodings();
    std::size_t group = 0;
    std::size_t start = 0;
    bool several = false;
    QString text;
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        const bool last = i + 1 == bytes.size();
        several = several || bytes[i] == '=';
        if (bytes[i] != '=' && !last)
            continue;
        const std::size_t end = last ? i + 1 : i;
        const std::uint32_t current = encodings.empty() ? kEncodingNone : encodings[group];
        const qsizetype before = text.size();
        AppendDecoded(bytes.substr(start, end - start), current, &text);
        if (current == kEncodingEUCKR)
            DeleteKoreanDesignators(before, &text);
        if (group + 1 < encodings.size())
            ++group;
        start = end;
    }
    if (several) {
        UniReplaceOccurrencesOfString(&text, u"\x1B", u"");
        UniReplaceOccurrencesOfString(&text, u"(B=)", u"");
        UniReplaceOccurrencesOfString(&text, u"(B", u"");
        UniReplaceOccurrencesOfString(&text, u"==)", u"/");
    }
    return text;
}

QString UniLongStringWithBytes(std::string_view bytes, const dk_DicomCharacterEncoding& encoding)
{
    std::uint32_t current = FirstEncoding(encoding);
    std::size_t start = 0;
    QString text;
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        if (i + 1 == bytes.size()) {
            AppendDecoded(bytes.substr(start), current, &text);
        } else if (bytes[i] == kEscape) {
            AppendDecoded(bytes.substr(start, i - start), current, &text);
            start = i;
            current = dk_DicomCharacterEncoding::FindTargetEncoding(bytes, &i);
            if (current == kEncodingLatin1)
                start = i + 1;  // the other decoders read the sequence themselves
        }
    }
    return text;
}

QvxStatus Parser_GetElementTextUni(ParserHandle parser, const dk_DicomCharacterEncoding& encoding,
                                   QvxElementTag tag, std::optional<QString>* text)
{
    if (!parser || !text)
        return kQvxBadArgument;
    text->reset();
    QvxElementRef element = QvxElementRef::None;
    if (const QvxStatus status = Qvx2Reader_FindElement(parser, QvxElementRef::None, tag, &element))
        return status;
    QvxVR vr{};
    if (const QvxStatus status = Qvx2Reader_GetElementValueRepresentation(parser, element, &vr))
        return status;
    bool isName = false;
    if (!IsPersonNameOrLongString(vr, &isName))
        return kQvxOK;
    QvxHandle data;
    if (const QvxStatus status = Qvx2_ParserGetElementRawData(parser, QvxElementRef::None,
                                                              tag.group, tag.element, &data))
        return status;
    if (prefs_DecodeTextByCharacterSet())
        *text = encoding.DecodeText(data.Text());
    else
        *text = isName ? UniStringWithBytes(data.Text(), encoding)
                       : UniLongStringWithBytes(data.Text(), encoding);
    return kQvxOK;
}

QString UniTextWithBytes(std::string_view bytes, const dk_DicomCharacterEncoding& encoding)
{
    return prefs_DecodeTextByCharacterSet() ? encoding.DecodeText(bytes) : MacRomanText(bytes);
}

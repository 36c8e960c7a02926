#include "dicom_core/tree/TitleData.h"

#include "dicom_core/tree/dk_SequenceBase.h"
#include "dicom_core/values/ParserText.h"
#include "dicom_core/values/UniText.h"

namespace {

constexpr std::int32_t kLevelSequence = 3;

// The first sequence at or below `elem` for which `isWanted` holds.
template <typename Test>
dk_SequenceBase* FindSequence(dk_DicomBaseElem* elem, const Test& isWanted)
{
    if (elem->GetDicomTreeLevel() == kLevelSequence) {
        auto* sequence = static_cast<dk_SequenceBase*>(elem);
        return isWanted(*sequence) ? sequence : nullptr;
    }
    for (dk_DicomBaseElem* child = elem->GetFirstChild(); child; child = child->GetNext())
        if (dk_SequenceBase* found = FindSequence(child, isWanted))
            return found;
    return nullptr;
}

}  // namespace

dk_ImageFile* TitleFileOf(dk_DicomBaseElem* level)
{
    dk_SequenceBase* sequence = FindSequence(level, [](dk_SequenceBase& candidate) {
        return candidate.GetFirstChild() && candidate.IsGood();
    });
    if (!sequence)
        sequence = FindSequence(level, [](const dk_SequenceBase& candidate) {
            return candidate.GetFirstChild() != nullptr;
        });
    return sequence ? static_cast<dk_ImageFile*>(sequence->GetFirstChild()) : nullptr;
}

std::optional<std::string> TitleText(ParserHandle parser, QvxElementTag tag, std::size_t size)
{
    std::string text;
    if (Parser_GetElementValueInCString(parser, QvxElementRef::None, tag.group, tag.element,
                                        kAllValues, size, &text))
        return std::nullopt;
    return text;
}

QString DecodedTitleText(dk_ImageFile* file, std::string_view bytes)
{
    static const dk_DicomCharacterEncoding kNoEncodings;
    return bytes.empty()
               ? QString()
               : UniTextWithBytes(bytes, file ? file->GetCharacterEncoding() : kNoEncodings);
}

bool IsZeroID(std::string_view id) { return id.find_first_not_of('0') == std::string_view::npos; }

QString WithoutCarets(const QString& text)
{
    QString trimmed;
    for (qsizetype i = 0; i < text.size(); ++i)
        if (text[i] != '^')
            trimmed += text[i];
        else if (i == 0 || text[i - 1] != '^')
            trimmed += ' ';
    return trimmed;
}

QString WithoutTrailingSpaces(QString text)
{
    while (text.endsWith(' '))
        text.chop(1);
    return text;
}

// What the levels above sequences take from a file when a title wants more than an open has read.
#pragma once
#include "dicom_core/tree/dk_ImageFile.h"

#include <initializer_list>
#include <optional>

// The first file of the first good sequence below `level`, else the first file there is, of which a
// title says what it can; null without one. Files of another level are never asked.
[[nodiscard]] dk_ImageFile* TitleFileOf(dk_DicomBaseElem* level);

// That file while its header is looked at.
class TitleFileVisit {
public:
    explicit TitleFileVisit(dk_DicomBaseElem* level)
        : fFile(TitleFileOf(level)), fVisit(fFile ? fFile->GetSource() : nullptr)
    {
    }
    [[nodiscard]] dk_ImageFile* File() const { return fFile; }  // not null if the parser isn't
    [[nodiscard]] ParserHandle Parser() const { return fVisit.Parser(); }

private:
    dk_ImageFile* fFile;
    zelParserVisit fVisit;
};

// All values of a top-level element; none if it is missing or can't be read.
[[nodiscard]] std::optional<std::string> TitleText(ParserHandle parser, QvxElementTag tag,
                                                   std::size_t size);

// Fills the field, unless it is filled, with all values of a top-level element.
template <std::size_t Capacity>
void FillTitleField(ParserHandle parser, QvxElementTag tag, BoundedText<Capacity>* field)
{
    if (!field->Empty())
        return;
    if (const auto text = TitleText(parser, tag, Capacity))
        field->Assign(*text);
}

// Text of the level as the file declares its characters; plain ASCII holds without a file.
[[nodiscard]] QString DecodedTitleText(dk_ImageFile* file, std::string_view bytes);

// An ID of digits 0 alone says nothing.
[[nodiscard]] bool IsZeroID(std::string_view id);

// Wide twins of values/TrimText.h.
[[nodiscard]] QString WithoutCarets(const QString& text);
[[nodiscard]] QString WithoutTrailingSpaces(QString text);

// The parts that aren't empty, with ", " between them.
template <typename Text>
[[nodiscard]] Text JoinedTitle(std::initializer_list<Text> parts)
{
    Text joined;
    for (const Text& part : parts) {
        if (part.size() == 0)
            continue;
        if (joined.size() != 0)
            joined += ", ";
        joined += part;
    }
    return joined;
}

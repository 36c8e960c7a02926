// Text values of a file as Unicode. Two ways, between which the preference
// "DecodeTextByCharacterSetFlag" chooses, here and in ElementText.h: on, everything is decoded as
// the standard says by the character set that the file declares, and a byte that can't be decoded
// becomes one U+FFFD. Off, the plain way: person names and long strings by a list of encodings,
// where what can't be decoded adds nothing, and any other text as Mac Roman.
#pragma once
#include "dicom_core/values/CharacterEncoding.h"

#include "Qvx2Parser/Qvx2Reader.h"
#include <QString>
#include <optional>
#include <string_view>

// The plain way for a person name (PN): each component group, with the "=" in front of it, by the
// next encoding of the list; then the remains of escape sequences go.
[[nodiscard]] QString UniStringWithBytes(std::string_view bytes,
                                         const dk_DicomCharacterEncoding& encoding);
// The plain way for a long string (LO): each escape sequence selects the encoding of what follows.
[[nodiscard]] QString UniLongStringWithBytes(std::string_view bytes,
                                             const dk_DicomCharacterEncoding& encoding);
void UniReplaceOccurrencesOfString(QString* text, QStringView find, QStringView replacement);

// The text of a top-level element of VR PN or LO, by the way that the preference chooses;
// delimiters and padding as they stand in the file. None for any other VR, and with every status
// but kQvxOK: kQvxNoSuchElement for a missing element, else the reader's.
[[nodiscard]] QvxStatus Parser_GetElementTextUni(ParserHandle parser,
                                                 const dk_DicomCharacterEncoding& encoding,
                                                 QvxElementTag tag, std::optional<QString>* text);
// Any other text of the file, by the way that the preference chooses.
[[nodiscard]] QString UniTextWithBytes(std::string_view bytes,
                                       const dk_DicomCharacterEncoding& encoding);

// Bytes of a named character set to text. One direction only: nothing here writes bytes.
// `encoding` is a name that ICU knows: "UTF-8", "ISO-8859-5", "EUC-KR", "GB18030", "macintosh".
// Safe on any thread: each call has a converter of its own.
#pragma once
#include <QString>
#include <optional>
#include <string_view>

// The text, or none when the set is unknown, a byte can't be decoded or memory ran out.
[[nodiscard]] std::optional<QString> TextFromBytes(std::string_view bytes, const char* encoding);

// The text with one U+FFFD for each byte, or each well-formed code of several bytes, that stands
// for no character; what is around it stays. Of an unknown set only the bytes below 128 are kept.
[[nodiscard]] QString TextFromBytesLenient(std::string_view bytes, const char* encoding);

// Text of the Mac Roman set, in which every byte is a character.
[[nodiscard]] QString MacRomanText(std::string_view bytes);

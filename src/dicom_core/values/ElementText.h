// Top-level elements as the text that people see: dates, times and names laid out, binary values
// in hexadecimal digits. Handles hold text up to their first NUL or their end. No state: any thread
// that has the reader.
#pragma once
#include "Qvx2Parser/Qvx2Reader.h"
#include <QString>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>

class dk_DicomCharacterEncoding;

// Display text of a top-level element, in the file's own bytes (a date: UTF-8):
//   AT, OB, OW   BytesToHexString8 of the value, of no more than its first MiB
//   DA, TM       the first value, laid out as below
//   PN           the first value, components apart by blanks
//   others       the value, or all values joined by backslashes in at most 1023 bytes
// `text` is null with every failure, and with kQvxOK for an element without values.
// kQvxNoSuchElement if there is no element, kQvxNoMemory, else the reader's codes.
[[nodiscard]] QvxStatus Parser_GetElementText(ParserHandle parser, QvxElementTag tag,
                                              QvxHandle* text);

// A display string of at most 255 characters, decoded by the file's character set or, when the
// preference "DecodeTextByCharacterSetFlag" is off, as Mac Roman but for the patient's name, the
// institution and the study description. None for a missing or empty element.
[[nodiscard]] std::optional<QString> ParserUtil_GetElemText(
    ParserHandle parser, const dk_DicomCharacterEncoding& encoding, QvxElementTag tag);

// A DA value in the locale's short form, as UTF-8, if `format` is set and the element is a single
// date of 8 or 10 bytes; else value number `index` as the reader gives it.
[[nodiscard]] QvxStatus Parser_GetDateElementTextHandle(ParserHandle parser, QvxElementRef element,
                                                        const QvxElementDataInfo& info,
                                                        std::int32_t index, bool format,
                                                        QvxHandle* text);
// "HH:MM:SS" and a NUL from the first six characters of a TM value, if `format` is set and the
// element has as many bytes; else value number `index` as the reader gives it.
[[nodiscard]] QvxStatus Parser_GetTimeElementTextHandle(ParserHandle parser, QvxElementRef element,
                                                        const QvxElementDataInfo& info,
                                                        std::int32_t index, bool format,
                                                        QvxHandle* text);

// Two upper-case digits a byte, each with a blank behind it, but a carriage return behind every
// eighth: three characters a byte. Throws std::bad_alloc.
[[nodiscard]] std::string BytesToHexString8(std::span<const std::byte> bytes);

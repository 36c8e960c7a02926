// Codes and numbers of DICOM as words and digits for people. Text only, no reader, no state; any
// thread. The pixel values of Gray16ToDicomPixelValue and Gray8ToDicomPixelValue are in
// Qvx2VOIBlitter/VOIValues.h.
#pragma once
#include <cstdint>
#include <string>
#include <string_view>

// A date of DICOM, "yyyy.mm.dd" if it has 10 characters and "yyyymmdd" else, in the short form of
// the user's locale, as UTF-8. A date with a part of 0, or one that the calendar doesn't have, is
// given as it stands, without trailing blanks.
[[nodiscard]] std::string ParserUtil_FormatDateString(std::string_view date);

// For titles, the same in any locale: "yyyymmdd" and "yyyy.mm.dd" become "dd/mm/yyyy", or
// "dd/mm/yy" for a year that begins with "00". Anything else is given as it stands.
[[nodiscard]] std::string DicomUtil_FormatDicomDateStr(std::string_view date);

// Value of (0010,21C0) in words; a value that has none in digits.
[[nodiscard]] std::string DicomUtil_FormatPregnancyStatusField(std::int32_t value);

// Code of (0018,5100) in words. False for a code that is unknown: `output` is left alone then.
bool DicomUtil_FormatPatientPositionField(std::string_view code, std::string* output);

// Name of a transfer syntax, and of the storage classes that an older table of classes lacks.
// False for a UID that is unknown: `output` is left alone then.
bool DCM_DecodeTransferSyntax(std::string_view uid, std::string* output);

// The number that the text begins with, without decimals if the first two are 0, else with two of
// them: "5.000" becomes "5", "2.5" becomes "2.50". Text that holds no number stays.
void FixNumericTextTo2Decimals(std::string* text);
// The same with one decimal: "12.0" becomes "12", "12.54" becomes "12.5".
void FixNumericTextTo1Dec(std::string* text);

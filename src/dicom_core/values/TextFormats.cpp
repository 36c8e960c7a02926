#include "dicom_core/values/TextFormats.h"

#include "dicom_core/values/TrimText.h"
#include "platform/LocalDates.h"

#include "Qvx2Parser/QvxDecimal.h"
#include <QString>
#include <array>
#include <charconv>
#include <cmath>
#include <span>

namespace {

struct Word {
    std::string_view fCode, fText;
};

// clang-format off
constexpr auto kPatientPositions = std::to_array<Word>({
    { "HFP",  "Head First-Prone" },
    { "HFS",  "Head First-Supine" },
    { "HFDR", "Head First-Decubitus Right" },
    { "HFDL", "Head First-Decubitus Left" },
    { "FFDL", "Feet First-Decubitus Left" },
    { "FFDR", "Feet First-Decubitus Right" },
    { "FFP",  "Feet First-Prone" },
    { "FFS",  "Feet First-Supine" },
});

constexpr auto kUIDs = std::to_array<Word>({
    { "1.2.840.10008.1.2",      "Little endian implicit, no compression" },
    { "1.2.840.10008.1.20",     "Little endian implicit, no compression" },
    { "1.2.840.10008.1.2.1",    "Little endian explicit, no compression" },
    { "1.2.840.10008.1.2.2",    "Big endian explicit, no compression" },
    { "1.2.840.10008.1.2.4.50", "Little endian explicit, JPEG Lossy Baseline compression" },
    { "1.2.840.10008.1.2.4.51", "Little endian explicit, JPEG Lossy Extended compression" },
    { "1.2.840.10008.1.2.4.57", "Little endian explicit, JPEG Lossless compression, "
                                "Non-Hierarchical (Process no 14)" },
    { "1.2.840.10008.1.2.4.70", "Little endian explicit, JPEG Lossless compression, "
                                "Non-Hierarchical, First-Order Prediction "
                                "(Process 14 Selection Value 1)" },
    { "1.2.840.10008.1.2.5",    "Little endian explicit, RLE compression" },
    { "1.2.840.10008.1.2.4.90", "JPEG2000 Lossless compression" },
    { "1.2.840.10008.1.2.4.91", "JPEG2000 compression" },
    { "1.2.840.10008.1.2.4.92", "JPEG2000 MultipleComponent Lossless compression" },
    { "1.2.840.10008.1.2.4.93", "JPEG2000 MultipleComponent compression" },
    { "1.2.124.113541.1.2.100", "Little endian explicit, HicorDCM compression" },
    { "1.2.840.10008.1.2.4.80", "JPEG-LS Lossless compression" },
    { "1.2.840.10008.1.2.4.81", "JPEG-LS Lossy, Near Lossless compression" },
    { "1.2.840.10008.1.2.4.94", "JPIP Referenced" },
    { "1.2.840.10008.1.2.4.95", "JPIP Referenced Deflate" },
    { "1.2.840.10008.1.2.4.100", "MPEG2 Main Profile @ Main Level" },
    { "1.2.840.10008.1.2.4.101", "MPEG2 Main Profile @ High Level" },
    { "1.2.840.10008.1.2.4.102", "MPEG-4 AVC/H.264 High Profile / Level 4.1" },
    { "1.2.840.10008.1.2.4.103", "MPEG-4 AVC/H.264 BD-compatible High Profile / Level 4.1" },
    { "1.2.840.10008.5.1.4.1.1.2.1",    "Enhanced CT Image Storage" },
    { "1.2.840.10008.5.1.4.1.1.4.3",    "Enhanced MR Color Image Storage" },
    { "1.2.840.10008.5.1.4.1.1.6.2",    "Enhanced US Volume Storage" },
    { "1.2.840.10008.5.1.4.1.1.13.1.1", "XRay 3D Angiographic Image Storage" },
    { "1.2.840.10008.5.1.4.1.1.13.1.2", "XRay 3D Craniofacial Image Storage" },
    { "1.2.840.10008.5.1.4.1.1.13.1.3", "Breast Tomosynthesis Image Storage" },
    { "1.2.840.10008.5.1.4.1.1.14.1",   "Intravascular Optical Coherence Tomography Image "
                                        "Storage For Presentation" },
    { "1.2.840.10008.5.1.4.1.1.14.2",   "Intravascular Optical Coherence Tomography Image "
                                        "Storage For Processing" },
});
// clang-format on

bool Decode(std::span<const Word> words, std::string_view code, std::string* output)
{
    for (const Word& word : words)
        if (word.fCode == code) {
            output->assign(word.fText);
            return true;
        }
    return false;
}

// `count` characters at `start` as a number, 0 where the text has none.
int Part(std::string_view text, std::size_t start, std::size_t count)
{
    return start < text.size() ? QvxDecimalToInt(text.substr(start, count)) : 0;
}

// `unit` is 10 to the power of `decimals`.
void FixNumericText(std::string* text, int decimals, double unit)
{
    const std::size_t start = text->find_first_not_of(" +-.");
    if (start == std::string::npos || (*text)[start] < '0' || (*text)[start] > '9')
        return;
    const double number = QvxDecimalToDouble(*text);
    const bool whole = std::trunc(number) * unit == std::trunc(number * unit);
    char digits[400];  // the longest double without an exponent has 309 and its decimals
    const auto end = std::to_chars(digits, digits + sizeof digits, number, std::chars_format::fixed,
                                   whole ? 0 : decimals);
    text->assign(digits, end.ptr);
}

}  // namespace

std::string ParserUtil_FormatDateString(std::string_view date)
{
    const bool dotted = date.size() == 10;
    const int year = Part(date, 0, 4);
    const int month = Part(date, dotted ? 5 : 4, 2);
    const int day = Part(date, dotted ? 8 : 6, 2);
    if (year && month && day) {
        const QString local = ShortLocalDate(year, month, day);
        if (!local.isEmpty())
            return local.toStdString();
    }
    std::string plain(date);
    TrimTrailingSpaces(&plain);
    return plain;
}

std::string DicomUtil_FormatDicomDateStr(std::string_view date)
{
    const bool dotted = date.size() == 10 && date[4] == '.' && date[7] == '.';
    if (date.size() != 8 && !dotted)
        return std::string(date);
    const std::string_view month = date.substr(dotted ? 5 : 4, 2);
    const std::string_view day = date.substr(dotted ? 8 : 6, 2);
    const std::string_view year = date.starts_with("00") ? date.substr(2, 2) : date.substr(0, 4);
    std::string text(day);
    return text.append("/").append(month).append("/").append(year);
}

std::string DicomUtil_FormatPregnancyStatusField(std::int32_t value)
{
    static constexpr std::array<std::string_view, 4> kWords = {
        "Not pregnant (1)", "Possibly pregnant (2)", "Definitely pregnant (3)", "Unknown (4)"};
    if (value >= 1 && value <= 4)
        return std::string(kWords[static_cast<std::size_t>(value - 1)]);
    return std::to_string(value);
}

bool DicomUtil_FormatPatientPositionField(std::string_view code, std::string* output)
{
    return Decode(kPatientPositions, code, output);
}

bool DCM_DecodeTransferSyntax(std::string_view uid, std::string* output)
{
    return Decode(kUIDs, uid, output);
}

void FixNumericTextTo2Decimals(std::string* text) { FixNumericText(text, 2, 100); }

void FixNumericTextTo1Dec(std::string* text) { FixNumericText(text, 1, 10); }

// Elements as bounded text, numbers and display text, and the queries on a file.
#include "dicom_core/values/ElementText.h"

#include "dicom_core/values/CharacterEncoding.h"
#include "dicom_core/values/ParserText.h"
#include "dicom_core/values/TextFormats.h"
#include "fixtures/DicomBuilder.h"
#include "prefs/Prefs.h"

#include <gtest/gtest.h>

namespace {

using namespace std::string_literals;

QvxReaderPtr Open(const DicomBuilder& file)
{
    QvxReaderPtr reader;
    EXPECT_EQ(Qvx2Parser_OpenBytes(&reader, file.ByteVector(), kQvxProgramOptions), kQvxOK);
    return reader;
}

DicomBuilder Header() { return DicomBuilder().Meta(kUidExplicitLittle); }

std::string DisplayText(const DicomBuilder& file, QvxElementTag tag)
{
    const QvxReaderPtr reader = Open(file);
    QvxHandle text;
    if (const QvxStatus status = Parser_GetElementText(reader.get(), tag, &text))
        return "status " + std::to_string(status);
    return text.IsNull() ? "null" : std::string(text.Text());
}

// What is shown, or "none".
std::string Shown(const DicomBuilder& file, QvxElementTag tag, bool byCharacterSet)
{
    const bool before = prefs_DecodeTextByCharacterSet();
    prefs_OverrideForRun("DecodeTextByCharacterSetFlag", byCharacterSet);
    const QvxReaderPtr reader = Open(file);
    const dk_DicomCharacterEncoding encoding(reader.get());
    const auto text = ParserUtil_GetElemText(reader.get(), encoding, tag);
    prefs_OverrideForRun("DecodeTextByCharacterSetFlag", before);
    return text ? text->toStdString() : "none";
}

}  // namespace

TEST(Parser_GetElementValueInCString, takes_one_value_or_all_within_the_limit)
{
    struct Row {
        const char* fault;
        DicomValue value;
        const char* vr;
        std::int32_t index;
        std::size_t size;
        QvxStatus status;
        std::string text;
    };
    const Row rows[] = {
        {"trailing blanks", " A B\\C ", "CS", 1, 16, kQvxOK, " A B"},
        {"the limit counts the terminator", "ABCD", "CS", 1, 3, kQvxOK, "AB"},
        {"cut first, trimmed then", "A  D", "CS", 1, 3, kQvxOK, "A"},
        {"a NUL ends it", "AB\0D"s, "CS", 1, 16, kQvxOK, "AB"},
        {"no room at all", "AB", "CS", 1, 0, kQvxOK, ""},
        {"past the last value", "A\\B", "CS", 3, 16, kQvxBadValueIndex, ""},
        {"an empty value", "A\\\\B", "CS", 2, 16, kQvxNoValue, ""},
        {"an empty element", "", "CS", 1, 16, kQvxOK, ""},
        {"an empty element, all", "", "CS", kAllValues, 16, kQvxOK, ""},
        {"all, each trimmed", "A \\B  \\ C ", "CS", kAllValues, 16, kQvxOK, "A\\B\\ C"},
        {"empty values keep their places", "\\A\\\\B", "CS", kAllValues, 16, kQvxOK, "\\A\\\\B"},
        {"breaks off in a value", "AB\\CDEF", "CS", kAllValues, 6, kQvxOK, "AB\\CD"},
        {"breaks off at a backslash", "AB\\CD", "CS", kAllValues, 3, kQvxOK, "AB"},
        {"numbers", {1.5, -2.0}, "FD", kAllValues, 64, kQvxOK, "1.500000\\-2.000000"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.fault);
        const QvxReaderPtr reader = Open(Header().Element(0x0008, 0x0008, row.vr, row.value));
        std::string text = "before";
        EXPECT_EQ(Parser_GetElementValueInCString(reader.get(), QvxElementRef::None, 0x0008, 0x0008,
                                                  row.index, row.size, &text),
                  row.status);
        EXPECT_EQ(text, row.text);
    }
}

TEST(Parser_GetElementText, by_representation)
{
    const std::string date = ParserUtil_FormatDateString("20011231");
    const std::string longText(1500, 'x');
    struct Row {
        const char* fault;
        QvxElementTag tag;
        const char* vr;
        DicomValue value;
        std::string text;
    };
    const Row rows[] = {
        {"a return behind eight bytes",
         {0x0042, 0x0011},
         "OB",
         Hex("0001020304050607 A8 FF"),
         "00 01 02 03 04 05 06 07\rA8 FF \0"s},
        {"pixels are no value of the reader", {0x7FE0, 0x0010}, "OW", Hex("0A0B"), "0A 0B \0"s},
        {"name", {0x0010, 0x0010}, "PN", "DOE^JOHN^^^", "DOE JOHN\0\0\0\0"s},
        {"first of two names", {0x0010, 0x1001}, "PN", "A^^B\\C", "A B\0"s},
        {"date", {0x0008, 0x0020}, "DA", "20011231", date},
        {"date with dots", {0x0008, 0x0020}, "DA", "2001.12.31", date},
        {"no date", {0x0008, 0x0020}, "DA", "00000000", "00000000"},
        {"time", {0x0008, 0x0030}, "TM", "123456.789", "12:34:56\0"s},
        {"short time", {0x0008, 0x0030}, "TM", "1234", "1234"},
        {"one value", {0x0010, 0x0020}, "LO", "ID 1 ", "ID 1\0\0"s},
        {"all values",
         {0x0008, 0x0008},
         "CS",
         "ORIGINAL\\PRIMARY\\AXIAL",
         "ORIGINAL\\PRIMARY\\AXIAL"},
        {"empty values add nothing", {0x0008, 0x0008}, "CS", "\\A\\ \\B", "A\\B"},
        {"cut without an error",
         {0x0008, 0x0008},
         "UC",
         "ab\\" + longText,
         "ab\\" + longText.substr(0, 1020)},
        {"millions of empty values cost one pass",
         {0x0008, 0x0008},
         "UC",
         std::string(3 << 20, '\\'),
         ""},
        {"no value", {0x0008, 0x0008}, "CS", "", "null"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.fault);
        const DicomBuilder file =
            Header().Element(row.tag.group, row.tag.element, row.vr, row.value);
        EXPECT_EQ(DisplayText(file, row.tag), row.text);
    }
    EXPECT_EQ(DisplayText(Header().CommonHeader(), {0x0008, 0x0008}), "status -40008");
}

TEST(ParserUtil_GetElemText, shows_text_by_the_preference)
{
    const std::string cyrillic = "\xB8\xD2\xD0\xDD";  // ISO 8859-5
    const std::string kanji = "\x1B$B^<\x1B(B";       // holds the byte of a caret
    struct Row {
        const char* fault;
        const char* charset;
        QvxElementTag tag;
        const char* vr;
        std::string value, plain, decoded;
    };
    const Row rows[] = {
        {"carets one by one, none trimmed",
         "",
         {0x0010, 0x0010},
         "PN",
         "DOE^JOHN^^^",
         "DOE JOHN   ",
         "DOE JOHN   "},
        {"an empty name is none", "", {0x0010, 0x0010}, "PN", "", "none", "none"},
        {"blanks alone are none", "", {0x0010, 0x0020}, "LO", "    ", "none", "none"},
        {"whole millimetres", "", {0x0018, 0x0050}, "DS", "5.000", "5", "5"},
        {"parts of millimetres", "", {0x0020, 0x1041}, "DS", "2.5", "2.50", "2.50"},
        {"any other number stays", "", {0x0018, 0x0088}, "DS", "5.000", "5.000", "5.000"},
        {"double blanks", "", {0x0010, 0x0020}, "LO", "A   B ", "A B", "A B"},
        {"Mac Roman or the file's set",
         "ISO_IR 144",
         {0x0008, 0x0090},
         "PN",
         cyrillic + "^A",
         "\u220F\u201C\u2013\u203A A",
         "\u0418\u0432\u0430\u043D A"},
        {"half a character is no caret",
         "\\ISO 2022 IR 87",
         {0x0008, 0x0090},
         "PN",
         kanji,
         "\x1B$B <\x1B(B",
         "\u6E15"},
        {"several values",
         "ISO_IR 192",
         {0x0010, 0x2160},
         "SH",
         "A\\\u00E9",
         "A\\\u221A\u00A9",
         "A\\\u00E9"},
        {"at most 255",
         "ISO_IR 192",
         {0x0010, 0x4000},
         "LT",
         std::string(300, 'x'),
         std::string(255, 'x'),
         std::string(255, 'x')},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.fault);
        const DicomBuilder file = Header()
                                      .Element(0x0008, 0x0005, "CS", row.charset)
                                      .Element(row.tag.group, row.tag.element, row.vr, row.value)
                                      .KeepOdd();
        EXPECT_EQ(Shown(file, row.tag, false), row.plain);
        EXPECT_EQ(Shown(file, row.tag, true), row.decoded);
    }
    const DicomBuilder dated = Header().Element(0x0008, 0x0020, "DA", "20011231");
    EXPECT_EQ(Shown(dated, {0x0008, 0x0020}, false), ParserUtil_FormatDateString("20011231"));
    EXPECT_EQ(Shown(dated, {0x0008, 0x0030}, true), "none");
}

TEST(Parser_GetElementValue, tells_the_kind_and_refuses_what_is_none)
{
    const QvxReaderPtr reader = Open(Header()
                                         .Element(0x0018, 0x602C, "FD", 1.5)
                                         .Element(0x0028, 0x0010, "SS", -2)
                                         .Element(0x0028, 0x1050, "DS", "2.5\\-3.5")
                                         .Element(0x0028, 0x1055, "LO", "A"));
    const auto value = [&](std::uint16_t group, std::uint16_t element, ParserNumber* number) {
        QvxNumericValueType type{};
        return Parser_GetElementValue(reader.get(), QvxElementRef::None, group, element, 1, &type,
                                      number);
    };
    ParserNumber number;
    EXPECT_EQ(value(0x0028, 0x0010, &number), kQvxOK);
    EXPECT_EQ(number, ParserNumber(-2));
    EXPECT_EQ(value(0x0028, 0x1050, &number), kQvxOK);
    EXPECT_EQ(number, ParserNumber(2.5F));
    EXPECT_EQ(value(0x0018, 0x602C, &number), kQvxUnsupported);
    EXPECT_EQ(value(0x0028, 0x0011, &number), kQvxNoSuchElement);
    EXPECT_EQ(number, ParserNumber(2.5F));
    EXPECT_EQ(GetNumericElemValueAsULong(reader.get(), QvxElementRef::None, 1), 0u);
}

TEST(ParserQueries, answer_for_a_file)
{
    const auto acceptable = [](const char* modality) {
        return Parser_FileModalityIsAcceptable(
            Open(Header().Element(0x0008, 0x0060, "CS", modality)).get());
    };
    EXPECT_FALSE(acceptable("SR"));
    EXPECT_TRUE(acceptable("SRX"));
    EXPECT_TRUE(acceptable(""));
    EXPECT_TRUE(Parser_FileModalityIsAcceptable(Open(Header()).get()));

    EXPECT_FALSE(Parser_FileHasPixelData(Open(Header().CommonHeader()).get()));
    EXPECT_TRUE(Parser_FileHasPixelData(
        Open(Header().CommonHeader().Image({.rows = 1, .columns = 2}).NativePixels({1, 2})).get()));

    const auto records = [](const char* sopClass) {
        return Open(DicomBuilder()
                        .Meta(kUidExplicitLittle, sopClass)
                        .Element(0x0004, 0x1200, "UL", 0)
                        .Sequence(0x0004, 0x1220,
                                  {Item().Element(0x0004, 0x1430, "CS", "PATIENT"),
                                   Item().Element(0x0004, 0x1430, "CS", "STUDY")}));
    };
    struct Row {
        const char* sopClass;
        bool isDirectory;
    };
    for (const Row& row : {Row{"1.2.840.10008.1.3.10", true}, Row{"1.2.840.10008.1.3.1", false}}) {
        const QvxReaderPtr reader = records(row.sopClass);
        std::uint32_t count = 9;
        QvxElementRef sequence{};
        EXPECT_EQ(Parser_FileIsDICOMDIR(reader.get()), row.isDirectory);
        EXPECT_EQ(Parser_FileIsDICOMDIR(reader.get(), &count, &sequence), row.isDirectory);
        EXPECT_EQ(count, 2u);
        EXPECT_NE(sequence, QvxElementRef::None);
    }
    std::uint32_t count = 9;
    EXPECT_FALSE(Parser_FileIsDICOMDIR(nullptr, &count));
    EXPECT_EQ(count, 0u);
}

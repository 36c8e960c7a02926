// Trim rules, and the words and digits that codes and numbers become.
#include "dicom_core/values/TextFormats.h"

#include "dicom_core/values/TrimText.h"
#include "platform/LocalDates.h"

#include <QString>
#include <gtest/gtest.h>

namespace {

void AsBlock(std::string* text, void (*trim)(std::span<char>)) { trim(std::span<char>(*text)); }
void BlockCarets(std::string* text) { AsBlock(text, TrimCarets); }
void BlockSpaces(std::string* text) { AsBlock(text, TrimDoubleSpaces); }
void BlockEnd(std::string* text) { AsBlock(text, TrimTrailingSpaces); }

}  // namespace

TEST(TrimText, rules)
{
    using namespace std::string_literals;
    struct Row {
        const char* fault;
        void (*trim)(std::string*);
        std::string text, trimmed;
    };
    const Row rows[] = {
        {"inner blanks stay", TrimTrailingSpaces, " A B  ", " A B"},
        {"nothing but blanks", TrimTrailingSpaces, "   ", ""},
        {"a block keeps its length", BlockEnd, "A  "s, "A\0\0"s},
        {"blanks in front of NULs are at the end", BlockEnd, "A \0"s, "A\0\0"s},
        {"pairs of line ends are one", TrimNewlines, "a\r\nb\r\rc\n\nd", "a b c d"},
        {"LF in front of CR is no pair", TrimNewlines, "a\n\rb", "a  b"},
        {"a mixed row goes backward", TrimNewlines, "a\r\n\r\nb\n\r\n", "a b "},
        {"three carets are one blank", TrimCarets, "DOE^JOHN^^^", "DOE JOHN "},
        {"blanks between carets part them", TrimCarets, "^ ^", "   "},
        {"a block gains NULs", BlockCarets, "A^^B^^"s, "A B \0\0"s},
        {"rows of blanks", BlockSpaces, "A   B  "s, "A B \0\0\0"s},
        {"both ends", TrimFrontAndTrailingSpaces, "   A  B     ", "A  B"},
        {"both ends of nothing", TrimFrontAndTrailingSpaces, "  ", ""},
        {"an empty text", TrimNewlines, "", ""},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.fault);
        std::string text = row.text;
        row.trim(&text);
        EXPECT_EQ(text, row.trimmed);
    }
}

TEST(TextFormats, dates)
{
    const std::string local = ShortLocalDate(2001, 12, 31).toStdString();
    ASSERT_NE(local, "20011231");
    struct Row {
        const char *date, *title;
        std::string shown;
    };
    const Row rows[] = {
        {"20011231", "31/12/2001", local},
        {"2001.12.31", "31/12/2001", local},
        {"00011231", "31/12/01", ShortLocalDate(1, 12, 31).toStdString()},
        {"00000000", "00/00/00", "00000000"},
        {"20010231", "31/02/2001", "20010231"},    // no such day
        {"2001-12-31", "2001-12-31", local},       // parts by place, titles by the dots
        {"20011231  ", "20011231  ", "20011231"},  // read as if it had dots
        {"2001", "2001", "2001"},
        {"", "", ""},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.date);
        EXPECT_EQ(DicomUtil_FormatDicomDateStr(row.date), row.title);
        EXPECT_EQ(ParserUtil_FormatDateString(row.date), row.shown);
    }
}

TEST(TextFormats, numbers_keep_two_decimals_or_none)
{
    const char* const rows[][2] = {
        {"5", "5"},          {"5.000", "5"}, {"2.5", "2.50"},
        {"5.123", "5.12"},   {"5.004", "5"}, {"-0.5", "-0.50"},
        {" +7.25 ", "7.25"}, {"1e2", "100"}, {"2.5\\9", "2.50"},
        {"n/a 5", "n/a 5"},  {"", ""},       {".5", "0.50"},
    };
    for (const auto& row : rows) {
        std::string text = row[0];
        FixNumericTextTo2Decimals(&text);
        EXPECT_EQ(text, row[1]) << row[0];
    }
    const char* const shorter[][2] = {
        {"12.5", "12.5"}, {"-30.00", "-30"}, {"12.54", "12.5"}, {"12.04", "12"}, {"LAO", "LAO"}};
    for (const auto& row : shorter) {
        std::string text = row[0];
        FixNumericTextTo1Dec(&text);
        EXPECT_EQ(text, row[1]) << row[0];
    }
}

TEST(TextFormats, unknown_codes_leave_the_output_alone)
{
    std::string output = "before";
    EXPECT_FALSE(DicomUtil_FormatPatientPositionField("HF", &output));
    EXPECT_FALSE(DCM_DecodeTransferSyntax("1.2.840.10008.1.2.4", &output));
    EXPECT_EQ(output, "before");
    EXPECT_TRUE(DicomUtil_FormatPatientPositionField("FFDL", &output));
    EXPECT_EQ(output, "Feet First-Decubitus Left");
    EXPECT_TRUE(DCM_DecodeTransferSyntax("1.2.840.10008.1.2.4.57", &output));
    EXPECT_EQ(output,
              "Little endian explicit, JPEG Lossless compression, "
              "Non-Hierarchical (Process no 14)");
    EXPECT_EQ(DicomUtil_FormatPregnancyStatusField(3), "Definitely pregnant (3)");
    EXPECT_EQ(DicomUtil_FormatPregnancyStatusField(5), "5");
}

// Character sets of a file: the plain way by a list of encodings, and the standard's way.
#include "dicom_core/values/CharacterEncoding.h"

#include "dicom_core/values/UniText.h"
#include "fixtures/DicomBuilder.h"
#include "prefs/Prefs.h"

#include <cstdlib>
#include <fstream>
#include <gtest/gtest.h>

namespace {

constexpr QvxElementTag kTagPatientName{0x0010, 0x0010};

std::string Utf8(const QString& text) { return text.toStdString(); }

QvxReaderPtr Open(const std::string& charsets, const std::string& name, const char* vr = "PN")
{
    DicomBuilder file;
    file.Meta(kUidExplicitLittle);
    if (charsets != "missing")
        file.Element(0x0008, 0x0005, "CS", charsets).KeepOdd();
    file.Element(0x0010, 0x0010, vr, name).KeepOdd();
    QvxReaderPtr reader;
    EXPECT_EQ(Qvx2Parser_OpenBytes(&reader, file.ByteVector()), kQvxOK);
    return reader;
}

// The two ways of decoding; each test says which it wants.
void DecodeByCharacterSet(bool on) { prefs_OverrideForRun("DecodeTextByCharacterSetFlag", on); }

TEST(CharacterEncodings, list_of_a_file)
{
    using List = std::vector<std::uint32_t>;
    struct Row {
        std::string charsets;
        List encodings;
        QvxStatus status;
    };
    std::string many = "ISO_IR 100";
    for (int i = 0; i < 99; ++i)
        many += "\\ISO_IR 100";
    const Row rows[] = {
        {"missing", {0x201}, kQvxOK},
        {"", {0x201}, kQvxOK},
        {"ISO_IR 192", {0x8000100}, kQvxOK},
        {"\\ISO 2022 IR 87", {0x201, 0x80000822}, kQvxOK},
        {"ISO 2022 IR 13 \\ISO 2022 IR 87 ", {0x80000001, 0x80000822}, kQvxOK},
        {"ISO 2022 IR 6\\ISO_2022_IR_6", {kEncodingNone, 0x201}, kQvxOK},
        {"ISO_IR 166", {kEncodingNone}, kQvxOK},
        {"ISO_IR 100\\\\UTF-8", {0x201, kEncodingNone, 4}, kQvxOK},
        {"ISO_IR 100\\", {0x201, kEncodingNone}, kQvxNoValue},
        {"iso_ir 100", {kEncodingNone}, kQvxOK},
        {many, List(64, 0x201), kQvxOK},
        {many + std::string(9000, ' '), {0x201}, kQvxOK},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.charsets.substr(0, 40));
        const auto reader = Open(row.charsets, "A");
        List encodings;
        EXPECT_EQ(Parser_GetCharacterEncodings(reader.get(), &encodings), row.status);
        EXPECT_EQ(encodings, row.encodings);
    }
    EXPECT_EQ(CDicomStringToCharEncoding("ISO_IR 100" + std::string(53, ' ') + "x"), 0x201u);
}

TEST(CharacterEncodings, escape_sequences_select_the_first_row_that_fits)
{
    struct Row {
        std::string bytes;
        std::uint32_t encoding;
        std::size_t position;
    };
    // clang-format off
    const Row rows[] = {
        {"\x1B$B", 0x80000822, 2}, {"\x1B(Ba", 0x201, 2},      {"\x1B(I", 0x201, 2},
        {"\x1B)I", 0x80000001, 2}, {"\x1B$(D", 0x623, 3},      {"\x1B$)B", 0x80000822, 3},
        {"\x1B$(C", 0x623, 2},     {"\x1B$)C", 0x80000940, 3}, {"\x1B$)A", 0, 0},
        {"\x1B(", 0, 0},           {"(B", 0, 0},               {"", 0, 0},
    };
    // clang-format on
    for (const Row& row : rows) {
        std::size_t position = 0;
        EXPECT_EQ(dk_DicomCharacterEncoding::FindTargetEncoding(row.bytes, &position),
                  row.encoding);
        EXPECT_EQ(position, row.position) << row.bytes;
    }
}

const std::string kYamada =
    "Yamada^Tarou=\x1B$B;3ED\x1B(B^\x1B$BB@O:\x1B(B"
    "=\x1B$B$d$^$@\x1B(B^\x1B$B$?$m$&\x1B(B";
const std::string kHong =
    "Hong^Gildong=\x1B$)C\xFB\xF3^\x1B$)C\xD1\xCE\xD4\xD7"
    "=\x1B$)C\xC8\xAB^\x1B$)C\xB1\xE6\xB5\xBF";
const std::string kWang = "Wang^XiaoDong=\x1B$)A\xCD\xF5^\x1B$)A\xD0\xA1\xB6\xAB";

struct TextRow {
    const char* fault;
    std::string charsets, bytes;
    const char* plain;     // null: not compared
    const char* standard;  // null: as `plain`
};

void Compare(const TextRow& row, const char* vr)
{
    SCOPED_TRACE(row.fault);
    const auto reader = Open(row.charsets, row.bytes, vr);
    const dk_DicomCharacterEncoding encoding(reader.get());
    for (const bool on : {false, true}) {
        DecodeByCharacterSet(on);
        std::optional<QString> text;
        EXPECT_EQ(Parser_GetElementTextUni(reader.get(), encoding, kTagPatientName, &text), kQvxOK);
        const char* expected = on && row.standard ? row.standard : row.plain;
        ASSERT_TRUE(text.has_value());
        if (expected) {
            EXPECT_EQ(Utf8(*text), expected) << (on ? "standard" : "plain");
        }
    }
}

TEST(UniText, person_names)
{
    const TextRow rows[] = {
        {"empty", "missing", "", "", nullptr},
        {"no set declared", "missing", "J\xE9rome ", "Jérome ", nullptr},
        {"UTF-8 spelled so", "UTF-8", "\xC3\xA9 ", "é ", nullptr},
        {"Japanese", "\\ISO 2022 IR 87", kYamada, "Yamada^Tarou=山田^太郎=やまだ^たろう", nullptr},
        {"katakana", "ISO 2022 IR 13\\ISO 2022 IR 87",
         "\xD4\xCF\xC0\xDE^\xC0\xDB\xB3=\x1B$B;3ED\x1B(J^\x1B$BB@O:\x1B(J", "ﾔﾏﾀﾞ^ﾀﾛｳ=山田^太郎",
         nullptr},
        {"Korean", "\\ISO 2022 IR 149", kHong, "Hong^Gildong=洪^吉洞=홍^길동", nullptr},
        {"first group of an unlisted term", "ISO 2022 IR 6\\ISO 2022 IR 87", kYamada,
         "=山田^太郎=やまだ^たろう", "Yamada^Tarou=山田^太郎=やまだ^たろう"},
        {"Chinese extension", "\\ISO 2022 IR 58", kWang, "Wang^XiaoDong", "Wang^XiaoDong=王^小东"},
        {"GBK, whose second bytes look like delimiters", "GBK", "\x96\x7C^\x81\x5C ", "", "東^乗 "},
        {"Thai", "ISO_IR 166", "\xCA\xC1 ", "", "สม "},
        {"one bad byte", "ISO_IR 192", "A\xFF^B ", "", "A�^B "},
        {"one bad byte of a group", "\\ISO 2022 IR 149", "A=\x1B$)C\xFB\xF3\xFF^B ", "A",
         "A=洪�^B "},
        {"a set that is none", "ISO_IR 999", "A\xE9 ", "", "A� "},
        {"a designator that isn't repeated behind a delimiter", "\\ISO 2022 IR 149",
         "H^G=\x1B$)C\xFB\xF3^\xD1\xCE ", "H^G=洪^吉 ", nullptr},
        {"cleaned without an equals sign", "missing", "a(B==)", "a/", "a(B==)"},
        {"one group is not cleaned", "missing", "a(B", "a(B", nullptr},
        {"signs at the ends", "missing", "=a=", "=a=", nullptr},
        {"more groups than encodings", "ISO_IR 144\\ISO_IR 100", "\xBB=\xE9=\xE9 ", "Л=é=é ",
         "Л=щ=щ "},
    };
    for (const TextRow& row : rows)
        Compare(row, "PN");
}

TEST(UniText, long_strings)
{
    const TextRow rows[] = {
        {"back to the first set", "\\ISO 2022 IR 87", "a\x1B$B;3\x1B(Bz ", "a山z ", nullptr},
        {"a sequence at the end", "\\ISO 2022 IR 87", "a\x1B$B;3\x1B(B", "a山", nullptr},
        {"Korean after a row that hides it", "missing", "a\x1B$(C;3\x1B(Bz ", "az ", "a뺙z "},
        {"no sequence that is known", "missing", "a\x1Bqz\x1B(Bb ", "ab ", "a�qzb "},
        {"katakana in the lower half", "missing", "\x1B(I4^\x1B(B^ ", "4^^ ", "ｴﾞ^ "},
        {"supplementary kanji", "missing", "\x1B$(D0!\x1B(B ", "丂 ", nullptr},
        {"an upper half by sequence", "missing", "\xE9\x1B-L\xBB\x1B-F\xE1 ", "é", "éЛα "},
        {"a line end brings the first set back", "ISO 2022 IR 100\\ISO 2022 IR 144",
         "\xE9\x1B-L\xE9\r\n\xE9\x1B-L\xE9\t\xE9\x1B-L\xE9\\\xE9", nullptr,
         "éщ\r\néщ\té"
         "щ\\é"},
        {"two-byte codes are no delimiters", "\\ISO 2022 IR 87", "\x1B$B!=\\!\x1B(B=", nullptr,
         "―棔="},
        {"half a code", "\\ISO 2022 IR 87", "\x1B$B;3;\x1B(Bz", nullptr, "山�z"},
        {"supplementary in the upper half", "\\ISO 2022 IR 159", "a\x1B$)D\xB0\xA1z ", nullptr,
         "a丂z "},
    };
    for (const TextRow& row : rows)
        Compare(row, "LO");
}

TEST(UniText, only_names_and_long_strings_are_answered)
{
    const auto reader = Open("missing", "abcd", "SH");
    const dk_DicomCharacterEncoding encoding(reader.get());
    std::optional<QString> text = QString("x");
    EXPECT_EQ(Parser_GetElementTextUni(reader.get(), encoding, kTagPatientName, &text), kQvxOK);
    EXPECT_FALSE(text);
    text = QString("x");
    EXPECT_EQ(Parser_GetElementTextUni(reader.get(), encoding, {0x0010, 0x0020}, &text),
              kQvxNoSuchElement);
    EXPECT_FALSE(text);
    DecodeByCharacterSet(false);
    EXPECT_EQ(Utf8(UniTextWithBytes("\x8E", dk_DicomCharacterEncoding(reader.get()))), "é");
    EXPECT_EQ(Utf8(UniStringWithBytes("a", dk_DicomCharacterEncoding())), "");
    DecodeByCharacterSet(true);
    EXPECT_EQ(Utf8(UniTextWithBytes("\xE9", dk_DicomCharacterEncoding(reader.get()))), "é");
}

TEST(UniText, names_of_real_files)
{
    const char* folder = std::getenv("ZELORA_SAMPLES");
    if (!folder)
        GTEST_SKIP() << "ZELORA_SAMPLES names no folder";
    DecodeByCharacterSet(true);
    std::ifstream table(std::string(folder) + "/expected.tsv");
    std::string line;
    int compared = 0;
    while (std::getline(table, line)) {
        std::vector<std::string> cells(1);
        for (const char letter : line)
            letter == '\t' ? cells.emplace_back().clear() : cells.back().push_back(letter);
        if (cells.size() < 4 || cells[3].empty() || cells[0] == "path")
            continue;
        SCOPED_TRACE(cells[0]);
        QvxReaderPtr reader;
        if (Qvx2Parser_Open(&reader, (std::string(folder) + "/" + cells[0]).c_str(),
                            kQvxProgramOptions) != kQvxOK)
            continue;
        std::optional<QString> name;
        const dk_DicomCharacterEncoding encoding(reader.get());
        if (Parser_GetElementTextUni(reader.get(), encoding, kTagPatientName, &name) != kQvxOK ||
            !name)
            continue;
        ++compared;
        // The table lists names without padding and empty groups.
        while (name->endsWith(QChar(' ')) || name->endsWith(QChar(0)) || name->endsWith(QChar('=')))
            name->chop(1);
        EXPECT_EQ(Utf8(*name), cells[3]);
    }
    EXPECT_GT(compared, 50);
}

}  // namespace

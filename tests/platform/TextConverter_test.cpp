// Bytes to text: what each converter must get right for the files that need it.
#include "platform/TextConverter.h"

#include <gtest/gtest.h>
#include <string>

namespace {

std::string Utf8(const QString& text) { return text.toStdString(); }

TEST(TextConverter, strict_and_lenient)
{
    struct Row {
        const char* fault;
        const char* encoding;
        std::string bytes;
        const char* strict;  // null: none
        const char* lenient;
    };
    const Row rows[] = {
        {"nothing", "UTF-8", "", "", ""},
        {"an upper half", "ISO-8859-5", "\xBB\xEE", "Лю", "Лю"},
        {"Arabic digits", "ISO-8859-6", "12\xE2", "12ق", "12ق"},
        {"Thai", "TIS-620", "\xCA\xC1", "สม", "สม"},
        {"won for a backslash", "EUC-KR", "\\~\xB1\xE8", "\\~김", "\\~김"},
        {"yen for a backslash", "Shift_JIS", "\\~\xD4\x8E\x52", "\\~ﾔ山", "\\~ﾔ山"},
        {"supplementary kanji", "EUC-JP", "\xBB\xB3\x8F\xB0\xA1", "山丂", "山丂"},
        {"four bytes", "GB18030", "\xCD\xF5\x95\x32\x82\x36", "王𠀀", "王𠀀"},
        {"GBK beyond GB 2312", "GBK", "\x96\x7C", "東", "東"},
        {"a lone byte", "UTF-8", "a\xE9z", nullptr, "a�z"},
        {"cut at the end", "UTF-8", "a\xE2\x82", nullptr, "a�"},
        {"a control character for it", "EUC-KR", "a\xFFz", nullptr, "a�z"},
        {"the letter behind it goes too", "EUC-KR", "\xB1z\xB1\xE8", nullptr, "�z김"},
        {"a code of two bytes that is none", "EUC-JP", "a\xA9\xA1z", nullptr, "a�z"},
        {"upper half of nothing", "US-ASCII", "a\xE9\xE8z", nullptr, "a��z"},
        {"unknown set", "no such set", "a\xE9z", nullptr, "a�z"},
        {"escapes are followed", "ISO-2022-JP-1", "\x1B$B;3\x1B(B^", "山^", "山^"},
        {"supplementary by escape", "ISO-2022-JP-1", "\x1B$(D0!\x1B(Ba", "丂a", "丂a"},
        {"escapes with nothing behind", "ISO-2022-JP-1", "a\x1Bq", nullptr, nullptr},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.fault);
        const auto strict = TextFromBytes(row.bytes, row.encoding);
        EXPECT_EQ(strict.has_value(), row.strict != nullptr);
        if (strict && row.strict) {
            EXPECT_EQ(Utf8(*strict), row.strict);
        }
        if (row.lenient) {
            EXPECT_EQ(Utf8(TextFromBytesLenient(row.bytes, row.encoding)), row.lenient);
        }
    }
    EXPECT_FALSE(TextFromBytes("a", nullptr));
    EXPECT_EQ(Utf8(TextFromBytesLenient("a\xE9", nullptr)), "a�");
}

TEST(TextConverter, every_byte_is_a_character_of_mac_roman)
{
    std::string bytes;
    for (int byte = 0; byte < 256; ++byte)
        bytes += static_cast<char>(byte);
    const QString text = MacRomanText(bytes);
    ASSERT_EQ(text.size(), 256);
    EXPECT_FALSE(text.contains(QChar(0xFFFD)));
    EXPECT_EQ(Utf8(MacRomanText("J\x8Er\x99me \xA9 \xDB")), "Jérôme © €");
}

}  // namespace

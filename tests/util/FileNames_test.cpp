#include "util/FileNames.h"

#include <gtest/gtest.h>

TEST(CleanFileName, lets_no_text_lead_out_of_its_folder_or_past_the_limit)
{
    struct Row {
        const char* fault;
        std::string text;
        std::size_t maxBytes;
        std::string name;
    };
    const std::string umlaut = "\xC3\xA4";
    const Row rows[] = {
        {"a plain name is changed", "IM 1.dcm", 255, "IM 1.dcm"},
        {"climbs", "../../etc/passwd", 255, "___.._etc_passwd"},
        {"is the folder itself", ".", 255, "_"},
        {"is nothing", "", 255, "_"},
        {"ends at a NUL", std::string("a\0b", 3), 255, "a_b"},
        {"forges a line", "a\nb\x7F\xC2\x85\xE2\x80\xA8", 255, "a_b___"},
        {"reads backwards", "a\xE2\x80\xAEgpj\xE2\x81\xA6", 255, "a_gpj_"},
        {"loses its own bytes", "\xE4\xFF\xE2\x80", 255, "\xE4\xFF\xE2\x80"},
        {"is too long", "abcdef", 4, "abcd"},
        {"splits a character", "abc" + umlaut, 4, "abc"},
        {"a character that fits is cut", "ab" + umlaut + "c", 4, "ab" + umlaut},
        {"cuts without end in what is no UTF-8", "a\x80\x80\x80\x80\x80\x80", 6,
         "a\x80\x80\x80\x80\x80"},
    };
    for (const Row& row : rows)
        EXPECT_EQ(CleanFileName(row.text, row.maxBytes), row.name) << row.fault;
}

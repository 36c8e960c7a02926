// Text of a file must not forge a log line or a terminal sequence.
#include "util/Log.h"

#include <gtest/gtest.h>

TEST(EscapedText, keeps_letters_and_escapes_the_rest)
{
    struct Row {
        const char* fault;
        std::string text, wanted;
    };
    const Row rows[] = {
        {"plain", "PATIENT^A", "PATIENT^A"},
        {"UTF-8 letters stay", "J\xC3\xA9r\xC3\xB4me", "J\xC3\xA9r\xC3\xB4me"},
        {"line break and escape", "a\nb\x1B[2J", "a\\x0Ab\\x1B[2J"},
        {"a lone lead byte", "x\xC3", "x\\xC3"},
        {"an overlong slash", "\xC0\xAF", "\\xC0\\xAF"},
        {"a surrogate", "\xED\xA0\x80", "\\xED\\xA0\\x80"},
        {"a C1 control", "\xC2\x9B", "\\xC2\\x9B"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.fault);
        EXPECT_EQ(EscapedText(row.text), row.wanted);
    }
}

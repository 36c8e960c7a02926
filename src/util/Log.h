// Plain lines to the system log (standard error), no levels. One call is one line: control
// characters of `text` come out escaped, so that text from a file can't forge a line.
#pragma once
#include <string>
#include <string_view>

void LogLine(std::string_view text);
// Where lines go instead of standard error, escaped and without their ends; null: there. For a
// command that says one line of its own.
using LogSink = void (*)(std::string_view line);
void SetLogSink(LogSink sink);
// `text` with control characters, and bytes that are no UTF-8, as \xNN. For logs and terminals.
[[nodiscard]] std::string EscapedText(std::string_view text);

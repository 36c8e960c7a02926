#include "util/Log.h"

#include <cstdio>

namespace {

LogSink sSink = nullptr;

// Length of the well-formed UTF-8 sequence that `text` begins with; 0 when there is none.
std::size_t Utf8Length(std::string_view text)
{
    const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
    const unsigned lead = byte(0);
    const std::size_t length = lead < 0x80                    ? 1
                               : lead >= 0xC2 && lead < 0xE0  ? 2
                               : lead >= 0xE0 && lead < 0xF0  ? 3
                               : lead >= 0xF0 && lead <= 0xF4 ? 4
                                                              : 0;
    if (length == 0 || length > text.size())
        return 0;
    for (std::size_t i = 1; i < length; ++i) {
        if ((byte(i) & 0xC0) != 0x80)
            return 0;
    }
    const bool overlong = (lead == 0xE0 && byte(1) < 0xA0) || (lead == 0xF0 && byte(1) < 0x90);
    const bool outside = (lead == 0xED && byte(1) > 0x9F) || (lead == 0xF4 && byte(1) > 0x8F);
    const bool c1Control = lead == 0xC2 && length == 2 && byte(1) < 0xA0;
    return overlong || outside || c1Control ? 0 : length;
}

}  // namespace

std::string EscapedText(std::string_view text)
{
    static constexpr char kHex[] = "0123456789ABCDEF";
    std::string out;
    out.reserve(text.size());
    for (std::size_t i = 0; i < text.size();) {
        const auto c = static_cast<unsigned char>(text[i]);
        const std::size_t length = c < 0x20 || c == 0x7F ? 0 : Utf8Length(text.substr(i));
        if (length > 0) {
            out.append(text, i, length);
            i += length;
        } else {
            out += {'\\', 'x', kHex[c >> 4], kHex[c & 15]};
            ++i;
        }
    }
    return out;
}

void SetLogSink(LogSink sink) { sSink = sink; }

void LogLine(std::string_view text)
{
    std::string line = EscapedText(text);
    if (sSink)
        return sSink(line);
    line += '\n';
    std::fwrite(line.data(), 1, line.size(), stderr);
}

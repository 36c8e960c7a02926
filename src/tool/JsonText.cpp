#include "tool/JsonText.h"

#include "tool/CommandLine.h"

#include <array>
#include <cmath>
#include <cstdio>

namespace {

constexpr std::size_t kBlock = 1 << 16;

// Length of the well-formed UTF-8 sequence that begins `text`; 0 for none.
std::size_t SequenceLength(std::string_view text)
{
    const auto at = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
    const unsigned char lead = at(0);
    if (lead < 0x80)
        return 1;
    const std::size_t length = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
    if (lead < 0xC2 || lead > 0xF4 || text.size() < length)
        return 0;
    for (std::size_t i = 1; i < length; ++i)
        if ((at(i) & 0xC0) != 0x80)
            return 0;
    const bool overlong = (lead == 0xE0 && at(1) < 0xA0) || (lead == 0xF0 && at(1) < 0x90);
    const bool beyond = (lead == 0xED && at(1) > 0x9F) || (lead == 0xF4 && at(1) > 0x8F);
    return overlong || beyond ? 0 : length;
}

std::string Escaped(unsigned int unit)
{
    std::array<char, 8> text{};
    std::snprintf(text.data(), text.size(), "\\u%04x", unit);
    return text.data();
}

}  // namespace

JsonWriter::~JsonWriter() { Flush(); }

void JsonWriter::Flush()
{
    Say(fOut);
    fOut.clear();
}

void JsonWriter::Put(std::string_view text)
{
    fOut += text;
    if (fOut.size() >= kBlock)
        Flush();
}

void JsonWriter::Separate()
{
    if (!fFirst && !fAfterKey)
        Put(",");
    fFirst = fAfterKey = false;
}

JsonWriter& JsonWriter::Open(char bracket)
{
    Separate();
    Put(std::string_view(&bracket, 1));
    fFirst = true;
    return *this;
}

JsonWriter& JsonWriter::Close(char bracket)
{
    Put(std::string_view(&bracket, 1));
    fFirst = false;
    return *this;
}

JsonWriter& JsonWriter::Key(std::string_view key)
{
    Text(key);
    Put(":");
    fAfterKey = true;
    return *this;
}

JsonWriter& JsonWriter::Text(std::string_view bytes)
{
    Separate();
    PutQuoted(bytes);
    return *this;
}

void JsonWriter::PutQuoted(std::string_view bytes)
{
    Put("\"");
    while (!bytes.empty()) {
        const std::size_t length = SequenceLength(bytes);
        const auto byte = static_cast<unsigned char>(bytes[0]);
        if (length == 0)
            Put(Escaped(0xDC00U + byte));
        else if (byte < 0x20 || byte == 0x7F)
            Put(Escaped(byte));
        else if (byte == '"' || byte == '\\')
            Put(byte == '"' ? "\\\"" : "\\\\");
        else
            Put(bytes.substr(0, length));
        bytes.remove_prefix(length ? length : 1);
    }
    Put("\"");
}

JsonWriter& JsonWriter::Number(std::int64_t number)
{
    Separate();
    Put(std::to_string(number));
    return *this;
}

JsonWriter& JsonWriter::Real(double number)
{
    Separate();
    std::array<char, 400> text{};
    std::snprintf(text.data(), text.size(), "%.3f", std::isfinite(number) ? number : 0.0);
    Put(text.data());
    return *this;
}

JsonWriter& JsonWriter::Bool(bool value)
{
    Separate();
    Put(value ? "true" : "false");
    return *this;
}

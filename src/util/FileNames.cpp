#include "util/FileNames.h"

#include <algorithm>

namespace {

constexpr bool IsContinuation(char byte)
{
    return (static_cast<unsigned char>(byte) & 0xC0) == 0x80;
}

// Bytes of the unwanted character that `text` begins with; 0 for any other.
std::size_t UnwantedLength(std::string_view text)
{
    const auto byte = [text](std::size_t index) {
        return index < text.size() ? static_cast<unsigned char>(text[index]) : 0U;
    };
    const unsigned first = byte(0);
    if (first < 0x20 || first == 0x7F || first == '/' || first == '\\' || first == ':')
        return 1;
    if (first == 0xC2 && byte(1) >= 0x80 && byte(1) <= 0x9F)  // U+0080 to U+009F
        return 2;
    if (first != 0xE2)
        return 0;
    const bool separator = byte(1) == 0x80 && byte(2) >= 0xA8 && byte(2) <= 0xAE;  // U+2028 to 202E
    const bool isolate = byte(1) == 0x81 && byte(2) >= 0xA6 && byte(2) <= 0xA9;    // U+2066 to 2069
    return separator || isolate ? 3 : 0;
}

// At most `most`, and not inside a character.
std::size_t CutAt(const std::string& name, std::size_t most)
{
    if (name.size() <= most)
        return name.size();
    std::size_t cut = most;
    while (cut > 0 && most - cut < 3 && IsContinuation(name[cut]))
        --cut;
    return cut > 0 && !IsContinuation(name[cut]) ? cut : most;  // else these are no characters
}

}  // namespace

std::string CleanFileName(std::string_view text, std::size_t maxBytes)
{
    std::string name;
    name.reserve(text.size());
    while (!text.empty()) {
        const std::size_t unwanted = UnwantedLength(text);
        name += unwanted > 0 ? '_' : text.front();
        text.remove_prefix(std::max<std::size_t>(unwanted, 1));
    }
    for (char& character : name) {
        if (character != '.')
            break;
        character = '_';
    }
    name.resize(CutAt(name, std::max<std::size_t>(maxBytes, 1)));
    return name.empty() ? "_" : name;
}

#include "platform/DesktopLinks.h"

#include "platform/HiddenNames.h"

#include <algorithm>
#include <fcntl.h>

namespace {

constexpr std::size_t kMaxLinkFile = 64 * 1024;

std::string_view Trimmed(std::string_view text)
{
    const std::size_t first = text.find_first_not_of(" \t\r");
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(" \t\r") - first + 1);
}

int HexDigit(char c)
{
    if (c >= '0' && c <= '9')
        return c - '0';
    const char lower = static_cast<char>(c | 0x20);
    return lower >= 'a' && lower <= 'f' ? lower - 'a' + 10 : -1;
}

// False for a broken escape, and for a NUL, which no path holds.
bool PercentDecoded(std::string_view text, std::string* bytes)
{
    bytes->clear();
    for (std::size_t i = 0; i < text.size(); ++i) {
        char c = text[i];
        if (c == '%') {
            const int high = i + 2 < text.size() ? HexDigit(text[i + 1]) : -1;
            const int low = i + 2 < text.size() ? HexDigit(text[i + 2]) : -1;
            if (high < 0 || low < 0)
                return false;
            c = static_cast<char>(high * 16 + low);
            i += 2;
        }
        if (c == '\0')
            return false;
        bytes->push_back(c);
    }
    return true;
}

bool PathOfFileURL(std::string_view url, std::string* path)
{
    constexpr std::string_view kScheme = "file:";
    if (!url.starts_with(kScheme))
        return false;
    url.remove_prefix(kScheme.size());
    if (url.starts_with("//")) {  // then comes a host, of which only this one will do
        url.remove_prefix(2);
        const std::size_t slash = std::min(url.find('/'), url.size());
        const std::string_view host = url.substr(0, slash);
        if (!host.empty() && host != "localhost")
            return false;
        url.remove_prefix(slash);
    }
    std::string bytes;
    if (!url.starts_with('/') || !PercentDecoded(url, &bytes))
        return false;
    *path = std::move(bytes);
    return true;
}

}  // namespace

bool PathOfDesktopLink(std::string_view text, std::string* target)
{
    bool inEntry = false, isLink = false;
    std::string_view url;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        const std::string_view line = Trimmed(text.substr(0, end));
        text.remove_prefix(std::min(end + 1, text.size()));
        const std::size_t equals = line.find('=');
        if (line.starts_with('['))
            inEntry = line == "[Desktop Entry]";
        if (!inEntry || line.starts_with('#') || equals == std::string_view::npos)
            continue;
        const std::string_view key = Trimmed(line.substr(0, equals));
        const std::string_view value = Trimmed(line.substr(equals + 1));
        if (key == "Type")
            isLink = value == "Link";
        else if (key == "URL")
            url = value;
    }
    return isLink && PathOfFileURL(url, target);
}

bool ReadDesktopLink(const std::string& path, std::string* target)
{
    std::string text;
    return path.ends_with(".desktop") &&
           ReadSmallFile(AT_FDCWD, path.c_str(), kMaxLinkFile, &text) &&
           PathOfDesktopLink(text, target);
}

#include "dicom_core/values/TrimText.h"

#include <algorithm>

namespace {

// Goes backward and drops each sign for which `joins(it, the sign kept behind it)` holds. The kept
// ones move to the front; their number is the result.
template <typename Joins>
std::size_t CollapseBackward(std::span<char> text, Joins joins)
{
    std::size_t first = text.size();
    for (std::size_t i = text.size(); i-- > 0;) {
        if (first < text.size() && joins(text[i], text[first]))
            continue;
        text[--first] = text[i];
    }
    std::ranges::copy(text.subspan(first), text.begin());
    return text.size() - first;
}

std::size_t CollapseRuns(std::span<char> text, char sign)
{
    return CollapseBackward(text, [sign](char a, char b) { return a == sign && b == sign; });
}

}  // namespace

void TrimTrailingSpaces(std::string* text) { text->resize(text->find_last_not_of(' ') + 1); }

void TrimTrailingSpaces(std::span<char> block)
{
    std::size_t end = block.size();
    while (end > 0 && block[end - 1] == '\0')
        --end;
    while (end > 0 && block[end - 1] == ' ')
        block[--end] = '\0';
}

void TrimNewlines(std::string* text)
{
    text->resize(CollapseBackward(*text, [](char left, char right) {
        return (left == '\r' && (right == '\r' || right == '\n')) ||
               (left == '\n' && right == '\n');
    }));
    std::ranges::replace_if(*text, [](char c) { return c == '\r' || c == '\n'; }, ' ');
}

void TrimCarets(std::string* text)
{
    text->resize(CollapseRuns(*text, '^'));
    std::ranges::replace(*text, '^', ' ');
}

void TrimCarets(std::span<char> block)
{
    std::ranges::fill(block.subspan(CollapseRuns(block, '^')), '\0');
    std::ranges::replace(block, '^', ' ');
}

void TrimDoubleSpaces(std::string* text) { text->resize(CollapseRuns(*text, ' ')); }

void TrimDoubleSpaces(std::span<char> block)
{
    std::ranges::fill(block.subspan(CollapseRuns(block, ' ')), '\0');
}

void TrimFrontAndTrailingSpaces(std::string* text)
{
    TrimTrailingSpaces(text);
    text->erase(0, std::min(text->find_first_not_of(' '), text->size()));
}

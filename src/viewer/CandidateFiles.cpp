#include "viewer/CandidateFiles.h"

#include <algorithm>
#include <compare>
#include <filesystem>
#include <system_error>

namespace fs = std::filesystem;

namespace {

bool IsDigit(char c) { return c >= '0' && c <= '9'; }
char LowerCase(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

// Takes the digits that `text` begins with off it; answers them without leading zeros.
std::string_view TakeNumber(std::string_view* text)
{
    const auto end = std::ranges::find_if_not(*text, IsDigit);
    auto number = text->substr(0, static_cast<std::size_t>(end - text->begin()));
    text->remove_prefix(number.size());
    number.remove_prefix(std::min(number.find_first_not_of('0'), number.size()));
    return number;
}

std::weak_ordering NaturalOrder(std::string_view a, std::string_view b)
{
    while (!a.empty() && !b.empty()) {
        if (IsDigit(a.front()) && IsDigit(b.front())) {
            // Without leading zeros the longer number is the greater, however many digits it has.
            const std::string_view left = TakeNumber(&a), right = TakeNumber(&b);
            if (left.size() != right.size())
                return left.size() <=> right.size();
            if (left != right)
                return left <=> right;
            continue;
        }
        const auto left = static_cast<unsigned char>(LowerCase(a.front()));
        const auto right = static_cast<unsigned char>(LowerCase(b.front()));
        if (left != right)
            return left <=> right;
        a.remove_prefix(1);
        b.remove_prefix(1);
    }
    return a.size() <=> b.size();
}

void AddFolder(const std::string& path, CandidateList* list)
{
    std::error_code error;
    std::vector<std::string> names;
    fs::directory_iterator entry(path, error);
    for (; !error && entry != fs::directory_iterator(); entry.increment(error)) {
        std::error_code gone;
        if (entry->is_regular_file(gone))
            names.push_back(entry->path().filename().native());
    }
    if (error)
        list->problems.push_back(path + ": " + error.message());
    else if (names.empty())
        list->problems.push_back(path + ": no file in this folder");
    std::ranges::sort(names, NaturalLess);
    for (const std::string& name : names)
        list->files.push_back((fs::path(path) / name).native());
}

}  // namespace

bool NaturalLess(std::string_view a, std::string_view b)
{
    const auto order = NaturalOrder(a, b);
    return order != 0 ? order < 0 : a < b;
}

CandidateList CandidateFiles(const std::vector<std::string>& paths)
{
    CandidateList list;
    for (const std::string& path : paths) {
        std::error_code error;
        const fs::file_status status = fs::status(path, error);
        if (fs::is_directory(status))
            AddFolder(path, &list);
        else if (fs::is_regular_file(status))
            list.files.push_back(path);
        else if (error)
            list.problems.push_back((path.empty() ? "empty path" : path) + ": " + error.message());
        else
            list.problems.push_back(path + ": neither a file nor a folder");
    }
    return list;
}

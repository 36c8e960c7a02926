#include "tool/CommandLine.h"

#include "util/Log.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdio>

std::string ParsedWords::Value(std::string_view option, std::string otherwise) const
{
    const auto found = fOptions.find(option);
    return found != fOptions.end() ? found->second : std::move(otherwise);
}

ParsedWords ParseWords(CommandWords words, std::initializer_list<CommandOption> options)
{
    ParsedWords parsed;
    bool onlyPaths = false;
    for (std::size_t i = 0; i < words.size() && parsed.fProblem.empty(); ++i) {
        const std::string& word = words[i];
        if (onlyPaths || word.size() < 2 || word[0] != '-') {
            parsed.fPaths.push_back(word);
            continue;
        }
        if (word == "--") {
            onlyPaths = true;
            continue;
        }
        const auto option = std::ranges::find(options, word, &CommandOption::fName);
        if (option == options.end())
            parsed.fProblem = "unknown option " + word;
        else if (parsed.Has(word))
            parsed.fProblem = word + " is given twice";
        else if (option->fTakesValue && i + 1 == words.size())
            parsed.fProblem = word + " needs a value";
        else
            parsed.fOptions[word] = option->fTakesValue ? words[++i] : std::string();
    }
    return parsed;
}

namespace {

template <typename T>
bool ParseWhole(std::string_view text, T* number)
{
    T parsed{};
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), parsed);
    if (error != std::errc() || end != text.data() + text.size())
        return false;
    *number = parsed;
    return true;
}

}  // namespace

bool ParseNumber(std::string_view text, std::uint32_t* number) { return ParseWhole(text, number); }

bool ParseNumber(std::string_view text, double* number)
{
    double parsed = 0;
    if (!ParseWhole(text, &parsed) || !std::isfinite(parsed))
        return false;
    *number = parsed;
    return true;
}

int Failure(std::string_view path, std::string_view reason)
{
    std::fflush(stdout);  // lines of both streams stay in order on a terminal
    LogLine(std::string(path) + ": " + std::string(reason));
    return kExitFailure;
}

int WrongUsage(std::string_view problem)
{
    LogLine("zelora: " + std::string(problem) + " (zelora --help tells more)");
    return kExitUsage;
}

void Say(std::string_view text) { std::fwrite(text.data(), 1, text.size(), stdout); }

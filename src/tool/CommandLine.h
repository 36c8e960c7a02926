// Words of a command line, and the lines that a command says. No knowledge of DICOM.
#pragma once
#include "tool/Commands.h"

#include <initializer_list>
#include <map>
#include <string>
#include <string_view>
#include <vector>

struct CommandOption {
    std::string_view fName;  // "-n", "--raw"
    bool fTakesValue = false;
};

// Options may stand anywhere; behind "--" everything is a path. An option given twice, an unknown
// one, or one without its value makes `fProblem`.
struct ParsedWords {
    std::map<std::string, std::string, std::less<>> fOptions;
    std::vector<std::string> fPaths;
    std::string fProblem;  // in words; empty when all is well

    [[nodiscard]] bool Has(std::string_view option) const { return fOptions.contains(option); }
    // The option's value, or `otherwise`.
    [[nodiscard]] std::string Value(std::string_view option, std::string otherwise = {}) const;
};
[[nodiscard]] ParsedWords ParseWords(CommandWords words,
                                     std::initializer_list<CommandOption> options);

// All of `text` as a number (a finite one); false, and nothing set, for anything else.
[[nodiscard]] bool ParseNumber(std::string_view text, std::uint32_t* number);
[[nodiscard]] bool ParseNumber(std::string_view text, double* number);

// One line on standard error, and the exit code that goes with it. Paths and reasons are escaped.
int Failure(std::string_view path, std::string_view reason);
int WrongUsage(std::string_view problem);
// To standard output, as it is. main() finds out whether it arrived.
void Say(std::string_view text);

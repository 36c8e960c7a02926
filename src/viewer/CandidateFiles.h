// Which files the paths of the command line stand for. Paths are bytes throughout.
#pragma once
#include <string>
#include <string_view>
#include <vector>

// True when `a` comes before `b` as people sort names: runs of digits by their number ("IM9" before
// "IM10"), ASCII letters without regard to case. A total order: names that differ never tie.
[[nodiscard]] bool NaturalLess(std::string_view a, std::string_view b);

struct CandidateList {
    std::vector<std::string> files;     // regular files, by stat; not opened
    std::vector<std::string> problems;  // one plain line for each path that gave none
};

// A path of a file stands for itself; that of a folder for the regular files in it, symbolic links
// to such files included, in natural order and without its subfolders. Paths keep their order.
// Anything else (pipes, devices) is a problem, and is not opened to find out.
[[nodiscard]] CandidateList CandidateFiles(const std::vector<std::string>& paths);

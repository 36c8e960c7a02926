// The names that a folder's ".hidden" file hides, one a line.
#pragma once
#include <string>
#include <string_view>
#include <unordered_set>

inline constexpr std::string_view kHiddenNamesFile = ".hidden";
using HiddenNames = std::unordered_set<std::string>;

// Of the folder open as `folder`. Empty if there is no such file, or it is no regular file, or it
// can't be read; what stands past 64 KiB is not looked at.
[[nodiscard]] HiddenNames ReadHiddenNames(int folder);

// The start of a small regular file in `folder` (AT_FDCWD for a plain path), at most `limit` bytes.
// Links are not followed and nothing else than a regular file is opened for reading. False if there
// is nothing to read.
[[nodiscard]] bool ReadSmallFile(int folder, const char* path, std::size_t limit,
                                 std::string* text);

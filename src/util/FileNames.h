// Text from a file on its way into a file name.
#pragma once
#include <cstddef>
#include <string>
#include <string_view>

inline constexpr std::size_t kMaxFileNameBytes = 255;

// `text` as the name of a file: "_" for each control and separator character ("/", "\", ":", line
// and paragraph separators, marks that turn the writing direction) and each leading ".", at most
// `maxBytes` long, cut between two characters. Never empty. Bytes that are no UTF-8 stay.
[[nodiscard]] std::string CleanFileName(std::string_view text,
                                        std::size_t maxBytes = kMaxFileNameBytes);

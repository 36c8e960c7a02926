// Parts of paths, which are bytes.
#pragma once
#include <QString>
#include <string>
#include <string_view>

// Behind the last "/", trailing ones aside; "/" for the root.
[[nodiscard]] std::string LastComponent(const std::string& path);
// In front of the last component; "/" for the root, empty for a bare name.
[[nodiscard]] std::string ParentFolder(const std::string& path);
// `folder` and `name` with one "/" between them.
[[nodiscard]] std::string JoinedPath(const std::string& folder, const std::string& name);
// The last component for people: control characters, and bytes that are no UTF-8, as \xNN.
[[nodiscard]] QString DisplayName(const std::string& path);
// Written one way: absolute, without "." and "..", doubled or trailing "/". Links are not followed.
[[nodiscard]] std::string StandardisedPath(const std::string& path);

// In upper case: of any alphabet if the name is UTF-8, else of ASCII alone.
[[nodiscard]] std::string UpperCaseName(std::string_view name);

// The folder without links in its path, with a "/" behind; empty if it isn't there.
[[nodiscard]] std::string RealFolder(const std::string& path);
// Does a link end at something below such a folder? Nothing is below an empty one. What lies
// outside of what was chosen was not chosen.
[[nodiscard]] bool LeadsInto(const std::string& link, const std::string& realFolder);

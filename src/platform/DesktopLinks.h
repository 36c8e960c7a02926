// Desktop link files: a small text file that stands for another file or folder.
#pragma once
#include <string>
#include <string_view>

// The path that the text of a link file leads to: Type=Link and a URL of the form "file:" in the
// group "Desktop Entry". False for any other text; `target` is absolute then, bytes.
[[nodiscard]] bool PathOfDesktopLink(std::string_view text, std::string* target);

// The same from a file, whose name must end in ".desktop" and whose first 64 KiB count.
[[nodiscard]] bool ReadDesktopLink(const std::string& path, std::string* target);

// Which file: its path, as bytes. Empty names no file.
#pragma once
#include <string>

struct FileRef {
    std::string fPath;
    [[nodiscard]] bool Empty() const { return fPath.empty(); }
    bool operator==(const FileRef&) const = default;
};

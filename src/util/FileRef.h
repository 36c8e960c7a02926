// Which file: its path, as bytes. Empty names no file.
#pragma once
#include <cstdint>
#include <string>

struct FileRef {
    std::string fPath;
    [[nodiscard]] bool Empty() const { return fPath.empty(); }
    bool operator==(const FileRef&) const = default;
};

// Which state of which file: one that is opened again later is the same only if all agree. A file
// without bytes is nobody's.
struct FileIdentity {
    std::uint64_t fDevice = 0, fInode = 0, fSize = 0;
    std::int64_t fModified_ns = 0;
    [[nodiscard]] bool Known() const { return fSize != 0; }
    bool operator==(const FileIdentity&) const = default;
};

// A zip archive of texts, written whole or not at all.
#pragma once
#include "util/StatusCodes.h"

#include <string>
#include <vector>

struct ZipEntry {
    std::string name, bytes;
};

// A new file at `path` (bytes) with the entries at the highest compression, readable by the user
// alone. An errno, or kQvxOutOfMemory; nothing is left at the path then.
[[nodiscard]] QvxStatus WriteZipArchive(const std::string& path,
                                        const std::vector<ZipEntry>& entries);

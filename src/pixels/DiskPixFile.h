// Bytes of a disk store's file. Internal to this folder.
#pragma once
#include "util/StatusCodes.h"

#include <cstddef>
#include <cstdint>

// What an errno means here: no room on the disk, no room in the folder, too many files.
[[nodiscard]] QvxStatus DiskStatusOf(int error);
// Gives the file its size, and takes the room for it where the file system can.
[[nodiscard]] QvxStatus ReserveFile(int file, std::int64_t size);
// All of the bytes, or an error; kQvxEndOfFile when the file lacks some.
[[nodiscard]] QvxStatus ReadAt(int file, std::int64_t offset, void* bytes, std::size_t count);
[[nodiscard]] QvxStatus WriteAt(int file, std::int64_t offset, const void* bytes,
                                std::size_t count);

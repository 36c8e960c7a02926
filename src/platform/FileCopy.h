// One file copied with what belongs to it: modification time, permissions, the user's extended
// attributes. The source is only read. Paths are bytes. Any thread.
#pragma once
#include "util/StatusCodes.h"

#include <cstdint>
#include <functional>
#include <string>

enum class FileCopyEvent : std::uint8_t {
    Progress,  // one more piece has been copied
    Error,     // a read or a write of data failed; going on tries the same piece again
};

// `copied` and `total` are bytes. False ends the copy.
using FileCopyCallback =
    std::function<bool(FileCopyEvent event, std::uint64_t copied, std::uint64_t total)>;

inline constexpr std::size_t kFileCopyPiece = 64 * 1024;  // bytes at most between two events

// Copies the regular file `source` to `target`, which must not exist and lies in a folder that
// does. Pipes, devices, folders and links are refused without waiting. The copy has a name of its
// own (hidden, in the same folder) until it is complete; after a failure nothing of it is left.
//   EEXIST         there is something at `target`; it stays as it was, and nothing has been read
//   ECANCELED      `callback` ended the copy
//   kQvxNotOfKind  `source` is no regular file (ELOOP for a link)
//   kQvxEndOfFile  `source` has become shorter meanwhile
// and any other errno. What the target's file system can't keep beside the data is no failure.
[[nodiscard]] QvxStatus CopyOneFile(const std::string& source, const std::string& target,
                                    const FileCopyCallback& callback);

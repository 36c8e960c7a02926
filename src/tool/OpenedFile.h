// Files in and out, as every command handles them.
#pragma once
#include "Qvx2Parser/Qvx2Reader.h"
#include <span>
#include <string>

// Opens the file at `path` as the program opens it: a regular file that proves to be DICOM and
// whose header can be walked, if only in part. Never waits. On failure `why` says the reason in a
// few words, with tag and offset where the data itself is at fault; after a success it is empty, or
// says where the header breaks off. A header that is nothing but a fault still gives `reader`.
[[nodiscard]] QvxStatus OpenDicomFile(const std::string& path, QvxReaderPtr* reader,
                                      std::string* why);

// Writes all of `bytes` under a temporary name in the folder of `path` and renames it when it is
// complete; a failure leaves nothing behind and what stood at `path` as it was. What stands there
// must be a regular file or nothing. Answers an errno or kQvxNotOfKind; `why` is the reason.
[[nodiscard]] QvxStatus WriteWholeFile(const std::string& path, std::span<const std::uint8_t> bytes,
                                       std::string* why);

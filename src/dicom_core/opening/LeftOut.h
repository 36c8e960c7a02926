// Why an open leaves a file out, in a few plain words.
#pragma once
#include "util/StatusCodes.h"

#include <string>
#include <string_view>

inline constexpr std::string_view kLeftOutHidden = "hidden";
inline constexpr std::string_view kLeftOutFolder = "a folder (subfolders are not scanned)";
inline constexpr std::string_view kLeftOutPackage = "an application bundle";
inline constexpr std::string_view kLeftOutTooDeep = "nested too deeply";
inline constexpr std::string_view kLeftOutLink = "a link that leads to no file of the folder";
inline constexpr std::string_view kLeftOutSpecial = "a device, pipe or socket";
inline constexpr std::string_view kLeftOutNotDicom = "not DICOM";
inline constexpr std::string_view kLeftOutReport = "a structured report";
inline constexpr std::string_view kLeftOutNoPixels = "no pixel data";
inline constexpr std::string_view kLeftOutNotThere = "named by the directory, not there";
inline constexpr std::string_view kLeftOutNoName = "its directory record names no file";
inline constexpr std::string_view kLeftOutNoBytes = "an empty file";
inline constexpr std::string_view kLeftOutNoImage = "no image by its directory record";
inline constexpr std::string_view kLeftOutNotCopied = "not copied to the cache";

// Of a file or folder that could not be opened, or a header that could not be read.
[[nodiscard]] std::string LeftOutReason(QvxStatus status);
// Of a file that equals the one at `path` (bytes) in what tells images apart.
[[nodiscard]] std::string LeftOutCopyOf(const std::string& path);

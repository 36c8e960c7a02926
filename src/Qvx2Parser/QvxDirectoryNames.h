// Words of directory records: their types, and the paths that a Referenced File ID stands for.
// A relative path begins with ":" and has ":" between its components, whatever the file system.
#pragma once
#include <cstdint>
#include <string>
#include <string_view>

inline constexpr std::int32_t kDirRecordPatient = 1;
inline constexpr std::int32_t kDirRecordStudy = 2;
inline constexpr std::int32_t kDirRecordSeries = 3;
inline constexpr std::int32_t kDirRecordImage = 4;
inline constexpr std::int32_t kDirRecordOther = 25;

// Number of a directory record type, 1 to 24 in the order of the table in the source, from the text
// of (0004,1430) without trailing blanks; kDirRecordOther for any other text.
[[nodiscard]] std::int32_t DicomUtil_DirRecordType(std::string_view text);

// The relative path of a Referenced File ID, whose values are joined by backslashes:
// "DIR1\DIR2\FILE1  " gives ":DIR1:DIR2:FILE1", blanks alone give ":". Nothing is checked: ".."
// stays a component, and who opens the file must refuse it.
void DicomUtil_RefFileIDToPath(std::string_view text, std::string* path);
// Moves the last component of `path` to `name` and cuts the path in front of its ":". With fewer
// than 2 characters, or without a ":" behind the first, the name is empty and the path stays: a
// file beside the directory, ":IM1", is not split, and what stands behind its ":" is its name.
void DicomUtil_SplitFilenameFromRelPathToParent(std::string* path, std::string* name);

// The files that crashes have left. Paths are bytes. Main thread only.
#pragma once
#include "platform/ZipArchive.h"

#include <string>
#include <string_view>
#include <vector>

inline constexpr std::string_view kCrashSuffix = ".crash", kHangSuffix = ".hang";

// Below `folder`, at any depth: the files that begin with the program's name and "_" and end in
// `suffix`, in the order of their names. Whole paths.
[[nodiscard]] std::vector<std::string> U_CollectCrashReportPaths(const std::string& programName,
                                                                 const std::string& folder,
                                                                 std::string_view suffix);
[[nodiscard]] bool U_CrashReportExists(const std::string& programName, const std::string& folder);
// `name` in `folder`, or with "_1", "_2", … before its extension: one that is free.
[[nodiscard]] std::string U_GetUniqueFileName(const std::string& folder, const std::string& name);
// All but the last `kept` of each kind are deleted.
void clearOlderCrashLogs(const std::string& programName, const std::string& folder, int kept = 1);
// A file's text in UTF-8, its first 256 KiB; bytes that are none become question marks.
[[nodiscard]] std::string ReportFileText(const std::string& path);
// The lines that the system has kept of this user's runs of the program, where it tells them; the
// last 256 KiB.
[[nodiscard]] std::string SystemLogText(const std::string& programName);
// "CrashLogs.zip" of the entries, in `folder`; empty if it can't be written, which is logged, or
// there is no folder.
[[nodiscard]] std::string zipCrashLogs(const std::string& folder,
                                       const std::vector<ZipEntry>& entries);

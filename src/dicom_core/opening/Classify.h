// What a path is, before anything is parsed. Paths are bytes.
#pragma once
#include "dicom_core/opening/OpenSettings.h"

// 0 at launch; set as soon as the user or the system has asked for anything to be opened.
extern bool gOpenFileCalled;  // main thread, and the worker it waits for

// Flavor and target of what was asked for; flavor 0 for a path that leads nowhere.
void U_ShouldWeOpenFileWithPath(const std::string& path, bool skipDICOMDIR, std::int32_t* flavor,
                                std::string* target);
[[nodiscard]] bool IsDicomDirFile(const std::string& path, bool checkName);
[[nodiscard]] bool U_File_IsInvisible(const std::string& path);
[[nodiscard]] bool U_File_IsAcceptable(const std::string& path);
[[nodiscard]] bool U_Folder_IsPackage(const std::string& path);
[[nodiscard]] bool U_Folder_IsAcceptable(const std::string& path);
// Path of the file "DICOMDIR", else "dicomdir", directly inside; empty if there is none.
[[nodiscard]] std::string DirectoryFileIn(const std::string& folder);

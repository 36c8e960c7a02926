// The user's folders after the XDG base directories, each with "org.zelora.Viewer" at its end.
// Paths are bytes, without a final "/". Any thread.
#pragma once
#include <string>

// Each is made when asked for, readable by the user alone (0700), parents included. Empty if it
// can't be made.
[[nodiscard]] std::string UserCachesFolder();
[[nodiscard]] std::string UserConfigFolder();
[[nodiscard]] std::string UserDataFolder();
// Under TMPDIR or "/tmp": a folder that is the user's own, not readable by others. A folder of its
// name that belongs to somebody else, or is a link, is not used; another name is taken then.
[[nodiscard]] std::string TemporaryFolder();

// Where the configuration folder lies, without making it. Empty if there is no home folder.
[[nodiscard]] std::string UserConfigFolderPath();
// HOME, or the home folder of the user database. Empty if there is none.
[[nodiscard]] std::string UserHomeFolder();
// Makes `path` and what is missing above it, with mode 0700. False if it isn't a folder afterwards.
[[nodiscard]] bool MakePrivateFolders(const std::string& path);

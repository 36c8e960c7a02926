// The desktop's file manager. Paths are bytes. Main thread only.
#pragma once
#include <functional>
#include <string>
#include <vector>

// Shows the files there, selected, in one go. Returns at once. Where no file manager answers that
// can, `openFolder` gets each folder that holds one of them, once. An empty `busAddress` is the
// session's bus.
void RevealInFileManager(const std::vector<std::string>& paths,
                         std::function<void(const std::string& folder)> openFolder,
                         const std::string& busAddress = {});

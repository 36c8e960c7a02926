// What a window asks of the program around it. Everything here is carried out later, from the event
// loop, so that a window may be gone by then. Main thread only.
#pragma once
#include <cstddef>
#include <string>
#include <vector>

class ZELRecentDocuments;

class ViewerCommands {
public:
    virtual ~ViewerCommands() = default;
    virtual void openFromDialog() = 0;
    virtual void openPaths(std::vector<std::string> paths) = 0;  // bytes
    virtual void openRecent(std::size_t index) = 0;
    [[nodiscard]] virtual ZELRecentDocuments& recents() = 0;
    // A window has been closed, and can be thrown away.
    virtual void windowClosed() = 0;
    virtual void quit() = 0;
};

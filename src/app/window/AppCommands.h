// What a window asks of the program around it. Opening, closing and quitting are carried out later,
// from the event loop, so that a window may be gone by then. Main thread only.
#pragma once
#include <cstddef>
#include <string>
#include <vector>

class QWidget;
class ZELRecentDocuments;
struct ZELRecentDocument;

class AppCommands {
public:
    virtual ~AppCommands() = default;
    virtual void openFromDialog() = 0;
    virtual void openPaths(std::vector<std::string> paths) = 0;      // bytes
    virtual void openRecent(const ZELRecentDocument& document) = 0;  // of the list
    [[nodiscard]] virtual ZELRecentDocuments& recents() = 0;
    // A window has been closed, and can be thrown away.
    virtual void windowClosed() = 0;
    virtual void quit() = 0;
    // Something modal runs that nothing else may interrupt.
    [[nodiscard]] virtual bool inQTModalMode() const = 0;

    virtual void showHidePreferencesWindow() = 0;
    virtual void showPreferencesPane(const char* pane) = 0;  // by its identifier
    // The pane of presets, with a new one of that window in whole values.
    virtual void offerPreset(float width, float level) = 0;
    virtual void showHelp() = 0;
    virtual void showAcknowledgments() = 0;
    virtual void showAbout() = 0;
    virtual void showFirstAidWindow() = 0;
    [[nodiscard]] virtual bool hasUpdateCheck() const = 0;
    virtual void checkForUpdates() = 0;
    // Windows on trees, in the order in which they were opened.
    [[nodiscard]] virtual std::vector<QWidget*> viewerWindows() const = 0;
};

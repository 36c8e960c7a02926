// The preferences window, one for the program: a tool bar of four panes, not modal. It is made when
// it is first shown. Main thread only.
#pragma once
#include "app_prefs/PresetList.h"

#include <QString>
#include <memory>

class PrefsWindow;
class QWidget;
class UpdateService;
class WLPresetsViewController;

class ZELPrefsController {
public:
    struct Hooks {
        PresetList::AlertForError showAlert;  // nothing is reset without
        UpdateService* updates = nullptr;     // null: none is set up; outlives the window
    };
    explicit ZELPrefsController(Hooks hooks);
    ~ZELPrefsController();

    // On the pane that was shown last, the first one in a new run. In front of `near`, which may be
    // null; a window that is already open comes to the front.
    void showPreferences(QWidget* near);
    void togglePreferencesWindow(QWidget* near = nullptr);
    // The same on one pane: "General", "DICOM", "WWWLPane" or "Updates". The one shown last for
    // another name.
    void showPane(const QString& identifier, QWidget* near = nullptr);
    // A new preset of the user's with that window, on its pane.
    void offerPreset(float width, float level, QWidget* near = nullptr);
    void close();
    [[nodiscard]] bool isVisible() const;
    [[nodiscard]] PrefsWindow* window() const { return _window.get(); }  // null until first shown

private:
    PrefsWindow& made();

    Hooks _hooks;
    std::unique_ptr<PrefsWindow> _window;
    WLPresetsViewController* _presets = nullptr;  // a pane of the window
};

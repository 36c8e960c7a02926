// What the Open dialog lets the user choose, and what it says of the choice. No widgets: whoever
// shows the dialog asks here. Paths are bytes. Main thread only.
#pragma once
#include <QString>
#include <string>

// What stands beside the list of files.
struct OpenPanelState {
    QString prompt;                                        // on the button
    QString hint;                                          // empty when there is none
    bool ignoreEnabled = false, recursiveEnabled = false;  // the two check boxes
    bool ignoreOn = false, recursiveOn = false;
};

class ZELOpenPanelRules {
public:
    // Folders, names without an extension, and those whose extension is a DICOM one or longer than
    // four characters.
    [[nodiscard]] static bool shouldEnableURL(const std::string& path);
    // Any file; a folder that holds something.
    [[nodiscard]] static bool validateURL(const std::string& path);

    // The selection or the shown folder has changed; empty for no selection.
    void userSelected(const std::string& path);
    void checkIgnoreDICOMDIR(bool on);
    void checkDoRecursive(bool on);
    [[nodiscard]] const OpenPanelState& state() const { return _state; }

private:
    void setUpButtonsForFile();
    void setUpButtonsForFolder(bool isEmpty, bool hasDirectory);
    void userSelectedFolderWithName(const std::string& path);
    OpenPanelState _state;
};

// The menu of windows for one frame: what its file asks for, then the user's presets. Built anew
// each time it shows, so that marks and what can be chosen are never out of date. Main thread only.
#pragma once
#include "app/grid/ZELSequenceGridViewModelController.h"
#include "app/tools/MenuEntry.h"
#include "prefs/WindowPresets.h"

// A window of the file's that no earlier one equals.
struct FileWindow {
    std::int32_t width = 0, level = 0;
    QString name;  // may be empty
};
// Those of a frame (0 the current one), in the file's order; of other frames than gray ones none.
[[nodiscard]] std::vector<FileWindow> FileWindowsOf(const ZELSequenceProxy& proxy,
                                                    std::int32_t frame);

struct LevelMenuCommands {
    std::function<void()> originalWWWLorBnC;
    std::function<void(int item)> selectWWWLPresetValue;  // the place in the menu
    std::function<void(int item)> selectWWWLMenuValue;
    // Entries without a command stand disabled.
    std::function<void()> makePresetAction, editPresetsAction, openAdjustColorsDialog;
};

// Item 0 is an empty one, as a pop-up button needs; places count from it, separators too.
[[nodiscard]] std::vector<MenuEntry> constructLevelMenuForSequence(
    const ZELSequenceProxy& proxy, std::int32_t frame, bool withExtraItems,
    const LevelMenuCommands& commands);
// Which of the user's presets an item is, from 0, behind that many windows of the file; -1 for
// none.
[[nodiscard]] int UserPresetOfItem(int item, int fileWindows, int userPresets);

// The menu of windows for one frame: what its file asks for, the user's presets, then the file's
// tables, which no count of the others has to know. Built anew each time it shows, so that marks
// and what can be chosen are never out of date. Main thread only.
#pragma once
#include "app/tools/FileLooks.h"
#include "app/tools/MenuEntry.h"
#include "prefs/WindowPresets.h"

struct LevelMenuCommands {
    std::function<void()> originalWWWLorBnC;
    std::function<void(int item)> selectWWWLPresetValue;  // the place in the menu
    std::function<void(int item)> selectWWWLMenuValue;
    std::function<void(int table)> selectVOITable;  // of the file's, from 0
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

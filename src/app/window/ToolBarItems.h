// What may stand in a window's tool bar, and what the user has put there. Main thread only.
#pragma once
#include "app/window/CommandActions.h"

#include <QIcon>
#include <QString>
#include <string>
#include <string_view>
#include <vector>

// One item of the bar, which may have several buttons.
struct ToolBarItem {
    struct Button {
        AnyCommand command;
        const char* icon;
        const char* menuForm = nullptr;  // its title where the bar is too narrow for its picture
        bool (*isOn)(const WindowTarget&) = nullptr;  // null: as the command says
    };
    const char* name;   // as it is stored
    const char* title;  // key of "MenuItems"
    std::vector<Button> buttons;
};

// Items without buttons of a table. All but the spaces stand in a bar once at most.
inline constexpr std::string_view kToolBarReset = "ResetTBItem", kToolBarLayouts = "LayoutTB";
inline constexpr std::string_view kToolBarSeparator = "Separator", kToolBarSpace = "Space",
                                  kToolBarStretch = "FlexibleSpace";

// All there are, spaces last.
[[nodiscard]] const std::vector<ToolBarItem>& AllToolBarItems();
[[nodiscard]] const ToolBarItem* ToolBarItemNamed(std::string_view name);  // or null
[[nodiscard]] bool IsToolBarSpace(const ToolBarItem& item);    // a separator is one of them
[[nodiscard]] QIcon ToolBarItemIcon(const ToolBarItem& item);  // of its first button

[[nodiscard]] std::vector<const ToolBarItem*> DefaultToolBar();
// The user's bar. Names that mean nothing and items that came before are left out; the default
// where no item is left.
[[nodiscard]] std::vector<const ToolBarItem*> PresentToolBar();
// Stores the bar for all windows and posts kNoteToolBarChanged.
void SetToolBar(const std::vector<const ToolBarItem*>& items);
inline constexpr std::string_view kNoteToolBarChanged = "ZELNotification_ToolBarItemsDidChange";

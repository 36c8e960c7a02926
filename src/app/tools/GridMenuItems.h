// The two families of menu items that share one command each: layouts of the window's grids, and
// shapes of one grid. Titles are keys of "MenuItems".
#pragma once
#include "app/grid/GridLayouts.h"
#include "app/grid/GridSetups.h"

#include <string_view>

inline constexpr int kFirstLayoutTag = kSingleGridLayout - kLayoutMenuOffset;
inline constexpr int kFirstImageGridTag = 701;  // of setup 0

struct LayoutMenuItem {
    const char* title;
    const char* image;
};

// In the order of kGridLayouts, and of their tags.
inline constexpr auto kLayoutMenuItems = std::to_array<LayoutMenuItem>({
    {"Single", "grid_1x1"},
    {"2 rows", "grid_2x1"},
    {"2 columns", "grid_1x2"},
    {"1 top, 2 bottom", "grid_(1x2)down"},
    {"2 top, 1 bottom", "grid_(1x2)up"},
    {"1 left, 2 right", "grid_(2x1)right"},
    {"2 left, 1 right", "grid_(2x1)left"},
    {"3 rows", "grid_3x1"},
    {"3 columns", "grid_1x3"},
    {"1 top, 3 bottom", "grid_(1x3)down"},
    {"3 top, 1 bottom", "grid_(1x3)up"},
    {"1 left, 3 right", "grid_(3x1)right"},
    {"3 left, 1 right", "grid_(3x1)left"},
    {"2 top, 2 bottom", "grid_2-up_2-down"},
    {"2 left, 2 right", "grid_2-left_2-right"},
    {"4 rows", "grid_4x1"},
    {"4 columns", "grid_1x4"},
});
static_assert(kLayoutMenuItems.size() == kGridLayouts.size());

// Null for a tag that is none of theirs.
[[nodiscard]] constexpr const LayoutMenuItem* LayoutMenuItemOf(int tag)
{
    return ControllerWithID(tag + kLayoutMenuOffset)
               ? &kLayoutMenuItems[static_cast<std::size_t>(tag - kFirstLayoutTag)]
               : nullptr;
}

// The layout that an image stands for; null for another image.
[[nodiscard]] constexpr const GridLayout* LayoutOfImage(std::string_view image)
{
    for (std::size_t i = 0; i < kLayoutMenuItems.size(); ++i) {
        if (kLayoutMenuItems[i].image == image)
            return &kGridLayouts[i];
    }
    return nullptr;
}

// In the order of kGridShapes.
inline constexpr auto kImageGridTitles = std::to_array<const char*>(
    {"1 x 1", "1 x 2", "2 x 1", "2 x 2", "2 x 3", "3 x 2", "3 x 3", "3 x 4", "4 x 3", "4 x 4"});
static_assert(kImageGridTitles.size() == kGridShapes.size());

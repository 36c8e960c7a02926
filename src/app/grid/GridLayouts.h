// How a window is divided among its grids: the layouts by identifier, which are also the tags of
// their menu items (less kLayoutMenuOffset in menus).
#pragma once
#include <array>
#include <cstdint>

inline constexpr int kSingleGridLayout = 651;
inline constexpr int kLastGridLayout = 667;
inline constexpr int kLayoutMenuOffset = 46;  // menu tag 605 is layout 651
inline constexpr std::size_t kMostGrids = 4;

// Grids stand in their order in one or two parts: parts above one another and the grids of each
// beside one another, or the other way round.
struct GridLayout {
    int id;
    const char* name;
    bool partsStacked;        // the first part above the second, else left of it
    std::array<int, 2> part;  // how many grids each holds; no second one with 0
    [[nodiscard]] constexpr int grids() const { return part[0] + part[1]; }
};

// In the order of their identifiers. A single part's grids stand across the direction of parts.
inline constexpr auto kGridLayouts = std::to_array<GridLayout>({
    {651, "GridView_Single", true, {1, 0}},
    {652, "GridView_Top_1_Bottom_2", true, {1, 1}},
    {653, "GridView_Left_1_Right_2", false, {1, 1}},
    {654, "GridView_Top_1_Bottom_23", true, {1, 2}},
    {655, "GridView_Top_12_Bottom_3", true, {2, 1}},
    {656, "GridView_Left_1_Right_23", false, {1, 2}},
    {657, "GridView_Left_12_Right_3", false, {2, 1}},
    {658, "GridView_3Vertical", false, {3, 0}},
    {659, "GridView_3Horizontal", true, {3, 0}},
    {660, "GridView_Top_1_Bottom_234", true, {1, 3}},
    {661, "GridView_Top_123_Bottom_4", true, {3, 1}},
    {662, "GridView_Left_1_Right_234", false, {1, 3}},
    {663, "GridView_Left_123_Right_4", false, {3, 1}},
    {664, "GridView_Top_12_Bottom_34", true, {2, 2}},
    {665, "GridView_Left_12_Right_34", false, {2, 2}},
    {666, "GridView_4Vertical", false, {4, 0}},
    {667, "GridView_4Horizontal", true, {4, 0}},
});

// Null for another number.
[[nodiscard]] constexpr const GridLayout* ControllerWithID(int id)
{
    const bool known = id >= kSingleGridLayout && id <= kLastGridLayout;
    return known ? &kGridLayouts[static_cast<std::size_t>(id - kSingleGridLayout)] : nullptr;
}

// 0 for another number.
[[nodiscard]] constexpr int NumGridsForControllerWithID(int id)
{
    const GridLayout* layout = ControllerWithID(id);
    return layout ? layout->grids() : 0;
}

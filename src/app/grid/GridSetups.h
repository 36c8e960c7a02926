// The ten shapes of a grid that the menus offer.
#pragma once
#include <array>
#include <optional>

struct GridShape {
    int rows, columns;
};
inline constexpr std::array<GridShape, 10> kGridShapes{
    {{1, 1}, {1, 2}, {2, 1}, {2, 2}, {2, 3}, {3, 2}, {3, 3}, {3, 4}, {4, 3}, {4, 4}}};
inline constexpr int kCustomGridSetup = 11;  // of any other shape

// Null for a number that is none of theirs.
[[nodiscard]] constexpr const GridShape* GridShapeOf(int setup)
{
    return setup >= 0 && setup < static_cast<int>(kGridShapes.size())
               ? &kGridShapes[static_cast<unsigned>(setup)]
               : nullptr;
}

// By the rows alone: 2 rows of 4 columns count as the setup of 3 by 2. None outside of 1 to 4 rows.
[[nodiscard]] constexpr std::optional<int> GridSetupOfRows(int rows, int columns)
{
    constexpr std::array<int, 4> kBefore{-1, 1, 3, 5};  // setup less columns
    if (rows < 1 || rows > 4)
        return std::nullopt;
    return columns + kBefore[static_cast<unsigned>(rows - 1)];
}

// The strict form: kCustomGridSetup for a shape that is none of the ten.
[[nodiscard]] constexpr int GridSetupIDFromRows(int rows, int columns)
{
    const std::optional<int> setup = GridSetupOfRows(rows, columns);
    const GridShape* shape = setup ? GridShapeOf(*setup) : nullptr;
    return shape && shape->rows == rows && shape->columns == columns ? *setup : kCustomGridSetup;
}

// The colour tables that the user may lay over gray images, counted from 1. They are set once at
// the start, on the main thread, before anything asks for them; then any thread reads.
#pragma once
#include "util/ColorTable.h"

#include <array>
#include <cstdint>
#include <string>
#include <vector>

// One row of the ramp's picture, 0xAARRGGBB; all its rows are alike.
using ZELColorRamp = std::array<std::uint32_t, 256>;

struct ZELCLUT {
    std::string fName;  // UTF-8
    ColorTable fTable;  // 256 entries of 16 bits a component
    int fMenuPosition = 0;
};

// Takes the place of the tables set before; each table is brought to 256 entries, black where it
// has none.
void prefs_SetCLUTs(std::vector<ZELCLUT> tables);

// The same when the first of them is asked for, on whichever thread: reading them takes as long as
// reading a folder of images.
using CLUTLoader = std::vector<ZELCLUT> (*)();
void prefs_SetCLUTLoader(CLUTLoader load);

[[nodiscard]] int prefs_GetNumberOfCLUTs();
// All numbers, by their places in menus, by number where those are the same.
[[nodiscard]] std::vector<int> prefs_GetCLUTsInMenuOrder();
// Null for a number below 1 or above the last, or when no tables are set. Valid until the tables
// are set anew.
[[nodiscard]] const ColorTable* prefs_GetColorSpecs(int number);
[[nodiscard]] const ZELColorRamp* prefs_GetColorRamp(int number);
// "unnamed" where the others answer null.
[[nodiscard]] std::string prefs_GetColorRampName(int number);

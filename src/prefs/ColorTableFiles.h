// The colour tables that come with the program, one property list each in resources/ColorTables.
#pragma once
#include "prefs/MenuItems.h"
#include "prefs/PrefsTables.h"

#include <string>
#include <vector>

// In the order of their file names, so that numbers are the same everywhere; their `tableID` counts
// from 2. A title that a file lacks is its name. Both may throw std::bad_alloc.
[[nodiscard]] std::vector<ZELCLUTMenuItem> loadCLUTMenuItems();
[[nodiscard]] std::vector<ZELCLUT> loadCLUTTables();

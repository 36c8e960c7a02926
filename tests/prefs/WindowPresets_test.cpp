// What the program brings along for windows and colours, and what the user makes of the presets.
#include "prefs/WindowPresets.h"

#include "fixtures/TempFolder.h"
#include "platform/PreferenceStore.h"
#include "prefs/ColorTableFiles.h"
#include "prefs/Prefs.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>

namespace {

class WindowPresets : public testing::Test {
protected:
    WindowPresets() { prefs_Store().UseFile(fFolder.Path("preferences.plist")); }
    ~WindowPresets() override { prefs_Store().UseFile(""); }
    TempFolder fFolder;
};

}  // namespace

TEST_F(WindowPresets, are_the_users_once_stored)
{
    const auto ours = loadWWWLPresets();
    ASSERT_EQ(ours.size(), 15u);
    EXPECT_EQ(ours[7].itemName, QStringLiteral("Lung"));
    EXPECT_EQ(ours[7].wwidth, 1500);
    EXPECT_EQ(ours[7].wcenter, -600);
    EXPECT_EQ(ours[14].tableID, 14);
    ASSERT_EQ(saveWWWLPresets({{QStringLiteral("Überall"), 12.5F, -3}, {}}), kQvxOK);
    prefs_Store().UseFile(fFolder.Path("preferences.plist"));
    const auto theirs = loadWWWLPresets();
    ASSERT_EQ(theirs.size(), 2u);
    EXPECT_EQ(theirs[0].itemName, QStringLiteral("Überall"));
    EXPECT_EQ(theirs[0].wwidth, 12.5F);
    EXPECT_EQ(theirs[1].wwidth, 0);
    ASSERT_EQ(saveWWWLPresets({}), kQvxOK);
    EXPECT_EQ(loadWWWLPresets().size(), 0u);
    prefs_Store().UseFile(fFolder.Path("preferences.plist"));  // as the next start
    EXPECT_EQ(loadWWWLPresets().size(), 15u);
}

TEST_F(WindowPresets, take_what_stands_in_a_damaged_list)
{
    prefs_Store().Set(kPrefsKeyWWWLPresets,
                      QVariantList{1, QVariantMap{{QStringLiteral("WW"), 1e300},
                                                  {QStringLiteral("WC"), QStringLiteral("x")}}});
    const auto presets = loadWWWLPresets();
    ASSERT_EQ(presets.size(), 2u);
    EXPECT_EQ(presets[1].wwidth, 0);
    EXPECT_EQ(presets[1].wcenter, 0);
}

TEST(ColorTableFiles, hold_256_entries_and_the_registered_ends)
{
    struct Row {
        const char* name;
        int first, last;  // 0xRRGGBB
    };
    const Row rows[] = {{"Hot Iron", 0x000000, 0xFFFFFF},    {"PET", 0x000000, 0xFFFFFF},
                        {"PET 20 Step", 0x000000, 0xFFFFFF}, {"Spring", 0xFF00FF, 0xFFFF00},
                        {"Fall", 0xFFFF00, 0xFF0000},        {"Inverse Gray", 0xFFFFFF, 0x000000}};
    const auto tables = loadCLUTTables();
    EXPECT_EQ(tables.size(), 11u);
    const auto colorAt = [](const ColorTable& table, std::size_t i) {
        const auto& entry = table.fEntries[i];
        return (entry.red >> 8) << 16 | (entry.green >> 8) << 8 | entry.blue >> 8;
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        const auto found = std::ranges::find(tables, row.name, &ZELCLUT::fName);
        ASSERT_NE(found, tables.end());
        ASSERT_EQ(found->fTable.fEntries.size(), 256u);
        EXPECT_EQ(colorAt(found->fTable, 0), row.first);
        EXPECT_EQ(colorAt(found->fTable, 255), row.last);
    }
}

TEST(ColorTableFiles, stand_in_menus_by_their_places)
{
    prefs_SetCLUTs(loadCLUTTables());
    std::vector<std::string> names;
    for (const int number : prefs_GetCLUTsInMenuOrder())
        names.push_back(prefs_GetColorRampName(number));
    EXPECT_EQ(names, (std::vector<std::string>{"Inverse Gray", "Hot Iron", "PET", "Hot Metal Blue",
                                               "PET 20 Step", "Spring", "Summer", "Fall", "Winter",
                                               "Rainbow", "Even Lightness"}));
    prefs_SetCLUTs({});
}

// Steps of equal lightness in the sense of CIE L*, also for those who see no red or no green, as
// lightness hardly depends on it.
TEST(ColorTableFiles, has_one_that_is_even_in_lightness)
{
    const auto tables = loadCLUTTables();
    const auto found = std::ranges::find(tables, "Even Lightness", &ZELCLUT::fName);
    ASSERT_NE(found, tables.end());
    const auto linear = [](std::uint16_t component) {
        const double c = component / 65535.0;
        return c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
    };
    for (std::size_t i = 0; i < 256; ++i) {
        const auto& entry = found->fTable.fEntries[i];
        const double y =
            0.2126 * linear(entry.red) + 0.7152 * linear(entry.green) + 0.0722 * linear(entry.blue);
        const double lightness = y > 0.008856 ? 116 * std::cbrt(y) - 16 : 903.3 * y;
        EXPECT_NEAR(lightness, 4 + 92 * static_cast<double>(i) / 255, 0.5) << i;
    }
}

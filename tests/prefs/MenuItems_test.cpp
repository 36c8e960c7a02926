// The tables behind menus.
#include "prefs/MenuItems.h"

#include "prefs/ColorTableFiles.h"

#include <gtest/gtest.h>

namespace {

QVariantMap Grid(int rows, int columns)
{
    return {{QStringLiteral("Title"), QStringLiteral("%1 x %2").arg(rows).arg(columns)},
            {QStringLiteral("Rows"), rows},
            {QStringLiteral("Cols"), columns}};
}

TEST(ZELMenuItemsArray, ends_with_a_separator_and_the_other_item_if_it_has_one)
{
    const QVariantList three{Grid(1, 1), Grid(1, 2), Grid(3, 4)};
    const struct {
        const char* what;
        QVariantList items;
        const char* other;
        int count;
        QStringList titles;  // from place -1 on
    } rows[] = {
        {"with", three, "T", 5, {{}, "1 x 1", "1 x 2", "3 x 4", "-", "T", {}}},
        {"without", three, "", 3, {{}, "1 x 1", "1 x 2", "3 x 4", {}, {}}},
        {"the other alone", {}, "T", 2, {{}, "-", "T", {}}},
        {"nothing", {}, "", 0, {{}, {}, {}}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        const ZELGridMenuItemsArray menu(row.items, QString::fromUtf8(row.other));
        EXPECT_EQ(menu.count(), row.count);
        for (int i = 0; i < row.titles.size(); ++i)
            EXPECT_EQ(menu.objectAtIndex(i - 1), row.titles[i]) << i - 1;
        EXPECT_EQ(menu.standardItemAt(static_cast<int>(row.items.size())), nullptr);
    }
    const ZELGridMenuItemsArray menu(three, QString());
    EXPECT_EQ(menu.standardItemAt(2)->rows, 3);
    EXPECT_EQ(menu.standardItemAt(2)->columns, 4);
}

TEST(ZELMenuItemsArray, is_empty_without_its_table)
{
    EXPECT_EQ(ZELZoomMenuItemsArray::initFromFile(QStringLiteral("no such table")).count(), 0);
    const auto zooms =
        ZELZoomMenuItemsArray::initFromFile(QLatin1String(kMenuTableZoom), QStringLiteral("Fit"));
    ASSERT_EQ(zooms.count(), 13);
    EXPECT_EQ(zooms.standardItemAt(9)->zoomValue, 12.5);
    for (const ZELZoomMenuItem& item : zooms.standardItemsArray)
        EXPECT_EQ(item.itemName, QString::number(item.zoomValue) + QLatin1Char('%'));
}

TEST(ZELCLUTMenuItem, makes_16_bits_of_what_a_damaged_file_leaves)
{
    const auto item = ZELCLUTMenuItem::FromDictionary(
        {{QStringLiteral("MenuTitle"), QStringLiteral("T")},
         {QStringLiteral("MenuPosition"), 7},
         {QStringLiteral("Red"), QVariantList{1, 255, -4}},
         {QStringLiteral("Green"), QVariantList{0, 4000000000LL, QStringLiteral("x")}},
         {QStringLiteral("Blue"), 5}});
    EXPECT_EQ(item.clutTitle, QStringLiteral("T"));
    EXPECT_EQ(item.sortingType, 7);
    const struct {
        std::size_t entry;
        int red, green, blue;
    } rows[] = {{0, 257, 0, 0}, {1, 65535, 65535, 0}, {2, 0, 0, 0}, {255, 0, 0, 0}};
    ASSERT_EQ(item.colorTable().fEntries.size(), 256u);
    for (const auto& row : rows) {
        const auto& entry = item.colorTable().fEntries[row.entry];
        EXPECT_EQ(entry.value, row.entry);
        EXPECT_EQ(entry.red, row.red) << row.entry;
        EXPECT_EQ(entry.green, row.green) << row.entry;
        EXPECT_EQ(entry.blue, row.blue) << row.entry;
    }
    const std::vector<ZELColor> colors = item.nsColors();
    ASSERT_EQ(colors.size(), 3u);
    EXPECT_EQ(colors[0], (ZELColor{0, 0, 0, 1}));
    EXPECT_EQ(colors[1], (ZELColor{1, 1, 0, 1}));
    EXPECT_EQ(colors[2], (ZELColor{1 / 255.0, 0, 0, 1}));
}

TEST(loadCLUTMenuItems, numbers_the_files_from_2)
{
    const auto items = loadCLUTMenuItems();
    ASSERT_EQ(items.size(), 11u);
    EXPECT_EQ(items.front().tableID, 2);
    EXPECT_EQ(items.front().clutFilename, QStringLiteral("EvenLightness"));
    EXPECT_EQ(items.front().clutTitle, QStringLiteral("Even Lightness"));
    EXPECT_EQ(items.back().tableID, 12);
}

}  // namespace

// Editing, moving and resetting the presets, without a window.
#include "app_prefs/PresetList.h"

#include "app_prefs/PrefsFixture.h"
#include "app_prefs/PresetTableModel.h"

#include <QLocale>
#include <QMimeData>
#include <gtest/gtest.h>

namespace {

using Column = PresetList::Column;

// Presets "a", "b", "c", … of width and level 1, 2, 3, …
void StorePresets(const char* names)
{
    std::vector<ZELWWWLMenuItem> presets;
    for (const char* name = names; *name; ++name) {
        presets.emplace_back();
        presets.back().itemName = QLatin1Char(*name);
        presets.back().wwidth = presets.back().wcenter = static_cast<float>(presets.size());
    }
    ASSERT_EQ(saveWWWLPresets(presets), kQvxOK);
}

std::string Names(const PresetList& list)
{
    std::string names;
    for (int row = 0; row < list.count(); ++row)
        names += list.textAt(row, Column::Title).toStdString();
    return names;
}

std::string StoredNames()
{
    std::string names;
    for (const ZELWWWLMenuItem& preset : loadWWWLPresets())
        names += preset.itemName.toStdString();
    return names;
}

struct Move {
    int row, target;
    const char* names;
    std::optional<int> place;
};
constexpr Move kMoves[] = {
    {0, 0, "abcd", {}},  {0, 1, "abcd", {}}, {0, 2, "bacd", 1},   {0, 4, "bcda", 3},
    {3, 0, "dabc", 0},   {3, 3, "abcd", {}}, {3, 4, "abcd", {}},  {2, 1, "acbd", 1},
    {1, 4, "acdb", 3},   {4, 0, "abcd", {}}, {-1, 2, "abcd", {}}, {0, 5, "abcd", {}},
    {0, -1, "abcd", {}},
};

TEST(PresetList, moves_a_preset_between_others_and_saves_that)
{
    for (const Move& move : kMoves) {
        SCOPED_TRACE(std::to_string(move.row) + " to " + std::to_string(move.target));
        const OwnPrefs own;
        StorePresets("abcd");
        PresetList list;
        Notes notes("Pref_WWWLChanged");
        EXPECT_EQ(list.movePreset(move.row, move.target), move.place);
        EXPECT_EQ(Names(list), move.names);
        EXPECT_EQ(notes.count(), move.place ? 1 : 0);
        own.reopen();
        EXPECT_EQ(StoredNames(), move.names);
    }
}

TEST(PresetTableModel, takes_drops_of_its_own_rows_alone)
{
    for (const Move& move : kMoves) {
        if (move.row < 0 || move.row > 3 || move.target < 0 || move.target > 4)
            continue;
        SCOPED_TRACE(std::to_string(move.row) + " to " + std::to_string(move.target));
        const OwnPrefs own;
        StorePresets("abcd");
        PresetList list, otherList;
        PresetTableModel model(&list), other(&otherList);
        const std::unique_ptr<QMimeData> drag(model.mimeData({model.index(move.row, 0)}));
        EXPECT_EQ(drag->formats(), QStringList{QStringLiteral("WWWLPresetDnDDataType")});
        EXPECT_FALSE(other.dropMimeData(drag.get(), Qt::MoveAction, move.target, 0, {}));
        EXPECT_FALSE(model.dropMimeData(drag.get(), Qt::CopyAction, move.target, 0, {}));
        EXPECT_FALSE(model.dropMimeData(drag.get(), Qt::MoveAction, -1, -1, model.index(1, 0)))
            << "onto a row";
        EXPECT_EQ(model.dropMimeData(drag.get(), Qt::MoveAction, move.target, 0, {}),
                  move.place.has_value());
        EXPECT_EQ(Names(list), move.names);
    }
    const OwnPrefs own;
    StorePresets("abcd");
    PresetList list;
    PresetTableModel model(&list);
    const std::unique_ptr<QMimeData> drag(model.mimeData({model.index(0, 0)}));
    EXPECT_TRUE(model.dropMimeData(drag.get(), Qt::MoveAction, -1, -1, {})) << "below the last";
    EXPECT_EQ(Names(list), "bcda");
}

TEST(PresetList, takes_numbers_that_a_window_can_have)
{
    QLocale::setDefault(QLocale(QLocale::German));
    const struct {
        Column column;
        const char* typed;
        bool taken;
        const char *shown, *edited;
    } rows[] = {
        {Column::Width, "350", true, "350", "350"},
        {Column::Width, "12,5", true, "13", "12,5"},
        {Column::Width, "12.5", true, "13", "12,5"},
        {Column::Width, "0.25", true, "0", "0,25"},
        {Column::Width, "0", false, "1", "1"},
        {Column::Width, "-20", false, "1", "1"},
        {Column::Width, "1e-60", false, "1", "1"},  // none that a float holds
        {Column::Level, "-600", true, "-600", "-600"},
        {Column::Level, " 40 ", true, "40", "40"},
        {Column::Level, "nan", false, "1", "1"},
        {Column::Level, "inf", false, "1", "1"},
        {Column::Level, "1e300", false, "1", "1"},
        {Column::Level, "2000000000", false, "1", "1"},
        {Column::Level, "", false, "1", "1"},
        {Column::Level, "40 HU", false, "1", "1"},
        {Column::Title, "  Lung\n soft ", true, "Lung soft", "Lung soft"},
        {Column::Title, "", true, "Unnamed", "Unnamed"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.typed);
        const OwnPrefs own;
        StorePresets("a");
        PresetList list;
        Notes notes("Pref_WWWLChanged");
        EXPECT_EQ(list.setTextAt(0, row.column, QString::fromUtf8(row.typed)), row.taken);
        EXPECT_EQ(list.textAt(0, row.column), QString::fromUtf8(row.shown));
        EXPECT_EQ(list.editTextAt(0, row.column), QString::fromUtf8(row.edited));
        EXPECT_EQ(notes.count(), row.taken ? 1 : 0);
        PresetList again;
        EXPECT_EQ(again.editTextAt(0, row.column), list.editTextAt(0, row.column));
    }
    QLocale::setDefault(QLocale::c());
}

TEST(PresetList, grows_behind_the_selection_and_forgets_an_emptied_list)
{
    const OwnPrefs own;
    StorePresets("abc");
    PresetList list;
    Notes notes("Pref_WWWLChanged");
    EXPECT_EQ(list.addPreset(0), 1);
    EXPECT_EQ(Names(list), "aUnnamedbc");
    EXPECT_EQ(list.addPreset(-1), 4);
    EXPECT_EQ(StoredNames(), "aUnnamedbcUnnamed");
    list.removePresets({1, 4, 1, 9});
    EXPECT_EQ(StoredNames(), "abc");
    EXPECT_EQ(notes.count(), 3);
    list.removePresets({0, 1, 2});
    EXPECT_EQ(list.count(), 0);
    EXPECT_FALSE(prefs_Store().Has(kPrefsKeyWWWLPresets));
    EXPECT_EQ(loadWWWLPresets().size(), 0u) << "up to the next start";
    own.reopen();
    EXPECT_EQ(loadWWWLPresets().size(), loadWWWLPresetsOfTheProgram().size());
}

TEST(PresetList, is_reset_only_when_the_user_agrees)
{
    const OwnPrefs own;
    StorePresets("abc");
    PresetList list;
    EXPECT_FALSE(list.resetToDefaults(nullptr));
    int asked = 0;
    EXPECT_FALSE(list.resetToDefaults([&asked](int code, const QString&) {
        asked = code;
        return 1001;
    }));
    EXPECT_EQ(asked, 4);
    EXPECT_EQ(StoredNames(), "abc");
    Notes notes("Pref_WWWLChanged");
    EXPECT_TRUE(list.resetToDefaults([](int, const QString&) { return 1000; }));
    EXPECT_EQ(notes.count(), 1);
    own.reopen();
    const auto stored = loadWWWLPresets();
    ASSERT_EQ(stored.size(), loadWWWLPresetsOfTheProgram().size());
    EXPECT_TRUE(prefs_Store().Has(kPrefsKeyWWWLPresets));
    EXPECT_EQ(stored.back().tableID, static_cast<int>(stored.size()) - 1);
}

}  // namespace

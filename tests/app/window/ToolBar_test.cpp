// What stands in a window's tool bar, and the sheet that puts it together.
#include "app/window/OpenWindow.h"
#include "app/window/ToolBarSheet.h"

#include <QDialogButtonBox>
#include <QListWidget>
#include <QPushButton>

namespace {

using Names = std::vector<std::string>;

Names NamesOf(const std::vector<const ToolBarItem*>& items)
{
    Names names;
    for (const ToolBarItem* item : items)
        names.emplace_back(item->name);
    return names;
}

const Names kDefaultBar = {"ResetTBItem",   "SequenceTB",   "Separator",        "LayoutTB",
                           "ScopeTB",       "Separator",    "ToolsGroupTBItem", "Separator",
                           "InvertTB",      "RotateFlipTB", "Separator",        "DemographicsTB",
                           "OverlaysTB",    "LocalizersTB", "Separator",        "CineTB",
                           "FlexibleSpace", "MeasureTB"};

class ToolBar : public testing::Test {
protected:
    void TearDown() override { prefs_Set_ToolbarItems({}); }
};

// Whatever a file of settings says.
TEST_F(ToolBar, reads_what_is_stored)
{
    struct Row {
        Names stored, bar;
    };
    const Row rows[] = {
        {{}, kDefaultBar},
        {{"InvertTB", "Space", "LayoutTB"}, {"InvertTB", "Space", "LayoutTB"}},
        {{"InvertTB", "nonsense", "", "InvertTB", "Space", "Space"},
         {"InvertTB", "Space", "Space"}},
        {{"nonsense"}, kDefaultBar},
        {{"Separator", "FlexibleSpace"}, kDefaultBar},
    };
    for (const Row& row : rows) {
        prefs_Set_ToolbarItems(row.stored);
        EXPECT_EQ(NamesOf(PresentToolBar()), row.bar);
    }
}

TEST_F(ToolBar, the_default_is_not_stored)
{
    SetToolBar({ToolBarItemNamed("InvertTB")});
    EXPECT_EQ(prefs_ToolbarItems(), Names{"InvertTB"});
    SetToolBar(DefaultToolBar());
    EXPECT_EQ(prefs_ToolbarItems(), Names{});
}

TEST_F(ToolBar, every_window_takes_what_a_sheet_has_put_together)
{
    const std::vector<SeriesForm> single(1);
    OpenWindow one(single), other(single);
    one.Choose(QStringLiteral("Customize Toolbar…"));
    auto* sheet = one.window->findChild<ToolBarSheet*>();
    ASSERT_TRUE(sheet);
    const auto lists = sheet->findChildren<QListWidget*>();
    ASSERT_EQ(lists.size(), 2);
    QListWidget *available = lists[0], *shown = lists[1];
    const auto press = [&](const char* title) {
        for (QPushButton* button : sheet->findChildren<QPushButton*>()) {
            if (button->text() == QLatin1String(title))
                return button->click();
        }
        ADD_FAILURE() << title;
    };
    EXPECT_EQ(available->count(), 3) << "the spaces";
    shown->setCurrentRow(3);
    press("Remove");  // the layouts
    EXPECT_EQ(available->count(), 4);
    shown->setCurrentRow(0);
    press("Move Down");
    EXPECT_EQ(shown->currentRow(), 1);
    available->setCurrentRow(2);
    press("Add");
    Names wanted = kDefaultBar;
    wanted.erase(wanted.begin() + 3);
    std::swap(wanted[0], wanted[1]);
    wanted.insert(wanted.begin() + 2, "Space");
    EXPECT_EQ(NamesOf(sheet->chosen()), wanted);
    sheet->accept();
    for (OpenWindow* open : {&one, &other}) {
        auto* bar = open->window->findChild<MainToolBar*>();
        EXPECT_FALSE(bar->findChild<QWidget*>(QStringLiteral("hangingProtocolPopup")));
        EXPECT_EQ(bar->actions()[0]->objectName(), QStringLiteral("tool_previous"));
        open->Choose(QStringLiteral("Invert"));
        QTest::qWait(30);
        EXPECT_TRUE(open->Button("tool_invert")->isChecked());
        EXPECT_TRUE(open->Button("tool_reset")->isEnabled());
    }
    ToolBarSheet again(one.window.get());
    EXPECT_EQ(NamesOf(again.chosen()), wanted);
}

TEST_F(ToolBar, a_drag_takes_an_item_once_and_leaves_the_spaces)
{
    ToolBarSheet sheet(nullptr);
    const auto lists = sheet.findChildren<QListWidget*>();
    QListWidget *available = lists[0], *shown = lists[1];
    // As the toolkit does it: a copy goes in, or a row moves over.
    shown->insertItem(0, available->item(0)->clone());
    QTest::qWait(10);
    EXPECT_EQ(available->count(), 3);
    available->addItem(shown->takeItem(1));
    QTest::qWait(10);
    EXPECT_EQ(available->count(), 4);
    EXPECT_EQ(available->item(0)->text(), QStringLiteral("Reset All"));
    EXPECT_EQ(sheet.chosen().front(), ToolBarItemNamed("Separator"));
}

}  // namespace

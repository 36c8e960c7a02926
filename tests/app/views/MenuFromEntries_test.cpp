// Menus as widgets, and the icons of layouts in them.
#include "app/views/MenuFromEntries.h"

#include "app/tools/GridMenuItems.h"
#include "app/views/LayoutIcons.h"

#include <QAction>
#include <QGuiApplication>
#include <QImage>
#include <QMenu>
#include <QPalette>
#include <gtest/gtest.h>

namespace {

MenuEntry Command(const char* title, std::function<void(bool)> perform = {})
{
    MenuEntry entry;
    entry.kind = MenuEntry::Kind::Command;
    entry.title = QString::fromLatin1(title);
    entry.perform = std::move(perform);
    return entry;
}

TEST(MenuFromEntries, shows_what_the_entries_say_and_performs_the_chosen_one)
{
    int chosen = 0;
    MenuEntry root;
    root.kind = MenuEntry::Kind::Submenu;
    root.title = QStringLiteral("Menu");
    root.children = {Command("Plain & simple", [&](bool) { chosen += 1; }),
                     {},
                     Command("Not now"),
                     Command("Next")};
    root.children[2].enabled = false;
    root.children[3].shortcut = QStringLiteral("Ctrl+Right");
    MenuEntry submenu = root;
    submenu.title = QStringLiteral("More");
    submenu.children = {Command("Checked", [&](bool) { chosen += 10; })};
    submenu.children[0].checked = true;
    submenu.children[0].tag = 605;
    submenu.children[0].image = QStringLiteral("grid_1x1");
    root.children.push_back(submenu);

    const auto menu = NewMenu(root, nullptr);
    root.children.clear();
    const QList<QAction*> actions = menu->actions();
    ASSERT_EQ(actions.size(), 5);
    EXPECT_EQ(actions[0]->text(), QLatin1String("Plain && simple"));
    EXPECT_TRUE(actions[0]->isEnabled() && !actions[0]->isCheckable());
    EXPECT_TRUE(actions[1]->isSeparator());
    EXPECT_FALSE(actions[2]->isEnabled());
    EXPECT_EQ(actions[3]->text(), QLatin1String("Next\tCtrl+Right"));
    EXPECT_TRUE(actions[3]->shortcut().isEmpty()) << "the grid takes the key";
    ASSERT_TRUE(actions[4]->menu());
    const QAction* inner = actions[4]->menu()->actions().front();
    EXPECT_TRUE(inner->isChecked() && inner->isIconVisibleInMenu() && !inner->icon().isNull());
    EXPECT_EQ(inner->data().toInt(), 605);
    actions[0]->trigger();
    EXPECT_EQ(chosen, 1);
    actions[4]->menu()->actions().front()->trigger();
    EXPECT_EQ(chosen, 11);
}

// How often a line of the icon goes from ground to frame.
int CellsAlong(const QImage& icon, bool down, double across)
{
    int frames = 0;
    bool inFrame = false;
    const int length = down ? icon.height() : icon.width();
    const int other = static_cast<int>(across * (down ? icon.width() : icon.height()));
    for (int i = 0; i < length; ++i) {
        const bool frame = qAlpha(down ? icon.pixel(other, i) : icon.pixel(i, other)) == 255;
        frames += frame && !inFrame ? 1 : 0;
        inFrame = frame;
    }
    return frames / 2;  // each cell has two sides
}

TEST(LayoutIcons, show_the_cells_of_their_layout)
{
    struct Row {
        const char* image;
        int leftDown, rightDown, topAcross, bottomAcross;
    };
    const Row rows[] = {
        {"grid_1x1", 1, 1, 1, 1},
        {"grid_2x1", 2, 2, 1, 1},
        {"grid_1x2", 1, 1, 2, 2},
        {"grid_(1x2)down", 2, 2, 1, 2},
        {"grid_(1x2)up", 2, 2, 2, 1},
        {"grid_(2x1)right", 1, 2, 2, 2},
        {"grid_(2x1)left", 2, 1, 2, 2},
        {"grid_3x1", 3, 3, 1, 1},
        {"grid_1x3", 1, 1, 3, 3},
        {"grid_(1x3)down", 2, 2, 1, 3},
        {"grid_(1x3)up", 2, 2, 3, 1},
        {"grid_(3x1)right", 1, 3, 2, 2},
        {"grid_(3x1)left", 3, 1, 2, 2},
        {"grid_2-up_2-down", 2, 2, 2, 2},
        {"grid_2-left_2-right", 2, 2, 2, 2},
        {"grid_4x1", 4, 4, 1, 1},
        {"grid_1x4", 1, 1, 4, 4},
    };
    for (const Row& row : rows) {
        for (const double ratio : {1.0, 1.25, 1.5, 2.0}) {
            const QPixmap drawn =
                MenuIcon(QString::fromLatin1(row.image)).pixmap(QSize(20, 20), ratio);
            const QImage icon = drawn.toImage();
            EXPECT_EQ(icon.width(), static_cast<int>(20 * ratio)) << row.image;
            EXPECT_EQ(CellsAlong(icon, true, 0.08), row.leftDown) << row.image << ratio;
            EXPECT_EQ(CellsAlong(icon, true, 0.92), row.rightDown) << row.image << ratio;
            EXPECT_EQ(CellsAlong(icon, false, 0.08), row.topAcross) << row.image << ratio;
            EXPECT_EQ(CellsAlong(icon, false, 0.92), row.bottomAcross) << row.image << ratio;
        }
    }
}

TEST(LayoutIcons, take_the_colors_of_the_palette_at_hand)
{
    const QPalette before = QGuiApplication::palette();
    const QIcon icon = LayoutIcon(kGridLayouts[0]);
    for (const QColor& color : {QColor(Qt::white), QColor(Qt::black)}) {
        QPalette palette = before;
        palette.setColor(QPalette::Active, QPalette::WindowText, color);
        palette.setColor(QPalette::Disabled, QPalette::WindowText, Qt::red);
        QGuiApplication::setPalette(palette);
        EXPECT_EQ(icon.pixmap(16, QIcon::Normal).toImage().pixelColor(0, 0), color);
        EXPECT_EQ(icon.pixmap(16, QIcon::Disabled).toImage().pixelColor(0, 0), QColor(Qt::red));
    }
    QGuiApplication::setPalette(before);
}

}  // namespace

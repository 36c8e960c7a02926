// A whole window on a made tree: bars and menus agree, panes come and go, everything has a name.
#include "app/window/OpenWindow.h"
#include "browser/ZELPatientOutlineView.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QLineEdit>
#include <QToolButton>
#include <algorithm>
#include <set>

namespace {

TEST(MainWindow, opens_the_layout_that_its_sequences_fill)
{
    struct Row {
        int wish;
        std::size_t sequences;
        int layout;
    };
    for (const Row& row : {Row{0, 1, 651}, Row{0, 2, 653}, Row{0, 3, 656}, Row{0, 4, 664},
                           Row{664, 2, 653}, Row{652, 3, 652}}) {
        OpenWindow open(std::vector<SeriesForm>(row.sequences, SeriesForm{.frames = 1}),
                        [&] { prefs_Set_SequenceInitialGridArrangement(row.wish); });
        EXPECT_EQ(open.window->pane()->protocolItemTag(), row.layout)
            << row.wish << " " << row.sequences;
    }
}

// By the size that they really have.
TEST(MainWindow, tall_grids_have_more_rows_and_wide_ones_more_columns)
{
    for (const auto& [layout, rows, columns] : {std::tuple{653, 3, 2}, std::tuple{652, 2, 3}}) {
        OpenWindow open({{.frames = 6}, {.frames = 6}},
                        [&] { prefs_Set_SequenceInitialGridArrangement(layout); });
        for (const auto* grid : open.window->pane()->gridControllers()) {
            EXPECT_EQ(grid->viewport().gridRows(), rows) << layout;
            EXPECT_EQ(grid->viewport().gridCols(), columns) << layout;
        }
        // Also where the layout changes later.
        open.Choose(layout == 653 ? QStringLiteral("2 rows") : QStringLiteral("2 columns"));
        QTest::qWait(30);
        for (const auto* grid : open.window->pane()->gridControllers())
            EXPECT_EQ(grid->viewport().gridRows(), columns) << layout;
    }
    prefs_Set_SequenceInitialGridArrangement(0);
}

TEST(MainWindow, scope_is_one_for_all_windows)
{
    OpenWindow one, other;
    ToolScope::Shared().setToolScope(ToolScope::kFrame);
    EXPECT_TRUE(other.Button("tool_scope_frame")->isChecked());
    one.Button("tool_scope_sequence")->trigger();
    EXPECT_TRUE(other.Button("tool_scope_sequence")->isChecked());
    EXPECT_TRUE(other.window->pane()->toolScope().isSequence());
    EXPECT_EQ(prefs_ToolScope(), ToolScope::kSequence);
}

TEST(MainWindow, keys_in_the_list_are_the_lists)
{
    OpenWindow open;
    auto* list = open.window->findChild<ZELPatientOutlineView*>();
    open.window->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(open.window.get()));
    list->setFocus();
    QTest::keyClick(list, Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(list->selectedNodes().size(), 3u);
    const int before = open.window->pane()->tools().currentTool();
    QTest::keyClick(list, Qt::Key_P);
    EXPECT_EQ(open.window->pane()->tools().currentTool(), before);
    open.window->pane()->view()->setFocus();
    QTest::keyClick(open.window->pane()->view(), Qt::Key_P);
    EXPECT_NE(open.window->pane()->tools().currentTool(), before);
}

TEST(MainWindow, keeps_the_active_sequence_when_grids_go)
{
    OpenWindow open;
    GridsPane& pane = *open.window->pane();
    pane.activateGrid(*pane.gridControllers()[1]);
    const dk_SequenceBase* active = pane.proxy()->theSequence();
    open.Choose(QStringLiteral("Single"));
    ASSERT_EQ(pane.gridControllers().size(), 1u);
    EXPECT_EQ(pane.proxy()->theSequence(), active);
}

// Also by ways that no notification tells of, as a drop on a grid that isn't active.
TEST(MainWindow, the_list_knows_in_which_grid_a_sequence_stands)
{
    OpenWindow open({{}, {.frames = 3}, {.frames = 2}, {.frames = 1}, {.frames = 1}});
    GridsPane& pane = *open.window->pane();
    PatTreeDataSource& source = *open.window->findChild<ZELPatientOutlineView*>()->dataSource();
    dk_SequenceBase* last = open.window->imagesDB().lastSequence_DICOM();
    dk_SequenceBase* before = pane.gridControllers()[2]->curr_dkSequence();
    EXPECT_EQ(source.nodeFor(last)->gridID(), 0);
    pane.changeSequenceTo(pane.proxyOf(last), *pane.gridControllers()[2]);
    QTest::qWait(10);
    EXPECT_EQ(source.nodeFor(last)->gridID(), 3);
    EXPECT_EQ(source.nodeFor(before)->gridID(), 0);
}

TEST(MainWindow, menus_name_the_program)
{
    OpenWindow open;
    EXPECT_TRUE(open.Action(QStringLiteral("About Zelora Viewer")));
}

TEST(MainWindow, panes_come_and_go_and_are_remembered)
{
    OpenWindow open;
    const auto focus = [&] { return open.window->focusWidget(); };
    const QWidget* before = focus();
    open.Choose(QStringLiteral("Hide Patient List"));
    EXPECT_FALSE(prefs_ShowPatientListPane());
    EXPECT_EQ(focus(), before);
    EXPECT_FALSE(open.Action(QStringLiteral("Show Study Info"))->isEnabled());
    open.Choose(QStringLiteral("Hide Secondary Toolbar"));
    EXPECT_EQ(prefs_ShowZELToolbarPane(), 2);
    open.Choose(QStringLiteral("Show Patient List"));
    open.Choose(QStringLiteral("Show Secondary Toolbar"));
    EXPECT_TRUE(prefs_ShowPatientListPane());
    EXPECT_EQ(prefs_ShowZELToolbarPane(), 1);
}

TEST(MainWindow, buttons_follow_what_menus_and_keys_do)
{
    OpenWindow open;
    EXPECT_FALSE(open.Button("tool_reset")->isEnabled());
    open.Choose(QStringLiteral("Invert"));
    QTest::qWait(30);
    EXPECT_TRUE(open.Button("tool_invert")->isChecked());
    EXPECT_TRUE(open.Button("tool_reset")->isEnabled());
    open.Button("tool_reset")->trigger();
    QTest::qWait(30);
    EXPECT_FALSE(open.Button("tool_invert")->isChecked());
    QTest::keyClick(open.window->pane()->view(), Qt::Key_P);
    EXPECT_TRUE(open.Button("tool_pan")->isChecked());
    EXPECT_FALSE(open.Button("tool_window")->isChecked());
    EXPECT_FALSE(open.Button("tool_crop")->isEnabled());
    EXPECT_FALSE(open.Button("tool_measure")->isEnabled());
}

// In a hidden menu bar they would go dead.
TEST(MainWindow, keys_work_in_full_screen)
{
    OpenWindow open;
    open.Choose(QStringLiteral("Enter Full Screen"));
    EXPECT_TRUE(open.window->isFullScreen());
    open.window->menuBar()->hide();
    QTest::keyClick(open.window->pane()->view(), Qt::Key_I, Qt::ControlModifier);
    EXPECT_TRUE(open.window->pane()->proxy()->currentFrameIsInverted());
    QTest::keyClick(open.window->pane()->view(), Qt::Key_F11);
    EXPECT_FALSE(open.window->isFullScreen());
}

TEST(MainWindow, tells_when_it_comes_and_goes)
{
    OpenWindow open;
    std::vector<bool> goings;
    const auto watch = NotificationCenter::Default().AddObserver(
        kNoteMainWindowChange, [&](const Notification& note) {
            goings.push_back(note.userInfo.value(QLatin1String(kKeyMovingOut)).toBool());
        });
    open.window->close();
    EXPECT_EQ(goings, std::vector<bool>{true});
    EXPECT_EQ(open.app.log, Words{"closed"});
    EXPECT_EQ(prefs_MainSplitSizes().size(), 2u);
}

TEST(MainWindow, the_keyboard_alone_reaches_everything)
{
    OpenWindow open;
    std::set<std::string> reached;
    QWidget* const first = open.window->pane()->view();
    first->setFocus();
    for (int i = 0; i < 120; ++i) {
        QTest::keyClick(open.window->focusWidget(), Qt::Key_Tab);
        const QWidget* at = open.window->focusWidget();
        ASSERT_TRUE(at);
        reached.insert(at->metaObject()->className() + (":" + at->accessibleName().toStdString()));
        if (at == first)
            break;
    }
    EXPECT_EQ(open.window->focusWidget(), first) << "the walk comes round";
    for (const char* part : {"ZELPatientOutlineView", "QSlider", "QTableView", "QLineEdit:Zoom",
                             "QLineEdit:Window width", "QLineEdit:Frame", "QToolButton:Series Grid",
                             "ZELDraggingSequenceGridView"})
        EXPECT_TRUE(std::ranges::any_of(reached, [part](const std::string& name) {
            return name.starts_with(part);
        })) << part;
    // From the list into the grid, and every menu by its key.
    open.window->findChild<ZELPatientOutlineView*>()->setFocus();
    QTest::keyClick(open.window->focusWidget(), Qt::Key_Down);
    QTest::keyClick(open.window->focusWidget(), Qt::Key_Return);
    for (const QAction* menu : open.window->menuBar()->actions())
        EXPECT_TRUE(menu->text().contains(u'&')) << menu->text().toStdString();
}

// For those who can't see it, or use no mouse.
TEST(MainWindow, every_control_has_a_name_and_every_button_a_tip)
{
    OpenWindow open;
    for (const QWidget* widget : open.window->findChildren<QWidget*>()) {
        const auto* button = qobject_cast<const QAbstractButton*>(widget);
        const bool internal = widget->objectName().startsWith(QLatin1String("qt_")) ||
                              widget->inherits("QHeaderView");
        const bool edits = qobject_cast<const QLineEdit*>(widget) ||
                           qobject_cast<const QAbstractItemView*>(widget);
        if (internal || !(button || edits) || !widget->isVisible())
            continue;
        const QString name = button && widget->accessibleName().isEmpty()
                                 ? button->text()
                                 : widget->accessibleName();
        EXPECT_FALSE(name.isEmpty()) << widget->metaObject()->className() << " in "
                                     << widget->parentWidget()->metaObject()->className();
        EXPECT_FALSE(button && widget->toolTip().isEmpty())
            << widget->metaObject()->className() << " " << name.toStdString();
    }
}

}  // namespace

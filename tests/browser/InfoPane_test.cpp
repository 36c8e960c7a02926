// Whose values the info pane shows, and how it folds.
#include "browser/InfoPane.h"

#include "browser/BrowserFixture.h"

#include <QSplitter>
#include <QToolButton>

namespace {

QString ValueOf(const InfoTableSource& table, const char* title)
{
    for (int row = 0; row < table.rowCount(); ++row)
        if (table.index(row, 0).data().toString() == QLatin1String(title))
            return table.index(row, 1).data().toString();
    return QStringLiteral("no row");
}

QVariant Pointer(const void* p) { return QVariant::fromValue(const_cast<void*>(p)); }

}  // namespace

TEST(InfoTableSource, lists_values_under_headings)
{
    ListedTree made;
    InfoTableSource table(&made);
    EXPECT_EQ(table.rowCount(), 0);
    table.setTableSequenceTo(made.sequences[0]);
    EXPECT_EQ(ValueOf(table, "Modality"), QStringLiteral("CT"));
    EXPECT_EQ(ValueOf(table, "Rows"), QStringLiteral("48"));
    EXPECT_EQ(ValueOf(table, "Weight (kg)"), QStringLiteral("no row"));
    EXPECT_EQ(ValueOf(table, "CONTRAST"), QStringLiteral("no row")) << "a heading of nothing";
    ASSERT_TRUE(table.isHeading(0));
    EXPECT_EQ(table.index(0, 0).data().toString(), QStringLiteral("PATIENT"));
    int headings = 0;
    for (int row = 0; row < table.rowCount(); ++row)
        headings += table.isHeading(row);
    EXPECT_EQ(table.totalTableHeight(),
              headings * 19 + (table.rowCount() - headings) * 17 + table.rowCount() - 1);
    EXPECT_FALSE(table.isHeading(table.rowCount() - 1));
    EXPECT_EQ(table.heightOfRow(-1), 17);
    const QSignalSpy resets(&table, &QAbstractItemModel::modelReset);
    table.setTableSequenceTo(made.sequences[0]);
    EXPECT_EQ(resets.count(), 0) << "the same sequence";
}

TEST(InfoTableSource, follows_its_own_window)
{
    ListedTree made;
    const int window = 0, other = 0;
    InfoTableSource table(&window);
    const auto post = [](std::string_view name, const void* object, const void* key,
                         const void* sequence, bool several) {
        NotificationCenter::Default().Post(name, object,
                                           {{QLatin1String(kKeyWindow), Pointer(key)},
                                            {QLatin1String(kKeyNewDkSequence), Pointer(sequence)},
                                            {QLatin1String(kKeyMultiSeqsSelected), several}});
    };
    struct Row {
        const char* fault;
        std::string_view name;
        const void *object, *key;
        int sequence;
        bool several;
        int shown;  // -1 none
    };
    const Row rows[] = {
        {"a grid", kNoteGridDidChangeSequence, nullptr, &window, 1, false, 1},
        {"another window's grid", kNoteGridDidChangeSequence, nullptr, &other, 2, false, 1},
        {"the browser", kNotePatientSelectionDidChange, &window, nullptr, 2, false, 2},
        {"another window's browser", kNotePatientSelectionDidChange, &other, &window, 0, false, 2},
        {"two of them", kNotePatientSelectionDidChange, &window, nullptr, 2, true, -1},
        {"one again", kNotePatientSelectionDidChange, &window, nullptr, 2, false, 2},
        {"the other notification of grids", kNoteGridDidChange, nullptr, &window, 0, false, 0},
    };
    for (const Row& row : rows) {
        post(row.name, row.object, row.key, made.sequences[row.sequence], row.several);
        EXPECT_EQ(table.theSequence(), row.shown < 0 ? nullptr : made.sequences[row.shown])
            << row.fault;
        EXPECT_EQ(table.rowCount() > 0, row.shown >= 0) << row.fault;
    }
    FakeHost host(&made.tree);
    Grid grid(&host);
    grid.setCurrZELSequence(host.proxyOf(made.sequences[3]));
    NotificationCenter::Default().Post(kNoteGridDidChange, nullptr,
                                       {{QLatin1String(kKeyWindow), Pointer(&window)},
                                        {QLatin1String(kKeyNewGridController), Pointer(&grid)}});
    EXPECT_EQ(table.theSequence(), made.sequences[3]) << "of the grid";
}

TEST(InfoPane, the_divider_leaves_room_for_the_browser)
{
    struct Row {
        bool closed;
        int split, table, divider, position;
    };
    const Row rows[] = {
        {true, 600, 200, 5, 351}, {true, 300, 900, 5, 120}, {false, 600, 200, 5, 576}};
    for (const Row& row : rows)
        EXPECT_EQ(U_InfoDividerPosition(row.closed, row.split, row.table, row.divider),
                  row.position);
    EXPECT_TRUE(U_InfoIsClosed(29, 5));
    EXPECT_FALSE(U_InfoIsClosed(30, 5));
}

TEST(InfoPane, folds_to_its_title_and_back)
{
    ListedTree made;
    const int window = 0;
    QSplitter split(Qt::Vertical);
    split.addWidget(new QWidget);
    split.setChildrenCollapsible(false);
    InfoPane* pane = new InfoPane(&window, &split);
    pane->source()->setTableSequenceTo(made.sequences[0]);
    split.resize(240, 600);
    split.show();
    LetEventsRun(20);
    auto* button = pane->findChild<QToolButton*>();
    const QString hide = button->accessibleName();
    EXPECT_FALSE(pane->viewIsClosed());
    button->click();
    LetEventsRun(kInfoFold_ms + 150);
    EXPECT_TRUE(pane->viewIsClosed());
    EXPECT_NE(button->accessibleName(), hide);
    pane->toggleInfoPane();
    LetEventsRun(kInfoFold_ms + 150);
    EXPECT_FALSE(pane->viewIsClosed());
    EXPECT_EQ(button->accessibleName(), hide);
    EXPECT_NEAR(split.sizes()[0],
                U_InfoDividerPosition(true, 600, pane->totalTableHeight(), split.handleWidth()), 1);
}

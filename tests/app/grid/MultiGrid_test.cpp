// Layouts of grids: which grid shows what, which is active, and what an exchange leaves behind.
#include "app/grid/CineRules.h"
#include "app/grid/GridFixture.h"
#include "app/grid/MultiGridViewController.h"

namespace {

// A window of a layout over a tree of five sequences, the second a colour one.
struct Layouts {
    explicit Layouts(int layout = 664)
        : made({{.frames = 3},
                {.modality = "MR", .frames = 4},
                {.frames = 12},
                {.frames = 1},
                {.modality = "US", .frames = 2, .color = true}}),
          host(&made.tree)
    {
        host.scope.setToolScope(ToolScope::kFrame);
        Open(layout);
    }
    void Open(int layout)
    {
        auto opened = std::make_unique<MultiGridViewController>(&host, layout);
        HangSequences(opened.get(), grids.get(), &host);
        grids = std::move(opened);
        host.grids = grids->theSequenceViewControllers();
        host.layout = layout;
        watch = grids->ObserveKey("activeSequenceGridController",
                                  [this](std::string_view, KeyPhase) { Follow(); });
        Follow();
    }
    void Follow() { host.active = grids->activeSequenceGridController(); }
    // The sequences of the grids from 1, "-" for an empty one, the active grid's in brackets.
    [[nodiscard]] std::string Shown() const
    {
        std::string shown;
        for (const Grid* grid : grids->theSequenceViewControllers()) {
            const auto at = std::ranges::find(made.sequences, grid->curr_dkSequence());
            const std::string name =
                at == made.sequences.end() ? "-" : std::to_string(at - made.sequences.begin() + 1);
            shown += grid == grids->activeSequenceGridController() ? "[" + name + "]" : name;
        }
        return shown;
    }
    [[nodiscard]] std::shared_ptr<ZELSequenceProxy> Proxy(int sequence)
    {
        return host.proxyOf(made.sequences[static_cast<std::size_t>(sequence - 1)]);
    }
    void PostActive(int number, const void* window)
    {
        const auto pointer = [](const void* p) {
            return QVariant::fromValue(const_cast<void*>(p));
        };
        NotificationCenter::Default().Post(
            kNoteGridDidChange, nullptr,
            {{QLatin1String(kKeyNewGridController), pointer(grids->gridWithNumber(number))},
             {QLatin1String(kKeyWindow), pointer(window)}});
    }

    MadeTree made;
    FakeHost host;
    std::unique_ptr<MultiGridViewController> grids;
    ObservableKeys::Watch watch;
};

TEST(GridLayouts, have_their_grids)
{
    const std::map<int, int> grids{{650, 0}, {651, 1}, {652, 2}, {653, 2}, {654, 3}, {655, 3},
                                   {656, 3}, {657, 3}, {658, 3}, {659, 3}, {660, 4}, {661, 4},
                                   {662, 4}, {663, 4}, {664, 4}, {665, 4}, {666, 4}, {667, 4},
                                   {668, 0}, {0, 0},   {-1, 0}};
    for (const auto& [id, count] : grids) {
        EXPECT_EQ(NumGridsForControllerWithID(id), count) << id;
        EXPECT_EQ(ControllerWithID(id) ? ControllerWithID(id)->id : 0, count > 0 ? id : 0);
    }
}

TEST(MultiGrid, opens_in_a_layout_for_its_sequences)
{
    const Quiet quiet;
    struct Row {
        std::size_t sequences;
        int wanted, layout;
    };
    for (const Row& row :
         {Row{1, 0, 651}, Row{2, 0, 653}, Row{3, 0, 656}, Row{5, 0, 664}, Row{3, 659, 659},
          Row{3, 664, 656}, Row{2, 660, 653}, Row{5, 668, 664}, Row{0, 664, 651}, Row{0, 0, 664}}) {
        MadeTree made(std::vector<SeriesForm>(row.sequences, SeriesForm{.frames = 1}));
        prefs_Set_SequenceInitialGridArrangement(row.wanted);
        EXPECT_EQ(LayoutForOpening(made.tree), row.layout) << row.sequences << " " << row.wanted;
    }
    prefs_Set_SequenceInitialGridArrangement(0);
}

TEST(MultiGrid, keeps_sequences_when_the_layout_changes)
{
    const Quiet quiet;
    struct Row {
        const char* fault;
        int from, active, to;
        const char* shown;
    };
    const Row rows[] = {
        {"fewer grids", 664, 2, 653, "1[2]"},
        {"the active one would be left out", 664, 4, 653, "1[4]"},
        {"only one", 656, 3, 651, "[3]"},
        {"more grids", 653, 2, 664, "1[2]34"},
        {"as many", 664, 3, 667, "12[3]4"},
    };
    for (const Row& row : rows) {
        Layouts window(row.from);
        window.grids->setActiveSequenceGridController(window.grids->gridWithNumber(row.active));
        window.Open(row.to);
        EXPECT_EQ(window.Shown(), row.shown) << row.fault;
    }
    {
        Layouts window(653);
        window.grids->gridWithNumber(2)->setCurrZELSequence(nullptr);
        window.Open(652);
        EXPECT_EQ(window.Shown(), "[1]-") << "as many grids bring nothing in";
    }
    Layouts window(653);
    window.grids->changeSequenceTo(window.Proxy(3), *window.grids->gridWithNumber(1));
    window.Open(664);
    EXPECT_EQ(window.Shown(), "[3]214") << "those that stand somewhere don't come again";
}

TEST(MultiGrid, brings_sequences_in_and_exchanges_those_that_stand)
{
    const Quiet quiet;
    struct Row {
        const char* fault;
        int sequence, grid;
        const char* shown;
    };
    const Row rows[] = {
        {"a new one", 4, 1, "[4]23"},         {"into another than the active one", 4, 3, "[1]24"},
        {"from another grid", 2, 1, "[2]13"}, {"between two that aren't active", 3, 2, "[1]32"},
        {"its own", 1, 1, "[1]23"},
    };
    for (const Row& row : rows) {
        Layouts window(656);
        window.grids->U_ActivateSequence(window.Proxy(row.sequence),
                                         *window.grids->gridWithNumber(row.grid));
        EXPECT_EQ(window.Shown(), row.shown) << row.fault;
        EXPECT_EQ(window.grids->seqGridIDForSequence(window.Proxy(row.sequence)->theSequence()),
                  row.grid);
    }
    // A drag's proxy is another one of the same sequence.
    Layouts window(656);
    const std::unique_ptr<ZELSequenceProxy> dragged = window.Proxy(3)->copyWithZone();
    window.grids->exchangeActiveSequence(window.Proxy(1).get(), dragged.get());
    EXPECT_EQ(window.Shown(), "[3]21");
    window.grids->exchangeActiveSequence(window.Proxy(5).get(), dragged.get());
    EXPECT_EQ(window.Shown(), "[3]21") << "one stands nowhere";
    EXPECT_EQ(window.grids->controllerWithDkSequence(nullptr), nullptr);
}

TEST(MultiGrid, an_exchange_takes_rows_and_playing_along)
{
    const Quiet quiet;
    Layouts window(653);
    Grid& one = *window.grids->gridWithNumber(1);
    Grid& two = *window.grids->gridWithNumber(2);
    one.setGridRowsTo(2, 3, false);
    two.setGridRowsTo(1, 1, false);
    two.setCineModeIsON(true);
    window.host.Take();
    window.grids->U_ActivateSequence(window.Proxy(2), one);
    EXPECT_EQ(one.gridSetupID(), 0);
    EXPECT_EQ(two.viewport().gridCols(), 3);
    EXPECT_EQ(window.host.Take(), (Words{"stop cine", "node", "node", "start cine", "toolbar"}));
    EXPECT_TRUE(one.cineModeIsON()) << "with its sequence";
    EXPECT_FALSE(two.cineModeIsON());
}

TEST(MultiGrid, tells_of_the_active_grid_also_where_only_its_sequence_changes)
{
    const Quiet quiet;
    for (const int layout : {651, 653}) {
        Layouts window(layout);
        std::vector<const void*> heard;
        const auto watch =
            window.grids->ObserveKey("targetSequence", [&](std::string_view, KeyPhase phase) {
                if (phase == KeyPhase::DidChange)
                    heard.push_back(window.grids->targetSequence());
            });
        window.grids->changeSequenceTo(window.Proxy(4), *window.grids->gridWithNumber(1));
        ASSERT_EQ(heard.size(), 2u) << layout;
        EXPECT_EQ(heard[0], layout == 651 ? nullptr : window.Proxy(2).get());
        EXPECT_EQ(heard[1], window.Proxy(4).get());
    }
}

TEST(MultiGrid, follows_the_active_grid_of_its_own_window)
{
    const Quiet quiet;
    Layouts window(653);
    FakeSurface viewA("A", &window.host.log), viewB("B", &window.host.log);
    window.grids->gridWithNumber(1)->setGridView(&viewA);
    window.grids->gridWithNumber(2)->setGridView(&viewB);
    window.host.Take();
    window.PostActive(2, &window);
    EXPECT_EQ(window.Shown(), "[1]2") << "of another window";
    window.PostActive(2, window.host.windowKey());
    EXPECT_EQ(window.Shown(), "1[2]");
    EXPECT_EQ(window.host.Take(), (Words{"A all", "B all", "regions menu"}));
    window.grids->localizers().setShowLocalizers(true);
    window.PostActive(1, window.host.windowKey());
    EXPECT_EQ(window.host.Take(), (Words{"B all", "A all", "regions menu", "B all"}))
        << "lines are those of the active grid";
    NotificationCenter::Default().Post(kNoteFrameDidChange, static_cast<GridSurface*>(&viewA));
    EXPECT_EQ(window.host.Take(), (Words{"B all"}));
    NotificationCenter::Default().Post(kNoteFrameDidChange, static_cast<GridSurface*>(&viewB));
    EXPECT_EQ(window.host.Take(), Words()) << "not the active grid's frame";
    NotificationCenter::Default().Post(kNoteLocalizerColorChanged, nullptr);
    EXPECT_EQ(window.host.Take(), (Words{"A all", "B all"}));
    window.grids->gridWithNumber(2)->setGridView(nullptr);
    window.grids->gridWithNumber(1)->setGridView(nullptr);
}

TEST(MultiGrid, lets_go_of_the_crop_while_its_sequence_changes)
{
    const Quiet quiet;
    Layouts window(653);
    window.host.tool = kToolCrop;
    window.host.Take();
    window.grids->changeSequenceTo(window.Proxy(4), *window.grids->gridWithNumber(1));
    EXPECT_EQ(window.host.Take(), (Words{"freeze crop", "activate crop", "node", "node"}));
    window.grids->changeSequenceTo(window.Proxy(3), *window.grids->gridWithNumber(2));
    EXPECT_EQ(window.host.Take(), (Words{"node", "node"}));
}

TEST(MultiGrid, gives_menus_their_values)
{
    const Quiet quiet;
    Layouts window(651);
    struct Row {
        std::int32_t scope;
        int item;
        const char* frames;  // with that table
    };
    for (const Row& row : {Row{0, 4, "1"}, Row{1, 5, "123"}, Row{7, 9, ""}, Row{1, 0, "123"}}) {
        window.host.scope.setToolScope(row.scope);
        window.grids->setCurrentClutMenuItemID(row.item);
        const std::int32_t table = row.item > 0 ? row.item - 1 : 0;
        EXPECT_EQ(
            FramesWith(window.made.sequences[0],
                       [&](const dk_ImageFrameInfo& info) { return info.fColorTable == table; }),
            row.frames)
            << row.item;
        if (*row.frames) {
            EXPECT_EQ(window.grids->currentClutMenuItemID(), row.item);
        }
    }
    window.grids->setCurrentGridMenuID(3);
    EXPECT_EQ(window.grids->currentGridMenuID(), 3);
    EXPECT_FALSE(window.grids->currentInvert());
    window.grids->targetSequence()->invertColorsForFrame(0);
    EXPECT_TRUE(window.grids->currentInvert());
}

TEST(MultiGrid, knows_what_plays)
{
    const Quiet quiet;
    Layouts window(653);
    EXPECT_EQ(CanPlaySomeCine(window.host), window.Proxy(1)->canPlayCine());
    EXPECT_FALSE(HasCinePlaying(window.host));
    EXPECT_FALSE(AllCinesArePlaying(window.host));
    window.grids->gridWithNumber(1)->setCineModeIsON(true);
    EXPECT_TRUE(HasCinePlaying(window.host));
    EXPECT_FALSE(AllCinesArePlaying(window.host));
    window.grids->gridWithNumber(2)->setCineModeIsON(true);
    EXPECT_TRUE(AllCinesArePlaying(window.host));
}

TEST(MultiGrid, fits_rows_to_the_form_of_its_view)
{
    const Quiet quiet;
    Layouts window(651);
    Grid& grid = *window.grids->gridWithNumber(1);
    struct Row {
        QSizeF view;
        int rows, columns;
    };
    for (const Row& row : {Row{{300, 400}, 3, 2}, Row{{400, 300}, 2, 3}, Row{{400, 310}, 3, 2},
                           Row{{0, 300}, 3, 2}}) {
        grid.setGridRowsTo(3, 2, false);
        FitGridDimsToView(grid, row.view);
        EXPECT_EQ(grid.viewport().gridRows(), row.rows);
        EXPECT_EQ(grid.viewport().gridCols(), row.columns);
    }
}

}  // namespace

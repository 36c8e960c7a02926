// How a window's grids come to another frame, and measurements to every frame.
#include "app/grid/FrameNavigation.h"

#include "app/grid/GridFixture.h"

namespace {

struct Navigated {
    Navigated() : made({SeriesForm{}, {.frames = 4}}), window(&made), navigation(&window.host)
    {
        window.host.Take();
    }
    [[nodiscard]] std::pair<int, int> Frames() const
    {
        return {window.a.currZELSequence()->currentFrame(),
                window.b.currZELSequence()->currentFrame()};
    }
    MadeTree made;
    Window window;
    FrameNavigation navigation;
};

using Frames = std::pair<int, int>;

}  // namespace

TEST(FrameNavigation, ends_what_was_unfinished_before_the_active_grid_moves_on)
{
    struct Row {
        const char* fault;
        bool cine;
        int tool;
        Words log;
        bool keepsSelection;
    };
    const Row rows[] = {
        {"still",
         false,
         0,
         {"A close", "A stop editing", "A viewport", "A all", "A all", "zoom menu",
          "window controls", "toolbar", "A tracking"},
         false},
        {"with the crop tool",
         false,
         kToolCrop,
         {"A close", "A stop editing", "A viewport", "A all", "A all", "zoom menu",
          "window controls", "toolbar", "A tracking", "activate crop"},
         false},
        {"while it plays", true, kToolCrop, {"A all"}, true},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.fault);
        Navigated navigated;
        const CKShapePtr shape = NewBox();
        navigated.window.a.currZELSequence()->addNewMeasurement(shape, true);
        navigated.window.a.setCineModeIsON(row.cine);
        navigated.window.host.tool = row.tool;
        const Posted told(kNoteFrameDidChange);
        navigated.window.a.U_SendNotificationForNewFrame(5, CellChangeType::Click);
        EXPECT_EQ(navigated.window.host.Take(), row.log);
        EXPECT_EQ(navigated.Frames(), Frames(5, 1));
        EXPECT_EQ(shape->_selected, row.keepsSelection);
        ASSERT_EQ(told.notes.size(), 1u);
        EXPECT_EQ(told.Number(kKeyNewCellIndex), 4);
        EXPECT_EQ(told.Number(kKeyCellChangeType), 5);
    }
}

TEST(FrameNavigation, another_grid_just_goes_there)
{
    Navigated navigated;
    const Posted told(kNoteFrameDidChange);
    navigated.window.b.U_SendNotificationForNewFrame(3, CellChangeType::Step);
    EXPECT_EQ(navigated.Frames(), Frames(1, 3));
    EXPECT_EQ(navigated.window.host.Take(), (Words{"B viewport", "B all"}));
    navigated.window.b.setCineModeIsON(true);
    navigated.window.b.U_SendNotificationForNewFrame(4, CellChangeType::Step);
    EXPECT_EQ(navigated.Frames(), Frames(1, 4));
    EXPECT_EQ(navigated.window.host.Take(), Words());
    EXPECT_TRUE(told.notes.empty());
}

TEST(FrameNavigation, each_window_serves_its_own_grids)
{
    Navigated first, second;
    first.window.a.U_SendNotificationForNewFrame(5, CellChangeType::Jump);
    EXPECT_EQ(first.Frames(), Frames(5, 1));
    EXPECT_EQ(second.Frames(), Frames(1, 1));
    EXPECT_EQ(second.window.host.Take(), Words());
    // A grid without a view asks nobody, and is nobody's.
    first.window.a.setGridView(nullptr);
    first.window.a.U_SendNotificationForNewFrame(2, CellChangeType::Jump);
    EXPECT_EQ(first.Frames(), Frames(5, 1));
}

TEST(FrameNavigation, a_scroll_bar_moves_the_frame_but_in_the_active_matrix)
{
    struct Row {
        const char* fault;
        bool active;
        int rows, columns, firstRow;
        Frames frames;
        int told;  // cell index; -99 not
    };
    const Row rows[] = {
        {"the active grid, one frame", true, 1, 1, 4, {5, 1}, 4},
        {"the active matrix", true, 2, 2, 1, {1, 1}, 2},
        {"another grid, one frame", false, 1, 1, 2, {1, 3}, -99},
        {"another matrix", false, 1, 2, 1, {1, 3}, -99},
        {"not scrolled", true, 1, 1, 0, {1, 1}, -99},
    };
    for (const Row& row : rows) {
        for (const bool closing : {false, true}) {
            SCOPED_TRACE(row.fault);
            Navigated navigated;
            Grid& grid = row.active ? navigated.window.a : navigated.window.b;
            grid.setGridRowsTo(row.rows, row.columns, false);
            grid.viewport().setFirstRow(row.firstRow);
            navigated.window.host.closing = closing;
            const Posted told(kNoteFrameDidChange);
            navigated.navigation.gridViewBoundsDidChange(grid);
            EXPECT_EQ(navigated.Frames(), closing ? Frames(1, 1) : row.frames);
            EXPECT_EQ(told.Number(kKeyNewCellIndex), closing ? -99 : row.told);
        }
    }
}

// ---- measurements for every frame ----

TEST(FrameNavigation, a_new_measurement_stands_in_every_frame_under_the_scope_of_the_sequence)
{
    struct Row {
        const char* fault;
        int scope;
        Box::Kind kind;
        bool isNew, singleFrame;
        int action;
        bool becomesGlobal;
    };
    constexpr Box::Kind kPlain = Box::Kind::Plain;
    const Row rows[] = {
        {"a new one", 1, kPlain, true, false, 1, true},
        {"scope of the frame", 0, kPlain, true, false, 1, false},
        {"unknown scope", 7, kPlain, true, false, 1, false},
        {"not new any more", 1, kPlain, false, false, 1, false},
        {"only changed", 1, kPlain, true, false, 4, false},
        {"a calibration", 1, Box::Kind::Calibration, true, false, 1, false},
        {"there is one frame only", 1, kPlain, true, true, 1, false},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.fault);
        MadeTree made({SeriesForm{.frames = row.singleFrame ? 1 : 3}});
        Window window(&made), other(&made);
        const FrameNavigation navigation(&window.host), second(&other.host);
        window.host.scope.setToolScope(row.scope);
        const CKShapePtr shape = NewBox({}, row.kind);
        shape->_isNew = row.isNew;
        ZELSequenceProxy& proxy = *window.a.currZELSequence();
        proxy.addNewMeasurement(shape, true);
        window.host.Take();
        NotificationCenter::Default().Post(
            kNoteMeasurementChange, static_cast<GridSurface*>(&window.viewA),
            {{QLatin1String(kKeyTargetMeasurement), QVariant::fromValue(shape)},
             {QLatin1String(kKeyMeasurementAction), row.action}});
        EXPECT_EQ(shape->_global, row.becomesGlobal);
        EXPECT_EQ(shape->_isNew, row.isNew && !row.becomesGlobal);
        EXPECT_EQ(proxy.totalMeasurementsInFrame(1), 1);
        EXPECT_EQ(proxy.totalMeasurementsInFrame(3), row.becomesGlobal ? 1 : 0);
        EXPECT_EQ(window.host.Take(), row.becomesGlobal ? Words{"A all"} : Words{});
        EXPECT_EQ(other.host.Take(), Words());
    }
}

TEST(FrameNavigation, a_deleted_global_measurement_leaves_every_frame)
{
    for (const bool global : {true, false}) {
        SCOPED_TRACE(global);
        Navigated navigated;
        ZELSequenceProxy& proxy = *navigated.window.a.currZELSequence();
        const CKShapePtr shape = NewBox();
        navigated.window.a.appendToAllFrames(shape);
        shape->_global = global;
        NotificationCenter::Default().Post(
            kNoteMeasurementChange, static_cast<GridSurface*>(&navigated.window.viewA),
            {{QLatin1String(kKeyTargetMeasurement), QVariant::fromValue(shape)},
             {QLatin1String(kKeyMeasurementAction), 2}});
        EXPECT_EQ(proxy.hasMeasurements(), !global);
        EXPECT_EQ(shape->references(), global ? 0 : 7);
    }
}

// Layouts on the screen: where grids lie, which is active, what is dropped on them.
#include "app/views/GridLayoutView.h"

#include "app/views/LayoutFixture.h"
#include "app/views/SequenceMime.h"

#include <QDropEvent>
#include <QPainter>

namespace {

QRect PlaceOf(LayoutWindow& window, int number)
{
    QWidget& view = window.View(number);
    return {view.mapTo(window.host.layout, QPoint(0, 0)), view.size()};
}

TEST(GridLayoutView, places_grids_as_their_layout_says)
{
    const Quiet quiet;
    // Where the grids' middles lie, in hundredths of the whole: columns, then rows.
    struct Row {
        int id;
        std::vector<QPoint> middles;
    };
    const Row rows[] = {
        {651, {{50, 50}}},
        {652, {{50, 25}, {50, 75}}},
        {653, {{25, 50}, {75, 50}}},
        {654, {{50, 25}, {25, 75}, {75, 75}}},
        {655, {{25, 25}, {75, 25}, {50, 75}}},
        {656, {{25, 50}, {75, 25}, {75, 75}}},
        {657, {{25, 25}, {25, 75}, {75, 50}}},
        {658, {{50, 17}, {50, 50}, {50, 83}}},
        {659, {{17, 50}, {50, 50}, {83, 50}}},
        {660, {{50, 25}, {17, 75}, {50, 75}, {83, 75}}},
        {661, {{17, 25}, {50, 25}, {83, 25}, {50, 75}}},
        {662, {{25, 50}, {75, 17}, {75, 50}, {75, 83}}},
        {663, {{25, 17}, {25, 50}, {25, 83}, {75, 50}}},
        {664, {{25, 25}, {75, 25}, {25, 75}, {75, 75}}},
        {665, {{25, 25}, {25, 75}, {75, 25}, {75, 75}}},
        {666, {{50, 13}, {50, 38}, {50, 63}, {50, 88}}},
        {667, {{13, 50}, {38, 50}, {63, 50}, {88, 50}}},
    };
    LayoutWindow window(651);
    for (const Row& row : rows) {
        window.Open(row.id);
        QCoreApplication::processEvents();
        ASSERT_EQ(window.host.layout->theSequenceViews().size(), row.middles.size()) << row.id;
        const QSize whole = window.host.layout->size();
        for (std::size_t i = 0; i < row.middles.size(); ++i) {
            const QPoint middle = PlaceOf(window, static_cast<int>(i) + 1).center();
            EXPECT_NEAR(middle.x() * 100.0 / whole.width(), row.middles[i].x(), 1.5) << row.id;
            EXPECT_NEAR(middle.y() * 100.0 / whole.height(), row.middles[i].y(), 1.5) << row.id;
        }
    }
}

TEST(GridLayoutView, a_click_makes_its_grid_the_active_one_first)
{
    const Quiet quiet;
    LayoutWindow window(653);
    window.host.tools.changeToolTo(kToolWindow);
    const Posted active(kNoteGridDidChange), frame(kNoteFrameShouldChange);
    bool activeCameFirst = false;
    const auto order = NotificationCenter::Default().AddObserver(
        kNoteFrameShouldChange,
        [&](const Notification&) { activeCameFirst = active.notes.size() == 1; });
    window.Drag(2, {60, 100}, {100, 100});
    EXPECT_EQ(window.Grids().activeSequenceGridController(), &window.At(2));
    ASSERT_EQ(frame.notes.size(), 1u);
    EXPECT_TRUE(activeCameFirst);
    EXPECT_EQ(window.Record(2).voiWidth, 400) << "the click that came with the focus is no drag";
    window.Drag(2, {60, 100}, {100, 100});
    EXPECT_NE(window.Record(2).voiWidth, 400);
    EXPECT_EQ(window.Record(1).voiWidth, 400);

    window.At(1).setCineModeIsON(true);
    window.Click(1, {60, 100});
    EXPECT_EQ(window.Grids().activeSequenceGridController(), &window.At(2)) << "what plays";
}

TEST(GridLayoutView, each_tool_changes_the_picture_of_its_grid_alone)
{
    const Quiet quiet;
    struct Row {
        std::int32_t tool;
        bool changes;
        bool (*done)(const zel_TransformRec& record);
    };
    const Row rows[] = {
        {kToolWindow, true, [](const auto& r) { return r.voiWidth > 4000 && r.voiLevel > 3000; }},
        {kToolPan, true, [](const auto& r) { return r.scroll.x > 0; }},
        {kToolZoom, true, [](const auto& r) { return r.zoom < 12 * kZoomOne; }},
        {kToolSelection, false, [](const auto& r) { return r.zoom == 12 * kZoomOne; }},
        {kToolLine, false, [](const auto& r) { return r.zoom == 12 * kZoomOne; }},
    };
    for (const GridLayout& layout : {*ControllerWithID(651), *ControllerWithID(664)}) {
        for (const Row& row : rows) {
            LayoutWindow window(layout.id);
            window.At(1).setGridSetupID(0);
            window.At(1).currZELSequence()->changeZoomForFrame(1, 1200);
            window.At(1).currZELSequence()->changeVOIForAllFrames(true, 4000, 3000);
            window.host.tools.changeToolTo(row.tool);
            window.Click(1, {60, 60});
            const auto shown = [&](int number) {
                return window.View(number).viewport()->grab().toImage();
            };
            const int other = layout.grids() > 1 ? 2 : 1;
            // Until then pictures may come in a lower quality, and change by themselves.
            EXPECT_TRUE(QTest::qWaitFor(
                [&] { return window.View(1).isSettled() && window.View(other).isSettled(); }));
            const QImage before = shown(1), beside = shown(other);
            window.Drag(1, {60, 60}, {80, 40});
            QCoreApplication::processEvents();
            EXPECT_TRUE(row.done(window.Record(1))) << row.tool;
            EXPECT_EQ(shown(1) != before, row.changes) << row.tool;
            if (other == 2) {
                EXPECT_EQ(shown(other), beside) << row.tool;
            }
        }
    }
}

TEST(GridLayoutView, other_buttons_act_in_the_cell_where_they_are_pressed)
{
    const Quiet quiet;
    LayoutWindow window(653);
    window.At(2).setGridSetupID(3);
    const double right = window.View(2).viewport()->width() * 0.75;
    window.Drag(2, {right, 40}, {right + 30, 40}, Qt::RightButton);
    EXPECT_EQ(window.At(2).resolved(0), 2);
    EXPECT_EQ(window.Record(2, 1).voiWidth, 400);
    EXPECT_NE(window.Record(2, 2).voiWidth, 400);
    window.At(2).currZELSequence()->setCurrentFrame(1);
    window.At(2).currZELSequence()->changeZoomForFrame(2, 800);
    window.Drag(2, {right, 40}, {right + 30, 40}, Qt::MiddleButton);
    EXPECT_EQ(window.At(2).resolved(0), 2);
    EXPECT_EQ(window.Record(2, 1).scroll.x, 0);
    EXPECT_GT(window.Record(2, 2).scroll.x, 0);
}

TEST(GridLayoutView, two_windows_are_none_of_each_others_business)
{
    const Quiet quiet;
    LayoutWindow one(653), two(653);
    one.host.tools.changeToolTo(kToolWindow);
    two.host.Take();
    one.Click(2, {60, 100});
    one.Drag(2, {60, 100}, {100, 100});
    EXPECT_EQ(two.Grids().activeSequenceGridController(), &two.At(1));
    EXPECT_EQ(two.Record(2).voiWidth, 400);
    EXPECT_EQ(two.host.Take(), Words());
}

TEST(GridLayoutView, frames_the_active_grid_in_its_colour)
{
    const Quiet quiet;
    LayoutWindow window(653);
    const auto edge = [&](int number) {
        return QColor(window.View(number).viewport()->grab().toImage().pixelColor(1, 60));
    };
    EXPECT_EQ(edge(1), QColor(Qt::red));
    EXPECT_EQ(edge(2), QColor(Qt::black));
    window.View(2).becomeFirstResponder();
    EXPECT_EQ(edge(1), QColor(Qt::black));
    EXPECT_EQ(edge(2), QColor(Qt::red));
    window.Open(651);
    QCoreApplication::processEvents();
    EXPECT_EQ(edge(1), QColor(Qt::red)) << "one grid of several cells";
    window.At(1).setGridSetupID(0);
    EXPECT_EQ(edge(1), QColor(Qt::black)) << "alone with one frame";
}

struct Dropped {
    bool entered, highlighted, dropped;
};

Dropped Drop(LayoutWindow& window, int number, QMimeData* mime)
{
    ZELDraggingSequenceGridView& view = window.View(number);
    const auto isYellow = [&] {
        const QImage image = view.viewport()->grab().toImage();
        return image.pixelColor(1, image.height() / 2) == QColor(Qt::yellow);
    };
    QDragEnterEvent enter({20, 20}, Qt::CopyAction, mime, Qt::LeftButton, {});
    QCoreApplication::sendEvent(view.viewport(), &enter);
    const bool highlighted = isYellow();
    QDropEvent drop({20, 20}, Qt::CopyAction, mime, Qt::LeftButton, {});
    if (enter.isAccepted())
        QCoreApplication::sendEvent(view.viewport(), &drop);
    EXPECT_FALSE(isYellow());
    return {enter.isAccepted(), highlighted, enter.isAccepted() && drop.isAccepted()};
}

TEST(GridLayoutView, takes_sequences_that_are_dropped)
{
    const Quiet quiet;
    struct Row {
        const char* fault;
        const char* type;
        int sequence, grid;
        bool here, taken;
        const char* shown;
    };
    const Row rows[] = {
        {"from the other grid", kSequencePasteboardType, 2, 1, true, true, "21"},
        {"its own", kSequencePasteboardType, 1, 1, true, false, "12"},
        {"a row of the list", kTreeNodePasteboardType, 3, 2, true, true, "13"},
        {"a row that stands in the other grid", kTreeNodePasteboardType, 1, 2, true, true, "21"},
        {"its own row", kTreeNodePasteboardType, 2, 2, true, false, "12"},
        {"from another window", kSequencePasteboardType, 2, 1, false, false, "12"},
    };
    for (const Row& row : rows) {
        LayoutWindow window(653);
        auto* sequence = window.made.sequences[static_cast<std::size_t>(row.sequence - 1)];
        SequenceMime mime(row.type, window.host.proxyOf(sequence)->copyWithZone(),
                          row.here ? window.host.windowKey() : &mime);
        const Posted exchanged(kNoteMeasurementChange), changed(kNoteGridDidChangeSequence);
        const Dropped drop = Drop(window, row.grid, &mime);
        EXPECT_EQ(drop.entered, row.taken) << row.fault;
        EXPECT_EQ(drop.highlighted, row.taken) << row.fault;
        EXPECT_EQ(drop.dropped, row.taken) << row.fault;
        std::string shown;
        for (const Grid* grid : window.Grids().theSequenceViewControllers())
            shown +=
                std::to_string(std::ranges::find(window.made.sequences, grid->curr_dkSequence()) -
                               window.made.sequences.begin() + 1);
        EXPECT_EQ(shown, row.shown) << row.fault;
        const bool ofGrid = row.taken && row.type == kSequencePasteboardType;
        EXPECT_EQ(exchanged.notes.size(), ofGrid ? 1u : 0u) << row.fault;
        EXPECT_EQ(changed.notes.size(), row.taken && !ofGrid && row.grid == 1 ? 1u : 0u);
    }
    LayoutWindow window(653);
    QMimeData file;
    file.setUrls({QUrl(QStringLiteral("file:///tmp"))});
    EXPECT_FALSE(Drop(window, 1, &file).entered) << "files are the window's";
}

TEST(GridLayoutView, drags_a_half_transparent_picture)
{
    const Quiet quiet;
    LayoutWindow window(651);
    window.At(1).setGridSetupID(0);
    const QImage shown = window.View(1).viewport()->grab().toImage();
    const QImage dragged = window.View(1).dragImageWithAlpha().toImage();
    EXPECT_EQ(dragged.size(), shown.size());
    EXPECT_NEAR(dragged.pixelColor(dragged.rect().center()).alpha(), 128, 1);
}

TEST(GridLayoutView, a_long_drag_paints_its_last_state_and_no_more)
{
    const Quiet quiet;
    LayoutWindow window(664);
    window.host.tools.changeToolTo(kToolWindow);
    window.At(1).setGridSetupID(0);
    window.Click(1, {60, 60});
    QCoreApplication::processEvents();
    const auto rendered = [&](int number) { return window.At(number).pictures().rendered(); };
    const std::int64_t before = rendered(1), other = rendered(2);
    window.Drag(1, {60, 60}, {160, 110}, Qt::LeftButton, {}, 200);
    QCoreApplication::processEvents();
    EXPECT_LE(rendered(1) - before, 2) << "one for the drag, one for its result";
    EXPECT_EQ(rendered(2), other);
    const std::int64_t after = rendered(1);
    const QImage shown = window.View(1).viewport()->grab().toImage();
    EXPECT_EQ(rendered(1), after) << "what had been painted was the last state";
    window.At(1).removeFrameBuffersForAllFrames();
    EXPECT_EQ(window.View(1).viewport()->grab().toImage(), shown);
}

}  // namespace

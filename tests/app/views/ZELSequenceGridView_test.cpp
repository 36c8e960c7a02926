// Real events of keys, wheel and mouse, and what they come to in the model.
#include "app/grid/GridFixture.h"
#include "app/tools/ZELToolsController.h"
#include "app/views/ZELDraggingSequenceGridView.h"

#include <QImage>
#include <QScrollBar>
#include <QTest>
#include <QWheelEvent>

namespace {

struct Shown {
    explicit Shown(int setup = 0) : made({{.frames = 12}, {.frames = 3}}), host(&made.tree)
    {
        host.grids = {&grid};
        host.active = &grid;
        host.scope.setToolScope(ToolScope::kFrame);
        grid.setCurrZELSequence(host.proxyOf(made.sequences[0]));
        tools.changeToolTo(kToolWindow);
        view.emplace(ZELSequenceGridView::Links{&grid, &tools, &navigation, &actions});
        view->resize(240, 200);
        view->show();
        grid.setGridSetupID(setup);
        QTest::qWait(1);
    }
    [[nodiscard]] int Frame() const { return grid.resolved(0); }
    [[nodiscard]] zel_TransformRec& Record(int frame = 1)
    {
        return made.sequences[0]->GetImageFrameInfo(frame)->fTransform;
    }
    void Wheel(int delta, Qt::KeyboardModifiers keys = {}, QPointF at = {100, 100})
    {
        QWheelEvent event(at, view->viewport()->mapToGlobal(at), {}, {0, delta}, Qt::NoButton, keys,
                          Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(view->viewport(), &event);
    }
    void Drag(Qt::MouseButton button, QPoint from, QPoint to, Qt::KeyboardModifiers keys = {})
    {
        QTest::mousePress(view->viewport(), button, keys, from);
        QTest::mouseMove(view->viewport(), (from + to) / 2);
        QMouseEvent move(QEvent::MouseMove, to, view->viewport()->mapToGlobal(to), Qt::NoButton,
                         button, keys);
        QCoreApplication::sendEvent(view->viewport(), &move);
        QTest::mouseRelease(view->viewport(), button, keys, to);
    }

    MadeTree made;
    FakeHost host;
    Grid grid{&host};
    ZELToolsController tools;
    FrameNavigation navigation{&host};
    ViewerActions actions{&host};
    std::optional<ZELDraggingSequenceGridView> view;
};

TEST(ZELSequenceGridView, goes_where_keys_lead)
{
    struct Row {
        int setup, from;
        Qt::Key key;
        int to;
    };
    const Row rows[] = {
        {0, 5, Qt::Key_Right, 6},   {0, 5, Qt::Key_Up, 4},     {0, 1, Qt::Key_Left, 1},
        {3, 5, Qt::Key_Down, 7},    {3, 5, Qt::Key_PageUp, 1}, {3, 11, Qt::Key_PageDown, 12},
        {0, 12, Qt::Key_Right, 12}, {3, 5, Qt::Key_End, 12},   {3, 5, Qt::Key_Home, 1},
    };
    for (const Row& row : rows) {
        Shown shown(row.setup);
        shown.grid.currZELSequence()->setCurrentFrame(row.from);
        QTest::keyClick(&*shown.view, row.key);
        EXPECT_EQ(shown.Frame(), row.to) << row.key;
        EXPECT_TRUE(row.to == row.from || shown.grid.viewport().isCellVisible(row.to - 1, false))
            << row.key;
    }
    Shown shown;
    QTest::keyClick(&*shown.view, Qt::Key_Right, Qt::ControlModifier);
    EXPECT_EQ(shown.grid.curr_dkSequence(), shown.made.sequences[1]);
}

TEST(ZELSequenceGridView, pages_by_the_wheel_and_zooms_about_the_pointer)
{
    Shown one;
    one.Wheel(-120);
    EXPECT_EQ(one.Frame(), 2);
    one.Wheel(-60);
    one.Wheel(-60);
    EXPECT_EQ(one.Frame(), 3) << "two halves of a notch";
    one.Wheel(120);
    EXPECT_EQ(one.Frame(), 2);

    Shown matrix(3);
    matrix.Wheel(-120);
    EXPECT_EQ(matrix.Frame(), 1) << "a matrix scrolls, its frame stays";
    EXPECT_EQ(matrix.grid.viewport().firstRow(), 1);
    EXPECT_EQ(matrix.view->verticalScrollBar()->value(), 1);
    EXPECT_TRUE(matrix.view->verticalScrollBar()->isVisible());
    EXPECT_FALSE(Shown(9).view->verticalScrollBar()->isVisible()) << "all cells are seen";

    Shown zoomed;
    zoomed.grid.currZELSequence()->changeZoomForFrame(1, 400);
    const QPointF at(150, 60);
    const QPointF held = zoomed.grid.viewPointToFramePoint(at, 1);
    zoomed.Wheel(120, Qt::ControlModifier, at);
    EXPECT_EQ(zoomed.Record().zoom, 8 * kZoomOne);
    const QPointF now = zoomed.grid.viewPointToFramePoint(at, 1);
    EXPECT_NEAR(now.x(), held.x(), 0.2);
    EXPECT_NEAR(now.y(), held.y(), 0.2);
}

TEST(ZELSequenceGridView, gives_each_button_its_part)
{
    Shown left;
    left.view->setFocus();
    left.Drag(Qt::LeftButton, {100, 100}, {120, 100});
    EXPECT_NE(left.Record().voiWidth, 400);
    EXPECT_EQ(left.Record(2).voiWidth, 400);

    Shown middle;
    middle.grid.currZELSequence()->changeZoomForFrame(1, 800);
    middle.Drag(Qt::MiddleButton, {100, 100}, {120, 100});
    EXPECT_GT(middle.Record().scroll.x, 0);
    EXPECT_EQ(middle.Record().voiWidth, 400);

    Shown right;
    right.Drag(Qt::RightButton, {100, 100}, {103, 103});
    EXPECT_EQ(right.Record().voiWidth, 400) << "a click";
    right.Drag(Qt::RightButton, {100, 100}, {140, 100});
    EXPECT_NE(right.Record().voiWidth, 400);
}

TEST(ZELSequenceGridView, only_moves_by_a_click_in_another_cell)
{
    Shown shown(3);
    shown.view->setFocus();
    shown.Drag(Qt::LeftButton, {180, 40}, {220, 60});
    EXPECT_EQ(shown.Frame(), 2);
    EXPECT_EQ(shown.Record(2).voiWidth, 400);
    QTest::mouseDClick(shown.view->viewport(), Qt::LeftButton, {}, {180, 40});
    EXPECT_TRUE(shown.grid.inSingleFrameMode());
    EXPECT_EQ(shown.grid.viewport().firstRow(), 1);
    QTest::mouseDClick(shown.view->viewport(), Qt::LeftButton, {}, {100, 100});
    EXPECT_EQ(shown.grid.gridSetupID(), 3);
}

TEST(ZELSequenceGridView, follows_its_scroll_bar_and_its_size)
{
    Shown shown;
    shown.view->verticalScrollBar()->setValue(7);
    EXPECT_EQ(shown.Frame(), 8);
    shown.grid.setGridSetupID(3);
    shown.view->verticalScrollBar()->setValue(1);
    EXPECT_EQ(shown.Frame(), 8);
    shown.view->resize(480, 400);
    QTest::qWait(1);
    EXPECT_EQ(shown.grid.viewport().firstRow(), 1);
    EXPECT_NEAR(shown.grid.viewport().cellRect(2).height(), 200, 1);
}

TEST(ZELSequenceGridView, paints_the_last_of_many_drags_and_not_each)
{
    Shown shown;
    const std::int64_t before = shown.grid.pictures().rendered();
    shown.view->setFocus();
    QTest::mousePress(shown.view->viewport(), Qt::LeftButton, {}, {100, 100});
    for (int i = 1; i <= 200; ++i) {
        const QPointF to(100 + i, 100);
        QMouseEvent move(QEvent::MouseMove, to, shown.view->viewport()->mapToGlobal(to),
                         Qt::NoButton, Qt::LeftButton, {});
        QCoreApplication::sendEvent(shown.view->viewport(), &move);
    }
    QTest::mouseRelease(shown.view->viewport(), Qt::LeftButton, {}, {300, 100});
    QCoreApplication::processEvents();
    const std::int64_t rendered = shown.grid.pictures().rendered() - before;
    EXPECT_LE(rendered, 3);
    const QImage screen = shown.view->viewport()->grab().toImage();
    EXPECT_LE(shown.grid.pictures().rendered() - before, rendered)
        << "what shows is the last state";
    EXPECT_FALSE(screen.isNull());
}

}  // namespace

// What keys do beside going from frame to frame.
#include "app/views/LayoutFixture.h"

namespace {

// Writes down what it is asked.
class FakeGestures final : public ShapeGestures {
public:
    bool beginCreating(std::int32_t, const QPointF&) override { return false; }
    bool beginSelecting(const QPointF&, bool) override { return false; }
    bool doubleClicked(std::int32_t, const QPointF&) override { return false; }
    void drag(const QPointF&, bool, bool) override {}
    void release(const QPointF&) override {}
    void moveSelectedGraphicsBy(const QPointF& delta) override { moved = delta; }
    void closePendingMeasurements(bool close) override { log.push_back(close ? "close" : "drop"); }
    void stopEditing() override {}

    QPointF moved;
    Words log;
};

struct Keyed {
    Keyed() : made({{.frames = 5}, {.frames = 3}}), host(&made.tree)
    {
        host.grids = {&grid};
        host.active = &grid;
        host.scope.setToolScope(ToolScope::kFrame);
        grid.setCurrZELSequence(host.proxyOf(made.sequences[0]));
        view.resize(240, 200);
        view.show();
        host.Take();
    }
    void Press(Qt::Key key, Qt::KeyboardModifiers keys = {}) { QTest::keyClick(&view, key, keys); }
    ZELSequenceProxy& Proxy() { return *grid.currZELSequence(); }

    MadeTree made;
    FakeHost host;
    Grid grid{&host};
    ZELToolsController tools;
    FrameNavigation navigation{&host};
    ViewerActions actions{&host};
    FakeGestures gestures;
    ZELDraggingSequenceGridView view{{&grid, &tools, &navigation, &actions, &gestures}};
};

TEST(ZELEnhancedGridView, arrows_move_a_measurement_as_it_is_seen)
{
    const Quiet quiet;
    struct Row {
        Qt::Key key;
        int turn;
        bool flip;
        QPointF moved;  // in the frame's own axes
    };
    const Row rows[] = {
        {Qt::Key_Right, 0, false, {1, 0}},    {Qt::Key_Up, 0, false, {0, -1}},
        {Qt::Key_Right, 90, false, {0, -1}},  {Qt::Key_Down, 90, false, {1, 0}},
        {Qt::Key_Right, 180, false, {-1, 0}}, {Qt::Key_Left, 0, true, {1, 0}},
    };
    for (const Row& row : rows) {
        Keyed keyed;
        for (int turned = 0; turned < row.turn; turned += 90)
            keyed.Proxy().changeRotationForFrame(0, 90);
        if (row.flip)
            keyed.actions.flipView(keyed.grid, 0, false);
        keyed.Proxy().addNewMeasurement(NewBox(), true);
        keyed.Press(row.key);
        EXPECT_EQ(keyed.gestures.moved, row.moved) << row.key << " at " << row.turn;
        EXPECT_EQ(keyed.Proxy().currentFrame(), 1);
        keyed.Press(Qt::Key_Right, Qt::ControlModifier);
        EXPECT_EQ(keyed.grid.curr_dkSequence(), keyed.made.sequences[1])
            << "also with a measurement";
    }
}

TEST(ZELEnhancedGridView, space_plays_and_stops)
{
    const Quiet quiet;
    Keyed keyed;
    const bool plays = keyed.Proxy().canPlayCine();
    keyed.Press(Qt::Key_Space);
    EXPECT_EQ(keyed.host.Take(), plays ? Words{"start cine"} : Words());
    keyed.grid.setCineModeIsON(true);
    keyed.Press(Qt::Key_Space);
    EXPECT_EQ(keyed.host.Take(), Words{"stop cine"});
    keyed.host.hasCine = false;
    keyed.Press(Qt::Key_Space);
    EXPECT_EQ(keyed.host.Take(), Words()) << "nothing that plays";
}

TEST(ZELEnhancedGridView, delete_takes_the_measurement_or_all_crops)
{
    const Quiet quiet;
    Keyed keyed;
    keyed.Proxy().addNewMeasurement(NewBox(), true);
    keyed.Proxy().setCropForFrame(NewBox({1, 1, 9, 9}, Box::Kind::Crop),
                                  ZELSequenceProxy::kAllFrames);
    keyed.tools.changeToolTo(kToolCrop);
    keyed.host.tool = kToolCrop;
    keyed.Press(Qt::Key_Delete);
    EXPECT_FALSE(keyed.Proxy().hasCrops());
    EXPECT_EQ(keyed.Proxy().totalMeasurementsInFrame(1), 1);
    keyed.Press(Qt::Key_Backspace);
    EXPECT_EQ(keyed.Proxy().totalMeasurementsInFrame(1), 0);
}

TEST(ZELEnhancedGridView, keys_without_a_meaning_end_here)
{
    const Quiet quiet;
    Keyed keyed;
    for (const Qt::Key key : {Qt::Key_A, Qt::Key_F5, Qt::Key_Insert}) {
        QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
        event.ignore();
        QCoreApplication::sendEvent(&keyed.view, &event);
        EXPECT_TRUE(event.isAccepted()) << key;
    }
    EXPECT_EQ(keyed.Proxy().currentFrame(), 1);
}

TEST(ZELEnhancedGridView, unfinished_shapes_end_with_the_focus_but_not_for_a_menu)
{
    const Quiet quiet;
    for (const auto& [reason, closes] : {std::pair{Qt::MouseFocusReason, true},
                                         {Qt::TabFocusReason, true},
                                         {Qt::PopupFocusReason, false},
                                         {Qt::ActiveWindowFocusReason, false}}) {
        Keyed keyed;
        QFocusEvent out(QEvent::FocusOut, reason);
        QCoreApplication::sendEvent(&keyed.view, &out);
        EXPECT_EQ(keyed.gestures.log, closes ? Words{"close"} : Words()) << reason;
    }
}

}  // namespace

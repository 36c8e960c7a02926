// The commands on a grid's measurements: what stays current, what is redrawn, what is told.
#include "app/grid/GridFixture.h"

namespace {

// Frame 2 of 4 with three boxes a, b, c, bottom first; none is current.
struct Stacked {
    Stacked() : made({SeriesForm{.frames = 4}}), window(&made)
    {
        proxy = window.a.currZELSequence().get();
        proxy->setCurrentFrame(2);
        for (const CKShapePtr& shape : {a, b, c})
            proxy->addNewMeasurement(shape, false);
        window.host.Take();
    }
    [[nodiscard]] std::string Order(std::int32_t frame = 2) const
    {
        std::string order;
        for (const CKShapePtr& shape : proxy->measurementsForFrame(frame))
            order += NameOf(shape);
        return order;
    }
    [[nodiscard]] std::string NameOf(const CKShapePtr& shape) const
    {
        return !shape ? "" : shape == a ? "a" : shape == b ? "b" : shape == c ? "c" : "?";
    }
    [[nodiscard]] CKShapePtr Named(char name) const
    {
        return name == 'a' ? a : name == 'b' ? b : c;
    }
    void AddTo(std::int32_t frame, const CKShapePtr& shape) const
    {
        proxy->viewStateForFrame(frame)->addMeasurement(shape);
    }
    void MakeGlobal(const CKShapePtr& shape) const
    {
        shape->_global = true;
        for (const int frame : {1, 3, 4})
            AddTo(frame, shape);
    }
    MadeTree made;
    Window window;
    ZELSequenceProxy* proxy;
    CKShapePtr a = NewBox({10, 10, 20, 20}), b = NewBox({25, 25, 20, 15}),
               c = NewBox({2, 40, 4, 4});
};

}  // namespace

TEST(GridMeasurements, of_a_deleted_one_the_next_in_its_place_becomes_current)
{
    struct Row {
        const char* fault;
        char current, deleted;
        const char *order, *currentAfter;
        bool endsGestures;
    };
    const Row rows[] = {
        {"the one above moves down", 'b', 'b', "ac", "c", true},
        {"the top one has none above", 'c', 'c', "ab", "b", true},
        {"at the bottom", 'a', 'a', "bc", "b", true},
        {"another one was current", 'c', 'a', "bc", "c", false},
        {"none was current", ' ', 'a', "bc", "", false},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.fault);
        Stacked stacked;
        if (row.current != ' ')
            stacked.proxy->setCurrentMeasurement(stacked.Named(row.current));
        const std::int32_t before = row.deleted - 'a' + 1;
        const Posted told(kNoteMeasurementChange);
        stacked.window.a.deleteMeasurementInFrame(stacked.Named(row.deleted), 0);
        EXPECT_EQ(stacked.Order(), row.order);
        EXPECT_EQ(stacked.NameOf(stacked.proxy->currentMeasurement()), row.currentAfter);
        EXPECT_EQ(stacked.proxy->currentMeasurement() == nullptr ||
                      stacked.proxy->currentMeasurement()->_selected,
                  true);
        EXPECT_EQ(stacked.window.host.Take(),
                  row.endsGestures ? (Words{"A close", "A stop editing", "A frame 2"})
                                   : (Words{"A frame 2"}));
        ASSERT_EQ(told.notes.size(), 1u);
        EXPECT_EQ(told.Number(kKeyMeasurementAction), 2);
        EXPECT_EQ(told.Number(kKeyTargetFrame), 2);
        EXPECT_EQ(told.Number(kKeyPreviousPosition), before);
    }
}

TEST(GridMeasurements, the_only_one_leaves_none_current)
{
    Stacked stacked;
    const CKShapePtr only = NewBox();
    stacked.proxy->setCurrentFrame(3);
    stacked.proxy->addNewMeasurement(only, true);
    stacked.window.a.deleteMeasurementInFrame(only, 3);
    EXPECT_EQ(stacked.proxy->currentMeasurement(), nullptr);
    // In a frame that isn't shown: it goes, and nobody is told.
    stacked.AddTo(1, only);
    const Posted told(kNoteMeasurementChange);
    stacked.window.a.deleteMeasurementInFrame(only, 1);
    EXPECT_EQ(stacked.Order(1), "");
    stacked.window.a.deleteMeasurementInFrame(only, 1);
    stacked.window.a.deleteMeasurementInFrame(stacked.a, 5);
    EXPECT_TRUE(told.notes.empty());
}

TEST(GridMeasurements, the_current_one_is_deleted_but_not_a_crop)
{
    struct Row {
        const char* fault;
        Box::Kind kind;
        bool global, deleted;
        const char* drawn;
    };
    const Row rows[] = {
        {"local", Box::Kind::Plain, false, true, "A frame 2"},
        {"global", Box::Kind::Plain, true, true, "A all"},
        {"a crop", Box::Kind::Crop, false, false, ""},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.fault);
        Stacked stacked;
        const CKShapePtr shape = NewBox({}, row.kind);
        stacked.proxy->addNewMeasurement(shape, true);
        if (row.global)
            stacked.MakeGlobal(shape);
        const Posted told(kNoteMeasurementChange);
        stacked.window.a.deleteSelectedMeasurement();
        EXPECT_EQ(stacked.Order(), row.deleted ? "abc" : "abc?");
        EXPECT_EQ(stacked.Order(4), "") << "everywhere";
        EXPECT_EQ(stacked.proxy->currentMeasurement() == nullptr, row.deleted);
        ASSERT_EQ(told.notes.size(), row.deleted ? 1u : 0u);
        if (!row.deleted)
            continue;
        EXPECT_EQ(stacked.window.host.log.back(), row.drawn);
        EXPECT_EQ(told.Number(kKeyMeasurementAction), 2);
        EXPECT_EQ(told.Number(kKeyPreviousPosition), 4);
        EXPECT_EQ(told.notes[0].object, static_cast<GridSurface*>(&stacked.window.viewA));
        stacked.window.a.deleteSelectedMeasurement();
        EXPECT_EQ(told.notes.size(), 1u) << "none is current now";
    }
}

TEST(GridMeasurements, all_of_a_frame_and_all_of_a_sequence)
{
    struct Row {
        const char* fault;
        bool global;
        void (*remove)(Grid&);
        const char *here, *there;  // of frames 2 and 1
        const char* drawn;
        int frame;
    };
    const Row rows[] = {
        {"of the current frame", false, [](Grid& g) { g.deleteAllFrameMeasurements(); }, "", "?",
         "A frame 2", 2},
        {"global ones go everywhere", true, [](Grid& g) { g.deleteAllFrameMeasurements(); }, "",
         "?", "A all", 2},
        {"of another frame", false, [](Grid& g) { g.deleteAllMeasurementsInFrame(1); }, "abc", "",
         "A frame 1", 1},
        {"of the sequence", false, [](Grid& g) { g.deleteAllSequenceMeasurements(); }, "", "",
         "A all", -1},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.fault);
        Stacked stacked;
        stacked.AddTo(1, NewBox());
        if (row.global)
            stacked.MakeGlobal(stacked.a);
        const Posted told(kNoteMeasurementChange);
        row.remove(stacked.window.a);
        EXPECT_EQ(stacked.Order(), row.here);
        EXPECT_EQ(stacked.Order(1), row.there);
        EXPECT_EQ(stacked.window.host.log.back(), row.drawn);
        EXPECT_EQ(told.Number(kKeyMeasurementAction), 3);
        EXPECT_EQ(told.Number(kKeyTargetFrame), row.frame);
    }
}

TEST(GridMeasurements, are_stacked_anew_and_the_current_one_stays_so)
{
    struct Row {
        const char* fault;
        void (*move)(Grid&, const Stacked&);
        const char* order;
        int action, before;  // 0: nothing happens
    };
    const Row rows[] = {
        {"to the front", [](Grid& g, auto& s) { g.bringMeasurementToFront(s.a); }, "bca", 6, 1},
        {"forward", [](Grid& g, auto& s) { g.bringMeasurementForward(s.a); }, "bac", 7, 1},
        {"to the back", [](Grid& g, auto& s) { g.sendMeasurementToBack(s.c); }, "cab", 8, 3},
        {"backwards", [](Grid& g, auto& s) { g.sendMeasurementBackwards(s.c); }, "acb", 9, 3},
        {"in front already", [](Grid& g, auto& s) { g.bringMeasurementToFront(s.c); }, "abc", 0, 0},
        {"no step forward", [](Grid& g, auto& s) { g.bringMeasurementForward(s.c); }, "abc", 0, 0},
        {"at the back already", [](Grid& g, auto& s) { g.sendMeasurementToBack(s.a); }, "abc", 0,
         0},
        {"no step back", [](Grid& g, auto& s) { g.sendMeasurementBackwards(s.a); }, "abc", 0, 0},
        {"not in the frame", [](Grid& g, auto&) { g.bringMeasurementToFront(NewBox()); }, "abc", 0,
         0},
        {"to the bottom", [](Grid& g, auto& s) { g.moveMeasurementToPosition(s.c, 1); }, "cab", 5,
         3},
        {"to the top", [](Grid& g, auto& s) { g.moveMeasurementToPosition(s.a, 4); }, "bca", 5, 1},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.fault);
        Stacked stacked;
        stacked.proxy->setCurrentMeasurement(stacked.b);
        Words heard;
        const auto watch = stacked.proxy->ObserveKey({}, [&](std::string_view key, KeyPhase phase) {
            if (phase == KeyPhase::WillChange)
                heard.push_back(std::string(key));
        });
        const Posted told(kNoteMeasurementChange);
        row.move(stacked.window.a, stacked);
        EXPECT_EQ(stacked.Order(), row.order);
        EXPECT_EQ(stacked.proxy->currentMeasurement(), stacked.b);
        EXPECT_EQ(stacked.window.host.Take(), row.action ? Words{"A frame 2"} : Words{});
        EXPECT_EQ(heard, row.action
                             ? (Words{"currentMeasurementIsTopmost", "currentMeasurementIsLast"})
                             : Words{});
        ASSERT_EQ(told.notes.size(), row.action ? 1u : 0u);
        if (row.action == 0)
            continue;
        EXPECT_EQ(told.Number(kKeyMeasurementAction), row.action);
        EXPECT_EQ(told.Number(kKeyTargetFrame), 2);
        EXPECT_EQ(told.Number(kKeyPreviousPosition), row.before);
    }
}

TEST(GridMeasurements, are_stacked_anew_in_a_frame_that_is_not_shown)
{
    Stacked stacked;
    for (const CKShapePtr& shape : {stacked.a, stacked.b, stacked.c})
        stacked.AddTo(3, shape);
    const Posted told(kNoteMeasurementChange);
    stacked.window.a.bringMeasurementToFrontInFrame(stacked.a, 3);
    EXPECT_EQ(stacked.Order(3), "bca");
    stacked.window.a.bringMeasurementForwardInFrame(stacked.b, 3);
    EXPECT_EQ(stacked.Order(3), "cba");
    stacked.window.a.sendMeasurementToBackInFrame(stacked.a, 3);
    EXPECT_EQ(stacked.Order(3), "acb");
    stacked.window.a.sendMeasurementBackwardsInFrame(stacked.b, 3);
    EXPECT_EQ(stacked.Order(3), "abc");
    EXPECT_EQ(stacked.Order(), "abc") << "not those of the current frame";
    EXPECT_EQ(stacked.window.host.Take(), Words(4, "A frame 3"));
    ASSERT_EQ(told.notes.size(), 4u);
    for (std::size_t note = 0; note < told.notes.size(); ++note) {
        EXPECT_EQ(told.Number(kKeyTargetFrame, note), 3);
        EXPECT_EQ(told.Number(kKeyMeasurementAction, note), 5) << "a move to a position";
    }
}

TEST(GridMeasurements, one_is_propagated_to_every_frame_that_lacks_it)
{
    for (const bool shown : {true, false}) {
        SCOPED_TRACE(shown);
        Stacked stacked;
        stacked.AddTo(4, stacked.a);
        stacked.proxy->setCurrentMeasurement(stacked.a);
        const Posted told(kNoteMeasurementChange);
        if (shown)
            stacked.window.a.propagateCurrentMeasurement();
        else
            stacked.window.a.propagateMeasurement(stacked.a, 4);
        EXPECT_EQ(stacked.Order(1) + stacked.Order(2) + stacked.Order(3) + stacked.Order(4),
                  "aabcaa");
        EXPECT_TRUE(stacked.a->_global && !stacked.a->_isNew);
        EXPECT_EQ(stacked.proxy->currentMeasurement(), stacked.a);
        EXPECT_TRUE(stacked.a->_selected);
        EXPECT_EQ(stacked.window.host.Take(), Words{"A all"});
        EXPECT_EQ(told.Number(kKeyMeasurementAction), shown ? 4 : 1);
        EXPECT_EQ(told.Number(kKeyTargetFrame), shown ? 2 : -1);
    }
    Stacked none;
    const Posted told(kNoteMeasurementChange);
    none.window.a.propagateCurrentMeasurement();
    EXPECT_TRUE(told.notes.empty());
}

TEST(GridMeasurements, an_eraser_has_the_colour_of_the_image_where_it_begins)
{
    Stacked stacked;
    const CKShapePtr dark = NewBox({0, 0, 9, 9}), bright = NewBox({9, 40, 9, 3}),
                     line = NewBox({0, 0, 9, 9}, Box::Kind::Line);
    for (const CKShapePtr& shape : {dark, bright, line}) {
        stacked.proxy->addNewMeasurement(shape, true);
        stacked.window.a.makeEraserMeasurement();
    }
    EXPECT_EQ(dark->fillColorCK(), QColor(0, 0, 0));
    EXPECT_EQ(bright->fillColorCK(), QColor(255, 255, 255));
    EXPECT_TRUE(dark->hasFillON() && !dark->hasStrokeON());
    EXPECT_FALSE(dark->_descriptionON || dark->_shadowON);
    EXPECT_TRUE(line->hasStrokeON() && line->_descriptionON) << "it can't be one";
}

TEST(GridMeasurements, the_uppermost_under_a_point_unless_the_current_one_is_preferred)
{
    struct Row {
        const char* fault;
        char current;  // and selected
        bool prefer;
        QPointF at;  // of the frame
        const char* hit;
        int index, handle;
    };
    const Row rows[] = {
        {"only the lower one", ' ', false, {18, 18}, "a", 1, 0},
        {"both: the upper one", ' ', false, {28, 28}, "b", 2, 0},
        {"nothing", ' ', false, {60, 8}, "", 0, 0},
        {"a handle of one that isn't selected", ' ', false, {10, 10}, "a", 1, 0},
        {"a handle", 'a', false, {10, 10}, "a", 1, 1},
        {"a handle under another one's contents", 'a', false, {30, 30}, "b", 2, 0},
        {"a handle of the preferred one", 'a', true, {30, 30}, "a", 1, 8},
        {"contents of the preferred one", 'a', true, {24, 24}, "a", 1, 0},
        {"beside the preferred one", 'a', true, {40, 33}, "b", 2, 0},
        {"preferred without a current one", ' ', true, {28, 28}, "b", 2, 0},
    };
    for (const int rotation : {0, 180}) {
        for (const Row& row : rows) {
            SCOPED_TRACE(row.fault);
            Stacked stacked;
            stacked.proxy->changeRotationForFrame(0, static_cast<std::int16_t>(rotation));
            if (row.current != ' ')
                stacked.proxy->setCurrentMeasurement(stacked.Named(row.current));
            stacked.window.a.revealCurrentCell();
            const QPointF turned =
                rotation == 0 ? row.at : QPointF(kColumns - row.at.x(), kRows - row.at.y());
            const GraphicHit hit = stacked.window.a.graphicUnderPoint(
                turned + QPointF(kCellInset, kCellInset), row.prefer, 0);
            EXPECT_EQ(stacked.NameOf(hit.graphic), row.hit);
            EXPECT_EQ(hit.index, row.index);
            EXPECT_EQ(hit.handle, row.handle);
            EXPECT_EQ(stacked.window.a.graphicUnderPoint({20, 20}, row.prefer, 3).graphic, nullptr)
                << "another frame";
        }
    }
}

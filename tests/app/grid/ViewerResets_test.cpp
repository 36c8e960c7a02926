// Whether a reset has something to do, and that it has done it afterwards.
#include "app/grid/GridFixture.h"
#include "app/grid/ViewerActions.h"

namespace {

constexpr int kUnknownScope = 7;

struct Edited {
    Edited() : made({SeriesForm{.frames = 4}}), window(&made), actions(&window.host)
    {
        proxy = window.a.currZELSequence().get();
        proxy->setCurrentFrame(2);
        std::int32_t rows = 1, columns = 1;
        dk_SequenceViewState::GetPreferedGridDims(made.sequences[0]->GetModality(), 4, &rows,
                                                  &columns);
        window.a.setGridRowsTo(rows, columns, true);
    }
    void EditAll()
    {
        proxy->changeVOIForAllFrames(true, 123, 45);
        proxy->setClutIDTo(3, true);
        proxy->changeRotationForFrame(-1, 90);
        proxy->changeScrollPositionForAllFrames(true, {2, 3});
        proxy->changeZoomForFrame(-1, 200);
        for (int frame = 1; frame <= 4; ++frame)
            proxy->viewStateForFrame(frame)->addMeasurement(NewBox());
    }
    // What could be reset: colours, turns, pan, measurements, tables, anything.
    [[nodiscard]] std::string Resettable() const
    {
        constexpr std::pair<std::int32_t, char> kFlags[] = {{1, 'c'}, {2, 't'},  {4, 'p'},
                                                            {8, 'm'}, {32, 'l'}, {-1, '*'}};
        std::string can;
        for (const auto& [flags, letter] : kFlags) {
            if (actions.canRevertSeqWithFlags(flags))
                can += letter;
        }
        return can;
    }
    MadeTree made;
    Window window;
    ViewerActions actions;
    ZELSequenceProxy* proxy;
};

}  // namespace

TEST(ViewerResets, undo_what_they_are_about_and_nothing_else)
{
    struct Row {
        const char* what;
        void (*reset)(ViewerActions&);
        const char* left;
    };
    const Row rows[] = {
        {"colours", [](auto& v) { v.resetColors(); }, "tpm*"},
        {"tables", [](auto& v) { v.resetCLUTs(); }, "ctpm*"},
        {"turns", [](auto& v) { v.resetOrientation(); }, "cpml*"},
        {"pan", [](auto& v) { v.resetFramePosition(); }, "ctml*"},
        {"measurements", [](auto& v) { v.resetMeasurements(); }, "ctpl*"},
        {"everything", [](auto& v) { v.resetAllChanges(); }, ""},
    };
    for (const Row& row : rows) {
        for (const int scope : {0, 1}) {
            SCOPED_TRACE(std::string(row.what) + " in scope " + std::to_string(scope));
            Edited edited;
            edited.window.host.scope.setToolScope(scope);
            EXPECT_EQ(edited.Resettable(), "");
            edited.EditAll();
            EXPECT_EQ(edited.Resettable(), "ctpml*");
            row.reset(edited.actions);
            EXPECT_EQ(edited.Resettable(), row.left);
            edited.proxy->setCurrentFrame(3);
            EXPECT_EQ(edited.Resettable(), scope == 0 ? "ctpml*" : row.left) << "another frame";
            edited.window.host.scope.setToolScope(kUnknownScope);
            EXPECT_EQ(edited.Resettable(), "");
        }
    }
}

TEST(ViewerResets, see_what_a_sequence_has_beside_its_frames)
{
    struct Row {
        const char* fault;
        void (*edit)(Edited&);
        const char *ofFrame, *ofSequence;
    };
    const Row rows[] = {
        {"a calibration", [](Edited& e) { e.proxy->changeScaleForAllFrames(2); }, "", "*"},
        {"another grid", [](Edited& e) { e.window.a.setGridRowsTo(3, 1, false); }, "", "*"},
        {"crops", [](Edited& e) { e.proxy->setSequenceCrop(NewBox()); }, "", "*"},
        {"a measurement elsewhere",
         [](Edited& e) { e.proxy->viewStateForFrame(4)->addMeasurement(NewBox()); }, "", "m*"},
        {"a zoom elsewhere", [](Edited& e) { e.proxy->changeZoomForFrame(4, 300); }, "", "*"},
        {"a zoom here", [](Edited& e) { e.proxy->changeZoomForFrame(2, 300); }, "*", "*"},
        {"a pan elsewhere",
         [](Edited& e) { e.made.sequences[0]->GetSequenceFrameInfo()->SetFrameScroll(4, {1, 2}); },
         "", "p*"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.fault);
        Edited edited;
        row.edit(edited);
        EXPECT_EQ(edited.Resettable(), row.ofFrame);
        edited.window.host.scope.setToolScope(1);
        EXPECT_EQ(edited.Resettable(), row.ofSequence);
        edited.actions.resetAllChanges();
        EXPECT_EQ(edited.Resettable(), "") << "nothing is left to do";
    }
}

TEST(ViewerResets, of_everything_keep_other_frames_in_the_scope_of_a_frame)
{
    for (const int scope : {0, 1, kUnknownScope}) {
        SCOPED_TRACE(scope);
        Edited edited;
        edited.EditAll();
        edited.proxy->setSequenceCrop(NewBox({}, Box::Kind::Crop));
        edited.proxy->setViewShowsScale(false);
        edited.window.host.scope.setToolScope(scope);
        edited.window.host.Take();
        edited.actions.resetAllChanges();
        const auto framesWith = [&](auto has) { return FramesWith(edited.made.sequences[0], has); };
        const bool sequence = scope == 1, view = scope > 0;
        EXPECT_EQ(framesWith([](const auto& f) { return f.fTransform.rotation == 0; }),
                  sequence ? "1234" : "2");
        EXPECT_EQ(framesWith([](const auto& f) { return f.fTransform.autoFit; }),
                  view ? "1234" : "2");
        EXPECT_EQ(edited.proxy->totalMeasurementsInFrame(2), 0);
        EXPECT_EQ(edited.proxy->totalMeasurementsInFrame(3), sequence ? 0 : 1);
        EXPECT_EQ(edited.proxy->hasCrops(), !view);
        EXPECT_EQ(edited.proxy->viewShowsScale(), view);
        EXPECT_EQ(edited.window.host.log.back(), "toolbar");
    }
}

TEST(ViewerResets, of_pans_reach_frames_that_are_not_shown)
{
    Edited edited;
    edited.window.host.scope.setToolScope(1);
    edited.made.sequences[0]->GetSequenceFrameInfo()->SetFrameScroll(4, {1, 2});
    edited.actions.resetFramePosition();
    EXPECT_EQ(edited.proxy->scrollForFrame(4), QPointF());
}

TEST(ViewerResets, without_a_sequence_do_nothing)
{
    Edited edited;
    edited.window.host.active = &edited.window.b;  // which is empty
    edited.window.host.Take();
    for (const auto reset : {&ViewerActions::resetColors, &ViewerActions::resetCLUTs,
                             &ViewerActions::resetOrientation, &ViewerActions::resetFramePosition,
                             &ViewerActions::resetMeasurements, &ViewerActions::resetAllChanges,
                             &ViewerActions::selectWholeImage, &ViewerActions::originalWWWLorBnC})
        (edited.actions.*reset)();
    edited.window.host.active = nullptr;
    edited.actions.resetMeasurements();
    edited.actions.resetAllChanges();
    edited.actions.doSegmentZoom(0);
    EXPECT_EQ(edited.window.host.Take(), Words());
    EXPECT_EQ(edited.Resettable(), "");
}

// What the commands of menus do: to the frame under the click, the sequence, the window, a
// measurement.
#include "app/tools/MenuScene.h"

namespace {

TEST(GridCommands, act_on_the_frame_under_the_click)
{
    struct Row {
        const char* title;
        std::function<bool(Scene&)> done;
    };
    const Row rows[] = {
        {"Enlarge", [](Scene& s) { return s.Record(5).zoom > kZoomOne && s.Record(3).autoFit; }},
        {"Reduce", [](Scene& s) { return s.Record(5).zoom < kZoomOne && s.Record(3).autoFit; }},
        {"Normal Size", [](Scene& s) { return !s.Record(5).autoFit && s.Record(3).autoFit; }},
        {"Flip Horizontal", [](Scene& s) { return s.Record(5).horzFlip && !s.Record(3).horzFlip; }},
        {"Flip Vertical", [](Scene& s) { return s.Record(5).vertFlip && !s.Record(3).vertFlip; }},
        {"Rotate Left", [](Scene& s) { return s.Record(5).rotation == 270; }},
        {"Rotate Right", [](Scene& s) { return s.Record(5).rotation == 90; }},
        {"Invert", [](Scene& s) { return s.Record(5).invert && !s.Record(3).invert; }},
        {"Play Cine", [](Scene& s) { return s.host().Take() == Words{"start cine at 5"}; }},
        {"Show in File Manager",
         [](Scene& s) { return s.host().Take().front().ends_with("/0_5"); }},
    };
    for (const Row& row : rows) {
        Scene scene;
        scene.host().Take();
        scene.Choose(row.title);
        EXPECT_TRUE(row.done(scene)) << row.title;
        EXPECT_EQ(scene.target.frame, 5) << row.title;

        Scene beside;
        beside.target.frame = 8;
        beside.host().Take();
        beside.Choose(row.title);
        EXPECT_EQ(beside.host().Take(), Words{}) << row.title;
    }
    Scene fitted;
    fitted.Record(5).autoFit = false;
    fitted.Choose("Fit in Window");
    EXPECT_TRUE(fitted.Record(5).autoFit);
}

TEST(GridCommands, act_on_the_window_and_the_sequence)
{
    struct Row {
        const char* title;
        Words asked;
    };
    const Row rows[] = {
        {"2 columns", {"layout 653 keeping"}},
        {"Single", {}},  // the present one
        {"Other...", {"grid dialog"}},
        {"Mark Sequence", {"node"}},
        {"Play All", {"play all"}},
        {"Hide Demographics", {"A all", "toolbar"}},
        {"Hide Scale", {"A all"}},
    };
    for (const Row& row : rows) {
        Scene scene;
        scene.host().Take();
        scene.Choose(row.title);
        EXPECT_EQ(scene.host().Take(), row.asked) << row.title;
    }
    Scene scene;
    scene.Choose("2 x 3");
    EXPECT_EQ(scene.window.a.gridSetupID(), 4);
    scene.Choose("Next Sequence");
    EXPECT_TRUE(scene.window.b.isTheActiveGrid()) << "where it stands already";
    scene.host().Take();
    scene.window.b.setCineModeIsON(true);
    scene.Choose("Stop All");
    EXPECT_EQ(scene.host().Take(), Words{"stop all"});

    const Posted asked(kNoteFrameShouldChange);
    for (const char* title : {"First Frame", "Previous Frame", "Next Frame", "Last Frame"})
        scene.Choose(title);
    ASSERT_EQ(asked.notes.size(), 4u);
    const int frames[] = {asked.Number(kKeyNewCellIndex, 0), asked.Number(kKeyNewCellIndex, 1),
                          asked.Number(kKeyNewCellIndex, 2), asked.Number(kKeyNewCellIndex, 3)};
    EXPECT_EQ(frames[0], 0);
    EXPECT_EQ(frames[1], 1);
    EXPECT_EQ(frames[2], 3);
    EXPECT_EQ(frames[3], 6);
}

TEST(GridCommands, show_and_hide)
{
    Scene scene;
    ZELSequenceProxy& other = *scene.window.b.currZELSequence();
    scene.Choose("Hide Demographics");
    EXPECT_FALSE(scene.proxy().viewShowsDemographics());
    EXPECT_TRUE(other.viewShowsDemographics());
    scene.host().Take();
    scene.Choose("Show Demographics", true);
    EXPECT_EQ(scene.host().Take(), (Words{"A all", "toolbar"})) << "the other shows it already";
    scene.Choose("Hide Demographics", true);
    EXPECT_EQ(scene.host().Take(), (Words{"A all", "toolbar", "B all"}));
    EXPECT_FALSE(other.viewShowsDemographics());

    scene.host().active = &scene.window.b;
    scene.Choose("Show Demographics");
    EXPECT_EQ(scene.host().Take(), Words{"A all"}) << "the tool bar is of the active grid";
    scene.Choose("Hide Scale");
    EXPECT_FALSE(scene.proxy().viewShowsScale());
    scene.Measure(2);
    scene.Choose("Hide Measurements");
    EXPECT_FALSE(scene.proxy().viewShowsMeasurements());

    scene.ShowUltrasound();
    const Posted posted(kNoteUSRegionsShowHide);
    scene.host().Take();
    scene.Choose("Hide US Regions");
    EXPECT_FALSE(prefs_Get_ShowsUSRegions());
    EXPECT_EQ(posted.notes.size(), 1u);
    EXPECT_EQ(scene.host().Take(), (Words{"A all", "B all"}));
    scene.Choose("Hide Overlays");
    EXPECT_FALSE(scene.proxy().viewShowsDicomOverlays());
}

TEST(GridCommands, act_on_the_measurement_and_forget_the_frame)
{
    struct Row {
        const char* title;
        std::function<bool(Scene&, Shape&)> done;
        bool global = false;
        Words redrawn = {"A frame 5"};
    };
    const auto at = [](int position) {
        return [position](Scene& s, Shape& shape) {
            return s.proxy().measurementIndexForShape(&shape, 5) == position;
        };
    };
    const Row rows[] = {
        {"Stroke Off", [](Scene&, Shape& s) { return !s.hasStrokeON(); }},
        {"Fill On", [](Scene&, Shape& s) { return s.hasFillON(); }},
        {"Hide Label", [](Scene&, Shape& s) { return !s._descriptionON; }},
        {"Shadow Off", [](Scene&, Shape& s) { return !s._shadowON; }},
        {"Shadow Off", [](Scene&, Shape& s) { return !s._shadowON; }, true, {"A all"}},
        {"Bring to Front", at(3)},
        {"Send to Back", at(1)},
        {"Move Forward", at(3)},
        {"Move Backwards", at(1)},
        {"Propagate Measurement",
         [](Scene& s, Shape&) { return s.proxy().totalMeasurementsInFrame(7) == 1; },
         false,
         {"A all"}},
        {"Delete Measurement", at(-1)},
        {"Delete All Measurements",
         [](Scene& s, Shape&) { return s.proxy().totalMeasurementsInFrame(5) == 0; }},
    };
    for (const Row& row : rows) {
        Scene scene;
        Shape& shape = scene.MeasureTarget();
        shape._global = row.global;
        scene.Choose(row.title);
        EXPECT_TRUE(row.done(scene, shape)) << row.title;
        EXPECT_EQ(scene.host().Take(), row.redrawn) << row.title;
        EXPECT_EQ(scene.target.frame, 0) << row.title;
    }
}

}  // namespace

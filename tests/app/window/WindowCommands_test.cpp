// The rules of a window's commands: when they can be chosen, what they are called, what they do.
#include "app/window/WindowCommands.h"

#include "app/tools/MenuScene.h"
#include "app/window/FullScreenPanes.h"
#include "app/window/MenuBar.h"

namespace {

using W = WindowCommand;
using Mark = WindowCommandState::Mark;

class FakePanes final : public WindowPanes {
public:
    explicit FakePanes(GridHost* host) : grids(host, kSingleGridLayout)
    {
        grids.gridWithNumber(1)->setCurrZELSequence(
            host->activeSequenceGridController()->currZELSequence());
    }
    bool hasFeature(Feature) const override { return features; }
    MultiGridViewController& multiGridController() const override { return grids; }
    bool isInFullScreen() const override { return false; }
    void zelToggleFullScreen() override { log.push_back("full screen"); }
    bool showsToolbar() const override { return true; }
    void zelToggleToolbar() override { log.push_back("tool bar"); }
    void customizeToolbar() override { log.push_back("customize"); }
    bool showsPatientList() const override { return patients; }
    void showHidePatientList() override { log.push_back("patients"); }
    bool showsStudyInfo() const override { return false; }
    void showHideStudyInfo() override { log.push_back("info"); }
    bool showsZELToolbar() const override { return true; }
    void showHideZELToolbar() override { log.push_back("top bars"); }
    bool showsMeasurementInfoBox() const override { return measurements; }
    void showHideMeasurementInfoBox() override { log.push_back("measurements"); }
    bool showsMetadataPalette() const override { return palette; }
    bool windowHasSheetOpen() const override { return sheet; }
    std::vector<dk_SequenceBase*> selectedSequences() const override { return selection; }
    bool canSelectAllRows() const override { return rows; }
    void selectAllRows() override { log.push_back("all rows"); }
    void openAdjustColorsDialog() override { log.push_back("adjust"); }
    void updateToolbarElements() override {}

    mutable MultiGridViewController grids;
    std::vector<dk_SequenceBase*> selection;
    Words log;
    bool features = true, patients = true, measurements = true, palette = false, sheet = false,
         rows = false;
};

struct WindowScene : Scene {
    WindowScene() : panes(&window.host) { host().hasCine = true; }
    [[nodiscard]] WindowTarget Target(int tag = 0)
    {
        return {&window.host, &actions, &tools, &panes, tag};
    }
    [[nodiscard]] WindowCommandState State(W command, int tag = 0)
    {
        return StateOfWindowCommand(command, Target(tag));
    }
    void Do(W command, int tag = 0) { PerformWindowCommand(command, Target(tag)); }

    ZELToolsController tools;
    FakePanes panes;
};

struct EnabledRow {
    const char* rule;
    W command;
    bool wanted;
    std::function<void(WindowScene&)> given = [](WindowScene&) {};
    int tag = 0;
};

void PlayOther(WindowScene& s) { s.window.b.setCineModeIsON(true); }
void PlayActive(WindowScene& s) { s.window.a.setCineModeIsON(true); }
void Invert(WindowScene& s) { s.actions.invertColorsForView(s.window.a, 0); }

TEST(WindowCommands, can_be_chosen_by_their_rules)
{
    const auto select = [](int count, int marked) {
        return [=](WindowScene& s) {
            for (int i = 0; i < count; ++i)
                s.panes.selection.push_back(s.made.sequences[static_cast<std::size_t>(i)]);
            for (int i = 0; i < marked; ++i)
                s.made.sequences[static_cast<std::size_t>(i)]->fMarked = true;
        };
    };
    const auto crop = [](WindowScene& s) {
        s.proxy().setCropForFrame(NewBox({4, 4, 20, 20}, Box::Kind::Crop), 0);
    };
    const EnabledRow rows[] = {
        {"an absent feature waits", W::Export, false,
         [](WindowScene& s) { s.panes.features = false; }},
        {"export while another grid plays", W::Export, false, PlayOther},
        {"export", W::Export, true},
        {"print while another grid plays", W::Print, false, PlayOther},
        {"nothing to reset", W::ResetAll, false},
        {"an inverted frame can be reset", W::ResetColors, true, Invert},
        {"but not while it plays", W::ResetColors, false,
         [](WindowScene& s) {
             Invert(s);
             PlayActive(s);
         }},
        {"colours are no orientation", W::ResetOrientation, false, Invert},
        {"an orientation", W::ResetOrientation, true,
         [](WindowScene& s) { s.actions.flipView(s.window.a, 0, true); }},
        {"a pan", W::ResetFramePosition, true,
         [](WindowScene& s) { s.proxy().changeScrollPositionForAllFrames(false, {3, 4}); }},
        {"a measurement", W::ResetMeasurements, true, [](WindowScene& s) { s.Measure(3); }},
        {"on another frame", W::ResetMeasurements, false, [](WindowScene& s) { s.Measure(4); }},
        {"adjusting while it plays", W::AdjustColors, false, PlayActive},
        {"adjusting", W::AdjustColors, true},
        {"deleting without a current measurement", W::DeleteMeasurement, false},
        {"deleting the current one", W::DeleteMeasurement, true,
         [](WindowScene& s) { s.Measure(3); }},
        {"propagating it", W::PropagateMeasurement, true, [](WindowScene& s) { s.Measure(3); }},
        {"where it doesn't show", W::PropagateMeasurement, false,
         [](WindowScene& s) {
             s.Measure(3);
             s.proxy().setViewShowsMeasurements(false);
         }},
        {"the palette comes", W::MetadataPalette, true},
        {"not over a sheet", W::MetadataPalette, false,
         [](WindowScene& s) { s.panes.sheet = true; }},
        {"but it can go then", W::MetadataPalette, true,
         [](WindowScene& s) { s.panes.sheet = s.panes.palette = true; }},
        {"study info needs its pane", W::StudyInfo, false,
         [](WindowScene& s) { s.panes.patients = false; }},
        {"one selected row is no selection", W::SwitchSelectedMarked, false, select(1, 0)},
        {"two are", W::SwitchSelectedMarked, true, select(2, 0)},
        {"both are unmarked", W::UnmarkSelected, false, select(2, 0)},
        {"one is marked", W::UnmarkSelected, true, select(2, 1)},
        {"one isn't yet", W::MarkSelected, true, select(2, 1)},
        {"none is left to mark", W::MarkSelected, false, select(2, 2)},
        {"all is marked", W::MarkAll, false, select(2, 2)},
        {"nothing is marked", W::UnmarkAll, false},
        {"no crop", W::SelectAll, false},
        {"a crop", W::SelectAll, true, crop},
        {"a list with the keys", W::SelectAll, true, [](WindowScene& s) { s.panes.rows = true; }},
        {"a crop goes to other sequences", W::PropagateCrop, true, crop},
        {"a crop while it plays", W::WholeImage, false,
         [&](WindowScene& s) {
             crop(s);
             PlayActive(s);
         }},
        {"loops change nothing while something plays", W::CineLoop, false, PlayOther},
        {"autoplay is for later", W::AutoplayCine, true, PlayOther},
        {"a list is played in one grid", W::PlaylistTraverse, false},
        {"in one grid", W::PlaylistTraverse, true,
         [](WindowScene& s) {
             s.window.host.grids.resize(1);
             s.window.a.setGridSetupID(0);
             prefs_Set_HasCineAutoplay(true);
             prefs_Set_CineDoLoop();
         }},
        {"but never without autoplay", W::PlaylistTraverse, false,
         [](WindowScene& s) {
             s.window.host.grids.resize(1);
             s.window.a.setGridSetupID(0);
             prefs_Set_HasCineAutoplay(false);
         }},
        {"a tool that isn't there yet", W::SelectTool, false,
         [](WindowScene& s) { s.panes.features = false; }, kToolLine},
        {"a tool of the tool bar", W::SelectTool, true,
         [](WindowScene& s) { s.panes.features = false; }, kToolPan},
    };
    for (const EnabledRow& row : rows) {
        WindowScene scene;
        row.given(scene);
        EXPECT_EQ(scene.State(row.command, row.tag).enabled, row.wanted) << row.rule;
    }
}

TEST(WindowCommands, do_nothing_once_they_can_not_be_chosen)
{
    WindowScene scene;
    PlayActive(scene);
    scene.Do(W::AdjustColors);
    EXPECT_EQ(scene.panes.log, Words{});
    scene.window.a.setCineModeIsON(false);
    scene.Do(W::AdjustColors);
    scene.Do(W::PatientList);
    EXPECT_EQ(scene.panes.log, (Words{"adjust", "patients"}));
}

TEST(WindowCommands, mark_good_sequences_and_show_their_rows_anew)
{
    WindowScene scene;
    dk_Sequence* empty = MadeTree::Add<dk_Sequence>(scene.made.sequences[0]->GetParent());
    scene.made.sequences[1]->fMarked = true;
    scene.host().Take();
    scene.Do(W::SwitchAllMarked);
    EXPECT_EQ(scene.host().Take(), (Words{"node", "node"}));
    EXPECT_TRUE(scene.made.sequences[0]->fMarked);
    EXPECT_FALSE(scene.made.sequences[1]->fMarked);
    EXPECT_FALSE(empty->fMarked);
    EXPECT_EQ(scene.State(W::SwitchSequenceMark).title.toStdString(), "Unmark Current Sequence");
    scene.Do(W::MarkAll);
    EXPECT_EQ(scene.host().Take(), Words{"node"});
}

TEST(WindowCommands, tell_what_is_on)
{
    WindowScene scene;
    scene.tools.changeToolTo(kToolPan);
    EXPECT_EQ(scene.State(W::SelectTool, kToolPan).mark, Mark::On);
    EXPECT_EQ(scene.State(W::SelectTool, kToolZoom).mark, Mark::Off);
    scene.Do(W::ChangeToolScope, ToolScope::kTagSequence);
    EXPECT_EQ(scene.State(W::ChangeToolScope, ToolScope::kTagSequence).mark, Mark::On);
    EXPECT_TRUE(scene.host().scope.isSequence());
    prefs_Set_CineDoLoop();
    scene.Do(W::CineSweep);
    EXPECT_EQ(scene.State(W::CineLoop).mark, Mark::Off);
    EXPECT_EQ(scene.State(W::CineSweep).mark, Mark::On);
    EXPECT_EQ(scene.State(W::PlaylistTraverse).mark, Mark::Mixed);
    EXPECT_EQ(scene.State(W::MeasurementPane).title.toStdString(), "Hide Measurement Pane");
}

TEST(WindowCommands, the_menu_of_crops_has_its_fixed_places)
{
    WindowScene scene;
    scene.ShowUltrasound();
    const auto titles = [&] {
        std::vector<std::string> all;
        for (const MenuEntry& entry : U_UpdateRegionsMenuFor(scene.Target()))
            all.push_back((entry.checked ? "+" : "") + entry.title.toStdString());
        return all;
    };
    const auto plain = titles();
    ASSERT_EQ(plain.size(), 7u);
    EXPECT_EQ(plain[0], "+Whole Image");
    EXPECT_EQ(plain[1], "User Selection");
    scene.proxy().setSequenceCrop(NewBox({1, 1, 5, 5}, Box::Kind::Crop));
    EXPECT_EQ(titles()[1], "+User Selection");
    // One right and below of the region's last pixel.
    scene.proxy().setSequenceCrop(NewBox({4, 4, 26, 10}, Box::Kind::Crop));
    EXPECT_EQ(titles()[1], "User Selection");
    EXPECT_EQ(titles()[6].front(), '+');
}

TEST(FullScreenPanes, brings_back_what_it_hid_in_reverse_and_once)
{
    WindowScene scene;
    FullScreenPanes panes(&scene.panes);
    const FullScreenWishes all{true, true, true};
    panes.windowWillEnterFullScreen(all);
    EXPECT_EQ(std::exchange(scene.panes.log, {}), (Words{"top bars", "measurements", "patients"}));
    panes.windowWillExitFullScreen(all);
    EXPECT_EQ(std::exchange(scene.panes.log, {}), (Words{"patients", "measurements", "top bars"}));
    panes.windowWillExitFullScreen(all);
    scene.panes.measurements = false;  // hidden already: it isn't touched
    panes.windowWillEnterFullScreen({false, true, false});
    panes.windowWillExitFullScreen({false, true, false});
    EXPECT_EQ(scene.panes.log, Words{});
}

}  // namespace

// The commands on how frames look: which frames they reach under each scope, what is refreshed.
#include "app/grid/ViewerActions.h"

#include "app/grid/GridFixture.h"

namespace {

constexpr int kUnknownScope = 7;

// A window of 4 and 3 frames; both grids stand at frame 2.
struct Acting {
    Acting() : made({{.frames = 4}, {.frames = 3}}), window(&made), actions(&window.host)
    {
        for (Grid* grid : {&window.a, &window.b})
            grid->currZELSequence()->setCurrentFrame(2);
        Forget();
    }
    // What was done so far counts as unchanged.
    void Forget()
    {
        fBefore.clear();
        for (dk_Sequence* sequence : made.sequences) {
            for (const dk_ImageFrameInfo& info : sequence->GetSequenceFrameInfo()->fFrames)
                fBefore.emplace_back(info.fTransform, info.fColorTable);
        }
        window.host.Take();
    }
    // The frames whose look has changed, of A and of B: "2|", "|123".
    [[nodiscard]] std::string Changed() const
    {
        std::string changed;
        auto before = fBefore.begin();
        for (dk_Sequence* sequence : made.sequences) {
            for (std::int32_t frame = 1; frame <= sequence->GetNumberOfFrames();
                 ++frame, ++before) {
                const dk_ImageFrameInfo& info = *sequence->GetImageFrameInfo(frame);
                if (!(info.fTransform == before->first) || info.fColorTable != before->second)
                    changed += std::to_string(frame);
            }
            if (sequence == made.sequences[0])
                changed += '|';
        }
        return changed;
    }
    MadeTree made;
    Window window;
    ViewerActions actions;

private:
    std::vector<std::pair<zel_TransformRec, std::int32_t>> fBefore;
};

// Everything that a reset is about, on all frames of the active grid.
void EditAll(Acting* acting)
{
    ZELSequenceProxy& proxy = *acting->window.a.currZELSequence();
    proxy.changeVOIForAllFrames(true, 123, 45);
    proxy.invertColorsForFrame(-1);
    proxy.setClutIDTo(3, true);
    proxy.changeRotationForFrame(-1, 90);
    proxy.changeScrollPositionForAllFrames(true, {2, 3});
    proxy.changeZoomForFrame(-1, 200);
    for (int frame = 1; frame <= proxy.totalFrames(); ++frame)
        proxy.viewStateForFrame(frame)->addMeasurement(NewBox());
    acting->Forget();
}

std::vector<int> Measured(const Grid& grid)
{
    std::vector<int> counts;
    for (int frame = 1; frame <= grid.currZELSequence()->totalFrames(); ++frame)
        counts.push_back(grid.currZELSequence()->totalMeasurementsInFrame(frame));
    return counts;
}

}  // namespace

TEST(ViewerActions, on_a_grid_reach_a_frame_or_its_sequence)
{
    struct Row {
        const char* what;
        void (*act)(ViewerActions&, Grid&, std::int32_t frame);
        const char* refreshed;  // for the active grid
        bool tellsZoom;
    };
    const Row rows[] = {
        {"zoom", [](auto& v, Grid& g, auto f) { v.setZoomTo(300, g, f); }, "zoom menu", true},
        {"next", [](auto& v, Grid& g, auto f) { v.nextZoomValue(g, f); }, "zoom menu", true},
        {"previous", [](auto& v, Grid& g, auto f) { v.prevZoomValue(g, f); }, "zoom menu", true},
        {"actual size", [](auto& v, Grid& g, auto f) { v.normalZoomValue(g, f); }, "zoom menu",
         true},
        {"negative", [](auto& v, Grid& g, auto f) { v.invertColorsForView(g, f); }, "toolbar",
         false},
        {"flip", [](auto& v, Grid& g, auto f) { v.flipView(g, f, true); }, "toolbar", false},
        {"mirror", [](auto& v, Grid& g, auto f) { v.flipView(g, f, false); }, "toolbar", false},
        {"turn", [](auto& v, Grid& g, auto f) { v.rotateView(g, f, true); }, "toolbar", false},
    };
    for (const Row& row : rows) {
        for (const bool active : {true, false}) {
            for (const int frame : {0, 3}) {
                for (const int scope : {0, 1, kUnknownScope}) {
                    SCOPED_TRACE(std::string(row.what) + (active ? " A " : " B ") +
                                 std::to_string(frame) + " in scope " + std::to_string(scope));
                    Acting acting;
                    acting.window.host.scope.setToolScope(scope);
                    Grid& grid = active ? acting.window.a : acting.window.b;
                    const Posted zoomed(kNoteZoomDidChange);
                    row.act(acting.actions, grid, frame);
                    const std::string one = frame == 0 ? "2" : "3", all = active ? "1234" : "123";
                    const std::string changed = scope == 0 ? one : scope == 1 ? all : "";
                    EXPECT_EQ(acting.Changed(), active ? changed + "|" : "|" + changed);
                    Words log;
                    if (scope != kUnknownScope)
                        log.push_back(
                            (active ? "A " : "B ") +
                            (scope == 0 ? "frame " + std::to_string(frame) : std::string("all")));
                    if (active && scope != kUnknownScope)
                        log.push_back(row.refreshed);
                    EXPECT_EQ(acting.window.host.Take(), log);
                    ASSERT_EQ(zoomed.notes.size(),
                              row.tellsZoom && scope != kUnknownScope ? 1u : 0u);
                    if (!zoomed.notes.empty()) {
                        EXPECT_EQ(zoomed.notes[0].object, grid.view());
                    }
                }
            }
        }
    }
}

TEST(ViewerActions, fit_again_what_was_zoomed)
{
    for (const int scope : {0, 1, kUnknownScope}) {
        SCOPED_TRACE(scope);
        Acting acting;
        acting.window.a.currZELSequence()->changeZoomForFrame(-1, 300);
        acting.Forget();
        acting.window.host.scope.setToolScope(scope);
        const Posted zoomed(kNoteZoomDidChange);
        acting.actions.autoFitView(acting.window.a, 3);
        EXPECT_EQ(acting.Changed(), scope == 0 ? "3|" : scope == 1 ? "1234|" : "|");
        EXPECT_EQ(acting.window.host.Take(), scope == 0   ? (Words{"A frame 3", "zoom menu"})
                                             : scope == 1 ? (Words{"A all", "zoom menu"})
                                                          : Words{});
        EXPECT_EQ(zoomed.notes.size(), scope == kUnknownScope ? 0u : 1u);
    }
}

TEST(ViewerActions, turn_all_frames_by_the_same_and_not_to_the_same_angle)
{
    Acting acting;
    acting.actions.rotateView(acting.window.a, 3, false);
    acting.window.host.scope.setToolScope(1);
    acting.actions.rotateView(acting.window.a, 1, false);
    const ZELSequenceProxy& proxy = *acting.window.a.currZELSequence();
    EXPECT_EQ(proxy.rotationForFrame(3), 180);
    EXPECT_EQ(proxy.rotationForFrame(1), 90);
    acting.actions.rotateView(acting.window.a, 0, true);
    EXPECT_EQ(proxy.rotationForFrame(1), 0);
}

TEST(ViewerActions, drop_pictures_that_would_show_the_old_look)
{
    struct Row {
        const char* what;
        void (*act)(ViewerActions&, Grid&);
        bool drops;
    };
    const Row rows[] = {
        {"zoom", [](auto& v, Grid& g) { v.setZoomTo(50, g, 0); }, true},
        {"turn", [](auto& v, Grid& g) { v.rotateView(g, 0, true); }, true},
        {"window", [](auto& v, Grid&) { v.U_ChangeBrightnessTo(300, 50); }, true},
        {"negative", [](auto& v, Grid& g) { v.invertColorsForView(g, 0); }, false},
        {"fit of the active grid", [](auto& v, Grid& g) { v.autoFitView(g, 0); }, false},
    };
    for (const Row& row : rows) {
        for (const int scope : {0, 1}) {
            SCOPED_TRACE(row.what);
            Acting acting;
            acting.window.host.scope.setToolScope(scope);
            EXPECT_FALSE(acting.window.a.photoAtIndex(1).isNull());
            const std::size_t one = acting.window.a.pictures().bytes();
            EXPECT_FALSE(acting.window.a.photoAtIndex(2).isNull());
            row.act(acting.actions, acting.window.a);
            EXPECT_EQ(acting.window.a.pictures().bytes(), !row.drops   ? 2 * one
                                                          : scope == 0 ? one
                                                                       : 0);
        }
    }
}

TEST(ViewerActions, hold_zoom_within_the_limits_of_the_largest_frame)
{
    struct Row {
        double asked, held;  // percent
    };
    const Row rows[] = {{1000, 1000}, {1600, 1600}, {2000, 1600}, {6.25, 6.25}, {1, 6.25}};
    for (const Row& row : rows) {
        Acting acting;
        for (dk_ImageFrameInfo& info : acting.made.sequences[0]->GetSequenceFrameInfo()->fFrames)
            info.fFrameSize = {512, 512};
        acting.actions.setZoomTo(row.asked, acting.window.a, 0);
        EXPECT_EQ(acting.window.a.currZELSequence()->currentZoom(), row.held) << row.asked;
    }
}

TEST(ViewerActions, step_zoom_from_the_tool_bar)
{
    struct Row {
        const char* fault;
        double from;
        int segment;
        double to;
        bool acts;
    };
    const Row rows[] = {
        {"smaller", 100, 0, 75, true},
        {"larger", 100, 2, 125, true},
        {"actual size", 200, 1, 100, true},
        {"is at actual size", 100, 1, 100, false},
        {"held at the least", 75, 0, 100 * 32.0 / 48, true},
        {"no such segment", 200, 3, 200, false},
        {"no step above", 800, 2, 800, true},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.fault);
        Acting acting;
        acting.window.a.currZELSequence()->changeZoomForFrame(0, row.from);
        acting.Forget();
        acting.actions.doSegmentZoom(row.segment);
        EXPECT_NEAR(acting.window.a.currZELSequence()->currentZoom(), row.to, 0.01);
        EXPECT_EQ(acting.window.host.Take().empty(), !row.acts);
    }
}

// ---- the active grid ----

TEST(ViewerActions, on_the_active_grid_reach_its_current_frame_or_all)
{
    struct Row {
        const char* what;
        void (*act)(ViewerActions&);
        bool isReset;           // which takes an unknown scope for the frame
        bool frameBar, allBar;  // the tool bar is refreshed
    };
    const Row rows[] = {
        {"window", [](auto& v) { v.U_ChangeBrightnessTo(300, 50); }, false, false, true},
        {"original window", [](auto& v) { v.originalWWWLorBnC(); }, false, false, false},
        {"colours", [](auto& v) { v.setCurrentClutID(2); }, false, false, false},
        {"reset colours", [](auto& v) { v.resetColors(); }, true, true, true},
        {"reset tables", [](auto& v) { v.resetCLUTs(); }, true, true, true},
        {"reset turns", [](auto& v) { v.resetOrientation(); }, true, false, false},
        {"reset pan", [](auto& v) { v.resetFramePosition(); }, true, false, false},
    };
    for (const Row& row : rows) {
        for (const int scope : {0, 1, kUnknownScope}) {
            SCOPED_TRACE(std::string(row.what) + " in scope " + std::to_string(scope));
            Acting acting;
            EditAll(&acting);
            acting.window.host.scope.setToolScope(scope);
            row.act(acting.actions);
            const bool acts = scope != kUnknownScope || row.isReset;
            EXPECT_EQ(acting.Changed(), !acts ? "|" : scope == 1 ? "1234|" : "2|");
            Words log;
            if (acts)
                log.push_back(scope == 1 ? "A all" : "A frame 0");
            if (acts && (scope == 1 ? row.allBar : row.frameBar))
                log.push_back("toolbar");
            EXPECT_EQ(acting.window.host.Take(), log);
            EXPECT_EQ(Measured(acting.window.a), (std::vector{1, 1, 1, 1}));
        }
    }
}

TEST(ViewerActions, a_window_reaches_colour_as_brightness_and_contrast)
{
    MadeTree made({SeriesForm{.frames = 2, .color = true}});
    Window window(&made);
    ViewerActions actions(&window.host);
    actions.U_ChangeBrightnessTo(30, -20);
    const zel_TransformRec& record = made.sequences[0]->GetImageFrameInfo(1)->fTransform;
    EXPECT_EQ(record.brightness, 30);
    EXPECT_EQ(record.contrast, -20);
    EXPECT_EQ(made.sequences[0]->GetImageFrameInfo(2)->fTransform.brightness, 0);
}

TEST(ViewerActions, listen_to_the_tools_of_their_own_views)
{
    Acting acting, other;
    const auto post = [](std::string_view name, const GridSurface& view, const char* firstKey,
                         const char* secondKey) {
        NotificationCenter::Default().Post(
            name, &view, {{QLatin1String(firstKey), 20.0}, {QLatin1String(secondKey), 7.0}});
    };
    post(kNoteVOIChanged, acting.window.viewA, kKeyWWidth, kKeyWLevel);
    const zel_TransformRec& record = acting.made.sequences[0]->GetImageFrameInfo(2)->fTransform;
    EXPECT_EQ(record.voiWidth, 20);
    EXPECT_EQ(record.voiLevel, 7);
    post(kNoteImageCenterChanged, acting.window.viewA, kKeyPositionX, kKeyPositionY);
    EXPECT_EQ(record.scroll, (CGPoint{20, 7}));
    EXPECT_EQ(acting.Changed(), "2|");
    acting.window.host.scope.setToolScope(1);
    post(kNoteImageCenterChanged, acting.window.viewA, kKeyPositionY, kKeyPositionX);
    EXPECT_EQ(acting.Changed(), "1234|");
    EXPECT_EQ(other.Changed(), "|");
    EXPECT_EQ(other.window.host.Take(), Words());
}

TEST(ViewerActions, show_the_whole_image_again)
{
    struct Row {
        const char* fault;
        int tool;
        bool drawing, freezes;
    };
    const Row rows[] = {
        {"crops of another tool", 0, false, false},
        {"the crop tool", kToolCrop, false, true},
        {"one is being drawn", 0, true, true},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.fault);
        Acting acting;
        acting.window.a.currZELSequence()->setSequenceCrop(NewBox({}, Box::Kind::Crop));
        acting.window.host.tool = row.tool;
        acting.window.host.drawingCrop = row.drawing;
        acting.actions.selectWholeImage();
        Words log;
        if (row.freezes)
            log.push_back("freeze crop");
        log.insert(log.end(), {"A frame 0", "regions menu"});
        EXPECT_EQ(acting.window.host.Take(), log);
        EXPECT_FALSE(acting.window.a.currZELSequence()->hasCrops());
        acting.window.host.drawingCrop = false;
        acting.actions.selectWholeImage();
        EXPECT_EQ(acting.window.host.Take(), (Words{"A frame 0", "regions menu"}))
            << "there is none any more";
    }
}

// Drags as rows of events: what the frame shows meanwhile, and what is posted at the end.
#include "app/grid/GridFixture.h"
#include "app/tools/MouseTrackers.h"
#include "app/tools/SelectedTool.h"
#include "app/tools/ZELToolsController.h"
#include "dicom_core/tree/dk_SequenceBase.h"

#include <cmath>

namespace {

struct Move {
    double x, y;  // from the press
    bool shift = false, option = false;
};

// Presses in the middle of frame 1, goes through `moves` and releases at the last; with `inspect`
// called before the release.
template <typename Inspect>
void Drag(Grid& grid, std::int32_t tool, const std::vector<Move>& moves, Inspect inspect)
{
    const QPointF press(30, 30);
    const auto tracker = NewTrackerForTool(tool, grid, 0, press);
    ASSERT_TRUE(tracker);
    TrackerEvent event;
    for (const Move& move : moves) {
        event = {press + QPointF(move.x, move.y), move.shift, move.option};
        tracker->track(event);
    }
    inspect();
    tracker->release(event);
}

void Drag(Grid& grid, std::int32_t tool, const std::vector<Move>& moves)
{
    Drag(grid, tool, moves, [] {});
}

const zel_TransformRec& RecordOf(dk_SequenceBase* sequence)
{
    return sequence->GetImageFrameInfo(1)->fTransform;
}

TEST(ZELVOITracker, moves_by_a_256th_of_the_greatest_width_for_two_points)
{
    struct Row {
        const char* fault;
        std::vector<Move> moves;
        double width, level;  // in units, from the start
        bool posts;
    };
    const Row rows[] = {
        {"a click", {{1, 1}}, 0, 0, false},
        {"right and down", {{8, 16}}, 4, -8, true},
        {"up raises the level", {{0, -6}}, 0, 3, true},
        {"an axis at 0 keeps its value", {{8, 16}, {0, 16}}, 4, -8, true},
        {"fine stays after its key", {{0, 2, false, true}, {2, 2}}, 8, -8, true},
        {"with both keys slow", {{16, 0, true, true}}, 2, 0, true},
        {"held to one axis", {{3, 20}, {9, 20, true}}, 1.5, -10, true},
        {"and back where it began", {{8, 8}, {0, 0}}, 4, -4, true},
    };
    for (const Row& row : rows) {
        MadeTree made;
        Window window(&made);
        const Posted posted(kNoteVOIChanged);
        dk_SequenceBase* sequence = made.sequences[0];
        zelDisplayVOILimits limits;
        ASSERT_EQ(U_GetDisplayVOILimits(RecordOf(sequence), &limits), kQvxOK);
        // Steps are those of the display, two units each in these files.
        const double unit = limits.maxWidth / 256.0;
        const double step = RecordOf(sequence).voiInfo.pixelFactor;
        Drag(window.a, kToolWindow, row.moves);
        const zel_TransformRec& record = RecordOf(sequence);
        EXPECT_EQ(record.voiWidth, std::clamp<double>(400 + step * std::round(row.width * unit),
                                                      record.voiWidthMin, record.voiWidthMax))
            << row.fault;
        EXPECT_NEAR(record.voiLevel,
                    std::clamp<double>(40 + step * std::round(row.level * unit), record.voiLevelMin,
                                       record.voiLevelMax),
                    step / 2)
            << row.fault;
        EXPECT_EQ(posted.notes.size(), row.posts ? 1u : 0u) << row.fault;
        EXPECT_EQ(sequence->GetImageFrameInfo(2)->fTransform.voiWidth, 400) << row.fault;
    }
}

TEST(ZELVOITracker, hands_its_window_to_the_scope)
{
    MadeTree made;
    Window window(&made);
    ViewerActions actions(&window.host);
    window.host.scope.setToolScope(ToolScope::kSequence);
    dk_SequenceBase* sequence = made.sequences[0];
    Drag(window.a, kToolWindow, {{20, 10}},
         [&] { EXPECT_EQ(sequence->GetImageFrameInfo(2)->fTransform.voiWidth, 400) << "not yet"; });
    for (int frame = 2; frame <= 7; ++frame)
        EXPECT_EQ(sequence->GetImageFrameInfo(frame)->fTransform.voiWidth,
                  RecordOf(sequence).voiWidth)
            << frame;
    EXPECT_NE(RecordOf(sequence).voiWidth, 400);
}

TEST(ZELBnCTracker, changes_colour_frames)
{
    struct Row {
        const char* fault;
        std::vector<Move> moves;
        int brightness, contrast;
    };
    const Row rows[] = {
        {"a click", {{1, -1}}, 0, 0},
        {"one a point", {{12, -7}}, 12, 7},
        {"four with the key", {{5, 0, false, true}}, 20, 0},
        {"half with both", {{5, 0, true, true}}, 3, 0},
        {"held at the ends", {{500, 500}}, 100, -100},
    };
    for (const Row& row : rows) {
        MadeTree made({{.modality = "OT", .frames = 2, .color = true}});
        Window window(&made);
        const Posted posted(kNoteBnCChanged);
        Drag(window.a, kToolWindow, row.moves);
        EXPECT_EQ(RecordOf(made.sequences[0]).brightness, row.brightness) << row.fault;
        EXPECT_EQ(RecordOf(made.sequences[0]).contrast, row.contrast) << row.fault;
        const bool changed = row.brightness != 0 || row.contrast != 0;
        ASSERT_EQ(posted.notes.size(), changed ? 1u : 0u) << row.fault;
        if (changed) {
            EXPECT_EQ(posted.Number(kKeyBrightness), row.brightness) << row.fault;
        }
    }
}

TEST(ZELZoomTracker, enlarges_upward_and_gives_the_old_zoom_back_before_it_posts)
{
    struct Row {
        const char* fault;
        std::vector<Move> moves;
        double percent;  // while dragged; 0 for none
    };
    const Row rows[] = {
        {"a click", {{0, -1.9}}, 0},
        {"one percent a point", {{0, -40.7}}, 140},
        {"reduces downward", {{0, 60}}, 40},
        {"not below 5", {{0, 300}}, 5},
        {"not above 800", {{0, -800}}, 800},
        {"fast for the rest", {{0, -10, false, true}, {0, -20}}, 200},
        {"small events are left out", {{0, -40}, {0, -1}}, 140},
    };
    for (const Row& row : rows) {
        MadeTree made;
        Window window(&made);
        dk_SequenceBase* sequence = made.sequences[0];
        const Posted posted(kNoteZoomChanged);
        window.a.currZELSequence()->changeZoomForFrame(1, 100);
        window.a.currZELSequence()->zoomAutofitForFrame(1);
        Drag(window.a, kToolZoom, row.moves, [&] {
            EXPECT_EQ(RecordOf(sequence).autoFit, row.percent == 0) << row.fault;
            const double percent = RecordOf(sequence).zoom * 100.0 / kZoomOne;
            EXPECT_NEAR(percent, row.percent > 0 ? row.percent : 100, 0.01) << row.fault;
        });
        EXPECT_TRUE(RecordOf(sequence).autoFit) << row.fault << ": whoever listens decides";
        EXPECT_EQ(RecordOf(sequence).zoom, kZoomOne) << row.fault;
        ASSERT_EQ(posted.notes.size(), row.percent > 0 ? 1u : 0u) << row.fault;
        if (row.percent == 0)
            continue;
        EXPECT_NEAR(posted.notes[0].userInfo.value(QLatin1String(kKeyZoom)).toDouble(), row.percent,
                    0.01);
    }
}

TEST(ZELPanTracker, keeps_the_point_under_the_pointer_in_every_turn)
{
    for (const int turn : {0, 90, 180, 270}) {
        for (const int flip : {0, 1, 2}) {
            MadeTree made;
            Window window(&made);
            ViewerActions actions(&window.host);
            zel_TransformRec& record = made.sequences[0]->GetImageFrameInfo(1)->fTransform;
            record.rotation = static_cast<std::int16_t>(turn);
            record.horzFlip = flip == 1;
            record.vertFlip = flip == 2;
            window.a.currZELSequence()->changeZoomForFrame(1, 800);
            const QPointF press(30, 30), to(37, 19);
            const QPointF held = window.a.viewPointToFramePoint(press, 1);
            const Posted posted(kNoteImageCenterChanged);
            Drag(window.a, kToolPan, {{3, -4}, {to.x() - press.x(), to.y() - press.y()}});
            EXPECT_EQ(posted.notes.size(), 1u);
            const QPointF now = window.a.viewPointToFramePoint(to, 1);
            EXPECT_NEAR(now.x(), held.x(), 0.2) << turn << flip;
            EXPECT_NEAR(now.y(), held.y(), 0.2) << turn << flip;
        }
    }
}

TEST(ZELPanTracker, leaves_an_image_that_fits_alone)
{
    MadeTree made;
    Window window(&made);
    const Posted posted(kNoteImageCenterChanged);
    Drag(window.a, kToolPan, {{20, 20}});
    EXPECT_EQ(RecordOf(made.sequences[0]).scroll, CGPoint{});
    EXPECT_TRUE(posted.notes.empty());
}

TEST(ZELToolsController, goes_back_one_tool)
{
    ZELToolsController tools;
    const Posted posted(kNoteSelectedToolDidChange);
    tools.pushTool(kToolZoom);
    tools.pushTool(kToolPan);
    tools.pushTool(kToolPan);  // it is that already
    tools.popTool();
    EXPECT_EQ(tools.currentTool(), kToolZoom);
    tools.popTool();
    EXPECT_EQ(tools.currentTool(), kToolZoom);
    EXPECT_EQ(posted.notes.size(), 3u);
    EXPECT_EQ(posted.Number(kKeyOldTool, 1), kToolZoom);
    tools.changeToolTo(kToolZoom);
    EXPECT_EQ(posted.notes.size(), 3u);
    tools.selectTool(kToolSelection);
    EXPECT_FALSE(tools.currentToolIsDrawTool());
    EXPECT_TRUE(tools.currentToolIsToolbarTool());
    EXPECT_TRUE(ZELToolsController::IsDrawTool(kToolCrop));
    EXPECT_FALSE(ZELToolsController::IsToolbarTool(kToolLine));
}

TEST(SelectedTool, ends_what_was_unfinished_and_moves_the_crop)
{
    const Quiet quiet;
    MadeTree made;
    Window window(&made);
    ZELToolsController tools, others;
    const SelectedTool selected(&window.host, &tools);
    struct Row {
        std::int32_t tool;
        Words asked;
    };
    const Row rows[] = {
        {kToolPan, {"A drop", "A stop editing", "toolbar"}},
        {kToolCrop, {"A drop", "A stop editing", "activate crop", "toolbar"}},
        {kToolCrop, {}},
        {kToolZoom, {"A drop", "A stop editing", "freeze crop", "toolbar"}},
    };
    for (const Row& row : rows) {
        tools.changeToolTo(row.tool);
        EXPECT_EQ(window.host.Take(), row.asked) << row.tool;
    }
    others.changeToolTo(kToolCrop);
    EXPECT_EQ(window.host.Take(), Words()) << "another window's tool";
}

}  // namespace

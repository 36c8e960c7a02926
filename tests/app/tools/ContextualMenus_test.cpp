// Both menus of a click with the right button: what stands in them, and when each entry can be
// chosen under which title.
#include "app/tools/GridMenuItems.h"
#include "app/tools/MenuScene.h"

namespace {

// Titles, one a line, with "-" for a separator and submenus in braces.
std::string Outline(const std::vector<MenuEntry>& entries)
{
    std::string text;
    for (const MenuEntry& entry : entries) {
        if (entry.kind == MenuEntry::Kind::Separator)
            text += "-\n";
        else if (entry.kind == MenuEntry::Kind::Command)
            text += entry.title.toStdString() + "\n";
        else
            text += entry.title.toStdString() + " {\n" + Outline(entry.children) + "}\n";
    }
    return text;
}

const char* kGridMenu =
    "Series Grid {\nSingle\n2 rows\n2 columns\n1 top, 2 bottom\n2 top, 1 bottom\n"
    "1 left, 2 right\n2 left, 1 right\n3 rows\n3 columns\n1 top, 3 bottom\n3 top, 1 bottom\n"
    "1 left, 3 right\n3 left, 1 right\n2 top, 2 bottom\n2 left, 2 right\n4 rows\n4 columns\n}\n-\n"
    "Image Grid {\n1 x 1\n1 x 2\n2 x 1\n2 x 2\n2 x 3\n3 x 2\n3 x 3\n3 x 4\n4 x 3\n4 x 4\n-\n"
    "Other...\n}\n-\nPrevious Sequence\nNext Sequence\n-\nMark Sequence\n-\n"
    "Go {\nFirst Frame\nPrevious Frame\nNext Frame\nLast Frame\n}\n-\n"
    "Zoom {\nEnlarge\nReduce\nNormal Size\nFit in Window\n}\n-\n"
    "Orientation {\nFlip Horizontal\nFlip Vertical\nRotate Left\nRotate Right\n}\nInvert\n-\n";

TEST(ContextualMenus, hold_their_entries_in_their_order)
{
    Scene scene;
    const std::string shown = "Hide Demographics\nHide Scale\nShow Overlays\nShow Measurements\n";
    const std::string all = "Play All\nStop All\n-\n";
    const std::string file = "Show in File Manager\n";
    EXPECT_EQ(Outline(scene.Menu().children), kGridMenu + shown + "-\nPlay Cine\n-\n" + all + file);
    scene.window.a.setCineModeIsON(true);
    EXPECT_EQ(Outline(scene.Menu().children), kGridMenu + shown + "-\nStop Cine\n-\n" + all + file);
    scene.window.a.setCineModeIsON(false);
    scene.host().grids.pop_back();
    EXPECT_EQ(Outline(scene.Menu().children), kGridMenu + shown + "-\nPlay Cine\n-\n" + file);
    scene.ShowUltrasound();
    EXPECT_TRUE(Find(scene.Menu().children, QStringLiteral("Hide US Regions")));

    Scene measured;
    Shape& shape = measured.MeasureTarget();
    shape.setHasStrokeON(true);
    EXPECT_EQ(Outline(measured.Menu().children),
              "Stroke Off\nFill On\nHide Label\nShadow Off\n-\nBring to Front\nMove Forward\n"
              "Move Backwards\nSend to Back\n-\nPropagate Measurement\n-\nDelete Measurement\n"
              "Delete All Measurements\n");
}

TEST(ContextualMenus, name_layouts_by_tag_and_image_and_check_the_present_one)
{
    Scene scene(Forms(4, {.frames = 1}));
    scene.host().layout = 654;
    scene.window.a.setGridRowsTo(1, 4, false);
    const MenuEntry menu = scene.Menu();
    const std::vector<MenuEntry>& layouts = menu.children.front().children;
    for (std::size_t i = 0; i < layouts.size(); ++i) {
        EXPECT_EQ(layouts[i].tag, 605 + static_cast<int>(i));
        EXPECT_EQ(layouts[i].checked, layouts[i].tag + kLayoutMenuOffset == 654) << i;
        EXPECT_EQ(LayoutOfImage(layouts[i].image.toStdString()), &kGridLayouts[i]) << i;
    }
    // A name says how many grids there are, and how they lie.
    for (std::size_t i = 0; i < layouts.size(); ++i) {
        const std::string title = layouts[i].title.toStdString();
        const GridLayout& layout = kGridLayouts[i];
        const bool rows = title.ends_with("rows"), columns = title.ends_with("columns");
        if (rows || columns) {
            const bool stacked = layout.partsStacked == (layout.part[1] != 0);
            EXPECT_EQ(stacked, rows) << title;
            EXPECT_EQ(layout.grids(), title[0] - '0') << title;
        } else if (title != "Single") {
            EXPECT_EQ(layout.partsStacked, title.find("top") != std::string::npos) << title;
            EXPECT_EQ(layout.part[0], title[0] - '0') << title;
            EXPECT_EQ(layout.part[1], title[title.find(", ") + 2] - '0') << title;
        }
    }
    EXPECT_TRUE(Find(menu.children, QStringLiteral("Other..."))->checked);
    scene.window.a.setGridSetupID(3);
    EXPECT_FALSE(Find(scene.Menu().children, QStringLiteral("Other..."))->checked);
}

TEST(ContextualMenus, offer_the_layouts_that_the_sequences_can_fill)
{
    struct Row {
        const char* fault;
        Forms forms;
        int lastTag;
    };
    const Row rows[] = {
        {"no sequence with frames", {{.frames = 0}}, 0},
        {"one", {{.frames = 1}}, 605},
        {"one, beside an empty one", {{.frames = 1}, {.frames = 0}}, 605},
        {"two", Forms(2, {.frames = 1}), 607},
        {"three", Forms(3, {.frames = 1}), 613},
        {"four", Forms(4, {.frames = 1}), 621},
        {"more", Forms(6, {.frames = 1}), 621},
    };
    for (const Row& row : rows) {
        Scene scene(row.forms);
        const MenuEntry layouts = scene.Menu().children.front();
        for (const MenuEntry& entry : layouts.children)
            EXPECT_EQ(entry.enabled, entry.tag <= row.lastTag) << row.fault << entry.tag;
        EXPECT_EQ(layouts.enabled, row.lastTag > 0) << row.fault;
        scene.window.b.setCineModeIsON(true);
        const MenuEntry playing = scene.Menu().children.front();
        for (const MenuEntry& entry : playing.children)
            EXPECT_FALSE(entry.enabled) << row.fault << entry.tag << " while another grid plays";
    }
}

struct StateRow {
    const char* fault;
    const char* title;
    bool enabled;
    std::function<void(Scene&)> prepare = [](Scene&) {};
};

void ExpectStates(const std::vector<StateRow>& rows, const Forms& forms)
{
    for (const StateRow& row : rows) {
        Scene scene(forms);
        row.prepare(scene);
        const MenuEntry menu = scene.Menu();
        const MenuEntry* entry = Find(menu.children, QLatin1String(row.title));
        EXPECT_TRUE(entry) << row.fault << ": " << row.title;
        EXPECT_EQ(entry && entry->enabled, row.enabled) << row.fault << ": " << row.title;
    }
}

TEST(ContextualMenus, enable_the_entries_of_a_grid_by_their_rules)
{
    const auto frame = [](int number) {
        return [number](Scene& s) { s.proxy().setCurrentFrame(number); };
    };
    const auto zoom = [](double percent) {
        return [percent](Scene& s) { s.proxy().changeZoomForFrame(3, percent); };
    };
    const auto beyond = [](Scene& s) { s.target.frame = 8; };
    const auto none = [](Scene& s) { s.target.frame = 0; };
    const auto noMovies = [](Scene& s) { s.host().hasCine = false; };
    const auto plays = [](bool a, bool b) {
        return [a, b](Scene& s) {
            s.window.a.setCineModeIsON(a);
            s.window.b.setCineModeIsON(b);
        };
    };
    const auto noCine = [](Scene& s) {
        s.proxy().setCanCreateMovie(0);
        s.window.b.currZELSequence()->setCanCreateMovie(0);
    };
    const auto marked = [](Scene& s) { s.proxy().setUserMarked(true); };
    const auto hidden = [](Scene& s) {
        s.proxy().setViewShowsDemographics(0);
        s.proxy().setViewShowsScale(false);
    };
    const auto measured = [](Scene& s) { s.Measure(2); };
    const auto measuredAndHidden = [](Scene& s) {
        s.Measure(2);
        s.proxy().setViewShowsMeasurements(false);
    };
    const auto ultrasound = [](Scene& s) { s.ShowUltrasound(); };
    const auto noOverlaysShown = [](Scene& s) {
        s.ShowUltrasound();
        s.proxy().setViewShowsDicomOverlays(false);
    };
    const auto noRegionsShown = [](Scene& s) {
        s.ShowUltrasound();
        prefs_Set_ShowsUSRegions(false);
    };
    ExpectStates(
        {
            {"two sequences", "Previous Sequence", true},
            {"two sequences", "Next Sequence", true},
            {"always", "Mark Sequence", true},
            {"a marked one", "Unmark Sequence", true, marked},
            {"frame 3", "First Frame", true},
            {"frame 1", "First Frame", false, frame(1)},
            {"frame 1", "Previous Frame", false, frame(1)},
            {"frame 1", "Next Frame", true, frame(1)},
            {"frame 7", "Next Frame", false, frame(7)},
            {"frame 7", "Last Frame", false, frame(7)},
            {"frame 7", "Previous Frame", true, frame(7)},
            {"at 100 percent", "Enlarge", true, zoom(100)},
            {"as large as can be", "Enlarge", false, zoom(10000)},
            {"at 100 percent", "Reduce", true, zoom(100)},
            {"as small as can be", "Reduce", false, zoom(5)},
            {"as large as can be", "Normal Size", true, zoom(10000)},
            {"beside the cells", "Enlarge", false, beyond},
            {"beside the cells", "Normal Size", false, beyond},
            {"beside the cells", "Fit in Window", false, beyond},
            {"beside the cells", "Rotate Right", false, beyond},
            {"beside the cells", "Flip Vertical", false, beyond},
            {"beside the cells", "Invert", false, beyond},
            {"beside the cells", "Play Cine", false, beyond},
            {"beside the cells", "Show in File Manager", false, beyond},
            {"of the sequence", "Hide Demographics", true, beyond},
            {"of the sequence", "Next Frame", true, beyond},
            {"no click", "Invert", false, none},
            {"shown", "Hide Demographics", true},
            {"hidden", "Show Demographics", true, hidden},
            {"shown", "Hide Scale", true},
            {"hidden", "Show Scale", true, hidden},
            {"no plane", "Show Overlays", false},
            {"a plane", "Hide Overlays", true, ultrasound},
            {"hidden", "Show Overlays", true, noOverlaysShown},
            {"nothing measured", "Show Measurements", false},
            {"measured", "Hide Measurements", true, measured},
            {"hidden", "Show Measurements", true, measuredAndHidden},
            {"regions", "Hide US Regions", true, ultrasound},
            {"regions not shown", "Show US Regions", true, noRegionsShown},
            {"many frames", "Play Cine", true},
            {"a sequence that can't play", "Play Cine", false, noCine},
            {"no player", "Play Cine", false, noMovies},
            {"none plays", "Play All", true},
            {"none can play", "Play All", false, noCine},
            {"no player", "Play All", false, noMovies},
            {"the other plays", "Play All", true, plays(false, true)},
            {"all play", "Play All", false, plays(true, true)},
            {"none plays", "Stop All", false},
            {"the other plays", "Stop All", true, plays(false, true)},
            {"always", "Show in File Manager", true},
            // While the grid itself plays.
            {"playing", "Stop Cine", true, plays(true, false)},
            {"playing", "1 x 1", false, plays(true, false)},
            {"playing", "Other...", false, plays(true, false)},
            {"playing", "Next Frame", false, plays(true, false)},
            {"playing", "First Frame", false, plays(true, false)},
            {"playing", "Normal Size", false, plays(true, false)},
            {"playing", "Flip Horizontal", false, plays(true, false)},
            {"playing", "Rotate Left", false, plays(true, false)},
            {"playing", "Invert", false, plays(true, false)},
            {"playing", "Hide Demographics", false, plays(true, false)},
            {"playing", "Hide Scale", false, plays(true, false)},
            {"playing", "Next Sequence", true, plays(true, false)},
            {"playing", "Mark Sequence", true, plays(true, false)},
            {"playing", "Show in File Manager", true, plays(true, false)},
            {"the other plays", "1 x 1", true, plays(false, true)},
            {"the other plays", "Invert", true, plays(false, true)},
        },
        {{}, {.frames = 3}});
    ExpectStates({{"one sequence", "Next Sequence", false},
                  {"no spacing", "Show Scale", false},
                  {"one grid can play", "Play All", true},
                  {"an ultrasound without regions", "Show US Regions", false}},
                 {{.modality = "US", .spacing = nullptr}});
}

TEST(ContextualMenus, enable_the_entries_of_a_measurement_by_its_abilities)
{
    const auto with = [](std::function<void(Shape&)> change) {
        return [change](Scene& s) { change(s.MeasureTarget()); };
    };
    const auto plain = with([](Shape&) {});
    const auto top = [](Scene& s) { s.target.measurement = s.Measure(5); };
    ExpectStates(
        {
            {"on", "Stroke Off", true, plain},
            {"off", "Stroke On", true, with([](Shape& s) { s.setHasStrokeON(false); })},
            {"on but fixed", "Stroke On", false, with([](Shape& s) { s.stroke = false; })},
            {"off", "Fill On", true, plain},
            {"on", "Fill Off", true, with([](Shape& s) { s.setHasFillON(true); })},
            {"fixed", "Fill On", false, with([](Shape& s) {
                 s.setHasFillON(true);
                 s.fill = false;
             })},
            {"on", "Hide Label", true, plain},
            {"off", "Show Label", true, with([](Shape& s) { s._descriptionON = false; })},
            {"no label", "Show Label", false, with([](Shape& s) { s._hasDescription = false; })},
            {"on", "Shadow Off", true, plain},
            {"off", "Shadow On", true, with([](Shape& s) { s._shadowON = false; })},
            {"in the middle", "Bring to Front", true, plain},
            {"in the middle", "Move Forward", true, plain},
            {"in the middle", "Move Backwards", true, plain},
            {"in the middle", "Send to Back", true, plain},
            {"alone", "Bring to Front", false, top},
            {"alone", "Move Forward", false, top},
            {"alone", "Move Backwards", false, top},
            {"alone", "Send to Back", false, top},
            {"of one frame", "Propagate Measurement", true, plain},
            {"of all", "Propagate Measurement", false, with([](Shape& s) { s._global = true; })},
            {"always", "Delete Measurement", true, plain},
            {"always", "Delete All Measurements", true, plain},
        },
        {{}});
    const auto only = [](Scene& s) {
        s.target.frame = 1;
        s.target.measurement = s.Measure(1);
        s.Measure(1);
    };
    ExpectStates({{"one frame", "Propagate Measurement", false, only},
                  {"one frame", "Bring to Front", false, only}},
                 {{.frames = 1}});
}

TEST(ContextualMenus, are_chosen_by_what_lies_under_the_click)
{
    Scene scene;
    scene.window.a.setGridSetupID(3);
    scene.window.a.U_UpdateGridSizeAndFrame(
        {2 * (kColumns + 2 * kCellInset), 2 * (kRows + 2 * kCellInset)}, 1);
    const CKShapePtr shape = scene.Measure(2);
    const QPointF onShape = scene.window.a.framePointToViewPoint({20, 20}, 2);
    const auto titleAt = [&](const QPointF& point, int frame) {
        ContextualTarget target = contextualTarget(scene.window.a, point);
        EXPECT_EQ(target.frame, frame);
        const auto menu = menuForTarget(scene.window.a, scene.host(), scene.actions, target);
        return menu ? menu->title : QString();
    };
    EXPECT_EQ(titleAt(onShape, 2), QLatin1String("Meas Contextual"));
    EXPECT_EQ(titleAt(scene.window.a.framePointToViewPoint({50, 40}, 2), 2),
              QLatin1String("Grid Contextual"));
    EXPECT_EQ(titleAt({-20, 5}, 8), QLatin1String("Grid Contextual"));
    scene.proxy().setViewShowsMeasurements(false);
    EXPECT_EQ(titleAt(onShape, 2), QLatin1String("Grid Contextual")) << "hidden ones aren't there";
    scene.window.a.setCineModeIsON(true);
    EXPECT_TRUE(titleAt(onShape, 2).isEmpty());

    scene.window.a.setCineModeIsON(false);
    ContextualTarget crop{2, NewBox({10, 10, 20, 20}, Box::Kind::Crop)};
    EXPECT_EQ(menuForTarget(scene.window.a, scene.host(), scene.actions, crop)->title,
              QLatin1String("Grid Contextual"));
}

}  // namespace

// What is typed into the boxes of the tool bar, their menus, and the sheet.
#include "app/grid/FrameNavigation.h"
#include "app/grid/GridFixture.h"
#include "app/tools/BnCDialogController.h"
#include "app/tools/MouseTrackers.h"
#include "app/tools/ZELFrameTextBoxController.h"
#include "app/tools/ZELWWWLTextBoxController.h"
#include "app/tools/ZELZoomTextBoxController.h"

#include <cmath>

namespace {

using Box = ZELWWWLTextBoxController::Box;

// The window's first grid shows the made series; counts how often each box is told to look again.
struct Boxes {
    explicit Boxes(const SeriesForm& form = {.frames = 5})
        : made({form, SeriesForm{.frames = 1}}), window(&made)
    {
    }
    [[nodiscard]] ZELSequenceProxy& Proxy() { return *window.a.currZELSequence(); }
    [[nodiscard]] zel_TransformRec& Record(int number = 1)
    {
        return made.sequences[0]->GetImageFrameInfo(number)->fTransform;
    }

    const Quiet quiet;
    MadeTree made;
    Window window;
    ViewerActions actions{&window.host};
    FrameNavigation navigation{&window.host};
    int zoomChanged = 0, windowChanged = 0, frameChanged = 0;
    ZELZoomTextBoxController zoom{&window.host, &actions, [this] { ++zoomChanged; }};
    ZELWWWLTextBoxController level{&window.host, &actions, [this] { ++windowChanged; }};
    ZELFrameTextBoxController frame{&window.host, [this] { ++frameChanged; }};
};

const char* Shown(const EditEnd& end) { return end.shows.isNull() ? "typed" : "old"; }

TEST(TextBoxes, take_the_number_that_a_text_begins_with)
{
    struct Row {
        const char* text;
        const char* accepted;
        const char* cut;
        double number;
    };
    const Row rows[] = {
        {"150%", "0123456789.", "150", 150},
        {"12.5x", "0123456789.", "12.5", 12.5},
        {"", "0123456789", "", 0},
        {"x7", "0123456789", "", 0},
        {"-5000", "0123456789+-", "-5000", -5000},
        {"+40", "0123456789+-", "+40", 40},
        {"+-4", "0123456789+-", "+-4", 0},
        {"4-5", "0123456789+-", "4-5", 4},
        {"1.2.3", "0123456789.", "1.2.3", 1.2},
        {".5", "0123456789.", ".5", 0.5},
        {"1e9", "0123456789.", "1", 1},
        {"1,5", "0123456789.", "1", 1},
        {"99999999999999999999999999", "0123456789", "99999999999999999999999999", 1e26},
        {"--", "0123456789+-", "--", 0},
    };
    for (const Row& row : rows) {
        const QString cut = CutAt(QString::fromUtf8(row.text), row.accepted);
        EXPECT_EQ(cut.toStdString(), row.cut) << row.text;
        EXPECT_DOUBLE_EQ(NumberAtStart(cut), row.number) << row.text;
    }
    EXPECT_EQ(CutAt(QStringLiteral("4\u0665"), kDigits), QStringLiteral("4")) << "other digits";
}

constexpr double kLeastOfFrame = 66.665649;  // percent: frames so small aren't made smaller

TEST(TextBoxes, zoom_as_it_is_typed_or_chosen)
{
    struct Row {
        const char* typed;
        bool taken;
        double percent;
    };
    for (const Row& row :
         {Row{"150%", true, 150}, Row{"80.5", true, 80.5}, Row{"5", true, kLeastOfFrame},
          Row{"800", true, 800}, Row{"0", false, 100}, Row{"4.9", false, 100},
          Row{"801", false, 100}, Row{"", false, 100}, Row{"wide", false, 100}}) {
        Boxes boxes;
        boxes.zoom.setZoomValueTo(100);
        const EditEnd end = boxes.zoom.textShouldEndEditing(QString::fromUtf8(row.typed));
        EXPECT_TRUE(end.ends);
        EXPECT_STREQ(Shown(end), row.taken ? "typed" : "old") << row.typed;
        boxes.zoom.changeZoomValue(QString::fromUtf8(row.typed));
        EXPECT_NEAR(boxes.Proxy().currentZoom(), row.percent, 0.01) << row.typed;
    }
    Boxes boxes;
    const double percents[] = {800, 400, 200, 150, 125, 100, 75, 50, 25, 12.5, 10};
    for (int tag = 1; tag <= 11; ++tag) {
        EXPECT_EQ(boxes.zoom.menuIDForZoom(percents[tag - 1]), tag - 1);
        if (percents[tag - 1] < kLeastOfFrame)
            continue;
        boxes.zoom.dopopupZoomValue(tag);
        EXPECT_FLOAT_EQ(boxes.Proxy().currentZoom(), static_cast<float>(percents[tag - 1]));
        std::string marks;
        for (const MenuEntry& entry : boxes.zoom.updateZoomMenu())
            marks += entry.checked ? 'x' : entry.kind == MenuEntry::Kind::Separator ? '|' : '.';
        std::string expected = "...........|.";
        expected[static_cast<std::size_t>(tag - 1)] = 'x';
        EXPECT_EQ(marks, expected);
    }
    boxes.zoom.dopopupZoomValue(12);
    EXPECT_FLOAT_EQ(boxes.Proxy().currentZoom(), 75);
    boxes.zoom.updateZoomMenu().back().perform(false);
    EXPECT_TRUE(boxes.Proxy().zoomIsAutoFit());
    EXPECT_TRUE(boxes.zoom.updateZoomMenu().back().checked);
    EXPECT_EQ(boxes.zoom.menuIDForZoom(99), -1);
}

TEST(TextBoxes, zoom_takes_the_result_of_a_drag_in_its_own_window)
{
    Boxes boxes;
    const QVariantMap result{{QLatin1String(kKeyZoom), 250.0}};
    FakeSurface other("other", &boxes.window.host.log);
    for (GridSurface* view :
         {static_cast<GridSurface*>(&other), static_cast<GridSurface*>(&boxes.window.viewB)})
        NotificationCenter::Default().Post(kNoteZoomChanged, view, result);
    EXPECT_TRUE(boxes.Proxy().zoomIsAutoFit());
    NotificationCenter::Default().Post(kNoteZoomChanged,
                                       static_cast<GridSurface*>(&boxes.window.viewA), result);
    EXPECT_FLOAT_EQ(boxes.Proxy().currentZoom(), 250);
    EXPECT_GT(boxes.zoomChanged, 0);
}

TEST(TextBoxes, frame_as_it_is_typed)
{
    struct Row {
        const char* typed;
        int frame;
    };
    for (const Row& row : {Row{"4", 4}, Row{"3 of 5", 3}, Row{"0", 2}, Row{"6", 2}, Row{"-3", 2},
                           Row{"99999999999999", 2}, Row{"", 2}}) {
        Boxes boxes;
        boxes.Proxy().setCurrentFrame(2);
        const Posted asked(kNoteFrameShouldChange);
        const QString typed = QString::fromUtf8(row.typed);
        const EditEnd end = boxes.frame.textShouldEndEditing(typed);
        EXPECT_TRUE(end.ends);
        boxes.frame.dothething(typed);
        EXPECT_EQ(boxes.Proxy().currentFrame(), row.frame) << row.typed;
        EXPECT_STREQ(Shown(end), asked.notes.empty() ? "old" : "typed") << row.typed;
        if (!asked.notes.empty()) {
            EXPECT_EQ(asked.Number(kKeyCellChangeType), 4);
        }
        EXPECT_EQ(boxes.frame.text(), boxes.Proxy().currentFrameString());
    }
    Boxes alone({.frames = 1});
    EXPECT_FALSE(alone.frame.mayEdit());
    Boxes playing;
    playing.window.a.setCineModeIsON(true);
    playing.window.a.willDisplayImage(4);
    EXPECT_EQ(playing.frame.text(), QStringLiteral("4 of 5"));
    playing.window.a.setCineModeIsON(false);
    EXPECT_EQ(playing.frame.text(), QStringLiteral("1 of 5"));
}

TEST(TextBoxes, window_as_it_is_typed)
{
    struct Row {
        const char* fault;
        bool color;
        Box box;
        const char* typed;
        bool taken;
        double first, second;
    };
    const Row rows[] = {
        {"a width", false, Box::Brightness, "350", true, 350, 40},
        {"a level", false, Box::Contrast, "-300", true, 400, -300},
        {"with a sign", false, Box::Contrast, "+70HU", true, 400, 70},
        {"without decimals", false, Box::Brightness, "350.9", true, 350, 40},
        {"beyond what may be typed", false, Box::Contrast, "20000", false, 400, 40},
        {"brightness", true, Box::Brightness, "-12.7", true, -12, 0},
        {"contrast at its end", true, Box::Contrast, "100", true, 0, 100},
        {"contrast beyond", true, Box::Contrast, "101", false, 0, 0},
    };
    for (const Row& row : rows) {
        Boxes boxes({.frames = 2, .color = row.color});
        const QString typed = QString::fromUtf8(row.typed), old = boxes.level.text(row.box);
        const EditEnd end = boxes.level.textShouldEndEditing(row.box, typed);
        EXPECT_EQ(end.ends, row.taken) << row.fault;
        EXPECT_EQ(end.shows, row.taken ? QString() : old) << row.fault;
        boxes.level.changeWWWLValue(row.box, typed);
        EXPECT_EQ(boxes.Proxy().currentWWBrightness(), row.first) << row.fault;
        EXPECT_EQ(boxes.Proxy().currentWLContrast(), row.second) << row.fault;
        EXPECT_EQ(boxes.windowChanged > 0, row.taken);
    }
    Boxes all;
    all.window.host.scope.setToolScope(ToolScope::kSequence);
    all.level.changeWWWLValue(Box::Brightness, QStringLiteral("300"));
    EXPECT_EQ(all.Record(5).voiWidth, 300) << "under the tool scope";
}

TEST(TextBoxes, names_of_the_window_boxes_go_by_the_sequence)
{
    Boxes gray, color({.frames = 1, .color = true});
    EXPECT_STREQ(gray.level.imageOf(Box::Brightness), "ww_bw");
    EXPECT_STREQ(gray.level.imageOf(Box::Contrast), "wc_bw");
    EXPECT_STREQ(color.level.imageOf(Box::Brightness), "brightness_bw");
    EXPECT_STREQ(color.level.imageOf(Box::Contrast), "contrast_bw");
    EXPECT_NE(gray.level.toolTipOf(Box::Contrast), color.level.toolTipOf(Box::Contrast));
}

TEST(TextBoxes, follow_the_active_grid_of_their_window)
{
    Boxes boxes;
    const auto post = [&](std::string_view name, const void* window) {
        NotificationCenter::Default().Post(
            name, nullptr,
            {{QLatin1String(kKeyWindow), QVariant::fromValue(const_cast<void*>(window))}});
    };
    boxes.window.host.active = &boxes.window.b;
    post(kNoteGridDidChange, &boxes);
    EXPECT_EQ(boxes.zoomChanged + boxes.windowChanged + boxes.frameChanged, 0);
    post(kNoteGridDidChange, boxes.window.host.windowKey());
    EXPECT_EQ(boxes.zoomChanged, 1);
    EXPECT_EQ(boxes.windowChanged, 1);
    EXPECT_EQ(boxes.frameChanged, 1);
    boxes.Proxy().setCurrentFrame(3);
    EXPECT_EQ(boxes.frameChanged, 1) << "not the active grid any more";
    boxes.window.b.currZELSequence()->changeVOIForAllFrames(false, 111, 22);
    EXPECT_GT(boxes.windowChanged, 1);
    const int before = boxes.windowChanged;
    post(kNoteWWWLPresetsChanged, nullptr);
    EXPECT_EQ(boxes.windowChanged, before + 1);
}

// ---- menu ----

// A gray file with these windows.
DicomBuilder WindowedFile(const char* centers, const char* widths, const char* names)
{
    DicomBuilder file;
    file.Meta(kUidExplicitLittle).CommonHeader("CT");
    file.Image({.rows = 4, .columns = 4, .bits = 16, .samples = 1});
    if (centers)
        file.Element(0x0028, 0x1050, "DS", centers).Element(0x0028, 0x1051, "DS", widths);
    if (names)
        file.Element(0x0028, 0x1055, "LO", names);
    return file.NativePixels(
        {0, 100, 200, 300, 400, 500, 600, 700, 800, 900, 1000, 1100, 1200, 1300, 1400, 1500});
}

// A line for each item: its title, "x" for a mark, "-" where it can't be chosen.
Words LinesOf(const std::vector<MenuEntry>& menu)
{
    Words lines;
    for (const MenuEntry& entry : menu)
        lines.push_back(entry.kind == MenuEntry::Kind::Separator
                            ? "|"
                            : entry.title.toStdString() + (entry.checked ? " x" : "") +
                                  (entry.enabled ? "" : " -"));
    return lines;
}

struct LevelMenus {
    LevelMenus(const DicomBuilder& file, bool gray = true)
    {
        CImporterPlusFactory::InitFactory();
        prefs_Store().UseFile({});
        prefs_InitializeForApplication();
        if (gray) {
            EXPECT_EQ(saveWWWLPresets({{QStringLiteral("Soft"), 400, 40, 0},
                                       {QString(), 300, 150, 1},
                                       {QStringLiteral("Wild"), 90000, 40, 2}}),
                      kQvxOK);
        }
        auto* patient = MadeTree::Add<dk_Patient>(tree.patientTreeRoot());
        auto* series = MadeTree::Add<dk_Series>(MadeTree::Add<dk_Study>(patient));
        sequence = MadeTree::Add<dk_Sequence>(series);
        EXPECT_EQ(MadeTree::Add<dk_ImageFile>(sequence)->SetSourceFile(
                      FileRef{folder.WriteFile("file", file.Bytes())}, kImportDicom),
                  kQvxOK);
        zel_QTViewerDoc document;
        EXPECT_EQ(U_LoadFrameContentToViewerDoc(sequence, 1, &document), kQvxOK);
        host.grids = {&grid};
        host.active = &grid;
        host.scope.setToolScope(ToolScope::kFrame);
        grid.setCurrZELSequence(host.proxyOf(sequence));
    }
    ~LevelMenus() { prefs_Store().UseFile({}); }
    const zel_TransformRec& Record() { return sequence->GetImageFrameInfo(1)->fTransform; }

    const Quiet quiet;
    TempFolder folder;
    ZELDcmTree tree;
    dk_Sequence* sequence = nullptr;
    FakeHost host{&tree};
    Grid grid{&host};
    ViewerActions actions{&host};
    ZELWWWLTextBoxController level{&host, &actions, [] {}};
};

TEST(LevelMenu, lists_the_files_windows_then_the_users)
{
    struct Row {
        const char* fault;
        const char *centers, *widths, *names;
        Words first;  // before the user's
    };
    const Row rows[] = {
        {"one without a name", "500", "800", nullptr, {" -", "Original x"}},
        {"one with a name", "500", "800", "BODY", {" -", "Original 1 (BODY) x"}},
        {"two, the second's name is empty",
         "500\\300",
         "800\\200",
         "BODY\\",
         {" -", "Original 1 (BODY) x", "Original 2"}},
        {"the same twice", "500\\500", "800\\800", nullptr, {" -", "Original x"}},
        {"one that is wider than can be",
         "500\\300",
         "800\\99999",
         nullptr,
         {" -", "Original 1 x", "Original 2 -"}},
        {"none", nullptr, nullptr, nullptr, {" -", "Original x"}},
    };
    for (const Row& row : rows) {
        LevelMenus menus(WindowedFile(row.centers, row.widths, row.names));
        menus.level.editPresetsAction = [] {};
        menus.level.openAdjustColorsDialog = [] {};
        Words lines = row.first;
        for (const char* line : {"|", "Soft", "Unnamed", "Wild -", "|", "Make Preset -",
                                 "Edit Presets", "|", "Adjust..."})
            lines.emplace_back(line);
        EXPECT_EQ(LinesOf(menus.level.updateWWWLMenu()), lines) << row.fault;
    }
}

TEST(LevelMenu, an_item_shows_its_window_and_is_marked)
{
    for (const bool two : {false, true}) {
        const std::size_t files = two ? 2 : 1;
        LevelMenus menus(two ? WindowedFile("500\\300", "800\\200", nullptr)
                             : WindowedFile("500", "800", nullptr));
        const auto choose = [&](std::size_t item) {
            menus.level.updateWWWLMenu()[item].perform(false);
            return menus.level.updateWWWLMenu()[item].checked;
        };
        EXPECT_TRUE(choose(files + 2)) << "Soft";
        EXPECT_EQ(menus.Record().voiWidth, 400);
        EXPECT_EQ(menus.Record().voiLevel, 40);
        EXPECT_TRUE(choose(files + 3));
        EXPECT_EQ(menus.Record().voiWidth, 300);
        EXPECT_TRUE(choose(files));
        EXPECT_EQ(menus.Record().voiWidth, two ? 200 : 800);
    }
    struct Row {
        int item, files, presets, preset;
    };
    for (const Row& row : {Row{3, 1, 3, 0}, Row{5, 1, 3, 2}, Row{6, 1, 3, -1}, Row{3, 0, 3, 0},
                           Row{2, 1, 3, -1}, Row{4, 2, 3, 0}, Row{3, 1, 0, -1}})
        EXPECT_EQ(UserPresetOfItem(row.item, row.files, row.presets), row.preset);
}

std::string Bytes16(const std::vector<std::uint16_t>& values)
{
    std::string bytes;
    for (const std::uint16_t value : values) {
        bytes += static_cast<char>(value & 0xFF);
        bytes += static_cast<char>(value >> 8);
    }
    return bytes;
}

TEST(LevelMenu, offers_the_files_tables_behind_the_users_presets)
{
    const auto table = [](std::vector<std::uint16_t> entries, const char* name) {
        Item item;
        item.Element(0x0028, 0x3002, "US",
                     Bytes16({static_cast<std::uint16_t>(entries.size()), 0, 16}));
        if (name)
            item.Element(0x0028, 0x3003, "LO", name);
        return item.Element(0x0028, 0x3006, "OW", Bytes16(entries));
    };
    DicomBuilder file;
    file.Meta(kUidExplicitLittle).CommonHeader("CT");
    file.Image({.rows = 1, .columns = 4, .bits = 16, .samples = 1});
    file.Element(0x0028, 0x1050, "DS", "2").Element(0x0028, 0x1051, "DS", "4");
    file.Sequence(0x0028, 0x3010,
                  {table({0, 65535, 0, 65535}, "STEPS"), table({65535, 1, 2, 3}, nullptr)});
    LevelMenus menus(file.NativePixels({0, 1, 2, 3}));
    EXPECT_EQ(LinesOf(menus.level.updateWWWLMenu()),
              (Words{" -", "Original x", "|", "Soft", "Unnamed", "Wild -", "|", "STEPS", "Table 2",
                     "|", "Make Preset -", "Edit Presets -", "|", "Adjust... -"}));
    menus.level.updateWWWLMenu()[7].perform(false);
    ASSERT_TRUE(menus.Record().voiTable);
    EXPECT_EQ(menus.Record().voiTable->fExplanation, "STEPS");
    EXPECT_EQ(menus.Record().voiWidth, 4) << "its span";
    const Words lines = LinesOf(menus.level.updateWWWLMenu());
    EXPECT_EQ(lines[7], "STEPS x");
    EXPECT_EQ(lines[1], "Original") << "the table shows, not the window of the same numbers";
    menus.grid.U_UpdateGridSizeAndFrame({20, 20}, 1);
    const QImage picture = menus.grid.photoAtIndex(0).image;
    ASSERT_EQ(picture.width(), 4);
    for (int x = 0; x < 4; ++x)
        EXPECT_EQ(qGray(picture.pixel(x, 0)), x % 2 == 0 ? 0 : 255) << x;
    using Row = BnCDialogController::Row;
    for (const bool cancels : {false, true}) {
        BnCDialogController sheet(&menus.host, &menus.actions);
        if (cancels) {
            sheet.previewImage(Row::First, 2);
            EXPECT_FALSE(menus.Record().voiTable);
            sheet.cancel();
        } else {
            sheet.accept(sheet.valueOf(Row::First), sheet.valueOf(Row::Second));
        }
        ASSERT_TRUE(menus.Record().voiTable) << "a table that nobody touched stays";
    }
    menus.level.updateWWWLMenu()[1].perform(false);
    EXPECT_FALSE(menus.Record().voiTable);
}

TEST(LevelMenu, other_frames_than_gray_ones_have_their_originals_alone)
{
    Boxes boxes({.frames = 1, .color = true});
    EXPECT_EQ(LinesOf(boxes.level.updateWWWLMenu()),
              (Words{" -", "Original x", "|", "Adjust... -"}));
    boxes.level.changeWWWLValue(Box::Contrast, QStringLiteral("20"));
    std::vector<MenuEntry> menu = boxes.level.updateWWWLMenu();
    EXPECT_FALSE(menu[1].checked);
    menu[1].perform(false);
    EXPECT_EQ(boxes.Proxy().currentWLContrast(), 0);
    boxes.window.host.closing = true;
    EXPECT_TRUE(boxes.level.updateWWWLMenu().empty());
}

// ---- sheet ----

TEST(AdjustSheet, previews_on_its_frame_and_ends_by_the_scope)
{
    using Row = BnCDialogController::Row;
    for (const bool color : {false, true}) {
        for (const bool preview : {false, true}) {
            Boxes boxes({.frames = 3, .color = color});
            boxes.window.host.scope.setToolScope(ToolScope::kSequence);
            ASSERT_TRUE(BnCDialogController::canOpen(boxes.window.host));
            BnCDialogController sheet(&boxes.window.host, &boxes.actions);
            prefs_Set_BnCDialogPreview(preview);
            const double second = sheet.valueOf(Row::Second);
            EXPECT_EQ(sheet.maximumOf(Row::First), boxes.Proxy().maxWWBrightness());
            sheet.previewImage(Row::First, 60);
            EXPECT_EQ(boxes.Proxy().theWWBrightnessForFrame(1), preview ? 60 : color ? 0 : 400);
            EXPECT_EQ(boxes.Proxy().theWWBrightnessForFrame(2), color ? 0 : 400);
            EXPECT_EQ(boxes.Proxy().theWLContrastForFrame(1), second);
            sheet.livePreviewOnOff(true, 60, 30);
            EXPECT_EQ(boxes.Proxy().theWLContrastForFrame(1), 30);
            sheet.cancel();
            EXPECT_EQ(boxes.Proxy().theWWBrightnessForFrame(1), color ? 0 : 400);
            sheet.accept(70, 20);
            for (int frame = 1; frame <= 3; ++frame) {
                EXPECT_EQ(boxes.Proxy().theWWBrightnessForFrame(frame), 70);
                EXPECT_EQ(boxes.Proxy().theWLContrastForFrame(frame), 20);
            }
        }
    }
    prefs_Set_BnCDialogPreview(true);
    Boxes boxes;
    boxes.window.a.setCineModeIsON(true);
    EXPECT_FALSE(BnCDialogController::canOpen(boxes.window.host));
}

}  // namespace

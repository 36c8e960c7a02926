// A grid's model: its shape, what of it is seen, where keys lead, what its pixels are.
#include "app/grid/FrameNavigation.h"
#include "app/grid/GridFixture.h"
#include "app/grid/GridSetups.h"

#include <numeric>

namespace {

GridViewport Viewport(int rows, int columns, int photos, const QSizeF& content = {300, 200})
{
    GridViewport viewport;
    viewport.setContent(content, 1);
    viewport.setGridDims(rows, columns);
    viewport.setPhotoCount(photos);
    return viewport;
}

std::pair<int, int> ShapeOf(const Grid& grid)
{
    return {grid.viewport().gridRows(), grid.viewport().gridCols()};
}

}  // namespace

// ---- shape ----

TEST(GridSetups, only_the_ten_shapes_have_a_number)
{
    struct Row {
        int rows, columns, setup;
    };
    const Row rows[] = {{1, 1, 0},  {1, 2, 1},  {2, 1, 2},  {2, 2, 3},  {2, 3, 4},  {3, 2, 5},
                        {3, 3, 6},  {3, 4, 7},  {4, 3, 8},  {4, 4, 9},  {1, 3, 11}, {2, 4, 11},
                        {3, 1, 11}, {4, 2, 11}, {3, 5, 11}, {5, 1, 11}, {0, 1, 11}, {1, 0, 11}};
    for (const Row& row : rows)
        EXPECT_EQ(GridSetupIDFromRows(row.rows, row.columns), row.setup)
            << row.rows << " by " << row.columns;
}

TEST(GridModel, another_shape_is_kept_by_the_sequence_and_shown_by_the_view)
{
    MadeTree made;
    Window window(&made);
    window.a.currZELSequence()->setCurrentFrame(6);
    Words heard;
    const auto watch = window.a.ObserveKey({}, [&](std::string_view key, KeyPhase phase) {
        if (phase == KeyPhase::DidChange)
            heard.push_back(std::string(key));
    });
    window.a.setGridRowsTo(2, 2, false);
    EXPECT_EQ(heard, (Words{"inSingleFrameMode", "gridSetupID"}));
    EXPECT_EQ(made.sequences[0]->GetViewState()->fCurrRows, 2);
    EXPECT_EQ(window.a.sequenceDisplayInfo()._numberColumns, 2);
    EXPECT_EQ(window.a.currZELSequence()->currentFrame(), 6);
    EXPECT_TRUE(window.a.viewport().isCellVisible(5, false)) << "the current cell is revealed";
    EXPECT_FALSE(window.host.Take().empty());
    heard.clear();
    window.a.setGridRowsTo(2, 2, false);
    EXPECT_EQ(window.host.Take(), Words()) << "the same shape";
    window.a.setGridRowsTo(2, 2, true);
    EXPECT_NE(window.host.Take(), Words()) << "forced";
    EXPECT_EQ(heard, Words()) << "but no other number";
    window.a.setGridSetupID(10);
    EXPECT_EQ(window.host.Take(), Words()) << "no such setup";
    window.a.setGridSetupID(8);
    EXPECT_EQ(ShapeOf(window.a), std::pair(4, 3));
}

TEST(GridModel, a_double_click_goes_to_one_frame_and_back)
{
    MadeTree made({SeriesForm{}, {.frames = 3}});
    Window window(&made);
    const auto sequence = window.a.currZELSequence();
    window.a.setGridRowsTo(3, 3, false);
    window.a.doubleClickOnPhotoAtIndex(0);
    EXPECT_EQ(ShapeOf(window.a), std::pair(1, 1));
    window.a.doubleClickOnPhotoAtIndex(4);
    EXPECT_EQ(ShapeOf(window.a), std::pair(3, 3));
    // The sequence goes through another grid with a shape of its own.
    window.a.doubleClickOnPhotoAtIndex(0);
    window.a.setCurrZELSequence(window.b.currZELSequence());
    window.b.setCurrZELSequence(sequence);
    window.b.setGridRowsTo(1, 1, true);
    window.a.setGridRowsTo(2, 4, true);
    window.b.doubleClickOnPhotoAtIndex(0);
    EXPECT_EQ(ShapeOf(window.b), std::pair(3, 3)) << "not the other sequence's shape";
    window.b.setGridRowsTo(1, 5, false);
    window.b.doubleClickOnPhotoAtIndex(0);
    window.b.doubleClickOnPhotoAtIndex(0);
    EXPECT_EQ(ShapeOf(window.b), std::pair(1, 5)) << "also a shape of no number";
}

TEST(GridModel, released_it_keeps_no_links)
{
    MadeTree made;
    Window window(&made);
    const CKShapePtr shape = NewBox(), other = NewBox();
    shape->_gridController = &window.a;
    other->_gridController = &window.b;
    window.a.currZELSequence()->addNewMeasurement(shape, true);
    window.a.currZELSequence()->addNewMeasurement(other, true);
    EXPECT_TRUE(window.a.isTheActiveGrid());
    window.host.closing = true;
    EXPECT_TRUE(window.a.windowIsReady() && !window.a.windowIsUsable());
    window.a.prepareToRelease();
    EXPECT_FALSE(window.a.isTheActiveGrid() || window.a.windowIsReady());
    EXPECT_EQ(shape->_gridController, nullptr);
    EXPECT_EQ(other->_gridController, &window.b);
    window.a.currZELSequence()->setCurrentFrame(3);
    window.a.willDisplayImage(2);
    window.a.gotoFrame(FrameStep::Next);
    EXPECT_EQ(window.host.Take(), Words());
}

// ---- what is seen ----

TEST(GridViewport, is_as_large_as_its_cells)
{
    struct Row {
        const char* fault;
        int rows, columns, photos;
        QSizeF size;
    };
    const Row rows[] = {
        {"a started row counts", 2, 3, 7, {300, 300}},
        {"fewer photos than columns", 1, 4, 2, {150, 200}},
        {"as many as columns", 1, 4, 4, {300, 200}},
        {"less than is seen", 2, 2, 2, {300, 100}},
        {"no photos", 2, 2, 0, {300, 200}},
    };
    for (const Row& row : rows)
        EXPECT_EQ(Viewport(row.rows, row.columns, row.photos).viewSize(), row.size) << row.fault;
}

TEST(GridViewport, scrolls_by_whole_rows_and_not_past_the_end)
{
    GridViewport viewport = Viewport(2, 3, 16);  // 6 rows of 100 points
    struct Row {
        double y;
        int firstRow;
        bool moved;
        int leading;
    };
    const Row rows[] = {
        {99.9, 0, false, 0}, {100, 1, true, 3},   {250, 2, true, 6},
        {-5, 0, true, 0},    {1e12, 4, true, 12}, {410, 4, false, 12},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.y);
        EXPECT_EQ(viewport.setScrollTop(row.y), row.moved);
        EXPECT_EQ(viewport.firstRow(), row.firstRow);
        EXPECT_EQ(viewport.leadingPhoto(), row.leading);
    }
    viewport.setPhotoCount(7);
    EXPECT_EQ(viewport.firstRow(), 1) << "fewer photos end sooner";
    EXPECT_EQ(Viewport(2, 2, 0).leadingPhoto(), std::nullopt);
    EXPECT_FALSE(Viewport(2, 2, 9, {}).setScrollTop(50)) << "a hidden view";
}

TEST(GridViewport, names_the_cells_that_are_seen)
{
    GridViewport viewport = Viewport(2, 3, 16);
    viewport.setFirstRow(1);
    for (int index = -1; index < 17; ++index)
        EXPECT_EQ(viewport.isCellVisible(index, false), index >= 3 && index < 9) << index;
    EXPECT_EQ(viewport.firstVisibleFrame(false), 4);
    EXPECT_EQ(Viewport(2, 2, 0).firstVisibleFrame(true), 0);
    EXPECT_FALSE(viewport.scrollToPhoto(8)) << "seen already";
    EXPECT_TRUE(viewport.scrollToPhoto(0));
    EXPECT_EQ(viewport.cellRect(4), QRectF(100, 100, 100, 100));
    viewport.setFirstRow(1);
    EXPECT_EQ(viewport.cellRect(4), QRectF(100, 0, 100, 100));
    EXPECT_EQ(viewport.photoIndexForPoint({150, 50}), 4);
    EXPECT_EQ(viewport.photoIndexForPoint({150, -50}), 1) << "above what is seen";
    const Quiet quiet;
    EXPECT_TRUE(viewport.scrollToPhoto(99));
    EXPECT_EQ(viewport.firstRow(), 0) << "no such photo counts as the first";
}

TEST(GridViewport, cells_that_are_no_whole_pixels_share_their_edges)
{
    for (const double ratio : {1.0, 1.5, 2.0}) {
        GridViewport viewport = Viewport(3, 7, 21, {301, 203});
        viewport.setContent({301, 203}, ratio);
        for (int index = 0; index < 21; ++index) {
            const QRectF cell = viewport.cellRect(index);
            EXPECT_EQ(cell.left() * ratio, std::round(cell.left() * ratio));
            if (index % 7 < 6) {
                EXPECT_EQ(cell.right(), viewport.cellRect(index + 1).left());
            }
            const QPointF inner = cell.topLeft() + QPointF(0.01, 0.01);
            EXPECT_EQ(viewport.photoIndexForPoint(inner), index) << "the click and the drawing";
            const QPointF last(std::min(cell.right(), 301.0), std::min(cell.bottom(), 203.0));
            EXPECT_EQ(viewport.photoIndexForPoint(last - QPointF(0.01, 0.01)), index);
        }
    }
}

// ---- steps ----

TEST(FrameAfterStep, ends_at_the_first_and_the_last_frame)
{
    // 20 frames in 2 by 3 cells, from frames 1, 2, 9, 19, 20.
    struct Row {
        FrameStep step;
        CellChangeType type;
        std::array<int, 5> to;
    };
    const Row rows[] = {
        {FrameStep::First, CellChangeType::Jump, {1, 1, 1, 1, 1}},
        {FrameStep::Previous, CellChangeType::Step, {1, 1, 8, 18, 19}},
        {FrameStep::PreviousRow, CellChangeType::Row, {1, 1, 6, 16, 17}},
        {FrameStep::PreviousPage, CellChangeType::Page, {1, 1, 3, 13, 14}},
        {FrameStep::Next, CellChangeType::Step, {2, 3, 10, 20, 20}},
        {FrameStep::NextRow, CellChangeType::Row, {4, 5, 12, 20, 20}},
        {FrameStep::NextPage, CellChangeType::Page, {7, 8, 15, 20, 20}},
        {FrameStep::Last, CellChangeType::Jump, {20, 20, 20, 20, 20}},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(static_cast<int>(row.step));
        EXPECT_EQ(ChangeTypeOf(row.step), row.type);
        const int from[] = {1, 2, 9, 19, 20};
        for (std::size_t i = 0; i < row.to.size(); ++i)
            EXPECT_EQ(FrameAfterStep(row.step, from[i], 20, 2, 3), row.to[i]) << from[i];
    }
    EXPECT_EQ(FrameAfterStep(FrameStep::NextPage, 1, 9, 65536, 65536), 9);
    EXPECT_EQ(FrameAfterStep(FrameStep::Last, 0, 0, 1, 1), 0) << "no frames";
}

TEST(GridModel, a_step_is_asked_for_once_and_only_where_there_is_one)
{
    MadeTree made;
    Window window(&made);
    window.a.setGridRowsTo(2, 2, false);
    const Posted asked(kNoteFrameShouldChange);
    window.a.gotoFrame(FrameStep::Previous);
    EXPECT_TRUE(asked.notes.empty()) << "at the first frame";
    window.a.gotoFrame(FrameStep::NextPage);
    ASSERT_EQ(asked.notes.size(), 1u);
    EXPECT_EQ(asked.notes[0].object, static_cast<GridSurface*>(&window.viewA));
    EXPECT_EQ(asked.Number(kKeyNewCellIndex), 4);
    EXPECT_EQ(asked.Number(kKeyCellChangeType), 3);
    EXPECT_EQ(window.a.currZELSequence()->currentFrame(), 1) << "the window decides";
    Window bare(&made);
    bare.a.setCurrZELSequence(nullptr);
    bare.a.gotoFrame(FrameStep::Last);
    EXPECT_EQ(asked.notes.size(), 1u);
}

TEST(GridModel, a_movie_tells_each_new_frame_once)
{
    MadeTree made;
    Window window(&made);
    const Posted told(kNoteFrameDidChangeCine);
    for (const int frame : {2, 2, 0, 3, 2})
        window.a.willDisplayImage(frame);
    ASSERT_EQ(told.notes.size(), 3u);
    EXPECT_EQ(told.Number(kKeyNewCellIndex, 1), 2);
}

// ---- cells ----

TEST(GridModel, keeps_cell_records_in_step_with_the_view)
{
    struct Row {
        const char* fault;
        const char* aspect;
        QSizeF content;
        double zoom;  // 0: fitted
        std::int32_t zoomAfter, vertical, horizontal, width, height;
    };
    constexpr std::int32_t kOne = kZoomOne;
    const Row rows[] = {
        {"fitted to the narrower side", nullptr, {32, 48}, 0, kOne / 2, kOne / 2, kOne / 2, 32, 24},
        {"never fitted larger than itself", nullptr, {640, 480}, 0, kOne, kOne, kOne, 64, 48},
        {"a zoom of its own", nullptr, {32, 48}, 3, 3 * kOne, 3 * kOne, 3 * kOne, 192, 144},
        {"high pixels", "2\\1", {64, 48}, 0, kOne / 2, kOne, kOne / 2, 32, 48},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.fault);
        MadeTree made({SeriesForm{.frames = 1, .spacing = nullptr, .aspect = row.aspect}});
        Window window(&made);
        window.a.U_UpdateGridSizeAndFrame(row.content + QSizeF(2 * kCellInset, 2 * kCellInset), 1);
        if (row.zoom > 0)
            window.a.currZELSequence()->changeZoomForFrame(1, row.zoom * 100);
        made.sequences[0]->GetCellInfo(1)->scrollPoint = {-5, 9999};
        window.a.adjustSetupForFrame(0);
        const zel_GridFrameInfoItem& cell = *made.sequences[0]->GetCellInfo(1);
        EXPECT_EQ(made.sequences[0]->GetImageFrameInfo(1)->fTransform.zoom, row.zoomAfter);
        EXPECT_EQ(cell.vertScale, row.vertical);
        EXPECT_EQ(cell.horzScale, row.horizontal);
        const LongPoint displayed = cell.GetCellDisplaySize();
        EXPECT_EQ(displayed.h, row.width);
        EXPECT_EQ(displayed.v, row.height);
        EXPECT_EQ(cell.scrollPoint.x, 0);
        EXPECT_LE(cell.scrollPoint.y, window.a.getTransformedScrollMaxForCell(0).y());
    }
}

TEST(GridModel, follows_its_proxy_to_another_sequence_and_shape)
{
    const Quiet quiet;
    MadeTree made({SeriesForm{.frames = 2}, SeriesForm{.frames = 5}});
    Window window(&made);
    ZELSequenceProxy& proxy = *window.a.currZELSequence();
    EXPECT_FALSE(window.a.photoAtIndex(1).isNull());
    const CKShapePtr crop = std::make_shared<Box>(QRectF(1, 1, 9, 9), Box::Kind::Crop);
    proxy.setCropForFrame(crop, 0);
    crop->_gridController = &window.a;

    proxy.setTheSequence(made.sequences[1]);
    EXPECT_EQ(crop->_gridController, nullptr) << "drawn by nobody any more";
    EXPECT_EQ(window.a.photoCountForPhotoView(), 5);
    EXPECT_FALSE(window.a.photoAtIndex(4).isNull());

    std::vector<std::string> heard;
    const auto watch = window.a.ObserveKey({}, [&](std::string_view key, KeyPhase phase) {
        if (phase == KeyPhase::DidChange)
            heard.emplace_back(key);
    });
    proxy.setViewGridSetupID(3);
    EXPECT_EQ(window.a.gridSetupID(), 3);
    EXPECT_EQ(heard, (std::vector<std::string>{"inSingleFrameMode", "gridSetupID"}));
}

TEST(GridModel, a_picture_is_made_once_for_a_look)
{
    const Quiet quiet;
    MadeTree made({SeriesForm{.frames = 2}});
    Window window(&made);
    const auto rendered = [&] { return window.a.pictures().rendered(); };
    EXPECT_EQ(window.a.photoAtIndex(0).image.size(), QSize(kColumns, kRows));
    EXPECT_FALSE(window.a.photoAtIndex(0).isNull());
    EXPECT_EQ(rendered(), 1);
    window.a.currZELSequence()->invertColorsForFrame(0);
    EXPECT_FALSE(window.a.fastPhotoAtIndex(0).isNull());
    EXPECT_EQ(rendered(), 1) << "a fast one is what there is";
    EXPECT_FALSE(window.a.photoAtIndex(0).isNull());
    EXPECT_EQ(rendered(), 2);
    EXPECT_FALSE(window.a.fastPhotoAtIndex(1).isNull());
    EXPECT_EQ(rendered(), 3) << "there was none";
    EXPECT_TRUE(window.a.photoAtIndex(2).isNull());
    EXPECT_TRUE(window.b.photoAtIndex(0).isNull()) << "no sequence";
}

// ---- pixels ----

TEST(GridModel, a_pixel_has_the_value_that_its_file_means)
{
    const Quiet quiet;
    struct Row {
        const char* fault;
        const char* aspect;
        QPointF point;
        bool found;
        double value;  // (column + 100 rows) * 2 - 1024
    };
    const Row rows[] = {
        {"the first", nullptr, {0, 0}, true, -1024},
        {"within a pixel", nullptr, {5.9, 7.9}, true, (5 + 700) * 2 - 1024},
        {"the last", nullptr, {63.99, 47.99}, true, (63 + 4700) * 2 - 1024},
        {"right of it", nullptr, {64, 0}, false, 0},
        {"above it", nullptr, {3, -0.01}, false, 0},
        {"high pixels", "2\\1", {5, 95}, true, (5 + 4700) * 2 - 1024},
        {"below high pixels", "2\\1", {5, 96}, false, 0},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.fault);
        MadeTree made({SeriesForm{.frames = 2, .spacing = nullptr, .aspect = row.aspect}});
        Window window(&made);
        // None of what the user did counts.
        window.a.currZELSequence()->invertColorsForFrame(-1);
        window.a.currZELSequence()->changeVOIForAllFrames(true, 50, 900);
        window.a.currZELSequence()->changeRotationForFrame(-1, 90);
        CKPixelInfo info;
        EXPECT_EQ(window.a.pixelColorInfoForPoint(row.point, 2, &info), row.found);
        if (row.found) {
            EXPECT_EQ(info.value, row.value);
            EXPECT_EQ(info.hUnit, row.value);
        }
        EXPECT_FALSE(window.a.pixelColorInfoForPoint(row.point, 3, &info)) << "no such frame";
    }
}

TEST(GridModel, a_pixel_has_the_colour_on_the_screen_beside_its_value)
{
    MadeTree made({SeriesForm{.frames = 1}});
    Window window(&made);
    CKPixelInfo info;
    ASSERT_TRUE(window.a.pixelColorInfoForPoint({0, 0}, 0, &info));
    EXPECT_EQ(info.pixColor.red, 0) << "below the window";
    window.a.currZELSequence()->invertColorsForFrame(0);
    ASSERT_TRUE(window.a.pixelColorInfoForPoint({0, 0}, 0, &info));
    EXPECT_EQ(info.pixColor.red, 65535);
    EXPECT_EQ(info.value, -1024);
}

TEST(GridModel, visits_whole_pixels_row_by_row)
{
    const Quiet quiet;
    struct Row {
        const char* fault;
        QRectF rect;
        int end;  // visits after which the visitor stops, 0 never
        std::vector<std::pair<int, int>> columnsAndRows;
        QvxStatus status;
    };
    const Row rows[] = {
        {"far edges don't count", {2, 3, 2, 2}, 0, {{2, 3}, {3, 3}, {2, 4}, {3, 4}}, kQvxOK},
        {"fractions are cut", {2.9, 3.9, 1.2, 1.2}, 0, {{2, 3}, {3, 3}, {2, 4}, {3, 4}}, kQvxOK},
        {"cut to the frame", {62, 47, 9, 9}, 0, {{62, 47}, {63, 47}}, kQvxOK},
        {"also on the left", {-3, -3, 4, 4}, 0, {{0, 0}}, kQvxOK},
        {"beside the frame", {70, 3, 9, 9}, 0, {}, kQvxOK},
        {"stopped", {2, 3, 2, 2}, 3, {{2, 3}, {3, 3}, {2, 4}}, kQvxUserCanceled},
    };
    MadeTree made({SeriesForm{.frames = 1}});
    Window window(&made);
    for (const Row& row : rows) {
        SCOPED_TRACE(row.fault);
        std::vector<std::pair<int, int>> seen;
        CKMetricsParams params;
        const CKPixelVisitor visitor = [&](const LongPoint& point, const CKPixelInfo& info,
                                           CKMetricsParams*) {
            seen.emplace_back(point.h, point.v);
            EXPECT_EQ(info.value, (point.h + 100 * point.v) * 2 - 1024);
            return row.end == 0 || static_cast<int>(seen.size()) < row.end;
        };
        EXPECT_EQ(window.a.iteratePixelInRect(row.rect, 1, visitor, &params), row.status);
        EXPECT_EQ(seen, row.columnsAndRows);
    }
    EXPECT_EQ(window.a.iteratePixelInRect({0, 0, 9, 9}, 2, {}, nullptr), kQvxLockFailed);
}

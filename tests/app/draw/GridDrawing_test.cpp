// What is painted where, and in which order.
#include "app/draw/CellLayers.h"
#include "app/draw/DrawnGrid.h"
#include "dicom_core/store/TempFolder.h"
#include "prefs/Prefs.h"
#include "util/Log.h"

#include <QTransform>
#include <cmath>
#include <random>

namespace {

constexpr InSpace kNowhere{nullptr, nullptr, nullptr};

// A box with a stroke in one colour, without label and shadow.
class Box final : public CKAdornedGraphic {
public:
    explicit Box(const QRectF& place)
    {
        setShapeStart(place.topLeft());
        setShapeEnd(place.bottomRight());
        setStrokeColor(Qt::green);
        _shadowON = _descriptionON = false;
    }
    std::uint32_t shapeType() const override { return 0; }
    QString shapeInitial() const override { return {}; }
    QString shapeName() const override { return {}; }
    QString displayImage() const override { return {}; }
    QString measuredValueText() const override { return {}; }
    QPainterPath bezierPathForDrawing() const override
    {
        QPainterPath path;
        path.addRect(geometricBounds());
        return path;
    }
    CKShapePtr newOfSameClass() const override { return std::make_shared<Box>(QRectF()); }
};

// One lit pixel on black.
DicomBuilder LitPixel(int rows, int columns, int row, int column, const char* spacing)
{
    std::vector<int> pixels(static_cast<std::size_t>(rows * columns));
    pixels[static_cast<std::size_t>(row * columns + column)] = 2040;
    return PhantomFile("CT", {nullptr, nullptr, spacing}, rows, columns).NativePixels(pixels);
}

bool IsGreen(QRgb pixel) { return qGreen(pixel) > 150 && qRed(pixel) < 90 && qBlue(pixel) < 90; }

// Where the picture is brightest, the middle of all such pixels; none for a dark one.
std::optional<QPointF> BrightestIn(const QImage& picture)
{
    QPointF sum;
    int count = 0, most = 60;
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x) {
            const int light = qRed(picture.pixel(x, y));
            if (light > most) {
                most = light;
                count = 0;
                sum = {};
            }
            if (light == most) {
                sum += QPointF(x + 0.5, y + 0.5);
                ++count;
            }
        }
    return count > 0 ? std::optional(sum / count / picture.devicePixelRatio()) : std::nullopt;
}

TEST(DrawGrid, paints_each_pixel_where_a_click_names_it_and_a_shape_finds_it)
{
    std::mt19937 random(7);
    const auto pick = [&random](int from, int to) {
        return std::uniform_int_distribution<int>(from, to)(random);
    };
    constexpr const char* kSpacings[] = {"1\\1", "2\\1", "1\\1.5"};
    for (int i = 0; i < 300; ++i) {
        const int row = pick(0, 8), column = pick(0, 11);
        MadeSequence made;
        AddPhantom(&made, "CT", LitPixel(9, 12, row, column, kSpacings[i % 3]));
        TestWindow window;
        Grid& grid = window.AddGrid(&made.sequence);
        zel_TransformRec& record = made.sequence.GetImageFrameInfo(1)->fTransform;
        record.rotation = static_cast<std::int16_t>(90 * pick(0, 3));
        record.horzFlip = pick(0, 1) == 1;
        record.vertFlip = !record.horzFlip && pick(0, 1) == 1;
        record.autoFit = pick(0, 3) == 0;
        record.zoom = kZoomOne * pick(6, 20);
        record.scroll = {static_cast<float>(pick(-6, 6)), static_cast<float>(pick(-6, 6))};
        const double ratio = pick(2, 4) / 2.0;
        GridLook look;
        look.useBorderSelection = false;
        const QSize size(pick(60, 180), pick(60, 180));
        const QImage picture = Painted(grid, size, ratio, look);
        Point stored, shown;
        ASSERT_EQ(made.sequence.GetImageFrameInfo(1)->GetFrameSize(&stored), kQvxOK);
        ASSERT_EQ(made.sequence.GetImageFrameInfo(1)->GetFrameSizeWithAspectRatio(&shown), kQvxOK);
        const double x = double(shown.h) / stored.h, y = double(shown.v) / stored.v;
        const QRectF pixel(column * x, row * y, x, y);
        const QPointF place = grid.framePointToViewPoint(pixel.center(), 1);
        const QRectF seen = grid.U_PsaxnoRectForFrame(1);
        const double reach = 0.5 * grid.U_ImageZoomForFrame(1) * std::max(x, y);
        if (!seen.adjusted(reach, reach, -reach, -reach).contains(place))
            continue;
        const auto found = BrightestIn(picture);
        ASSERT_TRUE(found) << i;
        EXPECT_TRUE(pixel.contains(grid.viewPointToFramePoint(*found, 1))) << i;

        const auto box = std::make_shared<Box>(pixel);
        grid.currZELSequence()->addNewMeasurement(box, false);
        const QImage boxed = Painted(grid, size, ratio, look);
        QRect green;
        for (int v = 0; v < boxed.height(); ++v)
            for (int h = 0; h < boxed.width(); ++h)
                if (IsGreen(boxed.pixel(h, v)))
                    green |= QRect(h, v, 1, 1);
        EXPECT_TRUE(QRectF(green).contains(*found * ratio)) << i << " the shape is around it";
        if (!seen.contains(QRectF(place, place).adjusted(-reach, -reach, reach, reach)))
            continue;  // cut at the edge
        EXPECT_NEAR(QRectF(green).center().x() / ratio, place.x(), 1) << i;
        EXPECT_NEAR(QRectF(green).center().y() / ratio, place.y(), 1) << i;
    }
}

TEST(DrawGrid, equals_the_whole_picture_where_only_a_part_shows)
{
    MadeSequence made;
    AddPhantom(&made, "CT", PhantomFile("CT", kNowhere, 96, 128).NativePixels(BodyPixels(96, 128)));
    TestWindow window;
    Grid& grid = window.AddGrid(&made.sequence);
    GridLook look;
    look.useBorderSelection = false;
    zel_TransformRec& record = made.sequence.GetImageFrameInfo(1)->fTransform;
    record.autoFit = false;
    record.zoom = kZoomOne * 3;
    const QImage whole = Painted(grid, {394, 298}, 1, look);  // 384 by 288 and the border
    const QImage part = Painted(grid, {194, 154}, 1, look);
    EXPECT_EQ(part, whole.copy(100, 72, 194, 154));
    record.scroll = {10, -8};
    const QImage moved = Painted(grid, {194, 154}, 1, look);
    EXPECT_EQ(moved, whole.copy(100 - 30, 72 + 24, 194, 154));
}

TEST(DrawGrid, frames_the_current_cell_of_the_active_grid_only)
{
    MadeSequence made;
    for (int i = 0; i < 4; ++i)
        AddPhantom(&made, "CT", PhantomFile("CT", kNowhere, 8, 8).NativePixels(BodyPixels(8, 8)));
    struct Row {
        const char* fault;
        int grids, drawn, rows;
        bool toScreen, shown;
    };
    const Row rows[] = {
        {"one frame of one grid", 1, 0, 1, true, false},
        {"a matrix", 1, 0, 2, true, true},
        {"one frame of two grids", 2, 0, 1, true, true},
        {"another grid", 2, 1, 2, true, false},
        {"on paper", 1, 0, 2, false, false},
    };
    for (const Row& row : rows) {
        TestWindow window;
        made.sequence.SetCurrentFrameIndex(row.rows == 1 ? 1 : 4);
        for (int i = 0; i < row.grids; ++i)
            window.AddGrid(&made.sequence).setGridRowsTo(row.rows, row.rows, true);
        GridLook look;
        look.toScreen = row.toScreen;
        look.selectionBorderColor = Qt::green;
        Grid& grid = *window.host.grids[static_cast<std::size_t>(row.drawn)];
        const QImage picture = Painted(grid, {100, 100}, 1, look);
        const int from = row.rows == 1 ? 0 : 50;
        EXPECT_EQ(IsGreen(picture.pixel(from + 1, from + 20)), row.shown) << row.fault;
        EXPECT_EQ(IsGreen(picture.pixel(98, 98)), row.shown) << row.fault;
        EXPECT_EQ(picture.pixelColor(from + 5, from + 5),
                  row.toScreen ? QColor(Qt::black) : QColor(Qt::white))
            << row.fault;
    }
}

TEST(DrawGrid, renders_only_the_cells_that_changed)
{
    MadeSequence made;
    for (int i = 0; i < 20; ++i)
        AddPhantom(&made, "CT", PhantomFile("CT", kNowhere, 8, 8).NativePixels(BodyPixels(8, 8)));
    TestWindow window;
    Grid& grid = window.AddGrid(&made.sequence);
    grid.setGridRowsTo(4, 4, true);
    const auto paint = [&] {
        const std::int64_t before = grid.pictures().rendered();
        static_cast<void>(Painted(grid, {200, 200}, 1));
        return grid.pictures().rendered() - before;
    };
    EXPECT_EQ(paint(), 16);
    EXPECT_EQ(paint(), 0);
    grid.currZELSequence()->changeRotationForFrame(6, 90);
    EXPECT_EQ(paint(), 1);
    grid.currZELSequence()->changeVOIForAllFrames(true, 300, 1000);
    EXPECT_EQ(paint(), 16);
    grid.U_ScrollGridToPhotoWithIndex(19);
    EXPECT_EQ(paint(), 4) << "one more row";
    const auto box = std::make_shared<Box>(QRectF(1, 1, 3, 3));
    grid.currZELSequence()->addNewMeasurement(box, true);
    EXPECT_EQ(paint(), 0) << "vectors are drawn over the same picture";
}

TEST(DrawGrid, tries_a_frame_that_fails_once)
{
    static int said = 0;  // lines of the log
    said = 0;
    SetLogSink([](std::string_view) { ++said; });
    MadeSequence made;
    for (int i = 0; i < 4; ++i) {
        DicomBuilder file;
        file.Meta("1.2.840.10008.1.2.4.70").CommonHeader();
        AddPhantom(&made, "CT",
                   file.Image({.rows = 8, .columns = 8}).Encapsulated({{"no such stream"}}));
    }
    TestWindow window;
    Grid& grid = window.AddGrid(&made.sequence);
    grid.setGridRowsTo(2, 2, true);
    static_cast<void>(Painted(grid, {200, 200}, 1));
    EXPECT_GE(std::exchange(said, 0), 4);
    static_cast<void>(Painted(grid, {200, 200}, 1));
    EXPECT_EQ(said, 0);
    EXPECT_EQ(grid.pictures().rendered(), 4);
    grid.removeFrameBuffersForAllFrames();
    static_cast<void>(Painted(grid, {200, 200}, 1));
    EXPECT_EQ(grid.pictures().rendered(), 8);
    SetLogSink(nullptr);
}

TEST(DrawGrid, keeps_its_pictures_within_their_limit)
{
    CellPictures pictures(100'000);
    MadeSequence made;
    DicomBuilder file = PhantomFile("CT", kNowhere, 16, 16);
    made.Add(
        file.Element(0x0028, 0x0008, "IS", "1000").NativePixels(std::vector<int>(256 * 1000, 500)));
    pictures.setSequence(&made.sequence);
    for (int frame = 1; frame <= 1000; ++frame) {
        const CellGeometry geometry(made.sequence.GetImageFrameInfo(frame)->fTransform, {16, 16},
                                    {0, 0, 46, 46}, 2);
        ASSERT_FALSE(pictures.photo(frame, geometry, 2).isNull()) << frame;
        ASSERT_LE(pictures.bytes(), 100'000u) << frame;
    }
    EXPECT_EQ(pictures.rendered(), 1000);
}

TEST(DrawGrid, shows_a_released_window_as_it_is_rendered_afresh)
{
    for (const char* bits : {"16", "8"}) {
        MadeSequence made;
        DicomBuilder file = GrayFile(64, 64, std::atoi(bits));
        std::vector<int> pixels = BodyPixels(64, 64);
        if (*bits == '8') {
            std::string bytes;
            for (const int value : pixels)
                bytes += static_cast<char>(value / 8);
            file.NativePixels(bytes, "OB");
        } else {
            file.NativePixels(pixels);
        }
        AddPhantom(&made, "CT", file);
        TestWindow dragged, fresh;
        Grid& grid = dragged.AddGrid(&made.sequence);
        QImage last;
        for (int step = 0; step <= 20; ++step) {
            grid.currZELSequence()->changeVOIForAllFrames(false, static_cast<float>(60 + 7 * step),
                                                          static_cast<float>(100 + 3 * step));
            last = Painted(grid, {200, 170}, 1);
        }
        Grid& other = fresh.AddGrid(&made.sequence);
        EXPECT_EQ(last, Painted(other, {200, 170}, 1)) << bits;
        grid.currZELSequence()->changeVOIForAllFrames(false, 33, 44);
        EXPECT_NE(last, Painted(grid, {200, 170}, 1)) << bits;
    }
}

TEST(CellLayers, draw_regions_on_their_pixels_whatever_the_aspect)
{
    for (const char* aspect : {"1\\1", "2\\1", "1\\2"}) {
        MadeSequence made;
        const auto region = [](std::uint32_t x0, std::uint32_t y0, std::uint32_t x1,
                               std::uint32_t y1) {
            return Item()
                .Element(0x0018, 0x6012, "US", 1)
                .Element(0x0018, 0x6014, "US", 1)
                .Element(0x0018, 0x6018, "UL", x0)
                .Element(0x0018, 0x601A, "UL", y0)
                .Element(0x0018, 0x601C, "UL", x1)
                .Element(0x0018, 0x601E, "UL", y1)
                .Element(0x0018, 0x6020, "SL", 10)
                .Element(0x0018, 0x6022, "SL", 5);
        };
        DicomBuilder file;
        file.Meta(kUidExplicitLittle)
            .CommonHeader("US")
            .Sequence(0x0018, 0x6011, {region(10, 4, 29, 13)})
            .Image({.rows = 20, .columns = 40, .bits = 8})
            .Element(0x0028, 0x0034, "IS", aspect)
            .NativePixels(std::string(800, '\0'), "OB");
        AddPhantom(&made, "US", file);
        prefs_Set_USRegionsColor({0, 1, 0, 1});
        prefs_Set_ShowsUSRegions(true);
        TestWindow window;
        Grid& grid = window.AddGrid(&made.sequence);
        made.sequence.GetImageFrameInfo(1)->fTransform.autoFit = false;
        made.sequence.GetImageFrameInfo(1)->fTransform.zoom = 4 * kZoomOne;
        GridLook look;
        look.useBorderSelection = false;
        const QImage picture = Painted(grid, {360, 360}, 1, look);
        QRect green;
        for (int v = 0; v < picture.height(); ++v)
            for (int h = 0; h < picture.width(); ++h)
                if (IsGreen(picture.pixel(h, v)))
                    green |= QRect(h, v, 1, 1);
        // Both edges included: 20 by 10 pixels from (10, 4). The reference pixel lies inside.
        const double x = *aspect == '1' && aspect[2] == '2' ? 2 : 1, y = *aspect == '2' ? 2 : 1;
        const QPointF from = grid.framePointToViewPoint({10 * x, 4 * y}, 1);
        const QPointF to = grid.framePointToViewPoint({30 * x, 14 * y}, 1);
        EXPECT_NEAR(green.left(), from.x(), 1.1) << aspect;
        EXPECT_NEAR(green.right() + 1, to.x(), 1.1) << aspect;
        EXPECT_NEAR(green.bottom() + 1, to.y(), 1.1) << aspect;
    }
}

TEST(CellLayers, draw_reference_lines_over_the_pixels_that_a_slice_cuts)
{
    // Axial slices 10 mm apart, and a coronal scout of pixels of 2 mm around them.
    MadeSequence axial, scout;
    for (int slice = 0; slice < 5; ++slice) {
        const std::string position = "-64\\-64\\" + std::to_string(slice * 10);
        AddPhantom(&axial, "CT",
                   PhantomFile("CT", {position.c_str(), "1\\0\\0\\0\\1\\0", "1\\1"}, 128, 128)
                       .NativePixels(std::vector<int>(128 * 128)));
    }
    AddPhantom(&scout, "CT",
               PhantomFile("CT", {"-99\\0\\80", "1\\0\\0\\0\\0\\-1", "2\\2"}, 60, 100)
                   .NativePixels(std::vector<int>(60 * 100)));
    prefs_Set_LocalizerLinesColorX({0, 1, 0, 1});
    prefs_Set_ShowFirstLastLocalizerLines(false);
    for (const int turn : {0, 90, 180, 270}) {
        for (const bool flip : {false, true}) {
            TestWindow window;
            window.host.localizers = true;
            Grid& active = window.AddGrid(&axial.sequence);
            Grid& grid = window.AddGrid(&scout.sequence);
            active.currZELSequence()->setCurrentFrame(3);  // at 20 mm
            zel_TransformRec& record = scout.sequence.GetImageFrameInfo(1)->fTransform;
            record.rotation = static_cast<std::int16_t>(turn);
            record.horzFlip = flip;
            record.autoFit = false;
            record.zoom = 3 * kZoomOne;
            const QImage picture = Painted(grid, {340, 340}, 1);
            const auto greenAt = [&](double x, double y) {
                const QPointF place = grid.framePointToViewPoint({x, y}, 1);
                return qGreen(picture.pixel(place.toPoint())) > 100 ||
                       qGreen(picture.pixel(place.toPoint() - QPoint(1, 1))) > 100;
            };
            // 20 mm is row (80 - 20) / 2; -64 to 63 mm are columns 17.5 to 81.
            EXPECT_TRUE(greenAt(50.5, 30.5)) << turn << flip;
            EXPECT_TRUE(greenAt(19.5, 30.5)) << turn << flip;
            EXPECT_TRUE(greenAt(79.5, 30.5)) << turn << flip;
            EXPECT_FALSE(greenAt(50.5, 33.5)) << turn << flip;
            EXPECT_FALSE(greenAt(13.5, 30.5)) << turn << flip;
            EXPECT_FALSE(greenAt(87.5, 30.5)) << turn << flip;
            active.currZELSequence()->setCurrentFrame(1);
            const QImage after = Painted(grid, {340, 340}, 1);
            EXPECT_NE(after, picture) << "the line moves";
            EXPECT_TRUE(active.localizersForFrame(1).empty()) << "none on the active grid";
        }
    }
}

TEST(CellLayers, veil_what_a_crop_cuts_off)
{
    MadeSequence made;
    AddPhantom(&made, "CT",
               PhantomFile("CT", kNowhere, 40, 40).NativePixels(std::vector<int>(1600)));
    TestWindow window;
    Grid& grid = window.AddGrid(&made.sequence);
    grid.currZELSequence()->setSequenceCrop(std::make_shared<Box>(QRectF(10, 10, 20, 20)));
    GridLook look;
    look.useBorderSelection = false;
    const QImage picture = Painted(grid, {46, 46}, 1, look);
    EXPECT_NEAR(qRed(picture.pixel(6, 20)), 77, 2) << "outside";
    EXPECT_EQ(picture.pixelColor(23, 23), QColor(Qt::black)) << "inside";
    EXPECT_EQ(picture.pixelColor(1, 20), QColor(Qt::black)) << "beside the image";
    EXPECT_GT(qRed(picture.pixel(13, 20)), 120) << "the line";
}

}  // namespace

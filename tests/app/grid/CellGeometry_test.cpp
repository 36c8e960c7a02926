// One geometry for what is drawn and what is hit, against pictures that are really turned.
#include "app/grid/CellGeometry.h"

#include "dicom_core/look/ImageTransformer.h"
#include "pixels/OffscreenFactory.h"
#include "pixels/PixelFormat.h"

#include <cmath>
#include <cstring>
#include <gtest/gtest.h>
#include <random>

namespace {

struct Cell {
    zel_TransformRec record;
    int width = 1, height = 1;     // pixels of the frame
    double wider = 1, higher = 1;  // what its pixel aspect makes of them
    QRectF rect;
    double ratio = 1;
    [[nodiscard]] CellGeometry Geometry() const
    {
        return {record, QSizeF(width * wider, height * higher), rect, ratio};
    }
};

Cell RandomCell(std::mt19937* random)
{
    const auto any = [random](int low, int high) {
        return std::uniform_int_distribution<int>(low, high)(*random);
    };
    Cell cell;
    cell.record.rotation = static_cast<std::int16_t>(90 * any(0, 3));
    cell.record.horzFlip = any(0, 1) != 0;
    cell.record.vertFlip = any(0, 1) != 0;
    cell.record.autoFit = any(0, 2) == 0;
    cell.record.zoom = any(kZoomOne / 20, 12 * kZoomOne);
    cell.record.scroll = {static_cast<float>(any(-300, 300)) / 8,
                          static_cast<float>(any(-300, 300)) / 8};
    cell.width = any(1, 40);
    cell.height = any(1, 40);
    (any(0, 1) ? cell.wider : cell.higher) = any(8, 32) / 8.0;
    cell.rect = QRectF(any(0, 50), any(0, 50), any(10, 300), any(10, 300));
    cell.ratio = any(2, 4) / 2.0;
    return cell;
}

// The frame as it is turned for the screen, each pixel the number that it has in the file.
std::unique_ptr<Port> TurnedPicture(const Cell& cell)
{
    std::unique_ptr<Port> picture, turned;
    if (NewPort(kPixelFormatARGB32, cell.width, cell.height, nullptr, &picture))
        return nullptr;
    for (std::int32_t i = 0; i < cell.width * cell.height; ++i)
        std::memcpy(picture->baseAddr + (i / cell.width) * picture->rowBytes + 4 * (i % cell.width),
                    &i, sizeof i);
    if (cell.record.rotation % 180 == 0)
        turned = nullptr;
    else if (NewPort(kPixelFormatARGB32, cell.height, cell.width, nullptr, &turned))
        return nullptr;
    Port* target = turned ? turned.get() : picture.get();
    if (ApplyGeometricTransformations(cell.record, picture.get(), target))
        return nullptr;
    return turned ? std::move(turned) : std::move(picture);
}

// The pixel that a scaled picture of these columns or rows shows at `place` of its side.
int ShownAt(double place, double low, double length, int count)
{
    return static_cast<int>(std::floor((place - low) / length * count));
}

int NumberAt(const Port& picture, int column, int row)
{
    std::int32_t number = 0;
    std::memcpy(&number, picture.baseAddr + row * picture.rowBytes + 4 * column, sizeof number);
    return number;
}

}  // namespace

TEST(CellGeometry, what_is_drawn_under_a_point_is_what_a_click_there_names)
{
    std::mt19937 random(1);
    int seen = 0;
    for (int i = 0; i < 10000; ++i) {
        const Cell cell = RandomCell(&random);
        const CellGeometry geometry = cell.Geometry();
        const auto picture = TurnedPicture(cell);
        ASSERT_TRUE(picture);
        const QRectF image = geometry.imageRect(), shown = geometry.shownRect();
        if (shown.isEmpty())
            continue;
        for (int point = 0; point < 8; ++point) {
            std::uniform_real_distribution<double> x(shown.left(), shown.right());
            std::uniform_real_distribution<double> y(shown.top(), shown.bottom());
            const QPointF at((std::floor(x(random) * cell.ratio) + 0.5) / cell.ratio,
                             (std::floor(y(random) * cell.ratio) + 0.5) / cell.ratio);
            const int drawn = NumberAt(
                *picture, ShownAt(at.x(), image.left(), image.width(), WidthOf(picture->bounds)),
                ShownAt(at.y(), image.top(), image.height(), HeightOf(picture->bounds)));
            const QPointF frame = geometry.viewPointToFramePoint(at);
            const double column = frame.x() / cell.wider, row = frame.y() / cell.higher;
            // On the very edge of two pixels either is right.
            const auto onEdge = [](double v) { return std::abs(v - std::round(v)) < 1e-9; };
            if (onEdge(column) || onEdge(row))
                continue;
            ++seen;
            ASSERT_EQ(static_cast<int>(std::floor(row)) * cell.width +
                          static_cast<int>(std::floor(column)),
                      drawn)
                << "case " << i;
            const QPointF back = geometry.framePointToViewPoint(frame);
            ASSERT_NEAR(back.x(), at.x(), 1e-6);
            ASSERT_NEAR(back.y(), at.y(), 1e-6);
        }
    }
    EXPECT_GT(seen, 60000);
}

TEST(CellGeometry, a_drag_moves_the_image_along_until_its_edge_is_reached)
{
    std::mt19937 random(2);
    for (int i = 0; i < 10000; ++i) {
        Cell cell = RandomCell(&random);
        cell.record.autoFit = false;
        cell.record.scroll = {};
        const CellGeometry before = cell.Geometry();
        const QPointF wanted(static_cast<int>(random() % 41) - 20,
                             static_cast<int>(random() % 41) - 20);
        const QPointF pan = before.viewDeltaToScrollDelta(wanted);
        cell.record.scroll = {static_cast<float>(pan.x()), static_cast<float>(pan.y())};
        const QPointF moved = cell.Geometry().viewScroll();
        const QSizeF beyond = (before.scaledSize() - cell.rect.size()) / 2;
        const auto held = [](double value, double limit) {
            return limit > 0 ? std::clamp(value, -limit, limit) : 0;
        };
        ASSERT_NEAR(moved.x(), held(wanted.x(), beyond.width()), 1e-3) << i;
        ASSERT_NEAR(moved.y(), held(wanted.y(), beyond.height()), 1e-3) << i;
    }
}

TEST(CellGeometry, fits_and_limits)
{
    const QRectF cell(0, 0, 262, 262);  // a content of 256
    zel_TransformRec record;
    const CellGeometry large(record, QSizeF(512, 512), cell, 1);
    EXPECT_EQ(large.zoom(), 0.5);
    EXPECT_EQ(large.scaledSize(), QSizeF(256, 256));
    EXPECT_EQ(large.scrollLimit(), QPointF(0, 0));
    const CellGeometry small(record, QSizeF(100, 100), cell, 1);
    EXPECT_EQ(small.zoom(), 1);
    EXPECT_EQ(small.imageRect().left() - small.contentRect().left(), 78);
    record.autoFit = false;
    record.zoom = 2 * kZoomOne;
    record.rotation = 90;
    record.scroll = {1000, 0};
    const CellGeometry turned(record, QSizeF(400, 200), cell, 1);
    EXPECT_EQ(turned.imageSize(), QSizeF(200, 400));
    EXPECT_TRUE(turned.isBiggerThanCell());
    EXPECT_EQ(turned.viewScrollMax(), QPointF(72, 272));
    EXPECT_EQ(turned.transformedScrollMax(), QPointF(544, 144));
    EXPECT_EQ(turned.scrollLimit(), QPointF(136, 36));
    EXPECT_EQ(turned.viewScroll(), QPointF(0, -269)) << "the image's edge at the cell's";
    EXPECT_EQ(turned.viewRectToFrameRect(QRectF(10, 20, 30, 40)).size(), QSizeF(20, 15));
}

TEST(CellGeometry, turns_moves_of_the_pointer)
{
    struct Row {
        int rotation;
        bool horz, vert;
        QPointF point, scroll;  // of a move by (3, 5) at a zoom of 2
    };
    const Row rows[] = {
        {0, false, false, {3, 5}, {1.5, 2.5}},       {90, false, false, {5, -3}, {-2.5, 1.5}},
        {180, false, false, {-3, -5}, {-1.5, -2.5}}, {270, false, false, {-5, 3}, {2.5, -1.5}},
        {0, true, false, {-3, 5}, {-1.5, 2.5}},      {90, false, true, {-5, -3}, {2.5, 1.5}}};
    for (const Row& row : rows) {
        SCOPED_TRACE(row.rotation);
        zel_TransformRec record;
        record.rotation = static_cast<std::int16_t>(row.rotation);
        record.horzFlip = row.horz;
        record.vertFlip = row.vert;
        record.autoFit = false;
        record.zoom = 2 * kZoomOne;
        const CellGeometry geometry(record, QSizeF(10, 10), QRectF(0, 0, 50, 50), 1);
        EXPECT_EQ(geometry.viewDeltaToFrameDelta({3, 5}), row.point);
        EXPECT_EQ(geometry.viewDeltaToScrollDelta({3, 5}), row.scroll);
        EXPECT_EQ(geometry.frameDeltaToViewDelta(row.point), QPointF(3, 5));
    }
}

TEST(ZoomSteps, climb_and_descend)
{
    const double ladder[] = {5, 10, 12.5, 25, 50, 75, 100, 125, 150, 200, 400, 800};
    for (std::size_t i = 0; i + 1 < std::size(ladder); ++i) {
        EXPECT_EQ(U_NextZoomValue(ladder[i] / 100), ladder[i + 1]);
        EXPECT_EQ(U_PrevZoomValue(ladder[i + 1] / 100), ladder[i]);
    }
    EXPECT_EQ(U_NextZoomValue(0.01), 5);
    EXPECT_EQ(U_NextZoomValue(8.0), 800);
    EXPECT_EQ(U_NextZoomValue(16.0), 1600);
    EXPECT_EQ(U_PrevZoomValue(0.05), 5);
    EXPECT_EQ(U_PrevZoomValue(9.0), 800);
}

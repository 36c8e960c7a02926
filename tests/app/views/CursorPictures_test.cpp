// That each drawing of a pointer is there, sharp at every scale, seen on black and on white, and
// points where its hot spot says.
#include "app/views/CursorPictures.h"

#include "app/tools/ZELToolsController.h"

#include <QDir>
#include <QImage>
#include <cmath>
#include <gtest/gtest.h>

namespace {

std::vector<GridCursor> AllDrawn()
{
    std::vector<GridCursor> cursors;
    for (const std::int32_t tool :
         {kToolWindow, kToolPan, kToolZoom, kToolPolygon, kToolArrow, kToolEyedropper, kToolAngle})
        cursors.push_back(currentToolCursor(tool, nullptr));
    const std::pair<const char*, QPoint> others[] = {
        {"angle_add_cur", {2, 2}},  {"angle_sel_cur", {2, 2}},  {"polygon_close", {9, 9}},
        {"resizeTLBR_cur", {8, 8}}, {"resizeTRBL_cur", {8, 8}}, {"resizevert_cur", {9, 9}},
        {"resizehorz_cur", {5, 9}},
    };
    for (const auto& [picture, hotSpot] : others)
        cursors.push_back(GridCursorOf({QString::fromLatin1(picture), hotSpot}));
    return cursors;
}

// What of the drawing lies within a point of a pixel.
bool IsDrawnAt(const QImage& picture, const QPoint& pixel, double pixelRatio)
{
    const int reach = static_cast<int>(std::ceil(pixelRatio));
    for (int y = pixel.y() - reach; y <= pixel.y() + reach; ++y) {
        for (int x = pixel.x() - reach; x <= pixel.x() + reach; ++x) {
            if (picture.valid(x, y) && qAlpha(picture.pixel(x, y)) > 200)
                return true;
        }
    }
    return false;
}

TEST(CursorPictures, are_all_named)
{
    const std::vector<GridCursor> all = AllDrawn();
    const QStringList files = QDir(QStringLiteral(":/cursors")).entryList();
    EXPECT_EQ(static_cast<std::size_t>(files.size()), all.size());
    for (const GridCursor& cursor : all)
        EXPECT_TRUE(files.contains(cursor.picture + QLatin1String(".svg")))
            << cursor.picture.toStdString();
}

TEST(CursorPictures, point_where_they_should_at_every_scale)
{
    for (const double ratio : {1.0, 1.25, 1.5, 2.0, 3.0}) {
        CursorPictures points(CursorPictures::HotSpots::Points);
        CursorPictures pixels(CursorPictures::HotSpots::Pixels);
        for (const GridCursor& cursor : AllDrawn()) {
            SCOPED_TRACE(cursor.picture.toStdString() + " at " + std::to_string(ratio));
            const QCursor shown = points.cursorFor(cursor, ratio);
            const int side = static_cast<int>(std::ceil(cursor.size * ratio));
            ASSERT_EQ(shown.pixmap().size(), QSize(side, side));
            EXPECT_EQ(shown.pixmap().devicePixelRatio(), ratio);
            EXPECT_EQ(shown.hotSpot(), cursor.hotSpot);

            const QCursor exact = pixels.cursorFor(cursor, ratio);
            const QImage image = exact.pixmap().toImage();
            EXPECT_EQ(exact.pixmap().devicePixelRatio(), 1);
            EXPECT_NEAR(exact.hotSpot().x(), (cursor.hotSpot.x() + 0.5) * ratio, 1);
            EXPECT_NEAR(exact.hotSpot().y(), (cursor.hotSpot.y() + 0.5) * ratio, 1);
            EXPECT_TRUE(IsDrawnAt(image, exact.hotSpot(), ratio));
        }
    }
}

TEST(CursorPictures, are_seen_on_every_ground_and_not_cut_off)
{
    for (const GridCursor& cursor : AllDrawn()) {
        SCOPED_TRACE(cursor.picture.toStdString());
        const QImage image = CursorPicture(cursor.picture, cursor.size, 2).toImage();
        int dark = 0, light = 0, edge = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                const QRgb pixel = image.pixel(x, y);
                const bool opaque = qAlpha(pixel) > 200;
                dark += opaque && qGray(pixel) < 60 ? 1 : 0;
                light += opaque && qGray(pixel) > 200 ? 1 : 0;
                const bool last = x == image.width() - 1 || y == image.height() - 1;
                edge += opaque && (x == 0 || y == 0 || last) && qGray(pixel) < 60 ? 1 : 0;
            }
        }
        EXPECT_GT(dark, 40);
        EXPECT_GT(light, 40);
        EXPECT_EQ(edge, 0) << "a line without its outline";
    }
}

TEST(CursorPictures, keep_a_drawing_and_fall_back)
{
    CursorPictures pictures(CursorPictures::HotSpots::Points);
    GridCursor cursor = currentToolCursor(kToolPan, nullptr);
    const QCursor first = pictures.cursorFor(cursor, 2);
    EXPECT_EQ(pictures.cursorFor(cursor, 2).pixmap().cacheKey(), first.pixmap().cacheKey());
    EXPECT_EQ(pictures.cursorFor(cursor, 1).pixmap().width(), 24);
    cursor.hotSpot = {3, 4};
    EXPECT_EQ(pictures.cursorFor(cursor, 2).hotSpot(), QPoint(3, 4));

    const std::pair<CursorKind, Qt::CursorShape> standard[] = {
        {CursorKind::Arrow, Qt::ArrowCursor},
        {CursorKind::Crosshair, Qt::CrossCursor},
        {CursorKind::PointingHand, Qt::PointingHandCursor},
        {CursorKind::NotAllowed, Qt::ForbiddenCursor},
    };
    for (const auto& [kind, shape] : standard)
        EXPECT_EQ(pictures.cursorFor({kind, {}, 0, {}}, 1).shape(), shape);
    const GridCursor unknown{CursorKind::Drawn, QStringLiteral("none"), 24, {}};
    EXPECT_EQ(pictures.cursorFor(unknown, 1).shape(), Qt::ArrowCursor);
}

}  // namespace

// What the widget asks for and paints, and what wheel and keys do.
#include "app/views/MUPhotoView.h"

#include <QApplication>
#include <QPainter>
#include <QScrollBar>
#include <QWheelEvent>
#include <gtest/gtest.h>
#include <set>
#include <vector>

namespace {

// Photos of one colour each by default; remembers what it was asked.
class Album : public MUPhotoViewDelegate {
public:
    int photoCountForPhotoView() const override { return count; }
    MUPhoto photoAtIndex(int index, const QSizeF& content, double ratio) override
    {
        asked.push_back(index);
        contentSize = content;
        pixelRatio = ratio;
        if (missing.contains(index))
            return {};
        return image.isNull() ? MUPhoto{Plain(QSize(40, 20), Qt::green), QSizeF(40, 20)}
                              : MUPhoto{image, size};
    }
    MUPhoto fastPhotoAtIndex(int, const QSizeF&) override { return {}; }
    void drawOverPhotoAtIndex(int index, QPainter* painter, const QRectF& cell,
                              const QRectF& place) override
    {
        drawnOver.push_back(index);
        lastPlace = place;
        painter->fillRect(cell.adjusted(-5, 0, 5, -cell.height() + 4), Qt::blue);
    }
    static QImage Plain(QSize size, QColor color)
    {
        QImage plain(size, QImage::Format_RGB32);
        plain.fill(color);
        return plain;
    }

    int count = 0;
    std::set<int> missing;
    QImage image;
    QSizeF size, contentSize;
    double pixelRatio = 0;
    std::vector<int> asked, drawnOver;
    QRectF lastPlace;
};

struct Shown {
    explicit Shown(int photos, int rows = 1, int columns = 1)
    {
        album.count = photos;
        view.setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        view.resize(300, 200);
        view.setVisibleCells(rows, columns);
        view.setDelegate(&album);
        view.show();
        QApplication::processEvents();
        album.asked.clear();
        album.drawnOver.clear();
    }
    QImage Paint(const QRect& dirty = QRect(0, 0, 300, 200), double ratio = 1)
    {
        QImage canvas((QSizeF(300, 200) * ratio).toSize(), QImage::Format_RGB32);
        canvas.setDevicePixelRatio(ratio);
        canvas.fill(Qt::magenta);
        QPainter painter(&canvas);
        view.drawRect(&painter, dirty, ratio);
        return canvas;
    }
    void Wheel(int angle, Qt::ScrollPhase phase = Qt::NoScrollPhase)
    {
        QWheelEvent event(QPointF(50, 50), QPointF(50, 50), QPoint(), QPoint(0, angle),
                          Qt::NoButton, Qt::NoModifier, phase, false);
        QApplication::sendEvent(view.viewport(), &event);
    }

    Album album;
    MUPhotoView view;
};

}  // namespace

TEST(MUPhotoView, asks_for_and_paints_visible_cells_only)
{
    Shown shown(100, 2, 3);
    shown.view.scrollToPhotoAtIndex(30);
    QImage canvas = shown.Paint();
    EXPECT_EQ(shown.album.asked, (std::vector<int>{30, 31, 32, 33, 34, 35}));
    EXPECT_EQ(shown.album.contentSize, QSizeF(94, 94));  // the cell less the border's width
    EXPECT_EQ(canvas.pixelColor(50, 50), Qt::green);
    EXPECT_EQ(canvas.pixelColor(50, 70), Qt::black);

    shown.album.asked.clear();
    canvas = shown.Paint(QRect(110, 120, 20, 10));
    EXPECT_EQ(shown.album.asked, (std::vector<int>{34}));
    EXPECT_EQ(canvas.pixelColor(105, 125), Qt::magenta);  // outside of the dirty rectangle
}

TEST(MUPhotoView, a_missing_photo_stops_no_other_cell)
{
    Shown shown(4, 2, 2);
    shown.album.missing = {0};
    const QImage canvas = shown.Paint();
    EXPECT_EQ(shown.album.drawnOver, (std::vector<int>{1, 2, 3}));
    EXPECT_EQ(canvas.pixelColor(225, 50), Qt::green);
}

TEST(MUPhotoView, a_photo_in_its_final_size_is_copied_pixel_by_pixel)
{
    for (const double ratio : {1.0, 1.25, 1.5, 2.0, 3.0}) {
        SCOPED_TRACE(ratio);
        Shown shown(4, 2, 2);
        const QSize pixels = (QSizeF(31, 21) * ratio).toSize();
        QImage stripes = Album::Plain(pixels, Qt::black);
        for (int y = 0; y < pixels.height(); ++y) {
            for (int x = 0; x < pixels.width(); ++x)
                stripes.setPixel(x, y, (x + y) % 2 ? 0xFFFFFFFF : 0xFF000000);
        }
        shown.album.image = stripes;
        shown.album.size = QSizeF(31, 21);
        const QImage canvas = shown.Paint(QRect(0, 0, 300, 200), ratio);
        const QPoint at = (shown.album.lastPlace.topLeft() * ratio).toPoint();
        QImage seen = canvas.copy(QRect(at, pixels));
        seen.setDevicePixelRatio(1);
        EXPECT_EQ(seen, stripes);
        EXPECT_EQ(shown.album.pixelRatio, ratio);
    }
}

TEST(MUPhotoView, a_photo_larger_than_its_cell_shows_its_middle)
{
    Shown shown(2, 1, 2);
    QImage image = Album::Plain(QSize(450, 100), Qt::red);
    QPainter(&image).fillRect(150, 0, 150, 100, Qt::green);  // the middle third
    shown.album.image = image;
    shown.album.size = image.size();
    const QImage canvas = shown.Paint();
    EXPECT_EQ(shown.album.lastPlace, QRectF(150, 50, 150, 100));
    for (const int x : {0, 149, 150, 299})
        EXPECT_EQ(canvas.pixelColor(x, 100), Qt::green) << x;
}

TEST(MUPhotoView, draws_borders_over_the_layers_and_layers_within_their_cell)
{
    Shown shown(4, 2, 2);
    MUPhotoViewLook look;
    look.useBorderSelection = look.useOutlineBorder = true;
    look.photoHorizontalSpacing = 10;
    shown.view.setLook(look);
    shown.view.setSelectedPhotoIndex(1);
    const QImage canvas = shown.Paint();
    EXPECT_EQ(canvas.pixelColor(157, 50), look.selectionBorderColor);
    EXPECT_EQ(canvas.pixelColor(158, 50), Qt::black);
    EXPECT_EQ(canvas.pixelColor(0, 50), look.borderOutlineColor);
    EXPECT_EQ(canvas.pixelColor(1, 50), Qt::black);
    EXPECT_EQ(canvas.pixelColor(100, 2), Qt::blue);
    EXPECT_EQ(canvas.pixelColor(150, 2), Qt::black);  // the gap
}

TEST(MUPhotoView, wheels_of_any_resolution_page_evenly)
{
    struct Row {
        const char* fault;
        std::vector<int> angles;
        int row;
    };
    const Row rows[] = {
        {"a notch is a row", {-120, -120}, 12},
        {"small movements add up", {-15, -15, -15, -15, -15, -15, -15, -15}, 11},
        {"the rest is kept", {-80, -80, -80}, 12},
        {"turning round starts afresh", {-110, 120}, 9},
        {"sideways movements change nothing", {-60, 0, -60}, 11},
        {"several at once", {360}, 7},
        {"not past the end", {120 * 50}, 0},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.fault);
        Shown shown(100);
        shown.view.scrollToPhotoAtIndex(10);
        for (const int angle : row.angles)
            shown.Wheel(angle);
        EXPECT_EQ(shown.view.firstVisibleIndex(), row.row);
    }
    Shown shown(100);
    shown.Wheel(-100);
    shown.Wheel(-100, Qt::ScrollBegin);  // a new gesture owes nothing to the last one
    EXPECT_EQ(shown.view.firstVisibleIndex(), 0);
}

TEST(MUPhotoView, new_photos_keep_the_place_and_resizing_the_first_cell)
{
    Shown shown(10, 1, 1);
    shown.view.scrollToPhotoAtIndex(6);
    shown.album.count = 50;
    shown.view.updatePhotoCount();
    EXPECT_EQ(shown.view.firstVisibleIndex(), 6);
    QApplication::processEvents();
    EXPECT_TRUE(shown.album.asked.size() == 1) << "photos behind the visible one repainted it";
    shown.view.resize(200, 333);
    EXPECT_EQ(shown.view.firstVisibleIndex(), 6);
    shown.view.setVisibleCells(2, 3);
    EXPECT_EQ(shown.view.firstVisibleIndex(), 6);
    shown.album.count = 3;  // fewer: what showed is gone
    shown.view.updatePhotoCount();
    EXPECT_EQ(shown.view.firstVisibleIndex(), 0);
}

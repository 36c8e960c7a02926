// Pictures of every layout, for people to look at: they are kept in the folder that
// ZELORA_SNAPSHOTS names. The run at twice the size is one of its own (QT_SCALE_FACTOR).
#include "app/views/LayoutFixture.h"

#include <QDir>
#include <QMenu>
#include <QPalette>
#include <QScrollBar>

namespace {

constexpr QSize kWindow(520, 400);

QPalette DarkPalette()
{
    QPalette dark(QColor(0x35, 0x35, 0x35));
    dark.setColor(QPalette::Base, QColor(0x20, 0x20, 0x20));
    return dark;
}

void Keep(const QImage& picture, const QString& name)
{
    const QString folder = qEnvironmentVariable("ZELORA_SNAPSHOTS");
    if (folder.isEmpty() || !QDir().mkpath(folder))
        return;
    const QString scale = QString::number(picture.devicePixelRatio()).replace('.', '_');
    EXPECT_TRUE(picture.save(QStringLiteral("%1/%2@%3.png").arg(folder, name, scale)));
}

// Device pixels of the dividers between grids, in which neither a picture nor its ground shows.
int DividerPixels(const QImage& picture, const QColor& ground)
{
    int count = 0;
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x)
            count += picture.pixelColor(x, y) == ground ? 1 : 0;
    return count;
}

TEST(LayoutPictures, of_every_layout_in_light_and_dark)
{
    const Quiet quiet;
    const QPalette before = QApplication::palette();
    for (const bool dark : {false, true}) {
        QApplication::setPalette(dark ? DarkPalette() : before);
        LayoutWindow window(651,
                            {{.frames = 12},
                             {.modality = "MR", .frames = 5},
                             {.modality = "DX", .frames = 1},
                             {.modality = "US", .frames = 3, .color = true}},
                            kWindow);
        const QColor ground = window.window.palette().window().color();
        for (const GridLayout& layout : kGridLayouts) {
            window.Open(layout.id);
            QCoreApplication::processEvents();
            window.host.layout->fitGridDims();
            QCoreApplication::processEvents();
            const QImage picture = window.window.grab().toImage();
            EXPECT_EQ(picture.size(), kWindow * picture.devicePixelRatio());
            for (const ZELDraggingSequenceGridView* view : window.host.layout->theSequenceViews())
                EXPECT_EQ(view->verticalScrollBar()->isVisible(),
                          view->sequenceGridController().viewport().matrix().lastFirstRow() > 0);
            EXPECT_EQ(DividerPixels(picture, ground) > picture.height(), layout.grids() > 1)
                << layout.name;
            Keep(picture, QStringLiteral("layout_%1_%2")
                              .arg(layout.id)
                              .arg(dark ? QStringLiteral("dark") : QStringLiteral("light")));
        }
    }
    QApplication::setPalette(before);
}

TEST(LayoutPictures, of_every_contextual_menu_in_light_and_dark)
{
    const Quiet quiet;
    const QPalette before = QApplication::palette();
    for (const bool dark : {false, true}) {
        QApplication::setPalette(dark ? DarkPalette() : before);
        LayoutWindow window(653, {{.frames = 12}, {.modality = "US", .frames = 3, .color = true}},
                            kWindow);
        window.At(1).setGridSetupID(0);
        window.At(1).currZELSequence()->setViewShowsMeasurements(true);
        window.At(1).currZELSequence()->addNewMeasurement(NewBox({10, 10, 20, 20}), true);
        const QPointF on = window.At(1).framePointToViewPoint({20, 20}, 1);
        struct Row {
            const char* name;
            int grid;
            QPointF at;
        };
        for (const Row& row :
             {Row{"measurement", 1, on}, Row{"gray", 1, {5, 5}}, Row{"color", 2, {60, 60}}}) {
            const std::unique_ptr<QMenu> menu = window.View(row.grid).menuForPoint(row.at);
            ASSERT_TRUE(menu) << row.name;
            QList<QMenu*> all = menu->findChildren<QMenu*>();
            all.push_front(menu.get());
            for (int i = 0; i < all.size(); ++i) {
                all[i]->ensurePolished();
                all[i]->resize(all[i]->sizeHint());
                const QImage picture = all[i]->grab().toImage();
                EXPECT_GT(picture.height(), 20);
                Keep(picture, QStringLiteral("menu_%1_%2_%3")
                                  .arg(QLatin1String(row.name))
                                  .arg(i)
                                  .arg(dark ? QStringLiteral("dark") : QStringLiteral("light")));
            }
        }
    }
    QApplication::setPalette(before);
}

}  // namespace

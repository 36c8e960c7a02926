// The menus of the right button in a window: real clicks, what shows, what a choice comes to.
#include "app/views/LayoutFixture.h"

#include <QContextMenuEvent>
#include <QMenu>

namespace {

QMenu* PopupMenu() { return qobject_cast<QMenu*>(QApplication::activePopupWidget()); }

QStringList TitlesOf(const QMenu& menu)
{
    QStringList titles;
    for (const QAction* action : menu.actions()) {
        if (!action->isSeparator())
            titles += action->text().section(QLatin1Char('\t'), 0, 0);
    }
    return titles;
}

// Chooses "A" or "A/B" of the menu, as a click does; false where that can't be chosen.
bool Choose(QMenu* menu, const QString& path)
{
    for (QAction* action : menu->actions()) {
        if (action->text().section(QLatin1Char('\t'), 0, 0) != path.section(QLatin1Char('/'), 0, 0))
            continue;
        if (action->menu())
            return Choose(action->menu(), path.section(QLatin1Char('/'), 1));
        const bool can = action->isEnabled();
        action->trigger();
        return can;
    }
    return false;
}

struct Menus : LayoutWindow {
    explicit Menus(int layout = 653) : LayoutWindow(layout) {}
    ~Menus() { Close(); }
    static void Close()
    {
        while (QWidget* popup = QApplication::activePopupWidget())
            popup->close();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    QMenu* RightClick(int number, QPointF at)
    {
        Close();
        Click(number, at, Qt::RightButton);
        return PopupMenu();
    }
    const Quiet quiet;
};

TEST(ContextualMenus, show_at_the_release_of_a_click_that_stays)
{
    Menus menus;
    menus.Send(menus.View(1).viewport(), QEvent::MouseButtonPress, {60, 60}, Qt::RightButton,
               Qt::RightButton);
    EXPECT_FALSE(PopupMenu());
    menus.Send(menus.View(1).viewport(), QEvent::MouseButtonRelease, {60, 60}, Qt::RightButton, {});
    ASSERT_TRUE(PopupMenu());
    EXPECT_EQ(TitlesOf(*PopupMenu()).mid(0, 4),
              (QStringList{QStringLiteral("Series Grid"), QStringLiteral("Image Grid"),
                           QStringLiteral("Previous Sequence"), QStringLiteral("Next Sequence")}));
    menus.Close();
    menus.Drag(1, {60, 60}, {90, 60}, Qt::RightButton);
    EXPECT_FALSE(PopupMenu()) << "that was a drag";
    menus.At(1).setCineModeIsON(true);
    EXPECT_FALSE(menus.RightClick(1, {60, 60})) << "while it plays";
    menus.At(1).setCineModeIsON(false);
    QContextMenuEvent key(QContextMenuEvent::Keyboard, {5, 5}, {5, 5});
    QCoreApplication::sendEvent(&menus.View(1), &key);
    EXPECT_TRUE(PopupMenu()) << "the keyboard's key";
}

TEST(ContextualMenus, of_a_grid_do_what_they_say_on_the_frame_under_the_click)
{
    struct Row {
        const char* path;
        bool (*done)(Menus& menus);
    };
    // The right grid shows three frames, two by two; the click is on the second.
    const Row rows[] = {
        {"Zoom/Enlarge",
         [](Menus& m) { return !m.Record(2, 2).autoFit && m.Record(2, 1).autoFit; }},
        {"Zoom/Normal Size", [](Menus& m) { return m.Record(2, 2).zoom == kZoomOne; }},
        {"Orientation/Rotate Left", [](Menus& m) { return m.Record(2, 2).rotation == 270; }},
        {"Orientation/Flip Vertical", [](Menus& m) { return m.Record(2, 2).vertFlip; }},
        {"Invert", [](Menus& m) { return m.Record(2, 2).invert && !m.Record(2, 1).invert; }},
        {"Go/Last Frame", [](Menus& m) { return m.At(2).resolved(0) == 3; }},
        {"Image Grid/3 x 3", [](Menus& m) { return m.At(2).viewport().gridCols() == 3; }},
        {"Next Sequence",
         [](Menus& m) { return m.At(2).curr_dkSequence() == m.made.sequences[2]; }},
        {"Mark Sequence", [](Menus& m) { return m.At(2).currZELSequence()->userMarked(); }},
        {"Hide Demographics",
         [](Menus& m) { return !m.At(2).currZELSequence()->viewShowsDemographics(); }},
        {"Series Grid/1 top, 2 bottom", [](Menus& m) { return m.Grids().numGrids() == 3; }},
    };
    for (const Row& row : rows) {
        Menus menus;
        menus.At(2).setGridSetupID(3);
        menus.At(2).currZELSequence()->setViewShowsDemographics(1);
        menus.At(2).currZELSequence()->setCurrentFrame(1);
        QMenu* menu = menus.RightClick(2, {menus.View(2).viewport()->width() * 0.75, 40});
        ASSERT_TRUE(menu) << row.path;
        EXPECT_TRUE(Choose(menu, QString::fromUtf8(row.path))) << row.path;
        EXPECT_TRUE(row.done(menus)) << row.path;
    }
}

TEST(ContextualMenus, of_a_measurement_come_where_one_lies)
{
    Menus menus(651);
    menus.At(1).setGridSetupID(0);
    menus.At(1).currZELSequence()->setViewShowsMeasurements(true);
    const CKShapePtr box = NewBox({10, 10, 20, 20});
    menus.At(1).currZELSequence()->addNewMeasurement(box, true);
    const QPointF on = menus.At(1).framePointToViewPoint({20, 20}, 1);
    QMenu* menu = menus.RightClick(1, on);
    ASSERT_TRUE(menu);
    EXPECT_EQ(TitlesOf(*menu).last(), QStringLiteral("Delete All Measurements"));
    EXPECT_TRUE(Choose(menu, QStringLiteral("Shadow Off")));
    EXPECT_FALSE(box->_shadowON);
    menu = menus.RightClick(1, on);
    EXPECT_TRUE(Choose(menu, QStringLiteral("Delete Measurement")));
    EXPECT_EQ(menus.At(1).currZELSequence()->totalMeasurementsInFrame(1), 0);
    EXPECT_EQ(TitlesOf(*menus.RightClick(1, on)).first(), QStringLiteral("Series Grid"));
}

TEST(ContextualMenus, beside_the_last_cell_offer_nothing_of_a_frame)
{
    Menus menus;
    menus.At(2).setGridSetupID(3);
    const QSize size = menus.View(2).viewport()->size();
    QMenu* menu = menus.RightClick(2, {size.width() * 0.75, size.height() * 0.75});
    ASSERT_TRUE(menu);
    EXPECT_FALSE(Choose(menu, QStringLiteral("Invert")));
    EXPECT_FALSE(menus.Record(2, 3).invert);
    EXPECT_TRUE(Choose(menu, QStringLiteral("Image Grid/1 x 1")));
    menus.At(2).setCurrZELSequence(nullptr);
    EXPECT_TRUE(menus.RightClick(2, {40, 40})) << "an empty grid";
    menus.Close();
    menus.Drag(2, {40, 40}, {90, 40}, Qt::RightButton);
    EXPECT_FALSE(PopupMenu());
}

}  // namespace

// Real keys typed into the boxes of the tool bar, and the sheet.
#include "app/views/ViewerBoxes.h"

#include "app/views/AdjustSheet.h"
#include "app/views/LayoutFixture.h"

#include <QCheckBox>
#include <QMenu>
#include <QSlider>
#include <QSpinBox>
#include <QToolButton>

namespace {

struct Boxed : LayoutWindow {
    Boxed() : LayoutWindow(653)
    {
        boxes.emplace(&host, &actions);
        boxes->show();
        QObject::connect(&*boxes, &ViewerBoxes::done, &window, [this] { ++ended; });
    }
    // Selects the text as a click into the box does, types, and presses the key.
    void Type(NumberBox* box, const char* text, Qt::Key key = Qt::Key_Return)
    {
        box->field()->selectAll();
        QTest::keyClicks(box->field(), QString::fromUtf8(text));
        QTest::keyClick(box->field(), key);
    }
    [[nodiscard]] ZELSequenceProxy& Target() { return *Grids().targetSequence(); }

    const Quiet quiet;
    std::optional<ViewerBoxes> boxes;
    int ended = 0;
};

TEST(ViewerBoxes, show_and_take_what_the_active_grid_has)
{
    Boxed all;
    all.Type(all.boxes->zoomBox(), "150%");
    EXPECT_FLOAT_EQ(all.Target().currentZoom(), 150);
    EXPECT_EQ(all.boxes->zoomBox()->field()->text(), all.Target().currentZoomString());
    all.Type(all.boxes->zoomBox(), "0");
    EXPECT_FLOAT_EQ(all.Target().currentZoom(), 150);
    EXPECT_EQ(all.boxes->zoomBox()->field()->text(), all.Target().currentZoomString());
    all.Type(all.boxes->frameBox(), "7");
    EXPECT_EQ(all.Target().currentFrame(), 7);
    EXPECT_EQ(all.boxes->frameBox()->field()->text(), all.Target().currentFrameString());
    all.Type(all.boxes->brightnessBox(), "350");
    all.Type(all.boxes->contrastBox(), "-20");
    EXPECT_EQ(all.Target().currentWWBrightness(), 350);
    EXPECT_EQ(all.Target().currentWLContrast(), -20);
    EXPECT_EQ(all.ended, 5);

    all.View(2).becomeFirstResponder();
    EXPECT_EQ(all.boxes->brightnessBox()->field()->text(), QStringLiteral("400"));
    EXPECT_EQ(all.boxes->frameBox()->field()->text(), all.Target().currentFrameString());
    all.Grids().U_ActivateSequence(all.host.proxyOf(all.made.sequences[3]), all.At(2));
    all.boxes->retarget();
    EXPECT_TRUE(all.boxes->frameBox()->field()->isReadOnly()) << "a single frame";
}

TEST(ViewerBoxes, keep_the_user_until_a_window_can_be_taken)
{
    Boxed all;
    NumberBox* box = all.boxes->contrastBox();
    all.Type(box, "20000");
    EXPECT_EQ(all.ended, 0);
    EXPECT_EQ(box->field()->text(), QStringLiteral("40"));
    EXPECT_EQ(box->field()->selectedText(), QStringLiteral("40"));
    EXPECT_EQ(all.Target().currentWLContrast(), 40);
    all.Type(box, "55", Qt::Key_Escape);
    EXPECT_EQ(all.ended, 1);
    EXPECT_EQ(box->field()->text(), QStringLiteral("40"));
    EXPECT_EQ(all.Target().currentWLContrast(), 40);
    box->field()->selectAll();
    QTest::keyClicks(box->field(), QStringLiteral("60"));
    QFocusEvent out(QEvent::FocusOut, Qt::MouseFocusReason);
    QCoreApplication::sendEvent(box->field(), &out);
    EXPECT_EQ(all.Target().currentWLContrast(), 60) << "leaving the box ends the edit";
}

TEST(ViewerBoxes, menus_do_what_they_say)
{
    Boxed all;
    const auto choose = [](NumberBox* box, const QString& title) {
        QMenu* menu = box->menuButton()->menu();
        emit menu->aboutToShow();
        for (QAction* action : menu->actions()) {
            if (action->text() == title) {
                action->trigger();
                return true;
            }
        }
        return false;
    };
    EXPECT_TRUE(choose(all.boxes->zoomBox(), QStringLiteral("200%")));
    EXPECT_FLOAT_EQ(all.Target().currentZoom(), 200);
    EXPECT_TRUE(choose(all.boxes->contrastBox(), QStringLiteral("Abdomen")));
    EXPECT_EQ(all.Target().currentWWBrightness(), 400);
    EXPECT_EQ(all.Target().currentWLContrast(), 50);
    EXPECT_EQ(all.boxes->contrastBox()->field()->text(), QStringLiteral("50"));
    EXPECT_FALSE(all.boxes->brightnessBox()->menuButton());
}

TEST(AdjustSheet, moves_the_picture_and_puts_it_back)
{
    using Row = BnCDialogController::Row;
    Boxed all;
    prefs_Set_BnCDialogPreview(true);
    all.host.scope.setToolScope(ToolScope::kSequence);
    {
        AdjustSheet sheet(&all.host, &all.actions, &all.window);
        sheet.open();
        EXPECT_EQ(sheet.field(Row::First)->value(), 400);
        EXPECT_EQ(sheet.slider(Row::First)->value(), 400 - sheet.field(Row::First)->minimum());
        EXPECT_EQ(all.View(1).menuForPoint({50, 50}), nullptr) << "no menu beside a sheet";
        sheet.slider(Row::First)->setValue(321 - int(sheet.field(Row::First)->minimum()));
        EXPECT_EQ(sheet.field(Row::First)->value(), 321);
        EXPECT_EQ(all.Record(1).voiWidth, 321);
        sheet.reject();
        EXPECT_EQ(all.Record(1).voiWidth, 400);
    }
    AdjustSheet sheet(&all.host, &all.actions, &all.window);
    sheet.open();
    sheet.previewButton()->setChecked(false);
    sheet.field(Row::Second)->setValue(77);
    EXPECT_EQ(all.Record(1).voiLevel, 40);
    sheet.accept();
    EXPECT_EQ(all.Record(1).voiLevel, 77);
    EXPECT_EQ(all.Record(1, 12).voiLevel, 77) << "the whole sequence";
    prefs_Set_BnCDialogPreview(true);
}

TEST(ViewerBoxes, buttons_step_the_zoom_and_show_the_rows_and_columns)
{
    Boxed all;
    const auto press = [&](const char* name) {
        for (QToolButton* button : all.boxes->findChildren<QToolButton*>()) {
            if (button->accessibleName() == QLatin1String(name))
                return button->click();
        }
        ADD_FAILURE() << name;
    };
    press("Normal Size");
    EXPECT_FLOAT_EQ(all.Target().currentZoom(), 100);
    press("Enlarge");
    const float larger = all.Target().currentZoom();
    EXPECT_GT(larger, 100);
    press("Reduce");
    EXPECT_LT(all.Target().currentZoom(), larger);
    auto* setup = all.boxes->findChild<QToolButton*>(QStringLiteral("gridSetupMenu"));
    emit setup->menu()->aboutToShow();
    for (QAction* action : setup->menu()->actions()) {
        if (action->text() == QLatin1String("3 x 4"))
            action->trigger();
    }
    all.boxes->refresh();
    EXPECT_EQ(setup->text(), QStringLiteral("3 × 4"));
}

}  // namespace

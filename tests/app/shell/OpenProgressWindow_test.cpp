// The ways to cancel a long open, and a bar that copes with any limits.
#include "app/shell/OpenProgressWindow.h"

#include <QApplication>
#include <QKeyEvent>
#include <QProgressBar>
#include <QPushButton>
#include <gtest/gtest.h>

TEST(OpenProgressWindow, every_way_to_cancel_leaves_it_standing)
{
    int cancelled = 0;
    OpenProgressWindow window([&] { ++cancelled; });
    window.place(30, 20, 420, 90);
    window.orderFront();
    EXPECT_GE(window.width(), 420);
    window.findChild<QPushButton*>()->click();
    QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
    QApplication::sendEvent(&window, &escape);
    window.close();
    EXPECT_EQ(cancelled, 3);
    EXPECT_TRUE(window.isVisible());  // until the worker has stopped
    window.orderOut();
    EXPECT_FALSE(window.isVisible());
}

TEST(OpenProgressWindow, the_bar_moves_without_a_count_only)
{
    OpenProgressWindow window([] {});
    const auto* bar = window.findChild<QProgressBar*>();
    const auto isMoving = [&] { return bar->minimum() == 0 && bar->maximum() == 0; };
    window.setIndeterminate(true);
    EXPECT_FALSE(isMoving());  // not before it shows
    window.setAnimated(true);
    EXPECT_TRUE(isMoving());
    window.setIndeterminate(false);
    window.setLimits(0, 8);
    window.setValue(3);
    EXPECT_EQ(bar->value(), 3);
    EXPECT_EQ(bar->maximum(), 8);
    window.setLimits(0, 0);  // nothing to count: still no moving bar
    EXPECT_FALSE(isMoving());
}

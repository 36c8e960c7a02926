// Windows beside the main one, with the keyboard alone: Tab comes by every control, and keys do
// what they are for.
#include "app/recovery/ReportReviewWindow.h"
#include "app/recovery/ZELFirstAidWindowController.h"
#include "app/shell/OpenPanel.h"
#include "app/window/ToolBarSheet.h"
#include "app_prefs/PrefsWindow.h"
#include "app_prefs/ZELPrefsController.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSlider>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <gtest/gtest.h>
#include <set>

namespace {

bool IsControl(const QWidget* widget)
{
    const bool isPart = widget->objectName().startsWith(QLatin1String("qt_")) ||
                        qobject_cast<QAbstractSpinBox*>(widget->parentWidget()) ||
                        qobject_cast<QComboBox*>(widget->parentWidget()) ||
                        qobject_cast<QAbstractItemView*>(widget->parentWidget());
    const bool isKind =
        qobject_cast<const QAbstractButton*>(widget) ||
        qobject_cast<const QAbstractItemView*>(widget) ||
        qobject_cast<const QAbstractSpinBox*>(widget) || qobject_cast<const QComboBox*>(widget) ||
        qobject_cast<const QLineEdit*>(widget) || qobject_cast<const QPlainTextEdit*>(widget) ||
        (qobject_cast<const QAbstractSlider*>(widget) && !widget->inherits("QScrollBar"));
    // Arrow keys lead from the chosen one of a group to the others.
    const auto* radio = qobject_cast<const QRadioButton*>(widget);
    return isKind && !isPart && widget->isVisible() && widget->isEnabled() &&
           !widget->inherits("QHeaderView") && !(radio && !radio->isChecked());
}

std::string NameOf(const QWidget* widget)
{
    const auto* button = qobject_cast<const QAbstractButton*>(widget);
    const QString text = button ? button->text() : widget->accessibleName();
    return widget->metaObject()->className() + (':' + text.toStdString());
}

// Keys reach an active window only.
void Activate(QWidget* window)
{
    window->show();
    window->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window));
}

void ExpectWalkByEverything(QWidget* window)
{
    Activate(window);
    std::set<const QWidget*> reached;
    const QWidget* first = nullptr;
    for (int i = 0; i < 200; ++i) {
        QWidget* at = window->focusWidget();
        if (at && at == first)
            break;
        if (at && !first)
            first = at;
        for (const QWidget* each = at; each; each = each->parentWidget())
            reached.insert(each);
        QTest::keyClick(at ? at : window, Qt::Key_Tab);
    }
    for (const QWidget* each : window->findChildren<QWidget*>())
        EXPECT_TRUE(!IsControl(each) || reached.contains(each)) << NameOf(each);
}

// Goes on by Tab up to the button, and presses it by its key.
void PressByKeys(QWidget* window, const char* text)
{
    for (int i = 0; i < 100; ++i) {
        const auto* button = qobject_cast<QAbstractButton*>(window->focusWidget());
        if (button && button->text() == QLatin1String(text))
            return QTest::keyClick(window->focusWidget(), Qt::Key_Space);
        QTest::keyClick(window->focusWidget() ? window->focusWidget() : window, Qt::Key_Tab);
    }
    FAIL() << text;
}

TEST(KeyboardWalk, comes_by_every_control)
{
    ZELFirstAidWindowController aid(true);
    aid.setBombed(true);
    ReportReviewWindow review(QStringLiteral("User: wolf\n"),
                              [](const QString&) { return std::vector<TextRange>{{6, 4}}; });
    ToolBarSheet sheet(nullptr);
    sheet.findChildren<QListWidget*>()[1]->setCurrentRow(1);
    OpenPanel open("/", nullptr);
    for (QDialog* window : {static_cast<QDialog*>(&aid), static_cast<QDialog*>(&review),
                            static_cast<QDialog*>(&sheet), static_cast<QDialog*>(&open)}) {
        SCOPED_TRACE(window->metaObject()->className());
        ExpectWalkByEverything(window);
        QTest::keyClick(window, Qt::Key_Escape);
        EXPECT_FALSE(window->isVisible());
    }
    ZELPrefsController preferences({});
    for (const char* pane : {"General", "DICOM", "WWWLPane", "Updates"}) {
        SCOPED_TRACE(pane);
        preferences.showPane(QString::fromLatin1(pane));
        ExpectWalkByEverything(preferences.window());
    }
}

TEST(KeyboardWalk, first_aid_is_answered_by_keys)
{
    ZELFirstAidWindowController aid(false);
    aid.setBombed(true);
    Activate(&aid);
    auto* chosen = qobject_cast<QRadioButton*>(aid.focusWidget());
    ASSERT_TRUE(chosen) << NameOf(aid.focusWidget());
    QTest::keyClick(chosen, Qt::Key_Up);
    EXPECT_EQ(aid.selectedAction(), ZELFirstAidWindowController::Action::Reset);
    QTest::keyClick(aid.focusWidget(), Qt::Key_Down);
    EXPECT_EQ(aid.selectedAction(), ZELFirstAidWindowController::Action::Collect);
    auto* text = aid.findChild<QPlainTextEdit*>();
    for (int i = 0; i < 10 && aid.focusWidget() != text; ++i)
        QTest::keyClick(aid.focusWidget(), Qt::Key_Tab);
    QTest::keyClicks(text, QStringLiteral("I paged."));
    EXPECT_EQ(aid.textToAdd(), QStringLiteral("I paged."));
    PressByKeys(&aid, "Collect");
    EXPECT_EQ(aid.result(), QDialog::Accepted);
}

// A button's key shows it pressed before it acts.
void Key(QWidget* widget, Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
{
    QTest::keyClick(widget, key, modifiers);
    QTest::qWait(150);
}

TEST(KeyboardWalk, a_report_is_struck_and_sent_by_keys)
{
    const QString text = QStringLiteral("User: wolf\nApplication: here\n");
    ReportReviewWindow review(text, [](const QString& shown) {
        const auto at = static_cast<int>(shown.indexOf(QLatin1String("wolf")));
        return at < 0 ? std::vector<TextRange>() : std::vector<TextRange>{{at, 4}};
    });
    Activate(&review);
    auto* edit = review.findChild<QPlainTextEdit*>();
    edit->setFocus();
    Key(edit, Qt::Key_F3);
    EXPECT_EQ(edit->textCursor().selectedText(), QStringLiteral("wolf"));
    Key(edit, Qt::Key_Delete, Qt::ControlModifier);
    EXPECT_EQ(review.text(), QStringLiteral("User: ****\nApplication: here\n"));
    // What nobody has marked, by a selection.
    QTest::keyClick(edit, Qt::Key_End, Qt::ControlModifier);
    QTest::keyClick(edit, Qt::Key_Up);
    QTest::keyClick(edit, Qt::Key_End, Qt::ShiftModifier);
    Key(edit, Qt::Key_Delete, Qt::ControlModifier);
    EXPECT_EQ(review.text(), QStringLiteral("User: ****\n*****************\n"));
    QTest::keyClicks(edit, QStringLiteral("typed"));
    EXPECT_EQ(edit->toPlainText(), review.text());
    PressByKeys(&review, "Send");
    EXPECT_EQ(review.result(), QDialog::Accepted);
}

}  // namespace

// The window with its panes, by real keys and clicks. Pictures of all panes, light and dark, are
// left in the folder that ZELORA_SNAPSHOTS names.
#include "app_prefs/DicomPrefsTabController.h"
#include "app_prefs/PrefsFixture.h"
#include "app_prefs/PrefsWindow.h"
#include "app_prefs/TestGeneralViewController.h"
#include "app_prefs/UpdatesPrefsTabController.h"
#include "app_prefs/WLPresetsViewController.h"
#include "app_prefs/ZELPrefsController.h"

#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QStyle>
#include <QTableView>
#include <QTest>
#include <QToolBar>
#include <gtest/gtest.h>

namespace {

const char* const kPanes[] = {"General", "DICOM", "WWWLPane", "Updates"};

template <class Pane>
Pane* PaneOf(const ZELPrefsController& prefs)
{
    auto* pane = dynamic_cast<Pane*>(prefs.window()->currentPane());
    EXPECT_NE(pane, nullptr);
    return pane;
}

class FakeUpdates final : public UpdateService {
public:
    std::optional<QDateTime> lastCheck() const override { return fLast; }
    void check(std::function<void()> loaded) override { fLoaded = std::move(loaded); }
    std::optional<QDateTime> fLast;
    std::function<void()> fLoaded;
};

TEST(ZELPrefsController, opens_on_the_pane_shown_last_and_closes_by_the_keyboard)
{
    const OwnPrefs own;
    ZELPrefsController prefs({});
    EXPECT_FALSE(prefs.isVisible());
    prefs.showPreferences(nullptr);
    ASSERT_TRUE(QTest::qWaitForWindowActive(prefs.window()));
    EXPECT_FALSE(prefs.window()->isModal());
    EXPECT_EQ(prefs.window()->currentPane()->identifier(), QStringLiteral("General"));
    QStringList titles;
    for (const QAction* action : prefs.window()->toolBar()->actions())
        titles.append(action->text());
    EXPECT_EQ(titles, QStringList({"General", "DICOM", "Presets", "Updates"}));

    QTest::keyClick(prefs.window(), Qt::Key_3, Qt::ControlModifier);
    EXPECT_EQ(prefs.window()->currentPane()->identifier(), QStringLiteral("WWWLPane"));
    EXPECT_EQ(prefs.window()->windowTitle(), prefs.window()->currentPane()->windowTitle());
    QTest::keyClick(prefs.window(), Qt::Key_Escape);
    EXPECT_FALSE(prefs.isVisible());
    prefs.togglePreferencesWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(prefs.window()));
    EXPECT_EQ(prefs.window()->currentPane()->identifier(), QStringLiteral("WWWLPane"));
    QTest::keyClick(prefs.window(), Qt::Key_W, Qt::ControlModifier);
    EXPECT_FALSE(prefs.isVisible());
    prefs.showPane(QStringLiteral("DICOM"));
    prefs.showPane(QStringLiteral("no such pane"));
    EXPECT_EQ(prefs.window()->currentPane()->identifier(), QStringLiteral("DICOM"));
    prefs.togglePreferencesWindow();
    EXPECT_FALSE(prefs.isVisible());
}

TEST(PrefsPanes, show_what_was_stored_meanwhile_without_storing_it_again)
{
    const OwnPrefs own;
    ZELPrefsController prefs({});
    prefs.showPane(QStringLiteral("General"));
    prefs.close();
    prefs_Set_SequenceInitialGridArrangement(656);
    prefs_Set_AnnotationsFontSize(17);
    prefs.showPreferences(nullptr);
    const auto* general = PaneOf<TestGeneralViewController>(prefs);
    EXPECT_EQ(general->gridArrangement()->currentData().toInt(), 656);
    EXPECT_TRUE(general->fontSample()->text().startsWith(QStringLiteral("17.0 points ")));
    QTest::keyClick(general->gridArrangement(), Qt::Key_Home);
    EXPECT_EQ(prefs_SequenceInitialGridArrangement(), 0);
    prefs_Set_SequenceInitialGridArrangement(9999);
    prefs.showPane(QStringLiteral("General"));
    EXPECT_EQ(general->gridArrangement()->currentIndex(), 0);
    EXPECT_EQ(prefs_SequenceInitialGridArrangement(), 9999);

    prefs.showPane(QStringLiteral("DICOM"));
    auto* dicom = PaneOf<DicomPrefsTabController>(prefs);
    Notes notes("Pref_FPSEnforceChanged");
    dicom->enforceSpeed()->click();
    EXPECT_TRUE(prefs_HasCineEnforceSpeed());
    EXPECT_EQ(notes.count(), 1);
    // A window's control switches it back, with the speed on its screen as the default.
    prefs_Set_HasCineEnforceSpeed(false);
    prefs_Set_CineDefaultSpeed(33);
    NotificationCenter::Default().Post("Pref_FPSEnforceChanged", nullptr);
    EXPECT_NE(dicom->speedField()->text(), QStringLiteral("33"));
    NotificationCenter::Default().Post("Pref_FPSEnforceChanged", &prefs);
    EXPECT_EQ(dicom->speedField()->text(), QStringLiteral("33"));
    EXPECT_FALSE(dicom->enforceSpeed()->isChecked());
    EXPECT_EQ(notes.count(), 3) << "showing it posts nothing";
}

TEST(PrefsPanes, end_the_edit_of_the_speed_by_return_by_leaving_and_by_closing)
{
    const OwnPrefs own;
    ZELPrefsController prefs({});
    prefs.showPane(QStringLiteral("DICOM"));
    ASSERT_TRUE(QTest::qWaitForWindowActive(prefs.window()));
    QLineEdit* field = PaneOf<DicomPrefsTabController>(prefs)->speedField();
    const auto type = [field](const char* text) {
        field->setFocus();
        field->selectAll();
        QTest::keyClicks(field, QString::fromLatin1(text));
    };
    type("3");
    QTest::keyClick(field, Qt::Key_Return);
    EXPECT_EQ(field->text(), QStringLiteral("4"));
    EXPECT_EQ(prefs_CineDefaultSpeed(), 4);
    EXPECT_TRUE(prefs.isVisible());
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr) << "no button was pressed";
    type("61");
    QTest::keyClick(field, Qt::Key_Tab);
    EXPECT_EQ(field->text(), QStringLiteral("60"));
    type("4x");
    QTest::keyClick(field, Qt::Key_Return);
    EXPECT_EQ(field->text(), QStringLiteral("60"));
    type("44");
    QTest::keyClick(field, Qt::Key_Escape);
    EXPECT_FALSE(prefs.isVisible());
    EXPECT_EQ(prefs_CineDefaultSpeed(), 44);
    own.reopen();
    EXPECT_EQ(prefs_CineDefaultSpeed(), 44) << "written when the window closes";
}

TEST(PrefsPanes, edit_presets_in_the_table)
{
    const OwnPrefs own;
    ZELPrefsController prefs({[](int, const QString&) { return 1000; }});
    prefs.showPane(QStringLiteral("WWWLPane"));
    ASSERT_TRUE(QTest::qWaitForWindowActive(prefs.window()));
    auto* pane = PaneOf<WLPresetsViewController>(prefs);
    QTableView* table = pane->table();
    const std::size_t before = loadWWWLPresets().size();
    table->selectRow(1);
    pane->addPreset();
    QCoreApplication::processEvents();
    auto* editor = table->viewport()->findChild<QLineEdit*>();
    ASSERT_NE(editor, nullptr) << "the level is being edited on the next turn";
    QTest::keyClicks(editor, QStringLiteral("55"));
    QTest::keyClick(editor, Qt::Key_Return);
    QCoreApplication::processEvents();
    ASSERT_EQ(loadWWWLPresets().size(), before + 1);
    EXPECT_EQ(loadWWWLPresets()[2].wcenter, 55);
    EXPECT_EQ(loadWWWLPresets()[2].itemName, QStringLiteral("Unnamed"));

    table->setFocus();
    QTest::keyClick(table, Qt::Key_Up, Qt::AltModifier);
    EXPECT_EQ(loadWWWLPresets()[1].wcenter, 55);
    EXPECT_EQ(table->selectionModel()->selectedRows().front().row(), 1);
    QTest::keyClick(table, Qt::Key_Delete);
    EXPECT_EQ(loadWWWLPresets().size(), before);
    EXPECT_EQ(table->selectionModel()->selectedRows().size(), 1);
    auto presets = loadWWWLPresets();
    presets.emplace_back();
    ASSERT_EQ(saveWWWLPresets(presets), kQvxOK);
    NotificationCenter::Default().Post("Pref_WWWLChanged", nullptr);
    EXPECT_EQ(table->model()->rowCount(), static_cast<int>(before) + 1) << "made elsewhere";
    table->selectAll();
    QTest::keyClick(table, Qt::Key_Delete);
    EXPECT_EQ(table->model()->rowCount(), 0);
    pane->resetToDefaults();
    EXPECT_EQ(table->model()->rowCount(), static_cast<int>(before));
}

TEST(PrefsPanes, tell_of_updates_only_what_there_is)
{
    const OwnPrefs own;
    ZELPrefsController without({});
    without.showPane(QStringLiteral("Updates"));
    EXPECT_FALSE(PaneOf<UpdatesPrefsTabController>(without)->button()->isVisible());

    FakeUpdates service;
    ZELPrefsController prefs({nullptr, &service});
    prefs.showPane(QStringLiteral("Updates"));
    auto* pane = PaneOf<UpdatesPrefsTabController>(prefs);
    EXPECT_NE(pane->lastCheck()->text(),
              PaneOf<UpdatesPrefsTabController>(without)->lastCheck()->text());
    const QString never = pane->lastCheck()->text();
    QTest::mouseClick(pane->button(), Qt::LeftButton);
    ASSERT_TRUE(service.fLoaded);
    EXPECT_FALSE(pane->button()->isEnabled()) << "one check at a time";
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    service.fLast = QDateTime(QDate(2024, 2, 29), QTime(15, 4));
    service.fLoaded();
    EXPECT_NE(pane->lastCheck()->text(), never);
    EXPECT_TRUE(
        pane->lastCheck()->text().endsWith(QStringLiteral(" Thursday, February 29, 2024 3:04 PM")))
        << pane->lastCheck()->text().toStdString();
    QLocale::setDefault(QLocale::c());
}

// Whatever can have the keyboard says what it is, in words and not by a key.
TEST(PrefsPanes, name_every_control)
{
    const OwnPrefs own;
    ZELPrefsController prefs({});
    for (const char* name : kPanes) {
        prefs.showPane(QString::fromLatin1(name));
        int controls = 0;
        for (const QWidget* each : prefs.window()->currentPane()->findChildren<QWidget*>()) {
            const bool isControl = qobject_cast<const QAbstractButton*>(each) ||
                                   qobject_cast<const QComboBox*>(each) ||
                                   qobject_cast<const QLineEdit*>(each) ||
                                   qobject_cast<const QTableView*>(each);
            const bool isOwn = each->parentWidget() &&
                               !qobject_cast<const QAbstractItemView*>(each->parentWidget()) &&
                               !qobject_cast<const QComboBox*>(each->parentWidget());
            if (!isControl || !isOwn || each->objectName().startsWith(QLatin1String("qt_")))
                continue;
            ++controls;
            EXPECT_FALSE(each->accessibleName().isEmpty())
                << name << each->metaObject()->className();
            EXPECT_FALSE(each->toolTip().isEmpty()) << name << each->accessibleName().toStdString();
            EXPECT_FALSE(each->toolTip().endsWith(QLatin1String(" tip")))
                << each->toolTip().toStdString();
            EXPECT_TRUE(each->focusPolicy() & Qt::TabFocus) << each->accessibleName().toStdString();
        }
        EXPECT_GE(controls, 1) << name;
    }
}

QPalette DarkPalette()
{
    QPalette dark;
    const QColor base(35, 37, 40), window(48, 50, 54), text(232, 232, 232);
    for (const auto role : {QPalette::Window, QPalette::Button})
        dark.setColor(role, window);
    for (const auto role : {QPalette::Base, QPalette::ToolTipBase})
        dark.setColor(role, base);
    dark.setColor(QPalette::AlternateBase, base.lighter(115));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        dark.setColor(role, text);
    dark.setColor(QPalette::Highlight, QColor(60, 110, 170));
    return dark;
}

TEST(PrefsPanes, are_drawn_light_and_dark)
{
    const OwnPrefs own;
    const QString folder = qEnvironmentVariable("ZELORA_SNAPSHOTS");
    const QPalette usual = QApplication::palette();
    for (const bool dark : {false, true}) {
        QApplication::setPalette(dark ? DarkPalette() : QApplication::style()->standardPalette());
        ZELPrefsController prefs({});
        for (const char* name : kPanes) {
            prefs.showPane(QString::fromLatin1(name));
            QCoreApplication::processEvents();
            const QPixmap picture = prefs.window()->grab();
            const QColor ground = picture.toImage().pixelColor(2, picture.height() - 3);
            EXPECT_EQ(ground.lightness() < 128, dark) << name;
            const QSize hint = prefs.window()->currentPane()->minimumSizeHint().boundedTo(
                prefs.window()->screen()->availableSize());
            EXPECT_LE(hint.width(), prefs.window()->width()) << name << " is cut";
            EXPECT_LE(hint.height(), prefs.window()->height()) << name << " is cut";
            const QString file =
                QStringLiteral("%1/prefs_%2_%3.png")
                    .arg(folder, QString::fromLatin1(name), QLatin1String(dark ? "dark" : "light"));
            EXPECT_TRUE(folder.isEmpty() || (QDir().mkpath(folder) && picture.save(file)));
        }
    }
    QApplication::setPalette(usual);
}

}  // namespace

// Pictures of every window, light and dark, for people to look at: kept where ZELORA_SNAPSHOTS
// names a folder. The language and the scale are those of the environment. What is checked is that
// each window could be made and has something in it.
#include "app/recovery/ReportReviewWindow.h"
#include "app/recovery/ZELFirstAidWindowController.h"
#include "app/shell/Alerts.h"
#include "app/shell/HelpPages.h"
#include "app/shell/OpenPanel.h"
#include "app/shell/OpenProgressWindow.h"
#include "app/shell/StartWindow.h"
#include "app/shell/ZELAppDelegate.h"
#include "app/window/OpenWindow.h"
#include "app/window/ToolBarSheet.h"
#include "app_prefs/PrefsWindow.h"
#include "app_prefs/ZELPrefsController.h"
#include "dicom_core/opening/OpeningFixtures.h"
#include "fixtures/TempFolder.h"
#include "platform/PreferenceStore.h"
#include "prefs/Prefs.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAccessible>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QStyleFactory>
#include <QTest>
#include <filesystem>
#include <gtest/gtest.h>
#include <set>

namespace {

QPalette DarkPalette()
{
    QPalette dark;
    for (const auto& [role, color] : std::initializer_list<std::pair<QPalette::ColorRole, QColor>>{
             {QPalette::Window, QColor(45, 45, 45)},
             {QPalette::WindowText, Qt::white},
             {QPalette::Base, QColor(30, 30, 30)},
             {QPalette::AlternateBase, QColor(45, 45, 45)},
             {QPalette::Text, Qt::white},
             {QPalette::PlaceholderText, QColor(160, 160, 160)},
             {QPalette::Button, QColor(60, 60, 60)},
             {QPalette::ButtonText, Qt::white},
             {QPalette::Highlight, QColor(42, 130, 218)}})
        dark.setColor(role, color);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        dark.setColor(QPalette::Disabled, role, Qt::gray);
    return dark;
}

// For those who can't see it: what a reader of the screen would say.
void ExpectNames(const QWidget* window)
{
    for (QWidget* widget : window->findChildren<QWidget*>()) {
        const bool speaks =
            qobject_cast<QAbstractButton*>(widget) || qobject_cast<QLineEdit*>(widget) ||
            qobject_cast<QPlainTextEdit*>(widget) || qobject_cast<QComboBox*>(widget) ||
            qobject_cast<QAbstractItemView*>(widget);
        const bool internal = widget->objectName().startsWith(QLatin1String("qt_")) ||
                              widget->inherits("QHeaderView") ||
                              widget->inherits("QTableCornerButton");
        if (!speaks || internal || !widget->isVisible())
            continue;
        QAccessibleInterface* face = QAccessible::queryAccessibleInterface(widget);
        ASSERT_TRUE(face);
        EXPECT_FALSE(face->text(QAccessible::Name).isEmpty())
            << widget->metaObject()->className() << " in "
            << widget->parentWidget()->metaObject()->className();
    }
}

class Pictures {
public:
    explicit Pictures(QString look) : fLook(std::move(look)) {}
    void Take(QWidget* widget, const char* name)
    {
        QTest::qWait(30);
        if (!dynamic_cast<OpenPanel*>(widget))  // the toolkit's own
            ExpectNames(widget);
        const QImage picture = widget->grab().toImage();
        std::set<QRgb> colors;
        for (int y = 0; y < picture.height(); ++y)
            for (int x = 0; x < picture.width(); ++x)
                colors.insert(picture.pixel(x, y));
        EXPECT_GT(colors.size(), 2u) << name;
        if (const QByteArray folder = qgetenv("ZELORA_SNAPSHOTS"); !folder.isEmpty()) {
            std::filesystem::create_directories(folder.toStdString());
            EXPECT_TRUE(picture.save(QStringLiteral("%1/window_%2_%3_%4_x%5.png")
                                         .arg(QString::fromLocal8Bit(folder),
                                              QString::fromLatin1(name), Language(), fLook,
                                              QString::number(widget->devicePixelRatioF()))));
        }
    }

private:
    static QString Language()
    {
        const QString language = qEnvironmentVariable("LANGUAGE");
        return language.isEmpty() ? QStringLiteral("en") : language;
    }
    QString fLook;
};

void TakeMainWindow(const std::string& path, Pictures* pictures)
{
    ZELAppDelegate program(QString(), {});
    QTimer later;
    QObject::connect(&later, &QTimer::timeout, [&] {
        for (QWidget* widget : QApplication::topLevelWidgets()) {
            auto* window = qobject_cast<ZELMainWindowController*>(widget);
            if (!window || !window->pane()->layoutView()->showsAll())
                continue;
            later.stop();
            window->resize(1100, 760);
            pictures->Take(window, "main");
            for (QMenu* menu :
                 window->menuBar()->findChildren<QMenu*>(QString(), Qt::FindDirectChildrenOnly)) {
                emit menu->aboutToShow();
                menu->adjustSize();
                pictures->Take(menu, ("menu_" + std::to_string(menu->actions().size())).c_str());
            }
            GridsPane* pane = window->pane();
            pane->openAdjustColorsDialog();
            pane->openGridSetupDialog(*pane->gridControllers().front());
            for (QDialog* sheet : window->findChildren<QDialog*>()) {
                pictures->Take(sheet, sheet->metaObject()->className());
                sheet->reject();
            }
            QApplication::exit();
            return;
        }
    });
    later.start(5);
    // A second window, so that the first one's painting doesn't end the program.
    program.start({path});
    QApplication::exec();
    if (later.isActive())
        QApplication::exec();
}

void TakePreferences(Pictures* pictures)
{
    ZELPrefsController preferences({});
    for (const char* pane : {"General", "DICOM", "WWWLPane", "Updates"}) {
        preferences.showPane(QString::fromLatin1(pane));
        pictures->Take(preferences.window(), pane);
    }
}

void TakeFirstAid(Pictures* pictures)
{
    ZELFirstAidWindowController aid(false);
    aid.setBombed(true);
    aid.show();
    pictures->Take(&aid, "first_aid");
    ReportReviewWindow review(
        QStringLiteral("User: wolf\n1: file:///media/DOE JANE\n"), [](const QString& text) {
            const int at = static_cast<int>(text.indexOf(QLatin1String("file:")));
            return at < 0 ? std::vector<TextRange>() : std::vector<TextRange>{{at, 21}};
        });
    review.show();
    pictures->Take(&review, "review");
}

void TakeOthers(const std::string& folder, Pictures* pictures)
{
    OpenPanel panel(folder, nullptr);
    panel.show();
    pictures->Take(&panel, "open");
    ToolBarSheet sheet(nullptr);
    sheet.show();
    pictures->Take(&sheet, "tool_bar_sheet");
    FakeApp app;
    app.documents.U_AddZELRecentItem({1, "/srv/study", {}});
    StartWindow start(&app);
    start.show();
    pictures->Take(&start, "start");
    OpenProgressWindow progress([] {});
    progress.setTitle(QStringLiteral("study"));
    progress.setLabel(QStringLiteral("IM000001"));
    progress.setValue(40);
    progress.orderFront();
    pictures->Take(&progress, "progress");
    // Modal ones show themselves.
    QTimer::singleShot(100, [pictures] {
        QWidget* alert = QApplication::activeModalWidget();
        pictures->Take(alert, "alert");
        alert->close();
    });
    RunAlert(AlertWordsForError(kZelNoPatientInFile, QStringLiteral("IM000001")), nullptr);
    QTimer::singleShot(100, [pictures] {
        QWidget* about = QApplication::activeModalWidget();
        pictures->Take(about, "about");
        about->close();
    });
    ShowAbout(nullptr);
}

class WindowPictures : public testing::TestWithParam<bool> {};

TEST_P(WindowPictures, of_every_window)
{
    const QPalette before = QApplication::palette();
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    if (GetParam())
        QApplication::setPalette(DarkPalette());
    TempFolder folder;
    prefs_Store().UseFile(folder.Path("preferences.plist"));
    Pictures pictures(GetParam() ? QStringLiteral("dark") : QStringLiteral("light"));
    for (int i = 1; i <= 3; ++i)
        folder.WriteFile("study/" + std::to_string(i),
                         SmallImage({.series = "1.2." + std::to_string(i),
                                     .instance = "1.7." + std::to_string(i)}));
    TakeMainWindow(folder.Path("study"), &pictures);
    TakePreferences(&pictures);
    TakeFirstAid(&pictures);
    TakeOthers(folder.Path(""), &pictures);
    QApplication::setPalette(before);
    prefs_Store().UseFile({});
}

INSTANTIATE_TEST_SUITE_P(LightAndDark, WindowPictures, testing::Bool());

}  // namespace

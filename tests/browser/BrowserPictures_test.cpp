// Pictures of the browser in each of its modes, for people to look at; each must show more than its
// ground.
#include "browser/BrowserBar.h"
#include "browser/BrowserFixture.h"
#include "browser/InfoPane.h"
#include "browser/ZELPatientOutlineView.h"

#include <QApplication>
#include <QSplitter>
#include <QVBoxLayout>
#include <set>

namespace {

struct BrowserWindow {
    BrowserWindow()
    {
        source.setupWithDicomTree(&made.tree);
        host.inGrids = {made.sequences[0], made.sequences[2]};
        host.active = made.sequences[0];
        made.sequences[1]->fMarked = true;
        auto* upper = new QWidget;
        auto* layout = new QVBoxLayout(upper);
        layout->setContentsMargins(0, 0, 0, 0);
        view = new ZELPatientOutlineView(&source, &host);
        layout->addWidget(view);
        layout->addWidget(new BrowserBar(&source));
        split.addWidget(upper);
        info = new InfoPane(host.windowKey(), &split);
        split.setChildrenCollapsible(false);
        split.resize(260, 620);
        split.show();
        source.updateGridIDs();
        view->U_SelectRowFor_dkSequence(made.sequences[0], true);
        info->source()->setTableSequenceTo(made.sequences[0]);
    }
    ListedTree made;
    FakeBrowserHost host;
    PatTreeDataSource source{&host};
    QSplitter split{Qt::Vertical};
    ZELPatientOutlineView* view;
    InfoPane* info;
};

int ColorsOf(const QImage& image)
{
    std::set<QRgb> colors;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            colors.insert(image.pixel(x, y));
    return static_cast<int>(colors.size());
}

void Keep(QWidget* widget, const QString& name)
{
    const QImage image = widget->grab().toImage();
    EXPECT_GT(ColorsOf(image), 20) << name.toStdString();
    const QString folder = qEnvironmentVariable("ZELORA_SNAPSHOTS");
    if (!folder.isEmpty())
        image.save(folder + QStringLiteral("/browser_") + name + QStringLiteral(".png"));
}

QPalette DarkPalette()
{
    QPalette dark(QColor(45, 45, 48));
    dark.setColor(QPalette::Base, QColor(30, 30, 32));
    dark.setColor(QPalette::Text, QColor(230, 230, 230));
    return dark;
}

}  // namespace

TEST(BrowserPictures, every_mode_in_light_and_dark)
{
    BrowserWindow window;
    const QPalette light = QApplication::palette();
    for (const char* theme : {"light", "dark"}) {
        QApplication::setPalette(theme[0] == 'd' ? DarkPalette() : light);
        for (const int size : {kTextOnlySize, 32, 48, 96, kIconOnlySize}) {
            window.source.setIconSize(size);
            LetEventsRun(150);
            Keep(&window.split, QString::fromLatin1(theme) + QString::number(size));
        }
    }
    QApplication::setPalette(light);
    window.source.setIconSize(48);
    window.view->collapse(window.source.indexOf(window.source.sequenceNodes()[0]->parent()));
    window.info->toggleInfoPane();
    LetEventsRun(400);
    Keep(&window.split, QStringLiteral("collapsed"));
}

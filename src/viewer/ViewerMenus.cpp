#include "viewer/ViewerMenus.h"

#include "dicom_core/opening/RecentDocuments.h"
#include "platform/Words.h"
#include "viewer/DocumentIcon.h"
#include "viewer/ViewerCommands.h"
#include "viewer/ViewerWords.h"

#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>

namespace {

// A name's "&" would be taken for the mark of a shortcut.
QString MenuText(QString name) { return name.replace(QLatin1Char('&'), QLatin1String("&&")); }

// Filled whenever it is about to show, so it is never out of date.
void FillRecentMenu(QMenu* menu, ViewerCommands* commands)
{
    menu->clear();
    const std::vector<ZELRecentDocument>& list = commands->recents().list();
    for (std::size_t i = 0; i < list.size(); ++i)
        menu->addAction(DocumentIcon(list[i]), MenuText(list[i].menuTitle()), menu,
                        [commands, i] { commands->openRecent(i); });
    if (!list.empty())
        menu->addSeparator();
    menu->addAction(ZelWord(kWordsMenuItems, "Clear Menu"), menu,
                    [commands] { commands->recents().clearZELRecentDocuments(); })
        ->setEnabled(!list.empty());
}

}  // namespace

void AddFileMenu(QMainWindow* window, ViewerCommands* commands)
{
    QMenu* file = window->menuBar()->addMenu(ViewerWord("&File"));
    file->addAction(ViewerWord("&Open…"), QKeySequence::Open, window,
                    [commands] { commands->openFromDialog(); });
    QMenu* recent = file->addMenu(ViewerWord("Open &Recent"));
    QObject::connect(recent, &QMenu::aboutToShow, recent,
                     [recent, commands] { FillRecentMenu(recent, commands); });
    file->addSeparator();
    file->addAction(ViewerWord("&Close"), QKeySequence::Close, window, &QWidget::close);
    file->addAction(ViewerWord("&Quit"), Qt::CTRL | Qt::Key_Q, window,
                    [commands] { commands->quit(); });
}

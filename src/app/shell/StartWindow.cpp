#include "app/shell/StartWindow.h"

#include "app/window/AppCommands.h"
#include "app/window/DocumentIcon.h"
#include "app/window/DroppedPaths.h"
#include "app/window/WindowWords.h"
#include "platform/Words.h"

#include <QDragEnterEvent>
#include <QGuiApplication>
#include <QLabel>
#include <QListWidget>
#include <QMenuBar>
#include <QMimeData>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>

namespace {

QString Word(const char* key) { return ZelWord(kWordsMenuItems, key); }

}  // namespace

StartWindow::StartWindow(AppCommands* app) : _app(app), _recents(new QListWidget(this))
{
    setWindowTitle(QGuiApplication::applicationDisplayName());
    setAcceptDrops(true);
    addMenus();
    auto* middle = new QWidget(this);
    auto* column = new QVBoxLayout(middle);
    auto* hint = new QLabel(ViewerWord("Drop files, folders or a DICOMDIR here, or choose them:"));
    hint->setWordWrap(true);
    column->addWidget(hint);
    auto* open = new QPushButton(Word("Open..."));
    open->setDefault(true);
    open->setToolTip(ViewerWord("Choose a file or a folder to open"));
    connect(open, &QPushButton::clicked, this, [this] { _app->openFromDialog(); });
    column->addWidget(open);
    auto* heading = new QLabel(Word("Open Recent"));
    heading->setBuddy(_recents);
    column->addWidget(heading);
    _recents->setAccessibleName(Word("Open Recent"));
    _recents->setToolTip(ViewerWord("What was open lately"));
    connect(_recents, &QListWidget::itemActivated, this, [this](const QListWidgetItem* item) {
        _app->openRecent(_shown[static_cast<std::size_t>(_recents->row(item))]);
    });
    column->addWidget(_recents, 1);
    setCentralWidget(middle);
    resize(420, 360);
    open->setFocus();
}

void StartWindow::addMenus()
{
    QMenu* file = menuBar()->addMenu(Word("&File"));
    file->addAction(Word("Open..."), QKeySequence::Open, this, [this] { _app->openFromDialog(); });
    file->addSeparator();
    file->addAction(Word("Quit"), Qt::CTRL | Qt::Key_Q, this, [this] { _app->quit(); });
    menuBar()
        ->addMenu(Word("&Edit"))
        ->addAction(Word("Preferences..."), Qt::CTRL | Qt::Key_Comma, this,
                    [this] { _app->showHidePreferencesWindow(); });
    QMenu* help = menuBar()->addMenu(Word("&Help"));
    help->addAction(Word("Help"), QKeySequence::HelpContents, this, [this] { _app->showHelp(); });
    help->addAction(Word("Acknowledgments"), this, [this] { _app->showAcknowledgments(); });
    help->addSeparator();
    help->addAction(Word("First Aid..."), this, [this] { _app->showFirstAidWindow(); });
    help->addAction(Word("Check for Updates..."), this, [this] { _app->checkForUpdates(); })
        ->setEnabled(_app->hasUpdateCheck());
    help->addAction(U_FixApplicationMenuTitle(Word("About")), this, [this] { _app->showAbout(); });
}

void StartWindow::reloadRecents()
{
    const std::vector<ZELRecentDocument>& list = _app->recents().list();
    if (std::ranges::equal(list, _shown, &ZELRecentDocument::matches))
        return;
    _shown = list;
    _recents->clear();
    for (const ZELRecentDocument& document : _shown) {
        auto* item = new QListWidgetItem(DocumentIcon(document), document.menuTitle(), _recents);
        item->setToolTip(PlainToolTip(DisplayText(document.docPath)));
    }
}

void StartWindow::showEvent(QShowEvent* event)
{
    reloadRecents();
    QMainWindow::showEvent(event);
}

void StartWindow::dragEnterEvent(QDragEnterEvent* event)
{
    if (!PathsOfDrag(*event->mimeData()).empty())
        event->acceptProposedAction();
}

void StartWindow::dropEvent(QDropEvent* event)
{
    event->acceptProposedAction();
    _app->openPaths(PathsOfDrag(*event->mimeData()));
}

void StartWindow::closeEvent(QCloseEvent* event)
{
    QMainWindow::closeEvent(event);
    emit closed();
}

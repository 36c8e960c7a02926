#include "app/window/ZELMainWindowController.h"

#include "app/tools/ZELWWWLTextBoxController.h"
#include "app/views/Sheets.h"
#include "app/window/AppCommands.h"
#include "app/window/DocumentIcon.h"
#include "app/window/DroppedPaths.h"
#include "app/window/MainToolBar.h"
#include "app/window/MenuBar.h"
#include "app/window/PatientPane.h"
#include "app/window/StatusLine.h"
#include "app/window/WindowWords.h"
#include "dicom_core/imaging/LoadFrame.h"
#include "dicom_core/opening/PathNames.h"
#include "dicom_core/opening/ZELDcmTree.h"
#include "dicom_core/tree/dk_SequenceBase.h"
#include "prefs/Prefs.h"

#include "qpix/zelImageSource.h"
#include <QApplication>
#include <QDragEnterEvent>
#include <QMimeData>
#include <QScreen>
#include <QSplitter>
#include <QVBoxLayout>

namespace {

constexpr int kLeastPatients = 174, kMostPatients = 392, kFirstPatients = 260;  // view points
constexpr int kLeastGrids = 320;
constexpr QSize kFirstSize(1100, 800);  // view points, where the screen has room

}  // namespace

ZELMainWindowController::ZELMainWindowController(AppCommands* app, std::unique_ptr<ZELDcmTree> tree,
                                                 const std::string& represented,
                                                 const ZELRecentDocument& document)
    : _app(app), _windowDoc(document), _imagesDB(std::move(tree))
{
    // Titles, rules and the first picture all ask its file, which is read once for them.
    if (dk_SequenceBase* first = _imagesDB->firstGoodSequence_DICOM())
        _firstFile = std::make_unique<zelParserVisit>(first->GetImageFrameInfo(1)->fSource);
    setWindowTitle(WindowTitleText(DisplayName(represented)));
    setAcceptDrops(true);
    _patients = new PatientPane(this, _imagesDB.get(), this);
    _patients->holdWork(true);
    _pane = new GridsPane(this, _imagesDB.get(), this);
    const WindowTarget target{_pane, &_pane->actions(), &_pane->tools(), this};
    _toolBar = new MainToolBar(target, this);
    layOut();
    AddMenuBar(this, target, app, &_pane->boxes()->windowController());
    setUpBoxes();
    _pane->targetChanged = [this](dk_SequenceBase* sequence) { targetChanged(sequence); };
    _toolSelection = NotificationCenter::Default().AddObserver(
        kNoteSelectedToolDidChange, [this](const Notification&) { updateToolbarElements(); },
        &_pane->tools());
    // Queued: labels are not changed while cells are being painted.
    connect(_pane, &GridsPane::cellsPainted, this, &ZELMainWindowController::onPainted,
            Qt::QueuedConnection);
    _pane->view()->becomeFirstResponder();
    targetChanged(_pane->proxy() ? _pane->proxy()->theSequence() : nullptr);
}

ZELMainWindowController::~ZELMainWindowController()
{
    _firstFile.reset();
    // What shows sequences goes before what holds them.
    delete _toolBar;
    delete _pane;
    delete _patients;
    for (dk_SequenceBase* each = _imagesDB->firstSequence_DICOM(); each;
         each = _imagesDB->nextSequence_DICOMFrom(each))
        ForgetBufferedFrames(each);
}

void ZELMainWindowController::layOut()
{
    _pane->setAccessibleName(ViewerWord("Picture"));
    addToolBar(_toolBar);
    auto* main = new QWidget(this);
    auto* column = new QVBoxLayout(main);
    column->setContentsMargins({});
    column->setSpacing(0);
    infoBarBox = _pane->boxes();
    column->addWidget(infoBarBox);
    _split = new QSplitter(main);
    _split->setChildrenCollapsible(false);
    _patients->setMinimumWidth(kLeastPatients);
    _patients->setMaximumWidth(kMostPatients);
    _pane->setMinimumWidth(kLeastGrids);
    _split->addWidget(_patients);
    _split->addWidget(_pane);
    _split->setStretchFactor(1, 1);
    column->addWidget(_split, 1);
    setCentralWidget(main);
    _status = new StatusLine(this);
    setStatusBar(_status);
    infoBarBox->setVisible(prefs_ShowZELToolbarPane() != 2);
    _patients->setVisible(prefs_ShowPatientListPane());
    if (!restoreGeometry(prefs_MainWindowGeometry()))
        resize(kFirstSize.boundedTo(screen()->availableSize() * 0.9));
    setWindowState(windowState() & ~(Qt::WindowFullScreen | Qt::WindowMinimized));
    restoreSplit();
}

void ZELMainWindowController::setUpBoxes()
{
    ZELWWWLTextBoxController& values = _pane->boxes()->windowController();
    values.editPresetsAction = [this] { _app->showPreferencesPane("WWWLPane"); };
    values.makePresetAction = [this] {
        if (const ZELSequenceProxy* proxy = _pane->proxy())
            _app->offerPreset(static_cast<float>(proxy->currentWWBrightness()),
                              static_cast<float>(proxy->currentWLContrast()));
    };
}

void ZELMainWindowController::restoreSplit()
{
    const std::vector<int> saved = prefs_MainSplitSizes();
    if (saved.size() == 2)
        _split->setSizes({saved.begin(), saved.end()});
    else
        _split->setSizes({kFirstPatients, width() - kFirstPatients});
}

// ---- what the grids tell ----

std::shared_ptr<ZELSequenceProxy> ZELMainWindowController::proxyOf(dk_SequenceBase* sequence)
{
    return _patients->proxyOf(sequence);
}

void ZELMainWindowController::updateNodeForSequence(dk_SequenceBase* sequence)
{
    _patients->updateNodeForSequence(sequence);
}

dk_SequenceBase* ZELMainWindowController::activeSequence() const
{
    return _pane && _pane->proxy() ? _pane->proxy()->theSequence() : nullptr;
}

std::vector<dk_SequenceBase*> ZELMainWindowController::sequencesInGrids() const
{
    std::vector<dk_SequenceBase*> shown;
    if (_pane) {
        for (const GridsPane::Grid* grid : _pane->gridControllers())
            shown.push_back(grid->curr_dkSequence());
    }
    return shown;
}

bool ZELMainWindowController::windowHasSheetOpen() const { return HasSheet(*this); }

bool ZELMainWindowController::inQTModalMode() const { return _app->inQTModalMode(); }

void ZELMainWindowController::doubleClickOnPatientListRow(dk_SequenceBase* sequence)
{
    _pane->handleDoubleClickOnSequenceItem(sequence);
}

void ZELMainWindowController::revealFiles(const std::vector<std::string>& paths)
{
    GridsPane::revealFiles(paths);
}

void ZELMainWindowController::targetChanged(dk_SequenceBase* sequence)
{
    _patients->updateGridIDs();
    _patients->selectRow(sequence);
    _status->updateFrom(*_pane);
    updateToolbarElements();
}

void ZELMainWindowController::updateToolbarElements()
{
    // Not before the first frame is seen: rules may have to read all files of a sequence.
    if (_painted && !_windowClosing)
        _toolBar->updateToolbarElements();
}

void ZELMainWindowController::onPainted()
{
    _status->updateFrom(*_pane);
    _pane->view()->setAccessibleDescription(_status->description());
    _pane->boxes()->refresh();
    if (!std::exchange(_painted, true)) {
        _firstFile.reset();
        setWindowIcon(DocumentIcon(_windowDoc));  // late: reading icons takes longer than painting
    }
    const bool wholly = _pane->view()->isSettled() && _pane->layoutView()->showsAll();
    if (!_wholly && _whenPainted)
        std::exchange(_whenPainted, nullptr)();
    updateToolbarElements();
    if (_pane->layoutView()->showsAll() && !std::exchange(_showsAll, true)) {
        _fastPatientListStartON = false;
        _patients->fillSlowTexts();
        _patients->holdWork(false);
    }
    if (wholly && _whenPainted)
        std::exchange(_whenPainted, nullptr)();
}

// ---- the life of the window ----

void ZELMainWindowController::bringToFront()
{
    setWindowState(windowState() & ~Qt::WindowMinimized);
    raise();
    activateWindow();
}

bool ZELMainWindowController::listIsComplete() const { return !_patients->isWorking(); }

void ZELMainWindowController::setZelWindowIsReady()
{
    _zelWindowIsReady = true;
    _pane->view()->becomeFirstResponder();
}

void ZELMainWindowController::changeEvent(QEvent* event)
{
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::ActivationChange && isActiveWindow() && !_windowClosing) {
        static int activations = 0;
        _activation = ++activations;
        windowDidBecomeKey();
        postMainWindowChange(false);
    }
}

void ZELMainWindowController::windowDidBecomeKey()
{
    if (!std::exchange(_firstTimeFlag, false) || !_pane->proxy())
        return;
    updateToolbarElements();
    _pane->navigation().setTargetSequenceFrameTo(_pane->proxy()->currentFrame());
}

void ZELMainWindowController::postMainWindowChange(bool movingOut)
{
    NotificationCenter::Default().Post(
        kNoteMainWindowChange, windowKey(),
        {{QLatin1String(kKeyWindow), QVariant::fromValue(const_cast<void*>(windowKey()))},
         {QLatin1String(kKeyMovingOut), movingOut}});
}

void ZELMainWindowController::setWindowClosing()
{
    _windowClosing = true;
    _patients->stopWork();
    _pane->stopAllCines();
}

void ZELMainWindowController::closeEvent(QCloseEvent* event)
{
    QMainWindow::closeEvent(event);
    if (!_windowClosing || isVisible())
        windowWillClose();
    _app->windowClosed();
}

void ZELMainWindowController::windowWillClose()
{
    setWindowClosing();
    if (_patients->isVisible()) {
        const QList<int> sizes = _split->sizes();
        prefs_Set_MainSplitSizes({sizes.begin(), sizes.end()});
        _patients->saveSplit();
    }
    prefs_Set_MainWindowGeometry(saveGeometry());
    postMainWindowChange(true);
}

void ZELMainWindowController::dragEnterEvent(QDragEnterEvent* event)
{
    if (!PathsOfDrag(*event->mimeData()).empty())
        event->acceptProposedAction();
}

void ZELMainWindowController::dropEvent(QDropEvent* event)
{
    event->acceptProposedAction();
    _app->openPaths(PathsOfDrag(*event->mimeData()));
}

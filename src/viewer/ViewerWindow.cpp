#include "viewer/ViewerWindow.h"

#include "app/views/SequenceMime.h"
#include "dicom_core/imaging/LoadFrame.h"
#include "dicom_core/opening/PathNames.h"
#include "dicom_core/opening/ZELDcmTree.h"
#include "viewer/DocumentIcon.h"
#include "viewer/DroppedPaths.h"
#include "viewer/ViewerCommands.h"
#include "viewer/ViewerMenus.h"
#include "viewer/ViewerWords.h"

#include <QDragEnterEvent>
#include <QHeaderView>
#include <QLabel>
#include <QLocale>
#include <QMimeData>
#include <QScreen>
#include <QSignalBlocker>
#include <QSplitter>
#include <QStatusBar>
#include <QToolBar>
#include <QTreeView>
#include <filesystem>

namespace {

constexpr int kLabelMargin = 6;         // view points, left and right
constexpr int kListWidth = 300;         // view points, at first
constexpr QSize kFirstSize(1000, 800);  // view points, where the screen has room

}  // namespace

ViewerWindow::ViewerWindow(ViewerCommands* commands, std::unique_ptr<ZELDcmTree> tree,
                           const std::string& represented, const ZELRecentDocument& document)
    : _commands(commands),
      _document(document),
      _tree(std::move(tree)),
      _pane(new GridsPane(_tree.get(), this)),
      _sequences(RowsOfTree(*_tree)),
      _list(new QTreeView(this)),
      _file(addStatusLabel(true)),
      _frame(addStatusLabel(false)),
      _window(addStatusLabel(false))
{
    setWindowTitle(WindowTitleText(DisplayName(represented)));
    setAcceptDrops(true);
    AddFileMenu(this, commands);
    AddViewMenus(this, _pane);
    layOut();
    _pane->view()->becomeFirstResponder();
    _pane->targetChanged = [this](dk_SequenceBase* sequence) {
        const QSignalBlocker blocker(_list->selectionModel());
        _list->setCurrentIndex(_sequences.indexOf(sequence));
        _list->viewport()->update();
        updateStatus();
    };
    // Queued: labels are not changed while cells are being painted.
    connect(_pane, &GridsPane::cellsPainted, this, &ViewerWindow::onPainted, Qt::QueuedConnection);
    // By the release, so that a press may begin a drag.
    connect(_list, &QTreeView::clicked, this, &ViewerWindow::showSequenceAt);
    connect(_list, &QTreeView::activated, this, &ViewerWindow::showSequenceAt);
    _sequences.dataOfDrag = [this](dk_SequenceBase* sequence) {
        return new SequenceMime(kTreeNodePasteboardType, _pane->proxyOf(sequence),
                                _pane->windowKey());
    };
    _pane->targetChanged(_pane->proxy() ? _pane->proxy()->theSequence() : nullptr);
    resize(kFirstSize.boundedTo(screen()->availableSize() * 0.9));
}

ViewerWindow::~ViewerWindow()
{
    // The widgets go after the members that they show.
    _list->setModel(nullptr);
    delete _pane;
    for (int row = 0; row < _sequences.rowCount(); ++row) {
        if (const TreeRow& shown = _sequences.treeRow(row); shown.IsSequence())
            ForgetBufferedFrames(shown.Sequence());
    }
}

void ViewerWindow::layOut()
{
    _frame->setToolTip(ViewerWord("Frame shown, and how many there are"));
    _pane->setAccessibleName(ViewerWord("Picture"));
    layOutList();
    auto* splitter = new QSplitter(this);
    splitter->addWidget(_list);
    splitter->addWidget(_pane);
    splitter->setStretchFactor(1, 1);
    splitter->setSizes({kListWidth, kFirstSize.width() - kListWidth});
    setCentralWidget(splitter);
    QToolBar* bar = addToolBar(ViewerWord("Tool Bar"));
    bar->setMovable(false);
    bar->addWidget(_pane->boxes());
}

void ViewerWindow::layOutList()
{
    _list->setAccessibleName(ViewerWord("Sequences"));
    _list->setModel(&_sequences);
    _list->setUniformRowHeights(true);  // or every title would be asked for at once
    _list->setRootIsDecorated(false);
    _list->setItemsExpandable(false);
    _list->setAllColumnsShowFocus(true);
    _list->setDragEnabled(true);
    _list->setDragDropMode(QAbstractItemView::DragOnly);
    // A click chooses; the keys go on paging frames.
    _list->setFocusPolicy(Qt::TabFocus);
    QHeaderView* header = _list->header();
    header->setResizeContentsPrecision(0);  // by the rows that show
    header->setStretchLastSection(false);
    header->setSectionResizeMode(QHeaderView::ResizeToContents);
    header->setSectionResizeMode(SequenceListModel::kTitle, QHeaderView::Stretch);
    header->setSectionsMovable(false);
    for (int row = 0; row < _sequences.rowCount(); ++row)
        if (!_sequences.treeRow(row).IsSequence())
            _list->setFirstColumnSpanned(row, {}, true);
}

void ViewerWindow::bringToFront()
{
    setWindowState(windowState() & ~Qt::WindowMinimized);
    raise();
    activateWindow();
}

QLabel* ViewerWindow::addStatusLabel(bool stretched)
{
    auto* label = new QLabel;
    label->setTextFormat(Qt::PlainText);
    label->setContentsMargins(kLabelMargin, 0, kLabelMargin, 0);
    if (stretched) {
        // A long name is shortened instead of widening the window.
        label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
        statusBar()->addWidget(label, 1);
    } else {
        statusBar()->addPermanentWidget(label);
    }
    return label;
}

void ViewerWindow::dragEnterEvent(QDragEnterEvent* event)
{
    if (!PathsOfDrag(*event->mimeData()).empty())
        event->acceptProposedAction();
}

void ViewerWindow::dropEvent(QDropEvent* event)
{
    event->acceptProposedAction();
    _commands->openPaths(PathsOfDrag(*event->mimeData()));
}

void ViewerWindow::closeEvent(QCloseEvent* event)
{
    QMainWindow::closeEvent(event);
    _commands->windowClosed();
}

void ViewerWindow::onPainted()
{
    updateStatus();
    _pane->boxes()->refresh();
    if (!_painted) {
        _painted = true;
        setWindowIcon(DocumentIcon(_document));  // late: reading icons takes longer than painting
    }
    if (_pane->view()->isSettled() && _whenPainted)
        std::exchange(_whenPainted, nullptr)();
}

void ViewerWindow::showSequenceAt(const QModelIndex& row)
{
    const TreeRow shown = row.isValid() ? _sequences.treeRow(row.row()) : TreeRow();
    if (shown.IsSequence())
        _pane->showSequence(shown.Sequence());
    updateStatus();
}

void ViewerWindow::updateStatus()
{
    const ZELSequenceProxy* proxy = _pane->proxy();
    if (!proxy || !proxy->isGood()) {
        _file->clear();
        _frame->setText(ViewerWord("There are no frames to show"));
        return setWindowText({});
    }
    const GridsPane::Caption caption = _pane->caption();
    setFileText(caption);
    const QLocale locale;
    const QString frame =
        ViewerWord("Frame %1 of %2")
            .arg(locale.toString(proxy->currentFrame()), locale.toString(proxy->totalFrames()));
    _frame->setText(frame);
    setWindowText(caption);
    _pane->view()->setAccessibleDescription(
        QStringList{_file->accessibleName(), frame, _window->text()}.join(QStringLiteral(", ")));
}

void ViewerWindow::setWindowText(const GridsPane::Caption& caption)
{
    QString text;
    if (caption.failed)
        text = ViewerWord("This frame can't be shown");
    else if (!caption.width.empty())
        text =
            ViewerWord("Window %1, level %2")
                .arg(QString::fromStdString(caption.width), QString::fromStdString(caption.level));
    _window->setText(text);
    _window->setVisible(!text.isEmpty());
    _window->setToolTip(!caption.width.empty() ? ViewerWord("Window width and level of this frame")
                                               : QString());
}

void ViewerWindow::setFileText(const GridsPane::Caption& caption)
{
    QString name = DisplayText(std::filesystem::path(caption.path).filename().native());
    if (caption.framesOfFile > 1 && caption.framesOfFile < _pane->proxy()->totalFrames()) {
        const QLocale locale;
        name =
            ViewerWord("%1 (%2 of %3)")
                .arg(name, locale.toString(caption.frame), locale.toString(caption.framesOfFile));
    }
    _file->setText(
        _file->fontMetrics().elidedText(name, Qt::ElideMiddle, _file->contentsRect().width()));
    _file->setAccessibleName(name);
    _file->setToolTip(PlainToolTip(DisplayText(caption.path)));
}

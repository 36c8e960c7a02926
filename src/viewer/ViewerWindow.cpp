#include "viewer/ViewerWindow.h"

#include "dicom_core/imaging/LoadFrame.h"
#include "dicom_core/opening/PathNames.h"
#include "dicom_core/opening/ZELDcmTree.h"
#include "viewer/DocumentIcon.h"
#include "viewer/DroppedPaths.h"
#include "viewer/FrameSteps.h"
#include "viewer/ViewerCommands.h"
#include "viewer/ViewerMenus.h"
#include "viewer/ViewerWords.h"

#include <QDragEnterEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLocale>
#include <QMimeData>
#include <QScreen>
#include <QSplitter>
#include <QStatusBar>
#include <QTreeView>
#include <cmath>
#include <filesystem>
#include <optional>

namespace {

constexpr int kLabelMargin = 6;         // view points, left and right
constexpr int kListWidth = 300;         // view points, at first
constexpr QSize kFirstSize(1000, 800);  // view points, where the screen has room

QString NumberText(double value)
{
    const bool whole = value == std::round(value);
    const int decimals = whole ? 0 : std::abs(value) < 10 ? 3 : 1;
    return QLocale().toString(value, 'f', decimals);
}

std::optional<FrameStep> StepForKey(int key)
{
    switch (key) {
        case Qt::Key_Up:
        case Qt::Key_Left:
            return FrameStep::Previous;
        case Qt::Key_Down:
        case Qt::Key_Right:
            return FrameStep::Next;
        case Qt::Key_PageUp:
            return FrameStep::TenBack;
        case Qt::Key_PageDown:
            return FrameStep::TenOn;
        case Qt::Key_Home:
            return FrameStep::First;
        case Qt::Key_End:
            return FrameStep::Last;
        default:
            return std::nullopt;
    }
}

}  // namespace

ViewerWindow::ViewerWindow(ViewerCommands* commands, std::unique_ptr<ZELDcmTree> tree,
                           const std::string& represented, const ZELRecentDocument& document)
    : _commands(commands),
      _document(document),
      _tree(std::move(tree)),
      _sequences(RowsOfTree(*_tree)),
      _list(new QTreeView(this)),
      _view(new MUPhotoView(this)),
      _file(addStatusLabel(true)),
      _frame(addStatusLabel(false)),
      _window(addStatusLabel(false))
{
    setWindowTitle(WindowTitleText(DisplayName(represented)));
    setAcceptDrops(true);
    AddFileMenu(this, commands);
    layOut();
    _view->setDelegate(&_delegate);
    _view->setFocus();
    // Queued: labels are not changed while cells are being painted.
    connect(_view, &MUPhotoView::cellsPainted, this, &ViewerWindow::onPainted,
            Qt::QueuedConnection);
    connect(_list->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            &ViewerWindow::showSequenceAt);
    _list->setCurrentIndex(_sequences.firstSequence());
    resize(kFirstSize.boundedTo(screen()->availableSize() * 0.9));
}

ViewerWindow::~ViewerWindow()
{
    // The widgets go after the members that they show.
    _view->setDelegate(nullptr);
    _list->setModel(nullptr);
    for (int row = 0; row < _sequences.rowCount(); ++row) {
        if (const TreeRow& shown = _sequences.treeRow(row); shown.IsSequence())
            ForgetBufferedFrames(shown.Sequence());
    }
}

void ViewerWindow::layOut()
{
    _frame->setToolTip(ViewerWord("Frame shown, and how many there are"));
    _view->setAccessibleName(ViewerWord("Picture"));
    layOutList();
    auto* splitter = new QSplitter(this);
    splitter->addWidget(_list);
    splitter->addWidget(_view);
    splitter->setStretchFactor(1, 1);
    splitter->setSizes({kListWidth, kFirstSize.width() - kListWidth});
    setCentralWidget(splitter);
}

void ViewerWindow::layOutList()
{
    _list->setAccessibleName(ViewerWord("Sequences"));
    _list->setModel(&_sequences);
    _list->setUniformRowHeights(true);  // or every title would be asked for at once
    _list->setRootIsDecorated(false);
    _list->setItemsExpandable(false);
    _list->setAllColumnsShowFocus(true);
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

void ViewerWindow::keyPressEvent(QKeyEvent* event)
{
    const bool plain = !(event->modifiers() & ~(Qt::KeypadModifier | Qt::ShiftModifier));
    const auto step = plain ? StepForKey(event->key()) : std::nullopt;
    if (!step)
        return QMainWindow::keyPressEvent(event);
    const int count = _view->matrix().photoCount();
    if (count > 0)
        _view->scrollToPhotoAtIndex(SteppedIndex(*step, _view->firstVisibleIndex(), count));
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
    if (!_painted) {
        _painted = true;
        setWindowIcon(DocumentIcon(_document));  // late: reading icons takes longer than painting
    }
    if (_view->isSettled() && _whenPainted)
        std::exchange(_whenPainted, nullptr)();
}

void ViewerWindow::showSequenceAt(const QModelIndex& row)
{
    const TreeRow shown = row.isValid() ? _sequences.treeRow(row.row()) : TreeRow();
    _delegate.setSequence(shown.IsSequence() ? shown.Sequence() : nullptr);
    _view->setDelegate(&_delegate);  // it has other photos now
    _view->scrollToPhotoAtIndex(0);
    updateStatus();
}

void ViewerWindow::updateStatus()
{
    const int count = _delegate.photoCountForPhotoView();
    if (count == 0) {
        _file->clear();
        _frame->setText(ViewerWord("There are no frames to show"));
        return setWindowText({});
    }
    const int index = _view->firstVisibleIndex();
    const SequenceDelegate::Caption caption = _delegate.captionAtIndex(index);
    setFileText(caption);
    const QLocale locale;
    const QString frame =
        ViewerWord("Frame %1 of %2").arg(locale.toString(index + 1), locale.toString(count));
    _frame->setText(frame);
    setWindowText(caption);
    _view->setAccessibleDescription(
        QStringList{_file->accessibleName(), frame, _window->text()}.join(QStringLiteral(", ")));
}

void ViewerWindow::setWindowText(const SequenceDelegate::Caption& caption)
{
    QString text;
    if (caption.failed)
        text = ViewerWord("This frame can't be shown");
    else if (caption.hasWindow)
        text = ViewerWord("Window %1, level %2")
                   .arg(NumberText(caption.width), NumberText(caption.level));
    _window->setText(text);
    _window->setVisible(!text.isEmpty());
    _window->setToolTip(caption.hasWindow ? ViewerWord("Window width and level of this frame")
                                          : QString());
}

void ViewerWindow::setFileText(const SequenceDelegate::Caption& caption)
{
    QString name = DisplayText(std::filesystem::path(caption.path).filename().native());
    if (caption.framesOfFile > 1 && caption.framesOfFile < _delegate.photoCountForPhotoView()) {
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

#include "viewer/ViewerWindow.h"

#include "util/Log.h"

#include <QAction>
#include <QCoreApplication>
#include <QIcon>
#include <QKeyEvent>
#include <QLabel>
#include <QLocale>
#include <QPixmap>
#include <QScreen>
#include <QStatusBar>
#include <cmath>
#include <filesystem>
#include <optional>

namespace {

constexpr std::chrono::milliseconds kHeaderSlice{8};  // half a screen refresh
constexpr int kLabelMargin = 6;                       // view points, left and right
constexpr QSize kFirstSize(1000, 800);                // view points, where the screen has room

QString Words(const char* key) { return QCoreApplication::translate("Viewer", key); }

QString DisplayText(std::string_view bytes) { return QString::fromStdString(EscapedText(bytes)); }

// A tool tip would take a name with markup in it for rich text.
QString PlainToolTip(const QString& text)
{
    return QStringLiteral("<span>%1</span>").arg(text.toHtmlEscaped());
}

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

ViewerWindow::ViewerWindow(FrameListDelegate* delegate)
    : _delegate(delegate),
      _view(new MUPhotoView(this)),
      _file(addStatusLabel(true)),
      _frame(addStatusLabel(false)),
      _window(addStatusLabel(false))
{
    _frame->setToolTip(Words("Frame shown, and how many there are"));
    _view->setAccessibleName(Words("Picture"));
    // The bar is there from the start when there will be more, so that no picture has to move.
    _view->setVerticalScrollBarPolicy(delegate->allHeadersRead() ? Qt::ScrollBarAsNeeded
                                                                 : Qt::ScrollBarAlwaysOn);
    _view->setDelegate(delegate);
    setCentralWidget(_view);
    _view->setFocus();

    auto* close = new QAction(Words("Close"), this);
    close->setShortcuts({QKeySequence::Close, QKeySequence::Quit});
    connect(close, &QAction::triggered, this, &QWidget::close);
    addAction(close);

    // Queued: labels are not changed while cells are being painted.
    connect(_view, &MUPhotoView::cellsPainted, this, &ViewerWindow::onPainted,
            Qt::QueuedConnection);
    connect(&_headers, &QTimer::timeout, this, &ViewerWindow::readMoreHeaders);
    resize(kFirstSize.boundedTo(screen()->availableSize() * 0.9));
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

void ViewerWindow::onPainted()
{
    updateStatus();
    if (!_painted) {
        _painted = true;
        setWindowIcon(QIcon(QStringLiteral(":/icons/zelora-viewer.svg")));
        _headers.start(0);
    }
    const bool settled = _delegate->allHeadersRead() && _view->isSettled();
    if (settled && !_headers.isActive() && !_snapshotPath.isEmpty())
        saveSnapshot();
}

void ViewerWindow::readMoreHeaders()
{
    _delegate->readHeaders(kHeaderSlice);
    _view->updatePhotoCount();
    updateStatus();
    if (!_delegate->allHeadersRead())
        return;
    _headers.stop();
    if (_delegate->frames().FrameCount() == 0) {
        LogLine("zelora-viewer: nothing could be opened");
        return QCoreApplication::exit(1);
    }
    _view->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    _view->viewport()->update();  // whoever waits for the finished window hears of it
}

void ViewerWindow::updateStatus()
{
    const int count = _view->matrix().photoCount();
    if (count == 0)
        return;
    const int index = _view->firstVisibleIndex();
    const FrameListDelegate::Caption caption = _delegate->captionAtIndex(index);
    setFileText(caption);
    const QLocale locale;
    QString frame = Words("Frame %1 of %2").arg(locale.toString(index + 1), locale.toString(count));
    if (!_delegate->allHeadersRead())
        frame += QChar(0x2026);  // still counting
    _frame->setText(frame);
    setWindowText(caption);
    _view->setAccessibleDescription(
        QStringList{_file->accessibleName(), frame, _window->text()}.join(QStringLiteral(", ")));
}

void ViewerWindow::setWindowText(const FrameListDelegate::Caption& caption)
{
    QString text;
    if (caption.failed)
        text = Words("This frame can't be shown");
    else if (caption.hasWindow)
        text =
            Words("Window %1, level %2").arg(NumberText(caption.width), NumberText(caption.level));
    _window->setText(text);
    _window->setVisible(!text.isEmpty());
    _window->setToolTip(caption.hasWindow ? Words("Window width and level of this frame")
                                          : QString());
}

void ViewerWindow::setFileText(const FrameListDelegate::Caption& caption)
{
    QString name = DisplayText(std::filesystem::path(caption.path).filename().native());
    if (caption.framesOfFile > 1 && _delegate->frames().FileCount() > 1) {
        const QLocale locale;
        name =
            Words("%1 (%2 of %3)")
                .arg(name, locale.toString(caption.frame), locale.toString(caption.framesOfFile));
    }
    _file->setText(
        _file->fontMetrics().elidedText(name, Qt::ElideMiddle, _file->contentsRect().width()));
    _file->setAccessibleName(name);
    _file->setToolTip(PlainToolTip(DisplayText(caption.path)));
}

void ViewerWindow::saveSnapshot()
{
    const QString path = std::exchange(_snapshotPath, QString());
    const bool saved = grab().save(path, "PNG");
    if (!saved)
        LogLine("zelora-viewer: can't save a picture as " + path.toStdString());
    QCoreApplication::exit(saved ? 0 : 1);
}

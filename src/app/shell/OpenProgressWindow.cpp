#include "app/shell/OpenProgressWindow.h"

#include "app/window/WindowWords.h"

#include <QCoreApplication>
#include <QGridLayout>
#include <QGuiApplication>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QScreen>
#include <cmath>

namespace {

constexpr int kMargin = 8, kGap = 3;  // view points

QLabel* NewLabel(QWidget* parent)
{
    auto* label = new QLabel(parent);
    label->setTextFormat(Qt::PlainText);
    // A long name is shortened instead of widening the window.
    label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    return label;
}

void SetText(QLabel* label, const QString& text)
{
    label->setText(label->fontMetrics().elidedText(text, Qt::ElideMiddle, label->width()));
    label->setAccessibleName(text);
}

}  // namespace

OpenProgressWindow::OpenProgressWindow(std::function<void()> cancel)
    : _cancel(std::move(cancel)),
      _title(NewLabel(this)),
      _label(NewLabel(this)),
      _subLabel(NewLabel(this)),
      _bar(new QProgressBar(this))
{
    setWindowModality(Qt::ApplicationModal);
    QFont bold = font();
    bold.setBold(true);
    _title->setFont(bold);
    _bar->setTextVisible(false);
    _bar->setAccessibleName(ViewerWord("Progress"));
    auto* button = new QPushButton(ViewerWord("Cancel"), this);
    button->setToolTip(ViewerWord("Stop opening (Escape)"));
    connect(button, &QPushButton::clicked, this, [this] { _cancel(); });

    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    grid->setVerticalSpacing(kGap);
    grid->addWidget(_title, 0, 0, 1, 2);
    grid->addWidget(_label, 1, 0, 1, 2);
    grid->addWidget(_bar, 2, 0);
    grid->addWidget(_subLabel, 3, 0);
    grid->addWidget(button, 2, 1, 2, 1, Qt::AlignVCenter);
    grid->setColumnStretch(0, 1);
}

void OpenProgressWindow::setTitle(const QString& title)
{
    setWindowTitle(WindowTitleText(title));
    SetText(_title, title);
}

void OpenProgressWindow::setLabel(const QString& text) { SetText(_label, text); }

void OpenProgressWindow::setSubLabel(const QString& text) { SetText(_subLabel, text); }

void OpenProgressWindow::setIndeterminate(bool indeterminate)
{
    _indeterminate = indeterminate;
    showBar();
}

void OpenProgressWindow::setLimits(std::int32_t minimum, std::int32_t maximum)
{
    _minimum = minimum;
    _maximum = maximum;
    showBar();
}

void OpenProgressWindow::setValue(double value)
{
    _value = value;
    showBar();
}

void OpenProgressWindow::setAnimated(bool animated)
{
    _animated = animated;
    showBar();
}

void OpenProgressWindow::showBar()
{
    if (_indeterminate) {
        // A bar without a range is drawn as one that moves.
        _bar->setRange(0, _animated ? 0 : 1);
        _bar->reset();
        return;
    }
    // Equal limits would be taken for no range.
    _bar->setRange(_minimum, _maximum > _minimum ? _maximum : _minimum + 1);
    _bar->setValue(static_cast<int>(std::lround(_value)));
}

void OpenProgressWindow::place(double x, double y, double width, double height)
{
    const QSize size(static_cast<int>(width), static_cast<int>(height));
    resize(size.expandedTo(minimumSizeHint()));
    const QScreen* primary = QGuiApplication::primaryScreen();
    move((primary ? primary->geometry().topLeft() : QPoint()) +
         QPoint(static_cast<int>(x), static_cast<int>(y)));
    layout()->activate();  // texts that come before it shows are shortened for its width
}

bool OpenProgressWindow::screenSize(double* width, double* height) const
{
    const QScreen* primary = QGuiApplication::primaryScreen();
    if (!primary)
        return false;
    *width = primary->geometry().width();
    *height = primary->geometry().height();
    return true;
}

void OpenProgressWindow::orderFront()
{
    show();
    raise();
    activateWindow();
}

void OpenProgressWindow::orderOut() { hide(); }

void OpenProgressWindow::processEvents()
{
    QCoreApplication::processEvents(isVisible() ? QEventLoop::AllEvents
                                                : QEventLoop::ExcludeUserInputEvents);
}

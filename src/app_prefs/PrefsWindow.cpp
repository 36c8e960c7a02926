#include "app_prefs/PrefsWindow.h"

#include "app_prefs/PrefsWords.h"
#include "prefs/Prefs.h"

#include <QActionGroup>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QShortcut>
#include <QShowEvent>
#include <QStackedWidget>
#include <QToolBar>
#include <QVBoxLayout>
#include <algorithm>

namespace {

constexpr QSize kIcon{32, 32};  // points

// As large as its pane, which it cuts on a small screen alone.
class PaneArea final : public QScrollArea {
public:
    using QScrollArea::QScrollArea;
    [[nodiscard]] QSize sizeHint() const override
    {
        return widget() ? widget()->sizeHint() : QScrollArea::sizeHint();
    }
};

}  // namespace

PrefsWindow::PrefsWindow()
    : _bar(new QToolBar), _group(new QActionGroup(this)), _stack(new QStackedWidget)
{
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    _bar->setIconSize(kIcon);
    _bar->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    _bar->setAccessibleName(PrefsWord("Panes"));
    layout->addWidget(_bar);
    layout->addWidget(_stack, 1);
    auto* closing = new QShortcut(QKeySequence::Close, this);
    connect(closing, &QShortcut::activated, this, &QWidget::close);
}

void PrefsWindow::addPane(PrefsPane* pane)
{
    QAction* action = _bar->addAction(pane->image(), pane->title());
    action->setCheckable(true);
    action->setShortcut(Qt::CTRL | static_cast<Qt::Key>(Qt::Key_1 + _panes.size()));
    action->setToolTip(
        PrefsWord("Pane tip")
            .arg(pane->windowTitle(), action->shortcut().toString(QKeySequence::NativeText)));
    _group->addAction(action);
    _bar->widgetForAction(action)->setFocusPolicy(Qt::TabFocus);
    connect(action, &QAction::triggered, this, [this, pane] { choose(pane); });
    auto* scroll = new PaneArea;
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setWidgetResizable(true);
    scroll->setWidget(pane);
    _stack->addWidget(scroll);
    // Return ends an edit; it must not press a button too.
    for (QPushButton* button : pane->findChildren<QPushButton*>())
        button->setAutoDefault(false);
    _panes.push_back(pane);
    if (_panes.size() == 1)
        choose(pane);
}

void PrefsWindow::showPane(const QString& identifier)
{
    const auto found = std::ranges::find(_panes, identifier, &PrefsPane::identifier);
    if (found != _panes.end())
        choose(*found);
}

void PrefsWindow::choose(PrefsPane* pane)
{
    const auto place = static_cast<int>(std::ranges::find(_panes, pane) - _panes.begin());
    pane->willBeDisplayed();
    _stack->setCurrentIndex(place);
    _group->actions().at(place)->setChecked(true);
    setWindowTitle(pane->windowTitle());
}

PrefsPane* PrefsWindow::currentPane() const
{
    const int place = _stack->currentIndex();
    return place < 0 ? nullptr : _panes[static_cast<std::size_t>(place)];
}

void PrefsWindow::bringUp(QWidget* near)
{
    if (!testAttribute(Qt::WA_Resized))  // adjustSize would stop at two thirds of the screen
        resize(sizeHint().boundedTo(screen()->availableSize()));
    if (near && !isVisible())
        move(near->window()->geometry().center() - rect().center());
    show();
    raise();
    activateWindow();
}

// What a window changed meanwhile shows too.
void PrefsWindow::showEvent(QShowEvent* event)
{
    if (PrefsPane* pane = currentPane(); pane && !event->spontaneous())
        pane->willBeDisplayed();
    QDialog::showEvent(event);
}

void PrefsWindow::hideEvent(QHideEvent* event)
{
    QDialog::hideEvent(event);
    prefs_Synchronize();
}

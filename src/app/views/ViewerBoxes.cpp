#include "app/views/ViewerBoxes.h"

#include "app/tools/ContextualMenus.h"
#include "app/views/MenuFromEntries.h"
#include "app/views/ToolIcons.h"
#include "platform/Words.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QToolButton>

namespace {

constexpr int kNumberColumns = 7, kFrameColumns = 13;  // digits

// A box's refresh, once there is one.
std::function<void()> Refresh(NumberBox*& box)
{
    return [&box] {
        if (box)
            box->refresh();
    };
}

}  // namespace

ViewerBoxes::ViewerBoxes(GridHost* host, ViewerActions* actions, QWidget* parent)
    : QWidget(parent),
      _host(host),
      _actions(actions),
      _zoom(host, actions, Refresh(_zoomBox)),
      _window(host, actions, [this] { refreshWindow(); }),
      _frame(host, Refresh(_frameBox))
{
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins({});
    _zoomBox = addBox("Zoom",
                      {[this] { return _zoom.text(); }, [this] { return _zoom.mayEdit(); },
                       [this](const QString& typed) { return _zoom.textShouldEndEditing(typed); },
                       [this](const QString& typed) { _zoom.changeZoomValue(typed); },
                       [this] { return _zoom.updateZoomMenu(); }},
                      kNumberColumns);
    addZoomButtons();
    row->addWidget(_brightnessLabel = new QLabel);
    _brightnessBox = addWindowBox(ZELWWWLTextBoxController::Box::Brightness, false);
    row->addWidget(_contrastLabel = new QLabel);
    _contrastBox = addWindowBox(ZELWWWLTextBoxController::Box::Contrast, true);
    _frameBox = addBox("Frame",
                       {[this] { return _frame.text(); }, [this] { return _frame.mayEdit(); },
                        [this](const QString& typed) { return _frame.textShouldEndEditing(typed); },
                        [this](const QString& typed) { _frame.dothething(typed); }, nullptr},
                       kFrameColumns);
    addGridSetupMenu();
    row->addStretch(1);
    refreshWindow();
    refreshButtons();
}

NumberBox* ViewerBoxes::addBox(const char* name, NumberBox::Controller controller, int columns)
{
    auto* box = new NumberBox(std::move(controller), columns);
    const QString word = ZelWord(kWordsMenuItems, name);
    box->field()->setAccessibleName(word);
    box->field()->setToolTip(word);
    if (QToolButton* button = box->menuButton()) {
        button->setAccessibleName(word);
        button->setToolTip(word);
    }
    connect(box, &NumberBox::done, this, &ViewerBoxes::done);
    layout()->addWidget(box);
    return box;
}

NumberBox* ViewerBoxes::addWindowBox(ZELWWWLTextBoxController::Box box, bool menu)
{
    NumberBox::Controller controller{
        [this, box] { return _window.text(box); }, [this] { return _window.mayEdit(); },
        [this, box](const QString& typed) { return _window.textShouldEndEditing(box, typed); },
        [this, box](const QString& typed) { _window.changeWWWLValue(box, typed); }, nullptr};
    if (menu)
        controller.menu = [this] { return _window.updateWWWLMenu(); };
    return addBox("Window", std::move(controller), kNumberColumns);
}

void ViewerBoxes::refreshWindow()
{
    using Box = ZELWWWLTextBoxController::Box;
    for (const auto& [box, which, label] :
         {std::tuple{_brightnessBox, Box::Brightness, _brightnessLabel},
          std::tuple{_contrastBox, Box::Contrast, _contrastLabel}}) {
        if (!box || !label)
            continue;
        const QString tip = _window.toolTipOf(which);
        box->field()->setToolTip(tip);
        box->field()->setAccessibleName(tip);
        label->setText(ZelWord(kWordsMenuItems, _window.imageOf(which)));
        label->setToolTip(tip);
        box->refresh();
    }
}

// The segments of one control: a step down, actual size, a step up.
void ViewerBoxes::addZoomButtons()
{
    struct Segment {
        const char *icon, *title;
    };
    constexpr Segment kSegments[] = {
        {"zoom_out", "Reduce"}, {"zoom_actual", "Normal Size"}, {"zoom_in", "Enlarge"}};
    for (int i = 0; const Segment& segment : kSegments) {
        QToolButton* button = addButton(segment.title);
        button->setIcon(ToolIcon(QLatin1String(segment.icon)));
        connect(button, &QToolButton::clicked, this, [this, i] {
            _actions->doSegmentZoom(i);
            refresh();
        });
        _zoomButtons[static_cast<std::size_t>(i++)] = button;
    }
}

void ViewerBoxes::addGridSetupMenu()
{
    gridSetupMenu = addButton("Image Grid");
    gridSetupMenu->setObjectName(QStringLiteral("gridSetupMenu"));
    gridSetupMenu->setPopupMode(QToolButton::InstantPopup);
    auto* menu = new QMenu(gridSetupMenu);
    connect(menu, &QMenu::aboutToShow, menu,
            [this, menu] { FillMenu(menu, SubmenuOfActiveGrid(*_host, *_actions, "Image Grid")); });
    gridSetupMenu->setMenu(menu);
}

QToolButton* ViewerBoxes::addButton(const char* title)
{
    auto* button = new QToolButton;
    const QString word = ZelWord(kWordsMenuItems, title);
    button->setAccessibleName(word);
    button->setToolTip(word);
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::TabFocus);
    layout()->addWidget(button);
    return button;
}

void ViewerBoxes::refreshButtons()
{
    auto* grid = _host->activeSequenceGridController();
    if (!grid || !gridSetupMenu)
        return;
    const GridTarget target{grid, _host, _actions};
    for (std::size_t i = 0; const GridCommand command :
                            {GridCommand::Reduce, GridCommand::NormalSize, GridCommand::Enlarge})
        _zoomButtons[i++]->setEnabled(StateOfGridCommand(command, target).enabled);
    gridSetupMenu->setEnabled(grid->curr_dkSequence());
    gridSetupMenu->setText(QStringLiteral("%1 × %2")
                               .arg(grid->viewport().gridRows())
                               .arg(grid->viewport().gridCols()));
}

void ViewerBoxes::refresh()
{
    refreshButtons();
    for (NumberBox* box : {_zoomBox, _brightnessBox, _contrastBox, _frameBox})
        box->refresh();
}

void ViewerBoxes::retarget()
{
    _zoom.retarget();
    _window.retarget();
    _frame.retarget();
    refreshButtons();
}

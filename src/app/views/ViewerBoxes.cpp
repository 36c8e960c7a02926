#include "app/views/ViewerBoxes.h"

#include "platform/Words.h"

#include <QHBoxLayout>
#include <QLabel>
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
    row->addWidget(_brightnessLabel = new QLabel);
    _brightnessBox = addWindowBox(ZELWWWLTextBoxController::Box::Brightness, false);
    row->addWidget(_contrastLabel = new QLabel);
    _contrastBox = addWindowBox(ZELWWWLTextBoxController::Box::Contrast, true);
    _frameBox = addBox("Frame",
                       {[this] { return _frame.text(); }, [this] { return _frame.mayEdit(); },
                        [this](const QString& typed) { return _frame.textShouldEndEditing(typed); },
                        [this](const QString& typed) { _frame.dothething(typed); }, nullptr},
                       kFrameColumns);
    row->addStretch(1);
    refreshWindow();
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

void ViewerBoxes::refresh()
{
    for (NumberBox* box : {_zoomBox, _brightnessBox, _contrastBox, _frameBox})
        box->refresh();
}

void ViewerBoxes::retarget()
{
    _zoom.retarget();
    _window.retarget();
    _frame.retarget();
}

// The boxes of a window's secondary tool bar: zoom with its steps, window width and level, frame,
// the rows and columns of frames. They show the active grid's values and follow them by themselves.
// Main thread only.
#pragma once
#include "app/tools/ZELFrameTextBoxController.h"
#include "app/tools/ZELWWWLTextBoxController.h"
#include "app/tools/ZELZoomTextBoxController.h"
#include "app/views/NumberBox.h"

#include <array>

class QLabel;
class QToolButton;

class ViewerBoxes final : public QWidget {
    Q_OBJECT

public:
    // Both outlive the boxes.
    ViewerBoxes(GridHost* host, ViewerActions* actions, QWidget* parent = nullptr);

    void retarget();  // the active grid has changed without a word
    void refresh();   // a frame's window and fitted zoom are known once it has been painted
    [[nodiscard]] NumberBox* zoomBox() const { return _zoomBox; }
    [[nodiscard]] NumberBox* brightnessBox() const { return _brightnessBox; }
    [[nodiscard]] NumberBox* contrastBox() const { return _contrastBox; }
    [[nodiscard]] NumberBox* frameBox() const { return _frameBox; }
    [[nodiscard]] ZELWWWLTextBoxController& windowController() { return _window; }

signals:
    void done();  // an edit has ended

private:
    NumberBox* addBox(const char* name, NumberBox::Controller controller, int columns);
    NumberBox* addWindowBox(ZELWWWLTextBoxController::Box box, bool menu);
    QToolButton* addButton(const char* title);
    void addZoomButtons();
    void addGridSetupMenu();
    void refreshWindow();
    void refreshButtons();

    GridHost* _host;
    ViewerActions* _actions;
    ZELZoomTextBoxController _zoom;
    ZELWWWLTextBoxController _window;
    ZELFrameTextBoxController _frame;
    NumberBox *_zoomBox = nullptr, *_brightnessBox = nullptr, *_contrastBox = nullptr,
              *_frameBox = nullptr;
    std::array<QToolButton*, 3> _zoomButtons{};
    QToolButton* gridSetupMenu = nullptr;
    QLabel *_brightnessLabel = nullptr, *_contrastLabel = nullptr;
};

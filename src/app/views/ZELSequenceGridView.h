// One grid on the screen: paints its cells, takes the keyboard's focus, and hands the mouse on to
// the tools. What keys do, menus and drags of sequences are the concern of the classes that derive
// from it. Main thread only.
#pragma once
#include "app/draw/GridDrawing.h"
#include "app/grid/FrameNavigation.h"
#include "app/grid/ViewerActions.h"
#include "app/tools/GridMouse.h"
#include "app/views/MUPhotoView.h"

class ZELSequenceGridView : public MUPhotoView, public GridSurface {
    Q_OBJECT

public:
    using Grid = ZELSequenceGridViewModelController;

    // Who decides what the user's wishes come to. All outlive the view.
    struct Links {
        Grid* grid;
        const ZELToolsController* tools;
        FrameNavigation* navigation;
        ViewerActions* actions;
        ShapeGestures* gestures = nullptr;  // null while there are no measurements to make
    };
    ZELSequenceGridView(const Links& links, QWidget* parent = nullptr);
    ~ZELSequenceGridView() override;

    [[nodiscard]] Grid& sequenceGridController() const { return *_links.grid; }
    [[nodiscard]] ZELSequenceProxy* theGridSequence() const;
    void setLook(const GridLook& look);
    [[nodiscard]] const GridLook& look() const { return _look; }
    void drawRect(QPainter* painter, const QRectF& dirty) override;

    // Takes the keyboard, and makes its grid the active one. Refused while it plays or is empty.
    void becomeFirstResponder();
    [[nodiscard]] bool acceptsFirstResponder() const;
    // A click that only brings an inactive window forward would move a selected measurement.
    [[nodiscard]] bool acceptsFirstMouse() const;

    void setNeedsDisplay() override { viewport()->update(); }
    void setNeedsDisplayForFrame(std::int32_t frame) override;
    void viewportDidChange() override { syncScrollBar(); }
    void updateTrackingAreas() override;
    void closePendingMeasurements(bool close) override;
    void stopEditing() override;
    [[nodiscard]] bool inLiveResize() const override { return !isSettled(); }

protected:
    [[nodiscard]] const Links& links() const { return _links; }
    [[nodiscard]] GridViewport* cells() override;
    void contentDidResize(const QSizeF& size, double pixelRatio) override;
    void boundsDidChange() override;
    void wheelBy(int steps) override;

    void wheelEvent(QWheelEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

    // A right click that didn't become a drag.
    virtual void rightClicked(const QPointF& /*point*/) {}
    // The mouse left the place of a press that may drag the sequence.
    virtual void dragSequence() {}

private:
    void press(const QMouseEvent& event, bool doubleClick);
    void tellOfFocus();
    void zoomAbout(const QPointF& point, int steps);
    void updateCursor(const QPointF& point);

    Links _links;
    GridMouse _mouse;
    GridLook _look;
    bool isActivateClick = false;  // the press at hand gave the view the focus
};

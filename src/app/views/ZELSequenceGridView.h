// One grid on the screen: paints its cells, and hands keys, wheel and mouse on to the grid's model,
// to the tools and to the window's commands. Main thread only.
#pragma once
#include "app/draw/GridDrawing.h"
#include "app/grid/FrameNavigation.h"
#include "app/grid/ViewerActions.h"
#include "app/tools/GridMouse.h"
#include "app/views/MUPhotoView.h"

#include <optional>

class ZELSequenceGridView final : public MUPhotoView, public GridSurface {
    Q_OBJECT

public:
    using Grid = ZELSequenceGridViewModelController;

    // Who decides what the user's wishes come to. All outlive the view.
    struct Links {
        Grid* grid;
        const ZELToolsController* tools;
        FrameNavigation* navigation;
        ViewerActions* actions;
    };
    ZELSequenceGridView(const Links& links, QWidget* parent = nullptr);
    ~ZELSequenceGridView() override;

    void setLook(const GridLook& look);
    [[nodiscard]] const GridLook& look() const { return _look; }
    void drawRect(QPainter* painter, const QRectF& dirty) override;

    void setNeedsDisplay() override { viewport()->update(); }
    void setNeedsDisplayForFrame(std::int32_t frame) override;
    void viewportDidChange() override { syncScrollBar(); }
    void updateTrackingAreas() override {}
    void closePendingMeasurements(bool /*close*/) override {}
    void stopEditing() override {}
    [[nodiscard]] bool inLiveResize() const override { return !isSettled(); }

signals:
    void tookFocus();

protected:
    [[nodiscard]] GridViewport* cells() override;
    void contentDidResize(const QSizeF& size, double pixelRatio) override;
    void boundsDidChange() override;
    void wheelBy(int steps) override;

    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;

private:
    void press(const QMouseEvent& event, bool doubleClick);
    void zoomAbout(const QPointF& point, int steps);

    Links _links;
    GridMouse _mouse;
    GridLook _look;
    bool isActivateClick = false;  // the press at hand gave the view the focus
};

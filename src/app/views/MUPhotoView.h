// A scrollable matrix of equal cells: keeps the scroll bar and a viewport of cells in step, and has
// what shows painted. What the cells hold is the concern of the classes that derive from it.
// Scrolls by whole rows. Main thread only.
#pragma once
#include "app/grid/GridViewport.h"
#include "app/views/WheelSteps.h"

#include <QAbstractScrollArea>
#include <QPointF>
#include <QTimer>

class MUPhotoView : public QAbstractScrollArea {
    Q_OBJECT

public:
    explicit MUPhotoView(QWidget* parent = nullptr);

    // No resizing is going on, during which photos may show in a lower quality.
    [[nodiscard]] bool isSettled() const { return !_liveResize.isActive(); }
    // Off: the view stays black, until its turn comes.
    void setShowsCells(bool shows);
    [[nodiscard]] bool showsCells() const { return _showsCells; }
    // Paints what of the matrix shows in `dirty`, a part of the visible area, whose top left corner
    // is the painter's origin.
    virtual void drawRect(QPainter* painter, const QRectF& dirty) = 0;

signals:
    void cellsPainted();

protected:
    // The cells, or null while there are none.
    [[nodiscard]] virtual GridViewport* cells() = 0;
    // The visible area has another size, or another number of device pixels a point.
    virtual void contentDidResize(const QSizeF& size, double pixelRatio) = 0;
    // Another row is the first that shows now.
    virtual void boundsDidChange() = 0;
    // Whole steps of the wheel, above 0 away from the user.
    virtual void wheelBy(int steps) = 0;

    void syncScrollBar();

    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;

    QPointF mouseDownPoint;          // of the last press
    bool potentialDragDrop = false;  // that press may become a drag of what the view shows

private:
    void layOutScrollBar();

    WheelSteps _wheel;
    bool _showsCells = true;
    bool _syncing = false;  // the scroll bar follows the cells
    QTimer _liveResize;     // runs while sizes keep changing
};

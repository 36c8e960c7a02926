// A scrollable matrix of equal cells that asks its delegate for the photos in them. Paints the
// cells that show and nothing else; scrolls by whole rows. Keys are left to whoever owns the view.
// View coordinates are those of the whole matrix, scrolled or not. Main thread only.
#pragma once
#include "app/grid/MUPhotoMatrix.h"
#include "app/views/MUPhotoViewDelegate.h"
#include "app/views/WheelSteps.h"

#include <QAbstractScrollArea>
#include <QColor>
#include <QPointF>
#include <QRect>
#include <QTimer>
#include <optional>

// How the cells look. Lengths are view points.
struct MUPhotoViewLook {
    QColor backgroundColor = Qt::black;
    QColor borderOutlineColor = Qt::darkGray;
    QColor selectionBorderColor = Qt::red;
    double selectionBorderWidth = 3.0;  // also the inset of a cell's content on each side
    double photoHorizontalSpacing = 0, photoVerticalSpacing = 0;
    bool useOutlineBorder = false;     // a thin line inside each cell
    bool useBorderSelection = false;   // a frame inside the selected cell
    bool useHighQualityResize = true;  // interpolate photos that don't come in their final size
};

class MUPhotoView : public QAbstractScrollArea {
    Q_OBJECT

public:
    explicit MUPhotoView(QWidget* parent = nullptr);

    // Not owned; it outlives the view or is taken away with null.
    void setDelegate(MUPhotoViewDelegate* delegate);
    [[nodiscard]] MUPhotoViewDelegate* delegate() const { return _delegate; }
    // The delegate has another number of photos. What shows stays where it is, unless it is gone.
    void updatePhotoCount();

    [[nodiscard]] const MUPhotoViewLook& look() const { return _look; }
    void setLook(const MUPhotoViewLook& look);
    // Rows and columns that fit the visible part; 1 by 1 at creation.
    void setVisibleCells(int rows, int columns);
    [[nodiscard]] int visibleRows() const { return _visibleRows; }
    [[nodiscard]] int visibleColumns() const { return _visibleColumns; }
    void setSelectedPhotoIndex(std::optional<int> index);

    [[nodiscard]] const MUPhotoMatrix& matrix() const { return _matrix; }
    // The cell at the origin, its own size, less `selectionBorderWidth` on each side.
    [[nodiscard]] QRectF cellContentRect() const;
    [[nodiscard]] int firstVisibleIndex() const;
    [[nodiscard]] QPointF viewPointFor(const QPointF& viewportPoint) const;
    void scrollToPhotoAtIndex(int index);
    void setNeedsDisplayForIndex(int index);
    // No resizing is going on, during which photos may show in a lower quality.
    [[nodiscard]] bool isSettled() const { return !_liveResize.isActive(); }

    // Paints what of the matrix shows in `dirty`, a part of the viewport, whose top left corner is
    // the painter's origin. `pixelRatio`: device pixels of the painter's device in a point.
    void drawRect(QPainter* painter, const QRectF& dirty, double pixelRatio);

signals:
    void firstVisibleIndexChanged(int index);
    void cellsPainted();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;

    QPointF mouseDownPoint;          // of the last press, view coordinates
    bool potentialDragDrop = false;  // that press may become a drag of what the view shows

private:
    void updateGrid();
    [[nodiscard]] QRect deviceRectForIndex(int index, double pixelRatio) const;
    void drawCell(QPainter* painter, int index, const QRect& cell, double pixelRatio);
    [[nodiscard]] MUPhoto photoFor(int index, double pixelRatio);
    [[nodiscard]] QRect drawPhoto(QPainter* painter, const MUPhoto& photo, const QRect& cell,
                                  double pixelRatio) const;
    void drawBorders(QPainter* painter, int index, const QRectF& cell) const;

    MUPhotoViewDelegate* _delegate = nullptr;
    MUPhotoViewLook _look;
    MUPhotoMatrix _matrix;
    WheelSteps _wheel;
    QTimer _liveResize;  // runs while sizes keep changing
    std::optional<int> _selectedPhotoIndex;
    int _visibleRows = 1, _visibleColumns = 1;
    int _loggedIndex = -1;  // the last that had no photo
};

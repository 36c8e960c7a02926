// The painting of a grid: its cells, each with its picture, the layers over it and its borders.
// Main thread only.
#pragma once
#include <QColor>
#include <QRectF>

class QPainter;
class ZELSequenceGridViewModelController;

struct GridLook {
    QColor backgroundColor = Qt::black;
    QColor borderOutlineColor = Qt::darkGray;
    QColor selectionBorderColor = Qt::red;
    double selectionBorderWidth = 3;   // points
    bool useOutlineBorder = false;     // a thin line inside each cell
    bool useBorderSelection = true;    // a frame inside the current frame's cell
    bool useHighQualityResize = true;  // interpolate pictures that are not in their final size
    bool toScreen = true;              // on paper the ground is white and nothing is selected
};

// Paints the cells that `dirty` touches, of a grid whose visible part has its top left corner at
// the painter's origin. A frame without picture shows a warning sign.
void DrawGrid(QPainter* painter, ZELSequenceGridViewModelController& grid, const QRectF& dirty,
              const GridLook& look);

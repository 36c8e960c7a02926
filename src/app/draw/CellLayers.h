// What lies over a frame's picture, in vector form, drawn fresh at each painting: on the screen, on
// paper, and over exported pictures, where there is no grid. Every function takes a painter in the
// view points of `geometry`, which must be that of the frame, and leaves it as it was. Main thread.
#pragma once
#include "app/grid/CellGeometry.h"

#include <QTransform>
#include <cstdint>

class QPainter;
class ZELSequenceGridViewModelController;
class ZELSequenceProxy;

struct CellLayer {
    QPainter* painter;
    ZELSequenceGridViewModelController* grid;  // null: for export
    const ZELSequenceProxy* proxy;
    std::int32_t frame;  // from 1
    CellGeometry geometry;
};

// Frame points to view points: turn, flips, zoom and pan in one.
[[nodiscard]] QTransform FrameToView(const CellGeometry& geometry);

// Frames of an ultrasound image's regions, and small squares at their reference pixels.
void U_DrawUSRegionsForSequence(const CellLayer& layer);
// The measurements of the frame, bottom to top; without a grid no crop and no handles.
void U_DrawMeasurementsForSequence(const CellLayer& layer);
// Reference lines of the active grid's frame; nothing without a grid.
void U_DrawLocalizersForFrame(const CellLayer& layer);
// The crop's outline, and a veil over what it cuts off.
void U_DrawCropForFrame(const CellLayer& layer);
// Text and ruler within `content`, a rectangle of the same view points.
void U_DrawDemographicsForSequence(const CellLayer& layer, const QRectF& content);

// The model behind one grid: which sequence it shows, how many rows and columns are seen, where its
// cells and frames lie, what a cell's picture is, and the commands on its measurements. The view
// forwards to it and paints what it answers.
//
// Cell indexes count from 0, frames from 1; cell i shows frame i + 1. A frame argument of 0 means
// the current frame. View points are those of GridViewport, frame points those of CellGeometry.
// Main thread only, but for `willDisplayImage`.
#pragma once
#include "Graphics/ShapeSequence.h"
#include "app/grid/CellGeometry.h"
#include "app/grid/CellPictures.h"
#include "app/grid/FramePixels.h"
#include "app/grid/FramePlane.h"
#include "app/grid/GridHost.h"
#include "app/grid/GridNotifications.h"
#include "app/grid/GridSurface.h"
#include "app/grid/GridViewport.h"
#include "app/grid/ZELSequenceProxy.h"

#include <unordered_map>

// The grid's shape as its sequence last had it.
struct ZELSequenceDisplayInfo {
    ZELSequenceProxy* _theSequence = nullptr;
    std::int32_t _numberRows = 1, _numberColumns = 1;
};

// A shape that a point hits, its position in the frame's list, and the handle that is hit, if one.
struct GraphicHit {
    CKShapePtr graphic;
    std::int32_t index = 0;
    ShapeHandle handle = kNoHandle;
};

// Where a navigation key leads.
enum class FrameStep { First, Previous, PreviousRow, PreviousPage, Next, NextRow, NextPage, Last };

class ZELSequenceGridViewModelController final : public ObservableKeys, public ShapeSurroundings {
public:
    explicit ZELSequenceGridViewModelController(GridHost* host, bool printing = false);
    ~ZELSequenceGridViewModelController() override;

    // ---- links ----

    void setGridView(GridSurface* view) { gridView = view; }
    [[nodiscard]] GridSurface* view() const { return gridView; }
    [[nodiscard]] GridHost* host() const { return _host; }
    void prepareToRelease();  // no links any more
    [[nodiscard]] bool isTheActiveGrid() const override;
    [[nodiscard]] bool windowIsReady() const;
    [[nodiscard]] bool windowIsUsable() const;  // ready, and not closing
    [[nodiscard]] bool printingGrid() const { return _printingGrid; }

    // ---- sequence and shape of the grid. Keys: "currZELSequence", "curr_dkSequence",
    // "gridSetupID", "inSingleFrameMode" ----

    [[nodiscard]] const std::shared_ptr<ZELSequenceProxy>& currZELSequence() const
    {
        return _currZELSequence;
    }
    [[nodiscard]] dk_SequenceBase* curr_dkSequence() const;
    void setCurrZELSequence(std::shared_ptr<ZELSequenceProxy> proxy);
    [[nodiscard]] const ZELSequenceDisplayInfo& sequenceDisplayInfo() const
    {
        return _sequenceDisplayInfo;
    }
    [[nodiscard]] GridViewport& viewport() { return _viewport; }
    [[nodiscard]] const GridViewport& viewport() const { return _viewport; }
    void setGridRowsTo(int rows, int columns, bool force);
    void setGridSetupID(int setup);  // of GridSetups.h, 0 to 9
    [[nodiscard]] int gridSetupID() const;
    [[nodiscard]] bool inSingleFrameMode() const { return gridSetupID() == 0; }
    void doubleClickOnPhotoAtIndex(int index);  // from the matrix to one frame, and back
    // The view has another size, or its sequence another number of frames.
    void U_UpdateGridSizeAndFrame(const QSizeF& content, double pixelRatio);
    [[nodiscard]] bool cineModeIsON() const { return _cineModeIsON; }
    void setCineModeIsON(bool on) { _cineModeIsON = on; }

    // ---- pictures ----

    [[nodiscard]] std::int32_t photoCountForPhotoView() const;
    // Rendered where that isn't done yet; a fast one is whatever there is, else the same.
    [[nodiscard]] CellPhoto photoAtIndex(int index);
    [[nodiscard]] CellPhoto fastPhotoAtIndex(int index);
    void removeFrameBufferForFrame(std::int32_t frame);
    void removeFrameBuffersForAllFrames() { _pictures.removeAll(); }
    [[nodiscard]] const CellPictures& pictures() const { return _pictures; }
    // Keeps the frame's cell record, and the zoom in the frame's own, in step with the view.
    void adjustSetupForFrame(std::int32_t frame);
    // How often the current frame's zoom changed while it was drawn.
    [[nodiscard]] std::int32_t fCellsZoomState() const { return _cellsZoomState; }
    // The movie layer shows a frame, from its own thread; 0 for none.
    void willDisplayImage(std::int32_t frame);
    void revealFileForFrame(std::int32_t frame);

    // ---- geometry ----

    [[nodiscard]] std::int32_t resolved(std::int32_t frame) const;  // 0 becomes the current one
    [[nodiscard]] CellGeometry geometryForFrame(std::int32_t frame) const;
    [[nodiscard]] QSizeF getCellContentSize() const;
    [[nodiscard]] QRectF cellContentRect() const;  // the cell at the origin, within its border
    [[nodiscard]] QRectF getCellContentRect(int index) const;
    [[nodiscard]] QSizeF imageSizeForFrame(std::int32_t frame) const;
    [[nodiscard]] QSizeF U_ScaledImageSizeForFrame(std::int32_t frame) const;
    [[nodiscard]] double U_ImageZoomForFrame(std::int32_t frame) const override;
    [[nodiscard]] double U_ActualZoomForFrame(std::int32_t frame) const;
    [[nodiscard]] bool U_FrameImageIsBiggerThanCellRect(std::int32_t frame) const;
    [[nodiscard]] QPointF getViewScrollMaxForCell(int index) const;
    [[nodiscard]] QPointF getTransformedScrollMaxForCell(int index) const;
    // The stored pan goes from minus to plus this, frame pixels.
    [[nodiscard]] QPointF U_GetViewScrollLimitsForViewFrame(std::int32_t frame) const;
    [[nodiscard]] QPointF U_GetCurrViewScrollForFrame(std::int32_t frame) const;
    [[nodiscard]] QRectF U_PsaxnoRectForFrame(std::int32_t frame) const;  // what shows of it
    // Where the image would lie in another cell, at the origin, of that size.
    [[nodiscard]] QRectF imageRectForFrameInCell(std::int32_t frame, const QSizeF& cell) const;
    [[nodiscard]] QPointF viewPointToFramePoint(const QPointF& point, std::int32_t frame) const;
    [[nodiscard]] QPointF framePointToViewPoint(const QPointF& point, std::int32_t frame) const;
    [[nodiscard]] QRectF viewRectToFrameRect(const QRectF& rect, std::int32_t frame) const;
    // A location in a rectangle of that size, as it lies before the record's flips and turn.
    [[nodiscard]] static QPointF reverseLocation(const QPointF& location,
                                                 const zel_TransformRec& record,
                                                 const QSizeF& size);
    // Frame points for locations in the rectangle of the image as it lies without a pan, whose top
    // left corner is 0.
    [[nodiscard]] QPointF viewPsaxnoLocToImageLoc(const QPointF& location,
                                                  std::int32_t frame) const;
    [[nodiscard]] QPointF U_RotateFlipScaleImagePoint(const QPointF& point,
                                                      std::int32_t frame) const;
    [[nodiscard]] QPointF U_ReverseGeomTransformDeltaPoint(const QPointF& delta,
                                                           std::int32_t frame) const;
    [[nodiscard]] QPointF U_ReverseGeomTransformDeltaScroll(const QPointF& delta,
                                                            std::int32_t frame) const;
    [[nodiscard]] QPointF geomTransformScrollPoint(const QPointF& scroll, std::int32_t frame) const;
    [[nodiscard]] QPointF U_DisplayDeltaToImageDelta_WithNoGeometryTrans(const QPointF& delta,
                                                                         std::int32_t frame) const;

    // ---- paging ----

    // Posts the request for another frame; the window decides.
    void U_SendNotificationForNewFrame(std::int32_t frame, CellChangeType type);
    void gotoFrame(FrameStep step);  // nothing where there is no such frame
    void U_ScrollGridToPhotoWithIndex(int index);
    void revealCurrentCell();

    // ---- measurements ----

    void deleteSelectedMeasurement();
    void deleteMeasurementInFrame(const CKShapePtr& shape, std::int32_t frame);
    void deleteAllFrameMeasurements();
    void deleteAllMeasurementsInFrame(std::int32_t frame);
    void deleteAllSequenceMeasurements();
    void bringMeasurementToFront(const CKShapePtr& shape);
    void bringMeasurementForward(const CKShapePtr& shape);
    void sendMeasurementToBack(const CKShapePtr& shape);
    void sendMeasurementBackwards(const CKShapePtr& shape);
    // In any frame; they count as moves to a position.
    void bringMeasurementToFrontInFrame(const CKShapePtr& shape, std::int32_t frame);
    void bringMeasurementForwardInFrame(const CKShapePtr& shape, std::int32_t frame);
    void sendMeasurementToBackInFrame(const CKShapePtr& shape, std::int32_t frame);
    void sendMeasurementBackwardsInFrame(const CKShapePtr& shape, std::int32_t frame);
    void moveMeasurementToPosition(const CKShapePtr& shape, std::int32_t position);
    void propagateCurrentMeasurement();
    void propagateMeasurement(const CKShapePtr& shape, std::int32_t frame);
    void makeEraserMeasurement();  // the current one becomes an opaque patch
    [[nodiscard]] GraphicHit graphicUnderPoint(const QPointF& viewPoint, bool preferSelected,
                                               std::int32_t frame) const;
    // The whole view for a global measurement, else its frame.
    void setNeedsDisplayForMeasurement(bool global, std::int32_t frame);
    // Appends the shape to every frame that lacks it, and makes it global.
    void appendToAllFrames(const CKShapePtr& shape);

    // ---- pixels ----

    [[nodiscard]] bool pixelColorInfoForPoint(const QPointF& point, std::int32_t frame,
                                              CKPixelInfo* info) override;
    [[nodiscard]] QvxStatus iteratePixelInRect(const QRectF& rect, std::int32_t frame,
                                               const CKPixelVisitor& visitor,
                                               CKMetricsParams* params) override;

    // ---- reference lines ----

    // The outlines of the active grid's frames as they lie on this grid's `frame`, frame points;
    // none where the lines don't apply.
    [[nodiscard]] std::vector<QLineF> localizersForFrame(std::int32_t frame);
    [[nodiscard]] const std::optional<FramePlane>& planeOfFrame(std::int32_t frame);

private:
    using StackMove = void (CKFrameShapesMgr::*)(const CKAdornedGraphic*);

    void forgetShapes();
    void watchProxy();
    void sequenceDidChange();
    [[nodiscard]] CKFrameShapesMgr* shapesOf(std::int32_t frame) const;
    void endGestures();
    void restack(const CKShapePtr& shape, std::int32_t frame, StackMove move,
                 MeasurementAction action);
    void post(MeasurementAction action, std::int32_t frame, const CKShapePtr& shape,
              std::int32_t previousPosition = 0);
    void currentFrameDidChange();
    void prepareNextFrames(std::int32_t direction);

    GridSurface* gridView = nullptr;  // not owned
    GridHost* _host;                  // not owned
    const bool _printingGrid;
    std::shared_ptr<ZELSequenceProxy> _currZELSequence;
    std::vector<ObservableKeys::Watch> _proxyWatches;
    ZELSequenceDisplayInfo _sequenceDisplayInfo;
    GridViewport _viewport;
    CellPictures _pictures;
    std::unordered_map<std::int32_t, std::optional<FramePlane>> _planes;  // read when first asked
    std::int32_t _frameBefore = 0;                                        // that was shown last
    std::int32_t _cellsZoomState = 0;
    bool _cineModeIsON = false;
    std::int32_t _cineFrame_LastPlayed = 0;
};

// The frame after a step from `current`; the same where there is none.
[[nodiscard]] std::int32_t FrameAfterStep(FrameStep step, std::int32_t current, std::int32_t total,
                                          int rows, int columns);
[[nodiscard]] CellChangeType ChangeTypeOf(FrameStep step);

// Free forms, for pictures outside of a grid. `content`: a cell within its border.
[[nodiscard]] QSizeF U_ScaledImageSize(const ZELSequenceProxy& proxy, std::int32_t frame,
                                       const QSizeF& content);
[[nodiscard]] QSizeF U_NonScaledImageSize(const ZELSequenceProxy& proxy, std::int32_t frame);
[[nodiscard]] double U_ActualZoomValue(const ZELSequenceProxy& proxy, std::int32_t frame,
                                       const QSizeF& content);
// The frame at U_NonScaledImageSize, kept nowhere; null, with a line in the log, when it can't be.
[[nodiscard]] QImage U_SequencePhotoAtIndex(const ZELSequenceProxy& proxy, std::int32_t frame);
// Frame, cell and device pixels a point; a frame that can't be read counts as one pixel.
[[nodiscard]] CellGeometry CellGeometryOf(const ZELSequenceProxy& proxy, std::int32_t frame,
                                          const QRectF& cell, double pixelRatio);

// A measurement: a drawable with a place on the frame, pixel sizes, a label, statistics, handles
// and a link to the grid that drew it last. What all shapes share; each kind is a class of its own.
//
// Frame coordinates are pixels of the frame at its aspect-corrected size, from its top left corner,
// y downward. Measurements live in memory only. A shape may stand in the lists of several frames;
// its life is told at CKFrameShapesMgr. Main thread only.
#pragma once
#include "Graphics/CKGraphic.h"
#include "Graphics/ShapeSequence.h"

#include <QFont>
#include <QPoint>
#include <QString>
#include <memory>

class CKAdornedGraphic;
class QPainter;
class QTransform;
using CKShapePtr = std::shared_ptr<CKAdornedGraphic>;

// Plain text in one font and colour.
struct ShapeText {
    QString text;
    QFont font;
    QColor color;
};

// A pointer of the screen: the name of its drawing, and the point of it that points.
struct ShapeCursor {
    QString image;
    QPoint hotSpot;
    bool operator==(const ShapeCursor&) const = default;
};
inline constexpr const char* kPointingHandCursor = "pointinghand";
inline constexpr const char* kCrosshairCursor = "crosshair";
inline constexpr const char* kNotAllowedCursor = "notallowed";

// Where the label stands by the shape's bounds.
enum class LabelPosition : std::int32_t { Above = 0, TopLeft = 1, BelowRight = 2 };

class CKAdornedGraphic : public CKGraphic {
public:
    // ---- what each kind answers ----

    [[nodiscard]] virtual std::uint32_t shapeType() const = 0;  // four-character code
    [[nodiscard]] virtual QString shapeInitial() const = 0;
    [[nodiscard]] virtual QString shapeName() const = 0;
    [[nodiscard]] virtual QString displayImage() const = 0;  // name of its icon
    [[nodiscard]] virtual QString measuredValueText() const = 0;
    [[nodiscard]] virtual double measuredValue() const { return 0; }
    [[nodiscard]] virtual QString labelText() const { return QStringLiteral("label text"); }
    [[nodiscard]] virtual QString statisticsPsaxno() const { return {}; }
    [[nodiscard]] virtual QString statisticsPsaxnoCalibrated() const { return {}; }
    // Heights for the statistics pane, points.
    [[nodiscard]] virtual double statsHeight() const { return 113; }
    [[nodiscard]] virtual double statsHeightBase() const { return 0; }
    [[nodiscard]] virtual double pixelArea() const { return 0; }
    [[nodiscard]] virtual double physicalArea() const { return 0; }
    [[nodiscard]] virtual bool isVoid() const;  // the base logs, and answers false
    [[nodiscard]] virtual bool isTooSmall() const { return false; }
    // It stands on something that is gone, and goes too.
    [[nodiscard]] virtual bool isRedundant() const { return false; }
    [[nodiscard]] virtual bool canBeDeleted() const { return true; }
    [[nodiscard]] virtual bool constrainOverImage() const { return true; }
    [[nodiscard]] virtual bool canSetStroke() const { return true; }
    [[nodiscard]] virtual bool canSetStrokeProperties() const { return true; }
    [[nodiscard]] virtual bool canSetDrawingStroke() const { return true; }
    [[nodiscard]] virtual bool canSetDrawingFill() const { return false; }
    [[nodiscard]] virtual bool canSetFill() const { return false; }
    [[nodiscard]] virtual bool canSetFillProperties() const { return false; }
    [[nodiscard]] virtual bool supportsEraserMode() const { return false; }
    [[nodiscard]] virtual bool supportsUSRegions() const { return true; }
    // Kinds that others treat in their own way.
    [[nodiscard]] virtual bool isStraight() const { return false; }  // the line and its kin
    [[nodiscard]] virtual bool isCalibrationLine() const { return false; }
    [[nodiscard]] virtual bool isPolygon() const { return false; }
    [[nodiscard]] virtual bool isCrop() const { return false; }
    [[nodiscard]] virtual bool drawsUpright() const { return false; }  // a text note
    [[nodiscard]] virtual bool isSameAngleAs(const CKAdornedGraphic& /*angle*/) const
    {
        return false;
    }

    // ---- gestures ----

    virtual void startTracking(const QPointF& point) { trackStartPoint = point; }
    [[nodiscard]] virtual QPointF constrainHandle(ShapeHandle /*handle*/,
                                                  const QPointF& location) const
    {
        return location;
    }
    virtual void onMeasurementRemoved(const CKAdornedGraphic& /*removed*/) {}
    virtual void endPendingEditing() {}
    // Moves the handle to the frame point; answers the handle that is held now, as a shape may be
    // turned over. The view point is for kinds that need it.
    virtual ShapeHandle resizeByMovingHandle(ShapeHandle handle, const QPointF& viewPoint,
                                             const QPointF& framePoint);
    void translateByXY(double dx, double dy);
    // Held within a frame of that size; the shape keeps its own.
    void translateInFrame(double dx, double dy, const QSizeF& frame);

    // ---- geometry, frame coordinates ----

    [[nodiscard]] virtual QRectF geometricBounds() const;
    [[nodiscard]] virtual QPointF pointOfHandle(ShapeHandle handle) const;
    [[nodiscard]] virtual ShapeHandle handleUnderPoint(const QPointF& point) const;
    [[nodiscard]] virtual bool isContentsUnderPoint(const QPointF& point) const;
    [[nodiscard]] bool isHandleAtPoint(const QPointF& handle, const QPointF& point) const override;
    [[nodiscard]] QRectF drawingBounds() const override;
    [[nodiscard]] const QPointF& shapeStart() const { return _shapeStart; }
    [[nodiscard]] const QPointF& shapeEnd() const { return _shapeEnd; }
    virtual void setShapeStart(const QPointF& point) { _shapeStart = point; }
    virtual void setShapeEnd(const QPointF& point) { _shapeEnd = point; }
    // Of the grid that drew it last, 1 without one; handles keep their size on screen by it.
    [[nodiscard]] double zoom() const;

    // ---- drawing: a painter whose coordinates are the frame's, turned, flipped and zoomed ----

    virtual void drawContentsInView(QPainter* painter, bool isBeingCreatedOrEdited) const;
    virtual void drawHandlesInView(QPainter* painter) const;
    void drawHandleInView(QPainter* painter, const QPointF& point) const;
    void drawCenterXInView(QPainter* painter, const QPointF& point) const;
    [[nodiscard]] QColor drawingStrokeColor() const;
    [[nodiscard]] virtual ShapeCursor cursorForHandle(ShapeHandle handle, bool forResize) const;
    [[nodiscard]] virtual ShapeCursor creationCursor() const;

    // ---- label: a painter in points of the cell, so that it stands upright beside the shape ----

    // Top left of the text, given how frame coordinates lie in those of the painter.
    [[nodiscard]] virtual QPointF labelDrawPoint(const QTransform& frameToCell) const;
    virtual void drawLabel(QPainter* painter, const QTransform& frameToCell) const;
    [[nodiscard]] ShapeText labelAttributedText() const;
    [[nodiscard]] QSizeF labelSize() const;  // points; in a bound of 3000 by 120
    [[nodiscard]] QString displayTitle() const;
    [[nodiscard]] ShapeText statisticsText() const;

    // ---- attributes as panes and menus set them ----

    [[nodiscard]] bool hasStrokeON() const { return isDrawingStroke(); }
    void setHasStrokeON(bool on) { setDrawingStroke(on); }
    [[nodiscard]] bool hasFillON() const { return isDrawingFill(); }
    void setHasFillON(bool on) { setDrawingFill(on); }
    [[nodiscard]] QString strokeWidthString() const;
    void setStrokeWidthString(const QString& text);
    [[nodiscard]] float strokeWidthCK() const { return strokeWidth(); }
    void setStrokeWidthCK(float width);  // turns the stroke on
    [[nodiscard]] QColor strokeColorCK() const { return strokeColor(); }
    void setStrokeColorCK(const QColor& color);
    [[nodiscard]] QColor fillColorCK() const { return fillColor(); }
    void setFillColorCK(const QColor& color);
    [[nodiscard]] float strokeOpacity() const { return static_cast<float>(strokeColor().alphaF()); }
    void setStrokeOpacity(float alpha);
    [[nodiscard]] float fillOpacity() const { return static_cast<float>(fillColor().alphaF()); }
    void setFillOpacity(float alpha);            // turns the fill on
    virtual void setColor(const QColor& color);  // dropped on it
    void setDescriptionPosition(LabelPosition position);
    [[nodiscard]] LabelPosition descriptionPosition() const { return _descriptionPosition; }

    // ---- pixel sizes and ultrasound regions ----

    [[nodiscard]] bool hasPixelCalibrationUnits() const
    {
        return fPixelSizeHorz != 0 || fPixelSizeVert != 0;
    }
    virtual void setPixelSizeHor(float horizontal, float vertical);  // mm a pixel, 0 unknown
    [[nodiscard]] float pixelSizeHorz() const { return fPixelSizeHorz; }
    [[nodiscard]] float pixelSizeVert() const { return fPixelSizeVert; }
    [[nodiscard]] bool belongsToRegion(const US_ROIRegDataRec& region) const;
    [[nodiscard]] const US_ROIRegDataRec* regionToUse() const;  // or null
    [[nodiscard]] bool needsRegionSpecificHandling() const { return regionToUse() != nullptr; }

    // ---- life ----

    // A new shape of the same class, with the other's drawing and label switches; its place, pixel
    // sizes and number are the caller's to set.
    [[nodiscard]] CKShapePtr copyWithZone() const;
    void addReference() { ++fRefCounter; }
    // `dispose` stays with the shape: true once any list asked for its end.
    void removeReference(bool dispose);
    void clearReferences() { fRefCounter = 0; }
    [[nodiscard]] std::int32_t references() const { return fRefCounter; }
    [[nodiscard]] bool isOrphan() const { return fRefCounter < 2; }
    [[nodiscard]] bool disposeIsPending() const { return fDisposeIsPending; }

    // Plain switches and links.
    ShapeSequence* _shapeSequence = nullptr;            // not owned
    ShapeSurroundings* _gridController = nullptr;       // not owned; null before the first drawing
    const US_ROIRegDataRec* _targetUSRegion = nullptr;  // chosen by the user, not owned
    bool _ignoresUSRegions = false;
    bool _shadowON = true;
    bool _canSetDrawingLabel = true, _canSetDrawingShadow = true;
    bool _hasDescription = true, _descriptionON = true;
    bool _fIsPending = false;  // being made, may still be dropped
    bool _fUseHandles = false;
    bool _eraserModeON = false;
    std::int32_t _countingIndex = 0;
    bool _showShortDescription = false, _showStats = true, _doCalculateStats = true;
    bool _global = false;  // the same object stands in every frame
    bool _selected = false, _expanded = false;
    bool _isNew = true;  // until propagated
    std::int32_t _theFrameIndex = 0;
    QPointF trackStartPoint;

protected:
    CKAdornedGraphic() = default;
    [[nodiscard]] virtual CKShapePtr newOfSameClass() const = 0;
    virtual void flipHorizontally() {}
    virtual void flipVertically() {}

private:
    ShapeHandle U_ResizeByMovingHandle(ShapeHandle handle, const QPointF& framePoint);

    LabelPosition _descriptionPosition = LabelPosition::Above;
    float fPixelSizeHorz = 0, fPixelSizeVert = 0;
    std::int32_t fRefCounter = 0;
    bool fDisposeIsPending = false;
    QPointF _shapeStart, _shapeEnd;
};

// The rectangle that two points span, in any order.
[[nodiscard]] QRectF U_ImageRectFromPoints(const QPointF& a, const QPointF& b);

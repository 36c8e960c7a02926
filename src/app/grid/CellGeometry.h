// Where a frame lies in its cell, and which of its pixels lies under a point: the one arithmetic
// of drawing, clicks, reference lines and shapes. View points are logical, from the view's top left
// corner downward. Frame points are pixels of the frame at its aspect-corrected size, before
// rotation, flip, zoom and pan; pixel i covers i to i + 1.
#pragma once
#include "dicom_core/look/zel_TransformRec.h"

#include <QPointF>
#include <QRectF>

inline constexpr double kCellInset = 3;  // room for the selection border, on each side

// A value; cheap to make. The record's rotation is 0, 90, 180 or 270 (another one counts as 0) and
// comes before the flips.
class CellGeometry {
public:
    // `frame`: the aspect-corrected size; an empty one counts as a pixel. `cell`: of the view.
    // `pixelRatio`: device pixels of a logical one; edges of the image lie on device pixels.
    CellGeometry(const zel_TransformRec& record, const QSizeF& frame, const QRectF& cell,
                 double pixelRatio);

    [[nodiscard]] QRectF contentRect() const;  // the cell within its border
    // The frame as it is turned, without zoom.
    [[nodiscard]] QSizeF imageSize() const { return fImage; }
    // The record's, or with auto-fit what shows all of the image in the content, at most 1.
    [[nodiscard]] double zoom() const { return fZoom; }
    [[nodiscard]] QSizeF scaledSize() const { return fImage * fZoom; }
    // In either axis, than the content.
    [[nodiscard]] bool isBiggerThanCell() const;

    // What the scaled image has beyond the content, half of it and all of it; 0 in an axis that
    // fits. The second in the axes of the frame as it is stored.
    [[nodiscard]] QPointF viewScrollMax() const;
    [[nodiscard]] QPointF transformedScrollMax() const;
    // The stored pan goes from minus to plus this, in frame pixels.
    [[nodiscard]] QPointF scrollLimit() const;
    // By how much the stored pan moves the image off its centred place in the view. An image is
    // held at the cell's edges: where it fits, it is centred whatever the pan says.
    [[nodiscard]] QPointF viewScroll() const { return fScroll; }

    // All of the image, on whole device pixels; it may reach beyond the cell.
    [[nodiscard]] QRectF imageRect() const { return fRect; }
    // The part of it that the cell shows.
    [[nodiscard]] QRectF shownRect() const { return fRect & fCell; }

    [[nodiscard]] QPointF framePointToViewPoint(const QPointF& point) const;
    // Also for points beyond the image.
    [[nodiscard]] QPointF viewPointToFramePoint(const QPointF& point) const;
    // Normalised: positive sizes.
    [[nodiscard]] QRectF viewRectToFrameRect(const QRectF& rect) const;

    // What a move in the view is for a point of the frame, without zoom; and for the stored pan,
    // whose quarter turns run the other way, in frame pixels.
    [[nodiscard]] QPointF viewDeltaToFrameDelta(const QPointF& delta) const;
    [[nodiscard]] QPointF viewDeltaToScrollDelta(const QPointF& delta) const;
    // A vector of the frame as it lies in the view, without zoom.
    [[nodiscard]] QPointF frameDeltaToViewDelta(const QPointF& delta) const;

private:
    [[nodiscard]] bool IsQuarterTurned() const { return fRotation == 90 || fRotation == 270; }
    [[nodiscard]] QPointF Excess() const;  // of the scaled image over the content, may be negative

    int fRotation;
    bool fHorzFlip, fVertFlip;
    QSizeF fFrame, fImage;
    QRectF fCell;
    double fZoom = 1;
    QPointF fScroll;
    QRectF fRect;
};

// Steps of zoom: 5, 10, 12.5, 25, 50, 75, 100, 125, 150, 200, 400 and 800 percent. From a factor to
// the next step above or below it, in percent; beyond the last one what it is.
[[nodiscard]] double U_NextZoomValue(double factor);
[[nodiscard]] double U_PrevZoomValue(double factor);

// The scale along the lower and the right edge of a cell, of a sequence whose pixel size is known:
// a round length in real units of at most two fifths of the cell, ticks towards the image, and what
// that length is.
#pragma once
#include "dicom_core/annotations/OrientationAnnotation.h"

class RulerAnnotation final : public OrientationAnnotation {
public:
    RulerAnnotation();

    // Both bars. Nothing without pixel sizes, the user's calibration included; the zoom is that of
    // the frame's record.
    void DrawSelf(const AnnotationBox& box, const QString& text, const AnnotatedFrame& frame,
                  QPainter& painter) const override;
    // What the bars of this frame take up at the lower and the right edge; 0 for one not drawn.
    [[nodiscard]] static AnnotationEdges EdgesTakenBy(const AnnotatedFrame& frame,
                                                      const QPainter& painter);

private:
    // `spacing` in mm a pixel along the bar, `zoom` 1.0 for the frame's own size. Nothing for a
    // spacing or a zoom not above 0, and below 129 pixels.
    void DrawHorizontalScale(const Rect& cell, QPainter& painter, double spacing,
                             double zoom) const;
    void DrawVerticalScale(const Rect& cell, QPainter& painter, double spacing, double zoom) const;

    bool fMinorTicks = true;
    bool fLabels = true;
};

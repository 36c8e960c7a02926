// The letters of the body at the four edges of a frame's cell.
#pragma once
#include "dicom_core/annotations/ImageAnnotation.h"

#include <string>

struct EdgeStrings {
    std::string top, left, bottom, right;
    bool operator==(const EdgeStrings&) const = default;
};

// Those of a stored frame as they stand at the edges of the displayed one: turned first, then
// flipped.
[[nodiscard]] EdgeStrings TurnedEdgeStrings(EdgeStrings strings, const zel_TransformRec& record);

// Left and right stand one letter below the other, the last one uppermost. Drawn in tiny cells too.
class OrientationAnnotation : public ImageAnnotation {
public:
    OrientationAnnotation() { fHideWhenTooLarge = false; }

    [[nodiscard]] std::uint32_t ShapeType() const override { return kShapeOrientation; }
    [[nodiscard]] QString GetText(const AnnotatedFrame&) const override { return {}; }
    [[nodiscard]] AnnotationSize CalcSize(const QString&, const QPainter&) const override
    {
        return {};
    }
    void DrawSelf(const AnnotationBox& box, const QString& text, const AnnotatedFrame& frame,
                  QPainter& painter) const override;

    // What letters take up at each edge of a cell, whether or not there are any.
    [[nodiscard]] static AnnotationEdges EdgesTaken(const QPainter& painter);

private:
    void DrawColumn(const QString& text, double x, const Rect& cell, double letterHeight,
                    QPainter& painter) const;
};

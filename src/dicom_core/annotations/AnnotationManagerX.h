// All that stands over the frames of one sequence, and the drawing of it. A manager lives in its
// sequence's view state. Main thread only.
#pragma once
#include "Annotations/AnnotationTemplates.h"
#include "dicom_core/annotations/RulerAnnotation.h"

#include <memory>
#include <vector>

class AnnotationManagerX final : public SequenceAnnotations {
public:
    // Lines of the bottom positions go to the front: they grow upward, so that they read downward
    // in the order in which they were added. Null is ignored.
    void AddAnnotation(std::unique_ptr<ImageAnnotation> annotation);
    // The same, and the ruler flag decides on it.
    void AddRuler(std::unique_ptr<RulerAnnotation> ruler);
    [[nodiscard]] std::int32_t CountAdorners() const
    {
        return static_cast<std::int32_t>(fAnnotations.size());
    }
    [[nodiscard]] ImageAnnotation* GetNthAdorner(std::int32_t index) const;  // from 0; null if none
    void RemoveAllAdorners();

    // Not owned; null draws nothing.
    void SetCurrentSequence(dk_SequenceBase* sequence) { fSequence = sequence; }
    [[nodiscard]] dk_SequenceBase* GetCurrentSequence() const { return fSequence; }

    // On all annotations.
    void SetFontName(const QString& name);
    void SetFontSize(float size);
    void SetForeColor(const ZELRGBColor& color);
    void SetForPrinting(bool printing, std::int16_t printSize);
    [[nodiscard]] bool IsForPrinting() const { return fPrinting; }

    void SetShowsDemographics(bool shows) override { fShowText = shows; }
    void SetShowsScale(bool shows) override { fShowRuler = shows; }

    // What fits of it, over frame number `frame` (from 1) in the cell `rect`, whose coordinates are
    // those of the plane with v downward: the painter has been turned so that y runs upward, a row
    // v lies at y = -v. Each text is read from the frame's own file. The frame is the sequence's
    // current one meanwhile, and the painter's state comes back as it was. Nothing is drawn for a
    // frame without a DICOM file and in cells below 49 pixels. Cannot fail.
    void Draw(const Rect& rect, std::int32_t frame, QPainter& painter);

private:
    void DrawFrame(const Rect& rect, std::int32_t frame, QPainter& painter);
    void DrawAnnotation(ImageAnnotation& annotation, const AnnotatedFrame& frame,
                        AnnotationLayout& layout, QPainter& painter) const;
    [[nodiscard]] AnnotationEdges EdgesTaken(const AnnotatedFrame& frame,
                                             const QPainter& painter) const;

    bool fPrinting = false;
    std::vector<std::unique_ptr<ImageAnnotation>> fAnnotations;
    dk_SequenceBase* fSequence = nullptr;
    bool fShowText = false, fShowRuler = false;
    const ImageAnnotation* fRuler = nullptr;  // one of the list
};

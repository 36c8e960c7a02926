#include "dicom_core/annotations/AnnotationManagerX.h"

#include "dicom_core/annotations/PainterScope.h"
#include "dicom_core/tree/dk_ImageFile.h"

#include <algorithm>
#include <new>

namespace {

// Makes a frame the current one of its sequence for a scope.
class CurrentFrameScope {
public:
    CurrentFrameScope(dk_SequenceBase& sequence, std::int32_t frame)
        : fSequence(sequence), fBefore(sequence.GetCurrentFrameIndex())
    {
        sequence.SetCurrentFrameIndex(frame);
    }
    ~CurrentFrameScope() { fSequence.SetCurrentFrameIndex(fBefore); }
    CurrentFrameScope(const CurrentFrameScope&) = delete;
    CurrentFrameScope& operator=(const CurrentFrameScope&) = delete;

private:
    dk_SequenceBase& fSequence;
    std::int32_t fBefore;
};

}  // namespace

void AnnotationManagerX::AddAnnotation(std::unique_ptr<ImageAnnotation> annotation)
{
    if (!annotation)
        return;
    const bool front = IsBottomPosition(annotation->GetFieldPosition());
    fAnnotations.insert(front ? fAnnotations.begin() : fAnnotations.end(), std::move(annotation));
}

void AnnotationManagerX::AddRuler(std::unique_ptr<RulerAnnotation> ruler)
{
    fRuler = ruler.get();
    AddAnnotation(std::move(ruler));
}

ImageAnnotation* AnnotationManagerX::GetNthAdorner(std::int32_t index) const
{
    return index >= 0 && index < CountAdorners()
               ? fAnnotations[static_cast<std::size_t>(index)].get()
               : nullptr;
}

void AnnotationManagerX::RemoveAllAdorners()
{
    fRuler = nullptr;
    fAnnotations.clear();
}

void AnnotationManagerX::SetFontName(const QString& name)
{
    for (const auto& annotation : fAnnotations)
        annotation->fFontName = name;
}

void AnnotationManagerX::SetFontSize(float size)
{
    for (const auto& annotation : fAnnotations)
        annotation->fFontSize = size;
}

void AnnotationManagerX::SetForeColor(const ZELRGBColor& color)
{
    for (const auto& annotation : fAnnotations)
        annotation->fColor = color;
}

void AnnotationManagerX::SetForPrinting(bool printing, std::int16_t printSize)
{
    fPrinting = printing;
    for (const auto& annotation : fAnnotations) {
        annotation->fPrintFontSize = printSize;
        if (annotation->ShapeType() != kShapeOrientation)
            annotation->fPrinting = printing;
    }
}

void AnnotationManagerX::Draw(const Rect& rect, std::int32_t frame, QPainter& painter)
{
    if (!AnnotationLayout::CellIsLargeEnough(rect) || fAnnotations.empty() || !fSequence)
        return;
    const PainterScope scope(painter);
    try {
        DrawFrame(rect, frame, painter);
    } catch (const std::bad_alloc&) {
        // A cell with fewer texts says no less of the image than the user would see without any.
    }
}

void AnnotationManagerX::DrawFrame(const Rect& rect, std::int32_t frame, QPainter& painter)
{
    // Asked first: it makes the table without which there is no current frame to come back to.
    dk_ImageFrameInfo* info = frame >= 1 ? fSequence->GetImageFrameInfo(frame) : nullptr;
    if (!info || !info->fImageFile)
        return;
    const CurrentFrameScope current(*fSequence, frame);
    ParserHandle parser = fSequence->GetFrameParser(frame);
    if (!parser)
        return;
    const QvxReaderUse use(parser);  // one opening of the file for all its elements
    const AnnotatedFrame shown{rect, *fSequence, *info, parser,
                               info->fImageFile->GetCharacterEncoding()};
    AnnotationLayout layout(rect, EdgesTaken(shown, painter));
    for (const auto& annotation : fAnnotations) {
        annotation->fSmall = layout.IsSmall();
        annotation->fVisible = !layout.IsTiny() || annotation->fShowWhenNoFit;
        const bool wanted = annotation.get() == fRuler ? fShowRuler : fShowText;
        if (wanted && annotation->fVisible)
            DrawAnnotation(*annotation, shown, layout, painter);
    }
}

void AnnotationManagerX::DrawAnnotation(ImageAnnotation& annotation, const AnnotatedFrame& frame,
                                        AnnotationLayout& layout, QPainter& painter) const
{
    const QString text = annotation.GetText(frame);
    const AnnotationSize size = annotation.CalcSize(text, painter);
    if (annotation.fHideWhenTooLarge && !layout.Fits(size.width, size.height))
        return;
    AnnotationBox box;
    if (annotation.ShapeType() != kShapeOrientation)
        box = layout.Place(annotation.GetFieldPosition(), size.width, size.height);
    annotation.DrawSelf(box, text, frame, painter);
}

AnnotationEdges AnnotationManagerX::EdgesTaken(const AnnotatedFrame& frame,
                                               const QPainter& painter) const
{
    AnnotationEdges edges = OrientationAnnotation::EdgesTaken(painter);
    if (fShowRuler && fRuler) {
        const AnnotationEdges ruler = RulerAnnotation::EdgesTakenBy(frame, painter);
        edges.bottom = std::max(edges.bottom, ruler.bottom);
        edges.right = std::max(edges.right, ruler.right);
    }
    return edges;
}

// What stands over a frame, one object for each line of a template, for the orientation letters and
// for the ruler. An annotation knows what to say and how it looks; of which frame is told to it for
// the length of a call, and AnnotationManagerX.h decides whether and where it is drawn.
#pragma once
#include "dicom_core/annotations/AnnotationLayout.h"
#include "dicom_core/tree/dk_SequenceBase.h"
#include "prefs/PrefsColors.h"

#include <QString>

class QPainter;
class dk_DicomCharacterEncoding;

// The frame that is being drawn; all borrowed. It is the sequence's current frame meanwhile.
struct AnnotatedFrame {
    Rect fCell;  // v downward
    dk_SequenceBase& fSequence;
    dk_ImageFrameInfo& fInfo;
    ParserHandle fParser;  // not null
    const dk_DicomCharacterEncoding& fEncoding;
};

struct AnnotationSize {
    double width = 0, height = 0;
};

inline constexpr std::uint32_t kShapeAnnotation = FourCC("anot");
inline constexpr std::uint32_t kShapeOrientation = FourCC("orie");

// The looks. Drawing takes the shared fonts of AnnotationText.h; font name and sizes are kept for
// who asks.
class BaseAnnotation {
public:
    BaseAnnotation() = default;
    virtual ~BaseAnnotation() = default;
    BaseAnnotation(const BaseAnnotation&) = delete;
    BaseAnnotation& operator=(const BaseAnnotation&) = delete;

    // 'anot'; 'orie' for what takes the whole cell.
    [[nodiscard]] virtual std::uint32_t ShapeType() const { return kShapeAnnotation; }

    bool fVisible = true;
    bool fPrinting = false;
    bool fSmall = false;  // the cell is
    ZELRGBColor fColor = prefs_Get_AnnotationsDefaultColor();
    QString fFontName;
    float fFontSize = 10.0F;
    std::int16_t fVertMargin = 2, fHorzMargin = 2;
    std::int16_t fSmallFontSize = 10, fPrintFontSize = 8;
};

class ImageAnnotation : public BaseAnnotation {
public:
    [[nodiscard]] virtual TextPosition GetFieldPosition() const { return TextPosition::None; }
    // The line it shows of a frame; empty when there is nothing to say.
    [[nodiscard]] virtual QString GetText(const AnnotatedFrame& frame) const = 0;
    // The room that a line takes, both 0 for what takes the whole cell.
    [[nodiscard]] virtual AnnotationSize CalcSize(const QString& text,
                                                  const QPainter& painter) const = 0;
    // `text` is what GetText said of the frame, `box` the place that it was given.
    virtual void DrawSelf(const AnnotationBox& box, const QString& text,
                          const AnnotatedFrame& frame, QPainter& painter) const = 0;

    bool fHideWhenTooLarge = true;
    bool fShowWhenNoFit = true;  // in a tiny cell too
};

// Annotations that are one line of text: one or two elements of the frame's file.
#pragma once
#include "dicom_core/annotations/ImageAnnotation.h"

// The prefix in front of the text, joined by ": ", or directly where it ends in a blank. An empty
// text has no prefix either.
[[nodiscard]] QString WithPrefix(const QString& prefix, const QString& text);

class TextFieldAnnotation : public ImageAnnotation {
public:
    TextFieldAnnotation(TextPosition position, QvxElementTag tag, const QString& prefix);

    [[nodiscard]] TextPosition GetFieldPosition() const override { return fPosition; }
    [[nodiscard]] QString GetText(const AnnotatedFrame& frame) const override;
    // Width of the line's pixels; their height with 1 added, times 1.3.
    [[nodiscard]] AnnotationSize CalcSize(const QString& text,
                                          const QPainter& painter) const override;
    void DrawSelf(const AnnotationBox& box, const QString& text, const AnnotatedFrame& frame,
                  QPainter& painter) const override;

protected:
    // What the file says at `tag`, decoded by its character set, on one line.
    [[nodiscard]] static QString ElementLine(const AnnotatedFrame& frame, QvxElementTag tag);

    TextPosition fPosition;
    QString fPrefix;
    QvxElementTag fTag;
};

// Two elements in one line. A positioner's angles, the primary one in front and the secondary one
// behind, have one decimal and a degree sign (PS3.3 C.8.7.5).
class DoubleFieldAnnotation final : public TextFieldAnnotation {
public:
    DoubleFieldAnnotation(TextPosition position, QvxElementTag tag, const QString& prefix,
                          QvxElementTag tag2, const QString& prefix2, const QString& separator);

    // The separator stands only between two texts.
    [[nodiscard]] QString GetText(const AnnotatedFrame& frame) const override;

private:
    QString fSeparator, fPrefix2;
    QvxElementTag fTag2;
};

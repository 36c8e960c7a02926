#include "dicom_core/annotations/TextFieldAnnotation.h"

#include "dicom_core/annotations/AnnotationText.h"
#include "dicom_core/values/ElementText.h"
#include "dicom_core/values/TextFormats.h"

namespace {

constexpr qsizetype kPrefixCharacters = 255;
constexpr qsizetype kSeparatorCharacters = 15;
constexpr QvxElementTag kTagPrimaryAngle{0x0018, 0x1510};
constexpr QvxElementTag kTagSecondaryAngle{0x0018, 0x1511};

QString Angle(const QString& text)
{
    if (text.isEmpty())
        return text;
    std::string number = text.toStdString();
    FixNumericTextTo1Dec(&number);
    return QString::fromStdString(number) + QChar(0x00B0);
}

}  // namespace

QString WithPrefix(const QString& prefix, const QString& text)
{
    if (text.isEmpty() || prefix.isEmpty())
        return text;
    return prefix.endsWith(u' ') ? prefix + text : prefix + QLatin1String(": ") + text;
}

TextFieldAnnotation::TextFieldAnnotation(TextPosition position, QvxElementTag tag,
                                         const QString& prefix)
    : fPosition(position), fPrefix(prefix.left(kPrefixCharacters)), fTag(tag)
{
}

QString TextFieldAnnotation::ElementLine(const AnnotatedFrame& frame, QvxElementTag tag)
{
    return OneLine(ParserUtil_GetElemText(frame.fParser, frame.fEncoding, tag).value_or(QString()));
}

QString TextFieldAnnotation::GetText(const AnnotatedFrame& frame) const
{
    return WithPrefix(fPrefix, ElementLine(frame, fTag));
}

AnnotationSize TextFieldAnnotation::CalcSize(const QString& text, const QPainter& painter) const
{
    const QRectF bounds = CalculateTextBounds(text, painter, GetAnnotationFontRef());
    return {bounds.width(), (bounds.height() + 1.0) * 1.3};
}

void TextFieldAnnotation::DrawSelf(const AnnotationBox& box, const QString& text,
                                   const AnnotatedFrame&, QPainter& painter) const
{
    ShapeDrawStringWithFontX(text, painter, QPointF(box.left, box.bottom), GetAnnotationFontRef(),
                             fColor);
}

DoubleFieldAnnotation::DoubleFieldAnnotation(TextPosition position, QvxElementTag tag,
                                             const QString& prefix, QvxElementTag tag2,
                                             const QString& prefix2, const QString& separator)
    : TextFieldAnnotation(position, tag, prefix),
      fSeparator(separator.left(kSeparatorCharacters)),
      fPrefix2(prefix2.left(kPrefixCharacters)),
      fTag2(tag2)
{
}

QString DoubleFieldAnnotation::GetText(const AnnotatedFrame& frame) const
{
    QString first = ElementLine(frame, fTag), second = ElementLine(frame, fTag2);
    if (fTag == kTagPrimaryAngle)
        first = Angle(first);
    if (fTag2 == kTagSecondaryAngle)
        second = Angle(second);
    first = WithPrefix(fPrefix, first);
    second = WithPrefix(fPrefix2, second);
    return first.isEmpty() || second.isEmpty() ? first + second : first + fSeparator + second;
}

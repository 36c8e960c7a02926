#include "dicom_core/annotations/OrientationAnnotation.h"

#include "dicom_core/annotations/AnnotationText.h"
#include "dicom_core/values/FrameGroups.h"

#include <cmath>
#include <utility>

namespace {

constexpr double kTopMargin = 6, kLeftMargin = 5, kRightMargin = 3;

EdgeStrings EdgeStringsOf(const AnnotatedFrame& frame)
{
    EdgeStrings found;
    const zelFrameGroups groups(frame.fParser);
    Parser_GetFramePositionStrings(groups, frame.fInfo.fFrameInFile, &found.top, &found.left,
                                   &found.bottom, &found.right);
    if (frame.fSequence.GetCurrentSource())
        return TurnedEdgeStrings(std::move(found), frame.fInfo.fTransform);
    return found;
}

QString Line(const std::string& text) { return OneLine(QString::fromLatin1(text)); }

QRectF WideLetter(const QPainter& painter)
{
    return CalculateTextBounds(QStringLiteral("W"), painter, GetAnnotationFontRef());
}

}  // namespace

EdgeStrings TurnedEdgeStrings(EdgeStrings s, const zel_TransformRec& record)
{
    using std::move;
    switch (record.rotation) {
        case 90:
            s = {move(s.left), move(s.bottom), move(s.right), move(s.top)};
            break;
        case 180:
            s = {move(s.bottom), move(s.right), move(s.top), move(s.left)};
            break;
        case 270:
            s = {move(s.right), move(s.top), move(s.left), move(s.bottom)};
            break;
        default:
            break;
    }
    if (record.vertFlip)
        std::swap(s.top, s.bottom);
    if (record.horzFlip)
        std::swap(s.left, s.right);
    return s;
}

AnnotationEdges OrientationAnnotation::EdgesTaken(const QPainter& painter)
{
    const QRectF letter = WideLetter(painter);
    const auto width = static_cast<std::int32_t>(std::ceil(letter.width()));
    const auto height = static_cast<std::int32_t>(std::ceil(letter.height()));
    const auto with = [](std::int32_t size, double margin) {
        return size + static_cast<std::int32_t>(margin) + 1;  // and the shadow
    };
    // The letters at the bottom stand their own height above the edge.
    return {with(height, kTopMargin), with(width, kLeftMargin), 2 * height + 1,
            with(width, kRightMargin)};
}

void OrientationAnnotation::DrawSelf(const AnnotationBox&, const QString&,
                                     const AnnotatedFrame& frame, QPainter& painter) const
{
    const Rect& cell = frame.fCell;
    if (EmptyRect(cell))
        return;
    const EdgeStrings strings = EdgeStringsOf(frame);
    const QFont& font = GetAnnotationFontRef();
    const double middle = cell.left + (cell.right - cell.left) * 0.5 - 1.0;
    const QRectF letter = WideLetter(painter);

    const QString top = Line(strings.top), bottom = Line(strings.bottom);
    const double topHeight = CalculateTextBounds(top, painter, font).height();
    const double bottomHeight = CalculateTextBounds(bottom, painter, font).height();
    ShapeDrawStringWithFontX(top, painter, {middle, -(cell.top + topHeight + kTopMargin)}, font,
                             fColor);
    DrawColumn(Line(strings.left), cell.left + kLeftMargin, cell, letter.height(), painter);
    ShapeDrawStringWithFontX(bottom, painter, {middle, bottomHeight - cell.bottom}, font, fColor);
    DrawColumn(Line(strings.right), cell.right - letter.width() - kRightMargin, cell,
               letter.height(), painter);
}

void OrientationAnnotation::DrawColumn(const QString& text, double x, const Rect& cell,
                                       double letterHeight, QPainter& painter) const
{
    const auto n = text.size();
    const double middle = -cell.top - (cell.bottom - cell.top) * 0.5;
    const double step = n > 1 ? letterHeight * 1.3 : letterHeight;
    for (qsizetype i = 0; i < n; ++i) {
        const double y =
            middle - step * static_cast<double>(n - 1 - 2 * i) * 0.5 - 9 - (n > 1 ? 2 : 0);
        ShapeDrawStringWithFontX(text.mid(i, 1), painter, {x, y}, GetAnnotationFontRef(), fColor);
    }
}

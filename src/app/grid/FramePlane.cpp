#include "app/grid/FramePlane.h"

#include "dicom_core/tree/dk_DicomSequence.h"
#include "dicom_core/values/FrameGroups.h"

#include "qpix/zelImageSource.h"
#include <algorithm>
#include <cmath>

namespace {

using Vector = std::array<double, 3>;

constexpr double kFarthest = 32767;  // pixels; what lies further out is held there

Vector Along(const Vector& from, const Vector& direction, double length)
{
    return {from[0] + direction[0] * length, from[1] + direction[1] * length,
            from[2] + direction[2] * length};
}

double Dot(const Vector& a, const Vector& b) { return a[0] * b[0] + a[1] * b[1] + a[2] * b[2]; }

// The number of the pixel that a place along an axis falls on.
double PixelAt(double millimetres, double spacing)
{
    const double pixel = millimetres / spacing + 0.5;
    return std::isnan(pixel) ? kFarthest : std::trunc(std::clamp(pixel, -kFarthest, kFarthest));
}

QPointF Projected(const Vector& corner, const FramePlane& onto)
{
    const Vector off{corner[0] - onto.position[0], corner[1] - onto.position[1],
                     corner[2] - onto.position[2]};
    return {PixelAt(Dot(off, onto.row), onto.columnSpacing),
            PixelAt(Dot(off, onto.column), onto.rowSpacing)};
}

// Corners lie behind the last pixels: the larger of two coordinates goes back by one.
QLineF Within(QPointF a, QPointF b)
{
    if (a.x() != b.x())
        (a.x() > b.x() ? a : b).rx() -= 1;
    if (a.y() != b.y())
        (a.y() > b.y() ? a : b).ry() -= 1;
    return {a, b};
}

}  // namespace

std::optional<FramePlane> FramePlaneOf(dk_Sequence* sequence, int frame)
{
    dk_ImageFrameInfo* info = sequence ? sequence->GetImageFrameInfo(frame) : nullptr;
    Point stored, shown;
    if (!info || info->GetFrameSize(&stored) || info->GetFrameSizeWithAspectRatio(&shown))
        return std::nullopt;
    const zelParserVisit visit(info->fSource);
    if (!visit.Parser())
        return std::nullopt;
    const zelFrameGroups groups(visit.Parser());
    zelPlane plane;
    if (!Parser_HasSpatialLocationFields(groups, info->fFrameInFile) ||
        Parser_GetPositionOrientationSpacingAndSize(groups, info->fFrameInFile, stored.h, stored.v,
                                                    &plane) ||
        !(plane.fRowSpacing > 0) || !(plane.fColumnSpacing > 0))
        return std::nullopt;
    FramePlane found{plane.fCosines.fRow,
                     plane.fCosines.fColumn,
                     plane.fPosition,
                     plane.fColumnSpacing,
                     plane.fRowSpacing,
                     stored.h,
                     stored.v,
                     QSizeF(shown.h, shown.v),
                     {}};
    if (sequence->GetFrameOfReferenceUID(frame, &found.frameOfReference))
        return std::nullopt;
    return found;
}

std::array<QLineF, 4> ProjectedOutline(const FramePlane& frame, const FramePlane& onto)
{
    const double width = frame.columns * frame.columnSpacing,
                 height = frame.rows * frame.rowSpacing;
    const Vector right = Along(frame.position, frame.row, width);
    const std::array<QPointF, 4> corners{
        Projected(frame.position, onto), Projected(right, onto),
        Projected(Along(right, frame.column, height), onto),
        Projected(Along(frame.position, frame.column, height), onto)};
    const double x = onto.frameSize.width() / onto.columns, y = onto.frameSize.height() / onto.rows;
    const auto middle = [x, y](const QPointF& p) {
        return QPointF((p.x() + 0.5) * x, (p.y() + 0.5) * y);
    };
    std::array<QLineF, 4> edges;
    for (std::size_t i = 0; i < 4; ++i) {
        const QLineF edge = Within(corners[i], corners[(i + 1) % 4]);
        edges[i] = {middle(edge.p1()), middle(edge.p2())};
    }
    return edges;
}

// Where the frames of a grid lie: all of it is CellGeometry's, asked for one frame.
#include "app/grid/RenderFrame.h"
#include "app/grid/ZELSequenceGridViewModelController.h"
#include "dicom_core/imaging/LoadFrame.h"
#include "dicom_core/imaging/zel_QTViewerDoc.h"
#include "dicom_core/look/LocationMaths.h"
#include "dicom_core/tree/dk_SequenceBase.h"
#include "util/Log.h"

#include <algorithm>
#include <cmath>
#include <string>

CellGeometry CellGeometryOf(const ZELSequenceProxy& proxy, std::int32_t frame, const QRectF& cell,
                            double pixelRatio)
{
    dk_ImageFrameInfo* info =
        proxy.theSequence() ? proxy.theSequence()->GetImageFrameInfo(frame) : nullptr;
    Point size;
    if (!info || info->GetFrameSizeWithAspectRatio(&size))
        size = {};
    return {info ? info->fTransform : zel_TransformRec{}, QSizeF(size.h, size.v), cell, pixelRatio};
}

namespace {

QRectF CellAround(const QSizeF& content)
{
    return {0, 0, content.width() + 2 * kCellInset, content.height() + 2 * kCellInset};
}

constexpr double kMostPicturePixels = 128.0 * 1024 * 1024;

// Of the image where no pan moves it.
QPointF UnscrolledCorner(const CellGeometry& geometry)
{
    return geometry.imageRect().topLeft() - geometry.viewScroll();
}

}  // namespace

QSizeF U_ScaledImageSize(const ZELSequenceProxy& proxy, std::int32_t frame, const QSizeF& content)
{
    return CellGeometryOf(proxy, frame, CellAround(content), 1).scaledSize();
}

double U_ActualZoomValue(const ZELSequenceProxy& proxy, std::int32_t frame, const QSizeF& content)
{
    return CellGeometryOf(proxy, frame, CellAround(content), 1).zoom();
}

QSizeF U_NonScaledImageSize(const ZELSequenceProxy& proxy, std::int32_t frame)
{
    const QSizeF image = CellGeometryOf(proxy, frame, {}, 1).imageSize();
    const dk_ImageFrameInfo* info =
        proxy.theSequence() ? proxy.theSequence()->GetImageFrameInfo(frame) : nullptr;
    return info ? image * (info->fTransform.zoom / double{kZoomOne}) : image;
}

QImage U_SequencePhotoAtIndex(const ZELSequenceProxy& proxy, std::int32_t frame)
{
    dk_SequenceBase* sequence = proxy.theSequence();
    zel_QTViewerDoc document;
    if (!sequence || U_LoadFrameContentToViewerDoc(sequence, frame, &document)) {
        LogLine("no picture of frame " + std::to_string(frame));
        return {};
    }
    const QSizeF size = U_NonScaledImageSize(proxy, frame);
    // One factor for both sides, so that a picture beyond what can be held keeps its form.
    const double fit = std::min({1.0, kLongestPictureSide / std::max(size.width(), size.height()),
                                 std::sqrt(kMostPicturePixels / (size.width() * size.height()))});
    const auto side = [fit](double length) {
        return std::max(static_cast<int>(std::lround(length * fit)), 1);
    };
    const QRect whole(0, 0, side(size.width()), side(size.height()));
    return RenderFrame(document, sequence, frame, whole, whole);
}

std::int32_t ZELSequenceGridViewModelController::resolved(std::int32_t frame) const
{
    return frame == 0 && _currZELSequence ? _currZELSequence->currentFrame() : frame;
}

CellGeometry ZELSequenceGridViewModelController::geometryForFrame(std::int32_t frame) const
{
    const std::int32_t number = resolved(frame);
    const QRectF cell = _viewport.cellRect(number - 1);
    if (!_currZELSequence)
        return {{}, {}, cell, _viewport.pixelRatio()};
    return CellGeometryOf(*_currZELSequence, number, cell, _viewport.pixelRatio());
}

QSizeF ZELSequenceGridViewModelController::getCellContentSize() const
{
    return cellContentRect().size();
}

QRectF ZELSequenceGridViewModelController::cellContentRect() const
{
    return QRectF(QPointF(), _viewport.gridCellSize())
        .adjusted(kCellInset, kCellInset, -kCellInset, -kCellInset);
}

QRectF ZELSequenceGridViewModelController::getCellContentRect(int index) const
{
    return _viewport.cellRect(index).adjusted(kCellInset, kCellInset, -kCellInset, -kCellInset);
}

QSizeF ZELSequenceGridViewModelController::imageSizeForFrame(std::int32_t frame) const
{
    return geometryForFrame(frame).imageSize();
}

QSizeF ZELSequenceGridViewModelController::U_ScaledImageSizeForFrame(std::int32_t frame) const
{
    return geometryForFrame(frame).scaledSize();
}

double ZELSequenceGridViewModelController::U_ImageZoomForFrame(std::int32_t frame) const
{
    return geometryForFrame(frame).zoom();
}

double ZELSequenceGridViewModelController::U_ActualZoomForFrame(std::int32_t frame) const
{
    return geometryForFrame(frame).zoom();
}

bool ZELSequenceGridViewModelController::U_FrameImageIsBiggerThanCellRect(std::int32_t frame) const
{
    return geometryForFrame(frame).isBiggerThanCell();
}

QPointF ZELSequenceGridViewModelController::getViewScrollMaxForCell(int index) const
{
    return geometryForFrame(index + 1).viewScrollMax();
}

QPointF ZELSequenceGridViewModelController::getTransformedScrollMaxForCell(int index) const
{
    return geometryForFrame(index + 1).transformedScrollMax();
}

QPointF ZELSequenceGridViewModelController::U_GetViewScrollLimitsForViewFrame(
    std::int32_t frame) const
{
    return geometryForFrame(frame).scrollLimit();
}

QPointF ZELSequenceGridViewModelController::U_GetCurrViewScrollForFrame(std::int32_t frame) const
{
    return geometryForFrame(frame).viewScroll();
}

QRectF ZELSequenceGridViewModelController::U_PsaxnoRectForFrame(std::int32_t frame) const
{
    return geometryForFrame(frame).shownRect();
}

QPointF ZELSequenceGridViewModelController::viewPointToFramePoint(const QPointF& point,
                                                                  std::int32_t frame) const
{
    return geometryForFrame(frame).viewPointToFramePoint(point);
}

QPointF ZELSequenceGridViewModelController::framePointToViewPoint(const QPointF& point,
                                                                  std::int32_t frame) const
{
    return geometryForFrame(frame).framePointToViewPoint(point);
}

QRectF ZELSequenceGridViewModelController::viewRectToFrameRect(const QRectF& rect,
                                                               std::int32_t frame) const
{
    return geometryForFrame(frame).viewRectToFrameRect(rect);
}

// The flips act on the turned frame, so they are taken back first.
QPointF ZELSequenceGridViewModelController::reverseLocation(const QPointF& location,
                                                            const zel_TransformRec& record,
                                                            const QSizeF& size)
{
    const XRect rect{0, 0, size.height(), size.width()};
    const CGPoint flipped =
        U_FlipLocation(record.horzFlip, record.vertFlip, rect,
                       {static_cast<float>(location.x()), static_cast<float>(location.y())});
    const CGPoint turned = U_RotateLocation(record.rotation, rect, flipped);
    return {turned.x, turned.y};
}

QRectF ZELSequenceGridViewModelController::imageRectForFrameInCell(std::int32_t frame,
                                                                   const QSizeF& cell) const
{
    if (!_currZELSequence)
        return {};
    return CellGeometryOf(*_currZELSequence, resolved(frame), {QPointF(), cell},
                          _viewport.pixelRatio())
        .shownRect();
}

QPointF ZELSequenceGridViewModelController::viewPsaxnoLocToImageLoc(const QPointF& location,
                                                                    std::int32_t frame) const
{
    const CellGeometry geometry = geometryForFrame(frame);
    return geometry.viewPointToFramePoint(location + UnscrolledCorner(geometry));
}

QPointF ZELSequenceGridViewModelController::U_RotateFlipScaleImagePoint(const QPointF& point,
                                                                        std::int32_t frame) const
{
    const CellGeometry geometry = geometryForFrame(frame);
    return geometry.framePointToViewPoint(point) - UnscrolledCorner(geometry);
}

QPointF ZELSequenceGridViewModelController::U_ReverseGeomTransformDeltaPoint(
    const QPointF& delta, std::int32_t frame) const
{
    return geometryForFrame(frame).viewDeltaToFrameDelta(delta);
}

QPointF ZELSequenceGridViewModelController::U_ReverseGeomTransformDeltaScroll(
    const QPointF& delta, std::int32_t frame) const
{
    return geometryForFrame(frame).viewDeltaToScrollDelta(delta);
}

QPointF ZELSequenceGridViewModelController::geomTransformScrollPoint(const QPointF& scroll,
                                                                     std::int32_t frame) const
{
    return geometryForFrame(frame).frameDeltaToViewDelta(scroll);
}

QPointF ZELSequenceGridViewModelController::U_DisplayDeltaToImageDelta_WithNoGeometryTrans(
    const QPointF& delta, std::int32_t frame) const
{
    return delta / geometryForFrame(frame).zoom();
}

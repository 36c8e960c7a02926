#include "app/draw/CellLayers.h"

#include "Graphics/CKFrameShapesMgr.h"
#include "app/draw/SavedPainter.h"
#include "app/grid/ZELSequenceGridViewModelController.h"
#include "dicom_core/annotations/PrepareSequenceAnnotations.h"
#include "dicom_core/tree/dk_SequenceBase.h"
#include "prefs/Prefs.h"

#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <cmath>

namespace {

constexpr double kReferenceSide = 5;  // frame pixels

// One point wide at every zoom.
QPen Hairline(const QColor& color)
{
    QPen pen(color, 1, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin);
    pen.setCosmetic(true);
    return pen;
}

// Only what shows of the image is painted on, in the coordinates of the frame.
class OnFrame {
public:
    explicit OnFrame(const CellLayer& layer) : fSaved(layer.painter)
    {
        layer.painter->setClipRect(layer.geometry.shownRect(), Qt::IntersectClip);
        layer.painter->setTransform(FrameToView(layer.geometry), true);
        layer.painter->setRenderHint(QPainter::Antialiasing, true);
    }

private:
    SavedPainter fSaved;
};

QSizeF StoredSizeOf(const CellLayer& layer)
{
    Point size;
    dk_ImageFrameInfo* info = layer.proxy->theSequence()->GetImageFrameInfo(layer.frame);
    return info && info->GetFrameSize(&size) == kQvxOK ? QSizeF(size.h, size.v) : QSizeF();
}

// Frame coordinates by the unturned frame.
QSizeF FrameSizeOf(const CellLayer& layer)
{
    Point size;
    dk_ImageFrameInfo* info = layer.proxy->theSequence()->GetImageFrameInfo(layer.frame);
    return info && info->GetFrameSizeWithAspectRatio(&size) == kQvxOK ? QSizeF(size.h, size.v)
                                                                      : QSizeF();
}

}  // namespace

QTransform FrameToView(const CellGeometry& geometry)
{
    const QPointF origin = geometry.framePointToViewPoint({0, 0});
    const QPointF x = geometry.framePointToViewPoint({1, 0}) - origin;
    const QPointF y = geometry.framePointToViewPoint({0, 1}) - origin;
    return {x.x(), x.y(), y.x(), y.y(), origin.x(), origin.y()};
}

// ---- ultrasound regions ----

void U_DrawUSRegionsForSequence(const CellLayer& layer)
{
    const auto* regions = layer.proxy->usRegions();
    const QSizeF stored = StoredSizeOf(layer), frame = FrameSizeOf(layer);
    if (!regions || stored.isEmpty())
        return;
    const OnFrame onFrame(layer);
    const QTransform aspect =
        QTransform::fromScale(frame.width() / stored.width(), frame.height() / stored.height());
    layer.painter->setPen(Hairline(ColorOf(prefs_Get_USRegionsColor())));
    layer.painter->setBrush(Qt::NoBrush);
    for (const US_ROIRegDataRec& region : *regions) {
        const XRect r = US_RectOfRegion(region);
        layer.painter->drawRect(
            aspect.mapRect(QRectF(QPointF(r.left, r.top), QPointF(r.right, r.bottom))));
        // The middle of the reference pixel, which is told from the region's corner.
        const QPointF reference =
            aspect.map(QPointF(double(region.fX0) + region.fReferenceX + 0.5,
                               double(region.fY0) + region.fReferenceY + 0.5));
        const QPointF half(kReferenceSide / 2, kReferenceSide / 2);
        layer.painter->drawRect(QRectF(reference - half, reference + half));
    }
}

// ---- measurements ----

namespace {

class ShapePainter {
public:
    explicit ShapePainter(const CellLayer& layer) : fLayer(layer)
    {
        const auto* grid = layer.grid;
        const GridSurface* view = grid ? grid->view() : nullptr;
        fActive = grid && grid->isTheActiveGrid();
        fCreating = view ? view->creatingGraphic() : nullptr;
        fEditing = view ? view->editingGraphic() : nullptr;
        fHandles = fActive && layer.frame == layer.proxy->currentFrame() &&
                   !(view && view->isHidingHandles());
    }

    [[nodiscard]] bool IsActive() const { return fActive; }
    [[nodiscard]] const CKAdornedGraphic* Creating() const { return fCreating; }

    void Draw(CKAdornedGraphic& shape) const
    {
        shape._gridController = fLayer.grid;
        shape._theFrameIndex = fLayer.frame;
        if (shape.isCrop() && !fLayer.grid)
            return;
        const bool handles = WantsHandles(shape);
        const bool beingMade = &shape == fCreating || &shape == fEditing;
        if (shape.drawsUpright()) {
            shape.drawContentsInView(fLayer.painter, beingMade);
            if (handles)
                DrawOnFrame([&] { shape.drawHandlesInView(fLayer.painter); });
            return;
        }
        DrawOnFrame([&] {
            const bool used = std::exchange(shape._fUseHandles, handles || shape._fUseHandles);
            shape.drawContentsInView(fLayer.painter, beingMade);
            shape._fUseHandles = used;
            if (handles)
                shape.drawHandlesInView(fLayer.painter);
        });
        if (shape._hasDescription && shape._descriptionON && (!shape.isCrop() || handles))
            DrawLabel(shape);
    }

private:
    [[nodiscard]] bool WantsHandles(const CKAdornedGraphic& shape) const
    {
        const bool beingMade = &shape == fCreating;
        if (shape.isCrop())
            return fHandles && beingMade;
        return fHandles && shape._fUseHandles && (!beingMade || shape.isPolygon());
    }
    template <typename Work>
    void DrawOnFrame(Work work) const
    {
        const OnFrame onFrame(fLayer);
        work();
    }
    // A label may leave the image, but not the cell.
    void DrawLabel(const CKAdornedGraphic& shape) const
    {
        const SavedPainter saved(fLayer.painter);
        shape.drawLabel(fLayer.painter, FrameToView(fLayer.geometry));
    }

    const CellLayer& fLayer;
    bool fActive = false, fHandles = false;
    const CKAdornedGraphic* fCreating = nullptr;
    const CKAdornedGraphic* fEditing = nullptr;
};

}  // namespace

void U_DrawMeasurementsForSequence(const CellLayer& layer)
{
    const ShapePainter shapes(layer);
    for (const CKShapePtr& shape : layer.proxy->measurementsForFrame(layer.frame)) {
        shape->_shapeSequence = const_cast<ZELSequenceProxy*>(layer.proxy);
        shapes.Draw(*shape);
    }
    const CKShapePtr crop = layer.proxy->cropForFrame(layer.frame);
    if (crop && shapes.IsActive() && crop.get() == shapes.Creating())
        shapes.Draw(*crop);
}

// ---- reference lines ----

void U_DrawLocalizersForFrame(const CellLayer& layer)
{
    if (!layer.grid)
        return;
    const std::vector<QLineF> lines = layer.grid->localizersForFrame(layer.frame);
    if (lines.empty())
        return;
    const OnFrame onFrame(layer);
    layer.painter->setPen(Hairline(ColorOf(prefs_Get_LocalizerLinesCGColorRef())));
    for (const QLineF& line : lines) {
        if (!line.isNull())  // a side of an outline that has become a line
            layer.painter->drawLine(line);
    }
}

// ---- crop ----

void U_DrawCropForFrame(const CellLayer& layer)
{
    const CKShapePtr crop = layer.proxy->cropForFrame(layer.frame);
    if (!crop)
        return;
    const OnFrame onFrame(layer);
    const QRectF box = crop->geometricBounds();
    QPen pen = Hairline(Qt::black);
    layer.painter->setBrush(Qt::NoBrush);
    layer.painter->setPen(pen);
    layer.painter->drawRect(box.translated(1, 1));
    QPainterPath veil;  // odd-even: what lies outside of the box
    veil.addRect(QRectF(QPointF(), FrameSizeOf(layer)));
    veil.addRect(box);
    layer.painter->fillPath(veil, QColor(255, 255, 255, 77));
    pen.setColor(Qt::white);
    pen.setWidthF(std::max(1.0, double{crop->strokeWidthCK()}));
    layer.painter->setPen(pen);
    layer.painter->drawRect(box);
}

// ---- text ----

void U_DrawDemographicsForSequence(const CellLayer& layer, const QRectF& content)
{
    dk_SequenceBase* sequence = layer.proxy->theSequence();
    if (!sequence || !sequence->GetViewState()->CellHasAnnotationsToDraw(layer.frame))
        return;
    AnnotationManagerX* manager = AnnotationManagerOf(*sequence);
    if (!manager)
        return;
    const SavedPainter saved(layer.painter);
    const QRect whole = content.toRect();
    // The plane of the annotations: its origin at the content's corner, y upward.
    layer.painter->translate(whole.topLeft());
    layer.painter->scale(1, -1);
    const auto side = [](int length) {
        return static_cast<std::int16_t>(std::clamp(length, 0, 32767));
    };
    manager->Draw({0, 0, side(whole.height()), side(whole.width())}, layer.frame, *layer.painter);
}

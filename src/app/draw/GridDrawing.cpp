#include "app/draw/GridDrawing.h"

#include "app/draw/CellLayers.h"
#include "app/draw/SavedPainter.h"
#include "app/grid/ZELSequenceGridViewModelController.h"
#include "prefs/Prefs.h"

#include <QIcon>

namespace {

constexpr int kWarningSide = 48;  // points

class GridPainter {
public:
    GridPainter(QPainter* painter, ZELSequenceGridViewModelController& grid, const GridLook& look)
        : fPainter(painter), fGrid(grid), fLook(look)
    {
    }
    void DrawCell(int index) const;

private:
    void DrawPhoto(int index, const QRectF& cell) const;
    void DrawLayers(int index, const QRectF& cell) const;
    void DrawBorders(int index, const QRectF& cell) const;
    [[nodiscard]] bool ShowsSelection(int index) const;

    QPainter* fPainter;
    ZELSequenceGridViewModelController& fGrid;
    const GridLook& fLook;
};

void GridPainter::DrawCell(int index) const
{
    const QRectF cell = fGrid.viewport().cellRect(index);
    const SavedPainter saved(fPainter);
    fPainter->setClipRect(cell, Qt::IntersectClip);
    DrawPhoto(index, cell);
    DrawLayers(index, cell);
    DrawBorders(index, cell);
}

void GridPainter::DrawPhoto(int index, const QRectF& cell) const
{
    const GridSurface* view = fGrid.view();
    const bool fast = view && (view->inLiveResize() || view->userIsDrawing());
    const CellPhoto photo = fast ? fGrid.fastPhotoAtIndex(index) : fGrid.photoAtIndex(index);
    if (photo.isNull()) {
        QRect place(0, 0, kWarningSide, kWarningSide);
        place.moveCenter(cell.center().toPoint());
        QIcon(QStringLiteral(":/icons/warning.svg")).paint(fPainter, place);
        return;
    }
    // In device pixels, so that a picture in its final size is copied as it is.
    const double ratio = fGrid.viewport().pixelRatio();
    const SavedPainter saved(fPainter);
    fPainter->scale(1 / ratio, 1 / ratio);
    fPainter->setRenderHint(QPainter::SmoothPixmapTransform, fLook.useHighQualityResize);
    fPainter->setCompositionMode(QPainter::CompositionMode_Source);
    fPainter->drawImage(QRectF(photo.rect.topLeft() * ratio, photo.rect.size() * ratio),
                        photo.image);
}

void GridPainter::DrawLayers(int index, const QRectF& cell) const
{
    const ZELSequenceProxy* proxy = fGrid.currZELSequence().get();
    const std::int32_t frame = index + 1;
    const CellLayer layer{fPainter, &fGrid, proxy, frame, fGrid.geometryForFrame(frame)};
    if (prefs_Get_ShowsUSRegions() && proxy->supportsUSRegions())
        U_DrawUSRegionsForSequence(layer);
    if (proxy->viewShowsMeasurements())
        U_DrawMeasurementsForSequence(layer);
    if (fGrid.host() && fGrid.host()->showLocalizers())
        U_DrawLocalizersForFrame(layer);
    U_DrawCropForFrame(layer);
    U_DrawDemographicsForSequence(layer,
                                  cell.adjusted(kCellInset, kCellInset, -kCellInset, -kCellInset));
}

bool GridPainter::ShowsSelection(int index) const
{
    if (!fLook.toScreen || !fLook.useBorderSelection || !fGrid.isTheActiveGrid() ||
        index + 1 != fGrid.currZELSequence()->currentFrame())
        return false;
    return fGrid.host()->gridControllers().size() > 1 || !fGrid.inSingleFrameMode();
}

void GridPainter::DrawBorders(int index, const QRectF& cell) const
{
    const auto stroke = [&](const QColor& color, double width) {
        const double inset = width / 2;
        fPainter->setBrush(Qt::NoBrush);
        fPainter->setPen(QPen(color, width, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
        fPainter->drawRect(cell.adjusted(inset, inset, -inset, -inset));
    };
    if (fLook.useOutlineBorder)
        stroke(fLook.borderOutlineColor, 1);
    if (ShowsSelection(index))
        stroke(fLook.selectionBorderColor, fLook.selectionBorderWidth);
}

}  // namespace

void DrawGrid(QPainter* painter, ZELSequenceGridViewModelController& grid, const QRectF& dirty,
              const GridLook& look)
{
    painter->fillRect(dirty, look.toScreen ? look.backgroundColor : QColor(Qt::white));
    if (grid.photoCountForPhotoView() < 1)
        return;
    const GridPainter cells(painter, grid, look);
    const auto range = grid.viewport().photoIndexRangeForRect(dirty);
    for (int index = range.first; index < range.first + range.count; ++index) {
        if (grid.viewport().cellRect(index).intersects(dirty))
            cells.DrawCell(index);
    }
}

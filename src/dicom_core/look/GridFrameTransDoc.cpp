#include "dicom_core/look/GridFrameTransDoc.h"

#include "dicom_core/look/LocationMaths.h"

namespace {

std::int32_t ScaledSide(std::int32_t side, std::int32_t scale)
{
    return PinnedToInt32((std::int64_t{side} * scale + kZoomOne / 2) / kZoomOne);
}

float ScaledSideCG(std::int32_t side, std::int32_t scale)
{
    return static_cast<float>(static_cast<double>(side) * scale / kZoomOne);
}

const zel_GridFrameInfoItem* CellOf(std::span<const zel_GridFrameInfoItem> cells,
                                    std::int32_t frame)
{
    const auto index = static_cast<std::int64_t>(frame) - 1;
    if (index < 0 || static_cast<std::size_t>(index) >= cells.size())
        return nullptr;
    return &cells[static_cast<std::size_t>(index)];
}

}  // namespace

LongPoint zel_GridFrameInfoItem::GetCellDisplaySize() const
{
    return {ScaledSide(height, vertScale), ScaledSide(width, horzScale)};
}

CGPoint zel_GridFrameInfoItem::GetCellDisplaySizeCG() const
{
    return {ScaledSideCG(width, horzScale), ScaledSideCG(height, vertScale)};
}

GridFrameTransDoc::GridFrameTransDoc(std::int32_t frame,
                                     std::span<const zel_GridFrameInfoItem> cells, bool active,
                                     const zel_TransformRec& record, const Rect& cellRect,
                                     const LongRect& visible, QTImageDoc* document)
    : fDocument(document),
      fFrame(frame),
      fCells(cells),
      fRecord(record),
      fCellRect(cellRect),
      fVisible(visible),
      fActive(active)
{
}

LongRect GridFrameTransDoc::DisplayedBounds() const
{
    const zel_GridFrameInfoItem* cell = CellOf(fCells, fFrame);
    return cell ? LongRect{0, 0, cell->height, cell->width} : LongRect{};
}

Rect GridFrameTransDoc::GetDrawBounds() const
{
    const zel_GridFrameInfoItem* cell = CellOf(fCells, fFrame);
    if (!cell)
        return {};
    const LongPoint size = cell->GetCellDisplaySize();
    LongRect fitted;
    FitRectIntoRect({0, 0, size.v, size.h}, RectToLRect(fCellRect), &fitted);
    return LRectToRect(fitted);
}

bool GridFrameTransDoc::BaseLoc2DrawLoc(const LongPoint& base, Point* draw) const
{
    const Rect drawBounds = GetDrawBounds();
    if (EmptyRect(fVisible) || EmptyRect(drawBounds)) {
        *draw = {};
        return true;
    }
    const LongRect displayed = DisplayedBounds();
    LongRect stored;
    LongPoint turned, translated;
    if (fRecord.ReverseTransformRect(displayed, displayed, &stored) ||
        fRecord.TransformLocation(stored, base, &turned) ||
        !TranslateLongLocation(fVisible, RectToLRect(drawBounds), turned, &translated))
        return false;
    *draw = LPointToPoint(translated);
    return true;
}

bool GridFrameTransDoc::DrawLoc2BaseLoc(const Point& draw, LongPoint* base) const
{
    const Rect drawBounds = GetDrawBounds();
    LongPoint turned, stored;
    if (!EmptyRect(fVisible) && !EmptyRect(drawBounds)) {
        if (!TranslateLongLocation(RectToLRect(drawBounds), fVisible, {draw.v, draw.h}, &turned))
            return false;
        // A visible part that reaches beyond the frame has locations that are none of the frame's.
        if (fRecord.ReverseTransformLocation(DisplayedBounds(), turned, &stored))
            stored = {};
    }
    *base = stored;
    return true;
}

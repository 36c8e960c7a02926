// The record of a frame's cell in a grid, and the mapping between that frame and its cell.
#pragma once
#include "dicom_core/look/TransDocs.h"

#include <cstdint>
#include <span>

// One for each frame of a sequence, indexed by frame number less 1.
struct zel_GridFrameInfoItem {
    std::uint32_t reserved1 = 0, reserved2 = 0;
    std::int32_t height = 0, width = 0;  // of the frame as displayed, before scaling
    CGPoint scrollPoint;
    std::int32_t vertScale = kZoomOne, horzScale = kZoomOne;  // 16.16

    void Reset() { *this = {}; }
    // Height and width on screen: rounded to whole pixels (v is height), or exact (y is height).
    [[nodiscard]] LongPoint GetCellDisplaySize() const;
    [[nodiscard]] CGPoint GetCellDisplaySizeCG() const;
};

// Draw locations are those of the grid; the frame is drawn unscaled beyond its cell record's size,
// centred in the cell, and `visible` is the part of the displayed frame that is seen.
class GridFrameTransDoc : public IdentityTransDoc {
public:
    // `frame` counts from 1; one without a cell record is drawn nowhere. `cells` and `document`
    // are borrowed for the object's life, the record is copied.
    GridFrameTransDoc(std::int32_t frame, std::span<const zel_GridFrameInfoItem> cells, bool active,
                      const zel_TransformRec& record, const Rect& cellRect, const LongRect& visible,
                      QTImageDoc* document);

    // False outside of the frame or of what is seen of it. With nothing to be seen, or no place to
    // draw it, both answer true with the location 0, 0.
    bool BaseLoc2DrawLoc(const LongPoint& base, Point* draw) const override;
    bool DrawLoc2BaseLoc(const Point& draw, LongPoint* base) const override;
    [[nodiscard]] Rect GetDrawBounds() const override;
    [[nodiscard]] QTImageDoc* GetImageDoc() const override { return fDocument; }
    [[nodiscard]] bool InActiveEnvironment() const override { return fActive; }

private:
    [[nodiscard]] LongRect DisplayedBounds() const;

    QTImageDoc* fDocument;
    std::int32_t fFrame;
    std::span<const zel_GridFrameInfoItem> fCells;
    zel_TransformRec fRecord;
    Rect fCellRect;
    LongRect fVisible;
    bool fActive;
};

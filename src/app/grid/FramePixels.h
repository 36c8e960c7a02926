// The pixels of one frame, not turned: as its file means them, and as they are shown now. Main
// thread only.
#pragma once
#include "Graphics/ShapeSequence.h"

#include <memory>

class dk_SequenceBase;
class zel_QTViewerDoc;
struct Port;
struct zelVOIBlitterInfo;

class FramePixels {
public:
    enum class Looks { OfFile, Shown };  // with the user's window and colours

    // Reads frame `frame` (from 1), by way of the base buffer.
    FramePixels(dk_SequenceBase* sequence, std::int32_t frame, Looks looks = Looks::OfFile);
    ~FramePixels();
    FramePixels(const FramePixels&) = delete;
    FramePixels& operator=(const FramePixels&) = delete;

    [[nodiscard]] bool isRead() const { return fPort != nullptr; }
    // Of a point in frame coordinates (aspect-corrected); false outside of the frame.
    [[nodiscard]] bool InfoAt(const QPointF& point, CKPixelInfo* info) const;
    // The colour on the screen.
    [[nodiscard]] bool ColorAt(const QPointF& point, RGBColor* color) const;
    // As of ShapeSurroundings. Every whole frame coordinate counts, so that areas and pixels agree
    // also on frames whose pixels are no squares.
    [[nodiscard]] QvxStatus Iterate(const QRectF& rect, const CKPixelVisitor& visitor,
                                    CKMetricsParams* params) const;

private:
    [[nodiscard]] bool IsOnFrame(const QPointF& point) const;
    void Fill(int column, int row, CKPixelInfo* info) const;
    [[nodiscard]] int StoredColumn(double x) const;
    [[nodiscard]] int StoredRow(double y) const;

    std::unique_ptr<zel_QTViewerDoc> fDocument;
    Port* fPort = nullptr;                      // the document's
    const zelVOIBlitterInfo* fScale = nullptr;  // of a gray frame, the record's
    QSizeF fSize;                               // aspect-corrected
    int fWidth = 0, fHeight = 0;
};

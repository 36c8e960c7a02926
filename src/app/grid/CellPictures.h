// The pictures that a grid shows of its sequence's frames: rendered when first asked for, kept up
// to a number of bytes, those shown last. A picture is kept with the look that it was made with,
// and is made anew when the frame looks otherwise. Main thread only.
#pragma once
#include "app/grid/CellGeometry.h"
#include "dicom_core/imaging/DecodeAhead.h"
#include "prefs/PrefsColors.h"
#include "util/RecentItems.h"

#include <QImage>
#include <cstdint>
#include <memory>
#include <unordered_set>

class dk_ImageFrameInfo;
class dk_SequenceBase;
class zel_QTViewerDoc;

inline constexpr std::size_t kCellPicturesLimit = std::size_t{256} << 20;  // bytes

// What of a frame a cell shows.
struct CellPhoto {
    QImage image;  // null: there is none
    QRectF rect;   // where it belongs, in the geometry's view points; on whole device pixels
    [[nodiscard]] bool isNull() const { return image.isNull(); }
};

class CellPictures {
public:
    explicit CellPictures(std::size_t byteLimit = kCellPicturesLimit);
    ~CellPictures();
    CellPictures(const CellPictures&) = delete;
    CellPictures& operator=(const CellPictures&) = delete;

    void setSequence(dk_SequenceBase* sequence);  // not owned; all pictures go

    // The frame (from 1) as it looks now, where it lies by `geometry`, which must be that of its
    // record. Null when it can't be made: a line in the log then, and no further try until
    // `remove`.
    [[nodiscard]] CellPhoto photo(std::int32_t frame, const CellGeometry& geometry,
                                  double pixelRatio);
    // What is kept of the frame, of whatever look and size, for where it lies now; null if nothing.
    [[nodiscard]] CellPhoto fastPhoto(std::int32_t frame, const CellGeometry& geometry);

    // Frames that will be wanted soon, the next one first: decoded meanwhile, on another thread.
    void prepare(std::span<const std::int32_t> frames) { _ahead.Request(_sequence, frames); }

    void remove(std::int32_t frame);
    void removeAll();
    [[nodiscard]] std::size_t bytes() const { return _kept.Bytes(); }
    // Its picture could not be made.
    [[nodiscard]] bool hasFailed(std::int32_t frame) const { return _failed.contains(frame); }
    // Pictures rendered since the object was made.
    [[nodiscard]] std::int64_t rendered() const { return _rendered; }

private:
    // What a picture depends on beside the frame's pixels and its place.
    struct Look {
        zel_TransformRec record;
        std::int32_t colorTable = 0;
        bool enhanced = false, overlays = false;
        ZELRGBColor overlayColor;
        bool operator==(const Look&) const = default;
    };
    struct Kept {
        QImage image;
        QRect whole;  // in device pixels from the image's top left corner
        Look look;
    };

    [[nodiscard]] Look lookOf(const dk_ImageFrameInfo& info) const;
    // Brings the document to the frame as it looks now, by no more work than that takes.
    [[nodiscard]] bool updateDocument(std::int32_t frame, dk_ImageFrameInfo* info);
    [[nodiscard]] QImage render(std::int32_t frame, dk_ImageFrameInfo* info, const QRect& whole,
                                const QRect& shown);
    void dropDocument();

    dk_SequenceBase* _sequence = nullptr;
    RecentItems<std::int32_t, Kept> _kept;
    // The frame rendered last stays loaded: a step of its window, zoom or pan decodes nothing.
    std::unique_ptr<zel_QTViewerDoc> _document;
    std::int32_t _documentFrame = 0;
    std::unordered_set<std::int32_t> _failed;
    Look _documentLook;
    std::int64_t _rendered = 0;
    DecodeAhead _ahead;
};

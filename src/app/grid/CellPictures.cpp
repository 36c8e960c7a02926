#include "app/grid/CellPictures.h"

#include "app/grid/RenderFrame.h"
#include "dicom_core/imaging/LoadFrame.h"
#include "dicom_core/imaging/zel_QTViewerDoc.h"
#include "dicom_core/tree/dk_SequenceBase.h"
#include "prefs/Prefs.h"
#include "util/Log.h"

#include "qpix/OffscreenForFrame.h"
#include <algorithm>
#include <cmath>
#include <string>

namespace {

// The image and the part of it that shows, in device pixels of the view; `ratio` of them a point.
struct DevicePlace {
    double ratio;
    QRect whole, shown;
};

DevicePlace PlaceOf(const CellGeometry& geometry, double pixelRatio)
{
    const QRectF whole = geometry.imageRect(), shown = geometry.shownRect();
    // A picture beyond what ports can say is made coarser.
    const double longest = std::max(whole.width(), whole.height());
    const double ratio = std::min(pixelRatio, kLongestPictureSide / longest);
    const auto scaled = [ratio](const QRectF& r) {
        return QRectF(r.topLeft() * ratio, r.size() * ratio);
    };
    const QPoint topLeft(static_cast<int>(std::lround(whole.left() * ratio)),
                         static_cast<int>(std::lround(whole.top() * ratio)));
    const QSize size(std::max(1, static_cast<int>(std::lround(whole.width() * ratio))),
                     std::max(1, static_cast<int>(std::lround(whole.height() * ratio))));
    const QRect all(topLeft, size);
    // Less than rounding can be off by doesn't make another pixel.
    const QRectF part = scaled(shown).adjusted(1e-6, 1e-6, -1e-6, -1e-6);
    return {ratio, all, part.toAlignedRect() & all};
}

// Both records as far as they say how the frame's pixels look, wherever they lie.
zel_TransformRec PlacedAnywhere(zel_TransformRec record)
{
    record.zoom = kZoomOne;
    record.autoFit = false;
    record.scroll = record.reserved = {};
    return record;
}

// The turn, and what is worked into the pixels before they are windowed.
bool HaveSamePixels(const zel_TransformRec& a, const zel_TransformRec& b)
{
    return a.rotation == b.rotation && a.horzFlip == b.horzFlip && a.vertFlip == b.vertFlip &&
           a.brightness == b.brightness && a.contrast == b.contrast;
}

}  // namespace

CellPictures::CellPictures(std::size_t byteLimit) : _kept(byteLimit) {}
CellPictures::~CellPictures() = default;

void CellPictures::setSequence(dk_SequenceBase* sequence)
{
    removeAll();
    _ahead.Forget();
    _sequence = sequence;
}

CellPictures::Look CellPictures::lookOf(const dk_ImageFrameInfo& info) const
{
    return {PlacedAnywhere(info.fTransform), info.fColorTable, prefs_EnhanceVOIContrast(),
            _sequence->GetViewState()->fShowsDICOMOverlays, prefs_Get_OverlayColorRGB()};
}

CellPhoto CellPictures::photo(std::int32_t frame, const CellGeometry& geometry, double pixelRatio)
{
    dk_ImageFrameInfo* info = _sequence ? _sequence->GetImageFrameInfo(frame) : nullptr;
    const DevicePlace place = PlaceOf(geometry, pixelRatio);
    if (!info || place.shown.isEmpty() || hasFailed(frame))
        return {};
    const QRectF rect(QPointF(place.shown.topLeft()) / place.ratio,
                      QSizeF(place.shown.size()) / place.ratio);
    const QRect whole = place.whole.translated(-place.shown.topLeft());
    if (const Kept* kept = _kept.Find(frame)) {
        if (kept->whole == whole && kept->image.size() == place.shown.size() &&
            kept->look == lookOf(*info))
            return {kept->image, rect};
    }
    const QImage image = render(frame, info, place.whole, place.shown);
    if (image.isNull()) {
        LogLine("drawRect ERROR: photo == nil for frame: " + std::to_string(frame));
        _failed.insert(frame);
        return {};
    }
    // The look after it: the first rendering sets up the window.
    _kept.Put(frame, {image, whole, lookOf(*info)}, static_cast<std::size_t>(image.sizeInBytes()));
    return {image, rect};
}

CellPhoto CellPictures::fastPhoto(std::int32_t frame, const CellGeometry& geometry)
{
    const Kept* kept = _kept.Find(frame);
    if (!kept)
        return {};
    const QRectF to = geometry.imageRect();
    const double x = to.width() / kept->whole.width(), y = to.height() / kept->whole.height();
    return {kept->image,
            {to.left() - kept->whole.left() * x, to.top() - kept->whole.top() * y,
             kept->image.width() * x, kept->image.height() * y}};
}

QImage CellPictures::render(std::int32_t frame, dk_ImageFrameInfo* info, const QRect& whole,
                            const QRect& shown)
{
    ++_rendered;
    if (!updateDocument(frame, info)) {
        dropDocument();
        return {};
    }
    return RenderFrame(*_document, _sequence, frame, whole, shown);
}

bool CellPictures::updateDocument(std::int32_t frame, dk_ImageFrameInfo* info)
{
    const Look look = lookOf(*info);
    const bool loaded = _document && _documentFrame == frame && _document->CurrentFrame() == info;
    if (loaded && look == _documentLook)
        return true;
    // Colours are worked into the pixels of a frame that isn't gray.
    const bool gray = loaded && (_document->FrameProperties() & kFrameIsGray) != 0;
    QvxStatus status = kQvxOK;
    if (gray && HaveSamePixels(look.record, _documentLook.record)) {
        status = _document->UpdateExportedOffscreen();
    } else {
        _document = std::make_unique<zel_QTViewerDoc>();
        _documentFrame = frame;
        _ahead.Collect(_sequence, frame);
        status = U_LoadFrameContentToViewerDoc(_sequence, frame, _document.get());
    }
    _documentLook = lookOf(*info);
    return status == kQvxOK;
}

void CellPictures::dropDocument()
{
    _document.reset();
    _documentFrame = 0;
}

void CellPictures::remove(std::int32_t frame)
{
    _kept.Remove(frame);
    _failed.erase(frame);
}

void CellPictures::removeAll()
{
    _kept.Clear();
    _failed.clear();
    dropDocument();
}

#include "viewer/SequenceDelegate.h"

#include "dicom_core/imaging/DicomOverlays.h"
#include "dicom_core/imaging/LoadFrame.h"
#include "dicom_core/imaging/zel_QTViewerDoc.h"
#include "dicom_core/look/TransDocs.h"
#include "dicom_core/tree/dk_SequenceBase.h"
#include "pixels/ScreenPixels.h"
#include "util/Log.h"

#include "qpix/zelImageSource.h"
#include <algorithm>
#include <cmath>

namespace {

constexpr std::size_t kPhotosLimit = std::size_t{128} << 20;  // bytes, of finished pictures
constexpr int kLongestSide = 32767;  // pixels: what the bounds of a pixel map can say

QSizeF FittedSize(const QSize& frame, const QSizeF& content)
{
    const double zoom =
        std::min({1.0, content.width() / frame.width(), content.height() / frame.height()});
    return QSizeF(frame) * std::max(0.0, zoom);
}

QSize DeviceSize(const QSizeF& size, double pixelRatio)
{
    return {std::clamp(static_cast<int>(std::lround(size.width() * pixelRatio)), 1, kLongestSide),
            std::clamp(static_cast<int>(std::lround(size.height() * pixelRatio)), 1, kLongestSide)};
}

// A port over the pixels of an image.
Port PortOver(QImage* image)
{
    Port port;
    port.baseAddr = image->bits();
    port.rowBytes = static_cast<std::int32_t>(image->bytesPerLine());
    port.bounds = {0, 0, static_cast<std::int16_t>(image->height()),
                   static_cast<std::int16_t>(image->width())};
    port.pixelFormat = kPixelFormatARGB32;
    port.pixelSize = 32;
    port.cmpCount = 4;
    port.cmpSize = 8;
    return port;
}

// The document's frame at that size, with its overlays; null when it can't be made.
QImage RenderedImage(zel_QTViewerDoc* document, const QSize& size)
{
    QImage image(size, QImage::Format_RGB32);
    if (image.isNull())
        return {};
    Port port = PortOver(&image);
    const dk_ImageFrameInfo* frame = document->CurrentFrame();
    if (const QvxStatus status =
            document->CopyPixelsToGWorldL(&port, nullptr, nullptr, CopyMode::Replace, nullptr)) {
        LogLine(frame->fSource->GetDataPath() +
                ": can't be rendered: " + std::string(StatusText(status)));
        return {};
    }
    const IdentityTransDoc turned;
    const QvxStatus status =
        U_DrawDicomOverlays(frame->fSource, frame->fFrameInFile, &port, port.bounds,
                            &frame->fTransform, &turned, gAppBaseBuffer, OverlaysBeyond::Cut);
    if (status)
        LogLine(frame->fSource->GetDataPath() + ": overlays: " + std::string(StatusText(status)));
    if (CopyToScreen(port, nullptr, image.bits(), image.bytesPerLine()))
        return {};
    return image;
}

}  // namespace

SequenceDelegate::SequenceDelegate() : _photos(kPhotosLimit) {}

void SequenceDelegate::setSequence(dk_SequenceBase* sequence)
{
    *this = SequenceDelegate();
    _sequence = sequence;
    _count = sequence ? std::max(sequence->GetNumberOfFrames(), 0) : 0;
}

MUPhoto SequenceDelegate::photoAtIndex(int index, const QSizeF& contentSize, double pixelRatio)
{
    if (const Photo* kept = _photos.Find(index)) {
        const QSizeF size = FittedSize(kept->frameSize, contentSize);
        if (kept->image.size() == DeviceSize(size, pixelRatio))
            return {kept->image, size};
    }
    if (index == _failedIndex)  // not decoded again at each painting
        return {};
    MUPhoto photo = makePhoto(index, contentSize, pixelRatio);
    _failedIndex = photo.isNull() ? index : -1;
    return photo;
}

MUPhoto SequenceDelegate::makePhoto(int index, const QSizeF& contentSize, double pixelRatio)
{
    zel_QTViewerDoc document;
    if (!_sequence || U_LoadFrameContentToViewerDoc(_sequence, index + 1, &document))
        return {};
    const QSize frameSize(std::max(document.GetEffectiveWidth(), 1),
                          std::max(document.GetEffectiveHeight(), 1));
    const QSizeF size = FittedSize(frameSize, contentSize);
    const QImage image = RenderedImage(&document, DeviceSize(size, pixelRatio));
    if (image.isNull())
        return {};
    const zel_TransformRec& look = *document.GetTransformations();
    const auto bytes = static_cast<std::size_t>(image.sizeInBytes());
    _photos.Put(index,
                {image, frameSize, document.IsVOIReady() && look.voiWidth > 0, look.voiWidth,
                 look.voiLevel},
                bytes);
    return {image, size};
}

MUPhoto SequenceDelegate::fastPhotoAtIndex(int index, const QSizeF& contentSize)
{
    const Photo* kept = _photos.Find(index);
    return kept ? MUPhoto{kept->image, FittedSize(kept->frameSize, contentSize)} : MUPhoto{};
}

SequenceDelegate::Caption SequenceDelegate::captionAtIndex(int index)
{
    Caption caption;
    const dk_ImageFrameInfo* frame = _sequence ? _sequence->GetImageFrameInfo(index + 1) : nullptr;
    if (frame && frame->fSource) {
        std::int32_t frames = 1;
        if (frame->fSource->GetFrameCount(&frames))
            frames = 1;
        caption.path = frame->fSource->GetDataPath();
        caption.frame = frame->fFrameInFile;
        caption.framesOfFile = frames;
    }
    caption.failed = index == _failedIndex;
    if (const Photo* photo = _photos.Find(index)) {
        caption.hasWindow = photo->hasWindow;
        caption.width = photo->width;
        caption.level = photo->level;
    }
    return caption;
}

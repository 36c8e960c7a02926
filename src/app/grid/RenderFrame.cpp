#include "app/grid/RenderFrame.h"

#include "app/grid/ZELSequenceProxy.h"
#include "dicom_core/imaging/DicomOverlays.h"
#include "dicom_core/imaging/LoadFrame.h"
#include "dicom_core/imaging/zel_QTViewerDoc.h"
#include "dicom_core/look/GridFrameTransDoc.h"
#include "dicom_core/tree/dk_SequenceBase.h"
#include "pixels/PixelCopy.h"
#include "pixels/PixelFormat.h"
#include "pixels/PortTables.h"
#include "pixels/ScreenPixels.h"
#include "util/Log.h"

#include "qpix/zelImageSource.h"
#include <string>

namespace {

std::int16_t Short(int value) { return static_cast<std::int16_t>(value); }

Rect RectOf(const QRect& r)
{
    return {Short(r.top()), Short(r.left()), Short(r.top() + r.height()),
            Short(r.left() + r.width())};
}

// A port over the pixels of an image of 32 bits.
Port PortOver(QImage* image)
{
    Port port;
    port.baseAddr = image->bits();
    port.rowBytes = static_cast<std::int32_t>(image->bytesPerLine());
    port.bounds = {0, 0, Short(image->height()), Short(image->width())};
    port.pixelFormat = kPixelFormatARGB32;
    port.pixelSize = 32;
    port.cmpCount = 4;
    port.cmpSize = 8;
    return port;
}

// Gray is scaled as gray, a quarter of the bytes, and widened last.
QvxStatus DrawGray(const Port& frame, const Rect& to, QImage* image)
{
    std::unique_ptr<Port> gray;
    if (const QvxStatus status =
            NewPort(kPixelFormatGray8, image->width(), image->height(), nullptr, &gray))
        return status;
    if (const QvxStatus status = CopyPixels(frame, *gray, nullptr, &to, CopyMode::Replace, nullptr))
        return status;
    return CopyToScreen(*gray, nullptr, image->bits(), image->bytesPerLine());
}

QvxStatus DrawColors(const Port& frame, dk_SequenceBase* sequence, std::int32_t number,
                     const QRect& whole, QImage* image)
{
    Port port = PortOver(image);
    const Rect to = RectOf(whole);
    if (const QvxStatus status = CopyPixels(frame, port, nullptr, &to, CopyMode::Replace, nullptr))
        return status;
    // A frame is shown without the planes that can't be read.
    if (const QvxStatus status = U_DrawCellOverlays(sequence, number, &port, whole))
        LogLine("overlays of frame " + std::to_string(number) + ": " +
                std::string(StatusText(status)));
    return CopyToScreen(port, nullptr, image->bits(), image->bytesPerLine());
}

bool ShowsOverlays(dk_SequenceBase* sequence)
{
    return sequence->HasDICOMOverlays() && sequence->GetViewState()->fShowsDICOMOverlays;
}

}  // namespace

QvxStatus U_DrawCellOverlays(dk_SequenceBase* sequence, std::int32_t frame, Port* target,
                             const QRect& whole)
{
    if (!sequence || !target || !ShowsOverlays(sequence))
        return kQvxOK;
    const dk_ImageFrameInfo* info = sequence->GetImageFrameInfo(frame);
    const auto* cells = sequence->GetSequenceCellInfo();
    if (!info || !info->fSource || !info->fSource->IsDICOM() || info->fFrameInFile < 1 || !cells)
        return kQvxOK;
    const Rect to = RectOf(whole);
    const GridFrameTransDoc doc(frame, *cells, frame == sequence->GetCurrentFrameIndex(),
                                info->fTransform, to, RectToLRect(to), nullptr);
    return U_DrawDicomOverlays(info->fSource, info->fFrameInFile, target, to, &info->fTransform,
                               &doc, gAppBaseBuffer, OverlaysBeyond::Cut);
}

QImage RenderFrame(const zel_QTViewerDoc& document, dk_SequenceBase* sequence, std::int32_t frame,
                   const QRect& whole, const QRect& shown)
{
    const zel_Offscreen* offscreen = document.ExportedOffscreen();
    QImage image(shown.size(), QImage::Format_RGB32);
    if (image.isNull() || !offscreen)
        return {};
    Port& port = *offscreen->GetGWorldPtr();
    const QRect place = whole.translated(-shown.topLeft());
    const bool isGray = port.pixelSize == 8 && GetPixelFormatOfGWorld(port) == kPixelFormatGray8;
    const PortLock lock(port);
    const QvxStatus status = isGray && !ShowsOverlays(sequence)
                                 ? DrawGray(port, RectOf(place), &image)
                                 : DrawColors(port, sequence, frame, place, &image);
    if (!status)
        return image;
    LogLine("frame " + std::to_string(frame) +
            " can't be rendered: " + std::string(StatusText(status)));
    return {};
}

QvxStatus U_DrawGWorldBitmapForFrame(const ZELSequenceProxy& proxy, std::int32_t frame,
                                     Port* target, const Rect& place)
{
    constexpr int kBestQuality = 1024;
    zel_QTViewerDoc document;
    if (const QvxStatus status =
            U_LoadFrameContentToViewerDoc(proxy.theSequence(), frame, &document))
        return status;
    return U_DrawFrameContentFromDoc(proxy, frame, target, place, &document, kBestQuality);
}

QvxStatus U_DrawFrameContentFromDoc(const ZELSequenceProxy& proxy, std::int32_t frame, Port* target,
                                    const Rect& place, zel_QTViewerDoc* document, int quality)
{
    constexpr int kFastest = 16;
    dk_ImageFrameInfo* info =
        proxy.theSequence() ? proxy.theSequence()->GetImageFrameInfo(frame) : nullptr;
    LongRect visible;
    if (!info || !target || !document)
        return kQvxBadArgument;
    if (const QvxStatus status = info->GetImageVisibleRect(&visible))
        return status;
    const QvxStatus status =
        quality == kFastest
            ? document->CopyPixelsToGWorldL(target, &visible, &place, CopyMode::Dither, nullptr)
            : document->DecompressToGWorldL(target, &visible, &place, quality, CopyMode::Dither,
                                            nullptr);
    if (status)
        return status;
    return U_DrawCellOverlays(proxy.theSequence(), frame, target,
                              QRect(QPoint(place.left, place.top),
                                    QSize(place.right - place.left, place.bottom - place.top)));
}

QImage U_NSCreateImageFromGWorld(const Port& port)
{
    QImage image(WidthOf(port.bounds), HeightOf(port.bounds), QImage::Format_RGB32);
    if (image.isNull() || CopyToScreen(port, nullptr, image.bits(), image.bytesPerLine()))
        return {};
    return image;
}

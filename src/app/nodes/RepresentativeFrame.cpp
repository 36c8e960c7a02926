#include "app/nodes/RepresentativeFrame.h"

#include "app/grid/RenderFrame.h"
#include "app/nodes/DicomElemChildNode.h"
#include "dicom_core/imaging/DicomOverlays.h"
#include "dicom_core/imaging/LoadFrame.h"
#include "dicom_core/imaging/zel_QTViewerDoc.h"
#include "dicom_core/look/LocationMaths.h"
#include "dicom_core/tree/dk_SequenceBase.h"
#include "pixels/PixelFormat.h"
#include "util/Log.h"

#include "qpix/zelImageSource.h"
#include <QImageReader>
#include <algorithm>
#include <cmath>
#include <string>

namespace {

std::int16_t Side(double pixels)
{
    return static_cast<std::int16_t>(std::clamp(std::lround(pixels), 1L, long{kThumbnailSide}));
}

// A frame's size, its pixels made square; empty where it can't be measured.
Rect FrameRect(dk_ImageFrameInfo* frame)
{
    Point size;
    if (!frame || !frame->fSource || frame->GetFrameSizeWithAspectRatio(&size))
        return {};
    return {0, 0, size.v, size.h};
}

Rect ThumbnailRect(const Rect& frame, bool square)
{
    constexpr auto kSide = static_cast<std::int16_t>(kThumbnailSide);
    if (square || EmptyRect(frame))
        return {0, 0, kSide, kSide};
    const double scale = double{kThumbnailSide} / std::max(frame.bottom, frame.right);
    return {0, 0, Side(frame.bottom * scale), Side(frame.right * scale)};
}

// Planes that can't be read are left out.
void DrawOverlays(const dk_ImageFrameInfo& frame, Port* target, const Rect& place)
{
    if (!frame.fSource->IsDICOM() || frame.fFrameInFile < 1)
        return;
    if (const QvxStatus status =
            U_DrawDicomOverlays(frame.fSource, frame.fFrameInFile, target, place, nullptr, nullptr,
                                gAppBaseBuffer, OverlaysBeyond::Cut))
        LogLine("overlays of a thumbnail: " + std::string(StatusText(status)));
}

QImage WarningImage()
{
    QImageReader reader(QStringLiteral(":/icons/warning.svg"));
    reader.setScaledSize({kThumbnailSide, kThumbnailSide});
    return reader.read();
}

}  // namespace

QvxStatus DrawRepresentativeCellImage(dk_SequenceBase* sequence, Port* target, const Rect& rect)
{
    dk_ImageFrameInfo* frame = sequence ? sequence->GetRepresentativeImageFrameInfo() : nullptr;
    const Rect natural = FrameRect(frame);
    if (!target || EmptyRect(natural))
        return kQvxBadArgument;
    zel_QTViewerDoc document;
    document.SetEditsShown({.window = false, .colors = false, .geometry = false});
    if (const QvxStatus status = U_LoadFrameContentToViewerDoc(
            sequence, sequence->GetRepresentativeFrameNumber(), &document))
        return status;
    const Rect place = FitRectScaledProp(natural, rect, true);
    const QvxStatus status =
        document.CopyPixelsToGWorldL(target, nullptr, &place, CopyMode::Replace, nullptr);
    if (!status)
        DrawOverlays(*frame, target, place);
    return status;
}

QvxStatus U_UpdateDrawBufferForRepresentativeFrameOf(dk_SequenceBase* sequence, bool square,
                                                     std::unique_ptr<Port>* port)
{
    if (!sequence || !port)
        return kQvxBadArgument;
    const Rect size = ThumbnailRect(FrameRect(sequence->GetRepresentativeImageFrameInfo()), square);
    std::unique_ptr<Port> made;
    if (const QvxStatus status =
            NewPort(kPixelFormatARGB32, size.right, size.bottom, nullptr, &made))
        return status;
    if (const QvxStatus status = DrawRepresentativeCellImage(sequence, made.get(), size))
        LogLine("a thumbnail stays white: " + std::string(StatusText(status)));
    *port = std::move(made);
    return kQvxOK;
}

QImage U_RepresentativeFrameImageFor(dk_SequenceBase* sequence, bool square)
{
    if (!sequence || sequence->GetNumberOfFrames() < 1)
        return WarningImage();
    std::unique_ptr<Port> port;
    if (U_UpdateDrawBufferForRepresentativeFrameOf(sequence, square, &port))
        return {};
    return U_NSCreateImageFromGWorld(*port);
}

float U_IconHeightOf(const QImage& image)
{
    return image.width() > image.height() ? static_cast<float>(image.height()) * kThumbnailSide /
                                                static_cast<float>(image.width())
                                          : static_cast<float>(kThumbnailSide);
}

// How a frame gets into the imported offscreen: from the buffer or from its file, then turned.
#include "dicom_core/imaging/BufferedFacts.h"
#include "dicom_core/imaging/DecodeFrame.h"
#include "dicom_core/imaging/SetupVOIBlitter.h"
#include "dicom_core/imaging/zel_QTViewerDoc.h"
#include "dicom_core/look/ImageTransformer.h"
#include "dicom_core/look/LocationMaths.h"
#include "dicom_core/tree/dk_SequenceBase.h"
#include "pixels/COffscreenUtils.h"
#include "pixels/Flips.h"
#include "pixels/OffscreenFactory.h"

#include "qpix/OffscreenForFrame.h"
#include "qpix/zelImageSource.h"
#include <new>
#include <tuple>

QvxStatus zel_QTViewerDoc::ImportCurrentSeqFrame()
{
    if (fStatus < kDocFrameSelected || !fFrame)
        return kQvxBadArgument;
    fFlags.Detach(fVOIBack.get());
    DisposeOffsreen(&fVOIBack);
    fFlags.Detach(fImported.get());
    DisposeOffsreen(&fImported);
    fExported = nullptr;
    return Step([this]() -> QvxStatus {
        Point size;
        if (const QvxStatus status = fFrame->GetFrameSize(&size))
            return status;
        const std::int32_t image = fFrame->fFrameInFile;
        if (image < 1)
            return kQvxBadArgument;
        if (const QvxStatus status = fImporter->SetCurrentImage(image))
            return status;
        const Rect bounds{0, 0, size.v, size.h};
        if (const QvxStatus status =
                U_NewOffscreenForFrame(*fImporter, image, &fImported, &bounds, &fProperties))
            return status;
        if (const QvxStatus status = fImported->SaveColorTable())
            return status;
        if (const QvxStatus status = UpdateImportedOffscreen())
            return status;
        if (const QvxStatus status = SetupVOIBlitter())
            return status;
        return UpdateExportedOffscreen();
    });
}

// A step that fails leaves a document that shows nothing, but still knows its frame.
QvxStatus zel_QTViewerDoc::Step(const std::function<QvxStatus()>& step)
{
    try {
        return FallBack(step());
    } catch (const std::bad_alloc&) {
        return FallBack(kQvxNoMemory);
    }
}

QvxStatus zel_QTViewerDoc::UpdateImportedOffscreen()
{
    if (fStatus < kDocFrameSelected || !fImported)
        return kQvxBadArgument;
    return Step([this]() -> QvxStatus {
        fFlags.Attach(fImported.get(), 0);
        if (const QvxStatus status = fImported->RestoreColorTable())
            return status;
        if (const QvxStatus status = DrawOnOffscreenViaBuffer())
            return status;
        fStatus = kDocImported;
        fExported = fImported.get();
        return ApplyTransformations();
    });
}

bool zel_QTViewerDoc::IsDicomGray() const { return IsDicomGrayFrame(fProperties); }

QvxStatus zel_QTViewerDoc::DrawOnOffscreenViaBuffer()
{
    if (!fBuffer || !fFrame->fSource)
        return DrawOnOffscreen();
    // The document's frame need not be the sequence's current one.
    const std::int32_t primary = fFrame->fFrameInFile, secondary = fFrame->fSource->SourceID();
    if (DrawFromBuffer(primary, secondary))
        return kQvxOK;
    if (const QvxStatus status = DrawOnOffscreen())
        return status;
    StoreInBuffer(primary, secondary);
    return kQvxOK;
}

// False sends the frame through its decoder: one that isn't there, or can't be read back, or a gray
// one without the record of what its pixels mean, of which only its decoder could tell.
bool zel_QTViewerDoc::DrawFromBuffer(std::int32_t primary, std::int32_t secondary)
{
    if (!CanImportFromExternalBuffer(primary, secondary))
        return false;
    zelDPIFRecord facts;
    if (IsDicomGray() && !FindBufferedFacts(fBuffer, primary, secondary, &facts))
        return false;
    return fBuffer->DrawImageByID(primary, secondary, fImported->GetGWorldPtr(), nullptr) == kQvxOK;
}

// A frame that can't be kept is shown all the same.
void zel_QTViewerDoc::StoreInBuffer(std::int32_t primary, std::int32_t secondary)
{
    zelDPIFRecord facts;
    const bool known =
        IsDicomGray() && FactsFromCodec(*GetDicomCodec(), fProperties, &facts) == kQvxOK;
    std::ignore = StoreDecodedFrame(fBuffer, fImported.get(), primary, secondary, fStorePriority,
                                    fInsertLimit, known ? &facts : nullptr);
}

QvxStatus zel_QTViewerDoc::DrawOnOffscreen()
{
    if (fStatus < kDocFrameSelected)
        return kQvxBadArgument;
    return DecodeFrame(fImporter, fProperties, IsDicomGray() ? GetDicomCodec() : nullptr,
                       fImported.get());
}

QvxStatus zel_QTViewerDoc::SetupVOIBlitter()
{
    fVOIReady = false;
    if (!IsDicomGray())
        return kQvxOK;
    if (!fIsDicom || fStatus < kDocFrameSelected || !Blitter())
        return kQvxBadArgument;
    const QvxStatus status =
        ::SetupVOIBlitter(fSequence, GetDicomCodec(), fFrame, fProperties, fBuffer);
    fVOIReady = status == kQvxOK;
    return status;
}

QvxStatus zel_QTViewerDoc::ApplyTransformations()
{
    if (fStatus < kDocImported)
        return kQvxBadArgument;
    const zel_TransformRec record = ShownRecord();
    QvxStatus status = kQvxBadArgument;
    switch (record.rotation) {
        case 0:
            status = kQvxOK;
            break;
        case 90:
            status = DoTransform(Turn::By90);
            break;
        case 180:
            status = DoTransform(Turn::By180);
            break;
        case 270:
            status = DoTransform(Turn::By270);
            break;
        default:
            break;
    }
    if (!status && record.vertFlip)
        status = DoTransform(Turn::Vertical);
    if (!status && record.horzFlip)
        status = DoTransform(Turn::Horizontal);
    if (!status)
        status = ImageTransformer().ApplyBnC(fImported->GetGWorldPtr(), record.brightness,
                                             record.contrast);
    return status;
}

QvxStatus zel_QTViewerDoc::DoTransform(Turn turn)
{
    QvxStatus status = kQvxBadArgument;
    Port* port = fImported->GetGWorldPtr();
    switch (turn) {
        case Turn::Vertical:
            status = FlipOffscreenVert(port);
            break;
        case Turn::Horizontal:
            status = FlipOffscreenHorz(port);
            break;
        case Turn::By180:
            status = FlipOffscreenBoth(port);
            break;
        case Turn::By90:
        case Turn::By270:
            status = TurnByQuarter(turn);
            break;
    }
    return status == kQvxUserCanceled ? status : FallBack(status);
}

QvxStatus zel_QTViewerDoc::TurnByQuarter(Turn turn)
{
    std::unique_ptr<zel_Offscreen> turned;
    if (const QvxStatus status = NewOffscreen4Rot90(*fImported, &turned))
        return status;
    Port* port = turned->GetGWorldPtr();
    QvxStatus status = RotateOffscreen90(*fImported->GetGWorldPtr(), port);
    if (!status && turn == Turn::By270)
        status = FlipOffscreenBoth(port);
    if (status)
        return status;
    const std::uint32_t flags =
        (fProperties & kFrameIsIndexed) != 0 ? 0 : fFlags.GetFlags(fImported.get());
    fFlags.Detach(fImported.get());
    fImported = std::move(turned);
    fExported = fImported.get();
    fFlags.Attach(fImported.get(), flags);
    return fImported->SaveColorTable();
}

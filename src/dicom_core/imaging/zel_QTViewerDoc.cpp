// Which frame a document shows, how far it has come, and what it answers of it.
#include "dicom_core/imaging/zel_QTViewerDoc.h"

#include "dicom_core/tree/dk_SequenceBase.h"
#include "util/Log.h"

#include "qpix/CImporterPlus.h"
#include "qpix/zelImageSource.h"
#include <algorithm>
#include <cmath>

namespace {

constexpr double kShortestSide = 32, kLongestSide = 32000;  // pixels of a zoomed frame

// As the size of a frame's cell is counted: 16.16, cut off.
std::int32_t Cut(std::int64_t length)
{
    return static_cast<std::int32_t>(std::min<std::int64_t>(length, INT32_MAX));
}

}  // namespace

QvxStatus zel_QTViewerDoc::SetSequence(dk_SequenceBase* sequence)
{
    if (fStatus < kDocMade)
        return kQvxBadArgument;
    ResetImageSource(sequence);
    const std::int32_t current = sequence ? sequence->GetCurrentFrameIndex() : 0;
    return current >= 1 ? SetCurrentImageFrame(current) : kQvxOK;
}

void zel_QTViewerDoc::ResetImageSource(dk_SequenceBase* sequence)
{
    fSequence = sequence;
    fFrame = nullptr;
    fImporter = nullptr;
    fProperties = 0;
    fIsDicom = fVOIReady = false;
    fStatus = std::min(fStatus, kDocMade);
    fHandicap = !sequence                    ? kHandicapNoSequence
                : !sequence->GetFirstChild() ? kHandicapNoChildren
                                             : kHandicapNoFrameYet;
}

QvxStatus zel_QTViewerDoc::SetCurrentImageFrame(std::int32_t frame)
{
    dk_ImageFrameInfo* info = nullptr;
    if (fStatus >= kDocMade && fSequence && frame >= 1 && frame <= fSequence->GetNumberOfFrames())
        info = fSequence->GetImageFrameInfo(frame);
    zelImageSource* source = info ? info->fSource : nullptr;
    std::int32_t count = 0;
    QvxStatus status = kQvxBadArgument;
    if (source && source->IsValid())
        status = source->GetFrameCount(&count);
    if (count < 1) {
        ResetImageSource(fSequence);
        fHandicap = kHandicapNoSuchFrame;
        return status ? status : kQvxBadArgument;
    }
    CImporterPlus* importer = status ? nullptr : source->GetImporter();
    if (!importer) {
        ResetImageSource(fSequence);
        return status ? status : kQvxBadArgument;
    }
    fFrame = info;
    fImporter = importer;
    fIsDicom = source->IsDICOM();
    fProperties = 0;
    fVOIReady = false;
    fStatus = kDocFrameSelected;
    fHandicap = kHandicapNone;
    return kQvxOK;
}

QvxStatus zel_QTViewerDoc::LoadImageSource()
{
    const auto log = [this](const char* place, QvxStatus status) {
        LogLine(std::string("ERROR in ") + LoadWords() + ' ' + place + ": " +
                std::to_string(status));
    };
    QvxStatus status = kQvxBadArgument;
    if (fStatus >= kDocMade && fSequence) {
        status = SetCurrentImageFrame(fSequence->GetCurrentFrameIndex());
        if (status)
            log("2", status);
        else
            status = ImportCurrentSeqFrame();
    }
    if (status)
        log("3", status);
    return status;
}

void zel_QTViewerDoc::AttachExternalBuffer(zel_ImageBuffer* buffer, std::uint32_t storePriority,
                                           std::uint32_t insertLimit)
{
    fBuffer = buffer;
    fStorePriority = storePriority;
    fInsertLimit = insertLimit;
}

std::int32_t zel_QTViewerDoc::GetHandicap() const
{
    return fStatus > kDocFrameSelected ? kHandicapNone : fHandicap;
}

std::int32_t zel_QTViewerDoc::GetWidth() const
{
    return fStatus >= kDocImported && fExported ? fExported->Width() : 0;
}

std::int32_t zel_QTViewerDoc::GetHeight() const
{
    return fStatus >= kDocImported && fExported ? fExported->Height() : 0;
}

// Of the frame as it is shown: turned or not.
std::int32_t zel_QTViewerDoc::AspectRatio() const
{
    if (!fFrame)
        return kZoomOne;
    return fShown.geometry ? fFrame->GetDisplayedPixelAspectRatio() : fFrame->GetPixelAspectRatio();
}

std::int32_t zel_QTViewerDoc::GetEffectiveWidth() const
{
    const std::int32_t ratio = AspectRatio();
    if (ratio <= 0 || ratio >= kZoomOne)
        return GetWidth();
    return Cut((std::int64_t{GetWidth()} << 16) / ratio);
}

std::int32_t zel_QTViewerDoc::GetEffectiveHeight() const
{
    const std::int32_t ratio = AspectRatio();
    return ratio <= kZoomOne ? GetHeight() : Cut((std::int64_t{GetHeight()} * ratio) >> 16);
}

QvxStatus zel_QTViewerDoc::GetOriginalBounds(Rect* bounds) const
{
    Rect natural;
    if (fStatus < kDocImported || !fImporter || !bounds)
        return kQvxBadArgument;
    if (const QvxStatus status = fImporter->GetNaturalBounds(&natural))
        return status;
    if (EmptyRect(natural))
        return kQvxBadArgument;
    *bounds = natural;
    return kQvxOK;
}

Rect zel_QTViewerDoc::GetDocBounds() const
{
    return {0, 0, static_cast<std::int16_t>(GetHeight()), static_cast<std::int16_t>(GetWidth())};
}

std::int32_t zel_QTViewerDoc::GetFramesTotal() const
{
    return fStatus < kDocFrameSelected ? -1 : std::max(fSequence->GetNumberOfFrames(), 0);
}

zel_TransformRec* zel_QTViewerDoc::GetTransformations()
{
    return fStatus < kDocFrameSelected || !fFrame ? nullptr : &fFrame->fTransform;
}

std::int32_t zel_QTViewerDoc::GetZoomVal() const
{
    return fStatus < kDocFrameSelected || !fFrame ? kZoomOne : fFrame->fTransform.zoom;
}

void zel_QTViewerDoc::SetZoomVal(std::int32_t zoom)
{
    if (fStatus < kDocFrameSelected || !fFrame)
        return;
    double minimum = 1, maximum = 1;
    GetZoomLimits(&minimum, &maximum);
    const double pinned =
        std::clamp(static_cast<double>(zoom), minimum * kZoomOne, maximum * kZoomOne);
    if (pinned >= 1)
        fFrame->fTransform.zoom = static_cast<std::int32_t>(std::lround(pinned));
}

void zel_QTViewerDoc::GetZoomLimits(double* minimum, double* maximum) const
{
    const std::int32_t width = GetWidth(), height = GetHeight();
    const bool sized = width > 0 && height > 0;
    if (minimum)
        *minimum =
            sized ? std::min(std::max(kShortestSide / height, kShortestSide / width), 1.0) : 1.0;
    if (maximum)
        *maximum =
            sized ? std::max(std::min(kLongestSide / height, kLongestSide / width), 1.0) : 1.0;
}

QvxStatus zel_QTViewerDoc::GetDisplayVOIParams(std::uint32_t* width, std::int32_t* level) const
{
    if (fStatus < kDocFrameSelected || !fFrame || !width || !level)
        return kQvxBadArgument;
    zel_TransformRec record = fFrame->fTransform;
    record.voiWidth = std::round(record.voiWidth);  // what the other truncates is whole then
    return U_GetDisplayVOIParams(record, width, level);
}

bool zel_QTViewerDoc::CanImportFromExternalBuffer(std::int32_t primary,
                                                  std::int32_t secondary) const
{
    return fBuffer && fStatus >= kDocFrameSelected && fSequence &&
           fBuffer->GetImageInfoByID(primary, secondary);
}

DicomCodec* zel_QTViewerDoc::GetDicomCodec()
{
    if (!fCodec)
        fCodec = std::make_unique<DicomCodec>();
    return fCodec.get();
}

CVOIBlitter* zel_QTViewerDoc::Blitter()
{
    if (!fBlitter)
        U_NewVOIBlitter(&fBlitter);
    return fBlitter.get();
}

zel_TransformRec zel_QTViewerDoc::ShownRecord() const
{
    zel_TransformRec record = fFrame->fTransform;
    if (!fShown.window)
        record.ResetColors();
    if (!fShown.geometry)
        record.ResetFlipNRot();
    return record;
}

// A failed step leaves a document that shows nothing, but still knows its frame.
QvxStatus zel_QTViewerDoc::FallBack(QvxStatus status)
{
    if (status)
        fStatus = std::min(fStatus, kDocFrameSelected);
    return status;
}

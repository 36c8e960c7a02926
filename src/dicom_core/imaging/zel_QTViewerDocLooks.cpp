// What gives the exported offscreen its looks: window, negative and colours.
#include "dicom_core/imaging/zel_QTViewerDoc.h"
#include "dicom_core/tree/dk_SequenceBase.h"
#include "pixels/FreeMemory.h"
#include "pixels/OffscreenFactory.h"
#include "pixels/PortDescription.h"
#include "pixels/PortTables.h"
#include "prefs/Prefs.h"
#include "prefs/PrefsTables.h"

#include "qpix/OffscreenForFrame.h"
#include <algorithm>
#include <array>

namespace {

// Depths of images that can be shown as a negative.
constexpr std::array<std::int32_t, 10> kInvertible{1, 2, 4, 8, 16, 24, 32, 34, 36, 40};

// Index 0 to 255 by the mean of three components of 16 bits.
std::uint32_t GrayOf(const ColorSpec& entry)
{
    return (std::uint32_t{entry.red} + entry.green + entry.blue) / 768;
}

}  // namespace

QvxStatus zel_QTViewerDoc::UpdateExportedOffscreen()
{
    return Step([this] {
        const QvxStatus status = PrepareExportedOffscreen();
        return status ? status : ImportedToExportedOffscreenSync();
    });
}

QvxStatus zel_QTViewerDoc::PrepareExportedOffscreen()
{
    if (const QvxStatus status = OrganizeVOIBuffer())
        return status;
    const bool windowed = fStatus == kDocImported && fVOIReady && fVOIBack;
    fExported = windowed ? fVOIBack.get() : fImported.get();
    if (!fExported)
        return kQvxBadArgument;
    if ((fProperties & kFrameIsIndexed) != 0 || (fProperties & 3) == 3)
        fFlags.Attach(fExported, 0);
    return fExported->RestoreColorTable();
}

QvxStatus zel_QTViewerDoc::OrganizeVOIBuffer()
{
    if (!fVOIReady || (fProperties & kFrameIsSixteenBit) == 0 || !fImported)
        return kQvxOK;
    const int width = fImported->Width(), height = fImported->Height();
    if (fVOIBack && fVOIBack->Width() == width && fVOIBack->Height() == height)
        return kQvxOK;
    fFlags.Detach(fVOIBack.get());
    DisposeOffsreen(&fVOIBack);
    bool fits = false;
    if (const QvxStatus status = CanGWorldFitToHeep(width, height, 8, &fits))
        return status;
    const Port& port = *fImported->GetGWorldPtr();
    if (const QvxStatus status = zel_OffscreenFactory::NewCOffscreen(
            kPixelFormatGray8, width, height, port.horzResolution, port.vertResolution, !fits,
            &fVOIBack))
        return status;
    return fVOIBack->SaveColorTable();
}

QvxStatus zel_QTViewerDoc::ImportedToExportedOffscreenSync()
{
    if (fStatus < kDocImported)
        return kQvxBadArgument;
    if (const QvxStatus status = ApplyWindow())
        return status;
    const std::uint32_t flags = fFlags.GetFlags(fExported);
    const bool inverted = (flags & kInverted) != 0;
    const bool invert = inverted != ShownRecord().invert;
    const bool colorize = fShown.colors && (flags & kColorized) == 0 && fFrame->fColorTable != 0 &&
                          prefs_GetColorSpecs(fFrame->fColorTable);
    if ((fProperties & (kFrameIsGray | kFrameIsIndexed)) != 0 && colorize)
        return ColorizeIndexedImage(fExported, true);
    if (invert)
        if (const QvxStatus status = ApplyInvert())
            return status;
    return colorize ? ColorizeRGBImage() : kQvxOK;
}

QvxStatus zel_QTViewerDoc::ApplyWindow()
{
    if (!fVOIReady)
        return kQvxOK;
    return fVOIBack ? PassThroughBlitter() : ApplyVOIOnCTable();
}

// A 16-bit frame, windowed into the back buffer.
QvxStatus zel_QTViewerDoc::PassThroughBlitter()
{
    Port& source = *fImported->GetGWorldPtr();
    Port& target = *fVOIBack->GetGWorldPtr();
    const PortLock sourceLock(source), targetLock(target);
    const zel_TransformRec record = ShownRecord();
    if (!prefs_EnhanceVOIContrast())
        return Blitter()->CopyPixelsTo8Bits(record, &source, &target, target.bounds, target.bounds);
    std::int32_t minimum = 0, maximum = 0;
    fFrame->GetActualPixelValuesRange(&minimum, &maximum);
    return Blitter()->CopyPixelsTo8Bits(record, minimum, maximum, &source, &target, target.bounds,
                                        target.bounds);
}

// An 8-bit gray frame, whose pixels stay as they are.
QvxStatus zel_QTViewerDoc::ApplyVOIOnCTable()
{
    constexpr std::uint32_t kNeeded = kFrameIsDicom | kFrameIsGray | kFrameIsIndexed;
    if ((fProperties & kNeeded) != kNeeded)
        return kQvxBadArgument;
    const zel_TransformRec record = ShownRecord();
    const ColorTable* table = nullptr;
    QvxStatus status = kQvxOK;
    if (prefs_EnhanceVOIContrast()) {
        std::int32_t minimum = 0, maximum = 0;
        fFrame->GetActualPixelValuesRange(&minimum, &maximum);
        status = Blitter()->GetCTableForVOI(record, minimum, maximum, &table);
    } else {
        status = Blitter()->GetCTableForVOI(record, &table);
    }
    return status ? status : EnforceCTable(*table);
}

QvxStatus zel_QTViewerDoc::EnforceCTable(const ColorTable& table)
{
    const QvxStatus status = EnforceColorTable(fExported->GetGWorldPtr(), table);
    if (status) {
        fExported = nullptr;
        fFlags.Detach(fImported.get());
        fFlags.Detach(fVOIBack.get());
        fImported.reset();
        fVOIBack.reset();
    }
    return FallBack(status);
}

QvxStatus zel_QTViewerDoc::ApplyInvert()
{
    ImageDescription description;
    if (fStatus < kDocImported)
        return kQvxBadArgument;
    if (const QvxStatus status = fExported->GetOrigImageDesc(&description))
        return status;
    if (std::ranges::find(kInvertible, COffscreenUtils::GetImageDepth(description)) ==
        kInvertible.end())
        return kQvxBadArgument;
    if (const QvxStatus status = fExported->Invert())
        return status;
    fFlags.Attach(fExported, fFlags.GetFlags(fExported) ^ kInverted);
    return kQvxOK;
}

QvxStatus zel_QTViewerDoc::ColorizeIndexedImage(zel_Offscreen* offscreen, bool honorInvert)
{
    Port* port = offscreen->GetGWorldPtr();
    const ColorTable* specs = prefs_GetColorSpecs(fFrame->fColorTable);
    if (!port || port->pixelSize > 8 || port->colorTable.fEntries.empty() || !specs)
        return kQvxBadArgument;
    const bool invert = honorInvert && ShownRecord().invert;
    for (ColorSpec& entry : port->colorTable.fEntries) {
        const std::uint32_t gray = GrayOf(entry);
        const ColorSpec& color = specs->fEntries[invert ? 255 - gray : gray];
        entry.red = color.red;
        entry.green = color.green;
        entry.blue = color.blue;
    }
    CTabChanged(&port->colorTable);
    const std::uint32_t flags = fFlags.GetFlags(offscreen);
    fFlags.Attach(offscreen, (invert ? flags ^ kInverted : flags) | kColorized);
    return kQvxOK;
}

// Colour goes by way of gray: the copy weighs its components as the eye does.
QvxStatus zel_QTViewerDoc::ColorizeRGBImage()
{
    const std::uint32_t format = fExported->GetGWorldPtr()->pixelFormat;
    if (format != 16 && format != 24 && format != kPixelFormatARGB32)
        return kQvxBadArgument;
    std::unique_ptr<zel_Offscreen> gray;
    if (const QvxStatus status = zel_OffscreenFactory::NewCOffscreen(
            kPixelFormatGray8, fExported->Width(), fExported->Height(), true, &gray))
        return status;
    QvxStatus status = fExported->CopyPixelsTo(gray->GetGWorldPtr());
    if (!status)
        status = ColorizeIndexedImage(gray.get(), false);
    if (!status)
        status = gray->CopyPixelsTo(fExported->GetGWorldPtr());
    fFlags.Detach(gray.get());
    if (!status)
        fFlags.Attach(fExported, fFlags.GetFlags(fExported) | kColorized);
    return status;
}

// The overlays of a DICOM image.
#include "qpix/DicomImporter.h"
#include "qpix/OverlayDescription.h"
#include <algorithm>

namespace {

constexpr std::int32_t kLongestSide = 32767;

std::int16_t Pinned(std::int32_t value)
{
    return static_cast<std::int16_t>(std::clamp(value, -kLongestSide, kLongestSide));
}

}  // namespace

QvxStatus DicomImporter::LoadOverlays()
{
    if (const QvxStatus status = Load())
        return status;
    if (fRecordStatus)
        return fRecordStatus;
    if (fOverlayImage == ImageIndex())
        return kQvxOK;
    fOverlayIndex = 0;
    if (const QvxStatus status = QvxOverlaysOfFrame(
            fReader.get(), fRecord, static_cast<std::uint32_t>(ImageIndex()), &fOverlays))
        return status;
    // What no port can hold is no overlay.
    std::erase_if(fOverlays, [](const QvxOverlay& overlay) {
        return overlay.fRows > kLongestSide || overlay.fColumns > kLongestSide;
    });
    fOverlayImage = ImageIndex();
    return kQvxOK;
}

QvxStatus DicomImporter::GetOverlayCount(std::int32_t* count)
{
    if (!count)
        return kQvxBadArgument;
    if (const QvxStatus status = LoadOverlays())
        return status;
    *count = static_cast<std::int32_t>(fOverlays.size());
    return kQvxOK;
}

QvxStatus DicomImporter::SetOverlayIndex(std::int32_t index)
{
    if (const QvxStatus status = LoadOverlays())
        return status;
    if (index < 1 || static_cast<std::size_t>(index) > fOverlays.size())
        return kQvxBadArgument;
    fOverlayIndex = static_cast<std::size_t>(index);
    return kQvxOK;
}

const QvxOverlay* DicomImporter::SelectedOverlay()
{
    if (LoadOverlays() || fOverlayIndex < 1 || fOverlayIndex > fOverlays.size())
        return nullptr;
    return &fOverlays[fOverlayIndex - 1];
}

QvxStatus DicomImporter::GetOverlayBounds(Rect* bounds)
{
    const QvxOverlay* overlay = SelectedOverlay();
    if (!overlay || !bounds)
        return kQvxBadArgument;
    *bounds = {Pinned(overlay->fTop), Pinned(overlay->fLeft),
               Pinned(overlay->fTop + overlay->fRows), Pinned(overlay->fLeft + overlay->fColumns)};
    return kQvxOK;
}

QvxStatus DicomImporter::GetOverlayImageDescription(ImageDescription* description)
{
    const QvxOverlay* overlay = SelectedOverlay();
    if (!overlay || !description)
        return kQvxBadArgument;
    return MakeOverlayDescription(*overlay, description);
}

QvxStatus DicomImporter::GetOverlayDataOffsetAndSize(std::uint32_t* offset, std::uint32_t* size)
{
    const QvxOverlay* overlay = SelectedOverlay();
    if (!overlay || !offset || !size)
        return kQvxBadArgument;
    *offset = overlay->fOffset;
    *size = overlay->fSize;
    return kQvxOK;
}

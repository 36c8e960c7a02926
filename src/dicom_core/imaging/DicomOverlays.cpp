#include "dicom_core/imaging/DicomOverlays.h"

#include "dicom_core/look/ImageTransformer.h"
#include "dicom_core/look/TransDocs.h"
#include "pixels/COffscreenUtils.h"
#include "prefs/PrefsColors.h"

#include "qpix/OverlayDescription.h"
#include "qpix/zelImageSource.h"
#include <algorithm>
#include <cmath>
#include <new>
#include <tuple>
#include <vector>

namespace {

constexpr std::int32_t kKeyOfOverlay = 0x1000000;  // frames' own keys stay below it
constexpr std::uint32_t kStorePriority = 2, kInsertLimit = 3;
constexpr std::uint32_t kPlaneFormat = 1;

Rect AtOrigin(const Rect& r)
{
    return {0, 0, static_cast<std::int16_t>(r.bottom - r.top),
            static_cast<std::int16_t>(r.right - r.left)};
}

Rect Moved(const Rect& r, int dv, int dh)
{
    return {static_cast<std::int16_t>(r.top + dv), static_cast<std::int16_t>(r.left + dh),
            static_cast<std::int16_t>(r.bottom + dv), static_cast<std::int16_t>(r.right + dh)};
}

Rect Common(const Rect& a, const Rect& b)
{
    const Rect both{std::max(a.top, b.top), std::max(a.left, b.left), std::min(a.bottom, b.bottom),
                    std::min(a.right, b.right)};
    return EmptyRect(both) ? Rect{} : both;
}

// `r` within `from`, at the same place within `to`; edges that meet in one meet in the other.
Rect Mapped(const Rect& r, const Rect& from, const Rect& to)
{
    const auto along = [](int value, int fromLow, int fromHigh, int toLow, int toHigh) {
        const double part = static_cast<double>(value - fromLow) / (fromHigh - fromLow);
        return static_cast<std::int16_t>(toLow + std::lround(part * (toHigh - toLow)));
    };
    return {along(r.top, from.top, from.bottom, to.top, to.bottom),
            along(r.left, from.left, from.right, to.left, to.right),
            along(r.bottom, from.top, from.bottom, to.top, to.bottom),
            along(r.right, from.left, from.right, to.left, to.right)};
}

QvxStatus NewPlane(const Rect& bounds, std::unique_ptr<Port>* plane)
{
    return COffscreenUtils::NewQTOffscreen(kPlaneFormat, bounds.right - bounds.left,
                                           bounds.bottom - bounds.top, true, plane);
}

// Selects an image of the importer, and the one before at the end.
class CurrentImage {
public:
    explicit CurrentImage(CImporterPlus* importer) : fImporter(importer)
    {
        if (fImporter->GetCurrentImage(&fBefore))
            fBefore = 0;
    }
    ~CurrentImage()
    {
        if (fBefore >= 1)
            std::ignore = fImporter->SetCurrentImage(fBefore);
    }
    CurrentImage(const CurrentImage&) = delete;
    CurrentImage& operator=(const CurrentImage&) = delete;
    [[nodiscard]] bool IsKnown() const { return fBefore >= 1; }

private:
    CImporterPlus* fImporter;
    std::int32_t fBefore = 0;
};

// The target's foreground colour while planes are painted.
class PaintColor {
public:
    explicit PaintColor(Port* port) : fPort(port), fBefore(port->foreColor)
    {
        const ZELRGBColor color = prefs_Get_OverlayColorRGB();
        fPort->foreColor = {color.red, color.green, color.blue};
    }
    ~PaintColor() { fPort->foreColor = fBefore; }
    PaintColor(const PaintColor&) = delete;
    PaintColor& operator=(const PaintColor&) = delete;

private:
    Port* fPort;
    RGBColor fBefore;
};

// Draws the planes of one frame.
class OverlayPainter {
public:
    OverlayPainter(GraphicsImporter* instance, std::int32_t frame, std::int32_t source,
                   const Rect& frameBounds, zel_ImageBuffer* buffer)
        : fInstance(instance),
          fFrame(frame),
          fSource(source),
          fFrameBounds(frameBounds),
          fBuffer(buffer)
    {
    }
    QvxStatus Draw(std::int32_t index, Port* target, const Rect& targetRect,
                   const zel_TransformRec* record, OverlaysBeyond beyond);

private:
    QvxStatus GetPlane(std::int32_t index, const Rect& bounds, std::unique_ptr<Port>* plane);
    static QvxStatus TurnPlane(const zel_TransformRec& record, std::unique_ptr<Port>* plane);

    GraphicsImporter* fInstance;
    std::int32_t fFrame, fSource;
    Rect fFrameBounds;
    zel_ImageBuffer* fBuffer;
};

// From the buffer where it holds the plane and can be read; else from the file, and kept.
QvxStatus OverlayPainter::GetPlane(std::int32_t index, const Rect& bounds,
                                   std::unique_ptr<Port>* plane)
{
    const std::int32_t key = fFrame + index * kKeyOfOverlay;
    if (fBuffer && fBuffer->GetImageInfoByID(key, fSource)) {
        if (const QvxStatus status = NewPlane(bounds, plane))
            return status;
        if (fBuffer->DrawImageByID(key, fSource, plane->get(), nullptr) == kQvxOK)
            return kQvxOK;
        plane->reset();
    }
    if (const QvxStatus status = GetDicomOverlayAsGWorld(fInstance, index, plane))
        return status;
    if (fBuffer) {
        ImageInsertionParams params;
        params.source = plane->get();
        params.rect = AtOrigin(bounds);
        params.primaryID = key;
        params.secondaryID = fSource;
        params.storagePriority = kStorePriority;
        params.makeRoomLimit = kInsertLimit;
        std::ignore = fBuffer->UpdateImage(params);
    }
    return kQvxOK;
}

QvxStatus OverlayPainter::TurnPlane(const zel_TransformRec& record, std::unique_ptr<Port>* plane)
{
    if (record.rotation != 90 && record.rotation != 270)
        return ApplyGeometricTransformations(record, plane->get(), plane->get());
    const Rect& was = (*plane)->bounds;
    std::unique_ptr<Port> turned;
    if (const QvxStatus status = NewPlane({0, 0, was.right, was.bottom}, &turned))
        return status;
    if (const QvxStatus status = ApplyGeometricTransformations(record, plane->get(), turned.get()))
        return status;
    *plane = std::move(turned);
    return kQvxOK;
}

QvxStatus OverlayPainter::Draw(std::int32_t index, Port* target, const Rect& targetRect,
                               const zel_TransformRec* record, OverlaysBeyond beyond)
{
    Rect bounds;
    if (const QvxStatus status = fInstance->SetOverlayIndex(index))
        return status;
    if (const QvxStatus status = fInstance->GetOverlayBounds(&bounds))
        return status;
    // What lies on the frame, in pixels of the frame and of the plane.
    Rect onFrame = Common(bounds, fFrameBounds);
    if (EmptyRect(onFrame) || (onFrame != bounds && beyond == OverlaysBeyond::Skipped))
        return kQvxOK;
    Rect onPlane = Moved(onFrame, -bounds.top, -bounds.left);
    std::unique_ptr<Port> plane;
    if (const QvxStatus status = GetPlane(index, AtOrigin(bounds), &plane))
        return status;
    Rect frameBounds = fFrameBounds;
    if (record) {
        const Rect planeBounds = plane->bounds;
        if (const QvxStatus status = TurnPlane(*record, &plane))
            return status;
        if (const QvxStatus status = record->TransformRect(planeBounds, onPlane, &onPlane))
            return status;
        if (const QvxStatus status = record->TransformRect(fFrameBounds, onFrame, &onFrame))
            return status;
        if (const QvxStatus status =
                record->TransformRect(fFrameBounds, fFrameBounds, &frameBounds))
            return status;
    }
    const Rect place = Mapped(onFrame, frameBounds, targetRect);
    if (EmptyRect(place))
        return kQvxOK;
    const PaintColor color(target);
    return COffscreenUtils::CopyOffscreen(*plane, target, &onPlane, &place, CopyMode::Paint,
                                          nullptr);
}

}  // namespace

QvxStatus GetDicomOverlayAsGWorld(GraphicsImporter* instance, std::int32_t index,
                                  std::unique_ptr<Port>* plane)
{
    if (!instance || index < 1 || !plane)
        return kQvxBadArgument;
    plane->reset();
    Rect bounds;
    if (const QvxStatus status = instance->SetOverlayIndex(index))
        return status;
    if (const QvxStatus status = instance->GetOverlayBounds(&bounds))
        return status;
    std::unique_ptr<Port> made;
    if (const QvxStatus status = NewPlane(AtOrigin(bounds), &made))
        return status;
    ImageDescription description;
    if (const QvxStatus status = instance->GetOverlayImageDescription(&description))
        return status;
    std::uint32_t offset = 0, size = 0;
    if (const QvxStatus status = instance->GetOverlayDataOffsetAndSize(&offset, &size))
        return status;
    try {
        std::vector<std::uint8_t> bytes(size);
        if (const QvxStatus status = instance->ReadData(bytes.data(), offset, size))
            return status;
        const PortLock lock(*made);
        if (const QvxStatus status = DecompressOverlay(description, bytes, made->Map()))
            return status;
    } catch (const std::bad_alloc&) {
        return kQvxNoMemory;
    }
    *plane = std::move(made);
    return kQvxOK;
}

QvxStatus U_DrawDicomOverlays(zelImageSource* source, std::int32_t frame, Port* target,
                              const Rect& targetRect, const zel_TransformRec* record,
                              const IdentityTransDoc* doc, zel_ImageBuffer* buffer,
                              OverlaysBeyond beyond)
{
    if (!source || !target || EmptyRect(targetRect))
        return kQvxBadArgument;
    CImporterPlus* importer = source->GetImporter();
    if (!importer || !source->GetDicomParser())
        return kQvxBadArgument;
    const CurrentImage image(importer);
    if (!image.IsKnown())
        return kQvxBadArgument;
    if (const QvxStatus status = importer->SetCurrentImage(frame))
        return status;
    GraphicsImporter* instance = importer->GetInstance();
    std::int32_t count = 0;
    if (const QvxStatus status = instance->GetOverlayCount(&count))
        return status;
    Point size;
    if (count < 1)
        return kQvxOK;
    if (const QvxStatus status = source->GetFrameSize(frame, &size))
        return status;
    OverlayPainter painter(instance, frame, source->SourceID(), {0, 0, size.v, size.h}, buffer);
    QvxStatus status = kQvxOK;
    for (std::int32_t index = 1; index <= count && !status; ++index)
        status = painter.Draw(index, target, targetRect, record && doc ? record : nullptr, beyond);
    return status;
}

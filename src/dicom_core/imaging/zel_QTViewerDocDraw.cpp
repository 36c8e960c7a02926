// How the exported offscreen gets into what a caller draws on.
#include "dicom_core/imaging/zel_QTViewerDoc.h"
#include "pixels/COffscreenUtils.h"

#include <optional>

namespace {

constexpr std::int32_t kLongestSide = 32767;

bool IsShort(std::int32_t value) { return value >= -kLongestSide && value <= kLongestSide; }

std::optional<LongRect> Widened(const Rect* source)
{
    if (!source)
        return std::nullopt;
    return LongRect{source->top, source->left, source->bottom, source->right};
}

const LongRect* AddressOf(const std::optional<LongRect>& rect) { return rect ? &*rect : nullptr; }

}  // namespace

QvxStatus zel_QTViewerDoc::CheckSource(const LongRect* source, Rect* from) const
{
    if (fStatus < kDocImported || !fExported)
        return kQvxBadArgument;
    *from = GetDocBounds();
    if (!source)
        return kQvxOK;
    if (!IsShort(source->top) || !IsShort(source->left) || !IsShort(source->bottom) ||
        !IsShort(source->right))
        return kQvxBadArgument;
    if (source->top < from->top || source->left < from->left || source->bottom > from->bottom ||
        source->right > from->right)
        return kQvxBadArgument;
    *from = {static_cast<std::int16_t>(source->top), static_cast<std::int16_t>(source->left),
             static_cast<std::int16_t>(source->bottom), static_cast<std::int16_t>(source->right)};
    return kQvxOK;
}

QvxStatus zel_QTViewerDoc::CopyPixelsToPixMapL(const PixMap& target, const LongRect* source,
                                               const Rect* destination, CopyMode mode,
                                               const ClipRegion* clip)
{
    Rect from;
    if (const QvxStatus status = CheckSource(source, &from))
        return status;
    const PortLock lock(*fExported->GetGWorldPtr());
    const Rect to = destination ? *destination : target.bounds;
    return fExported->CopyPixelsTo(target, &from, &to, mode, clip);
}

QvxStatus zel_QTViewerDoc::DecompressToPixMapL(const PixMap& target, const LongRect* source,
                                               const Rect* destination, int quality, CopyMode mode,
                                               const ClipRegion* clip)
{
    Rect from;
    if (const QvxStatus status = CheckSource(source, &from))
        return status;
    const PortLock lock(*fExported->GetGWorldPtr());
    const Rect to = destination ? *destination : target.bounds;
    return fExported->DecompressPixelsTo(target, &from, &to, quality, mode, clip);
}

QvxStatus zel_QTViewerDoc::CopyPixelsToGWorldL(Port* target, const LongRect* source,
                                               const Rect* destination, CopyMode mode,
                                               const ClipRegion* clip)
{
    Rect from;
    if (!target)
        return kQvxBadArgument;
    if (const QvxStatus status = CheckSource(source, &from))
        return status;
    const PortLock sourceLock(*fExported->GetGWorldPtr()), lock(*target);
    const Rect to = destination ? *destination : target->bounds;
    return fExported->CopyPixelsTo(target, &from, &to, mode, clip);
}

QvxStatus zel_QTViewerDoc::DecompressToGWorldL(Port* target, const LongRect* source,
                                               const Rect* destination, int quality, CopyMode mode,
                                               const ClipRegion* clip)
{
    Rect from;
    if (!target)
        return kQvxBadArgument;
    if (const QvxStatus status = CheckSource(source, &from))
        return status;
    const PortLock sourceLock(*fExported->GetGWorldPtr()), lock(*target);
    const Rect to = destination ? *destination : target->bounds;
    return fExported->DecompressPixelsTo(target, &from, &to, quality, mode, clip);
}

QvxStatus zel_QTViewerDoc::CopyPixelsToGWorldS(Port* target, const Rect* source,
                                               const Rect* destination, CopyMode mode,
                                               const ClipRegion* clip)
{
    const auto wide = Widened(source);
    return CopyPixelsToGWorldL(target, AddressOf(wide), destination, mode, clip);
}

QvxStatus zel_QTViewerDoc::CopyPixelsToPixMapS(const PixMap& target, const Rect* source,
                                               const Rect* destination, CopyMode mode,
                                               const ClipRegion* clip)
{
    const auto wide = Widened(source);
    return CopyPixelsToPixMapL(target, AddressOf(wide), destination, mode, clip);
}

QvxStatus zel_QTViewerDoc::DecompressToGWorldS(Port* target, const Rect* source,
                                               const Rect* destination, int quality, CopyMode mode,
                                               const ClipRegion* clip)
{
    const auto wide = Widened(source);
    return DecompressToGWorldL(target, AddressOf(wide), destination, quality, mode, clip);
}

QvxStatus zel_QTViewerDoc::DecompressToPixMapS(const PixMap& target, const Rect* source,
                                               const Rect* destination, int quality, CopyMode mode,
                                               const ClipRegion* clip)
{
    const auto wide = Widened(source);
    return DecompressToPixMapL(target, AddressOf(wide), destination, quality, mode, clip);
}

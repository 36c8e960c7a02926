#include "pixels/COffscreen.h"

#include "pixels/COffscreenUtils.h"
#include "pixels/Guarded.h"
#include "pixels/PixelCopy.h"
#include "pixels/PixelFormat.h"
#include "pixels/PortDescription.h"
#include "pixels/PortTables.h"

namespace {

// A classic port has no pixels of three bytes.
std::uint32_t ClassicFormat(std::uint32_t format) { return format == 24 ? 32 : format; }

constexpr std::int32_t k72dpi = 72 << 16;

void ComplementTable(ColorTable* table)
{
    for (ColorSpec& entry : table->fEntries)
        entry = {entry.value, static_cast<std::uint16_t>(~entry.red),
                 static_cast<std::uint16_t>(~entry.green), static_cast<std::uint16_t>(~entry.blue)};
    CTabChanged(table);
}

QvxStatus CopyDescription(const ImageDescription* from, ImageDescription* to)
{
    if (!from || !to)
        return kQvxBadArgument;
    return Guarded([&] {
        *to = ImageDescription(*from);  // whole first, so that a failure leaves `to` alone
        return kQvxOK;
    });
}

}  // namespace

// --- creation ------------------------------------------------------------------------------------

QvxStatus COffscreen::MakePort(std::uint32_t format, const ImageDescription* description, int width,
                               int height, std::int32_t horz, std::int32_t vert, bool temporary)
{
    const QvxStatus result = Guarded([&]() -> QvxStatus {
        // Before `Destroy`: the description may be one of our own.
        auto original = std::make_unique<ImageDescription>();
        if (description)
            *original = *description;
        Destroy();
        std::unique_ptr<Port> port;
        QvxStatus status = NewPort(format, width, height, OwnTableOf(*original), &port);
        if (status != kQvxOK)
            return status;
        port->horzResolution = horz;
        port->vertResolution = vert;
        auto made = std::make_unique<ImageDescription>();
        status = MakeImageDescriptionForPixMap(*port, made.get());
        if (status != kQvxOK)
            return status;
        if (!description)
            *original = *made;
        fWidth = static_cast<std::int16_t>(width);
        fHeight = static_cast<std::int16_t>(height);
        fInTemporaryMemory = temporary;
        fPort = std::move(port);
        fOrigDesc = std::move(original);
        fMadeDesc = std::move(made);
        return kQvxOK;
    });
    if (result != kQvxOK)
        Destroy();
    return result;
}

QvxStatus COffscreen::Create(const ImageDescription& description, int width, int height,
                             bool temporary)
{
    return MakePort(ClassicFormat(GetPixelFormatFromImageDescription(description)), &description,
                    width, height, description.fHorzResolution, description.fVertResolution,
                    temporary);
}

QvxStatus COffscreen::Create(std::uint32_t pixelFormat, int width, int height, bool temporary)
{
    return MakePort(ClassicFormat(pixelFormat), nullptr, width, height, k72dpi, k72dpi, temporary);
}

QvxStatus COffscreen::Create(std::uint32_t pixelFormat, int width, int height, std::int32_t horz,
                             std::int32_t vert, bool temporary)
{
    return MakePort(ClassicFormat(pixelFormat), nullptr, width, height, horz, vert, temporary);
}

void COffscreen::Destroy()
{
    fWidth = fHeight = 0;
    fInTemporaryMemory = false;
    fPort.reset();
    fOrigDesc.reset();
    fMadeDesc.reset();
}

QvxStatus COffscreen::CloneInto(COffscreen* clone, const Rect* rect, bool temporary) const
{
    if (!fPort || (rect && (EmptyRect(*rect) || !RectWithin(*rect, fPort->bounds))))
        return kQvxBadArgument;
    const Rect from = rect ? *rect : fPort->bounds;
    QvxStatus status = clone->Create(*fOrigDesc, WidthOf(from), HeightOf(from), temporary);
    if (status == kQvxOK && !fPort->colorTable.fEntries.empty())
        status = EnforceColorTable(clone->fPort.get(), fPort->colorTable);
    if (status == kQvxOK)
        status = CopyPixels(*fPort, *clone->fPort, &from, nullptr, CopyMode::Replace, nullptr);
    return status;
}

QvxStatus COffscreen::Clone(const Rect* rect, bool temporary,
                            std::unique_ptr<COffscreen>* clone) const
{
    if (!clone)
        return kQvxBadArgument;
    return Guarded([&] {
        auto made = std::make_unique<COffscreen>();
        const QvxStatus status = CloneInto(made.get(), rect, temporary);
        if (status == kQvxOK)
            *clone = std::move(made);
        return status;
    });
}

// --- memory --------------------------------------------------------------------------------------

QvxStatus COffscreen::Unpurge() { return fPort ? kQvxOK : kQvxBadArgument; }

bool COffscreen::InMemory() const { return true; }

bool COffscreen::GetPurgeable() const { return false; }

void COffscreen::SetPurgeable(bool /*purgeable*/) {}

// --- pixels --------------------------------------------------------------------------------------

QvxStatus COffscreen::FillWithColor(RGBColor color) { return FillPort(fPort.get(), color); }

QvxStatus COffscreen::CopyPixelsTo(Port* target, const Rect* from, const Rect* to, CopyMode mode,
                                   const ClipRegion* clip) const
{
    if (!fPort || !target)
        return kQvxBadArgument;
    return CopyPixels(*fPort, *target, from, to, mode, clip);
}

QvxStatus COffscreen::CopyPixelsTo(const PixMap& target, const Rect* from, const Rect* to,
                                   CopyMode mode, const ClipRegion* clip) const
{
    return fPort ? CopyPixels(*fPort, target, from, to, mode, clip) : kQvxBadArgument;
}

QvxStatus COffscreen::DecompressPixelsTo(Port* target, const Rect* from, const Rect* to,
                                         int quality, CopyMode mode, const ClipRegion* clip) const
{
    if (!fPort || !target)
        return kQvxBadArgument;
    return DecompressPixmap(*fPort, *target, quality, from, to, mode, clip);
}

QvxStatus COffscreen::DecompressPixelsTo(const PixMap& target, const Rect* from, const Rect* to,
                                         int quality, CopyMode mode, const ClipRegion* clip) const
{
    return fPort ? DecompressPixmap(*fPort, target, quality, from, to, mode, clip)
                 : kQvxBadArgument;
}

QvxStatus COffscreen::Invert(const Rect* rect, bool /*temporary*/)
{
    if (!fPort || (rect && EmptyRect(*rect)))
        return kQvxBadArgument;
    if (fPort->pixelSize >= 2 && fPort->pixelSize <= 15) {
        ComplementTable(&fPort->colorTable);
        return kQvxOK;
    }
    return CopyPixels(*fPort, *fPort, rect, rect, CopyMode::ReplaceInverted, nullptr);
}

// --- what it is ----------------------------------------------------------------------------------

Port* COffscreen::GetGWorldPtr() const { return fPort.get(); }

PixMap COffscreen::GetPixMapHandle() const { return fPort ? fPort->Map() : PixMap{}; }

QvxStatus COffscreen::GetOrigImageDesc(ImageDescription* description) const
{
    return CopyDescription(fOrigDesc.get(), description);
}

QvxStatus COffscreen::GetMadeImageDesc(ImageDescription* description) const
{
    return CopyDescription(fMadeDesc.get(), description);
}

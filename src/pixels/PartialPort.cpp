#include "pixels/PartialPort.h"

#include "pixels/Guarded.h"
#include "pixels/PixelCopy.h"
#include "pixels/PixelFormat.h"
#include "pixels/PortTables.h"

namespace {

bool IsPart(const Port& port, const Rect& rect)
{
    return port.baseAddr && !EmptyRect(rect) && RectWithin(rect, port.bounds);
}

// Out of range when the product is no size of a port; `NewPort` then refuses it.
int ScaledSide(int side, std::int32_t scale)
{
    const std::int64_t scaled = (std::int64_t{side} * scale + 0x8000) >> 16;
    return scaled > 0x7FFF ? 0 : static_cast<int>(scaled);
}

}  // namespace

QvxStatus MakePartialGWorld(const Port& port, const Rect& rect, std::unique_ptr<Port>* partial)
{
    if (!partial || !IsPart(port, rect) || port.pixelSize < 8 || port.pixelSize % 8 != 0)
        return kQvxBadArgument;
    return Guarded([&] {
        auto made = std::make_unique<Port>();
        static_cast<PixMap&>(*made) = port.Map();
        made->baseAddr = RowAddress(port, rect.top) +
                         std::ptrdiff_t{port.pixelSize / 8} * (rect.left - port.bounds.left);
        made->bounds = rect;
        made->locked = false;
        made->horzResolution = port.horzResolution;
        made->vertResolution = port.vertResolution;
        made->colorTable = port.colorTable;
        made->foreColor = port.foreColor;
        made->backColor = port.backColor;
        *partial = std::move(made);
        return kQvxOK;
    });
}

QvxStatus MakeCloneGWorld(const Port& port, const Rect& rect, std::int32_t scale, bool force32,
                          std::unique_ptr<Port>* clone)
{
    if (!clone || !IsPart(port, rect) || scale <= 0)
        return kQvxBadArgument;
    std::unique_ptr<Port> made;
    const std::uint32_t format = force32 ? kPixelFormatARGB32 : port.pixelFormat;
    QvxStatus status = NewPort(format, ScaledSide(WidthOf(rect), scale),
                               ScaledSide(HeightOf(rect), scale), &port.colorTable, &made);
    if (status != kQvxOK)
        return status;
    made->horzResolution = port.horzResolution;
    made->vertResolution = port.vertResolution;
    status = CopyPixels(port, *made, &rect, nullptr, CopyMode::Dither, nullptr);
    if (status == kQvxOK)
        *clone = std::move(made);
    return status;
}

QvxStatus MakePartialOrCloneGWorld(const Port& port, const Rect& rect, std::unique_ptr<Port>* made,
                                   bool* isClone)
{
    if (!isClone)
        return kQvxBadArgument;
    const bool clone = port.pixelSize % 8 != 0;
    const QvxStatus status = clone ? MakeCloneGWorld(port, rect, 0x10000, false, made)
                                   : MakePartialGWorld(port, rect, made);
    if (status == kQvxOK)
        *isClone = clone;
    return status;
}

#include "pixels/COffscreenUtils.h"

#include "pixels/OffscreenFactory.h"
#include "pixels/PixelFormat.h"
#include "pixels/PortDescription.h"
#include "util/ByteOrder.h"

#include <utility>

QvxStatus COffscreenUtils::NewQTOffscreen(std::uint32_t pixelFormat, int width, int height,
                                          bool /*temporary*/, std::unique_ptr<Port>* port)
{
    return NewPort(pixelFormat, width, height, nullptr, port);
}

QvxStatus COffscreenUtils::CopyOffscreen(const Port& source, Port* target, const Rect* from,
                                         const Rect* to, CopyMode mode, const ClipRegion* clip)
{
    return target ? CopyPixels(source, *target, from, to, mode, clip) : kQvxBadArgument;
}

QvxStatus DecompressPixmap(const PixView& source, const PixView& target, int /*quality*/,
                           const Rect* from, const Rect* to, CopyMode mode, const ClipRegion* clip)
{
    if (to && !RectWithin(*to, target.map.bounds))
        return kQvxBadArgument;
    return CopyPixels(source, target, from, to, mode, clip);
}

QvxStatus CopyOffscreenQ(const Port& source, Port* target, int quality, const Rect* from,
                         const Rect* to, CopyMode mode, const ClipRegion* clip)
{
    if (!target)
        return kQvxBadArgument;
    const PortLock lock(*target);
    return DecompressPixmap(source, *target, quality, from, to, mode, clip);
}

QvxStatus GetCorrectedPixmapDepth(const COffscreen& offscreen, std::int32_t* depth)
{
    const Port* port = offscreen.GetGWorldPtr();
    ImageDescription made;
    if (!port || !depth)
        return kQvxBadArgument;
    const QvxStatus status = offscreen.GetMadeImageDesc(&made);
    if (status != kQvxOK)
        return status;
    const bool hidden32 = made.fDepth == 24 && ColorSpaceOf(made) == 0 && port->pixelSize == 32;
    *depth = hidden32 ? 32 : made.fDepth;
    return kQvxOK;
}

QvxStatus NewOffscreen4Rot90(const COffscreen& offscreen, std::unique_ptr<zel_Offscreen>* turned)
{
    if (!turned)
        return kQvxBadArgument;
    ImageDescription description;
    QvxStatus status = offscreen.GetMadeImageDesc(&description);
    std::unique_ptr<zel_Offscreen> made;
    if (status == kQvxOK) {
        std::swap(description.fWidth, description.fHeight);
        status =
            zel_OffscreenFactory::NewCOffscreen(description, offscreen.Height(), offscreen.Width(),
                                                offscreen.InTemporaryMemory(), &made);
    }
    *turned = std::move(made);  // last: `turned` may own `offscreen`
    return status;
}

QvxStatus U_GetOffscreenPixelValue(const COffscreen& offscreen, int h, int v, bool gray,
                                   RGBColor* color)
{
    const Port* port = offscreen.GetGWorldPtr();
    if (!port || !color || (gray ? port->pixelSize < 8 : port->pixelSize != 32))
        return kQvxBadArgument;
    const LongRect bounds = RectToLRect(port->bounds);
    if (!LPointInLRect({v, h}, bounds)) {
        *color = kColorWhite;
        return kQvxOK;
    }
    const std::uint8_t* row = RowAddress(*port, v);
    const int column = h - port->bounds.left;
    if (!gray) {
        const std::uint8_t* pixel = row + 4 * column;
        const auto wide = [](std::uint8_t byte) { return static_cast<std::uint16_t>(byte * 257); };
        *color = {wide(pixel[1]), wide(pixel[2]), wide(pixel[3])};
        return kQvxOK;
    }
    const auto value = port->pixelFormat == kPixelFormatGray16
                           ? LoadBE<std::uint16_t>(row + 2 * column)
                           : static_cast<std::uint16_t>(255 - row[column]);
    *color = {value, value, value};
    return kQvxOK;
}

#include "pixels/CQTOffscreen.h"

#include "pixels/Guarded.h"
#include "pixels/PortDescription.h"

QvxStatus CQTOffscreen::Create(const ImageDescription& description, int width, int height,
                               bool temporary)
{
    const std::uint32_t colorSpace = ColorSpaceOf(description);
    const QvxStatus status =
        MakePort(GetPixelFormatFromImageDescription(description), &description, width, height,
                 description.fHorzResolution, description.fVertResolution, temporary);
    if (status == kQvxOK)
        fColorSpace = colorSpace;
    return status;
}

QvxStatus CQTOffscreen::Create(std::uint32_t pixelFormat, int width, int height, bool temporary)
{
    constexpr std::int32_t k72dpi = 72 << 16;
    return Create(pixelFormat, width, height, k72dpi, k72dpi, temporary);
}

QvxStatus CQTOffscreen::Create(std::uint32_t pixelFormat, int width, int height, std::int32_t horz,
                               std::int32_t vert, bool temporary)
{
    const QvxStatus status = MakePort(pixelFormat, nullptr, width, height, horz, vert, temporary);
    if (status == kQvxOK)
        fColorSpace = pixelFormat >= 1 && pixelFormat <= 40 ? 0 : pixelFormat;
    return status;
}

void CQTOffscreen::Destroy()
{
    fColorSpace = 0;
    COffscreen::Destroy();
}

QvxStatus CQTOffscreen::Clone(const Rect* rect, bool temporary,
                              std::unique_ptr<CQTOffscreen>* clone) const
{
    if (!clone)
        return kQvxBadArgument;
    return Guarded([&] {
        auto made = std::make_unique<CQTOffscreen>();
        const QvxStatus status = CloneInto(made.get(), rect, temporary);
        if (status == kQvxOK)
            *clone = std::move(made);
        return status;
    });
}

QvxStatus CQTOffscreen::CloneSize(int width, int height, bool temporary,
                                  std::unique_ptr<CQTOffscreen>* clone) const
{
    if (!clone || !OrigImageDesc())
        return kQvxBadArgument;
    return Guarded([&] {
        auto made = std::make_unique<CQTOffscreen>();
        const QvxStatus status = made->Create(*OrigImageDesc(), width, height, temporary);
        if (status == kQvxOK)
            *clone = std::move(made);
        return status;
    });
}

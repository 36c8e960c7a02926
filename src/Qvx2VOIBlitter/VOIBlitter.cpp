#include "Qvx2VOIBlitter/VOIBlitter.h"

#include "Qvx2VOIBlitter/VOIScales.h"
#include <new>
#include <utility>

bool IsVOIBlitter(const VOIBlitter* blit)
{
    return blit && blit->fSignature == kSignatureVOIBlitter;
}

QvxStatus VOIBlitter_Open(VOIBlitterPtr* blit)
{
    if (!blit)
        return kQvxBadArgument;
    try {
        *blit = std::make_unique<VOIBlitter>();
    } catch (const std::bad_alloc&) {
        blit->reset();
        return kQvxNoMemory;
    }
    return kQvxOK;
}

QvxStatus VOIBlitter_Close(VOIBlitterPtr blit)
{
    return IsVOIBlitter(blit.get()) ? kQvxOK : kQvxBadArgument;
}

QvxStatus Qvx2_VOIBlit_New(VOIBlitterPtr* blit) { return VOIBlitter_Open(blit); }

QvxStatus Qvx2_VOIBlit_Close(VOIBlitterPtr blit) { return VOIBlitter_Close(std::move(blit)); }

QvxStatus Qvx2_VOIBlit_SetVOIBoundsClippingOption(VOIBlitter* blit,
                                                  QvxVOIBoundsClippingOption option)
{
    const bool known = option == QvxVOIBoundsClippingOption::None ||
                       option == QvxVOIBoundsClippingOption::PixelBounds;
    if (!IsVOIBlitter(blit) || !known)
        return kQvxBadArgument;
    blit->fClipping = option;
    return kQvxOK;
}

QvxStatus Qvx2_VOIBlit_GetVOIBoundsClippingOption(const VOIBlitter* blit,
                                                  QvxVOIBoundsClippingOption* option)
{
    if (!IsVOIBlitter(blit) || !option)
        return kQvxBadArgument;
    *option = blit->fClipping;
    return kQvxOK;
}

QvxStatus Qvx2_VOIBlit_SetPixelBounds(VOIBlitter* blit, std::int32_t minimum, std::int32_t maximum)
{
    if (!IsVOIBlitter(blit) ||
        static_cast<std::uint32_t>(minimum) > static_cast<std::uint32_t>(maximum))
        return kQvxBadArgument;
    blit->fPixelMinimum = minimum;
    blit->fPixelMaximum = maximum;
    blit->fBoundsSet = true;
    return kQvxOK;
}

QvxStatus Qvx2_VOIBlit_GetPixelBounds(const VOIBlitter* blit, std::int32_t* minimum,
                                      std::int32_t* maximum)
{
    if (IsVOIBlitter(blit) && blit->fBoundsSet) {
        if (minimum)
            *minimum = blit->fPixelMinimum;
        if (maximum)
            *maximum = blit->fPixelMaximum;
    }
    return kQvxOK;
}

QvxStatus Qvx2_VOIBlit_VOICopyPixels(const VOIBlitter* blit, std::int32_t level,
                                     std::uint32_t width, PixMap* source, PixMap* destination,
                                     const Rect* sourceRect, const Rect* destinationRect)
{
    return VOIBlitterBase_VOICopyPixels(blit, level, width, source, destination, sourceRect,
                                        destinationRect);
}

QvxStatus Qvx2_VOIBlit_ConvertBetweenUserAndDisplayValues(const VOIBlitter* blit,
                                                          QvxVOIDirection direction,
                                                          std::uint32_t pixelFormat,
                                                          const QvxPixelScale& scale,
                                                          std::int32_t* display, float* user)
{
    if (!IsVOIBlitter(blit))
        return kQvxBadArgument;
    return ConvertBetweenUserAndDisplayValues(direction, pixelFormat, scale, display, user);
}

QvxStatus Qvx2_VOIBlit_GetVOIScale256(const VOIBlitter* blit, std::int32_t level,
                                      std::uint32_t width, VOIScale256* scale)
{
    if (!scale)
        return kQvxBadArgument;
    VOIBounds bounds;
    if (const QvxStatus status = VOIBlitterBase_GetVOIBounds(blit, level, width, &bounds))
        return status;
    return VOIBlitterBase_GetVOIScale8_256(bounds, scale);
}

#include "qpix/OffscreenForFrame.h"

#include "pixels/FreeMemory.h"
#include "pixels/OffscreenFactory.h"
#include "pixels/PortDescription.h"

#include "qpix/DicomDescription.h"
#include <tuple>

namespace {

// Selects an image, and the one before at the end.
class ImageScope {
public:
    ImageScope(CImporter& importer, std::int32_t image) : fImporter(importer)
    {
        fStatus = importer.GetCurrentImage(&fBefore);
        if (!fStatus)
            fStatus = importer.SetCurrentImage(image);
    }
    // An image that was current can be selected again, so there is nothing to report.
    ~ImageScope() { std::ignore = fImporter.SetCurrentImage(fBefore); }
    ImageScope(const ImageScope&) = delete;
    ImageScope& operator=(const ImageScope&) = delete;
    [[nodiscard]] QvxStatus Status() const { return fStatus; }

private:
    CImporter& fImporter;
    std::int32_t fBefore = 1;
    QvxStatus fStatus;
};

struct FrameFormat {
    std::uint32_t format = kPixelFormatARGB32;
    std::int32_t depth = 32;  // bits that the port needs for a pixel
};

// Pixel size of 24-bit frames, asked once: a port may keep them in more bits.
std::int32_t DepthOf24(const ImageDescription& description)
{
    static const std::int32_t sDepth = [&description] {
        std::int16_t size = 0;
        return GetRecommendedPixelSize(description, &size) ? std::int32_t{24} : size;
    }();
    return sDepth;
}

FrameFormat FormatOf(const ImageDescription& description)
{
    const std::uint32_t format = GetPixelFormatFromImageDescription(description);
    switch (format) {
        case 24:
            return {format, DepthOf24(description)};
        case kPixelFormatGray16:
        case 40:
        case 32:
        case 34:
        case 36:
        case 1:
        case 2:
        case 4:
        case 8:
        case 16:
            return {format, GetRealPixelSize(format)};
        default:
            return {};
    }
}

std::uint32_t PropertiesOf(const ImageDescription& description, std::uint32_t format,
                           std::uint32_t colorSpace)
{
    std::uint32_t bits = 0;
    if (description.fCodecType == kCodecTypeDicom)
        bits |= kFrameIsDicom;
    if (colorSpace == kPixelFormatGray16)
        bits |= kFrameIsGray | kFrameIsSixteenBit;
    if (colorSpace == 0 && format == kPixelFormatGray8)
        bits |= kFrameIsGray;
    switch (format) {
        case 1:
        case 2:
        case 4:
        case 8:
        case 34:
        case 36:
        case 40:
            return bits | kFrameIsIndexed;
        default:
            return bits;
    }
}

}  // namespace

QvxStatus U_NewOffscreenForFrame(CImporter& importer, std::int32_t frame,
                                 std::unique_ptr<zel_Offscreen>* offscreen, const Rect* bounds,
                                 std::uint32_t* properties)
{
    if (!offscreen)
        return kQvxBadArgument;
    offscreen->reset();
    const ImageScope image(importer, frame);
    if (image.Status())
        return image.Status();
    Rect size;
    if (bounds)
        size = *bounds;
    else if (const QvxStatus status = importer.GetNaturalBounds(&size))
        return status;
    const int width = size.right - size.left, height = size.bottom - size.top;
    if (width < 1 || height < 1 || width > kMaxFrameSide || height > kMaxFrameSide)
        return kQvxBadArgument;
    const ImageDescription* description = nullptr;
    if (const QvxStatus status = importer.GetImageDesc(&description))
        return status;
    const FrameFormat wanted = FormatOf(*description);
    bool fits = false;
    if (const QvxStatus status = CanGWorldFitToHeep(width, height, wanted.depth, &fits))
        return status;
    const QvxStatus made =
        wanted.format == kPixelFormatARGB32
            ? zel_OffscreenFactory::NewCOffscreen(wanted.format, width, height, !fits, offscreen)
            : zel_OffscreenFactory::NewCOffscreen(*description, width, height, !fits, offscreen);
    if (!made && properties)
        *properties = PropertiesOf(*description, wanted.format, (*offscreen)->GetColorSpace());
    return made;
}

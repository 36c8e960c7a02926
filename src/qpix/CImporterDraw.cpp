// How an importer's current image gets into an offscreen.
#include "pixels/OffscreenFactory.h"

#include "qpix/CImporter.h"
#include <memory>

namespace {

// Mode, quality and matrix of an instance, put back whatever happens.
class DrawStateScope {
public:
    explicit DrawStateScope(GraphicsImporter& instance)
        : fInstance(instance),
          fMode(instance.GraphicsMode()),
          fQuality(instance.Quality()),
          fMatrix(instance.Matrix())
    {
    }
    ~DrawStateScope()
    {
        fInstance.SetGraphicsMode(fMode);
        fInstance.SetQuality(fQuality);
        fInstance.SetMatrix(fMatrix);
    }
    DrawStateScope(const DrawStateScope&) = delete;
    DrawStateScope& operator=(const DrawStateScope&) = delete;

private:
    GraphicsImporter& fInstance;
    std::int16_t fMode;
    std::int32_t fQuality;
    MatrixRecord fMatrix;
};

QvxStatus MakeWhite(COffscreen& offscreen)
{
    Port* port = offscreen.GetGWorldPtr();
    if (!port)
        return kQvxBadArgument;
    port->foreColor = kColorBlack;
    return offscreen.FillWithColor(kColorWhite);
}

}  // namespace

QvxStatus CImporter::DrawOnOffscreen(COffscreen& offscreen, std::int32_t quality, std::int16_t mode,
                                     RGBColor /*color*/)
{
    if (!fInstance)
        return kQvxNoImporter;
    const DrawStateScope state(*fInstance);
    if (fInstance->Matrix().IsTranslation())
        return DrawPlain(offscreen, quality, mode);
    if (!fInstance->Matrix().KeepsRectangles())
        return kQvxUnsupported;
    return DrawThroughClone(offscreen, mode);
}

QvxStatus CImporter::DrawPlain(COffscreen& offscreen, std::int32_t quality, std::int16_t mode)
{
    if (const QvxStatus status = MakeWhite(offscreen))
        return status;
    fInstance->SetGraphicsMode(mode);
    fInstance->SetQuality(quality);
    const PortLock lock(*offscreen.GetGWorldPtr());
    const QvxStatus status = fInstance->Draw(offscreen, nullptr);
    return status == kQvxDrawStopped ? kQvxUserCanceled : status;
}

QvxStatus CImporter::DrawThroughClone(COffscreen& offscreen, std::int16_t mode)
{
    const MatrixRecord wanted = fInstance->Matrix();
    Rect natural;
    if (const QvxStatus status = fInstance->GetNaturalBounds(&natural))
        return status;
    ImageDescription description;
    if (const QvxStatus status = offscreen.GetOrigImageDesc(&description))
        return status;
    std::unique_ptr<CQTOffscreen> clone;
    if (const QvxStatus status = COffscreenFactory::NewCOffscreen(description, natural.right,
                                                                  natural.bottom, true, &clone))
        return status;
    fInstance->SetMatrix({});
    if (const QvxStatus status = DrawPlain(*clone, kQualityFrame, 0))
        return status;
    if (const QvxStatus status = MakeWhite(offscreen))
        return status;
    const Rect place = MapRectByMatrix(wanted, natural);
    // The plain copy, as it cuts off what the matrix puts beyond the target; its kernel is the
    // best.
    return clone->CopyPixelsTo(offscreen.GetGWorldPtr(), &natural, &place,
                               static_cast<CopyMode>(mode), nullptr);
}

QvxStatus CImporter::DecompressOnOffscreen(COffscreen& offscreen,
                                           const ImageDescription* description,
                                           std::int32_t quality, std::int16_t mode,
                                           DicomCodec* codec)
{
    if (!fInstance)
        return kQvxNoImporter;
    // The image's own description must be there even when the caller's stands in for it: it says
    // why an image can't be decoded.
    const ImageDescription* own = nullptr;
    if (!description)
        if (const QvxStatus status = GetImageDesc(&own))
            return status;
    if (const QvxStatus status = MakeWhite(offscreen))
        return status;
    const DrawStateScope state(*fInstance);
    fInstance->SetGraphicsMode(mode);
    fInstance->SetQuality(codec ? kQualitySequence : quality);
    const PortLock lock(*offscreen.GetGWorldPtr());
    return fInstance->Draw(offscreen, codec);
}

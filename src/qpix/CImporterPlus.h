// An importer with what the system knows of DICOM and of containers that hold one picture in
// several renderings ('8BPS', 'FPix', 'JPEG'): these present one image.
#pragma once
#include "pixels/zel_Offscreen.h"

#include "qpix/CImporter.h"
#include "qpix/DicomCodec.h"

enum class ColorType : std::int32_t { Unknown = 0, BlackAndWhite = 1, Color = 2, Gray = 3 };

// Of the current image. `colorSpace` is a pixel format and equals the depth where nothing else is
// stated.
struct QTFrameInfo {
    std::int32_t width = 0, height = 0;
    std::int32_t depth = 0;
    std::uint32_t colorSpace = 0;
};

struct ImageInfo {
    std::int32_t width = 0, height = 0;
    ColorType colorType = ColorType::Unknown;
    std::int32_t pixelSize = 0;  // bits that a pixel takes in memory
};

class CImporterPlus : public CImporter {
public:
    using CImporter::CImporter;

    // A container of renderings has at most one image, number 1; selecting it selects its dominant
    // rendering. Any other number gives kQvxBadArgument there.
    [[nodiscard]] QvxStatus CountImages(std::int32_t* count) override;
    [[nodiscard]] QvxStatus SetCurrentImage(std::int32_t index) override;
    [[nodiscard]] QvxStatus GetCurrentImage(std::int32_t* index) override;

    [[nodiscard]] bool IsDICOMImporter() const;
    // Four-character code of the component behind any alias; 0 without an instance.
    [[nodiscard]] std::uint32_t GetImporterBaseType() const;
    // The rendering that stands for the whole; 0 for other files and when there is no image.
    [[nodiscard]] QvxStatus GetDominantFrame(std::int32_t* frame);
    [[nodiscard]] QvxStatus GetQTFrameInfo(QTFrameInfo* info);
    [[nodiscard]] QvxStatus GetImageInfo(ImageInfo* info);
    // The importer's instance, for its overlays; null when it has none.
    [[nodiscard]] GraphicsImporter* GetInstance() const { return Instance(); }
    [[nodiscard]] QvxStatus GetImageColorSpace(std::uint32_t* format)
    {
        return GetColorSpace(format);
    }
    // Containers whose images are layers of one picture, or one picture in several sizes.
    [[nodiscard]] bool SupportsLayers() const;
    [[nodiscard]] bool SupportsMultipleResolution() const;
    // As of GraphicsImporter.
    [[nodiscard]] QvxStatus GetVOIChoices(std::vector<QvxVOIChoice>* choices);
    [[nodiscard]] QvxStatus GetDefaultWindow(QvxDefaultWindow* window);
    // 'G_CT' and the like; kQvxUnsupported for importers that can't tell.
    [[nodiscard]] QvxStatus GetImageDataInfo(std::uint32_t selector, std::uint32_t* code);

    // DecompressOnOffscreen with a mask to subtract (DicomCodec.h); mask, displacement and codec
    // may be null. A mask that can't be set doesn't stop the frame.
    [[nodiscard]] QvxStatus DecompressOnOffscreenEx(COffscreen& offscreen,
                                                    const ImageDescription* description,
                                                    std::int32_t quality, std::int16_t mode,
                                                    DicomCodec* codec, zel_Offscreen* mask,
                                                    const QvxMaskDisplacementRec* displacement);
    // The current image as a mask. Of other than gray DICOM images none, with kQvxOK.
    [[nodiscard]] QvxStatus GetMaskOffscreen(std::unique_ptr<zel_Offscreen>* mask);

private:
    [[nodiscard]] bool HoldsRenderings() const;
};

[[nodiscard]] ColorType ColorTypeOf(std::uint32_t colorSpace, std::int32_t depth);
// Bits that a pixel of this format takes in memory; 0 for no format.
[[nodiscard]] std::int32_t GetRealPixelSize(std::uint32_t format);

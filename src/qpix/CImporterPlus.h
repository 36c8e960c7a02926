// An importer with what the system knows of DICOM and of containers that hold one picture in
// several renderings ('8BPS', 'FPix', 'JPEG'): these present one image.
#pragma once
#include "qpix/CImporter.h"

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

private:
    [[nodiscard]] bool HoldsRenderings() const;
};

[[nodiscard]] ColorType ColorTypeOf(std::uint32_t colorSpace, std::int32_t depth);
// Bits that a pixel of this format takes in memory; 0 for no format.
[[nodiscard]] std::int32_t GetRealPixelSize(std::uint32_t format);

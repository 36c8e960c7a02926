// Between image descriptions and pixel formats. Beside its size a description says its depth, its
// colour table and, in the extension 'cspc', a pixel format that overrides the depth.
#pragma once
#include "pixels/PixView.h"
#include "util/ImageDescription.h"

#include <cstddef>

namespace COffscreenUtils {

// Depth d with table id d + 32 is gray, d + 32, while that is below 41. For a depth of 2, 4 or 8
// with table id 0 the description's own table decides: all gray gives d + 32. Else d.
[[nodiscard]] std::int32_t GetImageDepth(const ImageDescription& description);

}  // namespace COffscreenUtils

// The number in the extension 'cspc'; 0 when it is missing or too short.
[[nodiscard]] std::uint32_t ColorSpaceOf(const ImageDescription& description);
// 'cspc' if present and not 0, else `GetImageDepth`. May be a number that no port can have.
[[nodiscard]] std::uint32_t GetPixelFormatFromImageDescription(const ImageDescription& description);
// The table that a port of this description needs; null for the system's.
[[nodiscard]] const ColorTable* OwnTableOf(const ImageDescription& description);

// What an image made of these pixels is: 'raw ', the gray numbers 34, 36, 40 as depth, a table of
// its own (id 0) when it isn't a system one, 'cspc' for 'b16g'. A description that goes back into
// a port gives the same format and table. kQvxBadArgument for a view without pixels or of an
// unknown format, kQvxNoMemory.
[[nodiscard]] QvxStatus MakeImageDescriptionForPixMap(const PixView& view,
                                                      ImageDescription* description);

// Bits a pixel of a port made from the description, found by making one of 8 by 8.
[[nodiscard]] QvxStatus GetRecommendedPixelSize(const ImageDescription& description,
                                                std::int16_t* pixelSize);

// Pixels handed to an exporter: a block that is borrowed, and its description.
struct GraphicInput {
    std::uint32_t kind = FourCC("PTR ");
    const std::uint8_t* bytes = nullptr;
    std::size_t size = 0;  // height times row bytes, padding of rows included
    std::int32_t rowBytes = 0;
    ImageDescription description;
};
[[nodiscard]] QvxStatus GetGraphicInputForPixMap(const PixView& view, GraphicInput* input);

// What is said of an image before its pixels are there: size, depth, resolution, colour table and
// tagged extensions, whose payload is big-endian bytes.
#pragma once
#include "util/ColorTable.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

struct ImageDescriptionExtension {
    std::uint32_t fTag = 0;
    std::vector<std::uint8_t> fData;
};

struct ImageDescription {
    std::uint32_t fCodecType = 0;  // 'DICM' for a DICOM image, 'raw ' for plain pixels
    std::int16_t fWidth = 0, fHeight = 0;
    std::int32_t fHorzResolution = 72 << 16;  // 16.16 dots an inch
    std::int32_t fVertResolution = 72 << 16;
    std::int16_t fDepth = 0;          // bits a pixel, or a gray number above 32
    std::int16_t fColorTableId = -1;  // -1 none, 0 the table below, else a system table
    std::optional<ColorTable> fColorTable;
    std::uint32_t fDataSize = 0;  // bytes of the stored image, 0 if not known
    std::vector<ImageDescriptionExtension> fExtensions;
};

// First extension of `tag`, or null.
[[nodiscard]] const ImageDescriptionExtension* FindExtension(const ImageDescription& description,
                                                             std::uint32_t tag);
// Removes every extension of `tag`, from the last to the first.
void RemoveExtensions(ImageDescription* description, std::uint32_t tag);

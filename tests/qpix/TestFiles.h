// Small image files for the tests of this folder.
#pragma once
#include "fixtures/DicomBuilder.h"
#include "fixtures/TempFolder.h"
#include "util/FileRef.h"

// The header of an image of `image`, explicit VR, without pixels.
[[nodiscard]] inline DicomBuilder ImageHeader(const DicomImage& image)
{
    return DicomBuilder().Meta(kUidExplicitLittle).CommonHeader("CT").Image(image);
}

// An 8-bit gray file of that many frames of 2 by 2 pixels: 0, 1, 2, 3, 4 …
[[nodiscard]] inline DicomBuilder FramesOf2x2(int frames)
{
    std::string pixels(static_cast<std::size_t>(frames) * 4, '\0');
    for (std::size_t i = 0; i < pixels.size(); ++i)
        pixels[i] = static_cast<char>(i);
    return ImageHeader({.rows = 2, .columns = 2, .bits = 8, .frames = frames})
        .NativePixels(pixels, "OB");
}

inline FileRef WriteDicom(const TempFolder& folder, const DicomBuilder& file,
                          const char* name = "a.dcm")
{
    return {folder.WriteFile(name, file.Bytes())};
}

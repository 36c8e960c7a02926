// The extensions of a DICOM image description: what the importer says of an image, and what the
// program tells the decoder. All numbers are big-endian in the extension's bytes.
#pragma once
#include "util/FourCC.h"
#include "util/ImageDescription.h"
#include "util/StatusCodes.h"

#include "Qvx2VOIBlitter/VOIBlitter.h"
#include <cstdint>

inline constexpr std::uint32_t kCodecTypeDicom = FourCC("DICM");

inline constexpr std::uint32_t kExtensionPixelFormat = FourCC("cspc");    // 4 bytes
inline constexpr std::uint32_t kExtensionDefaultWindow = FourCC("DVPA");  // 12 bytes or more
inline constexpr std::uint32_t kExtensionHints = FourCC("DHNT");          // 4 bytes
inline constexpr std::uint32_t kExtensionVOI = FourCC("DVOI");            // 8 bytes
inline constexpr std::uint32_t kExtensionVOIClipping = FourCC("DVCL");    // 4 bytes

// Two words that the decoder gets as they are.
struct DicomVOIPair {
    std::uint32_t fWords[2] = {};
};

// The image's own window in user values. kQvxNoDefaultWindow when it has none, kQvxBadArgument for
// an extension that is too short.
[[nodiscard]] QvxStatus GetDicomDescriptionVOIParams(const ImageDescription& description,
                                                     float* width, float* level);

// Each puts one extension in place of all of its tag. kQvxNoMemory; then the old ones are gone.
[[nodiscard]] QvxStatus SetDicomDescriptionPixelFormat(ImageDescription* description,
                                                       std::uint32_t format);
[[nodiscard]] QvxStatus SetDicomDescriptionDefaultWindow(ImageDescription* description, float width,
                                                         float level);
[[nodiscard]] QvxStatus SetDicomDescriptionHints(ImageDescription* description,
                                                 std::uint32_t hints);
[[nodiscard]] QvxStatus SetDicomDescriptionVOIParams(ImageDescription* description,
                                                     const DicomVOIPair& pair);
[[nodiscard]] QvxStatus SetDicomDescriptionVOIBoundClippingOption(
    ImageDescription* description, QvxVOIBoundsClippingOption option);

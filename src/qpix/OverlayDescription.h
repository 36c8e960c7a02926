// How the bytes of an overlay become a plane: a description of one bit a pixel with the extension
// 'ovbt', whose payload is the 64-bit number of the first bit, the 32-bit distance between bits, a
// 32-bit flag for swapped words and the 32-bit size of swapped cells, all big-endian.
#pragma once
#include "util/ImageDescription.h"
#include "util/PixMap.h"
#include "util/StatusCodes.h"

#include "QvxToolkit/QvxOverlayPlane.h"
#include <cstdint>
#include <span>

inline constexpr std::uint32_t kCodecTypeOverlay = FourCC("DOVL");
inline constexpr std::uint32_t kExtensionOverlayBits = FourCC("ovbt");

// kQvxNoMemory.
[[nodiscard]] QvxStatus MakeOverlayDescription(const QvxOverlay& overlay,
                                               ImageDescription* description);
// Fills a map of format 1 and the description's size. kQvxBadArgument for a description or map of
// another kind or size.
[[nodiscard]] QvxStatus DecompressOverlay(const ImageDescription& description,
                                          std::span<const std::uint8_t> bytes, const PixMap& map);

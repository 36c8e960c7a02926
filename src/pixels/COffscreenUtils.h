// What callers do with offscreens and ports beyond their own operations. Ports over a part stand in
// PartialPort.h, flips in Flips.h, descriptions and depths in PortDescription.h, tables in
// PortTables.h, whether a port fits in FreeMemory.h.
#pragma once
#include "pixels/PixelCopy.h"
#include "pixels/zel_Offscreen.h"

namespace COffscreenUtils {

// A white port of any format, 24 kept as it is; PixelFormat.h. `temporary` is a wish about where
// the memory comes from, which plain memory has no use for.
[[nodiscard]] QvxStatus NewQTOffscreen(std::uint32_t pixelFormat, int width, int height,
                                       bool temporary, std::unique_ptr<Port>* port);

// The copy of PixelCopy.h between two ports; null rectangles for the whole.
[[nodiscard]] QvxStatus CopyOffscreen(const Port& source, Port* target, const Rect* from,
                                      const Rect* to, CopyMode mode, const ClipRegion* clip);

}  // namespace COffscreenUtils

// A scaling copy with checks: kQvxBadArgument too when `to` reaches beyond the target.
//   quality  768 and 1023 ask for the best, 16 for a plain copy; the one kernel serves all
[[nodiscard]] QvxStatus DecompressPixmap(const PixView& source, const PixView& target, int quality,
                                         const Rect* from, const Rect* to, CopyMode mode,
                                         const ClipRegion* clip);
// The same between two ports, the target locked meanwhile.
[[nodiscard]] QvxStatus CopyOffscreenQ(const Port& source, Port* target, int quality,
                                       const Rect* from, const Rect* to, CopyMode mode,
                                       const ClipRegion* clip);

// Depth of the description made from the port; 24 without 'cspc' is 32 when the port has 32 bits.
[[nodiscard]] QvxStatus GetCorrectedPixmapDepth(const COffscreen& offscreen, std::int32_t* depth);

// A blank offscreen for a quarter turn of `offscreen`: from its made description, with width and
// height exchanged. Null on failure.
[[nodiscard]] QvxStatus NewOffscreen4Rot90(const COffscreen& offscreen,
                                           std::unique_ptr<zel_Offscreen>* turned);

// The pixel at column h of row v. Beyond the bounds white: 0xFFFF in all three components.
//   gray  'b16g' gives the word at the point and other formats 255 less the byte there, in all
//         three components, unscaled. Without it the pixel is taken as 32 bits: bytes 1, 2, 3 of
//         it, each times 257
// kQvxBadArgument without a port, for `gray` on pixels below a byte, and for colour on other than
// 32 bits: their bytes are not where this looks.
[[nodiscard]] QvxStatus U_GetOffscreenPixelValue(const COffscreen& offscreen, int h, int v,
                                                 bool gray, RGBColor* color);

// A loaded document's frame as a picture for the screen, its overlays in it. Main thread only.
#pragma once
#include "util/StatusCodes.h"

#include <QImage>
#include <QRect>
#include <cstdint>

class ZELSequenceProxy;
class dk_SequenceBase;
class zel_QTViewerDoc;
struct Port;
struct Rect;

inline constexpr int kLongestPictureSide = 32767;  // device pixels: what a port's bounds can say

// The overlay planes of frame `frame` (from 1) over its picture, which takes `whole` of the port's
// coordinates and may reach beyond the port. Nothing for a sequence without overlays or whose view
// state hides them. An overlay that reaches beyond its frame is cut. The codes of reading.
[[nodiscard]] QvxStatus U_DrawCellOverlays(dk_SequenceBase* sequence, std::int32_t frame,
                                           Port* target, const QRect& whole);

// What of the document's frame lies in `shown` when all of it is scaled to `whole`, both in the
// same device pixels, sides at most kLongestPictureSide; parts equal the whole bit for bit. An
// opaque image of the size of `shown`; null, with a line in the log, when it can't be made.
[[nodiscard]] QImage RenderFrame(const zel_QTViewerDoc& document, dk_SequenceBase* sequence,
                                 std::int32_t frame, const QRect& whole, const QRect& shown);

// The frame (from 1) scaled into `place` of a port of any format, its overlays in it: for
// exporters, which draw into ports of their own. The first loads it; the second takes a document
// that has it loaded, and a codec's quality, of which 16 is the fastest. The codes of loading and
// drawing.
[[nodiscard]] QvxStatus U_DrawGWorldBitmapForFrame(const ZELSequenceProxy& proxy,
                                                   std::int32_t frame, Port* target,
                                                   const Rect& place);
[[nodiscard]] QvxStatus U_DrawFrameContentFromDoc(const ZELSequenceProxy& proxy, std::int32_t frame,
                                                  Port* target, const Rect& place,
                                                  zel_QTViewerDoc* document, int quality);
// A copy of a port's pixels; null for a port without pixels.
[[nodiscard]] QImage U_NSCreateImageFromGWorld(const Port& port);

// A loaded document's frame as a picture for the screen, its overlays in it. Main thread only.
#pragma once
#include "util/StatusCodes.h"

#include <QImage>
#include <QRect>
#include <cstdint>

class dk_SequenceBase;
class zel_QTViewerDoc;
struct Port;

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

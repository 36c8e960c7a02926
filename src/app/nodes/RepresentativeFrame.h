// The thumbnail of a sequence: its representative frame as a grid shows it at first, without what
// the user did to it. Main thread only.
#pragma once
#include "pixels/Port.h"
#include "util/XRect.h"

#include <QImage>

class dk_SequenceBase;

// Of kThumbnailSide pixels in both directions with `square`, else along the longer side of the
// frame. The image ":/icons/warning.svg" for a sequence of no frames; white where the frame can't
// be drawn. Null only without memory, or where the program has no such icon.
[[nodiscard]] QImage U_RepresentativeFrameImageFor(dk_SequenceBase* sequence, bool square);

// The same as a port of 32 bits. A frame that can't be measured gives a white square. kQvxNoMemory,
// kQvxBadArgument without a frame; what drawing answers goes to the log.
[[nodiscard]] QvxStatus U_UpdateDrawBufferForRepresentativeFrameOf(dk_SequenceBase* sequence,
                                                                   bool square,
                                                                   std::unique_ptr<Port>* port);

// The frame, its pixels made square, and its overlays, as large as fits into `rect` of the port,
// centred. kQvxBadArgument and nothing drawn without a frame or its source; the codes of loading.
[[nodiscard]] QvxStatus DrawRepresentativeCellImage(dk_SequenceBase* sequence, Port* target,
                                                    const Rect& rect);

// Where a thumbnail is kThumbnailSide wide: how high it is then, a square's height at most.
[[nodiscard]] float U_IconHeightOf(const QImage& image);

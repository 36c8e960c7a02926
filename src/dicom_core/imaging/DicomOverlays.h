// The overlay planes of a frame, painted over it in the user's colour, turned as the frame is.
#pragma once
#include "dicom_core/look/zel_TransformRec.h"
#include "dicom_core/store/zel_ImageBuffer.h"
#include "pixels/Port.h"

#include <cstdint>
#include <memory>

class GraphicsImporter;
class IdentityTransDoc;
class zelImageSource;

// What becomes of an overlay that reaches beyond its frame.
enum class OverlaysBeyond : std::uint8_t {
    Skipped,  // nothing of it is drawn
    Cut,      // the part that lies on the frame is drawn, where it lies
};

// One plane of the instance's current image, a port of one bit a pixel of the overlay's own size, a
// set bit black. `index` counts from 1. kQvxBadArgument, else the codes of reading; null on
// failure.
[[nodiscard]] QvxStatus GetDicomOverlayAsGWorld(GraphicsImporter* instance, std::int32_t index,
                                                std::unique_ptr<Port>* plane);

// All planes of frame `frame` (from 1, in its source), over the picture of the frame that stands in
// `targetRect` of the port. With a record and a transform object the picture is taken for turned as
// the record says. Planes go through `buffer`, may be null. A step that fails ends it; what was
// drawn stays. kQvxBadArgument for an empty rectangle or a source that can't be opened.
[[nodiscard]] QvxStatus U_DrawDicomOverlays(zelImageSource* source, std::int32_t frame,
                                            Port* target, const Rect& targetRect,
                                            const zel_TransformRec* record,
                                            const IdentityTransDoc* doc, zel_ImageBuffer* buffer,
                                            OverlaysBeyond beyond = OverlaysBeyond::Skipped);

// Flips and the quarter turn of a port's pixels. All take pixel sizes 1, 2, 4, 8, 16, 24 and 32 and
// answer kQvxBadArgument for others and for a port without pixels, kQvxNoMemory when there is no
// room for a row (for a turn of pixels below a byte: for the picture, a byte a pixel). Bytes of a
// row beyond its pixels stay.
#pragma once
#include "pixels/Port.h"

[[nodiscard]] QvxStatus FlipOffscreenVert(Port* port);  // the first row becomes the last
[[nodiscard]] QvxStatus FlipOffscreenHorz(Port* port);  // the first column becomes the last
[[nodiscard]] QvxStatus FlipOffscreenBoth(Port* port);  // a half turn, in place

// A quarter turn clockwise: source row y becomes target column height - 1 - y, source column x
// target row x. The target has the exchanged size and the source's pixel size, and is another port;
// else kQvxBadArgument. It takes the source's resolutions, exchanged; not its table.
[[nodiscard]] QvxStatus RotateOffscreen90(const Port& source, Port* target);

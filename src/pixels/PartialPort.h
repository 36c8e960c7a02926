// Ports over a part of another one, with and without a copy.
#pragma once
#include "pixels/Port.h"

// A port over the same memory, which owns no pixels and dies before `port` does. Its bounds are
// `rect`, so that a point has the same coordinates in both; row bytes and table are the port's.
// kQvxBadArgument unless `rect` is not empty, lies within the port's bounds, and the pixel size is
// a multiple of 8.
[[nodiscard]] QvxStatus MakePartialGWorld(const Port& port, const Rect& rect,
                                          std::unique_ptr<Port>* partial);

// A port of its own at 0, 0, as large as `rect` times `scale`, each side rounded half away from
// zero, with the pixels of `rect` copied in mode `Dither`.
//   scale    16.16 fixed, above 0
//   force32  format 32, else the port's own with its table
// kQvxBadArgument for a bad rectangle or a side outside 1 to 32767; kQvxNoMemory.
[[nodiscard]] QvxStatus MakeCloneGWorld(const Port& port, const Rect& rect, std::int32_t scale,
                                        bool force32, std::unique_ptr<Port>* clone);

// A partial port, or where a pixel is less than a byte a clone at scale 1.0; `isClone` says which.
[[nodiscard]] QvxStatus MakePartialOrCloneGWorld(const Port& port, const Rect& rect,
                                                 std::unique_ptr<Port>* made, bool* isClone);

// The copy of pixels between any two formats, with scaling. All copying of this folder ends here.
#pragma once
#include "pixels/PixView.h"

// Copies `from` of `source` to `to` of `target`, scaled when their sizes differ.
//   from, to  null for the whole map. `from` lies within the source; of `to` only what lies within
//             the target is written
//   clip      null for no further limit
// Equal sizes of one format and table give the same bits. Other sizes average when they shrink and
// interpolate when they grow: gray on its own values, all else as colours, which come out opaque.
// Large pictures are scaled by several threads, with the same result. Only where indexes of a
// colour table go into a colour table the nearest pixel is taken, as a mean of indexes is nothing.
// `Paint` sets a target pixel when any source pixel that falls on it is black, so that thin lines
// stay. The two maps may share memory.
// kQvxBadArgument for a map without pixels or of an unknown format, a rectangle that is empty or
// has a side above 32767, a `from` beyond the source, an unknown mode; kQvxNoMemory.
[[nodiscard]] QvxStatus CopyPixels(const PixView& source, const PixView& target, const Rect* from,
                                   const Rect* to, CopyMode mode, const ClipRegion* clip);

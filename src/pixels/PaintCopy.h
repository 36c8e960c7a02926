// Copy mode `Paint`. Internal to this folder.
#pragma once
#include "pixels/PixView.h"
#include "pixels/PixelFormat.h"

// Paints `window` of `target`, which lies within `to`, from the pixels of `from`; both in their own
// map's coordinates and checked by the caller. Throws std::bad_alloc only.
void PaintPixels(const PixView& source, const PixelLayout& sourceLayout, const Rect& from,
                 const PixView& target, const PixelLayout& targetLayout, const Rect& to,
                 const Rect& window);

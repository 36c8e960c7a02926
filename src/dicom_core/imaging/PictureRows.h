// The last step from a frame to a picture where no window is applied: rows of pixels to rows of
// kPixelFormatARGB32. The maps are of one size.
#pragma once
#include "util/ColorTable.h"
#include "util/PixMap.h"

// Pixels of one byte through a table of 256 colours; entries that it lacks are black.
void PictureRows_Colors(const PixMap& indexes, const ColorTable& table, const PixMap& argb);
// Pixels that are ARGB already; they become opaque.
void PictureRows_Copy(const PixMap& source, const PixMap& argb);
// The negative, in place.
void PictureRows_Invert(const PixMap& argb);

// The scaled part of the copy of pixels. Internal to this folder.
#pragma once
#include "pixels/PixView.h"
#include "pixels/SourceRows.h"

struct CopyEnd {
    PixView view;
    PixelLayout layout;
    Rect rect;  // of the source all is there; of the target it may reach beyond the map
};

// Scales the source's rectangle to the target's and writes what lies in `window`, a part of the
// latter within the map. Works on samples of `kind`, not `Native`; `indexMap` as in SourceRows.h.
// The two share no memory. Throws std::bad_alloc.
void CopyScaled(const CopyEnd& source, const CopyEnd& target, const Rect& window, SampleKind kind,
                const IndexMap* indexMap, CopyMode mode);

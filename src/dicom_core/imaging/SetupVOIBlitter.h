// What the pixels of a frame mean, and the limits, originals and current window that follow: set up
// at the first import of a frame and renewed at each later one.
#pragma once
#include "dicom_core/look/CVOIBlitter.h"
#include "dicom_core/store/zel_ImageBuffer.h"
#include "util/StatusCodes.h"

#include <cstdint>

class DicomCodec;
class dk_ImageFrameInfo;
class dk_SequenceBase;

// Of a gray DICOM frame; others need none: kQvxOK. What the pixels mean comes from the record that
// `buffer` (may be null) keeps beside the frame, else from `codec`, which must have decoded the
// frame last. The frame's limits go to every frame of the sequence, merged with those of the
// others; the window of the first other frame that was set up before is adopted, but only at this
// frame's first set-up.
// kQvxBadArgument for a gray frame of no known format or without pixel range, else the codec's
// codes; the frame's health says which step failed.
[[nodiscard]] QvxStatus SetupVOIBlitter(dk_SequenceBase* sequence, DicomCodec* codec,
                                        dk_ImageFrameInfo* frame, std::uint32_t properties,
                                        zel_ImageBuffer* buffer);

// Records a window of display values in the frame's record; with `enhance` cut to the frame's
// actual pixel range first. kQvxBadArgument before the frame was set up, and for a range of
// nothing.
[[nodiscard]] QvxStatus U_SetDisplayVOIParams(dk_ImageFrameInfo* frame, std::uint32_t width,
                                              std::int32_t level, bool enhance);

// The numbers of a frame's window set-up: from the range of its pixels, the decoder's limits and
// the image's own window to the limits, originals and current window of its record. Pure
// arithmetic; the codes and results of the steps stand below, the caller stores them.
#pragma once
#include "dicom_core/look/CVOIBlitter.h"

#include <cstdint>

// What is known of the frame. Pixels and limits are display values, the default is user values.
struct zelWindowFacts {
    std::int32_t pixelMinimum = 0, pixelMaximum = 0;
    zelDisplayVOILimits codecLimits;  // used only with a default
    bool hasDefault = false;          // the image states a window (PS3.3 C.11.2.1.2)
    float defaultWidth = 0, defaultLevel = 0;
    zelVOIFunction function = zelVOIFunction::Linear;  // stated for windows, also without a default
    std::shared_ptr<const zelVOITable> defaultTable =
        nullptr;  // of which the default is the span; or null
};

// What came out, in display values. What it means for the user is in the record.
struct zelWindowSetup {
    std::int32_t widenedMinimum = 0, widenedMaximum = 0;
    zelDisplayVOILimits limits;
};

// The pixel range, widened by half its length at each end (not if it is one value), and the limits:
// the decoder's if there is a default, else widths from 1 to the number of values in the range and
// levels over the widened range. kQvxBadArgument for a maximum below the minimum.
[[nodiscard]] QvxStatus WindowSetup_Limits(const zelWindowFacts& facts, zelWindowSetup* setup);

// Gives a record whose `voiInfo` is set the limits in user values, the lower level first. Limits
// that have no width are left as they were. kQvxBadArgument or kQvxMalformed where the levels can't
// be converted; the record is untouched then.
[[nodiscard]] QvxStatus WindowSetup_RecordLimits(const zelDisplayVOILimits& limits,
                                                 zel_TransformRec* record);

// Sets the originals: the default unless both its numbers are exactly 0 (a NaN isn't), else the
// greatest width and the middle of the levels, rounded half away from zero to a display step. A
// current window that stood at the old originals follows. The function becomes that of the facts.
void WindowSetup_RecordOriginals(const zelWindowFacts& facts, zel_TransformRec* record);

// All three for one frame on its own. On failure neither result is touched.
[[nodiscard]] QvxStatus SetupWindow(const zelWindowFacts& facts, zel_TransformRec* record,
                                    zelWindowSetup* setup);

// The grays of a frame by its table, or by a window as the standard has it: PS3.3 C.11.2.1.
#pragma once
#include "dicom_core/look/zel_TransformRec.h"

#include <cstdint>
#include <optional>
#include <vector>

// Display values, the least and the greatest; not out of order.
struct zelPixelRange {
    std::int32_t minimum = 0, maximum = 0;
};

// True where a window can't go through the kernels of the windowing library: for a table, and for
// a function other than the linear one. Without a pixel range also where the kernels' whole display
// values would not be the standard's formula: for scales with a factor, inverted ones, and levels
// that are no whole number.
[[nodiscard]] bool NeedsVOICurve(const zel_TransformRec& record, bool hasRange);

// Grays of the display values 0 and up, all that the record's pixel format has: 255 is black, as in
// format 40. The window in force is the record's, its width not rounded; a linear one narrower than
// 1 is taken as LINEAR_EXACT. A pixel range cuts the window of both linear functions, to at
// least one display step; others have no ends that could be cut. kQvxBadArgument for a record that
// was not set up; kQvxNoMemory.
[[nodiscard]] QvxStatus MakeVOICurve(const zel_TransformRec& record,
                                     const std::optional<zelPixelRange>& range,
                                     std::vector<std::uint8_t>* grays);

// Questions that an image poses beside its pixels: its window pairs, and the frames that a mask
// subtraction names. No pixels are read.
#pragma once
#include "Qvx2Parser/Qvx2Reader.h"
#include <cstdint>
#include <span>

struct QvxVOIParams {
    float fCenter = 0, fWidth = 0;  // as the file has them
};
// A handle with a 32-bit count and that many pairs of Window Center (0028,1050) and Width
// (0028,1051): as many as both have. `frame` counts from 0 and is looked at only in an enhanced MR
// image, whose windows stand in the shared functional groups or else in those of the frame; all
// other files are asked at the top level. A count of 0 says that the file states no window.
// kQvxBadArgument without a reader, kQvxResultNotNull, kQvxMalformed for a width that is no number,
// kQvxSeekFailed for a frame without functional groups.
[[nodiscard]] QvxStatus ParserGetVOIParamsArray(QvxParserRec* reader, std::uint32_t frame,
                                                QvxHandle* params);
[[nodiscard]] std::span<const QvxVOIParams> QvxVOIParamsOf(const QvxHandle& params);

// First and last of Mask Frame Numbers (0028,6110) of an item of Mask Subtraction Sequence.
[[nodiscard]] QvxStatus GetMaskFrameNumberRange(QvxParserRec* reader, QvxElementRef maskItem,
                                                std::uint16_t* first, std::uint16_t* last);

struct QvxFrameRange {
    std::uint16_t fFirst = 0, fLast = 0;
};
// Applicable Frame Range (0028,6102) of such an item: a handle with the 32-bit number of pairs, the
// size of a pair in bytes, 4, and the pairs.
[[nodiscard]] QvxStatus GetApplicableFrameRanges(QvxParserRec* reader, QvxElementRef maskItem,
                                                 QvxHandle* ranges);
[[nodiscard]] std::span<const QvxFrameRange> QvxFrameRangesOf(const QvxHandle& ranges);

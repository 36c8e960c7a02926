// Where the frames of Pixel Data lie: a chain of items below the element, and one row a frame.
#pragma once
#include "Qvx2Parser/QvxRecords.h"
#include <cstdint>

// Frames that are mapped at most: native data without a frame count may be claimed to hold one
// frame a byte.
inline constexpr std::uint32_t kMaxMappedFrames = 1'000'000;

// Called with the offset at the value of Pixel Data. Answers the head of the frame chain, or 0
// when there is nothing to map yet. Below the top level it only passes over the fragments.
QvxIndex HandlePixelData(std::uint32_t* offset, ExtraHeaderDataRec& state, int level,
                         QvxStatus* error);
// Makes the chain the children of the Pixel Data element.
void HangFrameChain(ExtraHeaderDataRec& state, QvxIndex chain);

struct QvxFragments {
    std::uint32_t fCount = 0;
    std::uint32_t fTotalSize = 0;  // with the headers between the fragments
    std::uint32_t fFirstSize = 0;
    QvxIndex fList = 0;  // an item for each fragment after the first
};
// Reads the fragment headers of one frame from `start` to `end`. kQvxEndOfFile past the file's end
// or the frame's, kQvxSeekFailed for something that is no fragment.
[[nodiscard]] QvxStatus HandleFrameFragments(ExtraHeaderDataRec& state, std::uint32_t start,
                                             std::uint32_t end, QvxFragments* fragments);
// Fills the map's rows from the chain, or from a directory's list; once.
[[nodiscard]] QvxStatus GetImageOffsets(ExtraHeaderDataRec& state);
// The rows of an image file's chain. kQvxSeekFailed without a chain.
[[nodiscard]] QvxStatus GetOffsetsAndSizesFromImageDataPtr(ExtraHeaderDataRec& state,
                                                           std::vector<QvxFrameMapRecord>* rows);

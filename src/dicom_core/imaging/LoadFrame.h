// The roads by which others fill a document, and what a sequence has in the base buffer.
#pragma once
#include "dicom_core/store/zel_ImageBuffer.h"
#include "util/StatusCodes.h"

#include <cstdint>

class dk_SequenceBase;
class zel_QTViewerDoc;

inline constexpr std::uint32_t kStorePriorityShown = 2;
inline constexpr std::uint32_t kInsertLimitShown = 3;

// Loads frame `frame` (0: the current one) of the sequence through the base buffer, where there is
// one and the sequence is of DICOM files. The sequence's current frame is the same afterwards.
[[nodiscard]] QvxStatus U_LoadFrameContentToViewerDoc(
    dk_SequenceBase* sequence, std::int32_t frame, zel_QTViewerDoc* document,
    std::uint32_t storePriority = kStorePriorityShown,
    std::uint32_t insertLimit = kInsertLimitShown);

// Only DICOM sequences go through the base buffer.
[[nodiscard]] bool SequenceCanUseBaseBuffer(const dk_SequenceBase& sequence);
[[nodiscard]] bool SequenceCanUpdateBaseBuffer(const dk_SequenceBase& sequence);
[[nodiscard]] bool CheckIfCellInBaseBuffer(dk_SequenceBase* sequence, std::int32_t frame);
// True for a sequence of no frames.
[[nodiscard]] bool AllCellsInBaseBuffer(dk_SequenceBase* sequence);
// Frees what the base buffer holds of the sequence's files: nobody will show them again.
void ForgetBufferedFrames(dk_SequenceBase* sequence);

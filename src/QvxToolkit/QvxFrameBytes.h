// Where a file keeps its pixels, and where in them its frames lie. Internal.
#pragma once
#include "QvxToolkit/QvxFrameRecord.h"
#include <algorithm>
#include <cstdint>
#include <string>

// The element that holds the pixels: (7FE0,0010), (7FE0,0008) or (7FE0,0009), the first there is.
struct QvxPixelRun {
    QvxSampleForm fForm = QvxSampleForm::Integer;
    bool fEncapsulated = false;
    bool fBytes = false;               // VR OB: no words that a byte order could turn
    bool fDefinite = false;            // the element states its length
    std::uint32_t fOffset = 0;         // of the value
    std::uint32_t fStatedLength = 0;   // when definite
    std::uint32_t fRoom = 0;           // bytes from the value to the end of the file
    std::uint32_t fClaimedFrames = 0;  // (0028,0008); 0 when missing or not above 0
    std::uint32_t fMappedFrames = 0;   // encapsulated: frames that the reader's map has

    // Bytes that the element is said to have and the file can hold.
    [[nodiscard]] std::uint32_t Length() const
    {
        return fDefinite ? std::min(fStatedLength, fRoom) : fRoom;
    }
};

// kQvxNoSuchElement when there is none, or an empty one; `why` has the reason then.
[[nodiscard]] QvxStatus QvxFindPixels(QvxParserRec* reader, QvxPixelRun* run, std::string* why);

// Fills in the record's frames, from its geometry. A native frame may lie anywhere in the file
// behind the start of the pixels, whatever their stated length, as in the reader's frame map; only
// a single frame of a length too short for it is taken for cut. Frames of single bits follow one
// another without a gap (PS3.5 8.1.1) unless the element is long enough for whole bytes a frame.
[[nodiscard]] QvxStatus QvxPlaceFrames(const QvxPixelRun& run, QvxFrameRecord* record,
                                       std::string* why);

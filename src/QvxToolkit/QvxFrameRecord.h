// The geometry gate: what a file says of its pixels, checked as a whole. Nothing below this gate
// sees a number that has not passed it. PS3.3 C.7.6.3.
//
// Headers far from conformant are read as follows; what is not named here is refused.
//   (0028,0100) missing        8 when at most 8 bits are stored, else 16; 32 or 64 for float pixels
//   (0028,0101) missing, 0 or above allocated      all allocated bits
//   (0028,0102) missing, or no room for the bits   the lowest position
//   (0028,0103) other than 1   unsigned; so are colour and single bits
//   (0028,0004) missing or unknown   MONOCHROME2 or RGB, by the number of samples
//   (0028,0002) missing, or at odds with (0028,0004): for native pixels what the bytes suffice for,
//       three samples first; for encapsulated ones the number stands, 0 counts as missing
//   (0028,0004) 4:2:2, yet the bytes are those of full colour: full colour
//   (0028,0008) missing        as many frames as (7FE0,0010) is long for; a clip's are counted
//   (0028,1053) absent, 0 or absurd   1; (0028,1052) absent or absurd   0
//   (0028,3000) without entries, or of other than 8 to 16 bits   none, with a line in the log
// Several values where one is due: the first counts.
#pragma once
#include "Qvx2Parser/Qvx2Reader.h"
#include "QvxToolkit/QvxLookupTable.h"
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

enum class QvxPhotometric : std::uint8_t {
    Monochrome1,
    Monochrome2,
    Palette,
    RGB,
    YBRFull,
    YBRFull422,
    YBRPartial,
    YBRICT,
    YBRRCT,
    Unknown,  // shown as MONOCHROME2 or RGB by the number of samples
};

// Stored values as they lie in the file.
enum class QvxSampleForm : std::uint8_t { Integer, Float32, Float64 };

// Where an enhanced image says what is true of its frames, PS3.3 C.7.6.16. Items of the reader
// that the record was made from.
struct QvxFrameGroups {
    QvxElementRef fShared{};              // None when there is none
    std::vector<QvxElementRef> fOfFrame;  // in the order of the frames; may be fewer
};

struct QvxFrameRecord {
    std::uint32_t fRows = 0, fColumns = 0;  // 1 to 65535
    std::uint32_t fSamples = 1;             // 1 or 3 a pixel
    std::uint32_t fBitsAllocated = 0;       // 1 to 32, or 64; cells that are no bytes are packed
    std::uint32_t fBitsStored = 0;          // 1 to fBitsAllocated; at most 32 for integers
    std::uint32_t fHighBit = 0;             // fBitsStored - 1 to fBitsAllocated - 1
    bool fSigned = false;
    bool fPlanar = false;      // colour by plane
    bool fHalfChroma = false;  // native 4:2:2: Y Y Cb Cr for two pixels
    QvxSampleForm fForm = QvxSampleForm::Integer;
    QvxPhotometric fPhotometric = QvxPhotometric::Monochrome2;
    bool fEncapsulated = false;
    std::uint32_t fByteOrder = 0;  // of native 16-bit words and wider: 1 is big endian
    bool fWordSwapped = false;     // cells lie in big-endian 16-bit words, PS3.5 8.1.1
    std::string fTransferSyntax;   // UID without padding; empty when the file has none

    std::uint32_t fFrames = 0;         // frames whose bytes are there, at least 1
    std::uint32_t fClaimedFrames = 0;  // frames that there should be, at least fFrames
    std::uint64_t fFrameBytes = 0;     // native: bytes of one frame in the file
    std::uint64_t fFrameStride = 0;    // native: bits from one frame's start to the next's
    std::uint64_t fPixelOffset = 0;    // native: offset of the first frame, for ReadData; of a
                                       // clip: of the first item
    std::uint64_t fPixelBytes = 0;     // native: bytes from there on that are pixels

    // From stored to user values. Of an enhanced image: those of its first frame, see
    // QvxRecordOfFrame.
    double fSlope = 1, fIntercept = 0;                // (0028,1053), (0028,1052)
    std::shared_ptr<const QvxLookupTable> fModality;  // (0028,3000), in place of both; or null
    bool fFramesDiffer = false;                       // in slope or intercept
    std::shared_ptr<const QvxFrameGroups> fGroups;    // null when there are none

    // Gray, low values white: MONOCHROME1, unless (2050,0020) says otherwise. Its INVERSE is that
    // one inversion, never a second one; its IDENTITY means values that need none (PS3.3 C.11.6).
    bool fInverted = false;
    bool fHasPadding = false;  // gray with (0028,0120), or (0028,0122), (0028,0123) of floats
    double fPaddingLow = 0, fPaddingHigh = 0;  // stored values that are no image, both included

    [[nodiscard]] bool IsGray() const { return fSamples == 1; }
    [[nodiscard]] std::uint64_t Pixels() const { return std::uint64_t{fRows} * fColumns; }
};

// A frame of which less than one part in so many is there is not decoded: memory is not taken on
// the word of a header.
inline constexpr std::uint64_t kLeastPartOfCutFrame = 8;

// Reads and checks. kQvxNoSuchElement when the file has no pixels or no size (a report, say),
// kQvxUnsupported for pixels no decoder could take, kQvxMalformed for contradictions that leave no
// safe reading, kQvxEndOfFile when too little of the first frame is there. `why` gets a plain
// reason with the tag on failure; may be null.
[[nodiscard]] QvxStatus QvxMakeFrameRecord(QvxParserRec* reader, QvxFrameRecord* record,
                                           std::string* why = nullptr);

// The record of frame `frameNumber` (from 1): `record` with the slope and intercept of that frame.
// In this order: the frame's own functional groups, the shared ones, the top level (PS3.3
// C.7.6.16.2.9). A look into one item, and none at all where frames don't differ; `reader` is the
// one that the record was made from. kQvxBadArgument for frame 0 or something missing.
[[nodiscard]] QvxStatus QvxRecordOfFrame(QvxParserRec* reader, const QvxFrameRecord& record,
                                         std::uint32_t frameNumber, QvxFrameRecord* frameRecord);

// A compressed frame on its way to samples: its bytes out of the fragments, what its own header
// says against what the file says, and samples as a codec leaves them into a decoded frame.
// Internal. Functions here may throw std::bad_alloc; DecodeFrame catches it.
#pragma once
#include "QvxToolkit/DecodedFrame.h"
#include <cstdint>
#include <span>
#include <string>
#include <vector>

using QvxBytes = std::vector<std::uint8_t>;

// No decoded frame is larger, counted in the bytes of a codec's samples.
inline constexpr std::uint64_t kMaxDecodedBytes = std::uint64_t{1} << 30;

// One frame's compressed bytes.
struct QvxStream {
    QvxBytes fBytes;         // fragments joined
    bool fCutShort = false;  // the file ends within them
    [[nodiscard]] std::span<const std::uint8_t> Bytes() const { return fBytes; }
};

// What a stream says of itself.
struct QvxStreamFacts {
    std::uint32_t fRows = 0, fColumns = 0;
    std::uint32_t fSamples = 1;
    std::uint32_t fPrecision = 8;  // bits of a sample, 1 to 32
    // Lossy samples are numbers that may lie a little beyond the stored bits: nothing is masked.
    bool fLossy = false;
};
// Bytes of one sample as a codec leaves it: 1, 2 or 4 by the precision, in host order.
[[nodiscard]] constexpr std::uint32_t QvxSampleBytes(std::uint32_t precision)
{
    return precision <= 8 ? 1 : precision <= 16 ? 2 : 4;
}

// What colour a codec leaves.
enum class QvxStreamColor : std::uint8_t {
    AsFileSays,  // by (0028,0004): turned to RGB if that is a luminance and chrominance
    RGB,         // the codec, or the stream, has made it so
};

// The bytes of frame `frameNumber` (from 1, one that is there). kQvxEndOfFile when none of them is
// in the file.
[[nodiscard]] QvxStatus QvxReadStream(QvxParserRec* reader, const QvxFrameRecord& record,
                                      std::uint32_t frameNumber, QvxStream* stream);

// Before a byte is decoded: a stream must have the size and the number of samples of its file, a
// precision of 1 to 32 that the file's cells can hold, and no more than kMaxDecodedBytes.
// kQvxMalformed, or kQvxUnsupported for what is too large; `why` says what differs.
[[nodiscard]] QvxStatus QvxCheckStream(const QvxFrameRecord& record, const QvxStreamFacts& facts,
                                       std::string* why);

// Samples of a checked stream, interleaved, rows top-down without gaps, QvxSampleBytes each, become
// the frame: masked to the stored bits, shifted down where the stream carries whole cells, and
// sign-extended; colour turned to RGB. `samples` is used up. No copy is made where none is needed.
// A reused frame's block: QvxTakeBlock hands it over for the codec to fill.
void QvxTakeSamples(const QvxFrameRecord& record, const QvxStreamFacts& facts, QvxStreamColor color,
                    QvxBytes&& samples, DecodedFrame* frame);
// The frame's own block, emptied, with room for `bytes`; what a codec leaves unwritten is 0.
[[nodiscard]] QvxBytes QvxTakeBlock(DecodedFrame* frame, std::size_t bytes);
// The same as it was left: for a codec that writes every byte.
[[nodiscard]] QvxBytes QvxTakeUsedBlock(DecodedFrame* frame, std::size_t bytes);
// Samples of three planes, one behind the other, brought into the interleaved order.
[[nodiscard]] QvxBytes QvxInterleavePlanes(const QvxStreamFacts& facts, const QvxBytes& planes);

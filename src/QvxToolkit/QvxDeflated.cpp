// Frames that were deflated one by one (PS3.5 A.4.13): inflated they lie as native ones do.
#include "QvxToolkit/QvxCells.h"
#include "QvxToolkit/QvxColor.h"
#include "QvxToolkit/QvxStreamDecoders.h"
#include <algorithm>
#include <zlib.h>

namespace {

// Ends its state with its life.
class Inflater {
public:
    explicit Inflater(int windowBits) : fReady(inflateInit2(&fState, windowBits) == Z_OK) {}
    ~Inflater()
    {
        if (fReady)
            inflateEnd(&fState);
    }
    Inflater(const Inflater&) = delete;
    Inflater& operator=(const Inflater&) = delete;

    // Bytes that came out, and whether the stream came to its end.
    std::size_t Run(std::span<const std::uint8_t> bytes, std::span<std::uint8_t> room, bool* ended)
    {
        if (!fReady)
            return 0;
        fState.next_in = const_cast<Bytef*>(bytes.data());
        fState.avail_in = static_cast<uInt>(bytes.size());
        fState.next_out = room.data();
        fState.avail_out = static_cast<uInt>(room.size());
        *ended = inflate(&fState, Z_FINISH) == Z_STREAM_END;
        return room.size() - fState.avail_out;
    }

private:
    z_stream fState{};
    bool fReady;
};

constexpr int kRaw = -15, kWrapped = 15;
constexpr std::size_t kMostOfByte = 1040;  // deflate never gives more bytes for one

// Two samples a pixel, not three: chrominance is halved, as it may be in native frames.
bool IsHalfChroma(const QvxFrameRecord& record, std::size_t there, std::size_t bytes)
{
    const bool mayBe = record.fPhotometric == QvxPhotometric::YBRFull422 ||
                       record.fPhotometric == QvxPhotometric::YBRPartial;
    return mayBe && record.fSamples == 3 && record.fColumns % 2 == 0 && 3 * there == 2 * bytes;
}

// `samples`, of the frame's form, go into the frame.
void TakeSamples(const QvxFrameRecord& record, bool halfChroma, QvxBytes&& samples,
                 DecodedFrame* frame)
{
    if (halfChroma || (record.fPlanar && !record.IsGray())) {
        QvxFrameRecord arranged(record);
        arranged.fHalfChroma = halfChroma;
        frame->fBytes.resize(samples.size());
        QvxInterleave(arranged, samples, frame);
    } else {
        frame->fBytes = std::move(samples);
    }
    QvxTurnToRGB(record, frame);
}

}  // namespace

QvxStatus QvxDecodeDeflated(const QvxFrameRecord& record, const QvxStream& stream,
                            DecodedFrame* frame, std::string* why)
{
    const QvxCellLayout layout = QvxLayoutOf(record);
    const std::uint64_t cells = record.Pixels() * record.fSamples;
    const std::uint64_t bytes = (cells * layout.fBits + 7) / 8;
    if (bytes > kMaxDecodedBytes) {
        *why = "a frame of " + std::to_string(bytes) + " bytes is too large";
        return kQvxUnsupported;
    }
    if (bytes / kMostOfByte > stream.fBytes.size()) {
        *why = "the stream is far too short for its frame";
        return kQvxMalformed;
    }
    QvxBytes inflated(bytes + 8);  // the bit reader loads eight bytes at a time
    const std::span<std::uint8_t> room(inflated.data(), bytes);
    bool ended = false;
    std::size_t there = Inflater(kRaw).Run(stream.Bytes(), room, &ended);
    if (there == 0)
        there = Inflater(kWrapped).Run(stream.Bytes(), room, &ended);
    if (there == 0) {
        *why = "the deflated frame can't be inflated";
        return kQvxMalformed;
    }
    QvxCellLayout host = layout;
    host.fSwapped = std::endian::native == std::endian::big && layout.fBits > 8;
    frame->fRows = record.fRows;
    frame->fColumns = record.fColumns;
    frame->fSamples = record.fSamples;
    frame->fForm = QvxFormOf(layout);
    frame->fIsRGB = !record.IsGray();
    QvxBytes samples(cells * BytesOfForm(frame->fForm));
    if (QvxIsWholeCell(layout.fBits))
        QvxUnpackCells(host, inflated.data(), samples.data(), cells);
    else
        QvxUnpackBits(host, inflated.data(), 0, samples.data(), cells);
    const bool halfChroma = ended && IsHalfChroma(record, there, bytes);
    TakeSamples(record, halfChroma, std::move(samples), frame);
    frame->fCutShort = stream.fCutShort || (there < bytes && !halfChroma);
    return kQvxOK;
}

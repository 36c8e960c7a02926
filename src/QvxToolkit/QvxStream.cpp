#include "QvxToolkit/QvxStream.h"

#include "QvxToolkit/QvxCells.h"
#include "QvxToolkit/QvxColor.h"
#include "QvxToolkit/QvxWeave.h"
#include <algorithm>
#include <array>
#include <cstring>

namespace {

constexpr std::uint32_t kItemHeader = 8;

std::uint32_t LengthOfItem(const std::uint8_t* header)
{
    return static_cast<std::uint32_t>(header[4]) | static_cast<std::uint32_t>(header[5]) << 8 |
           static_cast<std::uint32_t>(header[6]) << 16 |
           static_cast<std::uint32_t>(header[7]) << 24;
}

// Takes the headers between fragments out of `bytes`, whose first fragment has `firstSize` bytes.
void JoinFragments(std::uint32_t count, std::uint32_t firstSize, QvxBytes* bytes)
{
    std::size_t kept = std::min<std::size_t>(firstSize, bytes->size()), at = kept;
    for (std::uint32_t i = 1; i < count && bytes->size() - at >= kItemHeader; ++i) {
        const std::size_t length = LengthOfItem(bytes->data() + at);
        at += kItemHeader;
        const std::size_t there = std::min(length, bytes->size() - at);
        std::memmove(bytes->data() + kept, bytes->data() + at, there);
        kept += there;
        at += there;
    }
    bytes->resize(kept);
}

QvxCellLayout LayoutOfStream(const QvxFrameRecord& record, const QvxStreamFacts& facts)
{
    QvxCellLayout layout = QvxLayoutOf(record);
    layout.fBits = 8 * QvxSampleBytes(facts.fPrecision);
    layout.fSwapped = false;
    if (facts.fLossy && QvxSampleBytes(facts.fPrecision) == QvxSampleBytes(record.fBitsStored)) {
        layout.fStored = std::max(facts.fPrecision, record.fBitsStored);
        layout.fShift = 0;
        return layout;
    }
    // A stream of fewer bits than the cells' high bit carries the sample alone.
    layout.fShift =
        facts.fPrecision > record.fHighBit ? record.fHighBit + 1 - record.fBitsStored : 0;
    return layout;
}

}  // namespace

QvxStatus QvxReadStream(QvxParserRec* reader, const QvxFrameRecord& record,
                        std::uint32_t frameNumber, QvxStream* stream)
{
    QvxFrameMapRecord row;
    if (frameNumber < 1 || frameNumber > record.fFrames)
        return kQvxBadArgument;
    if (const QvxStatus status = Qvx2Reader_GetFrameMapRecord(reader, frameNumber, &row))
        return status;
    const std::uint32_t end = Qvx2Reader_FileSize(reader);
    const std::uint32_t there = row.fOffset < end ? std::min(row.fSize, end - row.fOffset) : 0;
    if (there == 0)
        return kQvxEndOfFile;
    stream->fCutShort = there < row.fSize;
    stream->fBytes.resize(there);
    if (const QvxStatus status =
            Qvx2Reader_ReadData(reader, stream->fBytes.data(), row.fOffset, there))
        return status;
    if (row.fFragmentCount > 1)
        JoinFragments(row.fFragmentCount, row.fFirstFragmentSize, &stream->fBytes);
    return kQvxOK;
}

QvxStatus QvxCheckStream(const QvxFrameRecord& record, const QvxStreamFacts& facts,
                         std::string* why)
{
    const auto refuse = [why](QvxStatus status, const char* what, std::uint32_t of,
                              std::uint32_t wanted) {
        if (why)
            *why = std::string(what) + " in the stream: " + std::to_string(of) +
                   ", the file says " + std::to_string(wanted);
        return status;
    };
    if (facts.fRows != record.fRows)
        return refuse(kQvxMalformed, "rows", facts.fRows, record.fRows);
    if (facts.fColumns != record.fColumns)
        return refuse(kQvxMalformed, "columns", facts.fColumns, record.fColumns);
    if (facts.fSamples != record.fSamples)
        return refuse(kQvxMalformed, "samples a pixel", facts.fSamples, record.fSamples);
    if (facts.fPrecision < 1 || facts.fPrecision > std::max(record.fBitsAllocated, 8U) ||
        facts.fPrecision > 32)
        return refuse(kQvxMalformed, "bits a sample", facts.fPrecision, record.fBitsAllocated);
    // 65535 by 65535 of three 4-byte samples: far below 2^63
    const std::uint64_t bytes = record.Pixels() * facts.fSamples * QvxSampleBytes(facts.fPrecision);
    if (bytes > kMaxDecodedBytes) {
        if (why)
            *why = "a frame of " + std::to_string(bytes) + " bytes is too large";
        return kQvxUnsupported;
    }
    return kQvxOK;
}

void QvxTakeSamples(const QvxFrameRecord& record, const QvxStreamFacts& facts, QvxStreamColor color,
                    QvxBytes&& samples, DecodedFrame* frame)
{
    const QvxCellLayout layout = LayoutOfStream(record, facts);
    frame->fRows = record.fRows;
    frame->fColumns = record.fColumns;
    frame->fSamples = record.fSamples;
    frame->fForm = QvxFormOf(QvxLayoutOf(record));
    frame->fIsRGB = !record.IsGray();
    const std::size_t sampleBytes = BytesOfForm(frame->fForm);
    if (layout.fBits == 8 * sampleBytes) {
        if (!QvxCellsAreSamples(layout))
            QvxUnpackCells(layout, samples.data(), samples.data(), frame->Count());
        frame->fBytes = std::move(samples);
    } else {
        frame->fBytes.resize(frame->Count() * sampleBytes);
        QvxUnpackCells(layout, samples.data(), frame->fBytes.data(), frame->Count());
    }
    if (color == QvxStreamColor::AsFileSays)
        QvxTurnToRGB(record, frame);
}

QvxBytes QvxTakeBlock(DecodedFrame* frame, std::size_t bytes)
{
    QvxBytes block = std::move(frame->fBytes);
    block.clear();
    block.resize(bytes);
    return block;
}

QvxBytes QvxTakeUsedBlock(DecodedFrame* frame, std::size_t bytes)
{
    QvxBytes block = std::move(frame->fBytes);
    if (block.capacity() < bytes)
        block.clear();  // nothing of it is worth a copy
    block.resize(bytes);
    return block;
}

QvxBytes QvxInterleavePlanes(const QvxStreamFacts& facts, const QvxBytes& planes)
{
    const std::size_t size = QvxSampleBytes(facts.fPrecision);
    const std::size_t pixels = std::size_t{facts.fRows} * facts.fColumns;
    QvxBytes interleaved(planes.size());
    std::array<const std::uint8_t*, 3> starts;
    for (std::size_t i = 0; i < starts.size(); ++i)
        starts[i] = planes.data() + i * pixels * size;
    QvxWeave(starts, size, pixels, interleaved.data());
    return interleaved;
}

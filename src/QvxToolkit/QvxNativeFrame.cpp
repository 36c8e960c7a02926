#include "QvxToolkit/QvxNativeFrame.h"

#include "util/ByteOrder.h"

#include "QvxToolkit/QvxCells.h"
#include "QvxToolkit/QvxColor.h"
#include <algorithm>
#include <bit>

namespace {

using Bytes = std::vector<std::uint8_t>;

// One frame's part of the pixel data, from which cells are taken.
class FrameRun {
public:
    FrameRun(QvxParserRec* reader, const QvxFrameRecord& record, std::uint32_t frameNumber)
        : fReader(reader), fRecord(record), fStartBit((frameNumber - 1) * record.fFrameStride)
    {
    }
    [[nodiscard]] std::uint64_t FirstByte() const { return fStartBit / 8; }
    [[nodiscard]] std::uint64_t BitsBefore() const { return fStartBit % 8; }
    [[nodiscard]] bool CutShort() const { return fCutShort; }
    // Fills `dest` with the `count` bytes from `first` on; what the file lacks is 0.
    QvxStatus Read(std::uint64_t first, std::uint64_t count, std::uint8_t* dest);
    // The same of cells in big-endian words: a frame may begin within a word.
    QvxStatus ReadWords(std::uint64_t first, std::uint64_t count, std::uint8_t* dest);

private:
    QvxParserRec* fReader;
    const QvxFrameRecord& fRecord;
    std::uint64_t fStartBit;
    bool fCutShort = false;
};

QvxStatus FrameRun::Read(std::uint64_t first, std::uint64_t count, std::uint8_t* dest)
{
    const std::uint64_t left = first < fRecord.fPixelBytes ? fRecord.fPixelBytes - first : 0;
    std::uint64_t there = std::min(count, left);
    if (there < count) {
        fCutShort = true;
        if (fRecord.fBitsAllocated % 8 == 0)
            there -= there % (fRecord.fBitsAllocated / 8);  // half a cell is none
        std::fill(dest + there, dest + count, std::uint8_t{0});
    }
    if (there == 0)
        return kQvxOK;
    // The gate keeps both within a file of 32-bit offsets.
    return Qvx2Reader_ReadData(fReader, dest,
                               static_cast<std::uint32_t>(fRecord.fPixelOffset + first),
                               static_cast<std::uint32_t>(there));
}

QvxStatus FrameRun::ReadWords(std::uint64_t first, std::uint64_t count, std::uint8_t* dest)
{
    const std::uint64_t begin = first / 2 * 2, end = (first + count + 1) / 2 * 2;
    Bytes words(end - begin);
    if (const QvxStatus status = Read(begin, end - begin, words.data()))
        return status;
    for (std::size_t i = 0; i < words.size(); i += 2)
        std::swap(words[i], words[i + 1]);
    std::copy_n(words.data() + (first - begin), count, dest);
    return kQvxOK;
}

QvxStatus ReadCells(FrameRun& run, const QvxFrameRecord& record, std::size_t count, Bytes* samples)
{
    const QvxCellLayout layout = QvxLayoutOf(record);
    const std::size_t sampleSize = BytesOfForm(QvxFormOf(layout));
    const auto read = [&](std::uint64_t bytes, std::uint8_t* dest) {
        return record.fWordSwapped ? run.ReadWords(run.FirstByte(), bytes, dest)
                                   : run.Read(run.FirstByte(), bytes, dest);
    };
    samples->resize(count * sampleSize);
    if (layout.fBits == 8 * sampleSize) {  // in place
        if (const QvxStatus status = read(samples->size(), samples->data()))
            return status;
        if (!QvxCellsAreSamples(layout))
            QvxUnpackCells(layout, samples->data(), samples->data(), count);
        return kQvxOK;
    }
    const std::uint64_t bytes = (run.BitsBefore() + count * layout.fBits + 7) / 8;
    Bytes cells(bytes + 8);  // the bit reader loads eight bytes at a time
    if (const QvxStatus status = read(bytes, cells.data()))
        return status;
    if (QvxIsWholeCell(layout.fBits))
        QvxUnpackCells(layout, cells.data(), samples->data(), count);
    else
        QvxUnpackBits(layout, cells.data(), run.BitsBefore(), samples->data(), count);
    return kQvxOK;
}

void Describe(const QvxFrameRecord& record, DecodedForm form, DecodedFrame* frame)
{
    frame->fRows = record.fRows;
    frame->fColumns = record.fColumns;
    frame->fSamples = record.fSamples;
    frame->fForm = form;
    frame->fIsRGB = !record.IsGray();
    frame->fCutShort = false;
}

}  // namespace

QvxStatus QvxDecodeNativeFrame(QvxParserRec* reader, const QvxFrameRecord& record,
                               std::uint32_t frameNumber, DecodedFrame* frame)
{
    Describe(record, QvxFormOf(QvxLayoutOf(record)), frame);
    FrameRun run(reader, record, frameNumber);
    const std::size_t pixels = record.Pixels();
    const bool arranged = !record.fHalfChroma && !(record.fPlanar && !record.IsGray());
    if (arranged) {
        if (const QvxStatus status =
                ReadCells(run, record, pixels * record.fSamples, &frame->fBytes))
            return status;
    } else {
        Bytes cells;
        const std::size_t count = pixels * (record.fHalfChroma ? 2 : 3);
        if (const QvxStatus status = ReadCells(run, record, count, &cells))
            return status;
        frame->fBytes.resize(frame->Count() * BytesOfForm(frame->fForm));
        QvxInterleave(record, cells, frame);
    }
    frame->fCutShort = run.CutShort();
    QvxTurnToRGB(record, frame);
    return kQvxOK;
}

QvxStatus QvxDecodeFloatFrame(QvxParserRec* reader, const QvxFrameRecord& record,
                              std::uint32_t frameNumber, DecodedFrame* frame)
{
    Describe(record, DecodedForm::Float64, frame);
    FrameRun run(reader, record, frameNumber);
    const std::size_t count = record.Pixels();
    const std::size_t width = record.fForm == QvxSampleForm::Float32 ? 4 : 8;
    frame->fBytes.resize(count * 8);
    // 32-bit floats are read into the upper half of the block and widened from its front.
    std::uint8_t* cells = frame->fBytes.data() + count * (8 - width);
    if (const QvxStatus status = run.Read(run.FirstByte(), count * width, cells))
        return status;
    const bool big = record.fByteOrder == 1;
    for (std::size_t i = 0; i < count; ++i) {
        const std::uint8_t* cell = cells + i * width;
        double value = 0;
        if (width == 4)
            value = std::bit_cast<float>(big ? LoadBE<std::uint32_t>(cell)
                                             : LoadLE<std::uint32_t>(cell));
        else
            value = std::bit_cast<double>(big ? LoadBE<std::uint64_t>(cell)
                                              : LoadLE<std::uint64_t>(cell));
        std::memcpy(frame->fBytes.data() + i * 8, &value, sizeof value);
    }
    frame->fCutShort = run.CutShort();
    return kQvxOK;
}

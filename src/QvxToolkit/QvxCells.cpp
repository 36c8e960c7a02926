#include "QvxToolkit/QvxCells.h"

#include "util/ByteOrder.h"

namespace {

// The stored bits of a cell as a sample: a signed one wraps round to the same bits. Nearly always
// there is nothing to shift, and a compiler makes shorter vectors of a shift it doesn't know.
template <typename Cell, typename Sample, bool shifted = true>
class Extract {
public:
    explicit Extract(const QvxCellLayout& layout)
        : fShift(layout.fShift),
          fMask(static_cast<Sample>(~std::uint64_t{0} >> (64 - layout.fStored))),
          fSign(layout.fSigned ? static_cast<Sample>(std::uint64_t{1} << (layout.fStored - 1)) : 0)
    {
    }
    Sample operator()(Cell cell) const
    {
        const auto low = static_cast<Sample>(shifted ? cell >> fShift : cell);
        const auto bits = static_cast<Sample>(low & fMask);
        return static_cast<Sample>(static_cast<Sample>(bits ^ fSign) - fSign);
    }

private:
    std::uint32_t fShift;
    Sample fMask, fSign;
};

template <typename Cell, typename Sample, bool swapped>
void Unpack(const QvxCellLayout& layout, const std::uint8_t* cells, std::uint8_t* samples,
            std::size_t count)
{
    const Extract<Cell, Sample> extract(layout);
    for (std::size_t i = 0; i < count; ++i) {
        Cell cell;
        std::memcpy(&cell, cells + i * sizeof cell, sizeof cell);
        const Sample sample = extract(swapped ? ByteSwapped(cell) : cell);
        std::memcpy(samples + i * sizeof sample, &sample, sizeof sample);
    }
}

// With one pointer, not two that may be equal, the loop runs on vectors.
template <typename Sample, bool swapped, bool shifted>
void UnpackInPlace(const QvxCellLayout& layout, std::uint8_t* samples, std::size_t count)
{
    const Extract<Sample, Sample, shifted> extract(layout);
    for (std::size_t i = 0; i < count; ++i) {
        Sample sample;
        std::memcpy(&sample, samples + i * sizeof sample, sizeof sample);
        sample = extract(swapped ? ByteSwapped(sample) : sample);
        std::memcpy(samples + i * sizeof sample, &sample, sizeof sample);
    }
}

// The commonest case, and all of its work: unsigned values below bits in other use.
template <typename Sample>
void MaskInPlace(const QvxCellLayout& layout, std::uint8_t* samples, std::size_t count)
{
    const auto mask = static_cast<Sample>(~std::uint64_t{0} >> (64 - layout.fStored));
    for (std::size_t i = 0; i < count; ++i) {
        Sample sample;
        std::memcpy(&sample, samples + i * sizeof sample, sizeof sample);
        sample &= mask;
        std::memcpy(samples + i * sizeof sample, &sample, sizeof sample);
    }
}

template <typename Cell, typename Sample>
void UnpackOrdered(const QvxCellLayout& layout, const std::uint8_t* cells, std::uint8_t* samples,
                   std::size_t count)
{
    if (cells == samples && sizeof(Cell) == sizeof(Sample)) {
        if (layout.fSwapped)
            return UnpackInPlace<Sample, true, true>(layout, samples, count);
        if (layout.fShift)
            return UnpackInPlace<Sample, false, true>(layout, samples, count);
        return layout.fSigned ? UnpackInPlace<Sample, false, false>(layout, samples, count)
                              : MaskInPlace<Sample>(layout, samples, count);
    }
    if (layout.fSwapped)
        Unpack<Cell, Sample, true>(layout, cells, samples, count);
    else
        Unpack<Cell, Sample, false>(layout, cells, samples, count);
}

template <typename Cell>
void UnpackTo(const QvxCellLayout& layout, const std::uint8_t* cells, std::uint8_t* samples,
              std::size_t count)
{
    switch (BytesOfForm(QvxFormOf(layout))) {
        case 1:
            return UnpackOrdered<Cell, std::uint8_t>(layout, cells, samples, count);
        case 2:
            return UnpackOrdered<Cell, std::uint16_t>(layout, cells, samples, count);
        default:
            return UnpackOrdered<Cell, std::uint32_t>(layout, cells, samples, count);
    }
}

template <typename Sample>
void UnpackBitsTo(const QvxCellLayout& layout, const std::uint8_t* cells, std::uint64_t firstBit,
                  std::uint8_t* samples, std::size_t count)
{
    const Extract<std::uint64_t, Sample> extract(layout);
    std::uint64_t at = firstBit;
    for (std::size_t i = 0; i < count; ++i, at += layout.fBits) {
        const Sample sample = extract(LoadLE<std::uint64_t>(cells + at / 8) >> (at % 8));
        std::memcpy(samples + i * sizeof sample, &sample, sizeof sample);
    }
}

}  // namespace

QvxCellLayout QvxLayoutOf(const QvxFrameRecord& record)
{
    QvxCellLayout layout;
    layout.fBits = record.fBitsAllocated;
    layout.fShift = record.fHighBit + 1 - record.fBitsStored;
    layout.fStored = record.fBitsStored;
    layout.fSigned = record.fSigned;
    const std::uint32_t hostOrder = std::endian::native == std::endian::big ? 1 : 0;
    layout.fSwapped = record.fBitsAllocated > 8 && record.fByteOrder != hostOrder;
    return layout;
}

DecodedForm QvxFormOf(const QvxCellLayout& layout)
{
    if (layout.fStored > 16)
        return layout.fSigned ? DecodedForm::Int32 : DecodedForm::UInt32;
    if (layout.fSigned)
        return DecodedForm::Int16;
    return layout.fStored > 8 ? DecodedForm::UInt16 : DecodedForm::UInt8;
}

bool QvxCellsAreSamples(const QvxCellLayout& layout)
{
    return !layout.fSwapped && layout.fShift == 0 && layout.fStored == layout.fBits &&
           layout.fBits == 8 * BytesOfForm(QvxFormOf(layout));
}

void QvxUnpackCells(const QvxCellLayout& layout, const std::uint8_t* cells, std::uint8_t* samples,
                    std::size_t count)
{
    switch (layout.fBits) {
        case 8:
            return UnpackTo<std::uint8_t>(layout, cells, samples, count);
        case 16:
            return UnpackTo<std::uint16_t>(layout, cells, samples, count);
        case 32:
            return UnpackTo<std::uint32_t>(layout, cells, samples, count);
        default:
            return UnpackTo<std::uint64_t>(layout, cells, samples, count);
    }
}

void QvxUnpackBits(const QvxCellLayout& layout, const std::uint8_t* cells, std::uint64_t firstBit,
                   std::uint8_t* samples, std::size_t count)
{
    switch (BytesOfForm(QvxFormOf(layout))) {
        case 1:
            return UnpackBitsTo<std::uint8_t>(layout, cells, firstBit, samples, count);
        case 2:
            return UnpackBitsTo<std::uint16_t>(layout, cells, firstBit, samples, count);
        default:
            return UnpackBitsTo<std::uint32_t>(layout, cells, firstBit, samples, count);
    }
}

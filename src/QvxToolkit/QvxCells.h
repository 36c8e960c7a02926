// From pixel cells as they lie in a file to samples in host order, PS3.5 8.1.1. Internal.
#pragma once
#include "QvxToolkit/DecodedFrame.h"
#include <cstddef>
#include <cstdint>

// How a sample lies in its cell.
struct QvxCellLayout {
    std::uint32_t fBits = 8;    // of the cell: 1 to 32, or 64
    std::uint32_t fShift = 0;   // bits below the sample
    std::uint32_t fStored = 8;  // bits of the sample, 1 to 32
    bool fSigned = false;
    bool fSwapped = false;  // cells of whole words are in the other byte order than the host's
};

[[nodiscard]] QvxCellLayout QvxLayoutOf(const QvxFrameRecord& record);
[[nodiscard]] DecodedForm QvxFormOf(const QvxCellLayout& layout);

// Cells that are whole numbers of the host: 8, 16, 32 or 64 bits.
[[nodiscard]] constexpr bool QvxIsWholeCell(std::uint32_t bits)
{
    return bits == 8 || bits == 16 || bits == 32 || bits == 64;
}
// Cells that already are samples of the form: nothing is left to do.
[[nodiscard]] bool QvxCellsAreSamples(const QvxCellLayout& layout);

// `count` whole cells at `cells` become samples at `samples`, in the form of the layout. The two
// may be the same block when a cell is as wide as a sample.
void QvxUnpackCells(const QvxCellLayout& layout, const std::uint8_t* cells, std::uint8_t* samples,
                    std::size_t count);
// The same for cells packed without gaps from bit `firstBit` on, lowest bit first. Eight readable
// bytes must lie behind the last cell.
void QvxUnpackBits(const QvxCellLayout& layout, const std::uint8_t* cells, std::uint64_t firstBit,
                   std::uint8_t* samples, std::size_t count);

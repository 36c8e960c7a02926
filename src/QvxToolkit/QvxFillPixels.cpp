// Display pixels of a decoded frame, row by row.
#include "util/ByteOrder.h"

#include "QvxToolkit/QvxCodec.h"
#include "QvxToolkit/QvxDisplayScale.h"
#include "QvxToolkit/QvxPalette.h"
#include <algorithm>
#include <cmath>
#include <limits>
#include <new>

namespace {

bool MapFits(const QvxFrameRecord& record, const DecodedFrame& frame, const PixMap& map)
{
    const std::int64_t width = map.bounds.right - map.bounds.left;
    const std::int64_t height = map.bounds.bottom - map.bounds.top;
    const std::int64_t pixelBytes = map.pixelFormat == kPixelFormatGray8    ? 1
                                    : map.pixelFormat == kPixelFormatGray16 ? 2
                                                                            : 4;
    return map.baseAddr && map.pixelFormat == QvxCodecPixelFormat(record) &&
           width == record.fColumns && height == record.fRows &&
           map.rowBytes >= width * pixelBytes && frame.fRows == record.fRows &&
           frame.fColumns == record.fColumns && frame.fSamples == record.fSamples &&
           (frame.fForm == DecodedForm::Float64) == (record.fForm != QvxSampleForm::Integer) &&
           frame.fBytes.size() == frame.Count() * BytesOfForm(frame.fForm);
}

// The range of display values met, with and without padding.
class Extremes {
public:
    void Take(const std::uint16_t* row, std::size_t count)
    {
        std::uint16_t low = fLow, high = fHigh;
        for (std::size_t i = 0; i < count; ++i) {
            low = std::min(low, row[i]);
            high = std::max(high, row[i]);
        }
        fLow = low;
        fHigh = high;
    }
    [[nodiscard]] bool Any() const { return fLow <= fHigh; }
    void Answer(std::int32_t* low, std::int32_t* high) const
    {
        if (low)
            *low = fLow;
        if (high)
            *high = fHigh;
    }

private:
    std::uint16_t fLow = 0xFFFF, fHigh = 0;
};

// Display values of one kind of gray samples.
template <typename T>
class GrayRows {
public:
    GrayRows(const QvxFrameRecord& record, const QvxDisplayScale& scale, SampleView<T> samples)
        : fRecord(record),
          fScale(scale),
          fSamples(samples),
          fMost(scale.fMaximum <= 255 ? 255 : kGray16Maximum)
    {
    }
    void Convert(std::size_t first, std::size_t count, std::uint16_t* row) const;
    // The display values of a row that are no padding, moved to its front; answers how many.
    std::size_t DropPadding(std::size_t first, std::size_t count, std::uint16_t* row) const;

private:
    const QvxFrameRecord& fRecord;
    const QvxDisplayScale& fScale;
    SampleView<T> fSamples;
    std::int64_t fMost;  // that the pixels can hold
};

template <typename T>
void GrayRows<T>::Convert(std::size_t first, std::size_t count, std::uint16_t* row) const
{
    if constexpr (std::is_same_v<T, double>) {
        const QvxQuantum& quantum = fScale.fQuantum;
        for (std::size_t i = 0; i < count; ++i) {
            const double place = (fSamples[first + i] - quantum.fLow) / quantum.fStep;
            const double most = static_cast<double>(quantum.fMost);
            const double inside = place > 0 ? std::min(place, most) : 0;  // NaN is the least
            row[i] =
                static_cast<std::uint16_t>(fScale.fBase + fScale.fTimes * std::llround(inside));
        }
    } else if (fScale.fTable) {
        for (std::size_t i = 0; i < count; ++i)
            row[i] = static_cast<std::uint16_t>(
                fScale.fBase +
                fScale.fTimes * fScale.fTable->Of(std::int64_t{fSamples[first + i]}));
    } else if (sizeof(T) <= 2 && fScale.fDrop == 0 && !fRecord.fEncapsulated) {
        // All sums are right in 16 bits, since the display value fits them.
        const auto base = static_cast<std::uint16_t>(fScale.fBase);
        const auto times = static_cast<std::uint16_t>(fScale.fTimes);
        for (std::size_t i = 0; i < count; ++i)
            row[i] = static_cast<std::uint16_t>(
                base + static_cast<std::uint32_t>(times) *
                           static_cast<std::uint16_t>(fSamples[first + i]));
    } else {
        for (std::size_t i = 0; i < count; ++i) {
            const std::int64_t stored = std::int64_t{fSamples[first + i]} >> fScale.fDrop;
            // Lossy samples may lie beyond the stored bits.
            row[i] = static_cast<std::uint16_t>(
                std::clamp<std::int64_t>(fScale.fBase + fScale.fTimes * stored, 0, fMost));
        }
    }
}

template <typename T>
std::size_t GrayRows<T>::DropPadding(std::size_t first, std::size_t count, std::uint16_t* row) const
{
    using Value = std::conditional_t<std::is_same_v<T, double>, double, std::int64_t>;
    const auto low = static_cast<Value>(fRecord.fPaddingLow);
    const auto high = static_cast<Value>(fRecord.fPaddingHigh);
    std::size_t kept = 0;
    for (std::size_t i = 0; i < count; ++i) {
        const auto stored = static_cast<Value>(fSamples[first + i]);
        if (stored < low || stored > high)
            row[kept++] = row[i];
    }
    return kept;
}

void WriteRow(const PixMap& map, std::size_t line, const std::vector<std::uint16_t>& row)
{
    std::uint8_t* dest = map.baseAddr + static_cast<std::ptrdiff_t>(line) * map.rowBytes;
    if (map.pixelFormat == kPixelFormatGray8) {
        for (std::size_t i = 0; i < row.size(); ++i)
            dest[i] = static_cast<std::uint8_t>(255 - row[i]);
    } else {
        for (std::size_t i = 0; i < row.size(); ++i)
            StoreBE(dest + 2 * i, row[i]);
    }
}

template <typename T>
void FillGray(const QvxFrameRecord& record, const QvxDisplayScale& scale, SampleView<T> samples,
              const PixMap& map, std::int32_t* pixelMin, std::int32_t* pixelMax)
{
    const GrayRows<T> rows(record, scale, samples);
    std::vector<std::uint16_t> row(record.fColumns);
    Extremes all, image;
    for (std::size_t line = 0; line < record.fRows; ++line) {
        const std::size_t first = line * row.size();
        rows.Convert(first, row.size(), row.data());
        WriteRow(map, line, row);
        all.Take(row.data(), row.size());
        if (record.fHasPadding)
            image.Take(row.data(), rows.DropPadding(first, row.size(), row.data()));
    }
    (image.Any() ? image : all).Answer(pixelMin, pixelMax);
}

template <typename T>
void FillColor(const QvxFrameRecord& record, SampleView<T> samples, const PixMap& map)
{
    // Up to 8 bits are spread over the byte, more are cut to it.
    const std::uint32_t bits = record.fBitsStored;
    const std::uint32_t drop = bits > 8 ? bits - 8 : 0;
    const std::uint32_t most = bits < 8 ? (1u << bits) - 1 : 255;
    for (std::size_t line = 0; line < record.fRows; ++line) {
        std::uint8_t* dest = map.baseAddr + static_cast<std::ptrdiff_t>(line) * map.rowBytes;
        for (std::size_t i = 0; i < record.fColumns; ++i, dest += 4) {
            const std::size_t pixel = (line * record.fColumns + i) * 3;
            dest[0] = 255;
            for (std::size_t color = 0; color < 3; ++color) {
                const auto value = static_cast<std::uint32_t>(samples[pixel + color]) >> drop;
                dest[1 + color] = static_cast<std::uint8_t>(value * 255 / most);
            }
        }
    }
}

template <typename T>
void FillPalette(const QvxFrameRecord& record, const QvxPalette& palette, SampleView<T> samples,
                 const PixMap& map)
{
    for (std::size_t line = 0; line < record.fRows; ++line) {
        std::uint8_t* dest = map.baseAddr + static_cast<std::ptrdiff_t>(line) * map.rowBytes;
        for (std::size_t i = 0; i < record.fColumns; ++i, dest += 4) {
            const auto index = static_cast<std::int64_t>(samples[line * record.fColumns + i]);
            dest[0] = 255;
            for (std::size_t color = 0; color < 3; ++color)
                dest[1 + color] = palette.fColors[color].Of(index);
        }
    }
}

}  // namespace

QvxStatus QvxCodecFillPixels(QvxParserRec* reader, const QvxFrameRecord& record,
                             const DecodedFrame& frame, const PixMap& map, std::int32_t* pixelMin,
                             std::int32_t* pixelMax)
{
    if (!reader || !MapFits(record, frame, map))
        return kQvxBadArgument;
    try {
        if (!record.IsGray()) {
            VisitSamples(frame, [&](auto samples) { FillColor(record, samples, map); });
        } else if (record.fPhotometric == QvxPhotometric::Palette) {
            const QvxReaderUse use(reader);
            const QvxPalette palette = QvxReadPalette(reader, record);
            VisitSamples(frame, [&](auto samples) { FillPalette(record, palette, samples, map); });
        } else {
            const QvxDisplayScale scale = QvxMakeDisplayScale(record, &frame);
            VisitSamples(frame, [&](auto samples) {
                FillGray(record, scale, samples, map, pixelMin, pixelMax);
            });
        }
        return kQvxOK;
    } catch (const std::bad_alloc&) {
        return kQvxNoMemory;
    }
}

// Run-length encoded frames, PS3.5 Annex G: a segment for each byte of a sample, the highest first,
// each a plane of its own.
#include "util/ByteOrder.h"

#include "QvxToolkit/QvxStreamDecoders.h"
#include <algorithm>
#include <array>
#include <cstring>

namespace {

constexpr std::size_t kHeaderBytes = 64;
constexpr std::uint32_t kMostSegments = 15;

struct Segment {
    std::span<const std::uint8_t> fBytes;
};

// PackBits into `plane`, as far as the segment goes; answers how many bytes it gave.
std::size_t Unpack(std::span<const std::uint8_t> segment, std::span<std::uint8_t> plane)
{
    std::size_t in = 0, out = 0;
    const std::size_t inEnd = segment.size(), outEnd = plane.size();
    while (in < inEnd && out < outEnd) {
        const auto code = static_cast<std::int8_t>(segment[in++]);
        if (code >= 0) {
            const std::size_t count =
                std::min({static_cast<std::size_t>(code) + 1, inEnd - in, outEnd - out});
            std::memcpy(plane.data() + out, segment.data() + in, count);
            in += count;
            out += count;
        } else if (code != -128 && in < inEnd) {
            const std::size_t count = std::min<std::size_t>(1 - std::int32_t{code}, outEnd - out);
            std::memset(plane.data() + out, segment[in++], count);
            out += count;
        }
    }
    return out;
}

// Where the segments lie: each from its offset to the next one's, or the end of the stream.
bool ReadSegments(std::span<const std::uint8_t> stream, std::uint32_t wanted,
                  std::array<Segment, kMostSegments>* segments, std::string* why)
{
    const std::uint32_t count =
        stream.size() >= kHeaderBytes ? LoadLE<std::uint32_t>(stream.data()) : 0;
    if (count != wanted) {
        *why = stream.size() < kHeaderBytes ? "the RLE header is cut off"
                                            : "RLE segments: " + std::to_string(count) +
                                                  ", the pixels have " + std::to_string(wanted);
        return false;
    }
    for (std::uint32_t i = 0; i < count; ++i) {
        const std::uint32_t begin = LoadLE<std::uint32_t>(stream.data() + 4 + 4 * i);
        std::uint64_t end = stream.size();
        if (i + 1 < count)
            end = std::min<std::uint64_t>(end, LoadLE<std::uint32_t>(stream.data() + 8 + 4 * i));
        if (begin < kHeaderBytes || begin > end) {
            if (begin >= stream.size() && i > 0)
                continue;  // cut off: nothing of it is there
            *why =
                "RLE segment " + std::to_string(i + 1) + " lies at byte " + std::to_string(begin);
            return false;
        }
        (*segments)[i].fBytes = stream.subspan(begin, end - begin);
    }
    return true;
}

template <std::size_t kStep>
void Spread(const std::uint8_t* plane, std::uint8_t* to, std::size_t count)
{
    for (std::size_t i = 0; i < count; ++i)
        to[i * kStep] = plane[i];
}

// Two planes at once become words of the host.
void SpreadWords(const std::uint8_t* high, const std::uint8_t* low, std::uint8_t* to,
                 std::size_t count)
{
    auto* words = to;
    for (std::size_t i = 0; i < count; ++i) {
        const auto word = static_cast<std::uint16_t>(high[i] << 8 | low[i]);
        std::memcpy(words + 2 * i, &word, sizeof word);
    }
}

void SpreadPlane(const std::uint8_t* plane, std::uint8_t* to, std::size_t count, std::size_t step)
{
    switch (step) {
        case 2:
            return Spread<2>(plane, to, count);
        case 3:
            return Spread<3>(plane, to, count);
        case 4:
            return Spread<4>(plane, to, count);
        default:
            for (std::size_t i = 0; i < count; ++i)
                to[i * step] = plane[i];
    }
}

// The samples of all planes, bytes in host order.
class PlaneReader {
public:
    PlaneReader(const QvxFrameRecord& record, std::uint32_t sampleBytes)
        : fSamples(record.fSamples), fBytes(sampleBytes), fPixels(record.Pixels())
    {
    }
    void Fill(const std::array<Segment, kMostSegments>& segments, QvxBytes* samples);
    [[nodiscard]] bool CutShort() const { return fCutShort; }

private:
    void UnpackInto(const Segment& segment, std::span<std::uint8_t> plane)
    {
        fCutShort = Unpack(segment.fBytes, plane) < plane.size() || fCutShort;
    }
    std::size_t fSamples, fBytes, fPixels;
    bool fCutShort = false;
};

void PlaneReader::Fill(const std::array<Segment, kMostSegments>& segments, QvxBytes* samples)
{
    if (fSamples == 1 && fBytes == 1)
        return UnpackInto(segments[0], *samples);
    const bool words = fSamples == 1 && fBytes == 2;
    QvxBytes planes((words ? 2 : 1) * fPixels);
    const std::span<std::uint8_t> first(planes.data(), fPixels);
    if (words) {
        const std::span<std::uint8_t> second(planes.data() + fPixels, fPixels);
        UnpackInto(segments[0], first);
        UnpackInto(segments[1], second);
        return SpreadWords(first.data(), second.data(), samples->data(), fPixels);
    }
    const std::size_t step = fSamples * fBytes;
    for (std::size_t sample = 0; sample < fSamples; ++sample) {
        for (std::size_t byte = 0; byte < fBytes; ++byte) {
            std::fill(first.begin(), first.end(), std::uint8_t{0});
            UnpackInto(segments[sample * fBytes + byte], first);
            const std::size_t place =
                std::endian::native == std::endian::little ? fBytes - 1 - byte : byte;
            SpreadPlane(first.data(), samples->data() + sample * fBytes + place, fPixels, step);
        }
    }
}

// Single bits: one segment of packed ones, the first in the lowest bit.
QvxBytes BitsToSamples(const QvxBytes& packed, std::size_t pixels)
{
    QvxBytes samples(pixels);
    for (std::size_t i = 0; i < pixels; ++i)
        samples[i] = packed[i / 8] >> (i % 8) & 1;
    return samples;
}

}  // namespace

QvxStatus QvxDecodeRLE(const QvxFrameRecord& record, const QvxStream& stream, DecodedFrame* frame,
                       std::string* why)
{
    const bool bits = record.fBitsAllocated == 1;
    if (!bits && record.fBitsAllocated % 8 != 0) {
        *why = "RLE of " + std::to_string(record.fBitsAllocated) + " bits a cell";
        return kQvxUnsupported;
    }
    const QvxStreamFacts facts{record.fRows, record.fColumns, record.fSamples,
                               bits ? 8 : record.fBitsAllocated};
    if (const QvxStatus status = QvxCheckStream(record, facts, why))
        return status;
    const std::uint32_t cellBytes = bits ? 1 : record.fBitsAllocated / 8;
    std::array<Segment, kMostSegments> segments;
    if (record.fSamples * cellBytes > kMostSegments ||
        !ReadSegments(stream.Bytes(), record.fSamples * cellBytes, &segments, why))
        return kQvxMalformed;
    if (cellBytes == 3) {
        *why = "RLE of 24 bits a cell";
        return kQvxUnsupported;
    }
    // No stream makes more than 64 bytes of one; nothing is set aside on a header's word alone.
    const std::size_t pixels = record.Pixels();
    if (stream.fBytes.size() * 64 < pixels / (bits ? 8 : 1)) {
        *why = "the stream is far too short for its frame";
        return kQvxMalformed;
    }
    bool cut = false;
    QvxBytes samples;
    if (bits) {
        QvxBytes packed((pixels + 7) / 8);
        cut = Unpack(segments[0].fBytes, packed) < packed.size();
        samples = BitsToSamples(packed, pixels);
    } else {
        samples = QvxTakeBlock(frame, pixels * record.fSamples * cellBytes);
        PlaneReader reader(record, cellBytes);
        reader.Fill(segments, &samples);
        cut = reader.CutShort();
    }
    QvxTakeSamples(record, facts, QvxStreamColor::AsFileSays, std::move(samples), frame);
    frame->fCutShort = stream.fCutShort || cut;
    return kQvxOK;
}

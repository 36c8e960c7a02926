// Run-length encoded frames, PS3.5 Annex G: a segment for each byte of a sample, the highest first,
// each a plane of its own.
#include "util/ByteOrder.h"

#include "QvxToolkit/QvxPackBits.h"
#include "QvxToolkit/QvxStreamDecoders.h"
#include "QvxToolkit/QvxWeave.h"
#include <algorithm>
#include <array>
#include <bit>
#include <cstring>

namespace {

constexpr std::size_t kHeaderBytes = 64;
constexpr std::uint32_t kMostSegments = 15;
using Segment = std::span<const std::uint8_t>;

// A single plane right into its place, the rest 0; false when the segment is too short.
bool UnpackWhole(Segment segment, std::span<std::uint8_t> plane)
{
    constexpr std::size_t kPacket = QvxPackBits::kPacket;
    QvxPackBits packBits(segment);
    std::size_t have = 0;
    if (plane.size() > kPacket)
        have = packBits.Fill(plane.data(), 0, plane.size() - kPacket);
    // The last packets may give more than there is room for.
    const std::size_t wanted = plane.size() - have;
    std::array<std::uint8_t, 2 * kPacket> end{};
    const std::size_t there =
        wanted <= kPacket ? std::min(packBits.Fill(end.data(), 0, wanted), wanted) : 0;
    std::copy_n(end.begin(), there, plane.data() + have);
    std::memset(plane.data() + have + there, 0, wanted - there);
    return there == wanted;
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
        (*segments)[i] = stream.subspan(begin, end - begin);
    }
    return true;
}

// The samples of all planes, a strip of pixels at a time, which stays in the fastest memory.
class PlaneReader {
public:
    PlaneReader(const QvxFrameRecord& record, std::span<const Segment> segments)
        : fSamples(record.fSamples),
          fCellBytes(segments.size() / record.fSamples),
          fSampleBytes(QvxSampleBytes(record.fBitsAllocated)),
          fPlanes(segments.begin(), segments.end())
    {
    }
    // Fills `count` pixels; false when segments were too short.
    bool Fill(std::uint8_t* to, std::size_t count);

private:
    static constexpr std::size_t kStrip = QvxPackedPlane::kStrip;

    // A strip of one sample, its bytes in the order of the host, made at `to`. One of a single byte
    // stays where it is. Answers where.
    const std::uint8_t* Sample(std::size_t sample, std::size_t count, std::uint8_t* to);

    std::size_t fSamples, fCellBytes, fSampleBytes;
    std::vector<QvxPackedPlane> fPlanes;
};

const std::uint8_t* PlaneReader::Sample(std::size_t sample, std::size_t count, std::uint8_t* to)
{
    static constexpr std::array<std::uint8_t, kStrip> kNothing{};  // above 24 bits
    std::array<const std::uint8_t*, 4> parts;
    parts.fill(kNothing.data());
    for (std::size_t byte = 0; byte < fCellBytes; ++byte) {
        const std::size_t place = fCellBytes - 1 - byte;
        parts[std::endian::native == std::endian::little ? place : fSampleBytes - 1 - place] =
            fPlanes[sample * fCellBytes + byte].Next(count);
    }
    if (fSampleBytes == 1)
        return parts[0];
    QvxWeave(std::span(parts).first(fSampleBytes), 1, count, to);
    return to;
}

bool PlaneReader::Fill(std::uint8_t* to, std::size_t count)
{
    const std::size_t stripBytes = kStrip * fSampleBytes;
    QvxBytes room(fSamples == 1 ? 0 : 3 * stripBytes);
    while (count > 0) {
        const std::size_t strip = std::min(count, kStrip);
        if (fSamples == 1) {
            Sample(0, strip, to);
        } else {
            std::array<const std::uint8_t*, 3> colors;
            for (std::size_t i = 0; i < colors.size(); ++i)
                colors[i] = Sample(i, strip, room.data() + i * stripBytes);
            QvxWeave(colors, fSampleBytes, strip, to);
        }
        to += strip * fSamples * fSampleBytes;
        count -= strip;
    }
    return std::ranges::none_of(fPlanes, &QvxPackedPlane::CutShort);
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
    // No stream makes more than 64 bytes of one; nothing is set aside on a header's word alone.
    const std::size_t pixels = record.Pixels();
    if (stream.fBytes.size() * 64 < pixels / (bits ? 8 : 1)) {
        *why = "the stream is far too short for its frame";
        return kQvxMalformed;
    }
    bool whole = false;
    QvxBytes samples;
    if (bits) {
        QvxBytes packed((pixels + 7) / 8);
        whole = UnpackWhole(segments[0], packed);
        samples = BitsToSamples(packed, pixels);
    } else {
        samples = QvxTakeUsedBlock(
            frame, pixels * record.fSamples * QvxSampleBytes(record.fBitsAllocated));
        whole = record.fSamples * cellBytes == 1
                    ? UnpackWhole(segments[0], samples)
                    : PlaneReader(record, std::span(segments).first(record.fSamples * cellBytes))
                          .Fill(samples.data(), pixels);
    }
    QvxTakeSamples(record, facts, QvxStreamColor::AsFileSays, std::move(samples), frame);
    frame->fCutShort = stream.fCutShort || !whole;
    return kQvxOK;
}

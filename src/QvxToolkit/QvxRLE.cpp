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
constexpr std::size_t kShort = 16;  // bytes

struct Segment {
    std::span<const std::uint8_t> fBytes;
};

// PackBits, piece by piece.
class PackBits {
public:
    explicit PackBits(std::span<const std::uint8_t> segment)
        : fIn(segment.data()), fEnd(segment.data() + segment.size())
    {
    }
    // Fills `count` bytes; what the segment lacks is 0.
    void Read(std::uint8_t* out, std::size_t count);
    [[nodiscard]] bool CutShort() const { return fCutShort; }

private:
    bool NextPacket();

    const std::uint8_t* fIn;
    const std::uint8_t* fEnd;
    std::size_t fLeft = 0;  // of the present packet
    int fValue = -1;        // of a run; -1: literals
    bool fCutShort = false;
};

bool PackBits::NextPacket()
{
    while (fIn < fEnd) {
        const auto code = static_cast<std::int8_t>(*fIn++);
        if (code == -128)  // nothing, by agreement
            continue;
        if (code >= 0) {
            fLeft = std::min<std::size_t>(static_cast<std::size_t>(code) + 1,
                                          static_cast<std::size_t>(fEnd - fIn));
            fValue = -1;
            return fLeft > 0;
        }
        if (fIn == fEnd)
            return false;
        fLeft = static_cast<std::size_t>(1 - code);
        fValue = *fIn++;
        return true;
    }
    return false;
}

void PackBits::Read(std::uint8_t* out, std::size_t count)
{
    while (count > 0) {
        if (fLeft == 0 && !NextPacket()) {
            std::memset(out, 0, count);
            fCutShort = true;
            return;
        }
        const std::size_t now = std::min(fLeft, count);
        // Most packets are short: a fixed size is one store, and what it writes too much comes
        // next.
        const bool room = now <= kShort && count >= kShort;
        if (fValue >= 0) {
            if (room)
                std::memset(out, fValue, kShort);
            else
                std::memset(out, fValue, now);
        } else {
            const bool readable = static_cast<std::size_t>(fEnd - fIn) >= kShort;
            if (room && readable)
                std::memcpy(out, fIn, kShort);
            else
                std::memcpy(out, fIn, now);
            fIn += now;
        }
        out += now;
        count -= now;
        fLeft -= now;
    }
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

// Two planes become words of the host.
void SpreadWords(const std::uint8_t* __restrict high, const std::uint8_t* __restrict low,
                 std::uint16_t* __restrict words, std::size_t count)
{
    for (std::size_t i = 0; i < count; ++i)
        words[i] = static_cast<std::uint16_t>(high[i] << 8 | low[i]);
}

void SpreadPlane(const std::uint8_t* __restrict plane, std::uint8_t* __restrict to,
                 std::size_t count, std::size_t step)
{
    for (std::size_t i = 0; i < count; ++i)
        to[i * step] = plane[i];
}

using Planes = std::vector<PackBits>;

// All planes, a piece of each at a time: small enough to stay in the processor's caches.
void FillSamples(Planes* planes, std::size_t cellBytes, std::size_t pixels, std::uint8_t* samples)
{
    constexpr std::size_t kPiece = 8192;
    alignas(64) std::array<std::uint8_t, 2 * kPiece> piece;
    const std::size_t step = planes->size();
    for (std::size_t first = 0; first < pixels; first += kPiece) {
        const std::size_t count = std::min(kPiece, pixels - first);
        std::uint8_t* to = samples + first * step;
        if (step == 1) {
            (*planes)[0].Read(to, count);
            continue;
        }
        if (step == 2) {
            (*planes)[0].Read(piece.data(), count);
            (*planes)[1].Read(piece.data() + kPiece, count);
            // The block is a vector's, and the place an even one: aligned for words.
            SpreadWords(piece.data(), piece.data() + kPiece, reinterpret_cast<std::uint16_t*>(to),
                        count);
            continue;
        }
        for (std::size_t plane = 0; plane < step; ++plane) {
            (*planes)[plane].Read(piece.data(), count);
            const std::size_t byte = plane % cellBytes;
            const std::size_t place = std::endian::native == std::endian::little
                                          ? plane - byte + (cellBytes - 1 - byte)
                                          : plane;
            SpreadPlane(piece.data(), to + place, count, step);
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
    Planes planes;
    for (std::uint32_t i = 0; i < record.fSamples * cellBytes; ++i)
        planes.emplace_back(segments[i].fBytes);
    QvxBytes samples;
    if (bits) {
        QvxBytes packed((pixels + 7) / 8);
        planes[0].Read(packed.data(), packed.size());
        samples = BitsToSamples(packed, pixels);
    } else {
        samples = std::move(frame->fBytes);
        samples.resize(pixels * planes.size());  // all of it is written
        FillSamples(&planes, cellBytes, pixels, samples.data());
    }
    const bool cut = std::ranges::any_of(planes, &PackBits::CutShort);
    QvxTakeSamples(record, facts, QvxStreamColor::AsFileSays, std::move(samples), frame);
    frame->fCutShort = stream.fCutShort || cut;
    return kQvxOK;
}

// A segment of a run-length encoded frame, PS3.5 Annex G.3, unpacked piece by piece. Internal.
#pragma once
#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <span>

// Goes through the packets of one segment and never back.
class QvxPackBits {
public:
    // One packet gives so many bytes at most.
    static constexpr std::size_t kPacket = 128;

    explicit QvxPackBits(std::span<const std::uint8_t> segment) : fSegment(segment) {}

    // Whole packets behind the `have` bytes that are at `to`, until there are `count` or the
    // segment ends; answers how many there are. There is room for `count` + kPacket bytes, and
    // what lies behind the answer is of no meaning.
    std::size_t Fill(std::uint8_t* to, std::size_t have, std::size_t count)
    {
        // Values of this function, which nothing written at `to` could change.
        const std::uint8_t* in = fSegment.data() + fAt;
        const std::uint8_t* const end = fSegment.data() + fSegment.size();
        while (have < count && end - in > kAhead) {
            const std::size_t code = *in++;
            if (code < kPacket) {
                CopyChunks(in, to + have, code + 1);
                have += code + 1;
                in += code + 1;
            } else if (code > kPacket) {
                FillChunks(*in++, to + have, 257 - code);
                have += 257 - code;
            }
        }
        fAt = static_cast<std::size_t>(in - fSegment.data());
        while (have < count && fAt < fSegment.size())
            have += LastPacket(to + have);
        return have;
    }

private:
    // Sizes known beforehand cost less than exact ones: most packets take one chunk. What is
    // written too much comes next.
    static constexpr std::size_t kChunk = 32;
    static constexpr std::ptrdiff_t kAhead = kPacket + 1;  // a packet with its code

    static void CopyChunks(const std::uint8_t* from, std::uint8_t* to, std::size_t count)
    {
        for (std::size_t i = 0; i < count; i += kChunk)
            std::memcpy(to + i, from + i, kChunk);
    }
    static void FillChunks(std::uint8_t value, std::uint8_t* to, std::size_t count)
    {
        for (std::size_t i = 0; i < count; i += kChunk)
            std::memset(to + i, value, kChunk);
    }
    // One of those near the end of the segment.
    std::size_t LastPacket(std::uint8_t* to)
    {
        const std::size_t code = fSegment[fAt++];
        const std::size_t left = fSegment.size() - fAt;
        if (code < kPacket) {
            const std::size_t count = std::min(code + 1, left);
            std::copy_n(fSegment.data() + fAt, count, to);
            fAt += count;
            return count;
        }
        if (code == kPacket || left == 0)
            return 0;
        std::memset(to, fSegment[fAt++], 257 - code);
        return 257 - code;
    }

    std::span<const std::uint8_t> fSegment;
    std::size_t fAt = 0;
};

// The plane that a segment holds, a strip at a time.
class QvxPackedPlane {
public:
    static constexpr std::size_t kStrip = 4096;

    explicit QvxPackedPlane(std::span<const std::uint8_t> segment) : fPackBits(segment) {}

    // The next `count` bytes, at most kStrip, good until the next call; 0 past the segment's end.
    const std::uint8_t* Next(std::size_t count)
    {
        // what the last packet gave beyond the strip before
        std::memmove(fStrip.data(), fStrip.data() + fGiven, fHave - fGiven);
        fHave = fPackBits.Fill(fStrip.data(), fHave - fGiven, count);
        if (fHave < count) {
            std::memset(fStrip.data() + fHave, 0, count - fHave);
            fHave = count;
            fCutShort = true;
        }
        fGiven = count;
        return fStrip.data();
    }
    [[nodiscard]] bool CutShort() const { return fCutShort; }

private:
    QvxPackBits fPackBits;
    std::size_t fHave = 0, fGiven = 0;  // bytes in the strip, and those of them handed out
    bool fCutShort = false;
    alignas(64) std::array<std::uint8_t, kStrip + QvxPackBits::kPacket> fStrip{};
};

#include "util/Sha256.h"

#include "util/ByteOrder.h"

#include <algorithm>
#include <bit>

namespace {

// The first 32 bits of the fractional parts of the cube roots of the first 64 primes.
// clang-format off
constexpr std::uint32_t kRound[64] = {
    0x428A2F98, 0x71374491, 0xB5C0FBCF, 0xE9B5DBA5, 0x3956C25B, 0x59F111F1, 0x923F82A4, 0xAB1C5ED5,
    0xD807AA98, 0x12835B01, 0x243185BE, 0x550C7DC3, 0x72BE5D74, 0x80DEB1FE, 0x9BDC06A7, 0xC19BF174,
    0xE49B69C1, 0xEFBE4786, 0x0FC19DC6, 0x240CA1CC, 0x2DE92C6F, 0x4A7484AA, 0x5CB0A9DC, 0x76F988DA,
    0x983E5152, 0xA831C66D, 0xB00327C8, 0xBF597FC7, 0xC6E00BF3, 0xD5A79147, 0x06CA6351, 0x14292967,
    0x27B70A85, 0x2E1B2138, 0x4D2C6DFC, 0x53380D13, 0x650A7354, 0x766A0ABB, 0x81C2C92E, 0x92722C85,
    0xA2BFE8A1, 0xA81A664B, 0xC24B8B70, 0xC76C51A3, 0xD192E819, 0xD6990624, 0xF40E3585, 0x106AA070,
    0x19A4C116, 0x1E376C08, 0x2748774C, 0x34B0BCB5, 0x391C0CB3, 0x4ED8AA4A, 0x5B9CCA4F, 0x682E6FF3,
    0x748F82EE, 0x78A5636F, 0x84C87814, 0x8CC70208, 0x90BEFFFA, 0xA4506CEB, 0xBEF9A3F7, 0xC67178F2};
// clang-format on

void Schedule(const std::uint8_t* block, std::uint32_t (&words)[64])
{
    for (int i = 0; i < 16; ++i)
        words[i] = LoadBE<std::uint32_t>(block + 4 * i);
    for (int i = 16; i < 64; ++i) {
        const std::uint32_t a = words[i - 15], b = words[i - 2];
        words[i] = words[i - 16] + words[i - 7] + (std::rotr(a, 7) ^ std::rotr(a, 18) ^ (a >> 3)) +
                   (std::rotr(b, 17) ^ std::rotr(b, 19) ^ (b >> 10));
    }
}

}  // namespace

void Sha256::Block(const std::uint8_t* block)
{
    std::uint32_t words[64];
    Schedule(block, words);
    auto [a, b, c, d, e, f, g, h] = fState;
    for (int i = 0; i < 64; ++i) {
        const std::uint32_t mixed = h + (std::rotr(e, 6) ^ std::rotr(e, 11) ^ std::rotr(e, 25)) +
                                    ((e & f) ^ (~e & g)) + kRound[i] + words[i];
        const std::uint32_t major =
            (std::rotr(a, 2) ^ std::rotr(a, 13) ^ std::rotr(a, 22)) + ((a & b) ^ (a & c) ^ (b & c));
        h = g;
        g = f;
        f = e;
        e = d + mixed;
        d = c;
        c = b;
        b = a;
        a = mixed + major;
    }
    const std::uint32_t mixedIn[8] = {a, b, c, d, e, f, g, h};
    for (std::size_t i = 0; i < 8; ++i)
        fState[i] += mixedIn[i];
}

void Sha256::Add(std::span<const std::uint8_t> bytes)
{
    while (!bytes.empty()) {
        const std::size_t filled = fCount % 64;
        if (filled == 0 && bytes.size() >= 64) {
            Block(bytes.data());
            fCount += 64;
            bytes = bytes.subspan(64);
            continue;
        }
        const std::size_t taken = std::min(64 - filled, bytes.size());
        std::copy_n(bytes.data(), taken, fPending.data() + filled);
        fCount += taken;
        bytes = bytes.subspan(taken);
        if (fCount % 64 == 0)
            Block(fPending.data());
    }
}

std::string Sha256::HexDigest()
{
    const std::uint64_t bits = fCount * 8;
    const std::uint8_t first = 0x80, zero = 0;
    Add({&first, 1});
    while (fCount % 64 != 56)
        Add({&zero, 1});
    std::uint8_t length[8];
    StoreBE(length, bits);
    Add(length);
    std::string digits;
    for (const std::uint32_t word : fState) {
        for (int shift = 28; shift >= 0; shift -= 4)
            digits += "0123456789abcdef"[word >> shift & 15];
    }
    return digits;
}

std::string Sha256Of(std::span<const std::uint8_t> bytes)
{
    Sha256 sum;
    sum.Add(bytes);
    return sum.HexDigest();
}

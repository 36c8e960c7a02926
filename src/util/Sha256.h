// SHA-256 checksums (FIPS 180-4), for fingerprints of pixels.
#pragma once
#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>

class Sha256 {
public:
    void Add(std::span<const std::uint8_t> bytes);
    // The checksum of all that was added as 64 lower-case digits; ends the object's use.
    [[nodiscard]] std::string HexDigest();

private:
    void Block(const std::uint8_t* block);

    std::array<std::uint32_t, 8> fState{0x6A09E667, 0xBB67AE85, 0x3C6EF372, 0xA54FF53A,
                                        0x510E527F, 0x9B05688C, 0x1F83D9AB, 0x5BE0CD19};
    std::array<std::uint8_t, 64> fPending{};  // the start of a block that is not full yet
    std::uint64_t fCount = 0;                 // bytes added
};

[[nodiscard]] std::string Sha256Of(std::span<const std::uint8_t> bytes);

// A generator of the demo's own, so that its files are the same bytes on every machine.
#pragma once
#include <bit>
#include <cstdint>

class DemoNoise {
public:
    explicit DemoNoise(std::uint64_t seed) : fState(seed) {}

    // A linear congruence, its low bits (which repeat early) mixed with the high ones.
    [[nodiscard]] std::uint64_t Bits()
    {
        fState = fState * 0x5851F42D4C957F2DULL + 0x2545F4914F6CDD1BULL;
        const std::uint64_t mixed = (fState ^ fState >> 31) * 0xC2B2AE3D27D4EB4FULL;
        return mixed ^ mixed >> 29;
    }
    // From 0 to below 1.
    [[nodiscard]] double Uniform() { return static_cast<double>(Bits() >> 11) * 0x1p-53; }
    // Mean 0, standard deviation 1, in steps of a quarter: how many of 64 coins fall heads.
    [[nodiscard]] float Normal()
    {
        return (static_cast<float>(std::popcount(Bits())) - 32.0F) * 0.25F;
    }

private:
    std::uint64_t fState;
};

// What a JPEG 2000 codestream says of itself before anything is decoded, ITU-T T.800 Annex A and I.
// Internal.
#pragma once
#include <cstdint>
#include <span>
#include <string>

struct QvxJ2KHeader {
    bool fBoxed = false;  // JP2: the codestream lies in a box
    std::uint32_t fColumns = 0, fRows = 0, fComponents = 0;
    std::uint32_t fPrecision = 0;  // of all components alike
    bool fSigned = false;
    bool fComponentTransform = false;  // colours are turned by the codec
    bool fLossy = false;               // the irreversible wavelet
    bool fIsYCC = false;               // a boxed one says its colours are luminance and chrominance
    std::uint64_t fTiles = 0;
};

// False with a reason for what is no such stream, or of a kind that frames don't have: components
// of several sizes or precisions, an image that doesn't begin at 0.
[[nodiscard]] bool QvxReadJ2KHeader(std::span<const std::uint8_t> stream, QvxJ2KHeader* header,
                                    std::string* why);

// Tile parts say how long they are, and the library takes their word for what it sets aside. Cuts
// those that reach beyond the end of the codestream to what is there. False when none did, and
// nothing was changed.
bool QvxBoundTileParts(std::span<std::uint8_t> stream);

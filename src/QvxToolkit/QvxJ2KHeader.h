// What a JPEG 2000 codestream says of itself before anything is decoded, ITU-T T.800 Annex A and I.
// Internal.
#pragma once
#include "util/StatusCodes.h"

#include <cstdint>
#include <span>
#include <string>

struct QvxJ2KHeader {
    std::span<const std::uint8_t> fCodestream;  // the stream, or what lies in the box of a JP2
    std::uint32_t fColumns = 0, fRows = 0, fComponents = 0;
    std::uint32_t fPrecision = 0;  // of all components alike
    bool fSigned = false;
    bool fComponentTransform = false;  // colours are turned to RGB by the codec
    bool fLossy = false;               // the irreversible wavelet
    bool fIsYCC = false;               // a boxed one says its colours are luminance and chrominance
    bool fPart2 = false;               // extensions of T.801
    std::uint32_t fTileColumns = 0, fTileRows = 0;  // at least 1; the last ones may have fewer
    std::uint64_t fTiles = 0;
};

// kQvxMalformed for what is no such stream; kQvxUnsupported for one of a kind that frames don't
// have: components of several sizes or precisions, an image that doesn't begin at 0.
[[nodiscard]] QvxStatus QvxReadJ2KHeader(std::span<const std::uint8_t> stream, QvxJ2KHeader* header,
                                         std::string* why);

// Tile parts say how long they are, and the library takes their word for what it sets aside. Cuts
// those that reach beyond the end of the codestream to what is there. True when there was one: the
// codestream is cut short.
[[nodiscard]] bool QvxBoundTileParts(std::span<std::uint8_t> codestream);

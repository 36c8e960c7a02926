// What a JPEG 2000 codestream makes the library set aside, counted before it does: a large image
// cut into the smallest pieces would cost gigabytes for a stream of a hundred bytes. Internal.
#pragma once
#include "QvxToolkit/QvxJ2KHeader.h"

struct QvxJ2KCost {
    std::uint64_t fPieces = 0;   // precincts and code blocks of all tiles and components
    std::uint64_t fPackets = 0;  // one for each precinct in each layer
};

// By the costliest of the coding styles that the codestream and its tile parts name, ITU-T T.800
// A.6.1 and A.6.2. The image is of at most 65535 by 65535 pixels, its tiles are counted already.
// kQvxMalformed for a broken style, kQvxUnsupported for a marker of the main header that the
// library doesn't know: it would look for the next one within its bytes. `why` gets the reason.
[[nodiscard]] QvxStatus QvxCountJ2KCost(const QvxJ2KHeader& header, QvxJ2KCost* cost,
                                        std::string* why);

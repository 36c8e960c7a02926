// Palette colour tables, plain and segmented: PS3.3 C.7.6.3.1.5, C.7.6.3.1.6, C.7.9.2. Internal.
#pragma once
#include "QvxToolkit/QvxFrameRecord.h"
#include <array>
#include <cstdint>
#include <vector>

struct QvxPalette {
    struct Component {
        std::int64_t fFirst = 0;             // the stored value of the first entry
        std::vector<std::uint8_t> fEntries;  // never empty, 8 bits each
        [[nodiscard]] std::uint8_t Of(std::int64_t stored) const;
    };
    std::array<Component, 3> fColors;  // red, green, blue
};

// The tables of (0028,1101) to (0028,1103) and what follows from them. Entries of 16 bits keep
// their upper byte; but where no entry of a file is above 255, they are 8 bits, whatever the
// descriptor says. A descriptor whose table is shorter means as many entries as are there. A file
// without tables gets a ramp from black to white over its stored values. May throw std::bad_alloc.
[[nodiscard]] QvxPalette QvxReadPalette(QvxParserRec* reader, const QvxFrameRecord& record);

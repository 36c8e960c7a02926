// The shape of a fuzz input: one byte of options, then the file.
#pragma once
#include "Qvx2Parser/Qvx2Reader.h"
#include <cstdint>
#include <vector>

// A reader on the input; null for one that is too short. The first byte's lowest bit chooses
// between a plain call and the program's own options.
inline QvxReaderPtr OpenFuzzInput(const std::uint8_t* data, std::size_t size)
{
    QvxReaderPtr reader;
    if (size < 2)
        return reader;
    const auto* bytes = reinterpret_cast<const std::byte*>(data);
    const std::uint32_t options = (data[0] & 1) != 0 ? kQvxProgramOptions : 0;
    if (Qvx2Parser_OpenBytes(&reader, std::vector<std::byte>(bytes + 1, bytes + size), options) !=
        kQvxOK)
        reader.reset();
    return reader;
}

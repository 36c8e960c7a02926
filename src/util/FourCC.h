// Four-character codes: 32 bits, read big-endian, so that 'b16g' is 0x62313667 on any host.
#pragma once
#include <cstdint>

[[nodiscard]] consteval std::uint32_t FourCC(const char (&text)[5])
{
    std::uint32_t code = 0;
    for (int i = 0; i < 4; ++i)
        code = code << 8 | static_cast<unsigned char>(text[i]);
    return code;
}

// The state "not known yet" of the reader's records, where 0 is a valid state.
inline constexpr std::uint32_t kUnknownState = FourCC("UNKN");

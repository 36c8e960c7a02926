// Numbers from and to bytes in a stated order. The pointer needs no alignment.
#pragma once
#include <bit>
#include <cstdint>
#include <cstring>
#include <type_traits>

template <typename T>
[[nodiscard]] constexpr T ByteSwapped(T value)
{
    static_assert(std::is_unsigned_v<T>);
    if constexpr (sizeof(T) == 1)
        return value;
    else if constexpr (sizeof(T) == 2)
        return static_cast<T>(__builtin_bswap16(value));
    else if constexpr (sizeof(T) == 4)
        return __builtin_bswap32(value);
    else
        return __builtin_bswap64(value);
}

template <typename T>
[[nodiscard]] inline T LoadLE(const void* bytes)
{
    T value;
    std::memcpy(&value, bytes, sizeof value);
    return std::endian::native == std::endian::little ? value : ByteSwapped(value);
}

template <typename T>
[[nodiscard]] inline T LoadBE(const void* bytes)
{
    T value;
    std::memcpy(&value, bytes, sizeof value);
    return std::endian::native == std::endian::big ? value : ByteSwapped(value);
}

template <typename T>
inline void StoreLE(void* bytes, T value)
{
    if constexpr (std::endian::native == std::endian::big)
        value = ByteSwapped(value);
    std::memcpy(bytes, &value, sizeof value);
}

template <typename T>
inline void StoreBE(void* bytes, T value)
{
    if constexpr (std::endian::native == std::endian::little)
        value = ByteSwapped(value);
    std::memcpy(bytes, &value, sizeof value);
}

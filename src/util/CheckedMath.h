// Arithmetic on sizes, offsets and counts that come from files: nothing wraps round unseen.
#pragma once
#include <concepts>
#include <optional>

template <std::integral T>
[[nodiscard]] constexpr std::optional<T> CheckedAdd(T a, T b)
{
    T result{};
    if (__builtin_add_overflow(a, b, &result))
        return std::nullopt;
    return result;
}

template <std::integral T>
[[nodiscard]] constexpr std::optional<T> CheckedMul(T a, T b)
{
    T result{};
    if (__builtin_mul_overflow(a, b, &result))
        return std::nullopt;
    return result;
}

template <std::integral T>
[[nodiscard]] constexpr std::optional<T> CheckedMul(T a, T b, T c)
{
    const auto product = CheckedMul(a, b);
    return product ? CheckedMul(*product, c) : std::nullopt;
}

// Does the run of `count` units at `offset` lie within `size`? Right for any values.
template <std::unsigned_integral T>
[[nodiscard]] constexpr bool RunFits(T offset, T count, T size)
{
    return offset <= size && count <= size - offset;
}
